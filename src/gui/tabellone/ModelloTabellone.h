#pragma once

// The rows of the delay table: the 90 numbers of each chosen wheel, or every number of another
// game, with their delay, frequency, historical maximum and its increment over a chosen range of
// draws. The figures are those of stats::CalcolaTabellone and stats::TabelloneGioco; the model only
// lays them out, so that they, their order and their colours can be checked without a window.

#include <QAbstractTableModel>

#include <optional>
#include <span>
#include <vector>

#include "archive/TabellaEstrazioni.h"
#include "archive/TabellaGioco.h"
#include "stats/Tabellone.h"

namespace lottolab::gui {

class ModelloTabellone : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Colonna {
    kColonnaRuota,
    kColonnaNumero,
    kColonnaRitardo,
    kColonnaFrequenza,
    kColonnaStorico,
    kColonnaIncremento,
    kColonne
  };
  // What a sorting proxy must compare: the wheel index and the figures as numbers, never as text,
  // so that 9 comes before 10.
  static constexpr int kRuoloOrdinamento = Qt::UserRole;

  explicit ModelloTabellone(QObject* parent = nullptr);

  // Recomputes the rows over draws inizio..fine of `tab` for the wheels `ruote` (1..11), in that
  // order. A range that is empty or leaves the table leaves no rows.
  void Calcola(const TabellaEstrazioni& tab, std::span<const int> ruote, int fine, int inizio = 1);
  // Recomputes the rows over draws inizio..fine of another game's `tab`: one row for each number
  // 1..massimo of the game, whose wheel is 0. A range that is empty or leaves the table leaves no rows.
  void CalcolaGioco(const TabellaGioco& tab, int fine, int inizio = 1);

  // The game of the figures shown; none for the Lotto.
  std::optional<Gioco> GiocoMostrato() const { return m_gioco; }
  // The last draw of the figures shown, 0 when there are none.
  int Fine() const { return m_fine; }
  int Ruota(int riga) const { return m_righe.at(static_cast<size_t>(riga)).ruota; }
  int Numero(int riga) const { return m_righe.at(static_cast<size_t>(riga)).numero; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  struct Riga {
    int ruota;
    int numero;
    stats::StatisticaNumero dati;
    // False for a wheel that no draw of the range counted: its figures show as dashes.
    bool estratta;
  };

  QVariant Valore(const Riga& riga, int colonna) const;
  QVariant DatoRitardo(const Riga& riga, int ruolo) const;

  std::vector<Riga> m_righe;
  std::optional<Gioco> m_gioco;
  int m_fine = 0;
};

}  // namespace lottolab::gui
