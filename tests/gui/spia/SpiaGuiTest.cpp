#include <QCheckBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTest>

#include <initializer_list>
#include <memory>
#include <vector>

#include "EstrazioniAMano.h"
#include "TempDir.h"
#include "archive/ClsEstrazioni.h"
#include "gui/comuni/CopiaRighe.h"
#include "gui/principale/Finestre.h"
#include "gui/spia/ModelloIsotopi.h"
#include "gui/spia/ModelloSincroni.h"
#include "gui/spia/ModelloSpia.h"
#include "gui/spia/TabellaRisultati.h"

namespace lottolab::gui {
namespace {

// Every wheel not written out holds 81..85; Nazionale is drawn from draw 3.
//   7 on Bari in draws 1, 3 and 5; 20 on Venezia in draw 2; 7 first on Bari and Cagliari in draw 5.
TabellaEstrazioni ArchivioAMano() {
  return test::EstrazioniAMano(3, 1)
      .Aggiungi({{BA, {7, 1, 2, 3, 4}}})
      .Aggiungi({{VE, {20, 21, 22, 23, 24}}})
      .Aggiungi({{BA, {7, 10, 11, 12, 13}}})
      .Aggiungi({})
      .Aggiungi({{BA, {7, 1, 2, 3, 4}}, {CA, {7, 30, 31, 32, 33}}})
      .Aggiungi({})
      .Tabella();
}

// The row of the model whose first column shows `numero`.
int RigaDelNumero(const QAbstractItemModel& modello, int numero) {
  for (int riga = 0; riga < modello.rowCount(); ++riga)
    if (modello.index(riga, 0).data(kRuoloOrdinamentoSpia).toInt() == numero) return riga;
  return -1;
}

}  // namespace

class SpiaGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { m_tab = std::make_shared<const TabellaEstrazioni>(ArchivioAMano()); }

  // Percentages over the finished cases, "-" where a number never followed, sorting on numbers.
  void IlModelloDellaSpia() {
    ModelloSpia modello;
    modello.Mostra(*stats::CalcolaNumeriSpia(*m_tab, {{7, 0}, BA, VE, 1, 1, 6}));
    QCOMPARE(modello.rowCount(), 90);
    const int venti = RigaDelNumero(modello, 20);
    QCOMPARE(modello.index(venti, ModelloSpia::kColonnaPresenze).data().toInt(), 1);
    // Three cases: draws 1, 3 and 5, each followed by its draw.
    QCOMPARE(modello.index(venti, ModelloSpia::kColonnaPercentuale).data().toString(), QStringLiteral("33,3 %"));
    QCOMPARE(modello.index(venti, ModelloSpia::kColonnaPrimoColpo).data().toInt(), 1);
    const int trenta = RigaDelNumero(modello, 30);
    QCOMPARE(modello.index(trenta, ModelloSpia::kColonnaColpoMedio).data().toString(), QStringLiteral("-"));
    QVERIFY(modello.index(trenta, ModelloSpia::kColonnaColpoMedio).data(kRuoloOrdinamentoSpia).toDouble() >
            modello.index(venti, ModelloSpia::kColonnaColpoMedio).data(kRuoloOrdinamentoSpia).toDouble());

    modello.Mostra(*stats::CalcolaNumeriSpia(*m_tab, {{55, 0}, BA, VE, 1, 1, 6}));
    QCOMPARE(modello.rowCount(), 0);
  }

  void IModelliDeiSincroniEDegliIsotopi() {
    ModelloSincroni sincroni;
    sincroni.Mostra(stats::CalcolaSincroni(*m_tab, 7, BA, stats::CompagniDa::OgniRuota, 1, 6), 7, m_tab);
    QCOMPARE(sincroni.rowCount(), 89);
    QCOMPARE(RigaDelNumero(sincroni, 7), -1);
    const int trenta = RigaDelNumero(sincroni, 30);
    QCOMPARE(sincroni.index(trenta, ModelloSincroni::kColonnaFrequenza).data().toInt(), 1);
    QCOMPARE(sincroni.index(trenta, ModelloSincroni::kColonnaUltima).data().toString(), QStringLiteral("05/05/2005"));
    QCOMPARE(sincroni.index(RigaDelNumero(sincroni, 20), ModelloSincroni::kColonnaUltima).data().toString(),
             QStringLiteral("mai"));

    auto isotopi = std::make_shared<const stats::EsitoIsotopi>(
        stats::CalcolaIsotopi(*m_tab, (1U << (BA - 1)) | (1U << (CA - 1)), 1, 6));
    ModelloEventiIsotopi eventi;
    eventi.Mostra(isotopi, m_tab);
    // The fillers of Bari and Cagliari, and 7 first in draw 5.
    QVERIFY(eventi.rowCount() > 1);
    bool sette = false;
    for (int riga = 0; riga < eventi.rowCount(); ++riga)
      if (eventi.index(riga, ModelloEventiIsotopi::kColonnaNumero).data().toString() == QStringLiteral("07")) {
        sette = true;
        QCOMPARE(eventi.index(riga, ModelloEventiIsotopi::kColonnaRuote).data().toString(),
                 QStringLiteral("BA, CA (2)"));
        QCOMPARE(eventi.index(riga, ModelloEventiIsotopi::kColonnaData).data().toString(),
                 QStringLiteral("05/05/2005"));
      }
    QVERIFY(sette);
    ModelloStatisticheIsotopi statistiche;
    statistiche.Mostra(isotopi, m_tab);
    QCOMPARE(statistiche.rowCount(), 450);
    // Row (7 - 1) * 5: 7 in position 1.
    QCOMPARE(statistiche.index(30, ModelloStatisticheIsotopi::kColonnaFrequenza).data().toInt(), 1);
    QCOMPARE(statistiche.index(30, ModelloStatisticheIsotopi::kColonnaRitardo).data().toInt(), 1);
    statistiche.Mostra(nullptr, m_tab);
    QCOMPARE(statistiche.rowCount(), 0);
  }

  // The windows over an archive file compute off the window's thread, sort and copy several rows.
  void LeFinestreSullArchivio() {
    test::CartellaTemporanea cartella;
    ClsEstrazioni file(cartella / "A.dat");
    QVERIFY(file.SalvaFileEstrazioni(m_tab->Tutte()).Riuscito());
    ContestoGui contesto(
        app::Configurazione{cartella.Percorso(), app::FileIni::DaTesto("[GENERALE]\nsFileBd=A.dat\n")});
    QVERIFY(contesto.RicaricaArchivio().Riuscito());

    std::unique_ptr<QWidget> spia(NuovaFinestraSpia(contesto));
    spia->show();
    spia->findChild<QSpinBox*>("spia")->setValue(7);
    spia->findChild<QSpinBox*>("colpiSpia")->setValue(1);
    spia->findChild<QPushButton*>("calcolaSpia")->click();
    auto* tabella = spia->findChild<QTableView*>("tabellaSpia");
    QTRY_COMPARE(tabella->model()->rowCount(), 90);
    // Sorted by the cases, most first: the fillers followed every case.
    QCOMPARE(tabella->model()->index(0, ModelloSpia::kColonnaPresenze).data().toInt(), 3);
    tabella->selectRow(0);
    tabella->selectionModel()->select(tabella->model()->index(1, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QCOMPARE(TestoRigheScelte(*tabella).count('\n'), 3);

    std::unique_ptr<QWidget> sincroni(NuovaFinestraSincroni(contesto));
    sincroni->show();
    QTRY_COMPARE(sincroni->findChild<QTableView*>("tabellaSincroni")->model()->rowCount(), 89);

    std::unique_ptr<QWidget> isotopi(NuovaFinestraIsotopi(contesto));
    isotopi->show();
    auto* eventi = isotopi->findChild<QTableView*>("tabellaEventiIsotopi");
    QTRY_VERIFY(eventi->model()->rowCount() > 0);
    for (int r = 2; r <= kNumeroRuote; ++r)
      isotopi->findChild<QCheckBox*>(QStringLiteral("ruotaIsotopi%1").arg(r))->setChecked(false);
    isotopi->findChild<QPushButton*>("calcolaIsotopi")->click();
    QTRY_COMPARE(eventi->model()->rowCount(), 0);
  }

 private:
  std::shared_ptr<const TabellaEstrazioni> m_tab;
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::SpiaGuiTest)
#include "SpiaGuiTest.moc"
