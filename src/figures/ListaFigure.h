#pragma once

// A list of found figures kept in a file (".efu"), so that a search of Saturday can be reopened on
// Tuesday and followed with the draws added since. A UTF-8 text, one record a line:
//
//   lottolab-efu 1
//   [FIG]
//   struttura=strutture/coppia.dat
//   impronta=9f3b1c0d5e7a2b44
//   intervallo=7200-7318
//   ruote=1 10
//   [TRO]
//   7318 | 1 | 7317.1.1.45 7318.1.1.12 | 12 45
//   [ESP]
//   1 | 7325 | 2@7320 1@7321 | chiusa
//
// [FIG] names the structure searched (its path and the FNV-1a impronta of its bytes), the draws the
// search ran over and its wheels (none: all). [TRO] holds a figure a line: the draw that completes
// it, its wheels, each vertex as draw.wheel.position.number, the numbers played. [ESP] holds an
// outcome a line: the figure's line in [TRO] counted from 1, the last draw it was followed to, each
// win as sorte@draw, and "aperta" or "chiusa". Lines the program does not know are kept, in their
// section, and written again; a line it knows but cannot read refuses the file with the "non
// valido" message naming the line.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "archive/Esito.h"

namespace lottolab::figures {

struct VerticeTrovato {
  int id_estr = 0;
  int ruota = 0;
  int posizione = 0;
  int numero = 0;
  friend bool operator==(const VerticeTrovato&, const VerticeTrovato&) = default;
};

struct FiguraSalvata {
  int estrazione = 0;
  std::vector<int> ruote;
  std::vector<VerticeTrovato> vertici;
  std::vector<int> giocati;
  friend bool operator==(const FiguraSalvata&, const FiguraSalvata&) = default;
};

struct VincitaFigura {
  int sorte = 0;
  int id_estr = 0;
  friend bool operator==(const VincitaFigura&, const VincitaFigura&) = default;
};

struct EsitoSalvato {
  int figura = 0;  // the line of [TRO], from 1
  int seguita_fino_a = 0;
  std::vector<VincitaFigura> vincite;
  bool chiusa = false;
  friend bool operator==(const EsitoSalvato&, const EsitoSalvato&) = default;
};

struct RigaSconosciuta {
  std::string sezione;  // "FIG", "TRO" or "ESP"
  std::string testo;
  friend bool operator==(const RigaSconosciuta&, const RigaSconosciuta&) = default;
};

struct ListaFigure {
  std::string struttura;
  uint64_t impronta = 0;
  int inizio = 0;
  int fine = 0;
  std::vector<int> ruote;
  std::vector<FiguraSalvata> trovate;
  std::vector<EsitoSalvato> esiti;
  std::vector<RigaSconosciuta> sconosciute;
  friend bool operator==(const ListaFigure&, const ListaFigure&) = default;
};

inline constexpr int kVersioneListaFigure = 1;

// The impronta of a structure file's bytes.
uint64_t ImprontaFile(std::string_view byte);

// The list the text holds; `file` names it in the messages.
Esito<ListaFigure> LeggiListaFigure(std::string_view testo, std::string_view file);

// The text of the list, the lines it did not know included.
std::string TestoListaFigure(const ListaFigure& lista);

}  // namespace lottolab::figures
