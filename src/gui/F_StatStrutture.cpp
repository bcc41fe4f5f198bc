#include "F_StatStrutture.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QThread>
#include <QVBoxLayout>

#include <algorithm>

namespace lottolab::gui {

namespace {

constexpr int kScalaAvanzamento = 1000;
constexpr int kColpiIniziali = 9;
constexpr int kMassimiColpi = 1000;
const char* const kSorti[] = {"", "ambata", "ambo", "terno", "quaterna", "cinquina"};

QString DescriviEsito(const figures::EsitoFigura& esito) {
  if (esito.sorte != 0) return QString("%1 al colpo %2").arg(kSorti[esito.sorte]).arg(esito.colpo);
  return esito.in_corso ? "in corso" : "negativo";
}

QTableWidgetItem* Cella(const QString& testo, Qt::Alignment allineamento = Qt::AlignLeft | Qt::AlignVCenter) {
  auto* cella = new QTableWidgetItem(testo);
  cella->setTextAlignment(allineamento);
  return cella;
}

}  // namespace

F_StatStrutture::F_StatStrutture(ContestoGui& contesto, std::function<figures::Struttura()> struttura, QWidget* parent)
    : QDialog(parent),
      m_contesto(contesto),
      m_struttura(std::move(struttura)),
      m_inizio(new QSpinBox),
      m_fine(new QSpinBox),
      m_data_inizio(new QLabel),
      m_data_fine(new QLabel),
      m_colpi(new QSpinBox),
      m_cerca(new QPushButton("Cerca")),
      m_ferma(new QPushButton("Ferma")),
      m_avanzamento(new QProgressBar),
      m_figure(new QTableWidget(0, 5)),
      m_trovate(new QLabel),
      m_statistica(new QLabel) {
  setWindowTitle("Cerca nell'archivio");

  auto* intervallo = new QGridLayout;
  intervallo->addWidget(new QLabel("Dall'estrazione"), 0, 0);
  intervallo->addWidget(m_inizio, 0, 1);
  intervallo->addWidget(m_data_inizio, 0, 2);
  intervallo->addWidget(new QLabel("all'estrazione"), 1, 0);
  intervallo->addWidget(m_fine, 1, 1);
  intervallo->addWidget(m_data_fine, 1, 2);
  intervallo->addWidget(new QLabel("Colpi di gioco"), 2, 0);
  m_colpi->setRange(1, kMassimiColpi);
  m_colpi->setValue(kColpiIniziali);
  intervallo->addWidget(m_colpi, 2, 1);
  auto* gruppo_intervallo = new QGroupBox("Periodo");
  gruppo_intervallo->setLayout(intervallo);

  auto* ruote = new QGridLayout;
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
    auto* scelta = new QCheckBox(QString::fromUtf8(NomeRuota(ruota).data(), static_cast<qsizetype>(NomeRuota(ruota).size())));
    scelta->setChecked(true);
    m_ruote[static_cast<size_t>(ruota - 1)] = scelta;
    ruote->addWidget(scelta, (ruota - 1) / 4, (ruota - 1) % 4);
  }
  auto* gruppo_ruote = new QGroupBox("Ruote");
  gruppo_ruote->setLayout(ruote);

  auto* opzioni = new QHBoxLayout;
  opzioni->addWidget(gruppo_intervallo);
  opzioni->addWidget(gruppo_ruote, 1);

  auto* comandi = new QHBoxLayout;
  comandi->addWidget(m_cerca);
  comandi->addWidget(m_ferma);
  comandi->addWidget(m_avanzamento, 1);
  m_ferma->setEnabled(false);
  m_avanzamento->setRange(0, kScalaAvanzamento);
  m_avanzamento->setValue(0);
  m_avanzamento->setTextVisible(false);

  m_figure->setHorizontalHeaderLabels({"Estrazione", "Data", "Ruote", "Numeri ai vertici", "Esito"});
  m_figure->verticalHeader()->hide();
  m_figure->verticalHeader()->setDefaultSectionSize(m_figure->fontMetrics().height() + 6);
  m_figure->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_figure->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_figure->horizontalHeader()->setStretchLastSection(true);
  m_statistica->setTextFormat(Qt::RichText);
  m_statistica->setWordWrap(true);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(opzioni);
  layout->addLayout(comandi);
  layout->addWidget(m_figure, 1);
  layout->addWidget(m_trovate);
  layout->addWidget(m_statistica);
  resize(760, 560);

  auto data = [this](QSpinBox* estrazione, QLabel* etichetta) {
    connect(estrazione, &QSpinBox::valueChanged, this, [this, etichetta](int id) {
      etichetta->setText(QString::fromStdString(m_contesto.Archivio()->DataEstrazione(id).ValoreOppure("")));
    });
  };
  data(m_inizio, m_data_inizio);
  data(m_fine, m_data_fine);
  connect(m_cerca, &QPushButton::clicked, this, &F_StatStrutture::Cerca);
  connect(m_ferma, &QPushButton::clicked, this, [this] { m_fermata_chiesta = true; });
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &F_StatStrutture::AggiornaArchivio);
  AggiornaArchivio();
}

F_StatStrutture::~F_StatStrutture() {
  if (!m_lavoro) return;
  m_fermata_chiesta = true;
  m_lavoro->wait();
}

void F_StatStrutture::AggiornaArchivio() {
  const int estrazioni = m_contesto.Archivio()->EstrazioniArchivio();
  for (QSpinBox* estrazione : {m_inizio, m_fine}) estrazione->setRange(std::min(1, estrazioni), estrazioni);
  m_inizio->setValue(1);
  m_fine->setValue(estrazioni);
  m_cerca->setEnabled(estrazioni > 0 && !m_lavoro);
}

void F_StatStrutture::Cerca() {
  RichiestaRicerca richiesta;
  richiesta.struttura = m_struttura();
  if (richiesta.struttura.vertici.empty()) {
    QMessageBox::information(this, windowTitle(), "La struttura non ha vertici.");
    return;
  }
  richiesta.inizio = std::min(m_inizio->value(), m_fine->value());
  richiesta.fine = std::max(m_inizio->value(), m_fine->value());
  richiesta.colpi = m_colpi->value();
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
    if (m_ruote[static_cast<size_t>(ruota - 1)]->isChecked()) richiesta.ruote.push_back(ruota);
  if (richiesta.ruote.empty()) {
    QMessageBox::information(this, windowTitle(), "Scegliere almeno una ruota.");
    return;
  }
  if (richiesta.ruote.size() == static_cast<size_t>(kNumeroRuote)) richiesta.ruote.clear();

  m_archivio_cercato = m_contesto.Archivio();
  m_colpi_cercati = richiesta.colpi;
  m_risultato.reset();
  m_fermata_chiesta = false;
  m_figure->setRowCount(0);
  m_trovate->setText("Ricerca in corso...");
  m_statistica->clear();
  m_avanzamento->setValue(0);
  m_cerca->setEnabled(false);
  m_ferma->setEnabled(true);

  m_lavoro = QThread::create([this, richiesta = std::move(richiesta)] {
    auto progresso = [this](double quota) {
      QMetaObject::invokeMethod(
          this, [this, quota] { m_avanzamento->setValue(static_cast<int>(quota * kScalaAvanzamento)); },
          Qt::QueuedConnection);
    };
    m_risultato = CercaStruttura(*m_archivio_cercato, richiesta, progresso, m_fermata_chiesta);
  });
  connect(m_lavoro, &QThread::finished, this, &F_StatStrutture::Concludi);
  m_lavoro->start();
}

void F_StatStrutture::Concludi() {
  m_lavoro->wait();
  m_lavoro->deleteLater();
  m_lavoro = nullptr;
  m_ferma->setEnabled(false);
  m_cerca->setEnabled(m_contesto.Archivio()->EstrazioniArchivio() > 0);
  if (!m_risultato || !*m_risultato) {
    m_trovate->clear();
    if (m_risultato) QMessageBox::warning(this, windowTitle(), QString::fromStdString(m_risultato->Errore().testo));
    return;
  }
  const RisultatoRicerca& risultato = **m_risultato;
  const TabellaEstrazioni& tab = *m_archivio_cercato;
  m_figure->setRowCount(static_cast<int>(risultato.trovate.size()));
  for (size_t k = 0; k < risultato.trovate.size(); ++k) {
    const RigaFigura riga = DescriviFigura(tab, risultato.trovate[k]);
    const int r = static_cast<int>(k);
    m_figure->setItem(r, 0, Cella(QString::number(riga.estrazione), Qt::AlignRight | Qt::AlignVCenter));
    m_figure->setItem(r, 1, Cella(QString::fromStdString(riga.data)));
    m_figure->setItem(r, 2, Cella(QString::fromStdString(riga.ruote)));
    m_figure->setItem(r, 3, Cella(QString::fromStdString(riga.numeri)));
    if (risultato.statistica) m_figure->setItem(r, 4, Cella(DescriviEsito(risultato.statistica->esiti[k])));
  }
  m_figure->resizeColumnsToContents();
  m_trovate->setText(QString("%1trovate %2 figure")
                         .arg(risultato.interrotta ? "Ricerca interrotta: " : "")
                         .arg(risultato.trovate.size()));
  if (risultato.statistica) MostraStatistica(*risultato.statistica, m_colpi_cercati);
}

void F_StatStrutture::MostraStatistica(const figures::StatisticaStruttura& statistica, int colpi) {
  QString sorti;
  for (int sorte = 1; sorte <= 5; ++sorte)
    sorti += QString("<td>%1 <b>%2</b></td>").arg(kSorti[sorte]).arg(statistica.per_sorte[static_cast<size_t>(sorte)]);
  m_statistica->setText(QString("<table cellspacing='6'><tr><td>In %1 colpi:</td>%2</tr>"
                                "<tr><td></td><td>negativi <b>%3</b></td><td>in corso <b>%4</b></td>"
                                "<td>colpo medio <b>%5</b></td><td>ritardo <b>%6</b></td>"
                                "<td>ritardo massimo <b>%7</b></td></tr></table>")
                            .arg(colpi)
                            .arg(sorti)
                            .arg(statistica.negativi)
                            .arg(statistica.in_corso)
                            .arg(statistica.colpo_medio, 0, 'f', 2)
                            .arg(statistica.ritardo)
                            .arg(statistica.ritardo_massimo));
}

}  // namespace lottolab::gui
