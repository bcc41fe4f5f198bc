#include "gui/comuni/SceltaEstrazioni.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace lottolab::gui {

namespace {

QDate DataQt(const GruppoData& data) { return QDate(data.anno, data.mese, data.giorno); }

GruppoData DaDataQt(const QDate& data) {
  return {0, static_cast<int16_t>(data.day()), static_cast<int16_t>(data.month()), static_cast<int16_t>(data.year())};
}

}  // namespace

stats::EstrazioniPerAnalisi ArchivioDaAnalizzare::PerAnalisi() const {
  if (lotto) return stats::PerAnalisi(*lotto);
  if (gioco) return stats::PerAnalisi(*gioco);
  return stats::PerAnalisi(TabellaEstrazioni());
}

SceltaEstrazioni::SceltaEstrazioni(std::span<const Gioco> giochi, ConDate con_date, QWidget* parent)
    : QWidget(parent), m_giochi(giochi.begin(), giochi.end()), m_gioco(new QComboBox), m_ruote(new QWidget) {
  // The wheels take a line of their own: with the dates beside them they would not fit 1024 pixels.
  auto* righe = new QVBoxLayout(this);
  righe->setContentsMargins(0, 0, 0, 0);
  auto* riga = new QHBoxLayout;
  righe->addLayout(riga);
  riga->addWidget(new QLabel(QStringLiteral("Gioco:")));
  m_gioco->setObjectName("sceltaGioco");
  m_gioco->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  m_gioco->addItem(QStringLiteral("Lotto"));
  for (Gioco gioco : m_giochi) m_gioco->addItem(QString::fromUtf8(Formato(gioco).nome));
  riga->addWidget(m_gioco);

  auto* ruote = new QHBoxLayout(m_ruote);
  ruote->setContentsMargins(8, 0, 0, 0);
  ruote->setSpacing(4);
  ruote->addWidget(new QLabel(QStringLiteral("Ruote:")));
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
    auto* casella = new QCheckBox(QString::fromUtf8(SiglaRuota(ruota)));
    casella->setObjectName(QStringLiteral("ruota%1").arg(ruota));
    casella->setToolTip(QString::fromUtf8(NomeRuota(ruota)));
    casella->setChecked(true);
    ruote->addWidget(casella);
    m_caselle[static_cast<size_t>(ruota - 1)] = casella;
  }
  auto* tutte = new QPushButton(QStringLiteral("Tutte"));
  tutte->setToolTip(QStringLiteral("Sceglie tutte le ruote, o nessuna se lo sono già"));
  connect(tutte, &QPushButton::clicked, this, [this] {
    const bool tutte_scelte =
        std::all_of(m_caselle.begin(), m_caselle.end(), [](QCheckBox* casella) { return casella->isChecked(); });
    for (QCheckBox* casella : m_caselle) casella->setChecked(!tutte_scelte);
  });
  ruote->addWidget(tutte);
  riga->addWidget(m_ruote);
  riga->addStretch();

  if (con_date == ConDate::Si) {
    riga = new QHBoxLayout;
    righe->addLayout(riga);
    auto nuova_data = [&](const QString& etichetta, const QString& nome, QCheckBox*& casella, QDateEdit*& data) {
      casella = new QCheckBox(etichetta);
      casella->setObjectName(nome + QStringLiteral("Spunta"));
      casella->setToolTip(QStringLiteral("Senza spunta l'archivio non ha limite da questa parte"));
      data = new QDateEdit;
      data->setObjectName(nome);
      data->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
      data->setCalendarPopup(true);
      data->setEnabled(false);
      connect(casella, &QCheckBox::toggled, data, &QDateEdit::setEnabled);
      riga->addWidget(casella);
      riga->addWidget(data);
    };
    nuova_data(QStringLiteral("Dal"), QStringLiteral("dataDal"), m_con_dal, m_dal);
    riga->addSpacing(8);
    nuova_data(QStringLiteral("Al"), QStringLiteral("dataAl"), m_con_al, m_al);
    riga->addStretch();
  }
  connect(m_gioco, &QComboBox::currentIndexChanged, this, &SceltaEstrazioni::CambiaGioco);
}

std::optional<Gioco> SceltaEstrazioni::GiocoScelto() const {
  const int scelta = m_gioco->currentIndex();
  if (scelta <= 0 || scelta > static_cast<int>(m_giochi.size())) return std::nullopt;
  return m_giochi[static_cast<size_t>(scelta - 1)];
}

std::vector<int> SceltaEstrazioni::RuoteScelte() const {
  std::vector<int> scelte;
  if (GiocoScelto()) return scelte;
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
    if (m_caselle[static_cast<size_t>(ruota - 1)]->isChecked()) scelte.push_back(ruota);
  return scelte;
}

GruppoData SceltaEstrazioni::Dal() const {
  return m_con_dal && m_con_dal->isChecked() ? DaDataQt(m_dal->date()) : GruppoData{};
}

GruppoData SceltaEstrazioni::Al() const {
  return m_con_al && m_con_al->isChecked() ? DaDataQt(m_al->date()) : GruppoData{};
}

void SceltaEstrazioni::ImpostaLimitiDate(const ArchivioDaAnalizzare& archivio) {
  GruppoData prima;
  GruppoData ultima;
  if (archivio.lotto && !archivio.lotto->Vuota()) {
    prima = archivio.lotto->Tutte().front().data;
    ultima = archivio.lotto->Tutte().back().data;
  } else if (archivio.gioco && archivio.gioco->EstrazioniArchivio() > 0) {
    prima = archivio.gioco->Tutte().front().data;
    ultima = archivio.gioco->Tutte().back().data;
  }
  if (!m_dal || prima == GruppoData{}) return;
  for (QDateEdit* data : {m_dal, m_al}) data->setDateRange(DataQt(prima), DataQt(ultima));
  if (!m_con_dal->isChecked()) m_dal->setDate(DataQt(prima));
  if (!m_con_al->isChecked()) m_al->setDate(DataQt(ultima));
}

void SceltaEstrazioni::ScegliGioco(std::optional<Gioco> gioco) {
  const auto trovato = gioco ? std::find(m_giochi.begin(), m_giochi.end(), *gioco) : m_giochi.end();
  m_gioco->setCurrentIndex(trovato == m_giochi.end() ? 0 : static_cast<int>(trovato - m_giochi.begin()) + 1);
}

void SceltaEstrazioni::ScegliRuote(std::span<const int> ruote) {
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
    m_caselle[static_cast<size_t>(ruota - 1)]->setChecked(std::find(ruote.begin(), ruote.end(), ruota) != ruote.end());
}

void SceltaEstrazioni::CambiaGioco() {
  m_ruote->setVisible(!GiocoScelto());
  emit GiocoCambiato();
}

}  // namespace lottolab::gui
