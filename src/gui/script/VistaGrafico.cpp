#include "gui/script/VistaGrafico.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QCategoryAxis>
#include <QChart>
#include <QLineSeries>
#include <QLocale>
#include <QSet>
#include <QValueAxis>

#include <algorithm>
#include <cmath>

#include "disegno/CerchioCiclometrico.h"
#include "gui/comuni/IconaApplicazione.h"

namespace lottolab::gui {

namespace {

using script::TipoGrafico;

// A category axis can show this many labels without their overlapping on a window's width.
constexpr qsizetype kEtichetteMostrate = 20;
// The window opens at the chart's size, but not past a common screen.
constexpr int kLarghezzaFinestra = 1600;
constexpr int kAltezzaFinestra = 1000;

QValueAxis* AsseValori(const script::AsseGrafico& asse, const std::string& titolo, bool griglia) {
  auto* valori = new QValueAxis;
  valori->setRange(asse.minimo, asse.massimo);
  valori->setTickType(QValueAxis::TicksDynamic);
  valori->setTickAnchor(0);
  valori->setTickInterval(asse.passo);
  valori->setLabelFormat(QStringLiteral("%.%1f").arg(script::DecimaliAsse(asse.passo)));
  valori->setTitleText(QString::fromStdString(titolo));
  valori->setGridLineVisible(griglia);
  return valori;
}

// Qt's category axes drop a label equal to one they hold: a repeated label gets blanks after it,
// which look the same.
QString Unica(QString etichetta, QSet<QString>& usate) {
  while (usate.contains(etichetta)) etichetta += QLatin1Char(' ');
  usate.insert(etichetta);
  return etichetta;
}

QString EtichettaPosto(const script::DisegnoGrafico& disegno, qsizetype posto) {
  const auto k = static_cast<size_t>(posto - 1);
  return k < disegno.etichette_x.size() ? QString::fromStdString(disegno.etichette_x[k]) : QString::number(posto);
}

void AggiungiBarre(QChart& grafico, const script::DisegnoGrafico& disegno) {
  auto* barre = new QBarSeries;
  qsizetype posti = 0;
  for (size_t k = 0; k < disegno.serie.size(); ++k) {
    const script::SerieGrafico& serie = disegno.serie[k];
    auto* insieme = new QBarSet(QString::fromStdString(serie.nome));
    insieme->setColor(disegno::ColoreQt(script::ColoreSerie(disegno, k)));
    for (double valore : serie.y) insieme->append(valore);
    posti = std::max(posti, static_cast<qsizetype>(insieme->count()));
    barre->append(insieme);
  }
  // A shorter series has no bar at the last places.
  for (QBarSet* insieme : barre->barSets())
    while (insieme->count() < posti) insieme->append(0);
  grafico.addSeries(barre);
  auto* categorie = new QBarCategoryAxis;
  QSet<QString> usate;
  QStringList etichette;
  for (qsizetype posto = 1; posto <= posti; ++posto) etichette << Unica(EtichettaPosto(disegno, posto), usate);
  categorie->append(etichette);
  categorie->setTitleText(QString::fromStdString(disegno.titolo_x));
  categorie->setGridLineVisible(false);
  grafico.addAxis(categorie, Qt::AlignBottom);
  barre->attachAxis(categorie);
}

void AggiungiPunti(QChart& grafico, const script::DisegnoGrafico& disegno) {
  for (size_t k = 0; k < disegno.serie.size(); ++k) {
    const script::SerieGrafico& serie = disegno.serie[k];
    QList<QPointF> punti;
    punti.reserve(static_cast<qsizetype>(serie.y.size()));
    for (size_t i = 0; i < serie.y.size(); ++i)
      punti.append(QPointF(serie.x.empty() ? static_cast<double>(i + 1) : serie.x[i], serie.y[i]));
    const QColor colore = disegno::ColoreQt(script::ColoreSerie(disegno, k));
    auto* xy = new QLineSeries;
    xy->setName(QString::fromStdString(serie.nome));
    xy->setColor(colore);
    QPen penna(colore, 2);
    // Qt's scatter series makes an item of every marker, a third of a millisecond each; a line
    // series with no line paints its points at once, a hundred thousand in under a second.
    if (disegno.tipo == TipoGrafico::Punti) {
      penna.setStyle(Qt::NoPen);
      xy->setMarkerSize(6);
      xy->setPointsVisible(true);
    }
    xy->setPen(penna);
    xy->replace(punti);
    grafico.addSeries(xy);
  }
  const script::AsseGrafico asse_x = script::AsseX(disegno);
  QAbstractAxis* asse = nullptr;
  if (disegno.etichette_x.empty()) {
    asse = AsseValori(asse_x, disegno.titolo_x, disegno.impaginazione.griglia);
  } else {
    auto* categorie = new QCategoryAxis;
    categorie->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    categorie->setRange(asse_x.minimo, asse_x.massimo);
    categorie->setTitleText(QString::fromStdString(disegno.titolo_x));
    categorie->setGridLineVisible(disegno.impaginazione.griglia);
    const auto posti = static_cast<qsizetype>(disegno.etichette_x.size());
    const qsizetype salto = std::max<qsizetype>(1, (posti + kEtichetteMostrate - 1) / kEtichetteMostrate);
    QSet<QString> usate;
    for (qsizetype posto = 1; posto <= posti; posto += salto)
      categorie->append(Unica(EtichettaPosto(disegno, posto), usate), static_cast<double>(posto));
    asse = categorie;
  }
  grafico.addAxis(asse, Qt::AlignBottom);
  for (QAbstractSeries* serie : grafico.series()) serie->attachAxis(asse);
}

}  // namespace

VistaGrafico::VistaGrafico(script::DisegnoGrafico disegno, QWidget* parent)
    : QChartView(parent), m_disegno(std::move(disegno)) {
  auto* grafico = new QChart;
  grafico->setTitle(QString::fromStdString(m_disegno.titolo));
  QFont carattere_titolo = grafico->titleFont();
  carattere_titolo.setBold(true);
  carattere_titolo.setPointSizeF(carattere_titolo.pointSizeF() * 1.3);
  grafico->setTitleFont(carattere_titolo);
  grafico->setBackgroundBrush(disegno::ColoreQt(m_disegno.impaginazione.sfondo));
  grafico->setLocalizeNumbers(true);
  // A decimal comma and no thousands' dot, as the headless picture writes them.
  QLocale italiano(QLocale::Italian, QLocale::Italy);
  italiano.setNumberOptions(QLocale::OmitGroupSeparator);
  grafico->setLocale(italiano);
  grafico->legend()->setVisible(m_disegno.impaginazione.legenda);
  grafico->legend()->setAlignment(Qt::AlignRight);
  if (m_disegno.tipo == TipoGrafico::Barre)
    AggiungiBarre(*grafico, m_disegno);
  else
    AggiungiPunti(*grafico, m_disegno);
  QValueAxis* asse_y = AsseValori(script::AsseY(m_disegno), m_disegno.titolo_y, m_disegno.impaginazione.griglia);
  grafico->addAxis(asse_y, Qt::AlignLeft);
  for (QAbstractSeries* serie : grafico->series()) serie->attachAxis(asse_y);
  setChart(grafico);
  setRenderHint(QPainter::Antialiasing);
  setWindowIcon(IconaApplicazione());
  setWindowTitle(m_disegno.titolo.empty() ? QStringLiteral("Grafico") : QString::fromStdString(m_disegno.titolo));
  resize(std::min(m_disegno.impaginazione.larghezza, kLarghezzaFinestra),
         std::min(m_disegno.impaginazione.altezza, kAltezzaFinestra));
}

}  // namespace lottolab::gui
