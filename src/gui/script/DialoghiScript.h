#pragma once

// Everything the script window and a running script ask the user, in one place: the window shows
// real dialogs, a test answers in their stead. Called on the window's thread only.

#include <QString>

#include <optional>
#include <string>
#include <vector>

#include "archive/Avviso.h"
#include "script/AccessoFile.h"

namespace lottolab::gui {

class DialoghiScript {
 public:
  virtual ~DialoghiScript() = default;

  // A Yes/No question; true for Yes.
  virtual bool Conferma(const QString& testo) = 0;
  virtual void Avvisa(const Avviso& avviso) = 0;
  // The script file to open or to save to; empty when the user cancels.
  virtual QString FileDaAprire(const QString& cartella) = 0;
  virtual QString FileDaSalvare(const QString& proposto) = 0;
  // The mode for a script opened from outside the user's scripts folder; closing the question
  // chooses the protected mode.
  virtual script::Modalita SceltaModalita(const QString& file) = 0;

  // The engine's MsgBox: the button pressed, as MsgBox's result codes.
  virtual int MessageBox(const QString& testo, int pulsanti, const QString& titolo) = 0;
  // The engine's InputBox: nothing when the user cancels.
  virtual std::optional<QString> InputBox(const QString& testo, const QString& titolo, const QString& proposto) = 0;

  // The library's dialogs, with the meaning InterfacciaScript gives them.
  virtual std::optional<std::vector<int>> ScegliVoci(const std::string& titolo, const std::vector<std::string>& voci,
                                                     bool multipla) = 0;
  virtual std::optional<std::vector<int>> ScegliNumeri(const std::string& titolo, int quanti, int massimo,
                                                       const std::vector<int>& proposti) = 0;
  virtual std::optional<std::vector<double>> ScegliImporti(const std::string& titolo,
                                                           const std::vector<std::string>& voci,
                                                           const std::vector<double>& proposti) = 0;
  virtual std::optional<std::string> ScegliPercorso(const std::string& titolo, const std::string& proposto,
                                                    bool cartella) = 0;
};

}  // namespace lottolab::gui
