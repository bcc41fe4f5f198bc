// The delay of a combination, over stats::RitardoCombinazione.
//
// The statistics take their preconditions on trust, so every argument a script gives is checked
// here first: a wrong sorte, wheel or range is the script's mistake and must reach its author as a
// message, never as a failed assertion.

#include <fmt/format.h>

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "stats/Numeri.h"
#include "stats/Ritardi.h"
#include "vbscript/SafeArray.h"
#include "vbscript/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

vbs::ScriptError ArgomentoNonValido(std::string descrizione) {
  return vbs::ScriptError{5, vbs::Utf8ToUtf16(descrizione), {}, {}, false};
}

// Where the optional arguments sit in each function's list.
struct PostiFacoltativi {
  size_t inizio;
  size_t fine;
  size_t posizioni;
};

struct Combinazione {
  std::vector<int> ruote;
  std::vector<int> numeri;
  int sorte = 1;
};

Result<std::vector<int>> RuoteGiocate(const CallArgs& args, size_t i) {
  auto ruote = RuoteArgomento(args, i);
  if (!ruote) return std::move(ruote).error();
  if (ruote->empty()) return ArgomentoNonValido("Nessuna ruota indicata");
  for (int ruota : *ruote) {
    if (ruota < 1 || ruota > kTutteLeRuote)
      return ArgomentoNonValido(fmt::format("Ruota non valida: {} (da 1 a 12, TU_ per tutte)", ruota));
  }
  return ruote;
}

Result<std::vector<int>> NumeriGiocati(const CallArgs& args, size_t i) {
  auto numeri = NumeriArgomento(args, i);
  if (!numeri) return std::move(numeri).error();
  if (numeri->empty()) return ArgomentoNonValido("Nessun numero indicato");
  return numeri;
}

Result<int> Sorte(const CallArgs& args, size_t i) {
  auto sorte = args.Long(i);
  if (!sorte) return std::move(sorte).error();
  if (*sorte < 1 || *sorte > kNumeriPerRuota)
    return ArgomentoNonValido(fmt::format("Sorte non valida: {} (da 1 a 5)", *sorte));
  return *sorte;
}

Result<int> Estremo(const TabellaEstrazioni& tab, const CallArgs& args, size_t i, int se_omesso,
                    std::string_view nome) {
  auto id_estr = args.Long(i, se_omesso);
  if (!id_estr) return std::move(id_estr).error();
  if (!tab.Contiene(*id_estr)) {
    return ArgomentoNonValido(fmt::format("{} fuori dall'archivio: {} (le estrazioni vanno da 1 a {})", nome,
                                          *id_estr, tab.EstrazioniArchivio()));
  }
  return *id_estr;
}

// The flags are read at indices 1..5, whatever the array's lower bound, as scripts fill them.
Result<stats::Posizioni> PosizioniGiocate(const CallArgs& args, size_t i) {
  if (!args.Has(i)) return stats::kTuttePosizioni;
  auto valore = args.Value(i);
  if (!valore) return std::move(valore).error();
  constexpr std::string_view kForma = "Le posizioni vanno date in un array con gli indici da 1 a 5";
  if (!valore->is_array()) return ArgomentoNonValido(std::string(kForma));
  stats::Posizioni posizioni{};
  for (int32_t p = 1; p <= kNumeriPerRuota; ++p) {
    auto flag = vbs::ReadElement(*valore, std::span<const int32_t>(&p, 1));
    if (!flag) return ArgomentoNonValido(std::string(kForma));
    auto attiva = flag->to_boolean(args.locale());
    if (!attiva) return std::move(attiva).error();
    posizioni[static_cast<size_t>(p - 1)] = *attiva;
  }
  return posizioni;
}

Result<Variant> Ritardo(const Libreria& lib, const CallArgs& args, const Combinazione& giocata,
                        PostiFacoltativi posti) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  const TabellaEstrazioni& tab = **archivio;
  auto inizio = Estremo(tab, args, posti.inizio, 1, "Inizio");
  if (!inizio) return std::move(inizio).error();
  auto fine = Estremo(tab, args, posti.fine, tab.EstrazioniArchivio(), "Fine");
  if (!fine) return std::move(fine).error();
  auto posizioni = PosizioniGiocate(args, posti.posizioni);
  if (!posizioni) return std::move(posizioni).error();
  return Variant::Long(
      stats::RitardoCombinazione(tab, giocata.ruote, giocata.numeri, giocata.sorte, *fine, *posizioni, *inizio));
}

Result<Variant> RitardoCombinazione(Libreria& lib, CallArgs& args) {
  Combinazione giocata;
  auto ruote = RuoteGiocate(args, 0);
  if (!ruote) return std::move(ruote).error();
  giocata.ruote = std::move(*ruote);
  auto numeri = NumeriGiocati(args, 1);
  if (!numeri) return std::move(numeri).error();
  giocata.numeri = std::move(*numeri);
  auto sorte = Sorte(args, 2);
  if (!sorte) return std::move(sorte).error();
  giocata.sorte = *sorte;
  return Ritardo(lib, args, giocata, {.inizio = 5, .fine = 3, .posizioni = 4});
}

// One wheel and the numbers from argument 1 on, each a single value, played for as many hits as
// there are numbers.
Result<Variant> RitardoSuRuota(Libreria& lib, CallArgs& args, int quanti_numeri) {
  Combinazione giocata;
  auto ruote = RuoteGiocate(args, 0);
  if (!ruote) return std::move(ruote).error();
  giocata.ruote = std::move(*ruote);
  for (size_t i = 1; i <= static_cast<size_t>(quanti_numeri); ++i) {
    auto numero = args.Double(i);
    if (!numero) return std::move(numero).error();
    giocata.numeri.push_back(stats::Fuori90(*numero));
  }
  giocata.sorte = quanti_numeri;
  const size_t dopo = static_cast<size_t>(quanti_numeri) + 1;
  return Ritardo(lib, args, giocata, {.inizio = dopo, .fine = dopo + 1, .posizioni = dopo + 2});
}

Result<Variant> EstrattoRitardo(Libreria& lib, CallArgs& args) { return RitardoSuRuota(lib, args, 1); }

Result<Variant> AmboRitardo(Libreria& lib, CallArgs& args) { return RitardoSuRuota(lib, args, 2); }

const Libreria::Funzione kRitardi[] = {
    {"RitardoCombinazione", 4, 6, &RitardoCombinazione,
     "aRuote, aNumeri, Sorte, Fine, [aPosizioni], [Inizio]: draws from Fine back to the last win of at least Sorte "
     "(1..5) of aNumeri on one wheel of aRuote, Inizio..Fine (Long); aPosizioni(1..5) True for the positions that "
     "count, all by default; Fine omitted = last draw, Inizio omitted = 1"},
    {"EstrattoRitardo", 2, 5, &EstrattoRitardo,
     "Ruota, Numero, [Inizio = 1], [Fine = last draw], [aPosizioni]: the delay of Numero on Ruota (TU_ for all) "
     "at Fine (Long)"},
    {"AmboRitardo", 3, 6, &AmboRitardo,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = last draw], [aPosizioni]: the delay of the ambo on Ruota "
     "(TU_ for all) at Fine, both numbers on one wheel of one draw (Long)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniRitardi() { return kRitardi; }

}  // namespace lottolab::script
