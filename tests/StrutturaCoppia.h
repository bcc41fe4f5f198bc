#pragma once

// The smallest user figure the tests search: two cells of one column, the second a row below the
// first and closing the figure.

#include "figures/Struttura.h"

namespace lottolab::test {

inline figures::Struttura StrutturaCoppia() {
  figures::Struttura coppia;
  coppia.vertici.resize(2);
  coppia.vertici[0].Index = 1;
  coppia.vertici[0].Colonna = coppia.vertici[1].Colonna = 1;
  coppia.vertici[1].Index = 2;
  coppia.vertici[1].Riga = 1;
  coppia.vertici[1].UsaPerChiusura = true;
  return coppia;
}

}  // namespace lottolab::test
