#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

#include <memory>

#include "gui/comuni/PreparaAnalitico.h"
#include "gui/comuni/ScalaRitardo.h"
#include "gui/grafici/FinestraGrafico.h"
#include "gui/grafici/ModelloMappaRitardi.h"
#include "gui/grafici/VistaMappaRitardi.h"
#include "gui/principale/Finestre.h"

namespace lottolab::gui {

namespace {

class FinestraMappaRitardi : public FinestraGrafico {
 public:
  FinestraMappaRitardi(ContestoGui& contesto, QWidget* parent);

 private:
  QWidget* NuoveScelte();
  void Prepara();
  void CambiaFine();

  ContestoGui& m_contesto;
  ModelloMappaRitardi* m_modello;
  VistaMappaRitardi* m_mappa;
  QSpinBox* m_fine = nullptr;
  QLabel* m_data_fine = nullptr;
};

FinestraMappaRitardi::FinestraMappaRitardi(ContestoGui& contesto, QWidget* parent)
    : FinestraGrafico(parent), m_contesto(contesto), m_modello(new ModelloMappaRitardi(this)) {
  setWindowTitle(QStringLiteral("Mappa dei ritardi"));
  setObjectName(QStringLiteral("finestraMappaRitardi"));
  m_mappa = new VistaMappaRitardi(*m_modello);
  Componi(NuoveScelte(), m_mappa, m_modello, nullptr,
          QStringLiteral("Bianco: appena uscito · rosso: pari al ritardo storico sulla stessa ruota · "
                         "clic su un numero: storia del suo ritardo"));
  connect(m_mappa, &VistaMappaRitardi::CellaScelta, this, [this](int ruota, int numero) {
    ApriStoriaRitardo(this, m_contesto, {numero}, ruota, 1, m_modello->Fine());
  });
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &FinestraMappaRitardi::Prepara);
  Prepara();
}

QWidget* FinestraMappaRitardi::NuoveScelte() {
  auto* scelte = new QWidget;
  auto* riga = new QHBoxLayout(scelte);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel(QStringLiteral("All'estrazione:")));
  m_fine = new QSpinBox;
  m_fine->setObjectName(QStringLiteral("fineMappa"));
  m_fine->setRange(0, 0);
  m_fine->setKeyboardTracking(false);
  m_fine->setToolTip(QStringLiteral("I ritardi si contano dalla prima estrazione fino a questa"));
  riga->addWidget(m_fine);
  m_data_fine = new QLabel;
  riga->addWidget(m_data_fine);
  riga->addSpacing(12);
  riga->addWidget(new QLabel(QStringLiteral("Nelle celle:")));
  auto* testo = new QComboBox;
  testo->setObjectName(QStringLiteral("testoMappa"));
  testo->addItems({QStringLiteral("il ritardo"), QStringLiteral("il numero")});
  testo->setToolTip(DescrizioneScalaRitardo());
  riga->addWidget(testo);
  riga->addStretch();
  connect(m_fine, &QSpinBox::valueChanged, this, &FinestraMappaRitardi::CambiaFine);
  connect(testo, &QComboBox::currentIndexChanged, this, [this](int scelta) {
    m_mappa->ImpostaTesto(scelta == 0 ? VistaMappaRitardi::Testo::Ritardo : VistaMappaRitardi::Testo::Numero);
  });
  return scelte;
}

void FinestraMappaRitardi::Prepara() {
  PreparaAnalitico(this, m_contesto.Archivio(), QStringLiteral("Preparazione della mappa dei ritardi…"),
                   "FinestraMappaRitardi.Prepara", m_fine, [this](std::shared_ptr<const stats::Analitico> analitico) {
                     m_modello->ImpostaAnalitico(std::move(analitico));
                     CambiaFine();
                   });
}

void FinestraMappaRitardi::CambiaFine() {
  const int fine = m_fine->value();
  m_modello->ImpostaFine(fine);
  const std::shared_ptr<const TabellaEstrazioni> archivio = m_contesto.Archivio();
  m_data_fine->setText(archivio->Contiene(fine)
                           ? "del " + QString::fromStdString(archivio->DataEstrazione(fine).ValoreOppure("?"))
                           : QStringLiteral("archivio vuoto"));
}

}  // namespace

QWidget* NuovaMappaRitardi(ContestoGui& contesto, QWidget* parent) {
  return new FinestraMappaRitardi(contesto, parent);
}

}  // namespace lottolab::gui
