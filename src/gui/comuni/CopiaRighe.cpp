#include "gui/comuni/CopiaRighe.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QTableView>

#include <algorithm>
#include <vector>

namespace lottolab::gui {

namespace {

bool ColonnaNascosta(const QAbstractItemView& vista, int colonna) {
  const auto* tabella = qobject_cast<const QTableView*>(&vista);
  return tabella != nullptr && tabella->isColumnHidden(colonna);
}

}  // namespace

QString TestoRigheScelte(const QAbstractItemView& vista) {
  const QAbstractItemModel* modello = vista.model();
  if (modello == nullptr || vista.selectionModel() == nullptr) return {};
  std::vector<int> righe;
  for (const QModelIndex& indice : vista.selectionModel()->selectedIndexes()) righe.push_back(indice.row());
  std::sort(righe.begin(), righe.end());
  righe.erase(std::unique(righe.begin(), righe.end()), righe.end());
  if (righe.empty()) return {};

  std::vector<int> colonne;
  for (int colonna = 0; colonna < modello->columnCount(); ++colonna)
    if (!ColonnaNascosta(vista, colonna)) colonne.push_back(colonna);
  QStringList linee;
  QStringList titoli;
  for (int colonna : colonne) titoli << modello->headerData(colonna, Qt::Horizontal).toString();
  linee << titoli.join('\t');
  for (int riga : righe) {
    QStringList celle;
    for (int colonna : colonne) celle << modello->index(riga, colonna).data().toString();
    linee << celle.join('\t');
  }
  return linee.join('\n') + '\n';
}

void AggiungiCopiaRighe(QAbstractItemView* vista) {
  auto* copia = new QAction(QStringLiteral("Copia le righe scelte"), vista);
  copia->setShortcut(QKeySequence::Copy);
  copia->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  QObject::connect(copia, &QAction::triggered, vista, [vista] {
    const QString testo = TestoRigheScelte(*vista);
    if (!testo.isEmpty()) QApplication::clipboard()->setText(testo);
  });
  vista->addAction(copia);
}

}  // namespace lottolab::gui
