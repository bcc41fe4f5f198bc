#include "gui/grafici/GraficoInterattivo.h"

#include <QAbstractAxis>
#include <QChart>
#include <QDateTime>
#include <QDateTimeAxis>
#include <QMouseEvent>
#include <QToolTip>
#include <QValueAxis>
#include <QWheelEvent>

#include <algorithm>
#include <vector>

namespace lottolab::gui {

namespace {

// One step of the wheel zooms by a fifth, which crosses eighty years of draws in about twenty steps.
constexpr double kPassoRotella = 0.8;

}  // namespace

GraficoInterattivo::GraficoInterattivo(QWidget* parent) : QChartView(parent) {
  setRenderHint(QPainter::Antialiasing);
  setMouseTracking(true);
  viewport()->setMouseTracking(true);
  setToolTip({});
}

void GraficoInterattivo::ImpostaGrafico(QChart* grafico) {
  QChart* precedente = chart();
  m_iniziale.reset();
  m_ripristina = nullptr;
  setChart(grafico);
  delete precedente;
}

void GraficoInterattivo::MemorizzaVistaIniziale() {
  std::vector<std::function<void()>> ripristini;
  for (QAbstractAxis* asse : chart()->axes()) {
    if (auto* valori = qobject_cast<QValueAxis*>(asse)) {
      const double minimo = valori->min();
      const double massimo = valori->max();
      ripristini.emplace_back([valori, minimo, massimo] { valori->setRange(minimo, massimo); });
    } else if (auto* date = qobject_cast<QDateTimeAxis*>(asse)) {
      const QDateTime minimo = date->min();
      const QDateTime massimo = date->max();
      ripristini.emplace_back([date, minimo, massimo] { date->setRange(minimo, massimo); });
    }
  }
  m_ripristina = [ripristini = std::move(ripristini)] {
    for (const auto& ripristino : ripristini) ripristino();
  };
  m_iniziale = RangeOrizzontale();
}

void GraficoInterattivo::Ripristina() {
  if (m_ripristina) m_ripristina();
}

std::optional<std::pair<double, double>> GraficoInterattivo::RangeOrizzontale() const {
  QAbstractAxis* asse = chart()->axes(Qt::Horizontal).value(0);
  if (auto* valori = qobject_cast<QValueAxis*>(asse)) return std::pair{valori->min(), valori->max()};
  if (auto* date = qobject_cast<QDateTimeAxis*>(asse))
    return std::pair{static_cast<double>(date->min().toMSecsSinceEpoch()),
                     static_cast<double>(date->max().toMSecsSinceEpoch())};
  return std::nullopt;
}

QPointF GraficoInterattivo::NelGrafico(QPointF vista) const {
  return chart()->mapFromScene(mapToScene(vista.toPoint()));
}

void GraficoInterattivo::Zoom(double fattore, double x) {
  const QRectF area = chart()->plotArea();
  if (area.width() <= 0 || chart()->series().isEmpty()) return;
  x = std::clamp(x, area.left(), area.right());
  const QRectF nuova(x - (x - area.left()) * fattore, area.top(), area.width() * fattore, area.height());
  chart()->zoomIn(nuova);
  Contieni();
}

void GraficoInterattivo::Contieni() {
  const auto adesso = RangeOrizzontale();
  if (m_iniziale && adesso && adesso->second - adesso->first >= m_iniziale->second - m_iniziale->first) Ripristina();
}

void GraficoInterattivo::wheelEvent(QWheelEvent* evento) {
  const int scatti = evento->angleDelta().y();
  if (scatti == 0) return;
  Zoom(scatti > 0 ? kPassoRotella : 1 / kPassoRotella, NelGrafico(evento->position()).x());
  evento->accept();
}

void GraficoInterattivo::mousePressEvent(QMouseEvent* evento) {
  if (evento->button() == Qt::LeftButton && (evento->modifiers() & Qt::ShiftModifier)) {
    m_selezione = true;
    setRubberBand(QChartView::HorizontalRubberBand);
    QChartView::mousePressEvent(evento);
    return;
  }
  if (evento->button() == Qt::LeftButton) {
    m_trascinamento = evento->position();
    m_spostato = false;
    viewport()->setCursor(Qt::ClosedHandCursor);
    evento->accept();
    return;
  }
  QChartView::mousePressEvent(evento);
}

void GraficoInterattivo::mouseMoveEvent(QMouseEvent* evento) {
  if (m_trascinamento) {
    const double spostamento = evento->position().x() - m_trascinamento->x();
    if (spostamento == 0) return;
    m_spostato = true;
    m_trascinamento = evento->position();
    chart()->scroll(-spostamento, 0);
    evento->accept();
    return;
  }
  QChartView::mouseMoveEvent(evento);
  if (m_selezione || !m_suggerimento) return;
  const QPointF punto = NelGrafico(evento->position());
  const QString testo = chart()->plotArea().contains(punto) && !chart()->series().isEmpty()
                            ? m_suggerimento(chart()->mapToValue(punto))
                            : QString();
  if (testo.isEmpty())
    QToolTip::hideText();
  else
    QToolTip::showText(evento->globalPosition().toPoint(), testo, this);
}

// The scene answers the delayed tooltip event by hiding every tooltip, since none of its items has one:
// the pointer's own tooltip, shown as the mouse moves, would vanish at once.
bool GraficoInterattivo::viewportEvent(QEvent* evento) {
  if (evento->type() == QEvent::ToolTip && m_suggerimento) return true;
  return QChartView::viewportEvent(evento);
}

void GraficoInterattivo::mouseReleaseEvent(QMouseEvent* evento) {
  if (m_trascinamento && evento->button() == Qt::LeftButton) {
    m_trascinamento.reset();
    viewport()->unsetCursor();
    evento->accept();
    const QPointF punto = NelGrafico(evento->position());
    if (!m_spostato && chart()->plotArea().contains(punto) && !chart()->series().isEmpty())
      emit Cliccato(chart()->mapToValue(punto));
    return;
  }
  QChartView::mouseReleaseEvent(evento);
  if (m_selezione) {
    m_selezione = false;
    setRubberBand(QChartView::NoRubberBand);
  }
}

}  // namespace lottolab::gui
