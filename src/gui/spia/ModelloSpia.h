#pragma once

// The rows of the numeri spia: every number with the cases after which it came out, their share of
// all cases, the mean and the least colpo of its first appearance. No widgets: tested as the view
// reads it.

#include <QAbstractTableModel>

#include <vector>

#include "stats/NumeriSpia.h"

namespace lottolab::gui {

class ModelloSpia : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Colonna {
    kColonnaNumero,
    kColonnaPresenze,
    kColonnaPercentuale,
    kColonnaColpoMedio,
    kColonnaPrimoColpo,
    kColonne
  };

  explicit ModelloSpia(QObject* parent = nullptr);

  void Mostra(const stats::EsitoSpia& esito);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  int m_casi = 0;
  std::vector<stats::NumeroSeguito> m_righe;
};

}  // namespace lottolab::gui
