#include "stats/RicercaEstrazioni.h"

#include <algorithm>
#include <array>

namespace lottolab::stats {

namespace {

// How often the walks ask whether to stop and say how far they are.
constexpr int kPassoControllo = 512;

}  // namespace

std::optional<std::vector<int>> CercaEstrazioni(const EstrazioniPerAnalisi& estrazioni, const FiltroEstrazioni& filtro,
                                                const ControlloCalcolo& controllo) {
  const std::vector<int> ruote = RuoteValide(estrazioni, filtro.ruote);
  std::array<bool, 256> cercato{};
  for (int numero : filtro.numeri)
    if (numero >= 1 && numero <= 255) cercato[static_cast<size_t>(numero)] = true;
  // Numbers that cannot be drawn still count towards "all of them", so that such a search finds nothing.
  std::vector<int> unici = filtro.numeri;
  std::sort(unici.begin(), unici.end());
  int richiesti = static_cast<int>(std::unique(unici.begin(), unici.end()) - unici.begin());
  if (filtro.almeno > 0 && filtro.almeno < richiesti) richiesti = filtro.almeno;

  const int inizio = std::max(1, filtro.inizio);
  const int fine = filtro.fine <= 0 ? estrazioni.Estrazioni() : std::min(filtro.fine, estrazioni.Estrazioni());
  std::vector<int> trovate;
  std::array<bool, 256> visto{};
  for (int id = inizio; id <= fine; ++id) {
    if ((id - inizio) % kPassoControllo == 0) {
      if (controllo.annullato && controllo.annullato()) return std::nullopt;
      if (controllo.progresso) controllo.progresso((id - inizio) * 100 / std::max(1, fine - inizio + 1));
    }
    bool estratta = false;
    bool passa = false;
    int ovunque = 0;
    visto.fill(false);
    for (int ruota : ruote) {
      if (!estrazioni.RuotaEstratta(id, ruota)) continue;
      estratta = true;
      int sulla_ruota = 0;
      for (uint8_t numero : estrazioni.Numeri(id, ruota)) {
        if (!cercato[numero]) continue;
        ++sulla_ruota;
        if (!visto[numero]) {
          visto[numero] = true;
          ++ovunque;
        }
      }
      if (filtro.dove == DoveNumeri::SuUnaRuota && sulla_ruota >= richiesti) passa = true;
    }
    if (filtro.dove == DoveNumeri::Ovunque && ovunque >= richiesti) passa = true;
    if (estratta && passa) trovate.push_back(id);
  }
  return trovate;
}

}  // namespace lottolab::stats
