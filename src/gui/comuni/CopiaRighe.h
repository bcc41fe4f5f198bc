#pragma once

// Ctrl+C on a table: the chosen rows, whole, as tab-separated text with the column titles first, the
// form a spreadsheet pastes into cells. The text is what the view shows, in the view's order.

#include <QAbstractItemView>
#include <QString>

namespace lottolab::gui {

// The text of the rows chosen in `vista`, hidden columns left out; empty when none is chosen.
QString TestoRigheScelte(const QAbstractItemView& vista);

// Adds to `vista` the Ctrl+C shortcut that puts TestoRigheScelte on the clipboard.
void AggiungiCopiaRighe(QAbstractItemView* vista);

}  // namespace lottolab::gui
