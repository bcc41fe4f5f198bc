#include "gui/comuni/IconaApplicazione.h"

#include <QFont>
#include <QPainter>
#include <QPixmap>
#include <QRadialGradient>

namespace lottolab::gui {

namespace {

QPixmap Pallina(int lato) {
  QPixmap immagine(lato, lato);
  immagine.fill(Qt::transparent);
  QPainter pittore(&immagine);
  pittore.setRenderHint(QPainter::Antialiasing);
  const QRectF cerchio(lato * 0.04, lato * 0.04, lato * 0.92, lato * 0.92);
  QRadialGradient luce(cerchio.center() - QPointF(lato * 0.18, lato * 0.18), lato * 0.6);
  luce.setColorAt(0, QColor(235, 70, 60));
  luce.setColorAt(1, QColor(150, 20, 20));
  pittore.setPen(QPen(QColor(110, 10, 10), std::max(1.0, lato / 32.0)));
  pittore.setBrush(luce);
  pittore.drawEllipse(cerchio);
  // A white disc for the number, as on the balls of a real draw.
  const QRectF disco(lato * 0.2, lato * 0.2, lato * 0.6, lato * 0.6);
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(Qt::white);
  pittore.drawEllipse(disco);
  QFont carattere(QStringLiteral("Sans"));
  carattere.setBold(true);
  carattere.setPixelSize(std::max(6, static_cast<int>(lato * 0.34)));
  pittore.setFont(carattere);
  pittore.setPen(QColor(150, 20, 20));
  pittore.drawText(disco, Qt::AlignCenter, QStringLiteral("90"));
  return immagine;
}

}  // namespace

QIcon IconaApplicazione() {
  QIcon icona;
  for (int lato : {16, 24, 32, 48, 64, 128}) icona.addPixmap(Pallina(lato));
  return icona;
}

}  // namespace lottolab::gui
