#include "Famiglia.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniElenchi() { return {}; }

}  // namespace lottolab::script
