#pragma once

// The table view of the analysis windows, set up once: sorted by clicking a title through the
// model's sort role, several rows chosen, Ctrl+C copying them, the export in its context menu.

#include <QColor>
#include <QString>

#include "archive/Estrazione.h"

class QAbstractItemModel;
class QTableView;

namespace lottolab::gui {

// A view of `modello` sorted on `ruolo_ordinamento`; `titolo` names the export.
QTableView* NuovaTabellaAnalisi(QAbstractItemModel* modello, int ruolo_ordinamento, const QString& titolo);

// A date as the tables write it, "GG/MM/AAAA".
QString TestoData(const GruppoData& data);

// The background of a count against what a fair draw gives: white when they agree, towards red
// the more it exceeds it and towards blue the more it falls short, measured in standard deviations
// (full colour at three), so that a period of few draws does not look extreme for a small gap.
QColor SfondoScarto(double osservata, double attesa);

}  // namespace lottolab::gui
