#pragma once

// The figures of the circle of 90: polygons whose vertices are numbers set around the circle in
// their order (1 next to 2, 90 next to 1), each kind defined by the cyclometric distances of its
// vertices (Distanza: 1..45 between different numbers). Chords of equal distance have equal length,
// and two chords {a, b} and {c, d} are parallel when a + b and c + d are equal modulo 90; every
// definition below follows from those two facts.
//
// - Diametro: two numbers at distance 45 (7 and 52).
// - Triangolo equilatero: three numbers 30 apart (5, 35, 65).
// - Triangolo isoscele: an apex at the same distance d from the two other vertices, d in 1..44
//   and not 30 (apex 10: 3 and 17); the equilateral triangle is a kind of its own.
// - Quadrato ciclometrico: 90 / 4 is not whole, so no four numbers are all 22.5 apart; the square
//   of the circle is the near-square of sides 22 and 23, whose diagonals are two diameters
//   (1, 23, 46, 68). 45 of them exist.
// - Rettangolo: two diameters (its diagonals), other than a near-square (3, 20, 48, 65).
// - Trapezio isoscele: two parallel chords of different distance (2-12 and 80-24: the sums 14 and
//   104 are equal modulo 90); equal distances would make a rectangle.
// - Aquilone: a diameter (the axis) and two numbers at the same distance d from one of its ends, d in
//   1..44 (axis 10-55, d = 8: 10, 18, 55, 2). Its other pair of sides has distance 45 - d.
// - Parallelepipedo: a chord {a, b} of one face and the chord of its diametrals {a + 45, b + 45} of
//   another face: the rectangle that joins two wheels of a draw, or two groups of numbers, like the
//   two faces of a box. A face is a group of numbers; the search takes two.
//
// Each group of numbers is one figure of one kind at most, so the kinds do not overlap. The vertices
// are given in their order around the circle, as a polygon is drawn, starting at the apex for the
// isosceles triangle, at the end of the axis between the shorter sides for the kite, and at the
// smallest number otherwise.
//
// The search takes a set of numbers, each with the wheels it came from (none for a set a script
// gives), and finds every figure of the kinds asked without trying every group of four: a number's
// presence is a table lookup, and the four-vertex kinds are built from diameters and from classes
// of parallel chords, so the work grows with the pairs of numbers and the figures found.

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "archive/Estrazione.h"

namespace lottolab::stats {

enum class TipoFigura : uint8_t {
  Diametro = 1,
  TriangoloEquilatero,
  TriangoloIsoscele,
  QuadratoCiclometrico,
  Rettangolo,
  TrapezioIsoscele,
  Aquilone,
  Parallelepipedo,
};
inline constexpr int kTipiFigura = 8;

// A set of kinds, bit (kind - 1) for each.
using TipiFigura = uint16_t;
constexpr TipiFigura Tipo(TipoFigura tipo) { return static_cast<TipiFigura>(1u << (static_cast<int>(tipo) - 1)); }
// Every kind that a single set holds: all but the parallelepiped, which takes two faces.
inline constexpr TipiFigura kFigureDiUnInsieme =
    static_cast<TipiFigura>((1u << kTipiFigura) - 1) & static_cast<TipiFigura>(~Tipo(TipoFigura::Parallelepipedo));

// The Italian name of the kind ("Triangolo isoscele"); empty for a value outside the enumeration.
std::string_view NomeTipoFigura(TipoFigura tipo);

// How many vertices a figure of the kind has.
int VerticiDelTipo(TipoFigura tipo);

// Numbers 1..90, each with the wheels that drew it: bit w - 1 for table wheel w, 0 for a number
// given without wheels. Adding a number twice joins its wheels.
class InsiemeCiclometrico {
 public:
  // `numero` must be in 1..90 (asserted).
  void Aggiungi(int numero, uint16_t ruote = 0);
  // Whether n, taken on the circle (91 is 1, 0 is 90), is in the set; n in -89..180.
  bool Contiene(int n) const { return m_presente[Indice(n)]; }
  uint16_t Ruote(int n) const { return m_ruote[Indice(n)]; }
  // The numbers, in increasing order.
  std::span<const uint8_t> Numeri() const { return {m_numeri.data(), m_quanti}; }
  bool Vuoto() const { return m_quanti == 0; }

 private:
  // Without a division: the search asks this more than anything else.
  static int Indice(int n) { return n > 90 ? n - 90 : (n < 1 ? n + 90 : n); }

  std::array<bool, 91> m_presente{};
  std::array<uint16_t, 91> m_ruote{};
  std::array<uint8_t, 90> m_numeri{};
  size_t m_quanti = 0;
};

// The numbers of the draw on the given table wheels (1..11), with their wheels; a wheel not drawn
// gives nothing.
InsiemeCiclometrico InsiemeDaEstrazione(const Estrazione& estrazione, std::span<const int> ruote);

struct FiguraCiclometrica {
  TipoFigura tipo = TipoFigura::Diametro;
  uint8_t quanti = 0;                // vertices used, 2..4
  std::array<uint8_t, 4> vertici{};  // in drawing order, see above
  std::array<uint16_t, 4> ruote{};   // the wheels of each vertex, as in InsiemeCiclometrico

  std::span<const uint8_t> Vertici() const { return {vertici.data(), quanti}; }
  friend bool operator==(const FiguraCiclometrica&, const FiguraCiclometrica&) = default;
};

// The figure as lists and scripts show it: "Aquilone 10-18-55-2 (BA/VE, BA, VE, VE)", the wheels of
// each vertex in brackets when it has some.
std::string DescrizioneFigura(const FiguraCiclometrica& figura);

// Appends to `figure` every figure of the kinds in `tipi` among the numbers of `insieme`, grouped
// by kind in the order of TipoFigura. The parallelepiped is not searched here (TrovaParallelepipedi).
void TrovaFigure(const InsiemeCiclometrico& insieme, TipiFigura tipi, std::vector<FiguraCiclometrica>& figure);
std::vector<FiguraCiclometrica> TrovaFigure(const InsiemeCiclometrico& insieme, TipiFigura tipi);

// Appends every parallelepiped with a chord of `faccia1` and its diametral chord in `faccia2`; each
// vertex carries the wheels of its face's number.
void TrovaParallelepipedi(const InsiemeCiclometrico& faccia1, const InsiemeCiclometrico& faccia2,
                          std::vector<FiguraCiclometrica>& figure);

}  // namespace lottolab::stats
