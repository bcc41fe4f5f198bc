#pragma once

// How close the running thread is to the end of its stack. The engine's recursions (nested
// calls of script procedures, the parser's descent into nested constructs) stop with "Out of
// stack space" while a reserve remains, whatever stack the host gave the thread: 8 MB on a main
// thread, less or more on a worker.

namespace vbs {

// True when less than the reserve (256 KB) is left below the caller's frame.
bool StackNearlyExhausted();

}  // namespace vbs
