#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

#include "gui/comuni/CalcoloAnnullabile.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/SegnalatoreGui.h"
#include "gui/spia/ModelloSpia.h"
#include "gui/spia/SceltaIntervallo.h"
#include "gui/spia/TabellaRisultati.h"

namespace lottolab::gui {

namespace {

QComboBox* NuovaSceltaRuota(const char* nome, bool con_tutte) {
  auto* ruota = new QComboBox;
  ruota->setObjectName(nome);
  for (int r = 1; r <= kNumeroRuote; ++r) ruota->addItem(QString::fromUtf8(NomeRuota(r)), r);
  if (con_tutte) ruota->addItem(QStringLiteral("Tutte le ruote"), kTutteLeRuote);
  return ruota;
}

QSpinBox* NuovoNumero(const char* nome, int minimo, int valore) {
  auto* numero = new QSpinBox;
  numero->setObjectName(nome);
  numero->setRange(minimo, 90);
  numero->setValue(valore);
  return numero;
}

class FinestraSpia : public QWidget {
 public:
  FinestraSpia(ContestoGui& contesto, QWidget* parent);

  QSize sizeHint() const override { return {720, 640}; }

 private:
  QWidget* NuoveScelte();
  void AggiornaArchivio();
  void Calcola();
  void MostraEsito(const stats::EsitoSpia& esito, const stats::DomandaSpia& domanda);

  ContestoGui& m_contesto;
  ModelloSpia* m_modello;
  SceltaIntervallo* m_intervallo = nullptr;
  QSpinBox* m_primo = nullptr;
  QSpinBox* m_secondo = nullptr;
  QComboBox* m_ruota_spia = nullptr;
  QComboBox* m_ruota_esito = nullptr;
  QSpinBox* m_colpi = nullptr;
  QLabel* m_stato = nullptr;
  // The computation whose result the window waits for: an older one that ends later is dropped.
  int m_calcolo = 0;
};

FinestraSpia::FinestraSpia(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent), m_contesto(contesto), m_modello(new ModelloSpia(this)) {
  setWindowTitle(QStringLiteral("Numeri spia"));
  setObjectName("finestraSpia");
  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(NuoveScelte());
  m_stato = new QLabel;
  m_stato->setObjectName("statoSpia");
  m_stato->setWordWrap(true);
  colonna->addWidget(m_stato);
  colonna->addWidget(NuovaTabellaRisultati(m_modello, QStringLiteral("Numeri spia"), "tabellaSpia",
                                           ModelloSpia::kColonnaPresenze, Qt::DescendingOrder, this),
                     1);
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &FinestraSpia::AggiornaArchivio);
  AggiornaArchivio();
}

QWidget* FinestraSpia::NuoveScelte() {
  auto* scelte = new QWidget;
  auto* griglia = new QGridLayout(scelte);
  griglia->setContentsMargins(0, 0, 0, 0);
  m_primo = NuovoNumero("spia", 1, 1);
  m_secondo = NuovoNumero("spiaSecondo", 0, 0);
  m_secondo->setSpecialValueText(QStringLiteral("nessuno"));
  m_secondo->setToolTip(QStringLiteral("Un secondo numero fa della spia un ambo"));
  m_ruota_spia = NuovaSceltaRuota("ruotaSpia", false);
  m_ruota_esito = NuovaSceltaRuota("ruotaEsito", true);
  m_colpi = new QSpinBox;
  m_colpi->setObjectName("colpiSpia");
  m_colpi->setRange(1, stats::kMassimiColpiSpia);
  m_colpi->setValue(10);
  auto* riga_spia = new QHBoxLayout;
  riga_spia->addWidget(m_primo);
  riga_spia->addWidget(new QLabel(QStringLiteral("e")));
  riga_spia->addWidget(m_secondo);
  riga_spia->addWidget(new QLabel(QStringLiteral("su")));
  riga_spia->addWidget(m_ruota_spia);
  riga_spia->addStretch();
  griglia->addWidget(new QLabel(QStringLiteral("Spia:")), 0, 0);
  griglia->addLayout(riga_spia, 0, 1);
  auto* riga_esito = new QHBoxLayout;
  riga_esito->addWidget(m_ruota_esito);
  riga_esito->addWidget(new QLabel(QStringLiteral("nelle")));
  riga_esito->addWidget(m_colpi);
  riga_esito->addWidget(new QLabel(QStringLiteral("estrazioni seguenti")));
  auto* calcola = new QPushButton(QStringLiteral("Calcola"));
  calcola->setObjectName("calcolaSpia");
  calcola->setDefault(true);
  riga_esito->addStretch();
  riga_esito->addWidget(calcola);
  griglia->addWidget(new QLabel(QStringLiteral("Numeri usciti su:")), 1, 0);
  griglia->addLayout(riga_esito, 1, 1);
  m_intervallo = new SceltaIntervallo;
  griglia->addWidget(m_intervallo, 2, 0, 1, 2);
  connect(calcola, &QPushButton::clicked, this, &FinestraSpia::Calcola);
  return scelte;
}

void FinestraSpia::AggiornaArchivio() {
  m_intervallo->ImpostaArchivio(m_contesto.Archivio());
  Calcola();
}

void FinestraSpia::Calcola() {
  const int calcolo = ++m_calcolo;
  std::shared_ptr<const TabellaEstrazioni> archivio = m_contesto.Archivio();
  if (!m_intervallo->Valido(*archivio)) {
    m_modello->Mostra({});
    m_stato->setText(archivio->Vuota() ? QStringLiteral("L'archivio è vuoto.")
                                       : QStringLiteral("La prima estrazione viene dopo l'ultima."));
    return;
  }
  stats::DomandaSpia domanda;
  domanda.spia = {m_primo->value(), m_secondo->value() == m_primo->value() ? 0 : m_secondo->value()};
  domanda.ruota_spia = m_ruota_spia->currentData().toInt();
  domanda.ruota_esito = m_ruota_esito->currentData().toInt();
  domanda.colpi = m_colpi->value();
  domanda.inizio = m_intervallo->Inizio();
  domanda.fine = m_intervallo->Fine();
  AvviaCalcoloAnnullabile<stats::EsitoSpia>(
      this, windowTitle(), QStringLiteral("Calcolo dei numeri spia…"), "FinestraSpia.Calcola",
      [archivio, domanda](stats::ControlloCalcolo& controllo) {
        return stats::CalcolaNumeriSpia(*archivio, domanda, controllo);
      },
      [this, calcolo, domanda](const Esito<std::optional<stats::EsitoSpia>>& esito) {
        if (calcolo != m_calcolo) return;
        if (!esito) {
          SegnalatoreGui(this).Mostra(esito.Errore());
          return;
        }
        if (!*esito) {
          m_stato->setText(QStringLiteral("Calcolo annullato."));
          return;
        }
        MostraEsito(**esito, domanda);
      });
}

void FinestraSpia::MostraEsito(const stats::EsitoSpia& esito, const stats::DomandaSpia& domanda) {
  m_modello->Mostra(esito);
  const QString spia = domanda.spia[1] == 0 ? QStringLiteral("Il %1").arg(domanda.spia[0])
                                            : QStringLiteral("L'ambo %1-%2").arg(domanda.spia[0]).arg(domanda.spia[1]);
  const QString ruota = QString::fromUtf8(NomeRuota(domanda.ruota_spia));
  if (esito.uscite == 0) {
    m_stato->setText(QStringLiteral("%1 non è mai uscito su %2 nell'intervallo.").arg(spia, ruota));
    return;
  }
  m_stato->setText(QStringLiteral("%1 è uscito %2 volte su %3 (%4 casi con tutte le %5 estrazioni seguenti); "
                                  "ritardo attuale: %6.")
                       .arg(spia)
                       .arg(esito.uscite)
                       .arg(ruota)
                       .arg(esito.casi)
                       .arg(domanda.colpi)
                       .arg(*esito.ritardo_attuale));
}

}  // namespace

QWidget* NuovaFinestraSpia(ContestoGui& contesto, QWidget* parent) { return new FinestraSpia(contesto, parent); }

}  // namespace lottolab::gui
