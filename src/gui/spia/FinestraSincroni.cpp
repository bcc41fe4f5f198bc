#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

#include "gui/comuni/CalcoloAnnullabile.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/SegnalatoreGui.h"
#include "gui/spia/ModelloSincroni.h"
#include "gui/spia/SceltaIntervallo.h"
#include "gui/spia/TabellaRisultati.h"

namespace lottolab::gui {

namespace {

class FinestraSincroni : public QWidget {
 public:
  FinestraSincroni(ContestoGui& contesto, QWidget* parent);

  QSize sizeHint() const override { return {680, 640}; }

 private:
  QWidget* NuoveScelte();
  void AggiornaArchivio();
  void Calcola();

  ContestoGui& m_contesto;
  ModelloSincroni* m_modello;
  SceltaIntervallo* m_intervallo = nullptr;
  QSpinBox* m_numero = nullptr;
  QComboBox* m_ruota = nullptr;
  QCheckBox* m_ogni_ruota = nullptr;
  QLabel* m_stato = nullptr;
  // The computation whose result the window waits for: an older one that ends later is dropped.
  int m_calcolo = 0;
};

FinestraSincroni::FinestraSincroni(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent), m_contesto(contesto), m_modello(new ModelloSincroni(this)) {
  setWindowTitle(QStringLiteral("Sincroni"));
  setObjectName("finestraSincroni");
  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(NuoveScelte());
  m_stato = new QLabel;
  m_stato->setObjectName("statoSincroni");
  m_stato->setWordWrap(true);
  colonna->addWidget(m_stato);
  colonna->addWidget(NuovaTabellaRisultati(m_modello, QStringLiteral("Sincroni"), "tabellaSincroni",
                                           ModelloSincroni::kColonnaFrequenza, Qt::DescendingOrder, this),
                     1);
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &FinestraSincroni::AggiornaArchivio);
  AggiornaArchivio();
}

QWidget* FinestraSincroni::NuoveScelte() {
  auto* scelte = new QWidget;
  auto* colonna = new QVBoxLayout(scelte);
  colonna->setContentsMargins(0, 0, 0, 0);
  auto* riga = new QHBoxLayout;
  riga->addWidget(new QLabel(QStringLiteral("Numero:")));
  m_numero = new QSpinBox;
  m_numero->setObjectName("numeroSincroni");
  m_numero->setRange(1, 90);
  riga->addWidget(m_numero);
  riga->addWidget(new QLabel(QStringLiteral("su")));
  m_ruota = new QComboBox;
  m_ruota->setObjectName("ruotaSincroni");
  for (int r = 1; r <= kNumeroRuote; ++r) m_ruota->addItem(QString::fromUtf8(NomeRuota(r)), r);
  riga->addWidget(m_ruota);
  m_ogni_ruota = new QCheckBox(QStringLiteral("compagni su ogni ruota dell'estrazione"));
  m_ogni_ruota->setObjectName("ogniRuota");
  riga->addWidget(m_ogni_ruota);
  riga->addStretch();
  auto* calcola = new QPushButton(QStringLiteral("Calcola"));
  calcola->setObjectName("calcolaSincroni");
  riga->addWidget(calcola);
  colonna->addLayout(riga);
  m_intervallo = new SceltaIntervallo;
  colonna->addWidget(m_intervallo);
  connect(calcola, &QPushButton::clicked, this, &FinestraSincroni::Calcola);
  connect(m_ogni_ruota, &QCheckBox::toggled, this, &FinestraSincroni::Calcola);
  return scelte;
}

void FinestraSincroni::AggiornaArchivio() {
  m_intervallo->ImpostaArchivio(m_contesto.Archivio());
  Calcola();
}

void FinestraSincroni::Calcola() {
  const int calcolo = ++m_calcolo;
  std::shared_ptr<const TabellaEstrazioni> archivio = m_contesto.Archivio();
  const int numero = m_numero->value();
  if (!m_intervallo->Valido(*archivio)) {
    m_modello->Mostra({}, numero, archivio);
    m_stato->setText(archivio->Vuota() ? QStringLiteral("L'archivio è vuoto.")
                                       : QStringLiteral("La prima estrazione viene dopo l'ultima."));
    return;
  }
  const int ruota = m_ruota->currentData().toInt();
  const auto da = m_ogni_ruota->isChecked() ? stats::CompagniDa::OgniRuota : stats::CompagniDa::StessaRuota;
  const int inizio = m_intervallo->Inizio();
  const int fine = m_intervallo->Fine();
  AvviaCalcoloAnnullabile<stats::EsitoSincroni>(
      this, windowTitle(), QStringLiteral("Calcolo dei sincroni…"), "FinestraSincroni.Calcola",
      [archivio, numero, ruota, da, inizio, fine](stats::ControlloCalcolo&) {
        return std::optional(stats::CalcolaSincroni(*archivio, numero, ruota, da, inizio, fine));
      },
      [this, calcolo, archivio, numero, ruota](const Esito<std::optional<stats::EsitoSincroni>>& esito) {
        if (calcolo != m_calcolo) return;
        if (!esito) {
          SegnalatoreGui(this).Mostra(esito.Errore());
          return;
        }
        if (!*esito) return;
        const stats::EsitoSincroni& sincroni = **esito;
        m_modello->Mostra(sincroni, numero, archivio);
        const QString nome = QString::fromUtf8(NomeRuota(ruota));
        if (sincroni.estrazioni_contate == 0)
          m_stato->setText(QStringLiteral("%1 non era estratta nell'intervallo.").arg(nome));
        else
          m_stato->setText(QStringLiteral("Il %1 è uscito %2 volte su %3 in %4 estrazioni.")
                               .arg(numero)
                               .arg(sincroni.uscite)
                               .arg(nome)
                               .arg(sincroni.estrazioni_contate));
      });
}

}  // namespace

QWidget* NuovaFinestraSincroni(ContestoGui& contesto, QWidget* parent) {
  return new FinestraSincroni(contesto, parent);
}

}  // namespace lottolab::gui
