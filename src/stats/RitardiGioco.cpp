#include "RitardiGioco.h"

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

}  // namespace lottolab::stats
