#include "Famiglia.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniCombinazioni() { return {}; }

}  // namespace lottolab::script
