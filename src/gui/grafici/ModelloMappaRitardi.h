#pragma once

// The current delays of the 90 numbers on the eleven wheels and on all together at one end draw,
// as the heat map paints them and its "Dati" tab exports them: a row per number, a column per wheel,
// each cell its delay coloured against the historical maximum, its figures in the tooltip. Read
// from a prepared stats::Analitico, so a new end draw costs microseconds. No widgets.

#include <QAbstractTableModel>

#include <memory>
#include <optional>

#include "stats/Analitico.h"

namespace lottolab::gui {

class ModelloMappaRitardi : public QAbstractTableModel {
  Q_OBJECT

 public:
  // Column 0 holds the number; column r (1..12) the wheel r, 12 for all together.
  static constexpr int kColonnaNumero = 0;
  static constexpr int kColonne = kTutteLeRuote + 1;

  explicit ModelloMappaRitardi(QObject* parent = nullptr);

  // The prepared figures of an archive, shown at its last draw; null shows no rows.
  void ImpostaAnalitico(std::shared_ptr<const stats::Analitico> analitico);
  // The end draw, brought inside 1..the archive's draws.
  void ImpostaFine(int fine);
  int Fine() const { return m_tabella.Fine(); }

  // The figures of `numero` (1..90) on `ruota` (1..12); nothing for a wheel not drawn yet.
  std::optional<stats::StatisticaNumero> Figure(int ruota, int numero) const;
  // The cell of the number on the wheel, as the map reads it.
  QModelIndex Cella(int ruota, int numero) const { return index(numero - 1, ruota); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  QString Suggerimento(int ruota, int numero) const;

  std::shared_ptr<const stats::Analitico> m_analitico;
  stats::TabellaAnalitica m_tabella;
};

// "Bari", ..., "Tutte" for 12.
QString NomeColonnaRuota(int ruota);

}  // namespace lottolab::gui
