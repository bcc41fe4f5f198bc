#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

#include "text/Utf.h"
#include "vbscript/HostObject.h"
#include "vbscript/ScriptControl.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {
namespace {

// A host object as the library will bind its functions: one table row per member.
class Libreria final : public HostObject<Libreria> {
 public:
  explicit Libreria(const Locale& locale) : HostObject(locale) {}
  static std::span<const Member> Members() {
    static const Member kMembers[] = {
        {"Somma", 2, 3, &Libreria::Somma, nullptr, "A, B[, C]: the sum"},
        {"Riempi", 1, 1, &Libreria::Riempi, nullptr, "Arr: fills the caller's variable with a 1-based array"},
        {"Valore", 0, 0, &Libreria::GetValore, &Libreria::PutValore, "a read-write property", true},
        {"Esaurisci", 1, 1, &Libreria::Esaurisci, nullptr, "N: fails as the C++ library does when memory runs out"},
    };
    return kMembers;
  }
  std::u16string ClassName() const override { return u"Libreria"; }
  int32_t valore = 7;

 private:
  Result<Variant> Somma(CallArgs& args) {
    auto a = args.Long(0);
    if (!a) return std::move(a).error();
    auto b = args.Long(1);
    if (!b) return std::move(b).error();
    auto c = args.Long(2, 0);
    if (!c) return std::move(c).error();
    return Variant::Long(*a + *b + *c);
  }
  Result<Variant> Riempi(CallArgs& args) {
    ArrayBound bound{1, 3};
    auto array = SafeArray::Create(std::span<const ArrayBound>(&bound, 1));
    if (!array) return std::move(array).error();
    for (int i = 0; i < 3; ++i) (*array)->elements()[i] = Variant::Integer(static_cast<int16_t>((i + 1) * 10));
    args.Out(0) = Variant::Array(*array);
    return Variant();
  }
  Result<Variant> Esaurisci(CallArgs& args) {
    auto n = args.Long(0);
    if (!n) return std::move(n).error();
    if (*n == 1) throw std::bad_alloc();
    std::u16string text;
    text.reserve(text.max_size() + static_cast<size_t>(*n));
    return Variant();
  }
  Result<Variant> GetValore(CallArgs&) { return Variant::Long(valore); }
  Result<Variant> PutValore(CallArgs&, Variant value) {
    auto v = value.to_long(locale());
    if (!v) return std::move(v).error();
    valore = *v;
    return Variant();
  }
};

// An object bound by hand, without HostObject's trap: what it throws reaches the engine's edge.
class Grezzo final : public Object {
 public:
  std::u16string ClassName() const override { return u"Grezzo"; }
  DispId FindMember(std::string_view) override { return 1; }
  Result<Variant> Invoke(DispId, InvokeKind, std::span<Variant> args) override {
    if (args.empty()) throw std::bad_alloc();
    throw std::runtime_error("guasto");
  }
};

class Motore : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(engine.SetLanguage("vbscript")); }
  Status Add(std::string_view code) { return engine.AddCode(text::Utf8ToUtf16(code), "prova"); }
  std::string EvalText(std::string_view expression) {
    auto value = engine.Eval(text::Utf8ToUtf16(expression));
    if (!value) return "error " + std::to_string(engine.Error().number);
    auto text = value->to_string(engine.interpreter().locale());
    return text ? text::Utf16ToUtf8(text->view()) : "unprintable";
  }
  ScriptControl engine;
};

TEST_F(Motore, AddCodeEvalRunEExecuteStatementCondividonoLoStatoGlobale) {
  ASSERT_TRUE(Add("Dim n\nn = 2\nFunction Doppio(x)\n Doppio = x * 2\nEnd Function\nSub Main\n n = n + 1\nEnd Sub"));
  ASSERT_TRUE(engine.ExecuteStatement(u"main"));
  EXPECT_EQ(EvalText("n"), "3");
  Variant args[] = {Variant::Integer(21)};
  auto result = engine.Run("DOPPIO", args);
  ASSERT_TRUE(result);
  EXPECT_EQ(result->as_integer(), 42);
  engine.Reset();
  EXPECT_EQ(EvalText("IsEmpty(n)"), "Vero");
}

TEST_F(Motore, IMembriDiUnOggettoAggiuntoDiventanoNomiGlobali) {
  auto libreria = MakeRef<Libreria>(engine.interpreter().locale());
  ASSERT_TRUE(engine.AddObject("ClsLibreria", libreria, true));
  ASSERT_TRUE(Add("Dim a, t\nRiempi a\nt = Somma(a(1), a(3)) + Somma(1, 2, 3)\nValore = 5\n"));
  EXPECT_EQ(EvalText("t"), "46");
  EXPECT_EQ(EvalText("LBound(a) & UBound(a)"), "13");
  EXPECT_EQ(libreria->valore, 5);
  EXPECT_EQ(EvalText("ClsLibreria.Somma(1, 1)"), "2");
  EXPECT_EQ(EvalText("Somma(1)"), "error 450");
  EXPECT_FALSE(engine.AddObject("clslibreria", libreria, false)) << "a name may be added once";
}

TEST_F(Motore, LErroreDiceNumeroRigaEColonna) {
  EXPECT_FALSE(Add("Dim x\nx = 1\n  x = x / 0\n"));
  EXPECT_EQ(engine.Error().number, 11);
  EXPECT_EQ(engine.Error().line, 3u);
  EXPECT_EQ(engine.Error().column, 3u);
  EXPECT_EQ(text::Utf16ToUtf8(engine.Error().description), "Divisione per zero");
  EXPECT_EQ(engine.Error().source_name, "prova");

  EXPECT_FALSE(Add("x = (1 +\n"));
  EXPECT_EQ(engine.Error().number, 1023) << "expected expression";
  EXPECT_EQ(engine.Error().line, 1u);

  ASSERT_TRUE(engine.SetLocale(1033));
  EXPECT_FALSE(Add("Sub S\nEnd Sub\nS 1\n"));
  EXPECT_EQ(text::Utf16ToUtf8(engine.Error().description),
            "Wrong number of arguments or invalid property assignment: 'S'");
}

// The message a host shows names the name, the built-in or the object that failed, as Windows
// does; Err.Description keeps the plain text that scripts compare.
TEST_F(Motore, IlMessaggioNominaCioCheNonVaErrDescriptionNo) {
  const std::pair<const char*, const char*> casi[] = {
      {"ImpostaGiocata 1, 2", "Tipo non corrispondente: 'ImpostaGiocata'"},
      {"Dim t : t = Trova(1)", "Tipo non corrispondente: 'Trova'"},
      {"Option Explicit\nnonDichiarata = 1", "Variabile non definita: 'nonDichiarata'"},
      {"Dim v : v = CLng(\"abc\")", "Tipo non corrispondente: 'CLng'"},
      {"Dim m : m = Mid(\"abc\", 0)", "Chiamata di routine o argomento non validi: 'Mid'"},
      {"Dim d : Set d = CreateObject(\"Scripting.Dictionary\") : d.Aggiungi 1",
       "Proprietà o metodo non supportati dall'oggetto: 'd.Aggiungi'"},
      {"Dim e : e.Fai", "Necessario oggetto: 'e'"},
      {"Function F(a) : End Function : Dim r : r = F(1, 2)",
       "Numero di argomenti errato o assegnazione di proprietà non valida: 'F'"},
      {"Dim o : Set o = CreateObject(\"Nessuna.Classe\")",
       "Il componente ActiveX non può creare l'oggetto: 'Nessuna.Classe'"},
  };
  for (const auto& [codice, messaggio] : casi) {
    engine.Reset();
    EXPECT_FALSE(Add(codice)) << codice;
    EXPECT_EQ(text::Utf16ToUtf8(engine.Error().description), messaggio) << codice;
  }
  engine.Reset();
  ASSERT_TRUE(Add("On Error Resume Next\nImpostaGiocata 1\nDim t : t = Err.Description"));
  EXPECT_EQ(EvalText("t"), "Tipo non corrispondente");
}

TEST_F(Motore, SenzaLinguaggioNienteGira) {
  ScriptControl vuoto;
  EXPECT_FALSE(vuoto.AddCode(u"x = 1"));
  EXPECT_FALSE(vuoto.SetLanguage("JScript"));
  EXPECT_TRUE(vuoto.SetLanguage("VBSCRIPT"));
  EXPECT_EQ(vuoto.Language(), "VBScript");
}

TEST_F(Motore, IlTimeoutFermaUnCicloInfinito) {
  engine.SetTimeout(100);
  auto started = std::chrono::steady_clock::now();
  EXPECT_FALSE(Add("Do\nLoop"));
  EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(10));
  EXPECT_EQ(engine.Error().line, 1u);
  engine.SetTimeout(-1);
  EXPECT_TRUE(Add("Dim i\nFor i = 1 To 1000 : Next"));
}

TEST_F(Motore, UnaRichiestaDaUnAltroThreadFermaLoScriptAnchePassandoResumeNext) {
  std::thread stop([this] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    engine.RequestAbort();
  });
  EXPECT_FALSE(Add("On Error Resume Next\nDo\nLoop"));
  stop.join();
  EXPECT_EQ(engine.Error().number, err::kAborted);
}

TEST_F(Motore, MemoriaEsauritaInUnOggettoEErrore7CheOnErrorIntercetta) {
  ASSERT_TRUE(engine.AddObject("ClsLibreria", MakeRef<Libreria>(engine.interpreter().locale()), true));
  ASSERT_TRUE(
      Add("Dim e\nOn Error Resume Next\nEsaurisci 1\ne = Err.Number\nErr.Clear\nEsaurisci 2\ne = e & Err.Number"));
  EXPECT_EQ(EvalText("e"), "77");
  EXPECT_FALSE(Add("Sub Giu(n)\n Esaurisci n\nEnd Sub\nGiu 2"));
  EXPECT_EQ(engine.Error().number, 7);
  EXPECT_EQ(engine.Error().line, 2u);
  // The frames the failure left are given back: deep recursion still reaches its usual limit.
  EXPECT_FALSE(Add("Function F(n)\n F = F(n + 1)\nEnd Function\nF 1"));
  EXPECT_EQ(engine.Error().number, 28);
  EXPECT_EQ(EvalText("1 + 1"), "2");

  ASSERT_TRUE(engine.AddObject("Grezzo", MakeRef<Grezzo>(), false));
  EXPECT_FALSE(Add("Sub Dentro(n)\n If n > 0 Then Dentro n - 1 Else Grezzo.Qualcosa\nEnd Sub\nDentro 5"));
  EXPECT_EQ(engine.Error().number, 7);
  EXPECT_EQ(engine.interpreter().MarkStack().depth, 0u) << "the frames the exception crossed are closed";
  EXPECT_FALSE(Add("Sub Altro\n Grezzo.Qualcosa 1\nEnd Sub\nAltro"));
  EXPECT_EQ(engine.Error().number, 51) << "any other exception is an internal error";
  EXPECT_EQ(engine.interpreter().MarkStack().depth, 0u);
}

TEST_F(Motore, EvalEExecuteNonTengonoIlCodiceDopoAverloEseguito) {
  ASSERT_TRUE(Add("Dim i, s\nExecuteGlobal \"Sub Esplodi\" & vbLf & \"s = 1 / 0\" & vbLf & \"End Sub\""));
  const size_t sources = engine.interpreter().sources().size();
  ASSERT_TRUE(
      Add("For i = 1 To 2000\n s = Eval(i & \" * 2\")\n Execute \"s = s + \" & i\n"
          " ExecuteGlobal \"Dim g\" & (i Mod 3)\nNext"));
  EXPECT_EQ(EvalText("s"), "6000");
  for (int i = 0; i < 100; ++i) EXPECT_EQ(EvalText(std::to_string(i) + " + 1"), std::to_string(i + 1));
  EXPECT_LE(engine.interpreter().sources().size(), sources + 3) << "the loop, then one entry per kind of run-time code";
  // What ExecuteGlobal declared lives on, and its errors still name where it came from.
  EXPECT_FALSE(Add("Esplodi"));
  EXPECT_EQ(engine.Error().number, 11);
  EXPECT_EQ(engine.Error().source_name, "ExecuteGlobal");
  EXPECT_EQ(engine.Error().line, 2u);
}

}  // namespace
}  // namespace vbs
