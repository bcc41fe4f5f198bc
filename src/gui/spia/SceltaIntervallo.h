#pragma once

// The range of draws of an analysis: from one draw to another of the archive, each shown with its
// date. When the archive grows, a range that reached its last draw reaches the new last one.

#include <QLabel>
#include <QSpinBox>
#include <QWidget>

#include <memory>

#include "archive/TabellaEstrazioni.h"

namespace lottolab::gui {

class SceltaIntervallo : public QWidget {
  Q_OBJECT

 public:
  explicit SceltaIntervallo(QWidget* parent = nullptr);

  // The new archive's bounds; the whole archive the first time.
  void ImpostaArchivio(std::shared_ptr<const TabellaEstrazioni> archivio);
  int Inizio() const { return m_inizio->value(); }
  int Fine() const { return m_fine->value(); }
  // Both ends inside the archive, the first not after the last.
  bool Valido(const TabellaEstrazioni& archivio) const;

 signals:
  void Cambiato();

 private:
  void MostraDate();

  QSpinBox* m_inizio;
  QSpinBox* m_fine;
  QLabel* m_date;
  std::shared_ptr<const TabellaEstrazioni> m_archivio;
};

}  // namespace lottolab::gui
