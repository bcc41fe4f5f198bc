#pragma once

// What the desktop tells the user about the archive it has just loaded: the faults the check found,
// in a message and in the status bar, and, for an archive whose length is not a whole number of
// records, the offer to repair it. The questions go through an interface, so that the flow runs in
// tests without a window.

#include <QPointer>
#include <QWidget>
#include <string>

#include "app/Segnalatore.h"
#include "gui/principale/ContestoGui.h"

namespace lottolab::gui {

// A Segnalatore that can also ask a yes-or-no question.
class Interlocutore : public app::Segnalatore {
 public:
  // True when the user answers yes.
  virtual bool Chiedi(const std::string& titolo, const std::string& domanda) = 0;
};

// Message boxes over a window.
class InterlocutoreGui : public Interlocutore {
 public:
  explicit InterlocutoreGui(QWidget* finestra) : m_finestra(finestra) {}
  void Mostra(const Avviso& avviso) override;
  bool Chiedi(const std::string& titolo, const std::string& domanda) override;

 private:
  QPointer<QWidget> m_finestra;
};

// The status bar's note on the archive loaded: its draws, a warning when it is damaged, or why it
// could not be loaded.
std::string TestoStatoArchivio(const ContestoGui& contesto);

// Tells the faults of the archive loaded in `contesto`, if any. When its length is not a whole
// number of records, offers the repair (a dated copy first); if the user accepts, repairs it, says
// what was done and reloads it.
void AvvisaArchivioCaricato(ContestoGui& contesto, Interlocutore& interlocutore);

}  // namespace lottolab::gui
