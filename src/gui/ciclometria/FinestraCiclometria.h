#pragma once

// The "Ciclometria" window: any draw of the archive on the circle of the 90 numbers, the numbers of
// the chosen wheels marked, and beside it the list of the figures among them. Only the figure chosen
// in the list is drawn: six wheels hold hundreds of figures, and all of them at once hide the circle.

#include <QWidget>
#include <vector>

#include "gui/principale/ContestoGui.h"

class QListWidget;
class QSpinBox;
class QLabel;

namespace lottolab::gui {

class QvCerchio;

class FinestraCiclometria : public QWidget {
  Q_OBJECT

 public:
  explicit FinestraCiclometria(ContestoGui& contesto, QWidget* parent = nullptr);

  QvCerchio* Cerchio() const { return m_cerchio; }
  QListWidget* Ruote() const { return m_ruote; }
  QListWidget* Figure() const { return m_figure; }
  QSpinBox* Estrazione() const { return m_estrazione; }

 private:
  void Aggiorna();
  void MostraFigura(int riga);

  ContestoGui& m_contesto;
  QSpinBox* m_estrazione = nullptr;
  QLabel* m_data = nullptr;
  QListWidget* m_ruote = nullptr;
  QListWidget* m_figure = nullptr;
  QvCerchio* m_cerchio = nullptr;
  std::vector<int> m_marcati;
  std::vector<std::vector<int>> m_trovate;  // the vertices of each figure of the list
};

}  // namespace lottolab::gui
