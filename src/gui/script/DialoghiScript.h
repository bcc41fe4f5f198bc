#pragma once

// Everything the script window and a running script ask the user, in one place: the window shows
// real dialogs, a test answers in their stead. The library's dialogs are the ones every host of
// scripts answers (script::DialoghiLibreria), MsgBox and InputBox the engine's (vbs::UiHandler).
// Called on the window's thread only.

#include <QString>

#include <string>
#include <vector>

#include "archive/Avviso.h"
#include "script/AccessoFile.h"
#include "script/DialoghiLibreria.h"
#include "vbscript/runtime/UiHandler.h"

namespace lottolab::gui {

class DialoghiScript : public script::DialoghiLibreria, public vbs::UiHandler {
 public:
  virtual ~DialoghiScript() = default;

  // A Yes/No question; true for Yes.
  virtual bool Conferma(const QString& testo) = 0;
  // What to do with the changes to the script named `nome` before it is closed or replaced.
  enum class Modifiche { Salva, NonSalvare, Annulla };
  virtual Modifiche ModificheNonSalvate(const QString& nome) = 0;
  virtual void Avvisa(const Avviso& avviso) = 0;
  // The script file to open or to save to; empty when the user cancels.
  virtual QString FileDaAprire(const QString& cartella) = 0;
  virtual QString FileDaSalvare(const QString& proposto) = 0;
  // The mode for a script opened from outside the user's scripts folder; closing the question
  // chooses the protected mode.
  virtual script::Modalita SceltaModalita(const QString& file) = 0;
};

}  // namespace lottolab::gui
