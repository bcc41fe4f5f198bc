#pragma once

// The choices that the chart windows share: the period of draws by two dates, and the wheel.

#include <QComboBox>
#include <QWidget>

#include <utility>

#include "archive/TabellaEstrazioni.h"

class QDateEdit;

namespace lottolab::gui {

// "Dal" and "Al" as two dates limited to the archive's.
class SceltePeriodo : public QWidget {
  Q_OBJECT

 public:
  explicit SceltePeriodo(QWidget* parent = nullptr);

  // Shows the dates of the draws inizio..fine of `tab` (0 for its first and its last draw).
  void Imposta(const TabellaEstrazioni& tab, int inizio, int fine);
  // The draws of `tab` from the first on or after "Dal" to the last on or before "Al"; inizio > fine
  // when there is none.
  std::pair<int, int> Intervallo(const TabellaEstrazioni& tab) const;

 private:
  QDateEdit* m_dal;
  QDateEdit* m_al;
};

// The eleven wheels and "Tutte", each item's data its wheel index (12 for all), `ruota` chosen.
QComboBox* NuovaSceltaRuota(int ruota);

}  // namespace lottolab::gui
