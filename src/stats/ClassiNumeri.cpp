#include "stats/ClassiNumeri.h"

#include <algorithm>
#include <array>

#include "stats/Numeri.h"

namespace lottolab::stats {

int ClasseDi(TipoClasse tipo, int numero) {
  switch (tipo) {
    case TipoClasse::Cadenza: return Cadenza(numero);
    case TipoClasse::Figura: return Figura(numero);
    case TipoClasse::Decina: return DecinaNaturale(numero) + 1;
  }
  return 0;
}

std::vector<StatisticaClasse> CalcolaClassi(const EstrazioniPerAnalisi& estrazioni, std::span<const int> ruote_scelte,
                                            int inizio, int fine) {
  std::vector<StatisticaClasse> classi;
  for (int valore = 0; valore <= 9; ++valore) classi.push_back({TipoClasse::Cadenza, valore, {}, 0, 0, 0, 0});
  for (int valore = 1; valore <= 9; ++valore) classi.push_back({TipoClasse::Figura, valore, {}, 0, 0, 0, 0});
  for (int valore = 1; valore <= 9; ++valore) classi.push_back({TipoClasse::Decina, valore, {}, 0, 0, 0, 0});
  // Each number belongs to one class of each kind: the three rows it feeds.
  std::array<std::array<int, 3>, 256> righe{};
  const int massimo = std::min(estrazioni.massimo, 255);
  for (int numero = 1; numero <= massimo; ++numero) {
    righe[static_cast<size_t>(numero)] = {Cadenza(numero), 10 + Figura(numero) - 1,
                                          19 + ClasseDi(TipoClasse::Decina, numero) - 1};
    for (int riga : righe[static_cast<size_t>(numero)]) classi[static_cast<size_t>(riga)].numeri.push_back(numero);
  }

  const std::vector<int> ruote = RuoteValide(estrazioni, ruote_scelte);
  inizio = std::max(1, inizio);
  fine = fine <= 0 ? estrazioni.Estrazioni() : std::min(fine, estrazioni.Estrazioni());
  std::array<int, 28> uscite_nella_estrazione{};
  int ultima_contata = 0;
  for (int id = inizio; id <= fine; ++id) {
    uscite_nella_estrazione.fill(0);
    bool estratta = false;
    for (int ruota : ruote) {
      if (!estrazioni.RuotaEstratta(id, ruota)) continue;
      estratta = true;
      for (uint8_t numero : estrazioni.Numeri(id, ruota))
        if (numero >= 1 && numero <= massimo)
          for (int riga : righe[numero]) ++uscite_nella_estrazione[static_cast<size_t>(riga)];
    }
    if (!estratta) continue;
    ultima_contata = id;
    for (size_t riga = 0; riga < classi.size(); ++riga) {
      StatisticaClasse& classe = classi[riga];
      if (classe.numeri.empty()) continue;
      if (uscite_nella_estrazione[riga] > 0) {
        classe.frequenza += uscite_nella_estrazione[riga];
        classe.ritardo = 0;
      } else {
        classe.storico = std::max(classe.storico, ++classe.ritardo);
      }
    }
  }
  if (ultima_contata > 0)
    for (StatisticaClasse& classe : classi)
      for (int ruota : ruote)
        if (estrazioni.RuotaEstratta(ultima_contata, ruota))
          for (uint8_t numero : estrazioni.Numeri(ultima_contata, ruota))
            if (std::find(classe.numeri.begin(), classe.numeri.end(), numero) != classe.numeri.end())
              ++classe.nell_ultima;
  return classi;
}

}  // namespace lottolab::stats
