#include <gtest/gtest.h>

#include <atomic>
#include <ostream>
#include <vector>

#include "ArchiviDiProva.h"
#include "ForzaBruta.h"
#include "stats/Analitico.h"
#include "stats/AnaliticoAmbi.h"
#include "stats/TerniRitardatari.h"

namespace lottolab::stats {

void PrintTo(const StatisticaNumero& dati, std::ostream* os);

namespace {

using test::Archivio;
using test::ArchivioCasuale;
using test::ArchivioReale;
using test::ForzaBruta;

void ConfrontaAnalitico(const TabellaEstrazioni& tab, const Analitico& analitico, int fine) {
  SCOPED_TRACE(testing::Message() << "end draw " << fine);
  const TabellaAnalitica tabella = analitico.Tabella(fine);
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota)
    for (int numero = 1; numero <= kMassimoNumero; ++numero)
      ASSERT_EQ(tabella.Dati(ruota, numero), ForzaBruta(tab, ruota, {numero}, 1, fine))
          << "number " << numero << " on wheel " << ruota;
}

TEST(Analitico, UnaRuotaNonAncoraEstrattaNonHaValori) {
  const TabellaEstrazioni tab = Archivio()
                                    .NazionaleDa(3)
                                    .Estrazione({{BA, {7, 1, 2, 3, 4}}})
                                    .Estrazione()
                                    .Estrazione({{NZ, {7, 1, 2, 3, 4}}})
                                    .Estrazione()
                                    .Estrazione({{BA, {7, 1, 2, 3, 4}}, {VE, {9, 7, 1, 2, 3}}})
                                    .Tabella();
  const Analitico analitico(tab);
  EXPECT_EQ(analitico.Dati(NZ, 7, 2), std::nullopt) << "Nazionale is first drawn in draw 3";
  EXPECT_FALSE(analitico.Tabella(2).RuotaPresente(NZ));
  EXPECT_EQ(analitico.Dati(NZ, 7, 3), (StatisticaNumero{0, 1, 0, 0}));
  EXPECT_EQ(analitico.Dati(NZ, 8, 5), (StatisticaNumero{3, 0, 3, 3}));
  EXPECT_EQ(analitico.Dati(BA, 7, 4), (StatisticaNumero{3, 1, 3, 3}));
  EXPECT_EQ(analitico.Dati(BA, 7, 5), (StatisticaNumero{0, 2, 3, 0}));
  EXPECT_EQ(analitico.Dati(kTutteLeRuote, 7, 5), (StatisticaNumero{0, 4, 1, 0}));
  EXPECT_EQ(analitico.Dati(BA, 7, 0), std::nullopt) << "no draw at all";
  EXPECT_EQ(analitico.RitardiPrecedenti(BA, 7, 5), (std::vector<int>{3, 0}));
  EXPECT_EQ(analitico.RitardiPrecedenti(kTutteLeRuote, 7, 5, 2), (std::vector<int>{1, 1}));
  EXPECT_TRUE(analitico.RitardiPrecedenti(NZ, 7, 2).empty());
}

TEST(Analitico, CoincideConLaForzaBrutaAdOgniFine) {
  for (const TabellaEstrazioni& tab : {ArchivioCasuale(120, 20, 7), ArchivioCasuale(200, kMassimoNumero, 8)}) {
    const Analitico analitico(tab);
    for (int fine : {1, 4, 5, 6, 59, 60, 61, tab.EstrazioniArchivio()}) ConfrontaAnalitico(tab, analitico, fine);
  }
}

TEST(Analitico, IRitardiPrecedentiSonoLeCorseChiuse) {
  const TabellaEstrazioni tab = ArchivioCasuale(200, 20, 9);
  const Analitico analitico(tab);
  for (int ruota : {1, 2, 11, kTutteLeRuote})
    for (int numero : {1, 7, 20}) {
      const std::vector<int> precedenti = analitico.RitardiPrecedenti(ruota, numero, 150);
      const StatisticaNumero dati = *analitico.Dati(ruota, numero, 150);
      if (ruota != kTutteLeRuote) {
        ASSERT_EQ(static_cast<int>(precedenti.size()), dati.frequenza);
      }
      int massimo = dati.ritardo;
      for (int corsa : precedenti) massimo = std::max(massimo, corsa);
      EXPECT_EQ(massimo, dati.storico) << "number " << numero << " on wheel " << ruota;
      EXPECT_EQ(analitico.RitardiPrecedenti(ruota, numero, 150, 3),
                std::vector<int>(precedenti.begin(), precedenti.begin() + std::min<size_t>(3, precedenti.size())));
    }
}

TEST(ArchivioReale, LAnaliticoCoincideConLaForzaBruta) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tab = ArchivioReale();
  const Analitico analitico(tab);
  // Just before Nazionale, its first draw (04/05/2005), and the last draw.
  const int prima_nazionale = tab.UltimaEstrazioneEntro(GruppoData{0, 4, 5, 2005});
  ASSERT_TRUE(tab[prima_nazionale].RuotaEstratta(NZ));
  ASSERT_FALSE(tab[prima_nazionale - 1].RuotaEstratta(NZ));
  EXPECT_FALSE(analitico.Tabella(prima_nazionale - 1).RuotaPresente(NZ));
  for (int fine : {prima_nazionale - 1, prima_nazionale, tab.EstrazioniArchivio()})
    ConfrontaAnalitico(tab, analitico, fine);
}

void ConfrontaAmbi(const TabellaEstrazioni& tab, int inizio, int fine, int passo) {
  SCOPED_TRACE(testing::Message() << "draws " << inizio << ".." << fine);
  const AnaliticoAmbi ambi = CalcolaAnaliticoAmbi(tab, inizio, fine);
  for (int indice = 0; indice < kNumeroAmbi; indice += passo) {
    const auto [a, b] = AmboDaIndice(indice);
    ASSERT_EQ(IndiceAmbo(a, b), indice);
    for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota)
      ASSERT_EQ(ambi.Dati(ruota, a, b), ForzaBruta(tab, ruota, {a, b}, inizio, fine))
          << "ambo " << a << "-" << b << " on wheel " << ruota;
  }
}

TEST(AnaliticoAmbi, CoincideConLaForzaBruta) {
  const TabellaEstrazioni frequenti = ArchivioCasuale(150, 15, 3);
  ConfrontaAmbi(frequenti, 1, 150, 1);
  ConfrontaAmbi(frequenti, 30, 90, 1);
  ConfrontaAmbi(frequenti, 1, 20, 1);
  ConfrontaAmbi(ArchivioCasuale(300, kMassimoNumero, 4), 1, 300, 1);
}

TEST(ArchivioReale, GliAmbiCoincidonoConLaForzaBruta) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tab = ArchivioReale();
  ConfrontaAmbi(tab, 1, tab.EstrazioniArchivio(), 41);
}

// Every terno of the small pool against the plain count, for a wheel and for all wheels.
void ConfrontaTerni(const TabellaEstrazioni& tab, int ruota, int inizio, int fine, int thread) {
  SCOPED_TRACE(testing::Message() << "wheel " << ruota << ", " << thread << " threads");
  const auto terni = CalcolaTerniRitardatari(tab, ruota, inizio, fine, 0, {}, thread);
  ASSERT_TRUE(terni.has_value());
  ASSERT_EQ(static_cast<int>(terni->size()), kNumeroTerni);
  for (size_t i = 0; i < terni->size(); ++i) {
    const TernoStatistica& terno = (*terni)[i];
    if (i > 0) {
      const StatisticaNumero& prima = (*terni)[i - 1].dati;
      ASSERT_TRUE(prima.ritardo > terno.dati.ritardo ||
                  (prima.ritardo == terno.dati.ritardo && prima.storico >= terno.dati.storico));
    }
    // Outside the pool every terno waits the whole range: checking one in fifty of them is enough.
    if (terno.numeri[2] > 12 && i % 50 != 0) continue;
    ASSERT_EQ(terno.dati, ForzaBruta(tab, ruota, {terno.numeri[0], terno.numeri[1], terno.numeri[2]}, inizio, fine))
        << terno.numeri[0] << "-" << terno.numeri[1] << "-" << terno.numeri[2];
  }
}

TEST(TerniRitardatari, CoincidonoConLaForzaBrutaConUnoODuePiuThread) {
  const TabellaEstrazioni tab = ArchivioCasuale(200, 12, 5);
  for (int thread : {1, 2, 3}) {
    ConfrontaTerni(tab, BA, 1, 200, thread);
    ConfrontaTerni(tab, NZ, 1, 200, thread);
    ConfrontaTerni(tab, kTutteLeRuote, 20, 150, thread);
  }
  EXPECT_EQ(IndiceTerno(1, 2, 3), 0);
  EXPECT_EQ(IndiceTerno(88, 89, 90), kNumeroTerni - 1);
}

TEST(TerniRitardatari, IPrimiQuantiEUnaRuotaNonEstratta) {
  const TabellaEstrazioni tab = ArchivioCasuale(100, 12, 6);
  const auto tutti = CalcolaTerniRitardatari(tab, CA, 1, 100, 0);
  const auto primi = CalcolaTerniRitardatari(tab, CA, 1, 100, 25, {}, 2);
  ASSERT_TRUE(tutti && primi);
  EXPECT_EQ(*primi, std::vector<TernoStatistica>(tutti->begin(), tutti->begin() + 25));
  const auto nazionale = CalcolaTerniRitardatari(tab, NZ, 1, 40, 10);
  ASSERT_TRUE(nazionale.has_value());
  EXPECT_TRUE(nazionale->empty()) << "Nazionale starts at draw 50";
}

TEST(TerniRitardatari, RiferisceIlProgressoESiFerma) {
  const TabellaEstrazioni tab = ArchivioCasuale(2000, kMassimoNumero, 7);
  std::vector<int> passi;
  ControlloCalcolo controllo;
  controllo.progresso = [&](int percento) { passi.push_back(percento); };
  ASSERT_TRUE(CalcolaTerniRitardatari(tab, kTutteLeRuote, 1, 2000, 10, controllo, 2).has_value());
  ASSERT_FALSE(passi.empty());
  EXPECT_TRUE(std::is_sorted(passi.begin(), passi.end()));
  EXPECT_EQ(passi.back(), 100);

  std::atomic<int> chiamate = 0;
  controllo.annullato = [&] { return ++chiamate > 2; };
  EXPECT_EQ(CalcolaTerniRitardatari(tab, kTutteLeRuote, 1, 2000, 10, controllo, 2), std::nullopt);
}

}  // namespace
}  // namespace lottolab::stats
