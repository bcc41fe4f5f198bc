#pragma once

// "Cerca nell'archivio": the edited structure searched over a range of draws on the chosen wheels,
// on a worker thread that the user can stop; the figures found and what they did in the next colpi.

#include <QDialog>

#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>

#include "gui/principale/ContestoGui.h"
#include "gui/strutture/StruttureRicerca.h"

class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QTableView;
class QThread;

namespace lottolab::gui {

class F_StatStrutture : public QDialog {
  Q_OBJECT

 public:
  // `struttura` gives the structure as edited at the moment a search starts.
  F_StatStrutture(ContestoGui& contesto, std::function<figures::Struttura()> struttura, QWidget* parent = nullptr);
  ~F_StatStrutture() override;

 private:
  void AggiornaArchivio();
  void Cerca();
  void Concludi();
  void MostraStatistica(const figures::StatisticaStruttura& statistica, int colpi);

  ContestoGui& m_contesto;
  std::function<figures::Struttura()> m_struttura;
  QSpinBox* m_inizio;
  QSpinBox* m_fine;
  QLabel* m_data_inizio;
  QLabel* m_data_fine;
  std::array<QCheckBox*, kNumeroRuote> m_ruote{};
  QSpinBox* m_colpi;
  QPushButton* m_cerca;
  QPushButton* m_ferma;
  QProgressBar* m_avanzamento;
  class ModelloFigure;
  ModelloFigure* m_modello;
  QTableView* m_figure;
  QLabel* m_trovate;
  QLabel* m_statistica;

  std::atomic<bool> m_fermata_chiesta = false;
  QThread* m_lavoro = nullptr;
  // Written by the worker, read once it has finished.
  std::shared_ptr<const TabellaEstrazioni> m_archivio_cercato;
  std::optional<Esito<RisultatoRicerca>> m_risultato;
  int m_colpi_cercati = 0;
};

}  // namespace lottolab::gui
