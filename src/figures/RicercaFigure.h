#pragma once

// The search of a user figure over the archive: every placement of its shapes (Piazzamento.h) whose
// vertices all hold numbers and whose conditions all hold.

#include <functional>
#include <vector>

#include "FiguraPiazzata.h"
#include "Piazzamento.h"
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

  friend bool operator==(const FiguraTrovata&, const FiguraTrovata&) = default;
};

// What a search found. A placement is kept in a few bytes, whatever the figure's size: a figure of
// many vertices found at most cells of the table, kept with its numbers, would fill the memory.
struct FigureTrovate {
  std::vector<Forma> forme;  // FormeDaCercare's shapes, which the placements refer to
  std::vector<FiguraTrovata> elenco;

  // The placed figure, its numbers read from `tab`, the table that was searched.
  FiguraPiazzata Figura(const TabellaEstrazioni& tab, const FiguraTrovata& trovata) const;
};

// The placements in order of draw, then shape, then column. A condition that does not compile
// fails the search with its "Errore di sintassi" message and the condition's number; so does a
// structure beyond the limits of LimitiStrutture.h, with its own message.
Esito<FigureTrovate> CercaFigura(const TabellaEstrazioni& tab, const Struttura& struttura,
                                 const OpzioniRicerca& opzioni);

}  // namespace lottolab::figures
