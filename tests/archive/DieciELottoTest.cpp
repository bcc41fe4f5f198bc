#include <gtest/gtest.h>

#include <fmt/format.h>

#include <fstream>
#include <map>
#include <sstream>

#include "DatiReali.h"
#include "archive/ArchivioGioco.h"
#include "archive/DateEstrazione.h"
#include "archive/DieciELotto.h"
#include "archive/DieciELottoOgniCinqueMinuti.h"
#include "archive/ImportaRisultati.h"

namespace lottolab {
namespace {

std::vector<int> Numeri(const auto& numeri, size_t quanti) {
  return std::vector<int>(numeri.begin(), numeri.begin() + static_cast<std::ptrdiff_t>(quanti));
}

// Column by column: wheel w holds 10w+1 .. 10w+5, except that Cagliari repeats Bari's first number
// and Firenze Bari's second. So column 1 gives 11 11(taken) 31 .. 101, column 2 gives 12 12(taken)
// 32 .. 102, and the third column completes the twenty and starts the Extra.
Estrazione Serata(GruppoData data) {
  Estrazione draw;
  draw.data = data;
  for (int ruota = BA; ruota <= NZ; ++ruota)
    for (int p = 1; p <= 5; ++p) draw.ImpostaNumero(ruota, p, (ruota - 1) * 8 + p);
  return draw;
}

TEST(DieciELottoDalLotto, LeggeLeColonneSaltandoIRipetutiEGliSpecialiSecondoIlPeriodo) {
  Estrazione prima = Serata({5, 10, 6, 2009});
  Estrazione ripetuta = Serata({70, 11, 6, 2009});
  ripetuta.ImpostaNumero(CA, 1, ripetuta.Numero(BA, 1));
  ripetuta.ImpostaNumero(FI, 2, ripetuta.Numero(BA, 2));
  TabellaEstrazioni lotto({prima, ripetuta, Serata({1, 30, 9, 2017}), Serata({2, 1, 10, 2017}),
                           Serata({3, 25, 10, 2022}), Serata({4, 26, 10, 2022})});
  const auto serali = DieciELottoDalLotto(lotto);
  ASSERT_EQ(serali.size(), 5u) << "the evening game starts on 11/06/2009";

  // Wheel w holds 8(w-1)+1 .. 8(w-1)+5. Columns 1 and 2 give 1 2 9 10 .. 73 74 less the two repeats
  // (CA's 1st and FI's 2nd), so the third column adds Bari's 3 and Cagliari's 11.
  const EstrazioneGioco& serata = serali[0];
  EXPECT_EQ(serata.concorso, 70);
  EXPECT_EQ(Numeri(serata.numeri, 20),
            (std::vector<int>{1, 2, 3, 10, 11, 17, 25, 26, 33, 34, 41, 42, 49, 50, 57, 58, 65, 66, 73, 74}));
  EXPECT_EQ(serata.speciali, (std::array<uint8_t, 3>{1, 0, 0})) << "only the Oro before October 2017";
  EXPECT_EQ(Numeri(serata.extra, 15), std::vector<int>(15, 0)) << "no Extra before 25/10/2022";

  EXPECT_EQ(serali[1].speciali, (std::array<uint8_t, 3>{1, 0, 0}));
  EXPECT_EQ(serali[2].speciali, (std::array<uint8_t, 3>{1, 2, 0})) << "Doppio Oro from 01/10/2017";
  EXPECT_EQ(serali[3].speciali, (std::array<uint8_t, 3>{1, 2, 0}));
  EXPECT_EQ(Numeri(serali[3].extra, 15), (std::vector<int>{3, 4, 11, 12, 19, 20, 27, 28, 35, 36, 43, 51, 59, 67, 75}))
      << "the third column, then the fourth";
  EXPECT_EQ(serali[4].speciali, (std::array<uint8_t, 3>{1, 2, 81})) << "Gong from 26/10/2022";
}

TEST(RisultatiDieciELotto, UnaRigaSbagliataRifiutaIlFileENominaLaRiga) {
  const std::string venti = "1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12\t13\t14\t15\t16\t17\t18\t19\t20";
  auto buono =
      LeggiRisultatiDieciELotto("# date\n2014/06/26\t76\t" + venti + "\t7\n2014/06/28\t77\t" + venti + "\t-\n");
  ASSERT_TRUE(buono) << buono.Errore().testo;
  EXPECT_EQ((*buono)[0].speciali[0], 7);
  EXPECT_EQ((*buono)[1].speciali[0], 0);
  const struct {
    std::string riga;
    std::string messaggio;
  } casi[] = {
      {"2014/06/26\t76\t1\t2\t3\t7", "Riga 1: ci sono 4 numeri invece di 20"},
      {"2014/06/26\t76\t" + venti + "\t21", "Riga 1: il Numero Oro \"21\" non è tra i 20 numeri"},
      {"2014/06/26\t76\t" + venti, "Riga 1: manca il Numero Oro (\"-\" dove non è dato)"},
      {"2014/06/26\t76\t1\t1\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12\t13\t14\t15\t16\t17\t18\t19\t20\t1",
       "Riga 1: il numero 1 compare due volte"},
  };
  for (const auto& caso : casi) {
    auto esito = LeggiRisultatiDieciELotto(caso.riga + "\n");
    ASSERT_FALSE(esito) << caso.riga;
    EXPECT_EQ(esito.Errore().testo, caso.messaggio);
  }
}

TEST(DieciELottoReale, LeSeraliDelLottoSonoQuelleDeiRisultatiTranneIl23Dicembre2010) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  auto lotto = LeggiNuoveEstrazioniDaFile(TabellaEstrazioni{}, test::CartellaDatiReali() / "lotto.txt");
  ASSERT_TRUE(lotto) << lotto.Errore().testo;
  std::ifstream file(test::CartellaDatiReali() / "10elotto.txt", std::ios::binary);
  std::stringstream testo;
  testo << file.rdbuf();
  auto risultati = LeggiRisultatiDieciELotto(testo.str());
  ASSERT_TRUE(risultati) << risultati.Errore().testo;
  ASSERT_EQ(risultati->size(), 2537u);

  const TabellaEstrazioni tabella(*lotto);
  const auto costruito = ArchivioDieciELotto(tabella, *risultati);
  EXPECT_EQ(costruito.confrontate, 2490);
  ASSERT_EQ(costruito.differenze.size(), 1u);
  EXPECT_TRUE(costruito.differenze[0].starts_with("23/12/2010: ")) << costruito.differenze[0];
  EXPECT_EQ(costruito.tabella.EstrazioniArchivio(),
            static_cast<int>(DieciELottoDalLotto(tabella).size()) + 2537 - 2490);
  EXPECT_EQ(costruito.tabella[costruito.tabella.EstrazioniArchivio()].data, (GruppoData{134, 21, 8, 2026}));

  // The contests are the published ones, also after the 2020 suspension, where the Lotto's count
  // within the year falls behind.
  std::map<int, int> concorsi;
  for (const EstrazioneGioco& risultato : *risultati) concorsi[GiornoAssoluto(risultato.data)] = risultato.concorso;
  for (const EstrazioneGioco& serata : costruito.tabella.Tutte()) {
    auto trovato = concorsi.find(GiornoAssoluto(serata.data));
    if (trovato != concorsi.end()) {
      ASSERT_EQ(serata.concorso, trovato->second) << FormattaData(serata.data);
    }
  }
}

std::string RigaCinqueMinuti(std::string_view data, std::string_view ora, int concorso, int primo) {
  std::string riga = fmt::format("{}\t{}\t{}", data, ora, concorso);
  for (int i = 0; i < 20; ++i) riga += fmt::format("\t{}", primo + i);
  return riga + fmt::format("\t{}\t0\n", primo);
}

TEST(RisultatiCinqueMinuti, LUltimoConcorsoDelGiornoPuoEssereAMezzanotteEIDubbiSonoSegnalati) {
  std::string testo = "# date\ttime\tcontest\n";
  for (int giorno = 4; giorno <= 6; ++giorno)
    for (int concorso = 1; concorso <= 287; ++concorso) {
      const int minuti = concorso * 5;
      testo += RigaCinqueMinuti(fmt::format("2026/08/{:02}", giorno),
                                fmt::format("{:02}:{:02}", minuti / 60, minuti % 60), concorso, concorso % 70 + 1);
      // The 4th closes at 23:59, the 5th at midnight; the 6th has two different last contests.
      if (concorso == 287 && giorno == 4) testo += RigaCinqueMinuti("2026/08/04", "23:59", 288, 1);
      if (concorso == 287 && giorno == 6) testo += RigaCinqueMinuti("2026/08/06", "23:59", 288, 2);
    }
  testo += RigaCinqueMinuti("2026/08/06", "00:00", 288, 3);
  testo += RigaCinqueMinuti("2026/08/07", "00:00", 288, 4);
  testo += RigaCinqueMinuti("2026/08/07", "00:05", 1, 5);
  testo += RigaCinqueMinuti("2026/08/07", "00:15", 3, 6);

  auto letti = LeggiRisultatiCinqueMinuti(testo);
  ASSERT_TRUE(letti) << letti.Errore().testo;
  EXPECT_EQ(letti->segnalazioni,
            (std::vector<std::string>{"06/08/2026 concorso 288: i risultati ne danno 2 diversi; non è nell'archivio",
                                      "07/08/2026 concorso 2: manca nei risultati; non è nell'archivio"}));
  const TabellaGioco& tabella = letti->tabella;
  ASSERT_EQ(tabella.EstrazioniArchivio(), 288 + 288 + 287 + 2);
  EXPECT_EQ(tabella[288].concorso, 288);
  EXPECT_EQ(tabella[288].minuti, 23 * 60 + 59);
  EXPECT_EQ(tabella[576].data, (GruppoData{0, 5, 8, 2026})) << "midnight closes the day before";
  EXPECT_EQ(tabella[576].numeri[0], 3);
  EXPECT_EQ(tabella[tabella.EstrazioniArchivio()].concorso, 3);

  auto rifiutato = LeggiRisultatiCinqueMinuti(RigaCinqueMinuti("2026/08/04", "00:10", 1, 1));
  ASSERT_FALSE(rifiutato);
  EXPECT_EQ(rifiutato.Errore().testo, "Riga 1: il concorso 1 è alle 00:10, non alle 00:05");
}

TEST(RisultatiCinqueMinutiReali, TreGiorniConDueUltimiConcorsiETreSenza) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  std::ifstream file(test::CartellaDatiReali() / "10elotto_5min.txt", std::ios::binary);
  std::stringstream testo;
  testo << file.rdbuf();
  auto letti = LeggiRisultatiCinqueMinuti(testo.str());
  ASSERT_TRUE(letti) << letti.Errore().testo;
  EXPECT_EQ(letti->tabella.EstrazioniArchivio(), 5423 - 6);
  EXPECT_EQ(letti->segnalazioni,
            (std::vector<std::string>{"06/08/2026 concorso 288: i risultati ne danno 2 diversi; non è nell'archivio",
                                      "07/08/2026 concorso 288: manca nei risultati; non è nell'archivio",
                                      "08/08/2026 concorso 288: i risultati ne danno 2 diversi; non è nell'archivio",
                                      "10/08/2026 concorso 288: manca nei risultati; non è nell'archivio",
                                      "12/08/2026 concorso 288: i risultati ne danno 2 diversi; non è nell'archivio",
                                      "21/08/2026 concorso 288: manca nei risultati; non è nell'archivio"}));
  const TabellaGioco& tabella = letti->tabella;
  for (int k = 2; k <= tabella.EstrazioniArchivio(); ++k)
    ASSERT_FALSE(DifettoEstrazioneGioco(tabella.formato(), tabella[k], k, &tabella[k - 1])) << k;
}

}  // namespace
}  // namespace lottolab
