#include "gui/tabellone/TabelloneSceltaRuote.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace lottolab::gui {

TabelloneSceltaRuote::TabelloneSceltaRuote(QWidget* parent) : QWidget(parent) {
  auto* riga = new QHBoxLayout(this);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->setSpacing(6);
  riga->addWidget(new QLabel("Ruote:"));
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
    auto* casella = new QCheckBox(QString::fromUtf8(SiglaRuota(ruota)));
    casella->setToolTip(QString::fromUtf8(NomeRuota(ruota)));
    casella->setChecked(true);
    connect(casella, &QCheckBox::toggled, this, &TabelloneSceltaRuote::Cambiata);
    riga->addWidget(casella);
    m_caselle[static_cast<size_t>(ruota - 1)] = casella;
  }
  auto* tutte = new QPushButton("Tutte");
  tutte->setToolTip("Sceglie tutte le ruote");
  connect(tutte, &QPushButton::clicked, this, &TabelloneSceltaRuote::SceglieTutte);
  riga->addWidget(tutte);
  riga->addStretch();
}

std::vector<int> TabelloneSceltaRuote::Scelte() const {
  std::vector<int> scelte;
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
    if (m_caselle[static_cast<size_t>(ruota - 1)]->isChecked()) scelte.push_back(ruota);
  return scelte;
}

void TabelloneSceltaRuote::SceglieTutte() {
  // One recomputation for the whole change, not one per wheel.
  for (QCheckBox* casella : m_caselle) {
    const QSignalBlocker blocco(casella);
    casella->setChecked(true);
  }
  emit Cambiata();
}

}  // namespace lottolab::gui
