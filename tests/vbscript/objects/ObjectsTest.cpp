#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "TempDir.h"
#include "text/Utf.h"
#include "vbscript/ScriptControl.h"
#include "vbscript/objects/Dictionary.h"
#include "vbscript/objects/FileSystem.h"
#include "vbscript/objects/regexp/RegExpProgram.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {
namespace {

using lottolab::test::CartellaTemporanea;
using lottolab::test::LeggiByte;
using lottolab::test::ScriviByte;

// ---- Regular expressions ----

std::string Printable(std::u16string_view text) {
  std::string out;
  for (char16_t c : text) {
    if (c < 0x20) {
      out += "\\x" + std::to_string(c);
    } else {
      out += text::Utf16ToUtf8(std::u16string_view(&c, 1));
    }
  }
  return out;
}

// "[match](group 1)(group 2)", "(-)" for a group that took no part, "none", or "error N".
std::string FirstMatch(std::u16string_view pattern, std::u16string_view text, RegExpOptions options = {}) {
  auto program = RegExpProgram::Compile(pattern, options);
  if (!program) return "error " + std::to_string(program.error().number);
  RegExpCaptures captures;
  const std::function<Status()> go_on = [] { return Ok(); };
  auto found = program->Search(text, 0, captures, go_on);
  if (!found) return "error " + std::to_string(found.error().number);
  if (!*found) return "none";
  std::string out;
  for (size_t g = 0; g < captures.size(); g += 2) {
    const bool whole = g == 0;
    out += whole ? "[" : "(";
    out += captures[g] < 0 ? "-" : Printable(text.substr(captures[g], captures[g + 1] - captures[g]));
    out += whole ? "]" : ")";
  }
  return out;
}

struct MatchCase {
  std::u16string_view pattern;
  std::u16string_view text;
  std::string expected;
  RegExpOptions options = {};
};

TEST(RegExpProgramTest, MatchesAsJavaScriptDoes) {
  const RegExpOptions ignore_case{true, false};
  const RegExpOptions multiline{false, true};
  const MatchCase cases[] = {
      {u"a+", u" aabaaa", "[aa]"},
      {u"", u"abc", "[]"},
      {u"a|ab", u"abc", "[a]"},
      {u"<.+?>", u"<a><b>", "[<a>]"},
      {u"<.+>", u"<a><b>", "[<a><b>]"},
      {u"x{2,3}", u"xxxx", "[xxx]"},
      {u"x{2,}?", u"xxxx", "[xx]"},
      {u"(x){0}y", u"y", "[y](-)"},
      {u"(ab){2}", u"ababab", "[abab](ab)"},
      {u"(ab){1,3}?c", u"ababc", "[ababc](ab)"},
      {u"(?:ab)+c", u"xababc", "[ababc]"},
      // An optional round that matches nothing fails, so (a*)* leaves its group unset.
      {u"(a*)*", u"b", "[](-)"},
      {u"(a*)+", u"b", "[]()"},
      {u"(a|b)*?c", u"abc", "[abc](b)"},
      // Groups inside a repeated group keep an earlier round's text, as JScript's did (the
      // standard would reset group 4 to unset in the last round).
      {u"(z)((a+)?(b+)?(c))*", u"zaacbbbcac", "[zaacbbbcac](z)(ac)(a)(bbb)(c)"},
      {u"(a)|b", u"b", "[b](-)"},
      {u"(\\w)\\1", u"abccd", "[cc](c)"},
      {u"(a)\\1", u"aA", "[aA](a)", ignore_case},
      {u"\\1(a)", u"aa", "[a](a)"},
      {u"(?=(a+))a*b\\1", u"baaabac", "[aba](a)"},
      {u"(.*?)a(?!(a+)b\\2c)\\2(.*)", u"baaabaac", "[baaabaac](ba)(-)(abaac)"},
      {u"(?!(a))\\1b", u"b", "[b](-)"},
      {u"\\d+(?=%)", u"5 10%", "[10]"},
      {u"\\bfoo\\b", u"foobar foo", "[foo]"},
      {u"\\Boo", u"oo foo", "[oo]"},
      {u"^b", u"a\nb", "none"},
      {u"^b", u"a\nb", "[b]", multiline},
      {u"a$", u"a\r\nb", "[a]", multiline},
      {u"a$", u"a\n", "none"},
      {u"a.c", u"a\rc", "[a\\x13c]"},
      {u"a.c", u"a\nc", "none"},
      {u"\\s+", u"x \t\v\f\r\ny", "[ \\x9\\x11\\x12\\x13\\x10]"},
      {u"[\\d-z]+", u"a1-z", "[1-z]"},
      {u"[a-c-e]+", u"xb-ef", "[b-e]"},
      {u"[^\\W_]+", u"__ab1_", "[ab1]"},
      {u"[\\b]", u"a\bb", "[\\x8]"},
      {u"[]a]", u"]a", "none"},
      {u"[^]", u"\n", "[\\x10]"},
      {u"\\x41\\u0042\\103", u"ABC", "[ABC]"},
      {u"(a)\\101", u"aA", "[aA](a)"},
      {u"\\8", u"8", "[8]"},
      {u"\\cJ", u"\n", "[\\x10]"},
      {u"\\c", u"\\c", "[\\c]"},
      {u"a{,2}", u"a{,2}", "[a{,2}]"},
      {u"x{", u"x{", "[x{]"},
      {u"À", u"à", "[à]", ignore_case},
      {u"[α-ω]+", u"ΑΒΓ", "[ΑΒΓ]", ignore_case},
      {u"ж", u"Ж", "[Ж]", ignore_case},
      {u"[^a]", u"A", "none", ignore_case},
      {u"\\uD83D", u"\U0001F600", "[\xED\xA0\xBD]"},
  };
  for (const MatchCase& c : cases)
    EXPECT_EQ(FirstMatch(c.pattern, c.text, c.options), c.expected) << text::Utf16ToUtf8(c.pattern);
}

TEST(RegExpProgramTest, MalformedPatternsGiveWindowsErrors) {
  const std::pair<std::u16string_view, int> cases[] = {
      {u"a**", 5018},  {u"*a", 5018},    {u"a{2}{3}", 5018}, {u"^*", 5018}, {u"a|?", 5018},
      {u"\\b+", 5018}, {u"[a", 5019},    {u"[a\\", 5019},    {u"(a", 5020}, {u"(?:a", 5020},
      {u"a)", 5017},   {u"(?<a)", 5017}, {u"a{3,1}", 5017},  {u"\\", 5017}, {u"[b-a]", 5021},
  };
  for (const auto& [pattern, number] : cases)
    EXPECT_EQ(FirstMatch(pattern, u"a"), "error " + std::to_string(number)) << text::Utf16ToUtf8(pattern);
  EXPECT_EQ(FirstMatch(std::u16string(600, u'(') + std::u16string(600, u')'), u""), "error 28");
}

TEST(RegExpProgramTest, SearchStopsWhenTheEngineSaysSo) {
  auto program = RegExpProgram::Compile(u"(a*)*b", {});
  ASSERT_TRUE(program);
  int calls = 0;
  const std::function<Status()> interrupt = [&calls]() -> Status {
    if (++calls == 50) return MakeError(err::kAborted);
    return Ok();
  };
  RegExpCaptures captures;
  auto found = program->Search(std::u16string(40, u'a'), 0, captures, interrupt);
  ASSERT_FALSE(found);
  EXPECT_EQ(found.error().number, err::kAborted);
  EXPECT_EQ(calls, 50);
}

TEST(RegExpObjectTest, CatastrophicPatternEndsAtTheTimeOut) {
  ScriptControl engine;
  ASSERT_TRUE(engine.SetLanguage("VBScript"));
  engine.SetTimeout(100);
  const std::u16string code = u"Set re = CreateObject(\"VBScript.RegExp\")\nre.Pattern = \"(a*)*b\"\nx = re.Test(\"" +
                              std::u16string(40, u'a') + u"\")";
  EXPECT_FALSE(engine.AddCode(code));
  EXPECT_EQ(engine.Error().number, err::kAborted);
  EXPECT_EQ(engine.Error().line, 3u);
}

// ---- Dictionary ----

Result<Variant> Call(Object& object, std::string_view member, std::vector<Variant> args) {
  return object.Invoke(object.FindMember(member), InvokeKind::Method, args);
}

std::vector<int32_t> KeysOf(Dictionary& dictionary) {
  auto keys = Call(dictionary, "Keys", {});
  std::vector<int32_t> out;
  for (const Variant& key : keys->as_array()->elements()) out.push_back(key.as_long());
  return out;
}

TEST(DictionaryTest, AgreesWithASimpleModelUnderRandomAddsAndRemoves) {
  auto dictionary = MakeRef<Dictionary>(EnglishLocale());
  std::vector<int32_t> model;
  std::mt19937 random(12345);
  for (int step = 0; step < 60000; ++step) {
    const auto key = static_cast<int32_t>(random() % 2000);
    const bool present = std::find(model.begin(), model.end(), key) != model.end();
    if (random() % 3 != 0) {
      Status added = dictionary->Add(Variant::Long(key), Variant::Long(key * 2));
      ASSERT_EQ(added.ok(), !present) << "step " << step;
      if (!present) model.push_back(key);
    } else {
      auto removed = Call(*dictionary, "Remove", {Variant::Double(key)});
      ASSERT_EQ(removed.ok(), present) << "step " << step;
      if (!removed) {
        EXPECT_EQ(removed.error().number, 32811);
      }
      std::erase(model, key);
    }
    if (step % 5000 == 0) {
      ASSERT_EQ(KeysOf(*dictionary), model) << "step " << step;
    }
  }
  ASSERT_EQ(KeysOf(*dictionary), model);
  for (int32_t key = 0; key < 2000; ++key) {
    auto item = dictionary->Find(Variant::Integer(static_cast<int16_t>(key)));
    const bool present = std::find(model.begin(), model.end(), key) != model.end();
    ASSERT_EQ(*item != nullptr, present) << key;
    if (present) {
      EXPECT_EQ((*item)->as_long(), key * 2);
    }
  }
}

TEST(DictionaryTest, EnumerationSurvivesRemovingMostKeys) {
  auto dictionary = MakeRef<Dictionary>(EnglishLocale());
  for (int32_t key = 0; key < 1000; ++key) ASSERT_TRUE(dictionary->Add(Variant::Long(key), Variant()));
  auto walker = dictionary->Enumerate();
  ASSERT_TRUE(walker);
  std::vector<int32_t> seen;
  Variant key;
  for (int i = 0; i < 10 && *(*walker)->Next(key); ++i) seen.push_back(key.as_long());
  for (int32_t k = 0; k < 1000; ++k) {
    if (k % 100 != 0) {
      ASSERT_TRUE(Call(*dictionary, "Remove", {Variant::Long(k)}));
    }
  }
  ASSERT_TRUE(dictionary->Add(Variant::Long(5000), Variant()));
  while (*(*walker)->Next(key)) seen.push_back(key.as_long());
  const std::vector<int32_t> expected = {0,   1,   2,   3,   4,   5,   6,   7,   8,   9,
                                         100, 200, 300, 400, 500, 600, 700, 800, 900, 5000};
  EXPECT_EQ(seen, expected);
  EXPECT_EQ(dictionary->size(), 11u);
}

// d(k) with a variable or constant key reaches the item with no evaluation and no call, d((k))
// evaluates the key first, d.Item(k) calls the member. Every way must leave the same keys, items and
// subtypes, in either compare mode.
class DictionaryItemTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(m_engine.SetLanguage("VBScript"));
    ASSERT_TRUE(
        m_engine.AddCode(uR"(
Function Signature(d)
  Dim k, s
  For Each k In d.Keys
    s = s & TypeName(k) & ":" & k & "=" & TypeName(d.Item(k)) & ":" & d.Item(k) & " "
  Next
  Signature = d.Count & " " & s
End Function

Function Counted(mode, way)
  Dim d, keys, k, i
  Set d = CreateObject("Scripting.Dictionary")
  d.CompareMode = mode
  keys = Array(1, CInt(1), 1.0, CLng(1), "1", Empty, "a", "A", 2.5, CDbl(2), True, -1, Null, 2)
  For i = 0 To UBound(keys)
    k = keys(i)
    Select Case way
      Case 0: d(k) = d(k) + 1
      Case 1: d.Item(k) = d.Item(k) + 1
      Case 2: d((k)) = d((k)) + 1
    End Select
  Next
  Counted = Signature(d)
End Function
)"));
  }

  std::string Eval(std::u16string_view expression) {
    auto value = m_engine.Eval(expression);
    if (!value) return "error " + std::to_string(value.error().number);
    auto text = value->to_string(m_engine.interpreter().locale());
    return text ? text::Utf16ToUtf8(text->view()) : "not text";
  }

  ScriptControl m_engine;
};

TEST_F(DictionaryItemTest, InPlaceAndMemberCallAgreeForEveryKindOfKey) {
  const std::string binary = Eval(u"Counted(0, 0)");
  EXPECT_EQ(binary,
            "9 Integer:1=Integer:4 String:1=Integer:1 Empty:=Integer:1 String:a=Integer:1 String:A=Integer:1 "
            "Double:2,5=Integer:1 Double:2=Integer:2 Boolean:Vero=Integer:2 Null:=Integer:1 ");
  EXPECT_EQ(Eval(u"Counted(0, 1)"), binary);
  EXPECT_EQ(Eval(u"Counted(0, 2)"), binary);
  const std::string text = Eval(u"Counted(1, 0)");
  EXPECT_EQ(text,
            "8 Integer:1=Integer:4 String:1=Integer:1 Empty:=Integer:1 String:a=Integer:2 Double:2,5=Integer:1 "
            "Double:2=Integer:2 Boolean:Vero=Integer:2 Null:=Integer:1 ");
  EXPECT_EQ(Eval(u"Counted(1, 1)"), text);
  EXPECT_EQ(Eval(u"Counted(1, 2)"), text);
}

TEST_F(DictionaryItemTest, ReadingAMissingKeyAddsItAndArraysAreNoKeys) {
  ASSERT_TRUE(m_engine.AddCode(u"Set g = CreateObject(\"Scripting.Dictionary\") : x = g(7) : y = g((\"seven\"))"));
  EXPECT_EQ(Eval(u"g.Count & TypeName(g.Item(7)) & g.Exists(\"seven\")"), "2EmptyVero");
  ASSERT_TRUE(m_engine.AddCode(u"a = Array(1) : Set h = CreateObject(\"Scripting.Dictionary\")"));
  ASSERT_TRUE(
      m_engine.AddCode(uR"(
On Error Resume Next
x = h(a) : e1 = Err.Number : Err.Clear
h(a) = 1 : e2 = Err.Number : Err.Clear
x = h((a)) : e3 = Err.Number : Err.Clear
)"));
  EXPECT_EQ(Eval(u"e1 & \" \" & e2 & \" \" & e3 & \" \" & h.Count"), "5 5 5 0");
}

TEST_F(DictionaryItemTest, ClassDefaultPropertiesStillRunTheirCode) {
  ASSERT_TRUE(
      m_engine.AddCode(uR"(
Class Box
  Private m(9)
  Public Default Property Get Cell(i) : Cell = m(i) : End Property
  Public Property Let Cell(i, v) : m(i) = v * 10 : End Property
End Class
Set b = New Box : k = 3
b(k) = b(k) + 1 : b(k) = b(k) + 1
)"));
  EXPECT_EQ(Eval(u"b(k) & \" \" & b(3)"), "110 110");
}

TEST_F(DictionaryItemTest, AnOverwrittenItemDiesAfterTheWrite) {
  ASSERT_TRUE(
      m_engine.AddCode(uR"(
Dim seen, w, k
Class Witness
  Private Sub Class_Terminate() : seen = seen & w(1) : w.RemoveAll : End Sub
End Class
Set w = CreateObject("Scripting.Dictionary") : k = 1
Set w(k) = New Witness
w(k) = 5
Set w(k) = New Witness
w((k)) = 6
)"));
  EXPECT_EQ(Eval(u"seen & \" \" & w.Count"), "56 0");
}

// ---- Text files ----

class TextFileTest : public ::testing::Test {
 protected:
  TextFileTest() {
    (void)m_engine.SetLanguage("VBScript");
    (void)m_engine.AddCode(u"Set fso = CreateObject(\"Scripting.FileSystemObject\")");
  }

  std::u16string Path(const std::string& name) const { return text::Utf8ToUtf16((m_folder / name).string()); }

  // What ReadAll gives for a file of these bytes, opened with the Format given.
  std::u16string ReadBack(const std::vector<unsigned char>& bytes, int format = 0) {
    ScriviByte(m_folder / "in.txt", bytes);
    auto text = m_engine.Eval(u"fso.OpenTextFile(\"" + Path("in.txt") + u"\", 1, False, " +
                              text::Utf8ToUtf16(std::to_string(format)) + u").ReadAll");
    return text ? std::u16string(text->as_string_view())
                : u"error " + text::Utf8ToUtf16(std::to_string(text.error().number));
  }

  std::vector<unsigned char> Written(const std::u16string& statements) {
    EXPECT_TRUE(m_engine.AddCode(statements)) << text::Utf16ToUtf8(m_engine.Error().description);
    return LeggiByte(m_folder / "out.txt");
  }

  CartellaTemporanea m_folder;
  ScriptControl m_engine;
};

TEST_F(TextFileTest, ReadingFollowsTheByteOrderMarkOrTheBytes) {
  EXPECT_EQ(ReadBack({'p', 0xC3, 0xA8, '\r', '\n'}), u"pè\r\n");
  EXPECT_EQ(ReadBack({0xEF, 0xBB, 0xBF, 0xE2, 0x82, 0xAC}), u"€");
  EXPECT_EQ(ReadBack({'p', 0xE8, ' ', 0x80}), u"pè €");
  EXPECT_EQ(ReadBack({0xFF, 0xFE, 'a', 0, 0xAC, 0x20}), u"a€");
  EXPECT_EQ(ReadBack({0xFE, 0xFF, 0, 'a', 0x20, 0xAC}), u"a€");
  EXPECT_EQ(ReadBack({'a', 0, 'b', 0}, -1), u"ab");
  EXPECT_EQ(ReadBack({0xFF, 0xFE, 'a', 0}, -1), u"a");
  EXPECT_EQ(ReadBack({}), u"error 62");
}

TEST_F(TextFileTest, WritingIsAnsiWithCrLfOrUtf16WithAMark) {
  const std::u16string out = Path("out.txt");
  EXPECT_EQ(Written(u"Set t = fso.CreateTextFile(\"" + out + u"\")\nt.WriteLine \"è€\" & ChrW(&H4E2D)\nt.Close"),
            (std::vector<unsigned char>{0xE8, 0x80, '?', '\r', '\n'}));
  EXPECT_EQ(Written(u"Set t = fso.CreateTextFile(\"" + out + u"\", True, True)\nt.Write \"a€\"\nt.Close"),
            (std::vector<unsigned char>{0xFF, 0xFE, 'a', 0, 0xAC, 0x20}));
  // Appending keeps the encoding an editor gave the file.
  ScriviByte(m_folder / "out.txt", {0xC3, 0xA8});
  EXPECT_EQ(Written(u"Set t = fso.OpenTextFile(\"" + out + u"\", 8)\nt.Write \"€\"\nt.Close"),
            (std::vector<unsigned char>{0xC3, 0xA8, 0xE2, 0x82, 0xAC}));
  ScriviByte(m_folder / "out.txt", {'a'});
  EXPECT_EQ(Written(u"Set t = fso.OpenTextFile(\"" + out + u"\", 8, False, -1)\nt.Write \"è\"\nt.Close"),
            (std::vector<unsigned char>{'a', 0xE8}));
}

TEST_F(TextFileTest, PendingTextReachesTheDiskWhenTheStreamIsDropped) {
  const std::u16string out = Path("out.txt");
  EXPECT_EQ(Written(u"Set t = fso.CreateTextFile(\"" + out + u"\")\nt.Write \"abc\"\nSet t = Nothing"),
            (std::vector<unsigned char>{'a', 'b', 'c'}));
}

// ---- Paths ----

TEST(NativePathTest, WindowsPathsFindTheSameFiles) {
  CartellaTemporanea folder;
  std::filesystem::create_directories(folder / "Script" / "Funzioni");
  ScriviByte(folder / "Script" / "Funzioni" / "Lib.ls", {});
  const std::u16string base = ScriptPath(folder.Percorso());
  EXPECT_EQ(NativePath(base + u"\\script\\FUNZIONI\\lib.LS"), folder / "Script/Funzioni/Lib.ls");
  EXPECT_EQ(NativePath(base + u"\\SCRIPT\\nuovo.txt"), folder / "Script/nuovo.txt");
  EXPECT_EQ(NativePath(base + u"\\Manca\\x.txt"), folder / "Manca/x.txt");
  EXPECT_EQ(NativePath(u"C:\\Dati\\x.txt"), std::filesystem::path("/Dati/x.txt"));
  EXPECT_EQ(NativePath(u"C:"), std::filesystem::path("/"));
  EXPECT_EQ(NativePath(u"Dati\\x.txt").is_relative(), true);
}

}  // namespace
}  // namespace vbs
