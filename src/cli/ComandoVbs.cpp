#include <filesystem>
#include <fmt/format.h>
#include <fmt/ostream.h>
#include <iostream>

#include "Comandi.h"
#include "WScript.h"
#include "script/LetturaFile.h"
#include "text/Utf.h"
#include "vbscript/ScriptControl.h"

namespace lottolab::cli {

namespace fs = std::filesystem;

namespace {

// Message boxes of a script run from a terminal: the text is printed and the first button taken;
// an input box reads a line from standard input (end of input cancels it).
class UiTerminale final : public vbs::UiHandler {
 public:
  explicit UiTerminale(std::ostream& out) : m_out(out) {}
  int MessageBox(std::u16string_view prompt, int buttons, std::u16string_view) override {
    m_out << text::Utf16ToUtf8(prompt) << '\n' << std::flush;
    return vbs::FirstButton(buttons);
  }
  std::optional<std::u16string> InputBox(std::u16string_view prompt, std::u16string_view,
                                         std::u16string_view) override {
    m_out << text::Utf16ToUtf8(prompt) << ' ' << std::flush;
    std::string riga;
    if (!std::getline(std::cin, riga)) return std::nullopt;
    return text::Utf8ToUtf16(riga);
  }

 private:
  std::ostream& m_out;
};

}  // namespace

int ComandoVbs(Contesto& contesto, const Parole& parole) {
  std::ostream& err = contesto.err;
  size_t i = 0;
  int32_t lcid = 1040;
  if (i < parole.size() && parole[i] == "--locale") {
    if (i + 1 == parole.size()) return contesto.Fallisci(AvvisoEsclamativo("manca il valore dell'opzione --locale"));
    const std::string& nome = parole[i + 1];
    if (nome == "it-IT") {
      lcid = 1040;
    } else if (nome == "en-US") {
      lcid = 1033;
    } else {
      return contesto.Fallisci(
          AvvisoEsclamativo(fmt::format("impostazione locale sconosciuta: {} (it-IT o en-US)", nome)));
    }
    i += 2;
  }
  if (i == parole.size())
    return contesto.Fallisci(AvvisoEsclamativo("uso: lottolab vbs [--locale it-IT|en-US] FILE.vbs [ARGOMENTI...]"));
  fs::path file = parole[i];
  auto contenuto = script::LeggiFileRegolare(file, script::kLimiteFileScript);
  if (!contenuto) return contesto.Fallisci(contenuto.Errore());
  std::error_code ec;
  const fs::path assoluto = fs::absolute(file, ec);

  vbs::ScriptControl motore;
  UiTerminale ui(contesto.out);
  motore.SetUiHandler(&ui);
  (void)motore.SetLanguage("VBScript");
  (void)motore.SetLocale(lcid);
  auto wscript = vbs::MakeRef<WScript>(
      motore.interpreter(), file.filename().string(), (ec ? file : assoluto).string(),
      std::vector<std::string>(parole.begin() + static_cast<std::ptrdiff_t>(i) + 1, parole.end()), contesto.out, err);
  (void)motore.AddObject("WScript", wscript, false);
  auto esito = motore.AddCode(text::DecodeScriptFile(*contenuto), file.string());
  if (auto codice = wscript->CodiceUscita()) return *codice;
  if (!esito) {
    const vbs::ScriptErrorInfo& errore = motore.Error();
    fmt::print(err, "{}({}, {}) {}\n", file.string(), errore.line, errore.column,
               text::Utf16ToUtf8(errore.description));
    return kUscitaErrore;
  }
  return kUscitaRiuscita;
}

}  // namespace lottolab::cli
