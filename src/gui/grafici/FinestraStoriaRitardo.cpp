#include <QChart>
#include <QComboBox>
#include <QDateEdit>
#include <QDateTimeAxis>
#include <QHBoxLayout>
#include <QLabel>
#include <QLegendMarker>
#include <QLineEdit>
#include <QLineSeries>
#include <QPushButton>
#include <QScatterSeries>
#include <QValueAxis>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "gui/comuni/CalcoloAnnullabile.h"
#include "gui/grafici/AsseInteri.h"
#include "gui/grafici/FinestraGrafico.h"
#include "gui/grafici/GraficoInterattivo.h"
#include "gui/grafici/ModelloStoriaRitardo.h"
#include "gui/grafici/SceltePeriodo.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/SegnalatoreGui.h"

namespace lottolab::gui {

namespace {

// Labels this far apart never overlap, whatever their format.
constexpr double kPixelPerEtichetta = 110;
constexpr qint64 kMillisecondiGiorno = 24LL * 60 * 60 * 1000;

// The finest format that a span of dates needs, so that the labels differ at every zoom.
QString FormatoDate(qint64 giorni) {
  if (giorni > 6 * 365) return QStringLiteral("yyyy");
  if (giorni > 180) return QStringLiteral("MM/yyyy");
  return QStringLiteral("dd/MM/yyyy");
}

class FinestraStoriaRitardo : public FinestraGrafico {
 public:
  FinestraStoriaRitardo(ContestoGui& contesto, const std::vector<int>& numeri, int ruota, int inizio, int fine,
                        QWidget* parent);

 private:
  QWidget* NuoveScelte(const std::vector<int>& numeri, int ruota);
  void Calcola();
  void Disegna();
  void AdattaAsseDate();

  ContestoGui& m_contesto;
  ModelloStoriaRitardo* m_modello;
  GraficoInterattivo* m_grafico;
  QLineEdit* m_numeri = nullptr;
  QComboBox* m_ruota = nullptr;
  QComboBox* m_sorte = nullptr;
  SceltePeriodo* m_periodo = nullptr;
  QDateTimeAxis* m_asse_date = nullptr;
};

FinestraStoriaRitardo::FinestraStoriaRitardo(ContestoGui& contesto, const std::vector<int>& numeri, int ruota,
                                             int inizio, int fine, QWidget* parent)
    : FinestraGrafico(parent),
      m_contesto(contesto),
      m_modello(new ModelloStoriaRitardo(this)),
      m_grafico(new GraficoInterattivo) {
  setWindowTitle(QStringLiteral("Storia del ritardo"));
  setObjectName(QStringLiteral("finestraStoriaRitardo"));
  m_grafico->ImpostaSuggerimento([this](QPointF punto) {
    const int riga = m_modello->RigaPiuVicina(punto.x());
    return riga < 0 ? QString() : m_modello->Descrizione(riga);
  });
  QWidget* scelte = NuoveScelte(numeri, ruota);
  Componi(scelte, m_grafico, m_modello, m_grafico,
          QStringLiteral("Rotella: zoom sulle date · trascina: scorri · Maiusc+trascina: zoom sul tratto scelto · "
                         "il suggerimento dà data e ritardo"));
  m_periodo->Imposta(*m_contesto.Archivio(), inizio, fine);
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, [this] {
    m_periodo->Imposta(*m_contesto.Archivio(), 0, 0);
    Calcola();
  });
  if (numeri.empty())
    m_grafico->chart()->setTitle(QStringLiteral("Scrivi da 1 a 5 numeri, scegli la ruota e premi Traccia"));
  else
    Calcola();
}

QWidget* FinestraStoriaRitardo::NuoveScelte(const std::vector<int>& numeri, int ruota) {
  auto* scelte = new QWidget;
  auto* riga = new QHBoxLayout(scelte);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel(QStringLiteral("Numeri:")));
  m_numeri = new QLineEdit;
  m_numeri->setObjectName(QStringLiteral("numeriStoria"));
  m_numeri->setPlaceholderText(QStringLiteral("es. 7 45"));
  m_numeri->setToolTip(QStringLiteral("Da 1 a 5 numeri tra 1 e 90; Invio per tracciare"));
  m_numeri->setMaximumWidth(140);
  QStringList scritti;
  for (int numero : numeri) scritti << QString::number(numero);
  m_numeri->setText(scritti.join(QLatin1Char(' ')));
  riga->addWidget(m_numeri);
  riga->addWidget(new QLabel(QStringLiteral("Ruota:")));
  m_ruota = NuovaSceltaRuota(ruota);
  riga->addWidget(m_ruota);
  riga->addWidget(new QLabel(QStringLiteral("Sorte:")));
  m_sorte = new QComboBox;
  m_sorte->setObjectName(QStringLiteral("sorteStoria"));
  m_sorte->addItems({QStringLiteral("Estratto"), QStringLiteral("Ambo"), QStringLiteral("Terno"),
                     QStringLiteral("Quaterna"), QStringLiteral("Cinquina")});
  m_sorte->setCurrentIndex(std::clamp(static_cast<int>(numeri.size()), 1, kNumeriPerRuota) - 1);
  riga->addWidget(m_sorte);
  m_periodo = new SceltePeriodo;
  riga->addWidget(m_periodo);
  auto* traccia = new QPushButton(QStringLiteral("Traccia"));
  traccia->setObjectName(QStringLiteral("tracciaStoria"));
  traccia->setDefault(true);
  riga->addWidget(traccia);
  riga->addStretch();
  connect(traccia, &QPushButton::clicked, this, &FinestraStoriaRitardo::Calcola);
  connect(m_numeri, &QLineEdit::returnPressed, this, &FinestraStoriaRitardo::Calcola);
  // A new count of numbers proposes its own sorte: the ambo of two numbers, the terno of three.
  connect(m_numeri, &QLineEdit::textEdited, this, [this](const QString& testo) {
    if (auto letti = LeggiNumeriStoria(testo)) m_sorte->setCurrentIndex(static_cast<int>(letti->size()) - 1);
  });
  return scelte;
}

void FinestraStoriaRitardo::Calcola() {
  auto numeri = LeggiNumeriStoria(m_numeri->text());
  if (!numeri) {
    MostraAvviso(QString::fromStdString(numeri.Errore().testo));
    return;
  }
  const int sorte = m_sorte->currentIndex() + 1;
  if (sorte > static_cast<int>(numeri->size())) {
    MostraAvviso(QStringLiteral("La sorte scelta chiede almeno %1 numeri").arg(sorte));
    return;
  }
  std::shared_ptr<const TabellaEstrazioni> archivio = m_contesto.Archivio();
  const auto intervallo = IntervalloScelto(*m_periodo, *archivio);
  if (!intervallo) return;
  const int inizio = intervallo->first;
  const int fine = intervallo->second;
  const int ruota = m_ruota->currentData().toInt();
  setWindowTitle(TitoloStoria(*numeri, sorte, ruota));
  AvviaCalcoloAnnullabile<stats::StoriaRitardo>(
      this, windowTitle(), QStringLiteral("Calcolo della storia del ritardo…"), "FinestraStoriaRitardo.Calcola",
      [archivio, numeri = *numeri, ruota, sorte, inizio, fine](stats::ControlloCalcolo&) {
        const std::array ruote{ruota};
        return std::optional(stats::CalcolaStoriaRitardo(*archivio, ruote, numeri, sorte, inizio, fine));
      },
      [this, archivio](const Esito<std::optional<stats::StoriaRitardo>>& esito) {
        if (!esito) {
          SegnalatoreGui(this).Mostra(esito.Errore());
          return;
        }
        if (!*esito) return;
        m_modello->Imposta(**esito, *archivio);
        Disegna();
      });
}

void FinestraStoriaRitardo::Disegna() {
  auto* grafico = new QChart;
  grafico->setTitle(windowTitle());
  QFont carattere_titolo = grafico->titleFont();
  carattere_titolo.setBold(true);
  carattere_titolo.setPointSizeF(carattere_titolo.pointSizeF() * 1.2);
  grafico->setTitleFont(carattere_titolo);
  grafico->legend()->setAlignment(Qt::AlignBottom);
  const stats::StoriaRitardo& storia = m_modello->Storia();
  const int righe = m_modello->rowCount();
  if (righe == 0) {
    grafico->setTitle(windowTitle() + QStringLiteral(": nessuna estrazione contata nel periodo"));
    m_grafico->ImpostaGrafico(grafico);
    m_asse_date = nullptr;
    return;
  }

  auto* ritardi = new QLineSeries;
  ritardi->setName(QStringLiteral("Ritardo (uscite: %1)").arg(storia.uscite));
  QList<QPointF> punti;
  punti.reserve(righe);
  for (int r = 0; r < righe; ++r)
    punti.append(QPointF(static_cast<double>(m_modello->Istante(r)), storia.ritardi[static_cast<size_t>(r)]));
  ritardi->replace(punti);
  ritardi->setPen(QPen(QColor(30, 90, 170), 1.5));
  grafico->addSeries(ritardi);

  const double primo = static_cast<double>(m_modello->Istante(0));
  const double ultimo = static_cast<double>(m_modello->Istante(righe - 1));
  const auto riga_storico =
      static_cast<int>(std::find(storia.estrazioni.begin(), storia.estrazioni.end(), storia.estrazione_storico) -
                       storia.estrazioni.begin());
  auto* linea_storico = new QLineSeries;
  linea_storico->setName(
      storia.estrazione_storico > 0
          ? QStringLiteral("Massimo storico: %1 (%2)").arg(storia.storico).arg(m_modello->Data(riga_storico))
          : QStringLiteral("Massimo storico: 0"));
  linea_storico->setPen(QPen(QColor(190, 30, 30), 1.5, Qt::DashLine));
  linea_storico->append(primo, storia.storico);
  linea_storico->append(ultimo, storia.storico);
  grafico->addSeries(linea_storico);

  auto segna = [grafico](const QString& nome, const QString& etichetta, const QColor& colore, QPointF punto) {
    auto* segno = new QScatterSeries;
    segno->setName(nome);
    segno->setColor(colore);
    segno->setBorderColor(colore.darker());
    segno->setMarkerSize(9);
    segno->append(punto);
    segno->setPointLabelsFormat(etichetta);
    segno->setPointLabelsVisible(true);
    segno->setPointLabelsClipping(false);
    segno->setPointLabelsColor(colore.darker());
    grafico->addSeries(segno);
    return segno;
  };
  // The maximum's point repeats the dashed line's legend; the current delay's label is the bare figure,
  // which stays inside the frame at the right edge.
  if (storia.estrazione_storico > 0) {
    QScatterSeries* massimo = segna({}, QStringLiteral("max @yPoint"), QColor(190, 30, 30),
                                    QPointF(static_cast<double>(m_modello->Istante(riga_storico)), storia.storico));
    for (QLegendMarker* marcatore : grafico->legend()->markers(massimo)) marcatore->setVisible(false);
  }
  segna(QStringLiteral("Ritardo attuale: %1 (%2)").arg(storia.ritardo_attuale).arg(m_modello->Data(righe - 1)),
        QStringLiteral("@yPoint"), QColor(0, 130, 60), QPointF(ultimo, storia.ritardo_attuale));

  m_asse_date = new QDateTimeAxis;
  m_asse_date->setTitleText(QStringLiteral("Data dell'estrazione"));
  // A margin of a fiftieth on both sides keeps the first and the last draw off the frame.
  const auto margine = static_cast<qint64>(std::max((ultimo - primo) / 50, double(kMillisecondiGiorno)));
  m_asse_date->setRange(QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(primo) - margine),
                        QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(ultimo) + margine));
  QValueAxis* asse_ritardo = NuovoAsseInteri(QStringLiteral("Ritardo"), storia.storico);
  grafico->addAxis(m_asse_date, Qt::AlignBottom);
  grafico->addAxis(asse_ritardo, Qt::AlignLeft);
  for (QAbstractSeries* serie : grafico->series()) {
    serie->attachAxis(m_asse_date);
    serie->attachAxis(asse_ritardo);
  }
  connect(m_asse_date, &QDateTimeAxis::rangeChanged, this, &FinestraStoriaRitardo::AdattaAsseDate);
  connect(grafico, &QChart::plotAreaChanged, this, &FinestraStoriaRitardo::AdattaAsseDate);
  m_grafico->ImpostaGrafico(grafico);
  AdattaAsseDate();
  m_grafico->MemorizzaVistaIniziale();
}

void FinestraStoriaRitardo::AdattaAsseDate() {
  if (!m_asse_date) return;
  const qint64 giorni = m_asse_date->min().daysTo(m_asse_date->max());
  m_asse_date->setFormat(FormatoDate(giorni));
  const double larghezza = m_grafico->chart()->plotArea().width();
  m_asse_date->setTickCount(std::clamp(static_cast<int>(larghezza / kPixelPerEtichetta) + 1, 3, 13));
}

}  // namespace

QWidget* NuovaStoriaRitardo(ContestoGui& contesto, const std::vector<int>& numeri, int ruota, int inizio, int fine,
                            QWidget* parent) {
  return new FinestraStoriaRitardo(contesto, numeri, ruota, inizio, fine, parent);
}

void ApriStoriaRitardo(QWidget* vicino, ContestoGui& contesto, const std::vector<int>& numeri, int ruota, int inizio,
                       int fine) {
  ApriAccanto(vicino, NuovaStoriaRitardo(contesto, numeri, ruota, inizio, fine));
}

}  // namespace lottolab::gui
