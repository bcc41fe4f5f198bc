#pragma once

// What a running script needs from whoever runs it: the desktop's script window, the command line,
// a test. The library writes output, shows messages and moves the progress bar only through here,
// so the script host runs headless.

#include <optional>
#include <string>
#include <vector>

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

class InterfacciaScript {
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

  // The dialogs a script opens. Each gives nothing when the user cancels; a host that asks nobody
  // keeps these defaults, which take the answer the dialog proposes.

  // Items of `voci`, by position from 0: one, or any number of them when `multipla`. The default is
  // the first item.
  virtual std::optional<std::vector<int>> ScegliVoci(const std::string& /*titolo*/,
                                                     const std::vector<std::string>& voci, bool /*multipla*/) {
    return voci.empty() ? std::vector<int>{} : std::vector<int>{0};
  }
  // Up to `quanti` whole numbers from 1 to `massimo`; the default is `proposti`.
  virtual std::optional<std::vector<int>> ScegliNumeri(const std::string& /*titolo*/, int /*quanti*/,
                                                       int /*massimo*/, const std::vector<int>& proposti) {
    return proposti;
  }
  // An amount for each of `voci` (the stakes of a bet, one per sorte); the default is `proposti`.
  virtual std::optional<std::vector<double>> ScegliImporti(const std::string& /*titolo*/,
                                                           const std::vector<std::string>& /*voci*/,
                                                           const std::vector<double>& proposti) {
    return proposti;
  }
  // A file, or a folder when `cartella`; the default is `proposto`.
  virtual std::optional<std::string> ScegliPercorso(const std::string& /*titolo*/, const std::string& proposto,
                                                    bool /*cartella*/) {
    return proposto;
  }
};

}  // namespace lottolab::script
