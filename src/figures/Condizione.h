#pragma once

// The conditions of a figure: one line of text each, an expression over the numbers at the
// vertices that must hold wherever the figure is found.
//
//   [A] = [B]                          vertices by their caption (or, when no caption matches, by
//   [1] + 1 = [2] Or [1] - 1 = [2]     a whole number, their Index)
//   Cadenza([A]) = Cadenza([C]) And Not RuotaUnica()
//   [C] = (diametrale([A]))
//
// Numbers are whole; + - * and the comparisons = <> < > <= >= as in scripts; And Or Not work bit
// by bit as in scripts, which on truth values (true is -1, false 0) is their logical meaning; names
// without regard to case. A condition holds when its value is not 0. Precedence from the lowest:
// Or, And, Not, a comparison (one per level: [A] = [B] = [C] is refused), + -, *, unary -; the
// grammar is in CondizioneCompilatore.h. The functions (number arithmetic with the rules the
// figure searches have always used, stats::ClsFunctions):
//   Cadenza(n), Decina(n), DecinaCabalistica(n), Figura(n), Diametrale(n)
//   DiffCiclometrica(a, b)          the distance of a and b on the circle of 90
//   SommaCiclometrica(a, b, ...)    the sum brought into 1..90
//   SommaCiclometricaGlob()         the sum of every vertex's number, brought into 1..90
//   Vertibili(a, b)                 whether b is the vertibile of a
//   PosizioneVertice([V])           the position 1..5 of vertex V's cell
//   PuntiSu(r)                      how many vertices lie on wheel r (1..11)
//   RuotaUnica()                    whether every vertex lies on one wheel
//   ContaPresenze(n)                how many vertices hold n
//   ContaChiusure(n)                how many vertices marked for closure hold n
//   QuantitaCadenze(), QuantitaFigure()   how many different cadences (figures) the vertices hold

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "FiguraPiazzata.h"
#include "Struttura.h"
#include "archive/Esito.h"

namespace lottolab::figures {

// The longest text compiled, in characters: what a record of the structure file keeps. Longer texts
// are refused, as are texts nested deeper than the compiler allows (CondizioneCompilatore.cpp).
inline constexpr size_t kMassimiCaratteriCondizione = 500;

// Why a text was refused: the message starts with "Errore di sintassi", `colonna` (from 1) is
// where the text stops making sense.
struct ErroreSintassi {
  std::string messaggio;
  size_t colonna = 0;
};

// The compiled form, see CondizioneProgramma.h.
struct ProgrammaCondizione;

class Condizione {
 public:
  // The text compiled against the structure's vertices (those with Index 0 left out, in order:
  // vertex k of a placed figure is the k-th of them).
  static Esito<Condizione, ErroreSintassi> Compila(std::string_view testo, std::span<const ClsVertice> vertici);

  // Whether the condition holds for the placed figure.
  bool Vale(const FiguraPiazzata& figura) const;

  const std::string& Testo() const;
  // The work of one evaluation, in steps of about the same time: what a search multiplies by the
  // cells of the table.
  size_t Costo() const;

  Condizione(Condizione&&) noexcept;
  Condizione& operator=(Condizione&&) noexcept;
  ~Condizione();

 private:
  explicit Condizione(std::unique_ptr<const ProgrammaCondizione> programma);
  std::unique_ptr<const ProgrammaCondizione> m_programma;
};

}  // namespace lottolab::figures
