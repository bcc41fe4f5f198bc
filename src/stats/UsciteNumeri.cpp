#include "UsciteNumeri.h"

#include <algorithm>
#include <cassert>

namespace lottolab::stats {

namespace {

constexpr int kPosti = kNumeriPerRuota + 1;  // position 0 (any) and 1..5

// Appends the draw unless it is already the last one held: a number repeated on one wheel, or
// drawn on several wheels for the all-wheels list, wins once per draw.
void AggiungiUscita(std::vector<int>& uscite, int id_estr) {
  if (uscite.empty() || uscite.back() != id_estr) uscite.push_back(id_estr);
}

}  // namespace

size_t UsciteNumeri::Posto(int ruota, int numero, int posizione) {
  return (static_cast<size_t>(ruota - 1) * kMassimoNumero + static_cast<size_t>(numero - 1)) * kPosti +
         static_cast<size_t>(posizione);
}

int UsciteNumeri::Contate(int ruota, int id_estr) const {
  return m_contate[static_cast<size_t>(ruota - 1) * static_cast<size_t>(m_estrazioni + 1) +
                   static_cast<size_t>(id_estr)];
}

int UsciteNumeri::Ritardo(int ruota, int numero, int posizione, int inizio, int fine) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote && numero >= 1 && numero <= kMassimoNumero);
  assert(posizione >= 0 && posizione <= kNumeriPerRuota && inizio >= 1 && fine <= m_estrazioni);
  if (fine < inizio) return 0;
  const std::vector<int>& uscite = m_uscite[Posto(ruota, numero, posizione)];
  auto dopo = std::upper_bound(uscite.begin(), uscite.end(), fine);
  const bool uscito = dopo != uscite.begin() && *std::prev(dopo) >= inizio;
  const int da = uscito ? *std::prev(dopo) : inizio - 1;
  return Contate(ruota, fine) - Contate(ruota, da);
}

UsciteNumeri CalcolaUsciteNumeri(const TabellaEstrazioni& tab) {
  UsciteNumeri indice;
  const int n = tab.EstrazioniArchivio();
  indice.m_estrazioni = n;
  indice.m_uscite.resize(static_cast<size_t>(kTutteLeRuote) * kMassimoNumero * kPosti);
  indice.m_contate.assign(static_cast<size_t>(kTutteLeRuote) * static_cast<size_t>(n + 1), 0);
  for (int id = 1; id <= n; ++id) {
    const Estrazione& estrazione = tab[id];
    const bool presente = estrazione.Presente();
    bool qualcuna = false;
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      const bool contata = presente && estrazione.RuotaEstratta(ruota);
      qualcuna = qualcuna || contata;
      const size_t riga = static_cast<size_t>(ruota - 1) * static_cast<size_t>(n + 1) + static_cast<size_t>(id);
      indice.m_contate[riga] = indice.m_contate[riga - 1] + (contata ? 1 : 0);
      if (!presente) continue;
      for (int p = 1; p <= kNumeriPerRuota; ++p) {
        const int numero = estrazione.Numero(ruota, p);
        if (numero < 1 || numero > kMassimoNumero) continue;
        for (int r : {ruota, kTutteLeRuote}) {
          AggiungiUscita(indice.m_uscite[UsciteNumeri::Posto(r, numero, 0)], id);
          AggiungiUscita(indice.m_uscite[UsciteNumeri::Posto(r, numero, p)], id);
        }
      }
    }
    const size_t tutte = static_cast<size_t>(kTutteLeRuote - 1) * static_cast<size_t>(n + 1) + static_cast<size_t>(id);
    indice.m_contate[tutte] = indice.m_contate[tutte - 1] + (qualcuna ? 1 : 0);
  }
  return indice;
}

}  // namespace lottolab::stats
