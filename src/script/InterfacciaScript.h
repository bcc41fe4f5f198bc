#pragma once

// What a running script needs from whoever runs it: the desktop's script window, the command line,
// a test. The library writes output, shows messages and moves the progress bar only through here,
// so the script host runs headless.

#include <cstdint>
#include <string>

#include "AreaDisegno.h"
#include "DialoghiLibreria.h"
#include "archive/Avviso.h"

namespace lottolab::script {

// The colours scripts name by index, with the constants Nero_ .. Magenta_.
inline constexpr int16_t kNero = 0;
inline constexpr int16_t kBlu = 1;
inline constexpr int16_t kRosso = 2;
inline constexpr int16_t kVerde = 3;
inline constexpr int16_t kGiallo = 4;
inline constexpr int16_t kBianco = 5;
inline constexpr int16_t kCiano = 6;
inline constexpr int16_t kMagenta = 7;

// A run of the text output written in one style, kept so that the desktop can colour it.
struct TrattoTesto {
  std::string testo;
  int16_t colore = kNero;
  bool grassetto = false;
};

// The dialogs come from DialoghiLibreria, with their defaults for a host that asks nobody.
class InterfacciaScript : public DialoghiLibreria {
 public:
  virtual ~InterfacciaScript() = default;
  // A piece of the text output, as soon as the script writes it.
  virtual void Scrivi(const TrattoTesto& tratto) = 0;
  // A message the user must read: a library function's failure, a missing include.
  virtual void Mostra(const Avviso& avviso) = 0;
  // A short notice from the script (Messaggio), for a status line.
  virtual void Messaggio(const std::string& testo) = 0;
  // Progress of a long elaboration, 0 to 100.
  virtual void Avanzamento(double percentuale) = 0;
  // The picture area of the Pic... functions and of the circle; none for a host that draws
  // nothing, and the library then refuses those functions with a clear message.
  virtual AreaDisegno* Disegno() { return nullptr; }
  // The window's title, as the script sets F_Script.Caption; a host without a window keeps none.
  virtual void Titolo(const std::string& /*testo*/) {}
  // Drops the text output written so far (F_Script.PulisciOutput); a printed output stays.
  virtual void PulisciOutput() {}
  // Shows or hides the progress bar (VisualizzaFormProgress).
  virtual void MostraAvanzamento(bool /*visibile*/) {}
};

}  // namespace lottolab::script
