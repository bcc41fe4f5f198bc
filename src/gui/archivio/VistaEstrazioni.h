#pragma once

// What the archive windows of every game share: the table of draws and the date a user looks for.

#include <QDate>
#include <QDateEdit>
#include <QTableView>

#include <functional>

#include "archive/Estrazione.h"

namespace lottolab::gui {

// A table of draws: whole rows, several at once copied with Ctrl+C, rows of fixed height, so that
// the view places any of a hundred thousand rows without measuring the others.
void PreparaTabellaEstrazioni(QTableView& tabella);

// Enter in the date box runs `vai`, as the button beside it does.
void VaiConInvio(QDateEdit& data, const std::function<void()>& vai);

// The date of the calendar as the archive's tables search it.
GruppoData DataDelCalendario(const QDate& data);

}  // namespace lottolab::gui
