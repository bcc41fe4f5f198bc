#pragma once

// The command line run in-process, in a base folder of the test's own, so that no user's
// configuration is read and every file a command writes is removed with the folder.

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "TempDir.h"
#include "cli/Comandi.h"

namespace lottolab::cli {

struct Uscita {
  int codice;
  std::string out;
  std::string err;
};

class LottolabDiProva : public ::testing::Test {
 protected:
  void SetUp() override { setenv("LOTTOLAB_HOME", m_base.Percorso().c_str(), 1); }
  void TearDown() override { unsetenv("LOTTOLAB_HOME"); }

  Uscita Lottolab(const std::vector<std::string>& parole) {
    std::ostringstream out, err;
    int codice = EseguiLottolab(parole, out, err);
    return {codice, out.str(), err.str()};
  }

  test::CartellaTemporanea m_base;
};

}  // namespace lottolab::cli
