#pragma once

// Bets and checks for the agenda's tests.

#include <algorithm>
#include <vector>

#include "agenda/Agenda.h"

namespace lottolab::agenda::test {

// 12 34 56 on Bari and Venezia, ambo 1 euro and terno 0.50, ten colpi from 05/01/2023.
inline Giocata GiocataLotto() {
  Giocata giocata;
  giocata.colonne = {{12, 34, 56}};
  giocata.ruote = {BA, VE};
  giocata.poste = {{"ambo", 100}, {"terno", 50}};
  giocata.dal = GruppoData{0, 5, 1, 2023};
  giocata.colpi = 10;
  giocata.nota = "dal giornale";
  return giocata;
}

// A check of `colpi` draws from IdEstr 100, each spending `spesa` cents; the draws listed in
// `vincenti` win an ambo of `lordo` cents on Bari, taxed 8%.
inline std::vector<VerificaColpo> Verifica(int colpi, int64_t spesa, std::vector<int> vincenti = {},
                                           int64_t lordo = 0) {
  std::vector<VerificaColpo> verifiche;
  for (int k = 0; k < colpi; ++k) {
    VerificaColpo colpo{100 + k, GruppoData{0, static_cast<int16_t>(5 + k), 1, 2023}, spesa, 0, 0, 0, {}};
    if (std::find(vincenti.begin(), vincenti.end(), k + 1) != vincenti.end()) {
      colpo.lordo = lordo;
      colpo.ritenuta = lordo * 8 / 100;
      colpo.netto = colpo.lordo - colpo.ritenuta;
      colpo.vincite.push_back(VincitaColpo{BA, "ambo", {12, 34}, 1, lordo});
    }
    verifiche.push_back(colpo);
  }
  return verifiche;
}

}  // namespace lottolab::agenda::test
