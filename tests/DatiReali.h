#pragma once

// Access to the real draws kept beside the project. Tests that need them call
// LOTTOLAB_RICHIEDI_DATI_REALI() first and are skipped, with the reason, when the folder is absent.

#include <filesystem>
#include <gtest/gtest.h>

namespace lottolab::test {

inline std::filesystem::path CartellaDatiReali() { return std::filesystem::path(LOTTOLAB_SHARED_DIR) / "data"; }

inline bool DatiRealiPresenti() { return std::filesystem::exists(CartellaDatiReali() / "lotto.txt"); }

}  // namespace lottolab::test

#define LOTTOLAB_RICHIEDI_DATI_REALI()                                                             \
  do {                                                                                             \
    if (!::lottolab::test::DatiRealiPresenti())                                                    \
      GTEST_SKIP() << "real draws not found in " << ::lottolab::test::CartellaDatiReali().string() \
                   << " (the shared data folder beside the project)";                              \
  } while (0)
