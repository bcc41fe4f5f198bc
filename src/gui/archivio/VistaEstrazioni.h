#pragma once

// What the archive windows of every game share: the table of draws and the date a user looks for.

#include <QDate>
#include <QTableView>

#include "archive/Estrazione.h"

namespace lottolab::gui {

// A table of draws: whole rows selected one at a time, rows of fixed height, so that the view
// places any of a hundred thousand rows without measuring the others.
void PreparaTabellaEstrazioni(QTableView& tabella);

// The date of the calendar as the archive's tables search it.
GruppoData DataDelCalendario(const QDate& data);

}  // namespace lottolab::gui
