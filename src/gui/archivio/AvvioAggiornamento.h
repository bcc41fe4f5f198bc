#pragma once

// "Aggiorna archivio" as both the main window and the archive window offer it: the user picks the
// source, the update runs on another thread behind a progress dialog, and the outcome is shown.

#include <QWidget>

#include "gui/principale/ContestoGui.h"

namespace lottolab::gui {

// Returns at once; when the update ends the archive is reloaded, so every window sees the new draws.
void AvviaAggiornamentoArchivio(ContestoGui& contesto, QWidget* finestra);

}  // namespace lottolab::gui
