#pragma once

// The dialog that writes a condition of the structure: forms over the vertices picked by caption,
// joined with And or Or, into a text the user may also edit by hand. OK accepts only a text that
// compiles against the structure's vertices.

#include <QDialog>

#include <vector>

#include "figures/Struttura.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace lottolab::gui {

class F_InsCondizione : public QDialog {
  Q_OBJECT

 public:
  F_InsCondizione(std::vector<figures::ClsVertice> vertici, const QString& testo, QWidget* parent = nullptr);

  QString Testo() const;

  void accept() override;

 private:
  void AggiornaScelte();
  void AggiungiForma();

  std::vector<figures::ClsVertice> m_vertici;
  QComboBox* m_forma;
  QComboBox* m_vertice_a;
  QComboBox* m_vertice_b;
  QSpinBox* m_numero;
  QCheckBox* m_negata;
  QComboBox* m_connettivo;
  QPushButton* m_aggiungi;
  QLineEdit* m_testo;
};

}  // namespace lottolab::gui
