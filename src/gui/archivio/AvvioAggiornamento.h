#pragma once

// "Aggiorna archivio" as both the main window and the Lotto's archive window offer it, and
// "Importa da file..." of each other game's archive window: the user picks the source, the work
// runs on another thread behind a progress dialog, the archives that changed are reloaded, so that
// every window sees the new draws, and the outcome is told in one message.

#include <QWidget>

#include <memory>

#include "gui/archivio/DialoghiArchivio.h"
#include "gui/principale/ContestoGui.h"

namespace lottolab::gui {

// Returns at once. Asks through `dialoghi`, or through message boxes over `finestra` when none is given.
void AvviaAggiornamentoArchivio(ContestoGui& contesto, QWidget* finestra,
                                std::shared_ptr<DialoghiArchivio> dialoghi = nullptr);

// Returns at once. The results file the user picks is imported into the archive of `gioco`.
void AvviaImportazioneGioco(ContestoGui& contesto, Gioco gioco, QWidget* finestra,
                            std::shared_ptr<DialoghiArchivio> dialoghi = nullptr);

}  // namespace lottolab::gui
