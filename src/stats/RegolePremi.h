#pragma once

// The prize and tax rules of the games, as dated tables. Every rule is a row that holds from its
// date until the next row of the same kind; a lookup takes the date of the draw being paid, so a
// bet checked against the draws of 2004 pays and is taxed as it was then. The rows live in
// RegolePremi.cpp and nowhere else: a change of law is a new row, not an edit of the code.
//
// Amounts are cents per euro staked (a multiplier of 11.23 is 1123); rates are hundredths of a
// percent (8% is 800).

#include <optional>
#include <span>

#include "Denaro.h"
#include "archive/Estrazione.h"

namespace lottolab::stats {

// The Lotto sorti. The first five are the classic ones, numbered by the numbers they need.
enum class SorteLotto : int { Estratto = 1, Ambo, Terno, Quaterna, Cinquina, EstrattoDeterminato, Ambetto };

// The numbers a combination of the sorte holds: 1 for estratto and estratto determinato, 2 for the
// ambetto.
int NumeriDellaSorte(SorteLotto sorte);

// "estratto", "ambo", ..., "estratto determinato", "ambetto".
std::string_view NomeSorte(SorteLotto sorte);
// The sorte of a name as NomeSorte writes it (also "ambata", "determinato" and 1..5), any case.
std::optional<SorteLotto> SorteDaNome(std::string_view nome);

// A date from its day, month and year.
constexpr GruppoData Data(int giorno, int mese, int anno) {
  return GruppoData{0, static_cast<int16_t>(giorno), static_cast<int16_t>(mese), static_cast<int16_t>(anno)};
}

// The multiplier of one combination of the sorte played for one euro on one wheel, gross; none
// when the sorte could not be played on that date (the ambetto before 05/09/2013).
std::optional<Centesimi> MoltiplicatoreLotto(SorteLotto sorte, const GruppoData& data);

// The largest gross win a Lotto ticket may pay in one draw; none when no limit is known for the date.
std::optional<Centesimi> VincitaMassimaBiglietto(const GruppoData& data);

// The withholding tax on the whole gross win of the Lotto.
int RitenutaLotto(const GruppoData& data);

// The limits of the stakes on a Lotto ticket.
struct PosteLotto {
  Centesimi minima_sorte;
  Centesimi minima_biglietto;
  Centesimi passo_biglietto;
  Centesimi massima_biglietto;
  int massimo_numeri;
};
const PosteLotto& LimitiPosteLotto();

// The 10eLotto: the tax on the whole gross win, and the first date of the net prize table.
int RitenutaDieciELotto(const GruppoData& data);
inline constexpr GruppoData kInizioTabellaDieciELotto = Data(1, 7, 2019);

// The SuperEnalotto, its SuperStar and Win for Life: the tax on the part of a win above the
// threshold (0 where none applied).
int RitenutaSuperEnalotto(const GruppoData& data);
inline constexpr Centesimi kFranchigiaSuperEnalotto = 500 * kCentesimiPerEuro;
// The category "punti 2" exists from this date on.
inline constexpr GruppoData kInizioPuntiDue = Data(2, 2, 2016);

}  // namespace lottolab::stats
