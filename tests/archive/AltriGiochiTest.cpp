#include <gtest/gtest.h>

#include "archive/ArchivioGenerico.h"
#include "archive/WinForLife.h"

namespace lottolab {
namespace {

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

}  // namespace
}  // namespace lottolab
