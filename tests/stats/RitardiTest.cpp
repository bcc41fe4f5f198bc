#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "ArchiviDiProva.h"
#include "archive/DateEstrazione.h"
#include "stats/Ritardi.h"

namespace lottolab::stats {
namespace {

using test::Archivio;
using test::ArchivioCasuale;
using test::ArchivioReale;
using test::kRiempitivo;

constexpr Posizioni kSoloPrima{true, false, false, false, false};
constexpr Posizioni kPrimeDue{true, true, false, false, false};
constexpr std::array kUndiciRuote{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};

TEST(RitardoCombinazione, ContaLeEstrazioniDopoLUltimaVincitaNelTratto) {
  const TabellaEstrazioni tab = Archivio()
                                    .Estrazione({{BA, {7, 1, 2, 3, 4}}})
                                    .Estrazione()
                                    .Estrazione()
                                    .Estrazione()
                                    .Estrazione({{BA, {1, 2, 3, 4, 7}}})
                                    .Estrazione()
                                    .Estrazione()
                                    .Tabella();
  const std::array ruote{int{BA}};
  const std::array numeri{7};
  EXPECT_EQ(RitardoCombinazione(tab, ruote, numeri, 1, 7), 2);
  EXPECT_EQ(RitardoCombinazione(tab, ruote, numeri, 1, 5), 0) << "a win in the end draw";
  EXPECT_EQ(RitardoCombinazione(tab, ruote, numeri, 1, 4), 3);
  EXPECT_EQ(RitardoCombinazione(tab, ruote, numeri, 1, 1), 0);
  EXPECT_EQ(RitardoCombinazione(tab, ruote, numeri, 1, 4, kTuttePosizioni, 2), 3) << "never won: every draw";
  EXPECT_EQ(RitardoCombinazione(tab, ruote, numeri, 1, 7, kTuttePosizioni, 6), 2);
  EXPECT_EQ(RitardoCombinazione(tab, ruote, numeri, 1, 7, kTuttePosizioni, 8), 0) << "empty range";

  EXPECT_EQ(EstrattoRitardo(tab, BA, 7), 2) << "whole archive by default";
  EXPECT_EQ(EstrattoRitardo(tab, BA, 7, 0, 4), 3);
  EXPECT_EQ(EstrattoRitardo(tab, BA, 7, 2, 4), 3);
  EXPECT_EQ(EstrattoRitardo(tab, BA, 7, 6), 2);
  EXPECT_EQ(EstrattoRitardo(tab, BA, 1), 2);
  EXPECT_EQ(EstrattoRitardo(tab, BA, 90), 7) << "a number never drawn";
  EXPECT_EQ(EstrattoRitardo(tab, BA, kRiempitivo[0]), 0);
}

TEST(RitardoCombinazione, ContaIColpiRuotaPerRuota) {
  const TabellaEstrazioni tab = Archivio()
                                    .Estrazione({{BA, {10, 20, 30, 1, 2}}})
                                    .Estrazione({{BA, {10, 1, 2, 3, 4}}, {CA, {1, 2, 3, 4, 20}}})
                                    .Estrazione({{FI, {10, 20, 1, 2, 3}}, {GE, {30, 1, 2, 3, 4}}})
                                    .Estrazione({{MI, {40, 1, 2, 3, 4}}})
                                    .Tabella();
  EXPECT_EQ(AmboRitardo(tab, BA, 10, 20), 3);
  EXPECT_EQ(AmboRitardo(tab, 12, 10, 20), 1) << "the ambo came out whole only on FI in draw 3";
  EXPECT_EQ(AmboRitardo(tab, 12, 20, 10, 0, 2), 1) << "BA and CA of draw 2 are not added together";
  const std::array ba_ca{int{BA}, int{CA}};
  const std::array ambo{10, 20};
  EXPECT_EQ(RitardoCombinazione(tab, ba_ca, ambo, 2, 4), 3);
  EXPECT_EQ(RitardoCombinazione(tab, ba_ca, ambo, 1, 4), 2) << "one hit is enough for sorte 1";
  const std::array terno{10, 20, 30};
  EXPECT_EQ(RitardoCombinazione(tab, kUndiciRuote, terno, 3, 4), 3) << "two on FI and one on GE";
  EXPECT_EQ(RitardoCombinazione(tab, kUndiciRuote, terno, 2, 4), 1);

  const std::array ba_mi{int{BA}, int{MI}};
  const std::array quaranta{40};
  EXPECT_EQ(RitardoCombinazione(tab, ba_mi, quaranta, 1, 4), 0) << "a win on any selected wheel";
  EXPECT_EQ(RitardoCombinazione(tab, ba_mi, quaranta, 1, 3), 3);
}

TEST(RitardoCombinazione, LeEstrazioniSenzaLeRuoteScelteNonContano) {
  // Nazionale is drawn from draw 3, Firenze is missing in draw 2 and record 4 holds no draw.
  const TabellaEstrazioni tab = Archivio()
                                    .NazionaleDa(3)
                                    .Estrazione({{BA, {50, 1, 2, 3, 4}}, {FI, {50, 1, 2, 3, 4}}})
                                    .Estrazione({{FI, {0, 0, 0, 0, 0}}})
                                    .Estrazione()
                                    .Vuota()
                                    .Estrazione()
                                    .Tabella();
  EXPECT_EQ(EstrattoRitardo(tab, NZ, 50), 2);
  EXPECT_EQ(EstrattoRitardo(tab, NZ, 50, 0, 2), 0) << "no Nazionale yet: nothing counted";
  EXPECT_EQ(EstrattoRitardo(tab, BA, 50), 3) << "the empty record is skipped";
  EXPECT_EQ(EstrattoRitardo(tab, FI, 50), 2);
  EXPECT_EQ(EstrattoRitardo(tab, 12, 50), 3);
  const std::array fi_nz{int{FI}, int{NZ}};
  const std::array cinquanta{50};
  EXPECT_EQ(RitardoCombinazione(tab, fi_nz, cinquanta, 1, 5), 2);
  EXPECT_EQ(RitardoCombinazione(tab, fi_nz, cinquanta, 1, 2), 0) << "draw 2 holds neither wheel";

  const std::array nz{int{NZ}};
  const std::array riempitivo{kRiempitivo[0]};
  EXPECT_EQ(RitardoCombinazione(tab, nz, riempitivo, 1, 5), 0);
  EXPECT_EQ(RitardoCombinazione(tab, nz, riempitivo, 1, 2), 0);
}

TEST(RitardoCombinazione, LeggeSoloLePosizioniSegnate) {
  const TabellaEstrazioni tab =
      Archivio().Estrazione({{BA, {60, 7, 61, 62, 63}}}).Estrazione().Estrazione({{BA, {1, 2, 3, 4, 7}}}).Tabella();
  EXPECT_EQ(EstrattoRitardo(tab, BA, 7, 0, 0, kSoloPrima), 3);
  EXPECT_EQ(EstrattoRitardo(tab, BA, 7, 0, 2, kPrimeDue), 1);
  EXPECT_EQ(EstrattoRitardo(tab, BA, 7), 0);
  EXPECT_EQ(EstrattoRitardo(tab, BA, 60, 0, 0, kSoloPrima), 2);
  EXPECT_EQ(AmboRitardo(tab, BA, 60, 7, 0, 0, kSoloPrima), 3);
  EXPECT_EQ(AmboRitardo(tab, BA, 60, 7, 0, 0, kPrimeDue), 2);
  EXPECT_EQ(EstrattoFrequenza(tab, BA, 7, 0, 0, kSoloPrima), 0);
  EXPECT_EQ(EstrattoFrequenza(tab, BA, 7, 0, 0, kPrimeDue), 1);
  EXPECT_EQ(EstrattoFrequenza(tab, BA, 7), 2);
}

TEST(RitardoCombinazione, LaRuotaDodiciValeTutteLeUndici) {
  const TabellaEstrazioni tab = Archivio().Estrazione({{NZ, {33, 1, 2, 3, 4}}}).Estrazione().Tabella();
  const std::array tutte{kTutteLeRuote};
  const std::array dieci{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
  const std::array numeri{33};
  EXPECT_EQ(RitardoCombinazione(tab, tutte, numeri, 1, 2), 1);
  EXPECT_EQ(RitardoCombinazione(tab, kUndiciRuote, numeri, 1, 2), 1);
  EXPECT_EQ(RitardoCombinazione(tab, dieci, numeri, 1, 2), 2);

  const TabellaEstrazioni casuale = ArchivioCasuale(200, 30, 7);
  for (int numero = 1; numero <= 30; ++numero) {
    const std::array uno{numero};
    for (int fine : {1, 60, 150, 200}) {
      EXPECT_EQ(RitardoCombinazione(casuale, tutte, uno, 1, fine),
                RitardoCombinazione(casuale, kUndiciRuote, uno, 1, fine));
      EXPECT_EQ(FrequenzaCombinazione(casuale, tutte, uno, 1, fine),
                FrequenzaCombinazione(casuale, kUndiciRuote, uno, 1, fine));
    }
  }
}

TEST(FrequenzaCombinazione, ContaLeCoppieDiEstrazioneERuotaVincenti) {
  const TabellaEstrazioni tab = Archivio()
                                    .Estrazione({{BA, {5, 7, 1, 2, 3}}, {CA, {5, 1, 2, 3, 4}}, {FI, {7, 1, 2, 3, 4}}})
                                    .Estrazione({{BA, {1, 2, 3, 4, 5}}})
                                    .Tabella();
  EXPECT_EQ(EstrattoFrequenza(tab, 12, 5), 3) << "three wheels of two draws";
  EXPECT_EQ(EstrattoFrequenza(tab, BA, 5), 2);
  EXPECT_EQ(EstrattoFrequenza(tab, 12, 5, 2), 1);
  EXPECT_EQ(EstrattoFrequenza(tab, 12, 5, 0, 1), 2);
  EXPECT_EQ(EstrattoFrequenza(tab, 12, 90), 0);
  const std::array tutte{kTutteLeRuote};
  const std::array numeri{5, 7};
  EXPECT_EQ(FrequenzaCombinazione(tab, tutte, numeri, 1, 2), 4) << "two hits on BA still make one win";
  EXPECT_EQ(FrequenzaCombinazione(tab, tutte, numeri, 2, 2), 1);
  EXPECT_EQ(AmboFrequenza(tab, 12, 7, 5), 1);
  EXPECT_EQ(AmboFrequenza(tab, CA, 7, 5), 0);
}

// Number 7 on Bari wins in draws 3 and 8 of fifteen: runs of 2 (open at the start), 4 and 7.
TabellaEstrazioni ArchivioDelleCorse() {
  Archivio archivio;
  for (int id = 1; id <= 15; ++id) {
    if (id == 3 || id == 8)
      archivio.Estrazione({{BA, {1, 2, 7, 3, 4}}});
    else
      archivio.Estrazione();
  }
  return archivio.Tabella();
}

TEST(StoricoCombinazione, EIlRitardoPiuLungoRaggiuntoNelTratto) {
  const TabellaEstrazioni tab = ArchivioDelleCorse();
  EXPECT_EQ(EstrattoStorico(tab, BA, 7, 0, 2), 2) << "never won: the whole range";
  EXPECT_EQ(EstrattoStorico(tab, BA, 7, 0, 3), 2);
  EXPECT_EQ(EstrattoStorico(tab, BA, 7, 0, 7), 4) << "the open run is the longest";
  EXPECT_EQ(EstrattoStorico(tab, BA, 7, 0, 10), 4);
  EXPECT_EQ(EstrattoStorico(tab, BA, 7), 7);
  EXPECT_EQ(EstrattoStorico(tab, BA, 7, 4, 7), 4);
  EXPECT_EQ(EstrattoStorico(tab, BA, 7, 6, 10), 2);
  EXPECT_EQ(EstrattoStorico(tab, BA, 7, 8, 8), 0);
  EXPECT_EQ(EstrattoStorico(tab, BA, 7, 9, 8), 0) << "empty range";
}

TEST(IncrStoricoCombinazione, MisuraIlRitardoOltreLeCorseChiuse) {
  const TabellaEstrazioni tab = ArchivioDelleCorse();
  EXPECT_EQ(EstrattoIncrStorico(tab, BA, 7, 0, 2), 2) << "never won: no closed run";
  EXPECT_EQ(EstrattoIncrStorico(tab, BA, 7, 0, 3), 0);
  EXPECT_EQ(EstrattoIncrStorico(tab, BA, 7, 0, 4), 0) << "delay 1, behind the closed run of 2";
  EXPECT_EQ(EstrattoIncrStorico(tab, BA, 7, 0, 5), 0) << "delay 2, level with it";
  EXPECT_EQ(EstrattoIncrStorico(tab, BA, 7, 0, 7), 2);
  EXPECT_EQ(EstrattoIncrStorico(tab, BA, 7, 0, 12), 0);
  EXPECT_EQ(EstrattoIncrStorico(tab, BA, 7), 3);
  EXPECT_EQ(EstrattoIncrStorico(tab, BA, 7, 4, 7), 4);
}

// The definitions, applied literally through RitardoCombinazione, on random tables that hold every
// awkward case: wheels missing, Nazionale starting late, a record without a draw.
TEST(StatisticheDiCombinazione, CoincidonoConLaDefinizioneSuOgniFineDelTratto) {
  const TabellaEstrazioni tab = ArchivioCasuale(90, 12, 11);
  const ColonneRuote colonne(tab);
  struct Caso {
    std::vector<int> ruote;
    std::vector<int> numeri;
    int sorte;
    Posizioni posizioni;
  };
  const std::vector<Caso> casi{
      {{BA}, {3}, 1, kTuttePosizioni},    {{CA}, {5}, 1, kTuttePosizioni},
      {{NZ}, {7}, 1, kTuttePosizioni},    {{NZ}, {3, 4}, 1, kTuttePosizioni},
      {{12}, {1, 2}, 2, kTuttePosizioni}, {{CA, NZ}, {1, 2, 3}, 2, kTuttePosizioni},
      {{FI}, {5, 6, 7, 8}, 2, kPrimeDue}, {{12}, {1, 2, 3, 4, 5}, 3, kTuttePosizioni},
      {{GE, 12}, {9}, 1, kSoloPrima},     {{12}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 5, kTuttePosizioni},
  };
  for (const Caso& caso : casi) {
    for (int inizio : {1, 5, 30}) {
      SCOPED_TRACE(testing::Message() << "case " << (&caso - casi.data()) << ", from draw " << inizio);
      const int fine = tab.EstrazioniArchivio();
      const std::vector<int> ritardi =
          SerieRitardo(tab, caso.ruote, caso.numeri, caso.sorte, fine, caso.posizioni, inizio);
      const std::vector<int> frequenze =
          SerieFreq(tab, caso.ruote, caso.numeri, caso.sorte, fine, caso.posizioni, inizio);
      const std::vector<int> storici =
          SerieStorico(tab, caso.ruote, caso.numeri, caso.sorte, fine, caso.posizioni, inizio);
      ASSERT_EQ(ritardi.size(), static_cast<size_t>(fine - inizio + 1));
      ASSERT_EQ(frequenze.size(), ritardi.size());
      ASSERT_EQ(storici.size(), ritardi.size());

      int storico = 0;
      int massimo_prima_della_vincita = 0;
      int frequenza = 0;
      for (int e = inizio; e <= fine; ++e) {
        const size_t k = static_cast<size_t>(e - inizio);
        const int ritardo = RitardoCombinazione(tab, caso.ruote, caso.numeri, caso.sorte, e, caso.posizioni, inizio);
        const int vincite = FrequenzaCombinazione(tab, caso.ruote, caso.numeri, caso.sorte, e, caso.posizioni, e);
        if (vincite > 0) massimo_prima_della_vincita = storico;
        storico = std::max(storico, ritardo);
        frequenza += vincite;
        EXPECT_EQ(ritardi[k], ritardo) << "draw " << e;
        EXPECT_EQ(frequenze[k], frequenza) << "draw " << e;
        EXPECT_EQ(storici[k], storico) << "draw " << e;
        EXPECT_EQ(FrequenzaCombinazione(tab, caso.ruote, caso.numeri, caso.sorte, e, caso.posizioni, inizio),
                  frequenza);
        EXPECT_EQ(StoricoCombinazione(tab, caso.ruote, caso.numeri, caso.sorte, e, caso.posizioni, inizio), storico);
        EXPECT_EQ(IncrStoricoCombinazione(tab, caso.ruote, caso.numeri, caso.sorte, e, caso.posizioni, inizio),
                  std::max(ritardo - massimo_prima_della_vincita, 0))
            << "draw " << e;
        // The walk over the columns gives the same four figures.
        const StatisticaNumero su_colonne =
            StatisticaCombinazione(colonne, caso.ruote, caso.numeri, caso.sorte, e, caso.posizioni, inizio);
        EXPECT_EQ(su_colonne.ritardo, ritardo) << "draw " << e;
        EXPECT_EQ(su_colonne.frequenza, frequenza) << "draw " << e;
        EXPECT_EQ(su_colonne.storico, storico) << "draw " << e;
        EXPECT_EQ(su_colonne.incr_storico, std::max(ritardo - massimo_prima_della_vincita, 0)) << "draw " << e;
      }
    }
  }
  const std::array ruote{int{BA}};
  const std::array numeri{1};
  EXPECT_TRUE(SerieRitardo(tab, ruote, numeri, 1, 10, kTuttePosizioni, 11).empty());
}

TEST(ColonneRuote, UnRecordSenzaBariResterebbeFuoriAncheConAltreRuotePiene) {
  TabellaEstrazioni tab = ArchivioCasuale(40, 12, 3);
  // Without Bari a record holds no draw, by the archive's rule, even though its other wheels keep
  // their numbers: the columns must not let those numbers count or win.
  for (int p = 1; p <= kNumeriPerRuota; ++p) tab[10].ImpostaNumero(BA, p, 0);
  // A damaged record that repeats a number on a wheel wins once there, as the walk counts it.
  tab[20].ImpostaNumero(CA, 1, 4);
  tab[20].ImpostaNumero(CA, 2, 4);
  const ColonneRuote colonne(tab);
  for (const std::vector<int>& ruote : {std::vector<int>{CA}, std::vector<int>{12}}) {
    for (int numero = 1; numero <= 12; ++numero) {
      const std::array numeri{numero};
      for (int fine : {9, 10, 11, 40}) {
        const StatisticaNumero su_colonne = StatisticaCombinazione(colonne, ruote, numeri, 1, fine);
        EXPECT_EQ(su_colonne.ritardo, RitardoCombinazione(tab, ruote, numeri, 1, fine)) << numero << " at " << fine;
        EXPECT_EQ(su_colonne.frequenza, FrequenzaCombinazione(tab, ruote, numeri, 1, fine)) << numero << " at " << fine;
        EXPECT_EQ(su_colonne.storico, StoricoCombinazione(tab, ruote, numeri, 1, fine)) << numero << " at " << fine;
      }
    }
  }
}

TEST(RitardoCombinazioneDeathTest, GliArgomentiFuoriDominioSonoErroriDiProgramma) {
#ifdef NDEBUG
  GTEST_SKIP() << "assertions are compiled out of this build";
#else
  const TabellaEstrazioni tab = Archivio().Estrazione().Estrazione().Tabella();
  const std::array ruote{int{BA}};
  const std::array numeri{1};
  EXPECT_DEATH(EstrattoRitardo(tab, BA, 0), "");
  EXPECT_DEATH(EstrattoRitardo(tab, BA, 91), "");
  EXPECT_DEATH(EstrattoRitardo(tab, 0, 1), "");
  EXPECT_DEATH(EstrattoRitardo(tab, 13, 1), "");
  EXPECT_DEATH(RitardoCombinazione(tab, ruote, numeri, 0, 2), "");
  EXPECT_DEATH(RitardoCombinazione(tab, ruote, numeri, 6, 2), "");
  EXPECT_DEATH(RitardoCombinazione(tab, ruote, numeri, 1, 3), "");
  EXPECT_DEATH(StoricoCombinazione(tab, ruote, numeri, 1, 2, kTuttePosizioni, -1), "");
#endif
}

TEST(ArchivioReale, IlCinquantatreSuVeneziaEIlRitardoPiuLungoDellaRuota) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tab = ArchivioReale();
  const int uscita = tab.UltimaEstrazioneEntro(GruppoData{0, 9, 2, 2005});
  ASSERT_GT(uscita, 1);
  ASSERT_EQ(FormattaData(tab[uscita].data), "09/02/2005");
  ASSERT_EQ(tab[uscita].Numero(VE, 1), 53);

  EXPECT_EQ(EstrattoRitardo(tab, VE, 53, 0, uscita - 1), 182);
  EXPECT_EQ(EstrattoRitardo(tab, VE, 53, 0, uscita), 0);
  const int precedente = tab.UltimaEstrazioneEntro(GruppoData{0, 10, 5, 2003});
  EXPECT_EQ(FormattaData(tab[precedente].data), "10/05/2003");
  EXPECT_EQ(EstrattoRitardo(tab, VE, 53, 0, precedente), 0);
  EXPECT_EQ(uscita - precedente - 1, 182) << "Venezia was drawn in every draw between";
  EXPECT_EQ(EstrattoStorico(tab, VE, 53), 182);

  int secondo = 0;
  int numero_secondo = 0;
  for (int numero = 1; numero <= kMassimoNumero; ++numero) {
    if (numero == 53) continue;
    const int storico = EstrattoStorico(tab, VE, numero);
    if (storico > secondo) {
      secondo = storico;
      numero_secondo = numero;
    }
  }
  EXPECT_EQ(secondo, 173);
  EXPECT_EQ(numero_secondo, 2);
}

}  // namespace
}  // namespace lottolab::stats
