#include "stats/EstrazioniPerAnalisi.h"

#include <algorithm>

namespace lottolab::stats {

EstrazioniPerAnalisi PerAnalisi(const TabellaEstrazioni& tab) {
  EstrazioniPerAnalisi estrazioni{kNumeroRuote, kNumeriPerRuota, kMassimoNumero, {}, {}};
  estrazioni.date.reserve(tab.Tutte().size());
  estrazioni.numeri.reserve(tab.Tutte().size() * kNumeroRuote * kNumeriPerRuota);
  for (const Estrazione& estrazione : tab.Tutte()) {
    estrazioni.date.push_back(estrazione.data);
    estrazioni.numeri.insert(estrazioni.numeri.end(), estrazione.numeri.begin(), estrazione.numeri.end());
  }
  return estrazioni;
}

EstrazioniPerAnalisi PerAnalisi(const TabellaGioco& tab) {
  const FormatoGioco& formato = tab.formato();
  EstrazioniPerAnalisi estrazioni{1, formato.numeri, formato.massimo, {}, {}};
  estrazioni.date.reserve(tab.Tutte().size());
  estrazioni.numeri.reserve(tab.Tutte().size() * static_cast<size_t>(formato.numeri));
  for (const EstrazioneGioco& estrazione : tab.Tutte()) {
    estrazioni.date.push_back(estrazione.data);
    estrazioni.numeri.insert(estrazioni.numeri.end(), estrazione.numeri.begin(),
                             estrazione.numeri.begin() + formato.numeri);
  }
  return estrazioni;
}

std::pair<int, int> IntervalloDate(const EstrazioniPerAnalisi& estrazioni, const GruppoData& dal,
                                   const GruppoData& al) {
  const int chiave_dal = dal == GruppoData{} ? 0 : ChiaveData(dal);
  const int chiave_al = al == GruppoData{} ? 99999999 : ChiaveData(al);
  // Dates only grow along the archive, so both ends are binary searches.
  const auto inizio = std::partition_point(estrazioni.date.begin(), estrazioni.date.end(),
                                           [&](const GruppoData& data) { return ChiaveData(data) < chiave_dal; });
  const auto fine = std::partition_point(inizio, estrazioni.date.end(),
                                         [&](const GruppoData& data) { return ChiaveData(data) <= chiave_al; });
  if (inizio == fine) return {1, 0};
  return {static_cast<int>(inizio - estrazioni.date.begin()) + 1, static_cast<int>(fine - estrazioni.date.begin())};
}

std::vector<int> RuoteValide(const EstrazioniPerAnalisi& estrazioni, std::span<const int> ruote) {
  std::vector<int> valide;
  for (int ruota = 1; ruota <= estrazioni.ruote; ++ruota)
    if (std::find(ruote.begin(), ruote.end(), ruota) != ruote.end()) valide.push_back(ruota);
  if (valide.empty())
    for (int ruota = 1; ruota <= estrazioni.ruote; ++ruota) valide.push_back(ruota);
  return valide;
}

}  // namespace lottolab::stats
