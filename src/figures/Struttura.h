#pragma once

// A user figure ("struttura"): vertices placed on cells of the table of draws, lines joining them,
// and conditions that the numbers at the vertices must satisfy. The model knows no window: the
// desktop's editor shows it, the structure files keep it, the search places it over the archive.

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace lottolab::figures {

// One vertex, with the fields the structure file keeps, in the file's order.
struct ClsVertice {
  int16_t Index = 0;         // the vertex's identifier in its structure; 0 is the editor's template, never saved
  int32_t IdEstrazione = 0;  // the draw of the row the vertex was drawn on
  bool FulcroOrizz = false;  // the column of this vertex anchors the figure
  bool FulcroVert = false;   // the row of this vertex anchors the figure
  int16_t Riga = 0;          // row of the editor's grid: one row per draw, later draws below
  int16_t Colonna = 0;       // column of the table of draws (see TabellaFigure.h)
  int16_t Riservato1 = 0;    // two fields the file has room for and nothing sets; kept as read
  int16_t Riservato2 = 0;
  int16_t VersoVert = 0;        // on the vertical pivot: the figure's vertical direction (see Piazzamento.h)
  int16_t VersoOrizz = 0;       // on the horizontal pivot: the figure's horizontal direction
  std::string Caption;          // the label shown on the vertex, UTF-8; the file keeps 5 characters
  bool UsaPerChiusura = false;  // the vertex's number belongs to the play that closes the figure

  friend bool operator==(const ClsVertice&, const ClsVertice&) = default;
};

// A line of the figure, saved by the identifiers of the vertices it joins.
struct ClsLinea {
  int16_t Numero = 0;
  int16_t Inizio = 0;  // Index of the start vertex
  int16_t Fine = 0;    // Index of the end vertex

  friend bool operator==(const ClsLinea&, const ClsLinea&) = default;
};

// A line as the editor draws it: between two cells of the grid.
struct ClsLineaCongiungimento {
  int16_t Numero = 0;
  int16_t RigaInizio = 0;
  int16_t ColonnaInizio = 0;
  int16_t RigaFine = 0;
  int16_t ColonnaFine = 0;
};

struct Struttura {
  std::vector<ClsVertice> vertici;
  std::vector<ClsLinea> linee;
  std::vector<std::string> condizioni;  // one text each, UTF-8

  friend bool operator==(const Struttura&, const Struttura&) = default;
};

// The Index of the vertex on the line's start (end) cell; 0 when no vertex is there.
int16_t GetIdVerticePartenzaFromCoordLinea(const ClsLineaCongiungimento& linea, std::span<const ClsVertice> vertici);
int16_t GetIdVerticeFineFromCoordLinea(const ClsLineaCongiungimento& linea, std::span<const ClsVertice> vertici);

}  // namespace lottolab::figures
