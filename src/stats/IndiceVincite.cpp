#include "IndiceVincite.h"

#include <algorithm>
#include <cassert>
#include <iterator>

namespace lottolab::stats {

namespace {

std::span<const int> NellIntervallo(const std::vector<int>& valori, int da, int a) {
  auto primo = std::lower_bound(valori.begin(), valori.end(), da);
  auto dopo = std::upper_bound(primo, valori.end(), a);
  return {primo, dopo};
}

}  // namespace

IndiceVincite::IndiceVincite(const TabellaEstrazioni& tab) {
  const int estrazioni = tab.EstrazioniArchivio();
  for (std::vector<int>& contate : m_contate) contate.assign(static_cast<size_t>(estrazioni) + 1, 0);
  // A number comes out on a wheel about once in eighteen draws: room for a little more spares the
  // lists their growth.
  const size_t attese = static_cast<size_t>(estrazioni) / 15 + 16;
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    const size_t posto = ruota == kTutteLeRuote ? attese * kNumeroRuote : attese;
    for (std::vector<int>& vincite : m_vincite[ruota]) vincite.reserve(posto);
  }
  for (int id = 1; id <= estrazioni; ++id) {
    const Estrazione& estrazione = tab[id];
    const bool presente = estrazione.Presente();
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
      m_contate[ruota][id] = m_contate[ruota][id - 1] + (presente && estrazione.RuotaEstratta(ruota) ? 1 : 0);
    // A present draw has Bari drawn, so it counts on all wheels together.
    m_contate[kTutteLeRuote][id] = m_contate[kTutteLeRuote][id - 1] + (presente ? 1 : 0);
    if (!presente) continue;
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      for (int p = 1; p <= kNumeriPerRuota; ++p) {
        const int numero = estrazione.Numero(ruota, p);
        if (numero < 1 || numero > kMassimoNumero) continue;
        std::vector<int>& sulla_ruota = m_vincite[ruota][numero];
        // A number repeated on a wheel wins there once.
        if (!sulla_ruota.empty() && sulla_ruota.back() == id) continue;
        sulla_ruota.push_back(id);
        m_vincite[kTutteLeRuote][numero].push_back(id);
      }
    }
  }
}

StatisticaNumero IndiceVincite::Statistica(std::span<const int> vincite, int ruota, int inizio, int fine) const {
  if (fine < inizio) return {};
  const std::vector<int>& contate = m_contate[ruota];
  // A second win in the same draw finds a run of -1 and changes nothing.
  int contate_alla_vincita = contate[inizio - 1];
  int massimo_chiuso = 0;
  for (int id : vincite) {
    massimo_chiuso = std::max(massimo_chiuso, contate[id - 1] - contate_alla_vincita);
    contate_alla_vincita = contate[id];
  }
  StatisticaNumero dati;
  dati.ritardo = contate[fine] - contate_alla_vincita;
  dati.frequenza = static_cast<int>(vincite.size());
  dati.storico = std::max(massimo_chiuso, dati.ritardo);
  dati.incr_storico = std::max(dati.ritardo - massimo_chiuso, 0);
  return dati;
}

StatisticaNumero IndiceVincite::Estratto(int ruota, int numero, int inizio, int fine) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote && numero >= 1 && numero <= kMassimoNumero);
  assert(inizio >= 1 && fine <= Estrazioni());
  return Statistica(NellIntervallo(m_vincite[ruota][numero], inizio, fine), ruota, inizio, fine);
}

StatisticaNumero IndiceVincite::Ambo(int ruota, int a, int b, int inizio, int fine) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote && a != b);
  assert(a >= 1 && a <= kMassimoNumero && b >= 1 && b <= kMassimoNumero);
  assert(inizio >= 1 && fine <= Estrazioni());
  std::vector<int> vincite;
  const int prima = ruota == kTutteLeRuote ? 1 : ruota;
  const int ultima = ruota == kTutteLeRuote ? kNumeroRuote : ruota;
  for (int r = prima; r <= ultima; ++r) {
    const auto uscite_a = NellIntervallo(m_vincite[r][a], inizio, fine);
    const auto uscite_b = NellIntervallo(m_vincite[r][b], inizio, fine);
    std::set_intersection(uscite_a.begin(), uscite_a.end(), uscite_b.begin(), uscite_b.end(),
                          std::back_inserter(vincite));
  }
  // On all wheels the wins come wheel by wheel, and the figures read them in draw order.
  if (prima != ultima) std::sort(vincite.begin(), vincite.end());
  return Statistica(vincite, ruota, inizio, fine);
}

}  // namespace lottolab::stats
