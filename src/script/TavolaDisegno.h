#pragma once

// A table of draws on the picture area, as DisegnaEstrazione and the DisegnaFiguraGeodomica names
// draw it: a title, a heading over each group of cells (a wheel's five positions), a label left of
// each row, a number in each cell, a figure's vertices ringed and joined in order, the numbers to
// play on a highlighted ground.
//
// The layout is arithmetic over the text's measured sizes (ImpaginazioneTavola), so a test checks
// the cells' rectangles without a painter; DisegnaTavola draws with AreaDisegno's primitives alone,
// so the desktop and the PNG of a headless run show the same table and a test host can count it.

#include <string>
#include <vector>

#include "AreaDisegno.h"

namespace lottolab::script {

// A cell of the table, rows and cells counted from 0.
struct PostoCella {
  int riga = 0;
  int cella = 0;
  friend bool operator==(const PostoCella&, const PostoCella&) = default;
};

struct Tavola {
  std::string titolo;
  // A heading over each group of celle_per_gruppo cells; with none, the groups still stand apart but
  // no heading row is drawn.
  std::vector<std::string> intestazioni;
  int gruppi = 1;
  int celle_per_gruppo = 5;
  std::vector<std::string> etichette;    // one a row, left of it
  std::vector<std::vector<int>> numeri;  // a row each, gruppi * celle_per_gruppo numbers; 0 leaves a cell empty
  std::vector<PostoCella> percorso;      // a figure's vertices, ringed and joined in this order
  std::vector<PostoCella> evidenziate;   // the cells on the highlighted ground
};

struct Rettangolo {
  double x = 0;
  double y = 0;
  double larghezza = 0;
  double altezza = 0;
  double CentroX() const { return x + larghezza / 2; }
  double CentroY() const { return y + altezza / 2; }
};

// What the text of a table measures on the area, in pixels.
struct MisureTesto {
  double larghezza_numero = 0;     // "88", the widest number a cell holds
  double larghezza_etichetta = 0;  // the widest row label
  double larghezza_titolo = 0;
  double altezza = 0;  // a line of text
};

// Where each part of a table falls when its top left corner is at (x, y). Cells are square, the
// groups a margin apart, so a figure's lines keep their slopes within a group.
class ImpaginazioneTavola {
 public:
  ImpaginazioneTavola(const Tavola& tavola, double x, double y, const MisureTesto& misure);

  Rettangolo Titolo() const;
  Rettangolo Intestazione(int gruppo) const;
  Rettangolo Etichetta(int riga) const;
  Rettangolo Cella(PostoCella posto) const;
  double Larghezza() const;
  double Altezza() const;
  // The radius of a vertex's ring, inside its cell.
  double Raggio() const { return m_lato * 0.45; }

 private:
  double InizioRighe() const;

  int m_gruppi;
  int m_celle_per_gruppo;
  int m_righe;
  bool m_titolo;
  bool m_intestazioni;
  double m_x;
  double m_y;
  double m_lato;
  double m_margine;
  double m_etichetta;
  double m_larghezza_titolo;
  double m_altezza_testo;
};

struct StileTavola {
  int dimensione = 12;  // the text's height in pixels
  Rgb testo = 0x000000;
  Rgb griglia = 0xA0A0A0;
  Rgb evidenziate = 0xFFF59D;
  Tratto vertici{0xFF0000, 2, false};
};

// Draws the table with its top left corner at (x, y); returns the height it took, in pixels.
double DisegnaTavola(AreaDisegno& area, const Tavola& tavola, double x, double y, const StileTavola& stile);

// The number as a cell shows it, two digits ("07"); empty for 0.
std::string TestoNumero(int numero);

}  // namespace lottolab::script
