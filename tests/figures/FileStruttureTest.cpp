#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "TempDir.h"
#include "figures/FileStrutture.h"

namespace lottolab::figures {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;

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

const ClsVertice kVerticeA{.Index = 3, .IdEstrazione = 123456, .FulcroOrizz = true, .Riga = 2, .Colonna = 37,
                           .Riservato1 = 7, .Riservato2 = -1, .VersoVert = -1, .VersoOrizz = 1, .Caption = "A",
                           .UsaPerChiusura = true};
const ClsVertice kVerticeB{.Index = 4, .IdEstrazione = -70000, .FulcroVert = true, .Riga = -3, .Colonna = 512,
                           .VersoVert = 1, .VersoOrizz = -1, .Caption = " B"};
const ClsVertice kModello{.Index = 0, .IdEstrazione = 9, .Riga = 1, .Colonna = 1, .Caption = "T"};

Byte& RecordA(Byte& b) { return b.Vertice(3, 123456, -1, 0, 2, 37, 7, -1, -1, 1, "A    ", -1); }
Byte& RecordB(Byte& b) { return b.Vertice(4, -70000, 0, -1, -3, 512, 0, 0, 1, -1, " B   ", 0); }

std::string Leggi(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::stringstream byte;
  byte << in.rdbuf();
  return byte.str();
}

void Scrivi(const fs::path& file, std::string_view byte) {
  std::ofstream(file, std::ios::binary | std::ios::trunc) << byte;
}

TEST(FileStrutture, VerticesWithoutLinesOrConditionsAndNoTemplate) {
  const Struttura struttura{{kModello, kVerticeA, kVerticeB}, {}, {}};
  Byte atteso;
  atteso.Testo("OFFSET_STRUCT");
  RecordB(RecordA(atteso)).Testo("FINEOFFSET_LINEEFINEOFFSET_CONDFINE");
  EXPECT_EQ(CodificaStruttura(struttura), atteso.Str());

  ClsVertice bRifilato = kVerticeB;
  bRifilato.Caption = "B";
  EXPECT_EQ(DecodificaStruttura(atteso.Str()), (Struttura{{kVerticeA, bRifilato}, {}, {}}));
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
  EXPECT_EQ(DecodificaStruttura(atteso.Str()),
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

  const ClsVertice oltre{.Index = 9, .IdEstrazione = 5, .FulcroOrizz = true, .Riga = 6, .Colonna = 8,
                         .Riservato1 = 0x4607, .Riservato2 = 0x4E49, .VersoVert = 0x4F45, .VersoOrizz = 0x4646,
                         .Caption = "SET_L", .UsaPerChiusura = true};
  auto letta = DecodificaStruttura(file.Str());
  ASSERT_TRUE(letta);
  EXPECT_EQ(letta->vertici, (std::vector<ClsVertice>{kVerticeA, oltre}));
  EXPECT_EQ(letta->linee, (std::vector<ClsLinea>{{1, 2, 3}, {4, 5, 6}}));
  EXPECT_EQ(letta->condizioni, std::vector<std::string>{std::string(260, 'x') + "FINE" + std::string(236, '\0')});
}

TEST(FileStrutture, AFileThatIsNoStructureIsNotValid) {
  CartellaTemporanea cartella;
  const std::string valida = CodificaStruttura({{kVerticeA}, {}, {}});
  const std::vector<std::pair<std::string, std::string>> file = {
      {"senza-condizioni.dat", valida.substr(0, valida.find("OFFSET_COND"))},
      {"minuscole.dat", "offset_struct" + valida.substr(13)},
      {"vuoto.dat", ""},
  };
  for (const auto& [nome, byte] : file) {
    Scrivi(cartella / nome, byte);
    EXPECT_FALSE(DecodificaStruttura(byte)) << nome;
  }
  std::vector<fs::path> percorsi = {cartella / "senza-condizioni.dat", cartella / "minuscole.dat",
                                    cartella / "vuoto.dat", cartella / "manca.dat"};
  for (const fs::path& percorso : percorsi) {
    auto caricata = CaricaStruttura(percorso);
    ASSERT_FALSE(caricata) << percorso;
    EXPECT_EQ(caricata.Errore().testo, "File " + percorso.string() + " non valido");
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
