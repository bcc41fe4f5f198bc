#include "vbscript/value/StackLimit.h"

#include <pthread.h>

#include <cstddef>

namespace vbs {

namespace {

// Room for what runs between two checks: a builtin, a host function, a Class_Terminate.
constexpr size_t kStackReserve = 256 * 1024;

// The lowest address the thread may use plus the reserve; null when the system does not say.
const char* FindLimit() {
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0) return nullptr;
  void* low = nullptr;
  size_t size = 0;
  const bool known = pthread_attr_getstack(&attributes, &low, &size) == 0 && size > kStackReserve;
  pthread_attr_destroy(&attributes);
  return known ? static_cast<const char*>(low) + kStackReserve : nullptr;
}

}  // namespace

const char* StackLimit() {
  // A thread's stack never moves.
  thread_local const char* const limit = FindLimit();
  return limit;
}

}  // namespace vbs
