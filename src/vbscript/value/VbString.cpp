#include "vbscript/value/VbString.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

namespace vbs {

struct VbString::Rep {
  uint32_t refs;
  uint32_t length;
  uint32_t capacity;
  char16_t* chars() { return reinterpret_cast<char16_t*>(this + 1); }
};

namespace {

using Rep = VbString::Rep;

// A block with room for `capacity` code units, or null when memory is short.
Rep* AllocateRep(size_t capacity) {
  void* memory = std::malloc(sizeof(Rep) + capacity * sizeof(char16_t));
  if (!memory) return nullptr;
  auto* rep = static_cast<Rep*>(memory);
  rep->refs = 1;
  rep->length = 0;
  rep->capacity = static_cast<uint32_t>(capacity);
  return rep;
}

Rep* CopyRep(std::u16string_view a, std::u16string_view b, size_t capacity) {
  Rep* rep = AllocateRep(capacity);
  if (!rep) return nullptr;
  if (!a.empty()) std::memcpy(rep->chars(), a.data(), a.size() * sizeof(char16_t));
  if (!b.empty()) std::memcpy(rep->chars() + a.size(), b.data(), b.size() * sizeof(char16_t));
  rep->length = static_cast<uint32_t>(a.size() + b.size());
  return rep;
}

size_t GrownCapacity(size_t needed) {
  const size_t doubled = needed * 2;
  return doubled < 16 ? 16 : (doubled > VbString::kMaxLength ? VbString::kMaxLength : doubled);
}

}  // namespace

VbString::VbString(std::u16string_view text) {
  if (text.empty()) return;
  if (text.size() > kMaxLength) throw std::bad_alloc();
  m_rep = CopyRep(text, {}, text.size());
  if (!m_rep) throw std::bad_alloc();
}

VbString::VbString(const VbString& other) noexcept : m_rep(other.m_rep) { AddRef(m_rep); }
VbString::VbString(VbString&& other) noexcept : m_rep(std::exchange(other.m_rep, nullptr)) {}

VbString& VbString::operator=(const VbString& other) noexcept {
  AddRef(other.m_rep);
  Release(m_rep);
  m_rep = other.m_rep;
  return *this;
}

VbString& VbString::operator=(VbString&& other) noexcept {
  if (this != &other) {
    Release(m_rep);
    m_rep = std::exchange(other.m_rep, nullptr);
  }
  return *this;
}

VbString::~VbString() { Release(m_rep); }

Result<VbString> VbString::TryCreate(size_t length, char16_t fill) {
  if (length == 0) return VbString();
  if (length > kMaxLength) return MakeError(err::kOutOfMemory);
  Rep* rep = AllocateRep(length);
  if (!rep) return MakeError(err::kOutOfMemory);
  for (size_t i = 0; i < length; ++i) rep->chars()[i] = fill;
  rep->length = static_cast<uint32_t>(length);
  return VbString(rep);
}

Result<VbString> VbString::Concat(std::u16string_view a, std::u16string_view b) {
  if (a.size() + b.size() == 0) return VbString();
  if (a.size() + b.size() > kMaxLength) return MakeError(err::kOutOfMemory);
  Rep* rep = CopyRep(a, b, a.size() + b.size());
  if (!rep) return MakeError(err::kOutOfMemory);
  return VbString(rep);
}

const char16_t* VbString::data() const { return m_rep ? m_rep->chars() : u""; }
size_t VbString::size() const { return m_rep ? m_rep->length : 0; }
size_t VbString::capacity() const { return m_rep ? m_rep->capacity : 0; }
bool VbString::IsUnique() const { return !m_rep || m_rep->refs == 1; }

Status VbString::Append(std::u16string_view text) {
  if (text.empty()) return Ok();
  const size_t length = size() + text.size();
  if (length > kMaxLength) return MakeError(err::kOutOfMemory);
  if (m_rep && m_rep->refs == 1 && length <= m_rep->capacity) {
    std::memcpy(m_rep->chars() + m_rep->length, text.data(), text.size() * sizeof(char16_t));
    m_rep->length = static_cast<uint32_t>(length);
    return Ok();
  }
  // A new block, filled before the old one is released: `text` may live in the old one.
  Rep* rep = CopyRep(view(), text, GrownCapacity(length));
  if (!rep) return MakeError(err::kOutOfMemory);
  Release(m_rep);
  m_rep = rep;
  return Ok();
}

Status VbString::Reserve(size_t capacity) {
  if (capacity > kMaxLength) return MakeError(err::kOutOfMemory);
  if (capacity <= this->capacity() && IsUnique()) return Ok();
  Rep* rep = CopyRep(view(), {}, capacity < size() ? size() : capacity);
  if (!rep) return MakeError(err::kOutOfMemory);
  Release(m_rep);
  m_rep = rep;
  return Ok();
}

char16_t* VbString::MutableData() {
  if (!m_rep) return nullptr;
  if (m_rep->refs != 1) {
    Rep* rep = CopyRep(view(), {}, size());
    if (!rep) throw std::bad_alloc();
    Release(m_rep);
    m_rep = rep;
  }
  return m_rep->chars();
}

VbString::Rep* VbString::Detach() { return std::exchange(m_rep, nullptr); }
VbString VbString::Adopt(Rep* rep) { return VbString(rep); }

void VbString::AddRef(Rep* rep) {
  if (rep) ++rep->refs;
}

void VbString::Release(Rep* rep) {
  if (rep && --rep->refs == 0) std::free(rep);
}

std::u16string_view VbString::View(const Rep* rep) {
  if (!rep) return {};
  return {reinterpret_cast<const char16_t*>(rep + 1), rep->length};
}

}  // namespace vbs
