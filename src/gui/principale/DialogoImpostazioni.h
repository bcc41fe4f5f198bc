#pragma once

// The settings dialog: the archive, the scripts folder and the look of the HTML output, written to
// the configuration file when the user saves.

#include <QColor>
#include <QDialog>

#include <memory>

#include "gui/archivio/InterlocutoreGui.h"
#include "gui/principale/ContestoGui.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace lottolab::gui {

class DialogoImpostazioni : public QDialog {
  Q_OBJECT

 public:
  explicit DialogoImpostazioni(ContestoGui& contesto, QWidget* parent = nullptr);

  // Saves and reloads the archive. A configuration that cannot be written keeps the dialog open with
  // the user's edits, and so does a new archive that cannot be read (a folder, a file that is not an
  // archive). A new archive that does not exist yet is saved only if the user confirms it, and then
  // the window shows it empty.
  void accept() override;

  // Who shows the messages and asks the questions; message boxes unless replaced (tests answer
  // without a window).
  void ImpostaInterlocutore(std::unique_ptr<Interlocutore> interlocutore) {
    m_interlocutore = std::move(interlocutore);
  }

 private:
  void ScegliArchivio();
  void ScegliCartellaScript();
  void ScegliColore();
  void MostraColore();
  // Whether the archive of `configurazione` may become the one the settings name.
  bool ArchivioAccettabile(const app::Configurazione& configurazione);

  ContestoGui& m_contesto;
  QLineEdit* m_archivio;
  QLineEdit* m_cartella_script;
  QPushButton* m_pulsante_colore;
  QColor m_colore_sfondo;
  QCheckBox* m_mantieni_pagina;
  std::unique_ptr<Interlocutore> m_interlocutore;
};

}  // namespace lottolab::gui
