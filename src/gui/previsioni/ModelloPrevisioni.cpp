#include "gui/previsioni/ModelloPrevisioni.h"

#include <QBrush>
#include <QColor>
#include <QStringList>

#include <algorithm>

#include "stats/RegolePremi.h"

namespace lottolab::gui {

namespace {

using previsioni::StatoPrevisione;

QString Sigle(std::vector<int> ruote) {
  std::ranges::sort(ruote);
  // The ten city wheels are how the operator plays "all": one short name for them.
  if (ruote == std::vector<int>{BA, CA, FI, GE, MI, NA, PA, RO, TO, VE}) return QStringLiteral("TT (10 città)");
  QStringList sigle;
  for (int r : ruote) sigle << QString::fromUtf8(SiglaRuota(r));
  return sigle.join(", ");
}

QString SigleMaschera(uint16_t ruote) {
  std::vector<int> elenco;
  for (int r = 1; r <= kNumeroRuote; ++r)
    if ((ruote & (1U << (r - 1))) != 0) elenco.push_back(r);
  return Sigle(elenco);
}

// Won first, then open, lost, and those the archive cannot judge.
int Ordine(StatoPrevisione stato) {
  switch (stato) {
    case StatoPrevisione::Vinta: return 0;
    case StatoPrevisione::InCorso: return 1;
    case StatoPrevisione::Negativa: return 2;
    case StatoPrevisione::FuoriArchivio: return 3;
  }
  return 3;
}

}  // namespace

std::vector<RigaPrevisione> VerificaElenco(const TabellaEstrazioni& archivio,
                                           std::vector<previsioni::Previsione> elenco) {
  std::vector<RigaPrevisione> righe;
  righe.reserve(elenco.size());
  for (previsioni::Previsione& previsione : elenco) {
    previsioni::VerificaPrevisione verifica = previsioni::Verifica(archivio, previsione);
    righe.push_back({std::move(previsione), verifica});
  }
  return righe;
}

ModelloPrevisioni::ModelloPrevisioni(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloPrevisioni::Mostra(std::vector<RigaPrevisione> righe, std::shared_ptr<const TabellaEstrazioni> archivio) {
  beginResetModel();
  m_righe = std::move(righe);
  m_archivio = std::move(archivio);
  endResetModel();
}

int ModelloPrevisioni::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_righe.size());
}

int ModelloPrevisioni::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QString ModelloPrevisioni::TestoEstrazione(int id_estr) const {
  if (m_archivio && m_archivio->Contiene(id_estr))
    if (auto data = m_archivio->DataEstrazione(id_estr))
      return QStringLiteral("estr. %1 del %2").arg(id_estr).arg(QString::fromStdString(*data));
  return QStringLiteral("estr. %1").arg(id_estr);
}

QString ModelloPrevisioni::TestoEsito(const RigaPrevisione& riga) const {
  const stats::EsitoPrevisione& esito = riga.verifica.esito;
  switch (riga.verifica.stato) {
    case StatoPrevisione::Vinta:
      return QStringLiteral("%1 su %2 al colpo %3, %4")
          .arg(QString::fromUtf8(stats::NomeSorte(static_cast<stats::SorteLotto>(esito.sorte))))
          .arg(SigleMaschera(esito.ruote))
          .arg(esito.colpo)
          .arg(TestoEstrazione(esito.id_estr));
    case StatoPrevisione::InCorso:
      return QStringLiteral("in corso: %1 colpi giocati su %2").arg(esito.colpi_giocati).arg(riga.previsione.colpi);
    case StatoPrevisione::Negativa: return QStringLiteral("negativa dopo %1 colpi").arg(riga.previsione.colpi);
    case StatoPrevisione::FuoriArchivio:
      return QStringLiteral("fatta all'estrazione %1, che l'archivio non ha").arg(riga.previsione.id_estr);
  }
  return {};
}

QVariant ModelloPrevisioni::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const RigaPrevisione& riga = m_righe[static_cast<size_t>(indice.row())];
  const previsioni::Previsione& p = riga.previsione;
  const int colonna = indice.column();
  if (ruolo == Qt::BackgroundRole && colonna == kColonnaEsito) {
    if (riga.verifica.stato == StatoPrevisione::Vinta) return QBrush(QColor(198, 239, 206));
    if (riga.verifica.stato == StatoPrevisione::Negativa) return QBrush(QColor(242, 220, 219));
    return {};
  }
  if (ruolo == Qt::ForegroundRole && colonna == kColonnaEsito && riga.verifica.stato != StatoPrevisione::InCorso)
    return QBrush(Qt::black);
  if (ruolo == Qt::TextAlignmentRole && (colonna == kColonnaId || colonna == kColonnaColpi))
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (ruolo != Qt::DisplayRole && ruolo != kRuoloOrdinamento) return {};
  const bool ordina = ruolo == kRuoloOrdinamento;
  switch (colonna) {
    case kColonnaId: return QVariant::fromValue<qlonglong>(p.id);
    case kColonnaFatta: return ordina ? QVariant(p.id_estr) : QVariant(TestoEstrazione(p.id_estr));
    case kColonnaNumeri: {
      QStringList numeri;
      for (int n : p.numeri) numeri << QString("%1").arg(n, 2, 10, QChar('0'));
      return numeri.join('-');
    }
    case kColonnaRuote: return Sigle(p.ruote);
    case kColonnaColpi: return p.colpi;
    case kColonnaEsito:
      if (ordina) return Ordine(riga.verifica.stato) * 100000 + riga.verifica.esito.colpo;
      return TestoEsito(riga);
    case kColonnaTesto: return QString::fromStdString(p.testo);
    default: return {};
  }
}

QVariant ModelloPrevisioni::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole)
    return QAbstractTableModel::headerData(sezione, orientamento, ruolo);
  switch (sezione) {
    case kColonnaId: return QStringLiteral("N.");
    case kColonnaFatta: return QStringLiteral("Fatta dopo");
    case kColonnaNumeri: return QStringLiteral("Numeri");
    case kColonnaRuote: return QStringLiteral("Ruote");
    case kColonnaColpi: return QStringLiteral("Colpi");
    case kColonnaEsito: return QStringLiteral("Esito");
    case kColonnaTesto: return QStringLiteral("Testo");
    default: return {};
  }
}

}  // namespace lottolab::gui
