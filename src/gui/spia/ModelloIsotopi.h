#pragma once

// The two tables of the isotopes: the events draw by draw (draw, position, number, wheels) and, for
// every number in every position, the frequency and delay of its isotope event. No widgets: tested
// as the view reads them.

#include <QAbstractTableModel>

#include <memory>
#include <vector>

#include "archive/TabellaEstrazioni.h"
#include "stats/Isotopi.h"

namespace lottolab::gui {

class ModelloEventiIsotopi : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Colonna { kColonnaEstrazione, kColonnaData, kColonnaPosizione, kColonnaNumero, kColonnaRuote, kColonne };

  explicit ModelloEventiIsotopi(QObject* parent = nullptr);

  void Mostra(std::shared_ptr<const stats::EsitoIsotopi> esito, std::shared_ptr<const TabellaEstrazioni> archivio);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  std::shared_ptr<const stats::EsitoIsotopi> m_esito;
  std::shared_ptr<const TabellaEstrazioni> m_archivio;
};

class ModelloStatisticheIsotopi : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Colonna { kColonnaNumero, kColonnaPosizione, kColonnaFrequenza, kColonnaRitardo, kColonnaUltima, kColonne };

  explicit ModelloStatisticheIsotopi(QObject* parent = nullptr);

  // The 450 pairs of number and position, or none without an outcome.
  void Mostra(std::shared_ptr<const stats::EsitoIsotopi> esito, std::shared_ptr<const TabellaEstrazioni> archivio);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  std::shared_ptr<const stats::EsitoIsotopi> m_esito;
  std::shared_ptr<const TabellaEstrazioni> m_archivio;
};

// The codes of the wheels of `ruote` (bit r - 1 for wheel r): "BA, CA, NZ".
QString SigleRuote(uint16_t ruote);

}  // namespace lottolab::gui
