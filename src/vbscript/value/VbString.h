#pragma once

// The script's string: UTF-16 code units as on Windows (Len, Mid and AscW count code units), held
// in a reference-counted block so that copying a string Variant costs an increment. The block has a
// capacity: when the interpreter runs `s = s & x` and the string is owned by `s` alone, the text is
// appended in place and the block grows geometrically, so a loop that builds a string is linear,
// not quadratic. The empty string has no block at all.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "vbscript/value/Result.h"

namespace vbs {

class VbString {
 public:
  // Longest string the engine builds, in code units; longer concatenations fail with error 7.
  static constexpr size_t kMaxLength = 0x3FFFFFF0;

  VbString() = default;
  // Copies the text. Allocation failure throws std::bad_alloc, as for std::u16string; use
  // TryCreate where the length comes from a script.
  VbString(std::u16string_view text);
  VbString(const VbString& other) noexcept;
  VbString(VbString&& other) noexcept;
  VbString& operator=(const VbString& other) noexcept;
  VbString& operator=(VbString&& other) noexcept;
  ~VbString();

  // A string of `length` code units, filled with `fill`; error 7 when too long or out of memory.
  static Result<VbString> TryCreate(size_t length, char16_t fill);
  // a followed by b; error 7 when too long or out of memory.
  static Result<VbString> Concat(std::u16string_view a, std::u16string_view b);

  std::u16string_view view() const { return {data(), size()}; }
  const char16_t* data() const;
  size_t size() const;
  bool empty() const { return size() == 0; }
  size_t capacity() const;
  bool IsUnique() const;

  // Appends, in place when this string owns its block alone and it has room, otherwise into a new
  // block of twice the needed size. `text` may point into this string. Error 7 when too long.
  [[nodiscard]] Status Append(std::u16string_view text);
  // Makes room for `capacity` code units, so that appends up to that length keep the block.
  [[nodiscard]] Status Reserve(size_t capacity);
  // A writable pointer to the code units, after making the block unique.
  char16_t* MutableData();

  std::u16string ToU16String() const { return std::u16string(view()); }
  friend bool operator==(const VbString& a, const VbString& b) { return a.view() == b.view(); }
  friend bool operator==(const VbString& a, std::u16string_view b) { return a.view() == b; }

  // For Variant, which stores the block pointer in its own union.
  struct Rep;
  Rep* Detach();
  static VbString Adopt(Rep* rep);
  static void AddRef(Rep* rep);
  static void Release(Rep* rep);
  static std::u16string_view View(const Rep* rep);

 private:
  explicit VbString(Rep* rep) : m_rep(rep) {}
  Rep* m_rep = nullptr;
};

}  // namespace vbs
