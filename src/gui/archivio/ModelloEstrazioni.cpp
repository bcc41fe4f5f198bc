#include "gui/archivio/ModelloEstrazioni.h"
#include "gui/archivio/VistaEstrazioni.h"

#include <QFontDatabase>

#include <fmt/format.h>

#include "archive/DateEstrazione.h"

namespace lottolab::gui {

namespace {

std::string NumeriRuota(const Estrazione& estrazione, int ruota) {
  if (!estrazione.RuotaEstratta(ruota)) return {};
  std::string testo = fmt::format("{:02}", estrazione.Numero(ruota, 1));
  for (int posizione = 2; posizione <= kNumeriPerRuota; ++posizione)
    testo += fmt::format(" {:02}", estrazione.Numero(ruota, posizione));
  return testo;
}

}  // namespace

ModelloEstrazioni::ModelloEstrazioni(std::shared_ptr<const TabellaEstrazioni> tabella, QObject* parent)
    : QAbstractTableModel(parent), m_tabella(std::move(tabella)) {}

void ModelloEstrazioni::ImpostaTabella(std::shared_ptr<const TabellaEstrazioni> tabella) {
  beginResetModel();
  m_tabella = std::move(tabella);
  endResetModel();
}

int ModelloEstrazioni::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : m_tabella->EstrazioniArchivio();
}

int ModelloEstrazioni::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kPrimaColonnaRuota + kNumeroRuote;
}

QVariant ModelloEstrazioni::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || !m_tabella->Contiene(index.row() + 1)) return {};
  const Estrazione& estrazione = (*m_tabella)[index.row() + 1];
  const int colonna = index.column();
  switch (role) {
    case Qt::DisplayRole:
      if (colonna == kColonnaId) return index.row() + 1;
      if (colonna == kColonnaData) return QString::fromStdString(FormattaData(estrazione.data));
      return QString::fromStdString(NumeriRuota(estrazione, colonna - kPrimaColonnaRuota + 1));
    case Qt::TextAlignmentRole:
      return colonna == kColonnaId ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant(Qt::AlignCenter);
    case Qt::FontRole:
      // Numbers in a fixed-width font line up from row to row, so a column reads as a column.
      if (colonna >= kPrimaColonnaRuota) return QFontDatabase::systemFont(QFontDatabase::FixedFont);
      return {};
    default: return {};
  }
}

QVariant ModelloEstrazioni::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return QAbstractTableModel::headerData(section, orientation, role);
  if (role == Qt::DisplayRole) {
    if (section == kColonnaId) return QStringLiteral("N.");
    if (section == kColonnaData) return QStringLiteral("Data");
    return QString::fromUtf8(SiglaRuota(section - kPrimaColonnaRuota + 1));
  }
  if (role == Qt::ToolTipRole) {
    if (section == kColonnaId) return QStringLiteral("Numero dell'estrazione nell'archivio");
    if (section >= kPrimaColonnaRuota) return QString::fromUtf8(NomeRuota(section - kPrimaColonnaRuota + 1));
  }
  return {};
}

DettaglioEstrazione ModelloEstrazioni::Dettaglio(int riga) const {
  DettaglioEstrazione dettaglio;
  if (!m_tabella->Contiene(riga + 1)) return dettaglio;
  const Estrazione& estrazione = (*m_tabella)[riga + 1];
  dettaglio.id_estr = riga + 1;
  dettaglio.data = FormattaData(estrazione.data);
  dettaglio.indice_annuale = estrazione.data.indice_annuale;
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
    if (estrazione.RuotaEstratta(ruota))
      dettaglio.ruote.push_back({std::string(NomeRuota(ruota)), NumeriRuota(estrazione, ruota)});
  return dettaglio;
}

int ModelloEstrazioni::RigaEntro(const QDate& data) const {
  return m_tabella->UltimaEstrazioneEntro(DataDelCalendario(data)) - 1;
}

}  // namespace lottolab::gui
