#include <QAbstractProxyModel>
#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

#include <memory>

#include "gui/analitico/ModelloAnalitico.h"
#include "gui/comuni/PreparaAnalitico.h"
#include "gui/comuni/TabellaAnalisi.h"
#include "gui/principale/Finestre.h"

namespace lottolab::gui {

namespace {

class FinestraAnalitico : public QWidget {
 public:
  FinestraAnalitico(ContestoGui& contesto, QWidget* parent);

  // The 13 columns of a wheel's figures and a good part of the 90 rows.
  QSize sizeHint() const override { return {980, 680}; }

 private:
  QWidget* NuoveScelte();
  QTableView* NuovaTabella();
  void Prepara();
  void CambiaFine();
  void VaiAllaData();

  ContestoGui& m_contesto;
  ModelloAnalitico* m_modello;
  QSpinBox* m_fine = nullptr;
  QDateEdit* m_data = nullptr;
  QLabel* m_data_fine = nullptr;
  QComboBox* m_dato = nullptr;
};

FinestraAnalitico::FinestraAnalitico(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent), m_contesto(contesto), m_modello(new ModelloAnalitico(this)) {
  setWindowTitle(QStringLiteral("Tabellone analitico"));
  setObjectName("finestraAnalitico");

  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(NuoveScelte());
  colonna->addWidget(NuovaTabella(), 1);
  auto* legenda = new QLabel(QStringLiteral(
      "Ogni cella è colorata dal ritardo rispetto allo storico del numero sulla stessa ruota (bianco "
      "appena uscito, rosso al massimo storico); il suggerimento dà tutte le figure e i ritardi "
      "precedenti. \"–\": ruota non ancora estratta. Doppio clic: storia del ritardo. Ctrl+C copia le righe "
      "scelte."));
  legenda->setWordWrap(true);
  colonna->addWidget(legenda);

  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &FinestraAnalitico::Prepara);
  Prepara();
}

QWidget* FinestraAnalitico::NuoveScelte() {
  auto* scelte = new QWidget;
  auto* riga = new QHBoxLayout(scelte);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel(QStringLiteral("All'estrazione:")));
  m_fine = new QSpinBox;
  m_fine->setObjectName("fineAnalitico");
  m_fine->setRange(0, 0);
  m_fine->setKeyboardTracking(false);
  m_fine->setToolTip(QStringLiteral("L'ultima estrazione contata: ogni figura si misura dalla prima fino a questa"));
  riga->addWidget(m_fine);
  m_data_fine = new QLabel;
  riga->addWidget(m_data_fine);
  riga->addSpacing(12);
  riga->addWidget(new QLabel(QStringLiteral("o alla data:")));
  m_data = new QDateEdit;
  m_data->setObjectName("dataAnalitico");
  m_data->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
  m_data->setCalendarPopup(true);
  m_data->setToolTip(QStringLiteral("L'ultima estrazione fino a questa data (Invio per andarci)"));
  riga->addWidget(m_data);
  riga->addSpacing(12);
  riga->addWidget(new QLabel(QStringLiteral("Mostra:")));
  m_dato = new QComboBox;
  m_dato->setObjectName("datoAnalitico");
  m_dato->addItems({QStringLiteral("Ritardo"), QStringLiteral("Frequenza"), QStringLiteral("Ritardo storico"),
                    QStringLiteral("Incremento storico")});
  m_dato->setToolTip(QStringLiteral("La figura scritta nelle celle; il colore segue sempre il ritardo"));
  riga->addWidget(m_dato);
  riga->addStretch();

  connect(m_fine, &QSpinBox::valueChanged, this, &FinestraAnalitico::CambiaFine);
  connect(m_data, &QDateEdit::editingFinished, this, &FinestraAnalitico::VaiAllaData);
  connect(m_dato, &QComboBox::currentIndexChanged, this,
          [this](int scelta) { m_modello->ImpostaDato(static_cast<ModelloAnalitico::Dato>(scelta)); });
  return scelte;
}

QTableView* FinestraAnalitico::NuovaTabella() {
  QTableView* tabella = NuovaTabellaAnalisi(m_modello, ModelloAnalitico::kRuoloOrdinamento, windowTitle());
  tabella->setObjectName("tabellaAnalitico");
  tabella->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  tabella->sortByColumn(ModelloAnalitico::kColonnaNumero, Qt::AscendingOrder);
  tabella->horizontalHeader()->setMinimumSectionSize(tabella->fontMetrics().horizontalAdvance("Nazionale") + 12);
  connect(tabella, &QTableView::doubleClicked, this, [this, tabella](const QModelIndex& indice) {
    const QModelIndex cella = static_cast<const QAbstractProxyModel*>(tabella->model())->mapToSource(indice);
    if (cella.column() != ModelloAnalitico::kColonnaNumero && m_modello->Fine() > 0)
      ApriStoriaRitardo(this, m_contesto, {cella.row() + 1}, cella.column(), 1, m_modello->Fine());
  });
  return tabella;
}

// The archive is prepared on another thread; meanwhile the table keeps what it showed.
void FinestraAnalitico::Prepara() {
  PreparaAnalitico(this, m_contesto.Archivio(), QStringLiteral("Preparazione del tabellone analitico…"),
                   "FinestraAnalitico.Prepara", m_fine, [this](std::shared_ptr<const stats::Analitico> analitico) {
                     m_modello->ImpostaAnalitico(std::move(analitico));
                     m_data->setEnabled(m_fine->isEnabled());
                     CambiaFine();
                   });
}

void FinestraAnalitico::CambiaFine() {
  const int fine = m_fine->value();
  m_modello->ImpostaFine(fine);
  const std::shared_ptr<const TabellaEstrazioni> archivio = m_contesto.Archivio();
  if (!archivio->Contiene(fine)) {
    m_data_fine->setText(QStringLiteral("archivio vuoto"));
    return;
  }
  m_data_fine->setText("del " + QString::fromStdString(archivio->DataEstrazione(fine).ValoreOppure("?")));
  const GruppoData& data = (*archivio)[fine].data;
  const QSignalBlocker blocco(m_data);
  m_data->setDate(QDate(data.anno, data.mese, data.giorno));
}

void FinestraAnalitico::VaiAllaData() {
  const QDate data = m_data->date();
  const int fine = m_contesto.Archivio()->UltimaEstrazioneEntro(GruppoData{
      0, static_cast<int16_t>(data.day()), static_cast<int16_t>(data.month()), static_cast<int16_t>(data.year())});
  if (fine >= 1) m_fine->setValue(fine);
}

}  // namespace

QWidget* NuovoTabelloneAnalitico(ContestoGui& contesto, QWidget* parent) {
  return new FinestraAnalitico(contesto, parent);
}

}  // namespace lottolab::gui
