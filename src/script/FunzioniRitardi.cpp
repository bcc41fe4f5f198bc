#include "ClsFunctionsGeodoScript.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniRitardi() { return {}; }

}  // namespace lottolab::script
