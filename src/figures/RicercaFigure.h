#pragma once

// The search of a user figure over the archive: every placement of its shapes (Piazzamento.h) whose
// vertices all hold numbers and whose conditions all hold.

#include <functional>
#include <vector>

#include "FiguraPiazzata.h"
#include "Struttura.h"
#include "archive/Esito.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::figures {

struct OpzioniRicerca {
  // The draws in which a placement's last row may fall; 0 for the last draw of the archive.
  int inizio = 1;
  int fine = 0;
  // The wheels (1..11) a placement may touch; every wheel when empty.
  std::vector<int> ruote;
  // Told the share of the range searched so far, 0..1; a false answer stops the search, which
  // then gives what it found up to there.
  std::function<bool(double)> avanzamento;
};

struct FiguraTrovata {
  int estrazione = 0;  // the placement's last row: the draw that completes the figure
  int forma = 0;       // which of FormeDaCercare's shapes
  int colonna = 0;     // the column of the anchor
  FiguraPiazzata figura;
};

// The placements in order of draw, then shape, then column. A condition that does not compile
// fails the search with its "Errore di sintassi" message and the condition's number.
Esito<std::vector<FiguraTrovata>> CercaFigura(const TabellaEstrazioni& tab, const Struttura& struttura,
                                              const OpzioniRicerca& opzioni);

}  // namespace lottolab::figures
