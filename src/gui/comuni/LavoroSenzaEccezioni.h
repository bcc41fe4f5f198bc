#pragma once

// Work handed to a thread of its own. An exception that escapes a thread ends the whole program,
// taking the user's open windows with it, so whatever the work throws becomes the failure it reports.

#include <utility>

#include "app/ErroreInatteso.h"
#include "archive/Esito.h"

namespace lottolab::gui {

// What `lavoro` returns, or a critical message titled `procedura` when it throws.
template <typename T, typename Lavoro>
Esito<T> SenzaEccezioni(const char* procedura, Lavoro&& lavoro) {
  try {
    return std::forward<Lavoro>(lavoro)();
  } catch (...) {
    // 51 is the number users know for an internal error.
    return AvvisoCritico(procedura, 51, app::DescriviEccezioneCorrente());
  }
}

}  // namespace lottolab::gui
