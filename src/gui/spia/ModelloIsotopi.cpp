#include "gui/spia/ModelloIsotopi.h"

#include <QStringList>

#include <bit>

#include "gui/spia/TabellaRisultati.h"

namespace lottolab::gui {

namespace {

QString Data(const TabellaEstrazioni& archivio, int id) {
  auto data = archivio.DataEstrazione(id);
  return data ? QString::fromStdString(*data) : QString();
}

QString DueCifre(int numero) { return QString("%1").arg(numero, 2, 10, QChar('0')); }

}  // namespace

QString SigleRuote(uint16_t ruote) {
  QStringList sigle;
  for (int r = 1; r <= kNumeroRuote; ++r)
    if ((ruote & (1U << (r - 1))) != 0) sigle << QString::fromUtf8(SiglaRuota(r));
  return sigle.join(", ");
}

ModelloEventiIsotopi::ModelloEventiIsotopi(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloEventiIsotopi::Mostra(std::shared_ptr<const stats::EsitoIsotopi> esito,
                                  std::shared_ptr<const TabellaEstrazioni> archivio) {
  beginResetModel();
  m_esito = std::move(esito);
  m_archivio = std::move(archivio);
  endResetModel();
}

int ModelloEventiIsotopi::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || !m_esito ? 0 : static_cast<int>(m_esito->eventi.size());
}

int ModelloEventiIsotopi::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QVariant ModelloEventiIsotopi::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const stats::EventoIsotopo& evento = m_esito->eventi[static_cast<size_t>(indice.row())];
  switch (indice.column()) {
    case kColonnaEstrazione: return CellaNumerica(evento.id_estr, evento.id_estr, ruolo);
    case kColonnaData: return CellaNumerica(evento.id_estr, Data(*m_archivio, evento.id_estr), ruolo);
    case kColonnaPosizione: return CellaNumerica(evento.posizione, evento.posizione, ruolo);
    case kColonnaNumero: return CellaNumerica(evento.numero, DueCifre(evento.numero), ruolo);
    case kColonnaRuote: {
      // More wheels first, then by the wheels themselves.
      const int quante = std::popcount(static_cast<unsigned>(evento.ruote));
      if (ruolo == kRuoloOrdinamentoSpia) return quante * 4096 + evento.ruote;
      if (ruolo == Qt::DisplayRole) return QStringLiteral("%1 (%2)").arg(SigleRuote(evento.ruote)).arg(quante);
      return {};
    }
    default: return {};
  }
}

QVariant ModelloEventiIsotopi::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole)
    return QAbstractTableModel::headerData(sezione, orientamento, ruolo);
  switch (sezione) {
    case kColonnaEstrazione: return QStringLiteral("Estrazione");
    case kColonnaData: return QStringLiteral("Data");
    case kColonnaPosizione: return QStringLiteral("Posizione");
    case kColonnaNumero: return QStringLiteral("Numero");
    case kColonnaRuote: return QStringLiteral("Ruote");
    default: return {};
  }
}

ModelloStatisticheIsotopi::ModelloStatisticheIsotopi(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloStatisticheIsotopi::Mostra(std::shared_ptr<const stats::EsitoIsotopi> esito,
                                       std::shared_ptr<const TabellaEstrazioni> archivio) {
  beginResetModel();
  m_esito = std::move(esito);
  m_archivio = std::move(archivio);
  endResetModel();
}

int ModelloStatisticheIsotopi::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || !m_esito ? 0 : 90 * kNumeriPerRuota;
}

int ModelloStatisticheIsotopi::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QVariant ModelloStatisticheIsotopi::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const int numero = indice.row() / kNumeriPerRuota + 1;
  const int posizione = indice.row() % kNumeriPerRuota + 1;
  const stats::StatisticaIsotopo& statistica =
      m_esito->statistiche[static_cast<size_t>(numero - 1)][static_cast<size_t>(posizione - 1)];
  switch (indice.column()) {
    case kColonnaNumero: return CellaNumerica(numero * 10 + posizione, DueCifre(numero), ruolo);
    case kColonnaPosizione: return CellaNumerica(posizione * 100 + numero, posizione, ruolo);
    case kColonnaFrequenza: return CellaNumerica(statistica.frequenza, statistica.frequenza, ruolo);
    case kColonnaRitardo: return CellaNumerica(statistica.ritardo, statistica.ritardo, ruolo);
    case kColonnaUltima:
      if (!statistica.ultima_uscita) return CellaNumerica(0, QStringLiteral("mai"), ruolo);
      return CellaNumerica(*statistica.ultima_uscita, Data(*m_archivio, *statistica.ultima_uscita), ruolo);
    default: return {};
  }
}

QVariant ModelloStatisticheIsotopi::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole)
    return QAbstractTableModel::headerData(sezione, orientamento, ruolo);
  switch (sezione) {
    case kColonnaNumero: return QStringLiteral("Numero");
    case kColonnaPosizione: return QStringLiteral("Posizione");
    case kColonnaFrequenza: return QStringLiteral("Frequenza");
    case kColonnaRitardo: return QStringLiteral("Ritardo");
    case kColonnaUltima: return QStringLiteral("Ultima volta");
    default: return {};
  }
}

}  // namespace lottolab::gui
