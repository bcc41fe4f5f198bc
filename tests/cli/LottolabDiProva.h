#pragma once

// The command line run in-process, in a base folder of the test's own, so that no user's
// configuration is read and every file a command writes is removed with the folder.

#include <gtest/gtest.h>

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
  Uscita Lottolab(const std::vector<std::string>& parole) {
    std::ostringstream out, err;
    int codice = EseguiLottolab(parole, out, err);
    return {codice, out.str(), err.str()};
  }

  test::BaseTemporanea m_base;
};

}  // namespace lottolab::cli
