#pragma once

// A script run on a worker thread, so that the window stays responsive: one run at a time, the
// stop and the immediate interruption from the window, and the outcome once the worker is done.
// Apart from the widgets, so that tests drive it directly.

#include <QObject>
#include <QString>
#include <QThread>

#include <memory>

#include "archive/TabellaEstrazioni.h"
#include "gui/script/OspiteGui.h"
#include "script/EsecutoreScript.h"

namespace lottolab::gui {

inline constexpr std::string_view kAttendereTermine = "Attendere il termine dello script in corso";

class EsecuzioneInThread : public QObject {
  Q_OBJECT

 public:
  explicit EsecuzioneInThread(DialoghiScript& dialoghi, QObject* parent = nullptr);
  // A run still going is interrupted at its next statement and waited for.
  ~EsecuzioneInThread() override;

  // Starts the script over `archivio`, which the run keeps alive: an empty table counts as no
  // archive. While a run is going the new one is refused, and the user told so.
  bool Avvia(const QString& testo, script::OpzioniEsecuzione opzioni,
             std::shared_ptr<const TabellaEstrazioni> archivio);
  bool InEsecuzione() const { return m_thread != nullptr; }
  // The cooperative stop the script sees through ScriptInterrotto.
  void Stop();
  // Ends the script at its next statement.
  void InterrompiSubito();

  OspiteGui& Ospite() { return m_ospite; }
  // The outcome of the last run that ended.
  const script::EsitoEsecuzione& Esito() const { return m_esito; }

 signals:
  // The worker is done and every piece of output was handed over; the outcome is in Esito().
  void Terminata();

 private:
  void Conclusa();

  OspiteGui m_ospite;
  script::EsecutoreScript m_esecutore;
  std::unique_ptr<QThread> m_thread;
  std::shared_ptr<const TabellaEstrazioni> m_archivio;
  std::u16string m_testo;
  script::OpzioniEsecuzione m_opzioni;
  script::EsitoEsecuzione m_esito;
};

}  // namespace lottolab::gui
