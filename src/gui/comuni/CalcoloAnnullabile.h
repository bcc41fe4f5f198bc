#pragma once

// A computation of the analysis windows run on a thread of its own behind a progress dialog with an
// "Annulla" button. Unlike an import, a computation can stop anywhere: the button, or the window
// closing, raises a flag that the computation reads through stats::ControlloCalcolo.

#include <QObject>
#include <QProgressDialog>
#include <QThread>
#include <QTimer>
#include <QWidget>

#include <atomic>
#include <memory>
#include <optional>
#include <utility>

#include "gui/comuni/LavoroSenzaEccezioni.h"
#include "stats/TerniRitardatari.h"

namespace lottolab::gui {

// Returns at once. `lavoro` runs on another thread with a stats::ControlloCalcolo and returns a
// std::optional<T>, nothing when it stopped; `fine` then gets, on the thread of `finestra`, an Esito
// of it that holds the critical message titled `procedura` if the work threw. `fine` is not called if
// `finestra` is closed first; the work is then told to stop.
template <typename T, typename Lavoro, typename Fine>
void AvviaCalcoloAnnullabile(QWidget* finestra, const QString& titolo, const QString& descrizione,
                             const char* procedura, Lavoro lavoro, Fine fine) {
  auto* progresso = new QProgressDialog(descrizione, QStringLiteral("Annulla"), 0, 100, finestra);
  progresso->setWindowTitle(titolo);
  progresso->setWindowModality(Qt::WindowModal);
  // A computation of a few milliseconds shows no dialog at all.
  progresso->setMinimumDuration(300);
  progresso->setAutoClose(false);
  progresso->setAutoReset(false);

  struct Stato {
    std::atomic<int> percento = 0;
    std::atomic<bool> annullato = false;
    std::optional<Esito<std::optional<T>>> esito;
  };
  auto stato = std::make_shared<Stato>();
  QObject::connect(progresso, &QProgressDialog::canceled, progresso, [stato] { stato->annullato = true; });
  QObject::connect(progresso, &QObject::destroyed, [stato] { stato->annullato = true; });
  auto* orologio = new QTimer(progresso);
  QObject::connect(orologio, &QTimer::timeout, progresso, [progresso, stato] { progresso->setValue(stato->percento); });
  orologio->start(100);

  QThread* thread = QThread::create([stato, procedura, lavoro = std::move(lavoro)] {
    stats::ControlloCalcolo controllo;
    controllo.progresso = [stato](int percento) { stato->percento = percento; };
    controllo.annullato = [stato] { return stato->annullato.load(); };
    stato->esito =
        SenzaEccezioni<std::optional<T>>(procedura, [&] { return Esito<std::optional<T>>(lavoro(controllo)); });
  });
  QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
  QObject::connect(thread, &QThread::finished, progresso, [progresso, stato, fine = std::move(fine)] {
    progresso->deleteLater();
    progresso->close();
    fine(*stato->esito);
  });
  thread->start();
}

}  // namespace lottolab::gui
