// Which draws of the archive are active: the functions that honour the flags pass over the others.
// The run starts with every draw active (InitArrayFlagEstrazioniAttive).

#include <fmt/format.h>

#include "Famiglia.h"
#include "archive/DateEstrazione.h"
#include "text/Utf.h"
#include "vbscript/runtime/Interpreter.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

constexpr int kGiorniSettimana = 7;
constexpr int kMesi = 12;

// One flag per draw, indexed by IdEstr; a script that changes them before the run marked them
// starts from every draw active, as a run does.
std::vector<bool>& Flag(Libreria& lib, const TabellaEstrazioni& archivio) {
  std::vector<bool>& attive = lib.estrazioni_attive();
  const size_t dimensione = static_cast<size_t>(archivio.EstrazioniArchivio()) + 1;
  if (attive.size() != dimensione) attive.assign(dimensione, true);
  return attive;
}

Result<int> IdEstrArgomento(const TabellaEstrazioni& archivio, const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto id_estr, args.Long(i));
  if (!archivio.Contiene(id_estr)) return vbs::MakeError(vbs::err::kSubscript);
  return id_estr;
}

Result<Variant> ImpostaEstrazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, IdEstrArgomento(*archivio, args, 0));
  VBS_TRY_ASSIGN(auto attiva, args.Boolean(1, true));
  Flag(lib, *archivio)[static_cast<size_t>(id_estr)] = attiva;
  return Variant();
}

Result<Variant> ImpostaNessunaEstrazione(Libreria& lib, CallArgs&) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  std::vector<bool>& attive = Flag(lib, *archivio);
  attive.assign(attive.size(), false);
  return Variant();
}

// A question about the archive: a draw it does not hold is simply not active.
Result<Variant> EstrazioneAttivata(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto id_estr, args.Long(0));
  const TabellaEstrazioni* archivio = lib.impostazioni().archivio;
  if (!archivio || !archivio->Contiene(id_estr)) return Variant::Boolean(false);
  return Variant::Boolean(Flag(lib, *archivio)[static_cast<size_t>(id_estr)]);
}

Result<int> FiltroArgomento(const CallArgs& args, size_t i, int massimo, std::string_view cosa) {
  VBS_TRY_ASSIGN(auto valore, args.Long(i, 0));
  if (valore < 0 || valore > massimo)
    return ArgomentoNonValido(fmt::format("{} deve essere da 1 a {}, o 0 per tutti: non {}", cosa, massimo, valore));
  return valore;
}

Result<Variant> EstrazioniRicerca(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  const TabellaEstrazioni& tab = *archivio;
  VBS_TRY_ASSIGN(auto inizio, IdEstrArgomento(tab, args, 0));
  VBS_TRY_ASSIGN(auto fine, IdEstrArgomento(tab, args, 1));
  if (inizio > fine)
    return ArgomentoNonValido(fmt::format("L'estrazione iniziale ({}) viene dopo la finale ({})", inizio, fine));
  VBS_TRY_ASSIGN(auto mese, FiltroArgomento(args, 2, kMesi, "Il mese"));
  VBS_TRY_ASSIGN(auto giorno, FiltroArgomento(args, 3, kGiorniSettimana, "Il giorno della settimana"));

  std::vector<bool>& attive = Flag(lib, tab);
  attive.assign(attive.size(), false);
  int32_t trovate = 0;
  for (int id = inizio; id <= fine; ++id) {
    const GruppoData& data = tab[id].data;
    const bool scelta = (mese == 0 || data.mese == mese) && (giorno == 0 || GiornoDellaSettimana(data) == giorno);
    attive[static_cast<size_t>(id)] = scelta;
    trovate += scelta;
  }
  return Variant::Long(trovate);
}

const Libreria::Funzione kEstrazioniAttive[] = {
    {"ImpostaEstrazione", 1, 2, &ImpostaEstrazione,
     "IdEstr, [Attiva = True]: rende attiva l'estrazione, o inattiva con Attiva False; errore 9 fuori dall'archivio",
     "niente (Sub); errore 9 fuori dall'archivio",
     "ImpostaEstrazione EstrazioniArchivio, False : Scrivi EstrazioneAttivata(EstrazioniArchivio) : ImpostaEstrazione "
     "EstrazioniArchivio"},
    {"ImpostaNessunaEstrazione", 0, 0, &ImpostaNessunaEstrazione, "rende inattive tutte le estrazioni", "niente (Sub)",
     "ImpostaNessunaEstrazione : ImpostaEstrazione EstrazioniArchivio : Scrivi EstrazioneAttivata(EstrazioniArchivio - "
     "1) : n = EstrazioniRicerca(1, EstrazioniArchivio)"},
    {"EstrazioneAttivata", 1, 1, &EstrazioneAttivata,
     "IdEstr: True se l'estrazione è attiva; False per un indice fuori dall'archivio",
     "Boolean: True se l'estrazione è attiva", "Scrivi EstrazioneAttivata(EstrazioniArchivio)"},
    {"EstrazioniRicerca", 2, 4, &EstrazioniRicerca,
     "Inizio, Fine, [Mese = 0], [GiornoSettimana = 0]: rende attive solo le estrazioni da Inizio a Fine di quel mese "
     "(1..12) e giorno della settimana (da 1 domenica a 7 sabato, come Weekday), dove 0 vale qualsiasi; il numero di "
     "estrazioni rese attive (Long)",
     "Long: quante estrazioni sono attive",
     "Scrivi EstrazioniRicerca(EstrazioniArchivio - 999, EstrazioniArchivio, 8, 7) & \" estrazioni di sabato in "
     "agosto\" : n = EstrazioniRicerca(1, EstrazioniArchivio)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniEstrazioniAttive() { return kEstrazioniAttive; }

}  // namespace lottolab::script
