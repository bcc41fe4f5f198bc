#pragma once

// The ten cadences, nine figures and nine decades one row each: the numbers of the class, how many
// of them came out, the current delay coloured against the longest, the longest, and how many of
// its numbers the last draw holds.

#include <QAbstractTableModel>

#include <vector>

#include "stats/ClassiNumeri.h"

namespace lottolab::gui {

class ModelloClassiNumeri : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int kRuoloOrdinamento = Qt::UserRole;
  enum Colonna { kTipo, kClasse, kNumeri, kFrequenza, kRitardo, kStorico, kNellUltima, kColonne };

  explicit ModelloClassiNumeri(QObject* parent = nullptr);

  void ImpostaClassi(std::vector<stats::StatisticaClasse> classi);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  std::vector<stats::StatisticaClasse> m_classi;
};

}  // namespace lottolab::gui
