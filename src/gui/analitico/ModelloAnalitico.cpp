#include "gui/analitico/ModelloAnalitico.h"

#include <QBrush>
#include <QStringList>

#include <algorithm>

#include "archive/Ruote.h"
#include "gui/comuni/ScalaRitardo.h"

namespace lottolab::gui {

namespace {

QString NomeColonna(int ruota) {
  return ruota == kTutteLeRuote ? QStringLiteral("Tutte") : QString::fromUtf8(NomeRuota(ruota));
}

}  // namespace

ModelloAnalitico::ModelloAnalitico(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloAnalitico::ImpostaAnalitico(std::shared_ptr<const stats::Analitico> analitico) {
  beginResetModel();
  m_analitico = std::move(analitico);
  m_tabella = m_analitico ? m_analitico->Tabella(m_analitico->Estrazioni()) : stats::TabellaAnalitica();
  endResetModel();
}

void ModelloAnalitico::ImpostaFine(int fine) {
  if (!m_analitico) return;
  m_tabella = m_analitico->Tabella(std::clamp(fine, std::min(1, m_analitico->Estrazioni()), m_analitico->Estrazioni()));
  emit dataChanged(index(0, 0), index(rowCount() - 1, kColonne - 1));
}

void ModelloAnalitico::ImpostaDato(Dato dato) {
  m_dato = dato;
  emit dataChanged(index(0, 0), index(rowCount() - 1, kColonne - 1));
  emit headerDataChanged(Qt::Horizontal, 0, kColonne - 1);
}

std::optional<stats::StatisticaNumero> ModelloAnalitico::Figure(int numero, int ruota) const {
  if (!m_analitico) return std::nullopt;
  return m_tabella.Dati(ruota, numero);
}

int ModelloAnalitico::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || !m_analitico ? 0 : kMassimoNumero;
}

int ModelloAnalitico::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

int ModelloAnalitico::Valore(const stats::StatisticaNumero& figure) const {
  switch (m_dato) {
    case Dato::Ritardo: return figure.ritardo;
    case Dato::Frequenza: return figure.frequenza;
    case Dato::Storico: return figure.storico;
    case Dato::Incremento: return figure.incr_storico;
  }
  return figure.ritardo;
}

QString ModelloAnalitico::Suggerimento(int numero, int ruota) const {
  const auto figure = Figure(numero, ruota);
  const QString dove = ruota == kTutteLeRuote ? QStringLiteral("su tutte le ruote") : "su " + NomeColonna(ruota);
  if (!figure) return QString("%1 %2: la ruota non era ancora estratta").arg(numero, 2, 10, QChar('0')).arg(dove);
  QStringList precedenti;
  for (int ritardo : m_analitico->RitardiPrecedenti(ruota, numero, Fine(), kRitardiPrecedenti))
    precedenti << QString::number(ritardo);
  return QString(
             "%1 %2\nRitardo %3 (il %4% dello storico)\nFrequenza %5\nRitardo storico %6\nIncremento %7\n"
             "Ritardi precedenti, dal più recente: %8")
      .arg(numero, 2, 10, QChar('0'))
      .arg(dove)
      .arg(figure->ritardo)
      .arg(static_cast<int>(QuotaDelloStorico(figure->ritardo, figure->storico) * 100 + 0.5))
      .arg(figure->frequenza)
      .arg(figure->storico)
      .arg(figure->incr_storico)
      .arg(precedenti.isEmpty() ? QStringLiteral("nessuno") : precedenti.join(", "));
}

QVariant ModelloAnalitico::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const int numero = indice.row() + 1;
  const int ruota = indice.column();
  if (ruota == kColonnaNumero) {
    if (ruolo == kRuoloOrdinamento) return numero;
    if (ruolo == Qt::DisplayRole) return QString("%1").arg(numero, 2, 10, QChar('0'));
    if (ruolo == Qt::TextAlignmentRole) return QVariant(Qt::AlignCenter);
    return {};
  }
  const auto figure = Figure(numero, ruota);
  switch (ruolo) {
    case kRuoloOrdinamento: return figure ? Valore(*figure) : -1;
    case Qt::DisplayRole: return figure ? QString::number(Valore(*figure)) : QStringLiteral("–");
    case Qt::TextAlignmentRole: return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ToolTipRole: return Suggerimento(numero, ruota);
    case Qt::BackgroundRole:
      if (!figure) return {};
      return QBrush(SfondoRitardo(QuotaDelloStorico(figure->ritardo, figure->storico)));
    case Qt::ForegroundRole:
      if (!figure) return QBrush(Qt::gray);
      return QBrush(TestoSuSfondo(SfondoRitardo(QuotaDelloStorico(figure->ritardo, figure->storico))));
    default: return {};
  }
}

QVariant ModelloAnalitico::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal) return QAbstractTableModel::headerData(sezione, orientamento, ruolo);
  if (ruolo == Qt::DisplayRole) return sezione == kColonnaNumero ? QStringLiteral("Numero") : NomeColonna(sezione);
  if (ruolo == Qt::ToolTipRole && sezione != kColonnaNumero) {
    static const char* const kDati[] = {"ritardo", "frequenza", "ritardo storico", "incremento dello storico"};
    return QString("Il %1 di ogni numero %2. ")
               .arg(kDati[static_cast<int>(m_dato)])
               .arg(sezione == kTutteLeRuote ? QStringLiteral("su tutte le ruote insieme")
                                             : "sulla ruota di " + NomeColonna(sezione)) +
           DescrizioneScalaRitardo();
  }
  return {};
}

}  // namespace lottolab::gui
