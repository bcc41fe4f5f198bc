#include "gui/script/ParoleEditor.h"

#include <algorithm>

#include "script/ClsFunctionsGeodoScript.h"
#include "script/Riferimento.h"
#include "text/AsciiCase.h"
#include "vbscript/builtins/Builtins.h"

namespace lottolab::gui {

namespace {

// The lexer keeps its table of reserved words to itself; the editor's test checks that the lexer
// takes every word here as reserved.
constexpr std::string_view kParoleChiave[] = {
    "And",      "ByRef",  "ByVal", "Call",    "Case",   "Class", "Const",  "Default", "Dim",      "Do",      "Each",
    "Else",     "ElseIf", "Empty", "End",     "Eqv",    "Erase", "Error",  "Exit",    "Explicit", "False",   "For",
    "Function", "Get",    "GoTo",  "If",      "Imp",    "In",    "Is",     "Let",     "Loop",     "Me",      "Mod",
    "New",      "Next",   "Not",   "Nothing", "Null",   "On",    "Option", "Or",      "Preserve", "Private", "Property",
    "Public",   "ReDim",  "Rem",   "Resume",  "Select", "Set",   "Step",   "Stop",    "Sub",      "Then",    "To",
    "True",     "Until",  "Wend",  "While",   "With",   "Xor",
};

bool MinoreSenzaMaiuscole(const std::string& a, const std::string& b) {
  return text::LowerAscii(a) < text::LowerAscii(b);
}

// The engine's rows read "Len(string): what it does"; what comes before the colon is the tip, since
// what follows is written for the engine's developers.
ParolaEditor DaBuiltin(const vbs::Builtin& builtin) {
  const size_t due_punti = builtin.description.find(": ");
  return {std::string(builtin.name), std::string(builtin.description.substr(0, due_punti))};
}

// A call tip wider than the editor would be cut: the meaning is wrapped at spaces.
std::string AndandoACapo(const std::string& testo, size_t larghezza) {
  std::string risultato;
  size_t colonna = 0;
  size_t inizio = 0;
  while (inizio < testo.size()) {
    size_t fine = testo.find_first_of(" \n", inizio);
    if (fine == std::string::npos) fine = testo.size();
    const size_t parola = fine - inizio;
    if (colonna > 0 && colonna + 1 + parola > larghezza) {
      risultato += '\n';
      colonna = 0;
    } else if (colonna > 0) {
      risultato += ' ';
      ++colonna;
    }
    risultato.append(testo, inizio, parola);
    colonna += parola;
    if (fine < testo.size() && testo[fine] == '\n') {
      risultato += '\n';
      colonna = 0;
    }
    inizio = fine + 1;
  }
  return risultato;
}

// A public name shows its card; a constant (BA_, Rosso_) reads "BA_: Bari: ruota 1".
ParolaEditor DaFunzione(const script::ClsFunctionsGeodoScript::Funzione& funzione) {
  constexpr size_t kLarghezzaSuggerimento = 80;
  std::string nome(funzione.nome);
  if (const script::SchedaFunzione* scheda = script::CercaScheda(nome))
    return {std::move(nome), AndandoACapo(script::TestoSuggerimento(*scheda), kLarghezzaSuggerimento)};
  return {nome, nome + ": " + std::string(funzione.descrizione)};
}

}  // namespace

const ParoleEditor& ParoleEditor::Tutte() {
  static const ParoleEditor parole;
  return parole;
}

ParoleEditor::ParoleEditor() {
  m_parole_chiave.assign(std::begin(kParoleChiave), std::end(kParoleChiave));
  for (auto famiglia :
       {vbs::CoreBuiltins(), vbs::CodeBuiltins(), vbs::StringBuiltins(), vbs::MathBuiltins(), vbs::DateBuiltins(),
        vbs::FormatBuiltins(), vbs::ConversionBuiltins(), vbs::InteractionBuiltins()})
    for (const vbs::Builtin& builtin : famiglia) m_funzioni_vbscript.push_back(DaBuiltin(builtin));
  for (const auto& funzione : script::ClsFunctionsGeodoScript::Funzioni())
    if (!funzione.descrizione.starts_with("(host)")) m_funzioni_libreria.push_back(DaFunzione(funzione));

  m_tutti_i_nomi = m_parole_chiave;
  for (const auto* parole : {&m_funzioni_vbscript, &m_funzioni_libreria})
    for (const ParolaEditor& parola : *parole) m_tutti_i_nomi.push_back(parola.nome);
  std::sort(m_tutti_i_nomi.begin(), m_tutti_i_nomi.end(), MinoreSenzaMaiuscole);
  const auto uguali = [](const std::string& a, const std::string& b) { return text::EqualsIgnoringAsciiCase(a, b); };
  m_tutti_i_nomi.erase(std::unique(m_tutti_i_nomi.begin(), m_tutti_i_nomi.end(), uguali), m_tutti_i_nomi.end());
}

std::vector<std::string> ParoleEditor::Completamenti(std::string_view prefisso) const {
  const std::string cercato = text::LowerAscii(prefisso);
  std::vector<std::string> nomi;
  for (const std::string& nome : m_tutti_i_nomi)
    if (text::LowerAscii(nome).starts_with(cercato)) nomi.push_back(nome);
  return nomi;
}

std::string ParoleEditor::Suggerimento(std::string_view nome) const {
  for (const auto* parole : {&m_funzioni_libreria, &m_funzioni_vbscript})
    for (const ParolaEditor& parola : *parole)
      if (text::EqualsIgnoringAsciiCase(parola.nome, nome)) return parola.suggerimento;
  return {};
}

std::string ElencoPerLexer(const std::vector<std::string>& nomi) {
  std::string elenco;
  for (const std::string& nome : nomi) {
    if (!elenco.empty()) elenco += ' ';
    elenco += text::LowerAscii(nome);
  }
  return elenco;
}

std::string ElencoPerLexer(const std::vector<ParolaEditor>& parole) {
  std::vector<std::string> nomi;
  for (const ParolaEditor& parola : parole) nomi.push_back(parola.nome);
  return ElencoPerLexer(nomi);
}

}  // namespace lottolab::gui
