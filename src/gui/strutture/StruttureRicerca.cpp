#include "gui/strutture/StruttureRicerca.h"

#include <fmt/format.h>

#include <algorithm>

namespace lottolab::gui {

RigaFigura DescriviFigura(const TabellaEstrazioni& tab, const figures::FigureTrovate& trovate,
                          const figures::FiguraTrovata& trovata) {
  const figures::FiguraPiazzata figura = trovate.Figura(tab, trovata);
  RigaFigura riga;
  riga.estrazione = trovata.estrazione;
  riga.data = tab.DataEstrazione(trovata.estrazione).ValoreOppure("?");
  std::vector<int> ruote;
  for (const figures::VerticePiazzato& vertice : figura.vertici)
    if (std::find(ruote.begin(), ruote.end(), vertice.ruota) == ruote.end()) ruote.push_back(vertice.ruota);
  for (int ruota : ruote) riga.ruote += fmt::format("{}{}", riga.ruote.empty() ? "" : ",", SiglaRuota(ruota));
  for (const figures::VerticePiazzato& vertice : figura.vertici)
    riga.numeri += fmt::format("{}{:02}", riga.numeri.empty() ? "" : " ", vertice.numero);
  return riga;
}

Esito<RisultatoRicerca> CercaStruttura(const TabellaEstrazioni& tab, const RichiestaRicerca& richiesta,
                                       const std::function<void(double)>& progresso, const std::atomic<bool>& ferma) {
  bool interrotta = false;
  figures::OpzioniRicerca opzioni;
  opzioni.inizio = richiesta.inizio;
  opzioni.fine = richiesta.fine;
  opzioni.ruote = richiesta.ruote;
  // The last notice comes when the search is over: a stop asked then cuts nothing. After a stop that
  // notice is not passed on, so that the progress shown stays where the search ended.
  opzioni.avanzamento = [&](double quota) {
    if (interrotta) return false;
    if (progresso) progresso(quota);
    if (ferma && quota < 1.0) interrotta = true;
    return !interrotta;
  };
  auto trovate = figures::CercaFigura(tab, richiesta.struttura, opzioni);
  if (!trovate) return trovate.Errore();
  RisultatoRicerca risultato{std::move(trovate).Valore(), std::nullopt, interrotta};
  if (!interrotta) {
    const int fine =
        richiesta.fine == 0 ? tab.EstrazioniArchivio() : std::min(richiesta.fine, tab.EstrazioniArchivio());
    risultato.statistica = figures::CalcolaStatistica(tab, risultato.trovate, richiesta.colpi, richiesta.inizio, fine);
  }
  return risultato;
}

}  // namespace lottolab::gui
