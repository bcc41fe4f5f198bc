#include "VistaCerchioScript.h"

#include <QHBoxLayout>
#include <QListWidget>

#include <algorithm>

#include "gui/comuni/QvCerchio.h"

namespace lottolab::gui {

VistaCerchioScript::VistaCerchioScript(script::DisegnoCerchio disegno, const QString& titolo, QWidget* parent)
    : QWidget(parent) {
  setWindowFlag(Qt::Window);
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(titolo);
  auto* layout = new QHBoxLayout(this);
  const bool con_elenco = std::any_of(disegno.figure.begin(), disegno.figure.end(),
                                      [](const script::FiguraCerchio& figura) { return !figura.descrizione.empty(); });
  if (con_elenco) {
    m_elenco = new QListWidget(this);
    for (const script::FiguraCerchio& figura : disegno.figure) {
      auto* voce = new QListWidgetItem(QString::fromStdString(figura.descrizione), m_elenco);
      voce->setToolTip(voce->text());
    }
    m_elenco->setMinimumWidth(220);
    layout->addWidget(m_elenco);
  }
  const int evidenziata = disegno.evidenziata;
  m_cerchio = new QvCerchio(this);
  m_cerchio->ImpostaDisegno(std::move(disegno));
  layout->addWidget(m_cerchio, 1);
  if (m_elenco) {
    if (evidenziata >= 0) m_elenco->setCurrentRow(evidenziata);
    connect(m_elenco, &QListWidget::currentRowChanged, m_cerchio, &QvCerchio::Evidenzia);
  }
  resize(con_elenco ? 760 : 520, 520);
}

}  // namespace lottolab::gui
