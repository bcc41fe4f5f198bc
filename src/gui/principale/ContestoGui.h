#pragma once

// What every window of the desktop shares: the configuration, the archive loaded whole into memory,
// and the notice that it changed (an update, a change of settings), so that open windows refresh.

#include <QObject>

#include <memory>

#include "app/Configurazione.h"
#include "archive/ControlloArchivio.h"
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
  // What the check of the archive found when it was last loaded.
  const RapportoArchivio& Rapporto() const { return m_rapporto; }
  // Why the archive could not be loaded the last time; empty when it was.
  const std::string& ErroreCaricamento() const { return m_errore_caricamento; }
  // Reads the archive file of the configuration again and tells every window. When it cannot be
  // read, the table becomes empty, so that no window shows the draws of another archive than the
  // one the settings name.
  Esito<Fatto> RicaricaArchivio();

 signals:
  void ArchivioCambiato();

 private:
  app::Configurazione m_configurazione;
  std::shared_ptr<const TabellaEstrazioni> m_archivio;
  RapportoArchivio m_rapporto;
  std::string m_errore_caricamento;
};

}  // namespace lottolab::gui
