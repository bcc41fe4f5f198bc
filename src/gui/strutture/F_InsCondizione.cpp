#include "gui/strutture/F_InsCondizione.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "gui/strutture/StruttureCondizioni.h"

namespace lottolab::gui {

F_InsCondizione::F_InsCondizione(std::vector<figures::ClsVertice> vertici, const QString& testo, QWidget* parent)
    : QDialog(parent),
      m_vertici(std::move(vertici)),
      m_forma(new QComboBox),
      m_vertice_a(new QComboBox),
      m_vertice_b(new QComboBox),
      m_numero(new QSpinBox),
      m_negata(new QCheckBox("Negata (Not)")),
      m_connettivo(new QComboBox),
      m_aggiungi(new QPushButton("Aggiungi al testo")),
      m_testo(new QLineEdit(testo)) {
  setWindowTitle("Condizione");
  for (const FormaCondizione& forma : FormeCondizione())
    m_forma->addItem(QString::fromUtf8(forma.modello.data(), static_cast<qsizetype>(forma.modello.size())));
  for (const figures::ClsVertice& vertice : m_vertici) {
    const QString riferimento = QString::fromStdString(RiferimentoVertice(vertice, m_vertici));
    m_vertice_a->addItem(riferimento);
    m_vertice_b->addItem(riferimento);
  }
  if (m_vertici.size() > 1) m_vertice_b->setCurrentIndex(1);
  m_numero->setRange(0, 90);
  m_numero->setValue(1);
  m_connettivo->addItems({"Or", "And"});

  auto* scelte = new QFormLayout;
  scelte->addRow("Forma", m_forma);
  scelte->addRow("[A]", m_vertice_a);
  scelte->addRow("[B]", m_vertice_b);
  scelte->addRow("n", m_numero);
  scelte->addRow("", m_negata);
  auto* accoda = new QHBoxLayout;
  accoda->addWidget(new QLabel("unita al testo con"));
  accoda->addWidget(m_connettivo);
  accoda->addStretch();
  accoda->addWidget(m_aggiungi);
  scelte->addRow(accoda);
  auto* gruppo = new QGroupBox("Componi");
  gruppo->setLayout(scelte);

  m_testo->setMinimumWidth(460);
  auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(gruppo);
  layout->addWidget(new QLabel("Testo della condizione"));
  layout->addWidget(m_testo);
  layout->addWidget(pulsanti);

  connect(m_forma, &QComboBox::currentIndexChanged, this, &F_InsCondizione::AggiornaScelte);
  connect(m_aggiungi, &QPushButton::clicked, this, &F_InsCondizione::AggiungiForma);
  connect(pulsanti, &QDialogButtonBox::accepted, this, &F_InsCondizione::accept);
  connect(pulsanti, &QDialogButtonBox::rejected, this, &F_InsCondizione::reject);
  AggiornaScelte();
}

QString F_InsCondizione::Testo() const { return m_testo->text().trimmed(); }

void F_InsCondizione::AggiornaScelte() {
  const FormaCondizione& forma = FormeCondizione()[static_cast<size_t>(m_forma->currentIndex())];
  m_vertice_a->setEnabled(forma.usa_a);
  m_vertice_b->setEnabled(forma.usa_b);
  m_numero->setEnabled(forma.usa_n);
  m_aggiungi->setEnabled(!(forma.usa_a || forma.usa_b) || !m_vertici.empty());
}

void F_InsCondizione::AggiungiForma() {
  const FormaCondizione& forma = FormeCondizione()[static_cast<size_t>(m_forma->currentIndex())];
  const std::string parte =
      ComponiCondizione(forma, m_vertice_a->currentText().toStdString(), m_vertice_b->currentText().toStdString(),
                        m_numero->value(), m_negata->isChecked());
  m_testo->setText(QString::fromStdString(
      AccodaCondizione(m_testo->text().toStdString(), m_connettivo->currentText().toStdString(), parte)));
}

void F_InsCondizione::accept() {
  // The column is counted on the text as checked: the field is made to hold exactly that.
  m_testo->setText(Testo());
  const std::string testo = Testo().toStdString();
  if (auto errore = VerificaCondizione(testo, m_vertici)) {
    QMessageBox::warning(
        this, "Condizione",
        QString("%1 (colonna %2)").arg(QString::fromStdString(errore->messaggio)).arg(errore->colonna));
    m_testo->setFocus();
    m_testo->setCursorPosition(static_cast<int>(errore->colonna) - 1);
    return;
  }
  QDialog::accept();
}

}  // namespace lottolab::gui
