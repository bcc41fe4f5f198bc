#pragma once

// The one way the core shows a message to the user. The command line prints it on stderr, the
// desktop opens a message box, tests collect it; the core never knows which.

#include "archive/Avviso.h"
#include "archive/Esito.h"

namespace lottolab::app {

class Segnalatore {
 public:
  virtual ~Segnalatore() = default;
  virtual void Mostra(const Avviso& avviso) = 0;
};

// The value of a fallible operation, or, after showing why it failed, the procedure's failure value.
template <typename T>
T ValoreOppureSegnala(const Esito<T>& esito, Segnalatore& segnalatore, T valore_di_errore) {
  if (esito) return *esito;
  segnalatore.Mostra(esito.Errore());
  return valore_di_errore;
}

}  // namespace lottolab::app
