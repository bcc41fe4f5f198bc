#pragma once

// The check of one bet draw by draw, as the agenda window's detail shows it: spent, won and the wins
// of each colpo, the draws whose wins the user has not seen marked. No widget.

#include <QAbstractTableModel>

#include <set>
#include <vector>

#include "agenda/Giocata.h"

namespace lottolab::gui {

class ModelloVerifiche : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Colonna { Colpo, Estrazione, Data, Spesa, Lordo, Ritenuta, Netto, Vincite, NumeroColonne };

  explicit ModelloVerifiche(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

  // The colpi of a bet; `colpi_nuovi` holds those (from 1) with wins not seen yet.
  void Imposta(std::vector<agenda::VerificaColpo> verifiche, std::set<int> colpi_nuovi);
  const agenda::VerificaColpo& Verificato(int riga) const { return m_verifiche[static_cast<size_t>(riga)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  std::vector<agenda::VerificaColpo> m_verifiche;
  std::set<int> m_nuovi;
};

}  // namespace lottolab::gui
