#pragma once

// How close the running thread is to the end of its stack. The engine's recursions (nested
// calls of script procedures, the parser's descent into nested constructs) stop with "Out of
// stack space" while a reserve remains, whatever stack the host gave the thread: 8 MB on a main
// thread, less or more on a worker.

namespace vbs {

// The address below which less than the reserve (256 KB) of the running thread's stack is left;
// null when the system does not say. The system is asked once per thread.
const char* StackLimit();

// True when the caller's frame lies below `limit` (a StackLimit() of the same thread).
[[gnu::always_inline]] inline bool StackBelow(const char* limit) {
  char probe;
  return limit != nullptr && &probe < limit;
}

}  // namespace vbs
