// The outcome of a forecast on the Lotto: numbers named after a draw, watched on some wheels for a
// number of colpi and closed at the first win (stats/EsitoPrevisione.h), with its money when the
// script gives the stakes (stats/Giocata.h); the ambetto of a forecast, and of a group of numbers
// against five drawn numbers.
//
// A forecast that the archive cannot close yet is "in corso": the colpi it held are said, and the
// script reads them back in RetColpiGiocati.

#include <fmt/format.h>

#include <string>
#include <vector>

#include "ArgomentiLotto.h"
#include "ArgomentiPremi.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "GiocateScript.h"
#include "archive/DateEstrazione.h"
#include "stats/EsitoPrevisione.h"

namespace lottolab::script {

namespace {

using namespace famiglia;
using stats::EsitoPrevisione;

constexpr int kNazionaleScript = 12;  // NZ_ in the script's numbering

int RuotaScript(int ruota) { return ruota == NZ ? kNazionaleScript : ruota; }

int PrimaRuota(uint16_t ruote) {
  for (int r = 1; r <= kNumeroRuote; ++r)
    if (ruote & (1U << (r - 1))) return r;
  return 0;
}

std::string ElencoRuote(uint16_t ruote) {
  std::string elenco;
  for (int r = 1; r <= kNumeroRuote; ++r)
    if (ruote & (1U << (r - 1))) elenco += (elenco.empty() ? "" : ", ") + std::string(SiglaRuota(r));
  return elenco;
}

std::string DescriviEstrazione(const TabellaEstrazioni& tab, int id_estr) {
  const GruppoData& data = tab[id_estr].data;
  return fmt::format("estr. {} del {}", data.indice_annuale, FormattaData(data));
}

// The line of a forecast with no win: closed, or still running.
std::string SenzaVincita(int colpi_giocati, int colpi) {
  if (colpi_giocati < colpi)
    return fmt::format("in corso: {} colpi giocati su {}, nessuna vincita", colpi_giocati, colpi);
  return fmt::format("negativo dopo {} colpi", colpi);
}

// What every forecast on the Lotto reads first: aNumeri, aRuote, IdEstr, Colpi.
struct Previsione {
  const TabellaEstrazioni* tab = nullptr;
  std::vector<int> numeri;
  std::vector<int> ruote;
  int id_estr = 0;
  int colpi = 0;
};

Result<Previsione> PrevisioneArgomenti(const Libreria& lib, const CallArgs& args) {
  Previsione p;
  VBS_TRY_ASSIGN(auto tab, lib.Archivio());
  p.tab = tab;
  VBS_TRY_ASSIGN(auto numeri, NumeriDiversi(args, 0));
  p.numeri = std::move(numeri);
  VBS_TRY_ASSIGN(auto ruote, RuoteDellaGiocata(args, 1));
  p.ruote = std::move(ruote);
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(*tab, args, 2, 0, "IdEstr"));
  p.id_estr = id_estr;
  VBS_TRY_ASSIGN(auto colpi, ColpiArgomento(args, 3));
  p.colpi = colpi;
  return p;
}

// The ByRef outs from argument i on, each only when the script gave it: RetColpo, RetIdEstr,
// RetRuota, RetColpiGiocati.
void RestituisciEsito(CallArgs& args, size_t i, const EsitoPrevisione& esito) {
  const int valori[] = {esito.colpo, esito.id_estr, RuotaScript(PrimaRuota(esito.ruote)), esito.colpi_giocati};
  for (size_t k = 0; k < std::size(valori); ++k)
    if (args.Has(i + k)) args.Out(i + k) = Variant::Long(valori[k]);
}

enum class Scrittura { Facoltativa, Mai };

// aNumeri, aRuote, IdEstr, Colpi, [SorteMinima = 1], [Scrivi = True], [RetColpo], [RetIdEstr],
// [RetRuota], [RetColpiGiocati].
template <Scrittura kScrittura>
Result<Variant> VerificaEsito(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto p, PrevisioneArgomenti(lib, args));
  VBS_TRY_ASSIGN(auto sorte_minima, InteroFacoltativo(args, 4, 1, kNumeriPerRuota, "SorteMinima", 1));
  if (static_cast<size_t>(sorte_minima) > p.numeri.size())
    return ArgomentoNonValido(
        fmt::format("SorteMinima {} maggiore dei numeri giocati ({})", sorte_minima, p.numeri.size()));
  VBS_TRY_ASSIGN(auto scrivi, args.Boolean(5, true));
  const EsitoPrevisione esito = stats::VerificaPrevisione(*p.tab, p.numeri, p.ruote, p.id_estr, p.colpi, sorte_minima);
  if (kScrittura == Scrittura::Facoltativa && scrivi) {
    const std::string riga =
        esito.colpo > 0
            ? fmt::format("{} su {} al colpo {}, {}", stats::NomeSorte(static_cast<stats::SorteLotto>(esito.sorte)),
                          ElencoRuote(esito.ruote), esito.colpo, DescriviEstrazione(*p.tab, esito.id_estr))
            : SenzaVincita(esito.colpi_giocati, p.colpi);
    lib.Scrivi(riga + '\n', lib.colore_testo(), false);
  }
  RestituisciEsito(args, 6, esito);
  return Variant::Long(esito.sorte);
}

// The sorti won in a colpo, each with its wheels: "ambo su BA, estratto su BA, VE".
std::string VinciteDelColpo(const stats::ColpoGiocata& colpo) {
  std::string testo;
  for (int s = 5; s >= 1; --s) {
    uint16_t ruote = 0;
    for (const stats::VincitaGiocata& v : colpo.vincite)
      if (static_cast<int>(v.sorte) == s) ruote = static_cast<uint16_t>(ruote | (1U << (v.ruota - 1)));
    if (ruote == 0) continue;
    testo += fmt::format("{}{} su {}", testo.empty() ? "" : ", ", stats::NomeSorte(static_cast<stats::SorteLotto>(s)),
                         ElencoRuote(ruote));
  }
  return testo;
}

// aNumeri, aRuote, IdEstr, Colpi, aPoste, [Scrivi = True], [FermaAllaVincita = True], [RetSpesa],
// [RetVintoNetto], [RetColpo].
Result<Variant> VerificaEsitoConGuadagno(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto p, PrevisioneArgomenti(lib, args));
  VBS_TRY_ASSIGN(auto poste, PosteArgomento(args, 4));
  VBS_TRY_ASSIGN(auto scrivi, args.Boolean(5, true));
  VBS_TRY_ASSIGN(auto ferma, args.Boolean(6, true));
  stats::Giocata giocata{{p.numeri},    p.ruote, std::move(poste),
                         p.id_estr + 1, p.colpi, ferma ? stats::Arresto::AllaPrimaVincita : stats::Arresto::AllaFine};
  // A forecast on the last draw is checked against the rules of that draw's date: nothing follows it yet.
  stats::Giocata da_controllare = giocata;
  da_controllare.prima_estrazione = std::min(giocata.prima_estrazione, p.tab->EstrazioniArchivio());
  if (auto controllo = stats::ControllaGiocata(da_controllare, *p.tab); !controllo) return Rifiuto(controllo.Errore());
  stats::EsitoGiocata esito;
  if (giocata.prima_estrazione <= p.tab->EstrazioniArchivio())
    esito = stats::VerificaGiocata(giocata, *p.tab);
  else
    esito.colpi_mancanti = giocata.colpi;

  const stats::ColpoGiocata* primo = nullptr;
  for (const stats::ColpoGiocata& colpo : esito.colpi)
    if (!colpo.vincite.empty()) {
      primo = &colpo;
      break;
    }
  if (scrivi) {
    const int giocati = static_cast<int>(esito.colpi.size());
    std::string riga = primo ? fmt::format("{} al colpo {}, {}", VinciteDelColpo(*primo), primo->colpo,
                                           DescriviEstrazione(*p.tab, primo->id_estr))
                             : SenzaVincita(giocati, p.colpi);
    if (primo && esito.colpi_mancanti > 0 && !ferma)
      riga += fmt::format(" (in corso: {} colpi giocati su {})", giocati, p.colpi);
    riga += fmt::format(": spesa {}, vinti {} netti ({} lordi), guadagno {} euro\n", stats::FormattaEuro(esito.spesa),
                        stats::FormattaEuro(esito.vinto.netto), stats::FormattaEuro(esito.vinto.lordo),
                        stats::FormattaEuro(esito.saldo));
    lib.Scrivi(std::move(riga), lib.colore_testo(), false);
  }
  if (args.Has(7)) args.Out(7) = Euro(esito.spesa);
  if (args.Has(8)) args.Out(8) = Euro(esito.vinto.netto);
  if (args.Has(9)) args.Out(9) = Variant::Long(primo ? primo->colpo : 0);
  return Euro(esito.saldo);
}

vbs::Status ControllaAmbetto(std::span<const int> numeri) {
  if (numeri.size() < 2 || stats::CombinazioniAmbetto(numeri) == 0)
    return ArgomentoNonValido("Questi numeri non formano nessun ambetto: ne servono almeno due");
  return vbs::Ok();
}

// aNumeri, aRuote, IdEstr, Colpi, [Scrivi = True], [RetColpo], [RetIdEstr], [RetRuota], [RetColpiGiocati].
Result<Variant> VerificaAmbetto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto p, PrevisioneArgomenti(lib, args));
  VBS_TRY(ControllaAmbetto(p.numeri));
  VBS_TRY_ASSIGN(auto scrivi, args.Boolean(4, true));
  const EsitoPrevisione esito = stats::VerificaPrevisioneAmbetto(*p.tab, p.numeri, p.ruote, p.id_estr, p.colpi);
  if (scrivi) {
    const std::string riga =
        esito.colpo > 0
            ? fmt::format("ambetto su {} al colpo {} ({} {}), {}", ElencoRuote(esito.ruote), esito.colpo, esito.sorte,
                          esito.sorte == 1 ? "combinazione" : "combinazioni", DescriviEstrazione(*p.tab, esito.id_estr))
            : SenzaVincita(esito.colpi_giocati, p.colpi);
    lib.Scrivi(riga + '\n', lib.colore_testo(), false);
  }
  RestituisciEsito(args, 5, esito);
  return Variant::Long(esito.sorte);
}

// aNumeri, aEstratti.
Result<Variant> TestAmbetto(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto numeri, NumeriDiversi(args, 0));
  VBS_TRY(ControllaAmbetto(numeri));
  VBS_TRY_ASSIGN(auto estratti, NumeriDiversi(args, 1));
  if (estratti.size() > kNumeriPerRuota)
    return ArgomentoNonValido(fmt::format("aEstratti ha {} numeri: una ruota ne estrae 5", estratti.size()));
  stats::CinquinaRuota cinquina{};
  std::ranges::copy(estratti, cinquina.begin());
  const stats::PuntataLotto puntata{stats::SorteLotto::Ambetto, std::move(numeri), {}, 0, 0};
  return Variant::Long(static_cast<int32_t>(stats::CombinazioniVincenti(puntata, cinquina)));
}

const Libreria::Funzione kEsiti[] = {
    {"VerificaEsito", 4, 10, &VerificaEsito<Scrittura::Facoltativa>,
     "aNumeri, aRuote, IdEstr, Colpi, [SorteMinima = 1], [Scrivi = True], [RetColpo], [RetIdEstr], [RetRuota], "
     "[RetColpiGiocati]: l'esito della previsione di aNumeri fatta dopo l'estrazione IdEstr, sulle ruote di aRuote "
     "(TT_ le dieci ruote senza Nazionale) nei Colpi estrazioni seguenti; si chiude alla prima estrazione in cui una "
     "ruota dà almeno SorteMinima numeri e restituisce la sorte più alta di quell'estrazione (Long, 0 se nessuna). "
     "Con Scrivi scrive una riga: \"ambo su BA al colpo 3, estr. 45 del 12/03/2024\", \"negativo dopo 18 colpi\" o "
     "\"in corso: 5 colpi giocati su 18\". "
     "[RetColpo], [RetIdEstr], [RetRuota], [RetColpiGiocati]: nelle variabili facoltative il colpo, l'IdEstr e la "
     "prima ruota (NZ_ = 12) della vincita (0 senza vincita) e i colpi che l'archivio contiene, meno di Colpi se la "
     "previsione è ancora in corso",
     "Long: la sorte più alta della vincita, 0 se nessuna; nelle variabili Ret... colpo, IdEstr, ruota e colpi giocati",
     "Scrivi VerificaEsito(Array(12, 34, 56), Array(BA_, NA_), EstrazioniArchivio - 30, 18)"},
    {"VerificaEsitoTurbo", 4, 10, &VerificaEsito<Scrittura::Mai>,
     "aNumeri, aRuote, IdEstr, Colpi, [SorteMinima = 1], [Scrivi], [RetColpo], [RetIdEstr], [RetRuota], "
     "[RetColpiGiocati]: come VerificaEsito, con gli stessi argomenti, ma non scrive mai (Scrivi è ignorato): per i "
     "cicli su tutto l'archivio",
     "Long: la sorte più alta della vincita, 0 se nessuna; le variabili Ret... come VerificaEsito",
     "s = VerificaEsitoTurbo(Array(12, 34, 56), TT_, EstrazioniArchivio - 30, 18, 1, False, c) : Scrivi s & \" al "
     "colpo \" & c"},
    {"VerificaEsitoConGuadagno", 5, 10, &VerificaEsitoConGuadagno,
     "aNumeri, aRuote, IdEstr, Colpi, aPoste, [Scrivi = True], [FermaAllaVincita = True], [RetSpesa], "
     "[RetVintoNetto], [RetColpo]: gioca aNumeri sulle ruote di aRuote dall'estrazione dopo IdEstr per Colpi "
     "estrazioni con le poste aPoste(1..5), in euro per sorte (estratto .. cinquina, divise sulle ruote), come "
     "l'operatore paga (premi e ritenuta della data di ogni estrazione, vincita massima per biglietto); si ferma "
     "alla prima vincita se FermaAllaVincita. Restituisce il guadagno netto in euro (Double, negativo se perde); "
     "con Scrivi scrive le sorti vinte, la spesa, il vinto e il guadagno; nelle variabili facoltative la spesa, il "
     "vinto netto in euro e il colpo della prima vincita (0 se nessuna)",
     "Double: il guadagno netto in euro, negativo se perde; nelle variabili Ret... spesa, vinto netto e colpo",
     "ReDim aP(2) : aP(2) = 1 : Scrivi VerificaEsitoConGuadagno(Array(12, 34, 56), Array(BA_, NA_), EstrazioniArchivio "
     "- 30, 18, aP)"},
    {"VerificaAmbetto", 4, 9, &VerificaAmbetto,
     "aNumeri, aRuote, IdEstr, Colpi, [Scrivi = True], [RetColpo], [RetIdEstr], [RetRuota], [RetColpiGiocati]: "
     "l'esito per ambetto della previsione di aNumeri (almeno due) dopo IdEstr sulle ruote di aRuote nei Colpi "
     "estrazioni seguenti: le combinazioni di ambetto vinte alla prima estrazione che ne dà, sommate sulle ruote "
     "(Long, 0 se nessuna). Le combinazioni si contano a ogni data, anche prima che l'ambetto si giocasse. Con "
     "Scrivi scrive una riga; le variabili facoltative come in VerificaEsito",
     "Long: le combinazioni di ambetto vinte, 0 se nessuna; le variabili Ret... come VerificaEsito",
     "Scrivi VerificaAmbetto(Array(12, 34, 56), TT_, EstrazioniArchivio - 30, 18)"},
    {"TestAmbetto", 2, 2, &TestAmbetto,
     "aNumeri, aEstratti: le combinazioni di ambetto di aNumeri (almeno due) vinte dai numeri di aEstratti (fino a "
     "cinque, i numeri di una ruota): un numero giocato uscito con un vicino (sul cerchio dei 90: i vicini di 90 "
     "sono 89 e 1) di un altro numero giocato; un vicino che è esso stesso giocato non conta e l'ambo esatto non "
     "vince l'ambetto (Long)",
     "Long: quante combinazioni di ambetto vincono", "Scrivi TestAmbetto(Array(12, 34), Array(12, 35, 60, 70, 80))"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniEsiti() { return kEsiti; }

}  // namespace lottolab::script
