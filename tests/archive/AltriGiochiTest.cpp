#include <gtest/gtest.h>

#include "TempDir.h"
#include "archive/ArchivioGenerico.h"
#include "archive/ArchivioGioco.h"
#include "archive/WinForLife.h"

namespace lottolab {
namespace {

namespace fs = std::filesystem;

using test::Leggi;
using test::Scrivi;

struct Rifiuto {
  std::string testo;
  std::string messaggio;
};

// Written from the game's rules (ten of 1..20 and a Numerone of 1..20, every hour), not from results.
TEST(WinForLife, LeggeLeOreENumeroneERifiutaCioCheLeRegoleEscludono) {
  auto letto = LeggiRisultatiWinForLife(
      "# data ora concorso n1..n10 numerone\n"
      "2026/03/02 08:00 1 1 3 5 7 9 11 13 15 17 19 20\n"
      "2026/03/02 09:00 2 2 4 6 8 10 12 14 16 18 20 2\n"
      "2026/03/03 08:00 1 1 2 3 4 5 6 7 8 9 10 11\n");
  ASSERT_TRUE(letto) << letto.Errore().testo;
  ASSERT_EQ(letto->EstrazioniArchivio(), 3);
  EXPECT_EQ((*letto)[2].minuti, 9 * 60);
  EXPECT_EQ((*letto)[2].speciali[0], 2) << "the Numerone may be one of the ten";
  EXPECT_EQ((*letto)[3].concorso, 1);

  const std::string prima = "2026/03/02 09:00 2 1 2 3 4 5 6 7 8 9 10 11\n";
  for (const Rifiuto& caso : std::vector<Rifiuto>{
           {"2026/03/02 10:00 3 1 2 3 4 5 6 7 8 9 21 11", "Riga 2: \"21\" non è un numero da 1 a 20"},
           {"2026/03/02 10:00 3 1 2 3 4 5 6 7 8 9 9 11", "Riga 2: il numero 9 compare due volte"},
           {"2026/03/02 10:00 3 1 2 3 4 5 6 7 8 9 10", "Riga 2: servono dieci numeri e il Numerone"},
           {"2026/03/02 08:00 3 1 2 3 4 5 6 7 8 9 10 11",
            "Riga 2: il concorso 3 del 02/03/2026 non viene dopo quello della riga prima"},
           {"2026/03/02 10:60 3 1 2 3 4 5 6 7 8 9 10 11", "Riga 2: \"10:60\" non è un'ora hh:mm"},
       }) {
    auto rifiutato = LeggiRisultatiWinForLife(prima + caso.testo + "\n");
    ASSERT_FALSE(rifiutato) << caso.testo;
    EXPECT_EQ(rifiutato.Errore().testo, caso.messaggio);
  }
}

TEST(ArchivioGenerico, MisureDaTestaDalChiamanteODallaPrimaRiga) {
  auto dalla_riga = LeggiArchivioGenerico("12/01/2026;5;17;33;41;48\n2026/01/19 2 9 10 44 50\n");
  ASSERT_TRUE(dalla_riga) << dalla_riga.Errore().testo;
  EXPECT_EQ(dalla_riga->formato().numeri, 5);
  EXPECT_EQ(dalla_riga->formato().massimo, 90);
  EXPECT_EQ((*dalla_riga)[2].data, (GruppoData{0, 19, 1, 2026}));

  auto con_testa = LeggiArchivioGenerico("# numeri 2 massimo 12\n01/02/2026 3 12\n");
  ASSERT_TRUE(con_testa) << con_testa.Errore().testo;
  EXPECT_EQ(con_testa->formato().massimo, 12);

  auto dal_chiamante = LeggiArchivioGenerico("01/02/2026 3 99\n", {2, 99});
  ASSERT_TRUE(dal_chiamante) << dal_chiamante.Errore().testo;

  for (const Rifiuto& caso : std::vector<Rifiuto>{
           {"01/02/2026 3 95\n",
            "Riga 1: il numero 95 è fuori da 1..90 (un'altra misura si scrive in testa al file: \"# numeri 2 "
            "massimo M\")"},
           {"# numeri 2 massimo 12\n01/02/2026 3 13\n", "Riga 2: il numero 13 è fuori da 1..12"},
           {"01/02/2026 3 5\n02/02/2026 3 5 7\n", "Riga 2: ci sono 3 numeri invece di 2"},
           {"01/02/2026 3 5\n01/02/2026 4 6\n",
            "Riga 2: l'estrazione viene prima dell'estrazione che la precede (01/02/2026)"},
           {"01/02/2026 3 3\n", "Riga 1: l'estrazione ha il numero 3 due volte"},
           {"31/02/2026 3 4\n", "Riga 1: \"31/02/2026\" non è una data GG/MM/AAAA o AAAA/MM/GG"},
           {"01/02/2026 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21\n",
            "Riga 1: 21 numeri da 1 a 90 non sono un'estrazione che l'archivio possa tenere (al più 20 numeri, da 1 a "
            "non più di 255)"},
           {"# solo commenti\n", "Il testo non contiene estrazioni: una riga per estrazione, la data e i numeri"},
       }) {
    auto rifiutato = LeggiArchivioGenerico(caso.testo);
    ASSERT_FALSE(rifiutato) << caso.testo;
    EXPECT_EQ(rifiutato.Errore().testo, caso.messaggio);
  }
}

TEST(ArchivioGenerico, IlFileDiceKEMESiRileggeUguale) {
  test::CartellaTemporanea cartella;
  const fs::path file = cartella / "generico.dat";
  auto assente = CaricaArchivioGenerico(file);
  ASSERT_FALSE(assente) << "no file gives no format";
  EXPECT_EQ(assente.Errore().testo,
            "Il file " + file.string() + " non esiste: un archivio generico nasce importando un testo di estrazioni");

  auto tabella = LeggiArchivioGenerico("# numeri 3 massimo 255\n01/02/2026 1 128 255\n08/02/2026 2 3 4\n");
  ASSERT_TRUE(tabella) << tabella.Errore().testo;
  ASSERT_TRUE(SalvaArchivioGioco(*tabella, file));
  const std::string byte = Leggi(file);
  EXPECT_EQ(byte.substr(0, 8), std::string("LLFT\x03\x00\xFF\x00", 8));
  EXPECT_EQ(byte.size(), 8 + 2 * ByteRecordGioco(tabella->formato()));
  EXPECT_TRUE(IsArchivioGenerico(byte));
  EXPECT_FALSE(IsArchivioGenerico("01/02/2026 1 2 3\n"));
  auto letto = CaricaArchivioGenerico(file);
  ASSERT_TRUE(letto) << letto.Errore().testo;
  EXPECT_EQ(letto->formato().numeri, 3);
  EXPECT_EQ(letto->formato().massimo, 255);
  EXPECT_EQ(letto->Tutte(), tabella->Tutte());
  EXPECT_TRUE(CaricaArchivioGioco(FormatoGenerico(3, 255), file)) << "the same K and M";
  auto altro_formato = CaricaArchivioGioco(FormatoGenerico(3, 90), file);
  ASSERT_FALSE(altro_formato);
  EXPECT_EQ(altro_formato.Errore().testo, "Il file " + file.string() +
                                              " non è un archivio generico valido: ha estrazioni di 3 numeri da 1 a "
                                              "255, non di 3 numeri da 1 a 90");

  const std::string inizio = "Il file " + file.string() + " non è un archivio generico valido: ";
  std::string senza_testata = byte.substr(8);
  std::string k_zero = byte, m_minore = byte, k_21 = byte, m_256 = byte, fuori = byte;
  k_zero[4] = 0;
  m_minore[6] = 2;
  m_minore[7] = 0;
  k_21[4] = 21;
  m_256[6] = 0;
  m_256[7] = 1;
  fuori[8 + ByteRecordGioco(tabella->formato()) + 14 + 2] = 3;  // draw 2 was 2 3 4
  for (const Rifiuto& caso : std::vector<Rifiuto>{
           {"", inizio + "non comincia con gli 8 byte \"LLFT\", numeri e massimo che lo aprono"},
           {"LLFT\x03", inizio + "non comincia con gli 8 byte \"LLFT\", numeri e massimo che lo aprono"},
           {senza_testata, inizio + "non comincia con gli 8 byte \"LLFT\", numeri e massimo che lo aprono"},
           {k_zero, inizio + "dice estrazioni di 0 numeri da 1 a 255 (al più 20 numeri, da 1 a non più di 255)"},
           {k_21, inizio + "dice estrazioni di 21 numeri da 1 a 255 (al più 20 numeri, da 1 a non più di 255)"},
           {m_minore, inizio + "dice estrazioni di 3 numeri da 1 a 2 (al più 20 numeri, da 1 a non più di 255)"},
           {m_256, inizio + "dice estrazioni di 3 numeri da 1 a 256 (al più 20 numeri, da 1 a non più di 255)"},
           {byte.substr(0, byte.size() - 1),
            inizio + "la sua lunghezza (41 byte) non è di 8 byte di testata più un multiplo dei 17 byte di un record"},
           {fuori, inizio + "il record 2 ha il numero 3 due volte"},
       }) {
    Scrivi(file, caso.testo);
    auto rifiutato = CaricaArchivioGenerico(file);
    ASSERT_FALSE(rifiutato) << caso.messaggio;
    EXPECT_EQ(rifiutato.Errore().testo, caso.messaggio);
  }
  EXPECT_FALSE(SalvaArchivioGioco(TabellaGioco(FormatoGenerico(0, 90)), file)) << "no file it could not read again";
}

TEST(ArchivioGenerico, SiImportaSoloConGliStessiKEM) {
  test::CartellaTemporanea cartella;
  const fs::path file = cartella / "generico.dat";
  auto prime = LeggiArchivioGenerico("01/02/2026 1 2 3\n");
  ASSERT_TRUE(prime);
  auto aggiunte = ImportaEstrazioniGioco(prime->formato(), file, prime->Tutte());
  ASSERT_TRUE(aggiunte) << aggiunte.Errore().testo;
  EXPECT_EQ(*aggiunte, 1) << "a missing archive starts empty, in the format of the draws";
  auto seguenti = LeggiArchivioGenerico("01/02/2026 1 2 3\n08/02/2026 4 5 6\n");
  aggiunte = ImportaEstrazioniGioco(seguenti->formato(), file, seguenti->Tutte());
  ASSERT_TRUE(aggiunte) << aggiunte.Errore().testo;
  EXPECT_EQ(*aggiunte, 1);
  const std::string prima = Leggi(file);

  for (const std::string altre : {"# numeri 3 massimo 40\n15/02/2026 7 8 9\n", "15/02/2026 7 8 9 10\n"}) {
    auto diverse = LeggiArchivioGenerico(altre);
    ASSERT_TRUE(diverse) << diverse.Errore().testo;
    auto rifiutate = ImportaEstrazioniGioco(diverse->formato(), file, diverse->Tutte());
    ASSERT_FALSE(rifiutate) << altre;
    EXPECT_EQ(rifiutate.Errore().testo,
              "L'archivio generico " + file.string() + " ha estrazioni di 3 numeri da 1 a 90, quelle da importare " +
                  (diverse->formato().numeri == 3 ? "sono di 3 numeri da 1 a 40" : "sono di 4 numeri da 1 a 90") +
                  ": l'archivio non è stato cambiato");
    EXPECT_EQ(Leggi(file), prima) << "byte for byte";
  }
}

}  // namespace
}  // namespace lottolab
