#include "gui/grafici/SceltePeriodo.h"

#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>
#include <cstdint>

namespace lottolab::gui {

namespace {

QDate Giorno(const GruppoData& data) { return QDate(data.anno, data.mese, data.giorno); }

GruppoData Gruppo(const QDate& giorno) {
  return GruppoData{0, static_cast<int16_t>(giorno.day()), static_cast<int16_t>(giorno.month()),
                    static_cast<int16_t>(giorno.year())};
}

QDateEdit* NuovaData(const QString& nome) {
  auto* data = new QDateEdit;
  data->setObjectName(nome);
  data->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
  data->setCalendarPopup(true);
  return data;
}

}  // namespace

SceltePeriodo::SceltePeriodo(QWidget* parent)
    : QWidget(parent), m_dal(NuovaData(QStringLiteral("dataDal"))), m_al(NuovaData(QStringLiteral("dataAl"))) {
  auto* riga = new QHBoxLayout(this);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel(QStringLiteral("Dal:")));
  riga->addWidget(m_dal);
  riga->addWidget(new QLabel(QStringLiteral("Al:")));
  riga->addWidget(m_al);
}

void SceltePeriodo::Imposta(const TabellaEstrazioni& tab, int inizio, int fine) {
  const int ultima = tab.EstrazioniArchivio();
  if (ultima == 0) return;
  inizio = tab.Contiene(inizio) ? inizio : 1;
  fine = tab.Contiene(fine) ? fine : ultima;
  const QDate prima = Giorno(tab[1].data);
  const QDate dopo = Giorno(tab[ultima].data);
  for (QDateEdit* data : {m_dal, m_al})
    if (prima.isValid() && dopo.isValid()) data->setDateRange(prima, dopo);
  m_dal->setDate(Giorno(tab[inizio].data));
  m_al->setDate(Giorno(tab[fine].data));
}

std::pair<int, int> SceltePeriodo::Intervallo(const TabellaEstrazioni& tab) const {
  const int inizio = tab.UltimaEstrazioneEntro(Gruppo(m_dal->date().addDays(-1))) + 1;
  const int fine = tab.UltimaEstrazioneEntro(Gruppo(m_al->date()));
  return {inizio, fine};
}

QComboBox* NuovaSceltaRuota(int ruota) {
  auto* scelta = new QComboBox;
  scelta->setObjectName(QStringLiteral("ruotaGrafico"));
  for (int r = 1; r <= kNumeroRuote; ++r) scelta->addItem(QString::fromUtf8(NomeRuota(r)), r);
  scelta->addItem(QStringLiteral("Tutte"), kTutteLeRuote);
  scelta->setCurrentIndex(std::max(0, scelta->findData(ruota)));
  return scelta;
}

}  // namespace lottolab::gui
