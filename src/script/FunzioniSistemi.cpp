// Reduced systems: the columns of k numbers, among the numbers a script gives, that guarantee a
// sorte when enough of them come out (stats/SistemiRidotti.h builds and checks them).

#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "stats/SistemiRidotti.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

// aNumeri, Classe, Garanzia, aRet, [Condizione = Garanzia]: aRet(colonna, 1..Classe) the columns
// with the script's numbers; the number of columns.
Result<Variant> GetMatriceSistemaRidotto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto numeri, NumeriArgomento(args, 0));
  if (std::set<int>(numeri.begin(), numeri.end()).size() != numeri.size())
    return ArgomentoNonValido("I numeri del sistema devono essere tutti diversi");
  const int quanti = static_cast<int>(numeri.size());
  VBS_TRY_ASSIGN(auto classe, args.Long(1));
  VBS_TRY_ASSIGN(auto garanzia, args.Long(2));
  VBS_TRY_ASSIGN(auto condizione, args.Long(4, garanzia));
  stats::ControlloSistema controllo;
  controllo.interrompi = [&lib] { return !lib.ControllaInterruzione(); };
  auto sistema = stats::CostruisciSistemaRidotto(
      {.numeri = quanti, .classe = classe, .garanzia = garanzia, .condizione = condizione, .seme = 1}, controllo);
  VBS_TRY(lib.ControllaInterruzione());
  if (!sistema) return ArgomentoNonValido(sistema.Errore().testo);

  const auto colonne = static_cast<int32_t>(sistema->colonne.size());
  const vbs::ArrayBound limiti[] = {{1, colonne}, {1, classe}};
  VBS_TRY_ASSIGN(auto matrice, vbs::SafeArray::Create(limiti));
  auto celle = matrice->elements();
  for (size_t c = 0; c < sistema->colonne.size(); ++c)
    for (size_t j = 0; j < sistema->colonne[c].size(); ++j)
      celle[c + j * sistema->colonne.size()] =
          Variant::Integer(static_cast<int16_t>(numeri[static_cast<size_t>(sistema->colonne[c][j] - 1)]));
  args.Out(3) = Variant::Array(std::move(matrice));
  return Variant::Long(colonne);
}

const Libreria::Funzione kSistemi[] = {
    {"GetMatriceSistemaRidotto", 4, 5, &GetMatriceSistemaRidotto,
     "aNumeri, Classe, Garanzia, aRet, [Condizione = Garanzia]: un sistema ridotto dei numeri di aNumeri in colonne "
     "di Classe numeri che garantisce la sorte Garanzia quando Condizione dei numeri escono; riempie aRet(colonna, "
     "1..Classe) e restituisce quante colonne (Long). Ogni sistema è verificato su tutti i casi prima di essere dato"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniSistemi() { return kSistemi; }

}  // namespace lottolab::script
