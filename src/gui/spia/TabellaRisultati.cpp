#include "gui/spia/TabellaRisultati.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>

#include "gui/comuni/CopiaRighe.h"
#include "gui/comuni/EsportaTabella.h"

namespace lottolab::gui {

QTableView* NuovaTabellaRisultati(QAbstractItemModel* modello, const QString& titolo, const char* nome, int colonna,
                                  Qt::SortOrder ordine, QWidget* parent) {
  auto* ordinamento = new QSortFilterProxyModel(parent);
  ordinamento->setSourceModel(modello);
  ordinamento->setSortRole(kRuoloOrdinamentoSpia);
  auto* tabella = new QTableView(parent);
  tabella->setObjectName(nome);
  tabella->setModel(ordinamento);
  tabella->setSortingEnabled(true);
  tabella->sortByColumn(colonna, ordine);
  tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella->setSelectionMode(QAbstractItemView::ExtendedSelection);
  tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabella->setAlternatingRowColors(true);
  tabella->verticalHeader()->hide();
  tabella->verticalHeader()->setDefaultSectionSize(tabella->fontMetrics().height() + 6);
  tabella->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  AggiungiCopiaRighe(tabella);
  AggiungiEsportazione(tabella, titolo);
  return tabella;
}

QVariant CellaNumerica(const QVariant& valore, const QVariant& testo, int ruolo) {
  switch (ruolo) {
    case kRuoloOrdinamentoSpia: return valore;
    case Qt::DisplayRole: return testo;
    case Qt::TextAlignmentRole: return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    default: return {};
  }
}

}  // namespace lottolab::gui
