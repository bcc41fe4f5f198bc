#pragma once

// The heat map of the delays: for each wheel and for all together a block of the 90 numbers in nine
// rows of ten (1-10 on top, 81-90 at the bottom), each cell coloured as the delay table colours a
// delay. Twelve blocks of 9 x 10 read at 1024 x 768 where 90 columns would be slivers. The view
// paints the model's cells, shows their tooltips and tells which cell was clicked.

#include <QWidget>

#include <optional>
#include <utility>

namespace lottolab::gui {

class ModelloMappaRitardi;

class VistaMappaRitardi : public QWidget {
  Q_OBJECT

 public:
  enum class Testo { Ritardo, Numero };

  explicit VistaMappaRitardi(const ModelloMappaRitardi& modello, QWidget* parent = nullptr);

  void ImpostaTesto(Testo testo);
  // Where the cell of `numero` (1..90) on `ruota` (1..12) is painted at the present size.
  QRectF Rettangolo(int ruota, int numero) const;
  // The wheel and number of the cell under `punto`; nothing between the cells.
  std::optional<std::pair<int, int>> CellaIn(QPointF punto) const;

  QSize sizeHint() const override { return {900, 560}; }
  QSize minimumSizeHint() const override { return {480, 320}; }

 signals:
  void CellaScelta(int ruota, int numero);

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  bool event(QEvent* evento) override;

 private:
  // The blocks' columns and rows for the present shape: 4 x 3 on a wide view, 3 x 4 on a tall one.
  std::pair<int, int> Griglia() const;
  QRectF Blocco(int ruota) const;

  const ModelloMappaRitardi& m_modello;
  Testo m_testo = Testo::Ritardo;
};

}  // namespace lottolab::gui
