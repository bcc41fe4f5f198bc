#include "QvCerchio.h"

#include <QPainter>

namespace lottolab::gui {

QvCerchio::QvCerchio(QWidget* parent) : QWidget(parent) { setMinimumSize(200, 200); }

void QvCerchio::ImpostaDisegno(script::DisegnoCerchio disegno) {
  m_disegno = std::move(disegno);
  update();
}

void QvCerchio::Evidenzia(int figura) {
  m_disegno.evidenziata = figura;
  update();
}

void QvCerchio::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  pittore.fillRect(rect(), disegno::ColoreQt(m_disegno.impostazioni.sfondo));
  m_conteggio = disegno::DisegnaCerchio(pittore, QRectF(rect()), m_disegno);
}

}  // namespace lottolab::gui
