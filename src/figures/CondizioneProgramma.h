#pragma once

// A condition compiled: a flat postfix program over a stack of whole numbers. The compiler knows
// how deep the stack grows and refuses deeper texts, so evaluation runs on a fixed array and
// allocates nothing.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "CondizioneNumeri.h"

namespace lottolab::figures {

inline constexpr size_t kProfonditaPila = 64;

enum class Codice : uint8_t {
  // Push one value; `argomento` is the constant or the vertex's place in the placed figure.
  Costante,
  NumeroVertice,
  PosizioneVertice,
  SommaCiclometricaGlob,
  RuotaUnica,
  QuantitaCadenze,
  QuantitaFigure,
  // Replace the top value.
  Opposto,
  Non,
  Numero,  // argomento: the FunzioneNumero
  PuntiSu,
  ContaPresenze,
  ContaChiusure,
  // Replace the two top values with one.
  Somma,
  Differenza,
  Prodotto,
  Uguale,
  Diverso,
  Minore,
  Maggiore,
  MinoreUguale,
  MaggioreUguale,
  E,
  O,
  DiffCiclometrica,
  Vertibili,
};

struct Istruzione {
  Codice codice;
  int64_t argomento = 0;
};

struct ProgrammaCondizione {
  std::string testo;
  std::vector<Istruzione> istruzioni;
  const TabelleNumeri* tabelle = nullptr;
  size_t vertici_letti = 0;  // one more than the highest place the program reads
  // The work of one evaluation: one per instruction, as many as the vertices for an instruction
  // that goes through all of them.
  size_t costo = 0;
};

}  // namespace lottolab::figures
