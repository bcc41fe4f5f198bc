#pragma once

// The circle view: the circle of the 90 numbers with its marks and figures, painted by the same
// code that writes a headless run's PNG (disegno/CerchioCiclometrico.h), scaled to the widget.

#include <QWidget>

#include "disegno/CerchioCiclometrico.h"

namespace lottolab::gui {

class QvCerchio : public QWidget {
  Q_OBJECT

 public:
  explicit QvCerchio(QWidget* parent = nullptr);

  void ImpostaDisegno(script::DisegnoCerchio disegno);
  const script::DisegnoCerchio& Disegno() const { return m_disegno; }
  // The figure drawn over the others in the highlight colour; -1 for none.
  void Evidenzia(int figura);
  // What the last painting drew.
  const disegno::ConteggioCerchio& Conteggio() const { return m_conteggio; }

  QSize sizeHint() const override { return {480, 480}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  script::DisegnoCerchio m_disegno;
  disegno::ConteggioCerchio m_conteggio;
};

}  // namespace lottolab::gui
