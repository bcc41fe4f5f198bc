#pragma once

// A script's chart (Grafico) in a window of the desktop, drawn by Qt Charts on the axes that
// script/DisegnoGrafico.h computes, the same ticks the PNG of a headless run shows.

#include <QChartView>

#include "script/DisegnoGrafico.h"

namespace lottolab::gui {

class VistaGrafico : public QChartView {
  Q_OBJECT

 public:
  explicit VistaGrafico(script::DisegnoGrafico disegno, QWidget* parent = nullptr);

  const script::DisegnoGrafico& Disegno() const { return m_disegno; }

 private:
  script::DisegnoGrafico m_disegno;
};

}  // namespace lottolab::gui
