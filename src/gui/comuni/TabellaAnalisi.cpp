#include "gui/comuni/TabellaAnalisi.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QTableView>

#include <algorithm>
#include <cmath>

#include "gui/comuni/CopiaRighe.h"
#include "gui/comuni/EsportaTabella.h"

namespace lottolab::gui {

QTableView* NuovaTabellaAnalisi(QAbstractItemModel* modello, int ruolo_ordinamento, const QString& titolo) {
  auto* tabella = new QTableView;
  auto* ordinamento = new QSortFilterProxyModel(tabella);
  ordinamento->setSourceModel(modello);
  ordinamento->setSortRole(ruolo_ordinamento);
  tabella->setModel(ordinamento);
  tabella->setSortingEnabled(true);
  tabella->sortByColumn(-1, Qt::AscendingOrder);
  tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella->setSelectionMode(QAbstractItemView::ExtendedSelection);
  tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabella->verticalHeader()->hide();
  tabella->verticalHeader()->setDefaultSectionSize(tabella->fontMetrics().height() + 6);
  tabella->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  tabella->horizontalHeader()->setStretchLastSection(true);
  // Columns follow their contents whenever the model is filled again.
  QObject::connect(modello, &QAbstractItemModel::modelReset, tabella,
                   [tabella] { tabella->resizeColumnsToContents(); });
  AggiungiCopiaRighe(tabella);
  AggiungiEsportazione(tabella, titolo);
  return tabella;
}

QString TestoData(const GruppoData& data) {
  return QStringLiteral("%1/%2/%3")
      .arg(data.giorno, 2, 10, QChar('0'))
      .arg(data.mese, 2, 10, QChar('0'))
      .arg(data.anno, 4, 10, QChar('0'));
}

QColor SfondoScarto(double osservata, double attesa) {
  if (attesa <= 0) return Qt::white;
  const double scarti = std::clamp((osservata - attesa) / std::sqrt(attesa) / 3.0, -1.0, 1.0);
  const int tinta = static_cast<int>(std::lround(std::abs(scarti) * 150));
  return scarti >= 0 ? QColor(255, 255 - tinta, 255 - tinta) : QColor(255 - tinta, 255 - tinta / 2, 255);
}

}  // namespace lottolab::gui
