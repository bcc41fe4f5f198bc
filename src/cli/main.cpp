#include <iostream>

#include "Comandi.h"

int main(int argc, char** argv) {
  return lottolab::cli::EseguiLottolab(lottolab::cli::Parole(argv + 1, argv + argc), std::cout, std::cerr);
}
