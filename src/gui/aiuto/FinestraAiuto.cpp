#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTabWidget>
#include <QTableView>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "gui/aiuto/ModelloFunzioni.h"
#include "gui/comuni/CopiaRighe.h"
#include "gui/principale/Finestre.h"

namespace lottolab::gui {

namespace {

// What a new user needs on the first day; the rest is found in the menus and in the reference.
constexpr const char* kGuida = R"(
<h2>Guida rapida</h2>
<h3>L'archivio delle estrazioni</h3>
<p><b>Archivio &gt; Estrazioni del Lotto</b> apre l'elenco delle estrazioni: la più recente è già
scelta, il riquadro a destra ne mostra le ruote. <b>Vai alla data</b> (scrivi la data e premi Invio)
porta all'ultima estrazione fino a quel giorno. Si possono scegliere più righe (Maiusc o Ctrl e clic)
e copiarle con <b>Ctrl+C</b>, pronte da incollare in un foglio di calcolo; il menu del tasto destro
esporta la tabella in CSV, in un foglio di calcolo o in PDF.</p>
<p>Gli altri giochi (SuperEnalotto, 10eLotto, Win for Life) hanno il loro elenco nello stesso menu.</p>
<h3>Aggiornare l'archivio</h3>
<p><b>Archivio &gt; Aggiorna archivio...</b> scarica le estrazioni mancanti, oppure le importa da un
file dei risultati scelto dal disco. Al termine un solo resoconto dice che cosa è cambiato e tutte le
finestre aperte mostrano le estrazioni nuove. Il file dell'archivio si sceglie in
<b>Archivio &gt; Impostazioni...</b>.</p>
<h3>Eseguire uno script</h3>
<p><b>Script &gt; Nuovo script</b> (Ctrl+N) apre l'editor; <b>Script &gt; Apri script...</b> (Ctrl+O)
legge un file <tt>.ls</tt>. <b>Esegui</b> (F5) avvia lo script: il testo che scrive compare nella
scheda <i>output</i>, le tabelle nella scheda <i>html</i> (un clic sul titolo di una colonna ordina le
tabelle ordinabili), i disegni nella scheda <i>disegno</i>. <b>Stop</b> ferma lo script al prossimo
passo. Le funzioni che uno script può chiamare sono nella scheda <i>Funzioni degli script</i> di
questa finestra.</p>
<h3>Le finestre principali</h3>
<ul>
<li><b>Statistiche &gt; Tabellone</b>: i ritardi dei 90 numeri sulle ruote scelte; doppio clic su un
numero per il grafico dei suoi ritardi.</li>
<li><b>Statistiche &gt; Tabellone analitico</b>, <b>Ambi e terni ritardatari</b>: ritardi, storici e
frequenze a qualsiasi estrazione; <b>Storia del ritardo</b>, <b>Mappa dei ritardi</b>,
<b>Frequenze dei numeri</b>: i grafici, con zoom e salvataggio in PNG o PDF.</li>
<li><b>Statistiche &gt; Ricerca estrazioni</b>, <b>Frequenze per periodo</b>, <b>Somme</b>,
<b>Cadenze, figure e decine</b>: le estrazioni di ogni gioco filtrate e raggruppate.</li>
<li><b>Statistiche &gt; Numeri spia</b>, <b>Sincroni</b>, <b>Isotopi</b>: che cosa accompagna o segue
un numero; <b>Previsioni salvate</b>: le previsioni degli script (SalvaPrevisione) verificate sulle
estrazioni successive; <b>Ciclometria</b>: un'estrazione sul cerchio dei 90 numeri.</li>
<li><b>Giocate &gt; Agenda delle giocate</b>: le giocate fatte, verificate a ogni aggiornamento;
la barra di stato avvisa delle vincite da vedere.</li>
<li><b>Figure &gt; Editor strutture</b>: si disegnano figure sulle estrazioni e si cercano
nell'archivio.</li>
<li><b>Finestre</b>: affianca o dispone a cascata le finestre aperte e porta avanti quella scelta.</li>
</ul>
<p>F1 riapre questa guida in ogni momento.</p>
)";

class FinestraAiuto : public QWidget {
 public:
  explicit FinestraAiuto(QWidget* parent) : QWidget(parent) {
    setWindowTitle(QStringLiteral("Aiuto"));
    setObjectName(QStringLiteral("finestraAiuto"));

    auto* guida = new QTextBrowser;
    guida->setObjectName(QStringLiteral("guida"));
    guida->setHtml(QString::fromUtf8(kGuida));

    auto* schede = new QTabWidget;
    schede->addTab(guida, QStringLiteral("Guida"));
    schede->addTab(CreaRiferimento(), QStringLiteral("Funzioni degli script"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(schede);
  }

  QSize sizeHint() const override { return {900, 640}; }

 private:
  QWidget* CreaRiferimento() {
    auto* modello = new ModelloFunzioni(this);
    auto* filtro = new QSortFilterProxyModel(this);
    filtro->setSourceModel(modello);
    filtro->setFilterKeyColumn(ModelloFunzioni::kColonnaNome);
    filtro->setFilterCaseSensitivity(Qt::CaseInsensitive);

    auto* cerca = new QLineEdit;
    cerca->setObjectName(QStringLiteral("cercaFunzione"));
    cerca->setPlaceholderText(QStringLiteral("Cerca per nome (per esempio Ritardo)"));
    cerca->setClearButtonEnabled(true);
    auto* conteggio = new QLabel;
    auto* tabella = new QTableView;
    tabella->setObjectName(QStringLiteral("tabellaFunzioni"));
    tabella->setModel(filtro);
    tabella->setSortingEnabled(true);
    tabella->sortByColumn(-1, Qt::AscendingOrder);
    tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabella->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabella->verticalHeader()->hide();
    tabella->verticalHeader()->setDefaultSectionSize(tabella->fontMetrics().height() + 6);
    tabella->setWordWrap(false);
    tabella->horizontalHeader()->setStretchLastSection(true);
    tabella->setColumnWidth(ModelloFunzioni::kColonnaNome, 220);
    tabella->setColumnWidth(ModelloFunzioni::kColonnaArgomenti, 220);
    tabella->setColumnWidth(ModelloFunzioni::kColonnaSignificato, 420);
    AggiungiCopiaRighe(tabella);

    auto mostraConteggio = [modello, filtro, conteggio] {
      const int mostrati = filtro->rowCount();
      conteggio->setText(
          (mostrati == 1 ? QStringLiteral("1 nome mostrato") : QStringLiteral("%1 nomi mostrati").arg(mostrati)) +
          QStringLiteral(" su %1; %2 già disponibili negli script")
              .arg(modello->rowCount())
              .arg(modello->Disponibili()));
    };
    connect(cerca, &QLineEdit::textChanged, this, [filtro, mostraConteggio](const QString& testo) {
      filtro->setFilterFixedString(testo.trimmed());
      mostraConteggio();
    });
    mostraConteggio();

    // The whole card of the chosen name, as the editor's call tip shows it.
    auto* scheda = new QTextBrowser;
    scheda->setObjectName(QStringLiteral("schedaFunzione"));
    scheda->setMaximumHeight(fontMetrics().height() * 7);
    connect(tabella->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [scheda](const QModelIndex& corrente) {
              scheda->setPlainText(
                  corrente.isValid()
                      ? corrente.siblingAtColumn(ModelloFunzioni::kColonnaNome).data(Qt::ToolTipRole).toString()
                      : QString());
            });

    auto* pagina = new QWidget;
    auto* layout = new QVBoxLayout(pagina);
    layout->addWidget(cerca);
    layout->addWidget(tabella, 1);
    layout->addWidget(scheda);
    layout->addWidget(conteggio);
    return pagina;
  }
};

}  // namespace

QWidget* NuovaFinestraAiuto(QWidget* parent) { return new FinestraAiuto(parent); }

void MostraNomeNellAiuto(QWidget* aiuto, const QString& nome) {
  auto* schede = aiuto ? aiuto->findChild<QTabWidget*>() : nullptr;
  auto* cerca = aiuto ? aiuto->findChild<QLineEdit*>(QStringLiteral("cercaFunzione")) : nullptr;
  auto* tabella = aiuto ? aiuto->findChild<QTableView*>(QStringLiteral("tabellaFunzioni")) : nullptr;
  if (!schede || !cerca || !tabella) return;
  schede->setCurrentIndex(1);
  cerca->setText(nome);
  const QAbstractItemModel* righe = tabella->model();
  for (int riga = 0; riga < righe->rowCount(); ++riga) {
    const QModelIndex indice = righe->index(riga, ModelloFunzioni::kColonnaNome);
    if (indice.data().toString().compare(nome, Qt::CaseInsensitive) == 0) {
      tabella->setCurrentIndex(indice);
      tabella->scrollTo(indice);
      return;
    }
  }
}

}  // namespace lottolab::gui
