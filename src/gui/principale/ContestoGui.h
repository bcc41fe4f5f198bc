#pragma once

// What every window of the desktop shares: the configuration, the archives loaded whole into memory
// (the Lotto's and each other game's), and the notice that they changed (an update, a change of
// settings), so that open windows refresh.

#include <QObject>

#include <array>
#include <memory>

#include "app/Configurazione.h"
#include "archive/ControlloArchivio.h"
#include "archive/Esito.h"
#include "archive/TabellaEstrazioni.h"
#include "archive/TabellaGioco.h"

namespace lottolab::gui {

// The games whose archives the desktop loads beside the Lotto's, in the order its menus list them.
// The generic archive is not among them: its numbers per draw are its file's, not the program's.
inline constexpr std::array kGiochiDesktop{Gioco::SuperEnalotto, Gioco::DieciELotto, Gioco::DieciELottoOgniCinqueMinuti,
                                           Gioco::WinForLife};

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

  // The archive of a game of kGiochiDesktop as last loaded: an empty table when its file is missing
  // or could not be read.
  std::shared_ptr<const TabellaGioco> ArchivioGioco(Gioco gioco) const;
  // Why that archive could not be loaded the last time; empty when it was, or when it has no file yet.
  const std::string& ErroreGioco(Gioco gioco) const;
  // Reads the archive of every game of kGiochiDesktop again and tells every window. It never fails
  // as a whole: each archive that cannot be read becomes an empty table with its error kept, for
  // its window to show when the user opens it.
  void RicaricaArchiviGiochi();

 signals:
  void ArchivioCambiato();
  void ArchiviGiochiCambiati();
  // A window changed the agenda of the bets (added, checked, removed, seen), so that the others and
  // the main window's count of wins to see follow.
  void AgendaCambiata();

 private:
  app::Configurazione m_configurazione;
  std::shared_ptr<const TabellaEstrazioni> m_archivio;
  RapportoArchivio m_rapporto;
  std::string m_errore_caricamento;

  struct ArchivioCaricato {
    std::shared_ptr<const TabellaGioco> tabella;
    std::string errore;
  };
  static constexpr size_t kGiochi = static_cast<size_t>(Gioco::Generico) + 1;
  std::array<ArchivioCaricato, kGiochi> m_giochi;
};

}  // namespace lottolab::gui
