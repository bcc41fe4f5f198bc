#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

#include <filesystem>
#include <set>

#include "gui/comuni/CalcoloAnnullabile.h"
#include "gui/comuni/CopiaRighe.h"
#include "gui/comuni/EsportaTabella.h"
#include "gui/previsioni/ModelloPrevisioni.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/SegnalatoreGui.h"

namespace lottolab::gui {

namespace {

// What the reading of the file gives the window: the rows, or why there are none.
struct Lettura {
  std::vector<RigaPrevisione> righe;
  std::optional<Avviso> errore;
  bool file_assente = false;
};

Lettura LeggiEVerifica(const std::filesystem::path& file, const TabellaEstrazioni& archivio) {
  Lettura lettura;
  std::error_code ec;
  if (!std::filesystem::exists(file, ec)) {
    lettura.file_assente = true;
    return lettura;
  }
  auto aperto = previsioni::ArchivioPrevisioni::Apri(file);
  if (!aperto) {
    lettura.errore = aperto.Errore();
    return lettura;
  }
  auto elenco = aperto->Elenco();
  if (!elenco) {
    lettura.errore = elenco.Errore();
    return lettura;
  }
  lettura.righe = VerificaElenco(archivio, std::move(elenco).Valore());
  return lettura;
}

class FinestraPrevisioni : public QWidget {
 public:
  FinestraPrevisioni(ContestoGui& contesto, QWidget* parent);

  QSize sizeHint() const override { return {900, 560}; }

 private:
  std::filesystem::path File() const {
    return previsioni::FilePrevisioniAccanto(m_contesto.Configurazione().FileAgenda());
  }
  void Aggiorna();
  void Mostra(Lettura lettura, std::shared_ptr<const TabellaEstrazioni> archivio);
  void RimuoviScelte();

  ContestoGui& m_contesto;
  ModelloPrevisioni* m_modello;
  QSortFilterProxyModel* m_ordinamento;
  QTableView* m_tabella;
  QPushButton* m_rimuovi;
  QLabel* m_stato;
  // The reading whose result the window waits for: an older one that ends later is dropped.
  int m_lettura = 0;
};

FinestraPrevisioni::FinestraPrevisioni(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent),
      m_contesto(contesto),
      m_modello(new ModelloPrevisioni(this)),
      m_ordinamento(new QSortFilterProxyModel(this)),
      m_tabella(new QTableView),
      m_rimuovi(new QPushButton(QStringLiteral("Rimuovi le scelte"))),
      m_stato(new QLabel) {
  setWindowTitle(QStringLiteral("Previsioni salvate"));
  setObjectName("finestraPrevisioni");
  auto* colonna = new QVBoxLayout(this);
  auto* pulsanti = new QHBoxLayout;
  auto* aggiorna = new QPushButton(QStringLiteral("Aggiorna"));
  aggiorna->setObjectName("aggiornaPrevisioni");
  aggiorna->setToolTip(QStringLiteral("Rilegge le previsioni e le verifica sull'archivio"));
  m_rimuovi->setObjectName("rimuoviPrevisioni");
  m_rimuovi->setEnabled(false);
  pulsanti->addWidget(aggiorna);
  pulsanti->addWidget(m_rimuovi);
  pulsanti->addStretch();
  colonna->addLayout(pulsanti);

  m_ordinamento->setSourceModel(m_modello);
  m_ordinamento->setSortRole(ModelloPrevisioni::kRuoloOrdinamento);
  m_tabella->setObjectName("tabellaPrevisioni");
  m_tabella->setModel(m_ordinamento);
  m_tabella->setSortingEnabled(true);
  m_tabella->sortByColumn(ModelloPrevisioni::kColonnaId, Qt::DescendingOrder);
  m_tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_tabella->setSelectionMode(QAbstractItemView::ExtendedSelection);
  m_tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_tabella->setWordWrap(false);
  m_tabella->verticalHeader()->hide();
  m_tabella->verticalHeader()->setDefaultSectionSize(m_tabella->fontMetrics().height() + 6);
  m_tabella->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  m_tabella->horizontalHeader()->setStretchLastSection(true);
  AggiungiCopiaRighe(m_tabella);
  AggiungiEsportazione(m_tabella, QStringLiteral("Previsioni"));
  colonna->addWidget(m_tabella, 1);
  m_stato->setObjectName("statoPrevisioni");
  m_stato->setWordWrap(true);
  colonna->addWidget(m_stato);

  connect(aggiorna, &QPushButton::clicked, this, &FinestraPrevisioni::Aggiorna);
  connect(m_rimuovi, &QPushButton::clicked, this, &FinestraPrevisioni::RimuoviScelte);
  connect(m_tabella->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { m_rimuovi->setEnabled(m_tabella->selectionModel()->hasSelection()); });
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &FinestraPrevisioni::Aggiorna);
  Aggiorna();
}

void FinestraPrevisioni::Aggiorna() {
  const int lettura = ++m_lettura;
  std::shared_ptr<const TabellaEstrazioni> archivio = m_contesto.Archivio();
  const std::filesystem::path file = File();
  AvviaCalcoloAnnullabile<Lettura>(
      this, windowTitle(), QStringLiteral("Verifica delle previsioni…"), "FinestraPrevisioni.Aggiorna",
      [archivio, file](stats::ControlloCalcolo&) { return std::optional(LeggiEVerifica(file, *archivio)); },
      [this, lettura, archivio](const Esito<std::optional<Lettura>>& esito) {
        if (lettura != m_lettura) return;
        if (!esito) {
          SegnalatoreGui(this).Mostra(esito.Errore());
          return;
        }
        if (*esito) Mostra(**esito, archivio);
      });
}

void FinestraPrevisioni::Mostra(Lettura lettura, std::shared_ptr<const TabellaEstrazioni> archivio) {
  if (lettura.errore) {
    m_modello->Mostra({}, archivio);
    m_stato->setText(QString::fromStdString(lettura.errore->testo));
    return;
  }
  int vinte = 0, in_corso = 0, negative = 0;
  for (const RigaPrevisione& riga : lettura.righe) {
    vinte += riga.verifica.stato == previsioni::StatoPrevisione::Vinta ? 1 : 0;
    in_corso += riga.verifica.stato == previsioni::StatoPrevisione::InCorso ? 1 : 0;
    negative += riga.verifica.stato == previsioni::StatoPrevisione::Negativa ? 1 : 0;
  }
  const int totale = static_cast<int>(lettura.righe.size());
  m_modello->Mostra(std::move(lettura.righe), std::move(archivio));
  if (totale == 0)
    m_stato->setText(QStringLiteral("Nessuna previsione salvata: gli script le salvano con SalvaPrevisione."));
  else
    m_stato->setText(QStringLiteral("%1 previsioni: %2 vincenti, %3 in corso, %4 negative. File: %5")
                         .arg(totale)
                         .arg(vinte)
                         .arg(in_corso)
                         .arg(negative)
                         .arg(QString::fromStdString(File().string())));
}

void FinestraPrevisioni::RimuoviScelte() {
  std::set<int64_t> ids;
  for (const QModelIndex& indice : m_tabella->selectionModel()->selectedRows())
    ids.insert(m_modello->Id(m_ordinamento->mapToSource(indice).row()));
  if (ids.empty()) return;
  const QString domanda = ids.size() == 1 ? QStringLiteral("Rimuovere la previsione scelta?")
                                          : QStringLiteral("Rimuovere le %1 previsioni scelte?").arg(ids.size());
  if (QMessageBox::question(this, QStringLiteral("Rimuovi previsioni"), domanda) != QMessageBox::Yes) return;
  auto aperto = previsioni::ArchivioPrevisioni::Apri(File());
  if (!aperto) {
    SegnalatoreGui(this).Mostra(aperto.Errore());
    return;
  }
  if (auto fatto = aperto->Rimuovi({ids.begin(), ids.end()}); !fatto) SegnalatoreGui(this).Mostra(fatto.Errore());
  Aggiorna();
}

}  // namespace

QWidget* NuovaFinestraPrevisioni(ContestoGui& contesto, QWidget* parent) {
  return new FinestraPrevisioni(contesto, parent);
}

}  // namespace lottolab::gui
