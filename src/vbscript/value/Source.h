#pragma once

// Where a piece of script came from. Every token, node and error carries a position with the id of
// its source text, because one engine runs code from several places (the user's script, each
// included file, strings handed to Execute) and an error must name the right one.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vbs {

struct SourcePos {
  uint32_t source = 0;  // index into the engine's SourceTable
  uint32_t line = 0;    // 1-based
  uint32_t column = 0;  // 1-based, counted in characters of the line
};

struct SourceText {
  std::string name;  // shown in messages: a file name, or a description such as "Execute"
  std::u16string text;
};

class SourceTable {
 public:
  uint32_t Add(std::string name, std::u16string text) {
    m_sources.push_back(SourceText{std::move(name), std::move(text)});
    return static_cast<uint32_t>(m_sources.size() - 1);
  }
  // For code made at run time (Eval, Execute): all texts of one name share one entry, whose text
  // each call replaces. The text is read only while it is parsed, and afterwards positions need
  // only the name, so a loop of a million Eval calls keeps one entry, not a million texts.
  uint32_t Reuse(std::string_view name, std::u16string text) {
    for (uint32_t id : m_reused) {
      if (m_sources[id].name == name) {
        m_sources[id].text = std::move(text);
        return id;
      }
    }
    uint32_t id = Add(std::string(name), std::move(text));
    m_reused.push_back(id);
    return id;
  }
  const SourceText& operator[](uint32_t id) const { return m_sources[id]; }
  size_t size() const { return m_sources.size(); }

 private:
  std::vector<SourceText> m_sources;
  std::vector<uint32_t> m_reused;
};

}  // namespace vbs
