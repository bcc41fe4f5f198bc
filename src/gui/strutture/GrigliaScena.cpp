#include "gui/strutture/GrigliaScena.h"

#include <QGraphicsLineItem>
#include <QGraphicsSceneMouseEvent>
#include <QPainter>

#include <algorithm>

#include "gui/strutture/QvVertice.h"

namespace lottolab::gui {

namespace {

constexpr qreal kLarghezzaCella = 25;
constexpr qreal kAltezzaCella = 22 + kFasciaEtichetta;
constexpr qreal kLarghezzaEtichetta = 118;
constexpr qreal kAltezzaIntestazione = 24;

const QColor kSfondoRuota[2] = {QColor(255, 255, 255), QColor(236, 242, 250)};
const QColor kSfondoIntestazione(60, 80, 120);
const QColor kColoreGriglia(200, 205, 215);
const QColor kColoreLinea(200, 40, 40, 170);  // the numbers under a line stay readable

}  // namespace

GrigliaScena::GrigliaScena(QObject* parent) : QGraphicsScene(parent) {}

QRectF GrigliaScena::Cella(int riga, int colonna) const {
  return QRectF(kLarghezzaEtichetta + (colonna - 1) * kLarghezzaCella,
                kAltezzaIntestazione + (riga - m_griglia.prima_riga) * kAltezzaCella, kLarghezzaCella, kAltezzaCella);
}

QRectF GrigliaScena::Numero(int riga, int colonna) const {
  return Cella(riga, colonna).adjusted(0, kFasciaEtichetta, 0, 0);
}

std::optional<std::pair<int, int>> GrigliaScena::CellaIn(QPointF punto) const {
  const qreal x = punto.x() - kLarghezzaEtichetta;
  const qreal y = punto.y() - kAltezzaIntestazione;
  if (x < 0 || y < 0) return std::nullopt;
  const int colonna = static_cast<int>(x / kLarghezzaCella) + 1;
  const int riga = static_cast<int>(y / kAltezzaCella) + m_griglia.prima_riga;
  if (colonna > figures::kColonneTabella || !m_griglia.ContieneRiga(riga)) return std::nullopt;
  return std::pair{riga, colonna};
}

void GrigliaScena::Mostra(const TabellaEstrazioni& tab, const StruttureModello& modello) {
  const std::vector<int16_t> selezionati = VerticiSelezionati();
  clear();
  m_griglia = modello.Griglia();
  m_righe.assign(static_cast<size_t>(m_griglia.righe), {});
  for (int riga = m_griglia.prima_riga; riga <= m_griglia.UltimaRiga(); ++riga) {
    const int id = m_griglia.EstrazioneDellaRiga(riga);
    if (!tab.Contiene(id)) continue;
    RigaMostrata& mostrata = m_righe[static_cast<size_t>(riga - m_griglia.prima_riga)];
    mostrata.etichetta = QString("%1  %2").arg(id).arg(QString::fromStdString(tab.DataEstrazione(id).ValoreOppure("")));
    mostrata.numeri = tab[id].numeri;
  }
  setSceneRect(0, 0, kLarghezzaEtichetta + figures::kColonneTabella * kLarghezzaCella + 12,
               kAltezzaIntestazione + m_griglia.righe * kAltezzaCella + 4);

  for (const figures::ClsLinea& linea : modello.Linee()) {
    const figures::ClsVertice* inizio = modello.Vertice(linea.Inizio);
    const figures::ClsVertice* fine = modello.Vertice(linea.Fine);
    if (!inizio || !fine) continue;
    auto* tratto =
        addLine(QLineF(Numero(inizio->Riga, inizio->Colonna).center(), Numero(fine->Riga, fine->Colonna).center()),
                QPen(kColoreLinea, 2.5, Qt::SolidLine, Qt::RoundCap));
    tratto->setZValue(1);
  }
  m_ordine.clear();
  for (const figures::ClsVertice& vertice : modello.Vertici()) {
    int numero = 0;
    if (m_griglia.ContieneRiga(vertice.Riga) && vertice.Colonna >= 1 && vertice.Colonna <= figures::kColonneTabella)
      numero = m_righe[static_cast<size_t>(vertice.Riga - m_griglia.prima_riga)]
                   .numeri[static_cast<size_t>(vertice.Colonna - 1)];
    auto* disegnato = new QvVertice(vertice, numero, Cella(vertice.Riga, vertice.Colonna));
    addItem(disegnato);
    disegnato->setSelected(std::find(selezionati.begin(), selezionati.end(), vertice.Index) != selezionati.end());
    m_ordine.push_back(vertice.Index);
  }
}

std::vector<int16_t> GrigliaScena::VerticiSelezionati() const {
  std::vector<int16_t> selezionati;
  for (int16_t index : m_ordine)
    for (QGraphicsItem* elemento : selectedItems())
      if (auto* vertice = dynamic_cast<QvVertice*>(elemento); vertice && vertice->Index() == index)
        selezionati.push_back(index);
  return selezionati;
}

void GrigliaScena::Seleziona(int16_t index) {
  clearSelection();
  for (QGraphicsItem* elemento : items())
    if (auto* vertice = dynamic_cast<QvVertice*>(elemento); vertice && vertice->Index() == index)
      vertice->setSelected(true);
}

void GrigliaScena::mousePressEvent(QGraphicsSceneMouseEvent* evento) {
  const bool su_vertice = dynamic_cast<QvVertice*>(itemAt(evento->scenePos(), QTransform())) != nullptr;
  QGraphicsScene::mousePressEvent(evento);
  if (su_vertice || evento->button() != Qt::LeftButton) return;
  if (auto cella = CellaIn(evento->scenePos())) emit CellaCliccata(cella->first, cella->second);
}

void GrigliaScena::drawBackground(QPainter* painter, const QRectF&) {
  painter->fillRect(sceneRect(), Qt::white);
  QFont font = painter->font();
  font.setPointSizeF(8);
  painter->setFont(font);

  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
    const QRectF prima = Cella(m_griglia.prima_riga, figures::ColonnaDi(ruota, 1));
    const QRectF colonne(prima.left(), kAltezzaIntestazione, kNumeriPerRuota * kLarghezzaCella,
                         m_griglia.righe * kAltezzaCella);
    painter->fillRect(colonne, kSfondoRuota[ruota % 2]);
    const QRectF intestazione(prima.left(), 0, colonne.width(), kAltezzaIntestazione);
    painter->fillRect(intestazione.adjusted(1, 1, -1, -1), kSfondoIntestazione);
    painter->setPen(Qt::white);
    font.setBold(true);
    painter->setFont(font);
    painter->drawText(intestazione, Qt::AlignCenter, QString::fromUtf8(SiglaRuota(ruota).data(), 2));
  }
  font.setBold(false);
  painter->setFont(font);

  for (int riga = m_griglia.prima_riga; riga <= m_griglia.UltimaRiga(); ++riga) {
    const RigaMostrata& mostrata = m_righe[static_cast<size_t>(riga - m_griglia.prima_riga)];
    const QRectF prima = Cella(riga, 1);
    painter->setPen(Qt::darkGray);
    painter->drawText(
        QRectF(4, prima.top() + kFasciaEtichetta, kLarghezzaEtichetta - 8, kAltezzaCella - kFasciaEtichetta),
        Qt::AlignVCenter | Qt::AlignRight, mostrata.etichetta);
    painter->setPen(Qt::black);
    for (int colonna = 1; colonna <= figures::kColonneTabella; ++colonna) {
      const int numero = mostrata.numeri[static_cast<size_t>(colonna - 1)];
      if (numero != 0)
        painter->drawText(Numero(riga, colonna), Qt::AlignCenter, QString("%1").arg(numero, 2, 10, QChar('0')));
    }
  }

  painter->setPen(QPen(kColoreGriglia, 0));
  const qreal destra = kLarghezzaEtichetta + figures::kColonneTabella * kLarghezzaCella;
  const qreal basso = kAltezzaIntestazione + m_griglia.righe * kAltezzaCella;
  for (int k = 0; k <= m_griglia.righe; ++k) {
    const qreal y = kAltezzaIntestazione + k * kAltezzaCella;
    painter->drawLine(QPointF(0, y), QPointF(destra, y));
  }
  for (int colonna = 0; colonna <= figures::kColonneTabella; ++colonna) {
    const qreal x = kLarghezzaEtichetta + colonna * kLarghezzaCella;
    painter->setPen(QPen(colonna % kNumeriPerRuota == 0 ? kSfondoIntestazione : kColoreGriglia,
                         colonna % kNumeriPerRuota == 0 ? 1.5 : 0));
    painter->drawLine(QPointF(x, kAltezzaIntestazione), QPointF(x, basso));
  }
}

}  // namespace lottolab::gui
