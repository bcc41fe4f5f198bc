#include "vbscript/value/SafeArray.h"

#include <algorithm>
#include <atomic>
#include <new>

namespace vbs {

namespace {

// The elements of all arrays alive in the process. Each array is bounded by kMaxElements, but a
// recursion whose every frame declares a large array, or a loop keeping many, would otherwise
// exhaust the machine's memory before the stack or the script ran out: past this total (what a
// 32-bit process could hold), a new array is error 7, as a single too large one is.
constexpr size_t kMaxLiveElements = SafeArray::kMaxElements;
std::atomic<size_t> g_live_elements{0};

bool ReserveElements(size_t count) {
  if (g_live_elements.fetch_add(count, std::memory_order_relaxed) + count <= kMaxLiveElements) return true;
  g_live_elements.fetch_sub(count, std::memory_order_relaxed);
  return false;
}

}  // namespace

SafeArray::~SafeArray() {
  delete[] m_data;
  g_live_elements.fetch_sub(m_size, std::memory_order_relaxed);
}

Result<Ref<SafeArray>> SafeArray::Allocate(std::span<const ArrayBound> bounds) {
  size_t total = 1;
  for (const ArrayBound& bound : bounds) {
    if (bound.count() < 0) return MakeError(err::kSubscript);
    const auto count = static_cast<size_t>(bound.count());
    if (count != 0 && total > kMaxElements / count) return MakeError(err::kOutOfMemory);
    total *= count;
  }
  if (total > kMaxElements) return MakeError(err::kOutOfMemory);
  Ref<SafeArray> array(new SafeArray());
  array->m_bounds.assign(bounds.begin(), bounds.end());
  if (total != 0) {
    if (!ReserveElements(total)) return MakeError(err::kOutOfMemory);
    array->m_data = new (std::nothrow) Variant[total];
    if (!array->m_data) {
      g_live_elements.fetch_sub(total, std::memory_order_relaxed);
      return MakeError(err::kOutOfMemory);
    }
  }
  array->m_size = total;
  return array;
}

Result<Ref<SafeArray>> SafeArray::Create(std::span<const ArrayBound> bounds) {
  assert(!bounds.empty());
  return Allocate(bounds);
}

Ref<SafeArray> SafeArray::CreateUndimensioned() { return Ref<SafeArray>(new SafeArray()); }

Result<Ref<SafeArray>> SafeArray::FromValues(std::span<const Variant> values) {
  const ArrayBound bound{0, static_cast<int32_t>(values.size()) - 1};
  auto array = Allocate({&bound, 1});
  if (!array) return array;
  for (size_t i = 0; i < values.size(); ++i) (*array)->m_data[i] = values[i].Deref();
  return array;
}

Result<int32_t> SafeArray::LBound(int32_t dimension) const {
  if (dimension < 1 || dimension > static_cast<int32_t>(m_bounds.size())) return MakeError(err::kSubscript);
  return m_bounds[dimension - 1].lower;
}

Result<int32_t> SafeArray::UBound(int32_t dimension) const {
  if (dimension < 1 || dimension > static_cast<int32_t>(m_bounds.size())) return MakeError(err::kSubscript);
  return m_bounds[dimension - 1].upper;
}

Result<size_t> SafeArray::Offset(std::span<const int32_t> indices) const {
  if (indices.size() != m_bounds.size() || m_bounds.empty()) return MakeError(err::kSubscript);
  size_t offset = 0;
  size_t stride = 1;
  for (size_t d = 0; d < indices.size(); ++d) {
    const ArrayBound& bound = m_bounds[d];
    if (indices[d] < bound.lower || indices[d] > bound.upper) return MakeError(err::kSubscript);
    offset += static_cast<size_t>(int64_t{indices[d]} - bound.lower) * stride;
    stride *= static_cast<size_t>(bound.count());
  }
  return offset;
}

Result<Ref<SafeArray>> SafeArray::Clone() const {
  if (m_bounds.empty()) return CreateUndimensioned();
  auto copy = Allocate(m_bounds);
  if (!copy) return copy;
  std::copy(m_data, m_data + m_size, (*copy)->m_data);
  return copy;
}

Result<SafeArray*> MutableArray(Variant& variable) {
  Variant& target = variable.Deref();
  if (!target.is_array()) return MakeError(err::kTypeMismatch);
  SafeArray* array = target.as_array();
  if (array->RefCount() == 1) return array;
  VBS_TRY_ASSIGN(auto&& copy, array->Clone());
  SafeArray* result = copy.get();
  target.ReplaceArray(std::move(copy));
  return result;
}

Status Redim(Variant& variable, std::span<const ArrayBound> bounds, RedimMode mode) {
  assert(!bounds.empty());
  Variant& target = variable.Deref();
  const bool had_array = target.is_array();
  if (had_array && (target.IsFixedArray() || target.as_array()->IsLocked())) return MakeError(err::kFixedArray);
  VBS_TRY_ASSIGN(auto&& created, SafeArray::Create(bounds));
  if (mode == RedimMode::Preserve && had_array && target.as_array()->DimensionCount() != 0) {
    const SafeArray& old = *target.as_array();
    const auto& old_bounds = old.bounds();
    if (old_bounds.size() != bounds.size()) return MakeError(err::kSubscript);
    for (size_t d = 0; d < bounds.size(); ++d) {
      const bool last = d + 1 == bounds.size();
      if (bounds[d].lower != old_bounds[d].lower) return MakeError(err::kSubscript);
      if (!last && bounds[d].upper != old_bounds[d].upper) return MakeError(err::kSubscript);
    }
    // Column-major: keeping every dimension but the last keeps the elements as a prefix.
    const size_t kept = std::min(old.size(), (created)->size());
    auto source = old.elements();
    auto destination = (created)->elements();
    if (old.RefCount() == 1) {
      std::move(source.begin(), source.begin() + kept, destination.begin());
    } else {
      std::copy(source.begin(), source.begin() + kept, destination.begin());
    }
  }
  if (had_array) {
    target.ReplaceArray(std::move(created));
  } else {
    target = Variant::Array(std::move(created));
  }
  return Ok();
}

Status Erase(Variant& variable) {
  Variant& target = variable.Deref();
  if (!target.is_array()) return MakeError(err::kTypeMismatch);
  if (target.as_array()->IsLocked()) return MakeError(err::kFixedArray);
  if (!target.IsFixedArray()) {
    target.ReplaceArray(SafeArray::CreateUndimensioned());
    return Ok();
  }
  VBS_TRY_ASSIGN(auto&& array, MutableArray(target));
  for (Variant& element : (array)->elements()) element = Variant();
  return Ok();
}

Result<Variant> ReadElement(const Variant& array, std::span<const int32_t> indices) {
  const Variant& target = array.Deref();
  if (!target.is_array()) return MakeError(err::kTypeMismatch);
  VBS_TRY_ASSIGN(auto&& offset, target.as_array()->Offset(indices));
  return target.as_array()->elements()[offset];
}

Status WriteElement(Variant& variable, std::span<const int32_t> indices, Variant value) {
  Variant& target = variable.Deref();
  if (!target.is_array()) return MakeError(err::kTypeMismatch);
  // Bounds first, so that a bad index does not copy a shared array for nothing.
  VBS_TRY_ASSIGN(auto&& offset, target.as_array()->Offset(indices));
  VBS_TRY_ASSIGN(auto&& array, MutableArray(target));
  (array)->elements()[offset] = std::move(value);
  return Ok();
}

}  // namespace vbs
