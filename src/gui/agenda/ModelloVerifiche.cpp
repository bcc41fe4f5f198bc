#include "gui/agenda/ModelloVerifiche.h"

#include <QBrush>
#include <QColor>

#include <array>

#include "agenda/TestiGiocata.h"
#include "archive/DateEstrazione.h"
#include "gui/agenda/ModelloAgenda.h"

namespace lottolab::gui {

namespace {

constexpr std::array<const char*, ModelloVerifiche::NumeroColonne> kIntestazioni = {
    "Colpo", "Estrazione", "Data", "Spesa", "Lordo", "Ritenuta", "Netto", "Vincite"};

const QColor kColoreVinto(214, 240, 214);
const QColor kColoreNuovo(255, 243, 176);

}  // namespace

void ModelloVerifiche::Imposta(std::vector<agenda::VerificaColpo> verifiche, std::set<int> colpi_nuovi) {
  beginResetModel();
  m_verifiche = std::move(verifiche);
  m_nuovi = std::move(colpi_nuovi);
  endResetModel();
}

int ModelloVerifiche::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_verifiche.size());
}

int ModelloVerifiche::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : NumeroColonne; }

QVariant ModelloVerifiche::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const agenda::VerificaColpo& colpo = m_verifiche[static_cast<size_t>(indice.row())];
  const int numero = indice.row() + 1;
  if (ruolo == Qt::BackgroundRole) {
    if (m_nuovi.contains(numero)) return QBrush(kColoreNuovo);
    return colpo.vincite.empty() ? QVariant() : QVariant(QBrush(kColoreVinto));
  }
  if (ruolo == Qt::TextAlignmentRole)
    return QVariant::fromValue(
        (indice.column() == Vincite || indice.column() == Data ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
  if (ruolo != Qt::DisplayRole && ruolo != Qt::ToolTipRole) return {};
  switch (indice.column()) {
    case Colpo: return numero;
    case Estrazione: return colpo.id_estr;
    case Data: return QString::fromStdString(FormattaData(colpo.data));
    case Spesa: return TestoImporto(colpo.spesa);
    case Lordo: return TestoImporto(colpo.lordo);
    case Ritenuta: return TestoImporto(colpo.ritenuta);
    case Netto: return TestoImporto(colpo.netto);
    case Vincite: {
      QStringList vincite;
      for (const agenda::VincitaColpo& vincita : colpo.vincite)
        vincite << QString::fromStdString(agenda::TestoVincita(vincita));
      return vincite.isEmpty() ? QStringLiteral("-") : vincite.join(QStringLiteral("; "));
    }
    default: return {};
  }
}

QVariant ModelloVerifiche::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole || sezione < 0 || sezione >= NumeroColonne) return {};
  return QString::fromUtf8(kIntestazioni[static_cast<size_t>(sezione)]);
}

}  // namespace lottolab::gui
