#pragma once

// The figures of every number on every wheel (stats::Analitico) that the windows showing them at
// any end draw prepare from the archive, off the window's thread behind "Annulla".

#include <QSpinBox>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

#include "archive/TabellaEstrazioni.h"
#include "stats/Analitico.h"

namespace lottolab::gui {

// Returns at once. Once prepared, `fine` (the choice of the end draw) spans the archive and, when it
// showed the last draw, shows the new last one, without signalling; then `pronto` gets the figures.
// A failure is shown to the user; a cancelled preparation leaves the window as it was.
void PreparaAnalitico(QWidget* finestra, std::shared_ptr<const TabellaEstrazioni> archivio, const QString& descrizione,
                      const char* procedura, QSpinBox* fine,
                      std::function<void(std::shared_ptr<const stats::Analitico>)> pronto);

}  // namespace lottolab::gui
