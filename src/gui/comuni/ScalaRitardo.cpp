#include "gui/comuni/ScalaRitardo.h"

#include <algorithm>
#include <cmath>

namespace lottolab::gui {

namespace {

// A deep red that still takes white text comfortably.
constexpr int kRosso = 190;
constexpr int kVerdeBlu = 30;

int Verso(int da, int a, double quota) { return da + static_cast<int>((a - da) * quota + 0.5); }

// Relative luminance as the accessibility guidelines define it, for the choice of text colour.
double Luminanza(const QColor& colore) {
  auto lineare = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
  return 0.2126 * lineare(colore.redF()) + 0.7152 * lineare(colore.greenF()) + 0.0722 * lineare(colore.blueF());
}

}  // namespace

double QuotaDelloStorico(int ritardo, int storico) {
  if (storico <= 0) return 0.0;
  return std::clamp(static_cast<double>(ritardo) / storico, 0.0, 1.0);
}

QColor SfondoRitardo(double quota) {
  quota = std::clamp(quota, 0.0, 1.0);
  return QColor(Verso(255, kRosso, quota), Verso(255, kVerdeBlu, quota), Verso(255, kVerdeBlu, quota));
}

QColor TestoSuSfondo(const QColor& sfondo) {
  // Black and white give the same contrast on a luminance of about 0.18: above it black reads better.
  return Luminanza(sfondo) > 0.18 ? QColor(Qt::black) : QColor(Qt::white);
}

QString DescrizioneScalaRitardo() {
  return "Il colore del ritardo lo confronta con il massimo storico del numero sulla stessa ruota: "
         "bianco appena uscito, rosso pieno quando eguaglia il ritardo più lungo mai avuto.";
}

}  // namespace lottolab::gui
