#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <fstream>
#include <memory>

#include "RisultatiDiProva.h"
#include "TempDir.h"
#include "app/Percorsi.h"
#include "archive/ClsEstrazioni.h"
#include "archive/ImportaRisultati.h"
#include "gui/archivio/AggiornamentoArchivio.h"
#include "gui/archivio/ModelloEstrazioni.h"
#include "gui/principale/Finestre.h"

namespace lottolab::gui {
namespace {

using test::BaseTemporanea;

using test::kRisultati;

// A fourth draw, later than the three above.
constexpr const char* kRisultatiSeguenti = "2005/05/07\tBA\t90\t89\t88\t87\t86\n";

std::shared_ptr<const TabellaEstrazioni> TabellaDi(const std::string& testo) {
  auto lette = LeggiNuoveEstrazioni(TabellaEstrazioni(), testo);
  if (!lette) qFatal("%s", lette.Errore().testo.c_str());
  return std::make_shared<const TabellaEstrazioni>(std::move(lette).Valore());
}

int Colonna(int ruota) { return ModelloEstrazioni::kPrimaColonnaRuota + ruota - 1; }

class FinestraArchivioTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<BaseTemporanea> m_cartella;

  std::filesystem::path Scrivi(const std::string& nome, const std::string& testo) {
    auto file = *m_cartella / nome;
    std::ofstream(file) << testo;
    return file;
  }

  app::Configurazione Configurazione(const std::string& ini = {}) {
    return app::Configurazione{m_cartella->Percorso(), app::FileIni::DaTesto(ini)};
  }

 private slots:
  void init() { m_cartella = std::make_unique<BaseTemporanea>(); }
  void cleanup() { m_cartella.reset(); }

  void ModelloMostraLeEstrazioni() {
    ModelloEstrazioni modello(TabellaDi(kRisultati));
    QCOMPARE(modello.rowCount(), 3);
    QCOMPARE(modello.columnCount(), 2 + 11);
    QCOMPARE(modello.headerData(Colonna(BA), Qt::Horizontal).toString(), QString("BA"));
    QCOMPARE(modello.headerData(Colonna(NZ), Qt::Horizontal).toString(), QString("NZ"));

    QCOMPARE(modello.data(modello.index(0, ModelloEstrazioni::kColonnaId)).toInt(), 1);
    QCOMPARE(modello.data(modello.index(0, ModelloEstrazioni::kColonnaData)).toString(), QString("30/04/2005"));
    QCOMPARE(modello.data(modello.index(0, Colonna(BA))).toString(), QString("01 02 03 04 05"));
    QCOMPARE(modello.data(modello.index(1, Colonna(VE))).toString(), QString("06 07 08 09 15"));
    QCOMPARE(modello.data(modello.index(2, Colonna(RO))).toString(), QString("41 42 43 44 45"));
    QCOMPARE(modello.data(modello.index(2, Colonna(NZ))).toString(), QString("51 52 53 54 07"));
    // A wheel not drawn stays empty.
    QCOMPARE(modello.data(modello.index(0, Colonna(NZ))).toString(), QString());
    QVERIFY(!modello.data(modello.index(3, 0)).isValid());

    modello.ImpostaTabella(TabellaDi(std::string(kRisultati) + kRisultatiSeguenti));
    QCOMPARE(modello.rowCount(), 4);
    // Drawn order kept.
    QCOMPARE(modello.data(modello.index(3, Colonna(BA))).toString(), QString("90 89 88 87 86"));
  }

  void DettaglioDiUnaEstrazione() {
    ModelloEstrazioni modello(TabellaDi(kRisultati));
    const DettaglioEstrazione terza = modello.Dettaglio(2);
    QCOMPARE(terza.id_estr, 3);
    QCOMPARE(terza.data, std::string("04/05/2005"));
    QCOMPARE(terza.indice_annuale, 3);
    QCOMPARE(terza.ruote.size(), size_t{4});
    QCOMPARE(terza.ruote[0].nome, std::string("Bari"));
    QCOMPARE(terza.ruote[0].numeri, std::string("31 32 33 34 35"));
    QCOMPARE(terza.ruote[1].nome, std::string("Roma"));
    QCOMPARE(terza.ruote[3].nome, std::string("Nazionale"));
    QCOMPARE(terza.ruote[3].numeri, std::string("51 52 53 54 07"));

    QCOMPARE(modello.Dettaglio(0).ruote.size(), size_t{2});
    // A row past the table has no draw.
    QCOMPARE(modello.Dettaglio(3).id_estr, 0);
  }

  void VaiAllaData_data() {
    QTest::addColumn<QDate>("data");
    QTest::addColumn<int>("riga");
    QTest::newRow("prima della prima") << QDate(2005, 4, 29) << -1;
    QTest::newRow("il giorno della prima") << QDate(2005, 4, 30) << 0;
    QTest::newRow("tra la prima e la seconda") << QDate(2005, 5, 2) << 0;
    QTest::newRow("il giorno della seconda") << QDate(2005, 5, 3) << 1;
    QTest::newRow("dopo l'ultima") << QDate(2030, 1, 1) << 2;
  }
  void VaiAllaData() {
    QFETCH(QDate, data);
    QFETCH(int, riga);
    QCOMPARE(ModelloEstrazioni(TabellaDi(kRisultati)).RigaEntro(data), riga);
  }

  void ImportaDaUnFileDeiRisultati() {
    AggiornamentoArchivio aggiornamento(Configurazione("[GENERALE]\nsFileBd=dati/Estrazioni.dat\n"));
    const auto archivio = *m_cartella / "dati" / "Estrazioni.dat";

    auto prima = aggiornamento.ImportaDaFile(Scrivi("risultati.txt", kRisultati)).lotto.aggiunte;
    QVERIFY2(prima.Riuscito(), prima.Riuscito() ? "" : prima.Errore().testo.c_str());
    QCOMPARE(*prima, 3);
    QCOMPARE(std::filesystem::file_size(archivio), uintmax_t{3 * 67});

    auto di_nuovo = aggiornamento.ImportaDaFile(Scrivi("risultati.txt", std::string(kRisultati) + kRisultatiSeguenti))
                        .lotto.aggiunte;
    QVERIFY(di_nuovo.Riuscito());
    // Only the draw the archive lacks is added.
    QCOMPARE(*di_nuovo, 1);

    auto tabella = ClsEstrazioni(archivio).CaricaEstrazioni();
    QVERIFY(tabella.Riuscito());
    QCOMPARE(tabella->EstrazioniArchivio(), 4);
    QCOMPARE(int((*tabella)[3].Numero(NZ, 5)), 7);
  }

  void ImportaDaUnIndirizzo() {
    const auto risultati = Scrivi("pubblicati.txt", kRisultati);
    AggiornamentoArchivio aggiornamento(
        Configurazione("[GENERALE]\nsIndirizzoRisultati=file://" + risultati.string() + "\n"));
    auto aggiunte = aggiornamento.Scarica().lotto.aggiunte;
    QVERIFY2(aggiunte.Riuscito(), aggiunte.Riuscito() ? "" : aggiunte.Errore().testo.c_str());
    QCOMPARE(*aggiunte, 3);
    QCOMPARE(std::filesystem::file_size(*m_cartella / "BaseDati.dat"), uintmax_t{3 * 67});
    QVERIFY2(!std::filesystem::exists(*m_cartella / "risultati-scaricati.zip"), "the download is not left behind");
  }

  void UnImportFallitoLasciaLArchivio() {
    AggiornamentoArchivio aggiornamento(Configurazione());
    QVERIFY(aggiornamento.ImportaDaFile(Scrivi("risultati.txt", kRisultati)).Riuscito());

    auto mancante = aggiornamento.ImportaDaFile(*m_cartella / "non-esiste.txt").lotto.aggiunte;
    QVERIFY(!mancante.Riuscito());
    QVERIFY(!mancante.Errore().testo.empty());

    auto contraddice =
        aggiornamento.ImportaDaFile(Scrivi("altri.txt", "2005/04/30\tBA\t9\t2\t3\t4\t5\n")).lotto.aggiunte;
    QVERIFY(!contraddice.Riuscito());
    QVERIFY(contraddice.Errore().testo.find("Riga 1") != std::string::npos);

    QCOMPARE(std::filesystem::file_size(*m_cartella / "BaseDati.dat"), uintmax_t{3 * 67});
  }

  void LaFinestraSegueLArchivio() {
    AggiornamentoArchivio aggiornamento(Configurazione());
    QVERIFY(aggiornamento.ImportaDaFile(Scrivi("risultati.txt", kRisultati)).Riuscito());
    ContestoGui contesto(Configurazione());
    QVERIFY(contesto.RicaricaArchivio().Riuscito());

    std::unique_ptr<QWidget> finestra(NuovaFinestraArchivio(contesto));
    auto* tabella = finestra->findChild<QTableView*>("tabellaEstrazioni");
    auto* dettaglio = finestra->findChild<QLabel*>("dettaglioEstrazione");
    QVERIFY(tabella && dettaglio);
    QCOMPARE(tabella->model()->rowCount(), 3);
    // The most recent draw is selected.
    QCOMPARE(tabella->currentIndex().row(), 2);
    QVERIFY(dettaglio->text().contains("Estrazione n. 3"));

    finestra->findChild<QDateEdit*>("vaiAllaData")->setDate(QDate(2005, 5, 2));
    QTest::mouseClick(finestra->findChild<QPushButton*>("pulsanteVai"), Qt::LeftButton);
    QCOMPARE(tabella->currentIndex().row(), 0);
    QVERIFY(dettaglio->text().contains("Estrazione n. 1"));
    QVERIFY(dettaglio->text().contains("01 02 03 04 05"));

    finestra->findChild<QDateEdit*>("vaiAllaData")->setDate(QDate(2005, 4, 1));
    QTest::mouseClick(finestra->findChild<QPushButton*>("pulsanteVai"), Qt::LeftButton);
    // A date before the archive leaves the selection.
    QCOMPARE(tabella->currentIndex().row(), 0);
    QVERIFY(!finestra->findChild<QLabel*>("esitoRicerca")->text().isEmpty());

    QVERIFY(
        aggiornamento.ImportaDaFile(Scrivi("risultati.txt", std::string(kRisultati) + kRisultatiSeguenti)).Riuscito());
    QVERIFY(contesto.RicaricaArchivio().Riuscito());
    QCOMPARE(tabella->model()->rowCount(), 4);
    QCOMPARE(tabella->currentIndex().row(), 3);
    QVERIFY(finestra->findChild<QLabel*>("esitoRicerca")->text().isEmpty());
  }

  // What a user does on a long archive: Enter in the date box, several rows copied, the last wheel
  // readable though the first thousand draws lack it.
  void EnterScegliECopia() {
    std::string risultati;
    QDate data(1990, 1, 6);
    for (int estrazione = 0; estrazione < 1200; ++estrazione, data = data.addDays(7))
      risultati += data.toString("yyyy/MM/dd").toStdString() + "\tBA\t1\t2\t3\t4\t5\n";
    risultati += data.toString("yyyy/MM/dd").toStdString() + "\tBA\t6\t7\t8\t9\t10\n" +
                 data.toString("yyyy/MM/dd").toStdString() + "\tRN\t51\t52\t53\t54\t7\n";
    AggiornamentoArchivio aggiornamento(Configurazione());
    QVERIFY(aggiornamento.ImportaDaFile(Scrivi("risultati.txt", risultati)).Riuscito());
    ContestoGui contesto(Configurazione());
    QVERIFY(contesto.RicaricaArchivio().Riuscito());
    std::unique_ptr<QWidget> finestra(NuovaFinestraArchivio(contesto));
    finestra->resize(900, 600);
    finestra->show();
    auto* tabella = finestra->findChild<QTableView*>("tabellaEstrazioni");
    QVERIFY(tabella->columnWidth(Colonna(NZ)) >= tabella->columnWidth(Colonna(BA)));

    auto* vai = finestra->findChild<QDateEdit*>("vaiAllaData");
    vai->setDate(QDate(1990, 1, 20));
    QTest::keyClick(vai, Qt::Key_Return);
    QCOMPARE(tabella->currentIndex().row(), 2);

    tabella->selectionModel()->select(tabella->model()->index(0, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    tabella->selectionModel()->select(tabella->model()->index(1200, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QAction* copia = nullptr;
    for (QAction* azione : tabella->actions())
      if (azione->shortcut() == QKeySequence(QKeySequence::Copy)) copia = azione;
    QVERIFY(copia);
    copia->trigger();
    const QStringList righe = QApplication::clipboard()->text().split('\n', Qt::SkipEmptyParts);
    QCOMPARE(righe.size(), 4);
    QVERIFY(righe[0].startsWith("N.\tData\tBA"));
    QCOMPARE(righe[1].split('\t').size(), 13);
    QVERIFY(righe[1].startsWith("1\t06/01/1990\t01 02 03 04 05"));
    QVERIFY(righe[2].startsWith("3\t"));
    QVERIFY(righe[3].startsWith("1201\t"));
    QVERIFY(righe[3].endsWith("\t51 52 53 54 07"));
  }
};

}  // namespace
}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::FinestraArchivioTest)
#include "FinestraArchivioTest.moc"
