#include "Famiglia.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniDialoghi() { return {}; }

}  // namespace lottolab::script
