#pragma once

// The symbols of a condition's text, read one at a time as the parser asks for them: the first
// fault the parser meets is then the first one in the text, and its column is the one to show.

#include <cstddef>
#include <string_view>

namespace lottolab::figures {

enum class TipoSimbolo {
  Numero,         // digits only: the language has no fractions
  Vertice,        // "[...]" closed on the same text
  VerticeAperto,  // "[" with no "]" after it
  Nome,           // a function or a keyword
  Piu,
  Meno,
  Per,
  Uguale,
  Diverso,
  Minore,
  Maggiore,
  MinoreUguale,
  MaggioreUguale,
  ParentesiAperta,
  ParentesiChiusa,
  Virgola,
  Sconosciuto,  // one character the language does not use
  Fine,
};

struct Simbolo {
  TipoSimbolo tipo = TipoSimbolo::Fine;
  std::string_view testo;  // as written, brackets included; empty at the end
  size_t inizio = 0;       // byte offset in the text
};

class Lessico {
 public:
  explicit Lessico(std::string_view testo) : m_testo(testo) {}

  Simbolo Leggi();

 private:
  std::string_view m_testo;
  size_t m_posizione = 0;
};

// The column, from 1, of the character at byte offset `posizione` of UTF-8 text; the length plus
// one at the end.
size_t Colonna(std::string_view testo, size_t posizione);

}  // namespace lottolab::figures
