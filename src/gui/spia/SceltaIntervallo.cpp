#include "gui/spia/SceltaIntervallo.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

namespace lottolab::gui {

SceltaIntervallo::SceltaIntervallo(QWidget* parent)
    : QWidget(parent), m_inizio(new QSpinBox), m_fine(new QSpinBox), m_date(new QLabel) {
  auto* riga = new QHBoxLayout(this);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel(QStringLiteral("Dall'estrazione:")));
  m_inizio->setObjectName("inizio");
  riga->addWidget(m_inizio);
  riga->addWidget(new QLabel(QStringLiteral("all'estrazione:")));
  m_fine->setObjectName("fine");
  riga->addWidget(m_fine);
  riga->addWidget(m_date);
  riga->addStretch();
  for (QSpinBox* spin : {m_inizio, m_fine}) {
    spin->setKeyboardTracking(false);
    spin->setRange(0, 0);
    connect(spin, &QSpinBox::valueChanged, this, [this] {
      MostraDate();
      emit Cambiato();
    });
  }
}

void SceltaIntervallo::ImpostaArchivio(std::shared_ptr<const TabellaEstrazioni> archivio) {
  const int ultima = archivio->EstrazioniArchivio();
  const bool all_ultima = m_fine->value() == m_fine->maximum();
  const bool primo = m_archivio == nullptr;
  m_archivio = std::move(archivio);
  const QSignalBlocker blocco_inizio(m_inizio);
  const QSignalBlocker blocco_fine(m_fine);
  m_inizio->setRange(ultima > 0 ? 1 : 0, ultima);
  m_fine->setRange(ultima > 0 ? 1 : 0, ultima);
  if (primo) m_inizio->setValue(m_inizio->minimum());
  if (primo || all_ultima) m_fine->setValue(ultima);
  MostraDate();
}

bool SceltaIntervallo::Valido(const TabellaEstrazioni& archivio) const {
  return archivio.Contiene(Inizio()) && archivio.Contiene(Fine()) && Inizio() <= Fine();
}

void SceltaIntervallo::MostraDate() {
  if (m_archivio == nullptr || !Valido(*m_archivio)) {
    m_date->setText(m_archivio != nullptr && !m_archivio->Vuota() ? QStringLiteral("(intervallo vuoto)") : QString());
    return;
  }
  const auto data = [this](int id) {
    auto testo = m_archivio->DataEstrazione(id);
    return testo ? QString::fromStdString(*testo) : QString();
  };
  m_date->setText(
      QStringLiteral("(dal %1 al %2, %3 estrazioni)").arg(data(Inizio()), data(Fine())).arg(Fine() - Inizio() + 1));
}

}  // namespace lottolab::gui
