#pragma once

// The values of the frequency chart as a table: each number with its frequency and how far it stands
// from the frequency that chance gives (in draws and as a share of it), which the "Dati" tab shows and
// exports and the bars' tooltips read. No widgets.

#include <QAbstractTableModel>

#include "stats/SerieGrafici.h"

namespace lottolab::gui {

class ModelloFrequenze : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Colonna { kColonnaNumero, kColonnaFrequenza, kColonnaScarto, kColonnaPercentuale, kColonne };

  explicit ModelloFrequenze(QObject* parent = nullptr);

  void Imposta(stats::FrequenzeNumeri frequenze);
  const stats::FrequenzeNumeri& Frequenze() const { return m_frequenze; }
  // The number, its frequency and its distance from the expected one, for a bar's tooltip.
  QString Descrizione(int numero) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  double Scarto(int numero) const;

  stats::FrequenzeNumeri m_frequenze;
};

}  // namespace lottolab::gui
