#pragma once

// The arguments of the functions that measure numbers and combinations over a range of draws: the
// delay, statistics, list and relative-delay families read them alike, with the same messages.
//
// The statistics take their preconditions on trust, so every argument a script gives is checked
// here first: a wrong sorte, wheel or range is the script's mistake and must reach its author as
// error 5 with a message, never as a failed assertion.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "ClsFunctionsGeodoScript.h"
#include "stats/Ritardi.h"

namespace lottolab::script {

// The numbers played, on which wheels (table numbering, 12 for all), for how many hits.
struct Giocata {
  std::vector<int> ruote;
  std::vector<int> numeri;
  int sorte = 1;
};

// Where the optional arguments sit in a function's list; no place for the positions when the
// function takes none.
struct PostiFacoltativi {
  size_t inizio;
  size_t fine;
  std::optional<size_t> posizioni;
};

// Everything a measure needs, checked.
struct Misura {
  const TabellaEstrazioni* tab = nullptr;
  Giocata giocata;
  int inizio = 1;
  int fine = 1;
  stats::Posizioni posizioni = stats::kTuttePosizioni;
};

// A range of draws of the table, inizio <= fine.
struct Intervallo {
  int inizio = 1;
  int fine = 0;
};

// Argument i as the wheels played: at least one, each 1..12 in the table's numbering.
vbs::Result<std::vector<int>> RuoteGiocate(const vbs::CallArgs& args, size_t i);

// Argument i as one wheel in the table's numbering, 1..ultima: kNumeroRuote where only a single
// wheel makes sense, kTutteLeRuote where all the wheels together do too.
vbs::Result<int> RuotaArgomento(const vbs::CallArgs& args, size_t i, int ultima);

// Argument i as one number, brought into 1..90.
vbs::Result<int> NumeroArgomento(const vbs::CallArgs& args, size_t i);

// Argument i as a whole number in da..a; the message names it `nome`.
vbs::Result<int> InteroTra(const vbs::CallArgs& args, size_t i, int da, int a, std::string_view nome);

// Argument i as a sorte, 1..5.
vbs::Result<int> SorteArgomento(const vbs::CallArgs& args, size_t i);

// Argument i as a draw of the table, `se_omesso` when it was omitted; error 5, naming the argument,
// outside the archive.
vbs::Result<int> EstrazioneArgomento(const TabellaEstrazioni& tab, const vbs::CallArgs& args, size_t i, int se_omesso,
                                     std::string_view nome);
// The same for an archive of `estrazioni` draws, of any game.
vbs::Result<int> EstrazioneArgomento(int estrazioni, const vbs::CallArgs& args, size_t i, int se_omesso,
                                     std::string_view nome);

// Argument i as the flags of positions 1..quante (at most 32), bit p - 1 for position p: every
// position when omitted. The flags are read at indices 1..quante, whatever the array's lower bound,
// as scripts fill them.
vbs::Result<uint32_t> PosizioniArgomento(const vbs::CallArgs& args, std::optional<size_t> i, int quante);

// The range of draws from the optional arguments at i_inizio (none when the function always starts
// from the first draw) and i_fine, the whole archive by default; error 5 when Inizio comes after Fine.
vbs::Result<Intervallo> IntervalloArgomento(const TabellaEstrazioni& tab, const vbs::CallArgs& args,
                                            std::optional<size_t> i_inizio, size_t i_fine);

// aRuote, aNumeri, Sorte as arguments 0, 1, 2, then the optional ones where `posti` says. A range
// with Inizio after Fine is accepted here and measures no draw.
vbs::Result<Misura> MisuraGruppo(const ClsFunctionsGeodoScript& lib, const vbs::CallArgs& args, PostiFacoltativi posti);

// Ruota and `quanti_numeri` single numbers (each brought into 1..90) from argument 0, played for as
// many hits as there are numbers, then the optional ones where `posti` says.
vbs::Result<Misura> MisuraSuRuota(const ClsFunctionsGeodoScript& lib, const vbs::CallArgs& args, int quanti_numeri,
                                  PostiFacoltativi posti);

// Inizio, Fine and aPosizioni right after the numbers of MisuraSuRuota.
PostiFacoltativi PostiDopoINumeri(int quanti_numeri);

}  // namespace lottolab::script
