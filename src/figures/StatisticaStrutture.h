#pragma once

// What the figures found did next. Each found figure closes with a play: the numbers of its vertices
// marked for closure (of every vertex when none is marked), each once, on the wheels its vertices
// touch. The play is followed for a number of draws ("colpi") after the draw that completes the
// figure; a draw wins the sorte of the most numbers of the play drawn on one of those wheels.

#include <array>
#include <vector>

#include "RicercaFigure.h"

namespace lottolab::figures {

struct EsitoFigura {
  int colpo = 0;          // the draw after the figure, from 1, of the first win; 0 if none within the colpi
  int sorte = 0;          // the best sorte won within the colpi, 0 none
  bool in_corso = false;  // no win yet and the archive ends before the colpi are over
};

struct StatisticaStruttura {
  int casi = 0;                    // figures found
  std::array<int, 6> per_sorte{};  // figures whose best sorte was 1..5 (element 0 unused)
  int negativi = 0;                // figures with no win within the colpi
  int in_corso = 0;                // figures still open at the end of the archive
  double colpo_medio = 0;          // the mean draw of the first win, over the figures that won
  // Delays of the figure itself over the searched range, counted as the delays of a number are: the
  // draws since the last one that completed a figure (0 when the range's last draw did), and the
  // longest run of draws without one, from the range's start.
  int ritardo = 0;
  int ritardo_massimo = 0;
  std::vector<EsitoFigura> esiti;  // one per figure found, in the order of FigureTrovate::elenco
};

// `fine` is the last draw of the searched range: the delays are counted up to it.
StatisticaStruttura CalcolaStatistica(const TabellaEstrazioni& tab, const FigureTrovate& trovate, int colpi, int inizio,
                                      int fine);

}  // namespace lottolab::figures
