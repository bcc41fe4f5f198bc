#include "CerchioCiclometrico.h"

#include <QFontMetricsF>
#include <QVarLengthArray>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace lottolab::disegno {

namespace {

bool NumeroValido(int numero) { return numero >= 1 && numero <= 90; }

QRectF Quadrato(const QRectF& area) {
  const double lato = std::min(area.width(), area.height());
  return QRectF(area.center().x() - lato / 2, area.center().y() - lato / 2, lato, lato);
}

// The sides of a figure (a diameter has one), each `spessore` pixels wide. Antialiased lines wider
// than a pixel go through the stroker, about ten times slower than hairlines, and a draw's circle
// holds hundreds of figures: a wide side is drawn as hairlines side by side, half a pixel apart so
// that their antialiased edges overlap into a solid stroke.
void DisegnaLati(QPainter& pittore, const QPolygonF& vertici, const QColor& colore, double spessore) {
  const int fili = static_cast<int>(std::lround(2 * spessore)) - 1;
  if (fili <= 1) {
    pittore.setPen(QPen(colore, std::max(0.0, spessore)));
    if (vertici.size() == 2)
      pittore.drawLine(vertici[0], vertici[1]);
    else
      pittore.drawPolygon(vertici);
    return;
  }
  pittore.setPen(QPen(colore, 1));
  const qsizetype lati = vertici.size() == 2 ? 1 : vertici.size();
  QVarLengthArray<QLineF, 64> linee;
  for (qsizetype i = 0; i < lati; ++i) {
    const QPointF da = vertici[i];
    const QPointF a = vertici[(i + 1) % vertici.size()];
    const double lunghezza = std::hypot(a.x() - da.x(), a.y() - da.y());
    if (lunghezza == 0) continue;
    const QPointF normale((da.y() - a.y()) / lunghezza, (a.x() - da.x()) / lunghezza);
    for (int filo = 0; filo < fili; ++filo) {
      const QPointF scarto = normale * ((filo - (fili - 1) / 2.0) / 2);
      linee.append(QLineF(da + scarto, a + scarto));
    }
  }
  pittore.drawLines(linee.constData(), static_cast<int>(linee.size()));
}

}  // namespace

QColor ColoreQt(script::Rgb colore) { return QColor::fromRgb(static_cast<QRgb>(0xFF000000u | colore)); }

QPointF PuntoDelNumero(int numero, const QRectF& area, double raggio) {
  const QRectF quadrato = Quadrato(area);
  const double angolo = (numero - 1) * 2 * std::numbers::pi / 90;
  const double r = raggio * quadrato.width() / 2;
  return {quadrato.center().x() + r * std::sin(angolo), quadrato.center().y() - r * std::cos(angolo)};
}

ConteggioCerchio DisegnaCerchio(QPainter& pittore, const QRectF& area, const script::DisegnoCerchio& disegno) {
  const script::ImpostazioniCerchio& imp = disegno.impostazioni;
  const QRectF quadrato = Quadrato(area);
  const double lato = quadrato.width();
  ConteggioCerchio conteggio;
  pittore.save();
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.fillRect(quadrato, ColoreQt(imp.sfondo));

  const double r = kRaggioCerchio * lato / 2;
  pittore.setPen(QPen(ColoreQt(imp.cerchio), std::max(0.0, imp.spessore_cerchio)));
  pittore.setBrush(Qt::NoBrush);
  pittore.drawEllipse(quadrato.center(), r, r);

  // The highlighted figure goes last, over the others.
  for (size_t k = 0; k <= disegno.figure.size(); ++k) {
    const bool ultimo = k == disegno.figure.size();
    if (ultimo && (disegno.evidenziata < 0 || static_cast<size_t>(disegno.evidenziata) >= disegno.figure.size())) break;
    const size_t i = ultimo ? static_cast<size_t>(disegno.evidenziata) : k;
    if (!ultimo && static_cast<int>(i) == disegno.evidenziata) continue;
    const script::FiguraCerchio& figura = disegno.figure[i];
    QPolygonF vertici;
    for (int numero : figura.numeri)
      if (NumeroValido(numero)) vertici << PuntoDelNumero(numero, quadrato);
    if (vertici.size() < 2) continue;
    if (!(imp.flag & (1u << static_cast<unsigned>(script::TipoDiFigura(static_cast<size_t>(vertici.size()))))))
      continue;
    DisegnaLati(pittore, vertici, ColoreQt(ultimo ? imp.evidenziata : figura.colore.value_or(imp.figure)),
                ultimo ? imp.spessore_evidenziata : figura.spessore.value_or(imp.spessore_figure));
    ++conteggio.poligoni;
  }

  const double raggio_segno = lato / 90;
  if (imp.flag & script::kFlagMarcati) {
    pittore.setPen(QPen(ColoreQt(imp.marcati), std::max(1.0, lato / 300)));
    pittore.setBrush(ColoreQt(imp.marcati));
    for (int numero : disegno.marcati) {
      if (!NumeroValido(numero)) continue;
      pittore.drawEllipse(PuntoDelNumero(numero, quadrato), raggio_segno, raggio_segno);
      ++conteggio.marcati;
    }
  }

  if (imp.flag & script::kFlagNumeri) {
    QFont carattere = pittore.font();
    carattere.setPixelSize(std::max(6, static_cast<int>(lato / 50)));
    pittore.setFont(carattere);
    pittore.setPen(ColoreQt(imp.numeri));
    // Centred by the font's metrics: laying out each label in a rectangle costs several times more.
    const QFontMetricsF metriche(carattere);
    const double mezza_altezza = (metriche.ascent() - metriche.descent()) / 2;
    for (int numero = 1; numero <= 90; ++numero) {
      const QPointF centro = PuntoDelNumero(numero, quadrato, 0.93);
      const QString etichetta = QString::number(numero);
      pittore.drawText(QPointF(centro.x() - metriche.horizontalAdvance(etichetta) / 2, centro.y() + mezza_altezza),
                       etichetta);
      ++conteggio.numeri;
    }
  }
  pittore.restore();
  return conteggio;
}

}  // namespace lottolab::disegno
