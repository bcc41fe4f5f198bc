#pragma once

// The desktop's main window: menus and toolbar that open every other window in one multi-document
// area, and a status bar that says which archive is loaded, how far it goes, which game the active
// window shows, and how many wins of the agenda wait to be seen.

#include <QMainWindow>
#include <QStyle>

#include <memory>

#include "gui/archivio/InterlocutoreGui.h"
#include "gui/principale/ContestoGui.h"

class QLabel;
class QMdiArea;
class QMenu;

namespace lottolab::gui {

class FinestraPrincipale : public QMainWindow {
  Q_OBJECT

 public:
  explicit FinestraPrincipale(ContestoGui& contesto, QWidget* parent = nullptr);
  ~FinestraPrincipale() override;

  QMdiArea* AreaFinestre() const { return m_area; }

  // Opens the script in a new script window and puts it first among the recent scripts.
  void ApriScript(const QString& file);
  // Opens the structure in a new structure editor.
  void ApriStruttura(const QString& file);
  // Who tells the user about a damaged archive and asks about its repair; message boxes unless
  // replaced (tests answer without a window).
  void ImpostaInterlocutore(std::unique_ptr<Interlocutore> interlocutore) {
    m_interlocutore = std::move(interlocutore);
  }

 private:
  void CreaMenu();
  QIcon Icona(QStyle::StandardPixmap icona) const;
  void AggiungiFinestra(QWidget* finestra, const QIcon& icona);
  void ApriScriptScelto();
  void ApriStrutturaScelta();
  void ApriAgenda();
  void ApriAiuto();
  // Brings forward the open window of that object name; false when there is none.
  bool PortaAvanti(const QString& nome);
  void MostraVinciteDaVedere();
  void ApriImpostazioni();
  void MostraInformazioni();
  void MostraArchivio();
  void ArchivioRicaricato();
  void CompilaScriptRecenti();
  void CompilaFinestre();
  void MostraGiocoAttivo();
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

  ContestoGui& m_contesto;
  QMdiArea* m_area;
  QLabel* m_stato_archivio;
  QLabel* m_stato_gioco;
  QLabel* m_stato_agenda;
  QMenu* m_script_recenti = nullptr;
  QMenu* m_finestre = nullptr;
  std::unique_ptr<Interlocutore> m_interlocutore;
};

}  // namespace lottolab::gui
