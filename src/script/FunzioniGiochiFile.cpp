// The generic archive: a text of draws of any lottery, or its archive file, opened for the FT names;
// and a text file read one line at a time, for scripts that turn some other layout into draws.

#include <fmt/format.h>

#include <string>
#include <vector>

#include "ArgomentoPercorso.h"
#include "FamigliaGiochi.h"
#include "LetturaFile.h"
#include "archive/ArchivioGenerico.h"
#include "archive/ArchivioGioco.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

// A text of draws of the generic archive is a few MB at most.
constexpr uintmax_t kLimiteArchivioGenerico = uintmax_t{64} << 20;

Result<MisureGeneriche> MisureArgomento(const CallArgs& args) {
  MisureGeneriche misure;
  VBS_TRY_ASSIGN(auto numeri, args.Long(1, 0));
  VBS_TRY_ASSIGN(auto massimo, args.Long(2, 0));
  if (numeri < 0 || numeri > kMassimoNumeriGioco)
    return ArgomentoNonValido(fmt::format("Numeri per estrazione non validi: {} (da 1 a {}, 0 per leggerli dal file)",
                                          numeri, kMassimoNumeriGioco));
  if (massimo < 0 || massimo > 255)
    return ArgomentoNonValido(
        fmt::format("Numero massimo non valido: {} (fino a 255, 0 per leggerlo dal file)", massimo));
  misure.numeri = numeri;
  misure.massimo = massimo;
  return misure;
}

// NomeFile, [Numeri], [Massimo]: the archive file, or a text of draws read as the import reads it.
Result<Variant> ApriBaseDatiFT(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Read, file, "ApriBaseDatiFT"));
  VBS_TRY_ASSIGN(auto misure, MisureArgomento(args));
  auto contenuto = LeggiFileRegolare(file, kLimiteArchivioGenerico);
  if (!contenuto) return ArgomentoNonValido(contenuto.Errore().testo);
  auto tabella =
      IsArchivioGenerico(*contenuto) ? CaricaArchivioGenerico(file) : LeggiArchivioGenerico(*contenuto, misure);
  if (!tabella) return ArgomentoNonValido(fmt::format("{}: {}", file.string(), tabella.Errore().testo));
  if (tabella->EstrazioniArchivio() == 0)
    return ArgomentoNonValido(fmt::format("Il file {} non contiene estrazioni", file.string()));
  const auto estrazioni = tabella->EstrazioniArchivio();
  lib.Stato<ArchiviGiochi>().ApriGenerico(std::move(tabella).Valore());
  return Variant::Long(estrazioni);
}

struct FlussoDiRighe {
  std::vector<std::u16string> righe;
  size_t prossima = 0;
  bool aperto = false;
};

Result<Variant> GetStreamFT(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Read, file, "GetStreamFT"));
  auto contenuto = LeggiFileRegolare(file, kLimiteFileTesto);
  if (!contenuto) return ArgomentoNonValido(contenuto.Errore().testo);
  FlussoDiRighe& flusso = lib.Stato<FlussoDiRighe>();
  flusso = {};
  const std::u16string decodificato = text::DecodeScriptFile(*contenuto);
  std::u16string_view testo = decodificato;
  while (!testo.empty()) {
    const size_t a_capo = testo.find(u'\n');
    std::u16string_view riga = testo.substr(0, a_capo);
    if (riga.ends_with(u'\r')) riga.remove_suffix(1);
    flusso.righe.emplace_back(riga);
    testo.remove_prefix(a_capo == std::u16string_view::npos ? testo.size() : a_capo + 1);
  }
  flusso.aperto = true;
  return Variant::Boolean(true);
}

Result<Variant> GetNextLineFT(Libreria& lib, CallArgs&) {
  FlussoDiRighe& flusso = lib.Stato<FlussoDiRighe>();
  if (!flusso.aperto) return ArgomentoNonValido("Nessun file aperto con GetStreamFT");
  if (flusso.prossima >= flusso.righe.size()) return Variant();
  return Variant::String(flusso.righe[flusso.prossima++]);
}

Result<Variant> ChiudiStreamFT(Libreria& lib, CallArgs&) {
  lib.Stato<FlussoDiRighe>() = {};
  return Variant();
}

const Libreria::Funzione kGiochiFile[] = {
    {"ApriBaseDatiFT", 1, 3, &ApriBaseDatiFT,
     "NomeFile, [Numeri = 0], [Massimo = 0]: apre per le funzioni FT un archivio generico, il suo file o un file di "
     "testo con un'estrazione per riga (una data e Numeri numeri da 1 a Massimo; 0 li legge dalla riga \"# numeri K "
     "massimo M\" del file o dalla prima estrazione); il numero di estrazioni lette (Long), errore 5 se il file non si "
     "legge o non ha estrazioni",
     "Long: quante estrazioni ha letto; errore 5, con il motivo, se il file non si legge o non ha estrazioni",
     "ScriviFile \"generico.txt\", \"01/01/2024 5 17 33 48 90\", False, True : Scrivi ApriBaseDatiFT(\"generico.txt\", "
     "5, 90) : ResetArchivi"},
    {"GetStreamFT", 1, 1, &GetStreamFT,
     "NomeFile: apre il file di testo per leggerlo una riga alla volta con GetNextLineFT; True se aperto",
     "Boolean: True; errore 5 se il file non si legge",
     "ScriviFile \"righe.txt\", \"prima riga\", False, True : If GetStreamFT(\"righe.txt\") Then Scrivi "
     "GetNextLineFT()"},
    {"GetNextLineFT", 0, 0, &GetNextLineFT,
     "la riga successiva del file aperto con GetStreamFT, Empty dopo l'ultima (si controlla con IsEmpty)",
     "String: la riga, senza il suo a capo; Empty dopo l'ultima",
     "ScriviFile \"righe.txt\", \"prima riga\", False, True : GetStreamFT \"righe.txt\" : r = GetNextLineFT() : Do "
     "Until IsEmpty(r) : Scrivi r : r = GetNextLineFT() : Loop"},
    {"ChiudiStreamFT", 0, 0, &ChiudiStreamFT, "chiude il file aperto con GetStreamFT", "niente (Sub)",
     "ScriviFile \"righe.txt\", \"prima riga\", False, True : GetStreamFT \"righe.txt\" : Scrivi GetNextLineFT() : "
     "ChiudiStreamFT"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniGiochiFile() { return kGiochiFile; }

}  // namespace lottolab::script
