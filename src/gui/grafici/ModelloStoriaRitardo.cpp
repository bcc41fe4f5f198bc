#include "gui/grafici/ModelloStoriaRitardo.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>
#include <string>

namespace lottolab::gui {

namespace {

constexpr std::array<const char*, kNumeriPerRuota + 1> kSorti{"", "estratto", "ambo", "terno", "quaterna", "cinquina"};

QString NomeRuotaScelta(int ruota) {
  return ruota == kTutteLeRuote ? QStringLiteral("tutte le ruote") : QString::fromUtf8(NomeRuota(ruota));
}

}  // namespace

Esito<std::vector<int>> LeggiNumeriStoria(const QString& testo) {
  static const QRegularExpression kSeparatori(QStringLiteral("[\\s,;.\\-]+"));
  const QStringList parti = testo.split(kSeparatori, Qt::SkipEmptyParts);
  if (parti.isEmpty() || parti.size() > kNumeriPerRuota)
    return AvvisoEsclamativo("Scrivi da 1 a 5 numeri tra 1 e 90, separati da spazi (per esempio 7 45)");
  std::vector<int> numeri;
  for (const QString& parte : parti) {
    bool ok = false;
    const int numero = parte.toInt(&ok);
    if (!ok || numero < 1 || numero > kMassimoNumero)
      return AvvisoEsclamativo("\"" + parte.left(20).toStdString() + "\" non è un numero tra 1 e 90");
    if (std::find(numeri.begin(), numeri.end(), numero) != numeri.end())
      return AvvisoEsclamativo("Il numero " + std::to_string(numero) + " è scritto due volte");
    numeri.push_back(numero);
  }
  return numeri;
}

QString TitoloStoria(const std::vector<int>& numeri, int sorte, int ruota) {
  QStringList scritti;
  for (int numero : numeri) scritti << QString::number(numero);
  QString titolo = numeri.size() == 1 ? QStringLiteral("Storia del ritardo del %1 su %2")
                                      : QStringLiteral("Storia del ritardo di %1 su %2");
  titolo = titolo.arg(scritti.join(QLatin1Char('-')), NomeRuotaScelta(ruota));
  if (numeri.size() > 1)
    titolo += QStringLiteral(" (sorte: %1)").arg(QString::fromLatin1(kSorti[static_cast<size_t>(sorte)]));
  return titolo;
}

ModelloStoriaRitardo::ModelloStoriaRitardo(QObject* parent) : QAbstractTableModel(parent) {}

void ModelloStoriaRitardo::Imposta(stats::StoriaRitardo storia, const TabellaEstrazioni& tab) {
  beginResetModel();
  m_storia = std::move(storia);
  m_date.clear();
  m_istanti.clear();
  qint64 precedente = std::numeric_limits<qint64>::min();
  for (int id : m_storia.estrazioni) {
    const GruppoData& data = tab[id].data;
    const QDate giorno(data.anno, data.mese, data.giorno);
    m_date.push_back(giorno);
    const qint64 istante = giorno.isValid() ? QDateTime(giorno, QTime(12, 0)).toMSecsSinceEpoch() : precedente;
    precedente = std::max(precedente, istante);
    m_istanti.push_back(precedente == std::numeric_limits<qint64>::min() ? 0 : precedente);
  }
  endResetModel();
}

int ModelloStoriaRitardo::RigaPiuVicina(double istante) const {
  if (m_istanti.empty()) return -1;
  const auto dopo = std::lower_bound(m_istanti.begin(), m_istanti.end(), istante,
                                     [](qint64 a, double b) { return static_cast<double>(a) < b; });
  if (dopo == m_istanti.begin()) return 0;
  if (dopo == m_istanti.end()) return static_cast<int>(m_istanti.size()) - 1;
  const auto prima = std::prev(dopo);
  const bool piu_vicina_prima = istante - static_cast<double>(*prima) <= static_cast<double>(*dopo) - istante;
  return static_cast<int>((piu_vicina_prima ? prima : dopo) - m_istanti.begin());
}

QString ModelloStoriaRitardo::Data(int riga) const {
  const QDate& data = m_date[static_cast<size_t>(riga)];
  return data.isValid() ? data.toString(QStringLiteral("dd/MM/yyyy")) : QStringLiteral("?");
}

QString ModelloStoriaRitardo::Descrizione(int riga) const {
  const auto r = static_cast<size_t>(riga);
  const int ritardo = m_storia.ritardi[r];
  return QStringLiteral("Estrazione %1 del %2\nRitardo %3%4")
      .arg(m_storia.estrazioni[r])
      .arg(Data(riga))
      .arg(ritardo)
      .arg(ritardo == 0 ? QStringLiteral(" (uscita)") : QString());
}

int ModelloStoriaRitardo::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_storia.estrazioni.size());
}

int ModelloStoriaRitardo::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QVariant ModelloStoriaRitardo::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || ruolo != Qt::DisplayRole) return {};
  const auto r = static_cast<size_t>(indice.row());
  switch (indice.column()) {
    case kColonnaEstrazione: return m_storia.estrazioni[r];
    case kColonnaData: return Data(indice.row());
    case kColonnaRitardo: return m_storia.ritardi[r];
    default: return {};
  }
}

QVariant ModelloStoriaRitardo::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole) return {};
  switch (sezione) {
    case kColonnaEstrazione: return QStringLiteral("Estrazione");
    case kColonnaData: return QStringLiteral("Data");
    case kColonnaRitardo: return QStringLiteral("Ritardo");
    default: return {};
  }
}

}  // namespace lottolab::gui
