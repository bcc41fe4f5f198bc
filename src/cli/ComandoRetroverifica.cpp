// `retroverifica`: a bet or a system played in every draw of a range of the archive, never stopping,
// and what it would have cost and paid: the back-test of a strategy before money is staked on it.

#include <fmt/format.h>
#include <fmt/ostream.h>

#include "ArgomentiPuntata.h"
#include "Comandi.h"
#include "archive/DateEstrazione.h"
#include "archive/FileSicuri.h"
#include "script/FileSistema.h"
#include "stats/Combinazioni.h"
#include "stats/Giocata.h"
#include "stats/SviluppoIntegrale.h"

namespace lottolab::cli {

namespace {

// A system's columns are each checked on every wheel in every draw: beyond this a back-test of the
// whole archive stops being a wait of seconds.
constexpr size_t kMassimoColonne = 5000;

Esito<std::vector<std::vector<int>>> ColonneDelFile(const std::string& nome) {
  auto testo = LeggiFileRegolare(nome, script::kLimiteFileSistema);
  if (!testo) return testo.Errore();
  if (!*testo) return AvvisoEsclamativo(fmt::format("il sistema {} non esiste", nome));
  auto colonne = script::LeggiTestoSistema(**testo, nome);
  if (!colonne) return colonne.Errore();
  if (colonne->empty()) return AvvisoEsclamativo(fmt::format("il sistema {} non ha colonne", nome));
  return std::move(*colonne);
}

Esito<std::vector<std::vector<int>>> SviluppoDi(const std::vector<int>& numeri, const std::string& testo_classe) {
  auto classe = LeggiNumero(testo_classe);
  const int quanti = static_cast<int>(numeri.size());
  if (!classe || *classe < 1 || *classe > quanti)
    return AvvisoEsclamativo(fmt::format("classe non valida: {} (da 1 a {})", testo_classe, quanti));
  if (stats::Combinazioni(quanti, *classe) > static_cast<double>(kMassimoColonne))
    return AvvisoEsclamativo(fmt::format("lo sviluppo di {} numeri in classe {} ha {:.0f} colonne (al più {})", quanti,
                                         *classe, stats::Combinazioni(quanti, *classe), kMassimoColonne));
  std::vector<std::vector<int>> colonne;
  stats::SviluppoIntegrale sviluppo(quanti, *classe);
  while (sviluppo.Avanza()) {
    std::vector<int>& colonna = colonne.emplace_back();
    for (int posizione : sviluppo.Gruppo()) colonna.push_back(numeri[static_cast<size_t>(posizione)]);
  }
  return colonne;
}

// The columns the options name: --sistema FILE, --numeri developed in --classe, or --numeri alone.
Esito<std::vector<std::vector<int>>> LeggiColonne(const Argomenti& argomenti) {
  if (argomenti.opzioni.contains("sistema")) {
    if (argomenti.opzioni.contains("numeri") || argomenti.opzioni.contains("classe"))
      return AvvisoEsclamativo("--sistema non va insieme a --numeri o --classe");
    return ColonneDelFile(Opzione(argomenti, "sistema"));
  }
  if (!argomenti.opzioni.contains("numeri")) return AvvisoEsclamativo("manca l'opzione --numeri (o --sistema FILE)");
  auto numeri = LeggiNumeri(Opzione(argomenti, "numeri"));
  if (!numeri) return numeri.Errore();
  if (!argomenti.opzioni.contains("classe")) return std::vector<std::vector<int>>{*numeri};
  return SviluppoDi(*numeri, Opzione(argomenti, "classe"));
}

void StampaRiepilogo(Contesto& contesto, const stats::Riepilogo& riepilogo) {
  fmt::print(contesto.out, "spesa {}, lordo {}, ritenuta {}, netto {}, saldo {}\n",
             stats::FormattaEuro(riepilogo.spesa), stats::FormattaEuro(riepilogo.vinto.lordo),
             stats::FormattaEuro(riepilogo.vinto.ritenuta), stats::FormattaEuro(riepilogo.vinto.netto),
             stats::FormattaEuro(riepilogo.saldo));
  for (size_t sorte = 1; sorte < riepilogo.colpi_vincenti_per_sorte.size(); ++sorte)
    if (riepilogo.colpi_vincenti_per_sorte[sorte] > 0)
      fmt::print(contesto.out, "{}: vinto in {} colpi, {} lordi\n",
                 stats::NomeSorte(static_cast<stats::SorteLotto>(sorte)), riepilogo.colpi_vincenti_per_sorte[sorte],
                 stats::FormattaEuro(riepilogo.lordo_per_sorte[sorte]));
  fmt::print(contesto.out, "al più {} colpi di fila senza vincite; calo massimo del saldo {}\n",
             riepilogo.massima_serie_senza_vincite, stats::FormattaEuro(riepilogo.massimo_calo));
}

}  // namespace

int ComandoRetroverifica(Contesto& contesto, const Parole& parole) {
  auto argomenti = SeparaArgomenti(
      parole, {"sorte", "numeri", "ruote", "posta", "posizione", "inizio", "fine", "classe", "sistema"});
  if (!argomenti) return contesto.Fallisci(argomenti.Errore());
  if (!argomenti->parole.empty())
    return contesto.Fallisci(AvvisoEsclamativo(fmt::format("parola inattesa: {}", argomenti->parole.front())));
  auto colonne = LeggiColonne(*argomenti);
  if (!colonne) return contesto.Fallisci(colonne.Errore());
  if (colonne->size() > kMassimoColonne)
    return contesto.Fallisci(
        AvvisoEsclamativo(fmt::format("il sistema ha {} colonne (al più {})", colonne->size(), kMassimoColonne)));

  auto tabella = contesto.CaricaTabellaNonVuota();
  if (!tabella) return contesto.Fallisci(tabella.Errore());
  auto intervallo = LeggiIntervallo(*tabella, *argomenti);
  if (!intervallo) return contesto.Fallisci(intervallo.Errore());
  const GruppoData& dal = (*tabella)[intervallo->inizio].data;
  auto puntata = LeggiPuntata(*argomenti, dal, colonne->front());
  if (!puntata) return contesto.Fallisci(puntata.Errore());

  stats::Giocata giocata;
  giocata.colonne = std::move(*colonne);
  giocata.ruote = puntata->ruote;
  giocata.poste = {stats::PostaSorte{puntata->sorte, puntata->posta, {}, puntata->posizione}};
  giocata.prima_estrazione = intervallo->inizio;
  // Every column is checked as the first one was, on the date of the first draw played.
  if (auto controllo = stats::ControllaGiocata(giocata, *tabella); !controllo)
    return contesto.Fallisci(controllo.Errore());

  const stats::Riepilogo riepilogo = stats::RetroVerifica(giocata, *tabella, intervallo->inizio, intervallo->fine);
  fmt::print(contesto.out, "{} su {} {}, posta {} euro a colonna, dal {} al {}: {} colpi, {} euro a colpo\n",
             stats::NomeSorte(puntata->sorte), giocata.colonne.size(),
             giocata.colonne.size() == 1 ? "colonna" : "colonne", stats::FormattaEuro(puntata->posta),
             FormattaData(dal), FormattaData((*tabella)[intervallo->fine].data), riepilogo.colpi,
             stats::FormattaEuro(stats::SpesaAlColpo(giocata, 1)));
  StampaRiepilogo(contesto, riepilogo);
  return kUscitaRiuscita;
}

}  // namespace lottolab::cli
