#pragma once

// The colour scale of the delay column. A delay means little on its own: 40 draws is long for a
// number whose longest absence was 60 and ordinary for one that once stayed out 200. The scale
// therefore measures the delay against the number's historical maximum on the same wheel, from
// white (just drawn) to red (level with its longest absence).

#include <QColor>
#include <QString>

namespace lottolab::gui {

// The share of the historical maximum that the delay has reached, 0..1; 0 when both are 0.
double QuotaDelloStorico(int ritardo, int storico);

// The background for a share 0..1 and the text colour that stays legible on it.
QColor SfondoRitardo(double quota);
QColor TestoSuSfondo(const QColor& sfondo);

// The scale explained in words, for tooltips and the legend.
QString DescrizioneScalaRitardo();

}  // namespace lottolab::gui
