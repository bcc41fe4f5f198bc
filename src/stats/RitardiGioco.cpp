#include "RitardiGioco.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace lottolab::stats {

namespace {

// Whether at least `sorte` of the played numbers are among the flagged main numbers of the draw.
class Colpi {
 public:
  Colpi(const TabellaGioco& tab, std::span<const int> numeri, int sorte, PosizioniGioco posizioni)
      : m_per_estrazione(tab.formato().numeri), m_sorte(sorte), m_posizioni(posizioni) {
    assert(sorte >= 1 && sorte <= m_per_estrazione);
    for (int numero : numeri) {
      assert(numero >= 1 && numero <= 255);
      m_giocato[static_cast<size_t>(numero)] = 1;
    }
  }

  bool operator()(const EstrazioneGioco& estrazione) const {
    int colpi = 0;
    for (int i = 0; i < m_per_estrazione; ++i)
      colpi += m_giocato[estrazione.numeri[static_cast<size_t>(i)]] & ((m_posizioni >> i) & 1U);
    return colpi >= m_sorte;
  }

 private:
  int m_per_estrazione;
  int m_sorte;
  PosizioniGioco m_posizioni;
  std::array<uint8_t, 256> m_giocato{};
};

}  // namespace

StatisticaNumero StatisticaCombinazioneGioco(const TabellaGioco& tab, std::span<const int> numeri, int sorte, int fine,
                                             int inizio, PosizioniGioco posizioni) {
  assert(inizio >= 1 && fine <= tab.EstrazioniArchivio());
  return PercorsoGioco(tab, inizio, fine, Colpi(tab, numeri, sorte, posizioni));
}

std::vector<bool> VinciteGioco(const TabellaGioco& tab, std::span<const int> numeri, int sorte, int fine, int inizio,
                               PosizioniGioco posizioni) {
  assert(inizio >= 1 && fine <= tab.EstrazioniArchivio());
  const Colpi vince(tab, numeri, sorte, posizioni);
  std::vector<bool> vincite;
  for (int id = inizio; id <= fine; ++id) vincite.push_back(vince(tab[id]));
  return vincite;
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
