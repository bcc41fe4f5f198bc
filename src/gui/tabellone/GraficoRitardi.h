#pragma once

// The delay of one number on one wheel after every draw of a chosen range: a saw-tooth
// whose teeth are the number's absences, so that the current delay can be read against the earlier
// ones.

#include <QChartView>
#include <QLineSeries>

#include "archive/TabellaEstrazioni.h"

namespace lottolab::gui {

class GraficoRitardi : public QChartView {
 public:
  // `inizio` and `fine` must be draws of `tab`, in that order; the chart keeps no reference to the table.
  GraficoRitardi(const TabellaEstrazioni& tab, int ruota, int numero, int fine, int inizio = 1,
                 QWidget* parent = nullptr);

  // One point per draw inizio..fine: the draw index and the delay after it.
  const QLineSeries& Serie() const { return *m_serie; }

 private:
  QLineSeries* m_serie;
};

}  // namespace lottolab::gui
