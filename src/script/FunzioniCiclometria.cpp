// The figures of the circle of 90 (stats/Ciclometria.h) for scripts: every figure of a kind among
// the numbers of a draw's wheels or of a set the script gives, as a collection of FiguraCiclo
// objects that For Each walks.
//
// The first argument says where the numbers come from (ArgomentiCiclometria.h).

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "ArgomentiCiclometria.h"
#include "ArgomentiGioco.h"
#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Collezione.h"
#include "Famiglia.h"
#include "FiguraCiclo.h"
#include "stats/Ciclometria.h"

namespace lottolab::script {

namespace {

using namespace famiglia;
using stats::TipoFigura;

// The figures as a collection of FiguraCiclo objects, in their order.
Result<Variant> CollezioneDi(Libreria& lib, const std::vector<stats::FiguraCiclometrica>& figure) {
  auto collezione = vbs::MakeRef<Collezione>(lib.locale());
  for (const auto& figura : figure) {
    VBS_TRY(collezione->Aggiungi(Variant::Object(vbs::MakeRef<FiguraCiclo>(lib.locale(), figura)), u""));
  }
  return Variant::Object(collezione);
}

Result<Variant> FigureDiTipi(Libreria& lib, const CallArgs& args, stats::TipiFigura tipi) {
  VBS_TRY_ASSIGN(auto insieme, InsiemeArgomenti(lib, args, 0));
  return CollezioneDi(lib, stats::TrovaFigure(insieme, tipi));
}

template <TipoFigura kTipo>
Result<Variant> FigureDiUnTipo(Libreria& lib, CallArgs& args) {
  return FigureDiTipi(lib, args, stats::Tipo(kTipo));
}

Result<Variant> GetCollFigureCiclometriche(Libreria& lib, CallArgs& args) {
  stats::TipiFigura tipi = stats::kFigureDiUnInsieme;
  if (args.Has(2)) {
    VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, 2));
    tipi = 0;
    for (double valore : valori) {
      if (valore != std::floor(valore) || valore < 1 || valore >= stats::kTipiFigura)
        return ArgomentoNonValido(fmt::format(
            "Tipo di figura non valido: {} (da 1 a 7; i parallelepipedi con GetCollParallelepipedi)", valore));
      tipi |= stats::Tipo(static_cast<TipoFigura>(valore));
    }
  }
  return FigureDiTipi(lib, args, tipi);
}

Result<Variant> GetCollParallelepipedi(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(*tab, args, 0, 0, "IdEstr"));
  VBS_TRY_ASSIGN(auto ruote, RuoteDellaFigura(args, 1));
  if (ruote.size() < 2)
    return ArgomentoNonValido(
        "Servono almeno due ruote: un parallelepipedo unisce una corda di una ruota alla "
        "corda diametrale di un'altra");
  const Estrazione& estrazione = (*tab)[id_estr];
  std::vector<stats::InsiemeCiclometrico> facce;
  for (int ruota : ruote) facce.push_back(stats::InsiemeDaEstrazione(estrazione, std::span<const int>(&ruota, 1)));
  std::vector<stats::FiguraCiclometrica> figure;
  for (size_t i = 0; i < facce.size(); ++i)
    for (size_t j = i + 1; j < facce.size(); ++j) stats::TrovaParallelepipedi(facce[i], facce[j], figure);
  return CollezioneDi(lib, figure);
}

Result<Variant> GetCollParallelepipediQN(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto faccia1, InsiemeDiNumeri(args, 0));
  VBS_TRY_ASSIGN(auto faccia2, InsiemeDiNumeri(args, 1));
  std::vector<stats::FiguraCiclometrica> figure;
  stats::TrovaParallelepipedi(faccia1, faccia2, figure);
  return CollezioneDi(lib, figure);
}

// The numbers of a draw of the generic archive as a face, when they lie on the circle of 90.
Result<stats::InsiemeCiclometrico> FacciaGenerica(const TabellaGioco& tab, const EstrazioneGioco& estrazione) {
  if (tab.formato().massimo != 90)
    return ArgomentoNonValido(fmt::format(
        "L'archivio generico ha numeri da 1 a {}: le figure ciclometriche vogliono il cerchio dei 90 numeri",
        tab.formato().massimo));
  stats::InsiemeCiclometrico faccia;
  for (int k = 0; k < tab.formato().numeri; ++k)
    if (estrazione.numeri[k] >= 1 && estrazione.numeri[k] <= 90) faccia.Aggiungi(estrazione.numeri[k]);
  return faccia;
}

Result<Variant> GetCollParallelepipediFT(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, Suffisso::FT));
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneDelGioco(*tab, args, 0));
  const EstrazioneGioco* altra = nullptr;
  if (args.Has(1)) {
    VBS_TRY_ASSIGN(altra, EstrazioneDelGioco(*tab, args, 1));
  } else {
    VBS_TRY_ASSIGN(auto id_estr, args.Long(0));
    if (id_estr == 1)
      return ArgomentoNonValido("La prima estrazione dell'archivio generico non ha una precedente: indica IdEstr2");
    altra = &(*tab)[id_estr - 1];
  }
  VBS_TRY_ASSIGN(auto faccia1, FacciaGenerica(*tab, *estrazione));
  VBS_TRY_ASSIGN(auto faccia2, FacciaGenerica(*tab, *altra));
  std::vector<stats::FiguraCiclometrica> figure;
  stats::TrovaParallelepipedi(faccia1, faccia2, figure);
  return CollezioneDi(lib, figure);
}

Result<Variant> GetArrayNumeriFromFiguraCiclo(Libreria&, CallArgs& args) {
  const Variant& valore = args[0];
  auto* figura = valore.is_object() ? dynamic_cast<FiguraCiclo*>(valore.as_object()) : nullptr;
  if (!figura)
    return ArgomentoNonValido("Il primo argomento deve essere una figura di una collezione GetColl... ciclometrica");
  const auto vertici = figura->figura().Vertici();
  args.Out(1) = ArrayDaUno(std::vector<int>(vertici.begin(), vertici.end()));
  return Variant::Integer(static_cast<int16_t>(vertici.size()));
}

#define LOTTOLAB_ORIGINE                                                                                      \
  "IdEstr o aNumeri, [aRuote = TT_]: i numeri dell'estrazione IdEstr sulle ruote aRuote (TT_ le dieci ruote " \
  "cittadine, NZ_ se indicata), o i numeri 1..90 dell'array aNumeri (allora senza aRuote); "

const Libreria::Funzione kCiclometria[] = {
    {"GetCollFigureCiclometriche", 1, 3, &GetCollFigureCiclometriche,
     LOTTOLAB_ORIGINE
     "[aTipi]: una collezione con tutte le figure ciclometriche tra quei numeri, dei tipi aTipi (un numero o un "
     "array: 1 diametro, 2 triangolo equilatero, 3 triangolo isoscele, 4 quadrato ciclometrico, 5 rettangolo, 6 "
     "trapezio isoscele, 7 aquilone; tutti se omesso), raggruppate per tipo; ogni elemento ha Tipo, IdTipo, "
     "Numeri, Vertice(i), Ruote, RuoteVertice(i), Descrizione",
     "Collection di FiguraCiclo: le figure trovate, raggruppate per tipo; vuota se non ce ne sono",
     "For Each f In GetCollFigureCiclometriche(EstrazioniArchivio, Array(BA_, VE_), Array(2, 7)) : Scrivi "
     "f.Descrizione : Next"},
    {"GetCollTriangoliEquilateri", 1, 2, &FigureDiUnTipo<TipoFigura::TriangoloEquilatero>,
     LOTTOLAB_ORIGINE "una collezione dei triangoli equilateri: tre numeri a distanza 30 l'uno dall'altro",
     "Collection di FiguraCiclo: i triangoli equilateri, vuota se non ce ne sono",
     "For Each f In GetCollTriangoliEquilateri(Array(1, 31, 61, 10, 40, 70)) : Scrivi f : Next"},
    {"GetCollTriangoliIsosceli", 1, 2, &FigureDiUnTipo<TipoFigura::TriangoloIsoscele>,
     LOTTOLAB_ORIGINE
     "una collezione dei triangoli isosceli: un vertice (il primo) alla stessa distanza, da 1 a 44 ma non 30, "
     "dagli altri due; gli equilateri sono a parte",
     "Collection di FiguraCiclo: i triangoli isosceli, vuota se non ce ne sono",
     "For Each f In GetCollTriangoliIsosceli(EstrazioniArchivio, Array(BA_, NA_)) : Scrivi f : Next"},
    {"GetCollQuadratoCiclometrico", 1, 2, &FigureDiUnTipo<TipoFigura::QuadratoCiclometrico>,
     LOTTOLAB_ORIGINE
     "una collezione dei quadrati ciclometrici: 90 non si divide per 4, così il quadrato è quello di lati 22 e 23, "
     "con due diametri per diagonali (1-23-46-68)",
     "Collection di FiguraCiclo: i quadrati ciclometrici, vuota se non ce ne sono",
     "Scrivi GetCollQuadratoCiclometrico(Array(1, 23, 46, 68)).Count & \" quadrato\""},
    {"GetCollRettangoli", 1, 2, &FigureDiUnTipo<TipoFigura::Rettangolo>,
     LOTTOLAB_ORIGINE "una collezione dei rettangoli: due diametri qualsiasi, tranne quelli del quadrato ciclometrico",
     "Collection di FiguraCiclo: i rettangoli, vuota se non ce ne sono",
     "For Each f In GetCollRettangoli(Array(1, 46, 10, 55)) : Scrivi f : Next"},
    {"GetCollTrapezioIsoscele", 1, 2, &FigureDiUnTipo<TipoFigura::TrapezioIsoscele>,
     LOTTOLAB_ORIGINE
     "una collezione dei trapezi isosceli: due corde parallele (somme uguali modulo 90) di distanza diversa",
     "Collection di FiguraCiclo: i trapezi isosceli, vuota se non ce ne sono",
     "For Each f In GetCollTrapezioIsoscele(EstrazioniArchivio) : Scrivi f : Next"},
    {"GetCollAquiloneCiclometrico", 1, 2, &FigureDiUnTipo<TipoFigura::Aquilone>,
     LOTTOLAB_ORIGINE
     "una collezione degli aquiloni: un diametro (l'asse) e due numeri alla stessa distanza da un suo estremo; "
     "il primo vertice è l'estremo tra i lati più corti",
     "Collection di FiguraCiclo: gli aquiloni, vuota se non ce ne sono",
     "For Each f In GetCollAquiloneCiclometrico(Array(10, 55, 18, 2)) : Scrivi f : Next"},
    {"GetCollParallelepipedi", 1, 2, &GetCollParallelepipedi,
     "IdEstr, [aRuote = TT_]: una collezione dei parallelepipedi dell'estrazione: una corda di una ruota e la "
     "corda dei suoi diametrali su un'altra delle ruote aRuote (almeno due), per ogni coppia di ruote; Ruote dice "
     "la ruota di ogni vertice",
     "Collection di FiguraCiclo: i parallelepipedi (IdTipo 8), vuota se non ce ne sono",
     "For Each f In GetCollParallelepipedi(EstrazioniArchivio, Array(BA_, CA_, FI_)) : Scrivi f : Next"},
    {"GetCollParallelepipediQN", 2, 2, &GetCollParallelepipediQN,
     "aNumeri1, aNumeri2: i parallelepipedi tra due gruppi di numeri 1..90 dati dallo script al posto di due "
     "ruote: una corda di aNumeri1 e la corda dei suoi diametrali in aNumeri2",
     "Collection di FiguraCiclo: i parallelepipedi tra i due gruppi, vuota se non ce ne sono",
     "For Each f In GetCollParallelepipediQN(Array(10, 20), Array(55, 65)) : Scrivi f : Next"},
    {"GetCollParallelepipediFT", 1, 2, &GetCollParallelepipediFT,
     "IdEstr, [IdEstr2 = IdEstr - 1]: i parallelepipedi tra due estrazioni dell'archivio generico (ApriBaseDatiFT), "
     "che ha una sola ruota: una corda dell'estrazione IdEstr e la corda dei suoi diametrali nell'estrazione "
     "IdEstr2, la precedente se omessa; l'archivio deve avere i numeri da 1 a 90",
     "Collection di FiguraCiclo: i parallelepipedi tra le due estrazioni, vuota se non ce ne sono",
     "Scrivi GetCollParallelepipediFT(EstrazioniArchivioFT).Count & \" parallelepipedi\""},
    {"GetArrayNumeriFromFiguraCiclo", 2, 2, &GetArrayNumeriFromFiguraCiclo,
     "Figura, aRet: mette in aRet, con indice da 1, i vertici di una figura delle collezioni ciclometriche "
     "nell'ordine del disegno e restituisce quanti sono",
     "Integer: quanti vertici; in aRet i vertici (array da 1)",
     "For Each f In GetCollRettangoli(Array(1, 46, 10, 55)) : n = GetArrayNumeriFromFiguraCiclo(f, aV) : Scrivi n & \" "
     "vertici:\" & Join(aV, \" \") : Next"},
};

#undef LOTTOLAB_ORIGINE

}  // namespace

std::span<const Libreria::Funzione> FunzioniCiclometria() { return kCiclometria; }

}  // namespace lottolab::script
