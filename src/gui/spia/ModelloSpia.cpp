#include "gui/spia/ModelloSpia.h"

#include <QLocale>

#include "gui/spia/TabellaRisultati.h"

namespace lottolab::gui {

ModelloSpia::ModelloSpia(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloSpia::Mostra(const stats::EsitoSpia& esito) {
  beginResetModel();
  m_casi = esito.casi;
  m_righe.assign(esito.seguiti.begin(), esito.seguiti.end());
  // Without a case every figure would be empty: the table says so by having no rows.
  if (m_casi == 0) m_righe.clear();
  endResetModel();
}

int ModelloSpia::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_righe.size());
}

int ModelloSpia::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QVariant ModelloSpia::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const stats::NumeroSeguito& riga = m_righe[static_cast<size_t>(indice.row())];
  switch (indice.column()) {
    case kColonnaNumero: return CellaNumerica(riga.numero, QString("%1").arg(riga.numero, 2, 10, QChar('0')), ruolo);
    case kColonnaPresenze: return CellaNumerica(riga.presenze, riga.presenze, ruolo);
    case kColonnaPercentuale: {
      const double percento = 100.0 * riga.presenze / m_casi;
      return CellaNumerica(percento, QLocale(QLocale::Italian).toString(percento, 'f', 1) + " %", ruolo);
    }
    case kColonnaColpoMedio: {
      if (riga.presenze == 0) return CellaNumerica(1e9, QStringLiteral("-"), ruolo);
      const double media = static_cast<double>(riga.somma_colpi) / riga.presenze;
      return CellaNumerica(media, QLocale(QLocale::Italian).toString(media, 'f', 1), ruolo);
    }
    case kColonnaPrimoColpo:
      if (riga.presenze == 0) return CellaNumerica(1e9, QStringLiteral("-"), ruolo);
      return CellaNumerica(riga.colpo_minimo, riga.colpo_minimo, ruolo);
    default: return {};
  }
}

QVariant ModelloSpia::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole)
    return QAbstractTableModel::headerData(sezione, orientamento, ruolo);
  switch (sezione) {
    case kColonnaNumero: return QStringLiteral("Numero");
    case kColonnaPresenze: return QStringLiteral("Casi in cui è uscito");
    case kColonnaPercentuale: return QStringLiteral("Percentuale");
    case kColonnaColpoMedio: return QStringLiteral("Colpo medio");
    case kColonnaPrimoColpo: return QStringLiteral("Primo colpo");
    default: return {};
  }
}

}  // namespace lottolab::gui
