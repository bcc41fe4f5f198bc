#include <QDateEdit>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

#include "gui/archivio/AvvioAggiornamento.h"
#include "gui/archivio/ModelloEstrazioni.h"
#include "gui/archivio/VistaEstrazioni.h"
#include "gui/comuni/EsportaTabella.h"
#include "gui/principale/Finestre.h"

namespace lottolab::gui {

namespace {

QString TestoDettaglio(const DettaglioEstrazione& dettaglio) {
  if (dettaglio.id_estr == 0)
    return QStringLiteral(
        "L'archivio è vuoto: usa <b>Aggiorna archivio</b> per scaricare le estrazioni "
        "o importarle da un file dei risultati.");
  QString testo =
      QStringLiteral("<h3>Estrazione n. %1</h3><p>del %2, n. %3 dell'anno</p><table cellspacing='2' cellpadding='2'>")
          .arg(dettaglio.id_estr)
          .arg(QString::fromStdString(dettaglio.data))
          .arg(dettaglio.indice_annuale);
  for (const DettaglioEstrazione::Ruota& ruota : dettaglio.ruote)
    testo += QStringLiteral("<tr><td>%1</td><td>&nbsp;&nbsp;<tt>%2</tt></td></tr>")
                 .arg(QString::fromStdString(ruota.nome), QString::fromStdString(ruota.numeri));
  return testo + QStringLiteral("</table>");
}

QDate DataQt(const GruppoData& data) { return QDate(data.anno, data.mese, data.giorno); }

class FinestraArchivio : public QWidget {
 public:
  FinestraArchivio(ContestoGui& contesto, QWidget* parent)
      : QWidget(parent), m_contesto(contesto), m_modello(new ModelloEstrazioni(contesto.Archivio(), this)) {
    setWindowTitle(QStringLiteral("Estrazioni del Lotto"));
    setObjectName(QStringLiteral("finestraArchivio"));

    m_data->setObjectName(QStringLiteral("vaiAllaData"));
    m_data->setCalendarPopup(true);
    m_data->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    m_data->setDate(QDate::currentDate());
    auto* vai = new QPushButton(QStringLiteral("Vai"));
    vai->setObjectName(QStringLiteral("pulsanteVai"));
    auto* aggiorna = new QPushButton(QStringLiteral("Aggiorna archivio..."));
    m_esito_ricerca->setObjectName(QStringLiteral("esitoRicerca"));

    auto* barra = new QHBoxLayout;
    barra->addWidget(new QLabel(QStringLiteral("Vai alla data:")));
    barra->addWidget(m_data);
    barra->addWidget(vai);
    barra->addWidget(m_esito_ricerca, 1);
    barra->addWidget(aggiorna);

    m_tabella->setModel(m_modello);
    PreparaTabellaEstrazioni(*m_tabella);
    AggiungiEsportazione(m_tabella, QStringLiteral("Estrazioni"));

    m_dettaglio->setObjectName(QStringLiteral("dettaglioEstrazione"));
    m_dettaglio->setTextFormat(Qt::RichText);
    m_dettaglio->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_dettaglio->setWordWrap(true);
    m_dettaglio->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* layout_riquadro = new QVBoxLayout(m_riquadro);
    layout_riquadro->addWidget(m_dettaglio);
    m_riquadro->setMinimumWidth(200);

    auto* divisore = new QSplitter;
    divisore->addWidget(m_tabella);
    divisore->addWidget(m_riquadro);
    divisore->setStretchFactor(0, 1);
    divisore->setCollapsible(0, false);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(barra);
    layout->addWidget(divisore, 1);

    connect(m_tabella->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& corrente) {
              m_dettaglio->setText(TestoDettaglio(m_modello->Dettaglio(corrente.row())));
            });
    connect(vai, &QPushButton::clicked, this, &FinestraArchivio::VaiAllaData);
    VaiConInvio(*m_data, [this] { VaiAllaData(); });
    connect(aggiorna, &QPushButton::clicked, this, [this] { AvviaAggiornamentoArchivio(m_contesto, this); });
    connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &FinestraArchivio::MostraArchivio);
    MostraArchivio();
  }

  // Wide enough for every column of the table beside the detail: the main window opens it at this
  // size when the screen allows.
  QSize sizeHint() const override {
    const int tabella = m_tabella->horizontalHeader()->length() + m_tabella->verticalScrollBar()->sizeHint().width() +
                        2 * m_tabella->frameWidth();
    return {tabella + m_riquadro->minimumWidth() + 40, 640};
  }

 private:
  // After a load the most recent draw is what users look for first.
  void MostraArchivio() {
    const auto archivio = m_contesto.Archivio();
    m_modello->ImpostaTabella(archivio);
    DimensionaColonne();
    m_esito_ricerca->clear();
    const int righe = m_modello->rowCount();
    if (righe == 0) {
      m_dettaglio->setText(TestoDettaglio({}));
      return;
    }
    m_data->setDate(DataQt((*archivio)[righe].data));
    SelezionaRiga(righe - 1);
  }

  // Columns sized from the rows the view samples would cut the wheels those rows lack (the
  // Nazionale exists from 2005 only): every wheel's column is as wide as a full wheel.
  void DimensionaColonne() {
    m_tabella->resizeColumnsToContents();
    const QFontMetrics metriche(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    const int piena = metriche.horizontalAdvance(QStringLiteral("00 00 00 00 00")) + 16;
    for (int colonna = ModelloEstrazioni::kPrimaColonnaRuota; colonna < m_modello->columnCount(); ++colonna)
      m_tabella->setColumnWidth(colonna, std::max(m_tabella->columnWidth(colonna), piena));
  }

  void VaiAllaData() {
    const int riga = m_modello->RigaEntro(m_data->date());
    if (riga < 0) {
      m_esito_ricerca->setText(
          QStringLiteral("Nessuna estrazione fino al %1").arg(m_data->date().toString("dd/MM/yyyy")));
      return;
    }
    m_esito_ricerca->clear();
    SelezionaRiga(riga);
  }

  void SelezionaRiga(int riga) {
    const QModelIndex indice = m_modello->index(riga, ModelloEstrazioni::kColonnaData);
    m_tabella->setCurrentIndex(indice);
    m_tabella->scrollTo(indice, QAbstractItemView::PositionAtCenter);
  }

  ContestoGui& m_contesto;
  ModelloEstrazioni* m_modello;
  QTableView* m_tabella = new QTableView;
  QLabel* m_dettaglio = new QLabel;
  QDateEdit* m_data = new QDateEdit;
  QLabel* m_esito_ricerca = new QLabel;
  QGroupBox* m_riquadro = new QGroupBox(QStringLiteral("Estrazione selezionata"));
};

}  // namespace

QWidget* NuovaFinestraArchivio(ContestoGui& contesto, QWidget* parent) {
  return new FinestraArchivio(contesto, parent);
}

}  // namespace lottolab::gui
