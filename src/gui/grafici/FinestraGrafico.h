#pragma once

// What every chart window shares: its choices on top, the picture in one tab and the table of its
// values in another (which exports as every table does), and below them the picture's save to PNG
// or PDF and, for a chart, the reset of the zoom. The window carries the program's icon.

#include <QAbstractItemModel>
#include <QString>
#include <QWidget>

#include <optional>
#include <utility>

#include "archive/TabellaEstrazioni.h"

class QLabel;
class QTabWidget;
class QTableView;

namespace lottolab::gui {

class GraficoInterattivo;
class SceltePeriodo;

class FinestraGrafico : public QWidget {
  Q_OBJECT

 public:
  explicit FinestraGrafico(QWidget* parent = nullptr);

  // Room for the choices above the picture and the axes' labels.
  QSize sizeHint() const override { return {960, 640}; }

  // The picture tab's widget, as the PNG and PDF take it.
  QWidget* Immagine() const { return m_immagine; }
  QTableView* TabellaDati() const { return m_tabella; }

 protected:
  // Lays out the window once: `scelte` above, `immagine` and a table of `modello` in two tabs.
  // `grafico`, when the picture is one, gets the reset button; `aiuto` is the line under the picture.
  void Componi(QWidget* scelte, QWidget* immagine, QAbstractItemModel* modello, GraficoInterattivo* grafico,
               const QString& aiuto);
  // A message in place of the picture's help line, for a choice that cannot be drawn; empty clears it.
  void MostraAvviso(const QString& avviso);
  // The draws of the period chosen in `periodo`; nothing, with the reason shown, when there is none.
  std::optional<std::pair<int, int>> IntervalloScelto(const SceltePeriodo& periodo, const TabellaEstrazioni& archivio);

 private:
  void SalvaPng();
  void SalvaPdf();

  QWidget* m_immagine = nullptr;
  QTableView* m_tabella = nullptr;
  QLabel* m_aiuto = nullptr;
  QLabel* m_avviso = nullptr;
};

// Opens `finestra` beside `vicino`: in the multi-document area that holds it, or as a window of its
// own; either way it is deleted on close and shows the program's icon.
void ApriAccanto(QWidget* vicino, QWidget* finestra);

}  // namespace lottolab::gui
