// Reduced systems: the columns of k numbers, among the numbers a script gives, that guarantee a
// sorte when enough of them come out (stats/SistemiRidotti.h builds and checks them), given whole
// as a matrix or one column at a time; and the text files of a system's columns (FileSistema.h).
//
// A file of columns is read whole at its first use and kept while it stays the same, since scripts
// read it a column per call; a save replaces the file all at once with its old columns and the new
// ones, so a run killed while saving leaves the file as it was or with every new column.

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <optional>
#include <set>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "ArgomentoPercorso.h"
#include "Famiglia.h"
#include "FileSistema.h"
#include "LetturaFile.h"
#include "archive/FileSicuri.h"
#include "stats/SistemiRidotti.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

namespace fs = std::filesystem;
using namespace famiglia;

// What a reduced system is built from.
struct RichiestaSistema {
  std::vector<int> numeri;
  int32_t classe = 0;
  int32_t garanzia = 0;
  int32_t condizione = 0;
  friend bool operator==(const RichiestaSistema&, const RichiestaSistema&) = default;
};

// The last system built by GetMatriceSistemaRidotto or GetCombSviluppoRid, in the script's numbers,
// what it was built from, and the next column GetCombSviluppoRid gives.
struct StatoSistemaRidotto {
  std::optional<std::vector<ColonnaSistema>> colonne;
  RichiestaSistema richiesta;
  size_t prossima = 0;
};

// The columns of the last file of columns read, with what identified its content then.
struct StatoFileSistema {
  fs::path file;
  fs::file_time_type modifica;
  uintmax_t dimensione = 0;
  std::vector<ColonnaSistema> colonne;
};

// aNumeri, Classe, Garanzia at i, i + 1, i + 2, and [Condizione = Garanzia] at `i_condizione`.
Result<RichiestaSistema> RichiestaArgomenti(const CallArgs& args, size_t i, size_t i_condizione) {
  RichiestaSistema richiesta;
  VBS_TRY_ASSIGN(auto numeri, NumeriArgomento(args, i));
  if (std::set<int>(numeri.begin(), numeri.end()).size() != numeri.size())
    return ArgomentoNonValido("I numeri del sistema devono essere tutti diversi");
  richiesta.numeri = std::move(numeri);
  VBS_TRY_ASSIGN(auto classe, args.Long(i + 1));
  richiesta.classe = classe;
  VBS_TRY_ASSIGN(auto garanzia, args.Long(i + 2));
  richiesta.garanzia = garanzia;
  VBS_TRY_ASSIGN(auto condizione, args.Long(i_condizione, garanzia));
  richiesta.condizione = condizione;
  return richiesta;
}

// The system asked for, which becomes the one GetCombSviluppoRid walks, from its first column.
Result<const std::vector<ColonnaSistema>*> CostruisciSistema(Libreria& lib, RichiestaSistema richiesta) {
  stats::ControlloSistema controllo;
  controllo.interrompi = [&lib] { return !lib.ControllaInterruzione(); };
  auto sistema = stats::CostruisciSistemaRidotto({.numeri = static_cast<int>(richiesta.numeri.size()),
                                                  .classe = richiesta.classe,
                                                  .garanzia = richiesta.garanzia,
                                                  .condizione = richiesta.condizione,
                                                  .seme = 1},
                                                 controllo);
  VBS_TRY(lib.ControllaInterruzione());
  if (!sistema) return ArgomentoNonValido(sistema.Errore().testo);
  std::vector<ColonnaSistema> colonne;
  for (const auto& posizioni : sistema->colonne) {
    ColonnaSistema colonna;
    for (int posizione : posizioni) colonna.push_back(richiesta.numeri[static_cast<size_t>(posizione - 1)]);
    colonne.push_back(std::move(colonna));
  }
  auto& stato = lib.Stato<StatoSistemaRidotto>();
  stato = {std::move(colonne), std::move(richiesta), 0};
  return &*stato.colonne;
}

// aNumeri, Classe, Garanzia, aRet, [Condizione = Garanzia]: aRet(colonna, 1..Classe) the columns
// with the script's numbers; the number of columns.
Result<Variant> GetMatriceSistemaRidotto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto richiesta, RichiestaArgomenti(args, 0, 4));
  VBS_TRY_ASSIGN(auto costruite, CostruisciSistema(lib, std::move(richiesta)));
  const std::vector<ColonnaSistema>& colonne = *costruite;
  const auto quante = static_cast<int32_t>(colonne.size());
  const auto classe = static_cast<int32_t>(colonne.empty() ? 0 : colonne.front().size());
  const vbs::ArrayBound limiti[] = {{1, quante}, {1, classe}};
  VBS_TRY_ASSIGN(auto matrice, vbs::SafeArray::Create(limiti));
  auto celle = matrice->elements();
  for (size_t c = 0; c < colonne.size(); ++c)
    for (size_t j = 0; j < colonne[c].size(); ++j)
      celle[c + j * colonne.size()] = Variant::Integer(static_cast<int16_t>(colonne[c][j]));
  args.Out(3) = Variant::Array(std::move(matrice));
  return Variant::Long(quante);
}

// aRet, [aNumeri, Classe, Garanzia, [Condizione = Garanzia]]: the next column of the system. The
// same arguments call after call walk one system, so that they can sit in the loop's condition.
Result<Variant> GetCombSviluppoRid(Libreria& lib, CallArgs& args) {
  auto& stato = lib.Stato<StatoSistemaRidotto>();
  if (args.Has(1)) {
    if (!args.Has(2) || !args.Has(3))
      return ArgomentoNonValido("Per un sistema ridotto servono aNumeri, Classe e Garanzia");
    VBS_TRY_ASSIGN(auto richiesta, RichiestaArgomenti(args, 1, 4));
    if (!stato.colonne || !(richiesta == stato.richiesta)) VBS_TRY(CostruisciSistema(lib, std::move(richiesta)));
  }
  if (!stato.colonne)
    return ArgomentoNonValido(
        "Nessun sistema ridotto da sviluppare: darlo a GetCombSviluppoRid con aNumeri, Classe e Garanzia, o "
        "costruirlo con GetMatriceSistemaRidotto");
  if (stato.prossima >= stato.colonne->size()) return Variant::Boolean(false);
  args.Out(0) = ArrayDaUno((*stato.colonne)[stato.prossima++]);
  return Variant::Boolean(true);
}

// The columns of the file, read again only when it changed since the last reading.
Result<const std::vector<ColonnaSistema>*> ColonneDelFile(Libreria& lib, const fs::path& file) {
  auto& stato = lib.Stato<StatoFileSistema>();
  std::error_code ec_modifica, ec_dimensione;
  const auto modifica = fs::last_write_time(file, ec_modifica);
  const auto dimensione = fs::file_size(file, ec_dimensione);
  if (!ec_modifica && !ec_dimensione && stato.file == file && stato.modifica == modifica &&
      stato.dimensione == dimensione)
    return &stato.colonne;
  stato.file.clear();
  auto testo = LeggiFileRegolare(file, kLimiteFileSistema);
  if (!testo) return ArgomentoNonValido(testo.Errore().testo);
  auto colonne = LeggiTestoSistema(*testo, file);
  if (!colonne) return ArgomentoNonValido(colonne.Errore().testo);
  stato = {file, modifica, testo->size(), std::move(colonne).Valore()};
  return &stato.colonne;
}

// NomeFile, NumeroColonna, aRet.
Result<Variant> LeggiColonnaSistema(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto numero, args.Long(1));
  if (numero < 1) return ArgomentoNonValido(fmt::format("NumeroColonna non valido: {} (da 1)", numero));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Read, file, "LeggiColonnaSistema"));
  VBS_TRY_ASSIGN(auto colonne, ColonneDelFile(lib, file));
  if (static_cast<size_t>(numero) > colonne->size()) return Variant::Boolean(false);
  args.Out(2) = ArrayDaUno((*colonne)[static_cast<size_t>(numero - 1)]);
  return Variant::Boolean(true);
}

Result<int> NumeroDaSalvare(const Variant& valore, const vbs::Locale& locale) {
  VBS_TRY_ASSIGN(auto numero, valore.to_double(locale));
  if (!(numero >= 1 && numero <= 90 && numero == std::floor(numero)))
    return ArgomentoNonValido(fmt::format("Numero non valido nella colonna: {} (da 1 a 90)", numero));
  return static_cast<int>(numero);
}

// A column given as one value or a one-dimensional array, or the columns of a matrix
// (colonna, elemento) as GetMatriceSistemaRidotto gives them; Empty elements are passed over.
Result<std::vector<ColonnaSistema>> ColonneDaSalvare(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto valore, args.Value(i));
  std::vector<ColonnaSistema> colonne;
  if (!valore.is_array() || valore.as_array()->DimensionCount() == 1) {
    VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, i));
    ColonnaSistema colonna;
    for (double v : valori) {
      VBS_TRY_ASSIGN(auto numero, NumeroDaSalvare(Variant::Double(v), args.locale()));
      colonna.push_back(numero);
    }
    colonne.push_back(std::move(colonna));
  } else if (valore.as_array()->DimensionCount() == 2) {
    const auto& limiti = valore.as_array()->bounds();
    for (int32_t c = limiti[0].lower; c <= limiti[0].upper; ++c) {
      ColonnaSistema colonna;
      for (int32_t j = limiti[1].lower; j <= limiti[1].upper; ++j) {
        const int32_t indici[] = {c, j};
        VBS_TRY_ASSIGN(auto elemento, vbs::ReadElement(valore, indici));
        if (elemento.is_empty()) continue;
        VBS_TRY_ASSIGN(auto numero, NumeroDaSalvare(elemento, args.locale()));
        colonna.push_back(numero);
      }
      if (!colonna.empty()) colonne.push_back(std::move(colonna));
    }
  } else {
    return ArgomentoNonValido("aColonna va data come array di numeri o come matrice aColonna(colonna, elemento)");
  }
  for (const ColonnaSistema& colonna : colonne) {
    if (colonna.empty()) return ArgomentoNonValido("Colonna vuota: nessun numero da salvare");
    if (std::set<int>(colonna.begin(), colonna.end()).size() != colonna.size())
      return ArgomentoNonValido(fmt::format("Numero ripetuto nella colonna {}", RigaSistema(colonna)));
  }
  if (colonne.empty()) return ArgomentoNonValido("Nessuna colonna da salvare");
  return colonne;
}

// NomeFile, aColonna: the number of columns the file holds afterwards.
Result<Variant> SalvaColonnaSistema(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto nuove, ColonneDaSalvare(args, 1));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, file, "SalvaColonnaSistema"));
  std::string testo;
  size_t quante = 0;
  std::error_code ec;
  if (fs::exists(fs::symlink_status(file, ec))) {
    auto letto = LeggiFileRegolare(file, kLimiteFileSistema);
    if (!letto) return ArgomentoNonValido(letto.Errore().testo);
    auto colonne = LeggiTestoSistema(*letto, file);
    if (!colonne) return ArgomentoNonValido(colonne.Errore().testo + "; il file non viene modificato");
    quante = colonne->size();
    testo = std::move(letto).Valore();
    if (!testo.empty() && testo.back() != '\n') testo += '\n';
  }
  for (const ColonnaSistema& colonna : nuove) testo += RigaSistema(colonna);
  if (testo.size() > kLimiteFileSistema)
    return ArgomentoNonValido(
        fmt::format("Il file {} supererebbe i 16 MB: le colonne non vengono salvate", file.string()));
  lib.Stato<StatoFileSistema>().file.clear();
  if (auto scritto = SostituisciFile(file, testo); !scritto) return ArgomentoNonValido(scritto.Errore().testo);
  return Variant::Long(static_cast<int32_t>(quante + nuove.size()));
}

const Libreria::Funzione kSistemi[] = {
    {"GetMatriceSistemaRidotto", 4, 5, &GetMatriceSistemaRidotto,
     "aNumeri, Classe, Garanzia, aRet, [Condizione = Garanzia]: un sistema ridotto dei numeri di aNumeri in colonne "
     "di Classe numeri che garantisce la sorte Garanzia quando Condizione dei numeri escono; riempie aRet(colonna, "
     "1..Classe) e restituisce quante colonne (Long). Ogni sistema è verificato su tutti i casi prima di essere dato; "
     "GetCombSviluppoRid ne dà poi le colonne una alla volta",
     "Long: quante colonne; in aRet(colonna, 1..Classe) i numeri di ciascuna",
     "Scrivi GetMatriceSistemaRidotto(Array(1, 2, 3, 4, 5, 6, 7), 3, 2, aS) & \" colonne, la prima: \" & aS(1, 1) & \" "
     "\" & aS(1, 2) & \" \" & aS(1, 3)"},
    {"GetCombSviluppoRid", 1, 5, &GetCombSviluppoRid,
     "aRet, [aNumeri, Classe, Garanzia, [Condizione = Garanzia]]: mette in aRet la colonna successiva del sistema "
     "ridotto come array con indice da 1 e restituisce True; False, lasciando aRet invariato, dopo l'ultima. Con "
     "aNumeri, Classe e Garanzia diversi da quelli del sistema in corso ne costruisce uno nuovo come "
     "GetMatriceSistemaRidotto e ne dà la prima colonna; uguali, o senza, continua il sistema in corso, l'ultimo "
     "costruito (anche da GetMatriceSistemaRidotto, che lo fa ripartire): Do While GetCombSviluppoRid(c, a, 3, 2) "
     "dà tutte le colonne una volta",
     "Boolean: True con la colonna successiva in aRet (array da 1); False dopo l'ultima",
     "Do While GetCombSviluppoRid(aC, Array(1, 2, 3, 4, 5, 6, 7), 3, 2) : Scrivi Join(aC, \" \") : Loop"},
    {"LeggiColonnaSistema", 3, 3, &LeggiColonnaSistema,
     "NomeFile, NumeroColonna, aRet: mette in aRet la colonna NumeroColonna (da 1) del file di colonne NomeFile, come "
     "array con indice da 1, e restituisce True; False dopo l'ultima colonna. Il file ha una colonna per riga, i "
     "numeri (1..90, diversi) separati da spazi, tabulazioni, virgole o punti e virgola; le righe vuote e quelle che "
     "cominciano con # non contano. Un file che non rispetta questa forma viene rifiutato, indicando la riga",
     "Boolean: True con la colonna in aRet (array da 1); False dopo l'ultima",
     "SalvaColonnaSistema \"sistema.txt\", Array(3, 11, 19) : If LeggiColonnaSistema(\"sistema.txt\", 1, aC) Then "
     "Scrivi Join(aC, \" \")"},
    {"SalvaColonnaSistema", 2, 2, &SalvaColonnaSistema,
     "NomeFile, aColonna: aggiunge in fondo al file di colonne NomeFile (creandolo se manca) la colonna aColonna "
     "(array di numeri 1..90 diversi) o tutte le colonne di una matrice aColonna(colonna, elemento) come quella di "
     "GetMatriceSistemaRidotto; il file è riscritto tutto in una volta, e uno che non è un file di colonne non "
     "viene toccato. Restituisce quante colonne ha ora il file (Long)",
     "Long: quante colonne ha ora il file", "Scrivi SalvaColonnaSistema(\"sistema.txt\", Array(27, 38, 44))"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniSistemi() { return kSistemi; }

}  // namespace lottolab::script
