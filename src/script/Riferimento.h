#pragma once

// The reference of the library's public names, one card a name: what the page of `lottolab
// funzioni --html`, the desktop's help and the editor's call tips show, from the binding rows
// themselves, so that the three never tell different things.

#include <string>
#include <string_view>
#include <vector>

namespace lottolab::script {

struct SchedaFunzione {
  std::string_view famiglia;  // the title of the family that binds it; "Non ancora disponibili" otherwise
  std::string_view nome;
  std::string_view argomenti;
  std::string_view significato;
  std::string_view restituisce;
  std::string_view esempio;
  bool legata = false;
};

// Every public name, family by family in the library's order, the names not bound yet last.
const std::vector<SchedaFunzione>& Riferimento();

// The card of a name in any case; null for a name that is not public.
const SchedaFunzione* CercaScheda(std::string_view nome);

// "Nome(argomenti)", "→ restituisce", the meaning, then "Esempio: ...", a line each: the editor's
// call tip and the help's card.
std::string TestoSuggerimento(const SchedaFunzione& scheda);

}  // namespace lottolab::script
