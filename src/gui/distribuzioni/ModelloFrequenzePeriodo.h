#pragma once

// The numbers down, the periods across: how often each number came out in each period on the
// chosen wheels, then its total, the total a fair draw gives and the gap between them in percent.
// Each count is coloured by how far it lies from what a fair draw gives in that period.

#include <QAbstractTableModel>

#include "stats/FrequenzePeriodo.h"

namespace lottolab::gui {

class ModelloFrequenzePeriodo : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int kRuoloOrdinamento = Qt::UserRole;
  static constexpr int kColonnaNumero = 0;
  // After the periods: the total, the expected total and the gap.
  static constexpr int kColonneFinali = 3;

  explicit ModelloFrequenzePeriodo(QObject* parent = nullptr);

  void ImpostaFrequenze(stats::FrequenzePeriodi frequenze, stats::TipoPeriodo tipo);
  const stats::FrequenzePeriodi& Frequenze() const { return m_frequenze; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  int Periodi() const { return static_cast<int>(m_frequenze.periodi.size()); }
  QString NomePeriodo(size_t periodo) const;

  stats::FrequenzePeriodi m_frequenze;
  stats::TipoPeriodo m_tipo = stats::TipoPeriodo::Anno;
};

}  // namespace lottolab::gui
