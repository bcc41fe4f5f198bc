#pragma once

// The sum of the numbers of each draw, wheel by wheel (all its numbers or the first K drawn), and
// what each sum value did over the range: how often it came, when it came last, how many draws it
// has been missing, and how often a fair draw would give it.

#include <optional>
#include <vector>

#include "stats/EstrazioniPerAnalisi.h"
#include "stats/TerniRitardatari.h"

namespace lottolab::stats {

struct RichiestaSomme {
  std::vector<int> ruote;  // none: every wheel
  int posizioni = 0;       // the first K numbers of each wheel; 0 or more than there are: all of them
  int inizio = 1;
  int fine = 0;  // 0: the last draw
};

struct SommeEstrazione {
  int id = 0;
  std::vector<int> somme;  // one per wheel asked, in the order of AnalisiSomme::ruote; -1 not drawn
};

struct ValoreSomma {
  int somma = 0;
  int uscite = 0;     // the (draw, wheel) pairs that gave it
  int ultima = 0;     // the last draw that gave it; 0 never
  int ritardo = 0;    // counted draws since that one, or in the whole range when never
  double attese = 0;  // the pairs that a fair draw would give it
};

struct AnalisiSomme {
  std::vector<int> ruote;
  int posizioni = 0;
  int conteggiate = 0;                      // the (draw, wheel) pairs summed
  std::vector<SommeEstrazione> estrazioni;  // every draw of the range in which a wheel asked was drawn
  std::vector<ValoreSomma> valori;          // every sum that K distinct numbers can give, smallest first
};

// The probability of each sum of `quanti` distinct numbers drawn from 1..massimo, element s - min
// for the smallest possible sum min = quanti (quanti + 1) / 2. Empty when quanti is outside 1..massimo.
std::vector<double> ProbabilitaSomme(int quanti, int massimo);

// Nothing when stopped.
std::optional<AnalisiSomme> CalcolaSomme(const EstrazioniPerAnalisi& estrazioni, const RichiestaSomme& richiesta,
                                         const ControlloCalcolo& controllo = {});

struct ClasseSomme {
  int da = 0;
  int a = 0;
  int uscite = 0;
  double attese = 0;
};

// The sum values gathered into classes of `ampiezza` consecutive values (at least 1), the first
// starting at the smallest possible sum.
std::vector<ClasseSomme> ClassiDiSomme(const AnalisiSomme& analisi, int ampiezza);

}  // namespace lottolab::stats
