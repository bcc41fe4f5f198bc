#include "ClsFunctionsGeodoScript.h"

namespace lottolab::script {

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniArchivio() { return {}; }

}  // namespace lottolab::script
