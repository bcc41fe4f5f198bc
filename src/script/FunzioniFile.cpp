#include "Famiglia.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniFile() { return {}; }

}  // namespace lottolab::script
