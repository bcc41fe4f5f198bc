#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <array>
#include <bit>
#include <memory>

#include "gui/comuni/CalcoloAnnullabile.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/SegnalatoreGui.h"
#include "gui/spia/ModelloIsotopi.h"
#include "gui/spia/SceltaIntervallo.h"
#include "gui/spia/TabellaRisultati.h"

namespace lottolab::gui {

namespace {

using EsitoCondiviso = std::shared_ptr<const stats::EsitoIsotopi>;

class FinestraIsotopi : public QWidget {
 public:
  FinestraIsotopi(ContestoGui& contesto, QWidget* parent);

  QSize sizeHint() const override { return {760, 680}; }

 private:
  QWidget* NuoveScelte();
  uint16_t RuoteScelte() const;
  void AggiornaArchivio();
  void Calcola();

  ContestoGui& m_contesto;
  ModelloEventiIsotopi* m_eventi;
  ModelloStatisticheIsotopi* m_statistiche;
  SceltaIntervallo* m_intervallo = nullptr;
  std::array<QCheckBox*, kNumeroRuote> m_ruote{};
  QLabel* m_stato = nullptr;
  // The computation whose result the window waits for: an older one that ends later is dropped.
  int m_calcolo = 0;
};

FinestraIsotopi::FinestraIsotopi(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent),
      m_contesto(contesto),
      m_eventi(new ModelloEventiIsotopi(this)),
      m_statistiche(new ModelloStatisticheIsotopi(this)) {
  setWindowTitle(QStringLiteral("Isotopi"));
  setObjectName("finestraIsotopi");
  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(NuoveScelte());
  m_stato = new QLabel;
  m_stato->setObjectName("statoIsotopi");
  m_stato->setWordWrap(true);
  colonna->addWidget(m_stato);
  auto* schede = new QTabWidget;
  schede->addTab(NuovaTabellaRisultati(m_eventi, QStringLiteral("Isotopi per estrazione"), "tabellaEventiIsotopi",
                                       ModelloEventiIsotopi::kColonnaEstrazione, Qt::DescendingOrder, this),
                 QStringLiteral("Per estrazione"));
  schede->addTab(NuovaTabellaRisultati(m_statistiche, QStringLiteral("Isotopi per numero e posizione"),
                                       "tabellaStatisticheIsotopi", ModelloStatisticheIsotopi::kColonnaRitardo,
                                       Qt::DescendingOrder, this),
                 QStringLiteral("Per numero e posizione"));
  colonna->addWidget(schede, 1);
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &FinestraIsotopi::AggiornaArchivio);
  AggiornaArchivio();
}

QWidget* FinestraIsotopi::NuoveScelte() {
  auto* scelte = new QWidget;
  auto* colonna = new QVBoxLayout(scelte);
  colonna->setContentsMargins(0, 0, 0, 0);
  auto* riga = new QHBoxLayout;
  riga->addWidget(new QLabel(QStringLiteral("Ruote:")));
  for (int r = 1; r <= kNumeroRuote; ++r) {
    auto* ruota = new QCheckBox(QString::fromUtf8(SiglaRuota(r)));
    ruota->setObjectName(QStringLiteral("ruotaIsotopi%1").arg(r));
    ruota->setToolTip(QString::fromUtf8(NomeRuota(r)));
    ruota->setChecked(true);
    m_ruote[static_cast<size_t>(r - 1)] = ruota;
    riga->addWidget(ruota);
  }
  riga->addStretch();
  auto* calcola = new QPushButton(QStringLiteral("Calcola"));
  calcola->setObjectName("calcolaIsotopi");
  riga->addWidget(calcola);
  colonna->addLayout(riga);
  m_intervallo = new SceltaIntervallo;
  colonna->addWidget(m_intervallo);
  connect(calcola, &QPushButton::clicked, this, &FinestraIsotopi::Calcola);
  return scelte;
}

uint16_t FinestraIsotopi::RuoteScelte() const {
  uint16_t ruote = 0;
  for (int r = 1; r <= kNumeroRuote; ++r)
    if (m_ruote[static_cast<size_t>(r - 1)]->isChecked()) ruote = static_cast<uint16_t>(ruote | (1U << (r - 1)));
  return ruote;
}

void FinestraIsotopi::AggiornaArchivio() {
  m_intervallo->ImpostaArchivio(m_contesto.Archivio());
  Calcola();
}

void FinestraIsotopi::Calcola() {
  const int calcolo = ++m_calcolo;
  std::shared_ptr<const TabellaEstrazioni> archivio = m_contesto.Archivio();
  const uint16_t ruote = RuoteScelte();
  QString rifiuto;
  if (archivio->Vuota())
    rifiuto = QStringLiteral("L'archivio è vuoto.");
  else if (!m_intervallo->Valido(*archivio))
    rifiuto = QStringLiteral("La prima estrazione viene dopo l'ultima.");
  else if (std::popcount(static_cast<unsigned>(ruote)) < 2)
    rifiuto = QStringLiteral("Scegliere almeno due ruote.");
  if (!rifiuto.isEmpty()) {
    m_eventi->Mostra(nullptr, archivio);
    m_statistiche->Mostra(nullptr, archivio);
    m_stato->setText(rifiuto);
    return;
  }
  const int inizio = m_intervallo->Inizio();
  const int fine = m_intervallo->Fine();
  AvviaCalcoloAnnullabile<EsitoCondiviso>(
      this, windowTitle(), QStringLiteral("Ricerca degli isotopi…"), "FinestraIsotopi.Calcola",
      [archivio, ruote, inizio, fine](stats::ControlloCalcolo&) {
        return std::optional<EsitoCondiviso>(
            std::make_shared<const stats::EsitoIsotopi>(stats::CalcolaIsotopi(*archivio, ruote, inizio, fine)));
      },
      [this, calcolo, archivio, inizio, fine](const Esito<std::optional<EsitoCondiviso>>& esito) {
        if (calcolo != m_calcolo) return;
        if (!esito) {
          SegnalatoreGui(this).Mostra(esito.Errore());
          return;
        }
        if (!*esito) return;
        m_eventi->Mostra(**esito, archivio);
        m_statistiche->Mostra(**esito, archivio);
        m_stato->setText(
            QStringLiteral("%1 isotopi in %2 estrazioni.").arg((**esito)->eventi.size()).arg(fine - inizio + 1));
      });
}

}  // namespace

QWidget* NuovaFinestraIsotopi(ContestoGui& contesto, QWidget* parent) { return new FinestraIsotopi(contesto, parent); }

}  // namespace lottolab::gui
