#include "WScript.h"

#include <chrono>
#include <thread>

#include "text/Utf.h"

namespace lottolab::cli {

using vbs::CallArgs;
using vbs::Result;
using vbs::Variant;

namespace {

Result<std::string> TestoDi(const Variant& valore, const vbs::Locale& locale) {
  const Variant& v = valore.Deref();
  if (v.is_null()) return std::string("Null");
  VBS_TRY_ASSIGN(auto testo, v.to_string(locale));
  return text::Utf16ToUtf8(testo.view());
}

}  // namespace

// StdOut and StdErr: Write, WriteLine, WriteBlankLines, and Line and Column as a text file counts
// them (from 1; Line the line breaks written, Column the characters since the last one).
class FlussoTesto final : public vbs::HostObject<FlussoTesto> {
 public:
  FlussoTesto(const vbs::Locale& locale, std::ostream& flusso) : HostObject(locale), m_flusso(flusso) {}
  static std::span<const Member> Members() {
    static const Member kMembri[] = {
        {"Write", 1, 1, &FlussoTesto::Write, nullptr, "Text: writes the text"},
        {"WriteLine", 0, 1, &FlussoTesto::WriteLine, nullptr, "[Text]: writes the text and a line break"},
        {"WriteBlankLines", 1, 1, &FlussoTesto::WriteBlankLines, nullptr, "N: writes N line breaks"},
        {"Line", 0, 0, &FlussoTesto::Line, nullptr, "the current line number, from 1"},
        {"Column", 0, 0, &FlussoTesto::Column, nullptr, "the current column, from 1"},
    };
    return kMembri;
  }
  std::u16string ClassName() const override { return u"TextStream"; }

 private:
  Result<Variant> Write(CallArgs& args) {
    VBS_TRY_ASSIGN(auto testo, TestoDi(args[0], args.locale()));
    Scrivi(testo);
    m_flusso << std::flush;
    return Variant();
  }
  Result<Variant> WriteLine(CallArgs& args) {
    if (args.size() > 0) {
      VBS_TRY_ASSIGN(auto testo, TestoDi(args[0], args.locale()));
      Scrivi(testo);
    }
    Scrivi("\n");
    m_flusso << std::flush;
    return Variant();
  }
  Result<Variant> WriteBlankLines(CallArgs& args) {
    VBS_TRY_ASSIGN(auto righe, args.Long(0));
    for (int32_t i = 0; i < righe; ++i) Scrivi("\n");
    return Variant();
  }
  Result<Variant> Line(CallArgs&) { return Variant::Long(m_riga); }
  Result<Variant> Column(CallArgs&) { return Variant::Long(m_colonna); }

  // Columns count UTF-16 units, as the script's strings do: a UTF-8 continuation byte adds none,
  // and a character past the Basic Multilingual Plane (a four-byte lead) adds two.
  void Scrivi(std::string_view testo) {
    m_flusso << testo;
    for (char c : testo) {
      const auto byte = static_cast<unsigned char>(c);
      if (c == '\n') {
        ++m_riga;
        m_colonna = 1;
      } else if ((byte & 0xC0) != 0x80) {
        m_colonna += byte >= 0xF0 ? 2 : 1;
      }
    }
  }

  std::ostream& m_flusso;
  int32_t m_riga = 1;
  int32_t m_colonna = 1;
};

// WScript.Arguments: Count, Length, Item(i) (the default), For Each.
class ArgomentiScript final : public vbs::HostObject<ArgomentiScript> {
 public:
  ArgomentiScript(const vbs::Locale& locale, std::vector<std::string> argomenti)
      : HostObject(locale), m_argomenti(std::move(argomenti)) {}
  static std::span<const Member> Members() {
    static const Member kMembri[] = {
        {"Item", 1, 1, &ArgomentiScript::Item, nullptr, "Index: the argument, from 0", true},
        {"Count", 0, 0, &ArgomentiScript::Count, nullptr, "how many arguments"},
        {"Length", 0, 0, &ArgomentiScript::Count, nullptr, "how many arguments"},
    };
    return kMembri;
  }
  std::u16string ClassName() const override { return u"Arguments"; }

  Result<vbs::Ref<vbs::Enumerator>> Enumerate() override {
    class Elenco final : public vbs::Enumerator {
     public:
      explicit Elenco(vbs::Ref<ArgomentiScript> argomenti) : m_argomenti(std::move(argomenti)) {}
      Result<bool> Next(Variant& out) override {
        if (m_prossimo >= m_argomenti->m_argomenti.size()) return false;
        out = Variant::String(text::Utf8ToUtf16(m_argomenti->m_argomenti[m_prossimo++]));
        return true;
      }

     private:
      vbs::Ref<ArgomentiScript> m_argomenti;
      size_t m_prossimo = 0;
    };
    return vbs::Ref<vbs::Enumerator>(vbs::MakeRef<Elenco>(vbs::Ref<ArgomentiScript>(this)));
  }

 private:
  Result<Variant> Item(CallArgs& args) {
    VBS_TRY_ASSIGN(auto indice, args.Long(0));
    if (indice < 0 || static_cast<size_t>(indice) >= m_argomenti.size()) return vbs::MakeError(vbs::err::kSubscript);
    return Variant::String(text::Utf8ToUtf16(m_argomenti[indice]));
  }
  Result<Variant> Count(CallArgs&) { return Variant::Long(static_cast<int32_t>(m_argomenti.size())); }

  std::vector<std::string> m_argomenti;
};

WScript::WScript(vbs::Interpreter& interp, std::string nome_script, std::string percorso_script,
                 std::vector<std::string> argomenti, std::ostream& out, std::ostream& err)
    : HostObject(interp.locale()),
      m_interp(interp),
      m_nome(std::move(nome_script)),
      m_percorso(std::move(percorso_script)),
      m_out(out),
      m_stdout(vbs::MakeRef<FlussoTesto>(interp.locale(), out)),
      m_stderr(vbs::MakeRef<FlussoTesto>(interp.locale(), err)),
      m_argomenti(vbs::MakeRef<ArgomentiScript>(interp.locale(), std::move(argomenti))) {}

std::span<const WScript::Member> WScript::Members() {
  static const Member kMembri[] = {
      {"Echo", 0, 255, &WScript::Echo, nullptr, "Values...: writes them, separated by blanks, and a line break"},
      {"Quit", 0, 1, &WScript::Quit, nullptr, "[Code]: ends the script with that exit status"},
      {"Sleep", 1, 1, &WScript::Sleep, nullptr, "Milliseconds: waits"},
      {"StdOut", 0, 0, &WScript::StdOut, nullptr, "the standard output stream"},
      {"StdErr", 0, 0, &WScript::StdErr, nullptr, "the standard error stream"},
      {"Arguments", 0, 1, &WScript::Arguments, nullptr, "the command-line arguments"},
      {"ScriptName", 0, 0, &WScript::ScriptName, nullptr, "the script's file name"},
      {"ScriptFullName", 0, 0, &WScript::ScriptFullName, nullptr, "the script's path"},
  };
  return kMembri;
}

Result<Variant> WScript::Echo(CallArgs& args) {
  std::string riga;
  for (size_t i = 0; i < args.size(); ++i) {
    VBS_TRY_ASSIGN(auto testo, TestoDi(args[i], m_interp.locale()));
    if (i) riga += ' ';
    riga += testo;
  }
  m_out << riga << '\n' << std::flush;
  return Variant();
}

Result<Variant> WScript::Quit(CallArgs& args) {
  VBS_TRY_ASSIGN(auto codice, args.Long(0, 0));
  m_codice_uscita = codice;
  // Ends the script at once, past any "On Error Resume Next".
  m_interp.RequestAbort();
  return vbs::MakeError(vbs::err::kAborted);
}

Result<Variant> WScript::Sleep(CallArgs& args) {
  VBS_TRY_ASSIGN(auto millisecondi, args.Long(0));
  if (millisecondi > 0) std::this_thread::sleep_for(std::chrono::milliseconds(millisecondi));
  return Variant();
}

Result<Variant> WScript::StdOut(CallArgs&) { return Variant::Object(m_stdout); }
Result<Variant> WScript::StdErr(CallArgs&) { return Variant::Object(m_stderr); }

Result<Variant> WScript::Arguments(CallArgs& args) {
  if (args.size() == 0) return Variant::Object(m_argomenti);
  vbs::Variant indice = args[0];
  return m_argomenti->Invoke(vbs::kDefaultMember, vbs::InvokeKind::Get, std::span<Variant>(&indice, 1));
}

Result<Variant> WScript::ScriptName(CallArgs&) { return Variant::String(text::Utf8ToUtf16(m_nome)); }
Result<Variant> WScript::ScriptFullName(CallArgs&) { return Variant::String(text::Utf8ToUtf16(m_percorso)); }

}  // namespace lottolab::cli
