#pragma once

// A message for the user, built where a failure is detected and shown by whoever holds a window
// or a terminal. Keeping the text here, not the display, lets the archive and the statistics run
// headless and lets tests read exactly what a user would see.

#include <string>

namespace lottolab {

enum class TipoAvviso {
  Critico,      // an unexpected run-time failure of a procedure
  Esclamativo,  // an expected condition: a missing file, a bad date, bad input
};

struct Avviso {
  TipoAvviso tipo = TipoAvviso::Esclamativo;
  std::string titolo;
  std::string testo;
};

// A critical message in the house form: "<number>- <description>", titled with the procedure's
// qualified name.
Avviso AvvisoCritico(std::string procedura, int numero, std::string descrizione);

inline Avviso AvvisoEsclamativo(std::string testo) { return Avviso{TipoAvviso::Esclamativo, "", std::move(testo)}; }

}  // namespace lottolab
