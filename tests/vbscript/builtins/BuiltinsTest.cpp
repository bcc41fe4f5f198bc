// What the script tests cannot reach: the random generator's state bit for bit, two engines side by
// side, the exact text of a built-in's error, and MsgBox and InputBox talking to a host's user
// interface.

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "text/Utf.h"
#include "vbscript/ScriptControl.h"
#include "vbscript/runtime/RandomGenerator.h"

namespace vbs {
namespace {

TEST(RandomGeneratorTest, StepsThroughWindowsSequenceFromTheInitialSeed) {
  RandomGenerator generator;
  EXPECT_FLOAT_EQ(generator.Rnd(0), 327680.0f / 16777216.0f);
  const float expected[] = {0.7055475f, 0.533424f, 0.5795186f, 0.2895625f, 0.301948f};
  for (float value : expected) EXPECT_NEAR(generator.Rnd(1), value, 5e-7f);
  const uint32_t seed = generator.seed();
  EXPECT_EQ(generator.Rnd(0), static_cast<float>(seed) / 16777216.0f);
  EXPECT_EQ(generator.seed(), seed);
  EXPECT_NE(generator.Rnd(0.5f), static_cast<float>(seed) / 16777216.0f);
}

TEST(RandomGeneratorTest, NegativeArgumentSeedsFromItsSingleBits) {
  RandomGenerator a(0x123456);
  RandomGenerator b;
  EXPECT_EQ(a.Rnd(-1), b.Rnd(-1));
  EXPECT_NEAR(a.Rnd(-1), 0.224007f, 5e-7f);
  // -1.0f is 0xBF800000: the seed becomes (0xBF800000 + 0xBF) mod 2^24, then one step.
  RandomGenerator c(0x8000BF);
  EXPECT_EQ(c.Rnd(1), RandomGenerator().Rnd(-1));
  EXPECT_NE(RandomGenerator().Rnd(-2), RandomGenerator().Rnd(-1));
}

TEST(RandomGeneratorTest, RandomizeMixesTheHighWordIntoTheSeedKeepingItsLowByte) {
  // 123.0 is 0x405EC000'00000000: (0xC000 << 8) xor 0x405E00 = 0x805E00.
  RandomGenerator generator(0xABCDEF);
  generator.Randomize(123.0);
  EXPECT_EQ(generator.seed(), 0x805EEFu);
  generator.Randomize(123.0);
  EXPECT_EQ(generator.seed(), 0x805EEFu);
  generator.Randomize(0.0);
  EXPECT_EQ(generator.seed(), 0x0000EFu);
  // 1.0f is 0x3F800000: (0x0000 << 8) xor 0x3F8000.
  generator.RandomizeFromTimer(1.0f);
  EXPECT_EQ(generator.seed(), 0x3F80EFu);
}

// Runs one expression in an engine; the text of its value, or "error N".
std::string Evaluate(ScriptControl& engine, std::u16string_view expression) {
  auto value = engine.Eval(expression);
  if (!value) return "error " + std::to_string(engine.Error().number);
  if (value->is_empty()) return "Empty";
  auto text = value->to_string(engine.interpreter().locale());
  return text ? text::Utf16ToUtf8(text->view()) : "error " + std::to_string(text.error().number);
}

ScriptControl& English(ScriptControl& engine) {
  EXPECT_TRUE(engine.SetLanguage("VBScript").ok());
  EXPECT_TRUE(engine.SetLocale(1033).ok());
  return engine;
}

TEST(RandomGeneratorTest, EachEngineHasItsOwnSequenceAndResetStartsItAgain) {
  ScriptControl first;
  ScriptControl second;
  English(first);
  English(second);
  EXPECT_EQ(Evaluate(first, u"Rnd"), "0.7055475");
  EXPECT_EQ(Evaluate(first, u"Rnd"), "0.533424");
  EXPECT_EQ(Evaluate(second, u"Rnd"), "0.7055475");
  first.Reset();
  EXPECT_EQ(Evaluate(first, u"Rnd"), "0.7055475");
}

// A built-in's bad argument gives the table's text alone, as Windows does, not the position a host
// object's member adds.
// A built-in's bad argument gives the table's text and the built-in's name, as Windows' message
// does, with no argument position.
TEST(BuiltinErrorTest, BadArgumentGivesTheTableTextAndTheBuiltinsName) {
  ScriptControl engine;
  English(engine);
  const std::pair<std::u16string_view, std::u16string_view> cases[] = {
      {u"CLng(\"abc\")", u"Type mismatch: 'CLng'"},
      {u"Mid(\"abc\", \"x\")", u"Type mismatch: 'Mid'"},
      {u"InStr(1, \"abc\", \"b\", 2)", u"Invalid procedure call or argument: 'InStr'"},
      {u"Replace(\"abc\", \"b\", \"c\", 1, -1, \"x\")", u"Type mismatch: 'Replace'"},
      {u"WeekdayName(1, \"x\")", u"Type mismatch: 'WeekdayName'"},
      {u"Round(1.5, \"x\")", u"Type mismatch: 'Round'"},
      {u"FormatNumber(1, 2, \"x\")", u"Type mismatch: 'FormatNumber'"},
  };
  for (const auto& [expression, description] : cases) {
    EXPECT_FALSE(engine.Eval(expression).ok()) << text::Utf16ToUtf8(expression);
    EXPECT_EQ(engine.Error().description, description) << text::Utf16ToUtf8(expression);
  }
}

// A user interface that records what it was asked and answers as told.
class ScriptedUi final : public UiHandler {
 public:
  int MessageBox(std::u16string_view prompt, int buttons, std::u16string_view title) override {
    asked.push_back(text::Utf16ToUtf8(prompt) + "|" + std::to_string(buttons) + "|" + text::Utf16ToUtf8(title));
    return button;
  }
  std::optional<std::u16string> InputBox(std::u16string_view prompt, std::u16string_view title,
                                         std::u16string_view default_text) override {
    asked.push_back(text::Utf16ToUtf8(prompt) + "|" + text::Utf16ToUtf8(title) + "|" + text::Utf16ToUtf8(default_text));
    return answer;
  }

  std::vector<std::string> asked;
  int button = 1;
  std::optional<std::u16string> answer;
};

TEST(UserInterfaceTest, MsgBoxShowsPromptButtonsAndTitleAndReturnsTheButton) {
  ScriptControl engine;
  ScriptedUi ui;
  engine.SetUiHandler(&ui);
  English(engine);
  ui.button = 6;
  EXPECT_EQ(Evaluate(engine, u"MsgBox(\"Continue?\", vbYesNo + vbQuestion, \"Draws\") = vbYes"), "True");
  EXPECT_EQ(Evaluate(engine, u"TypeName(MsgBox(12.5))"), "Integer");
  EXPECT_EQ(ui.asked, (std::vector<std::string>{"Continue?|36|Draws", "12.5|0|"}));
}

TEST(UserInterfaceTest, InputBoxReturnsTheTextOrEmptyWhenCancelled) {
  ScriptControl engine;
  ScriptedUi ui;
  engine.SetUiHandler(&ui);
  English(engine);
  ui.answer = u"Bari";
  EXPECT_EQ(Evaluate(engine, u"InputBox(\"Wheel?\", \"Choose\", \"Roma\")"), "Bari");
  ui.answer = u"";
  EXPECT_EQ(Evaluate(engine, u"IsEmpty(InputBox(\"Wheel?\"))"), "False");
  ui.answer = std::nullopt;
  EXPECT_EQ(Evaluate(engine, u"IsEmpty(InputBox(\"Wheel?\"))"), "True");
  EXPECT_EQ(ui.asked.front(), "Wheel?|Choose|Roma");
}

TEST(UserInterfaceTest, ForbiddenInterfaceIsPermissionDeniedEvenWithAHandler) {
  ScriptControl engine;
  ScriptedUi ui;
  engine.SetUiHandler(&ui);
  English(engine);
  engine.SetAllowUI(false);
  EXPECT_EQ(Evaluate(engine, u"MsgBox(\"x\")"), "error 70");
  EXPECT_EQ(Evaluate(engine, u"InputBox(\"x\")"), "error 70");
  EXPECT_TRUE(ui.asked.empty());
}

}  // namespace
}  // namespace vbs
