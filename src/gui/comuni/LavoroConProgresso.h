#pragma once

// Work that takes seconds (a download, an import) run on a thread of its own behind a progress
// dialog, its outcome handed back on the window's thread. The dialog has no cancel button: neither
// a download nor an import can be stopped half-way safely, and both give up on their own.

#include <QProgressDialog>
#include <QThread>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "gui/comuni/LavoroSenzaEccezioni.h"

namespace lottolab::gui {

// The step a work has reached, written by its thread and read by the window's. The window looks at
// it a few times a second rather than being called from the work, which could outlive the dialog.
class Avanzamento {
 public:
  void Passo(std::string testo) {
    std::lock_guard blocco(m_mutex);
    m_testo = std::move(testo);
    m_nuovo = true;
  }
  // The step written since the last call, if any.
  std::optional<std::string> Prendi() {
    std::lock_guard blocco(m_mutex);
    if (!m_nuovo) return std::nullopt;
    m_nuovo = false;
    return m_testo;
  }

 private:
  std::mutex m_mutex;
  std::string m_testo;
  bool m_nuovo = false;
};

// Returns at once. `lavoro` runs on another thread, given an Avanzamento whose steps the dialog
// shows, and returns a T; `fine` then gets it on the thread of `finestra`, as an Esito that holds
// the critical message titled `procedura` if the work threw. `fine` is not called if `finestra` is
// closed first.
template <typename T, typename Lavoro, typename Fine>
void AvviaLavoroConProgresso(QWidget* finestra, const QString& titolo, const QString& descrizione,
                             const char* procedura, Lavoro lavoro, Fine fine) {
  auto* progresso = new QProgressDialog(descrizione, QString(), 0, 0, finestra);
  progresso->setWindowTitle(titolo);
  progresso->setWindowModality(Qt::ApplicationModal);
  progresso->setMinimumDuration(0);
  progresso->show();

  auto avanzamento = std::make_shared<Avanzamento>();
  auto* orologio = new QTimer(progresso);
  QObject::connect(orologio, &QTimer::timeout, progresso, [progresso, avanzamento] {
    if (auto passo = avanzamento->Prendi()) progresso->setLabelText(QString::fromStdString(*passo));
  });
  orologio->start(100);

  auto esito = std::make_shared<std::optional<Esito<T>>>();
  QThread* thread = QThread::create([esito, avanzamento, procedura, lavoro = std::move(lavoro)] {
    *esito = SenzaEccezioni<T>(procedura, [&] { return Esito<T>(lavoro(*avanzamento)); });
  });
  QObject::connect(thread, &QThread::finished, progresso, [progresso, thread, esito, fine = std::move(fine)] {
    thread->deleteLater();
    progresso->deleteLater();
    progresso->close();
    fine(**esito);
  });
  thread->start();
}

}  // namespace lottolab::gui
