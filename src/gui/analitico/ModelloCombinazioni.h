#pragma once

// The rows of the table of the ambi or of the most delayed terni: each combination with its delay,
// historical maximum, frequency and increment, coloured by the delay against the maximum. The figures
// come from stats (AnaliticoAmbi, TerniRitardatari); the model lays them out, testable without widgets.

#include <QAbstractTableModel>

#include <array>
#include <vector>

#include "stats/AnaliticoAmbi.h"
#include "stats/TerniRitardatari.h"

namespace lottolab::gui {

class ModelloCombinazioni : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Colonna {
    kColonnaCombinazione,
    kColonnaRitardo,
    kColonnaStorico,
    kColonnaFrequenza,
    kColonnaIncremento,
    kColonne
  };
  // The figures as numbers, and the combination by its numbers, for a sorting proxy.
  static constexpr int kRuoloOrdinamento = Qt::UserRole;

  explicit ModelloCombinazioni(QObject* parent = nullptr);

  // The 4005 ambi of `ruota` (1..12), in their order; none when the wheel has no figures.
  void MostraAmbi(const stats::AnaliticoAmbi& ambi, int ruota);
  void MostraTerni(const std::vector<stats::TernoStatistica>& terni);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  struct Riga {
    // Unused numbers are 0: an ambo holds two.
    std::array<int, 3> numeri;
    stats::StatisticaNumero dati;
  };

  std::vector<Riga> m_righe;
};

}  // namespace lottolab::gui
