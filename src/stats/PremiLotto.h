#pragma once

// The prizes of the Lotto. A ticket line plays one sorte on a group of numbers and wheels with one
// stake; the stake is split evenly over the wheels and over the combinations the numbers make, and
// each wheel where a combination comes out pays it separately. The prize of one winning combination
// is multiplier x stake / (wheels x combinations played), one exact fraction rounded half up to the
// cent (see Denaro.h); a wheel's win is that prize times the winning combinations.

#include <array>
#include <span>
#include <vector>

#include "Denaro.h"
#include "RegolePremi.h"
#include "archive/Estrazione.h"

namespace lottolab::stats {

// One line of a ticket: a sorte on a group of numbers and wheels.
struct PuntataLotto {
  SorteLotto sorte = SorteLotto::Ambo;
  std::vector<int> numeri;
  std::vector<int> ruote;  // 1..11, each once; RuoteGiocate expands Tutte
  Centesimi posta = 0;     // on the sorte, over all the wheels together
  int posizione = 0;       // 1..5 for the estratto determinato, 0 otherwise
};

// The five numbers of one wheel in one draw, in the order drawn; 0 where nothing was drawn.
using CinquinaRuota = std::array<int, kNumeriPerRuota>;
CinquinaRuota NumeriRuota(const Estrazione& estrazione, int ruota);

// The wheels a list names, each once, in the order given: Tutte (kTutteLeRuote) is the ten city
// wheels, Nazionale excluded.
std::vector<int> RuoteGiocate(std::span<const int> ruote);

// Whether the line can be played on that date: numbers 1..90 all different and enough for the
// sorte (2..10 for the ambetto, at most 10), wheels 1..11, a position only for the estratto
// determinato, the sorte existing, a stake between the minimum per sorte and a ticket's maximum.
// The refusal is the user's message.
Esito<Fatto> ControllaPuntata(const PuntataLotto& puntata, const GruppoData& data);

// Whether a ticket's whole stake is allowed: between the minimum and the maximum, in steps.
Esito<Fatto> ControllaBiglietto(Centesimi totale);

// The combinations of the ambetto on these numbers: one played number with a neighbour (on the
// circle of 90) of another played number, the neighbours that are played themselves left out.
int CombinazioniAmbetto(std::span<const int> numeri);

// The combinations the line pays for: C(n, k), the ambetto's, or n for the estratto determinato.
int64_t CombinazioniGiocate(const PuntataLotto& puntata);

// The gross prize of one winning combination on one wheel. The line must pass ControllaPuntata.
Centesimi PremioPerCombinazione(const PuntataLotto& puntata, const GruppoData& data);

// The line's winning combinations on one wheel's numbers.
int64_t CombinazioniVincenti(const PuntataLotto& puntata, const CinquinaRuota& estratti);

// One way the line can win on one wheel in one draw: the numbers drawn for the classic sorti (for
// the ambetto and the estratto determinato, the winning combinations) and the combinations won.
struct EsitoPossibile {
  int punti;
  int64_t combinazioni;
};
// Every way, fewest combinations first.
std::vector<EsitoPossibile> EsitiPossibili(const PuntataLotto& puntata);

struct Tassato {
  Centesimi lordo = 0;
  Centesimi ritenuta = 0;
  Centesimi netto = 0;
};

// A ticket's gross win in one draw held to the largest win per ticket, and the tax withheld on all of it.
Tassato TassaVincitaLotto(Centesimi lordo, const GruppoData& data);

}  // namespace lottolab::stats
