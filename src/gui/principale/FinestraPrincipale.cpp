#include "gui/principale/FinestraPrincipale.h"

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QDateTime>
#include <QDynamicPropertyChangeEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFrame>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>

#include <fmt/format.h>

#include "gui/archivio/AvvioAggiornamento.h"
#include "gui/comuni/IconaApplicazione.h"
#include "gui/principale/DialogoImpostazioni.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/GiocoFinestra.h"
#include "gui/principale/Impostazioni.h"
#include "gui/principale/PosizioneFinestra.h"
#include "gui/principale/SegnalatoreGui.h"
#include "gui/script/EditorScript.h"
#include "gui/script/ScriptRecenti.h"
#include "gui/strutture/StruttureModello.h"

namespace lottolab::gui {

namespace {

QString Percorso(const std::filesystem::path& percorso) { return QString::fromStdString(percorso.string()); }

// Each kind of window carries the icon of the action that opens it, in the toolbar and on its frame.
constexpr QStyle::StandardPixmap kIconaArchivio = QStyle::SP_FileDialogDetailedView;
constexpr QStyle::StandardPixmap kIconaTabellone = QStyle::SP_FileDialogListView;
constexpr QStyle::StandardPixmap kIconaScript = QStyle::SP_FileIcon;
constexpr QStyle::StandardPixmap kIconaStrutture = QStyle::SP_FileDialogContentsView;
constexpr QStyle::StandardPixmap kIconaAgenda = QStyle::SP_FileDialogInfoView;
constexpr QStyle::StandardPixmap kIconaAiuto = QStyle::SP_DialogHelpButton;

}  // namespace

FinestraPrincipale::FinestraPrincipale(ContestoGui& contesto, QWidget* parent)
    : QMainWindow(parent),
      m_contesto(contesto),
      m_area(new QMdiArea),
      m_stato_archivio(new QLabel),
      m_stato_gioco(new QLabel),
      m_stato_agenda(new QLabel),
      m_interlocutore(std::make_unique<InterlocutoreGui>(this)) {
  // Qt's default hides the scroll bars, which makes the area as large as its largest window and
  // pushes the main window past the screen; scrolling keeps the main window's size the user's.
  m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setCentralWidget(m_area);
  m_stato_archivio->setObjectName(QStringLiteral("statoArchivio"));
  statusBar()->addPermanentWidget(m_stato_archivio);
  auto* separatore = new QFrame;
  separatore->setFrameStyle(QFrame::VLine | QFrame::Sunken);
  statusBar()->addPermanentWidget(separatore);
  m_stato_gioco->setObjectName(QStringLiteral("statoGioco"));
  statusBar()->addPermanentWidget(m_stato_gioco);
  m_stato_agenda->setObjectName(QStringLiteral("statoAgenda"));
  m_stato_agenda->setTextFormat(Qt::RichText);
  connect(m_stato_agenda, &QLabel::linkActivated, this, [this] { ApriAgenda(); });
  statusBar()->addPermanentWidget(m_stato_agenda);
  connect(m_area, &QMdiArea::subWindowActivated, this, &FinestraPrincipale::MostraGiocoAttivo);
  CreaMenu();
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &FinestraPrincipale::ArchivioRicaricato);
  // An update checks the agenda before it reloads the archives; a window that changes the agenda says so.
  connect(&m_contesto, &ContestoGui::ArchiviGiochiCambiati, this, &FinestraPrincipale::MostraVinciteDaVedere);
  connect(&m_contesto, &ContestoGui::AgendaCambiata, this, &FinestraPrincipale::MostraVinciteDaVedere);
  MostraArchivio();
  MostraVinciteDaVedere();
  // The archive loaded before the window existed is told about once the window is on screen.
  QTimer::singleShot(0, this, [this] { AvvisaArchivioCaricato(m_contesto, *m_interlocutore); });
}

// The windows of the area close after this object is gone, and the area tells of each activation.
FinestraPrincipale::~FinestraPrincipale() { disconnect(m_area, nullptr, this, nullptr); }

void FinestraPrincipale::CreaMenu() {
  auto azione = [this](QMenu* menu, const QString& testo, const char* nome, auto&& eseguire) {
    QAction* nuova = menu->addAction(testo);
    nuova->setObjectName(QString::fromLatin1(nome));
    connect(nuova, &QAction::triggered, this, std::forward<decltype(eseguire)>(eseguire));
    return nuova;
  };

  QMenu* archivio = menuBar()->addMenu(QStringLiteral("&Archivio"));
  QAction* estrazioni = azione(archivio, QStringLiteral("&Estrazioni del Lotto"), "azioneEstrazioni",
                               [this] { AggiungiFinestra(NuovaFinestraArchivio(m_contesto), Icona(kIconaArchivio)); });
  estrazioni->setIcon(Icona(kIconaArchivio));
  estrazioni->setIconText(QStringLiteral("Estrazioni"));
  for (Gioco gioco : kGiochiDesktop) {
    const std::string nome = fmt::format("azioneEstrazioni{}", Formato(gioco).sigla);
    azione(archivio, QStringLiteral("Estrazioni del %1").arg(NomeGioco(gioco)), nome.c_str(),
           [this, gioco] { AggiungiFinestra(NuovaFinestraArchivioGioco(m_contesto, gioco), Icona(kIconaArchivio)); });
  }
  archivio->addSeparator();
  QAction* aggiorna = azione(archivio, QStringLiteral("&Aggiorna archivio..."), "azioneAggiornaArchivio",
                             [this] { AvviaAggiornamentoArchivio(m_contesto, this); });
  aggiorna->setIcon(Icona(QStyle::SP_BrowserReload));
  archivio->addSeparator();
  azione(archivio, QStringLiteral("&Impostazioni..."), "azioneImpostazioni", [this] { ApriImpostazioni(); });
  archivio->addSeparator();
  azione(archivio, QStringLiteral("E&sci"), "azioneEsci", [this] { close(); })->setShortcut(QKeySequence::Quit);

  QMenu* statistiche = menuBar()->addMenu(QStringLiteral("&Statistiche"));
  auto finestra = [&](const QString& testo, const char* nome, auto nuova, const QIcon& icona) {
    return azione(statistiche, testo, nome, [this, nuova, icona] { AggiungiFinestra(nuova(m_contesto), icona); });
  };
  const QIcon tavola = Icona(kIconaTabellone);
  QAction* tabellone = finestra(
      QStringLiteral("&Tabellone"), "azioneTabellone", [](ContestoGui& c) { return NuovoTabellone(c); }, tavola);
  tabellone->setIcon(tavola);
  finestra(
      QStringLiteral("Tabellone &analitico"), "azioneTabelloneAnalitico",
      [](ContestoGui& c) { return NuovoTabelloneAnalitico(c); }, tavola);
  finestra(
      QStringLiteral("Am&bi e terni ritardatari"), "azioneAmbi", [](ContestoGui& c) { return NuovaFinestraAmbi(c); },
      tavola);
  finestra(
      QStringLiteral("&Storia del ritardo..."), "azioneStoriaRitardo",
      [](ContestoGui& c) { return NuovaStoriaRitardo(c); }, IconaApplicazione());
  finestra(
      QStringLiteral("&Mappa dei ritardi"), "azioneMappaRitardi", [](ContestoGui& c) { return NuovaMappaRitardi(c); },
      IconaApplicazione());
  statistiche->addSeparator();
  finestra(
      QStringLiteral("&Ricerca estrazioni"), "azioneRicercaEstrazioni",
      [](ContestoGui& c) { return NuovaFinestraRicercaEstrazioni(c); }, tavola);
  finestra(
      QStringLiteral("&Frequenze dei numeri"), "azioneFrequenze",
      [](ContestoGui& c) { return NuovoGraficoFrequenze(c); }, IconaApplicazione());
  finestra(
      QStringLiteral("Frequenze per peri&odo"), "azioneFrequenzePeriodo",
      [](ContestoGui& c) { return NuovaFinestraFrequenzePeriodo(c); }, tavola);
  finestra(
      QStringLiteral("Somm&e"), "azioneSomme", [](ContestoGui& c) { return NuovaFinestraSomme(c); }, tavola);
  finestra(
      QStringLiteral("Cadenze, figure e &decine"), "azioneClassiNumeri",
      [](ContestoGui& c) { return NuovaFinestraClassiNumeri(c); }, tavola);
  statistiche->addSeparator();
  finestra(
      QStringLiteral("Numeri s&pia"), "azioneSpia", [](ContestoGui& c) { return NuovaFinestraSpia(c); }, tavola);
  finestra(
      QStringLiteral("Si&ncroni"), "azioneSincroni", [](ContestoGui& c) { return NuovaFinestraSincroni(c); }, tavola);
  finestra(
      QStringLiteral("&Isotopi"), "azioneIsotopi", [](ContestoGui& c) { return NuovaFinestraIsotopi(c); }, tavola);
  finestra(
      QStringLiteral("Pre&visioni salvate"), "azionePrevisioni",
      [](ContestoGui& c) { return NuovaFinestraPrevisioni(c); }, tavola);
  finestra(
      QStringLiteral("&Ciclometria"), "azioneCiclometria", [](ContestoGui& c) { return NuovaFinestraCiclometria(c); },
      tavola);

  QMenu* giocate = menuBar()->addMenu(QStringLiteral("&Giocate"));
  QAction* agenda = azione(giocate, QStringLiteral("&Agenda delle giocate"), "azioneAgenda", [this] { ApriAgenda(); });
  agenda->setIcon(Icona(kIconaAgenda));
  agenda->setIconText(QStringLiteral("Agenda"));

  QMenu* script = menuBar()->addMenu(QStringLiteral("S&cript"));
  QAction* nuovo_script = azione(script, QStringLiteral("&Nuovo script"), "azioneNuovoScript",
                                 [this] { AggiungiFinestra(NuovaFinestraScript(m_contesto), Icona(kIconaScript)); });
  nuovo_script->setIcon(Icona(kIconaScript));
  nuovo_script->setShortcut(QKeySequence::New);
  QAction* apri_script =
      azione(script, QStringLiteral("&Apri script..."), "azioneApriScript", [this] { ApriScriptScelto(); });
  apri_script->setIcon(Icona(QStyle::SP_DialogOpenButton));
  apri_script->setShortcut(QKeySequence::Open);
  m_script_recenti = script->addMenu(QStringLiteral("Script &recenti"));
  connect(m_script_recenti, &QMenu::aboutToShow, this, &FinestraPrincipale::CompilaScriptRecenti);

  QMenu* figure = menuBar()->addMenu(QStringLiteral("&Figure"));
  QAction* editor = azione(figure, QStringLiteral("&Editor strutture"), "azioneEditorStrutture",
                           [this] { AggiungiFinestra(NuovoEditorStrutture(m_contesto), Icona(kIconaStrutture)); });
  editor->setIcon(Icona(kIconaStrutture));
  azione(figure, QStringLiteral("&Apri struttura..."), "azioneApriStruttura", [this] { ApriStrutturaScelta(); });

  m_finestre = menuBar()->addMenu(QStringLiteral("Fi&nestre"));
  connect(m_finestre, &QMenu::aboutToShow, this, &FinestraPrincipale::CompilaFinestre);
  CompilaFinestre();

  QMenu* aiuto = menuBar()->addMenu(QStringLiteral("A&iuto"));
  QAction* guida =
      azione(aiuto, QStringLiteral("&Guida e funzioni degli script"), "azioneAiuto", [this] { ApriAiuto(); });
  guida->setIcon(Icona(kIconaAiuto));
  guida->setShortcut(QKeySequence::HelpContents);
  aiuto->addSeparator();
  azione(aiuto, QStringLiteral("&Informazioni"), "azioneInformazioni", [this] { MostraInformazioni(); });

  QToolBar* barra = addToolBar(QStringLiteral("Strumenti"));
  barra->setObjectName(QStringLiteral("barraStrumenti"));
  barra->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  barra->setMovable(false);
  barra->addActions({estrazioni, aggiorna});
  barra->addSeparator();
  barra->addAction(tabellone);
  barra->addSeparator();
  barra->addAction(agenda);
  barra->addSeparator();
  barra->addActions({nuovo_script, apri_script});
  barra->addSeparator();
  barra->addAction(editor);
}

QIcon FinestraPrincipale::Icona(QStyle::StandardPixmap icona) const { return style()->standardIcon(icona); }

void FinestraPrincipale::AggiungiFinestra(QWidget* finestra, const QIcon& icona) {
  // The main window hears a window change game, to name it in the status bar.
  finestra->installEventFilter(this);
  QMdiSubWindow* sotto = m_area->addSubWindow(finestra);
  sotto->setAttribute(Qt::WA_DeleteOnClose);
  sotto->setWindowIcon(icona);
  const QSize area = m_area->viewport()->size();
  sotto->resize(DimensioneNuovaFinestra(sotto->sizeHint(), area));
  sotto->show();
  // The area cascades a new window from the last one; where that would carry it past an edge, it
  // comes back so that all of it is in view.
  sotto->move(PosizioneNuovaFinestra(sotto->geometry(), area));
}

void FinestraPrincipale::ApriScript(const QString& file) {
  AggiungiFinestra(NuovaFinestraScript(m_contesto, file), Icona(kIconaScript));
  app::FileIni ini = m_contesto.Configurazione().ini;
  AggiungiScriptRecente(ini, QFileInfo(file).absoluteFilePath().toStdString());
  if (auto salvato = SalvaConfigurazione(m_contesto, std::move(ini)); !salvato)
    SegnalatoreGui(this).Mostra(salvato.Errore());
}

void FinestraPrincipale::ApriScriptScelto() {
  const QString file = QFileDialog::getOpenFileName(this, QStringLiteral("Apri script"),
                                                    Percorso(CartellaScript(m_contesto.Configurazione())),
                                                    QStringLiteral("File script (*.ls);;Tutti (*.*)"));
  if (!file.isEmpty()) ApriScript(file);
}

void FinestraPrincipale::ApriStrutturaScelta() {
  // The structures' own folder keeps the archive, another ".dat", out of the list.
  std::filesystem::path cartella = CartellaStrutture(m_contesto.Configurazione());
  std::error_code ec;
  if (!std::filesystem::is_directory(cartella, ec)) cartella = m_contesto.Configurazione().base;
  const QString file = QFileDialog::getOpenFileName(this, QStringLiteral("Apri struttura"), Percorso(cartella),
                                                    QStringLiteral("Struttura utente (*.dat)"));
  if (!file.isEmpty()) ApriStruttura(file);
}

void FinestraPrincipale::ApriStruttura(const QString& file) {
  AggiungiFinestra(NuovoEditorStrutture(m_contesto, file), Icona(kIconaStrutture));
}

bool FinestraPrincipale::PortaAvanti(const QString& nome) {
  for (QMdiSubWindow* aperta : m_area->subWindowList())
    if (aperta->widget() && aperta->widget()->objectName() == nome) {
      m_area->setActiveSubWindow(aperta);
      return true;
    }
  return false;
}

// One agenda window is enough: a second click brings the open one forward.
void FinestraPrincipale::ApriAgenda() {
  if (!PortaAvanti(QStringLiteral("finestraAgenda")))
    AggiungiFinestra(NuovaFinestraAgenda(m_contesto), Icona(kIconaAgenda));
}

// F1 on a name of the script editor opens the help on that name's card.
void FinestraPrincipale::ApriAiuto() {
  QString nome;
  if (auto* editor = qobject_cast<EditorScript*>(QApplication::focusWidget())) nome = editor->ParolaAlCursore();
  if (!PortaAvanti(QStringLiteral("finestraAiuto"))) AggiungiFinestra(NuovaFinestraAiuto(), Icona(kIconaAiuto));
  if (QMdiSubWindow* aiuto = m_area->activeSubWindow(); aiuto && !nome.isEmpty())
    MostraNomeNellAiuto(aiuto->widget(), nome);
}

void FinestraPrincipale::MostraVinciteDaVedere() {
  const Esito<int> nuove = VinciteDaVedere(m_contesto.Configurazione());
  if (!nuove) {
    m_stato_agenda->setText(QStringLiteral("Agenda non leggibile"));
    m_stato_agenda->setToolTip(QString::fromStdString(nuove.Errore().testo));
  } else if (*nuove == 0) {
    m_stato_agenda->setText(QStringLiteral("Nessuna vincita da vedere"));
    m_stato_agenda->setToolTip(QStringLiteral("Le vincite delle giocate dell'agenda sono già state viste"));
  } else {
    m_stato_agenda->setText(
        QStringLiteral("<a href='agenda'><b>%1 da vedere</b></a>")
            .arg(*nuove == 1 ? QStringLiteral("1 vincita") : QStringLiteral("%1 vincite").arg(*nuove)));
    m_stato_agenda->setToolTip(QStringLiteral("Apre l'agenda delle giocate"));
  }
}

void FinestraPrincipale::ApriImpostazioni() {
  DialogoImpostazioni dialogo(m_contesto, this);
  // The archive file may have changed even when it could not be loaded: the title says which it is.
  if (dialogo.exec() == QDialog::Accepted) MostraArchivio();
}

void FinestraPrincipale::MostraInformazioni() {
  // The program's file was written when it was last linked: that is the day of its build.
  const QString compilato =
      QFileInfo(QCoreApplication::applicationFilePath()).lastModified().toString(QStringLiteral("dd/MM/yyyy"));
  QMessageBox::about(this, QStringLiteral("Informazioni su lottolab"),
                     QStringLiteral("<h3>lottolab %1</h3><p>Compilato il %2.</p>"
                                    "<p>Banco di lavoro per le statistiche del Lotto: archivio delle "
                                    "estrazioni, ritardi e frequenze, script e figure.</p>"
                                    "<p>Cartella di base: %3</p>")
                         .arg(QStringLiteral(LOTTOLAB_VERSIONE), compilato,
                              Percorso(m_contesto.Configurazione().base).toHtmlEscaped()));
}

void FinestraPrincipale::MostraArchivio() {
  setWindowTitle(QStringLiteral("lottolab - %1").arg(Percorso(m_contesto.Configurazione().ArchivioLotto().filename())));
  m_stato_archivio->setText(QString::fromStdString(TestoStatoArchivio(m_contesto)));
}

void FinestraPrincipale::ArchivioRicaricato() {
  MostraArchivio();
  MostraVinciteDaVedere();
  AvvisaArchivioCaricato(m_contesto, *m_interlocutore);
}

void FinestraPrincipale::CompilaScriptRecenti() {
  m_script_recenti->clear();
  const std::vector<std::string> recenti = LeggiScriptRecenti(m_contesto.Configurazione().ini);
  if (recenti.empty()) m_script_recenti->addAction(QStringLiteral("(nessuno)"))->setEnabled(false);
  int posizione = 1;
  for (const std::string& recente : recenti) {
    const QString file = QString::fromStdString(recente);
    QAction* voce = m_script_recenti->addAction(QStringLiteral("&%1 %2").arg(posizione++).arg(file));
    connect(voce, &QAction::triggered, this, [this, file] {
      if (QFileInfo::exists(file))
        ApriScript(file);
      else
        SegnalatoreGui(this).Mostra(AvvisoEsclamativo("Lo script " + file.toStdString() + " non esiste più."));
    });
  }
}

void FinestraPrincipale::CompilaFinestre() {
  m_finestre->clear();
  m_finestre->addAction(QStringLiteral("&Affianca"), m_area, &QMdiArea::tileSubWindows);
  m_finestre->addAction(QStringLiteral("A &cascata"), m_area, &QMdiArea::cascadeSubWindows);
  const QList<QMdiSubWindow*> aperte = m_area->subWindowList();
  if (aperte.isEmpty()) return;
  m_finestre->addSeparator();
  int posizione = 1;
  for (QMdiSubWindow* aperta : aperte) {
    // The title's "[*]" is where Qt marks unsaved changes: the list marks them the same way.
    QString titolo = aperta->windowTitle();
    titolo.replace(QStringLiteral("[*]"), aperta->isWindowModified() ? QStringLiteral("*") : QString());
    QAction* voce = m_finestre->addAction(QStringLiteral("&%1 %2").arg(posizione++).arg(titolo));
    voce->setCheckable(true);
    voce->setChecked(aperta == m_area->activeSubWindow());
    connect(voce, &QAction::triggered, m_area, [this, aperta] { m_area->setActiveSubWindow(aperta); });
  }
}

void FinestraPrincipale::MostraGiocoAttivo() {
  const QMdiSubWindow* attiva = m_area->activeSubWindow();
  if (attiva == nullptr || attiva->widget() == nullptr) {
    m_stato_gioco->clear();
    return;
  }
  m_stato_gioco->setText(QStringLiteral("Gioco: %1").arg(NomeGiocoFinestra(*attiva->widget())));
}

bool FinestraPrincipale::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::DynamicPropertyChange &&
      static_cast<QDynamicPropertyChangeEvent*>(evento)->propertyName() == kProprietaGioco)
    if (const QMdiSubWindow* attiva = m_area->activeSubWindow(); attiva != nullptr && attiva->widget() == oggetto)
      MostraGiocoAttivo();
  return QMainWindow::eventFilter(oggetto, evento);
}

}  // namespace lottolab::gui
