#include "Famiglia.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniArray() { return {}; }

}  // namespace lottolab::script
