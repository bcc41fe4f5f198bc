#pragma once

// The script window: the editor of a script file, its run on a worker thread with the time-out,
// the stop and the immediate interruption, and the run's text output and HTML page in their tabs.
// A script opened from outside the user's scripts folder runs in the mode the user chose for it
// (ScriptModalita.h); the "Protetto" button shows and changes the mode of the script in the editor.

#include <QWidget>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "gui/principale/ContestoGui.h"
#include "gui/script/DialoghiScript.h"
#include "script/AccessoFile.h"
#include "script/InterfacciaScript.h"

class QAction;
class QComboBox;
class QLabel;
class QProgressBar;
class QTabWidget;
class QTextBrowser;
class QPlainTextEdit;
class QScrollArea;
class QVBoxLayout;

namespace lottolab::gui {

class EditorScript;
class EsecuzioneInThread;

class F_Script : public QWidget {
  Q_OBJECT

 public:
  // Without `dialoghi` the window shows real dialogs. Opens on a new script.
  explicit F_Script(ContestoGui& contesto, std::unique_ptr<DialoghiScript> dialoghi = nullptr,
                    QWidget* parent = nullptr);
  ~F_Script() override;

  // Reads `file` into the editor, once the user agrees to drop unsaved changes.
  bool ApriFile(const QString& file);
  bool InEsecuzione() const;

  EditorScript* Editor() const { return m_editor; }
  QPlainTextEdit* Output() const { return m_output; }
  QTextBrowser* PaginaHtml() const { return m_html; }
  // The picture of the Pic... functions, as the script last showed it.
  QLabel* Disegno() const { return m_disegno; }
  QLabel* Attesa() const { return m_attesa; }
  QProgressBar* Avanzamento() const { return m_avanzamento; }
  QAction* AzioneEsegui() const { return m_esegui; }
  QComboBox* Timeout() const { return m_timeout; }
  const QString& File() const { return m_file; }
  script::Modalita Modalita() const { return m_modalita; }

 public slots:
  void Nuovo();
  void Apri();
  bool Salva();
  bool SalvaConNome();
  void Esegui();
  // Asks, then sets the stop the script sees through ScriptInterrotto.
  void Ferma();
  void InterrompiSubito();
  // The mode the next run uses; remembered for the opened file's content when it came from outside
  // the scripts folder.
  void ImpostaModalita(script::Modalita modalita);

 signals:
  void EsecuzioneTerminata();

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  void CreaComandi(QVBoxLayout* layout);
  // Whether the script in the editor may be replaced or closed: unchanged, saved, or let go.
  bool ModificheGestite();
  bool CaricaFile(const QString& file);
  bool ScriviFile(const QString& file);
  void AggiungiOutput(const std::vector<script::TrattoTesto>& tratti);
  void Terminata();
  void AggiornaTitolo();
  void MostraModalita(script::Modalita modalita);
  // The mode for a file just read: normal in the scripts folder, else the remembered or asked one.
  script::Modalita ModalitaDelFile(const QString& file, const QByteArray& contenuto);
  void MostraPagina(const std::filesystem::path& pagina);

  ContestoGui& m_contesto;
  std::unique_ptr<DialoghiScript> m_dialoghi;
  std::unique_ptr<EsecuzioneInThread> m_esecuzione;
  QString m_file;
  script::Modalita m_modalita = script::Modalita::Normale;
  std::string m_impronta;  // of the opened file when it came from outside the scripts folder
  // The name the running script's own code has in its errors: an error elsewhere is in an include.
  std::string m_nome_codice;
  QString m_caption;  // as the running script set F_Script.Caption

  EditorScript* m_editor = nullptr;
  QPlainTextEdit* m_output = nullptr;
  QTextBrowser* m_html = nullptr;
  QLabel* m_disegno = nullptr;
  QTabWidget* m_schede = nullptr;
  QComboBox* m_timeout = nullptr;
  QProgressBar* m_avanzamento = nullptr;
  QLabel* m_attesa = nullptr;
  QLabel* m_stato = nullptr;
  QAction* m_esegui = nullptr;
  QAction* m_stop = nullptr;
  QAction* m_interrompi = nullptr;
  QAction* m_protetto = nullptr;
};

}  // namespace lottolab::gui
