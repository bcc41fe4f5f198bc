#pragma once

// The table of an analysis window: sortable by its headers through a proxy over `modello`, whole
// rows chosen, several at once, copied with Ctrl+C and exported from its context menu, columns
// sharing the width.

#include <QAbstractItemModel>
#include <QString>
#include <QTableView>

namespace lottolab::gui {

// `ruolo_ordinamento` is the role the proxy sorts by; `titolo` names the exported files.
QTableView* NuovaTabellaAnalisi(QAbstractItemModel* modello, int ruolo_ordinamento, const char* nome,
                                const QString& titolo, QObject* proprietario);

}  // namespace lottolab::gui
