#include "gui/distribuzioni/ModelloFrequenzePeriodo.h"

#include <QBrush>

#include "gui/comuni/TabellaAnalisi.h"

namespace lottolab::gui {

namespace {

const char* const kMesi[] = {"Gen", "Feb", "Mar", "Apr", "Mag", "Giu", "Lug", "Ago", "Set", "Ott", "Nov", "Dic"};

double Scarto(double osservata, double attesa) { return attesa > 0 ? (osservata - attesa) / attesa * 100 : 0; }

}  // namespace

ModelloFrequenzePeriodo::ModelloFrequenzePeriodo(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloFrequenzePeriodo::ImpostaFrequenze(stats::FrequenzePeriodi frequenze, stats::TipoPeriodo tipo) {
  beginResetModel();
  m_frequenze = std::move(frequenze);
  m_tipo = tipo;
  endResetModel();
}

QString ModelloFrequenzePeriodo::NomePeriodo(size_t periodo) const {
  const stats::PeriodoFrequenze& dati = m_frequenze.periodi[periodo];
  switch (m_tipo) {
    case stats::TipoPeriodo::Anno: return QString::number(dati.anno);
    case stats::TipoPeriodo::MeseDellAnno:
      return dati.mese >= 1 && dati.mese <= 12 ? QString::fromUtf8(kMesi[dati.mese - 1]) : QString::number(dati.mese);
    case stats::TipoPeriodo::Blocco: return QStringLiteral("%1–%2").arg(dati.primo).arg(dati.ultimo);
  }
  return {};
}

int ModelloFrequenzePeriodo::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || m_frequenze.periodi.empty() ? 0 : m_frequenze.massimo;
}

int ModelloFrequenzePeriodo::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : 1 + Periodi() + kColonneFinali;
}

QVariant ModelloFrequenzePeriodo::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const int numero = indice.row() + 1;
  const int colonna = indice.column();
  if (ruolo == Qt::TextAlignmentRole)
    return colonna == kColonnaNumero ? QVariant(Qt::AlignCenter) : QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (colonna == kColonnaNumero) {
    if (ruolo == kRuoloOrdinamento) return numero;
    if (ruolo == Qt::DisplayRole) return QStringLiteral("%1").arg(numero, 2, 10, QChar('0'));
    return {};
  }
  const int totale = m_frequenze.Totale(numero);
  const double attesa_totale = m_frequenze.AttesaTotale();
  const int dopo = colonna - 1 - Periodi();
  if (dopo < 0) {
    const auto periodo = static_cast<size_t>(colonna - 1);
    const int frequenza = m_frequenze.Frequenza(numero, periodo);
    const double attesa = m_frequenze.Attesa(periodo);
    switch (ruolo) {
      case Qt::DisplayRole:
      case kRuoloOrdinamento: return frequenza;
      case Qt::BackgroundRole: return QBrush(SfondoScarto(frequenza, attesa));
      case Qt::ToolTipRole:
        return QStringLiteral("%1 nel periodo %2: uscito %3 volte, attese %4")
            .arg(numero)
            .arg(NomePeriodo(periodo))
            .arg(frequenza)
            .arg(attesa, 0, 'f', 2);
      default: return {};
    }
  }
  if (dopo == 0) {
    if (ruolo == Qt::DisplayRole || ruolo == kRuoloOrdinamento) return totale;
    if (ruolo == Qt::BackgroundRole) return QBrush(SfondoScarto(totale, attesa_totale));
    return {};
  }
  if (dopo == 1) {
    if (ruolo == Qt::DisplayRole) return QString::number(attesa_totale, 'f', 1);
    if (ruolo == kRuoloOrdinamento) return attesa_totale;
    return {};
  }
  const double scarto = Scarto(totale, attesa_totale);
  if (ruolo == Qt::DisplayRole) return QStringLiteral("%1%2%").arg(scarto > 0 ? "+" : "").arg(scarto, 0, 'f', 1);
  if (ruolo == kRuoloOrdinamento) return scarto;
  if (ruolo == Qt::BackgroundRole) return QBrush(SfondoScarto(totale, attesa_totale));
  return {};
}

QVariant ModelloFrequenzePeriodo::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal) return QAbstractTableModel::headerData(sezione, orientamento, ruolo);
  const int dopo = sezione - 1 - Periodi();
  if (ruolo == Qt::DisplayRole) {
    if (sezione == kColonnaNumero) return QStringLiteral("Numero");
    if (dopo < 0) return NomePeriodo(static_cast<size_t>(sezione - 1));
    static const char* const kFinali[] = {"Totale", "Attesa", "Scarto"};
    return dopo < kColonneFinali ? QString::fromUtf8(kFinali[dopo]) : QVariant();
  }
  if (ruolo == Qt::ToolTipRole && sezione > kColonnaNumero && dopo < 0) {
    const stats::PeriodoFrequenze& periodo = m_frequenze.periodi[static_cast<size_t>(sezione - 1)];
    return QStringLiteral("Estrazioni %1–%2, %3 ruote estratte; frequenza attesa di ogni numero %4")
        .arg(periodo.primo)
        .arg(periodo.ultimo)
        .arg(periodo.ruote_estratte)
        .arg(m_frequenze.Attesa(static_cast<size_t>(sezione - 1)), 0, 'f', 2);
  }
  if (ruolo == Qt::ToolTipRole && dopo == 1)
    return QStringLiteral("Quante volte un'estrazione equa avrebbe dato ogni numero");
  if (ruolo == Qt::ToolTipRole && dopo == 2) return QStringLiteral("Totale meno attesa, in percentuale dell'attesa");
  return {};
}

}  // namespace lottolab::gui
