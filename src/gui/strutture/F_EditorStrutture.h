#pragma once

// The editor of user figures: the grid of the draws around a chosen draw, where a click on a cell
// places a vertex, the panel of the selected vertex, the lines, the conditions, the structure files
// and the search over the archive. The editing itself is StruttureModello's.

#include <QPointer>
#include <QWidget>

#include <filesystem>

#include "gui/principale/ContestoGui.h"
#include "gui/strutture/StruttureModello.h"

class QAction;
class QCheckBox;
class QComboBox;
class QGraphicsView;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QSpinBox;

namespace lottolab::gui {

class GrigliaScena;
class F_StatStrutture;

class F_EditorStrutture : public QWidget {
  Q_OBJECT

 public:
  explicit F_EditorStrutture(ContestoGui& contesto, QWidget* parent = nullptr);
  ~F_EditorStrutture() override;

  // A file that is not a structure is reported and leaves the editor empty.
  void Apri(const QString& file);

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  QWidget* CreaPannelloVertice();
  QWidget* CreaPannelloCondizioni();
  int Estrazioni() const;
  bool ProseguoSeModificata();
  QString ScegliFile(bool salvataggio);
  void Nuova();
  void ScegliEApri();
  bool Salva();
  bool SalvaConNome();
  // Refuses, with a message, a file that DestinazioneAmmessa refuses.
  bool SalvaIn(const std::filesystem::path& file);

  // The grid, the panels and the title shown anew from the model.
  void Aggiorna();
  void AdattaAltezzaGriglia();
  void AggiornaPannello();
  void AggiornaArchivio();
  // The Index of the one selected vertex; 0 when none or several are selected.
  int16_t VerticeScelto() const;

  void PiazzaVertice(int riga, int colonna);
  void UnisciSelezionati();
  void EliminaSelezionati();
  void ModificaCondizione();
  void CercaNellArchivio();

  ContestoGui& m_contesto;
  StruttureModello m_modello;
  GrigliaScena* m_scena;
  QGraphicsView* m_vista;
  QSpinBox* m_estrazione;
  QLabel* m_data;
  QAction* m_unisci;
  QAction* m_elimina;
  QGroupBox* m_vertice;
  QLineEdit* m_caption;
  QCheckBox* m_fulcro_orizz;
  QCheckBox* m_fulcro_vert;
  QComboBox* m_verso_vert;
  QComboBox* m_verso_orizz;
  QCheckBox* m_chiusura;
  QListWidget* m_condizioni;
  QPointer<F_StatStrutture> m_ricerca;
};

}  // namespace lottolab::gui
