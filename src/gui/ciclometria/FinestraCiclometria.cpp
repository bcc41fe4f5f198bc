#include "FinestraCiclometria.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QSpinBox>
#include <QVBoxLayout>

#include "archive/Ruote.h"
#include "gui/comuni/QvCerchio.h"
#include "gui/principale/Finestre.h"
#include "stats/Ciclometria.h"

namespace lottolab::gui {

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
  connect(m_figure, &QListWidget::currentRowChanged, this, &FinestraCiclometria::MostraFigura);
  Aggiorna();
}

void FinestraCiclometria::Aggiorna() {
  std::vector<stats::FiguraCiclometrica> figure;
  m_marcati.clear();
  const auto archivio = m_contesto.Archivio();
  const int id = m_estrazione->value();
  if (archivio && archivio->Contiene(id)) {
    auto data = archivio->DataEstrazione(id);
    m_data->setText(data ? QString::fromStdString(*data) : QString());
    std::vector<int> ruote;
    for (int riga = 0; riga < m_ruote->count(); ++riga)
      if (m_ruote->item(riga)->checkState() == Qt::Checked)
        ruote.push_back(m_ruote->item(riga)->data(Qt::UserRole).toInt());
    const stats::InsiemeCiclometrico insieme = stats::InsiemeDaEstrazione((*archivio)[id], ruote);
    m_marcati.assign(insieme.Numeri().begin(), insieme.Numeri().end());
    figure = stats::TrovaFigure(insieme, stats::kFigureDiUnInsieme);
  } else {
    m_data->setText(QStringLiteral("Archivio vuoto: importa le estrazioni da Archivio > Aggiorna archivio"));
  }
  const QSignalBlocker blocco(m_figure);
  m_figure->clear();
  m_trovate.clear();
  for (const stats::FiguraCiclometrica& figura : figure) {
    m_trovate.emplace_back(figura.Vertici().begin(), figura.Vertici().end());
    auto* voce = new QListWidgetItem(QString::fromStdString(stats::DescrizioneFigura(figura)), m_figure);
    voce->setToolTip(voce->text());
  }
  MostraFigura(-1);
}

void FinestraCiclometria::MostraFigura(int riga) {
  script::DisegnoCerchio disegno;
  disegno.marcati = m_marcati;
  if (riga >= 0 && static_cast<size_t>(riga) < m_trovate.size()) {
    disegno.figure.push_back({m_trovate[static_cast<size_t>(riga)], {}, {}, {}});
    disegno.evidenziata = 0;
  }
  m_cerchio->ImpostaDisegno(std::move(disegno));
}

QWidget* NuovaFinestraCiclometria(ContestoGui& contesto, QWidget* parent) {
  return new FinestraCiclometria(contesto, parent);
}

}  // namespace lottolab::gui
