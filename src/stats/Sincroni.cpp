#include "Sincroni.h"

#include <cassert>

namespace lottolab::stats {

EsitoSincroni CalcolaSincroni(const TabellaEstrazioni& tab, int numero, int ruota, CompagniDa da, int inizio,
                              int fine) {
  assert(tab.Contiene(inizio) && tab.Contiene(fine) && inizio <= fine);
  assert(numero >= 1 && numero <= 90 && ruota >= 1 && ruota <= kNumeroRuote);
  EsitoSincroni esito;
  // The count of the wheel's draws at each companion's last appearance.
  std::array<int, 90> contate_all_ultima{};
  for (int n = 1; n <= 90; ++n) esito.compagni[static_cast<size_t>(n - 1)].numero = n;
  for (int id = inizio; id <= fine; ++id) {
    const Estrazione& estrazione = tab[id];
    if (estrazione.Numero(ruota, 1) == 0) continue;
    ++esito.estrazioni_contate;
    bool uscito = false;
    for (int p = 1; p <= kNumeriPerRuota; ++p) uscito = uscito || estrazione.Numero(ruota, p) == numero;
    if (!uscito) continue;
    ++esito.uscite;
    const int prima = da == CompagniDa::OgniRuota ? 1 : ruota;
    const int ultima = da == CompagniDa::OgniRuota ? kNumeroRuote : ruota;
    std::array<bool, 90> visto{};
    for (int r = prima; r <= ultima; ++r)
      for (int p = 1; p <= kNumeriPerRuota; ++p) {
        const int n = estrazione.Numero(r, p);
        if (n < 1 || n > 90 || n == numero || visto[static_cast<size_t>(n - 1)]) continue;
        visto[static_cast<size_t>(n - 1)] = true;
        Compagno& compagno = esito.compagni[static_cast<size_t>(n - 1)];
        ++compagno.frequenza;
        compagno.ultima_uscita = id;
        contate_all_ultima[static_cast<size_t>(n - 1)] = esito.estrazioni_contate;
      }
  }
  for (size_t k = 0; k < esito.compagni.size(); ++k)
    esito.compagni[k].ritardo = esito.estrazioni_contate - contate_all_ultima[k];
  return esito;
}

}  // namespace lottolab::stats
