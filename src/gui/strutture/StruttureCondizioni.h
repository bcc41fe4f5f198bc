#pragma once

// The texts the condition dialog builds from the user's choices, and the check of a text before it
// joins the structure. The forms use the names of Condizione.h; [A] and [B] stand for the chosen
// vertices, n for the chosen number.

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "figures/Condizione.h"
#include "figures/Struttura.h"

namespace lottolab::gui {

struct FormaCondizione {
  std::string_view modello;  // as the user reads it, and the text with the choices put in
  bool usa_a = true;
  bool usa_b = false;
  bool usa_n = false;
};

std::span<const FormaCondizione> FormeCondizione();

// How a condition names the vertex: by its caption, or by its Index when the caption cannot name it
// (empty, holding ']', or shown first by another vertex).
std::string RiferimentoVertice(const figures::ClsVertice& vertice, std::span<const figures::ClsVertice> vertici);

// The form with [A], [B] and n replaced; `negata` puts Not before it.
std::string ComponiCondizione(const FormaCondizione& forma, std::string_view a, std::string_view b, int n, bool negata);

// `parte` added to the text after "And" or "Or" (`connettivo`); alone when the text is blank.
std::string AccodaCondizione(std::string_view testo, std::string_view connettivo, std::string_view parte);

// Nothing when the text compiles against the vertices and the structure file can keep it as it is,
// else why and where not.
std::optional<figures::ErroreSintassi> VerificaCondizione(std::string_view testo,
                                                          std::span<const figures::ClsVertice> vertici);

}  // namespace lottolab::gui
