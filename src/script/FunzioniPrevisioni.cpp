// A script's forecasts saved into the user's archive of forecasts (previsioni/ArchivioPrevisioni.h),
// the file beside the agenda that the host names in ImpostazioniLibreria::file_agenda. The desktop
// lists them with their check against the draws that follow. Saving is a write of the user's file:
// the run's file rules judge it, so a protected script saves nothing.

#include <fmt/format.h>

#include <algorithm>

#include "ArgomentiPremi.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "FunzioniPrevisioni.h"
#include "previsioni/ArchivioPrevisioni.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

// SalvaPrevisione aNumeri, aRuote, Colpi, [IdEstr], [Testo]
Result<Variant> SalvaPrevisione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  previsioni::Previsione previsione;
  VBS_TRY_ASSIGN(auto numeri, NumeriDiversi(args, 0));
  previsione.numeri = std::move(numeri);
  VBS_TRY_ASSIGN(auto ruote, RuoteDellaGiocata(args, 1));
  previsione.ruote = std::move(ruote);
  std::ranges::sort(previsione.ruote);
  VBS_TRY_ASSIGN(auto colpi, ColpiArgomento(args, 2));
  previsione.colpi = colpi;
  const int ultima = archivio->EstrazioniArchivio();
  if (args.Has(3)) {
    VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(*archivio, args, 3, ultima, "IdEstr"));
    previsione.id_estr = id_estr;
  } else {
    previsione.id_estr = ultima;
  }
  VBS_TRY_ASSIGN(auto testo, args.String(4, u""));
  previsione.testo = text::Utf16ToUtf8(testo);
  if (auto valida = previsioni::ControllaPrevisione(previsione); !valida) return Rifiuto(valida.Errore());

  const std::filesystem::path& agenda = lib.impostazioni().file_agenda;
  if (agenda.empty())
    return ArgomentoNonValido(
        "Nessun archivio delle previsioni: l'esecuzione non ha la cartella dell'agenda dove salvarle");
  const std::filesystem::path file = previsioni::FilePrevisioniAccanto(agenda);
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, file, "SalvaPrevisione"));
  auto aperto = previsioni::ArchivioPrevisioni::Apri(file);
  if (!aperto) return Rifiuto(aperto.Errore());
  auto id = aperto.Valore().Aggiungi(previsione);
  if (!id) return Rifiuto(id.Errore());
  if (*id <= INT32_MAX) return Variant::Long(static_cast<int32_t>(*id));
  return Variant::Double(static_cast<double>(*id));
}

const Libreria::Funzione kPrevisioni[] = {
    {"SalvaPrevisione", 3, 5, &SalvaPrevisione,
     "aNumeri, aRuote, Colpi, [IdEstr = l'ultima estrazione], [Testo]: salva nell'archivio delle previsioni i "
     "numeri (1..90, diversi) sulle ruote (TT_ le dieci città) fatti all'estrazione IdEstr, da giocare nelle Colpi "
     "estrazioni seguenti (1..1000), con un testo di al più 2000 caratteri; restituisce il numero della previsione. "
     "La finestra delle previsioni le verifica. Errore se non c'è la cartella dell'agenda o in modalità protetta",
     "Long: il numero della previsione nell'archivio delle previsioni",
     "Scrivi SalvaPrevisione(Array(12, 34), Array(BA_, NA_), 9, EstrazioniArchivio, \"ambo 12-34\")"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniPrevisioni() { return kPrevisioni; }

}  // namespace lottolab::script
