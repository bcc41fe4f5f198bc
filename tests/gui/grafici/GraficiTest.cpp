#include <QBrush>
#include <QChart>
#include <QDateTimeAxis>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <initializer_list>
#include <memory>
#include <vector>

#include "EstrazioniAMano.h"
#include "TempDir.h"
#include "archive/ClsEstrazioni.h"
#include "archive/TabellaEstrazioni.h"
#include "gui/comuni/ScalaRitardo.h"
#include "gui/grafici/EsportaImmagine.h"
#include "gui/grafici/FinestraGrafico.h"
#include "gui/grafici/GraficoInterattivo.h"
#include "gui/grafici/ModelloFrequenze.h"
#include "gui/grafici/ModelloMappaRitardi.h"
#include "gui/grafici/ModelloStoriaRitardo.h"
#include "gui/grafici/VistaMappaRitardi.h"
#include "gui/principale/Finestre.h"

namespace lottolab::gui {
namespace {

// Six draws of May 2005; every wheel not written out holds 81..85, Nazionale is drawn from draw 3.
//   7 on Bari: out in draws 1 and 5; on Nazionale in 3; on Venezia in 5.
TabellaEstrazioni ArchivioAMano() {
  return test::EstrazioniAMano(3, 3)
      .Aggiungi({{BA, {7, 1, 2, 3, 4}}})
      .Aggiungi({})
      .Aggiungi({{NZ, {7, 1, 2, 3, 4}}})
      .Aggiungi({})
      .Aggiungi({{BA, {7, 1, 2, 3, 4}}, {VE, {9, 7, 1, 2, 3}}})
      .Aggiungi({})
      .Tabella();
}

template <typename T>
T* Trova(QWidget& finestra, const char* nome) {
  auto* trovato = finestra.findChild<T*>(QString::fromLatin1(nome));
  if (!trovato) qFatal("%s non trovato", nome);
  return trovato;
}

}  // namespace

class GraficiTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_tab = ArchivioAMano();
    m_cartella = std::make_unique<test::CartellaTemporanea>();
    ClsEstrazioni file(*m_cartella / "A.dat");
    QVERIFY(file.SalvaFileEstrazioni(m_tab.Tutte()).Riuscito());
    m_contesto = std::make_unique<ContestoGui>(
        app::Configurazione{m_cartella->Percorso(), app::FileIni::DaTesto("[GENERALE]\nsFileBd=A.dat\n")});
    QVERIFY(m_contesto->RicaricaArchivio().Riuscito());
  }
  void cleanup() {
    m_contesto.reset();
    m_cartella.reset();
  }

  // What the user types for the numbers: blanks, commas and dashes between them; anything else is
  // refused with a message, never read as something else.
  void INumeriScrittiDallUtente() {
    QCOMPARE(*LeggiNumeriStoria(QStringLiteral(" 7 ")), std::vector<int>{7});
    QCOMPARE(*LeggiNumeriStoria(QStringLiteral("7-45, 90;1")), (std::vector<int>{7, 45, 90, 1}));
    struct Rifiuto {
      const char* testo;
      const char* messaggio;
    };
    for (const Rifiuto& caso :
         {Rifiuto{"", "da 1 a 5 numeri"}, Rifiuto{"1 2 3 4 5 6", "da 1 a 5 numeri"},
          Rifiuto{"0", "\"0\" non è un numero"}, Rifiuto{"91", "\"91\" non è"}, Rifiuto{"7 x", "\"x\" non è"},
          Rifiuto{"7 7", "7 è scritto due volte"}, Rifiuto{"99999999999", "non è un numero"}}) {
      const auto letti = LeggiNumeriStoria(QString::fromUtf8(caso.testo));
      QVERIFY2(!letti, caso.testo);
      QVERIFY2(QString::fromStdString(letti.Errore().testo).contains(QString::fromUtf8(caso.messaggio)),
               letti.Errore().testo.c_str());
    }
    QCOMPARE(TitoloStoria({7}, 1, BA), QStringLiteral("Storia del ritardo del 7 su Bari"));
    QCOMPARE(TitoloStoria({7, 45}, 2, kTutteLeRuote),
             QStringLiteral("Storia del ritardo di 7-45 su tutte le ruote (sorte: ambo)"));
  }

  // The table under the chart and what the tooltip finds at a point of the time axis: the nearest
  // draw, the first and the last beyond the ends; a date that cannot be read never moves time back.
  void LaStoriaComeLaLeggeIlGrafico() {
    ModelloStoriaRitardo modello;
    const std::array nazionale{int{NZ}};
    const std::array sette{7};
    modello.Imposta(stats::CalcolaStoriaRitardo(m_tab, nazionale, sette, 1, 1, 6), m_tab);
    QCOMPARE(modello.rowCount(), 4);
    QCOMPARE(modello.index(0, ModelloStoriaRitardo::kColonnaEstrazione).data().toInt(), 3);
    QCOMPARE(modello.index(0, ModelloStoriaRitardo::kColonnaData).data().toString(), QStringLiteral("09/05/2005"));
    QCOMPARE(modello.index(3, ModelloStoriaRitardo::kColonnaRitardo).data().toInt(), 3);
    QCOMPARE(modello.RigaPiuVicina(-1e15), 0);
    QCOMPARE(modello.RigaPiuVicina(1e15), 3);
    const double tra_la_quarta_e_la_quinta = (2 * modello.Istante(1) + modello.Istante(2)) / 3.0;
    QCOMPARE(modello.RigaPiuVicina(tra_la_quarta_e_la_quinta), 1);
    QVERIFY(modello.Descrizione(0).contains(QStringLiteral("Estrazione 3 del 09/05/2005\nRitardo 0 (uscita)")));

    TabellaEstrazioni guasta = m_tab;
    guasta.Tutte()[4].data.mese = 13;
    modello.Imposta(stats::CalcolaStoriaRitardo(guasta, nazionale, sette, 1, 1, 6), guasta);
    QCOMPARE(modello.Data(2), QStringLiteral("?"));
    QCOMPARE(modello.Istante(2), modello.Istante(1));
    QVERIFY(modello.Istante(3) > modello.Istante(2));

    modello.Imposta(stats::StoriaRitardo{}, m_tab);
    QCOMPARE(modello.RigaPiuVicina(0), -1);
  }

  void LeFrequenzeELoScarto() {
    ModelloFrequenze modello;
    modello.Imposta(stats::CalcolaFrequenze(m_tab, kTutteLeRuote, 1, 6));
    QCOMPARE(modello.rowCount(), kMassimoNumero);
    // 64 wheels drawn in six draws (Nazionale from the third): 64 x 5 / 90 = 3.56 expected; 7 came
    // out four times, 10 never.
    const int sette = 6;
    QCOMPARE(modello.index(sette, ModelloFrequenze::kColonnaFrequenza).data().toInt(), 4);
    QCOMPARE(modello.index(sette, ModelloFrequenze::kColonnaScarto).data().toDouble(), 0.4);
    QCOMPARE(modello.index(sette, ModelloFrequenze::kColonnaPercentuale).data().toDouble(), 12.5);
    QCOMPARE(modello.index(9, ModelloFrequenze::kColonnaScarto).data().toDouble(), -3.6);
    QVERIFY(modello.Descrizione(7).contains(QStringLiteral("Attesa 3,6 (+0,4)")));
    QVERIFY(modello.Descrizione(0).isEmpty());
    QVERIFY(modello.Descrizione(91).isEmpty());
  }

  // The map's cells: the delay coloured by the scale of the delay table, a dash and no colour for a
  // wheel not drawn yet; every cell is found again under its own centre, on a wide and a tall view.
  void LaMappaEIlClicSulleCelle() {
    ModelloMappaRitardi modello;
    modello.ImpostaAnalitico(std::make_shared<const stats::Analitico>(m_tab));
    modello.ImpostaFine(4);
    QCOMPARE(modello.Cella(BA, 7).data().toInt(), 3);
    QCOMPARE(modello.Cella(BA, 7).data(Qt::BackgroundRole).value<QBrush>().color(), SfondoRitardo(1.0));
    QVERIFY(modello.Cella(BA, 7).data(Qt::ToolTipRole).toString().contains(QStringLiteral("Ritardo 3 (il 100%")));
    modello.ImpostaFine(2);
    QCOMPARE(modello.Cella(NZ, 7).data().toString(), QStringLiteral("–"));
    QVERIFY(!modello.Cella(NZ, 7).data(Qt::BackgroundRole).isValid());

    VistaMappaRitardi vista(modello);
    for (const QSize misura : {QSize(1000, 600), QSize(500, 900)}) {
      vista.resize(misura);
      for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota)
        for (int numero = 1; numero <= kMassimoNumero; ++numero) {
          const QRectF cella = vista.Rettangolo(ruota, numero);
          QVERIFY(QRectF(vista.rect()).contains(cella));
          QCOMPARE(vista.CellaIn(cella.center()), std::optional(std::pair{ruota, numero}));
        }
      QVERIFY(!vista.CellaIn(QPointF(1, 1)));
    }
  }

  // The window over the archive: the history appears once computed off the window's thread, the
  // wheel zooms in and the reset comes back, a bad choice says why, and the picture saves whole.
  void LaFinestraDellaStoria() {
    std::unique_ptr<QWidget> finestra(NuovaStoriaRitardo(*m_contesto, {7}, BA));
    finestra->resize(900, 600);
    finestra->show();
    QVERIFY(!finestra->windowIcon().isNull());
    auto* dati = Trova<QTableView>(*finestra, "tabellaDati");
    QTRY_COMPARE(dati->model()->rowCount(), 6);
    QCOMPARE(finestra->windowTitle(), QStringLiteral("Storia del ritardo del 7 su Bari"));
    auto* grafico = finestra->findChild<GraficoInterattivo*>();
    QVERIFY(grafico);
    auto* date = qobject_cast<QDateTimeAxis*>(grafico->chart()->axes(Qt::Horizontal).value(0));
    QVERIFY(date);
    QCOMPARE(date->format(), QStringLiteral("dd/MM/yyyy"));
    QTRY_VERIFY(grafico->chart()->plotArea().width() > 100);
    const qint64 ampiezza = date->min().msecsTo(date->max());
    grafico->Zoom(0.5, grafico->chart()->plotArea().center().x());
    QVERIFY(date->min().msecsTo(date->max()) < ampiezza * 3 / 4);
    grafico->Zoom(4, grafico->chart()->plotArea().center().x());
    QCOMPARE(date->min().msecsTo(date->max()), ampiezza);
    grafico->Zoom(0.5, grafico->chart()->plotArea().left());
    Trova<QPushButton>(*finestra, "ripristinaZoom")->click();
    QCOMPARE(date->min().msecsTo(date->max()), ampiezza);

    Trova<QLineEdit>(*finestra, "numeriStoria")->setText(QStringLiteral("7 7"));
    Trova<QPushButton>(*finestra, "tracciaStoria")->click();
    auto* avviso = Trova<QLabel>(*finestra, "avvisoGrafico");
    QVERIFY(avviso->isVisible());
    QVERIFY(avviso->text().contains(QStringLiteral("due volte")));
    QCOMPARE(dati->model()->rowCount(), 6);

    auto* grafica = qobject_cast<FinestraGrafico*>(finestra.get());
    QVERIFY(grafica);
    const QImage immagine = ImmagineDi(*grafica->Immagine());
    QVERIFY(ScriviPng(immagine, *m_cartella / "storia.png"));
    QCOMPARE(QImage(QString::fromStdString((*m_cartella / "storia.png").string())).size(), immagine.size());
    QVERIFY(ScriviPdfImmagine(immagine, finestra->windowTitle(), *m_cartella / "storia.pdf"));
    QVERIFY(test::Leggi(*m_cartella / "storia.pdf").starts_with("%PDF"));
    const auto in_una_cartella = ScriviPng(immagine, m_cartella->Percorso());
    QVERIFY(!in_una_cartella);
    QVERIFY(ScriviPng(QImage(), *m_cartella / "vuota.png").Errore().testo.find("PNG") != std::string::npos);
  }

  // The frequency and map windows fill their tables; a click on a cell of the map opens the history of
  // that number on that wheel.
  void LeFinestreDelleFrequenzeEDellaMappa() {
    std::unique_ptr<QWidget> frequenze(NuovoGraficoFrequenze(*m_contesto));
    frequenze->show();
    auto* dati = Trova<QTableView>(*frequenze, "tabellaDati");
    QTRY_COMPARE(dati->model()->rowCount(), kMassimoNumero);
    QCOMPARE(dati->model()->index(6, ModelloFrequenze::kColonnaFrequenza).data().toInt(), 4);
    // A click on the bar of 7 opens its history; a drag that starts on it only scrolls.
    auto* barre = frequenze->findChild<GraficoInterattivo*>();
    QVERIFY(QTest::qWaitForWindowExposed(frequenze.get()));
    QTRY_VERIFY(barre->chart()->plotArea().width() > 100);
    const QPoint barra = barre->mapFromScene(barre->chart()->mapToPosition(QPointF(6, 2)));
    QTest::mousePress(barre->viewport(), Qt::LeftButton, {}, barra);
    QTest::mouseMove(barre->viewport(), barra + QPoint(30, 0));
    QTest::mouseRelease(barre->viewport(), Qt::LeftButton, {}, barra + QPoint(30, 0));
    QVERIFY(!frequenze->findChild<QWidget*>(QStringLiteral("finestraStoriaRitardo")));
    barre->Ripristina();
    QTest::mouseClick(barre->viewport(), Qt::LeftButton, {}, barra);
    auto* dal_grafico = frequenze->findChild<QWidget*>(QStringLiteral("finestraStoriaRitardo"));
    QVERIFY(dal_grafico);
    QCOMPARE(dal_grafico->windowTitle(), QStringLiteral("Storia del ritardo del 7 su tutte le ruote"));

    std::unique_ptr<QWidget> mappa(NuovaMappaRitardi(*m_contesto));
    mappa->resize(1000, 700);
    mappa->show();
    QTRY_COMPARE(Trova<QTableView>(*mappa, "tabellaDati")->model()->rowCount(), kMassimoNumero);
    auto* vista = Trova<VistaMappaRitardi>(*mappa, "mappaRitardi");
    QVERIFY(QTest::qWaitForWindowExposed(mappa.get()));
    QTest::mouseClick(vista, Qt::LeftButton, {}, vista->Rettangolo(VE, 7).center().toPoint());
    auto* storia = mappa->findChild<QWidget*>(QStringLiteral("finestraStoriaRitardo"));
    QVERIFY(storia);
    QTRY_COMPARE(storia->windowTitle(), QStringLiteral("Storia del ritardo del 7 su Venezia"));
  }

 private:
  TabellaEstrazioni m_tab;
  std::unique_ptr<test::CartellaTemporanea> m_cartella;
  std::unique_ptr<ContestoGui> m_contesto;
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::GraficiTest)
#include "GraficiTest.moc"
