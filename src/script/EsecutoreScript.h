#pragma once

// Running a user's script: a fresh engine and library object for every run, the include files, the
// fixed sequence of library entry points around the script's Main, and the report of an error with
// the line and column of the user's file. The desktop's script window and the command line both run
// scripts through here.

#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ClsFunctionsGeodoScript.h"
#include "IncludiFile.h"
#include "InterfacciaScript.h"
#include "vbscript/value/Object.h"

namespace vbs {
class ScriptControl;
class UiHandler;
}  // namespace vbs

namespace lottolab::script {

// The template of a new script.
inline constexpr std::string_view kModelloScript = "Option Explicit\n\nSub Main\n\nEnd Sub\n";

// The entries of the time-out box: "Infinito", then "1 minuto" to "10 minuti".
std::vector<std::string> VociTimeout();
// The longest time-out, in whole minutes, that the engine's milliseconds can hold (about 24 days).
inline constexpr int32_t kMinutiTimeoutMassimi = INT32_MAX / 60000;

// The time-out in milliseconds of entry `indice` of the box: -1 (none) for the first.
int32_t TimeoutDaVoce(int indice, std::string_view testo);

// "Output" followed by the date and time as yyyymmddhhmmss and ".htm".
std::string NomeFileHtmlOutput(std::chrono::system_clock::time_point quando);

struct ErroreScript {
  int32_t numero = 0;
  std::string descrizione;
  uint32_t riga = 0;
  uint32_t colonna = 0;
  std::string sorgente;
  // The code the line and column belong to: the script's own name (OpzioniEsecuzione::nome_script)
  // or the file name of an included file, so that a window moves the caret only in its own text.
  std::string codice;
};

// The lines the output receives: "Errore script !", number - description, "Linea   : ",
// "Colonna : " and "Source : ".
std::string RapportoErrore(const ErroreScript& errore);

struct OpzioniEsecuzione {
  ImpostazioniLibreria libreria;
  int32_t timeout_ms = -1;
  bool multi_output = false;
  bool salva_previsioni = false;
  std::string nome_file_html;          // empty: NomeFileHtmlOutput of now
  std::string nome_script = "script";  // the name errors give for the user's code
};

struct EsitoEsecuzione {
  enum class Stato { Completato, ErroreScript, InclusioneNonRiuscita, GiaInEsecuzione };
  Stato stato = Stato::Completato;
  std::optional<ErroreScript> errore;
  std::filesystem::path pagina_html;          // the run's page (single-output run)
  std::vector<std::filesystem::path> pagine;  // a multi-output run's pages
};

class EsecutoreScript {
 public:
  // The host must outlive the runs; `ui` (message and input boxes) may be null.
  explicit EsecutoreScript(InterfacciaScript& ospite, vbs::UiHandler* ui = nullptr) : m_ospite(ospite), m_ui(ui) {}

  // Runs the script text. A second run while one is going is refused with "Attendere il termine
  // dello script in corso".
  EsitoEsecuzione Esegui(std::u16string_view testo, const OpzioniEsecuzione& opzioni);

  bool InEsecuzione() const { return m_in_esecuzione.load(); }
  // From any thread. The cooperative stop: the script sees it through ScriptInterrotto.
  void Stop();
  // From any thread: the script ends at its next statement.
  void InterrompiSubito();

 private:
  EsitoEsecuzione EseguiNelMotore(vbs::ScriptControl& motore, ClsFunctionsGeodoScript& libreria,
                                  std::u16string_view testo, const OpzioniEsecuzione& opzioni);
  ErroreScript Errore(const vbs::ScriptControl& motore) const;

  InterfacciaScript& m_ospite;
  vbs::UiHandler* m_ui;
  std::atomic<bool> m_in_esecuzione{false};
  std::mutex m_corrente;  // guards the two pointers below while a run starts and ends
  vbs::ScriptControl* m_motore = nullptr;
  ClsFunctionsGeodoScript* m_libreria = nullptr;
};

}  // namespace lottolab::script
