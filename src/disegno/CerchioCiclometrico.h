#pragma once

// The circle of the 90 numbers, painted with a QPainter on whatever device it is given: the
// script's picture (a QImage), the desktop's QvCerchio widget, the PNG of a headless run. There is
// one painter code so that the screen and the file never differ.

#include <QPainter>
#include <QPointF>
#include <QRectF>

#include "script/AreaDisegno.h"

namespace lottolab::disegno {

// What one painting drew, for the tests and for a caller that says "3 figure".
struct ConteggioCerchio {
  int numeri = 0;    // numbers written around the circle
  int marcati = 0;   // numbers ringed
  int poligoni = 0;  // figures drawn (a diameter counts as one)
};

// Where number 1..90 sits on the circle inscribed in `area`: 1 at the top, clockwise, 4 degrees
// apart, at `raggio` (a fraction of half the side).
inline constexpr double kRaggioCerchio = 0.82;
QPointF PuntoDelNumero(int numero, const QRectF& area, double raggio = kRaggioCerchio);

// Paints the circle into the square centred in `area`. Numbers outside 1..90 in the marks or the
// figures are passed over (the library refuses them before they get here); a figure of fewer than
// two vertices draws nothing.
ConteggioCerchio DisegnaCerchio(QPainter& pittore, const QRectF& area, const script::DisegnoCerchio& disegno);

QColor ColoreQt(script::Rgb colore);

}  // namespace lottolab::disegno
