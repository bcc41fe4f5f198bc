#include "gui/spia/ModelloSincroni.h"

#include <QLocale>

#include "gui/spia/TabellaRisultati.h"

namespace lottolab::gui {

ModelloSincroni::ModelloSincroni(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloSincroni::Mostra(const stats::EsitoSincroni& esito, int numero,
                             std::shared_ptr<const TabellaEstrazioni> archivio) {
  beginResetModel();
  m_uscite = esito.uscite;
  m_archivio = std::move(archivio);
  m_righe.clear();
  if (esito.estrazioni_contate > 0)
    for (const stats::Compagno& compagno : esito.compagni)
      if (compagno.numero != numero) m_righe.push_back(compagno);
  endResetModel();
}

int ModelloSincroni::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_righe.size());
}

int ModelloSincroni::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QVariant ModelloSincroni::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const stats::Compagno& riga = m_righe[static_cast<size_t>(indice.row())];
  switch (indice.column()) {
    case kColonnaNumero: return CellaNumerica(riga.numero, QString("%1").arg(riga.numero, 2, 10, QChar('0')), ruolo);
    case kColonnaFrequenza: return CellaNumerica(riga.frequenza, riga.frequenza, ruolo);
    case kColonnaPercentuale: {
      const double percento = m_uscite == 0 ? 0.0 : 100.0 * riga.frequenza / m_uscite;
      return CellaNumerica(percento, QLocale(QLocale::Italian).toString(percento, 'f', 1) + " %", ruolo);
    }
    case kColonnaRitardo: return CellaNumerica(riga.ritardo, riga.ritardo, ruolo);
    case kColonnaUltima: {
      if (!riga.ultima_uscita) return CellaNumerica(0, QStringLiteral("mai"), ruolo);
      auto data = m_archivio->DataEstrazione(*riga.ultima_uscita);
      return CellaNumerica(*riga.ultima_uscita, data ? QString::fromStdString(*data) : QString(), ruolo);
    }
    default: return {};
  }
}

QVariant ModelloSincroni::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole)
    return QAbstractTableModel::headerData(sezione, orientamento, ruolo);
  switch (sezione) {
    case kColonnaNumero: return QStringLiteral("Compagno");
    case kColonnaFrequenza: return QStringLiteral("Frequenza");
    case kColonnaPercentuale: return QStringLiteral("Percentuale");
    case kColonnaRitardo: return QStringLiteral("Ritardo");
    case kColonnaUltima: return QStringLiteral("Ultima volta");
    default: return {};
  }
}

}  // namespace lottolab::gui
