#pragma once

// The agenda's bets as the agenda window lists them: one row per bet with its totals, the bets with
// wins not seen yet marked. Only texts and sort keys: no widget, so a test reads it as the view does.

#include <QAbstractTableModel>

#include <set>
#include <vector>

#include "agenda/Agenda.h"

namespace lottolab::gui {

class ModelloAgenda : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Colonna { Id, Gioco, Numeri, Ruote, Poste, Dal, Colpi, Stato, Spesa, Vinto, Saldo, NumeroColonne };
  // What the columns sort by: numbers as numbers, dates as AAAAMMGG, the rest as its text.
  static constexpr int kRuoloOrdine = Qt::UserRole;
  // Whether the row's bet has wins not seen yet (bool).
  static constexpr int kRuoloNuove = Qt::UserRole + 1;

  explicit ModelloAgenda(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

  // The bets in the agenda's order, and the ids of those with wins not seen yet.
  void Imposta(std::vector<agenda::VoceAgenda> voci, std::set<int64_t> con_vincite_nuove);
  const agenda::VoceAgenda& Voce(int riga) const { return m_voci[static_cast<size_t>(riga)]; }
  const std::vector<agenda::VoceAgenda>& Voci() const { return m_voci; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  QString Testo(const agenda::VoceAgenda& voce, int colonna) const;
  QVariant Ordine(const agenda::VoceAgenda& voce, int colonna) const;

  std::vector<agenda::VoceAgenda> m_voci;
  std::set<int64_t> m_nuove;
};

// "12,50", and a star after the net won when some win's amount is not known.
QString TestoImporto(int64_t centesimi);
QString TestoVinto(const agenda::Totali& totali);
// "1 vincita", "3 vincite".
QString TestoVincite(int quante);

}  // namespace lottolab::gui
