#include "gui/script/F_Script.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "gui/principale/Impostazioni.h"
#include "gui/script/DialoghiQt.h"
#include "gui/script/EditorScript.h"
#include "gui/script/EsecuzioneInThread.h"
#include "gui/script/ScriptConfigurazione.h"
#include "gui/script/ScriptModalita.h"
#include "gui/script/VistaCerchioScript.h"
#include "gui/script/VistaGrafico.h"
#include "script/LetturaFile.h"
#include "script/OutputHtml.h"
#include "text/Utf.h"

namespace lottolab::gui {

namespace {

// The html tab lays out a page on the window's thread, some milliseconds per thousand lines: a
// larger page would freeze the window for seconds, so the tab links to it instead.
constexpr uintmax_t kMassimoPaginaMostrata = uintmax_t{1} << 20;
constexpr qsizetype kMassimoRighePaginaMostrata = 20000;

QString Modello() {
  return QString::fromUtf8(script::kModelloScript.data(), static_cast<qsizetype>(script::kModelloScript.size()));
}

QTextCharFormat FormatoDi(const script::TrattoTesto& tratto) {
  QTextCharFormat formato;
  formato.setForeground(QColor(QString::fromLatin1(script::ColoreHtml(tratto.colore))));
  formato.setFontWeight(tratto.grassetto ? QFont::Bold : QFont::Normal);
  return formato;
}

}  // namespace

F_Script::F_Script(ContestoGui& contesto, std::unique_ptr<DialoghiScript> dialoghi, QWidget* parent)
    : QWidget(parent),
      m_contesto(contesto),
      m_dialoghi(dialoghi ? std::move(dialoghi) : std::make_unique<DialoghiQt>(this)),
      m_esecuzione(std::make_unique<EsecuzioneInThread>(*m_dialoghi)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  CreaComandi(layout);

  m_schede = new QTabWidget(this);
  m_editor = new EditorScript(m_schede);
  // A new window takes the keyboard at once, so that F5 and Ctrl+S reach it before any click.
  setFocusProxy(m_editor);
  m_output = new QPlainTextEdit(m_schede);
  m_output->setReadOnly(true);
  // Scripts line up their tables with blanks.
  m_output->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  m_output->setLineWrapMode(QPlainTextEdit::NoWrap);
  m_html = new QTextBrowser(m_schede);
  m_html->setOpenExternalLinks(true);
  m_schede->addTab(m_editor, QStringLiteral("codice"));
  m_schede->addTab(m_output, QStringLiteral("output"));
  m_schede->addTab(m_html, QStringLiteral("html"));
  m_disegno = new QLabel(m_schede);
  m_disegno->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  auto* scorrimento = new QScrollArea(m_schede);
  scorrimento->setWidget(m_disegno);
  scorrimento->setWidgetResizable(true);
  m_schede->addTab(scorrimento, QStringLiteral("disegno"));
  layout->addWidget(m_schede, 1);

  auto* riga_stato = new QHBoxLayout;
  m_stato = new QLabel(this);
  riga_stato->addWidget(m_stato, 1);
  m_attesa = new QLabel(QStringLiteral("Elaborazione in corso..."), this);
  m_attesa->setStyleSheet(QStringLiteral("color: #B03000; font-weight: bold;"));
  m_attesa->setVisible(false);
  riga_stato->addWidget(m_attesa);
  m_avanzamento = new QProgressBar(this);
  m_avanzamento->setRange(0, 100);
  m_avanzamento->setValue(0);
  m_avanzamento->setMaximumWidth(220);
  riga_stato->addWidget(m_avanzamento);
  layout->addLayout(riga_stato);

  connect(m_editor, &QsciScintilla::modificationChanged, this, &QWidget::setWindowModified);
  OspiteGui& ospite = m_esecuzione->Ospite();
  connect(&ospite, &OspiteGui::TestoScritto, this, &F_Script::AggiungiOutput);
  connect(&ospite.Area(), &AreaDisegnoGui::ImmagineAggiornata, this,
          [this](const QImage& immagine) { m_disegno->setPixmap(QPixmap::fromImage(immagine)); });
  connect(&ospite.Area(), &AreaDisegnoGui::CerchioDaMostrare, this,
          [this](const script::DisegnoCerchio& disegno, const QString& titolo) {
            auto* vista = new VistaCerchioScript(disegno, titolo, this);
            vista->show();
          });
  connect(&ospite.Area(), &AreaDisegnoGui::GraficoDaMostrare, this, [this](const script::DisegnoGrafico& grafico) {
    auto* vista = new VistaGrafico(grafico, this);
    vista->setWindowFlag(Qt::Window);
    vista->setAttribute(Qt::WA_DeleteOnClose);
    vista->show();
  });
  connect(&ospite, &OspiteGui::MessaggioRicevuto, m_stato, &QLabel::setText);
  connect(&ospite, &OspiteGui::TitoloCambiato, this, [this](const QString& testo) {
    m_caption = testo;
    AggiornaTitolo();
  });
  connect(&ospite, &OspiteGui::OutputPulito, m_output, &QPlainTextEdit::clear);
  connect(&ospite, &OspiteGui::AvanzamentoVisibile, m_avanzamento, &QWidget::setVisible);
  connect(&ospite, &OspiteGui::AvanzamentoCambiato, this,
          [this](double percentuale) { m_avanzamento->setValue(static_cast<int>(std::lround(percentuale))); });
  connect(m_esecuzione.get(), &EsecuzioneInThread::Terminata, this, &F_Script::Terminata);

  m_editor->ImpostaTesto(Modello());
  AggiornaTitolo();
  resize(900, 650);
}

F_Script::~F_Script() = default;

void F_Script::CreaComandi(QVBoxLayout* layout) {
  auto* comandi = new QToolBar(this);
  comandi->setToolButtonStyle(Qt::ToolButtonTextOnly);
  auto comando = [this, comandi](const QString& testo, QKeySequence tasto, auto slot) {
    QAction* azione = comandi->addAction(testo, this, slot);
    azione->setShortcut(tasto);
    azione->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    azione->setToolTip(QStringLiteral("%1 (%2)").arg(testo, tasto.toString(QKeySequence::NativeText)));
    return azione;
  };
  comando(QStringLiteral("Nuovo"), QKeySequence::New, &F_Script::Nuovo);
  comando(QStringLiteral("Apri..."), QKeySequence::Open, &F_Script::Apri);
  comando(QStringLiteral("Salva"), QKeySequence::Save, &F_Script::Salva);
  comandi->addAction(QStringLiteral("Salva con nome..."), this, &F_Script::SalvaConNome);
  comandi->addSeparator();
  comandi->addWidget(new QLabel(QStringLiteral("Time-out "), comandi));
  m_timeout = new QComboBox(comandi);
  for (const std::string& voce : script::VociTimeout()) m_timeout->addItem(QString::fromStdString(voce));
  comandi->addWidget(m_timeout);
  m_protetto = comandi->addAction(QStringLiteral("Protetto"));
  m_protetto->setCheckable(true);
  m_protetto->setToolTip(
      QStringLiteral("Modalità protetta: lo script legge solo nella cartella di lottolab, scrive solo in scriptOutput, "
                     "non tocca lottolab.ini né gli archivi e non apre altri programmi"));
  connect(m_protetto, &QAction::triggered, this,
          [this](bool attivo) { ImpostaModalita(attivo ? script::Modalita::Protetta : script::Modalita::Normale); });
  comandi->addSeparator();
  m_esegui = comando(QStringLiteral("Esegui"), QKeySequence(Qt::Key_F5), &F_Script::Esegui);
  m_stop = comandi->addAction(QStringLiteral("Stop"), this, &F_Script::Ferma);
  m_interrompi = comandi->addAction(QStringLiteral("Interrompi subito"), this, &F_Script::InterrompiSubito);
  m_stop->setEnabled(false);
  m_interrompi->setEnabled(false);
  layout->addWidget(comandi);
}

bool F_Script::InEsecuzione() const { return m_esecuzione->InEsecuzione(); }

void F_Script::AggiornaTitolo() {
  const QString nome = m_file.isEmpty() ? QStringLiteral("nuovo script") : QFileInfo(m_file).fileName();
  const QString modo = m_modalita == script::Modalita::Protetta ? QStringLiteral(" (protetto)") : QString();
  const QString caption = m_caption.isEmpty() ? QString() : QStringLiteral(" - %1").arg(m_caption);
  setWindowTitle(QStringLiteral("Script - %1%2%3[*]").arg(nome, modo, caption));
}

void F_Script::MostraModalita(script::Modalita modalita) {
  m_modalita = modalita;
  m_protetto->setChecked(modalita == script::Modalita::Protetta);
  AggiornaTitolo();
}

void F_Script::ImpostaModalita(script::Modalita modalita) {
  MostraModalita(modalita);
  if (m_impronta.empty()) return;
  auto ricordata = RicordaModalita(m_contesto.Configurazione().base, m_impronta, modalita);
  if (!ricordata) m_dialoghi->Avvisa(ricordata.Errore());
}

script::Modalita F_Script::ModalitaDelFile(const QString& file, const QByteArray& contenuto) {
  m_impronta.clear();
  if (NellaCartella(file.toStdString(), CartellaScript(m_contesto.Configurazione()))) return script::Modalita::Normale;
  m_impronta = ImprontaScript(contenuto);
  if (auto ricordata = ModalitaRicordata(m_contesto.Configurazione().base, m_impronta)) return *ricordata;
  const script::Modalita scelta = m_dialoghi->SceltaModalita(file);
  auto ricordata = RicordaModalita(m_contesto.Configurazione().base, m_impronta, scelta);
  if (!ricordata) m_dialoghi->Avvisa(ricordata.Errore());
  return scelta;
}

bool F_Script::ModificheGestite() {
  if (!m_editor->isModified()) return true;
  const QString nome = m_file.isEmpty() ? QStringLiteral("nuovo script") : QFileInfo(m_file).fileName();
  switch (m_dialoghi->ModificheNonSalvate(nome)) {
    case DialoghiScript::Modifiche::Salva: return Salva();
    case DialoghiScript::Modifiche::NonSalvare: return true;
    case DialoghiScript::Modifiche::Annulla: return false;
  }
  return false;
}

void F_Script::Nuovo() {
  if (!ModificheGestite()) return;
  m_editor->ImpostaTesto(Modello());
  m_file.clear();
  m_impronta.clear();
  MostraModalita(script::Modalita::Normale);
}

void F_Script::Apri() {
  if (!ModificheGestite()) return;
  const QString file =
      m_dialoghi->FileDaAprire(QString::fromStdString(CartellaScript(m_contesto.Configurazione()).string()));
  if (!file.isEmpty()) CaricaFile(file);
}

bool F_Script::ApriFile(const QString& file) { return ModificheGestite() && CaricaFile(file); }

bool F_Script::CaricaFile(const QString& file) {
  auto letto = script::LeggiFileRegolare(file.toStdString(), script::kLimiteFileScript);
  if (!letto) {
    m_dialoghi->Avvisa(letto.Errore());
    return false;
  }
  const std::string& byte = *letto;
  const std::u16string testo = text::DecodeScriptFile(byte);
  const script::Modalita modalita =
      ModalitaDelFile(file, QByteArray::fromRawData(byte.data(), static_cast<qsizetype>(byte.size())));
  m_editor->ImpostaTesto(QString::fromStdU16String(testo));
  m_file = file;
  MostraModalita(modalita);
  return true;
}

bool F_Script::ScriviFile(const QString& file) {
  QFile out(file);
  if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(m_editor->text().toUtf8()) < 0) {
    m_dialoghi->Avvisa(AvvisoEsclamativo("Impossibile scrivere il file " + file.toStdString()));
    return false;
  }
  m_editor->setModified(false);
  m_file = file;
  AggiornaTitolo();
  return true;
}

bool F_Script::Salva() { return m_file.isEmpty() ? SalvaConNome() : ScriviFile(m_file); }

bool F_Script::SalvaConNome() {
  const QString proposto =
      m_file.isEmpty() ? QString::fromStdString(CartellaScript(m_contesto.Configurazione()).string()) : m_file;
  QString file = m_dialoghi->FileDaSalvare(proposto);
  if (file.isEmpty()) return false;
  if (QFileInfo(file).suffix().isEmpty()) file += QStringLiteral(".ls");
  return ScriviFile(file);
}

void F_Script::Esegui() {
  const app::Configurazione& configurazione = m_contesto.Configurazione();
  script::OpzioniEsecuzione opzioni;
  opzioni.libreria = ImpostazioniLibreriaDa(configurazione);
  opzioni.timeout_ms = script::TimeoutDaVoce(m_timeout->currentIndex(), m_timeout->currentText().toStdString());
  opzioni.libreria.modalita = m_modalita;
  if (!m_file.isEmpty()) opzioni.nome_script = QFileInfo(m_file).fileName().toStdString();
  m_nome_codice = opzioni.nome_script;
  std::error_code ignorato;
  std::filesystem::create_directories(opzioni.libreria.cartella_output, ignorato);

  if (!m_esecuzione->Avvia(m_editor->text(), std::move(opzioni), m_contesto.Archivio())) return;
  // The worker's output reaches the window only through queued notices: clearing now loses none.
  m_output->clear();
  if (!MantieniPaginaHtml(configurazione)) m_html->setHtml(QString());
  m_caption.clear();
  AggiornaTitolo();
  m_avanzamento->setValue(0);
  m_avanzamento->setVisible(true);
  m_stato->clear();
  m_attesa->setVisible(true);
  m_esegui->setEnabled(false);
  m_stop->setEnabled(true);
  m_interrompi->setEnabled(true);
  m_editor->TogliErrore();
  m_schede->setCurrentWidget(m_output);
}

void F_Script::AggiungiOutput(const std::vector<script::TrattoTesto>& tratti) {
  // The output follows the new lines, unless the user scrolled up to read.
  QScrollBar* barra = m_output->verticalScrollBar();
  const bool in_fondo = barra->value() == barra->maximum();
  QTextCursor cursore(m_output->document());
  cursore.movePosition(QTextCursor::End);
  for (const script::TrattoTesto& tratto : tratti)
    cursore.insertText(QString::fromStdString(tratto.testo), FormatoDi(tratto));
  if (in_fondo) barra->setValue(barra->maximum());
}

void F_Script::Terminata() {
  m_attesa->setVisible(false);
  m_esegui->setEnabled(true);
  m_stop->setEnabled(false);
  m_interrompi->setEnabled(false);
  const script::EsitoEsecuzione& esito = m_esecuzione->Esito();
  // A script that never reports its progress still shows that it has finished.
  if (esito.stato == script::EsitoEsecuzione::Stato::Completato) m_avanzamento->setValue(100);
  if (!esito.pagina_html.empty()) MostraPagina(esito.pagina_html);
  if (esito.stato == script::EsitoEsecuzione::Stato::ErroreScript && esito.errore) {
    const script::ErroreScript& errore = *esito.errore;
    AggiungiOutput({script::TrattoTesto{script::RapportoErrore(errore), script::kRosso, true}});
    if (errore.codice == m_nome_codice) {
      m_schede->setCurrentWidget(m_editor);
      m_editor->VaiA(static_cast<int>(errore.riga), static_cast<int>(errore.colonna));
    } else {
      AggiungiOutput({script::TrattoTesto{
          fmt::format("L'errore è nel file di inclusione {}, alla linea {}.\n", errore.codice, errore.riga),
          script::kRosso, false}});
    }
    m_dialoghi->Avvisa(Avviso{TipoAvviso::Critico, "EseguiScript", errore.descrizione});
  }
  emit EsecuzioneTerminata();
}

void F_Script::MostraPagina(const std::filesystem::path& pagina) {
  std::error_code ec;
  const uintmax_t dimensione = std::filesystem::file_size(pagina, ec);
  if (ec) return;
  const QUrl indirizzo = QUrl::fromLocalFile(QString::fromStdString(pagina.string()));
  auto letta = script::LeggiFileRegolare(pagina, kMassimoPaginaMostrata);
  if (!letta || std::count(letta->begin(), letta->end(), '\n') > kMassimoRighePaginaMostrata) {
    m_html->setHtml(QStringLiteral("<p>La pagina HTML di questa esecuzione (%1 KB) è troppo grande per mostrarla "
                                   "qui.</p><p><a href=\"%2\">%3</a></p>")
                        .arg(dimensione >> 10)
                        .arg(indirizzo.toString(), QString::fromStdString(pagina.string()).toHtmlEscaped()));
    return;
  }
  m_html->setSource(indirizzo);
  m_html->reload();
}

void F_Script::Ferma() {
  if (!InEsecuzione()) return;
  if (m_dialoghi->Conferma(QStringLiteral("Fermare il processo dello script ?\nN.B. L'azione ha effetto se lo script "
                                          "gestisce l'interruzione con la funzione ScriptInterrotto")))
    m_esecuzione->Stop();
}

void F_Script::InterrompiSubito() { m_esecuzione->InterrompiSubito(); }

void F_Script::closeEvent(QCloseEvent* evento) {
  if (InEsecuzione()) {
    m_dialoghi->Avvisa(AvvisoEsclamativo(std::string(kAttendereTermine)));
    evento->ignore();
    return;
  }
  if (!ModificheGestite()) {
    evento->ignore();
    return;
  }
  evento->accept();
}

}  // namespace lottolab::gui
