#pragma once

// Where the names of the circle of 90 take their numbers from: a draw's wheels or a set the script
// gives. A number is a draw (IdEstr) whose wheels the next argument gives, TT_ by default (the ten
// city wheels; NZ_ when named); an array is a set of numbers, which has no wheels, so a wheels
// argument beside it is refused rather than ignored.

#include <vector>

#include "ClsFunctionsGeodoScript.h"
#include "stats/Ciclometria.h"

namespace lottolab::script {

// The table wheels of argument i (TT_ by default), TT_ opened into the ten city wheels, each once.
vbs::Result<std::vector<int>> RuoteDellaFigura(const vbs::CallArgs& args, size_t i);

// Argument i as a set of numbers 1..90, given as one value or an array.
vbs::Result<stats::InsiemeCiclometrico> InsiemeDiNumeri(const vbs::CallArgs& args, size_t i);

// The numbers of argument i (IdEstr or an array of numbers) with the wheels of argument i + 1.
vbs::Result<stats::InsiemeCiclometrico> InsiemeArgomenti(ClsFunctionsGeodoScript& lib, const vbs::CallArgs& args,
                                                         size_t i);

}  // namespace lottolab::script
