#include <QTest>

#include <QLabel>
#include <QListWidget>
#include <QSpinBox>
#include <fstream>

#include "TempDir.h"
#include "gui/archivio/AggiornamentoArchivio.h"
#include "gui/ciclometria/FinestraCiclometria.h"
#include "gui/comuni/QvCerchio.h"
#include "gui/principale/ContestoGui.h"
#include "gui/script/VistaCerchioScript.h"
#include "stats/Ciclometria.h"

namespace lottolab::gui {

// The circle view on the offscreen platform: it paints through the shared painter code, so what
// it drew is counted, and the highlighted figure changes colour on screen.
class QvCerchioTest : public QObject {
  Q_OBJECT

 private slots:
  void DipingeLeFigureEMostraLEvidenziata() {
    QvCerchio vista;
    vista.resize(300, 300);
    script::DisegnoCerchio disegno;
    disegno.impostazioni.flag = script::kFlagTutti & ~script::kFlagNumeri;
    disegno.impostazioni.figure = 0x0000FF;
    disegno.impostazioni.evidenziata = 0x00FF00;
    disegno.marcati = {1, 46, 31};
    disegno.figure = {{{1, 46}, {}, {}, {}}, {{1, 31, 61}, {}, {}, {}}, {{5, 50}, {}, {}, {}}};
    vista.ImpostaDisegno(disegno);
    vista.show();
    QVERIFY(QTest::qWaitForWindowExposed(&vista));
    QImage immagine = vista.grab().toImage();
    QCOMPARE(vista.Conteggio().poligoni, 3);
    QCOMPARE(vista.Conteggio().marcati, 3);
    QCOMPARE(immagine.pixel(150, 100) & 0xFFFFFF, 0x0000FFu);
    vista.Evidenzia(0);
    immagine = vista.grab().toImage();
    QCOMPARE(immagine.pixel(150, 100) & 0xFFFFFF, 0x00FF00u);
  }

  // A script's view lists the figures found beside the circle; choosing one highlights it. Figures
  // drawn without a description leave the view a plain circle.
  void LaVistaDelloScriptElencaLeFigureTrovate() {
    script::DisegnoCerchio disegno;
    disegno.impostazioni.flag = script::kFlagTutti & ~script::kFlagNumeri;
    disegno.impostazioni.figure = 0x0000FF;
    disegno.impostazioni.evidenziata = 0x00FF00;
    disegno.figure = {{{1, 46}, {}, {}, "Diametro 1-46"}, {{5, 35, 65}, {}, {}, "Triangolo equilatero 5-35-65"}};
    VistaCerchioScript vista(disegno, QStringLiteral("Trovate"));
    vista.show();
    QVERIFY(QTest::qWaitForWindowExposed(&vista));
    QVERIFY(vista.Elenco());
    QCOMPARE(vista.Elenco()->count(), 2);
    QCOMPARE(vista.Elenco()->item(1)->text(), QStringLiteral("Triangolo equilatero 5-35-65"));
    vista.Elenco()->setCurrentRow(1);
    QCOMPARE(vista.Cerchio()->Disegno().evidenziata, 1);
    vista.Elenco()->setCurrentRow(0);
    QCOMPARE(vista.Cerchio()->Disegno().evidenziata, 0);
    const QImage immagine = vista.Cerchio()->grab().toImage();
    QCOMPARE(immagine.pixel(immagine.width() / 2, immagine.height() / 3) & 0xFFFFFF, 0x00FF00u);

    for (auto& figura : disegno.figure) figura.descrizione.clear();
    VistaCerchioScript semplice(disegno, QStringLiteral("Disegno"));
    QVERIFY(!semplice.Elenco());
  }

  // The window lists and draws every figure of the wheels ticked, as the figure search finds them.
  void LaFinestraMostraLeFigureDelleRuoteScelte() {
    test::CartellaTemporanea base;
    // Bari: the diameter 20-65, the equilateral triangle 5-35-65, and 20 as far from 5 as from 35
    // (an isosceles triangle, and with 65 a kite); Venezia adds 50, the diametral of 5.
    std::ofstream(base.Percorso() / "risultati.txt") << "2005/05/04\tBA\t5\t35\t65\t20\t1\n"
                                                        "2005/05/04\tVE\t50\t11\t12\t13\t14\n";
    const app::Configurazione configurazione{base.Percorso(), app::FileIni::DaTesto("")};
    QVERIFY(AggiornamentoArchivio(configurazione).ImportaDaFile(base.Percorso() / "risultati.txt").Riuscito());
    ContestoGui contesto(configurazione);
    QVERIFY(contesto.RicaricaArchivio());
    FinestraCiclometria finestra(contesto);
    QStringList voci;
    for (int riga = 0; riga < finestra.Figure()->count(); ++riga) voci << finestra.Figure()->item(riga)->text();
    QCOMPARE(voci, QStringList({"Diametro 20-65 (BA, BA)", "Triangolo equilatero 5-35-65 (BA, BA, BA)",
                                "Triangolo isoscele 20-35-5 (BA, BA, BA)", "Aquilone 20-35-65-5 (BA, BA, BA, BA)"}));

    finestra.Ruote()->item(VE - 1)->setCheckState(Qt::Checked);
    stats::InsiemeCiclometrico insieme;
    for (int numero : {5, 35, 65, 20, 1, 50, 11, 12, 13, 14}) insieme.Aggiungi(numero);
    const auto attese = stats::TrovaFigure(insieme, stats::kFigureDiUnInsieme);
    QCOMPARE(finestra.Figure()->count(), static_cast<int>(attese.size()));
    QCOMPARE(finestra.Cerchio()->Disegno().marcati.size(), size_t{10});
    QVERIFY2(finestra.Cerchio()->Disegno().figure.empty(), "only the figure chosen is drawn");
    finestra.Figure()->setCurrentRow(1);
    QCOMPARE(finestra.Cerchio()->Disegno().figure.size(), size_t{1});
    const std::vector<int> vertici(attese[1].Vertici().begin(), attese[1].Vertici().end());
    QCOMPARE(finestra.Cerchio()->Disegno().figure.front().numeri, vertici);
  }

  // Without an archive the window opens all the same, with nothing marked.
  void LaFinestraSenzaArchivioSiApre() {
    test::CartellaTemporanea base;
    ContestoGui contesto(app::Configurazione{base.Percorso(), app::FileIni::DaTesto("")});
    FinestraCiclometria finestra(contesto);
    finestra.show();
    QVERIFY(QTest::qWaitForWindowExposed(&finestra));
    QCOMPARE(finestra.Ruote()->count(), kNumeroRuote);
    QCOMPARE(finestra.Figure()->count(), 0);
    QVERIFY(finestra.Cerchio()->Disegno().marcati.empty());
  }
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::QvCerchioTest)
#include "QvCerchioTest.moc"
