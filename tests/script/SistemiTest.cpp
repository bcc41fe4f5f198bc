#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "LibreriaDiProva.h"

namespace lottolab::script {
namespace {

// The columns a script receives hold its own numbers and keep the guarantee: whichever three of
// the nine come out, some column holds two of them, counted here over every group of three.
TEST_F(Libreria, UnSistemaRidottoHaINumeriDelloScriptEMantieneLaGaranzia) {
  Avvia(TabellaEstrazioni());
  const std::vector<int> numeri{3, 11, 19, 27, 38, 44, 52, 69, 90};
  Esegui("Dim a, n : n = GetMatriceSistemaRidotto(Array(3, 11, 19, 27, 38, 44, 52, 69, 90), 4, 2, a, 3)");
  const int colonne = std::stoi(Testo("n"));
  ASSERT_GT(colonne, 0);
  EXPECT_EQ(Testo("UBound(a, 1) & \" \" & UBound(a, 2)"), fmt::format("{} 4", colonne));
  std::vector<std::vector<int>> sistema(static_cast<size_t>(colonne));
  for (int c = 1; c <= colonne; ++c)
    for (int j = 1; j <= 4; ++j)
      sistema[static_cast<size_t>(c - 1)].push_back(std::stoi(Testo(fmt::format("a({}, {})", c, j))));
  for (const auto& colonna : sistema)
    for (int numero : colonna) ASSERT_NE(std::find(numeri.begin(), numeri.end(), numero), numeri.end()) << numero;
  for (size_t x = 0; x < numeri.size(); ++x)
    for (size_t y = x + 1; y < numeri.size(); ++y)
      for (size_t z = y + 1; z < numeri.size(); ++z) {
        const bool coperto = std::any_of(sistema.begin(), sistema.end(), [&](const std::vector<int>& colonna) {
          return std::count_if(colonna.begin(), colonna.end(),
                               [&](int n) { return n == numeri[x] || n == numeri[y] || n == numeri[z]; }) >= 2;
        });
        ASSERT_TRUE(coperto) << numeri[x] << " " << numeri[y] << " " << numeri[z];
      }
  EXPECT_LT(colonne, 9 * 8 * 7 * 6 / 24) << "reduced, not the integral development";

  EXPECT_TRUE(Vuoto("GetMatriceSistemaRidotto(Array(1, 2, 2, 4), 2, 2, a)"));
  AvvisoErrore5("GetMatriceSistemaRidotto", "diversi", "a number given twice");
}

}  // namespace
}  // namespace lottolab::script
