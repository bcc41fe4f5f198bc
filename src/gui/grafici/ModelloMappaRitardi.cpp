#include "gui/grafici/ModelloMappaRitardi.h"

#include <QBrush>

#include <algorithm>

#include "gui/comuni/ScalaRitardo.h"

namespace lottolab::gui {

QString NomeColonnaRuota(int ruota) {
  return ruota == kTutteLeRuote ? QStringLiteral("Tutte") : QString::fromUtf8(NomeRuota(ruota));
}

ModelloMappaRitardi::ModelloMappaRitardi(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloMappaRitardi::ImpostaAnalitico(std::shared_ptr<const stats::Analitico> analitico) {
  beginResetModel();
  m_analitico = std::move(analitico);
  m_tabella = m_analitico ? m_analitico->Tabella(m_analitico->Estrazioni()) : stats::TabellaAnalitica();
  endResetModel();
}

void ModelloMappaRitardi::ImpostaFine(int fine) {
  if (!m_analitico) return;
  const int ultima = m_analitico->Estrazioni();
  m_tabella = m_analitico->Tabella(std::clamp(fine, std::min(1, ultima), ultima));
  emit dataChanged(index(0, 0), index(rowCount() - 1, kColonne - 1));
}

std::optional<stats::StatisticaNumero> ModelloMappaRitardi::Figure(int ruota, int numero) const {
  if (!m_analitico) return std::nullopt;
  return m_tabella.Dati(ruota, numero);
}

int ModelloMappaRitardi::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || !m_analitico ? 0 : kMassimoNumero;
}

int ModelloMappaRitardi::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QString ModelloMappaRitardi::Suggerimento(int ruota, int numero) const {
  const QString dove = ruota == kTutteLeRuote ? QStringLiteral("su tutte le ruote") : "su " + NomeColonnaRuota(ruota);
  const auto figure = Figure(ruota, numero);
  if (!figure) return QStringLiteral("%1 %2: la ruota non era ancora estratta").arg(numero).arg(dove);
  return QStringLiteral(
             "%1 %2 all'estrazione %3\nRitardo %4 (il %5% dello storico)\nRitardo storico %6\nFrequenza %7\n"
             "Clic: storia del ritardo")
      .arg(numero)
      .arg(dove)
      .arg(Fine())
      .arg(figure->ritardo)
      .arg(static_cast<int>(QuotaDelloStorico(figure->ritardo, figure->storico) * 100 + 0.5))
      .arg(figure->storico)
      .arg(figure->frequenza);
}

QVariant ModelloMappaRitardi::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const int numero = indice.row() + 1;
  const int ruota = indice.column();
  if (ruota == kColonnaNumero) return ruolo == Qt::DisplayRole ? QVariant(numero) : QVariant();
  const auto figure = Figure(ruota, numero);
  const QColor sfondo = figure ? SfondoRitardo(QuotaDelloStorico(figure->ritardo, figure->storico)) : QColor();
  switch (ruolo) {
    case Qt::DisplayRole: return figure ? QVariant(figure->ritardo) : QVariant(QStringLiteral("–"));
    case Qt::TextAlignmentRole: return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ToolTipRole: return Suggerimento(ruota, numero);
    case Qt::BackgroundRole: return figure ? QVariant(QBrush(sfondo)) : QVariant();
    case Qt::ForegroundRole: return QBrush(figure ? TestoSuSfondo(sfondo) : QColor(Qt::gray));
    default: return {};
  }
}

QVariant ModelloMappaRitardi::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole) return {};
  return sezione == kColonnaNumero ? QStringLiteral("Numero") : NomeColonnaRuota(sezione);
}

}  // namespace lottolab::gui
