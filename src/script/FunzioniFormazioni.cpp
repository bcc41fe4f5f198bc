#include "Famiglia.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniFormazioni() { return {}; }

}  // namespace lottolab::script
