#pragma once

// What the library's game families share: each name is written once with its four forms, one per
// suffix, and declined into the table's rows, SE, DL, WF and FT. Only the names that users' scripts
// know are bound: EstrattoIncrStorico has no WF form, for one, and so it gets none.
//
// The description may name the numbers of a draw as {n} and their range as {m}; each row gets its
// game's figures ("6" and "90" for the SuperEnalotto, "K" and "M" for the generic archive); the
// example calls the row's own name as {s} after the root.

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "ArgomentiGioco.h"
#include "Famiglia.h"

namespace lottolab::script {

struct FunzioneDeiGiochi {
  std::string_view radice;  // the name without the suffix
  uint8_t min_args;
  uint8_t max_args;
  std::array<ClsFunctionsGeodoScript::Chiamata, kNumeroSuffissi> chiamate;  // SE, DL, WF, FT
  std::string_view descrizione;
  std::string_view restituisce = {};
  std::string_view esempio = {};  // {s} is the game's suffix
};

// The four instances of a function template over Suffisso, in the order of FunzioneDeiGiochi; the
// template may be a member of a class template (`Figura<1, kRitardo>::Calcola`).
#define LOTTOLAB_PER_OGNI_GIOCO(...) \
  { &__VA_ARGS__<Suffisso::SE>, &__VA_ARGS__<Suffisso::DL>, &__VA_ARGS__<Suffisso::WF>, &__VA_ARGS__<Suffisso::FT> }

// The rows of the table for the public names among the declined ones, then the rows `altre` of the
// names that only some games have. Call once per family: the names and descriptions live as long
// as the program.
std::vector<ClsFunctionsGeodoScript::Funzione> DeclinaPerGioco(
    std::span<const FunzioneDeiGiochi> funzioni, std::span<const ClsFunctionsGeodoScript::Funzione> altre = {});

}  // namespace lottolab::script
