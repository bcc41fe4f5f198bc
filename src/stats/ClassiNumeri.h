#pragma once

// The numbers gathered by their last digit (cadenza 0..9), their digit sum (figura 1..9) and their
// natural decade (1..9: 1-10, 11-20, ..., 81-90), each class followed over a range of draws as one
// combination on the chosen wheels: how many of its numbers came out, how many draws it has been
// missing, its longest absence, and how many of its numbers the last draw holds.

#include <vector>

#include "stats/EstrazioniPerAnalisi.h"

namespace lottolab::stats {

enum class TipoClasse { Cadenza, Figura, Decina };

struct StatisticaClasse {
  TipoClasse tipo = TipoClasse::Cadenza;
  int valore = 0;
  std::vector<int> numeri;  // those of 1..massimo in the class
  int frequenza = 0;        // its numbers drawn, each time each one came out on a chosen wheel
  int ritardo = 0;          // counted draws since one of its numbers came out
  int storico = 0;          // the longest such absence in the range, the current one included
  int nell_ultima = 0;      // its numbers in the last draw of the range
};

// The class of `numero` (1..90) of that kind, by the number arithmetic's rules.
int ClasseDi(TipoClasse tipo, int numero);

// The ten cadences, the nine figures and the nine decades, in that order, over inizio..fine (0:
// the last draw). A draw counts when one of the chosen wheels was drawn. A class without numbers in
// the game's range (a decade past its largest number) has no figures.
std::vector<StatisticaClasse> CalcolaClassi(const EstrazioniPerAnalisi& estrazioni, std::span<const int> ruote,
                                            int inizio = 1, int fine = 0);

}  // namespace lottolab::stats
