#include "ArgomentoPercorso.h"

#include <algorithm>

#include "Famiglia.h"

namespace lottolab::script {

vbs::Result<std::filesystem::path> PercorsoArgomento(const ClsFunctionsGeodoScript& lib, const vbs::CallArgs& args,
                                                     size_t i) {
  VBS_TRY_ASSIGN(auto nome, args.String(i));
  std::string testo = text::Utf16ToUtf8(nome);
  if (testo.empty()) return ArgomentoNonValido("Nome del file o della cartella mancante");
  std::replace(testo.begin(), testo.end(), '\\', '/');
  std::filesystem::path percorso(testo);
  if (percorso.is_relative()) percorso = lib.impostazioni().cartella_base / percorso;
  return percorso.lexically_normal();
}

}  // namespace lottolab::script
