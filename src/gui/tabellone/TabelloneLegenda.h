#pragma once

// The legend of the delay colours, shown under the table: the scale from white to red with its two
// ends named.

#include <QWidget>

namespace lottolab::gui {

QWidget* NuovaLegendaRitardo(QWidget* parent = nullptr);

}  // namespace lottolab::gui
