#include "gui/grafici/ModelloFrequenze.h"

#include <QLocale>

#include <cmath>

namespace lottolab::gui {

namespace {

QString Decimale(double valore) { return QLocale(QLocale::Italian).toString(valore, 'f', 1); }

}  // namespace

ModelloFrequenze::ModelloFrequenze(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloFrequenze::Imposta(stats::FrequenzeNumeri frequenze) {
  beginResetModel();
  m_frequenze = std::move(frequenze);
  endResetModel();
}

double ModelloFrequenze::Scarto(int numero) const {
  return m_frequenze.frequenze[static_cast<size_t>(numero - 1)] - m_frequenze.attesa;
}

QString ModelloFrequenze::Descrizione(int numero) const {
  if (numero < 1 || numero > rowCount()) return {};
  const double scarto = Scarto(numero);
  return QStringLiteral("Numero %1\nFrequenza %2\nAttesa %3 (%4%5)")
      .arg(numero)
      .arg(m_frequenze.frequenze[static_cast<size_t>(numero - 1)])
      .arg(Decimale(m_frequenze.attesa), scarto >= 0 ? QStringLiteral("+") : QString(), Decimale(scarto));
}

int ModelloFrequenze::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_frequenze.frequenze.size());
}

int ModelloFrequenze::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QVariant ModelloFrequenze::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || (ruolo != Qt::DisplayRole && ruolo != Qt::TextAlignmentRole)) return {};
  if (ruolo == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
  const int numero = indice.row() + 1;
  switch (indice.column()) {
    case kColonnaNumero: return numero;
    case kColonnaFrequenza: return m_frequenze.frequenze[static_cast<size_t>(numero - 1)];
    // Numbers, not texts, so that a spreadsheet can sum them; one decimal is all the figures carry.
    case kColonnaScarto: return std::round(Scarto(numero) * 10) / 10;
    case kColonnaPercentuale:
      return m_frequenze.attesa > 0 ? std::round(Scarto(numero) / m_frequenze.attesa * 1000) / 10 : 0.0;
    default: return {};
  }
}

QVariant ModelloFrequenze::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole) return {};
  switch (sezione) {
    case kColonnaNumero: return QStringLiteral("Numero");
    case kColonnaFrequenza: return QStringLiteral("Frequenza");
    case kColonnaScarto: return QStringLiteral("Scarto dall'attesa");
    case kColonnaPercentuale: return QStringLiteral("Scarto %");
    default: return {};
  }
}

}  // namespace lottolab::gui
