#pragma once

// A vertex as the structure editor's grid shows it: a disc over its cell's number, a tag with its
// caption in the band above the number, a red ring on a pivot and an orange fill when it closes the figure.

#include <QGraphicsItem>
#include <QRectF>

#include "figures/Struttura.h"

namespace lottolab::gui {

// The top of every cell of the grid is left to the caption of the vertex drawn on it, the rest to
// the number: a caption never covers a number, its own or its neighbours'.
inline constexpr qreal kFasciaEtichetta = 10;

class QvVertice : public QGraphicsItem {
 public:
  // `numero` is the number the cell shows, 0 for none.
  QvVertice(const figures::ClsVertice& vertice, int numero, const QRectF& cella);

  int16_t Index() const { return m_vertice.Index; }

  QRectF boundingRect() const override;
  void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

 private:
  QRectF Disco() const;
  QRectF Etichetta() const;

  figures::ClsVertice m_vertice;
  int m_numero;
  QRectF m_cella;
};

}  // namespace lottolab::gui
