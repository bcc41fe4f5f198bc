// Which draws of each game's archive are active, as FunzioniEstrazioniAttive keeps them for the
// Lotto's: every draw active at first, one set of flags per archive.

#include <fmt/format.h>

#include "ArgomentiRitardi.h"
#include "FamigliaGiochi.h"
#include "archive/DateEstrazione.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

constexpr int kGiorniSettimana = 7;
constexpr int kMesi = 12;

template <Suffisso kSuffisso>
Result<Variant> ImpostaEstrazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneDelGioco(*tab, args, 0));
  VBS_TRY_ASSIGN(auto attiva, args.Boolean(1, true));
  lib.Stato<ArchiviGiochi>().Attive(kSuffisso, *tab)[static_cast<size_t>(estrazione->id_estr)] = attiva;
  return Variant();
}

template <Suffisso kSuffisso>
Result<Variant> ImpostaNessunaEstrazione(Libreria& lib, CallArgs&) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  std::vector<bool>& attive = lib.Stato<ArchiviGiochi>().Attive(kSuffisso, *tab);
  attive.assign(attive.size(), false);
  return Variant();
}

// A question about the archive: a draw it does not hold, or no archive, is simply not active.
template <Suffisso kSuffisso>
Result<Variant> EstrazioneAttivata(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto id_estr, args.Long(0));
  auto tab = TabellaDelGioco(lib, kSuffisso);
  if (!tab || !(*tab)->Contiene(id_estr)) return Variant::Boolean(false);
  return Variant::Boolean(lib.Stato<ArchiviGiochi>().Attive(kSuffisso, **tab)[static_cast<size_t>(id_estr)]);
}

Result<Variant> InitArrayFlagEstrazioniAttiveFT(Libreria& lib, CallArgs&) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, Suffisso::FT));
  std::vector<bool>& attive = lib.Stato<ArchiviGiochi>().Attive(Suffisso::FT, *tab);
  attive.assign(attive.size(), true);
  return Variant();
}

Result<int> FiltroArgomento(const CallArgs& args, size_t i, int massimo, std::string_view cosa) {
  VBS_TRY_ASSIGN(auto valore, args.Long(i, 0));
  if (valore < 0 || valore > massimo)
    return ArgomentoNonValido(fmt::format("{} deve essere da 1 a {}, o 0 per tutti: non {}", cosa, massimo, valore));
  return valore;
}

// Inizio, Fine, [Mese], [GiornoSettimana]: only the draws of the range that match stay active.
template <Suffisso kSuffisso>
Result<Variant> EstrazioniRicerca(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  const int estrazioni = tab->EstrazioniArchivio();
  VBS_TRY_ASSIGN(auto inizio, EstrazioneArgomento(estrazioni, args, 0, 1, "Inizio"));
  VBS_TRY_ASSIGN(auto fine, EstrazioneArgomento(estrazioni, args, 1, estrazioni, "Fine"));
  if (inizio > fine)
    return ArgomentoNonValido(fmt::format("L'estrazione iniziale ({}) viene dopo la finale ({})", inizio, fine));
  VBS_TRY_ASSIGN(auto mese, FiltroArgomento(args, 2, kMesi, "Il mese"));
  VBS_TRY_ASSIGN(auto giorno, FiltroArgomento(args, 3, kGiorniSettimana, "Il giorno della settimana"));
  std::vector<bool>& attive = lib.Stato<ArchiviGiochi>().Attive(kSuffisso, *tab);
  attive.assign(attive.size(), false);
  int32_t trovate = 0;
  for (int id = inizio; id <= fine; ++id) {
    const GruppoData& data = (*tab)[id].data;
    const bool scelta = (mese == 0 || data.mese == mese) && (giorno == 0 || GiornoDellaSettimana(data) == giorno);
    attive[static_cast<size_t>(id)] = scelta;
    trovate += scelta;
  }
  return Variant::Long(trovate);
}

const FunzioneDeiGiochi kEstrazioniAttiveGiochi[] = {
    {"ImpostaEstrazione", 1, 2, LOTTOLAB_PER_OGNI_GIOCO(ImpostaEstrazione),
     "IdEstr, [Attiva = True]: rende attiva l'estrazione, o inattiva con Attiva False; errore 9 fuori dall'archivio",
     "niente (Sub)",
     "ImpostaEstrazione{s} EstrazioniArchivio{s}, False : Scrivi EstrazioneAttivata{s}(EstrazioniArchivio{s}) : "
     "ImpostaEstrazione{s} EstrazioniArchivio{s}"},
    {"ImpostaNessunaEstrazione", 0, 0, LOTTOLAB_PER_OGNI_GIOCO(ImpostaNessunaEstrazione),
     "rende inattive tutte le estrazioni dell'archivio", "niente (Sub)",
     "ImpostaNessunaEstrazione{s} : Scrivi EstrazioneAttivata{s}(1) : EstrazioniRicerca{s} 1, EstrazioniArchivio{s}"},
    {"EstrazioneAttivata", 1, 1, LOTTOLAB_PER_OGNI_GIOCO(EstrazioneAttivata),
     "IdEstr: True se l'estrazione è attiva; False per un indice fuori dall'archivio",
     "Boolean: True se l'estrazione è attiva", "Scrivi EstrazioneAttivata{s}(EstrazioniArchivio{s})"},
    {"EstrazioniRicerca", 2, 4, LOTTOLAB_PER_OGNI_GIOCO(EstrazioniRicerca),
     "Inizio, Fine, [Mese = 0], [GiornoSettimana = 0]: rende attive solo le estrazioni da Inizio a Fine di quel mese "
     "(1..12) e giorno della settimana (da 1 domenica a 7 sabato), dove 0 vale qualsiasi; quante sono (Long)",
     "Long: quante estrazioni restano attive",
     "Scrivi EstrazioniRicerca{s}(1, EstrazioniArchivio{s}, 12) & \" estrazioni di dicembre\" : EstrazioniRicerca{s} "
     "1, EstrazioniArchivio{s}"},
};

const Libreria::Funzione kInizioFT[] = {
    {"InitArrayFlagEstrazioniAttiveFT", 0, 0, &InitArrayFlagEstrazioniAttiveFT,
     "rende attive tutte le estrazioni dell'archivio generico", "niente (Sub)",
     "InitArrayFlagEstrazioniAttiveFT : Scrivi EstrazioneAttivataFT(1)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniGiochiEstrazioniAttive() {
  static const std::vector<Libreria::Funzione> funzioni = DeclinaPerGioco(kEstrazioniAttiveGiochi, kInizioFT);
  return funzioni;
}

}  // namespace lottolab::script
