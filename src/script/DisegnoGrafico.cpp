#include "DisegnoGrafico.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>
#include <limits>

namespace lottolab::script {

namespace {

// About this many ticks on an axis: enough to read a value, few enough for their labels to fit.
constexpr double kTaccheCirca = 8;

// The smallest step of 1, 2 or 5 times a power of ten that cuts `ampiezza` into at most about
// kTaccheCirca parts.
double PassoTonda(double ampiezza) {
  if (!(ampiezza > 0)) return 1;
  double potenza = std::pow(10.0, std::floor(std::log10(ampiezza / kTaccheCirca)));
  // A range near the smallest double makes the power 0, which would never grow.
  if (!(potenza > 0)) potenza = std::numeric_limits<double>::min();
  while (true) {
    for (double fattore : {1.0, 2.0, 5.0})
      if (ampiezza <= kTaccheCirca * fattore * potenza * (1 + 1e-9)) return fattore * potenza;
    potenza *= 10;
  }
}

// How far a range reaches beyond a single value, so that it stands inside its axis.
double Margine(double valore) { return valore == 0 ? 1 : std::abs(valore) / 10; }

// The range rounded out to the step of its ticks, except the ends that are fixed. An empty range
// grows on its free side (LayOutGrafico refuses a fixed minimum not below the fixed maximum).
AsseGrafico Arrotonda(double minimo, double massimo, bool minimo_fisso, bool massimo_fisso) {
  if (!(massimo > minimo)) {
    if (minimo_fisso) {
      massimo = minimo + Margine(minimo);
    } else if (massimo_fisso) {
      minimo = massimo - Margine(massimo);
    } else {
      const double margine = Margine(minimo);
      minimo -= margine;
      massimo += margine;
    }
  }
  AsseGrafico asse;
  asse.passo = PassoTonda(massimo - minimo);
  // A value on a tick, give or take the rounding of the division, stays on it.
  asse.minimo = minimo_fisso ? minimo : std::floor(minimo / asse.passo + 1e-9) * asse.passo;
  asse.massimo = massimo_fisso ? massimo : std::ceil(massimo / asse.passo - 1e-9) * asse.passo;
  // A range far below the smallest step left would round to nothing.
  if (!(asse.massimo > asse.minimo)) asse.massimo = asse.minimo + asse.passo;
  return asse;
}

size_t PuntiPiuLunga(const DisegnoGrafico& grafico) {
  size_t punti = 0;
  for (const SerieGrafico& serie : grafico.serie) punti = std::max(punti, serie.y.size());
  return punti;
}

}  // namespace

Rgb ColoreSerie(const DisegnoGrafico& grafico, size_t k) {
  // Far apart on the colour wheel and readable on white, the first ones the most distinct.
  static constexpr Rgb kTavolozza[] = {0x1F77B4, 0xFF7F0E, 0x2CA02C, 0xD62728, 0x9467BD, 0x8C564B, 0xE377C2, 0x7F7F7F,
                                       0xBCBD22, 0x17BECF, 0x000080, 0x800000, 0x008080, 0x808000, 0x800080, 0x000000};
  if (k < grafico.serie.size() && grafico.serie[k].colore) return *grafico.serie[k].colore;
  return kTavolozza[k % std::size(kTavolozza)];
}

AsseGrafico AsseX(const DisegnoGrafico& grafico) {
  if (grafico.tipo == TipoGrafico::Barre)
    return AsseGrafico{0.5, static_cast<double>(std::max<size_t>(PuntiPiuLunga(grafico), 1)) + 0.5, 1};
  double minimo = INFINITY;
  double massimo = -INFINITY;
  for (const SerieGrafico& serie : grafico.serie) {
    if (serie.y.empty()) continue;
    if (serie.x.empty()) {
      minimo = std::min(minimo, 1.0);
      massimo = std::max(massimo, static_cast<double>(serie.y.size()));
      continue;
    }
    const auto [basso, alto] = std::minmax_element(serie.x.begin(), serie.x.end());
    minimo = std::min(minimo, *basso);
    massimo = std::max(massimo, *alto);
  }
  if (minimo > massimo) return AsseGrafico{0, 1, PassoTonda(1)};
  AsseGrafico asse = Arrotonda(minimo, massimo, false, false);
  // Values at places 1, 2, ... have no place between two: their ticks are whole.
  const bool per_posto = std::all_of(grafico.serie.begin(), grafico.serie.end(),
                                     [](const SerieGrafico& serie) { return serie.x.empty(); });
  if (per_posto && asse.passo < 1) asse = AsseGrafico{std::floor(asse.minimo), std::ceil(asse.massimo), 1};
  return asse;
}

AsseGrafico AsseY(const DisegnoGrafico& grafico) {
  double minimo = INFINITY;
  double massimo = -INFINITY;
  for (const SerieGrafico& serie : grafico.serie) {
    for (double y : serie.y) {
      minimo = std::min(minimo, y);
      massimo = std::max(massimo, y);
    }
  }
  if (minimo > massimo) minimo = 0, massimo = 1;
  // Bars rise from 0, so 0 is on the axis.
  if (grafico.tipo == TipoGrafico::Barre) minimo = std::min(minimo, 0.0), massimo = std::max(massimo, 0.0);
  const ImpaginazioneGrafico& imp = grafico.impaginazione;
  if (imp.minimo_y) minimo = *imp.minimo_y;
  if (imp.massimo_y) massimo = *imp.massimo_y;
  return Arrotonda(minimo, massimo, imp.minimo_y.has_value(), imp.massimo_y.has_value());
}

std::vector<double> TaccheAsse(const AsseGrafico& asse) {
  std::vector<double> tacche;
  if (!(asse.passo > 0) || !(asse.massimo >= asse.minimo)) return tacche;
  // A step chosen by PassoTonda gives about kTaccheCirca ticks; the bound guards any other.
  const double primo = std::ceil(asse.minimo / asse.passo - 1e-9);
  for (double k = primo; tacche.size() < 1000; ++k) {
    const double tacca = k * asse.passo;
    if (tacca > asse.massimo + asse.passo * 1e-9) break;
    tacche.push_back(tacca);
  }
  return tacche;
}

int DecimaliAsse(double passo) {
  if (!(passo > 0) || passo >= 1) return 0;
  return std::clamp(static_cast<int>(std::ceil(-std::log10(passo) - 1e-9)), 0, 15);
}

std::string EtichettaNumero(double valore, int decimali) {
  std::string testo = fmt::format("{:.{}f}", valore, decimali);
  if (testo.starts_with('-') && testo.find_first_not_of("0.", 1) == std::string::npos) testo.erase(0, 1);
  std::replace(testo.begin(), testo.end(), '.', ',');
  return testo;
}

std::vector<std::pair<double, double>> PuntiNelRettangolo(std::span<const double> valori,
                                                          const RettangoloGrafico& rettangolo, double minimo,
                                                          double massimo) {
  std::vector<std::pair<double, double>> punti;
  punti.reserve(valori.size());
  const double passo_x = valori.size() > 1 ? rettangolo.larghezza / static_cast<double>(valori.size() - 1) : 0;
  const double ampiezza = massimo - minimo;
  for (size_t k = 0; k < valori.size(); ++k) {
    const double x =
        valori.size() > 1 ? rettangolo.x + passo_x * static_cast<double>(k) : rettangolo.x + rettangolo.larghezza / 2;
    const double frazione = ampiezza > 0 ? std::clamp((valori[k] - minimo) / ampiezza, 0.0, 1.0) : 0.5;
    punti.emplace_back(x, rettangolo.y + rettangolo.altezza * (1 - frazione));
  }
  return punti;
}

}  // namespace lottolab::script
