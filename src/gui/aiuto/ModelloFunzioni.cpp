#include "gui/aiuto/ModelloFunzioni.h"

#include <QBrush>

#include <algorithm>

namespace lottolab::gui {

namespace {

QString Testo(std::string_view testo) { return QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size())); }

}  // namespace

ModelloFunzioni::ModelloFunzioni(QObject* parent) : QAbstractTableModel(parent), m_schede(script::Riferimento()) {}

int ModelloFunzioni::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_schede.size());
}

int ModelloFunzioni::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QVariant ModelloFunzioni::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const script::SchedaFunzione& scheda = m_schede[static_cast<size_t>(index.row())];
  if (role == Qt::ForegroundRole && !scheda.legata) return QBrush(Qt::gray);
  if (role == Qt::ToolTipRole) return Testo(script::TestoSuggerimento(scheda));
  if (role != Qt::DisplayRole) return {};
  switch (index.column()) {
    case kColonnaNome: return Testo(scheda.nome);
    case kColonnaArgomenti: return Testo(scheda.argomenti);
    case kColonnaRestituisce: return Testo(scheda.restituisce);
    case kColonnaSignificato:
      return scheda.legata ? Testo(scheda.significato) : QStringLiteral("non ancora disponibile");
    case kColonnaEsempio: return Testo(scheda.esempio);
    case kColonnaFamiglia: return Testo(scheda.famiglia);
    default: return {};
  }
}

QVariant ModelloFunzioni::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return QAbstractTableModel::headerData(section, orientation, role);
  switch (section) {
    case kColonnaNome: return QStringLiteral("Nome");
    case kColonnaArgomenti: return QStringLiteral("Argomenti");
    case kColonnaRestituisce: return QStringLiteral("Restituisce");
    case kColonnaSignificato: return QStringLiteral("Significato");
    case kColonnaEsempio: return QStringLiteral("Esempio");
    case kColonnaFamiglia: return QStringLiteral("Famiglia");
    default: return {};
  }
}

int ModelloFunzioni::Disponibili() const {
  return static_cast<int>(
      std::count_if(m_schede.begin(), m_schede.end(), [](const script::SchedaFunzione& s) { return s.legata; }));
}

}  // namespace lottolab::gui
