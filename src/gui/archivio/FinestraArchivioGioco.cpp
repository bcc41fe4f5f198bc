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
#include "gui/archivio/ModelloEstrazioniGioco.h"
#include "gui/archivio/VistaEstrazioni.h"
#include "gui/comuni/EsportaTabella.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/GiocoFinestra.h"

namespace lottolab::gui {

namespace {

QString DaStd(std::string_view testo) { return QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size())); }

QString TestoDettaglio(const DettaglioEstrazioneGioco& dettaglio) {
  QString testo =
      QStringLiteral("<h3>Estrazione n. %1</h3><p>del %2, concorso n. %3</p><table cellspacing='0' cellpadding='3'>")
          .arg(dettaglio.id_estr)
          .arg(DaStd(dettaglio.quando))
          .arg(dettaglio.concorso);
  for (const auto& [nome, numeri] : dettaglio.voci)
    testo += QStringLiteral("<tr><td valign='top'>%1</td><td><tt>%2</tt></td></tr>").arg(DaStd(nome), DaStd(numeri));
  return testo + QStringLiteral("</table>");
}

class FinestraArchivioGioco : public QWidget {
 public:
  FinestraArchivioGioco(ContestoGui& contesto, Gioco gioco, QWidget* parent)
      : QWidget(parent),
        m_contesto(contesto),
        m_gioco(gioco),
        m_modello(new ModelloEstrazioniGioco(contesto.ArchivioGioco(gioco), this)) {
    setWindowTitle(QStringLiteral("Estrazioni del %1").arg(NomeGioco(gioco)));
    setObjectName(QStringLiteral("finestraArchivioGioco"));
    ImpostaGiocoFinestra(*this, gioco);

    m_data->setObjectName(QStringLiteral("vaiAllaData"));
    m_data->setCalendarPopup(true);
    m_data->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    m_data->setDate(QDate::currentDate());
    auto* vai = new QPushButton(QStringLiteral("Vai"));
    vai->setObjectName(QStringLiteral("pulsanteVai"));
    m_esito_ricerca->setObjectName(QStringLiteral("esitoRicerca"));
    auto* importa = new QPushButton(QStringLiteral("Importa da file..."));
    importa->setObjectName(QStringLiteral("pulsanteImporta"));
    importa->setToolTip(QStringLiteral("Aggiunge all'archivio le estrazioni di un file dei risultati, di testo o zip"));

    auto* barra = new QHBoxLayout;
    barra->addWidget(new QLabel(QStringLiteral("Vai alla data:")));
    barra->addWidget(m_data);
    barra->addWidget(vai);
    barra->addWidget(m_esito_ricerca, 1);
    barra->addWidget(importa);

    m_avviso->setObjectName(QStringLiteral("avvisoArchivio"));
    m_avviso->setTextFormat(Qt::RichText);
    m_avviso->setWordWrap(true);
    m_avviso->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_avviso->setFrameShape(QFrame::StyledPanel);
    m_avviso->setMargin(8);

    m_tabella->setModel(m_modello);
    PreparaTabellaEstrazioni(*m_tabella);
    AggiungiEsportazione(m_tabella, windowTitle());

    m_dettaglio->setObjectName(QStringLiteral("dettaglioEstrazione"));
    m_dettaglio->setTextFormat(Qt::RichText);
    m_dettaglio->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_dettaglio->setWordWrap(true);
    m_dettaglio->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* layout_riquadro = new QVBoxLayout(m_riquadro);
    layout_riquadro->addWidget(m_dettaglio);
    m_riquadro->setMinimumWidth(220);

    m_divisore->addWidget(m_tabella);
    m_divisore->addWidget(m_riquadro);
    m_divisore->setStretchFactor(1, 1);
    m_divisore->setCollapsible(0, false);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(barra);
    layout->addWidget(m_avviso);
    layout->addWidget(m_divisore, 1);

    connect(m_tabella->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& corrente) {
              m_dettaglio->setText(TestoDettaglio(m_modello->Dettaglio(corrente.row())));
            });
    connect(vai, &QPushButton::clicked, this, &FinestraArchivioGioco::VaiAllaData);
    VaiConInvio(*m_data, [this] { VaiAllaData(); });
    connect(importa, &QPushButton::clicked, this, [this] { AvviaImportazioneGioco(m_contesto, m_gioco, this); });
    connect(&m_contesto, &ContestoGui::ArchiviGiochiCambiati, this, &FinestraArchivioGioco::MostraArchivio);
    MostraArchivio();
  }

  // Wide enough for every column of the table beside the detail: the main window opens it at this
  // size when the screen allows.
  QSize sizeHint() const override { return {LarghezzaTabella() + m_riquadro->minimumWidth() + 40, 640}; }

 protected:
  void showEvent(QShowEvent* evento) override {
    QWidget::showEvent(evento);
    DividiSpazio();
  }

 private:
  int LarghezzaTabella() const {
    return m_tabella->horizontalHeader()->length() + m_tabella->verticalScrollBar()->sizeHint().width() +
           2 * m_tabella->frameWidth();
  }

  // The table takes the width of its columns and the detail the rest; where there is too little
  // room (the 10eLotto's twenty numbers and fifteen Extra are wider than most screens) the detail
  // keeps its least width and the table scrolls, since the detail shows the whole draw anyway.
  void DividiSpazio() {
    const int spazio = m_divisore->width() - m_divisore->handleWidth();
    const int tabella = std::min(LarghezzaTabella(), spazio - m_riquadro->minimumWidth());
    m_divisore->setSizes({tabella, spazio - tabella});
  }

  // Columns sized from the rows in view would cut the numbers of the rows further on (the Extra
  // exist from 2022 only): the columns of numbers are as wide as their fullest row.
  void DimensionaColonne() {
    m_tabella->resizeColumnsToContents();
    const FormatoGioco& formato = Formato(m_gioco);
    const QFontMetrics metriche(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto allarga = [&](ModelloEstrazioniGioco::Colonna tipo, int numeri) {
      const int colonna = m_modello->ColonnaDi(tipo);
      if (colonna < 0 || numeri == 0) return;
      const QString piena = QStringLiteral("00 ").repeated(numeri - 1) + QStringLiteral("00");
      m_tabella->setColumnWidth(colonna,
                                std::max(m_tabella->columnWidth(colonna), metriche.horizontalAdvance(piena) + 16));
    };
    allarga(ModelloEstrazioniGioco::Colonna::Numeri, formato.numeri);
    allarga(ModelloEstrazioniGioco::Colonna::Extra, formato.extra);
  }

  // An archive that holds nothing says why and how to fill it; after a load, the most recent draw
  // is what users look for first.
  void MostraArchivio() {
    const auto archivio = m_contesto.ArchivioGioco(m_gioco);
    m_modello->ImpostaTabella(archivio);
    DimensionaColonne();
    if (isVisible()) DividiSpazio();
    m_esito_ricerca->clear();
    m_dettaglio->clear();
    const int righe = m_modello->rowCount();
    m_avviso->setVisible(righe == 0);
    if (righe == 0) {
      m_avviso->setText(TestoArchivioVuoto());
      return;
    }
    const GruppoData& ultima = (*archivio)[righe].data;
    m_data->setDate(QDate(ultima.anno, ultima.mese, ultima.giorno));
    SelezionaRiga(righe - 1);
  }

  QString TestoArchivioVuoto() const {
    const FormatoGioco& formato = Formato(m_gioco);
    const QString file =
        QString::fromStdString(m_contesto.Configurazione().ArchivioGioco(m_gioco).string()).toHtmlEscaped();
    const QString comando = QStringLiteral("<p style='margin-left:16px'><tt>lottolab --gioco %1 importa FILE</tt></p>")
                                .arg(DaStd(formato.sigla));
    const std::string& errore = m_contesto.ErroreGioco(m_gioco);
    if (!errore.empty())
      return QStringLiteral(
                 "<b>L'archivio del %1 non si può leggere.</b><p>%2</p>Per ricostruirlo, mettilo da parte e "
                 "importa di nuovo i risultati con <b>Importa da file...</b>, oppure dal terminale (poi riapri "
                 "lottolab):%3Archivio: %4")
          .arg(DaStd(formato.nome), QString::fromStdString(errore).toHtmlEscaped(), comando, file);
    return QStringLiteral(
               "<b>L'archivio del %1 è vuoto.</b><br>Per riempirlo importa un file dei risultati con <b>Importa da "
               "file...</b>, oppure dal terminale (poi riapri lottolab):%2Archivio atteso: %3")
        .arg(DaStd(formato.nome), comando, file);
  }

  void VaiAllaData() {
    const int riga = m_modello->RigaEntro(m_data->date());
    if (riga < 0) {
      m_esito_ricerca->setText(
          QStringLiteral("Nessuna estrazione fino al %1").arg(m_data->date().toString(QStringLiteral("dd/MM/yyyy"))));
      return;
    }
    m_esito_ricerca->clear();
    SelezionaRiga(riga);
  }

  void SelezionaRiga(int riga) {
    const QModelIndex indice = m_modello->index(riga, m_modello->ColonnaDi(ModelloEstrazioniGioco::Colonna::Data));
    m_tabella->setCurrentIndex(indice);
    m_tabella->scrollTo(indice, QAbstractItemView::PositionAtCenter);
  }

  ContestoGui& m_contesto;
  Gioco m_gioco;
  ModelloEstrazioniGioco* m_modello;
  QTableView* m_tabella = new QTableView;
  QLabel* m_avviso = new QLabel;
  QLabel* m_dettaglio = new QLabel;
  QDateEdit* m_data = new QDateEdit;
  QLabel* m_esito_ricerca = new QLabel;
  QGroupBox* m_riquadro = new QGroupBox(QStringLiteral("Estrazione selezionata"));
  QSplitter* m_divisore = new QSplitter;
};

}  // namespace

QWidget* NuovaFinestraArchivioGioco(ContestoGui& contesto, Gioco gioco, QWidget* parent) {
  return new FinestraArchivioGioco(contesto, gioco, parent);
}

}  // namespace lottolab::gui
