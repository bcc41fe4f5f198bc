#pragma once

// The games besides the Lotto and what one of their draws holds. Each game keeps its draws in an
// archive of its own, of fixed records shaped by its format (ArchivioGioco.h); the games differ in
// nothing else that the statistics need.

#include <string_view>

namespace lottolab {

enum class Gioco : unsigned char { SuperEnalotto, DieciELotto, DieciELottoOgniCinqueMinuti, WinForLife, Generico };

// The main numbers of a draw and their range; the further numbers that only the functions naming
// them count: a second set drawn after the main numbers (the 10eLotto's Extra), and single numbers
// (Jolly and SuperStar; Numero Oro, Doppio Oro and Gong; Numerone); whether a contest has a time of
// day besides its date.
struct FormatoGioco {
  Gioco gioco = Gioco::Generico;
  std::string_view sigla;  // as the library's names end and the command line's --gioco names it
  std::string_view nome;
  int numeri = 0;
  int massimo = 0;
  int extra = 0;
  int speciali = 0;
  int massimo_speciale = 0;
  bool con_ora = false;
};

inline constexpr int kMassimoNumeriGioco = 20;
inline constexpr int kMassimoExtraGioco = 15;
inline constexpr int kMassimoSpecialiGioco = 3;

const FormatoGioco& Formato(Gioco gioco);

// The name of the game's special number i (0-based) as players know it ("Jolly", "Numerone"); the
// generic archive has none.
std::string_view NomeNumeroSpeciale(Gioco gioco, int i);

// A lottery the program does not know: K numbers of 1..M a draw, nothing else.
FormatoGioco FormatoGenerico(int numeri, int massimo);

}  // namespace lottolab
