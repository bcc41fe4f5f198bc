#include "StatisticaStrutture.h"

#include <algorithm>

namespace lottolab::figures {

namespace {

struct Giocata {
  std::vector<int> numeri;
  std::vector<int> ruote;
};

Giocata GiocataDi(const FiguraPiazzata& figura) {
  const bool marcati =
      std::any_of(figura.vertici.begin(), figura.vertici.end(), [](const VerticePiazzato& v) { return v.chiusura; });
  Giocata giocata;
  for (const VerticePiazzato& vertice : figura.vertici) {
    if (!marcati || vertice.chiusura) giocata.numeri.push_back(vertice.numero);
    giocata.ruote.push_back(vertice.ruota);
  }
  for (auto* elenco : {&giocata.numeri, &giocata.ruote}) {
    std::sort(elenco->begin(), elenco->end());
    elenco->erase(std::unique(elenco->begin(), elenco->end()), elenco->end());
  }
  return giocata;
}

int SorteVinta(const Estrazione& estrazione, const Giocata& giocata) {
  int migliore = 0;
  for (int ruota : giocata.ruote) {
    if (!estrazione.RuotaEstratta(ruota)) continue;
    int presi = 0;
    for (int posizione = 1; posizione <= kNumeriPerRuota; ++posizione)
      presi += std::binary_search(giocata.numeri.begin(), giocata.numeri.end(), estrazione.Numero(ruota, posizione));
    migliore = std::max(migliore, presi);
  }
  return migliore;
}

EsitoFigura Segui(const TabellaEstrazioni& tab, const FigureTrovate& trovate, const FiguraTrovata& trovata, int colpi) {
  const Giocata giocata = GiocataDi(trovate.Figura(tab, trovata));
  EsitoFigura esito;
  for (int colpo = 1; colpo <= colpi; ++colpo) {
    const int id = trovata.estrazione + colpo;
    if (id > tab.EstrazioniArchivio()) {
      esito.in_corso = esito.sorte == 0;
      break;
    }
    const int sorte = SorteVinta(tab[id], giocata);
    if (sorte > 0 && esito.colpo == 0) esito.colpo = colpo;
    esito.sorte = std::max(esito.sorte, sorte);
  }
  return esito;
}

}  // namespace

StatisticaStruttura CalcolaStatistica(const TabellaEstrazioni& tab, const FigureTrovate& trovate, int colpi, int inizio,
                                      int fine) {
  StatisticaStruttura statistica;
  statistica.casi = static_cast<int>(trovate.elenco.size());
  int somma_colpi = 0;
  int vincenti = 0;
  int precedente = inizio - 1;
  for (const FiguraTrovata& trovata : trovate.elenco) {
    const EsitoFigura esito = Segui(tab, trovate, trovata, colpi);
    if (esito.sorte > 0) {
      ++statistica.per_sorte[esito.sorte];
      somma_colpi += esito.colpo;
      ++vincenti;
    } else if (esito.in_corso) {
      ++statistica.in_corso;
    } else {
      ++statistica.negativi;
    }
    statistica.esiti.push_back(esito);
    statistica.ritardo_massimo = std::max(statistica.ritardo_massimo, trovata.estrazione - precedente - 1);
    precedente = trovata.estrazione;
  }
  statistica.ritardo = fine - precedente;
  statistica.ritardo_massimo = std::max(statistica.ritardo_massimo, statistica.ritardo);
  if (vincenti > 0) statistica.colpo_medio = static_cast<double>(somma_colpi) / vincenti;
  return statistica;
}

}  // namespace lottolab::figures
