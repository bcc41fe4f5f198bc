#include "gui/distribuzioni/ModelloSomme.h"

#include <QBrush>

#include "archive/Ruote.h"
#include "gui/comuni/TabellaAnalisi.h"

namespace lottolab::gui {

namespace {

// The columns of the Valori and Classi views.
const char* const kColonneValori[] = {"Somma", "Uscite", "Attese", "Scarto", "Ultima uscita", "Ritardo"};
const char* const kColonneClassi[] = {"Somme", "Uscite", "Uscite %", "Attese", "Attese %", "Scarto"};

QVariant Numero(double valore, int decimali, int ruolo) {
  if (ruolo == ModelloSomme::kRuoloOrdinamento) return valore;
  return QString::number(valore, 'f', decimali);
}

QString TestoScarto(double osservata, double attesa) {
  if (attesa <= 0) return QStringLiteral("–");
  const double scarto = (osservata - attesa) / attesa * 100;
  return QStringLiteral("%1%2%").arg(scarto > 0 ? "+" : "").arg(scarto, 0, 'f', 1);
}

}  // namespace

ModelloSomme::ModelloSomme(Vista vista, QObject* parent) : QAbstractTableModel(parent), m_vista(vista) {}

void ModelloSomme::ImpostaSomme(std::shared_ptr<const stats::EstrazioniPerAnalisi> estrazioni,
                                std::shared_ptr<const stats::AnalisiSomme> analisi) {
  beginResetModel();
  m_estrazioni = std::move(estrazioni);
  m_analisi = std::move(analisi);
  m_classi = m_analisi ? stats::ClassiDiSomme(*m_analisi, m_ampiezza) : std::vector<stats::ClasseSomme>{};
  endResetModel();
}

void ModelloSomme::ImpostaAmpiezzaClassi(int ampiezza) {
  beginResetModel();
  m_ampiezza = std::max(1, ampiezza);
  m_classi = m_analisi ? stats::ClassiDiSomme(*m_analisi, m_ampiezza) : std::vector<stats::ClasseSomme>{};
  endResetModel();
}

int ModelloSomme::rowCount(const QModelIndex& parent) const {
  if (parent.isValid() || !m_analisi) return 0;
  switch (m_vista) {
    case Vista::Estrazioni: return static_cast<int>(m_analisi->estrazioni.size());
    case Vista::Valori: return static_cast<int>(m_analisi->valori.size());
    case Vista::Classi: return static_cast<int>(m_classi.size());
  }
  return 0;
}

int ModelloSomme::columnCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  switch (m_vista) {
    case Vista::Estrazioni: return 2 + (m_analisi ? static_cast<int>(m_analisi->ruote.size()) : 0);
    case Vista::Valori: return static_cast<int>(std::size(kColonneValori));
    case Vista::Classi: return static_cast<int>(std::size(kColonneClassi));
  }
  return 0;
}

QVariant ModelloSomme::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount() || indice.column() >= columnCount()) return {};
  if (ruolo == Qt::TextAlignmentRole) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (ruolo != Qt::DisplayRole && ruolo != kRuoloOrdinamento && ruolo != Qt::BackgroundRole && ruolo != Qt::ToolTipRole)
    return {};
  switch (m_vista) {
    case Vista::Estrazioni: return DatoEstrazione(indice.row(), indice.column(), ruolo);
    case Vista::Valori: return DatoValore(indice.row(), indice.column(), ruolo);
    case Vista::Classi: return DatoClasse(indice.row(), indice.column(), ruolo);
  }
  return {};
}

QVariant ModelloSomme::DatoEstrazione(int riga, int colonna, int ruolo) const {
  const stats::SommeEstrazione& estrazione = m_analisi->estrazioni[static_cast<size_t>(riga)];
  if (ruolo == Qt::BackgroundRole || ruolo == Qt::ToolTipRole) return {};
  if (colonna == 0) return ruolo == kRuoloOrdinamento ? QVariant(estrazione.id) : QString::number(estrazione.id);
  if (colonna == 1)
    return ruolo == kRuoloOrdinamento ? QVariant(estrazione.id)
                                      : TestoData(m_estrazioni->date[static_cast<size_t>(estrazione.id - 1)]);
  const int somma = estrazione.somme[static_cast<size_t>(colonna - 2)];
  if (ruolo == kRuoloOrdinamento) return somma;
  return somma < 0 ? QStringLiteral("–") : QString::number(somma);
}

QVariant ModelloSomme::DatoValore(int riga, int colonna, int ruolo) const {
  const stats::ValoreSomma& valore = m_analisi->valori[static_cast<size_t>(riga)];
  if (ruolo == Qt::BackgroundRole)
    return colonna == 1 || colonna == 3 ? QVariant(QBrush(SfondoScarto(valore.uscite, valore.attese))) : QVariant();
  if (ruolo == Qt::ToolTipRole)
    return colonna == 5 && valore.ultima == 0 ? QStringLiteral("Mai uscita: il ritardo conta tutto l'intervallo")
                                              : QVariant();
  switch (colonna) {
    case 0: return ruolo == kRuoloOrdinamento ? QVariant(valore.somma) : QString::number(valore.somma);
    case 1: return ruolo == kRuoloOrdinamento ? QVariant(valore.uscite) : QString::number(valore.uscite);
    case 2: return Numero(valore.attese, 2, ruolo);
    case 3:
      return ruolo == kRuoloOrdinamento ? QVariant(valore.uscite - valore.attese)
                                        : TestoScarto(valore.uscite, valore.attese);
    case 4:
      if (ruolo == kRuoloOrdinamento) return valore.ultima;
      return valore.ultima == 0 ? QStringLiteral("mai")
                                : TestoData(m_estrazioni->date[static_cast<size_t>(valore.ultima - 1)]);
    case 5: return ruolo == kRuoloOrdinamento ? QVariant(valore.ritardo) : QString::number(valore.ritardo);
    default: return {};
  }
}

QVariant ModelloSomme::DatoClasse(int riga, int colonna, int ruolo) const {
  const stats::ClasseSomme& classe = m_classi[static_cast<size_t>(riga)];
  if (ruolo == Qt::ToolTipRole) return {};
  if (ruolo == Qt::BackgroundRole)
    return colonna == 1 || colonna == 5 ? QVariant(QBrush(SfondoScarto(classe.uscite, classe.attese))) : QVariant();
  const double conteggiate = std::max(1, m_analisi->conteggiate);
  switch (colonna) {
    case 0:
      if (ruolo == kRuoloOrdinamento) return classe.da;
      return classe.da == classe.a ? QString::number(classe.da) : QStringLiteral("%1–%2").arg(classe.da).arg(classe.a);
    case 1: return ruolo == kRuoloOrdinamento ? QVariant(classe.uscite) : QString::number(classe.uscite);
    case 2: return Numero(classe.uscite * 100.0 / conteggiate, 2, ruolo);
    case 3: return Numero(classe.attese, 1, ruolo);
    case 4: return Numero(classe.attese * 100.0 / conteggiate, 2, ruolo);
    case 5:
      return ruolo == kRuoloOrdinamento ? QVariant(classe.uscite - classe.attese)
                                        : TestoScarto(classe.uscite, classe.attese);
    default: return {};
  }
}

QVariant ModelloSomme::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole || sezione < 0 || sezione >= columnCount())
    return QAbstractTableModel::headerData(sezione, orientamento, ruolo);
  switch (m_vista) {
    case Vista::Estrazioni: {
      if (sezione == 0) return QStringLiteral("N.");
      if (sezione == 1) return QStringLiteral("Data");
      const int ruota = m_analisi->ruote[static_cast<size_t>(sezione - 2)];
      return m_estrazioni->ruote == kNumeroRuote ? QString::fromUtf8(NomeRuota(ruota)) : QStringLiteral("Somma");
    }
    case Vista::Valori: return QString::fromUtf8(kColonneValori[sezione]);
    case Vista::Classi: return QString::fromUtf8(kColonneClassi[sezione]);
  }
  return {};
}

}  // namespace lottolab::gui
