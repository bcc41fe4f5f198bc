#pragma once

// The draws that a search found, one row each: the draw's number and date, then its numbers on each
// wheel chosen (or the game's numbers), the wheels holding a number searched for highlighted, and
// how many of those numbers the draw holds. Filled with the outcome of stats::CercaEstrazioni.

#include <QAbstractTableModel>
#include <QString>

#include <memory>
#include <vector>

#include "archive/Esito.h"
#include "stats/EstrazioniPerAnalisi.h"
#include "stats/RicercaEstrazioni.h"

namespace lottolab::gui {

// The numbers written in `testo`, separated by blanks, commas or semicolons, each in 1..massimo;
// an Italian message naming the first that is not. Empty text gives no numbers.
Esito<std::vector<int>> LeggiNumeriCercati(const QString& testo, int massimo);

class ModelloRicercaEstrazioni : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int kRuoloOrdinamento = Qt::UserRole;
  static constexpr int kColonnaId = 0;
  static constexpr int kColonnaData = 1;
  static constexpr int kColonnaTrovati = 2;
  static constexpr int kPrimaColonnaRuota = 3;

  explicit ModelloRicercaEstrazioni(QObject* parent = nullptr);

  // The filter's wheels are shown (every wheel of the table when none) and its numbers marked: on the
  // wheels that hold enough of them for a search on one wheel, on every wheel holding one otherwise.
  void ImpostaRisultato(std::shared_ptr<const stats::EstrazioniPerAnalisi> estrazioni, std::vector<int> trovate,
                        const stats::FiltroEstrazioni& filtro);

  // How many draws were found, in words; says so when none was.
  QString Riassunto() const;
  // The whole draw of row `riga` as rich text, every wheel of it, those holding a number searched
  // for in bold; empty outside the rows.
  QString Dettaglio(int riga) const;
  int IdDellaRiga(int riga) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  QString NumeriRuota(int id, int ruota) const;
  int CercatiSullaRuota(int id, int ruota) const;
  int CercatiNellEstrazione(int id) const;

  std::shared_ptr<const stats::EstrazioniPerAnalisi> m_estrazioni;
  std::vector<int> m_trovate;
  std::vector<int> m_ruote;
  std::vector<int> m_numeri;
  int m_da_segnare = 1;  // how many searched numbers mark a wheel
  bool m_cercato = false;
};

}  // namespace lottolab::gui
