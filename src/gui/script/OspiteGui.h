#pragma once

// The host of a script run from the window. The script runs on a worker thread and reaches the
// window only through here: its text and progress travel as queued notices, while its dialogs are
// shown on the window's thread with the worker waiting for the answer.
//
// A script may write lines in a loop as fast as it can. The window must stay responsive, so the
// worker gathers the text (runs of one style joined into one piece) and the window takes it at most
// every kIntervalloConsegnaMs, kRighePerConsegna lines at a time; and a run's text stops at
// kMassimoRighe lines or kMassimoCaratteri characters, where one line says so, so that neither the
// window nor the gathered text grows without end.

#include <QElapsedTimer>
#include <QObject>

#include <atomic>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "gui/script/AreaDisegnoGui.h"
#include "gui/script/DialoghiScript.h"
#include "script/InterfacciaScript.h"
#include "vbscript/runtime/UiHandler.h"

namespace lottolab::gui {

inline constexpr int kIntervalloConsegnaMs = 80;
inline constexpr int64_t kMassimoRighe = 100000;
inline constexpr int64_t kMassimoCaratteri = int64_t{16} << 20;
// Laying out a line in the output box costs the window's thread some microseconds: a delivery of
// this many lines keeps it free for the user's clicks.
inline constexpr int64_t kRighePerConsegna = 5000;

class OspiteGui final : public QObject, public script::InterfacciaScript, public vbs::UiHandler {
  Q_OBJECT

 public:
  // Lives on the window's thread, as `dialoghi` does.
  explicit OspiteGui(DialoghiScript& dialoghi, QObject* parent = nullptr);

  void Scrivi(const script::TrattoTesto& tratto) override;
  void Mostra(const Avviso& avviso) override;
  void Messaggio(const std::string& testo) override;
  void Avanzamento(double percentuale) override;
  void Titolo(const std::string& testo) override;
  // The text waiting for the window is dropped with what the window shows, in the order of writing.
  void PulisciOutput() override;
  void MostraAvanzamento(bool visibile) override;
  script::AreaDisegno* Disegno() override { return &m_area; }
  AreaDisegnoGui& Area() { return m_area; }
  std::optional<std::vector<int>> ScegliVoci(const std::string& titolo, const std::vector<std::string>& voci,
                                             bool multipla) override;
  std::optional<std::vector<int>> ScegliNumeri(const std::string& titolo, int quanti, int massimo,
                                               const std::vector<int>& proposti) override;
  std::optional<std::vector<double>> ScegliImporti(const std::string& titolo, const std::vector<std::string>& voci,
                                                   const std::vector<double>& proposti) override;
  std::optional<std::string> ScegliPercorso(const std::string& titolo, const std::string& proposto,
                                            bool cartella) override;

  int MessageBox(std::u16string_view prompt, int buttons, std::u16string_view title) override;
  std::optional<std::u16string> InputBox(std::u16string_view prompt, std::u16string_view title,
                                         std::u16string_view default_text) override;

  // From the window's thread, when the window goes while a script runs: the dialog the worker waits
  // for is dropped and the ones it asks later are cancelled without showing, so the worker never
  // waits for a window that is no longer there.
  void Congeda();
  // From the window's thread: a new run's text starts from nothing.
  void Azzera();
  // From the window's thread: hands over at once what the worker wrote and the window has not yet
  // taken, once the run is over.
  void ConsegnaInSospeso();

 signals:
  // On the window's thread, in the order the script wrote them.
  void TestoScritto(const std::vector<lottolab::script::TrattoTesto>& tratti);
  void MessaggioRicevuto(const QString& testo);
  void AvanzamentoCambiato(double percentuale);
  void TitoloCambiato(const QString& testo);
  // Comes before the TestoScritto of what the script wrote after clearing.
  void OutputPulito();
  void AvanzamentoVisibile(bool visibile);

 private:
  // Runs `chiedi` on the window's thread and gives its answer; `annullato` once dismissed.
  template <typename Risposta, typename Chiedi>
  Risposta SulThreadDellaFinestra(Chiedi chiedi, const Risposta& annullato);
  void ProgrammaConsegna();
  void ConsegnaTesto();
  // Hands the window up to `righe` lines of what waits, and asks again later for the rest.
  void Consegna(int64_t righe);
  // Takes the first `righe` lines of what waits; under m_mutex.
  std::vector<script::TrattoTesto> PrimeRighe(int64_t righe);
  void ConsegnaAvanzamento();
  // Adds `tratto` to what waits, joined to the last piece when of the same style; under m_mutex.
  void Accoda(script::TrattoTesto tratto);

  DialoghiScript& m_dialoghi;
  std::atomic<bool> m_congedato{false};
  std::mutex m_mutex;
  std::vector<script::TrattoTesto> m_tratti;  // written, not yet handed to the window
  bool m_consegna_chiesta = false;            // a delivery is on its way to the window's thread
  int64_t m_righe = 0;                        // of this run, handed over or waiting
  int64_t m_caratteri = 0;
  bool m_troncato = false;
  bool m_pulisci = false;            // the window must clear its output before the next text it takes
  QElapsedTimer m_ultima_consegna;   // on the window's thread
  std::set<std::string> m_mostrati;  // the messages of this run shown in a dialog; worker's thread
  std::atomic<double> m_percentuale{0};
  std::atomic<bool> m_avanzamento_in_attesa{false};
  AreaDisegnoGui m_area;
};

}  // namespace lottolab::gui
