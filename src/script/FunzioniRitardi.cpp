// The delay of a combination: over stats::RitardoCombinazione, and synchronous, where the draw that
// ends the delay must bring the win on several of the wheels played at once.

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "RitardoConRegola.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

Variant Ritardo(const Misura& m) {
  return Variant::Long(stats::RitardoCombinazione(*m.tab, m.giocata.ruote, m.giocata.numeri, m.giocata.sorte, m.fine,
                                                  m.posizioni, m.inizio));
}

Result<Variant> RitardoCombinazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto misura, MisuraGruppo(lib, args, {.inizio = 5, .fine = 3, .posizioni = 4}));
  return Ritardo(misura);
}

Result<Variant> RitardoSuRuota(Libreria& lib, CallArgs& args, int quanti_numeri) {
  VBS_TRY_ASSIGN(auto misura, MisuraSuRuota(lib, args, quanti_numeri, PostiDopoINumeri(quanti_numeri)));
  return Ritardo(misura);
}

Result<Variant> EstrattoRitardo(Libreria& lib, CallArgs& args) { return RitardoSuRuota(lib, args, 1); }

Result<Variant> AmboRitardo(Libreria& lib, CallArgs& args) { return RitardoSuRuota(lib, args, 2); }

// Level 1 is the plain delay; each level above asks for one more wheel winning in the same draw.
Result<Variant> RitSincDiLiv(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto misura, MisuraGruppo(lib, args, {.inizio = 4, .fine = 5, .posizioni = std::nullopt}));
  const std::vector<int> ruote = RuoteSingole(misura.giocata.ruote);
  const int quante_ruote = static_cast<int>(ruote.size());
  VBS_TRY_ASSIGN(auto livello, args.Long(3));
  if (livello < 1 || livello > quante_ruote) {
    return ArgomentoNonValido(
        fmt::format("Livello non valido: {} (da 1 a {}, quante sono le ruote giocate)", livello, quante_ruote));
  }
  // A flag for every value a byte of a draw can hold, so that a damaged record reads no further.
  std::array<bool, 256> giocato{};
  for (int numero : misura.giocata.numeri) giocato[static_cast<size_t>(numero)] = true;
  const int sorte = misura.giocata.sorte;
  const auto vince = [&](const Estrazione& estrazione) {
    const int vincenti = static_cast<int>(std::count_if(ruote.begin(), ruote.end(), [&](int ruota) {
      int colpi = 0;
      for (int p = 1; p <= kNumeriPerRuota; ++p) colpi += giocato[estrazione.Numero(ruota, p)] ? 1 : 0;
      return colpi >= sorte;
    }));
    return vincenti >= livello;
  };
  return Variant::Long(RitardoConRegola(*misura.tab, ruote, misura.inizio, misura.fine, vince));
}

const Libreria::Funzione kRitardi[] = {
    {"RitardoCombinazione", 4, 6, &RitardoCombinazione,
     "aRuote, aNumeri, Sorte, Fine, [aPosizioni], [Inizio]: le estrazioni da Fine indietro fino all'ultima vincita "
     "di almeno Sorte (1..5) numeri di aNumeri su una ruota di aRuote, in Inizio..Fine (Long); aPosizioni(1..5) True "
     "per le posizioni che contano, tutte se omesso; Fine omesso = ultima estrazione, Inizio omesso = 1",
     "Long: le estrazioni trascorse dall'ultima vincita (0 se vinta in Fine, tutte quelle di Inizio..Fine se mai "
     "vinta)",
     "ReDim aR(1) : aR(1) = BA_ : ReDim aN(2) : aN(1) = 12 : aN(2) = 34 : Scrivi RitardoCombinazione(aR, aN, AMBO_, "
     "EstrazioniArchivio)"},
    {"EstrattoRitardo", 2, 5, &EstrattoRitardo,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: il ritardo di Numero su Ruota (TU_ per "
     "tutte) a Fine (Long)",
     "Long: il ritardo attuale (0 se uscito nell'estrazione Fine)",
     "Scrivi EstrattoRitardo(BA_, 90, 1, EstrazioniArchivio)"},
    {"RitardoEstratto", 2, 5, &EstrattoRitardo,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: lo stesso di EstrattoRitardo (Long)",
     "Long: il ritardo attuale (0 se uscito nell'estrazione Fine)", "Scrivi RitardoEstratto(TU_, 7)"},
    {"AmboRitardo", 3, 6, &AmboRitardo,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: il ritardo dell'ambo su Ruota "
     "(TU_ per tutte) a Fine, con entrambi i numeri su una ruota della stessa estrazione (Long)",
     "Long: il ritardo dell'ambo (0 se uscito nell'estrazione Fine)",
     "Scrivi AmboRitardo(NA_, 12, 34, 1, EstrazioniArchivio)"},
    {"RitSincDiLiv", 4, 6, &RitSincDiLiv,
     "aRuote, aNumeri, Sorte, Livello, [Inizio = 1], [Fine = ultima estrazione]: il ritardo sincrono di livello "
     "Livello: le estrazioni da Fine indietro fino all'ultima di Inizio..Fine in cui almeno Sorte numeri di "
     "aNumeri sono usciti su ciascuna di almeno Livello ruote di aRuote (Livello da 1 al numero di ruote, TU_ ne "
     "vale 11); con Livello 1 è il ritardo di RitardoCombinazione (Long)",
     "Long: il ritardo sincrono di quel livello",
     "aR = Array(BA_, CA_, FI_) : aN = Array(1, 2, 3, 4, 5, 6, 7, 8, 9, 10) : Scrivi RitSincDiLiv(aR, aN, AMBATA_, 2)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniRitardi() { return kRitardi; }

}  // namespace lottolab::script
