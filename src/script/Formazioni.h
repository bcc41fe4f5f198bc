#pragma once

// The formations a run has built (AddItemFormazione and the like), which the statistical group of
// every game is made of.

#include <vector>

#include "ClsFunctionsGeodoScript.h"

namespace lottolab::script {

const std::vector<std::vector<int>>& FormazioniDellEsecuzione(ClsFunctionsGeodoScript& lib);

// The numbers of a formation as the group's table shows them: "03.45.67".
std::string NumeriInTesto(const std::vector<int>& numeri);

}  // namespace lottolab::script
