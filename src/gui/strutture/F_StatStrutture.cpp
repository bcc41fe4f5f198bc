#include "gui/strutture/F_StatStrutture.h"

#include <QAbstractTableModel>
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
#include <QTableView>
#include <QThread>
#include <QVBoxLayout>

#include <algorithm>

#include "gui/comuni/CopiaRighe.h"
#include "gui/comuni/EsportaTabella.h"
#include "gui/comuni/LavoroSenzaEccezioni.h"

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

}  // namespace

// The figures found, described row by row only when the view shows them: a search may find hundreds
// of thousands, and a table of ready-made cells for each would take the memory and the time.
class F_StatStrutture::ModelloFigure : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Mostra(std::shared_ptr<const TabellaEstrazioni> tab, RisultatoRicerca risultato) {
    beginResetModel();
    m_tab = std::move(tab);
    m_risultato = std::move(risultato);
    endResetModel();
  }

  void Svuota() { Mostra(nullptr, {}); }

  int rowCount(const QModelIndex& genitore) const override {
    return genitore.isValid() ? 0 : static_cast<int>(m_risultato.trovate.elenco.size());
  }
  int columnCount(const QModelIndex& genitore) const override { return genitore.isValid() ? 0 : 5; }

  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo) const override {
    static const char* const kTitoli[] = {"Estrazione", "Data", "Ruote", "Numeri ai vertici", "Esito"};
    if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole || sezione < 0 || sezione >= 5) return {};
    return QString(kTitoli[sezione]);
  }

  QVariant data(const QModelIndex& indice, int ruolo) const override {
    if (!indice.isValid() || !m_tab) return {};
    if (ruolo == Qt::TextAlignmentRole)
      return QVariant::fromValue(indice.column() == 0 ? Qt::AlignRight | Qt::AlignVCenter
                                                      : Qt::AlignLeft | Qt::AlignVCenter);
    if (ruolo != Qt::DisplayRole) return {};
    const auto k = static_cast<size_t>(indice.row());
    if (indice.column() == 4)
      return m_risultato.statistica ? DescriviEsito(m_risultato.statistica->esiti[k]) : QVariant();
    const RigaFigura riga = DescriviFigura(*m_tab, m_risultato.trovate, m_risultato.trovate.elenco[k]);
    switch (indice.column()) {
      case 0: return riga.estrazione;
      case 1: return QString::fromStdString(riga.data);
      case 2: return QString::fromStdString(riga.ruote);
      default: return QString::fromStdString(riga.numeri);
    }
  }

 private:
  std::shared_ptr<const TabellaEstrazioni> m_tab;
  RisultatoRicerca m_risultato;
};

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
      m_modello(new ModelloFigure(this)),
      m_figure(new QTableView),
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
    auto* scelta =
        new QCheckBox(QString::fromUtf8(NomeRuota(ruota).data(), static_cast<qsizetype>(NomeRuota(ruota).size())));
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

  m_figure->setModel(m_modello);
  AggiungiEsportazione(m_figure, QStringLiteral("Figure trovate"));
  m_figure->verticalHeader()->hide();
  m_figure->verticalHeader()->setDefaultSectionSize(m_figure->fontMetrics().height() + 6);
  m_figure->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_figure->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_figure->setSelectionMode(QAbstractItemView::ExtendedSelection);
  AggiungiCopiaRighe(m_figure);
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
  m_modello->Svuota();
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
    m_risultato = SenzaEccezioni<RisultatoRicerca>("F_StatStrutture.Cerca", [&] {
      return CercaStruttura(*m_archivio_cercato, richiesta, progresso, m_fermata_chiesta);
    });
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
  RisultatoRicerca risultato = std::move(**m_risultato);
  m_risultato.reset();
  const size_t trovate = risultato.trovate.elenco.size();
  m_trovate->setText(QString(risultato.interrotta ? "Ricerca interrotta: " : "") +
                     (trovate == 1 ? QString("trovata 1 figura") : QString("trovate %1 figure").arg(trovate)));
  if (risultato.statistica) MostraStatistica(*risultato.statistica, m_colpi_cercati);
  m_modello->Mostra(m_archivio_cercato, std::move(risultato));
  m_figure->resizeColumnsToContents();
}

void F_StatStrutture::MostraStatistica(const figures::StatisticaStruttura& statistica, int colpi) {
  QString sorti;
  for (int sorte = 1; sorte <= 5; ++sorte)
    sorti += QString("<td>%1 <b>%2</b></td>").arg(kSorti[sorte]).arg(statistica.per_sorte[static_cast<size_t>(sorte)]);
  m_statistica->setText(QString("<table cellspacing='6'><tr><td>In %1:</td>%2</tr>"
                                "<tr><td></td><td>negativi <b>%3</b></td><td>in corso <b>%4</b></td>"
                                "<td>colpo medio <b>%5</b></td><td>ritardo <b>%6</b></td>"
                                "<td>ritardo massimo <b>%7</b></td></tr></table>")
                            .arg(colpi == 1 ? QString("1 colpo") : QString("%1 colpi").arg(colpi))
                            .arg(sorti)
                            .arg(statistica.negativi)
                            .arg(statistica.in_corso)
                            .arg(statistica.colpo_medio, 0, 'f', 2)
                            .arg(statistica.ritardo)
                            .arg(statistica.ritardo_massimo));
}

}  // namespace lottolab::gui
