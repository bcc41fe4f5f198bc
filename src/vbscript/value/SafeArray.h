#pragma once

// Script arrays: any number of dimensions, each with its own lower bound (the host's arrays are
// often 1-based), elements stored column-major as in a SAFEARRAY, so the first index varies
// fastest and For Each walks memory order. An array is a value: a Variant holding one shares it by
// reference count, and the operations below that change an array first make it unique (copy on
// write). Sizes come from scripts, so allocation never throws: too many elements is error 7.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "vbscript/value/RefCounted.h"
#include "vbscript/value/Result.h"
#include "vbscript/value/Variant.h"

namespace vbs {

// One dimension's bounds; upper == lower - 1 is an empty dimension (ReDim a(-1)).
struct ArrayBound {
  int32_t lower = 0;
  int32_t upper = -1;
  int64_t count() const { return int64_t{upper} - lower + 1; }
  friend bool operator==(const ArrayBound&, const ArrayBound&) = default;
};

class SafeArray : public RefCounted {
 public:
  // More elements than a 32-bit Windows process could hold are refused with error 7.
  static constexpr size_t kMaxElements = size_t{1} << 27;

  // Error 9 for an upper bound below lower - 1, error 7 for too many elements.
  static Result<Ref<SafeArray>> Create(std::span<const ArrayBound> bounds);
  // An array without dimensions: `Dim a()` and a dynamic array after Erase.
  static Ref<SafeArray> CreateUndimensioned();
  // A one-dimensional, 0-based array of the values: what Array(...) returns.
  static Result<Ref<SafeArray>> FromValues(std::span<const Variant> values);

  uint32_t DimensionCount() const { return static_cast<uint32_t>(m_bounds.size()); }
  const std::vector<ArrayBound>& bounds() const { return m_bounds; }
  // LBound(a, dimension) / UBound(a, dimension), dimension 1-based; error 9 outside.
  Result<int32_t> LBound(int32_t dimension) const;
  Result<int32_t> UBound(int32_t dimension) const;

  size_t size() const { return m_size; }
  std::span<Variant> elements() { return {m_data, m_size}; }
  std::span<const Variant> elements() const { return {m_data, m_size}; }
  // The storage position of the element at `indices`; error 9 for a wrong number of indices or
  // one out of bounds.
  Result<size_t> Offset(std::span<const int32_t> indices) const;

  // A copy with its own elements; error 7 when memory is short.
  Result<Ref<SafeArray>> Clone() const;

  // A locked array (being enumerated by For Each) cannot be resized or erased: error 10.
  bool IsLocked() const { return m_locks != 0; }
  void Lock() { ++m_locks; }
  void Unlock() {
    assert(m_locks > 0);
    --m_locks;
  }

 protected:
  ~SafeArray() override;

 private:
  SafeArray() = default;
  // Allocates room for the bounds' elements, all Empty.
  static Result<Ref<SafeArray>> Allocate(std::span<const ArrayBound> bounds);

  std::vector<ArrayBound> m_bounds;
  Variant* m_data = nullptr;
  size_t m_size = 0;
  uint32_t m_locks = 0;
};

enum class RedimMode { Discard, Preserve };

// ReDim on a variable (seen through a reference): error 10 when the array is fixed or locked;
// with Preserve, error 9 unless only the last dimension's upper bound changes. A variable that
// holds no array gets a new one.
[[nodiscard]] Status Redim(Variant& variable, std::span<const ArrayBound> bounds, RedimMode mode);
// Erase: a fixed array's elements become Empty; a dynamic array loses its dimensions. Error 13
// when the variable holds no array, 10 when the array is locked.
[[nodiscard]] Status Erase(Variant& variable);
// The variable's array, made unique first, for writing an element; error 13 when it holds none.
[[nodiscard]] Result<SafeArray*> MutableArray(Variant& variable);
// a(i, j) read: a copy of the element; error 9 out of bounds, 13 when `array` is not an array.
Result<Variant> ReadElement(const Variant& array, std::span<const int32_t> indices);
// a(i, j) = value on a variable.
[[nodiscard]] Status WriteElement(Variant& variable, std::span<const int32_t> indices, Variant value);

}  // namespace vbs
