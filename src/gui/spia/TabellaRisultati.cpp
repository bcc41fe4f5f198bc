#include "gui/spia/TabellaRisultati.h"

#include <QHeaderView>

#include "gui/comuni/TabellaAnalisi.h"

namespace lottolab::gui {

QTableView* NuovaTabellaRisultati(QAbstractItemModel* modello, const QString& titolo, const char* nome, int colonna,
                                  Qt::SortOrder ordine, QWidget* parent) {
  QTableView* tabella = NuovaTabellaAnalisi(modello, kRuoloOrdinamentoSpia, titolo);
  tabella->setParent(parent);
  tabella->setObjectName(nome);
  tabella->sortByColumn(colonna, ordine);
  tabella->setAlternatingRowColors(true);
  tabella->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
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
