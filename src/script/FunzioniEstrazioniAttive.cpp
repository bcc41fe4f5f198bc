#include "Famiglia.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniEstrazioniAttive() { return {}; }

}  // namespace lottolab::script
