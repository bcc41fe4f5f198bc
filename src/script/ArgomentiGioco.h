#pragma once

// The arguments of the library's names for the games besides the Lotto. Their lists are the Lotto
// twin's without the wheel, since each of these games draws on one "wheel" only: EstrattoSE(IdEstr,
// Posizione) beside Estratto(IdEstr, Ruota, Posizione). Numbers are brought into 1..M of the game as
// the Lotto's into 1..90, a sorte goes up to the numbers of a draw, positions up to the same.

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "ArchiviGiochi.h"
#include "ArgomentiRitardi.h"
#include "ClsFunctionsGeodoScript.h"
#include "stats/RitardiGioco.h"

namespace lottolab::script {

// The table the suffix names; error 5 saying why when there is none (missing, empty, damaged).
vbs::Result<const TabellaGioco*> TabellaDelGioco(ClsFunctionsGeodoScript& lib, Suffisso suffisso);

// Argument i as a draw of the table: error 9 outside it, as for the Lotto's archive.
vbs::Result<const EstrazioneGioco*> EstrazioneDelGioco(const TabellaGioco& tab, const vbs::CallArgs& args, size_t i);

// Argument i as a time of day, "hh:mm" (or "hh.mm"), in minutes after midnight.
vbs::Result<int> OraArgomento(const vbs::CallArgs& args, size_t i);

// Argument i as one number, brought into 1..M.
vbs::Result<int> NumeroDelGioco(const TabellaGioco& tab, const vbs::CallArgs& args, size_t i);

// Inizio at i_inizio (1 when omitted, or when the function has none) and Fine at i_fine (the last
// draw when omitted), each a draw of the table; a range with Inizio after Fine measures no draw.
vbs::Result<Intervallo> IntervalloGioco(const TabellaGioco& tab, const vbs::CallArgs& args,
                                        std::optional<size_t> i_inizio, size_t i_fine);

// What a measure of a combination in a game's archive needs, checked.
struct MisuraGioco {
  const TabellaGioco* tab = nullptr;
  std::vector<int> numeri;
  int sorte = 1;
  int inizio = 1;
  int fine = 1;
  stats::PosizioniGioco posizioni = stats::kTutteLePosizioniGioco;
};

// Where Inizio, Fine and aPosizioni sit; none for the positions when the function takes none.
struct PostiGioco {
  size_t inizio;
  size_t fine;
  std::optional<size_t> posizioni;
};

// aNumeri, Sorte as arguments 0 and 1, then the optional ones where `posti` says.
vbs::Result<MisuraGioco> MisuraGruppoGioco(ClsFunctionsGeodoScript& lib, Suffisso suffisso, const vbs::CallArgs& args,
                                           PostiGioco posti);

// `quanti` single numbers from argument 0, played for as many hits, then Inizio, Fine, aPosizioni.
vbs::Result<MisuraGioco> MisuraNumeriGioco(ClsFunctionsGeodoScript& lib, Suffisso suffisso, const vbs::CallArgs& args,
                                           int quanti);

}  // namespace lottolab::script
