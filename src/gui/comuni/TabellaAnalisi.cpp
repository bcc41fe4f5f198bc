#include "gui/comuni/TabellaAnalisi.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>

#include "gui/comuni/CopiaRighe.h"
#include "gui/comuni/EsportaTabella.h"

namespace lottolab::gui {

QTableView* NuovaTabellaAnalisi(QAbstractItemModel* modello, int ruolo_ordinamento, const char* nome,
                                const QString& titolo, QObject* proprietario) {
  auto* ordinamento = new QSortFilterProxyModel(proprietario);
  ordinamento->setSourceModel(modello);
  ordinamento->setSortRole(ruolo_ordinamento);
  auto* tabella = new QTableView;
  tabella->setObjectName(QString::fromLatin1(nome));
  tabella->setModel(ordinamento);
  tabella->setSortingEnabled(true);
  tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella->setSelectionMode(QAbstractItemView::ExtendedSelection);
  tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabella->verticalHeader()->hide();
  tabella->verticalHeader()->setDefaultSectionSize(tabella->fontMetrics().height() + 6);
  tabella->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  AggiungiCopiaRighe(tabella);
  AggiungiEsportazione(tabella, titolo);
  return tabella;
}

}  // namespace lottolab::gui
