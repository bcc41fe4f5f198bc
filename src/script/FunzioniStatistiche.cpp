#include "Famiglia.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniStatistiche() { return {}; }

}  // namespace lottolab::script
