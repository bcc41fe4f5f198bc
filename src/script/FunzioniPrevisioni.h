#pragma once

// The family of the forecasts saved by scripts, bound with the others in ClsFunctionsGeodoScript.cpp.

#include <span>

#include "ClsFunctionsGeodoScript.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniPrevisioni();

}  // namespace lottolab::script
