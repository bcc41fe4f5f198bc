#pragma once

// A bet and its wins in the words the command line and the desktop both show, and the columns of a
// bet read back from what a user types.

#include <string>
#include <string_view>
#include <vector>

#include "Giocata.h"

namespace lottolab::agenda {

// "12.34.56 / 1.2.3.4.5.6 +90": the columns, then the special number.
std::string TestoNumeri(const Giocata& giocata);
// "BA,VE", "TT", or "-" for the games without wheels.
std::string TestoRuote(const Giocata& giocata);
// "ambo 1,00 terno 0,50 x1,1,2,2": the stakes, then the progression.
std::string TestoPoste(const Giocata& giocata);
// "05/01/2023" or "estr. 1234".
std::string TestoDal(const Giocata& giocata);
// "ambo 12.34 su BA (1), lordo 83,33", or the same saying that the amount is not known.
std::string TestoVincita(const VincitaColpo& vincita);

// "12 34 56 / 1 2 3": columns separated by "/", ";" or a new line, numbers by blanks, commas or
// points. Ranges are the bet's check; this refuses what is no whole number, or no number at all.
Esito<std::vector<std::vector<int>>> LeggiColonne(std::string_view testo);

}  // namespace lottolab::agenda
