#include "Famiglia.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniTesto() { return {}; }

}  // namespace lottolab::script
