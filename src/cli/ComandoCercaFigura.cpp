#include <fmt/format.h>
#include <fmt/ostream.h>

#include <algorithm>
#include <charconv>
#include <iterator>

#include "Argomenti.h"
#include "Comandi.h"
#include "Quantita.h"
#include "figures/FileStrutture.h"
#include "figures/RicercaFigure.h"
#include "figures/StatisticaStrutture.h"

namespace lottolab::cli {

namespace {

constexpr std::string_view kUsoCercaFigura =
    "uso: lottolab cerca-figura FILE [--inizio X] [--fine X] [--ruote BA,VE|TT] [--colpi N]";
constexpr int kMassimiColpi = 1000;

Esito<int> LeggiColpi(const std::string& testo) {
  int colpi = 0;
  auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), colpi);
  if (errore != std::errc() || fine != testo.data() + testo.size() || colpi < 1 || colpi > kMassimiColpi)
    return AvvisoEsclamativo(fmt::format("colpi non validi: {} (da 1 a {})", testo, kMassimiColpi));
  return colpi;
}

// One line per figure: the draw that completes it, its date, the wheels it touches, the numbers at
// its vertices in the structure's order.
void ScriviFigura(std::ostream& out, const TabellaEstrazioni& tab, const figures::FigureTrovate& trovate,
                  const figures::FiguraTrovata& trovata) {
  const figures::FiguraPiazzata figura = trovate.Figura(tab, trovata);
  std::vector<int> ruote;
  for (const figures::VerticePiazzato& vertice : figura.vertici)
    if (std::find(ruote.begin(), ruote.end(), vertice.ruota) == ruote.end()) ruote.push_back(vertice.ruota);
  // One buffer for the line: a figure of many vertices found at most cells prints millions of numbers.
  fmt::memory_buffer riga;
  fmt::format_to(std::back_inserter(riga), "{} {} ", trovata.estrazione,
                 tab.DataEstrazione(trovata.estrazione).ValoreOppure("?"));
  for (size_t k = 0; k < ruote.size(); ++k)
    fmt::format_to(std::back_inserter(riga), "{}{}", k == 0 ? "" : ",", SiglaRuota(ruote[k]));
  for (const figures::VerticePiazzato& vertice : figura.vertici)
    fmt::format_to(std::back_inserter(riga), " {:02}", vertice.numero);
  riga.push_back('\n');
  out.write(riga.data(), static_cast<std::streamsize>(riga.size()));
}

void ScriviStatistica(std::ostream& out, const figures::StatisticaStruttura& statistica, int colpi) {
  fmt::print(out, "in {} colpi: ambata {}, ambo {}, terno {}, quaterna {}, cinquina {}, negativi {}, in corso {}\n",
             colpi, statistica.per_sorte[1], statistica.per_sorte[2], statistica.per_sorte[3], statistica.per_sorte[4],
             statistica.per_sorte[5], statistica.negativi, statistica.in_corso);
  fmt::print(out, "colpo medio {:.2f}, ritardo {}, ritardo massimo {}\n", statistica.colpo_medio, statistica.ritardo,
             statistica.ritardo_massimo);
}

}  // namespace

int ComandoCercaFigura(Contesto& contesto, const Parole& parole) {
  auto argomenti = SeparaArgomenti(parole, {"inizio", "fine", "ruote", "colpi"});
  if (!argomenti) return contesto.Fallisci(argomenti.Errore());
  if (argomenti->parole.size() != 1) return contesto.Fallisci(AvvisoEsclamativo(std::string(kUsoCercaFigura)));
  const auto& opzioni = argomenti->opzioni;

  figures::OpzioniRicerca ricerca;
  if (opzioni.contains("ruote")) {
    auto ruote = LeggiRuote(opzioni.at("ruote"));
    if (!ruote) return contesto.Fallisci(ruote.Errore());
    if (std::find(ruote->begin(), ruote->end(), kTutteLeRuote) == ruote->end()) ricerca.ruote = *ruote;
  }
  std::optional<int> colpi;
  if (opzioni.contains("colpi")) {
    auto letti = LeggiColpi(opzioni.at("colpi"));
    if (!letti) return contesto.Fallisci(letti.Errore());
    colpi = *letti;
  }
  auto struttura = figures::CaricaStruttura(argomenti->parole[0]);
  if (!struttura) return contesto.Fallisci(struttura.Errore());
  auto tabella = contesto.CaricaTabellaNonVuota();
  if (!tabella) return contesto.Fallisci(tabella.Errore());
  auto intervallo = LeggiIntervallo(*tabella, *argomenti);
  if (!intervallo) return contesto.Fallisci(intervallo.Errore());
  ricerca.inizio = intervallo->inizio;
  ricerca.fine = intervallo->fine;

  auto trovate = figures::CercaFigura(*tabella, *struttura, ricerca);
  if (!trovate) return contesto.Fallisci(trovate.Errore());
  for (const figures::FiguraTrovata& trovata : trovate->elenco) ScriviFigura(contesto.out, *tabella, *trovate, trovata);
  fmt::print(contesto.out, "{}\n",
             Fatte(static_cast<long long>(trovate->elenco.size()), "trovata", "trovate", "figura", "figure"));
  if (colpi)
    ScriviStatistica(contesto.out,
                     figures::CalcolaStatistica(*tabella, *trovate, *colpi, intervallo->inizio, intervallo->fine),
                     *colpi);
  return kUscitaRiuscita;
}

}  // namespace lottolab::cli
