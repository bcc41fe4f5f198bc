#include <QTest>

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QCategoryAxis>
#include <QChart>
#include <QLineSeries>
#include <QValueAxis>

#include "gui/script/VistaGrafico.h"

namespace lottolab::gui {

namespace {

script::DisegnoGrafico Grafico(script::TipoGrafico tipo) {
  script::DisegnoGrafico grafico;
  grafico.titolo = "Ritardi";
  grafico.tipo = tipo;
  grafico.serie.push_back({"uno", 0xFF0000, {}, {3, 5, 2, 8}});
  grafico.serie.push_back({"due", std::nullopt, {}, {1, 2}});
  return grafico;
}

template <typename Asse>
Asse* AsseDi(QChart* grafico, Qt::Alignment lato) {
  const auto assi = grafico->axes(lato == Qt::AlignBottom ? Qt::Horizontal : Qt::Vertical);
  return assi.size() == 1 ? qobject_cast<Asse*>(assi.front()) : nullptr;
}

}  // namespace

// A script's chart in its window on the offscreen platform: Qt Charts gets the series, their
// colours and the axes that the headless PNG shows.
class VistaGraficoTest : public QObject {
  Q_OBJECT

 private slots:
  void LineeSuAssiDiValori() {
    VistaGrafico vista(Grafico(script::TipoGrafico::Linee));
    vista.show();
    QVERIFY(QTest::qWaitForWindowExposed(&vista));
    QCOMPARE(vista.windowTitle(), QString("Ritardi"));
    const auto serie = vista.chart()->series();
    QCOMPARE(serie.size(), qsizetype{2});
    auto* prima = qobject_cast<QLineSeries*>(serie.front());
    QVERIFY(prima);
    QCOMPARE(prima->count(), 4);
    QCOMPARE(prima->at(3), QPointF(4, 8));
    QCOMPARE(prima->color(), QColor(0xFF0000));
    auto* y = AsseDi<QValueAxis>(vista.chart(), Qt::AlignLeft);
    QVERIFY(y);
    QCOMPARE(y->min(), 1.0);
    QCOMPARE(y->max(), 8.0);
    auto* x = AsseDi<QValueAxis>(vista.chart(), Qt::AlignBottom);
    QVERIFY(x);
    QCOMPARE(x->tickInterval(), 1.0);
  }

  // Bars take a category each, the shorter series padded; a repeated label is kept apart.
  void BarreConLeEtichette() {
    script::DisegnoGrafico grafico = Grafico(script::TipoGrafico::Barre);
    grafico.etichette_x = {"gen", "feb", "gen"};
    VistaGrafico vista(grafico);
    auto* barre = qobject_cast<QBarSeries*>(vista.chart()->series().front());
    QVERIFY(barre);
    QCOMPARE(barre->count(), 2);
    QCOMPARE(barre->barSets().at(1)->count(), 4);
    auto* x = AsseDi<QBarCategoryAxis>(vista.chart(), Qt::AlignBottom);
    QVERIFY(x);
    QCOMPARE(x->count(), 4);
    QCOMPARE(x->at(3), QString("4"));
    QCOMPARE(AsseDi<QValueAxis>(vista.chart(), Qt::AlignLeft)->min(), 0.0);
  }

  void PuntiConEtichetteSullAsse() {
    script::DisegnoGrafico grafico = Grafico(script::TipoGrafico::Punti);
    grafico.etichette_x = {"a", "b", "c", "d"};
    grafico.impaginazione.legenda = false;
    VistaGrafico vista(grafico);
    auto* punti = qobject_cast<QLineSeries*>(vista.chart()->series().front());
    QVERIFY(punti && punti->pointsVisible());
    QCOMPARE(punti->pen().style(), Qt::NoPen);
    QCOMPARE(punti->pen().color(), QColor(0xFF0000));
    QVERIFY(!vista.chart()->legend()->isVisible());
    auto* x = AsseDi<QCategoryAxis>(vista.chart(), Qt::AlignBottom);
    QVERIFY(x);
    QCOMPARE(x->categoriesLabels(), QStringList({"a", "b", "c", "d"}));
  }
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::VistaGraficoTest)
#include "VistaGraficoTest.moc"
