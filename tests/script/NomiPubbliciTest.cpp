#include "script/NomiPubblici.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>

#include "script/ClsFunctionsGeodoScript.h"

namespace lottolab::script {
namespace {

std::string Minuscolo(std::string_view nome) {
  std::string piegato(nome);
  std::transform(piegato.begin(), piegato.end(), piegato.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return piegato;
}

std::set<std::string_view> Pubblici() {
  std::set<std::string_view> nomi;
  for (const FamigliaDiNomi& famiglia : NomiPubblici()) nomi.insert(famiglia.nomi.begin(), famiglia.nomi.end());
  return nomi;
}

TEST(NomiPubblici, SixHundredTwentyNineNamesEachOnce) {
  size_t elencati = 0;
  std::set<std::string> piegati;
  for (const FamigliaDiNomi& famiglia : NomiPubblici()) {
    elencati += famiglia.nomi.size();
    for (std::string_view nome : famiglia.nomi) piegati.insert(Minuscolo(nome));
  }
  EXPECT_EQ(elencati, 629u);
  EXPECT_EQ(piegati.size(), 629u);
}

TEST(NomiPubblici, TheLibraryBindsOnlyPublicNamesAndEachOnce) {
  const auto pubblici = Pubblici();
  const auto costanti = FunzioniCostanti();
  std::set<std::string> legati;
  for (const ClsFunctionsGeodoScript::Funzione& funzione : ClsFunctionsGeodoScript::Funzioni()) {
    EXPECT_TRUE(legati.insert(Minuscolo(funzione.nome)).second) << funzione.nome << " is bound twice";
    const bool costante =
        std::any_of(costanti.begin(), costanti.end(), [&](const auto& c) { return c.nome == funzione.nome; });
    EXPECT_TRUE(costante || pubblici.contains(funzione.nome)) << funzione.nome << " is not a public name";
    EXPECT_FALSE(funzione.descrizione.empty()) << funzione.nome << " has no description";
  }
}

}  // namespace
}  // namespace lottolab::script
