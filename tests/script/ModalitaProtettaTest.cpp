// What a script may do with files in each mode, through both the library and the engine's
// FileSystemObject, and how links and ".." are judged.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "LibreriaDiProva.h"
#include "TempDir.h"
#include "script/AccessoFile.h"
#include "script/EsecutoreScript.h"
#include "script/LetturaFile.h"
#include "text/Utf.h"

namespace lottolab::script {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;
using test::Leggi;
using test::Scrivi;

// A base folder with an archive, the INI, a script of the user's and the output folder, and a
// folder outside it standing for the user's home. Paths reach the scripts through the globals
// BASE and FUORI, with a trailing "/".
class ModalitaProtetta : public ::testing::Test {
 protected:
  ModalitaProtetta() {
    Scrivi(m_base / "BaseDati.dat", "archivio");
    Scrivi(m_base / "lottolab.ini", "[GENERALE]\n");
    Scrivi(m_base / "Script" / "mio.ls", "mio");
    Scrivi(m_base / "Script" / "Funzioni" / "Lib.ls", "Function Uno\nUno = 1\nEnd Function\n");
    fs::create_directories(m_base / "scriptOutput");
    Scrivi(m_fuori / ".bashrc", "originale");
    fs::create_directories(m_fuori / "cartella");
    Scrivi(m_fuori / "cartella" / "dentro.txt", "dentro");
    m_opzioni.libreria.cartella_base = m_base.Percorso();
    m_opzioni.libreria.cartella_output = m_base / "scriptOutput";
    m_opzioni.libreria.cartella_dati_app = m_base.Percorso();
    m_opzioni.libreria.sola_lettura = {m_base / "BaseDati.dat", m_base / "lottolab.ini"};
    m_opzioni.libreria.modalita = Modalita::Protetta;
    m_opzioni.nome_file_html = "pagina.htm";
  }

  EsitoEsecuzione Esegui(std::string_view corpo) {
    const std::string codice = "Const BASE = \"" + m_base.Percorso().string() + "/\"\nConst FUORI = \"" +
                               m_fuori.Percorso().string() + "/\"\nSub Main\n" + std::string(corpo) + "\nEnd Sub\n";
    return m_esecutore.Esegui(text::Utf8ToUtf16(codice), m_opzioni);
  }

  // The run ended with error 70 naming the function and the path (`percorso` is a part of it).
  void Rifiutato(std::string_view corpo, std::string_view funzione, std::string_view percorso) {
    const EsitoEsecuzione esito = Esegui(corpo);
    ASSERT_EQ(esito.stato, EsitoEsecuzione::Stato::ErroreScript) << corpo;
    ASSERT_TRUE(esito.errore);
    EXPECT_EQ(esito.errore->numero, 70) << corpo << "\n" << esito.errore->descrizione;
    EXPECT_NE(esito.errore->descrizione.find("Permesso negato"), std::string::npos) << esito.errore->descrizione;
    EXPECT_NE(esito.errore->descrizione.find(funzione), std::string::npos) << esito.errore->descrizione;
    EXPECT_NE(esito.errore->descrizione.find(percorso), std::string::npos) << esito.errore->descrizione;
  }

  void Intatti() {
    EXPECT_EQ(Leggi(m_fuori / ".bashrc"), "originale");
    EXPECT_EQ(Leggi(m_fuori / "cartella" / "dentro.txt"), "dentro");
    EXPECT_EQ(Leggi(m_base / "BaseDati.dat"), "archivio");
    EXPECT_EQ(Leggi(m_base / "lottolab.ini"), "[GENERALE]\n");
    EXPECT_EQ(Leggi(m_base / "Script" / "mio.ls"), "mio");
  }

  CartellaTemporanea m_base;
  CartellaTemporanea m_fuori;
  OspiteDiProva m_ospite;
  EsecutoreScript m_esecutore{m_ospite};
  OpzioniEsecuzione m_opzioni;
};

struct Caso {
  const char* corpo;
  const char* funzione;
  const char* percorso;
};

TEST_F(ModalitaProtetta, EveryWayToWriteDeleteOrLaunchOutsideTheOutputFolderIsAScriptError) {
  constexpr std::string_view kFso = "Dim fso: Set fso = CreateObject(\"Scripting.FileSystemObject\")\n";
  const std::string fuori = m_fuori.Percorso().filename().string();
  const Caso casi[] = {
      // Writing, by the library and by the engine.
      {"ScriviFile FUORI & \".bashrc\", \"rm -rf ~\"", "ScriviFile", ".bashrc"},
      {"CreaDirectory FUORI & \"nuova\"", "CreaDirectory", "nuova"},
      {"CopiaFile BASE & \"Script/mio.ls\", FUORI & \"copia.ls\"", "CopiaFile", "copia.ls"},
      {"RinominaFile BASE & \"scriptOutput/x\", FUORI & \"y\"", "RinominaFile", "y"},
      {"fso.CreateTextFile(FUORI & \".bashrc\").WriteLine \"x\"", "CreateTextFile", ".bashrc"},
      {"fso.OpenTextFile(FUORI & \".bashrc\", 8).WriteLine \"x\"", "OpenTextFile", ".bashrc"},
      {"Dim t: Set t = fso.OpenTextFile(FUORI & \"nuovo.txt\", 1, True)", "OpenTextFile", "nuovo.txt"},
      {"fso.CreateFolder FUORI & \"nuova\"", "CreateFolder", "nuova"},
      {"fso.CopyFile BASE & \"Script/mio.ls\", FUORI", "CopyFile", fuori.c_str()},
      {"fso.GetFolder(BASE & \"scriptOutput\").CreateTextFile(FUORI & \"z.txt\")", "CreateTextFile", "z.txt"},
      {"fso.GetFolder(FUORI).SubFolders.Add \"nuova\"", "Add", "nuova"},
      // Deleting, also what lies in the base folder but outside the output folder.
      {"EliminaFile BASE & \"Script/mio.ls\"", "EliminaFile", "mio.ls"},
      {"fso.DeleteFile FUORI & \".bashrc\"", "DeleteFile", ".bashrc"},
      {"fso.DeleteFolder FUORI & \"cartella\"", "DeleteFolder", "cartella"},
      {"fso.DeleteFolder BASE & \"scriptOutput\"", "DeleteFolder", "scriptOutput"},
      {"fso.GetFile(BASE & \"Script/mio.ls\").Delete", "Delete", "mio.ls"},
      {"fso.MoveFile BASE & \"Script/mio.ls\", BASE & \"scriptOutput/\"", "MoveFile", "mio.ls"},
      {"fso.GetFile(BASE & \"Script/mio.ls\").Name = \"altro.ls\"", "Name", "mio.ls"},
      // The INI and the archive.
      {"ScriviFile BASE & \"lottolab.ini\", \"sIndirizzoRisultati=http://altrove\"", "ScriviFile", "lottolab.ini"},
      {"fso.CreateTextFile BASE & \"BaseDati.dat\"", "CreateTextFile", "BaseDati.dat"},
      {"EliminaFile BASE & \"BaseDati.dat\"", "EliminaFile", "BaseDati.dat"},
      // Launching.
      {"LanciaFile BASE & \"Script/mio.ls\"", "LanciaFile", "mio.ls"},
      // Reading outside the base folder.
      {"Dim r: LeggiRigheFileDiTesto FUORI & \".bashrc\", r", "LeggiRigheFileDiTesto", ".bashrc"},
      {"Dim f: ElencoFileInDirectory FUORI, f", "ElencoFileInDirectory", fuori.c_str()},
      {"QuantitaEstrazioniInFile FUORI & \".bashrc\"", "QuantitaEstrazioniInFile", ".bashrc"},
      {"fso.OpenTextFile(FUORI & \".bashrc\").ReadAll", "OpenTextFile", ".bashrc"},
      {"fso.GetFile(FUORI & \".bashrc\").OpenAsTextStream.ReadAll", "OpenAsTextStream", ".bashrc"},
      {"fso.CopyFile FUORI & \".bashrc\", BASE & \"scriptOutput/\"", "CopyFile", ".bashrc"},
      {"Dim n: n = fso.GetFolder(FUORI).Files.Count", "Files", fuori.c_str()},
      // A page the script names itself goes nowhere but the output folder.
      {"SetNomeFileHtmlOut FUORI & \"x.htm\": AzzeraHtmlOutput", "AzzeraHtmlOutput", "x.htm"},
  };
  Scrivi(m_base / "scriptOutput" / "x", "x");
  for (const Caso& caso : casi) {
    SCOPED_TRACE(caso.corpo);
    Rifiutato(std::string(kFso) + caso.corpo, caso.funzione, caso.percorso);
    Intatti();
  }
  EXPECT_FALSE(fs::exists(m_fuori / "nuova"));
  EXPECT_FALSE(fs::exists(m_fuori / "nuovo.txt"));
  EXPECT_FALSE(fs::exists(m_fuori / "copia.ls"));
  EXPECT_FALSE(fs::exists(m_fuori / "mio.ls"));
}

TEST_F(ModalitaProtetta, InsideItsFoldersAProtectedScriptWorksAsUsual) {
  const std::string codice = "includi Lib.ls\n";
  const auto con_inclusione = m_esecutore.Esegui(
      text::Utf8ToUtf16(codice + "Const BASE = \"" + m_base.Percorso().string() +
                        "/\"\nSub Main\nDim fso: Set fso = CreateObject(\"Scripting.FileSystemObject\")\n"
                        "ScriviFile BASE & \"scriptOutput/a.txt\", \"uno\", False, True\n"
                        "CreaDirectory BASE & \"scriptOutput/sotto\"\n"
                        "CopiaFile BASE & \"Script/mio.ls\", BASE & \"scriptOutput/sotto/copia.ls\"\n"
                        "fso.CreateTextFile(BASE & \"scriptOutput/b.txt\").Write \"due\"\n"
                        "fso.DeleteFolder BASE & \"scriptOutput/sotto\"\n"
                        "Dim r: Scrivi LeggiRigheFileDiTesto(BASE & \"lottolab.ini\", r)\n"
                        "Scrivi fso.OpenTextFile(BASE & \"scriptOutput/a.txt\").ReadLine\n"
                        "Scrivi Uno()\nEnd Sub\n"),
      m_opzioni);
  EXPECT_EQ(con_inclusione.stato, EsitoEsecuzione::Stato::Completato)
      << (con_inclusione.errore ? con_inclusione.errore->descrizione : "");
  EXPECT_EQ(m_ospite.testo, "1\nuno\n1\n");
  EXPECT_EQ(Leggi(m_base / "scriptOutput" / "b.txt"), "due");
  EXPECT_FALSE(fs::exists(m_base / "scriptOutput" / "sotto"));
  Intatti();
}

TEST_F(ModalitaProtetta, ARefusalIsTrappedLikeAnyRuntimeError) {
  const auto esito = Esegui(
      "On Error Resume Next\n"
      "ScriviFile FUORI & \".bashrc\", \"x\"\n"
      "Scrivi Err.Number\n"
      "Err.Clear\n"
      "CreateObject(\"Scripting.FileSystemObject\").DeleteFile FUORI & \".bashrc\"\n"
      "Scrivi Err.Number & \" \" & (InStr(Err.Description, \"DeleteFile\") > 0)");
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::Completato);
  EXPECT_EQ(m_ospite.testo, "70\n70 Vero\n");
  Intatti();
}

TEST_F(ModalitaProtetta, LinksAndDotDotAreJudgedByWhereTheyLead) {
  fs::create_symlink(m_fuori.Percorso(), m_base / "scriptOutput" / "casa");
  fs::create_symlink(m_fuori / "creato.txt", m_base / "scriptOutput" / "sospeso");
  fs::create_symlink(m_fuori / ".bashrc", m_base / "scriptOutput" / "bashrc");
  const Caso casi[] = {
      {"ScriviFile BASE & \"scriptOutput/casa/.bashrc\", \"x\"", "ScriviFile", "casa/.bashrc"},
      {"ScriviFile BASE & \"scriptOutput/bashrc\", \"x\"", "ScriviFile", "bashrc"},
      // A link that points nowhere would create its target.
      {"CreateObject(\"Scripting.FileSystemObject\").CreateTextFile BASE & \"scriptOutput/sospeso\"", "CreateTextFile",
       "sospeso"},
      {"ScriviFile BASE & \"scriptOutput/../lottolab.ini\", \"x\"", "ScriviFile", "lottolab.ini"},
      {"ScriviFile BASE & \"scriptOutput/../../\" & Mid(FUORI, InStrRev(FUORI, \"/\", Len(FUORI) - 1) + 1) & "
       "\".bashrc\", \"x\"",
       "ScriviFile", ".bashrc"},
      {"Dim r: LeggiRigheFileDiTesto BASE & \"scriptOutput/casa/.bashrc\", r", "LeggiRigheFileDiTesto", ".bashrc"},
      {"EliminaFile BASE & \"scriptOutput/bashrc/\"", "EliminaFile", "bashrc"},
  };
  for (const Caso& caso : casi) {
    SCOPED_TRACE(caso.corpo);
    Rifiutato(caso.corpo, caso.funzione, caso.percorso);
    Intatti();
  }
  EXPECT_FALSE(fs::exists(m_fuori / "creato.txt"));

  fs::create_symlink(m_base / "scriptOutput" / "giro1", m_base / "scriptOutput" / "giro2");
  fs::create_symlink(m_base / "scriptOutput" / "giro2", m_base / "scriptOutput" / "giro1");
  EXPECT_FALSE(PercorsoRisolto(m_base / "scriptOutput" / "giro1" / "x"));
  Rifiutato("ScriviFile BASE & \"scriptOutput/giro1/x\", \"x\"", "ScriviFile", "giro1");
}

TEST_F(ModalitaProtetta, IncludesFromOutsideTheBaseFolderAreRefused) {
  Scrivi(m_fuori / "Esterna.ls", "Function Due\nDue = 2\nEnd Function\n");
  const auto esito = m_esecutore.Esegui(
      text::Utf8ToUtf16("includi " + (m_fuori / "Esterna.ls").string() + "\nSub Main\nEnd Sub\n"), m_opzioni);
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::InclusioneNonRiuscita);
  ASSERT_FALSE(m_ospite.avvisi.empty());
  EXPECT_NE(m_ospite.avvisi.back().testo.find("Permesso negato: includi"), std::string::npos)
      << m_ospite.avvisi.back().testo;
}

TEST_F(ModalitaProtetta, NormalModeAllowsTheUsersFilesButNotTheIniOrTheArchives) {
  m_opzioni.libreria.modalita = Modalita::Normale;
  const auto esito = Esegui(
      "Dim fso: Set fso = CreateObject(\"Scripting.FileSystemObject\")\n"
      "ScriviFile FUORI & \"nota.txt\", \"ok\", False, True\n"
      "Dim r: Scrivi LeggiRigheFileDiTesto(FUORI & \".bashrc\", r)\n"
      "fso.DeleteFile FUORI & \"cartella/dentro.txt\"\n");
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::Completato) << (esito.errore ? esito.errore->descrizione : "");
  EXPECT_EQ(Leggi(m_fuori / "nota.txt"), "ok\n");
  EXPECT_FALSE(fs::exists(m_fuori / "cartella" / "dentro.txt"));
  Scrivi(m_fuori / "cartella" / "dentro.txt", "dentro");

  const std::string base = m_base.Percorso().filename().string();
  const Caso casi[] = {
      {"ScriviFile BASE & \"lottolab.ini\", \"x\"", "ScriviFile", "lottolab.ini"},
      {"CopiaFile FUORI & \".bashrc\", BASE & \"BaseDati.dat\", True", "CopiaFile", "BaseDati.dat"},
      {"CreateObject(\"Scripting.FileSystemObject\").DeleteFolder Left(BASE, Len(BASE) - 1), True", "DeleteFolder",
       base.c_str()},
      {"CreateObject(\"Scripting.FileSystemObject\").OpenTextFile(BASE & \"BaseDati.dat\", 2).Write \"x\"",
       "OpenTextFile", "BaseDati.dat"},
  };
  for (const Caso& caso : casi) {
    SCOPED_TRACE(caso.corpo);
    Rifiutato(caso.corpo, caso.funzione, caso.percorso);
    Intatti();
  }
}

}  // namespace
}  // namespace lottolab::script
