#pragma once

// The draws of a game besides the Lotto as its archive window lists them, one row per draw, read
// from the shared table whenever a cell is painted: the five-minute 10eLotto holds a hundred
// thousand draws a year, and no text is made for a row that is never shown. The columns follow the
// game's format: the draw's index, its date, its time where the game has one, the contest, the main
// numbers, the Extra where the game draws them, then one column for each special number (Jolly and
// SuperStar; Oro, Doppio Oro and Gong; Numerone).

#include <QAbstractTableModel>
#include <QDate>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "archive/TabellaGioco.h"

namespace lottolab::gui {

// What the side panel shows of one draw: its heading, then each group of numbers by name.
struct DettaglioEstrazioneGioco {
  int id_estr = 0;
  std::string quando;  // "GG/MM/AAAA", with " ore hh:mm" where the game has a time
  int concorso = 0;
  std::vector<std::pair<std::string, std::string>> voci;  // {"Numeri", "01 02 ..."}, {"Jolly", "40"}
};

class ModelloEstrazioniGioco : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum class Colonna { Id, Data, Ora, Concorso, Numeri, Extra, Speciale };

  explicit ModelloEstrazioniGioco(std::shared_ptr<const TabellaGioco> tabella, QObject* parent = nullptr);

  void ImpostaTabella(std::shared_ptr<const TabellaGioco> tabella);

  // What column `colonna` holds; for a special number, which one it is (0-based) in `speciale`.
  Colonna TipoColonna(int colonna, int* speciale = nullptr) const;
  // The column that holds what `tipo` says (the first special number's for Speciale); -1 when the
  // game has none.
  int ColonnaDi(Colonna tipo) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

  // Row r holds draw r + 1; a row outside the table gives an empty detail (id_estr 0).
  DettaglioEstrazioneGioco Dettaglio(int riga) const;
  // The row of the last draw on or before `data` (the day's last, for a game with a time); -1 when
  // the archive holds none.
  int RigaEntro(const QDate& data) const;

 private:
  void PreparaColonne();
  QString Testo(const EstrazioneGioco& estrazione, int colonna) const;

  std::shared_ptr<const TabellaGioco> m_tabella;
  std::vector<Colonna> m_colonne;
};

// The name of special number `i` (0-based) of the game: "Jolly", "SuperStar", "Oro", ...
std::string NomeSpeciale(Gioco gioco, int i);

}  // namespace lottolab::gui
