#include "gui/tabellone/ModelloTabellone.h"

#include <QBrush>
#include <QString>

#include "gui/comuni/ScalaRitardo.h"
#include "stats/RitardiGioco.h"

namespace lottolab::gui {

namespace {

// Whether any draw of inizio..fine counted the wheel: Nazionale before May 2005 has no figures.
bool RuotaEstrattaTra(const TabellaEstrazioni& tab, int ruota, int inizio, int fine) {
  for (int id = inizio; id <= fine; ++id)
    if (tab[id].Presente() && tab[id].RuotaEstratta(ruota)) return true;
  return false;
}

}  // namespace

ModelloTabellone::ModelloTabellone(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloTabellone::Calcola(const TabellaEstrazioni& tab, std::span<const int> ruote, int fine, int inizio) {
  beginResetModel();
  m_righe.clear();
  m_gioco.reset();
  m_fine = tab.Contiene(fine) && tab.Contiene(inizio) && inizio <= fine ? fine : 0;
  if (m_fine > 0) {
    const stats::TabelloneRuote tabellone = stats::CalcolaTabellone(tab, inizio, m_fine);
    m_righe.reserve(ruote.size() * kMassimoNumero);
    for (int ruota : ruote) {
      const bool estratta = RuotaEstrattaTra(tab, ruota, inizio, m_fine);
      for (int numero = 1; numero <= kMassimoNumero; ++numero)
        m_righe.push_back({ruota, numero, tabellone.Dati(ruota, numero), estratta});
    }
  }
  endResetModel();
}

void ModelloTabellone::CalcolaGioco(const TabellaGioco& tab, int fine, int inizio) {
  beginResetModel();
  m_righe.clear();
  m_gioco = tab.formato().gioco;
  m_fine = tab.Contiene(fine) && tab.Contiene(inizio) && inizio <= fine ? fine : 0;
  if (m_fine > 0) {
    const std::vector<stats::StatisticaNumero> figure = stats::TabelloneGioco(tab, m_fine, inizio);
    m_righe.reserve(figure.size());
    for (size_t numero = 1; numero < figure.size(); ++numero)
      m_righe.push_back({0, static_cast<int>(numero), figure[numero], true});
  }
  endResetModel();
}

int ModelloTabellone::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_righe.size());
}

int ModelloTabellone::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QVariant ModelloTabellone::Valore(const Riga& riga, int colonna) const {
  switch (colonna) {
    case kColonnaRuota: return riga.ruota;
    case kColonnaNumero: return riga.numero;
    case kColonnaRitardo: return riga.dati.ritardo;
    case kColonnaFrequenza: return riga.dati.frequenza;
    case kColonnaStorico: return riga.dati.storico;
    case kColonnaIncremento: return riga.dati.incr_storico;
    default: return {};
  }
}

QVariant ModelloTabellone::DatoRitardo(const Riga& riga, int ruolo) const {
  const double quota = QuotaDelloStorico(riga.dati.ritardo, riga.dati.storico);
  switch (ruolo) {
    case Qt::BackgroundRole: return QBrush(SfondoRitardo(quota));
    case Qt::ForegroundRole: return QBrush(TestoSuSfondo(SfondoRitardo(quota)));
    case Qt::ToolTipRole:
      return QString("Ritardo %1 su un massimo storico di %2: il %3%")
          .arg(riga.dati.ritardo)
          .arg(riga.dati.storico)
          .arg(static_cast<int>(quota * 100 + 0.5));
    default: return {};
  }
}

QVariant ModelloTabellone::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const Riga& riga = m_righe[static_cast<size_t>(indice.row())];
  const int colonna = indice.column();
  if (!riga.estratta && colonna >= kColonnaRitardo) {
    // A dash, below every figure when sorted, rather than figures of 0 that read as a number just drawn.
    if (ruolo == kRuoloOrdinamento) return -1;
    if (ruolo == Qt::DisplayRole) return QStringLiteral("–");
    if (ruolo == Qt::ToolTipRole) return QStringLiteral("La ruota non è mai stata estratta nelle estrazioni scelte");
    if (ruolo == Qt::TextAlignmentRole) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
  }
  if (ruolo == kRuoloOrdinamento) return Valore(riga, colonna);
  if (ruolo == Qt::DisplayRole && colonna == kColonnaRuota)
    return m_gioco ? QString::fromUtf8(Formato(*m_gioco).nome.data()) : QString::fromUtf8(NomeRuota(riga.ruota));
  if (ruolo == Qt::DisplayRole) return Valore(riga, colonna);
  if (ruolo == Qt::TextAlignmentRole)
    return colonna == kColonnaRuota ? QVariant(Qt::AlignLeft | Qt::AlignVCenter)
                                    : QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (colonna == kColonnaRitardo) return DatoRitardo(riga, ruolo);
  return {};
}

QVariant ModelloTabellone::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal) return QAbstractTableModel::headerData(sezione, orientamento, ruolo);
  if (ruolo == Qt::DisplayRole) {
    switch (sezione) {
      case kColonnaRuota: return QString("Ruota");
      case kColonnaNumero: return QString("Numero");
      case kColonnaRitardo: return QString("Ritardo");
      case kColonnaFrequenza: return QString("Frequenza");
      case kColonnaStorico: return QString("Storico");
      case kColonnaIncremento: return QString("Incremento");
      default: return {};
    }
  }
  if (ruolo == Qt::ToolTipRole) {
    // A game besides the Lotto has one draw where the Lotto has a wheel.
    const QString dove = m_gioco ? QString() : QString(" sulla ruota");
    switch (sezione) {
      case kColonnaRitardo:
        return (m_gioco ? QString("Estrazioni trascorse dall'ultima uscita del numero.\n")
                        : QString("Estrazioni della ruota trascorse dall'ultima uscita del numero.\n")) +
               DescrizioneScalaRitardo();
      case kColonnaFrequenza: return "Uscite del numero" + dove + " nelle estrazioni scelte";
      case kColonnaStorico: return "Il ritardo più lungo che il numero abbia avuto" + dove + " nelle estrazioni scelte";
      case kColonnaIncremento:
        return QString("Di quanto il ritardo attuale supera il massimo storico che c'era prima; 0 se non lo supera");
      default: return {};
    }
  }
  return {};
}

}  // namespace lottolab::gui
