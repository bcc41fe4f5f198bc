#include "EsitoPrevisione.h"

#include <array>
#include <cassert>

#include "PremiLotto.h"

namespace lottolab::stats {

namespace {

// Indexed by a record's number byte, so that any byte reads a flag.
using Giocati = std::array<bool, 256>;

Giocati Segna(std::span<const int> numeri) {
  Giocati giocato{};
  for (int n : numeri) {
    assert(n >= 1 && n <= 255 && !giocato[static_cast<size_t>(n)]);
    giocato[static_cast<size_t>(n)] = true;
  }
  return giocato;
}

uint16_t Maschera(std::span<const int> ruote) {
  uint16_t maschera = 0;
  for (int r : ruote) {
    assert(r >= 1 && r <= kNumeroRuote);
    maschera = static_cast<uint16_t>(maschera | (1U << (r - 1)));
  }
  return maschera;
}

// How the wheels of one colpo make its result: the best wheel's, or the sum of all (each wheel of a
// colpo is paid).
enum class Insieme { Migliore, Somma };

// Walks the draws after `dopo` that hold one, for `colpi` of them, until `vincita` gives a result
// at least `minimo` on the wheels of the mask.
template <Insieme kInsieme, typename Vincita>
EsitoPrevisione Percorri(const TabellaEstrazioni& tab, uint16_t maschera, int dopo, int colpi, int minimo,
                         Vincita vincita) {
  EsitoPrevisione esito;
  for (int id = dopo + 1; id <= tab.EstrazioniArchivio() && esito.colpi_giocati < colpi; ++id) {
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    ++esito.colpi_giocati;
    int migliore = 0;
    uint16_t ruote = 0;
    for (int r = 1; r <= kNumeroRuote; ++r) {
      if (!(maschera & (1U << (r - 1))) || !estrazione.RuotaEstratta(r)) continue;
      const int risultato = vincita(estrazione, r);
      if constexpr (kInsieme == Insieme::Somma) {
        migliore += risultato;
        if (risultato > 0) ruote = static_cast<uint16_t>(ruote | (1U << (r - 1)));
        continue;
      }
      if (risultato > migliore) {
        migliore = risultato;
        ruote = 0;
      }
      if (risultato == migliore && risultato > 0) ruote = static_cast<uint16_t>(ruote | (1U << (r - 1)));
    }
    if (migliore >= minimo) {
      esito.sorte = migliore;
      esito.colpo = esito.colpi_giocati;
      esito.id_estr = id;
      esito.ruote = ruote;
      return esito;
    }
  }
  return esito;
}

}  // namespace

EsitoPrevisione VerificaPrevisione(const TabellaEstrazioni& tab, std::span<const int> numeri,
                                   std::span<const int> ruote, int dopo, int colpi, int sorte_minima) {
  assert(sorte_minima >= 1 && sorte_minima <= kNumeriPerRuota);
  const Giocati giocato = Segna(numeri);
  return Percorri<Insieme::Migliore>(tab, Maschera(ruote), dopo, colpi, sorte_minima, [&](const Estrazione& e, int r) {
    const uint8_t* cinque = &e.numeri[static_cast<size_t>((r - 1) * kNumeriPerRuota)];
    int presi = 0;
    for (int p = 0; p < kNumeriPerRuota; ++p) presi += giocato[cinque[p]] ? 1 : 0;
    return presi;
  });
}

EsitoPrevisione VerificaPrevisioneAmbetto(const TabellaEstrazioni& tab, std::span<const int> numeri,
                                          std::span<const int> ruote, int dopo, int colpi) {
  PuntataLotto puntata{SorteLotto::Ambetto, {numeri.begin(), numeri.end()}, {}, 0, 0};
  return Percorri<Insieme::Somma>(tab, Maschera(ruote), dopo, colpi, 1, [&](const Estrazione& e, int r) {
    return static_cast<int>(CombinazioniVincenti(puntata, NumeriRuota(e, r)));
  });
}

EsitoPrevisione VerificaPrevisioneGioco(const TabellaGioco& tab, std::span<const int> numeri, int dopo, int colpi,
                                        int sorte_minima) {
  const Giocati giocato = Segna(numeri);
  const auto estratti = static_cast<size_t>(tab.formato().numeri);
  EsitoPrevisione esito;
  for (int id = dopo + 1; id <= tab.EstrazioniArchivio() && esito.colpi_giocati < colpi; ++id) {
    const EstrazioneGioco& estrazione = tab[id];
    ++esito.colpi_giocati;
    int presi = 0;
    for (size_t p = 0; p < estratti; ++p) presi += giocato[estrazione.numeri[p]] ? 1 : 0;
    if (presi >= sorte_minima) {
      esito.sorte = presi;
      esito.colpo = esito.colpi_giocati;
      esito.id_estr = id;
      return esito;
    }
  }
  return esito;
}

}  // namespace lottolab::stats
