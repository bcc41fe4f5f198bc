#include <QDateEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QSpinBox>
#include <QTableView>
#include <QTest>

#include <initializer_list>
#include <memory>
#include <vector>

#include "EstrazioniAMano.h"
#include "TempDir.h"
#include "archive/ClsEstrazioni.h"
#include "archive/TabellaEstrazioni.h"
#include "gui/analitico/ModelloAnalitico.h"
#include "gui/analitico/ModelloCombinazioni.h"
#include "gui/comuni/CopiaRighe.h"
#include "gui/comuni/ScalaRitardo.h"
#include "gui/principale/Finestre.h"

namespace lottolab::gui {
namespace {

// Six draws; every wheel not written out holds 81..85, Nazionale is drawn from draw 3.
//   7 on Bari: out in draws 1 and 5; on Nazionale in 3; on Venezia in 5, beside 9.
TabellaEstrazioni ArchivioAMano() {
  return test::EstrazioniAMano(3, 1)
      .Aggiungi({{BA, {7, 1, 2, 3, 4}}})
      .Aggiungi({})
      .Aggiungi({{NZ, {7, 1, 2, 3, 4}}})
      .Aggiungi({})
      .Aggiungi({{BA, {7, 1, 2, 3, 4}}, {VE, {9, 7, 1, 2, 3}}})
      .Aggiungi({})
      .Tabella();
}

}  // namespace

class AnaliticoGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_tab = ArchivioAMano();
    m_modello.ImpostaAnalitico(std::make_shared<const stats::Analitico>(m_tab));
  }

  // Before Nazionale's first draw its column is a dash, sorts below every figure and says why.
  void UnaRuotaNonEstrattaMostraUnTrattino() {
    m_modello.ImpostaFine(2);
    const QModelIndex nazionale = m_modello.index(6, NZ);
    QCOMPARE(m_modello.data(nazionale).toString(), QStringLiteral("–"));
    QCOMPARE(m_modello.data(nazionale, ModelloAnalitico::kRuoloOrdinamento).toInt(), -1);
    QVERIFY(m_modello.data(nazionale, Qt::ToolTipRole).toString().contains("non era ancora estratta"));
    QVERIFY(!m_modello.data(nazionale, Qt::BackgroundRole).isValid());
    QCOMPARE(m_modello.data(m_modello.index(6, BA)).toString(), QStringLiteral("1"));
    QCOMPARE(m_modello.headerData(NZ, Qt::Horizontal).toString(), QStringLiteral("Nazionale"));
    QCOMPARE(m_modello.headerData(kTutteLeRuote, Qt::Horizontal).toString(), QStringLiteral("Tutte"));

    m_modello.ImpostaFine(6);
    QCOMPARE(m_modello.data(nazionale).toString(), QStringLiteral("3"));
  }

  // Each figure on demand, the colour of a delay level with its maximum, the previous delays.
  void LeFigureIColoriEIRitardiPrecedenti() {
    m_modello.ImpostaFine(4);
    const QModelIndex bari = m_modello.index(6, BA);
    QCOMPARE(m_modello.data(bari).toInt(), 3);
    QCOMPARE(m_modello.data(bari, Qt::BackgroundRole).value<QBrush>().color(), SfondoRitardo(1.0));
    m_modello.ImpostaFine(6);
    QCOMPARE(m_modello.data(bari).toInt(), 1);
    QVERIFY(m_modello.data(bari, Qt::ToolTipRole).toString().contains("Ritardi precedenti, dal più recente: 3, 0"));
    m_modello.ImpostaDato(ModelloAnalitico::Dato::Frequenza);
    QCOMPARE(m_modello.data(bari).toInt(), 2);
    QCOMPARE(m_modello.data(m_modello.index(6, kTutteLeRuote)).toInt(), 4);
    m_modello.ImpostaDato(ModelloAnalitico::Dato::Storico);
    QCOMPARE(m_modello.data(bari).toInt(), 3);
    m_modello.ImpostaDato(ModelloAnalitico::Dato::Ritardo);
    // An end draw past the archive is brought inside it.
    m_modello.ImpostaFine(99);
    QCOMPARE(m_modello.Fine(), 6);
  }

  // Sorted by a wheel's delay, most delayed first (81..85 fill draw 2, so their delay is 0);
  // Ctrl+C copies the chosen rows whole, in the view's order, titles first.
  void OrdinaECopiaLeRigheScelte() {
    m_modello.ImpostaFine(2);
    QSortFilterProxyModel ordinamento;
    ordinamento.setSourceModel(&m_modello);
    ordinamento.setSortRole(ModelloAnalitico::kRuoloOrdinamento);
    ordinamento.sort(BA, Qt::DescendingOrder);
    QCOMPARE(ordinamento.index(0, BA).data().toInt(), 2);
    QCOMPARE(ordinamento.index(89, BA).data().toInt(), 0);

    QTableView vista;
    vista.setModel(&m_modello);
    vista.setSelectionBehavior(QAbstractItemView::SelectRows);
    vista.setSelectionMode(QAbstractItemView::ExtendedSelection);
    vista.setColumnHidden(5, true);
    QCOMPARE(TestoRigheScelte(vista), QString());
    vista.selectionModel()->select(m_modello.index(6, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    vista.selectionModel()->select(m_modello.index(0, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const QStringList righe = TestoRigheScelte(vista).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(righe.size(), 3);
    QVERIFY(righe[0].startsWith("Numero\tBari\tCagliari\tFirenze\tGenova\tNapoli"));
    QCOMPARE(righe[0].count('\t'), ModelloAnalitico::kColonne - 2);
    QVERIFY(righe[1].startsWith("01\t"));
    QVERIFY(righe[2].startsWith("07\t1\t"));
    QVERIFY(righe[2].contains(QStringLiteral("\t–\t")));
  }

  // All 4005 ambi of a wheel, none for a wheel not drawn, and the terni as given.
  void GliAmbiEITerni() {
    ModelloCombinazioni modello;
    modello.MostraAmbi(stats::CalcolaAnaliticoAmbi(m_tab, 1, 6), VE);
    QCOMPARE(modello.rowCount(), stats::kNumeroAmbi);
    const int riga = stats::IndiceAmbo(7, 9);
    QCOMPARE(modello.index(riga, ModelloCombinazioni::kColonnaCombinazione).data().toString(), QStringLiteral("07-09"));
    QCOMPARE(modello.index(riga, ModelloCombinazioni::kColonnaRitardo).data().toInt(), 1);
    QCOMPARE(modello.index(riga, ModelloCombinazioni::kColonnaFrequenza).data().toInt(), 1);
    QCOMPARE(modello.index(riga, ModelloCombinazioni::kColonnaStorico).data().toInt(), 4);
    modello.MostraAmbi(stats::CalcolaAnaliticoAmbi(m_tab, 1, 2), NZ);
    QCOMPARE(modello.rowCount(), 0);

    const auto terni = stats::CalcolaTerniRitardatari(m_tab, BA, 1, 6, 3);
    QVERIFY(terni.has_value());
    modello.MostraTerni(*terni);
    QCOMPARE(modello.rowCount(), 3);
    QCOMPARE(modello.index(0, ModelloCombinazioni::kColonnaRitardo).data().toInt(), 6);
    QCOMPARE(modello.index(0, ModelloCombinazioni::kColonnaCombinazione).data().toString(), QStringLiteral("01-02-05"));
  }

  // The windows over an archive file: the grid appears once prepared off the window's thread, a date
  // moves the end draw, and the ambi and the terni fill their tables.
  void LeFinestreSullArchivio() {
    test::CartellaTemporanea cartella;
    ClsEstrazioni file(cartella / "A.dat");
    QVERIFY(file.SalvaFileEstrazioni(m_tab.Tutte()).Riuscito());
    ContestoGui contesto(
        app::Configurazione{cartella.Percorso(), app::FileIni::DaTesto("[GENERALE]\nsFileBd=A.dat\n")});
    QVERIFY(contesto.RicaricaArchivio().Riuscito());

    std::unique_ptr<QWidget> analitico(NuovoTabelloneAnalitico(contesto));
    analitico->show();
    auto* fine = analitico->findChild<QSpinBox*>("fineAnalitico");
    auto* griglia = analitico->findChild<QTableView*>("tabellaAnalitico");
    QVERIFY(fine && griglia);
    QTRY_COMPARE(fine->value(), 6);
    QCOMPARE(griglia->model()->rowCount(), kMassimoNumero);
    auto* data = analitico->findChild<QDateEdit*>("dataAnalitico");
    data->setDate(QDate(2005, 5, 2));
    emit data->editingFinished();
    QCOMPARE(fine->value(), 2);
    QCOMPARE(griglia->model()->index(0, NZ).data().toString(), QStringLiteral("–"));

    std::unique_ptr<QWidget> ambi(NuovaFinestraAmbi(contesto));
    ambi->show();
    auto* tabella_ambi = ambi->findChild<QTableView*>("tabellaAmbi");
    QTRY_COMPARE(tabella_ambi->model()->rowCount(), stats::kNumeroAmbi);
    ambi->findChild<QPushButton*>("calcolaTerni")->click();
    QTRY_COMPARE(ambi->findChild<QTableView*>("tabellaTerni")->model()->rowCount(), 1000);
  }

 private:
  TabellaEstrazioni m_tab;
  ModelloAnalitico m_modello;
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::AnaliticoGuiTest)
#include "AnaliticoGuiTest.moc"
