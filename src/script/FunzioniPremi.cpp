// Prizes for scripts: the gross prize of a winning combination by the table in force at a draw, the
// win when some of the numbers come out, the net win of a play in one draw, and a progression of
// stakes that pays back what it spent. Every figure comes from the prize engine (stats/PremiLotto.h,
// stats/Giocata.h, stats/Progressione.h), in euro as Double, exact to the cent.

#include <fmt/format.h>

#include <numeric>
#include <vector>

#include "ArgomentiLotto.h"
#include "ArgomentiPremi.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "GiocateScript.h"
#include "archive/DateEstrazione.h"
#include "stats/Combinazioni.h"
#include "stats/Progressione.h"

namespace lottolab::script {

namespace {

using namespace famiglia;
using stats::Centesimi;
using stats::SorteLotto;

// The date whose table applies: the draw IdEstr at argument i, or the last draw of the archive
// when it is omitted, or today when no archive is loaded.
Result<GruppoData> DataArgomento(const Libreria& lib, const CallArgs& args, size_t i) {
  if (!args.Has(i)) {
    auto archivio = lib.Archivio();
    if (!archivio) return DataOdierna();
    return (**archivio)[(*archivio)->EstrazioniArchivio()].data;
  }
  VBS_TRY_ASSIGN(auto tab, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(*tab, args, i, 0, "IdEstr"));
  return (*tab)[id_estr].data;
}

// A line of the sorte on QuantitaNumeri numbers and QuantitaRuote wheels: the prize depends on the
// counts alone, so the numbers and wheels are 1, 2, ...
Result<stats::PuntataLotto> PuntataArgomenti(const CallArgs& args, size_t i_sorte, size_t i_numeri, size_t i_posta,
                                             size_t i_ruote, int ultima_sorte) {
  VBS_TRY_ASSIGN(auto sorte, InteroTra(args, i_sorte, 1, ultima_sorte, "Sorte"));
  VBS_TRY_ASSIGN(auto quanti, InteroTra(args, i_numeri, 1, stats::LimitiPosteLotto().massimo_numeri, "QuantitaNumeri"));
  VBS_TRY_ASSIGN(auto posta, EuroArgomento(args, i_posta, "Posta", stats::kCentesimiPerEuro));
  VBS_TRY_ASSIGN(auto ruote, InteroFacoltativo(args, i_ruote, 1, kNumeroRuote, "QuantitaRuote", 1));
  stats::PuntataLotto puntata{static_cast<SorteLotto>(sorte), std::vector<int>(static_cast<size_t>(quanti)),
                              std::vector<int>(static_cast<size_t>(ruote)), posta,
                              sorte == static_cast<int>(SorteLotto::EstrattoDeterminato) ? 1 : 0};
  std::iota(puntata.numeri.begin(), puntata.numeri.end(), 1);
  std::iota(puntata.ruote.begin(), puntata.ruote.end(), 1);
  return puntata;
}

// The line's prize per combination on that date; 0 when the sorte was not played then.
Result<Centesimi> PremioInVigore(const stats::PuntataLotto& puntata, const GruppoData& data) {
  if (!stats::MoltiplicatoreLotto(puntata.sorte, data)) return Centesimi{0};
  if (auto controllo = stats::ControllaPuntata(puntata, data); !controllo) return Rifiuto(controllo.Errore());
  return stats::PremioPerCombinazione(puntata, data);
}

// Sorte, QuantitaNumeri, [Posta = 1], [QuantitaRuote = 1], [IdEstr].
Result<Variant> GetPremioLotto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto puntata, PuntataArgomenti(args, 0, 1, 2, 3, static_cast<int>(SorteLotto::EstrattoDeterminato)));
  VBS_TRY_ASSIGN(auto data, DataArgomento(lib, args, 4));
  VBS_TRY_ASSIGN(auto premio, PremioInVigore(puntata, data));
  return Euro(premio);
}

// Sorte, QuantitaNumeri, Punti, [Posta = 1], [QuantitaRuote = 1], [IdEstr], [RetNetto].
Result<Variant> GetPremioPerSorte(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto puntata, PuntataArgomenti(args, 0, 1, 3, 4, static_cast<int>(SorteLotto::Cinquina)));
  const int quanti = static_cast<int>(puntata.numeri.size());
  VBS_TRY_ASSIGN(auto punti, InteroTra(args, 2, 0, std::min(quanti, kNumeriPerRuota), "Punti"));
  VBS_TRY_ASSIGN(auto data, DataArgomento(lib, args, 5));
  VBS_TRY_ASSIGN(auto premio, PremioInVigore(puntata, data));
  const auto vinte = static_cast<Centesimi>(stats::Combinazioni(punti, static_cast<int>(puntata.sorte)));
  const stats::Tassato vinto = stats::TassaVincitaLotto(vinte * premio, data);
  if (args.Has(6)) args.Out(6) = Euro(vinto.netto);
  return Euro(vinto.lordo);
}

// aNumeri, aRuote, IdEstr, aPoste, [RetLordo], [RetSpesa].
Result<Variant> Vincita(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, lib.Archivio());
  VBS_TRY_ASSIGN(auto numeri, NumeriDiversi(args, 0));
  VBS_TRY_ASSIGN(auto ruote, RuoteDellaGiocata(args, 1));
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(*tab, args, 2, 0, "IdEstr"));
  VBS_TRY_ASSIGN(auto poste, PosteArgomento(args, 3));
  const stats::Giocata giocata{{std::move(numeri)},     std::move(ruote), std::move(poste), id_estr, 1,
                               stats::Arresto::AllaFine};
  if (auto controllo = stats::ControllaGiocata(giocata, *tab); !controllo) return Rifiuto(controllo.Errore());
  const stats::EsitoGiocata esito = stats::VerificaGiocata(giocata, *tab);
  if (args.Has(4)) args.Out(4) = Euro(esito.vinto.lordo);
  if (args.Has(5)) args.Out(5) = Euro(esito.spesa);
  return Euro(esito.vinto.netto);
}

// Sorte, QuantitaNumeri, QuantitaRuote, Colpi, UtileMinimo, PostaMinima, aRet, [Passo = 0.5], [IdEstr].
Result<Variant> GetVettoreProgressione(Libreria& lib, CallArgs& args) {
  stats::ParametriProgressione p;
  VBS_TRY_ASSIGN(auto sorte, InteroTra(args, 0, 1, static_cast<int>(SorteLotto::Cinquina), "Sorte"));
  p.sorte = static_cast<SorteLotto>(sorte);
  VBS_TRY_ASSIGN(auto numeri, InteroTra(args, 1, 1, stats::LimitiPosteLotto().massimo_numeri, "QuantitaNumeri"));
  p.numeri = numeri;
  VBS_TRY_ASSIGN(auto ruote, InteroTra(args, 2, 1, kNumeroRuote, "QuantitaRuote"));
  p.ruote = ruote;
  VBS_TRY_ASSIGN(auto colpi, ColpiArgomento(args, 3));
  p.colpi = colpi;
  VBS_TRY_ASSIGN(auto utile, EuroArgomento(args, 4, "UtileMinimo"));
  p.utile = utile;
  VBS_TRY_ASSIGN(auto posta_minima, EuroArgomento(args, 5, "PostaMinima"));
  p.posta_minima = posta_minima;
  VBS_TRY_ASSIGN(auto passo, EuroArgomento(args, 7, "Passo", stats::LimitiPosteLotto().passo_biglietto));
  p.passo = passo;
  VBS_TRY_ASSIGN(auto data, DataArgomento(lib, args, 8));
  p.data = data;
  auto poste = stats::VettoreProgressione(p);
  if (!poste) return Rifiuto(poste.Errore());
  std::vector<Variant> valori;
  for (Centesimi posta : *poste) valori.push_back(Euro(posta));
  args.Out(6) = ArrayDaUno(std::move(valori));
  return Variant::Long(static_cast<int32_t>(poste->size()));
}

const Libreria::Funzione kPremi[] = {
    {"GetPremioLotto", 2, 5, &GetPremioLotto,
     "Sorte, QuantitaNumeri, [Posta = 1], [QuantitaRuote = 1], [IdEstr = ultima estrazione]: il premio lordo in euro "
     "(Double) di una combinazione vincente della sorte (1 estratto .. 5 cinquina, 6 estratto determinato) giocando "
     "QuantitaNumeri numeri (1..10) con Posta euro sulla sorte divisi su QuantitaRuote ruote (1..11; Tutte sono 10), "
     "secondo la tabella in vigore alla data dell'estrazione IdEstr (oggi senza archivio), arrotondato al "
     "centesimo: l'ambo su 3 numeri con 1 euro vale 83,33; 0 se la sorte allora non si giocava",
     "Double: il premio lordo in euro, 0 se la sorte allora non si giocava", "Scrivi GetPremioLotto(2, 3)"},
    {"GetPremioPerSorte", 3, 7, &GetPremioPerSorte,
     "Sorte, QuantitaNumeri, Punti, [Posta = 1], [QuantitaRuote = 1], [IdEstr = ultima estrazione], [RetNetto]: la "
     "vincita lorda in euro (Double) su una ruota quando escono Punti (0..5) dei QuantitaNumeri numeri giocati per "
     "la sorte (1..5): C(Punti, Sorte) combinazioni vincenti al premio di GetPremioLotto, entro la vincita massima "
     "per biglietto; in RetNetto la stessa dopo la ritenuta di quella data",
     "Double: la vincita lorda in euro; in RetNetto la netta",
     "Scrivi GetPremioPerSorte(2, 5, 3, 1, 1, EstrazioniArchivio, netto) & \" lordi, \" & netto & \" netti\""},
    {"Vincita", 4, 6, &Vincita,
     "aNumeri, aRuote, IdEstr, aPoste, [RetLordo], [RetSpesa]: la vincita netta in euro (Double, dopo la ritenuta e "
     "la vincita massima per biglietto) di aNumeri giocati sulle ruote di aRuote (TT_ le dieci senza Nazionale) "
     "nell'estrazione IdEstr con le poste aPoste(1..5) in euro per sorte (estratto .. cinquina); nelle variabili "
     "facoltative la vincita lorda e la spesa",
     "Double: la vincita netta in euro; in RetLordo la lorda e in RetSpesa la spesa",
     "ReDim aP(2) : aP(2) = 1 : Scrivi Vincita(Array(12, 34), BA_, EstrazioniArchivio, aP, lordo, spesa) & \" netti su "
     "\" & spesa & \" spesi\""},
    {"GetVettoreProgressione", 7, 9, &GetVettoreProgressione,
     "Sorte, QuantitaNumeri, QuantitaRuote, Colpi, UtileMinimo, PostaMinima, aRet, [Passo = 0.5], [IdEstr = ultima "
     "estrazione]: riempie aRet(1..) con le poste in euro di una progressione per la sorte (1..5) su QuantitaNumeri "
     "numeri e QuantitaRuote ruote: a ogni colpo la posta più piccola, multipla di Passo e almeno PostaMinima, per "
     "cui la vincita più piccola di quel colpo (una combinazione su una ruota), netta della ritenuta, ripaga tutte le "
     "poste giocate fino a lì più UtileMinimo euro. Restituisce i colpi coperti (Long): meno di Colpi quando la "
     "posta supererebbe i 200 euro di un biglietto, 0 quando nessuna vincita ripaga nemmeno la sua posta",
     "Long: i colpi coperti; in aRet (array da 1) la posta in euro di ogni colpo",
     "Scrivi GetVettoreProgressione(2, 2, 1, 10, 5, 1, aP) & \" colpi:\" & Join(aP, \" \")"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniPremi() { return kPremi; }

}  // namespace lottolab::script
