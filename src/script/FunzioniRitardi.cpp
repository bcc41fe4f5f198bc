// The delay of a combination, over stats::RitardoCombinazione, and the reading of the arguments that
// every function measuring a combination shares.

#include <fmt/format.h>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "stats/Numeri.h"
#include "vbscript/SafeArray.h"
#include "vbscript/Utf.h"

namespace lottolab::script {

vbs::Result<std::vector<int>> RuoteGiocate(const vbs::CallArgs& args, size_t i) {
  auto ruote = RuoteArgomento(args, i);
  if (!ruote) return std::move(ruote).error();
  if (ruote->empty()) return ArgomentoNonValido("Nessuna ruota indicata");
  for (int ruota : *ruote) {
    if (ruota < 1 || ruota > kTutteLeRuote)
      return ArgomentoNonValido(fmt::format("Ruota non valida: {} (da 1 a 12, TU_ per tutte)", ruota));
  }
  return ruote;
}

vbs::Result<int> EstrazioneArgomento(const TabellaEstrazioni& tab, const vbs::CallArgs& args, size_t i, int se_omesso,
                                     std::string_view nome) {
  auto id_estr = args.Long(i, se_omesso);
  if (!id_estr) return std::move(id_estr).error();
  if (!tab.Contiene(*id_estr)) {
    return ArgomentoNonValido(fmt::format("{} fuori dall'archivio: {} (le estrazioni vanno da 1 a {})", nome,
                                          *id_estr, tab.EstrazioniArchivio()));
  }
  return *id_estr;
}

namespace {

using namespace famiglia;

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

// The flags are read at indices 1..5, whatever the array's lower bound, as scripts fill them.
Result<stats::Posizioni> PosizioniGiocate(const CallArgs& args, std::optional<size_t> i) {
  if (!i || !args.Has(*i)) return stats::kTuttePosizioni;
  auto valore = args.Value(*i);
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

// The archive, the range and the positions, once the combination is read.
Result<Misura> Completa(const Libreria& lib, const CallArgs& args, Giocata giocata, PostiFacoltativi posti) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  Misura misura;
  misura.tab = *archivio;
  misura.giocata = std::move(giocata);
  auto inizio = EstrazioneArgomento(*misura.tab, args, posti.inizio, 1, "Inizio");
  if (!inizio) return std::move(inizio).error();
  misura.inizio = *inizio;
  auto fine = EstrazioneArgomento(*misura.tab, args, posti.fine, misura.tab->EstrazioniArchivio(), "Fine");
  if (!fine) return std::move(fine).error();
  misura.fine = *fine;
  auto posizioni = PosizioniGiocate(args, posti.posizioni);
  if (!posizioni) return std::move(posizioni).error();
  misura.posizioni = *posizioni;
  return misura;
}

}  // namespace

Result<Misura> MisuraGruppo(const Libreria& lib, const CallArgs& args, PostiFacoltativi posti) {
  Giocata giocata;
  auto ruote = RuoteGiocate(args, 0);
  if (!ruote) return std::move(ruote).error();
  giocata.ruote = std::move(*ruote);
  auto numeri = NumeriGiocati(args, 1);
  if (!numeri) return std::move(numeri).error();
  giocata.numeri = std::move(*numeri);
  auto sorte = Sorte(args, 2);
  if (!sorte) return std::move(sorte).error();
  giocata.sorte = *sorte;
  return Completa(lib, args, std::move(giocata), posti);
}

Result<Misura> MisuraSuRuota(const Libreria& lib, const CallArgs& args, int quanti_numeri, PostiFacoltativi posti) {
  Giocata giocata;
  auto ruote = RuoteGiocate(args, 0);
  if (!ruote) return std::move(ruote).error();
  giocata.ruote = std::move(*ruote);
  for (size_t i = 1; i <= static_cast<size_t>(quanti_numeri); ++i) {
    auto numero = args.Double(i);
    if (!numero) return std::move(numero).error();
    giocata.numeri.push_back(stats::Fuori90(*numero));
  }
  giocata.sorte = quanti_numeri;
  return Completa(lib, args, std::move(giocata), posti);
}

PostiFacoltativi PostiDopoINumeri(int quanti_numeri) {
  const size_t dopo = static_cast<size_t>(quanti_numeri) + 1;
  return {.inizio = dopo, .fine = dopo + 1, .posizioni = dopo + 2};
}

namespace {

Variant Ritardo(const Misura& m) {
  return Variant::Long(stats::RitardoCombinazione(*m.tab, m.giocata.ruote, m.giocata.numeri, m.giocata.sorte, m.fine,
                                                  m.posizioni, m.inizio));
}

Result<Variant> RitardoCombinazione(Libreria& lib, CallArgs& args) {
  auto misura = MisuraGruppo(lib, args, {.inizio = 5, .fine = 3, .posizioni = 4});
  if (!misura) return std::move(misura).error();
  return Ritardo(*misura);
}

Result<Variant> RitardoSuRuota(Libreria& lib, CallArgs& args, int quanti_numeri) {
  auto misura = MisuraSuRuota(lib, args, quanti_numeri, PostiDopoINumeri(quanti_numeri));
  if (!misura) return std::move(misura).error();
  return Ritardo(*misura);
}

Result<Variant> EstrattoRitardo(Libreria& lib, CallArgs& args) { return RitardoSuRuota(lib, args, 1); }

Result<Variant> AmboRitardo(Libreria& lib, CallArgs& args) { return RitardoSuRuota(lib, args, 2); }

const Libreria::Funzione kRitardi[] = {
    {"RitardoCombinazione", 4, 6, &RitardoCombinazione,
     "aRuote, aNumeri, Sorte, Fine, [aPosizioni], [Inizio]: le estrazioni da Fine indietro fino all'ultima vincita "
     "di almeno Sorte (1..5) numeri di aNumeri su una ruota di aRuote, in Inizio..Fine (Long); aPosizioni(1..5) True "
     "per le posizioni che contano, tutte se omesso; Fine omesso = ultima estrazione, Inizio omesso = 1"},
    {"EstrattoRitardo", 2, 5, &EstrattoRitardo,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: il ritardo di Numero su Ruota (TU_ per "
     "tutte) a Fine (Long)"},
    {"RitardoEstratto", 2, 5, &EstrattoRitardo,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: lo stesso di EstrattoRitardo (Long)"},
    {"AmboRitardo", 3, 6, &AmboRitardo,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: il ritardo dell'ambo su Ruota "
     "(TU_ per tutte) a Fine, con entrambi i numeri su una ruota della stessa estrazione (Long)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniRitardi() { return kRitardi; }

}  // namespace lottolab::script
