#pragma once

// The vertical axis of a count (a delay, a frequency): from a round label at or below `minimo` (0 by
// default) to the first round label above the highest value, labelled with whole round numbers at
// any size of the values.

#include <QString>
#include <QValueAxis>

namespace lottolab::gui {

// A step of 1, 2 or 5 times a power of ten that cuts 0..`ampiezza` into at most about eight parts.
int PassoTacche(int ampiezza);

QValueAxis* NuovoAsseInteri(const QString& titolo, double massimo, double minimo = 0);

}  // namespace lottolab::gui
