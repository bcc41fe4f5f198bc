#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <random>

#include "FigureDiProva.h"
#include "TempDir.h"
#include "figures/FileStrutture.h"
#include "figures/LimitiStrutture.h"
#include "figures/RicercaFigure.h"

namespace lottolab::figures {
namespace {

namespace fs = std::filesystem;
using lottolab::test::CartellaTemporanea;
using lottolab::test::Leggi;
using lottolab::test::Scrivi;

// Writes the file's fields by hand, so that the expected bytes never come from the code under test.
class Byte {
 public:
  Byte& Testo(std::string_view testo) {
    m_byte += testo;
    return *this;
  }
  Byte& I16(int64_t valore) { return Intero(valore, 2); }
  Byte& I32(int64_t valore) { return Intero(valore, 4); }
  // Index, IdEstrazione, FulcroOrizz, FulcroVert, Riga, Colonna, the reserved pair, VersoVert,
  // VersoOrizz, the caption's five bytes as on disk, UsaPerChiusura.
  Byte& Vertice(int index, int64_t id, int fulcroOrizz, int fulcroVert, int riga, int colonna, int riservato1,
                int riservato2, int versoVert, int versoOrizz, std::string_view caption, int chiusura) {
    I16(index).I32(id).I16(fulcroOrizz).I16(fulcroVert).I16(riga).I16(colonna).I16(riservato1).I16(riservato2);
    return I16(versoVert).I16(versoOrizz).Testo(caption).I16(chiusura);
  }
  Byte& Linea(int numero, int inizio, int fine) { return I16(numero).I16(inizio).I16(fine); }
  Byte& Condizione(std::string testo) {
    testo.resize(500, ' ');
    return Testo(testo);
  }
  const std::string& Str() const { return m_byte; }

 private:
  Byte& Intero(int64_t valore, int byte) {
    for (int i = 0; i < byte; ++i) m_byte += static_cast<char>((valore >> (8 * i)) & 0xFF);
    return *this;
  }
  std::string m_byte;
};

const ClsVertice kVerticeA{.Index = 3,
                           .IdEstrazione = 123456,
                           .FulcroOrizz = true,
                           .Riga = 2,
                           .Colonna = 37,
                           .Riservato1 = 7,
                           .Riservato2 = -1,
                           .VersoVert = -1,
                           .VersoOrizz = 1,
                           .Caption = "A",
                           .UsaPerChiusura = true};
const ClsVertice kVerticeB{.Index = 4,
                           .IdEstrazione = -70000,
                           .FulcroVert = true,
                           .Riga = -3,
                           .Colonna = 512,
                           .VersoVert = 1,
                           .VersoOrizz = -1,
                           .Caption = " B"};
const ClsVertice kModello{.Index = 0, .IdEstrazione = 9, .Riga = 1, .Colonna = 1, .Caption = "T"};

Byte& RecordA(Byte& b) { return b.Vertice(3, 123456, -1, 0, 2, 37, 7, -1, -1, 1, "A    ", -1); }
Byte& RecordB(Byte& b) { return b.Vertice(4, -70000, 0, -1, -3, 512, 0, 0, 1, -1, " B   ", 0); }

// The structure the bytes hold, or the reason they hold none as the test's failure.
Struttura Decodificata(std::string_view byte) {
  auto letta = DecodificaStruttura(byte);
  EXPECT_TRUE(letta) << letta.Errore().testo;
  return letta ? *letta : Struttura{};
}

TEST(FileStrutture, VerticesWithoutLinesOrConditionsAndNoTemplate) {
  const Struttura struttura{{kModello, kVerticeA, kVerticeB}, {}, {}};
  Byte atteso;
  atteso.Testo("OFFSET_STRUCT");
  RecordB(RecordA(atteso)).Testo("FINEOFFSET_LINEEFINEOFFSET_CONDFINE");
  EXPECT_EQ(CodificaStruttura(struttura), atteso.Str());

  ClsVertice bRifilato = kVerticeB;
  bRifilato.Caption = "B";
  EXPECT_EQ(Decodificata(atteso.Str()), (Struttura{{kVerticeA, bRifilato}, {}, {}}));
}

TEST(FileStrutture, LongTextsAreCutByCharactersShortOnesPaddedAndReadTrimmed) {
  ClsVertice citta = kVerticeB;
  citta.Caption = "Città!";
  const std::string lunga = std::string(499, 'a') + "é" + "zzz";
  const Struttura struttura{{citta}, {{1, 4, 4}, {-2, 300, 0}}, {lunga, "  [A] = [B]  "}};

  Byte atteso;
  atteso.Testo("OFFSET_STRUCT").Vertice(4, -70000, 0, -1, -3, 512, 0, 0, 1, -1, "Citt\xE0", 0);
  atteso.Testo("FINEOFFSET_LINEE").Linea(1, 4, 4).Linea(-2, 300, 0);
  atteso.Testo("FINEOFFSET_COND").Condizione(std::string(499, 'a') + "\xE9").Condizione("  [A] = [B]  ").Testo("FINE");
  EXPECT_EQ(CodificaStruttura(struttura), atteso.Str());

  citta.Caption = "Città";
  EXPECT_EQ(Decodificata(atteso.Str()),
            (Struttura{{citta}, struttura.linee, {std::string(499, 'a') + "é", "[A] = [B]"}}));
}

// "FINE" in any case ends its section wherever it lies; the count of records is then the cut
// section's length over the record's, rounded.
TEST(FileStrutture, FineInsideATextOrARecordCutsItsSection) {
  ClsVertice fine = kVerticeA;
  fine.Caption = "fine";
  // The caption lies 22 bytes into the record: 22/29 rounds to one record, the later ones are lost.
  auto letta = DecodificaStruttura(CodificaStruttura({{fine, kVerticeB, kVerticeA}, {{1, 3, 4}}, {"x"}}));
  ASSERT_TRUE(letta);
  EXPECT_EQ(letta->vertici, std::vector<ClsVertice>{fine});
  EXPECT_EQ(letta->linee, (std::vector<ClsLinea>{{1, 3, 4}}));
  EXPECT_EQ(letta->condizioni, std::vector<std::string>{"x"});

  // Riga and Colonna spell "fInE" at 10 bytes into the record: 10/29 rounds to none.
  ClsVertice binario = kVerticeA;
  binario.Riga = static_cast<int16_t>('f' | ('I' << 8));
  binario.Colonna = static_cast<int16_t>('n' | ('E' << 8));
  letta = DecodificaStruttura(CodificaStruttura({{binario, kVerticeB}, {}, {}}));
  ASSERT_TRUE(letta);
  EXPECT_TRUE(letta->vertici.empty());

  // 500 + 301 bytes before "Fine": 1.6 rounds to two whole conditions, the third is lost.
  const std::string tagliata = std::string(300, 'x') + " Fine";
  letta = DecodificaStruttura(CodificaStruttura({{kVerticeA}, {}, {"[A] = 1", tagliata, "[A] = 2"}}));
  ASSERT_TRUE(letta);
  EXPECT_EQ(letta->vertici, std::vector<ClsVertice>{kVerticeA});
  EXPECT_EQ(letta->condizioni, (std::vector<std::string>{"[A] = 1", tagliata}));
}

TEST(FileStrutture, RoundedCountsReadPastTheEndMarkerAndPastTheFile) {
  Byte file;
  RecordA(file.Testo("OFFSET_STRUCT"));
  // 29 + 15 bytes: 1.52 rounds to two records, the second ending in "FINE" and "OFFSET_LIN".
  file.I16(9).I32(5).I16(1).I16(0).I16(6).I16(8).Testo("\x07").Testo("FINE");
  // 15 bytes: 2.5 rounds to the even 2.
  file.Testo("OFFSET_LINEE").Linea(1, 2, 3).Linea(4, 5, 6).I16(7).Testo("\x08").Testo("FINE");
  // 260 bytes: 0.52 rounds to one record, which the end of the file fills with zeros.
  file.Testo("OFFSET_COND").Testo(std::string(260, 'x')).Testo("FINE");

  const ClsVertice oltre{.Index = 9,
                         .IdEstrazione = 5,
                         .FulcroOrizz = true,
                         .Riga = 6,
                         .Colonna = 8,
                         .Riservato1 = 0x4607,
                         .Riservato2 = 0x4E49,
                         .VersoVert = 0x4F45,
                         .VersoOrizz = 0x4646,
                         .Caption = "SET_L",
                         .UsaPerChiusura = true};
  auto letta = DecodificaStruttura(file.Str());
  ASSERT_TRUE(letta);
  EXPECT_EQ(letta->vertici, (std::vector<ClsVertice>{kVerticeA, oltre}));
  EXPECT_EQ(letta->linee, (std::vector<ClsLinea>{{1, 2, 3}, {4, 5, 6}}));
  EXPECT_EQ(letta->condizioni, std::vector<std::string>{std::string(260, 'x') + "FINE" + std::string(236, '\0')});
}

TEST(FileStrutture, AFileThatIsNoStructureIsNotValidAndSaysWhy) {
  CartellaTemporanea cartella;
  const std::string valida = CodificaStruttura({{kVerticeA}, {{1, 3, 3}}, {"[A] = 1"}});
  const std::string senza_fine_vertici = "OFFSET_STRUCT" + valida.substr(13, 29) + valida.substr(46);
  const struct {
    std::string nome;
    std::string byte;
    std::string motivo;
  } casi[] = {
      {"senza-condizioni.dat", valida.substr(0, valida.find("OFFSET_COND")),
       "manca la sezione delle condizioni (OFFSET_COND)"},
      {"minuscole.dat", "offset_struct" + valida.substr(13), "manca la sezione dei vertici (OFFSET_STRUCT)"},
      {"vuoto.dat", "", "manca la sezione dei vertici (OFFSET_STRUCT)"},
      // The last FINE lost: the conditions would silently be none.
      {"troncato.dat", valida.substr(0, valida.size() - 4),
       "la sezione delle condizioni non ha la sua fine (FINE): il file è troncato o rovinato"},
      // The lines' FINE must not stand in for the vertices' own.
      {"senza-fine-vertici.dat", senza_fine_vertici,
       "la sezione dei vertici non ha la sua fine (FINE): il file è troncato o rovinato"},
  };
  ASSERT_EQ(senza_fine_vertici.find("FINE"), senza_fine_vertici.find("OFFSET_LINEE") + 12 + 6);
  for (const auto& caso : casi) {
    Scrivi(cartella / caso.nome, caso.byte);
    auto letta = DecodificaStruttura(caso.byte);
    ASSERT_FALSE(letta) << caso.nome;
    EXPECT_EQ(letta.Errore().testo, caso.motivo);
    auto caricata = CaricaStruttura(cartella / caso.nome);
    ASSERT_FALSE(caricata) << caso.nome;
    EXPECT_EQ(caricata.Errore().testo, "File " + (cartella / caso.nome).string() + " non valido: " + caso.motivo);
  }
}

// A file cut anywhere, as a crash or a full disk during a copy leaves it, reads either whole or not at
// all: never as a structure with fewer vertices, lines or conditions.
TEST(FileStrutture, AFileCutAtAnyByteIsWholeOrNotValid) {
  ClsVertice fine_vicina = kVerticeB;
  fine_vicina.Caption = "FIN";
  const Struttura struttura{{kVerticeA, fine_vicina}, {{1, 3, 4}, {2, 4, 3}}, {"[A] = 1", "[A] <> Fin"}};
  const std::string byte = CodificaStruttura(struttura);
  const Struttura attesa = Decodificata(byte);
  for (size_t lunghezza = 0; lunghezza <= byte.size(); ++lunghezza) {
    auto letta = DecodificaStruttura(std::string_view(byte).substr(0, lunghezza));
    if (lunghezza == byte.size()) {
      ASSERT_TRUE(letta);
      EXPECT_EQ(*letta, attesa);
    } else {
      EXPECT_FALSE(letta) << "cut at " << lunghezza << " of " << byte.size();
    }
  }
}

TEST(FileStrutture, StructuresBeyondTheLimitsAreRefusedNamingTheLimit) {
  auto di = [](size_t vertici, size_t linee, size_t condizioni, int16_t ultima_riga = 1) {
    Struttura struttura;
    for (size_t k = 0; k < vertici; ++k)
      struttura.vertici.push_back({.Index = static_cast<int16_t>(k + 1), .Riga = 1, .Colonna = 1, .Caption = ""});
    if (vertici > 0) struttura.vertici.back().Riga = ultima_riga;
    struttura.linee.resize(linee, ClsLinea{1, 1, 1});
    struttura.condizioni.resize(condizioni, "[1] = 1");
    return CodificaStruttura(struttura);
  };
  EXPECT_TRUE(DecodificaStruttura(di(kMassimoVertici, kMassimoLinee, kMassimoCondizioni, kMassimeRigheFigura)));
  const std::pair<std::string, std::string> casi[] = {
      // Two thousand vertices on one cell once filled the memory of the search.
      {di(2000, 0, 0), "ha 2000 vertici, al massimo 100"},
      {di(1, kMassimoLinee + 1, 0), "ha 1001 linee, al massimo 1000"},
      {di(1, 0, 20000), "ha 20000 condizioni, al massimo 100"},
      {di(2, 0, 0, kMassimeRigheFigura + 1), "si stende su 201 estrazioni, al massimo 200"},
  };
  CartellaTemporanea cartella;
  for (const auto& [byte, motivo] : casi) {
    auto letta = DecodificaStruttura(byte);
    ASSERT_FALSE(letta) << motivo;
    EXPECT_EQ(letta.Errore().testo, motivo);
  }
  Scrivi(cartella / "grande.dat", casi[0].first);
  EXPECT_EQ(CaricaStruttura(cartella / "grande.dat").Errore().testo,
            "File " + (cartella / "grande.dat").string() + " non valido: ha 2000 vertici, al massimo 100");
}

// Whatever the path names, loading answers at once with a message: no wait on a pipe with no
// writer, no endless read of a device, no file of any size read whole.
TEST(FileStrutture, WhatIsNoOrdinaryFileOrIsTooBigIsRefusedAtOnce) {
  CartellaTemporanea cartella;
  const fs::path pipe = cartella / "pipe.dat";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const fs::path grande = cartella / "grande.dat";
  {
    std::ofstream out(grande, std::ios::binary);
    out << CodificaStruttura({{kVerticeA}, {}, {}});
    out << std::string(kMassimoByteFile, ' ');
  }
  const std::pair<fs::path, std::string> casi[] = {
      {cartella.Percorso(), "è una cartella, non un file ordinario"},
      {"/dev/zero", "è una periferica, non un file ordinario"},
      {pipe, "è una pipe, non un file ordinario"},
      {cartella / "manca.dat", "il file non esiste"},
      {grande, "supera 1 MB, troppo per una struttura"},
  };
  for (const auto& [percorso, motivo] : casi) {
    auto caricata = CaricaStruttura(percorso);
    ASSERT_FALSE(caricata) << percorso;
    EXPECT_EQ(caricata.Errore().testo, "File " + percorso.string() + " non valido: " + motivo);
  }
}

TEST(FileStrutture, SavingWritesExactlyTheNewBytesOverAnOldFile) {
  CartellaTemporanea cartella;
  const fs::path file = cartella / "figura.dat";
  Scrivi(file, std::string(2000, 'z'));
  const Struttura struttura{{kModello, kVerticeA}, {{1, 3, 3}}, {"[A] = 1", "[A] <> 2"}};
  ASSERT_TRUE(SalvaStruttura(file, struttura));

  Byte atteso;
  RecordA(atteso.Testo("OFFSET_STRUCT")).Testo("FINEOFFSET_LINEE").Linea(1, 3, 3);
  atteso.Testo("FINEOFFSET_COND").Condizione("[A] = 1").Condizione("[A] <> 2").Testo("FINE");
  EXPECT_EQ(Leggi(file), atteso.Str());
  EXPECT_EQ(std::distance(fs::directory_iterator(cartella.Percorso()), fs::directory_iterator()), 1);
  auto caricata = CaricaStruttura(file);
  ASSERT_TRUE(caricata) << caricata.Errore().testo;
  EXPECT_EQ(*caricata, (Struttura{{kVerticeA}, struttura.linee, struttura.condizioni}));

  EXPECT_FALSE(SalvaStruttura(cartella / "manca" / "figura.dat", struttura));
}

// What would not read back whole is not written: a "fine" spelt by a text, by numbers side by side or
// across two conditions, or a structure beyond the limits.
TEST(FileStrutture, ASaveThatWouldNotReadBackWholeIsRefused) {
  CartellaTemporanea cartella;
  const fs::path file = cartella / "figura.dat";
  ClsVertice fine = kVerticeA;
  fine.Caption = "xFinE";
  ClsVertice numeri = kVerticeA;
  numeri.IdEstrazione = 'F' | ('I' << 8) | ('N' << 16) | ('E' << 24);
  std::vector<ClsVertice> troppi(kMassimoVertici + 1, kVerticeA);
  const std::pair<Struttura, std::string> casi[] = {
      {{{fine, kVerticeB}, {}, {}}, "forma la parola \"fine\""},
      {{{numeri, kVerticeB}, {}, {}}, "forma la parola \"fine\""},
      {{{kVerticeA}, {}, {std::string(498, ' ') + "fi", "ne = 1"}}, "forma la parola \"fine\""},
      {{troppi, {}, {}}, "ha 101 vertici, al massimo 100"},
  };
  for (const auto& [struttura, motivo] : casi) {
    auto salvata = SalvaStruttura(file, struttura);
    ASSERT_FALSE(salvata) << motivo;
    EXPECT_NE(salvata.Errore().testo.find(motivo), std::string::npos) << salvata.Errore().testo;
    EXPECT_FALSE(fs::exists(file));
  }
  EXPECT_FALSE(SalvaStrutturaConCondizione(file, {{kVerticeA}, {}, {}}, "[A] = 1 Or fine"));
  EXPECT_TRUE(fs::is_empty(cartella.Percorso()));
}

// A save that fails leaves the old file as it was and no temporary file beside it.
TEST(FileStrutture, AFailedSaveLeavesTheOldFileAndNothingElse) {
  CartellaTemporanea cartella;
  const fs::path file = cartella / "figura.dat";
  const std::string vecchia = CodificaStruttura({{kVerticeA}, {}, {"[A] = 1"}});
  Scrivi(file, vecchia);
  // A folder in the way of the rename: everything before it succeeded.
  const fs::path occupato = cartella / "occupato.dat";
  fs::create_directory(occupato);
  Scrivi(occupato / "dentro", "x");
  auto salvata = SalvaStruttura(occupato, {{kVerticeB}, {}, {}});
  ASSERT_FALSE(salvata);
  EXPECT_TRUE(salvata.Errore().testo.starts_with("75- Impossibile salvare la struttura nel file " + occupato.string()))
      << salvata.Errore().testo;
  EXPECT_EQ(Leggi(file), vecchia);
  EXPECT_EQ(std::distance(fs::directory_iterator(cartella.Percorso()), fs::directory_iterator()), 2);

  // A folder that cannot be written: not even the temporary file.
  if (::geteuid() != 0) {
    fs::permissions(cartella.Percorso(), fs::perms::owner_write, fs::perm_options::remove);
    salvata = SalvaStruttura(file, {{kVerticeB}, {}, {}});
    fs::permissions(cartella.Percorso(), fs::perms::owner_write, fs::perm_options::add);
    ASSERT_FALSE(salvata);
    EXPECT_TRUE(salvata.Errore().testo.ends_with(": permesso negato")) << salvata.Errore().testo;
    EXPECT_EQ(Leggi(file), vecchia);
  }

  // The system's reasons a user meets are said in Italian.
  const fs::path lungo = cartella / (std::string(5000, 'n') + ".dat");
  salvata = SalvaStruttura(lungo, {{kVerticeB}, {}, {}});
  ASSERT_FALSE(salvata);
  EXPECT_TRUE(salvata.Errore().testo.ends_with(": nome del file troppo lungo")) << salvata.Errore().testo;
  EXPECT_EQ(CaricaStruttura(lungo).Errore().testo,
            "File " + lungo.string() + " non valido: non si può leggere: nome del file troppo lungo");
  salvata = SalvaStruttura(file / "dentro.dat", {{kVerticeB}, {}, {}});
  ASSERT_FALSE(salvata);
  EXPECT_TRUE(salvata.Errore().testo.ends_with(": una parte del percorso non è una cartella"))
      << salvata.Errore().testo;
}

// Bytes damaged at random, as a bad disk or a hostile hand leaves them: each reads as a structure
// within the limits or fails with a reason, and what reads is searched over a table without harm.
TEST(FileStrutture, DamagedBytesReadWithinTheLimitsOrNotAtAll) {
  const Struttura struttura{{test::Vertice(1, "A", 0, 1), test::Vertice(2, "B", 1, 2)},
                            {{1, 1, 2}},
                            {"[A] = 1", "Cadenza([B]) <> 3 Or Not RuotaUnica()", "ContaPresenze([A]) < 2"}};
  const std::string valida = CodificaStruttura(struttura);
  const TabellaEstrazioni tab = test::SeiEstrazioni();
  const std::string_view inserti[] = {"FINE", "fInE", "OFFSET_STRUCT", "OFFSET_LINEE", "OFFSET_COND", "\xFF\xFF"};
  std::mt19937 caso(2026);
  auto posizione = [&](const std::string& byte) { return std::uniform_int_distribution<size_t>(0, byte.size())(caso); };
  int lette = 0;
  for (int prova = 0; prova < 20000; ++prova) {
    std::string byte = valida;
    for (int guasto = std::uniform_int_distribution(1, 6)(caso); guasto > 0; --guasto) {
      const size_t dove = posizione(byte);
      switch (caso() % 4) {
        case 0:
          if (dove < byte.size()) byte[dove] = static_cast<char>(caso());
          break;
        case 1: byte.insert(dove, inserti[caso() % std::size(inserti)]); break;
        case 2: byte.erase(dove, caso() % 40); break;
        default: byte.insert(dove, byte.substr(posizione(byte), caso() % 600)); break;
      }
    }
    auto letta = DecodificaStruttura(byte);
    if (!letta) {
      EXPECT_FALSE(letta.Errore().testo.empty());
      continue;
    }
    ++lette;
    EXPECT_FALSE(LimiteSuperato(*letta));
    auto trovate = CercaFigura(tab, *letta, {});
    if (!trovate) continue;
    for (const FiguraTrovata& trovata : trovate->elenco)
      EXPECT_EQ(trovate->Figura(tab, trovata).vertici.size(),
                trovate->forme[static_cast<size_t>(trovata.forma)].punti.size());
  }
  EXPECT_GT(lette, 1000) << "the damage should leave some files readable";
}

// A process killed at any point of a save leaves the file whole, old or new: never cut, never
// empty. The child saves two structures in turn until it is killed at a random moment.
TEST(FileStrutture, AProcessKilledWhileSavingLeavesTheOldFileOrTheNew) {
  CartellaTemporanea cartella;
  const fs::path file = cartella / "figura.dat";
  const Struttura piccola{{kVerticeA}, {}, {"[A] = 1"}};
  const Struttura grande{{kVerticeA, kVerticeB}, {{1, 3, 4}}, std::vector<std::string>(100, "[A] <> [B]")};
  const std::string byte_piccola = CodificaStruttura(piccola);
  const std::string byte_grande = CodificaStruttura(grande);
  std::mt19937 caso(13);
  constexpr int kProve = 200;
  int rovinati = 0;
  for (int prova = 0; prova < kProve; ++prova) {
    Scrivi(file, byte_piccola);
    const pid_t figlio = ::fork();
    ASSERT_GE(figlio, 0);
    if (figlio == 0) {
      for (int k = 0;; ++k) static_cast<void>(SalvaStruttura(file, k % 2 == 0 ? grande : piccola));
    }
    ::usleep(std::uniform_int_distribution<useconds_t>(0, 3000)(caso));
    ::kill(figlio, SIGKILL);
    ::waitpid(figlio, nullptr, 0);
    const std::string letto = Leggi(file);
    if (letto != byte_piccola && letto != byte_grande) ++rovinati;
  }
  EXPECT_EQ(rovinati, 0) << "of " << kProve << " saves killed";
}

TEST(FileStrutture, OtherWindowsSaveTheirOneConditionInPlaceOfTheList) {
  CartellaTemporanea cartella;
  const Struttura struttura{{kModello, kVerticeB}, {}, {"[A] = 1", "[B] = 2"}};
  Byte atteso;
  RecordB(atteso.Testo("OFFSET_STRUCT")).Testo("FINEOFFSET_LINEEFINEOFFSET_COND");
  atteso.Condizione("Cadenza([B]) = 3").Testo("FINE");
  EXPECT_EQ(CodificaStrutturaConCondizione(struttura, "Cadenza([B]) = 3"), atteso.Str());

  ASSERT_TRUE(SalvaStrutturaConCondizione(cartella / "figura.dat", struttura, "Cadenza([B]) = 3"));
  EXPECT_EQ(Leggi(cartella / "figura.dat"), atteso.Str());
}

}  // namespace
}  // namespace lottolab::figures
