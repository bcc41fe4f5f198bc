#include "gui/analitico/ModelloCombinazioni.h"

#include <QBrush>
#include <QStringList>

#include "gui/comuni/ScalaRitardo.h"

namespace lottolab::gui {

ModelloCombinazioni::ModelloCombinazioni(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloCombinazioni::MostraAmbi(const stats::AnaliticoAmbi& ambi, int ruota) {
  beginResetModel();
  m_righe.clear();
  if (ambi.RuotaPresente(ruota)) {
    m_righe.reserve(stats::kNumeroAmbi);
    for (int indice = 0; indice < stats::kNumeroAmbi; ++indice) {
      const auto [a, b] = stats::AmboDaIndice(indice);
      m_righe.push_back({{a, b, 0}, *ambi.DatiIndice(ruota, indice)});
    }
  }
  endResetModel();
}

void ModelloCombinazioni::MostraTerni(const std::vector<stats::TernoStatistica>& terni) {
  beginResetModel();
  m_righe.clear();
  for (const stats::TernoStatistica& terno : terni) m_righe.push_back({terno.numeri, terno.dati});
  endResetModel();
}

int ModelloCombinazioni::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_righe.size());
}

int ModelloCombinazioni::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QVariant ModelloCombinazioni::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const Riga& riga = m_righe[static_cast<size_t>(indice.row())];
  const int colonna = indice.column();
  if (colonna == kColonnaCombinazione) {
    if (ruolo == kRuoloOrdinamento) return riga.numeri[0] * 10000 + riga.numeri[1] * 100 + riga.numeri[2];
    if (ruolo != Qt::DisplayRole) return {};
    QStringList numeri;
    for (int numero : riga.numeri)
      if (numero != 0) numeri << QString("%1").arg(numero, 2, 10, QChar('0'));
    return numeri.join('-');
  }
  const int valori[] = {0, riga.dati.ritardo, riga.dati.storico, riga.dati.frequenza, riga.dati.incr_storico};
  switch (ruolo) {
    case kRuoloOrdinamento:
    case Qt::DisplayRole: return valori[colonna];
    case Qt::TextAlignmentRole: return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    default: break;
  }
  if (colonna != kColonnaRitardo) return {};
  const QColor sfondo = SfondoRitardo(QuotaDelloStorico(riga.dati.ritardo, riga.dati.storico));
  if (ruolo == Qt::BackgroundRole) return QBrush(sfondo);
  if (ruolo == Qt::ForegroundRole) return QBrush(TestoSuSfondo(sfondo));
  return {};
}

QVariant ModelloCombinazioni::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole)
    return QAbstractTableModel::headerData(sezione, orientamento, ruolo);
  switch (sezione) {
    case kColonnaCombinazione: return QStringLiteral("Combinazione");
    case kColonnaRitardo: return QStringLiteral("Ritardo");
    case kColonnaStorico: return QStringLiteral("Storico");
    case kColonnaFrequenza: return QStringLiteral("Frequenza");
    case kColonnaIncremento: return QStringLiteral("Incremento");
    default: return {};
  }
}

}  // namespace lottolab::gui
