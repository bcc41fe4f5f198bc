#include "gui/strutture/QvVertice.h"

#include <QFontMetricsF>
#include <QPainter>

namespace lottolab::gui {

namespace {

const QColor kColoreVertice(120, 170, 230);
const QColor kColoreChiusura(245, 165, 60);
const QColor kColoreFulcro(200, 30, 30);
const QColor kColoreSelezione(20, 40, 140);
const QColor kColoreEtichetta(255, 240, 150);

QFont Carattere(qreal punti, bool grassetto) {
  QFont font;
  font.setPointSizeF(punti);
  font.setBold(grassetto);
  return font;
}

}  // namespace

QvVertice::QvVertice(const figures::ClsVertice& vertice, int numero, const QRectF& cella)
    : m_vertice(vertice), m_numero(numero), m_cella(cella) {
  setFlag(QGraphicsItem::ItemIsSelectable);
  setZValue(2);
  QString suggerimento = QString("Vertice %1 \"%2\"").arg(vertice.Index).arg(QString::fromStdString(vertice.Caption));
  if (vertice.FulcroOrizz) suggerimento += ", fulcro orizzontale";
  if (vertice.FulcroVert) suggerimento += ", fulcro verticale";
  if (vertice.UsaPerChiusura) suggerimento += ", usato per la chiusura";
  setToolTip(suggerimento);
}

QRectF QvVertice::Disco() const { return m_cella.adjusted(1, kFasciaEtichetta + 1, -1, -1); }

// Centred in the band at the top of the cell, as wide as the caption needs.
QRectF QvVertice::Etichetta() const {
  const QFontMetricsF metriche(Carattere(6.5, true));
  const qreal larghezza = metriche.horizontalAdvance(QString::fromStdString(m_vertice.Caption)) + 4;
  return QRectF(m_cella.center().x() - larghezza / 2, m_cella.top(), larghezza, kFasciaEtichetta);
}

QRectF QvVertice::boundingRect() const { return Disco().united(Etichetta()).adjusted(-2, -2, 2, 2); }

void QvVertice::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
  painter->setRenderHint(QPainter::Antialiasing);
  const bool fulcro = m_vertice.FulcroOrizz || m_vertice.FulcroVert;
  QPen bordo(isSelected() ? kColoreSelezione : fulcro ? kColoreFulcro : kColoreVertice.darker(150));
  bordo.setWidthF(isSelected() || fulcro ? 2.5 : 1);
  if (isSelected() && fulcro) bordo.setStyle(Qt::DashLine);
  painter->setPen(bordo);
  painter->setBrush(m_vertice.UsaPerChiusura ? kColoreChiusura : kColoreVertice);
  painter->drawEllipse(Disco());

  painter->setPen(Qt::black);
  painter->setFont(Carattere(8, true));
  if (m_numero != 0) painter->drawText(Disco(), Qt::AlignCenter, QString("%1").arg(m_numero, 2, 10, QChar('0')));

  if (m_vertice.Caption.empty()) return;
  painter->setPen(QPen(Qt::black, 0.5));
  painter->setBrush(kColoreEtichetta);
  painter->drawRect(Etichetta());
  painter->setFont(Carattere(6.5, true));
  painter->drawText(Etichetta(), Qt::AlignCenter, QString::fromStdString(m_vertice.Caption));
}

}  // namespace lottolab::gui
