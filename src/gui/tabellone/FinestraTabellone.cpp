#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

#include "gui/principale/Finestre.h"
#include "gui/tabellone/GraficoRitardi.h"
#include "gui/tabellone/ModelloTabellone.h"
#include "gui/tabellone/TabelloneLegenda.h"
#include "gui/tabellone/TabelloneSceltaRuote.h"

namespace lottolab::gui {

namespace {

// The multi-document area the widget sits in, if any: charts open beside the table there.
QMdiArea* AreaAntenata(QWidget* widget) {
  for (QWidget* antenato = widget->parentWidget(); antenato != nullptr; antenato = antenato->parentWidget())
    if (auto* area = qobject_cast<QMdiArea*>(antenato)) return area;
  return nullptr;
}

class FinestraTabellone : public QWidget {
 public:
  FinestraTabellone(ContestoGui& contesto, QWidget* parent);

  // Room for the five columns and a couple of dozen rows when the window opens.
  QSize sizeHint() const override { return {720, 620}; }

 private:
  QWidget* NuovaSceltaFine();
  QTableView* NuovaTabella();
  void AggiornaArchivio();
  void Ricalcola();
  void ApriGrafico(const QModelIndex& indice);

  ContestoGui& m_contesto;
  TabelloneSceltaRuote* m_ruote;
  QSpinBox* m_fine = nullptr;
  QLabel* m_data = nullptr;
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
  m_ordinamento->setSourceModel(m_modello);
  m_ordinamento->setSortRole(ModelloTabellone::kRuoloOrdinamento);

  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(m_ruote);
  colonna->addWidget(NuovaSceltaFine());
  colonna->addWidget(NuovaTabella(), 1);
  colonna->addWidget(NuovaLegendaRitardo());

  connect(m_ruote, &TabelloneSceltaRuote::Cambiata, this, &FinestraTabellone::Ricalcola);
  connect(m_fine, &QSpinBox::valueChanged, this, &FinestraTabellone::Ricalcola);
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &FinestraTabellone::AggiornaArchivio);
  AggiornaArchivio();
}

QWidget* FinestraTabellone::NuovaSceltaFine() {
  auto* scelta = new QWidget;
  auto* riga = new QHBoxLayout(scelta);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel("Fino all'estrazione:"));
  m_fine = new QSpinBox;
  // An empty range until the archive is known, so that the first archive starts at its last draw.
  m_fine->setRange(0, 0);
  // Typing a draw index recomputes once, when it is complete.
  m_fine->setKeyboardTracking(false);
  m_fine->setToolTip(
      "L'ultima estrazione considerata: ritardi, frequenze e storici si contano dalla prima fino a questa");
  riga->addWidget(m_fine);
  m_data = new QLabel;
  riga->addWidget(m_data);
  auto* ultima = new QPushButton("Ultima");
  ultima->setToolTip("Torna all'ultima estrazione dell'archivio");
  connect(ultima, &QPushButton::clicked, this, [this] { m_fine->setValue(m_fine->maximum()); });
  riga->addWidget(ultima);
  riga->addStretch();
  return scelta;
}

QTableView* FinestraTabellone::NuovaTabella() {
  auto* tabella = new QTableView;
  tabella->setModel(m_ordinamento);
  tabella->setSortingEnabled(true);
  tabella->sortByColumn(ModelloTabellone::kColonnaRuota, Qt::AscendingOrder);
  tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella->setSelectionMode(QAbstractItemView::SingleSelection);
  tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabella->verticalHeader()->hide();
  tabella->verticalHeader()->setDefaultSectionSize(tabella->fontMetrics().height() + 6);
  tabella->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  connect(tabella, &QTableView::doubleClicked, this, &FinestraTabellone::ApriGrafico);
  return tabella;
}

void FinestraTabellone::AggiornaArchivio() {
  const int ultima = m_contesto.Archivio()->EstrazioniArchivio();
  // A table that showed the last draw keeps showing the last one after an update.
  const bool all_ultima = m_fine->value() == m_fine->maximum();
  {
    const QSignalBlocker blocco(m_fine);
    m_fine->setRange(ultima > 0 ? 1 : 0, ultima);
    if (all_ultima) m_fine->setValue(ultima);
  }
  m_fine->setEnabled(ultima > 0);
  Ricalcola();
}

void FinestraTabellone::Ricalcola() {
  const TabellaEstrazioni& tab = *m_contesto.Archivio();
  const int fine = m_fine->value();
  const std::vector<int> ruote = m_ruote->Scelte();
  m_modello->Calcola(tab, ruote, fine);
  m_data->setText(tab.Vuota() ? QString("archivio vuoto")
                              : "del " + QString::fromStdString(tab.DataEstrazione(fine).ValoreOppure("?")));
}

void FinestraTabellone::ApriGrafico(const QModelIndex& indice) {
  const int riga = m_ordinamento->mapToSource(indice).row();
  auto* grafico =
      new GraficoRitardi(*m_contesto.Archivio(), m_modello->Ruota(riga), m_modello->Numero(riga), m_modello->Fine());
  grafico->setAttribute(Qt::WA_DeleteOnClose);
  if (QMdiArea* area = AreaAntenata(this))
    area->addSubWindow(grafico)->show();
  else
    grafico->show();
}

}  // namespace

QWidget* NuovoTabellone(ContestoGui& contesto, QWidget* parent) { return new FinestraTabellone(contesto, parent); }

}  // namespace lottolab::gui
