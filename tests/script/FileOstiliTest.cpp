// Names that lead to something other than a text file of sensible size: a device that never ends,
// a pipe with no writer, a file too large. Each is refused at once with a message, never read for
// ever, and a page that a script fills in a loop stops growing.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "LibreriaDiProva.h"
#include "TempDir.h"
#include "script/EsecutoreScript.h"
#include "script/LetturaFile.h"
#include "script/OutputHtml.h"
#include "text/Utf.h"

namespace lottolab::script {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;

class FileOstili : public ::testing::Test {
 protected:
  FileOstili() {
    fs::create_directories(m_base / "scriptOutput");
    m_opzioni.libreria.cartella_base = m_base.Percorso();
    m_opzioni.libreria.cartella_output = m_base / "scriptOutput";
    m_opzioni.libreria.cartella_dati_app = m_base.Percorso();
    m_opzioni.nome_file_html = "pagina.htm";
    m_fifo = m_base / "tubo";
    EXPECT_EQ(mkfifo(m_fifo.c_str(), 0600), 0);
    m_grande = m_base / "grande.txt";
    std::ofstream{m_grande};
    fs::resize_file(m_grande, kLimiteFileTesto + 1);
  }

  EsitoEsecuzione Esegui(const std::string& codice) { return m_esecutore.Esegui(text::Utf8ToUtf16(codice), m_opzioni); }

  CartellaTemporanea m_base;
  fs::path m_fifo;
  fs::path m_grande;
  OspiteDiProva m_ospite;
  EsecutoreScript m_esecutore{m_ospite};
  OpzioniEsecuzione m_opzioni;
};

TEST_F(FileOstili, OnlyRegularFilesOfBoundedSizeAreRead) {
  struct Caso {
    fs::path file;
    uintmax_t limite;
    const char* motivo;
  };
  const Caso casi[] = {
      {"/dev/zero", kLimiteFileScript, "una periferica"},
      {"/dev/urandom", kLimiteFileScript, "una periferica"},
      {m_fifo, kLimiteFileScript, "una pipe"},
      {m_base.Percorso(), kLimiteFileScript, "una cartella"},
      {m_grande, kLimiteFileTesto, "supera 64 MB"},
      {m_base / "manca.txt", kLimiteFileScript, "Impossibile leggere"},
  };
  for (const Caso& caso : casi) {
    auto letto = LeggiFileRegolare(caso.file, caso.limite);
    ASSERT_FALSE(letto) << caso.file;
    EXPECT_NE(letto.Errore().testo.find(caso.motivo), std::string::npos) << letto.Errore().testo;
    EXPECT_NE(letto.Errore().testo.find(caso.file.string()), std::string::npos) << letto.Errore().testo;
  }
  std::ofstream(m_base / "piccolo.txt") << "abc";
  auto piccolo = LeggiFileRegolare(m_base / "piccolo.txt", 3);
  ASSERT_TRUE(piccolo);
  EXPECT_EQ(*piccolo, "abc");
  EXPECT_FALSE(LeggiFileRegolare(m_base / "piccolo.txt", 2));
}

TEST_F(FileOstili, AnIncludeThatIsADeviceOrAPipeStopsTheRunWithAMessage) {
  for (const fs::path& file : {fs::path("/dev/zero"), m_fifo, m_grande}) {
    m_ospite.avvisi.clear();
    const auto esito = Esegui("includi " + file.string() + "\nSub Main\nScrivi 1\nEnd Sub\n");
    EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::InclusioneNonRiuscita) << file;
    ASSERT_EQ(m_ospite.avvisi.size(), 1u) << file;
    EXPECT_NE(m_ospite.avvisi[0].testo.find("File di inclusione non letto"), std::string::npos)
        << m_ospite.avvisi[0].testo;
  }
  EXPECT_EQ(m_ospite.testo, "");
}

TEST_F(FileOstili, LibraryAndEngineRefuseDevicesAndPipesWithoutWaiting) {
  const auto esito = Esegui(
      "Sub Main\n"
      "Dim r\n"
      "Scrivi LeggiRigheFileDiTesto(\"/dev/zero\", r)\n"
      "Scrivi LeggiRigheFileDiTesto(\"" +
      m_fifo.string() +
      "\", r)\n"
      "Scrivi LeggiRigheFileDiTesto(\"" +
      m_grande.string() +
      "\", r)\n"
      "Scrivi ScriviFile(\"" +
      m_fifo.string() +
      "\", \"x\")\n"
      "Scrivi QuantitaEstrazioniInFile(\"/dev/zero\")\n"
      "Dim fso: Set fso = CreateObject(\"Scripting.FileSystemObject\")\n"
      "On Error Resume Next\n"
      "fso.OpenTextFile(\"/dev/zero\").ReadAll\n"
      "Scrivi Err.Number: Err.Clear\n"
      "fso.OpenTextFile(\"" +
      m_fifo.string() +
      "\").ReadAll\n"
      "Scrivi Err.Number: Err.Clear\n"
      "fso.OpenTextFile(\"" +
      m_fifo.string() +
      "\", 8).Write \"x\"\n"
      "Scrivi Err.Number: Err.Clear\n"
      "End Sub\n");
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::Completato);
  EXPECT_EQ(m_ospite.testo, "0\n0\n0\nFalso\n0\n75\n75\n70\n");
  ASSERT_EQ(m_ospite.avvisi.size(), 5u);
  EXPECT_NE(m_ospite.avvisi[0].testo.find("periferica"), std::string::npos) << m_ospite.avvisi[0].testo;
  EXPECT_NE(m_ospite.avvisi[1].testo.find("pipe"), std::string::npos) << m_ospite.avvisi[1].testo;
  EXPECT_NE(m_ospite.avvisi[2].testo.find("supera"), std::string::npos) << m_ospite.avvisi[2].testo;
  EXPECT_NE(m_ospite.avvisi[3].testo.find("non è un file"), std::string::npos) << m_ospite.avvisi[3].testo;
}

TEST_F(FileOstili, APageFilledInALoopStopsAtItsLimitWithOneNotice) {
  const auto esito = Esegui(
      "Sub Main\nDim i, riga: riga = String(1000, \"x\")\n"
      "For i = 1 To 40000: Scrivi riga: Next\nEnd Sub\n");
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::Completato);
  const uintmax_t dimensione = fs::file_size(esito.pagina_html);
  EXPECT_GT(dimensione, kLimitePaginaHtml - 2000);
  EXPECT_LT(dimensione, kLimitePaginaHtml + 1000);
  std::ifstream in(esito.pagina_html);
  const std::string pagina{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  const size_t avviso = pagina.find("Output troncato");
  ASSERT_NE(avviso, std::string::npos);
  EXPECT_EQ(pagina.find("Output troncato", avviso + 1), std::string::npos);
  EXPECT_TRUE(pagina.ends_with("</html>\n"));
}

TEST(TimeoutDaVoce, NoEntryOverflowsTheEnginesMilliseconds) {
  EXPECT_EQ(TimeoutDaVoce(0, "Infinito"), -1);
  EXPECT_EQ(TimeoutDaVoce(3, "3 minuti"), 180000);
  EXPECT_EQ(TimeoutDaVoce(1, "99999999999 minuti"), kMinutiTimeoutMassimi * 60000);
  EXPECT_GT(kMinutiTimeoutMassimi * int64_t{60000}, 0);
  EXPECT_LE(kMinutiTimeoutMassimi * int64_t{60000}, INT32_MAX);
}

}  // namespace
}  // namespace lottolab::script
