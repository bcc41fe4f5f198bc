#include "gui/tabellone/TabelloneLegenda.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>

#include "gui/comuni/ScalaRitardo.h"

namespace lottolab::gui {

namespace {

QPixmap StrisciaScala(int larghezza, int altezza) {
  QPixmap striscia(larghezza, altezza);
  QPainter pittore(&striscia);
  for (int x = 0; x < larghezza; ++x) {
    pittore.setPen(SfondoRitardo(static_cast<double>(x) / (larghezza - 1)));
    pittore.drawLine(x, 0, x, altezza - 1);
  }
  pittore.setPen(Qt::gray);
  pittore.drawRect(0, 0, larghezza - 1, altezza - 1);
  return striscia;
}

}  // namespace

QWidget* NuovaLegendaRitardo(QWidget* parent) {
  auto* legenda = new QWidget(parent);
  legenda->setToolTip(DescrizioneScalaRitardo());
  auto* riga = new QHBoxLayout(legenda);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel("Ritardo rispetto allo storico:  0%"));
  auto* striscia = new QLabel;
  striscia->setPixmap(StrisciaScala(160, 14));
  riga->addWidget(striscia);
  riga->addWidget(new QLabel("100%"));
  riga->addStretch();
  auto* suggerimento = new QLabel("Doppio clic: grafico del ritardo");
  suggerimento->setObjectName(kSuggerimentoGrafico);
  riga->addWidget(suggerimento);
  return legenda;
}

}  // namespace lottolab::gui
