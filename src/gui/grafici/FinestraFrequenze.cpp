#include <QBarSeries>
#include <QBarSet>
#include <QCategoryAxis>
#include <QChart>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineSeries>
#include <QLocale>
#include <QPushButton>
#include <QValueAxis>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <utility>

#include "gui/comuni/CalcoloAnnullabile.h"
#include "gui/grafici/AsseInteri.h"
#include "gui/grafici/FinestraGrafico.h"
#include "gui/grafici/GraficoInterattivo.h"
#include "gui/grafici/ModelloFrequenze.h"
#include "gui/grafici/SceltePeriodo.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/SegnalatoreGui.h"

namespace lottolab::gui {

namespace {

// The numbers labelled under the bars: the first and every tenth, which stay apart at any width.
constexpr int kOgniEtichetta = 10;

class FinestraFrequenze : public FinestraGrafico {
 public:
  FinestraFrequenze(ContestoGui& contesto, QWidget* parent);

 private:
  QWidget* NuoveScelte();
  void Calcola();
  void Disegna();

  ContestoGui& m_contesto;
  ModelloFrequenze* m_modello;
  GraficoInterattivo* m_grafico;
  QComboBox* m_ruota = nullptr;
  SceltePeriodo* m_periodo = nullptr;
  int m_ruota_calcolata = kTutteLeRuote;
  std::pair<int, int> m_intervallo_calcolato{1, 0};
};

FinestraFrequenze::FinestraFrequenze(ContestoGui& contesto, QWidget* parent)
    : FinestraGrafico(parent),
      m_contesto(contesto),
      m_modello(new ModelloFrequenze(this)),
      m_grafico(new GraficoInterattivo) {
  setWindowTitle(QStringLiteral("Frequenze dei numeri"));
  setObjectName(QStringLiteral("finestraFrequenze"));
  m_grafico->ImpostaSuggerimento(
      [this](QPointF punto) { return m_modello->Descrizione(static_cast<int>(std::lround(punto.x())) + 1); });
  Componi(NuoveScelte(), m_grafico, m_modello, m_grafico,
          QStringLiteral("Clic su una barra: storia del ritardo del numero · rotella: zoom · trascina: scorri"));
  m_periodo->Imposta(*m_contesto.Archivio(), 0, 0);
  connect(m_grafico, &GraficoInterattivo::Cliccato, this, [this](QPointF punto) {
    const int numero = static_cast<int>(std::lround(punto.x())) + 1;
    if (numero >= 1 && numero <= m_modello->rowCount())
      ApriStoriaRitardo(this, m_contesto, {numero}, m_ruota_calcolata, m_intervallo_calcolato.first,
                        m_intervallo_calcolato.second);
  });
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, [this] {
    m_periodo->Imposta(*m_contesto.Archivio(), 0, 0);
    Calcola();
  });
  Calcola();
}

QWidget* FinestraFrequenze::NuoveScelte() {
  auto* scelte = new QWidget;
  auto* riga = new QHBoxLayout(scelte);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel(QStringLiteral("Ruota:")));
  m_ruota = NuovaSceltaRuota(kTutteLeRuote);
  riga->addWidget(m_ruota);
  m_periodo = new SceltePeriodo;
  riga->addWidget(m_periodo);
  auto* traccia = new QPushButton(QStringLiteral("Traccia"));
  traccia->setObjectName(QStringLiteral("tracciaFrequenze"));
  riga->addWidget(traccia);
  riga->addStretch();
  connect(traccia, &QPushButton::clicked, this, &FinestraFrequenze::Calcola);
  connect(m_ruota, &QComboBox::currentIndexChanged, this, &FinestraFrequenze::Calcola);
  return scelte;
}

void FinestraFrequenze::Calcola() {
  std::shared_ptr<const TabellaEstrazioni> archivio = m_contesto.Archivio();
  const auto intervallo = IntervalloScelto(*m_periodo, *archivio);
  if (!intervallo) return;
  const int inizio = intervallo->first;
  const int fine = intervallo->second;
  const int ruota = m_ruota->currentData().toInt();
  AvviaCalcoloAnnullabile<stats::FrequenzeNumeri>(
      this, windowTitle(), QStringLiteral("Calcolo delle frequenze…"), "FinestraFrequenze.Calcola",
      [archivio, ruota, inizio, fine](stats::ControlloCalcolo&) {
        return std::optional(stats::CalcolaFrequenze(*archivio, ruota, inizio, fine));
      },
      [this, archivio, ruota, inizio, fine](const Esito<std::optional<stats::FrequenzeNumeri>>& esito) {
        if (!esito) {
          SegnalatoreGui(this).Mostra(esito.Errore());
          return;
        }
        if (!*esito) return;
        m_ruota_calcolata = ruota;
        m_intervallo_calcolato = {inizio, fine};
        m_modello->Imposta(**esito);
        QString titolo =
            QStringLiteral("Frequenze su %1")
                .arg(ruota == kTutteLeRuote ? QStringLiteral("tutte le ruote") : QString::fromUtf8(NomeRuota(ruota)));
        if (auto dal = archivio->DataEstrazione(inizio), al = archivio->DataEstrazione(fine); dal && al)
          titolo += QStringLiteral(" dal %1 al %2").arg(QString::fromStdString(*dal), QString::fromStdString(*al));
        setWindowTitle(titolo);
        Disegna();
      });
}

void FinestraFrequenze::Disegna() {
  const stats::FrequenzeNumeri& frequenze = m_modello->Frequenze();
  auto* grafico = new QChart;
  grafico->setTitle(windowTitle());
  QFont carattere_titolo = grafico->titleFont();
  carattere_titolo.setBold(true);
  grafico->setTitleFont(carattere_titolo);
  grafico->legend()->setAlignment(Qt::AlignBottom);

  auto* barre = new QBarSeries;
  barre->setBarWidth(0.8);
  auto* insieme =
      new QBarSet(QStringLiteral("Frequenza (%1 estrazioni per ruota contate)").arg(frequenze.estrazioni_ruota));
  insieme->setColor(QColor(60, 120, 190));
  insieme->setBorderColor(QColor(60, 120, 190));
  for (int frequenza : frequenze.frequenze) insieme->append(frequenza);
  barre->append(insieme);
  grafico->addSeries(barre);

  const int numeri = static_cast<int>(frequenze.frequenze.size());
  auto* attesa = new QLineSeries;
  attesa->setName(
      QStringLiteral("Frequenza attesa: %1").arg(QLocale(QLocale::Italian).toString(frequenze.attesa, 'f', 1)));
  attesa->setPen(QPen(QColor(190, 30, 30), 2, Qt::DashLine));
  attesa->append(-0.5, frequenze.attesa);
  attesa->append(numeri - 0.5, frequenze.attesa);
  grafico->addSeries(attesa);

  auto* asse_numeri = new QCategoryAxis;
  asse_numeri->setTitleText(QStringLiteral("Numero"));
  asse_numeri->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
  asse_numeri->setRange(-0.5, numeri - 0.5);
  asse_numeri->append(QStringLiteral("1"), 0);
  for (int numero = kOgniEtichetta; numero <= numeri; numero += kOgniEtichetta)
    asse_numeri->append(QString::number(numero), numero - 1);
  asse_numeri->setGridLineVisible(false);
  const int massimo = std::max(1, *std::max_element(frequenze.frequenze.begin(), frequenze.frequenze.end()));
  // Over a long period every bar is near the expected frequency: the axis starts below the lowest
  // bar, so that the differences, which are what the chart is for, can be seen.
  const int minimo = *std::min_element(frequenze.frequenze.begin(), frequenze.frequenze.end());
  const double alto = std::max<double>(massimo, frequenze.attesa);
  QValueAxis* asse_frequenza =
      NuovoAsseInteri(QStringLiteral("Frequenza"), alto, minimo > alto / 2 ? minimo - (alto - minimo) / 2 : 0);
  grafico->addAxis(asse_numeri, Qt::AlignBottom);
  grafico->addAxis(asse_frequenza, Qt::AlignLeft);
  for (QAbstractSeries* serie : grafico->series()) {
    serie->attachAxis(asse_numeri);
    serie->attachAxis(asse_frequenza);
  }
  m_grafico->ImpostaGrafico(grafico);
  m_grafico->MemorizzaVistaIniziale();
}

}  // namespace

QWidget* NuovoGraficoFrequenze(ContestoGui& contesto, QWidget* parent) {
  return new FinestraFrequenze(contesto, parent);
}

}  // namespace lottolab::gui
