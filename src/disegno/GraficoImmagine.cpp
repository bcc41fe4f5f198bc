#include "GraficoImmagine.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QList>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "CerchioCiclometrico.h"

namespace lottolab::disegno {

namespace {

using script::DisegnoGrafico;
using script::TipoGrafico;

constexpr double kMargine = 10;
constexpr double kTacca = 4;
constexpr double kQuadratino = 12;  // the colour of a series in the legend
constexpr double kSpessoreLinea = 2;
// Up to this width a bevelled corner looks as round as a round one, at a fraction of its cost.
constexpr double kSpessoreAngoliSmussati = 3;
// Qt strokes a line of many points as one outline, at about 0.1 ms a point when its parts cross
// each other, as a chart's saw-tooth does; in pieces of this many segments it costs a tenth.
constexpr qsizetype kPuntiPerTratto = 16;
constexpr double kRaggioPunto = 3;
// The bars of one place fill this fraction of it, side by side.
constexpr double kLarghezzaGruppo = 0.8;
constexpr QRgb kColoreAssi = 0x404040;
constexpr QRgb kColoreGriglia = 0xDDDDDD;

QFont Carattere(int pixel, bool grassetto = false) {
  QFont carattere;
  carattere.setPixelSize(pixel);
  carattere.setBold(grassetto);
  return carattere;
}

QFont CarattereTitolo() { return Carattere(16, true); }
QFont CarattereTitoliAssi() { return Carattere(12, true); }
QFont CarattereEtichette() { return Carattere(11); }

QString Testo(const std::string& testo) { return QString::fromStdString(testo); }

std::vector<QString> EtichetteY(const script::AsseGrafico& asse, std::vector<double>& tacche) {
  tacche = script::TaccheAsse(asse);
  const int decimali = script::DecimaliAsse(asse.passo);
  std::vector<QString> etichette;
  etichette.reserve(tacche.size());
  for (double tacca : tacche) etichette.push_back(Testo(script::EtichettaNumero(tacca, decimali)));
  return etichette;
}

struct EtichettaX {
  double x;
  QString testo;
};

// The labels under the X axis: every place of a bar chart or of the labels given, thinned so that
// they do not overlap, else the ticks of the axis.
std::vector<EtichettaX> EtichetteX(const DisegnoGrafico& grafico, const PianoGrafico& piano) {
  std::vector<EtichettaX> etichette;
  const script::AsseGrafico& asse = piano.X();
  const bool per_posto = grafico.tipo == TipoGrafico::Barre || !grafico.etichette_x.empty();
  if (!per_posto) {
    const int decimali = script::DecimaliAsse(asse.passo);
    for (double tacca : script::TaccheAsse(asse))
      etichette.push_back({tacca, Testo(script::EtichettaNumero(tacca, decimali))});
    return etichette;
  }
  const auto posti =
      static_cast<int>(grafico.tipo == TipoGrafico::Barre ? std::floor(asse.massimo) : grafico.etichette_x.size());
  size_t caratteri = std::to_string(posti).size();
  for (const std::string& etichetta : grafico.etichette_x) caratteri = std::max(caratteri, etichetta.size());
  const double larghezza = QFontMetricsF(CarattereEtichette()).averageCharWidth() * static_cast<double>(caratteri);
  const double pixel_per_posto = piano.Dati().width() / std::max(asse.massimo - asse.minimo, 1e-9);
  const int salto = std::max(1, static_cast<int>(std::ceil((larghezza + 8) / std::max(pixel_per_posto, 1e-9))));
  for (int posto = 1; posto <= posti; posto += salto) {
    if (posto < asse.minimo || posto > asse.massimo) continue;
    const auto k = static_cast<size_t>(posto - 1);
    const QString testo = k < grafico.etichette_x.size() ? Testo(grafico.etichette_x[k]) : QString::number(posto);
    etichette.push_back({static_cast<double>(posto), testo});
  }
  return etichette;
}

void DisegnaSerie(QPainter& pittore, const PianoGrafico& piano, const DisegnoGrafico& grafico,
                  ConteggioGrafico& conteggio) {
  const size_t quante = grafico.serie.size();
  const double larghezza_barra = kLarghezzaGruppo / static_cast<double>(std::max<size_t>(quante, 1));
  const double base = std::clamp(0.0, piano.Y().minimo, piano.Y().massimo);
  for (size_t k = 0; k < quante; ++k) {
    const script::SerieGrafico& serie = grafico.serie[k];
    const QColor colore = ColoreQt(script::ColoreSerie(grafico, k));
    auto x_di = [&serie](size_t i) { return serie.x.empty() ? static_cast<double>(i + 1) : serie.x[i]; };
    switch (grafico.tipo) {
      case TipoGrafico::Linee: {
        QPolygonF linea;
        linea.reserve(static_cast<qsizetype>(serie.y.size()));
        for (size_t i = 0; i < serie.y.size(); ++i) linea << piano.Punto(x_di(i), serie.y[i]);
        DisegnaSpezzata(pittore, linea, QPen(colore, kSpessoreLinea));
        conteggio.punti += static_cast<int>(linea.size());
        break;
      }
      case TipoGrafico::Punti:
        pittore.setPen(Qt::NoPen);
        pittore.setBrush(colore);
        for (size_t i = 0; i < serie.y.size(); ++i)
          pittore.drawEllipse(piano.Punto(x_di(i), serie.y[i]), kRaggioPunto, kRaggioPunto);
        conteggio.punti += static_cast<int>(serie.y.size());
        break;
      case TipoGrafico::Barre:
        pittore.setPen(Qt::NoPen);
        pittore.setBrush(colore);
        for (size_t i = 0; i < serie.y.size(); ++i) {
          const double sinistra =
              static_cast<double>(i + 1) - kLarghezzaGruppo / 2 + larghezza_barra * static_cast<double>(k);
          pittore.drawRect(
              QRectF(piano.Punto(sinistra, serie.y[i]), piano.Punto(sinistra + larghezza_barra, base)).normalized());
        }
        conteggio.barre += static_cast<int>(serie.y.size());
        break;
    }
    ++conteggio.serie;
  }
}

void DisegnaLegenda(QPainter& pittore, const PianoGrafico& piano, const DisegnoGrafico& grafico,
                    ConteggioGrafico& conteggio) {
  if (piano.Legenda().isEmpty()) return;
  const QFont carattere = CarattereEtichette();
  const QFontMetricsF metriche(carattere);
  pittore.setFont(carattere);
  const double riga = std::max(metriche.height(), kQuadratino) + 4;
  double y = piano.Legenda().top();
  for (size_t k = 0; k < grafico.serie.size() && y + riga <= piano.Legenda().bottom(); ++k, y += riga) {
    pittore.setPen(Qt::NoPen);
    pittore.setBrush(ColoreQt(script::ColoreSerie(grafico, k)));
    pittore.drawRect(QRectF(piano.Legenda().left(), y + (riga - kQuadratino) / 2, kQuadratino, kQuadratino));
    const QRectF testo(piano.Legenda().left() + kQuadratino + 6, y, piano.Legenda().width() - kQuadratino - 6, riga);
    pittore.setPen(QColor(kColoreAssi));
    pittore.drawText(testo, Qt::AlignLeft | Qt::AlignVCenter,
                     metriche.elidedText(Testo(grafico.serie[k].nome), Qt::ElideRight, testo.width()));
    ++conteggio.voci_legenda;
  }
}

// A line that goes left to right keeps, of the points falling in one column of pixels, the first,
// the highest, the lowest and the last: the same pixels are painted, and a series of many more
// points than the picture's width costs no more than one point a column. A line that turns back
// is kept whole.
QPolygonF RidottaPerColonna(const QPolygonF& punti) {
  for (qsizetype i = 1; i < punti.size(); ++i)
    if (punti[i].x() < punti[i - 1].x()) return punti;
  QPolygonF ridotta;
  qsizetype inizio = 0;
  while (inizio < punti.size()) {
    const double colonna = std::floor(punti[inizio].x());
    qsizetype fine = inizio;
    qsizetype alto = inizio;
    qsizetype basso = inizio;
    while (fine + 1 < punti.size() && std::floor(punti[fine + 1].x()) == colonna) {
      ++fine;
      if (punti[fine].y() < punti[alto].y()) alto = fine;
      if (punti[fine].y() > punti[basso].y()) basso = fine;
    }
    // In the order they come, so that the line between them is the one drawn in full.
    qsizetype scelti[] = {inizio, std::min(alto, basso), std::max(alto, basso), fine};
    for (size_t k = 0; k < std::size(scelti); ++k)
      if (k == 0 || scelti[k] != scelti[k - 1]) ridotta << punti[scelti[k]];
    inizio = fine + 1;
  }
  return ridotta;
}

}  // namespace

void DisegnaSpezzata(QPainter& pittore, const QPolygonF& punti, QPen penna) {
  penna.setCapStyle(Qt::RoundCap);
  penna.setJoinStyle(penna.widthF() <= kSpessoreAngoliSmussati ? Qt::BevelJoin : Qt::RoundJoin);
  pittore.setPen(penna);
  if (punti.size() == 1) {
    pittore.drawPoint(punti.front());
    return;
  }
  const QPolygonF linea = RidottaPerColonna(punti);
  // Each piece shares its last point with the next one.
  for (qsizetype inizio = 0; inizio + 1 < linea.size(); inizio += kPuntiPerTratto)
    pittore.drawPolyline(linea.data() + inizio,
                         static_cast<int>(std::min<qsizetype>(kPuntiPerTratto + 1, linea.size() - inizio)));
}

PianoGrafico::PianoGrafico(const DisegnoGrafico& grafico, const QRectF& area)
    : m_x(script::AsseX(grafico)), m_y(script::AsseY(grafico)) {
  const QFontMetricsF titolo(CarattereTitolo());
  const QFontMetricsF titoli_assi(CarattereTitoliAssi());
  const QFontMetricsF etichette(CarattereEtichette());
  double sopra = area.top() + kMargine;
  if (!grafico.titolo.empty()) sopra += titolo.height() + 6;
  // The last label of the X axis is centred on the right edge of the data: room for its half.
  double destra = area.right() - 2 * kMargine;
  if (grafico.impaginazione.legenda && !grafico.serie.empty()) {
    double nomi = 0;
    for (const script::SerieGrafico& serie : grafico.serie)
      nomi = std::max(nomi, etichette.horizontalAdvance(Testo(serie.nome)));
    const double larghezza = std::min(area.width() / 4, nomi + kQuadratino + 6);
    m_legenda = QRectF(destra - larghezza, sopra, larghezza, area.bottom() - kMargine - sopra);
    destra -= larghezza + kMargine;
  }
  std::vector<double> tacche;
  double etichette_y = 0;
  for (const QString& testo : EtichetteY(m_y, tacche))
    etichette_y = std::max(etichette_y, etichette.horizontalAdvance(testo));
  double sinistra = area.left() + kMargine + etichette_y + kTacca + 4;
  if (!grafico.titolo_y.empty()) sinistra += titoli_assi.height() + 4;
  double sotto = area.bottom() - kMargine - etichette.height() - kTacca - 2;
  if (!grafico.titolo_x.empty()) sotto -= titoli_assi.height() + 4;
  // A picture too small for its labels still gets a data rectangle, however narrow.
  m_dati = QRectF(QPointF(sinistra, sopra), QPointF(std::max(destra, sinistra + 10), std::max(sotto, sopra + 10)));
}

QPointF PianoGrafico::Punto(double x, double y) const {
  const double fx = (x - m_x.minimo) / (m_x.massimo - m_x.minimo);
  const double fy = (y - m_y.minimo) / (m_y.massimo - m_y.minimo);
  return {m_dati.left() + fx * m_dati.width(), m_dati.bottom() - fy * m_dati.height()};
}

ConteggioGrafico DisegnaGrafico(QPainter& pittore, const QRectF& area, const DisegnoGrafico& grafico) {
  ConteggioGrafico conteggio;
  const PianoGrafico piano(grafico, area);
  const QRectF& dati = piano.Dati();
  pittore.save();
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setRenderHint(QPainter::TextAntialiasing);
  pittore.fillRect(area, ColoreQt(grafico.impaginazione.sfondo));

  if (!grafico.titolo.empty()) {
    pittore.setFont(CarattereTitolo());
    pittore.setPen(QColor(kColoreAssi));
    pittore.drawText(QRectF(area.left(), area.top() + kMargine, area.width(), dati.top() - area.top() - kMargine),
                     Qt::AlignHCenter | Qt::AlignTop, Testo(grafico.titolo));
  }

  std::vector<double> tacche_y;
  const std::vector<QString> etichette_y = EtichetteY(piano.Y(), tacche_y);
  const std::vector<EtichettaX> etichette_x = EtichetteX(grafico, piano);
  if (grafico.impaginazione.griglia) {
    pittore.setPen(QPen(QColor(kColoreGriglia), 1));
    for (double tacca : tacche_y) {
      const double y = piano.Punto(0, tacca).y();
      pittore.drawLine(QPointF(dati.left(), y), QPointF(dati.right(), y));
    }
    if (grafico.tipo != TipoGrafico::Barre)
      for (const EtichettaX& etichetta : etichette_x) {
        const double x = piano.Punto(etichetta.x, 0).x();
        pittore.drawLine(QPointF(x, dati.top()), QPointF(x, dati.bottom()));
      }
  }

  pittore.save();
  pittore.setClipRect(dati.adjusted(-kRaggioPunto, -kRaggioPunto, kRaggioPunto, kRaggioPunto));
  DisegnaSerie(pittore, piano, grafico, conteggio);
  pittore.restore();

  pittore.setPen(QPen(QColor(kColoreAssi), 1));
  pittore.drawLine(dati.bottomLeft(), dati.topLeft());
  pittore.drawLine(dati.bottomLeft(), dati.bottomRight());
  const QFont carattere = CarattereEtichette();
  const QFontMetricsF metriche(carattere);
  pittore.setFont(carattere);
  for (size_t i = 0; i < tacche_y.size(); ++i) {
    const double y = piano.Punto(0, tacche_y[i]).y();
    pittore.drawLine(QPointF(dati.left() - kTacca, y), QPointF(dati.left(), y));
    pittore.drawText(
        QRectF(area.left(), y - metriche.height() / 2, dati.left() - kTacca - 2 - area.left(), metriche.height()),
        Qt::AlignRight | Qt::AlignVCenter, etichette_y[i]);
    ++conteggio.tacche_y;
  }
  for (const EtichettaX& etichetta : etichette_x) {
    const double x = piano.Punto(etichetta.x, 0).x();
    pittore.drawLine(QPointF(x, dati.bottom()), QPointF(x, dati.bottom() + kTacca));
    const double larghezza = metriche.horizontalAdvance(etichetta.testo);
    pittore.drawText(QRectF(x - larghezza / 2 - 1, dati.bottom() + kTacca + 2, larghezza + 2, metriche.height()),
                     Qt::AlignCenter, etichetta.testo);
    ++conteggio.etichette_x;
  }

  pittore.setFont(CarattereTitoliAssi());
  const double alto_titoli = QFontMetricsF(CarattereTitoliAssi()).height();
  if (!grafico.titolo_x.empty())
    pittore.drawText(QRectF(dati.left(), area.bottom() - kMargine - alto_titoli, dati.width(), alto_titoli),
                     Qt::AlignCenter, Testo(grafico.titolo_x));
  if (!grafico.titolo_y.empty()) {
    pittore.save();
    pittore.translate(area.left() + kMargine, dati.bottom());
    pittore.rotate(-90);
    pittore.drawText(QRectF(0, 0, dati.height(), alto_titoli), Qt::AlignCenter, Testo(grafico.titolo_y));
    pittore.restore();
  }

  DisegnaLegenda(pittore, piano, grafico, conteggio);
  pittore.restore();
  return conteggio;
}

QImage ImmagineGrafico(const DisegnoGrafico& grafico, ConteggioGrafico* conteggio) {
  const int larghezza = std::clamp(grafico.impaginazione.larghezza, 1, script::kLatoGraficoMassimo);
  const int altezza = std::clamp(grafico.impaginazione.altezza, 1, script::kLatoGraficoMassimo);
  QImage immagine(larghezza, altezza, QImage::Format_RGB32);
  immagine.fill(ColoreQt(grafico.impaginazione.sfondo));
  QPainter pittore(&immagine);
  const ConteggioGrafico fatto = DisegnaGrafico(pittore, QRectF(0, 0, larghezza, altezza), grafico);
  if (conteggio) *conteggio = fatto;
  return immagine;
}

}  // namespace lottolab::disegno
