// Runs every .vbs file of a folder and checks what it prints against the expectations written in
// the file itself, on the line that produces them:
//
//   WScript.Echo 1 + 1          ' expect: 2
//   x = CInt("abc")             ' expect runtime error 13
//
// A file runs in the Italian locale unless its first line says "' locale: en-US". Each file's
// output must be exactly its expected lines, in order; an expected error must stop the script on
// that line. Prints one line per failure and, last, "N passed, N failed".

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "text/Utf.h"
#include "vbscript/HostObject.h"
#include "vbscript/ScriptControl.h"

namespace fs = std::filesystem;

namespace {

class Output final : public vbs::HostObject<Output> {
 public:
  explicit Output(const vbs::Locale& locale) : HostObject(locale) {}
  static std::span<const Member> Members() {
    static const Member kMembers[] = {{"Echo", 0, 255, &Output::Echo, nullptr, "prints the values"}};
    return kMembers;
  }
  std::u16string ClassName() const override { return u"WScript"; }
  std::vector<std::string> lines;

 private:
  vbs::Result<vbs::Variant> Echo(vbs::CallArgs& args) {
    std::string line;
    for (size_t i = 0; i < args.size(); ++i) {
      if (i) line += ' ';
      if (args[i].is_null()) {
        line += "Null";
        continue;
      }
      auto text = args[i].to_string(args.locale());
      if (!text) return std::move(text).error();
      line += text::Utf16ToUtf8(text->view());
    }
    lines.push_back(line);
    return vbs::Variant();
  }
};

struct Expectations {
  std::vector<std::string> output;
  int error_number = 0;
  uint32_t error_line = 0;
  int32_t lcid = 1040;
};

Expectations Read(const std::string& text) {
  static const std::regex kOutput(R"('\s*expect:\s?(.*)$)");
  static const std::regex kError(R"('\s*expect runtime error (-?\d+))");
  Expectations expected;
  std::istringstream lines(text);
  std::string line;
  uint32_t number = 0;
  while (std::getline(lines, line)) {
    ++number;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (number == 1 && line.find("' locale: en-US") != std::string::npos) expected.lcid = 1033;
    std::smatch match;
    if (std::regex_search(line, match, kError)) {
      expected.error_number = std::stoi(match[1]);
      expected.error_line = number;
    } else if (std::regex_search(line, match, kOutput)) {
      expected.output.push_back(match[1]);
    }
  }
  return expected;
}

// The failures of one file, one message each; empty when it behaves as written.
std::vector<std::string> Check(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::stringstream content;
  content << in.rdbuf();
  Expectations expected = Read(content.str());

  vbs::ScriptControl engine;
  (void)engine.SetLanguage("VBScript");
  (void)engine.SetLocale(expected.lcid);
  auto output = vbs::MakeRef<Output>(engine.interpreter().locale());
  (void)engine.AddObject("WScript", output, false);
  auto result = engine.AddCode(text::DecodeScriptFile(content.str()), file.filename().string());

  std::vector<std::string> failures;
  const auto& got = output->lines;
  for (size_t i = 0; i < std::max(got.size(), expected.output.size()); ++i) {
    std::string want = i < expected.output.size() ? expected.output[i] : "(nothing)";
    std::string have = i < got.size() ? got[i] : "(nothing)";
    if (want != have)
      failures.push_back("output " + std::to_string(i + 1) + ": expected \"" + want + "\", got \"" + have + "\"");
  }
  const vbs::ScriptErrorInfo& error = engine.Error();
  if (expected.error_number == 0 && !result) {
    failures.push_back("unexpected error " + std::to_string(error.number) + " at line " + std::to_string(error.line) +
                       ": " + text::Utf16ToUtf8(error.description));
  } else if (expected.error_number != 0 &&
             (result || error.number != expected.error_number || error.line != expected.error_line)) {
    failures.push_back(
        "expected runtime error " + std::to_string(expected.error_number) + " at line " +
        std::to_string(expected.error_line) + ", got " +
        (result ? std::string("none") : std::to_string(error.number) + " at line " + std::to_string(error.line)));
  }
  return failures;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: vbscript_script_tests FOLDER\n";
    return 2;
  }
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(argv[1]))
    if (entry.path().extension() == ".vbs") files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  int passed = 0, failed = 0;
  for (const fs::path& file : files) {
    auto failures = Check(file);
    if (failures.empty()) {
      ++passed;
      continue;
    }
    ++failed;
    for (const std::string& failure : failures) std::cout << file.filename().string() << ": " << failure << '\n';
  }
  std::cout << passed << " passed, " << failed << " failed\n";
  return failed == 0 && passed > 0 ? 0 : 1;
}
