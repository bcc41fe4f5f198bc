#pragma once

// Work that takes seconds (a download, an import) run on a thread of its own behind a progress
// dialog, its outcome handed back on the window's thread. The dialog has no cancel button: neither
// a download nor an import can be stopped half-way safely, and both give up on their own.

#include <QProgressDialog>
#include <QThread>
#include <QWidget>

#include <memory>
#include <optional>
#include <utility>

#include "gui/comuni/LavoroSenzaEccezioni.h"

namespace lottolab::gui {

// Returns at once. `lavoro` runs on another thread and returns a T; `fine` then gets it on the
// thread of `finestra`, as an Esito that holds the critical message titled `procedura` if the work
// threw. `fine` is not called if `finestra` is closed first.
template <typename T, typename Lavoro, typename Fine>
void AvviaLavoroConProgresso(QWidget* finestra, const QString& titolo, const QString& descrizione,
                             const char* procedura, Lavoro lavoro, Fine fine) {
  auto* progresso = new QProgressDialog(descrizione, QString(), 0, 0, finestra);
  progresso->setWindowTitle(titolo);
  progresso->setWindowModality(Qt::ApplicationModal);
  progresso->setMinimumDuration(0);
  progresso->show();

  auto esito = std::make_shared<std::optional<Esito<T>>>();
  QThread* thread = QThread::create([esito, procedura, lavoro = std::move(lavoro)] {
    *esito = SenzaEccezioni<T>(procedura, [&] { return Esito<T>(lavoro()); });
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
