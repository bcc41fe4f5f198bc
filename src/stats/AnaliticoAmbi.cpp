#include "AnaliticoAmbi.h"

#include <cassert>
#include <thread>

#include "TracciaVincite.h"

namespace lottolab::stats {

std::optional<StatisticaNumero> AnaliticoAmbi::DatiIndice(int ruota, int indice) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote && indice >= 0 && indice < kNumeroAmbi);
  if (!m_presente[ruota]) return std::nullopt;
  return m_dati[static_cast<size_t>((ruota - 1) * kNumeroAmbi + indice)];
}

std::optional<StatisticaNumero> AnaliticoAmbi::Dati(int ruota, int a, int b) const {
  assert(a >= 1 && a <= kMassimoNumero && b >= 1 && b <= kMassimoNumero && a != b);
  return DatiIndice(ruota, IndiceAmbo(a, b));
}

bool AnaliticoAmbi::RuotaPresente(int ruota) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote);
  return m_presente[ruota];
}

std::array<int, 2> AmboDaIndice(int indice) {
  assert(indice >= 0 && indice < kNumeroAmbi);
  int a = 1;
  while (IndiceAmbo(a, kMassimoNumero) < indice) ++a;
  return {a, a + 1 + indice - IndiceAmbo(a, a + 1)};
}

namespace {

// The ambi of every wheel one by one (`su_tutte` false), or of all wheels together (true), into
// `tracce` (the 4005 of each wheel 1..11 in turn, or those of all wheels) and `contate`.
void Cammina(const TabellaEstrazioni& tab, int inizio, int fine, bool su_tutte, TracciaVincite* tracce,
             std::array<int, kTutteLeRuote + 1>& contate) {
  for (int id = inizio; id <= fine; ++id) {
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      const uint8_t* numeri = &estrazione.numeri[(ruota - 1) * kNumeriPerRuota];
      // On all wheels together every present draw counts, and a second win in the same draw finds a
      // run of -1, which changes nothing but the frequency.
      const bool estratta = su_tutte || numeri[0] != 0;
      const int contate_prima = su_tutte ? contate[kTutteLeRuote] : contate[ruota];
      TracciaVincite* sulla_ruota = su_tutte ? tracce : &tracce[static_cast<size_t>(ruota - 1) * kNumeroAmbi];
      for (int i = 0; i < kNumeriPerRuota; ++i) {
        const int a = numeri[i];
        if (a == 0 || a > kMassimoNumero) continue;
        for (int j = i + 1; j < kNumeriPerRuota; ++j) {
          const int b = numeri[j];
          if (b == 0 || b > kMassimoNumero || b == a) continue;
          sulla_ruota[IndiceAmbo(a, b)].Vince(contate_prima, estratta);
        }
      }
      if (numeri[0] != 0) ++contate[ruota];
    }
    ++contate[kTutteLeRuote];
  }
}

}  // namespace

AnaliticoAmbi CalcolaAnaliticoAmbi(const TabellaEstrazioni& tab, int inizio, int fine) {
  assert(inizio >= 1 && fine <= tab.EstrazioniArchivio());
  std::vector<TracciaVincite> tracce(static_cast<size_t>(kTutteLeRuote) * kNumeroAmbi);
  // The wheels one by one here and all of them together on a second thread: half the time each.
  std::array<int, kTutteLeRuote + 1> contate{};
  std::array<int, kTutteLeRuote + 1> contate_su_tutte{};
  {
    std::jthread su_tutte([&] {
      Cammina(tab, inizio, fine, true, &tracce[static_cast<size_t>(kTutteLeRuote - 1) * kNumeroAmbi], contate_su_tutte);
    });
    Cammina(tab, inizio, fine, false, tracce.data(), contate);
  }

  AnaliticoAmbi risultato;
  risultato.m_dati.resize(tracce.size());
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    risultato.m_presente[ruota] = contate[ruota] > 0;
    for (int indice = 0; indice < kNumeroAmbi; ++indice) {
      const size_t posto = static_cast<size_t>((ruota - 1) * kNumeroAmbi + indice);
      risultato.m_dati[posto] = tracce[posto].Statistica(contate[ruota]);
    }
  }
  return risultato;
}

}  // namespace lottolab::stats
