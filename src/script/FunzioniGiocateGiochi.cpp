// The bets on the other games: each name is its Lotto twin without the wheels, the stake of a
// column in place of aPoste (GiocateScript.h). The SuperEnalotto and Win for Life win categories,
// with money only where the engine knows it; the generic archive wins what SetPremioPagatoFT says.

#include <fmt/format.h>

#include <set>

#include "ArgomentiGioco.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "GiocateScript.h"
#include "text/AsciiCase.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

constexpr std::string_view Sigla(Suffisso suffisso) {
  constexpr std::string_view kSigle[] = {"SE", "DL", "WF", "FT"};
  return kSigle[static_cast<size_t>(suffisso)];
}

std::map<int, SlotGioco>& Slots(Libreria& lib, Suffisso suffisso) {
  return lib.Stato<StatoGiocate>().reale.giochi[static_cast<size_t>(suffisso)];
}

Result<stats::OpzioneDieciELotto> OpzioneArgomento(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto testo, args.String(i, u"base"));
  std::string opzione = text::LowerAscii(text::Utf16ToUtf8(testo));
  std::erase_if(opzione, [](char c) { return c == ' ' || c == '-'; });
  if (opzione == "base") return stats::OpzioneDieciELotto::Base;
  if (opzione == "oro") return stats::OpzioneDieciELotto::Oro;
  if (opzione == "doppiooro") return stats::OpzioneDieciELotto::DoppioOro;
  if (opzione == "extra") return stats::OpzioneDieciELotto::Extra;
  return ArgomentoNonValido(
      fmt::format("Opzione del 10eLotto non valida: \"{}\" (\"base\", \"oro\", \"doppio oro\" o \"extra\")",
                  text::Utf16ToUtf8(testo)));
}

// The stake a column costs: what each game sells.
Result<stats::Centesimi> PostaArgomento(Suffisso suffisso, const CallArgs& args, size_t i) {
  if (suffisso == Suffisso::SE) return stats::kCentesimiPerEuro;
  VBS_TRY_ASSIGN(auto posta, CentesimiDi(args[i], args.locale(), "Posta"));
  if (suffisso == Suffisso::WF && posta != stats::kCentesimiPerEuro && posta != 2 * stats::kCentesimiPerEuro)
    return ArgomentoNonValido(
        fmt::format("Posta del Win for Life non valida: {} euro (1 o 2)", stats::FormattaEuro(posta)));
  return posta;
}

// ImpostaGiocataXX Indice, aNumeri, Posta, Colpi, [SorteArresto = 1] (and [Opzione] for the 10eLotto)
template <Suffisso S>
Result<Variant> ImpostaGiocata(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, S));
  VBS_TRY_ASSIGN(auto indice, IndiceArgomento(args, 0));
  SlotGioco slot;
  VBS_TRY_ASSIGN(auto numeri, NumeriGiocati(args, 1));
  slot.colonne = {std::move(numeri)};
  VBS_TRY_ASSIGN(auto posta, PostaArgomento(S, args, 2));
  slot.posta = posta;
  VBS_TRY_ASSIGN(auto colpi, args.Long(3));
  slot.colpi = colpi;
  VBS_TRY_ASSIGN(auto arresto, SorteArrestoArgomento(args, 4, tab->formato().numeri));
  slot.sorte_arresto = arresto;
  if constexpr (S == Suffisso::DL) {
    VBS_TRY_ASSIGN(auto opzione, OpzioneArgomento(args, 5));
    slot.opzione = opzione;
  }
  // Placed after the last draw, the bet plays nothing: this only checks it.
  auto prova = GiocaSlotGioco(slot, GiocoDi(S), indice, tab->EstrazioniArchivio(), *tab, {});
  if (!prova) return ArgomentoNonValido(prova.Errore().testo);
  Slots(lib, S)[indice] = std::move(slot);
  return Variant::Boolean(true);
}

// ImpostaProgressioneXX Indice, Sorte, aPoste: Sorte is there for the Lotto twin's list.
template <Suffisso S>
Result<Variant> ImpostaProgressione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, S));
  VBS_TRY_ASSIGN(auto indice, IndiceArgomento(args, 0));
  auto& slots = Slots(lib, S);
  auto trovato = slots.find(indice);
  if (trovato == slots.end())
    return ArgomentoNonValido(
        fmt::format("La giocata {} non è impostata: chiamare prima ImpostaGiocata{}", indice, Sigla(S)));
  VBS_TRY_ASSIGN(auto progressione, ProgressioneArgomento(args, 2));
  SlotGioco slot = trovato->second;
  slot.posta = progressione.front();
  slot.progressione = std::move(progressione);
  for (stats::Centesimi posta : std::set(slot.progressione.begin(), slot.progressione.end())) {
    SlotGioco uno = slot;
    uno.posta = posta;
    uno.progressione.clear();
    auto prova = GiocaSlotGioco(uno, GiocoDi(S), indice, tab->EstrazioniArchivio(), *tab, {});
    if (!prova) return ArgomentoNonValido(prova.Errore().testo);
  }
  trovato->second = std::move(slot);
  return Variant::Boolean(true);
}

// GiocaXX IdEstr, [Scrivi = True]
template <Suffisso S>
Result<Variant> Gioca(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, S));
  VBS_TRY_ASSIGN(auto dopo, EstrazioneArgomento(tab->EstrazioniArchivio(), args, 0, 0, "IdEstr"));
  VBS_TRY_ASSIGN(auto scrivi, args.Boolean(1, true));
  StatoGiocate& stato = lib.Stato<StatoGiocate>();
  auto& slots = stato.reale.giochi[static_cast<size_t>(S)];
  if (slots.empty())
    return ArgomentoNonValido(fmt::format("Nessuna giocata impostata: chiamare prima ImpostaGiocata{}", Sigla(S)));
  const std::map<int, SlotGioco> giocate = std::move(slots);
  slots.clear();
  std::vector<GiocataEffettuata> effettuate;
  for (const auto& [indice, slot] : giocate) {
    auto giocata = GiocaSlotGioco(slot, GiocoDi(S), indice, dopo, *tab, stato.premi_ft);
    if (!giocata) return ArgomentoNonValido(giocata.Errore().testo);
    effettuate.push_back(std::move(giocata).Valore());
  }
  bool vinta = false;
  for (GiocataEffettuata& giocata : effettuate) {
    const bool vincente = giocata.PrimoColpoVincente() > 0;
    vinta = vinta || vincente;
    if (scrivi) lib.Scrivi(RigaGiocata(giocata) + "\n", vincente ? kRosso : kNero, false);
    stato.reale.effettuate.push_back(std::move(giocata));
  }
  return Variant::Boolean(vinta);
}

// ScriviResocontoXX [Indice]
template <Suffisso S>
Result<Variant> ScriviResoconto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto indice, IndiceFacoltativo(args, 0));
  lib.Scrivi(indice ? fmt::format("Resoconto della giocata {} ({})\n", *indice, Sigla(S))
                    : fmt::format("Resoconto delle giocate ({})\n", Sigla(S)),
             kNero, true);
  ScriviTabella(lib, TabellaResoconto(lib.Stato<StatoGiocate>().reale.effettuate, GiocoDi(S), indice));
  return Variant();
}

// SetPremioPagatoFT Punti, Premio
Result<Variant> SetPremioPagatoFT(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto punti, args.Long(0));
  if (punti < 0 || punti > kMassimoNumeriGioco)
    return ArgomentoNonValido(fmt::format("Punti non validi: {} (da 0 a {})", punti, kMassimoNumeriGioco));
  VBS_TRY_ASSIGN(auto premio, CentesimiDi(args[1], args.locale(), "Premio"));
  auto& premi = lib.Stato<StatoGiocate>().premi_ft;
  if (premio == 0)
    premi.erase(punti);
  else
    premi[punti] = premio;
  return Variant();
}

const Libreria::Funzione kGiocateGiochi[] = {
    {"ImpostaGiocataSE", 4, 5, &ImpostaGiocata<Suffisso::SE>,
     "Indice, aNumeri, Posta, Colpi, [SorteArresto = 1]: imposta la giocata Indice del SuperEnalotto, una colonna "
     "dei 6 numeri di aNumeri; Posta non conta (una colonna costa quanto costava alla data: 0,50 euro, 1 euro dal "
     "02/02/2016), per Colpi estrazioni; SorteArresto 0 gioca tutti i colpi, k si ferma alla prima vincita di k "
     "punti o più. La vincita è la categoria (6, 5+1, 5, 4, 3, 2): le quote non sono note, quindi senza importo",
     "Boolean: True; errore 5, che dice cosa non va, per una giocata non valida",
     "Scrivi ImpostaGiocataSE(1, Array(3, 12, 25, 37, 48, 81), 1, 5)"},
    {"ImpostaGiocataDL", 4, 6, &ImpostaGiocata<Suffisso::DL>,
     "Indice, aNumeri, Posta, Colpi, [SorteArresto = 1], [Opzione = \"base\"]: imposta la giocata Indice del "
     "10eLotto, da 1 a 10 numeri, Posta in euro da 1 a 200 a passi di 0,50; Opzione \"oro\", \"doppio oro\" o "
     "\"extra\" costa di nuovo la posta (due volte il Doppio Oro); per Colpi estrazioni; SorteArresto 0 gioca tutti "
     "i colpi, k si ferma alla prima vincita di k punti o più. I premi sono quelli netti della tabella dal "
     "01/07/2019; prima di quella data la giocata è rifiutata",
     "Boolean: True; errore 5, che dice cosa non va, per una giocata non valida",
     "Scrivi ImpostaGiocataDL(1, Array(7, 21, 45, 60), 1, 5, 1, \"oro\")"},
    {"ImpostaGiocataWF", 4, 5, &ImpostaGiocata<Suffisso::WF>,
     "Indice, aNumeri, Posta, Colpi, [SorteArresto = 1]: imposta la giocata Indice del Win for Life, una colonna di "
     "10 numeri da 1 a 20; Posta 1 o 2 euro (il biglietto da 2 euro vince anche con 0..3 punti), per Colpi "
     "estrazioni; SorteArresto come per il SuperEnalotto. La vincita è la categoria; solo la settima ha un importo",
     "Boolean: True; errore 5, che dice cosa non va, per una giocata non valida",
     "Scrivi ImpostaGiocataWF(1, Array(1, 3, 5, 7, 9, 11, 13, 15, 17, 19), 1, 5)"},
    {"ImpostaGiocataFT", 4, 5, &ImpostaGiocata<Suffisso::FT>,
     "Indice, aNumeri, Posta, Colpi, [SorteArresto = 1]: imposta la giocata Indice sull'archivio generico, una "
     "colonna di numeri da 1 a M; Posta è quanto costa la colonna in euro (anche 0), per Colpi estrazioni; vince i "
     "punti a cui SetPremioPagatoFT ha dato un premio (senza premi conta soltanto i punti)",
     "Boolean: True; errore 5, che dice cosa non va, per una giocata non valida",
     "SetPremioPagatoFT 3, 10 : Scrivi ImpostaGiocataFT(1, Array(5, 17, 33), 1, 5)"},
    {"ImpostaProgressioneDL", 3, 3, &ImpostaProgressione<Suffisso::DL>,
     "Indice, Sorte, aPoste: la posta in euro della giocata Indice del 10eLotto a ogni colpo, aPoste(1) al primo; "
     "dopo l'ultima si ripete l'ultima. Sorte non conta (una colonna ha una sola posta): c'è per la forma del Lotto",
     "Boolean: True; errore 5 se la giocata non è impostata o una posta non va",
     "ImpostaGiocataDL 1, Array(7, 21, 45, 60), 1, 5 : Scrivi ImpostaProgressioneDL(1, 4, Array(1, 2, 3))"},
    {"ImpostaProgressioneFT", 3, 3, &ImpostaProgressione<Suffisso::FT>,
     "Indice, Sorte, aPoste: come ImpostaProgressioneDL, per la giocata Indice sull'archivio generico",
     "Boolean: True; errore 5 se la giocata non è impostata o una posta non va",
     "SetPremioPagatoFT 3, 10 : ImpostaGiocataFT 1, Array(5, 17, 33), 1, 5 : Scrivi ImpostaProgressioneFT(1, 3, "
     "Array(1, 2, 3))"},
    {"GiocaSE", 1, 2, &Gioca<Suffisso::SE>, "IdEstr, [Scrivi = True]: come Gioca, per le giocate del SuperEnalotto",
     "Boolean: True se una giocata ha vinto",
     "ImpostaGiocataSE 1, Array(3, 12, 25, 37, 48, 81), 1, 5 : Scrivi GiocaSE(EstrazioniArchivioSE - 10)"},
    {"GiocaDL", 1, 2, &Gioca<Suffisso::DL>, "IdEstr, [Scrivi = True]: come Gioca, per le giocate del 10eLotto",
     "Boolean: True se una giocata ha vinto",
     "ImpostaGiocataDL 1, Array(7, 21, 45, 60), 1, 5 : Scrivi GiocaDL(EstrazioniArchivioDL - 10)"},
    {"GiocaWF", 1, 2, &Gioca<Suffisso::WF>, "IdEstr, [Scrivi = True]: come Gioca, per le giocate del Win for Life",
     "Boolean: True se una giocata ha vinto",
     "ImpostaGiocataWF 1, Array(1, 3, 5, 7, 9, 11, 13, 15, 17, 19), 1, 5 : Scrivi GiocaWF(EstrazioniArchivioWF - 10)"},
    {"GiocaFT", 1, 2, &Gioca<Suffisso::FT>,
     "IdEstr, [Scrivi = True]: come Gioca, per le giocate sull'archivio generico",
     "Boolean: True se una giocata ha vinto",
     "SetPremioPagatoFT 3, 10 : ImpostaGiocataFT 1, Array(5, 17, 33), 1, 5 : Scrivi GiocaFT(EstrazioniArchivioFT - "
     "10)"},
    {"ScriviResocontoSE", 0, 1, &ScriviResoconto<Suffisso::SE>,
     "[Indice]: come ScriviResoconto, per le giocate del SuperEnalotto", "niente (Sub): scrive il resoconto",
     "ImpostaGiocataSE 1, Array(3, 12, 25, 37, 48, 81), 1, 5 : GiocaSE EstrazioniArchivioSE - 10, False : "
     "ScriviResocontoSE"},
    {"ScriviResocontoDL", 0, 1, &ScriviResoconto<Suffisso::DL>,
     "[Indice]: come ScriviResoconto, per le giocate del 10eLotto", "niente (Sub): scrive il resoconto",
     "ImpostaGiocataDL 1, Array(7, 21, 45, 60), 1, 5 : GiocaDL EstrazioniArchivioDL - 10, False : ScriviResocontoDL"},
    {"ScriviResocontoWF", 0, 1, &ScriviResoconto<Suffisso::WF>,
     "[Indice]: come ScriviResoconto, per le giocate del Win for Life", "niente (Sub): scrive il resoconto",
     "ImpostaGiocataWF 1, Array(1, 3, 5, 7, 9, 11, 13, 15, 17, 19), 1, 5 : GiocaWF EstrazioniArchivioWF - 10, False : "
     "ScriviResocontoWF"},
    {"ScriviResocontoFT", 0, 1, &ScriviResoconto<Suffisso::FT>,
     "[Indice]: come ScriviResoconto, per le giocate sull'archivio generico, coi punti di ogni colpo",
     "niente (Sub): scrive il resoconto",
     "SetPremioPagatoFT 3, 10 : ImpostaGiocataFT 1, Array(5, 17, 33), 1, 5 : GiocaFT EstrazioniArchivioFT - 10, False "
     ": ScriviResocontoFT 1"},
    {"SetPremioPagatoFT", 2, 2, &SetPremioPagatoFT,
     "Punti, Premio: il premio in euro di una colonna dell'archivio generico che prende Punti numeri, qualunque sia "
     "la posta (l'archivio generico non ha tabella dei premi); 0 lo toglie",
     "niente (Sub)", "SetPremioPagatoFT 3, 10 : SetPremioPagatoFT 4, 250"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniGiocateGiochi() { return kGiocateGiochi; }

}  // namespace lottolab::script
