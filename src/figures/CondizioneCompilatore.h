#pragma once

// From a condition's text to its program, by recursive descent over this grammar (words without
// regard to case, blanks anywhere between symbols):
//
//   condizione := or FINE
//   or         := and { "Or" and }
//   and        := non { "And" non }
//   non        := "Not" non | confronto
//   confronto  := somma [ ("=" | "<>" | "<" | ">" | "<=" | ">=") somma ]
//   somma      := prodotto { ("+" | "-") prodotto }
//   prodotto   := unario { "*" unario }
//   unario     := "-" unario | primario
//   primario   := NUMERO | "[" vertice "]" | "(" or ")" | FUNZIONE [ "(" [ or { "," or } ] ")" ]
//
// A second comparison on one level ("[A] = [B] = [C]") is refused rather than read as a
// comparison of a truth value. A function without arguments may leave out its parentheses.

#include <span>
#include <string_view>

#include "Condizione.h"
#include "CondizioneProgramma.h"
#include "Struttura.h"
#include "archive/Esito.h"

namespace lottolab::figures {

// The program of `testo`, or the first place where it stops making sense.
Esito<ProgrammaCondizione, ErroreSintassi> CompilaCondizione(std::string_view testo,
                                                             std::span<const ClsVertice> vertici);

}  // namespace lottolab::figures
