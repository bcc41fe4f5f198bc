// Draws of the other games written into archive files of the same game, other than the configured
// ones, as SalvaEstrazione does for the Lotto: the configured archives are never written by a script.

#include <fmt/format.h>

#include <vector>

#include "ArgomentiGioco.h"
#include "ArgomentoPercorso.h"
#include "FamigliaGiochi.h"
#include "archive/ArchivioGioco.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

// File, IdEstr, [Posizione = 0]: Posizione 0 or past the end appends, 1..N overwrites. The file is
// written whole, set aside and renamed, only when the draws keep their order of date.
template <Suffisso kSuffisso>
Result<Variant> SalvaEstrazioneGioco(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneDelGioco(*tab, args, 1));
  VBS_TRY_ASSIGN(auto posizione, args.Long(2, 0));
  if (posizione < 0) return ArgomentoNonValido(fmt::format("Posizione non valida: {} (0 per accodare)", posizione));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, file, "SalvaEstrazione"));
  const FormatoGioco& formato = tab->formato();
  auto destinazione = CaricaArchivioGioco(formato, file);
  if (!destinazione) return ArgomentoNonValido(destinazione.Errore().testo);
  std::vector<EstrazioneGioco> estrazioni = destinazione->Tutte();
  const bool accoda = posizione == 0 || posizione > static_cast<int32_t>(estrazioni.size());
  const size_t posto = accoda ? estrazioni.size() : static_cast<size_t>(posizione - 1);
  EstrazioneGioco scritta = *estrazione;
  scritta.id_estr = static_cast<int32_t>(posto + 1);
  if (accoda)
    estrazioni.push_back(scritta);
  else
    estrazioni[posto] = scritta;
  for (size_t i = posto; i < estrazioni.size() && i <= posto + 1; ++i)
    if (auto difetto = DifettoEstrazioneGioco(formato, estrazioni[i], static_cast<int>(i + 1),
                                              i > 0 ? &estrazioni[i - 1] : nullptr))
      return ArgomentoNonValido(fmt::format("L'estrazione non si può scrivere in {}: {}", file.string(), *difetto));
  auto salvato = SalvaArchivioGioco(TabellaGioco(formato, std::move(estrazioni)), file);
  if (!salvato) return ArgomentoNonValido(salvato.Errore().testo);
  return Variant::Boolean(true);
}

const FunzioneDeiGiochi kBaseDatiGiochi[] = {
    {"SalvaEstrazione", 2, 3, LOTTOLAB_PER_OGNI_GIOCO(SalvaEstrazioneGioco),
     "NomeFile, IdEstr, [Posizione = 0]: scrive l'estrazione IdEstr dell'archivio in uso del gioco nel file d'archivio "
     "NomeFile dello stesso gioco, tutto insieme: in fondo con Posizione 0, al posto di quella alla Posizione "
     "indicata altrimenti; un file che non esiste si crea. Le estrazioni devono restare in ordine di data; l'archivio "
     "configurato non si scrive dagli script",
     "Boolean: True se scritta", "Scrivi SalvaEstrazione{s}(\"copia{s}.dat\", EstrazioniArchivio{s})"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniBaseDatiGiochi() {
  static const std::vector<Libreria::Funzione> funzioni = DeclinaPerGioco(kBaseDatiGiochi);
  return funzioni;
}

}  // namespace lottolab::script
