#include <QComboBox>
#include <QDate>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

#include "gui/comuni/CalcoloAnnullabile.h"
#include "gui/comuni/SceltaEstrazioni.h"
#include "gui/comuni/TabellaAnalisi.h"
#include "gui/distribuzioni/ModelloFrequenzePeriodo.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/GiocoFinestra.h"
#include "gui/principale/SegnalatoreGui.h"

namespace lottolab::gui {

namespace {

class FinestraFrequenzePeriodo : public QWidget {
 public:
  FinestraFrequenzePeriodo(ContestoGui& contesto, QWidget* parent);

  QSize sizeHint() const override { return {1000, 680}; }

 private:
  QWidget* NuovoPeriodo();
  ArchivioDaAnalizzare Archivio() const;
  void Calcola();

  ContestoGui& m_contesto;
  ModelloFrequenzePeriodo* m_modello;
  SceltaEstrazioni* m_scelta;
  QComboBox* m_tipo = nullptr;
  QSpinBox* m_anno = nullptr;
  QSpinBox* m_blocco = nullptr;
  QLabel* m_riassunto;
};

FinestraFrequenzePeriodo::FinestraFrequenzePeriodo(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent),
      m_contesto(contesto),
      m_modello(new ModelloFrequenzePeriodo(this)),
      m_scelta(new SceltaEstrazioni(kGiochiDesktop, SceltaEstrazioni::ConDate::No)),
      m_riassunto(new QLabel(QStringLiteral("Scegli il periodo e premi \"Calcola\"."))) {
  setWindowTitle(QStringLiteral("Frequenze per periodo"));
  setObjectName("finestraFrequenzePeriodo");
  m_riassunto->setObjectName("riassuntoFrequenze");
  auto* tabella = NuovaTabellaAnalisi(m_modello, ModelloFrequenzePeriodo::kRuoloOrdinamento,
                                      QStringLiteral("Frequenze per periodo"));
  tabella->setObjectName("tabellaFrequenze");
  auto* legenda = new QLabel(QStringLiteral(
      "Ogni frequenza è colorata dallo scarto da quella attesa nel suo periodo: rosso sopra, blu sotto, colore pieno "
      "a tre deviazioni standard. Ctrl+C copia le righe scelte; il menu contestuale le esporta."));
  legenda->setWordWrap(true);

  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(m_scelta);
  colonna->addWidget(NuovoPeriodo());
  colonna->addWidget(m_riassunto);
  colonna->addWidget(tabella, 1);
  colonna->addWidget(legenda);
  connect(m_scelta, &SceltaEstrazioni::GiocoCambiato, this,
          [this] { ImpostaGiocoFinestra(*this, m_scelta->GiocoScelto()); });
}

QWidget* FinestraFrequenzePeriodo::NuovoPeriodo() {
  auto* periodo = new QWidget;
  auto* riga = new QHBoxLayout(periodo);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel(QStringLiteral("Periodo:")));
  m_tipo = new QComboBox;
  m_tipo->setObjectName("tipoPeriodo");
  m_tipo->addItems({QStringLiteral("anno per anno"), QStringLiteral("i mesi dell'anno"),
                    QStringLiteral("gruppi di estrazioni consecutive")});
  riga->addWidget(m_tipo);
  m_anno = new QSpinBox;
  m_anno->setObjectName("annoPeriodo");
  m_anno->setRange(1871, 2200);
  m_anno->setValue(QDate::currentDate().year());
  m_anno->setEnabled(false);
  riga->addWidget(m_anno);
  riga->addWidget(new QLabel(QStringLiteral("estrazioni per gruppo:")));
  m_blocco = new QSpinBox;
  m_blocco->setObjectName("estrazioniPerGruppo");
  m_blocco->setRange(1, 100000);
  m_blocco->setValue(100);
  m_blocco->setEnabled(false);
  m_blocco->setToolTip(
      QStringLiteral("I gruppi si contano a ritroso dall'ultima estrazione: solo il più vecchio "
                     "può essere più corto"));
  riga->addWidget(m_blocco);
  auto* calcola = new QPushButton(QStringLiteral("Calcola"));
  calcola->setObjectName("pulsanteCalcola");
  riga->addWidget(calcola);
  riga->addStretch();
  connect(m_tipo, &QComboBox::currentIndexChanged, this, [this](int tipo) {
    m_anno->setEnabled(tipo == 1);
    m_blocco->setEnabled(tipo == 2);
  });
  connect(calcola, &QPushButton::clicked, this, &FinestraFrequenzePeriodo::Calcola);
  return periodo;
}

ArchivioDaAnalizzare FinestraFrequenzePeriodo::Archivio() const {
  const std::optional<Gioco> gioco = m_scelta->GiocoScelto();
  if (gioco) return {nullptr, m_contesto.ArchivioGioco(*gioco)};
  return {m_contesto.Archivio(), nullptr};
}

void FinestraFrequenzePeriodo::Calcola() {
  const ArchivioDaAnalizzare archivio = Archivio();
  stats::RichiestaFrequenze richiesta;
  richiesta.ruote = m_scelta->RuoteScelte();
  richiesta.tipo = static_cast<stats::TipoPeriodo>(m_tipo->currentIndex());
  richiesta.anno = m_anno->value();
  richiesta.estrazioni_per_blocco = m_blocco->value();
  AvviaCalcoloAnnullabile<stats::FrequenzePeriodi>(
      this, windowTitle(), QStringLiteral("Conteggio delle frequenze…"), "FinestraFrequenzePeriodo.Calcola",
      [archivio, richiesta](stats::ControlloCalcolo& controllo) {
        return stats::CalcolaFrequenzePeriodi(archivio.PerAnalisi(), richiesta, controllo);
      },
      [this, richiesta](const Esito<std::optional<stats::FrequenzePeriodi>>& esito) {
        if (!esito) {
          SegnalatoreGui(this).Mostra(esito.Errore());
          return;
        }
        if (!*esito) return;
        m_modello->ImpostaFrequenze(**esito, richiesta.tipo);
        const stats::FrequenzePeriodi& frequenze = m_modello->Frequenze();
        if (frequenze.periodi.empty()) {
          m_riassunto->setText(richiesta.tipo == stats::TipoPeriodo::MeseDellAnno
                                   ? QStringLiteral("Nessuna estrazione nel %1.").arg(richiesta.anno)
                                   : QStringLiteral("L'archivio di questo gioco è vuoto."));
          return;
        }
        m_riassunto->setText(QStringLiteral("%1 periodi, dall'estrazione %2 alla %3; frequenza attesa di ogni "
                                            "numero in tutto %4.")
                                 .arg(frequenze.periodi.size())
                                 .arg(frequenze.periodi.front().primo)
                                 .arg(frequenze.periodi.back().ultimo)
                                 .arg(frequenze.AttesaTotale(), 0, 'f', 1));
      });
}

}  // namespace

QWidget* NuovaFinestraFrequenzePeriodo(ContestoGui& contesto, QWidget* parent) {
  return new FinestraFrequenzePeriodo(contesto, parent);
}

}  // namespace lottolab::gui
