#include <QTest>

#include <QLabel>
#include <QListWidget>
#include <QSpinBox>

#include "TempDir.h"
#include "gui/ciclometria/FinestraCiclometria.h"
#include "gui/comuni/QvCerchio.h"

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
    disegno.figure = {{{1, 46}, {}, {}}, {{1, 31, 61}, {}, {}}, {{5, 50}, {}, {}}};
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
