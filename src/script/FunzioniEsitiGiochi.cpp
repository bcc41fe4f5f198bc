// The outcome of a forecast on the games besides the Lotto: VerificaEsito without the wheels, as
// every name of those games is its Lotto twin without them. A draw of those games is one set of
// numbers, so the outcome is the main numbers hit; the money of a bet is the bets' business
// (stats/GiocataGioco.h), since most of those games pay shares of a pool.

#include <fmt/format.h>

#include <string>

#include "ArgomentiPremi.h"
#include "ArgomentiRitardi.h"
#include "FamigliaGiochi.h"
#include "archive/DateEstrazione.h"
#include "stats/EsitoPrevisione.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

// The draw as its game names it: by its contest, or by its place in the archive where the game
// numbers no contests (the generic archive).
std::string Concorso(const TabellaGioco& tab, int id_estr) {
  const EstrazioneGioco& e = tab[id_estr];
  std::string testo = e.concorso > 0 ? fmt::format("concorso {} del {}", e.concorso, FormattaData(e.data))
                                     : fmt::format("estrazione {} del {}", id_estr, FormattaData(e.data));
  if (tab.formato().con_ora) testo += fmt::format(" alle {:02}:{:02}", e.minuti / 60, e.minuti % 60);
  return testo;
}

// aNumeri, IdEstr, Colpi, [SorteMinima = 1], [Scrivi = True], [RetColpo], [RetIdEstr], [RetColpiGiocati].
template <Suffisso kSuffisso>
Result<Variant> VerificaEsito(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto numeri, NumeriDiversi(args, 0, tab->formato().massimo));
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(tab->EstrazioniArchivio(), args, 1, 0, "IdEstr"));
  VBS_TRY_ASSIGN(auto colpi, ColpiArgomento(args, 2));
  VBS_TRY_ASSIGN(auto sorte_minima, InteroFacoltativo(args, 3, 1, tab->formato().numeri, "SorteMinima", 1));
  if (static_cast<size_t>(sorte_minima) > numeri.size())
    return ArgomentoNonValido(
        fmt::format("SorteMinima {} maggiore dei numeri giocati ({})", sorte_minima, numeri.size()));
  VBS_TRY_ASSIGN(auto scrivi, args.Boolean(4, true));
  const stats::EsitoPrevisione esito = stats::VerificaPrevisioneGioco(*tab, numeri, id_estr, colpi, sorte_minima);
  if (scrivi) {
    std::string riga;
    if (esito.colpo > 0)
      riga = fmt::format("{} {} al colpo {}, {}", esito.sorte, esito.sorte == 1 ? "punto" : "punti", esito.colpo,
                         Concorso(*tab, esito.id_estr));
    else if (esito.colpi_giocati < colpi)
      riga = fmt::format("in corso: {} colpi giocati su {}, nessuna vincita", esito.colpi_giocati, colpi);
    else
      riga = fmt::format("negativo dopo {} colpi", colpi);
    lib.Scrivi(riga + '\n', lib.colore_testo(), false);
  }
  const int uscite[] = {esito.colpo, esito.id_estr, esito.colpi_giocati};
  for (size_t k = 0; k < std::size(uscite); ++k)
    if (args.Has(5 + k)) args.Out(5 + k) = Variant::Long(uscite[k]);
  return Variant::Long(esito.sorte);
}

const FunzioneDeiGiochi kEsitiGiochi[] = {
    {"VerificaEsito", 3, 8, LOTTOLAB_PER_OGNI_GIOCO(VerificaEsito),
     "aNumeri, IdEstr, Colpi, [SorteMinima = 1], [Scrivi = True], [RetColpo], [RetIdEstr], [RetColpiGiocati]: "
     "l'esito della previsione di aNumeri (1..{m}) fatta dopo l'estrazione IdEstr nei Colpi estrazioni seguenti; si "
     "chiude alla prima estrazione con almeno SorteMinima (1..{n}) numeri tra i principali e restituisce quanti "
     "(Long, 0 se nessuna). Con Scrivi scrive una riga (\"3 punti al colpo 2, concorso ...\", \"negativo dopo N "
     "colpi\", \"in corso: ...\"); nelle variabili facoltative il colpo e l'IdEstr della vincita (0 senza) e i colpi "
     "che l'archivio contiene",
     "Long: quanti numeri principali alla prima estrazione vincente, 0 se nessuna; nelle variabili Ret... colpo, "
     "IdEstr e colpi giocati",
     "Scrivi VerificaEsito{s}(Array(3, 7, 12, 18), EstrazioniArchivio{s} - 20, 10)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniEsitiGiochi() {
  static const std::vector<Libreria::Funzione> funzioni = DeclinaPerGioco(kEsitiGiochi);
  return funzioni;
}

}  // namespace lottolab::script
