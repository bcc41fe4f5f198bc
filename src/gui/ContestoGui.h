#pragma once

// What every window of the desktop shares: the configuration, the archive loaded whole into memory,
// and the notice that it changed (an update, a change of settings), so that open windows refresh.

#include <QObject>

#include <memory>

#include "app/Configurazione.h"
#include "archive/Esito.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::gui {

class ContestoGui : public QObject {
  Q_OBJECT

 public:
  explicit ContestoGui(app::Configurazione configurazione, QObject* parent = nullptr);

  const app::Configurazione& Configurazione() const { return m_configurazione; }
  // Changed settings take effect for what opens next; the archive is reloaded by RicaricaArchivio.
  void ImpostaConfigurazione(app::Configurazione configurazione);

  // The archive as last loaded: an empty table when the file could not be read.
  std::shared_ptr<const TabellaEstrazioni> Archivio() const { return m_archivio; }
  // Reads the archive file of the configuration again; on success every window is told.
  Esito<Fatto> RicaricaArchivio();

 signals:
  void ArchivioCambiato();

 private:
  app::Configurazione m_configurazione;
  std::shared_ptr<const TabellaEstrazioni> m_archivio;
};

}  // namespace lottolab::gui
