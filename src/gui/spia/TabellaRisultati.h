#pragma once

// The table of the windows of this room: sorted by a role that holds numbers, several rows chosen,
// Ctrl+C on them, the export in the context menu.

#include <QAbstractItemModel>
#include <QString>
#include <QTableView>

namespace lottolab::gui {

// The figures as numbers, for the sorting proxy of every model of the room.
inline constexpr int kRuoloOrdinamentoSpia = Qt::UserRole;

// A view of `modello` through a sorting proxy, sorted on `colonna` in `ordine`, exported as `titolo`.
QTableView* NuovaTabellaRisultati(QAbstractItemModel* modello, const QString& titolo, const char* nome, int colonna,
                                  Qt::SortOrder ordine, QWidget* parent);

// The parts of a table's cell that every model gives alike: the value to sort and show, aligned right.
QVariant CellaNumerica(const QVariant& valore, const QVariant& testo, int ruolo);

}  // namespace lottolab::gui
