#pragma once

// The reference of the script library as a table: every public name, family by family, with the
// card the library keeps for it (script/Riferimento.h), so a name bound tomorrow appears here
// without touching the desktop.

#include <QAbstractTableModel>

#include <vector>

#include "script/Riferimento.h"

namespace lottolab::gui {

class ModelloFunzioni : public QAbstractTableModel {
 public:
  enum Colonna {
    kColonnaNome,
    kColonnaArgomenti,
    kColonnaRestituisce,
    kColonnaSignificato,
    kColonnaEsempio,
    kColonnaFamiglia,
    kColonne
  };

  explicit ModelloFunzioni(QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

  // How many names the library binds, of rowCount().
  int Disponibili() const;

 private:
  const std::vector<script::SchedaFunzione>& m_schede;
};

}  // namespace lottolab::gui
