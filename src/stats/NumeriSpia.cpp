#include "NumeriSpia.h"

#include <cassert>

namespace lottolab::stats {

namespace {

bool SpiaUscita(const Estrazione& estrazione, const DomandaSpia& domanda) {
  bool primo = false;
  bool secondo = domanda.spia[1] == 0;
  for (int p = 1; p <= kNumeriPerRuota; ++p) {
    const int numero = estrazione.Numero(domanda.ruota_spia, p);
    primo = primo || numero == domanda.spia[0];
    secondo = secondo || numero == domanda.spia[1];
  }
  return primo && secondo;
}

// Bit n of the result for each number n that `estrazione` holds on the wheels looked at.
std::array<uint64_t, 2> NumeriUsciti(const Estrazione& estrazione, int ruota_esito) {
  std::array<uint64_t, 2> usciti{};
  const int prima = ruota_esito == kTutteLeRuote ? 1 : ruota_esito;
  const int ultima = ruota_esito == kTutteLeRuote ? kNumeroRuote : ruota_esito;
  for (int r = prima; r <= ultima; ++r)
    for (int p = 1; p <= kNumeriPerRuota; ++p)
      if (const int n = estrazione.Numero(r, p); n >= 1 && n <= 90) usciti[n / 64] |= uint64_t{1} << (n % 64);
  return usciti;
}

}  // namespace

std::optional<EsitoSpia> CalcolaNumeriSpia(const TabellaEstrazioni& tab, const DomandaSpia& domanda,
                                           const ControlloCalcolo& controllo) {
  assert(tab.Contiene(domanda.inizio) && tab.Contiene(domanda.fine) && domanda.inizio <= domanda.fine);
  assert(domanda.colpi >= 1 && domanda.colpi <= kMassimiColpiSpia);
  assert(domanda.ruota_spia >= 1 && domanda.ruota_spia <= kNumeroRuote);
  EsitoSpia esito;
  for (int n = 1; n <= 90; ++n) esito.seguiti[static_cast<size_t>(n - 1)].numero = n;
  const int totale = domanda.fine - domanda.inizio + 1;
  for (int id = domanda.inizio; id <= domanda.fine; ++id) {
    if ((id - domanda.inizio) % 512 == 0) {
      if (controllo.annullato && controllo.annullato()) return std::nullopt;
      if (controllo.progresso) controllo.progresso((id - domanda.inizio) * 100 / totale);
    }
    if (!SpiaUscita(tab[id], domanda)) continue;
    ++esito.uscite;
    esito.ultima_uscita = id;
    if (id + domanda.colpi > domanda.fine) continue;
    ++esito.casi;
    std::array<uint64_t, 2> visti{};
    for (int colpo = 1; colpo <= domanda.colpi; ++colpo) {
      const std::array<uint64_t, 2> usciti = NumeriUsciti(tab[id + colpo], domanda.ruota_esito);
      for (size_t parte = 0; parte < 2; ++parte) {
        uint64_t nuovi = usciti[parte] & ~visti[parte];
        visti[parte] |= nuovi;
        while (nuovi != 0) {
          const int n = static_cast<int>(parte * 64) + __builtin_ctzll(nuovi);
          nuovi &= nuovi - 1;
          NumeroSeguito& seguito = esito.seguiti[static_cast<size_t>(n - 1)];
          ++seguito.presenze;
          seguito.somma_colpi += colpo;
          if (seguito.colpo_minimo == 0 || colpo < seguito.colpo_minimo) seguito.colpo_minimo = colpo;
        }
      }
    }
  }
  if (esito.ultima_uscita) esito.ritardo_attuale = domanda.fine - *esito.ultima_uscita;
  if (controllo.progresso) controllo.progresso(100);
  return esito;
}

}  // namespace lottolab::stats
