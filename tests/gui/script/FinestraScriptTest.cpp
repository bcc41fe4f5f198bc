#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>
#include <QThread>
#include <algorithm>

#include <fstream>

#include "TempDir.h"
#include "gui/comuni/QvCerchio.h"
#include "gui/script/EditorScript.h"
#include "gui/script/EsecuzioneInThread.h"
#include "gui/script/F_Script.h"
#include "gui/script/ParoleEditor.h"
#include "gui/script/ScriptModalita.h"
#include "gui/script/VistaCerchioScript.h"
#include "gui/script/VistaGrafico.h"
#include "script/OutputHtml.h"
#include "text/Utf.h"
#include "vbscript/syntax/Lexer.h"

namespace lottolab::gui {
namespace {

constexpr int kAttesaMs = 60000;

// Answers in the user's stead and keeps what was asked, noting whether it was asked on the
// window's thread.
class DialoghiDiProva final : public DialoghiScript {
 public:
  bool Conferma(const QString& testo) override {
    Annota();
    domande << testo;
    return risposta_conferma;
  }
  Modifiche ModificheNonSalvate(const QString& nome) override {
    Annota();
    domande << nome;
    return risposta_modifiche;
  }
  void Avvisa(const Avviso& avviso) override {
    Annota();
    avvisi.push_back(avviso);
  }
  QString FileDaAprire(const QString&) override { return file_da_aprire; }
  QString FileDaSalvare(const QString&) override { return file_da_salvare; }
  script::Modalita SceltaModalita(const QString& file) override {
    Annota();
    modalita_chieste << file;
    return modalita_scelta;
  }
  int MessageBox(std::u16string_view testo, int, std::u16string_view) override {
    Annota();
    domande << QString::fromStdU16String(std::u16string(testo));
    return pulsante_msgbox;
  }
  std::optional<std::u16string> InputBox(std::u16string_view testo, std::u16string_view, std::u16string_view) override {
    Annota();
    domande << QString::fromStdU16String(std::u16string(testo));
    return u"risposta";
  }
  std::optional<std::vector<int>> ScegliVoci(const std::string&, const std::vector<std::string>&, bool) override {
    Annota();
    return std::vector<int>{1};
  }
  std::optional<std::vector<int>> ScegliNumeri(const std::string&, int, int, const std::vector<int>&) override {
    Annota();
    return std::vector<int>{7, 41};
  }
  std::optional<std::vector<double>> ScegliImporti(const std::string&, const std::vector<std::string>&,
                                                   const std::vector<double>& proposti) override {
    Annota();
    return proposti;
  }
  std::optional<std::string> ScegliPercorso(const std::string&, const std::string& proposto, bool) override {
    Annota();
    return proposto;
  }

  bool risposta_conferma = true;
  Modifiche risposta_modifiche = Modifiche::NonSalvare;
  int pulsante_msgbox = 1;
  QString file_da_aprire;
  QString file_da_salvare;
  QStringList domande;
  QStringList modalita_chieste;
  script::Modalita modalita_scelta = script::Modalita::Protetta;
  std::vector<Avviso> avvisi;
  bool fuori_dal_thread_della_finestra = false;

 private:
  void Annota() {
    if (QThread::currentThread() != qApp->thread()) fuori_dal_thread_della_finestra = true;
  }
};

// One draw, with 17 first on Bari.
std::shared_ptr<const TabellaEstrazioni> ArchivioAMano() {
  Estrazione estrazione;
  estrazione.id_estr = 1;
  estrazione.data = GruppoData{1, 3, 1, 2026};
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
    for (int p = 1; p <= kNumeriPerRuota; ++p) estrazione.ImpostaNumero(ruota, p, ruota * 5 + p);
  estrazione.ImpostaNumero(1, 1, 17);
  return std::make_shared<const TabellaEstrazioni>(std::vector<Estrazione>{estrazione});
}

// Forever, until told to stop or interrupted; writes "via" first so the test knows it runs.
constexpr auto kFinoAlloStop =
    "Sub Main\nScrivi \"via\"\nDo Until ScriptInterrotto()\nLoop\nScrivi \"fermato\"\nEnd Sub";
constexpr auto kSenzaFine = "Sub Main\nScrivi \"via\"\nDo\nLoop\nEnd Sub";
// Writes as fast as it can and never looks at ScriptInterrotto.
constexpr auto kAlluvione = "Sub Main\nScrivi \"via\"\nDo\nScrivi \"x\"\nLoop\nEnd Sub";

}  // namespace

class FinestraScriptTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<test::CartellaTemporanea> m_base;
  std::unique_ptr<ContestoGui> m_contesto;
  DialoghiDiProva* m_dialoghi = nullptr;
  std::unique_ptr<F_Script> m_finestra;

  void Apri(std::string_view ini = "") {
    m_finestra.reset();
    m_base = std::make_unique<test::CartellaTemporanea>();
    m_contesto = std::make_unique<ContestoGui>(app::Configurazione{m_base->Percorso(), app::FileIni::DaTesto(ini)});
    auto dialoghi = std::make_unique<DialoghiDiProva>();
    m_dialoghi = dialoghi.get();
    m_finestra = std::make_unique<F_Script>(*m_contesto, std::move(dialoghi));
  }

  void Esegui(const QString& codice) {
    m_finestra->Editor()->setText(codice);
    QSignalSpy terminata(m_finestra.get(), &F_Script::EsecuzioneTerminata);
    m_finestra->Esegui();
    QVERIFY(terminata.wait(kAttesaMs));
  }

  void AvviaEAttendiIlVia(const QString& codice) {
    m_finestra->Editor()->setText(codice);
    m_finestra->Esegui();
    QVERIFY(m_finestra->InEsecuzione());
    QTRY_VERIFY_WITH_TIMEOUT(m_finestra->Output()->toPlainText().contains("via"), kAttesaMs);
  }

  void AttendiLaFine() {
    if (!m_finestra->InEsecuzione()) return;
    QSignalSpy terminata(m_finestra.get(), &F_Script::EsecuzioneTerminata);
    QVERIFY(terminata.wait(kAttesaMs));
  }

 private slots:
  void cleanup() { m_finestra.reset(); }

  void LeParoleVengonoDalleTabelleDelMotoreEDellaLibreria() {
    const ParoleEditor& parole = ParoleEditor::Tutte();
    for (const std::string& parola : parole.ParoleChiave()) {
      const auto gettoni = vbs::Tokenize(text::Utf8ToUtf16(parola));
      QVERIFY2(gettoni.front().kind != vbs::TokenKind::Identifier, parola.c_str());
    }
    QCOMPARE(parole.Suggerimento("len"), std::string("Len(string)"));
    const std::string estratto = parole.Suggerimento("ESTRATTO");
    QVERIFY(estratto.starts_with("Estratto(IdEstr, Ruota, Posizione)"));
    QCOMPARE(parole.Suggerimento("BA_"), std::string("BA_: Bari: ruota 1"));
    QVERIFY(parole.Suggerimento("InitScript").empty());

    const auto nomi = parole.Completamenti("scriv");
    QVERIFY(std::find(nomi.begin(), nomi.end(), "Scrivi") != nomi.end());
    QVERIFY(std::find(nomi.begin(), nomi.end(), "ScriviConColori") != nomi.end());
    for (const std::string& nome : nomi)
      QVERIFY2(QString::fromStdString(nome).startsWith("scriv", Qt::CaseInsensitive), nome.c_str());
    const auto con_e = parole.Completamenti("e");
    QVERIFY(std::find(con_e.begin(), con_e.end(), "ElseIf") != con_e.end());
    QVERIFY(std::is_sorted(con_e.begin(), con_e.end(), [](const std::string& a, const std::string& b) {
      return QString::fromStdString(a).compare(QString::fromStdString(b), Qt::CaseInsensitive) < 0;
    }));
    QCOMPARE(ElencoPerLexer(std::vector<std::string>{"ElseIf", "Dim"}), std::string("elseif dim"));
  }

  void LoScriptGiraSulThreadDiLavoroELOutputArrivaColSuoColore() {
    DialoghiDiProva dialoghi;
    EsecuzioneInThread esecuzione(dialoghi);
    std::vector<script::TrattoTesto> tratti;
    connect(&esecuzione.Ospite(), &OspiteGui::TestoScritto, this, [&](const std::vector<script::TrattoTesto>& nuovi) {
      tratti.insert(tratti.end(), nuovi.begin(), nuovi.end());
    });
    QSignalSpy terminata(&esecuzione, &EsecuzioneInThread::Terminata);
    dialoghi.pulsante_msgbox = 7;
    test::CartellaTemporanea base;
    script::OpzioniEsecuzione opzioni;
    opzioni.libreria.cartella_base = base.Percorso();
    opzioni.libreria.cartella_output = base.Percorso();
    QVERIFY(
        esecuzione.Avvia("Sub Main\nScrivi \"a\"\nColoreTesto Rosso_\nScrivi Estratto(1, BA_, 1), True\n"
                         "Scrivi MsgBox(\"Va bene?\", vbYesNo)\nScrivi InputBox(\"Nome?\")\nEnd Sub",
                         opzioni, ArchivioAMano()));
    QVERIFY(terminata.wait(kAttesaMs));
    QCOMPARE(esecuzione.Esito().stato, script::EsitoEsecuzione::Stato::Completato);
    QVERIFY(!esecuzione.InEsecuzione());
    QCOMPARE(tratti.size(), size_t{3});
    QCOMPARE(tratti[0].testo, std::string("a\n"));
    QCOMPARE(tratti[1].testo, std::string("17\n"));
    QCOMPARE(tratti[1].colore, script::kRosso);
    QVERIFY(tratti[1].grassetto);
    QCOMPARE(tratti[2].testo, std::string("7\nrisposta\n"));
    QCOMPARE(dialoghi.domande, (QStringList{"Va bene?", "Nome?"}));
    QVERIFY(!dialoghi.fuori_dal_thread_della_finestra);
  }

  void LOutputEIDialoghiDellaLibreriaArrivanoNellaFinestra() {
    Apri("[GENERALE]\nsColoreSfondoHtml=#FFEECC\n");
    QSignalSpy avanzamento(m_finestra->Avanzamento(), &QProgressBar::valueChanged);
    Esegui(
        "Sub Main\nDim n\nn = ScegliNumeri(\"Numeri\", 2)\nScrivi n(1) & \"-\" & n(2)\nMessaggio \"fatto\"\n"
        "AvanzamentoElab 1, 4\nEnd Sub");
    QVERIFY2(m_dialoghi->avvisi.empty(), m_dialoghi->avvisi.empty() ? "" : m_dialoghi->avvisi[0].testo.c_str());
    QCOMPARE(m_finestra->Output()->toPlainText(), QString("7-41\n"));
    QVERIFY(std::any_of(avanzamento.begin(), avanzamento.end(), [](const QList<QVariant>& v) { return v[0] == 25; }));
    QCOMPARE(m_finestra->Avanzamento()->value(), 100);  // the run is over
    QVERIFY(!m_dialoghi->fuori_dal_thread_della_finestra);
    QVERIFY(m_finestra->PaginaHtml()->toPlainText().contains("7-41"));
    QFile pagina(m_finestra->PaginaHtml()->source().toLocalFile());
    QVERIFY(pagina.open(QIODevice::ReadOnly));
    QVERIFY(pagina.readAll().contains("bgcolor =#FFEECC"));
  }

  // PulisciOutput drops what was written before it, even what had not reached the window yet.
  void IMembriDiF_ScriptArrivanoAllaFinestraNellOrdine() {
    Apri();
    Esegui(
        "Sub Main\nDim i\nFor i = 1 To 2000\nScrivi i\nNext\nF_Script.PulisciOutput\nScrivi \"dopo\"\n"
        "F_Script.Caption = \"Ricerca ambi\"\nVisualizzaFormProgress False\nEnd Sub");
    QCOMPARE(m_finestra->Output()->toPlainText(), QString("dopo\n"));
    QVERIFY(m_finestra->windowTitle().contains("Ricerca ambi"));
    QVERIFY(m_finestra->Avanzamento()->isHidden());
    Esegui("Sub Main\nScrivi F_Script.Caption = \"\"\nEnd Sub");
    QVERIFY(!m_finestra->windowTitle().contains("Ricerca ambi"));
    QVERIFY(!m_finestra->Avanzamento()->isHidden());
    QCOMPARE(m_finestra->Output()->toPlainText(), QString("Vero\n"));
  }

  void LaPaginaPrecedenteSparisceAllAvvioSalvoImpostazione() {
    Apri();
    m_finestra->PaginaHtml()->setHtml("vecchia");
    m_finestra->Editor()->setText("Sub Main\nEnd Sub");
    m_finestra->Esegui();
    QCOMPARE(m_finestra->PaginaHtml()->toPlainText(), QString());
    AttendiLaFine();

    Apri("[GENERALE]\nbMantieniPaginaHtml=1\n");
    m_finestra->PaginaHtml()->setHtml("vecchia");
    m_finestra->Editor()->setText("Sub Main\nEnd Sub");
    m_finestra->Esegui();
    QCOMPARE(m_finestra->PaginaHtml()->toPlainText(), QString("vecchia"));
    AttendiLaFine();
  }

  void LoStopFermaUnoScriptCheGuardaScriptInterrotto() {
    Apri();
    AvviaEAttendiIlVia(kFinoAlloStop);
    QVERIFY(m_finestra->Attesa()->isVisibleTo(m_finestra.get()));
    QSignalSpy terminata(m_finestra.get(), &F_Script::EsecuzioneTerminata);
    m_finestra->Ferma();
    QCOMPARE(m_dialoghi->domande,
             QStringList{"Fermare il processo dello script ?\nN.B. L'azione ha effetto se lo script gestisce "
                         "l'interruzione con la funzione ScriptInterrotto"});
    QVERIFY(terminata.wait(kAttesaMs));
    QCOMPARE(m_finestra->Output()->toPlainText(), QString("via\nfermato\n"));
    QVERIFY(!m_finestra->Attesa()->isVisibleTo(m_finestra.get()));
    QVERIFY(m_dialoghi->avvisi.empty());
  }

  void InterrompiSubitoFermaUnoScriptCheNonGuardaMai() {
    Apri();
    AvviaEAttendiIlVia(kSenzaFine);
    QSignalSpy terminata(m_finestra.get(), &F_Script::EsecuzioneTerminata);
    m_finestra->InterrompiSubito();
    QVERIFY(terminata.wait(kAttesaMs));
    QVERIFY(m_finestra->Output()->toPlainText().contains("Errore script !"));
    QCOMPARE(m_dialoghi->avvisi.size(), size_t{1});
    QCOMPARE(m_dialoghi->avvisi[0].titolo, std::string("EseguiScript"));
  }

  void UnoScriptCheScriveSenzaFineVieneTroncatoEInterrottoSubito() {
    Apri();
    AvviaEAttendiIlVia(kAlluvione);
    QVERIFY2(!m_finestra->AzioneEsegui()->isEnabled(), "a second run cannot start during the first");
    QTRY_VERIFY_WITH_TIMEOUT(m_finestra->Output()->toPlainText().contains("Output troncato"), kAttesaMs);
    QSignalSpy terminata(m_finestra.get(), &F_Script::EsecuzioneTerminata);
    m_finestra->InterrompiSubito();
    QVERIFY(terminata.wait(kAttesaMs));
    QVERIFY(m_finestra->AzioneEsegui()->isEnabled());
    const QString output = m_finestra->Output()->toPlainText();
    QVERIFY(output.count('\n') <= kMassimoRighe + 10);
    QCOMPARE(output.count("Output troncato"), 1);
    QVERIFY(output.contains("Esecuzione dello script interrotta"));
    for (const auto& pagina : std::filesystem::directory_iterator(m_base->Percorso() / "scriptOutput"))
      QVERIFY(pagina.file_size() <= script::kLimitePaginaHtml + 4096);
  }

  void UnMessaggioRipetutoNonTieneLaFinestraInOstaggio() {
    Apri();
    Esegui("Sub Main\nDim i\nFor i = 1 To 3\nEstratto 1, 17, 1\nNext\nScrivi \"fine\"\nEnd Sub");
    QCOMPARE(m_dialoghi->avvisi.size(), size_t{1});
    const QString output = m_finestra->Output()->toPlainText();
    QCOMPARE(output.count(QString::fromStdString(m_dialoghi->avvisi[0].testo)), 2);
    QVERIFY(output.endsWith("fine\n"));
    QCOMPARE(m_finestra->Avanzamento()->value(), 100);
  }

  void UnoScriptDaFuoriChiedeLaModalitaUnaVoltaPerContenuto() {
    Apri();
    test::CartellaTemporanea scaricati;
    const QString condiviso = QString::fromStdString((scaricati / "condiviso.ls").string());
    std::ofstream(condiviso.toStdString()) << "Sub Main\nScrivi 1\nEnd Sub\n";
    QVERIFY(m_finestra->ApriFile(condiviso));
    QCOMPARE(m_dialoghi->modalita_chieste, QStringList{condiviso});
    QCOMPARE(m_finestra->Modalita(), script::Modalita::Protetta);
    QVERIFY(m_finestra->windowTitle().contains("(protetto)"));
    QVERIFY(std::filesystem::exists(m_base->Percorso() / std::string(kFileModalita)));

    // The same content is not asked again, even from another window; the user's change is kept.
    m_finestra->ImpostaModalita(script::Modalita::Normale);
    m_finestra->Nuovo();
    QCOMPARE(m_finestra->Modalita(), script::Modalita::Normale);
    QVERIFY(m_finestra->ApriFile(condiviso));
    QCOMPARE(m_dialoghi->modalita_chieste.size(), 1);
    QCOMPARE(m_finestra->Modalita(), script::Modalita::Normale);

    // A changed file is another script.
    std::ofstream(condiviso.toStdString()) << "Sub Main\nScrivi 2\nEnd Sub\n";
    QVERIFY(m_finestra->ApriFile(condiviso));
    QCOMPARE(m_dialoghi->modalita_chieste.size(), 2);
    QCOMPARE(m_finestra->Modalita(), script::Modalita::Protetta);

    // The user's own scripts folder asks nothing.
    std::filesystem::create_directories(m_base->Percorso() / "Script");
    const QString mio = QString::fromStdString((m_base->Percorso() / "Script" / "mio.ls").string());
    std::ofstream(mio.toStdString()) << "Sub Main\nScrivi 3\nEnd Sub\n";
    QVERIFY(m_finestra->ApriFile(mio));
    QCOMPARE(m_dialoghi->modalita_chieste.size(), 2);
    QCOMPARE(m_finestra->Modalita(), script::Modalita::Normale);

    // A device is refused, not read for ever.
    QVERIFY(!m_finestra->ApriFile("/dev/zero"));
    QVERIFY(!m_dialoghi->avvisi.empty());
    QVERIFY(m_dialoghi->avvisi.back().testo.find("periferica") != std::string::npos);
  }

  void UnaSecondaEsecuzioneDuranteLaPrimaERifiutata() {
    Apri();
    AvviaEAttendiIlVia(kSenzaFine);
    m_finestra->Editor()->setText("Sub Main\nScrivi \"seconda\"\nEnd Sub");
    m_finestra->Esegui();
    QCOMPARE(m_dialoghi->avvisi.size(), size_t{1});
    QCOMPARE(m_dialoghi->avvisi[0].testo, std::string("Attendere il termine dello script in corso"));
    QVERIFY(!m_finestra->close());
    QCOMPARE(m_dialoghi->avvisi.size(), size_t{2});
    m_finestra->InterrompiSubito();
    AttendiLaFine();
    QVERIFY(!m_finestra->Output()->toPlainText().contains("seconda"));
  }

  void LaFinestraChiusaDuranteLEsecuzioneLaInterrompe() {
    Apri();
    AvviaEAttendiIlVia(kSenzaFine);
    m_finestra.reset();
  }

  void UnErroreMetteIlCursoreSullaSuaRigaEColonna() {
    Apri();
    std::filesystem::create_directories(m_base->Percorso() / "Script/Funzioni");
    std::ofstream(m_base->Percorso() / "Script/Funzioni/Lib.ls") << "Function Due\nDue = 2\nEnd Function\n";
    Esegui("Option Explicit\nincludi Lib.ls\nSub Main\nScrivi Due()\n    y = 1\nEnd Sub");
    int riga = -1;
    int colonna = -1;
    m_finestra->Editor()->getCursorPosition(&riga, &colonna);
    QCOMPARE(riga, 4);
    QCOMPARE(colonna, 4);
    const QString output = m_finestra->Output()->toPlainText();
    QVERIFY(output.startsWith("2\nErrore script !\n500 - Variabile non definita: 'y'\nLinea   : 5\nColonna : 5\n"));
    QCOMPARE(m_dialoghi->avvisi.size(), size_t{1});
    QCOMPARE(m_dialoghi->avvisi[0].tipo, TipoAvviso::Critico);
    QCOMPARE(m_dialoghi->avvisi[0].titolo, std::string("EseguiScript"));
    QCOMPARE(m_dialoghi->avvisi[0].testo, std::string("Variabile non definita: 'y'"));

    // An error inside the included file leaves the caret alone: its line is the other file's.
    std::ofstream(m_base->Percorso() / "Script/Funzioni/Lib.ls") << "Function Due\nDue = 2 / 0\nEnd Function\n";
    m_finestra->Editor()->setCursorPosition(0, 0);
    Esegui("Option Explicit\nincludi Lib.ls\nSub Main\nScrivi Due()\nEnd Sub");
    m_finestra->Editor()->getCursorPosition(&riga, &colonna);
    QCOMPARE(riga, 0);
    QVERIFY(m_finestra->Output()->toPlainText().endsWith("L'errore è nel file di inclusione Lib.ls, alla linea 2.\n"));
  }

  void UnNuovoScriptPartDalModelloELeModificheSiConfermano() {
    Apri();
    QCOMPARE(m_finestra->Editor()->text().toStdString(), std::string(script::kModelloScript));
    QVERIFY(!m_finestra->Editor()->isModified());
    QCOMPARE(m_finestra->Timeout()->count(), 11);
    QCOMPARE(m_finestra->Timeout()->itemText(0), QString("Infinito"));

    m_finestra->Editor()->insert("' mio\n");
    QVERIFY(m_finestra->isWindowModified());
    m_dialoghi->risposta_modifiche = DialoghiScript::Modifiche::Annulla;
    m_finestra->Nuovo();
    QCOMPARE(m_dialoghi->domande, QStringList{"nuovo script"});
    QVERIFY(m_finestra->Editor()->text().startsWith("' mio"));
    QVERIFY(!m_finestra->close());

    // Saving first: the file gets the changes, then the new script replaces them.
    const QString file = QString::fromStdString((m_base->Percorso() / "salvato.ls").string());
    m_dialoghi->file_da_salvare = file;
    m_dialoghi->risposta_modifiche = DialoghiScript::Modifiche::Salva;
    m_finestra->Nuovo();
    QCOMPARE(m_finestra->Editor()->text().toStdString(), std::string(script::kModelloScript));
    QFile salvato(file);
    QVERIFY(salvato.open(QIODevice::ReadOnly));
    QVERIFY(salvato.readAll().startsWith("' mio"));

    m_finestra->Editor()->insert("' altro\n");
    m_dialoghi->risposta_modifiche = DialoghiScript::Modifiche::NonSalvare;
    m_finestra->Nuovo();
    QCOMPARE(m_finestra->Editor()->text().toStdString(), std::string(script::kModelloScript));
    QVERIFY(!m_finestra->Editor()->isModified());
  }

  void SalvareEAprireTengonoIlFileEIlSuoStato() {
    Apri();
    m_finestra->Editor()->setText("Sub Main\nScrivi \"è\"\nEnd Sub");
    m_dialoghi->file_da_salvare = QString::fromStdString((m_base->Percorso() / "prova").string());
    QVERIFY(m_finestra->Salva());
    QCOMPARE(m_finestra->File(), m_dialoghi->file_da_salvare + ".ls");
    QVERIFY(!m_finestra->Editor()->isModified());
    QVERIFY(m_finestra->windowTitle().contains("prova.ls"));
    const QString salvato = m_finestra->File();

    m_finestra->Nuovo();
    QVERIFY(m_dialoghi->domande.isEmpty());
    m_finestra->Editor()->insert("x");
    m_dialoghi->file_da_aprire = salvato;
    m_dialoghi->risposta_modifiche = DialoghiScript::Modifiche::Annulla;
    QVERIFY(!m_finestra->ApriFile(m_dialoghi->file_da_aprire));
    m_dialoghi->risposta_modifiche = DialoghiScript::Modifiche::NonSalvare;
    m_finestra->Apri();
    QCOMPARE(m_dialoghi->domande.size(), 2);
    QCOMPARE(m_finestra->Editor()->text(), QString("Sub Main\nScrivi \"è\"\nEnd Sub"));
    QCOMPARE(m_finestra->File(), salvato);
    QVERIFY(!m_finestra->Editor()->isModified());
  }

  // The worker paints the picture; the window shows it at the run's end, and a circle of
  // QvCerchio_InitDisegno in a view of its own.
  void IlDisegnoDelloScriptArrivaNellaSuaSchedaEIlCerchioInUnaVista() {
    Apri();
    Esegui(
        "Sub Main\nPicSetDimensioni 120, 80\nPicRiempi Rosso_\nPicCerchio 60, 40, 10, Blu_, 1, Blu_\n"
        "d = GetNewDisegnoCiclometrico()\n"
        "DisegnaCerchioCiclometrico d, Array(1), Array(Array(1, 46)), , , 0, 0, 0, 40\nQvCerchio_InitDisegno d, "
        "\"Vista\"\nEnd Sub");
    QVERIFY(m_dialoghi->avvisi.empty());
    QTRY_VERIFY_WITH_TIMEOUT(!m_finestra->Disegno()->pixmap().isNull(), kAttesaMs);
    const QImage immagine = m_finestra->Disegno()->pixmap().toImage();
    QCOMPARE(immagine.size(), QSize(120, 80));
    QCOMPARE(immagine.pixel(60, 40) & 0xFFFFFF, 0x0000FFu);
    QCOMPARE(immagine.pixel(115, 2) & 0xFFFFFF, 0xFF0000u);
    QTRY_COMPARE_WITH_TIMEOUT(m_finestra->findChildren<VistaCerchioScript*>().size(), qsizetype{1}, kAttesaMs);
    VistaCerchioScript* vista = m_finestra->findChildren<VistaCerchioScript*>().front();
    QCOMPARE(vista->windowTitle(), QString("Vista"));
    QCOMPARE(vista->Cerchio()->Disegno().figure.size(), size_t{1});
    // The page of the run keeps its pictures, as a headless run's does.
    std::string pagina;
    std::vector<std::string> immagini;
    for (const auto& file : std::filesystem::directory_iterator(m_base->Percorso() / "scriptOutput")) {
      if (file.path().extension() == ".png") immagini.push_back(file.path().filename().string());
      if (file.path().extension() == ".htm" || file.path().extension() == ".html") {
        std::ifstream leggi(file.path());
        pagina.assign(std::istreambuf_iterator<char>(leggi), {});
      }
    }
    QCOMPARE(immagini.size(), size_t{2});
    for (const std::string& immagine : immagini)
      QVERIFY2(pagina.find("src=\"" + immagine + "\"") != std::string::npos, immagine.c_str());
  }

  // A chart of Grafico opens in a window of its own, the series as the script gave them.
  void IlGraficoDelloScriptSiApreInUnaFinestra() {
    Apri();
    Esegui(
        "Sub Main\nPreparaGrafico \"Andamento\", , , 2\nInserisciGrafico Array(3, 1, 4), \"a\"\n"
        "InserisciGrafico Array(1, 5), \"b\"\nGrafico\nEnd Sub");
    QTRY_COMPARE_WITH_TIMEOUT(m_finestra->findChildren<VistaGrafico*>().size(), qsizetype{1}, kAttesaMs);
    QVERIFY(m_dialoghi->avvisi.empty());
    VistaGrafico* vista = m_finestra->findChildren<VistaGrafico*>().front();
    QCOMPARE(vista->windowTitle(), QString("Andamento"));
    QCOMPARE(vista->Disegno().serie.size(), size_t{2});
    QCOMPARE(vista->chart()->series().size(), qsizetype{1});  // the bars of both series in one set
  }
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::FinestraScriptTest)
#include "FinestraScriptTest.moc"
