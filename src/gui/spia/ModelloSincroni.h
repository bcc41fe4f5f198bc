#pragma once

// The rows of the sincroni: every companion of the number with how often it came out with it, the
// share of the number's appearances, its delay as a companion and the date it last did. No widgets:
// tested as the view reads it.

#include <QAbstractTableModel>

#include <memory>
#include <vector>

#include "archive/TabellaEstrazioni.h"
#include "stats/Sincroni.h"

namespace lottolab::gui {

class ModelloSincroni : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Colonna { kColonnaNumero, kColonnaFrequenza, kColonnaPercentuale, kColonnaRitardo, kColonnaUltima, kColonne };

  explicit ModelloSincroni(QObject* parent = nullptr);

  // The companions of `numero` from `esito`, the dates read from `archivio`.
  void Mostra(const stats::EsitoSincroni& esito, int numero, std::shared_ptr<const TabellaEstrazioni> archivio);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  int m_uscite = 0;
  std::vector<stats::Compagno> m_righe;
  std::shared_ptr<const TabellaEstrazioni> m_archivio;
};

}  // namespace lottolab::gui
