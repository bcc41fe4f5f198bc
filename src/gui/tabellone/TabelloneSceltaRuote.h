#pragma once

// The wheels the delay table shows: one box per wheel, and "Tutte" to take them all back.

#include <QWidget>

#include <array>
#include <vector>

#include "archive/Ruote.h"

class QCheckBox;

namespace lottolab::gui {

class TabelloneSceltaRuote : public QWidget {
  Q_OBJECT

 public:
  // Every wheel starts chosen.
  explicit TabelloneSceltaRuote(QWidget* parent = nullptr);

  // The chosen wheels in table order.
  std::vector<int> Scelte() const;

 signals:
  void Cambiata();

 private:
  void SceglieTutte();

  std::array<QCheckBox*, kNumeroRuote> m_caselle{};
};

}  // namespace lottolab::gui
