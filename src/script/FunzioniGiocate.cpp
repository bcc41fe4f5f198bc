// The Lotto bets of a run: slots set by the script, played after a draw it names, and the ledger's
// totals, summary and account (GiocateScript.h). The Virtuale names do the same on the virtual
// ledger, which the real totals never include.

#include <algorithm>
#include <fmt/format.h>

#include "ArgomentiLotto.h"
#include "ArgomentiPremi.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "GiocateScript.h"
#include "text/Utf.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

constexpr bool kReale = false;
constexpr bool kVirtuale = true;

template <bool Virtuale>
RegistroGiocate& Registro(Libreria& lib) {
  StatoGiocate& stato = lib.Stato<StatoGiocate>();
  return Virtuale ? stato.virtuale : stato.reale;
}

template <bool Virtuale>
constexpr std::string_view NomeImposta() {
  return Virtuale ? "ImpostaGiocataVirtuale" : "ImpostaGiocata";
}

// A slot is checked against the archive's last draw as it is filled, so that a refusal reaches the
// script where it set the bet; Gioca checks again on the bet's own first draw, where only the date
// can make a difference. A system's development may have a hundred thousand columns, so each check
// takes the part that changed: a new column with the stakes, a new stake with every column but only
// its first value, the progression with the first column.
Result<Variant> Controlla(const SlotLotto& slot, std::vector<std::vector<int>> colonne,
                          std::vector<stats::PostaSorte> poste, std::string_view dove, int prima,
                          const TabellaEstrazioni& tab) {
  SlotLotto prova;
  prova.giocata.colonne = std::move(colonne);
  prova.giocata.ruote = slot.giocata.ruote;
  prova.giocata.poste = std::move(poste);
  prova.giocata.colpi = slot.giocata.colpi;
  if (auto controllo = ControllaSlotLotto(prova, dove, prima, tab); !controllo)
    return ArgomentoNonValido(controllo.Errore().testo);
  return Variant::Boolean(true);
}

template <bool Virtuale>
Result<SlotLotto*> Slot(Libreria& lib, int indice) {
  auto& slots = Registro<Virtuale>(lib).lotto;
  auto trovato = slots.find(indice);
  if (trovato == slots.end())
    return ArgomentoNonValido(
        fmt::format("La giocata {} non è impostata: chiamare prima {}", indice, NomeImposta<Virtuale>()));
  return &trovato->second;
}

// ImpostaGiocata Indice, aNumeri, aRuote, aPoste, Colpi, [SorteArresto = 1]
template <bool Virtuale>
Result<Variant> ImpostaGiocata(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto indice, IndiceArgomento(args, 0));
  VBS_TRY_ASSIGN(auto numeri, NumeriGiocati(args, 1));
  VBS_TRY_ASSIGN(auto ruote, RuoteArgomento(args, 2));
  VBS_TRY_ASSIGN(auto poste, PosteArgomento(args, 3));
  VBS_TRY_ASSIGN(auto colpi, args.Long(4));
  VBS_TRY_ASSIGN(auto arresto, SorteArrestoArgomento(args, 5, kNumeriPerRuota));
  SlotLotto slot;
  slot.giocata.colonne = {std::move(numeri)};
  slot.giocata.ruote = std::move(ruote);
  slot.giocata.poste = std::move(poste);
  slot.giocata.colpi = colpi;
  slot.sorte_arresto = arresto;
  VBS_TRY_ASSIGN(auto fatto, Controlla(slot, slot.giocata.colonne, slot.giocata.poste,
                                       fmt::format("giocata {}", indice), archivio->EstrazioniArchivio(), *archivio));
  Registro<Virtuale>(lib).lotto[indice] = std::move(slot);
  return fatto;
}

Result<Variant> AddLunghettaInGiocata(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto indice, IndiceArgomento(args, 0));
  VBS_TRY_ASSIGN(auto slot, Slot<kReale>(lib, indice));
  VBS_TRY_ASSIGN(auto numeri, NumeriGiocati(args, 1));
  const SlotLotto& giocata = *slot;
  VBS_TRY_ASSIGN(auto fatto,
                 Controlla(giocata, {numeri}, giocata.giocata.poste,
                           fmt::format("giocata {}, colonna {}", indice, giocata.giocata.colonne.size() + 1),
                           archivio->EstrazioniArchivio(), *archivio));
  slot->giocata.colonne.push_back(std::move(numeri));
  return fatto;
}

// ImpostaProgressione Indice, Sorte, aPoste
template <bool Virtuale>
Result<Variant> ImpostaProgressione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto indice, IndiceArgomento(args, 0));
  VBS_TRY_ASSIGN(auto slot, Slot<Virtuale>(lib, indice));
  VBS_TRY_ASSIGN(auto sorte, SorteGiocataArgomento(args, 1));
  VBS_TRY_ASSIGN(auto progressione, ProgressioneArgomento(args, 2));
  const int ultima = archivio->EstrazioniArchivio();
  stats::PostaSorte nuova = sorte;
  nuova.posta = progressione.front();
  const std::string dove = fmt::format("giocata {}", indice);
  VBS_TRY(Controlla(*slot, slot->giocata.colonne, {nuova}, dove, ultima, *archivio));
  nuova.progressione = std::move(progressione);
  VBS_TRY_ASSIGN(auto fatto, Controlla(*slot, {slot->giocata.colonne.front()}, {nuova}, dove, ultima, *archivio));
  auto& poste = slot->giocata.poste;
  auto posta = std::ranges::find_if(
      poste, [&sorte](const stats::PostaSorte& p) { return p.sorte == sorte.sorte && p.posizione == sorte.posizione; });
  if (posta == poste.end())
    poste.push_back(std::move(nuova));
  else
    *posta = std::move(nuova);
  return fatto;
}

// Gioca IdEstr, [Scrivi = True]
template <bool Virtuale>
Result<Variant> Gioca(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  const TabellaEstrazioni& tab = *archivio;
  VBS_TRY_ASSIGN(auto dopo, EstrazioneArgomento(tab, args, 0, 0, "IdEstr"));
  VBS_TRY_ASSIGN(auto scrivi, args.Boolean(1, true));
  RegistroGiocate& registro = Registro<Virtuale>(lib);
  if (registro.lotto.empty())
    return ArgomentoNonValido(fmt::format("Nessuna giocata impostata: chiamare prima {}", NomeImposta<Virtuale>()));
  // Every slot is used up, played or refused: the next forecast starts from empty slots.
  const std::map<int, SlotLotto> slots = std::move(registro.lotto);
  registro.lotto.clear();
  for (const auto& [indice, slot] : slots)
    VBS_TRY(Controlla(slot, {slot.giocata.colonne.front()}, slot.giocata.poste, fmt::format("giocata {}", indice),
                      dopo + 1, tab));
  bool vinta = false;
  for (const auto& [indice, slot] : slots) {
    GiocataEffettuata giocata = GiocaSlotLotto(slot, indice, dopo, tab);
    const bool vincente = giocata.PrimoColpoVincente() > 0;
    vinta = vinta || vincente;
    if (scrivi)
      lib.Scrivi(std::string(Virtuale ? "[virtuale] " : "") + RigaGiocata(giocata) + "\n", vincente ? kRosso : kNero,
                 false);
    registro.effettuate.push_back(std::move(giocata));
  }
  return Variant::Boolean(vinta);
}

// The real ledger's totals, over every bet or those of slot Indice.
template <auto Valore>
Result<Variant> Totale(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto indice, IndiceFacoltativo(args, 0));
  return Euro(Valore(Somma(Registro<kReale>(lib).effettuate, indice)));
}

stats::Centesimi Spesa(const Totali& t) { return t.spesa; }
stats::Centesimi Netto(const Totali& t) { return t.vinto.netto; }
stats::Centesimi Guadagno(const Totali& t) { return t.Guadagno(); }

Result<Variant> GetQuantitaGiocateEffettuate(Libreria& lib, CallArgs&) {
  return Variant::Long(static_cast<int32_t>(Registro<kReale>(lib).effettuate.size()));
}

constexpr int32_t kCampiSituazione = 9;

// GetSituazioneGiocate aRet: aRet(giocata, 1..9) as the README's "Bets" says; the number of bets.
Result<Variant> GetSituazioneGiocate(Libreria& lib, CallArgs& args) {
  const auto& effettuate = Registro<kReale>(lib).effettuate;
  const auto righe = static_cast<int32_t>(effettuate.size());
  const vbs::ArrayBound limiti[] = {{1, righe}, {1, kCampiSituazione}};
  VBS_TRY_ASSIGN(auto matrice, vbs::SafeArray::Create(limiti));
  auto celle = matrice->elements();
  constexpr std::string_view kSigle[] = {"LO", "SE", "DL", "WF", "FT"};
  for (size_t r = 0; r < effettuate.size(); ++r) {
    const GiocataEffettuata& g = effettuate[r];
    const Variant campi[kCampiSituazione] = {
        Variant::Long(g.indice),
        Variant::String(text::Utf8ToUtf16(kSigle[static_cast<size_t>(g.gioco)])),
        Variant::Long(g.dopo),
        Variant::Long(g.colpi),
        Variant::Long(static_cast<int32_t>(g.conto.size())),
        Variant::Long(static_cast<int32_t>(g.Stato())),
        Variant::Long(g.PrimoColpoVincente()),
        Euro(g.spesa),
        Euro(g.vinto.netto),
    };
    for (size_t c = 0; c < std::size(campi); ++c) celle[r + c * effettuate.size()] = campi[c];
  }
  args.Out(0) = Variant::Array(std::move(matrice));
  return Variant::Long(righe);
}

template <bool Virtuale>
Result<Variant> InterrompiTutte(Libreria& lib, CallArgs&) {
  Registro<Virtuale>(lib).InterrompiAperte();
  return Variant();
}

Result<Variant> ResettaGiocate(Libreria& lib, CallArgs&) {
  StatoGiocate& stato = lib.Stato<StatoGiocate>();
  stato.reale.Dimentica();
  stato.premi_ft.clear();
  return Variant();
}

Result<Variant> ResettaGiocateVirtuale(Libreria& lib, CallArgs&) {
  Registro<kVirtuale>(lib).Dimentica();
  return Variant();
}

// Output [Titolo]
template <bool Virtuale>
Result<Variant> Output(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto titolo, args.String(0, Virtuale ? u"Giocate virtuali" : u"Giocate"));
  lib.Scrivi(text::Utf16ToUtf8(titolo) + "\n", kNero, true);
  ScriviTabella(lib, TabellaRiepilogo(Registro<Virtuale>(lib).effettuate));
  return Variant();
}

// ScriviResoconto [Indice]
Result<Variant> ScriviResoconto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto indice, IndiceFacoltativo(args, 0));
  lib.Scrivi(indice ? fmt::format("Resoconto della giocata {}\n", *indice) : "Resoconto delle giocate\n", kNero, true);
  ScriviTabella(lib, TabellaResoconto(Registro<kReale>(lib).effettuate, GiocoGiocata::Lotto, indice));
  return Variant();
}

const Libreria::Funzione kGiocate[] = {
    {"ImpostaGiocata", 5, 6, &ImpostaGiocata<kReale>,
     "Indice, aNumeri, aRuote, aPoste, Colpi, [SorteArresto = 1]: imposta la giocata numero Indice (da 1): i numeri di "
     "aNumeri sulle ruote di aRuote (TU_ tutte le ruote, Nazionale esclusa), aPoste(sorte) la posta in euro di ogni "
     "sorte (da 1 estratto a 5 cinquina, da 6 a 10 l'estratto determinato nelle posizioni 1..5, cioè EDET1_..EDET5_, "
     "11 l'ambetto; 0 o vuota non si gioca), per Colpi estrazioni; SorteArresto 0 gioca tutti i colpi, k si ferma "
     "alla prima vincita di una sorte di k numeri o più (l'ambetto conta come ambo). Numeri, ruote e poste sono "
     "controllati subito: un errore dice cosa non va. Restituisce True",
     "Boolean: True; errore 5, che dice cosa non va, per numeri, ruote, poste o colpi non validi",
     "ReDim aP(2) : aP(2) = 1 : Scrivi ImpostaGiocata(1, Array(12, 34), Array(BA_, NA_), aP, 9)"},
    {"ImpostaGiocataVirtuale", 5, 6, &ImpostaGiocata<kVirtuale>,
     "Indice, aNumeri, aRuote, aPoste, Colpi, [SorteArresto = 1]: come ImpostaGiocata, per una giocata virtuale, "
     "seguita senza puntare denaro; non entra mai nei totali reali",
     "Boolean: True; errore 5 come ImpostaGiocata",
     "ReDim aP(2) : aP(2) = 1 : Scrivi ImpostaGiocataVirtuale(1, Array(12, 34), Array(BA_, NA_), aP, 9)"},
    {"AddLunghettaInGiocata", 2, 2, &AddLunghettaInGiocata,
     "Indice, aNumeri: aggiunge alla giocata Indice un'altra colonna, con le stesse ruote e poste (lo sviluppo di un "
     "sistema)",
     "Boolean: True; errore 5 se la giocata non è impostata o la colonna non va",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocata 1, Array(12, 34), BA_, aP, 9 : Scrivi AddLunghettaInGiocata(1, "
     "Array(56, 78))"},
    {"ImpostaProgressione", 3, 3, &ImpostaProgressione<kReale>,
     "Indice, Sorte, aPoste: la posta in euro della sorte (numerata come in aPoste) a ogni colpo della giocata "
     "Indice, aPoste(1) al primo; dopo l'ultima si ripete l'ultima. Una sorte non ancora giocata si aggiunge",
     "Boolean: True; errore 5 se la giocata non è impostata o una posta non va",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocata 1, Array(12, 34), BA_, aP, 9 : Scrivi ImpostaProgressione(1, 2, "
     "Array(1, 1, 2, 2, 3))"},
    {"ImpostaProgressioneVirtuale", 3, 3, &ImpostaProgressione<kVirtuale>,
     "Indice, Sorte, aPoste: come ImpostaProgressione, per una giocata virtuale",
     "Boolean: True; errore 5 come ImpostaProgressione",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocataVirtuale 1, Array(12, 34), BA_, aP, 9 : Scrivi "
     "ImpostaProgressioneVirtuale(1, 2, Array(1, 2, 3))"},
    {"Gioca", 1, 2, &Gioca<kReale>,
     "IdEstr, [Scrivi = True]: gioca le giocate impostate dopo l'estrazione IdEstr, dalla successiva per i loro "
     "colpi, e le aggiunge ai conti dell'esecuzione; le giocate impostate si liberano per la previsione seguente. Una "
     "giocata che va oltre l'ultima estrazione resta in corso. Con Scrivi una riga per giocata: vinta o no, dove, "
     "quanto. True se una giocata ha vinto; errore se nessuna giocata è impostata",
     "Boolean: True se una giocata ha vinto",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocata 1, Array(12, 34), BA_, aP, 9 : Scrivi Gioca(EstrazioniArchivio - 20)"},
    {"GiocaVirtuale", 1, 2, &Gioca<kVirtuale>, "IdEstr, [Scrivi = True]: come Gioca, per le giocate virtuali",
     "Boolean: True se una giocata virtuale ha vinto",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocataVirtuale 1, Array(12, 34), BA_, aP, 9 : Scrivi "
     "GiocaVirtuale(EstrazioniArchivio - 20)"},
    {"GetSpesa", 0, 1, &Totale<&Spesa>,
     "[Indice]: gli euro spesi nelle giocate reali dell'esecuzione, di ogni gioco, o in quelle del numero Indice "
     "(Double)",
     "Double: gli euro spesi",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocata 1, Array(12, 34), BA_, aP, 9 : Gioca EstrazioniArchivio - 20, False : "
     "Scrivi \"spesi \" & GetSpesa(1) & \" euro\""},
    {"GetVincita", 0, 1, &Totale<&Netto>,
     "[Indice]: gli euro vinti, al netto della ritenuta, nelle giocate reali dell'esecuzione o in quelle del numero "
     "Indice (Double)",
     "Double: gli euro vinti, netti", "Scrivi \"vinti \" & GetVincita() & \" euro netti\""},
    {"GetGuadagno", 0, 1, &Totale<&Guadagno>,
     "[Indice]: la vincita netta meno la spesa delle giocate reali dell'esecuzione o di quelle del numero Indice "
     "(Double)",
     "Double: la vincita netta meno la spesa, in euro (negativa se in perdita)",
     "Scrivi \"saldo \" & GetGuadagno() & \" euro\""},
    {"GetQuantitaGiocateEffettuate", 0, 0, &GetQuantitaGiocateEffettuate,
     "quante giocate reali sono state giocate nell'esecuzione (Long)", "Long: quante giocate reali",
     "Scrivi GetQuantitaGiocateEffettuate()"},
    {"GetSituazioneGiocate", 1, 1, &GetSituazioneGiocate,
     "aRet: riempie aRet(giocata, campo) con una riga per giocata reale, nell'ordine in cui sono state giocate: "
     "1 Indice, 2 gioco (\"LO\", \"SE\", \"DL\", \"WF\", \"FT\"), 3 IdEstr dopo cui è stata giocata, 4 colpi, "
     "5 colpi giocati, 6 stato (0 persa, 1 vinta, 2 in corso oltre l'ultima estrazione, 3 interrotta), 7 primo colpo "
     "vincente (0 nessuno), 8 spesa, 9 vincita netta; restituisce quante giocate",
     "Long: quante giocate; in aRet(giocata, 1..9) i loro dati",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocata 1, Array(12, 34), BA_, aP, 9 : Gioca EstrazioniArchivio - 20, False : n "
     "= GetSituazioneGiocate(aS) : Scrivi n & \" giocate, spesa dell'ultima: \" & aS(n, 8)"},
    {"InterrompiTutteLegiocate", 0, 0, &InterrompiTutte<kReale>,
     "chiude le giocate reali ancora in corso, i cui colpi mancanti non si giocano più", "niente (Sub)",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocata 1, Array(12, 34), BA_, aP, 9 : Gioca EstrazioniArchivio - 3, False : "
     "InterrompiTutteLegiocate"},
    {"InterrompiTutteLegiocateVirtuali", 0, 0, &InterrompiTutte<kVirtuale>,
     "chiude le giocate virtuali ancora in corso", "niente (Sub)",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocataVirtuale 1, Array(12, 34), BA_, aP, 9 : GiocaVirtuale EstrazioniArchivio "
     "- 3, False : InterrompiTutteLegiocateVirtuali"},
    {"ResettaGiocate", 0, 0, &ResettaGiocate,
     "dimentica le giocate reali impostate e giocate e i premi di SetPremioPagatoFT (l'esecuzione lo fa prima di "
     "Main)",
     "niente (Sub)", "ResettaGiocate : Scrivi GetQuantitaGiocateEffettuate()"},
    {"ResettaGiocateVirtuale", 0, 0, &ResettaGiocateVirtuale, "dimentica le giocate virtuali impostate e giocate",
     "niente (Sub)", "ResettaGiocateVirtuale"},
    {"Output", 0, 1, &Output<kReale>,
     "[Titolo = \"Giocate\"]: il riepilogo delle giocate reali del Lotto: giocate vinte, perse, in corso, colpi, "
     "spesa, vinto lordo, ritenuta, netto, saldo, estrazioni vincenti per sorte, serie più lunga senza vincite, calo "
     "massimo del saldo; come testo e come tabella nella pagina HTML",
     "niente (Sub): scrive il riepilogo",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocata 1, Array(12, 34), BA_, aP, 9 : Gioca EstrazioniArchivio - 20, False : "
     "Output \"Ambo 12-34 su Bari\""},
    {"OutputVirtuale", 0, 1, &Output<kVirtuale>,
     "[Titolo = \"Giocate virtuali\"]: come Output, per le giocate virtuali", "niente (Sub): scrive il riepilogo",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocataVirtuale 1, Array(12, 34), BA_, aP, 9 : GiocaVirtuale EstrazioniArchivio "
     "- 20, False : OutputVirtuale"},
    {"ScriviResoconto", 0, 1, &ScriviResoconto,
     "[Indice]: il conto estrazione per estrazione delle giocate reali del Lotto, o di quelle del numero Indice: "
     "estrazione, data, giocate in corso, spesa, vinto lordo e netto, saldo, vincite; come testo e come tabella "
     "nella pagina HTML",
     "niente (Sub): scrive il resoconto",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocata 1, Array(12, 34), BA_, aP, 9 : Gioca EstrazioniArchivio - 20, False : "
     "ScriviResoconto 1"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniGiocate() { return kGiocate; }

}  // namespace lottolab::script
