#pragma once

// The settings dialog: the archive, the scripts folder and the look of the HTML output, written to
// the configuration file when the user saves.

#include <QColor>
#include <QDialog>

#include "ContestoGui.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace lottolab::gui {

class DialogoImpostazioni : public QDialog {
  Q_OBJECT

 public:
  explicit DialogoImpostazioni(ContestoGui& contesto, QWidget* parent = nullptr);

  // Saves and reloads the archive. A configuration that cannot be written keeps the dialog open with
  // the user's edits; an archive that cannot be read is told, and the saved settings stand.
  void accept() override;

 private:
  void ScegliArchivio();
  void ScegliCartellaScript();
  void ScegliColore();
  void MostraColore();

  ContestoGui& m_contesto;
  QLineEdit* m_archivio;
  QLineEdit* m_cartella_script;
  QPushButton* m_pulsante_colore;
  QColor m_colore_sfondo;
  QCheckBox* m_mantieni_pagina;
};

}  // namespace lottolab::gui
