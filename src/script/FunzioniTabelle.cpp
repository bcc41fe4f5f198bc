#include "Famiglia.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniTabelle() { return {}; }

}  // namespace lottolab::script
