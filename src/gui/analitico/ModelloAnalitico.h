#pragma once

// The grid of the Tabellone analitico: the 90 numbers down, the eleven wheels and all of them
// together across, at one end draw. Each cell shows one figure (the delay unless another is chosen),
// coloured by the delay against the historical maximum, with every figure and the previous delays in
// its tooltip. A wheel not drawn yet at the end draw shows a dash. The figures come from a prepared
// stats::Analitico, so moving the end draw costs microseconds and happens on the window's thread;
// the preparation itself is the window's to run elsewhere.

#include <QAbstractTableModel>

#include <memory>

#include "stats/Analitico.h"

namespace lottolab::gui {

class ModelloAnalitico : public QAbstractTableModel {
  Q_OBJECT

 public:
  // Column 0 holds the number; column r (1..12) the wheel r of the table, 12 for all together.
  static constexpr int kColonnaNumero = 0;
  static constexpr int kColonne = kTutteLeRuote + 1;
  enum class Dato { Ritardo, Frequenza, Storico, Incremento };
  // The figure as a number for a sorting proxy; -1 for a wheel not drawn yet, below every figure.
  static constexpr int kRuoloOrdinamento = Qt::UserRole;
  // How many previous delays the tooltip lists.
  static constexpr int kRitardiPrecedenti = 12;

  explicit ModelloAnalitico(QObject* parent = nullptr);

  // The prepared figures of an archive; null shows no rows.
  void ImpostaAnalitico(std::shared_ptr<const stats::Analitico> analitico);
  // The end draw, 1..the archive's draws; outside that range it is brought inside.
  void ImpostaFine(int fine);
  void ImpostaDato(Dato dato);

  int Fine() const { return m_tabella.Fine(); }
  // The figures of the cell (number 1..90, wheel 1..12); nothing for a wheel not drawn yet.
  std::optional<stats::StatisticaNumero> Figure(int numero, int ruota) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  int Valore(const stats::StatisticaNumero& figure) const;
  QString Suggerimento(int numero, int ruota) const;

  std::shared_ptr<const stats::Analitico> m_analitico;
  stats::TabellaAnalitica m_tabella;
  Dato m_dato = Dato::Ritardo;
};

}  // namespace lottolab::gui
