#include "gui/grafici/VistaMappaRitardi.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

#include "gui/grafici/ModelloMappaRitardi.h"

namespace lottolab::gui {

namespace {

constexpr int kColonneBlocco = 10;
constexpr int kRigheBlocco = kMassimoNumero / kColonneBlocco;
constexpr double kMargine = 6;
// The name of the wheel above each block takes this share of a cell's height and more.
constexpr double kRigheTitolo = 1.4;

}  // namespace

VistaMappaRitardi::VistaMappaRitardi(const ModelloMappaRitardi& modello, QWidget* parent)
    : QWidget(parent), m_modello(modello) {
  setObjectName(QStringLiteral("mappaRitardi"));
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  setCursor(Qt::PointingHandCursor);
  connect(&m_modello, &QAbstractItemModel::dataChanged, this, qOverload<>(&QWidget::update));
  connect(&m_modello, &QAbstractItemModel::modelReset, this, qOverload<>(&QWidget::update));
}

void VistaMappaRitardi::ImpostaTesto(Testo testo) {
  m_testo = testo;
  update();
}

std::pair<int, int> VistaMappaRitardi::Griglia() const {
  return width() >= height() ? std::pair{4, 3} : std::pair{3, 4};
}

QRectF VistaMappaRitardi::Blocco(int ruota) const {
  const auto [colonne, righe] = Griglia();
  const double larghezza = (width() - kMargine) / colonne;
  const double altezza = (height() - kMargine) / righe;
  const int posto = ruota - 1;
  return {kMargine + (posto % colonne) * larghezza, kMargine + (posto / colonne) * altezza, larghezza - kMargine,
          altezza - kMargine};
}

QRectF VistaMappaRitardi::Rettangolo(int ruota, int numero) const {
  const QRectF blocco = Blocco(ruota);
  const double alto = blocco.height() / (kRigheBlocco + kRigheTitolo);
  const double largo = blocco.width() / kColonneBlocco;
  const int posto = numero - 1;
  return {blocco.left() + (posto % kColonneBlocco) * largo,
          blocco.top() + (kRigheTitolo + posto / kColonneBlocco) * alto, largo, alto};
}

std::optional<std::pair<int, int>> VistaMappaRitardi::CellaIn(QPointF punto) const {
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    const QRectF blocco = Blocco(ruota);
    if (!blocco.contains(punto)) continue;
    const QRectF primo = Rettangolo(ruota, 1);
    const int colonna = static_cast<int>(std::floor((punto.x() - primo.left()) / primo.width()));
    const int riga = static_cast<int>(std::floor((punto.y() - primo.top()) / primo.height()));
    if (riga < 0 || riga >= kRigheBlocco || colonna < 0 || colonna >= kColonneBlocco) return std::nullopt;
    return std::pair{ruota, riga * kColonneBlocco + colonna + 1};
  }
  return std::nullopt;
}

void VistaMappaRitardi::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  if (m_modello.rowCount() == 0) {
    pittore.drawText(rect(), Qt::AlignCenter, QStringLiteral("Nessuna estrazione da mostrare"));
    return;
  }
  QFont carattere = font();
  const QRectF cella = Rettangolo(1, 1);
  carattere.setPixelSize(std::clamp(static_cast<int>(std::min(cella.height() * 0.6, cella.width() * 0.42)), 7, 16));
  QFont titolo = carattere;
  titolo.setBold(true);
  const QPen bordo(QColor(200, 200, 200));
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    const QRectF blocco = Blocco(ruota);
    pittore.setFont(titolo);
    pittore.setPen(palette().color(QPalette::Text));
    pittore.drawText(QRectF(blocco.left(), blocco.top(), blocco.width(), cella.height() * kRigheTitolo),
                     Qt::AlignLeft | Qt::AlignVCenter, NomeColonnaRuota(ruota));
    pittore.setFont(carattere);
    for (int numero = 1; numero <= kMassimoNumero; ++numero) {
      const QModelIndex indice = m_modello.Cella(ruota, numero);
      const QRectF dove = Rettangolo(ruota, numero);
      const QVariant sfondo = indice.data(Qt::BackgroundRole);
      pittore.fillRect(dove, sfondo.isValid() ? sfondo.value<QBrush>() : QBrush(QColor(235, 235, 235)));
      pittore.setPen(bordo);
      pittore.drawRect(dove);
      pittore.setPen(indice.data(Qt::ForegroundRole).value<QBrush>().color());
      const QString testo = m_testo == Testo::Numero ? QString::number(numero) : indice.data().toString();
      pittore.drawText(dove, Qt::AlignCenter, testo);
    }
  }
}

void VistaMappaRitardi::mousePressEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return QWidget::mousePressEvent(evento);
  if (const auto cella = CellaIn(evento->position())) emit CellaScelta(cella->first, cella->second);
}

bool VistaMappaRitardi::event(QEvent* evento) {
  if (evento->type() != QEvent::ToolTip) return QWidget::event(evento);
  auto* aiuto = static_cast<QHelpEvent*>(evento);
  const auto cella = CellaIn(aiuto->pos());
  if (!cella) {
    QToolTip::hideText();
    evento->ignore();
    return true;
  }
  QToolTip::showText(aiuto->globalPos(), m_modello.Cella(cella->first, cella->second).data(Qt::ToolTipRole).toString(),
                     this, Rettangolo(cella->first, cella->second).toAlignedRect());
  return true;
}

}  // namespace lottolab::gui
