#include "gui/tabellone/GraficoRitardi.h"

#include <QChart>
#include <QList>
#include <QPointF>
#include <QValueAxis>

#include <algorithm>
#include <array>
#include <cassert>
#include <vector>

#include "stats/Ritardi.h"

namespace lottolab::gui {

namespace {

// A step of 1, 2 or 5 times a power of ten that cuts `ampiezza` into at most about eight parts, so
// that the labels are whole round numbers whatever the length of the archive.
int PassoTacche(int ampiezza) {
  int potenza = 1;
  while (true) {
    for (int fattore : {1, 2, 5})
      if (ampiezza <= 8 * fattore * potenza) return fattore * potenza;
    potenza *= 10;
  }
}

QValueAxis* NuovoAsse(const QString& titolo, int minimo, int massimo) {
  auto* asse = new QValueAxis;
  asse->setTitleText(titolo);
  asse->setLabelFormat("%d");
  asse->setRange(minimo, massimo);
  asse->setTickType(QValueAxis::TicksDynamic);
  asse->setTickAnchor(0);
  asse->setTickInterval(PassoTacche(massimo - minimo));
  return asse;
}

QString DidascaliaEstrazioni(const TabellaEstrazioni& tab, int fine) {
  auto data = tab.DataEstrazione(fine);
  return data ? QString("Estrazione (fino alla %1 del %2)").arg(fine).arg(QString::fromStdString(*data))
              : QString("Estrazione (fino alla %1)").arg(fine);
}

QString TitoloGraficoRitardi(int ruota, int numero) {
  return QString("Ritardo del %1 su %2").arg(numero).arg(QString::fromUtf8(NomeRuota(ruota)));
}

}  // namespace

GraficoRitardi::GraficoRitardi(const TabellaEstrazioni& tab, int ruota, int numero, int fine, int inizio,
                               QWidget* parent)
    : QChartView(parent), m_serie(new QLineSeries) {
  assert(tab.Contiene(inizio) && tab.Contiene(fine) && inizio <= fine);
  const std::array ruote{ruota};
  const std::array numeri{numero};
  const std::vector<int> ritardi = stats::SerieRitardo(tab, ruote, numeri, inizio, fine);

  QList<QPointF> punti;
  punti.reserve(static_cast<qsizetype>(ritardi.size()));
  for (size_t i = 0; i < ritardi.size(); ++i)
    punti.append(QPointF(static_cast<double>(inizio + static_cast<int>(i)), ritardi[i]));
  m_serie->replace(punti);

  auto* grafico = new QChart;
  grafico->setTitle(TitoloGraficoRitardi(ruota, numero));
  QFont carattere_titolo = grafico->titleFont();
  carattere_titolo.setBold(true);
  carattere_titolo.setPointSizeF(carattere_titolo.pointSizeF() * 1.3);
  grafico->setTitleFont(carattere_titolo);
  grafico->legend()->hide();
  grafico->addSeries(m_serie);
  const int massimo = ritardi.empty() ? 0 : *std::max_element(ritardi.begin(), ritardi.end());
  QValueAxis* asse_estrazioni = NuovoAsse(DidascaliaEstrazioni(tab, fine), inizio, std::max(fine, inizio + 1));
  // The delay axis ends on the first round label above the highest peak, which so stays clear of the frame.
  const int passo = PassoTacche(std::max(massimo, 1));
  QValueAxis* asse_ritardo = NuovoAsse("Ritardo", 0, (massimo / passo + 1) * passo);
  grafico->addAxis(asse_estrazioni, Qt::AlignBottom);
  grafico->addAxis(asse_ritardo, Qt::AlignLeft);
  m_serie->attachAxis(asse_estrazioni);
  m_serie->attachAxis(asse_ritardo);

  setChart(grafico);
  setRenderHint(QPainter::Antialiasing);
  setWindowTitle(grafico->title());
  setMinimumSize(560, 360);
}

}  // namespace lottolab::gui
