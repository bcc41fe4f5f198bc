#pragma once

// The words the script editor knows, for colouring, completion and call tips. They come from the
// engine's table of built-in functions and the library's binding table, so a function added to
// either shows up in the editor without touching it.

#include <string>
#include <string_view>
#include <vector>

namespace lottolab::gui {

struct ParolaEditor {
  std::string nome;
  std::string suggerimento;  // the call tip: the name with its arguments, then what it does
};

class ParoleEditor {
 public:
  // Built once from the tables.
  static const ParoleEditor& Tutte();

  // The language's reserved words, as written in code ("ElseIf").
  const std::vector<std::string>& ParoleChiave() const { return m_parole_chiave; }
  const std::vector<ParolaEditor>& FunzioniVbscript() const { return m_funzioni_vbscript; }
  // The library's functions and constants, without the entry points only the host calls.
  const std::vector<ParolaEditor>& FunzioniLibreria() const { return m_funzioni_libreria; }

  // Every name that starts with `prefisso`, ignoring case, sorted ignoring case.
  std::vector<std::string> Completamenti(std::string_view prefisso) const;
  // The call tip of a function, ignoring case; empty for a name with none.
  std::string Suggerimento(std::string_view nome) const;

 private:
  ParoleEditor();

  std::vector<std::string> m_parole_chiave;
  std::vector<ParolaEditor> m_funzioni_vbscript;
  std::vector<ParolaEditor> m_funzioni_libreria;
  std::vector<std::string> m_tutti_i_nomi;  // sorted ignoring case
};

// The names as one list of lower-case words separated by blanks: what the VBScript lexer of the
// editor compares words against.
std::string ElencoPerLexer(const std::vector<std::string>& nomi);
std::string ElencoPerLexer(const std::vector<ParolaEditor>& parole);

}  // namespace lottolab::gui
