#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

#include <fmt/format.h>

#include <optional>

#include "archive/DateEstrazione.h"
#include "gui/comuni/CopiaRighe.h"
#include "gui/comuni/EsportaTabella.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/GiocoFinestra.h"
#include "gui/tabellone/ModelloTabellone.h"
#include "gui/tabellone/TabelloneLegenda.h"
#include "gui/tabellone/TabelloneSceltaRuote.h"

namespace lottolab::gui {

namespace {

// The chooser's data for the Lotto; each other game is its enum's value.
constexpr int kSceltaLotto = -1;

class FinestraTabellone : public QWidget {
 public:
  FinestraTabellone(ContestoGui& contesto, QWidget* parent);

  // Room for the six columns and a couple of dozen rows when the window opens.
  QSize sizeHint() const override { return {760, 640}; }

 private:
  QWidget* NuovaSceltaGioco();
  QWidget* NuovaSceltaIntervallo();
  QTableView* NuovaTabella();
  std::optional<Gioco> GiocoScelto() const;
  int EstrazioniArchivio() const;
  QString QuandoEstrazione(int k) const;
  void CambiaGioco();
  void AggiornaArchivio();
  void Ricalcola();
  void ApriGrafico(const QModelIndex& indice);

  ContestoGui& m_contesto;
  QComboBox* m_gioco = nullptr;
  TabelloneSceltaRuote* m_ruote;
  QSpinBox* m_inizio = nullptr;
  QSpinBox* m_fine = nullptr;
  QLabel* m_data_inizio = nullptr;
  QLabel* m_data_fine = nullptr;
  QTableView* m_tabella = nullptr;
  ModelloTabellone* m_modello;
  QSortFilterProxyModel* m_ordinamento;
};

FinestraTabellone::FinestraTabellone(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent),
      m_contesto(contesto),
      m_ruote(new TabelloneSceltaRuote),
      m_modello(new ModelloTabellone(this)),
      m_ordinamento(new QSortFilterProxyModel(this)) {
  setWindowTitle("Tabellone dei ritardi");
  setObjectName("finestraTabellone");
  m_ordinamento->setSourceModel(m_modello);
  m_ordinamento->setSortRole(ModelloTabellone::kRuoloOrdinamento);

  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(NuovaSceltaGioco());
  colonna->addWidget(m_ruote);
  colonna->addWidget(NuovaSceltaIntervallo());
  colonna->addWidget(NuovaTabella(), 1);
  colonna->addWidget(NuovaLegendaRitardo());

  connect(m_gioco, &QComboBox::currentIndexChanged, this, &FinestraTabellone::CambiaGioco);
  connect(m_ruote, &TabelloneSceltaRuote::Cambiata, this, &FinestraTabellone::Ricalcola);
  connect(m_inizio, &QSpinBox::valueChanged, this, &FinestraTabellone::Ricalcola);
  connect(m_fine, &QSpinBox::valueChanged, this, [this](int fine) {
    // The first draw of the range never passes the last.
    const QSignalBlocker blocco(m_inizio);
    m_inizio->setMaximum(std::max(fine, 1));
    Ricalcola();
  });
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, [this] {
    if (!GiocoScelto()) AggiornaArchivio();
  });
  connect(&m_contesto, &ContestoGui::ArchiviGiochiCambiati, this, [this] {
    if (GiocoScelto()) AggiornaArchivio();
  });
  CambiaGioco();
}

QWidget* FinestraTabellone::NuovaSceltaGioco() {
  auto* scelta = new QWidget;
  auto* riga = new QHBoxLayout(scelta);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel("Gioco:"));
  m_gioco = new QComboBox;
  m_gioco->setObjectName("sceltaGioco");
  m_gioco->addItem(NomeGioco(std::nullopt), kSceltaLotto);
  for (Gioco gioco : kGiochiDesktop) m_gioco->addItem(NomeGioco(gioco), static_cast<int>(gioco));
  m_gioco->setToolTip(
      "Il gioco di cui contare ritardi e frequenze: per il Lotto ruota per ruota, per gli altri "
      "giochi su tutti i numeri di ogni estrazione");
  riga->addWidget(m_gioco);
  riga->addStretch();
  return scelta;
}

QWidget* FinestraTabellone::NuovaSceltaIntervallo() {
  auto nuova_casella = [](const char* nome, const QString& suggerimento) {
    auto* casella = new QSpinBox;
    casella->setObjectName(nome);
    // An empty range until the archive is known, so that the first archive starts at its last draw.
    casella->setRange(0, 0);
    // Typing a draw index recomputes once, when it is complete.
    casella->setKeyboardTracking(false);
    casella->setToolTip(suggerimento);
    return casella;
  };
  auto* scelta = new QWidget;
  auto* riga = new QHBoxLayout(scelta);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel("Dall'estrazione:"));
  m_inizio = nuova_casella("inizioIntervallo", "La prima estrazione considerata");
  riga->addWidget(m_inizio);
  m_data_inizio = new QLabel;
  riga->addWidget(m_data_inizio);
  riga->addSpacing(12);
  riga->addWidget(new QLabel("alla:"));
  m_fine = nuova_casella("fineIntervallo",
                         "L'ultima estrazione considerata: ritardi, frequenze e storici si contano fino a questa");
  riga->addWidget(m_fine);
  m_data_fine = new QLabel;
  riga->addWidget(m_data_fine);
  auto* tutte = new QPushButton("Tutte");
  tutte->setToolTip("Dalla prima all'ultima estrazione dell'archivio");
  connect(tutte, &QPushButton::clicked, this, [this] {
    m_fine->setValue(m_fine->maximum());
    m_inizio->setValue(m_inizio->minimum());
  });
  riga->addWidget(tutte);
  riga->addStretch();
  return scelta;
}

QTableView* FinestraTabellone::NuovaTabella() {
  m_tabella = new QTableView;
  m_tabella->setObjectName("tabellaRitardi");
  m_tabella->setModel(m_ordinamento);
  m_tabella->setSortingEnabled(true);
  m_tabella->sortByColumn(ModelloTabellone::kColonnaRuota, Qt::AscendingOrder);
  m_tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_tabella->setSelectionMode(QAbstractItemView::ExtendedSelection);
  m_tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_tabella->verticalHeader()->hide();
  m_tabella->verticalHeader()->setDefaultSectionSize(m_tabella->fontMetrics().height() + 6);
  m_tabella->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  connect(m_tabella, &QTableView::doubleClicked, this, &FinestraTabellone::ApriGrafico);
  AggiungiEsportazione(m_tabella, QStringLiteral("Tabellone"));
  AggiungiCopiaRighe(m_tabella);
  return m_tabella;
}

std::optional<Gioco> FinestraTabellone::GiocoScelto() const {
  const int scelta = m_gioco->currentData().toInt();
  if (scelta == kSceltaLotto) return std::nullopt;
  return static_cast<Gioco>(scelta);
}

int FinestraTabellone::EstrazioniArchivio() const {
  const std::optional<Gioco> gioco = GiocoScelto();
  return gioco ? m_contesto.ArchivioGioco(*gioco)->EstrazioniArchivio() : m_contesto.Archivio()->EstrazioniArchivio();
}

// "del GG/MM/AAAA", with the time where the game has one.
QString FinestraTabellone::QuandoEstrazione(int k) const {
  if (k < 1 || k > EstrazioniArchivio()) return {};
  const std::optional<Gioco> gioco = GiocoScelto();
  if (!gioco) return "del " + QString::fromStdString(m_contesto.Archivio()->DataEstrazione(k).ValoreOppure("?"));
  const TabellaGioco& tab = *m_contesto.ArchivioGioco(*gioco);
  const EstrazioneGioco& estrazione = tab[k];
  std::string quando = "del " + FormattaData(estrazione.data);
  if (tab.formato().con_ora) quando += fmt::format(" ore {:02}:{:02}", estrazione.minuti / 60, estrazione.minuti % 60);
  return QString::fromStdString(quando);
}

// A new game starts from its whole archive; only the Lotto has wheels to choose.
void FinestraTabellone::CambiaGioco() {
  const std::optional<Gioco> gioco = GiocoScelto();
  ImpostaGiocoFinestra(*this, gioco);
  m_ruote->setVisible(!gioco);
  m_tabella->setColumnHidden(ModelloTabellone::kColonnaRuota, gioco.has_value());
  m_tabella->sortByColumn(gioco ? ModelloTabellone::kColonnaNumero : ModelloTabellone::kColonnaRuota,
                          Qt::AscendingOrder);
  if (auto* suggerimento = findChild<QWidget*>(kSuggerimentoGrafico)) suggerimento->setVisible(!gioco);
  {
    const QSignalBlocker blocco_inizio(m_inizio);
    const QSignalBlocker blocco_fine(m_fine);
    m_inizio->setRange(0, 0);
    m_fine->setRange(0, 0);
  }
  AggiornaArchivio();
}

void FinestraTabellone::AggiornaArchivio() {
  const int ultima = EstrazioniArchivio();
  // A table that showed the last draw keeps showing the last one after an update.
  const bool all_ultima = m_fine->value() == m_fine->maximum();
  {
    const QSignalBlocker blocco_inizio(m_inizio);
    const QSignalBlocker blocco_fine(m_fine);
    m_fine->setRange(ultima > 0 ? 1 : 0, ultima);
    if (all_ultima) m_fine->setValue(ultima);
    m_inizio->setRange(ultima > 0 ? 1 : 0, std::max(m_fine->value(), ultima > 0 ? 1 : 0));
  }
  m_inizio->setEnabled(ultima > 0);
  m_fine->setEnabled(ultima > 0);
  Ricalcola();
}

void FinestraTabellone::Ricalcola() {
  const int inizio = m_inizio->value();
  const int fine = m_fine->value();
  if (const std::optional<Gioco> gioco = GiocoScelto())
    m_modello->CalcolaGioco(*m_contesto.ArchivioGioco(*gioco), fine, inizio);
  else
    m_modello->Calcola(*m_contesto.Archivio(), m_ruote->Scelte(), fine, inizio);
  const bool vuoto = EstrazioniArchivio() == 0;
  m_data_inizio->setText(vuoto ? QString() : QuandoEstrazione(inizio));
  // An empty archive of another game is filled from the command line: the label says how.
  QString riempire;
  if (const std::optional<Gioco> gioco = GiocoScelto()) {
    const std::string_view sigla = Formato(*gioco).sigla;
    riempire = QString(" (lottolab --gioco %1 importa FILE)")
                   .arg(QString::fromUtf8(sigla.data(), static_cast<qsizetype>(sigla.size())));
  }
  m_data_fine->setText(vuoto ? "archivio vuoto" + riempire : QuandoEstrazione(fine));
}

// The chart follows one wheel of the Lotto; the other games have none.
void FinestraTabellone::ApriGrafico(const QModelIndex& indice) {
  if (m_modello->GiocoMostrato() || m_modello->Fine() == 0) return;
  const int riga = m_ordinamento->mapToSource(indice).row();
  ApriStoriaRitardo(this, m_contesto, {m_modello->Numero(riga)}, m_modello->Ruota(riga), m_inizio->value(),
                    m_modello->Fine());
}

}  // namespace

QWidget* NuovoTabellone(ContestoGui& contesto, QWidget* parent) { return new FinestraTabellone(contesto, parent); }

}  // namespace lottolab::gui
