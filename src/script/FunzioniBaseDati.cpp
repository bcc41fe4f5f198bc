// Other Lotto archive files than the configured one: the run may study one (ApriFileBaseDati) and
// write draws into one (SalvaEstrazione). The configured archive itself is never written by a script.

#include <fmt/format.h>

#include "ArgomentoPercorso.h"
#include "Famiglia.h"
#include "LetturaFile.h"
#include "archive/ClsEstrazioni.h"

namespace lottolab::script {

namespace {

namespace fs = std::filesystem;
using namespace famiglia;

Result<Variant> ApriFileBaseDati(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Read, file, "ApriFileBaseDati"));
  std::error_code ec;
  if (const auto dimensione = fs::file_size(file, ec); !ec && dimensione > kLimiteFileTesto)
    return ArgomentoNonValido(
        fmt::format("Il file {} è troppo grande per un archivio delle estrazioni", file.string()));
  auto tabella = ClsEstrazioni(file).CaricaEstrazioni();
  if (!tabella) return ArgomentoNonValido(tabella.Errore().testo);
  if (tabella->EstrazioniArchivio() == 0)
    return ArgomentoNonValido(fmt::format("Il file {} non contiene estrazioni", file.string()));
  const int estrazioni = tabella->EstrazioniArchivio();
  lib.SostituisciArchivio(std::make_shared<const TabellaEstrazioni>(std::move(tabella).Valore()));
  return Variant::Long(estrazioni);
}

// File, IdEstr, [Posizione = 0]: Posizione 0 appends, 1..N overwrites, N + 1 appends.
Result<Variant> SalvaEstrazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, args.Long(1));
  if (!archivio->Contiene(id_estr)) return vbs::MakeError(vbs::err::kSubscript);
  VBS_TRY_ASSIGN(auto posizione, args.Long(2, 0));
  if (posizione < 0) return ArgomentoNonValido(fmt::format("Posizione non valida: {} (0 per accodare)", posizione));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, file, "SalvaEstrazione"));
  ClsEstrazioni destinazione(file);
  auto presenti = destinazione.GetNumeroEstrazioni();
  if (!presenti) return ArgomentoNonValido(presenti.Errore().testo);
  // A record carries its own place in the file, which the reading checks.
  Estrazione estrazione = (*archivio)[id_estr];
  estrazione.id_estr = posizione == 0 || posizione > *presenti ? *presenti + 1 : posizione;
  auto scritta = destinazione.ScriviEstrazione(estrazione, posizione);
  if (!scritta) return ArgomentoNonValido(scritta.Errore().testo);
  return Variant::Boolean(*scritta);
}

const Libreria::Funzione kBaseDati[] = {
    {"ApriFileBaseDati", 1, 1, &ApriFileBaseDati,
     "NomeFile: per il resto dell'esecuzione le funzioni del Lotto leggono l'archivio di quel file (il formato "
     "dell'archivio del programma) invece di quello configurato; il numero di estrazioni lette (Long). Lo stato già "
     "preparato da altre funzioni (ritardi relativi, sviluppi) resta quello letto prima",
     "Long: quante estrazioni ha letto; errore 5, con il motivo, se il file non si legge o non ha estrazioni",
     "For i = EstrazioniArchivio - 199 To EstrazioniArchivio : SalvaEstrazione \"ultime.dat\", i, i - "
     "EstrazioniArchivio + 200 : Next : Scrivi ApriFileBaseDati(\"ultime.dat\")"},
    {"SalvaEstrazione", 2, 3, &SalvaEstrazione,
     "NomeFile, IdEstr, [Posizione = 0]: scrive l'estrazione IdEstr dell'archivio in uso nel file d'archivio "
     "NomeFile, tutta insieme: in fondo con Posizione 0, al posto di quella alla Posizione indicata altrimenti; "
     "True se scritta. L'archivio configurato non si scrive dagli script",
     "Boolean: True; errore 5, con il motivo, se il file non si scrive o Posizione va oltre la fine + 1",
     "Scrivi SalvaEstrazione(\"copia.dat\", EstrazioniArchivio)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniBaseDati() { return kBaseDati; }

}  // namespace lottolab::script
