#pragma once

// "Nuova giocata": a bet as the player wrote it on the ticket. The fields follow the game (wheels
// for the Lotto, the special number and the options for the others); what the bet's check refuses is
// said under the fields, in its words, and the dialog stays open until the bet is valid.

#include <QDialog>

#include "agenda/Giocata.h"
#include "archive/Esito.h"

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTableWidget;

namespace lottolab::gui {

class DialogoNuovaGiocata : public QDialog {
  Q_OBJECT

 public:
  explicit DialogoNuovaGiocata(QWidget* parent = nullptr);

  // The bet the fields describe, or the first fault in the user's words.
  Esito<agenda::Giocata> Giocata() const;

  void accept() override;

 private:
  void CambiaGioco();
  agenda::GiocoGiocata GiocoScelto() const;

  QComboBox* m_gioco;
  QLineEdit* m_numeri;
  QLabel* m_etichetta_speciale;
  QSpinBox* m_speciale;
  QWidget* m_ruote;
  std::vector<QCheckBox*> m_caselle_ruote;
  QTableWidget* m_poste;
  QDateEdit* m_dal;
  QSpinBox* m_colpi;
  QLineEdit* m_progressione;
  QCheckBox* m_ferma;
  QLineEdit* m_nota;
  QLabel* m_errore;
};

}  // namespace lottolab::gui
