#pragma once

// The search of the edited structure over the archive, as the search window runs it on a worker
// thread: what to search, the stop the window may ask for at any time, and the rows it shows.

#include <atomic>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "archive/Esito.h"
#include "archive/TabellaEstrazioni.h"
#include "figures/RicercaFigure.h"
#include "figures/StatisticaStrutture.h"
#include "figures/Struttura.h"

namespace lottolab::gui {

struct RichiestaRicerca {
  figures::Struttura struttura;
  int inizio = 1;
  int fine = 0;            // 0 for the archive's last draw
  std::vector<int> ruote;  // every wheel when empty
  int colpi = 9;
};

struct RisultatoRicerca {
  figures::FigureTrovate trovate;
  // Only for a search that ran to its end: the delays of one cut short would be wrong.
  std::optional<figures::StatisticaStruttura> statistica;
  bool interrotta = false;
};

// One found figure as the window lists it: the draw that completes it, its date, the wheels it
// touches, the numbers at its vertices in the structure's order.
struct RigaFigura {
  int estrazione = 0;
  std::string data;
  std::string ruote;
  std::string numeri;
};

RigaFigura DescriviFigura(const TabellaEstrazioni& tab, const figures::FigureTrovate& trovate,
                          const figures::FiguraTrovata& trovata);

// Runs on the calling thread; `progresso` is told the share done, 0..1, from the same thread. `ferma`
// may be set from any thread: the search then ends at its next progress notice.
Esito<RisultatoRicerca> CercaStruttura(const TabellaEstrazioni& tab, const RichiestaRicerca& richiesta,
                                       const std::function<void(double)>& progresso, const std::atomic<bool>& ferma);

}  // namespace lottolab::gui
