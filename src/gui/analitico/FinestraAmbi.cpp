#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <memory>

#include "gui/analitico/ModelloCombinazioni.h"
#include "gui/comuni/CalcoloAnnullabile.h"
#include "gui/comuni/TabellaAnalisi.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/SegnalatoreGui.h"

namespace lottolab::gui {

namespace {

// The terni listed: the most delayed thousand say more than all 117,480.
constexpr int kTerniMostrati = 1000;

class FinestraAmbi : public QWidget {
 public:
  FinestraAmbi(ContestoGui& contesto, QWidget* parent);

  QSize sizeHint() const override { return {640, 680}; }

 private:
  QWidget* NuoveScelte();
  QTableView* NuovaTabella(ModelloCombinazioni* modello, const char* nome, const QString& titolo);
  int Ruota() const { return m_ruota->currentData().toInt(); }
  void AggiornaArchivio();
  void CalcolaAmbi();
  void CalcolaTerni();

  ContestoGui& m_contesto;
  ModelloCombinazioni* m_ambi;
  ModelloCombinazioni* m_terni;
  QComboBox* m_ruota = nullptr;
  QSpinBox* m_fine = nullptr;
  QLabel* m_stato = nullptr;
  QTabWidget* m_schede = nullptr;
};

FinestraAmbi::FinestraAmbi(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent),
      m_contesto(contesto),
      m_ambi(new ModelloCombinazioni(this)),
      m_terni(new ModelloCombinazioni(this)) {
  setWindowTitle(QStringLiteral("Ambi e terni ritardatari"));
  setObjectName("finestraAmbi");
  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(NuoveScelte());
  m_schede = new QTabWidget;
  m_schede->addTab(NuovaTabella(m_ambi, "tabellaAmbi", QStringLiteral("Ambi")), QStringLiteral("Ambi (4005)"));
  m_schede->addTab(NuovaTabella(m_terni, "tabellaTerni", QStringLiteral("Terni ritardatari")),
                   QStringLiteral("Terni più ritardatari"));
  colonna->addWidget(m_schede, 1);
  m_stato = new QLabel;
  m_stato->setWordWrap(true);
  colonna->addWidget(m_stato);
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &FinestraAmbi::AggiornaArchivio);
  AggiornaArchivio();
}

QWidget* FinestraAmbi::NuoveScelte() {
  auto* scelte = new QWidget;
  auto* riga = new QHBoxLayout(scelte);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel(QStringLiteral("Ruota:")));
  m_ruota = new QComboBox;
  m_ruota->setObjectName("ruotaAmbi");
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) m_ruota->addItem(QString::fromUtf8(NomeRuota(ruota)), ruota);
  m_ruota->addItem(QStringLiteral("Tutte le ruote"), kTutteLeRuote);
  riga->addWidget(m_ruota);
  riga->addSpacing(12);
  riga->addWidget(new QLabel(QStringLiteral("All'estrazione:")));
  m_fine = new QSpinBox;
  m_fine->setObjectName("fineAmbi");
  m_fine->setRange(0, 0);
  m_fine->setKeyboardTracking(false);
  riga->addWidget(m_fine);
  auto* terni = new QPushButton(QStringLiteral("Calcola i terni"));
  terni->setObjectName("calcolaTerni");
  terni->setToolTip(
      QStringLiteral("I 1000 terni più ritardatari dei 117.480 sulla ruota scelta, calcolati su tutti i processori"));
  riga->addWidget(terni);
  riga->addStretch();
  connect(m_ruota, &QComboBox::currentIndexChanged, this, &FinestraAmbi::CalcolaAmbi);
  connect(m_fine, &QSpinBox::valueChanged, this, &FinestraAmbi::CalcolaAmbi);
  connect(terni, &QPushButton::clicked, this, &FinestraAmbi::CalcolaTerni);
  return scelte;
}

QTableView* FinestraAmbi::NuovaTabella(ModelloCombinazioni* modello, const char* nome, const QString& titolo) {
  QTableView* tabella = NuovaTabellaAnalisi(modello, ModelloCombinazioni::kRuoloOrdinamento, titolo);
  tabella->setObjectName(nome);
  tabella->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  tabella->sortByColumn(ModelloCombinazioni::kColonnaRitardo, Qt::DescendingOrder);
  return tabella;
}

void FinestraAmbi::AggiornaArchivio() {
  const int ultima = m_contesto.Archivio()->EstrazioniArchivio();
  {
    const QSignalBlocker blocco(m_fine);
    const bool all_ultima = m_fine->value() == m_fine->maximum();
    m_fine->setRange(ultima > 0 ? 1 : 0, ultima);
    if (all_ultima) m_fine->setValue(ultima);
  }
  m_terni->MostraTerni({});
  CalcolaAmbi();
}

void FinestraAmbi::CalcolaAmbi() {
  std::shared_ptr<const TabellaEstrazioni> archivio = m_contesto.Archivio();
  const int fine = m_fine->value();
  const int ruota = Ruota();
  if (!archivio->Contiene(fine)) {
    m_ambi->MostraAmbi(stats::CalcolaAnaliticoAmbi(*archivio, 1, 0), ruota);
    m_stato->setText(QStringLiteral("L'archivio è vuoto."));
    return;
  }
  AvviaCalcoloAnnullabile<std::shared_ptr<const stats::AnaliticoAmbi>>(
      this, windowTitle(), QStringLiteral("Calcolo degli ambi…"), "FinestraAmbi.CalcolaAmbi",
      [archivio, fine](stats::ControlloCalcolo&) {
        return std::optional(
            std::make_shared<const stats::AnaliticoAmbi>(stats::CalcolaAnaliticoAmbi(*archivio, 1, fine)));
      },
      [this, ruota](const Esito<std::optional<std::shared_ptr<const stats::AnaliticoAmbi>>>& esito) {
        if (!esito) {
          SegnalatoreGui(this).Mostra(esito.Errore());
          return;
        }
        if (!*esito) return;
        m_ambi->MostraAmbi(***esito, ruota);
        m_stato->setText(m_ambi->rowCount() == 0
                             ? QStringLiteral("La ruota non era ancora estratta a quell'estrazione.")
                             : QString());
      });
}

void FinestraAmbi::CalcolaTerni() {
  std::shared_ptr<const TabellaEstrazioni> archivio = m_contesto.Archivio();
  const int fine = m_fine->value();
  if (!archivio->Contiene(fine)) return;
  const int ruota = Ruota();
  AvviaCalcoloAnnullabile<std::vector<stats::TernoStatistica>>(
      this, windowTitle(), QStringLiteral("Calcolo dei terni su tutti i processori…"), "FinestraAmbi.CalcolaTerni",
      [archivio, fine, ruota](stats::ControlloCalcolo& controllo) {
        return stats::CalcolaTerniRitardatari(*archivio, ruota, 1, fine, kTerniMostrati, controllo);
      },
      [this](const Esito<std::optional<std::vector<stats::TernoStatistica>>>& esito) {
        if (!esito) {
          SegnalatoreGui(this).Mostra(esito.Errore());
          return;
        }
        if (!*esito) {
          m_stato->setText(QStringLiteral("Calcolo dei terni annullato."));
          return;
        }
        m_terni->MostraTerni(**esito);
        m_schede->setCurrentIndex(1);
        m_stato->setText(m_terni->rowCount() == 0
                             ? QStringLiteral("La ruota non era ancora estratta a quell'estrazione.")
                             : QString());
      });
}

}  // namespace

QWidget* NuovaFinestraAmbi(ContestoGui& contesto, QWidget* parent) { return new FinestraAmbi(contesto, parent); }

}  // namespace lottolab::gui
