#include "gui/ricerca/ModelloRicercaEstrazioni.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

#include "archive/Ruote.h"
#include "gui/comuni/TabellaAnalisi.h"

namespace lottolab::gui {

namespace {

QString NomeColonnaRuota(const stats::EstrazioniPerAnalisi& estrazioni, int ruota) {
  return estrazioni.ruote == kNumeroRuote ? QString::fromUtf8(NomeRuota(ruota)) : QStringLiteral("Numeri");
}

}  // namespace

Esito<std::vector<int>> LeggiNumeriCercati(const QString& testo, int massimo) {
  std::vector<int> numeri;
  for (const QString& parte : testo.split(QRegularExpression(QStringLiteral("[\\s,;]+")), Qt::SkipEmptyParts)) {
    bool ok = false;
    const int numero = parte.toInt(&ok);
    if (!ok || numero < 1 || numero > massimo)
      return AvvisoEsclamativo(QStringLiteral("\"%1\" non è un numero da 1 a %2: scrivi i numeri separati da spazi "
                                              "o virgole, per esempio 7 45 90")
                                   .arg(parte.left(20))
                                   .arg(massimo)
                                   .toStdString());
    numeri.push_back(numero);
  }
  return numeri;
}

ModelloRicercaEstrazioni::ModelloRicercaEstrazioni(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloRicercaEstrazioni::ImpostaRisultato(std::shared_ptr<const stats::EstrazioniPerAnalisi> estrazioni,
                                                std::vector<int> trovate, const stats::FiltroEstrazioni& filtro) {
  beginResetModel();
  m_estrazioni = std::move(estrazioni);
  m_trovate = std::move(trovate);
  m_ruote = m_estrazioni ? stats::RuoteValide(*m_estrazioni, filtro.ruote) : std::vector<int>{};
  m_numeri = filtro.numeri;
  std::sort(m_numeri.begin(), m_numeri.end());
  m_numeri.erase(std::unique(m_numeri.begin(), m_numeri.end()), m_numeri.end());
  const int tutti = static_cast<int>(m_numeri.size());
  m_da_segnare = filtro.dove == stats::DoveNumeri::Ovunque    ? 1
                 : filtro.almeno > 0 && filtro.almeno < tutti ? filtro.almeno
                                                              : std::max(tutti, 1);
  m_cercato = true;
  endResetModel();
}

QString ModelloRicercaEstrazioni::Riassunto() const {
  if (!m_cercato) return QStringLiteral("Scegli i filtri e premi \"Cerca\".");
  if (m_trovate.empty()) return QStringLiteral("Nessuna estrazione trovata con questi filtri.");
  if (m_trovate.size() == 1) return QStringLiteral("Trovata 1 estrazione.");
  return QStringLiteral("Trovate %1 estrazioni.").arg(m_trovate.size());
}

int ModelloRicercaEstrazioni::IdDellaRiga(int riga) const {
  return riga >= 0 && riga < rowCount() ? m_trovate[static_cast<size_t>(riga)] : 0;
}

QString ModelloRicercaEstrazioni::NumeriRuota(int id, int ruota) const {
  if (!m_estrazioni->RuotaEstratta(id, ruota)) return QStringLiteral("–");
  QStringList numeri;
  for (uint8_t numero : m_estrazioni->Numeri(id, ruota)) numeri << QStringLiteral("%1").arg(numero, 2, 10, QChar('0'));
  return numeri.join(' ');
}

int ModelloRicercaEstrazioni::CercatiSullaRuota(int id, int ruota) const {
  if (!m_estrazioni->RuotaEstratta(id, ruota)) return 0;
  int cercati = 0;
  for (uint8_t numero : m_estrazioni->Numeri(id, ruota))
    cercati += std::find(m_numeri.begin(), m_numeri.end(), numero) != m_numeri.end() ? 1 : 0;
  return cercati;
}

int ModelloRicercaEstrazioni::CercatiNellEstrazione(int id) const {
  std::vector<int> presenti;
  for (int ruota : m_ruote)
    if (m_estrazioni->RuotaEstratta(id, ruota))
      for (uint8_t numero : m_estrazioni->Numeri(id, ruota))
        if (std::find(m_numeri.begin(), m_numeri.end(), numero) != m_numeri.end()) presenti.push_back(numero);
  std::sort(presenti.begin(), presenti.end());
  return static_cast<int>(std::unique(presenti.begin(), presenti.end()) - presenti.begin());
}

QString ModelloRicercaEstrazioni::Dettaglio(int riga) const {
  const int id = IdDellaRiga(riga);
  if (id == 0) return {};
  QString testo = QStringLiteral("<p><b>Estrazione n. %1 del %2</b></p><table cellspacing='2'>")
                      .arg(id)
                      .arg(TestoData(m_estrazioni->date[static_cast<size_t>(id - 1)]));
  for (int ruota = 1; ruota <= m_estrazioni->ruote; ++ruota) {
    const bool cercati = CercatiSullaRuota(id, ruota) >= m_da_segnare;
    testo += QStringLiteral("<tr><td>%1</td><td>&nbsp;&nbsp;<tt>%2%3%4</tt></td></tr>")
                 .arg(NomeColonnaRuota(*m_estrazioni, ruota), cercati ? "<b>" : "", NumeriRuota(id, ruota),
                      cercati ? "</b>" : "");
  }
  return testo + QStringLiteral("</table>");
}

int ModelloRicercaEstrazioni::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || !m_estrazioni ? 0 : static_cast<int>(m_trovate.size());
}

int ModelloRicercaEstrazioni::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kPrimaColonnaRuota + static_cast<int>(m_ruote.size());
}

QVariant ModelloRicercaEstrazioni::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const int id = m_trovate[static_cast<size_t>(indice.row())];
  const int colonna = indice.column();
  if (colonna == kColonnaId || colonna == kColonnaData) {
    if (ruolo == kRuoloOrdinamento) return id;
    if (ruolo == Qt::DisplayRole)
      return colonna == kColonnaId ? QString::number(id) : TestoData(m_estrazioni->date[static_cast<size_t>(id - 1)]);
    if (ruolo == Qt::TextAlignmentRole) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
  }
  if (colonna == kColonnaTrovati) {
    if (ruolo == Qt::DisplayRole || ruolo == kRuoloOrdinamento) return CercatiNellEstrazione(id);
    if (ruolo == Qt::TextAlignmentRole) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
  }
  const int ruota = m_ruote[static_cast<size_t>(colonna - kPrimaColonnaRuota)];
  switch (ruolo) {
    case Qt::DisplayRole:
    case kRuoloOrdinamento: return NumeriRuota(id, ruota);
    case Qt::BackgroundRole:
      return CercatiSullaRuota(id, ruota) >= m_da_segnare ? QVariant(QBrush(QColor(255, 236, 160))) : QVariant();
    case Qt::FontRole: {
      if (CercatiSullaRuota(id, ruota) < m_da_segnare) return {};
      QFont grassetto;
      grassetto.setBold(true);
      return grassetto;
    }
    case Qt::ToolTipRole: {
      const int cercati = CercatiSullaRuota(id, ruota);
      return cercati > 0 ? QStringLiteral("%1 dei numeri cercati su questa ruota").arg(cercati) : QVariant();
    }
    default: return {};
  }
}

QVariant ModelloRicercaEstrazioni::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole)
    return QAbstractTableModel::headerData(sezione, orientamento, ruolo);
  switch (sezione) {
    case kColonnaId: return QStringLiteral("N.");
    case kColonnaData: return QStringLiteral("Data");
    case kColonnaTrovati: return QStringLiteral("Cercati");
    default:
      if (!m_estrazioni || sezione - kPrimaColonnaRuota >= static_cast<int>(m_ruote.size())) return {};
      return NomeColonnaRuota(*m_estrazioni, m_ruote[static_cast<size_t>(sezione - kPrimaColonnaRuota)]);
  }
}

}  // namespace lottolab::gui
