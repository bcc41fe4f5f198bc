#pragma once

// The outcome of a fallible operation: a value, or the message that explains why there is none.
// Callers decide whether and where to show the message; nothing is thrown across layers. A layer
// that leaves the sentence to its callers may fail with a reason of its own type instead.

#include <cassert>
#include <utility>
#include <variant>

#include "Avviso.h"

namespace lottolab {

template <typename T, typename E = Avviso>
class [[nodiscard]] Esito {
 public:
  Esito(T valore) : m_stato(std::move(valore)) {}
  Esito(E errore) : m_stato(std::move(errore)) {}

  bool Riuscito() const { return std::holds_alternative<T>(m_stato); }
  explicit operator bool() const { return Riuscito(); }

  const T& Valore() const& {
    assert(Riuscito());
    return std::get<T>(m_stato);
  }
  T& Valore() & {
    assert(Riuscito());
    return std::get<T>(m_stato);
  }
  T&& Valore() && {
    assert(Riuscito());
    return std::get<T>(std::move(m_stato));
  }
  const T& operator*() const& { return Valore(); }
  const T* operator->() const { return &Valore(); }
  T* operator->() { return &Valore(); }

  const E& Errore() const {
    assert(!Riuscito());
    return std::get<E>(m_stato);
  }

  T ValoreOppure(T alternativa) const { return Riuscito() ? Valore() : alternativa; }

 private:
  std::variant<T, E> m_stato;
};

// For operations that yield nothing but may fail.
struct Fatto {};

}  // namespace lottolab
