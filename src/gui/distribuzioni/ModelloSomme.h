#pragma once

// The three views of the sums of the draws, over one stats::AnalisiSomme: the sum of each draw on
// each wheel chosen; each sum value with its count, the count a fair draw gives, its last draw and
// its delay; and the frequency table of the sums gathered into classes.

#include <QAbstractTableModel>

#include <memory>

#include "stats/Somme.h"

namespace lottolab::gui {

class ModelloSomme : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum class Vista { Estrazioni, Valori, Classi };
  static constexpr int kRuoloOrdinamento = Qt::UserRole;

  explicit ModelloSomme(Vista vista, QObject* parent = nullptr);

  // The dates come from `estrazioni`, the table the analysis was made on.
  void ImpostaSomme(std::shared_ptr<const stats::EstrazioniPerAnalisi> estrazioni,
                    std::shared_ptr<const stats::AnalisiSomme> analisi);
  // How many consecutive sum values a class gathers (the Classi view).
  void ImpostaAmpiezzaClassi(int ampiezza);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  QVariant DatoEstrazione(int riga, int colonna, int ruolo) const;
  QVariant DatoValore(int riga, int colonna, int ruolo) const;
  QVariant DatoClasse(int riga, int colonna, int ruolo) const;

  Vista m_vista;
  std::shared_ptr<const stats::EstrazioniPerAnalisi> m_estrazioni;
  std::shared_ptr<const stats::AnalisiSomme> m_analisi;
  int m_ampiezza = 10;
  std::vector<stats::ClasseSomme> m_classi;
};

}  // namespace lottolab::gui
