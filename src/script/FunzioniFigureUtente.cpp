// The user figures (figures/RicercaFigure.h) for scripts: the placements of a structure saved by
// the editor found on the table of draws, as a collection of FiguraUtente objects that For Each walks.
//
// The structure file is named as every file of the library is, and read under the run's rules; a
// missing or damaged file is error 5 with the reader's message, not an empty collection that would
// look like a structure that never completes.

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "ArgomentiGioco.h"
#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "ArgomentoPercorso.h"
#include "Collezione.h"
#include "Famiglia.h"
#include "FiguraUtente.h"
#include "figures/FileStrutture.h"
#include "figures/LimitiStrutture.h"
#include "figures/RicercaFigure.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

// The structure of the file named by argument 0.
Result<figures::Struttura> StrutturaArgomento(Libreria& lib, const CallArgs& args, std::string_view funzione) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Read, file, funzione));
  auto struttura = figures::CaricaStruttura(file);
  if (!struttura) return ArgomentoNonValido(struttura.Errore().testo);
  return std::move(struttura).Valore();
}

// Argument i as the wheels a figure may touch: every wheel when omitted or TT_, as cerca-figura.
Result<std::vector<int>> RuoteArgomentoFigura(const CallArgs& args, size_t i) {
  if (!args.Has(i)) return std::vector<int>{};
  VBS_TRY_ASSIGN(auto ruote, RuoteGiocate(args, i));
  if (std::find(ruote.begin(), ruote.end(), kTutteLeRuote) != ruote.end()) return std::vector<int>{};
  return ruote;
}

// The figures found on `tab`, their draws moved by the source's shift into the archive's numbering.
Result<Variant> CollezioneTrovate(Libreria& lib, const TabellaEstrazioni& tab, const figures::Struttura& struttura,
                                  const figures::OpzioniRicerca& opzioni, const FonteFigura& fonte) {
  auto trovate = figures::CercaFigura(tab, struttura, opzioni);
  if (!trovate) return ArgomentoNonValido(trovate.Errore().testo);
  auto collezione = vbs::MakeRef<Collezione>(lib.locale());
  for (const auto& trovata : trovate->elenco) {
    VBS_TRY(lib.ControllaInterruzione());
    figures::FiguraPiazzata figura = trovate->Figura(tab, trovata);
    for (auto& vertice : figura.vertici) vertice.id_estr += fonte.spostamento;
    VBS_TRY(collezione->Aggiungi(Variant::Object(vbs::MakeRef<FiguraUtente>(
                                     lib.locale(), trovata.estrazione + fonte.spostamento, std::move(figura), fonte)),
                                 u""));
  }
  return Variant::Object(collezione);
}

// The draws first..last of the generic archive as rows of the table, numbered from 1: each draw's K
// numbers in the columns in order (Bari's positions first), 0 in the others. Numbers over 90 or
// more than a row's 55 cells would not fit the table, and are refused.
Result<TabellaEstrazioni> RigheDelGenerico(const TabellaGioco& generico, int prima, int ultima) {
  const FormatoGioco& formato = generico.formato();
  if (formato.numeri > figures::kColonneTabella)
    return ArgomentoNonValido(fmt::format(
        "L'archivio generico ha {} numeri per estrazione: le figure ne leggono al più {}, quante le celle di una "
        "riga della tabella (11 ruote per 5 posizioni)",
        formato.numeri, figures::kColonneTabella));
  if (formato.massimo > kMassimoNumero)
    return ArgomentoNonValido(
        fmt::format("L'archivio generico ha numeri fino a {}: le figure leggono solo numeri da 1 a {}", formato.massimo,
                    kMassimoNumero));
  std::vector<Estrazione> righe;
  righe.reserve(static_cast<size_t>(ultima - prima + 1));
  for (int id = prima; id <= ultima; ++id) {
    const EstrazioneGioco& estrazione = generico[id];
    Estrazione riga;
    riga.id_estr = id - prima + 1;
    riga.data = estrazione.data;
    for (int colonna = 1; colonna <= formato.numeri; ++colonna)
      riga.ImpostaNumero(figures::RuotaDellaColonna(colonna), figures::PosizioneDellaColonna(colonna),
                         estrazione.numeri[static_cast<size_t>(colonna - 1)]);
    righe.push_back(riga);
  }
  return TabellaEstrazioni(std::move(righe));
}

Result<Variant> GetCollFiguraUtente(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto struttura, StrutturaArgomento(lib, args, "GetCollFiguraUtente"));
  VBS_TRY_ASSIGN(auto tab, lib.Archivio());
  figures::OpzioniRicerca opzioni;
  VBS_TRY_ASSIGN(opzioni.inizio, EstrazioneArgomento(*tab, args, 1, 0, "IdEstrIniz"));
  VBS_TRY_ASSIGN(opzioni.fine, EstrazioneArgomento(*tab, args, 2, opzioni.inizio, "IdEstrFin"));
  if (opzioni.fine < opzioni.inizio)
    return ArgomentoNonValido(
        fmt::format("IdEstrFin ({}) viene prima di IdEstrIniz ({})", opzioni.fine, opzioni.inizio));
  VBS_TRY_ASSIGN(opzioni.ruote, RuoteArgomentoFigura(args, 3));
  return CollezioneTrovate(lib, *tab, struttura, opzioni, FonteFigura{});
}

// The search runs on the rows a figure completing in IdEstrIniz..IdEstrFin can reach, laid out once.
Result<Variant> GetCollFiguraUtenteFT(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto struttura, StrutturaArgomento(lib, args, "GetCollFiguraUtenteFT"));
  VBS_TRY_ASSIGN(auto generico, TabellaDelGioco(lib, Suffisso::FT));
  const int estrazioni = generico->EstrazioniArchivio();
  VBS_TRY_ASSIGN(auto inizio, EstrazioneArgomento(estrazioni, args, 1, 0, "IdEstrIniz"));
  VBS_TRY_ASSIGN(auto fine, EstrazioneArgomento(estrazioni, args, 2, inizio, "IdEstrFin"));
  if (fine < inizio)
    return ArgomentoNonValido(fmt::format("IdEstrFin ({}) viene prima di IdEstrIniz ({})", fine, inizio));
  const int prima = std::max(1, inizio - figures::kMassimeRigheFigura);
  VBS_TRY_ASSIGN(auto righe, RigheDelGenerico(*generico, prima, fine));
  FonteFigura fonte{OrigineFigura::Generico, std::make_shared<const TabellaEstrazioni>(std::move(righe)), prima - 1,
                    generico->formato().numeri};
  figures::OpzioniRicerca opzioni;
  opzioni.inizio = inizio - fonte.spostamento;
  opzioni.fine = fine - fonte.spostamento;
  return CollezioneTrovate(lib, *fonte.righe, struttura, opzioni, fonte);
}

// The draws a figure completing at `id_estr` may reach, with that draw's numbers replaced by the
// 55 of `numeri` (0 for a cell with no number): a table of at most kMassimeRigheFigura + 1 draws.
Result<TabellaEstrazioni> FinestraConNumeri(const TabellaEstrazioni& tab, int id_estr,
                                            const std::vector<double>& numeri) {
  if (numeri.size() != static_cast<size_t>(figures::kColonneTabella))
    return ArgomentoNonValido(fmt::format(
        "aNumeri deve avere {} elementi, uno per posizione di ogni ruota (BA 1..5, CA 6..10, ..., NZ 51..55); ne ha {}",
        figures::kColonneTabella, numeri.size()));
  const int prima = std::max(1, id_estr - figures::kMassimeRigheFigura);
  std::vector<Estrazione> estrazioni;
  for (int id = prima; id <= id_estr; ++id) estrazioni.push_back(tab[id]);
  Estrazione& ultima = estrazioni.back();
  for (int colonna = 1; colonna <= figures::kColonneTabella; ++colonna) {
    const double numero = numeri[colonna - 1];
    if (numero != std::floor(numero) || numero < 0 || numero > 90)
      return ArgomentoNonValido(
          fmt::format("Numero non valido in aNumeri({}): {} (da 1 a 90, 0 dove manca)", colonna, numero));
    ultima.ImpostaNumero(figures::RuotaDellaColonna(colonna), figures::PosizioneDellaColonna(colonna),
                         static_cast<int>(numero));
  }
  return TabellaEstrazioni(std::move(estrazioni));
}

Result<Variant> GetCollFiguraUtenteQN(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto struttura, StrutturaArgomento(lib, args, "GetCollFiguraUtenteQN"));
  VBS_TRY_ASSIGN(auto tab, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(*tab, args, 1, 0, "IdEstr"));
  VBS_TRY_ASSIGN(auto numeri, ValoriArgomento(args, 2));
  VBS_TRY_ASSIGN(auto finestra, FinestraConNumeri(*tab, id_estr, numeri));
  figures::OpzioniRicerca opzioni;
  opzioni.inizio = opzioni.fine = finestra.EstrazioniArchivio();
  VBS_TRY_ASSIGN(opzioni.ruote, RuoteArgomentoFigura(args, 3));
  FonteFigura fonte{OrigineFigura::NumeriScript, std::make_shared<const TabellaEstrazioni>(std::move(finestra)),
                    id_estr - opzioni.fine};
  return CollezioneTrovate(lib, *fonte.righe, struttura, opzioni, fonte);
}

Result<FiguraUtente*> FiguraArgomento(const CallArgs& args) {
  const Variant& valore = args[0];
  auto* figura = valore.is_object() ? dynamic_cast<FiguraUtente*>(valore.as_object()) : nullptr;
  if (!figura) return ArgomentoNonValido("Il primo argomento deve essere una figura di GetCollFiguraUtente");
  return figura;
}

Result<Variant> GetArrayNumeriFromFiguraGeodomica(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto figura, FiguraArgomento(args));
  const std::vector<int> numeri = figura->NumeriDaGiocare();
  args.Out(1) = ArrayDaUno(numeri);
  return Variant::Long(static_cast<int32_t>(numeri.size()));
}

Result<Variant> GetNumeroVerticiFiguraGeodomica(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto figura, FiguraArgomento(args));
  return Variant::Long(static_cast<int32_t>(figura->figura().vertici.size()));
}

Result<Variant> SommaVerticaleInFigura(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto figura, FiguraArgomento(args));
  VBS_TRY_ASSIGN(auto indice, args.Long(1));
  VBS_TRY_ASSIGN(auto posto, figura->PostoVertice(indice));
  const auto& vertici = figura->figura().vertici;
  int somma = 0;
  for (const auto& vertice : vertici)
    if (vertice.ruota == vertici[posto].ruota && vertice.posizione == vertici[posto].posizione) somma += vertice.numero;
  return Variant::Integer(static_cast<int16_t>((somma - 1) % 90 + 1));
}

const Libreria::Funzione kFigureUtente[] = {
    {"GetCollFiguraUtente", 2, 4, &GetCollFiguraUtente,
     "NomeFileStruttura, IdEstrIniz, [IdEstrFin = IdEstrIniz], [aRuote = TT_]: una collezione delle figure della "
     "struttura salvata nel file (*.dat dell'editor delle strutture) che si completano, con l'ultima riga, in "
     "un'estrazione da IdEstrIniz a IdEstrFin, toccando solo le ruote aRuote (TT_ tutte, Nazionale compresa), "
     "come le trova cerca-figura; ogni elemento ha IdEstrazione, QuantitaVertici, Vertice(i), "
     "EstrazioneVertice(i), RuotaVertice(i), PosizioneVertice(i), Numeri, NumeriGioco, Ruote, Descrizione",
     "Collection di FiguraGeodomica: le figure trovate, per estrazione, forma e colonna; vuota se nessuna",
     "For Each f In GetCollFiguraUtente(\"strutture\\coppia.dat\", EstrazioniArchivio - 1, EstrazioniArchivio) : "
     "Scrivi f & \" gioca \" & Join(f.NumeriGioco, \"-\") : Next"},
    {"GetCollFiguraUtenteQN", 3, 4, &GetCollFiguraUtenteQN,
     "NomeFileStruttura, IdEstr, aNumeri, [aRuote = TT_]: come GetCollFiguraUtente per la sola IdEstr, ma con i "
     "numeri dell'estrazione IdEstr sostituiti dai 55 di aNumeri, uno per colonna della tabella (BA posizioni "
     "1..5, CA 6..10, ..., NZ 51..55; 0 dove non c'è numero): le figure che quei numeri completerebbero sulle "
     "estrazioni precedenti",
     "Collection di FiguraGeodomica: le figure che aNumeri completerebbe; vuota se nessuna",
     "ReDim aN(55) : For i = 1 To 55 : aN(i) = 0 : Next : aN(1) = 12 : aN(2) = 34 : aN(6) = 56 : Scrivi "
     "GetCollFiguraUtenteQN(\"strutture\\coppia.dat\", EstrazioniArchivio, aN).Count & \" figure\""},
    {"GetCollFiguraUtenteFT", 2, 3, &GetCollFiguraUtenteFT,
     "NomeFileStruttura, IdEstrIniz, [IdEstrFin = IdEstrIniz]: come GetCollFiguraUtente sull'archivio generico "
     "(quello aperto da ApriBaseDatiFT o configurato): i K numeri di ogni estrazione stanno nelle prime K colonne "
     "della tabella (BA posizioni 1..5, CA 6..10, ...), le altre vuote; errore se K supera 55 o i numeri 90",
     "Collection di FiguraGeodomica: le figure trovate nell'archivio generico; vuota se nessuna",
     "Scrivi GetCollFiguraUtenteFT(\"strutture\\coppia.dat\", EstrazioniArchivioFT - 10, EstrazioniArchivioFT).Count & "
     "\" figure\""},
    {"GetArrayNumeriFromFiguraGeodomica", 2, 2, &GetArrayNumeriFromFiguraGeodomica,
     "Figura, aRet: mette in aRet, con indice da 1, i numeri da giocare di una figura di GetCollFiguraUtente "
     "(quelli dei vertici segnati per la chiusura, o di tutti se nessuno è segnato) e restituisce quanti sono",
     "Long: quanti numeri da giocare; in aRet i numeri (array da 1)",
     "For Each f In GetCollFiguraUtente(\"strutture\\coppia.dat\", EstrazioniArchivio - 1, EstrazioniArchivio) : n = "
     "GetArrayNumeriFromFiguraGeodomica(f, aN) : Scrivi n & \" numeri:\" & Join(aN, \" \") : Next"},
    {"GetNumeroVerticiFiguraGeodomica", 1, 1, &GetNumeroVerticiFiguraGeodomica,
     "Figura: quanti vertici ha una figura di GetCollFiguraUtente", "Long: quanti vertici ha la figura",
     "For Each f In GetCollFiguraUtente(\"strutture\\coppia.dat\", EstrazioniArchivio - 1, EstrazioniArchivio) : "
     "Scrivi GetNumeroVerticiFiguraGeodomica(f) : Next"},
    {"SommaVerticaleInFigura", 2, 2, &SommaVerticaleInFigura,
     "Figura, IdVertice: la somma dei numeri dei vertici della figura nella stessa colonna (stessa ruota e "
     "posizione) del vertice IdVertice, lui compreso, riportata tra 1 e 90 (fuori 90)",
     "Integer: la somma dei numeri della colonna del vertice, fuori 90 (1..90)",
     "For Each f In GetCollFiguraUtente(\"strutture\\coppia.dat\", EstrazioniArchivio - 1, EstrazioniArchivio) : "
     "Scrivi SommaVerticaleInFigura(f, 1) : Next"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniFigureUtente() { return kFigureUtente; }

}  // namespace lottolab::script
