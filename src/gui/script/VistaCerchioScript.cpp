#include "VistaCerchioScript.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QSplitter>

#include <algorithm>

#include "gui/comuni/QvCerchio.h"

namespace lottolab::gui {

VistaCerchioScript::VistaCerchioScript(script::DisegnoCerchio disegno, const QString& titolo, QWidget* parent)
    : QWidget(parent) {
  setWindowFlag(Qt::Window);
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(titolo);
  auto* layout = new QHBoxLayout(this);
  // Descriptions run long ("Trapezio isoscele 15-38-61-84 (VE, BA, BA, VE)"): the user widens the list.
  auto* divisore = new QSplitter(this);
  layout->addWidget(divisore);
  const bool con_elenco = std::any_of(disegno.figure.begin(), disegno.figure.end(),
                                      [](const script::FiguraCerchio& figura) { return !figura.descrizione.empty(); });
  if (con_elenco) {
    m_elenco = new QListWidget(this);
    for (const script::FiguraCerchio& figura : disegno.figure) {
      auto* voce = new QListWidgetItem(QString::fromStdString(figura.descrizione), m_elenco);
      voce->setToolTip(voce->text());
    }
    divisore->addWidget(m_elenco);
  }
  const int evidenziata = disegno.evidenziata;
  m_cerchio = new QvCerchio(this);
  m_cerchio->ImpostaDisegno(std::move(disegno));
  divisore->addWidget(m_cerchio);
  divisore->setStretchFactor(divisore->indexOf(m_cerchio), 1);
  if (m_elenco) {
    if (evidenziata >= 0) m_elenco->setCurrentRow(evidenziata);
    connect(m_elenco, &QListWidget::currentRowChanged, m_cerchio, &QvCerchio::Evidenzia);
    divisore->setSizes({300, 520});
  }
  resize(con_elenco ? 840 : 520, 540);
}

}  // namespace lottolab::gui
