#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QSpinBox>
#include <QTableView>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <memory>

#include "TempDir.h"
#include "agenda/Agenda.h"
#include "archive/ClsEstrazioni.h"
#include "archive/ImportaRisultati.h"
#include "gui/agenda/DialogoNuovaGiocata.h"
#include "gui/agenda/ModelloAgenda.h"
#include "gui/archivio/ImportazioneGioco.h"
#include "gui/comuni/EsportaTabella.h"
#include "gui/principale/FinestraPrincipale.h"
#include "gui/principale/Finestre.h"

namespace lottolab::gui {
namespace {

using test::BaseTemporanea;

agenda::VoceAgenda Voce(int64_t id, int64_t spesa, int64_t netto, int senza_importo = 0) {
  agenda::VoceAgenda voce;
  voce.giocata.id = id;
  voce.giocata.colonne = {{12, 34}};
  voce.giocata.ruote = {BA};
  voce.giocata.poste = {{"ambo", 100}};
  voce.giocata.dal = GruppoData{0, 5, 1, 2023};
  voce.giocata.colpi = 3;
  voce.totali.spesa = spesa;
  voce.totali.netto = netto;
  voce.totali.vincite_senza_importo = senza_importo;
  return voce;
}

// A Lotto bet with one stored draw that won an ambo not seen yet.
int64_t GiocataConVincita(agenda::Agenda& agenda) {
  agenda::Giocata giocata = Voce(0, 0, 0).giocata;
  const int64_t id = agenda.Aggiungi(giocata).Valore();
  agenda::VerificaColpo colpo{100, GruppoData{0, 5, 1, 2023}, 100, 25000, 2000, 23000, {}};
  colpo.vincite.push_back({BA, "ambo", {12, 34}, 1, 25000});
  if (!agenda.SalvaVerifiche(id, {colpo})) qFatal("the check was not stored");
  return id;
}

class FinestraAgendaTest : public QObject {
  Q_OBJECT

 private slots:
  // Amounts sort as amounts, not as text; the bets with news and the wins without an amount are marked.
  void IlModelloOrdinaPerImportoESegnaLeNovita() {
    ModelloAgenda modello;
    modello.Imposta({Voce(1, 900, 0), Voce(2, 1000, 50000, 1), Voce(3, 250, 0)}, {2});
    QSortFilterProxyModel ordinato;
    ordinato.setSourceModel(&modello);
    ordinato.setSortRole(ModelloAgenda::kRuoloOrdine);
    ordinato.sort(ModelloAgenda::Spesa, Qt::AscendingOrder);
    QStringList spese;
    for (int r = 0; r < ordinato.rowCount(); ++r) spese << ordinato.index(r, ModelloAgenda::Spesa).data().toString();
    QCOMPARE(spese, (QStringList{"2,50", "9,00", "10,00"}));

    QCOMPARE(modello.index(1, ModelloAgenda::Vinto).data().toString(), QStringLiteral("500,00*"));
    QVERIFY(modello.index(1, ModelloAgenda::Vinto).data(Qt::ToolTipRole).toString().contains("quota non è nota"));
    QCOMPARE(modello.index(1, ModelloAgenda::Saldo).data().toString(), QStringLiteral("490,00"));
    QVERIFY(modello.index(1, 0).data(ModelloAgenda::kRuoloNuove).toBool());
    QVERIFY(modello.index(1, 0).data(Qt::BackgroundRole).isValid());
    QVERIFY(!modello.index(0, 0).data(ModelloAgenda::kRuoloNuove).toBool());
    QCOMPARE(modello.index(0, ModelloAgenda::Numeri).data().toString(), QStringLiteral("12.34"));
    QCOMPARE(modello.index(0, ModelloAgenda::Colpi).data().toString(), QStringLiteral("0/3"));

    // The export writes what the list shows, a field holding the separator or a quote quoted.
    modello.Imposta({Voce(7, 100, 0)}, {});
    std::string csv = esporta::TestoCsv(RigheDelModello(modello));
    QVERIFY(csv.starts_with("\xEF\xBB\xBFN.;Gioco;Numeri;Ruote;Poste;Dal;Colpi;Stato;Spesa;Vinto netto;Saldo\r\n"));
    QVERIFY2(csv.ends_with("7;LO;12.34;BA;ambo 1,00;05/01/2023;0/3;aperta;1,00;0,00;-1,00\r\n"), csv.c_str());
  }

  // The dialog builds the bet the fields describe, and says the check's fault in its own words.
  void IlDialogoControllaLaGiocata() {
    DialogoNuovaGiocata dialogo;
    auto* numeri = dialogo.findChild<QLineEdit*>("numeri");
    auto* poste = dialogo.findChild<QTableWidget*>("poste");
    auto* errore = dialogo.findChild<QLabel*>("errore");
    numeri->setText("12 34 91");
    dialogo.findChild<QWidget*>("ruota1")->setProperty("checked", true);
    poste->item(1, 1)->setText("1");
    dialogo.accept();
    QCOMPARE(errore->text(), QStringLiteral("Numero non valido: 91 (deve essere tra 1 e 90)."));
    QCOMPARE(dialogo.result(), int(QDialog::Rejected));
    numeri->setText("12 34 90 / 1 2");
    dialogo.findChild<QSpinBox*>("colpi")->setValue(2);
    dialogo.findChild<QLineEdit*>("progressione")->setText("1,3");
    auto giocata = dialogo.Giocata();
    QVERIFY2(giocata, giocata ? "" : giocata.Errore().testo.c_str());
    QCOMPARE(giocata->colonne, (std::vector<std::vector<int>>{{12, 34, 90}, {1, 2}}));
    QCOMPARE(giocata->ruote, std::vector<int>{BA});
    QCOMPARE(giocata->progressione, (std::vector<int>{1, 3}));
    poste->item(1, 1)->setText("1,005");
    QVERIFY(dialogo.Giocata().Errore().testo.starts_with("posta della sorte ambo: importo non valido"));

    // Another game: its sorti, no wheels, the special number it names.
    dialogo.findChild<QComboBox*>("gioco")->setCurrentIndex(1);
    QCOMPARE(poste->rowCount(), 2);
    QCOMPARE(poste->item(1, 0)->text(), QStringLiteral("superstar"));
    numeri->setText("1 2 3 4 5 6");
    poste->item(1, 1)->setText("0,50");
    dialogo.findChild<QSpinBox*>("speciale")->setValue(19);
    QCOMPARE(QString::fromStdString(dialogo.Giocata().Errore().testo),
             QStringLiteral("manca la posta della giocata base (sorte giocata) del gioco SE"));
    poste->item(0, 1)->setText("1");
    QVERIFY(dialogo.Giocata());
    QVERIFY(dialogo.Giocata()->ruote.empty());
  }

  // The window lists the agenda with its news and a bet's check; "Segna come viste" clears them, and
  // the main window's count follows.
  void LaFinestraMostraLeNovitaEIlDettaglio() {
    BaseTemporanea base;
    ContestoGui contesto(app::Configurazione{base.Percorso(), {}});
    FinestraPrincipale principale(contesto);
    auto* stato = principale.findChild<QLabel*>("statoAgenda");
    QCOMPARE(stato->text(), QStringLiteral("Nessuna vincita da vedere"));
    QVERIFY2(!std::filesystem::exists(base / "AgendaGiocate.db"), "counting creates no agenda");

    int64_t id = 0;
    {
      auto agenda = agenda::Agenda::Apri(base / "AgendaGiocate.db").Valore();
      id = GiocataConVincita(agenda);
      agenda.Aggiungi(Voce(0, 0, 0).giocata).Valore();
    }
    emit contesto.AgendaCambiata();
    QVERIFY(stato->text().contains("1 vincita da vedere"));

    principale.findChild<QAction*>("azioneAgenda")->trigger();
    principale.findChild<QAction*>("azioneAgenda")->trigger();
    QCOMPARE(principale.AreaFinestre()->subWindowList().size(), 1);
    QWidget* finestra = principale.AreaFinestre()->subWindowList().front()->widget();
    auto* elenco = finestra->findChild<QTableView*>("elencoGiocate");
    QCOMPARE(elenco->model()->rowCount(), 2);
    QVERIFY(!finestra->findChild<QLabel*>("novita")->isHidden());
    QVERIFY(finestra->findChild<QLabel*>("totali")->text().contains("vinto netto 230,00"));

    // The newest bet first; the one with the win is second, and its detail is its one draw.
    QCOMPARE(elenco->model()->index(1, ModelloAgenda::Id).data().toLongLong(), id);
    elenco->selectRow(1);
    auto* dettaglio = finestra->findChild<QTableView*>("dettaglioGiocata");
    QCOMPARE(dettaglio->model()->rowCount(), 1);
    QCOMPARE(dettaglio->model()->index(0, 7).data().toString(), QStringLiteral("ambo 12.34 su BA (1), lordo 250,00"));

    finestra->findChild<QComboBox*>("filtroStato")->setCurrentIndex(2);
    QCOMPARE(elenco->model()->rowCount(), 0);
    finestra->findChild<QComboBox*>("filtroStato")->setCurrentIndex(1);
    QCOMPARE(elenco->model()->rowCount(), 2);

    QSignalSpy cambiata(&contesto, &ContestoGui::AgendaCambiata);
    finestra->findChild<QPushButton*>("pulsanteViste")->click();
    QCOMPARE(cambiata.count(), 1);
    QVERIFY(finestra->findChild<QLabel*>("novita")->isHidden());
    QVERIFY(!elenco->model()->index(1, 0).data(ModelloAgenda::kRuoloNuove).toBool());
    QCOMPARE(stato->text(), QStringLiteral("Nessuna vincita da vedere"));
  }

  // "Verifica aperte" checks on another thread with the archive the desktop holds and tells the
  // outcome; "Rimuovi" asks first. The message boxes are answered as a user would.
  void VerificaERimozioneDallaFinestra() {
    BaseTemporanea base;
    test::Scrivi(base / "lotto.txt", "2023/01/05\tBA\t1\t2\t3\t4\t5\n2023/01/07\tBA\t12\t34\t3\t4\t5\n");
    ClsEstrazioni archivio(base / "BaseDati.dat");
    QVERIFY(ImportaRisultati(archivio, base / "lotto.txt"));
    ContestoGui contesto(app::Configurazione{base.Percorso(), {}});
    QVERIFY(contesto.RicaricaArchivio());
    {
      auto agenda = agenda::Agenda::Apri(base / "AgendaGiocate.db").Valore();
      QVERIFY(agenda.Aggiungi(Voce(0, 0, 0).giocata));
      agenda::Giocata superenalotto;
      superenalotto.gioco = agenda::GiocoGiocata::SuperEnalotto;
      superenalotto.colonne = {{1, 2, 3, 4, 5, 6}};
      superenalotto.poste = {{"giocata", 100}};
      superenalotto.dal = GruppoData{0, 5, 1, 2023};
      QVERIFY(agenda.Aggiungi(superenalotto));
    }
    std::unique_ptr<QWidget> finestra(NuovaFinestraAgenda(contesto));
    finestra->show();

    QStringList messaggi;
    QTimer rispondi;
    connect(&rispondi, &QTimer::timeout, [&] {
      if (auto* scatola = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        messaggi << scatola->text();
        scatola->button(QMessageBox::Yes) ? scatola->button(QMessageBox::Yes)->click() : scatola->accept();
      }
    });
    rispondi.start(20);
    finestra->findChild<QPushButton*>("pulsanteVerificaAperte")->click();
    QTRY_COMPARE(messaggi.size(), 1);
    QCOMPARE(messaggi[0],
             QStringLiteral("Verificate 1 giocata. Vincite da vedere: 1 (evidenziate).\n\nNon verificate:\n"
                            "- 1 giocata del gioco SE non verificata: manca l'archivio del SuperEnalotto"));
    auto* elenco = finestra->findChild<QTableView*>("elencoGiocate");
    QTRY_COMPARE(elenco->model()->index(1, ModelloAgenda::Colpi).data().toString(), QStringLiteral("2/3"));
    QVERIFY(elenco->model()->index(1, 0).data(ModelloAgenda::kRuoloNuove).toBool());

    elenco->selectRow(0);
    finestra->findChild<QPushButton*>("pulsanteRimuovi")->click();
    QTRY_COMPARE(messaggi.size(), 2);
    QVERIFY(messaggi[1].startsWith(QStringLiteral("Rimuovere dall'agenda la giocata 2 (1.2.3.4.5.6)?")));
    QCOMPARE(elenco->model()->rowCount(), 1);
  }

  // A pool prize's quota given from the detail: the win takes its money and the totals count it.
  void LaQuotaDaLDettaglio() {
    BaseTemporanea base;
    test::Scrivi(base / "se.txt", "2023/01/03\t1\t1\t2\t3\t40\t50\t60\t7\t8\n");
    const app::Configurazione configurazione{base.Percorso(), {}};
    QVERIFY(ImportaRisultatiGioco(configurazione, Gioco::SuperEnalotto, base / "se.txt").aggiunte.ValoreOppure(0) == 1);
    ContestoGui contesto(configurazione);
    contesto.RicaricaArchiviGiochi();
    {
      auto agenda = agenda::Agenda::Apri(base / "AgendaGiocate.db").Valore();
      agenda::Giocata superenalotto;
      superenalotto.gioco = agenda::GiocoGiocata::SuperEnalotto;
      superenalotto.colonne = {{1, 2, 3, 4, 5, 6}};
      superenalotto.poste = {{"giocata", 100}};
      superenalotto.dal = GruppoData{0, 3, 1, 2023};
      QVERIFY(agenda.Aggiungi(superenalotto));
    }
    std::unique_ptr<QWidget> finestra(NuovaFinestraAgenda(contesto));
    finestra->show();
    QTimer rispondi;
    connect(&rispondi, &QTimer::timeout, [&] {
      QWidget* modale = QApplication::activeModalWidget();
      if (auto* scatola = qobject_cast<QMessageBox*>(modale)) scatola->accept();
      if (auto* domanda = qobject_cast<QInputDialog*>(modale)) {
        if (domanda->comboBoxItems().isEmpty()) domanda->setTextValue("28,31");
        domanda->accept();
      }
    });
    rispondi.start(20);
    finestra->findChild<QPushButton*>("pulsanteVerificaAperte")->click();
    auto* totali = finestra->findChild<QLabel*>("totali");
    QTRY_VERIFY(totali->text().contains("più 1 vincita di cui la quota non è nota"));

    finestra->findChild<QTableView*>("elencoGiocate")->selectRow(0);
    auto* dettaglio = finestra->findChild<QTableView*>("dettaglioGiocata");
    auto* quota = finestra->findChild<QPushButton*>("pulsanteQuota");
    QVERIFY(!quota->isEnabled());
    dettaglio->selectRow(0);
    QVERIFY(quota->isEnabled());
    quota->click();
    QTRY_VERIFY(totali->text().contains("vinto netto 28,31 "));
    QVERIFY(!totali->text().contains("quota non è nota"));
  }
};

}  // namespace
}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::FinestraAgendaTest)
#include "FinestraAgendaTest.moc"
