#pragma once

// Intrusive reference counting for the heap payloads of values (strings, arrays, objects). Script
// objects must die the moment their last reference goes, because Class_Terminate runs then, as
// scripts expect; a count in the object itself makes that cheap and deterministic.
//
// Dying can cascade: an array that holds the only reference to another array, a chain of objects
// each holding the next. Each link would nest one more destructor on the C++ stack, so past a
// modest depth a dying object is queued instead, and the outermost release finishes the queue in
// a loop: a chain of a million links dies in constant stack.

#include <cstdint>
#include <utility>

namespace vbs {

class RefCounted {
 public:
  RefCounted() = default;
  RefCounted(const RefCounted&) = delete;
  RefCounted& operator=(const RefCounted&) = delete;

  void AddRef() const { ++m_refs; }
  void Release() const {
    if (--m_refs == 0) const_cast<RefCounted*>(this)->Dispose();
  }
  uint32_t RefCount() const { return m_refs; }

 protected:
  virtual ~RefCounted() = default;
  // Called when the count drops to zero; the default deletes the object. Objects that must run
  // script code first (Class_Terminate) override it.
  virtual void LastReleased() { delete this; }

 private:
  // Runs LastReleased now, or queues it when releases already nest deep on this thread.
  void Dispose();

  mutable uint32_t m_refs = 0;
  RefCounted* m_next_disposal = nullptr;  // the queue of deferred disposals, while queued
};

// A counted pointer to a RefCounted; null is allowed (the script's Nothing).
template <typename T>
class Ref {
 public:
  Ref() = default;
  Ref(std::nullptr_t) {}
  explicit Ref(T* p) : m_ptr(p) {
    if (m_ptr) m_ptr->AddRef();
  }
  Ref(const Ref& other) : m_ptr(other.m_ptr) {
    if (m_ptr) m_ptr->AddRef();
  }
  Ref(Ref&& other) noexcept : m_ptr(std::exchange(other.m_ptr, nullptr)) {}
  template <typename U>
  Ref(const Ref<U>& other) : m_ptr(other.get()) {
    if (m_ptr) m_ptr->AddRef();
  }
  ~Ref() {
    if (m_ptr) m_ptr->Release();
  }
  Ref& operator=(Ref other) noexcept {
    std::swap(m_ptr, other.m_ptr);
    return *this;
  }

  T* get() const { return m_ptr; }
  T* operator->() const { return m_ptr; }
  T& operator*() const { return *m_ptr; }
  explicit operator bool() const { return m_ptr != nullptr; }
  friend bool operator==(const Ref& a, const Ref& b) { return a.m_ptr == b.m_ptr; }

  // Gives up ownership without releasing; the caller takes over the reference.
  T* Detach() { return std::exchange(m_ptr, nullptr); }
  // Takes over a reference that the caller already owns.
  static Ref Adopt(T* p) {
    Ref r;
    r.m_ptr = p;
    return r;
  }

 private:
  T* m_ptr = nullptr;
};

template <typename T, typename... A>
Ref<T> MakeRef(A&&... args) {
  return Ref<T>(new T(std::forward<A>(args)...));
}

}  // namespace vbs
