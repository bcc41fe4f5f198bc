#pragma once

// A chart made by a script (PreparaGrafico, InserisciGrafico, LayOutGrafico, Grafico) as plain
// values, and the arithmetic every painter of it shares: the axes' ranges and ticks and the scaling
// of values into a rectangle. The desktop shows the chart with Qt Charts and a headless run paints
// it into a PNG; both take their axes from here, so the two read the same.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "AreaDisegno.h"

namespace lottolab::script {

enum class TipoGrafico : uint8_t { Linee = 1, Barre = 2, Punti = 3 };

// What a chart may hold: a script's loop must not fill the memory nor freeze the window that draws
// it. A bar chart draws every value as a bar, so it takes fewer.
inline constexpr size_t kSerieMassime = 16;
inline constexpr size_t kPuntiMassimi = 100000;  // per series
inline constexpr size_t kBarreMassime = 2000;    // per series of a bar chart
inline constexpr size_t kEtichetteMassime = kPuntiMassimi;
// Beyond this a difference of two values loses every digit that a scale needs.
inline constexpr double kValoreMassimo = 1e15;
inline constexpr int kLatoGraficoMassimo = 8000;

struct SerieGrafico {
  std::string nome;
  std::optional<Rgb> colore;  // none: the palette's colour of its place
  std::vector<double> x;      // empty: the values stand at 1, 2, ... n
  std::vector<double> y;
};

// What LayOutGrafico sets; it stays for the charts that follow in the run.
struct ImpaginazioneGrafico {
  int larghezza = 800;
  int altezza = 500;
  std::optional<double> minimo_y;
  std::optional<double> massimo_y;
  bool legenda = true;
  bool griglia = true;
  Rgb sfondo = 0xFFFFFF;
};

struct DisegnoGrafico {
  std::string titolo;
  std::string titolo_x;
  std::string titolo_y;
  TipoGrafico tipo = TipoGrafico::Linee;
  std::vector<SerieGrafico> serie;
  // The labels of the places 1, 2, ... on the X axis, in place of the numbers.
  std::vector<std::string> etichette_x;
  ImpaginazioneGrafico impaginazione;
};

// The colour of series k (from 0): its own, else one of a palette of distinct colours in turn.
Rgb ColoreSerie(const DisegnoGrafico& grafico, size_t k);

// An axis: the range shown and the step of its ticks, a round number (1, 2 or 5 times a power of
// ten). The ticks are the multiples of the step within the range.
struct AsseGrafico {
  double minimo = 0;
  double massimo = 1;
  double passo = 1;
};

// The X axis: the places 0.5 .. n + 0.5 of the longest series for bars, else the range of every
// series' X rounded out to its ticks. A single X value gets a range around it.
AsseGrafico AsseX(const DisegnoGrafico& grafico);
// The Y axis: the range of the values (from 0 for bars) rounded out to its ticks, or the minimum and
// maximum that LayOutGrafico gave; all values equal get a range around them.
AsseGrafico AsseY(const DisegnoGrafico& grafico);
// The ticks of an axis: the multiples of its step from its minimum to its maximum.
std::vector<double> TaccheAsse(const AsseGrafico& asse);
// How many decimals the labels of an axis with that step need (0 for a whole step).
int DecimaliAsse(double passo);
// The number as an axis labels it: that many decimals, with a decimal comma.
std::string EtichettaNumero(double valore, int decimali);

// The rectangle of the picture that PuntiSuArray and DisegnaLineaGrafico fill.
struct RettangoloGrafico {
  double x = 0;
  double y = 0;
  double larghezza = 0;
  double altezza = 0;
};

// The pixels of the values in the rectangle: the first at the left edge, the last at the right, the
// others evenly between (a single one in the middle); minimo at the bottom edge and massimo at the
// top, a value beyond them on the edge. minimo == massimo puts every value at mid height.
std::vector<std::pair<double, double>> PuntiNelRettangolo(std::span<const double> valori,
                                                          const RettangoloGrafico& rettangolo, double minimo,
                                                          double massimo);

}  // namespace lottolab::script
