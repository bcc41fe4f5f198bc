#include "gui/grafici/AsseInteri.h"

#include <algorithm>
#include <cmath>

namespace lottolab::gui {

int PassoTacche(int ampiezza) {
  int potenza = 1;
  while (true) {
    for (int fattore : {1, 2, 5})
      if (ampiezza <= 8 * fattore * potenza) return fattore * potenza;
    potenza *= 10;
  }
}

QValueAxis* NuovoAsseInteri(const QString& titolo, double massimo, double minimo) {
  const int alto = std::max(1, static_cast<int>(std::ceil(massimo)));
  const int basso = std::clamp(static_cast<int>(std::floor(minimo)), 0, alto - 1);
  const int passo = PassoTacche(alto - basso);
  auto* asse = new QValueAxis;
  asse->setTitleText(titolo);
  asse->setLabelFormat(QStringLiteral("%d"));
  // The first round label above the highest value, so that the peak stays clear of the frame.
  asse->setRange(basso / passo * passo, (alto / passo + 1) * passo);
  asse->setTickType(QValueAxis::TicksDynamic);
  asse->setTickAnchor(0);
  asse->setTickInterval(passo);
  return asse;
}

}  // namespace lottolab::gui
