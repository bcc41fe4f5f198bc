#pragma once

// The structure editor's grid: the table of draws for the grid's rows (wheel headers, one column per
// position, a label with the draw and its date on each row), the lines of the structure and its
// vertices (QvVertice). A click on a cell without a vertex is reported; a click on a vertex selects
// it, with Ctrl to add it to the selection.

#include <QGraphicsScene>

#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "archive/TabellaEstrazioni.h"
#include "figures/Piazzamento.h"
#include "gui/strutture/StruttureModello.h"

namespace lottolab::gui {

class GrigliaScena : public QGraphicsScene {
  Q_OBJECT

 public:
  explicit GrigliaScena(QObject* parent = nullptr);

  // Everything drawn anew; the selected vertices stay selected.
  void Mostra(const TabellaEstrazioni& tab, const StruttureModello& modello);
  // The Index of the selected vertices, in the structure's order.
  std::vector<int16_t> VerticiSelezionati() const;
  void Seleziona(int16_t index);

 signals:
  void CellaCliccata(int riga, int colonna);

 protected:
  void mousePressEvent(QGraphicsSceneMouseEvent* evento) override;
  void drawBackground(QPainter* painter, const QRectF& area) override;

 private:
  struct RigaMostrata {
    QString etichetta;
    std::array<uint8_t, figures::kColonneTabella> numeri{};
  };

  QRectF Cella(int riga, int colonna) const;
  // The part of the cell where its number is written, below the band of the captions.
  QRectF Numero(int riga, int colonna) const;
  std::optional<std::pair<int, int>> CellaIn(QPointF punto) const;

  GrigliaEstrazioni m_griglia;
  std::vector<RigaMostrata> m_righe;
  std::vector<int16_t> m_ordine;  // every vertex's Index, in the structure's order
};

}  // namespace lottolab::gui
