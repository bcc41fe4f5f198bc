#pragma once

// Qt's own texts (file chooser, standard buttons, calendar, the kinds of file) in Italian like ours:
// Debian's translation of Qt, the Italian locale for the names of months and of file types, and the
// few texts that translation lacks.

#include <QCoreApplication>

namespace lottolab::gui {

// Installs the translations on `applicazione` and makes Italian the default locale. Returns
// whether Debian's translation of Qt was found (package qt6-translations-l10n).
bool TraduciTestiQt(QCoreApplication& applicazione);

}  // namespace lottolab::gui
