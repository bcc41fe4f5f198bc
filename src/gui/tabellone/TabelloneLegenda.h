#pragma once

// The legend of the delay colours, shown under the table: the scale from white to red with its two
// ends named, and the hint that a double click opens a number's chart (the label named
// kSuggerimentoGrafico, hidden where there is no chart).

#include <QWidget>

namespace lottolab::gui {

inline constexpr char kSuggerimentoGrafico[] = "suggerimentoGrafico";

QWidget* NuovaLegendaRitardo(QWidget* parent = nullptr);

}  // namespace lottolab::gui
