#include "RitardiGioco.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "Andamento.h"

namespace lottolab::stats {

StatisticaNumero StatisticaCombinazioneGioco(const TabellaGioco& tab, std::span<const int> numeri, int sorte, int fine,
                                             int inizio) {
  const int per_estrazione = tab.formato().numeri;
  assert(sorte >= 1 && sorte <= per_estrazione);
  assert(inizio >= 1 && fine <= tab.EstrazioniArchivio());
  std::array<uint8_t, 256> giocato{};
  for (int numero : numeri) {
    assert(numero >= 1 && numero <= 255);
    giocato[static_cast<size_t>(numero)] = 1;
  }
  Andamento andamento;
  for (int id = inizio; id <= fine; ++id) {
    const EstrazioneGioco& estrazione = tab[id];
    int colpi = 0;
    for (int i = 0; i < per_estrazione; ++i) colpi += giocato[estrazione.numeri[static_cast<size_t>(i)]];
    andamento.Aggiungi(Esame{.conta = true, .vincite = colpi >= sorte ? 1 : 0});
  }
  return Figure(andamento);
}

std::vector<StatisticaNumero> TabelloneGioco(const TabellaGioco& tab, int fine, int inizio) {
  assert(inizio >= 1 && fine <= tab.EstrazioniArchivio());
  const int massimo = tab.formato().massimo;
  std::vector<StatisticaNumero> figure(static_cast<size_t>(massimo) + 1);
  // The draw of each number's last win so far, inizio - 1 before the first; the closed runs are the
  // gaps between wins, the open one what follows the last.
  std::vector<int> ultima(static_cast<size_t>(massimo) + 1, inizio - 1);
  std::vector<int> massimo_chiuso(static_cast<size_t>(massimo) + 1, 0);
  for (int id = inizio; id <= fine; ++id) {
    const EstrazioneGioco& estrazione = tab[id];
    for (int i = 0; i < tab.formato().numeri; ++i) {
      const auto numero = static_cast<size_t>(estrazione.numeri[static_cast<size_t>(i)]);
      massimo_chiuso[numero] = std::max(massimo_chiuso[numero], id - ultima[numero] - 1);
      ultima[numero] = id;
      ++figure[numero].frequenza;
    }
  }
  for (size_t numero = 1; numero < figure.size(); ++numero) {
    StatisticaNumero& f = figure[numero];
    f.ritardo = std::max(0, fine - ultima[numero]);
    f.storico = std::max(massimo_chiuso[numero], f.ritardo);
    f.incr_storico = f.frequenza > 0 ? std::max(0, f.ritardo - massimo_chiuso[numero]) : f.ritardo;
  }
  return figure;
}

}  // namespace lottolab::stats
