#include "ClsFunctionsGeodoScript.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniAritmetica() { return {}; }

}  // namespace lottolab::script
