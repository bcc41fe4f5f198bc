#include "gui/distribuzioni/ModelloClassiNumeri.h"

#include <QBrush>
#include <QStringList>

#include "gui/comuni/ScalaRitardo.h"

namespace lottolab::gui {

namespace {

QString NomeTipo(stats::TipoClasse tipo) {
  switch (tipo) {
    case stats::TipoClasse::Cadenza: return QStringLiteral("Cadenza");
    case stats::TipoClasse::Figura: return QStringLiteral("Figura");
    case stats::TipoClasse::Decina: return QStringLiteral("Decina");
  }
  return {};
}

QString NomeClasse(const stats::StatisticaClasse& classe) {
  if (classe.tipo == stats::TipoClasse::Decina)
    return QStringLiteral("%1–%2").arg((classe.valore - 1) * 10 + 1).arg(classe.valore * 10);
  return QString::number(classe.valore);
}

}  // namespace

ModelloClassiNumeri::ModelloClassiNumeri(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloClassiNumeri::ImpostaClassi(std::vector<stats::StatisticaClasse> classi) {
  beginResetModel();
  m_classi = std::move(classi);
  endResetModel();
}

int ModelloClassiNumeri::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_classi.size());
}

int ModelloClassiNumeri::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QVariant ModelloClassiNumeri::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const stats::StatisticaClasse& classe = m_classi[static_cast<size_t>(indice.row())];
  const bool vuota = classe.numeri.empty();
  const int colonna = indice.column();
  if (ruolo == Qt::TextAlignmentRole)
    return colonna == kNumeri || colonna == kTipo ? QVariant(Qt::AlignLeft | Qt::AlignVCenter)
                                                  : QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (ruolo == Qt::BackgroundRole && colonna == kRitardo && !vuota)
    return QBrush(SfondoRitardo(QuotaDelloStorico(classe.ritardo, classe.storico)));
  if (ruolo == Qt::ForegroundRole && colonna == kRitardo && !vuota)
    return QBrush(TestoSuSfondo(SfondoRitardo(QuotaDelloStorico(classe.ritardo, classe.storico))));
  if (ruolo == Qt::ToolTipRole && colonna == kRitardo && !vuota)
    return QStringLiteral("Il %1% del ritardo storico della classe")
        .arg(static_cast<int>(QuotaDelloStorico(classe.ritardo, classe.storico) * 100 + 0.5));
  if (ruolo != Qt::DisplayRole && ruolo != kRuoloOrdinamento) return {};
  // A class of no numbers (a decade beyond the game's largest number) has nothing to count.
  auto cifra = [&](int valore) -> QVariant {
    if (ruolo == kRuoloOrdinamento) return vuota ? -1 : valore;
    return vuota ? QStringLiteral("–") : QString::number(valore);
  };
  switch (colonna) {
    case kTipo:
      return ruolo == kRuoloOrdinamento ? QVariant(static_cast<int>(classe.tipo) * 100 + classe.valore)
                                        : NomeTipo(classe.tipo);
    case kClasse: return ruolo == kRuoloOrdinamento ? QVariant(classe.valore) : NomeClasse(classe);
    case kNumeri: {
      QStringList numeri;
      for (int numero : classe.numeri) numeri << QString::number(numero);
      return numeri.join(' ');
    }
    case kFrequenza: return cifra(classe.frequenza);
    case kRitardo: return cifra(classe.ritardo);
    case kStorico: return cifra(classe.storico);
    case kNellUltima: return cifra(classe.nell_ultima);
    default: return {};
  }
}

QVariant ModelloClassiNumeri::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal) return QAbstractTableModel::headerData(sezione, orientamento, ruolo);
  static const char* const kTitoli[] = {"Tipo",    "Classe",          "Numeri",     "Frequenza",
                                        "Ritardo", "Ritardo storico", "Nell'ultima"};
  static const char* const kSpiegazioni[] = {
      "Cadenza (ultima cifra), figura (somma delle cifre ridotta a una) o decina naturale",
      "La cifra della cadenza o della figura, o i limiti della decina",
      "I numeri della classe",
      "Quante volte è uscito un suo numero sulle ruote scelte",
      "Le estrazioni trascorse dall'ultima uscita di un suo numero",
      "La più lunga assenza della classe nell'intervallo, quella in corso compresa",
      "Quanti suoi numeri ha l'ultima estrazione dell'intervallo"};
  if (sezione < 0 || sezione >= kColonne) return {};
  if (ruolo == Qt::DisplayRole) return QString::fromUtf8(kTitoli[sezione]);
  if (ruolo == Qt::ToolTipRole) return QString::fromUtf8(kSpiegazioni[sezione]);
  return {};
}

}  // namespace lottolab::gui
