#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTest>

#include <memory>
#include <vector>

#include "TempDir.h"
#include "archive/ClsEstrazioni.h"
#include "gui/comuni/CopiaRighe.h"
#include "gui/comuni/EsportaTabella.h"
#include "gui/principale/Finestre.h"
#include "gui/ricerca/ModelloRicercaEstrazioni.h"
#include "stats/RicercaEstrazioni.h"

namespace lottolab::gui {
namespace {

// Four draws of May 2005, every wheel 81..85 except: Bari 7 1 2 3 4 in draw 1, Venezia 9 7 1 2 3 in
// draw 3, Nazionale drawn from draw 2.
std::vector<Estrazione> Estrazioni() {
  std::vector<Estrazione> estrazioni(4);
  for (int id = 1; id <= 4; ++id) {
    Estrazione& estrazione = estrazioni[static_cast<size_t>(id - 1)];
    estrazione.id_estr = id;
    estrazione.data = GruppoData{static_cast<int16_t>(id), static_cast<int16_t>(id * 2), 5, 2005};
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
      if (ruota != NZ || id >= 2)
        for (int p = 1; p <= kNumeriPerRuota; ++p) estrazione.ImpostaNumero(ruota, p, 80 + p);
  }
  const int bari[] = {7, 1, 2, 3, 4};
  const int venezia[] = {9, 7, 1, 2, 3};
  for (int p = 1; p <= kNumeriPerRuota; ++p) {
    estrazioni[0].ImpostaNumero(BA, p, bari[p - 1]);
    estrazioni[2].ImpostaNumero(VE, p, venezia[p - 1]);
  }
  return estrazioni;
}

}  // namespace

class RicercaEstrazioniTest : public QObject {
  Q_OBJECT

 private slots:
  void INumeriScrittiDallUtente() {
    auto letti = LeggiNumeriCercati(QStringLiteral(" 7, 45;90  1"), 90);
    QVERIFY(letti.Riuscito());
    QCOMPARE(*letti, (std::vector<int>{7, 45, 90, 1}));
    QVERIFY(LeggiNumeriCercati(QString(), 90)->empty());
    for (const char* sbagliato : {"91", "0", "7 abc", "-3", "4.5", "99999999999999999999"}) {
      auto rifiutato = LeggiNumeriCercati(QString::fromUtf8(sbagliato), 90);
      QVERIFY2(!rifiutato.Riuscito(), sbagliato);
      QVERIFY(QString::fromStdString(rifiutato.Errore().testo).contains("da 1 a 90"));
    }
    QVERIFY(!LeggiNumeriCercati(QStringLiteral("21"), 20).Riuscito());
  }

  // The found draws with the chosen wheels as columns, the wheels holding a number searched for
  // highlighted, the whole draw on demand, and an empty outcome said in words.
  void IlModelloDelleEstrazioniTrovate() {
    auto estrazioni =
        std::make_shared<const stats::EstrazioniPerAnalisi>(stats::PerAnalisi(TabellaEstrazioni(Estrazioni())));
    ModelloRicercaEstrazioni modello;
    QVERIFY(modello.Riassunto().contains("Cerca"));
    stats::FiltroEstrazioni filtro;
    filtro.ruote = {BA, VE};
    filtro.numeri = {7, 9};
    filtro.almeno = 1;
    modello.ImpostaRisultato(estrazioni, *stats::CercaEstrazioni(*estrazioni, filtro), filtro);
    QCOMPARE(modello.rowCount(), 2);
    QCOMPARE(modello.Riassunto(), QStringLiteral("Trovate 2 estrazioni."));
    QCOMPARE(modello.columnCount(), ModelloRicercaEstrazioni::kPrimaColonnaRuota + 2);
    QCOMPARE(modello.headerData(ModelloRicercaEstrazioni::kPrimaColonnaRuota + 1, Qt::Horizontal).toString(),
             QStringLiteral("Venezia"));
    const int bari = ModelloRicercaEstrazioni::kPrimaColonnaRuota;
    QCOMPARE(modello.index(0, ModelloRicercaEstrazioni::kColonnaData).data().toString(), QStringLiteral("02/05/2005"));
    QCOMPARE(modello.index(0, bari).data().toString(), QStringLiteral("07 01 02 03 04"));
    QVERIFY(modello.index(0, bari).data(Qt::BackgroundRole).isValid());
    QVERIFY(!modello.index(0, bari + 1).data(Qt::BackgroundRole).isValid());
    QCOMPARE(modello.index(1, ModelloRicercaEstrazioni::kColonnaTrovati).data().toInt(), 2);

    const QString dettaglio = modello.Dettaglio(1);
    QVERIFY(dettaglio.contains("Estrazione n. 3 del 06/05/2005"));
    QVERIFY(dettaglio.contains("Nazionale"));
    QVERIFY(dettaglio.contains("<b>09 07 01 02 03</b>"));
    QVERIFY(modello.Dettaglio(2).isEmpty());

    // Sorted by date, newest first, the copy and the export follow the view.
    QSortFilterProxyModel ordinamento;
    ordinamento.setSourceModel(&modello);
    ordinamento.setSortRole(ModelloRicercaEstrazioni::kRuoloOrdinamento);
    ordinamento.sort(ModelloRicercaEstrazioni::kColonnaData, Qt::DescendingOrder);
    QTableView vista;
    vista.setModel(&ordinamento);
    vista.selectAll();
    const QStringList righe = TestoRigheScelte(vista).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(righe.size(), 3);
    QVERIFY(righe[1].startsWith("3\t06/05/2005\t2\t"));
    QCOMPARE(RigheDelModello(ordinamento).size(), 3U);

    modello.ImpostaRisultato(estrazioni, {}, filtro);
    QCOMPARE(modello.Riassunto(), QStringLiteral("Nessuna estrazione trovata con questi filtri."));
  }

  // Searching all the numbers on one wheel marks the wheel that holds them, not another holding one.
  void SonoSegnateLeRuoteCheSoddisfanoLaRicerca() {
    auto tabella = Estrazioni();
    tabella[2].ImpostaNumero(BA, 1, 1);
    auto estrazioni =
        std::make_shared<const stats::EstrazioniPerAnalisi>(stats::PerAnalisi(TabellaEstrazioni(tabella)));
    ModelloRicercaEstrazioni modello;
    stats::FiltroEstrazioni filtro;
    filtro.ruote = {BA, VE};
    filtro.numeri = {7, 1, 7};
    modello.ImpostaRisultato(estrazioni, *stats::CercaEstrazioni(*estrazioni, filtro), filtro);
    QCOMPARE(modello.rowCount(), 2);
    const int bari = ModelloRicercaEstrazioni::kPrimaColonnaRuota;
    QVERIFY(!modello.index(1, bari).data(Qt::BackgroundRole).isValid());
    QVERIFY(modello.index(1, bari + 1).data(Qt::BackgroundRole).isValid());
    QVERIFY(!modello.Dettaglio(1).contains("<b>01 82"));

    filtro.dove = stats::DoveNumeri::Ovunque;
    modello.ImpostaRisultato(estrazioni, *stats::CercaEstrazioni(*estrazioni, filtro), filtro);
    QVERIFY(modello.index(1, bari).data(Qt::BackgroundRole).isValid());
  }

  // The window over an archive file: the search runs off the window's thread and fills the table.
  void LaFinestraSullArchivio() {
    test::CartellaTemporanea cartella;
    ClsEstrazioni file(cartella / "A.dat");
    QVERIFY(file.SalvaFileEstrazioni(Estrazioni()).Riuscito());
    ContestoGui contesto(
        app::Configurazione{cartella.Percorso(), app::FileIni::DaTesto("[GENERALE]\nsFileBd=A.dat\n")});
    QVERIFY(contesto.RicaricaArchivio().Riuscito());

    std::unique_ptr<QWidget> finestra(NuovaFinestraRicercaEstrazioni(contesto));
    finestra->show();
    auto* tabella = finestra->findChild<QTableView*>("tabellaRicerca");
    auto* riassunto = finestra->findChild<QLabel*>("riassuntoRicerca");
    QVERIFY(tabella && riassunto);
    finestra->findChild<QLineEdit*>("numeriCercati")->setText(QStringLiteral("7 1"));
    finestra->findChild<QPushButton*>("pulsanteCerca")->click();
    QTRY_COMPARE(riassunto->text(), QStringLiteral("Trovate 2 estrazioni."));
    QCOMPARE(tabella->model()->columnCount(), ModelloRicercaEstrazioni::kPrimaColonnaRuota + kNumeroRuote);

    finestra->findChild<QLineEdit*>("numeriCercati")->setText(QStringLiteral("9 84"));
    finestra->findChild<QPushButton*>("pulsanteCerca")->click();
    QTRY_COMPARE(riassunto->text(), QStringLiteral("Nessuna estrazione trovata con questi filtri."));
    finestra->findChild<QComboBox*>("doveNumeri")->setCurrentIndex(1);
    finestra->findChild<QPushButton*>("pulsanteCerca")->click();
    QTRY_COMPARE(riassunto->text(), QStringLiteral("Trovata 1 estrazione."));
  }
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::RicercaEstrazioniTest)
#include "RicercaEstrazioniTest.moc"
