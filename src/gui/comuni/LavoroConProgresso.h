#pragma once

// Work that takes seconds (a download, an import) run on a thread of its own behind a progress
// dialog, its outcome handed back on the window's thread. A work that can stop safely (a download,
// which writes nothing until it is whole) gets a cancel button; the work looks at the request where
// it may stop, and still ends through `fine`. An import has none: it cannot stop half-way.

#include <QProgressDialog>
#include <QThread>
#include <QTimer>
#include <QWidget>

#include <atomic>
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
  // From the window's thread: the user asked to stop.
  void Annulla() { m_annullato.store(true, std::memory_order_relaxed); }
  bool Annullato() const { return m_annullato.load(std::memory_order_relaxed); }

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
  std::atomic<bool> m_annullato{false};
};

enum class Annullabile { No, Si };

// Returns at once. `lavoro` runs on another thread, given an Avanzamento whose steps the dialog
// shows, and returns a T; `fine` then gets it on the thread of `finestra`, as an Esito that holds
// the critical message titled `procedura` if the work threw. `fine` is not called if `finestra` is
// closed first. With Annullabile::Si the dialog's "Annulla" asks the work to stop, through its
// Avanzamento.
template <typename T, typename Lavoro, typename Fine>
void AvviaLavoroConProgresso(QWidget* finestra, const QString& titolo, const QString& descrizione,
                             const char* procedura, Lavoro lavoro, Fine fine,
                             Annullabile annullabile = Annullabile::No) {
  const QString annulla = annullabile == Annullabile::Si ? QStringLiteral("Annulla") : QString();
  auto* progresso = new QProgressDialog(descrizione, annulla, 0, 0, finestra);
  progresso->setWindowTitle(titolo);
  progresso->setWindowModality(Qt::ApplicationModal);
  progresso->setMinimumDuration(0);
  progresso->show();

  auto avanzamento = std::make_shared<Avanzamento>();
  // The dialog hides itself on cancel; the work's end closes it as usual.
  QObject::connect(progresso, &QProgressDialog::canceled, progresso, [avanzamento] { avanzamento->Annulla(); });
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
