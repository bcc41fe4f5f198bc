#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include <memory>
#include <vector>

#include "TempDir.h"
#include "archive/ClsEstrazioni.h"
#include "gui/comuni/SceltaEstrazioni.h"
#include "gui/comuni/TabellaAnalisi.h"
#include "gui/distribuzioni/ModelloClassiNumeri.h"
#include "gui/distribuzioni/ModelloFrequenzePeriodo.h"
#include "gui/distribuzioni/ModelloSomme.h"
#include "gui/principale/Finestre.h"

namespace lottolab::gui {
namespace {

// Five draws, two of December 2004 and three of January 2005; every wheel holds 1 2 3 4 5 except
// Bari, which holds 86 87 88 89 90 in the last draw.
std::vector<Estrazione> Estrazioni() {
  std::vector<Estrazione> estrazioni(5);
  for (int id = 1; id <= 5; ++id) {
    Estrazione& estrazione = estrazioni[static_cast<size_t>(id - 1)];
    estrazione.id_estr = id;
    estrazione.data = id <= 2 ? GruppoData{static_cast<int16_t>(id), static_cast<int16_t>(id), 12, 2004}
                              : GruppoData{static_cast<int16_t>(id - 2), static_cast<int16_t>(id), 1, 2005};
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
      for (int p = 1; p <= kNumeriPerRuota; ++p)
        estrazione.ImpostaNumero(ruota, p, id == 5 && ruota == BA ? 85 + p : p);
  }
  return estrazioni;
}

std::shared_ptr<const stats::EstrazioniPerAnalisi> PerAnalisi() {
  return std::make_shared<const stats::EstrazioniPerAnalisi>(stats::PerAnalisi(TabellaEstrazioni(Estrazioni())));
}

}  // namespace

class DistribuzioniGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void LoScartoColora() {
    QCOMPARE(SfondoScarto(10, 10), QColor(Qt::white));
    QVERIFY(SfondoScarto(20, 10).red() > SfondoScarto(20, 10).blue());
    QVERIFY(SfondoScarto(2, 10).blue() > SfondoScarto(2, 10).red());
    // Three standard deviations and beyond are the same full colour.
    QCOMPARE(SfondoScarto(100, 4), SfondoScarto(10, 4));
    QCOMPARE(SfondoScarto(3, 0), QColor(Qt::white));
  }

  // The choice of game, wheels and dates: another game has no wheels, a date counts only when ticked
  // and is kept within the archive's draws.
  void LaSceltaDelleEstrazioni() {
    const Gioco giochi[] = {Gioco::SuperEnalotto, Gioco::WinForLife};
    SceltaEstrazioni scelta(giochi, SceltaEstrazioni::ConDate::Si);
    QCOMPARE(scelta.RuoteScelte().size(), static_cast<size_t>(kNumeroRuote));
    const int ruote[] = {BA, NZ};
    scelta.ScegliRuote(ruote);
    QCOMPARE(scelta.RuoteScelte(), (std::vector<int>{BA, NZ}));
    QSignalSpy cambiato(&scelta, &SceltaEstrazioni::GiocoCambiato);
    scelta.ScegliGioco(Gioco::WinForLife);
    QCOMPARE(cambiato.size(), 1);
    QCOMPARE(scelta.GiocoScelto(), std::optional(Gioco::WinForLife));
    QVERIFY(scelta.RuoteScelte().empty());
    scelta.ScegliGioco(std::nullopt);
    QCOMPARE(scelta.RuoteScelte().size(), 2U);

    const auto tabella = std::make_shared<const TabellaEstrazioni>(Estrazioni());
    scelta.ImpostaLimitiDate({tabella, nullptr});
    QCOMPARE(scelta.Dal(), GruppoData{});
    auto* dal = scelta.findChild<QDateEdit*>("dataDal");
    QCOMPARE(dal->date(), QDate(2004, 12, 1));
    dal->setDate(QDate(1990, 1, 1));
    QCOMPARE(dal->date(), QDate(2004, 12, 1));
    dal->setDate(QDate(2005, 1, 3));
    QCOMPARE(scelta.Dal(), GruppoData{});
    scelta.findChild<QCheckBox*>("dataDalSpunta")->setChecked(true);
    QCOMPARE(scelta.Dal(), (GruppoData{0, 3, 1, 2005}));
    QCOMPARE(scelta.Al(), GruppoData{});
  }

  // Years across with total, expected and gap; numbers down; a count coloured by its gap.
  void LeFrequenzePerAnno() {
    ModelloFrequenzePeriodo modello;
    QCOMPARE(modello.rowCount(), 0);
    const auto estrazioni = PerAnalisi();
    modello.ImpostaFrequenze(*stats::CalcolaFrequenzePeriodi(*estrazioni, {{BA}, stats::TipoPeriodo::Anno, 0, 0}),
                             stats::TipoPeriodo::Anno);
    QCOMPARE(modello.rowCount(), kMassimoNumero);
    QCOMPARE(modello.columnCount(), 1 + 2 + ModelloFrequenzePeriodo::kColonneFinali);
    QCOMPARE(modello.headerData(1, Qt::Horizontal).toString(), QStringLiteral("2004"));
    QCOMPARE(modello.headerData(3, Qt::Horizontal).toString(), QStringLiteral("Totale"));
    QCOMPARE(modello.index(0, 2).data().toInt(), 2);
    QCOMPARE(modello.index(0, 3).data().toInt(), 4);
    QCOMPARE(modello.index(0, 4).data().toString(), QStringLiteral("0.3"));
    QVERIFY(modello.index(0, 5).data().toString().startsWith('+'));
    QCOMPARE(modello.index(89, 2).data(Qt::BackgroundRole).value<QBrush>().color(), SfondoScarto(1, 3 * 5 / 90.0));

    modello.ImpostaFrequenze(
        *stats::CalcolaFrequenzePeriodi(*estrazioni, {{}, stats::TipoPeriodo::MeseDellAnno, 2005, 0}),
        stats::TipoPeriodo::MeseDellAnno);
    QCOMPARE(modello.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Gen"));
  }

  // The three views of the sums over one analysis.
  void LeSomme() {
    const auto estrazioni = PerAnalisi();
    const auto analisi =
        std::make_shared<const stats::AnalisiSomme>(*stats::CalcolaSomme(*estrazioni, {{BA, NZ}, 0, 1, 0}));
    ModelloSomme per_estrazione(ModelloSomme::Vista::Estrazioni);
    ModelloSomme per_valore(ModelloSomme::Vista::Valori);
    ModelloSomme classi(ModelloSomme::Vista::Classi);
    for (ModelloSomme* modello : {&per_estrazione, &per_valore, &classi}) modello->ImpostaSomme(estrazioni, analisi);

    QCOMPARE(per_estrazione.rowCount(), 5);
    QCOMPARE(per_estrazione.headerData(3, Qt::Horizontal).toString(), QStringLiteral("Nazionale"));
    QCOMPARE(per_estrazione.index(4, 2).data().toString(), QStringLiteral("440"));
    QCOMPARE(per_estrazione.index(4, 1).data().toString(), QStringLiteral("05/01/2005"));

    // The sum 15 came nine times, last in draw 5 on Nazionale; 440 once; 200 never.
    QCOMPARE(per_valore.rowCount(), 440 - 15 + 1);
    QCOMPARE(per_valore.index(0, 1).data().toInt(), 9);
    QCOMPARE(per_valore.index(0, 4).data().toString(), QStringLiteral("05/01/2005"));
    QCOMPARE(per_valore.index(0, 5).data().toInt(), 0);
    QCOMPARE(per_valore.index(200 - 15, 4).data().toString(), QStringLiteral("mai"));
    QCOMPARE(per_valore.index(200 - 15, 5).data().toInt(), 5);

    QCOMPARE(classi.rowCount(), 43);
    QCOMPARE(classi.index(0, 0).data().toString(), QStringLiteral("15–24"));
    QCOMPARE(classi.index(0, 1).data().toInt(), 9);
    QCOMPARE(classi.index(0, 2).data().toString(), QStringLiteral("90.00"));
    classi.ImpostaAmpiezzaClassi(1000);
    QCOMPARE(classi.rowCount(), 1);
    QCOMPARE(classi.index(0, 0).data().toString(), QStringLiteral("15–440"));
  }

  void LeClassiDeiNumeri() {
    ModelloClassiNumeri modello;
    modello.ImpostaClassi(stats::CalcolaClassi(*PerAnalisi(), std::vector<int>{BA}));
    QCOMPARE(modello.rowCount(), 28);
    QCOMPARE(modello.index(19, ModelloClassiNumeri::kTipo).data().toString(), QStringLiteral("Decina"));
    QCOMPARE(modello.index(19, ModelloClassiNumeri::kClasse).data().toString(), QStringLiteral("1–10"));
    // The first decade: on Bari in draws 1..4, missing only in the last.
    QCOMPARE(modello.index(19, ModelloClassiNumeri::kFrequenza).data().toInt(), 20);
    QCOMPARE(modello.index(19, ModelloClassiNumeri::kRitardo).data().toInt(), 1);
    QCOMPARE(modello.index(27, ModelloClassiNumeri::kNellUltima).data().toInt(), 5);
    QVERIFY(modello.index(19, ModelloClassiNumeri::kRitardo).data(Qt::BackgroundRole).isValid());

    // Win for Life's numbers stop at 20: the decades beyond have no numbers and no figures.
    stats::EstrazioniPerAnalisi venti{1, 10, 20, {GruppoData{1, 1, 1, 2020}}, {}};
    for (int n = 1; n <= 10; ++n) venti.numeri.push_back(static_cast<uint8_t>(n));
    modello.ImpostaClassi(stats::CalcolaClassi(venti, {}));
    QCOMPARE(modello.index(22, ModelloClassiNumeri::kNumeri).data().toString(), QString());
    QCOMPARE(modello.index(22, ModelloClassiNumeri::kRitardo).data().toString(), QStringLiteral("–"));
    QCOMPARE(modello.index(22, ModelloClassiNumeri::kRitardo).data(ModelloClassiNumeri::kRuoloOrdinamento).toInt(), -1);
  }

  // The windows over an archive file compute off their thread and fill their tables.
  void LeFinestreSullArchivio() {
    test::CartellaTemporanea cartella;
    ClsEstrazioni file(cartella / "A.dat");
    QVERIFY(file.SalvaFileEstrazioni(Estrazioni()).Riuscito());
    ContestoGui contesto(
        app::Configurazione{cartella.Percorso(), app::FileIni::DaTesto("[GENERALE]\nsFileBd=A.dat\n")});
    QVERIFY(contesto.RicaricaArchivio().Riuscito());

    std::unique_ptr<QWidget> frequenze(NuovaFinestraFrequenzePeriodo(contesto));
    frequenze->show();
    frequenze->findChild<QComboBox*>("tipoPeriodo")->setCurrentIndex(2);
    frequenze->findChild<QSpinBox*>("estrazioniPerGruppo")->setValue(2);
    frequenze->findChild<QPushButton*>("pulsanteCalcola")->click();
    auto* tabella_frequenze = frequenze->findChild<QTableView*>("tabellaFrequenze");
    QTRY_COMPARE(tabella_frequenze->model()->rowCount(), kMassimoNumero);
    QCOMPARE(tabella_frequenze->model()->columnCount(), 1 + 3 + ModelloFrequenzePeriodo::kColonneFinali);
    QCOMPARE(tabella_frequenze->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("1–1"));

    std::unique_ptr<QWidget> somme(NuovaFinestraSomme(contesto));
    somme->show();
    somme->findChild<QSpinBox*>("posizioniSomma")->setValue(1);
    somme->findChild<QPushButton*>("pulsanteCalcola")->click();
    auto* schede = somme->findChild<QTabWidget*>("schedeSomme");
    auto* valori = qobject_cast<QTableView*>(schede->widget(1));
    QTRY_COMPARE(valori->model()->rowCount(), 90);

    std::unique_ptr<QWidget> classi(NuovaFinestraClassiNumeri(contesto));
    classi->show();
    QTRY_COMPARE(classi->findChild<QTableView*>("tabellaClassi")->model()->rowCount(), 28);
    QVERIFY(classi->findChild<QLabel*>("riassuntoClassi")->text().contains("05/01/2005"));
  }
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::DistribuzioniGuiTest)
#include "DistribuzioniGuiTest.moc"
