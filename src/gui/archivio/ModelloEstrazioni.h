#pragma once

// The table of draws as the archive window shows it: one row per draw, read straight from the shared
// table whenever a cell is painted, so the whole archive scrolls without a copy of its rows.
// Columns: the draw's index, its date, then one column per wheel with its five numbers.

#include <QAbstractTableModel>
#include <QDate>

#include <memory>
#include <string>
#include <vector>

#include "archive/TabellaEstrazioni.h"

namespace lottolab::gui {

// What the side panel shows of one draw.
struct DettaglioEstrazione {
  struct Ruota {
    std::string nome;    // "Bari", ...
    std::string numeri;  // "01 02 03 04 05", in drawn order
  };
  int id_estr = 0;
  std::string data;  // GG/MM/AAAA
  int indice_annuale = 0;
  std::vector<Ruota> ruote;  // only the wheels drawn
};

class ModelloEstrazioni : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int kColonnaId = 0;
  static constexpr int kColonnaData = 1;
  static constexpr int kPrimaColonnaRuota = 2;  // wheel r is column kPrimaColonnaRuota + r - 1

  explicit ModelloEstrazioni(std::shared_ptr<const TabellaEstrazioni> tabella, QObject* parent = nullptr);

  void ImpostaTabella(std::shared_ptr<const TabellaEstrazioni> tabella);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

  // Row r holds draw r + 1.
  DettaglioEstrazione Dettaglio(int riga) const;
  // The row of the last draw on or before `data`; -1 when the archive holds none.
  int RigaEntro(const QDate& data) const;

 private:
  std::shared_ptr<const TabellaEstrazioni> m_tabella;
};

}  // namespace lottolab::gui
