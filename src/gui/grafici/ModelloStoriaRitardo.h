#pragma once

// The values of the delay history chart as a table (draw, date, delay), which is what its "Dati"
// tab shows and exports, and what the chart's tooltip and axes read: the instant of each draw on the
// time axis and the draw nearest to a point of it. No widgets: tested as the chart reads it.

#include <QAbstractTableModel>
#include <QDate>
#include <QString>

#include <vector>

#include "archive/Esito.h"
#include "archive/TabellaEstrazioni.h"
#include "stats/SerieGrafici.h"

namespace lottolab::gui {

// The numbers a user typed for a history: one to five different numbers 1..90 separated by blanks,
// commas, dashes or dots; anything else is refused with an Italian message that names it.
Esito<std::vector<int>> LeggiNumeriStoria(const QString& testo);

// "Storia del ritardo dell'ambo 7-45 su Bari", as the chart's title and the window's.
QString TitoloStoria(const std::vector<int>& numeri, int sorte, int ruota);

class ModelloStoriaRitardo : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Colonna { kColonnaEstrazione, kColonnaData, kColonnaRitardo, kColonne };

  explicit ModelloStoriaRitardo(QObject* parent = nullptr);

  // The history of draws of `tab`, which the model does not keep.
  void Imposta(stats::StoriaRitardo storia, const TabellaEstrazioni& tab);
  const stats::StoriaRitardo& Storia() const { return m_storia; }

  // The draw of the row on the time axis: its date at noon in milliseconds since 1970. A draw whose
  // date cannot be read takes the instant of the one before, so that the instants never go back.
  qint64 Istante(int riga) const { return m_istanti[static_cast<size_t>(riga)]; }
  // The row whose draw is nearest to `istante`; -1 when there are no rows.
  int RigaPiuVicina(double istante) const;
  // The draw, its date and the delay, for the tooltip.
  QString Descrizione(int riga) const;
  QString Data(int riga) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  stats::StoriaRitardo m_storia;
  std::vector<QDate> m_date;
  std::vector<qint64> m_istanti;
};

}  // namespace lottolab::gui
