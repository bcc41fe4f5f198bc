#include "vbscript/value/RefCounted.h"

namespace vbs {

namespace {

// Enough nesting for the usual shapes (an object holding arrays of objects) to die in order, and
// far from the stack's end even when Class_Terminate runs script code at each level.
constexpr uint32_t kMaxNestedDisposals = 64;

// Per thread: objects die on the thread that drops them, and engines never share a value across
// threads at once.
struct Disposals {
  uint32_t depth = 0;
  RefCounted* queue = nullptr;
};

thread_local Disposals t_disposals;

}  // namespace

void RefCounted::Dispose() {
  Disposals& disposals = t_disposals;
  if (disposals.depth >= kMaxNestedDisposals) {
    m_next_disposal = disposals.queue;
    disposals.queue = this;
    return;
  }
  ++disposals.depth;
  LastReleased();
  if (disposals.depth == 1) {
    while (RefCounted* next = disposals.queue) {
      disposals.queue = next->m_next_disposal;
      next->LastReleased();
    }
  }
  --disposals.depth;
}

}  // namespace vbs
