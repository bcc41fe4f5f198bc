#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSignalSpy>
#include <QTest>

#include <deque>
#include <fstream>
#include <memory>

#include "TempDir.h"
#include "app/Percorsi.h"
#include "archive/ClsEstrazioni.h"
#include "archive/ImportaRisultati.h"
#include "gui/principale/DialogoImpostazioni.h"
#include "gui/principale/FinestraPrincipale.h"
#include "gui/principale/Impostazioni.h"
#include "gui/script/ScriptRecenti.h"

namespace lottolab::gui {
namespace {

using test::BaseTemporanea;

// Answers the questions from a list and keeps every message and question it was given.
struct InterlocutoreDiProva : Interlocutore {
  void Mostra(const Avviso& avviso) override { messaggi->push_back(avviso.testo); }
  bool Chiedi(const std::string&, const std::string& domanda) override {
    domande->push_back(domanda);
    if (risposte->empty()) qFatal("unexpected question: %s", domanda.c_str());
    bool risposta = risposte->front();
    risposte->pop_front();
    return risposta;
  }
  std::shared_ptr<std::vector<std::string>> messaggi = std::make_shared<std::vector<std::string>>();
  std::shared_ptr<std::vector<std::string>> domande = std::make_shared<std::vector<std::string>>();
  std::shared_ptr<std::deque<bool>> risposte = std::make_shared<std::deque<bool>>();
};

// Two draws, then a third that a later update brings.
constexpr const char* kDueEstrazioni =
    "2005/04/30\tBA\t1\t2\t3\t4\t5\n"
    "2005/05/03\tBA\t21\t22\t23\t24\t25\n";
constexpr const char* kTerzaEstrazione = "2005/05/04\tBA\t31\t32\t33\t34\t35\n";

class FinestraPrincipaleTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<BaseTemporanea> m_cartella;

  std::filesystem::path Scrivi(const std::string& nome, const std::string& testo) {
    auto file = *m_cartella / nome;
    std::ofstream(file) << testo;
    return file;
  }

  // Appends the draws of `risultati` to the archive file `nome` of the base folder.
  void Importa(const std::string& nome, const std::string& risultati) {
    ClsEstrazioni archivio(*m_cartella / nome);
    auto aggiunte = ImportaRisultati(archivio, Scrivi("risultati.txt", risultati));
    QVERIFY2(aggiunte.Riuscito(), aggiunte.Riuscito() ? "" : aggiunte.Errore().testo.c_str());
  }

  std::unique_ptr<ContestoGui> Contesto() {
    auto configurazione = app::CaricaConfigurazione(m_cartella->Percorso());
    if (!configurazione) qFatal("%s", configurazione.Errore().testo.c_str());
    return std::make_unique<ContestoGui>(std::move(configurazione).Valore());
  }

  app::FileIni IniSalvato() {
    auto ini = app::FileIni::Carica(app::FileConfigurazione(m_cartella->Percorso()));
    if (!ini) qFatal("%s", ini.Errore().testo.c_str());
    return std::move(ini).Valore();
  }

 private slots:
  void init() { m_cartella = std::make_unique<BaseTemporanea>(); }
  void cleanup() { m_cartella.reset(); }

  void TitoloEStatoDellArchivio() {
    Scrivi("lottolab.ini", "[GENERALE]\nsFileBd=dati/Estrazioni.dat\n");
    std::filesystem::create_directories(*m_cartella / "dati");
    Importa("dati/Estrazioni.dat", kDueEstrazioni);
    auto contesto = Contesto();

    FinestraPrincipale finestra(*contesto);
    auto* stato = finestra.findChild<QLabel*>("statoArchivio");
    QVERIFY(stato);
    QCOMPARE(finestra.windowTitle(), QString("lottolab - Estrazioni.dat"));
    // Nothing loaded yet: the status bar says how to fill the archive.
    QVERIFY(stato->text().contains("Aggiorna archivio"));

    QVERIFY(contesto->RicaricaArchivio().Riuscito());
    QCOMPARE(stato->text(), QString("Archivio: 2 estrazioni, l'ultima del 03/05/2005"));

    Importa("dati/Estrazioni.dat", std::string(kDueEstrazioni) + kTerzaEstrazione);
    QVERIFY(contesto->RicaricaArchivio().Riuscito());
    QCOMPARE(stato->text(), QString("Archivio: 3 estrazioni, l'ultima del 04/05/2005"));
  }

  void LeFinestreSiApronoNellArea() {
    Importa("BaseDati.dat", kDueEstrazioni);
    auto contesto = Contesto();
    QVERIFY(contesto->RicaricaArchivio().Riuscito());
    FinestraPrincipale finestra(*contesto);
    finestra.resize(1000, 700);

    finestra.show();

    // However many windows cascade, each opens whole inside the area, on a small screen and a large one.
    for (QSize schermo : {QSize(1024, 768), QSize(1920, 1080)}) {
      finestra.resize(schermo);
      for (const char* azione : {"azioneEstrazioni", "azioneTabellone", "azioneNuovoScript", "azioneEditorStrutture",
                                 "azioneAiuto", "azioneNuovoScript", "azioneEditorStrutture"})
        finestra.findChild<QAction*>(azione)->trigger();
      const QRect area = finestra.AreaFinestre()->viewport()->rect();
      for (QMdiSubWindow* aperta : finestra.AreaFinestre()->subWindowList()) {
        QVERIFY2(area.contains(aperta->geometry()), qPrintable(aperta->windowTitle()));
        aperta->close();
      }
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    for (const char* azione : {"azioneEstrazioni", "azioneTabellone", "azioneNuovoScript", "azioneEditorStrutture",
                               "azioneAiuto", "azioneAiuto"})
      finestra.findChild<QAction*>(azione)->trigger();
    const QList<QMdiSubWindow*> aperte = finestra.AreaFinestre()->subWindowList();
    // The help opened twice is one window, brought forward.
    QCOMPARE(aperte.size(), 5);
    QCOMPARE(finestra.AreaFinestre()->currentSubWindow()->widget()->objectName(), QString("finestraAiuto"));

    aperte.first()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // A closed window is gone, not hidden.
    QCOMPARE(finestra.AreaFinestre()->subWindowList().size(), 4);
  }

  // The game of the active window, followed as the window changes game.
  void LaBarraDiStatoNominaIlGiocoDellaFinestraAttiva() {
    Importa("BaseDati.dat", kDueEstrazioni);
    auto contesto = Contesto();
    QVERIFY(contesto->RicaricaArchivio().Riuscito());
    contesto->RicaricaArchiviGiochi();
    FinestraPrincipale finestra(*contesto);
    finestra.resize(1000, 700);
    // Only a window on screen has an active window.
    finestra.show();
    auto* stato = finestra.findChild<QLabel*>("statoGioco");
    QMdiArea* area = finestra.AreaFinestre();

    finestra.findChild<QAction*>("azioneEstrazioniSE")->trigger();
    QMdiSubWindow* superenalotto = area->activeSubWindow();
    QCOMPARE(stato->text(), QString("Gioco: SuperEnalotto"));
    finestra.findChild<QAction*>("azioneNuovoScript")->trigger();
    QCOMPARE(stato->text(), QString("Gioco: Lotto"));
    finestra.findChild<QAction*>("azioneTabellone")->trigger();
    QCOMPARE(stato->text(), QString("Gioco: Lotto"));
    auto* scelta = area->activeSubWindow()->widget()->findChild<QComboBox*>("sceltaGioco");
    scelta->setCurrentIndex(scelta->findText("10eLotto ogni 5 minuti"));
    QCOMPARE(stato->text(), QString("Gioco: 10eLotto ogni 5 minuti"));
    area->setActiveSubWindow(superenalotto);
    QCOMPARE(stato->text(), QString("Gioco: SuperEnalotto"));
  }

  void ScriptRecentiNellIni() {
    app::FileIni ini;
    for (int i = 1; i <= 10; ++i) AggiungiScriptRecente(ini, "s" + std::to_string(i) + ".ls");
    QCOMPARE(LeggiScriptRecenti(ini),
             (std::vector<std::string>{"s10.ls", "s9.ls", "s8.ls", "s7.ls", "s6.ls", "s5.ls", "s4.ls", "s3.ls"}));

    AggiungiScriptRecente(ini, "s5.ls");
    QCOMPARE(LeggiScriptRecenti(ini),
             (std::vector<std::string>{"s5.ls", "s10.ls", "s9.ls", "s8.ls", "s7.ls", "s6.ls", "s4.ls", "s3.ls"}));

    // A hand-edited list with a hole and a repeat is closed up, in the file too.
    app::FileIni a_mano = app::FileIni::DaTesto("[SCRIPT_RECENTI]\nFile1=a.ls\nFile3=b.ls\nFile5=a.ls\n");
    QCOMPARE(LeggiScriptRecenti(a_mano), (std::vector<std::string>{"a.ls", "b.ls"}));
    AggiungiScriptRecente(a_mano, "b.ls");
    QCOMPARE(LeggiScriptRecenti(a_mano), (std::vector<std::string>{"b.ls", "a.ls"}));
    QVERIFY(a_mano.Leggi("SCRIPT_RECENTI", "File5", "").empty());
  }

  void UnoScriptApertoEntraNellIni() {
    // In the user's scripts folder, so that opening it asks nothing.
    std::filesystem::create_directories(*m_cartella / "Script");
    const auto script = Scrivi("Script/prova.ls", "Sub Main\nEnd Sub\n");
    Scrivi("lottolab.ini", "; scritto a mano\n[SCRIPT_RECENTI]\nFile1=/altrove/vecchio.ls\n");
    auto contesto = Contesto();
    FinestraPrincipale finestra(*contesto);

    finestra.ApriScript(QString::fromStdString(script.string()));
    QCOMPARE(finestra.AreaFinestre()->subWindowList().size(), 1);
    const app::FileIni salvato = IniSalvato();
    QCOMPARE(LeggiScriptRecenti(salvato), (std::vector<std::string>{script.string(), "/altrove/vecchio.ls"}));
    QVERIFY(salvato.Testo().find("; scritto a mano") != std::string::npos);
    QCOMPARE(LeggiScriptRecenti(contesto->Configurazione().ini), LeggiScriptRecenti(salvato));
  }

  void LeImpostazioniSalvateRicaricanoLArchivio() {
    Scrivi("lottolab.ini", "[GENERALE]\nsIndirizzoRisultati=file:///risultati.zip\nsColoreSfondoHtml=#102030\n");
    Importa("BaseDati.dat", kDueEstrazioni);
    Importa("Altro.dat", std::string(kDueEstrazioni) + kTerzaEstrazione);
    auto contesto = Contesto();
    QVERIFY(contesto->RicaricaArchivio().Riuscito());
    QSignalSpy cambiato(contesto.get(), &ContestoGui::ArchivioCambiato);

    DialogoImpostazioni dialogo(*contesto);
    auto* archivio = dialogo.findChild<QLineEdit*>("archivio");
    auto* cartella = dialogo.findChild<QLineEdit*>("cartellaScript");
    QVERIFY(archivio && cartella);
    QCOMPARE(archivio->text(), QString("BaseDati.dat"));
    QCOMPARE(cartella->text(), QString("Script"));
    archivio->setText("Altro.dat");
    cartella->setText("MieiScript");
    dialogo.findChild<QCheckBox*>("mantieniPaginaHtml")->setChecked(true);
    dialogo.accept();

    QCOMPARE(dialogo.result(), int(QDialog::Accepted));
    const app::FileIni salvato = IniSalvato();
    QCOMPARE(salvato.Leggi("GENERALE", "sFileBd", ""), std::string("Altro.dat"));
    QCOMPARE(salvato.Leggi("GENERALE", "sCartellaScript", ""), std::string("MieiScript"));
    QCOMPARE(salvato.Leggi("GENERALE", "sColoreSfondoHtml", ""), std::string("#102030"));
    QCOMPARE(salvato.Leggi("GENERALE", "bMantieniPaginaHtml", ""), std::string("1"));
    QCOMPARE(salvato.Leggi("GENERALE", "sIndirizzoRisultati", ""), std::string("file:///risultati.zip"));

    QCOMPARE(cambiato.count(), 1);
    QCOMPARE(contesto->Archivio()->EstrazioniArchivio(), 3);
    QCOMPARE(CartellaScript(contesto->Configurazione()), *m_cartella / "MieiScript");
  }

  void UnArchivioGuastoSiDiceESiRipara() {
    Importa("BaseDati.dat", kDueEstrazioni);
    const auto archivio = *m_cartella / "BaseDati.dat";
    std::ofstream(archivio, std::ios::app | std::ios::binary) << std::string(34, '\x07');
    auto contesto = Contesto();
    FinestraPrincipale finestra(*contesto);
    InterlocutoreDiProva prova;
    finestra.ImpostaInterlocutore(std::make_unique<InterlocutoreDiProva>(prova));
    auto* stato = finestra.findChild<QLabel*>("statoArchivio");

    prova.risposte->push_back(false);
    QVERIFY(contesto->RicaricaArchivio().Riuscito());
    QCOMPARE(stato->text(), QString("Archivio: 3 estrazioni, l'ultima del 1799/1799/1799 - ATTENZIONE: 34 byte oltre "
                                    "l'ultima estrazione intera"));
    QCOMPARE(prova.domande->size(), size_t{1});
    QVERIFY(prova.domande->front().find("34 byte oltre") != std::string::npos);
    QVERIFY(prova.domande->front().find("Riparare l'archivio ora?") != std::string::npos);
    QCOMPARE(std::filesystem::file_size(archivio), uintmax_t{2 * 67 + 34});

    prova.risposte->push_back(true);
    QVERIFY(contesto->RicaricaArchivio().Riuscito());
    QCOMPARE(std::filesystem::file_size(archivio), uintmax_t{2 * 67});
    QCOMPARE(stato->text(), QString("Archivio: 2 estrazioni, l'ultima del 03/05/2005"));
    QCOMPARE(prova.messaggi->size(), size_t{1});
    QVERIFY2(prova.messaggi->back().find("riparato: tolti 34 byte") != std::string::npos,
             prova.messaggi->back().c_str());

    // A bad record with a whole length is told, with nothing to ask.
    std::fstream file(archivio, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(67 + 12);
    file.put(char(91));
    file.close();
    QVERIFY(contesto->RicaricaArchivio().Riuscito());
    QCOMPARE(prova.domande->size(), size_t{2});
    QCOMPARE(prova.messaggi->size(), size_t{2});
    QVERIFY(prova.messaggi->back().find("il primo è il n. 2: il numero 91") != std::string::npos);
    QVERIFY(stato->text().endsWith("ATTENZIONE: 1 estrazione non valida, la n. 2"));
  }

  void UnaCartellaComeArchivioNonFermaIlDesktop() {
    Scrivi("lottolab.ini", "[GENERALE]\nsFileBd=cartella\n");
    std::filesystem::create_directories(*m_cartella / "cartella");
    auto contesto = Contesto();
    auto caricato = contesto->RicaricaArchivio();
    QVERIFY(!caricato.Riuscito());
    QVERIFY(caricato.Errore().testo.find("è una cartella") != std::string::npos);
    FinestraPrincipale finestra(*contesto);
    QCOMPARE(finestra.findChild<QLabel*>("statoArchivio")->text(),
             QString("Archivio non caricato: vedi Archivio > Impostazioni"));
  }

  void LImpostazioneDiUnArchivioMancanteVaConfermata() {
    Importa("BaseDati.dat", kDueEstrazioni);
    std::filesystem::create_directories(*m_cartella / "cartella");
    auto contesto = Contesto();
    QVERIFY(contesto->RicaricaArchivio().Riuscito());
    FinestraPrincipale finestra(*contesto);
    auto* stato = finestra.findChild<QLabel*>("statoArchivio");

    for (bool conferma : {false, true}) {
      DialogoImpostazioni dialogo(*contesto);
      InterlocutoreDiProva prova;
      prova.risposte->push_back(conferma);
      dialogo.ImpostaInterlocutore(std::make_unique<InterlocutoreDiProva>(prova));
      dialogo.findChild<QLineEdit*>("archivio")->setText("Nuovo.dat");
      dialogo.accept();
      QCOMPARE(prova.domande->size(), size_t{1});
      QVERIFY(
          prova.domande->front().starts_with("L'archivio " + (*m_cartella / "Nuovo.dat").string() + " non esiste."));
      QCOMPARE(dialogo.result(), int(conferma ? QDialog::Accepted : QDialog::Rejected));
      QCOMPARE(IniSalvato().Leggi("GENERALE", "sFileBd", ""), std::string(conferma ? "Nuovo.dat" : ""));
      QCOMPARE(finestra.windowTitle(), QString(conferma ? "lottolab - Nuovo.dat" : "lottolab - BaseDati.dat"));
      QCOMPARE(stato->text(), QString(conferma ? "Archivio vuoto: per riempirlo usa Archivio > Aggiorna archivio"
                                               : "Archivio: 2 estrazioni, l'ultima del 03/05/2005"));
    }

    // An archive that cannot be read at all is refused, and the settings stay as they were.
    DialogoImpostazioni dialogo(*contesto);
    InterlocutoreDiProva prova;
    dialogo.ImpostaInterlocutore(std::make_unique<InterlocutoreDiProva>(prova));
    dialogo.findChild<QLineEdit*>("archivio")->setText("cartella");
    dialogo.accept();
    QCOMPARE(dialogo.result(), int(QDialog::Rejected));
    QCOMPARE(prova.messaggi->size(), size_t{1});
    QVERIFY(prova.messaggi->front().find("è una cartella") != std::string::npos);
    QCOMPARE(IniSalvato().Leggi("GENERALE", "sFileBd", ""), std::string("Nuovo.dat"));
  }

  void UnaConfigurazioneNonScrivibileNonCambiaNulla() {
    const auto file = Scrivi("un-file", "");
    ContestoGui contesto(app::Configurazione{file / "base", app::FileIni::DaTesto("[GENERALE]\nsFileBd=A.dat\n")});
    app::FileIni nuovo = contesto.Configurazione().ini;
    nuovo.Scrivi("GENERALE", "sFileBd", "B.dat");

    auto salvato = SalvaConfigurazione(contesto, nuovo);
    QVERIFY(!salvato.Riuscito());
    QVERIFY(!salvato.Errore().testo.empty());
    QCOMPARE(contesto.Configurazione().ArchivioLotto().filename().string(), std::string("A.dat"));
  }
};

}  // namespace
}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::FinestraPrincipaleTest)
#include "FinestraPrincipaleTest.moc"
