#pragma once

// One export for every table of the desktop: a window calls AggiungiEsportazione on its view and
// the view's context menu offers CSV, a real spreadsheet (.xlsx), printing with a preview, and PDF.
// What is exported is what the view shows, in its order (a sorted view exports sorted rows), through
// esporta/, the same writer as the scripts' Xls names. The pieces below the menu are functions of
// the model alone, so the tests check the files without a display.

#include <QAbstractItemModel>
#include <QString>

#include <filesystem>

#include "archive/Esito.h"
#include "esporta/CartellaLavoro.h"
#include "esporta/Csv.h"

class QTableView;

namespace lottolab::gui {

// The column titles, then every row as shown (DisplayRole).
esporta::RigheCsv RigheDelModello(const QAbstractItemModel& modello);
// The same as a workbook of one sheet named `titolo`: titles bold, numbers as numbers, the
// colours the model gives its cells kept, columns as wide as their texts.
esporta::CartellaLavoro CartellaDelModello(const QAbstractItemModel& modello, const QString& titolo);
// The table printed to a PDF file, titled, all at once.
Esito<Fatto> ScriviPdf(const QAbstractItemModel& modello, const QString& titolo, const std::filesystem::path& file);

// Where the save dialog of an export first proposes the file `nome`: the user's documents folder, or
// the home folder where there is none, never the folder the program happened to start in.
QString PropostaEsportazione(const QString& nome);

// Adds the export actions to `vista`'s context menu (and Ctrl+Shift+E for the spreadsheet);
// `titolo` names the sheet, the printed page and the file proposed.
void AggiungiEsportazione(QTableView* vista, const QString& titolo);

}  // namespace lottolab::gui
