#include <cstdio>
#include <exception>
#include <iostream>

#include "Comandi.h"
#include "app/ErroreInatteso.h"

int main(int argc, char** argv) {
  // EseguiLottolab reports what escapes a command; this catches what escapes before or after it,
  // such as the words themselves not fitting in memory.
  try {
    return lottolab::cli::EseguiLottolab(lottolab::cli::Parole(argv + 1, argv + argc), std::cout, std::cerr);
  } catch (...) {
    std::fprintf(stderr, "lottolab: %s\n", lottolab::app::DescriviEccezioneCorrente().c_str());
    return 1;
  }
}
