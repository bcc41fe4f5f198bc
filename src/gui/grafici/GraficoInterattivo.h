#pragma once

// A chart that the user explores with the mouse, as every chart window of the desktop does: the wheel
// zooms the horizontal axis around the pointer, Shift and a drag zoom on the stretch dragged over, a
// plain drag moves along the axis, and the pointer's tooltip says what lies under it. The horizontal
// axis never zooms out past the range it was given, so the reset is never far.

#include <QChartView>
#include <QString>

#include <functional>
#include <optional>
#include <utility>

namespace lottolab::gui {

class GraficoInterattivo : public QChartView {
  Q_OBJECT

 public:
  // The text under the pointer, from the point in the values of the first series' axes; empty for none.
  using Suggerimento = std::function<QString(QPointF)>;

  explicit GraficoInterattivo(QWidget* parent = nullptr);

  // Shows `grafico` in place of the chart shown, which is deleted with its axes.
  void ImpostaGrafico(QChart* grafico);
  void ImpostaSuggerimento(Suggerimento suggerimento) { m_suggerimento = std::move(suggerimento); }
  // Remembers the axes' ranges as they are now, where Ripristina brings them back.
  void MemorizzaVistaIniziale();
  void Ripristina();
  // Zooms by `fattore` (below 1 zooms in) around the horizontal position `x` of the chart.
  void Zoom(double fattore, double x);

 signals:
  // A click of the left button that did not drag, at a point of the plot in the values of the first
  // series' axes.
  void Cliccato(QPointF valore);

 protected:
  void wheelEvent(QWheelEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  bool viewportEvent(QEvent* evento) override;

 private:
  // The horizontal axis's range as numbers (milliseconds for dates); nothing for an axis of categories.
  std::optional<std::pair<double, double>> RangeOrizzontale() const;
  // A point of the view's viewport in the chart's coordinates, where the plot area and the values are.
  QPointF NelGrafico(QPointF vista) const;
  // Brings the view back inside the range it was given where a zoom out carried it beyond.
  void Contieni();

  Suggerimento m_suggerimento;
  std::optional<QPointF> m_trascinamento;
  bool m_spostato = false;
  bool m_selezione = false;
  std::optional<std::pair<double, double>> m_iniziale;
  std::function<void()> m_ripristina;
};

}  // namespace lottolab::gui
