#include "SerieGrafici.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "Ritardi.h"
#include "Tabellone.h"

namespace lottolab::stats {

namespace {

// Whether one of the chosen wheels was drawn in the draw: the rule by which a draw counts.
bool Conta(const Estrazione& estrazione, const std::array<bool, kNumeroRuote + 1>& scelte) {
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
    if (scelte[ruota] && estrazione.Numero(ruota, 1) != 0) return true;
  return false;
}

std::array<bool, kNumeroRuote + 1> RuoteScelte(std::span<const int> ruote) {
  std::array<bool, kNumeroRuote + 1> scelte{};
  for (int ruota : ruote) {
    assert(ruota >= 1 && ruota <= kTutteLeRuote);
    if (ruota == kTutteLeRuote)
      std::fill(scelte.begin() + 1, scelte.end(), true);
    else
      scelte[ruota] = true;
  }
  return scelte;
}

}  // namespace

StoriaRitardo CalcolaStoriaRitardo(const TabellaEstrazioni& tab, std::span<const int> ruote,
                                   std::span<const int> numeri, int sorte, int inizio, int fine) {
  assert(!numeri.empty() && numeri.size() <= kNumeriPerRuota && sorte >= 1 && sorte <= static_cast<int>(numeri.size()));
  StoriaRitardo storia;
  if (inizio > fine) return storia;
  const std::vector<int> serie = SerieRitardo(tab, ruote, numeri, sorte, fine, kTuttePosizioni, inizio);
  const std::array<bool, kNumeroRuote + 1> scelte = RuoteScelte(ruote);
  storia.estrazioni.reserve(serie.size());
  storia.ritardi.reserve(serie.size());
  for (int id = inizio; id <= fine; ++id) {
    if (!Conta(tab[id], scelte)) continue;
    const int ritardo = serie[static_cast<size_t>(id - inizio)];
    // A counted draw that leaves the delay at 0 is a win; so is the first one when it starts at 0.
    if (ritardo == 0) ++storia.uscite;
    if (ritardo > storia.storico) {
      storia.storico = ritardo;
      storia.estrazione_storico = id;
    }
    storia.estrazioni.push_back(id);
    storia.ritardi.push_back(ritardo);
  }
  if (!storia.ritardi.empty()) storia.ritardo_attuale = storia.ritardi.back();
  return storia;
}

FrequenzeNumeri CalcolaFrequenze(const TabellaEstrazioni& tab, int ruota, int inizio, int fine) {
  assert(ruota >= 1 && ruota <= kTutteLeRuote);
  FrequenzeNumeri risultato;
  risultato.frequenze.assign(kMassimoNumero, 0);
  if (inizio > fine) return risultato;
  const TabelloneRuote tabellone = CalcolaTabellone(tab, inizio, fine);
  for (int numero = 1; numero <= kMassimoNumero; ++numero)
    risultato.frequenze[static_cast<size_t>(numero - 1)] = tabellone.Dati(ruota, numero).frequenza;
  const int prima = ruota == kTutteLeRuote ? 1 : ruota;
  const int ultima = ruota == kTutteLeRuote ? kNumeroRuote : ruota;
  for (int id = inizio; id <= fine; ++id)
    for (int r = prima; r <= ultima; ++r)
      if (tab[id].Numero(r, 1) != 0) ++risultato.estrazioni_ruota;
  risultato.attesa = risultato.estrazioni_ruota * static_cast<double>(kNumeriPerRuota) / kMassimoNumero;
  return risultato;
}

}  // namespace lottolab::stats
