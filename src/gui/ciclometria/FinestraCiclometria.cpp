#include "FinestraCiclometria.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <fmt/format.h>

#include "archive/Ruote.h"
#include "gui/comuni/QvCerchio.h"
#include "gui/principale/Finestre.h"
#include "stats/Numeri.h"

namespace lottolab::gui {

namespace {

// The diameters among the numbers: the pairs 45 apart on the circle. The other kinds of figure come
// from the figure search of the statistics when it is there.
std::vector<script::FiguraCerchio> Diametri(const std::vector<int>& numeri) {
  std::vector<script::FiguraCerchio> figure;
  for (int numero : numeri) {
    const int opposto = stats::Diametrale(numero);
    if (numero < opposto && std::find(numeri.begin(), numeri.end(), opposto) != numeri.end())
      figure.push_back({{numero, opposto}, {}, {}});
  }
  return figure;
}

}  // namespace

FinestraCiclometria::FinestraCiclometria(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent), m_contesto(contesto) {
  setWindowTitle(QStringLiteral("Ciclometria"));
  auto* layout = new QHBoxLayout(this);
  auto* lato = new QVBoxLayout;
  auto* riga = new QHBoxLayout;
  riga->addWidget(new QLabel(QStringLiteral("Estrazione"), this));
  m_estrazione = new QSpinBox(this);
  const int ultima = m_contesto.Archivio() ? m_contesto.Archivio()->EstrazioniArchivio() : 0;
  m_estrazione->setRange(ultima > 0 ? 1 : 0, ultima);
  m_estrazione->setValue(ultima);
  riga->addWidget(m_estrazione);
  lato->addLayout(riga);
  m_data = new QLabel(this);
  lato->addWidget(m_data);
  m_ruote = new QListWidget(this);
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
    auto* voce = new QListWidgetItem(QString::fromUtf8(NomeRuota(ruota).data(), NomeRuota(ruota).size()), m_ruote);
    voce->setData(Qt::UserRole, ruota);
    voce->setCheckState(ruota == 1 ? Qt::Checked : Qt::Unchecked);
  }
  lato->addWidget(m_ruote, 1);
  lato->addWidget(new QLabel(QStringLiteral("Figure"), this));
  m_figure = new QListWidget(this);
  lato->addWidget(m_figure, 1);
  layout->addLayout(lato);
  m_cerchio = new QvCerchio(this);
  layout->addWidget(m_cerchio, 1);

  connect(m_estrazione, &QSpinBox::valueChanged, this, &FinestraCiclometria::Aggiorna);
  connect(m_ruote, &QListWidget::itemChanged, this, &FinestraCiclometria::Aggiorna);
  connect(m_figure, &QListWidget::currentRowChanged, m_cerchio, &QvCerchio::Evidenzia);
  Aggiorna();
}

void FinestraCiclometria::Aggiorna() {
  script::DisegnoCerchio disegno;
  const auto archivio = m_contesto.Archivio();
  const int id = m_estrazione->value();
  if (archivio && archivio->Contiene(id)) {
    auto data = archivio->DataEstrazione(id);
    m_data->setText(data ? QString::fromStdString(*data) : QString());
    for (int riga = 0; riga < m_ruote->count(); ++riga) {
      const QListWidgetItem* voce = m_ruote->item(riga);
      if (voce->checkState() != Qt::Checked) continue;
      const int ruota = voce->data(Qt::UserRole).toInt();
      for (int posizione = 1; posizione <= kNumeriPerRuota; ++posizione) {
        const int numero = (*archivio)[id].Numero(ruota, posizione);
        if (numero != 0 && std::find(disegno.marcati.begin(), disegno.marcati.end(), numero) == disegno.marcati.end())
          disegno.marcati.push_back(numero);
      }
    }
  } else {
    m_data->setText(QStringLiteral("Archivio vuoto: importa le estrazioni da Archivio > Aggiorna archivio"));
  }
  disegno.figure = Diametri(disegno.marcati);
  const QSignalBlocker blocco(m_figure);
  m_figure->clear();
  for (const script::FiguraCerchio& figura : disegno.figure)
    m_figure->addItem(QString::fromStdString(fmt::format("diametro {} - {}", figura.numeri[0], figura.numeri[1])));
  m_cerchio->ImpostaDisegno(std::move(disegno));
}

QWidget* NuovaFinestraCiclometria(ContestoGui& contesto, QWidget* parent) {
  return new FinestraCiclometria(contesto, parent);
}

}  // namespace lottolab::gui
