#include "VerificaLotto.h"

#include <fmt/format.h>

#include <algorithm>

#include "PrimaEstrazione.h"
#include "stats/Giocata.h"

namespace lottolab::agenda {

namespace {

// The engine's sorte and position for a stake word of the agenda.
stats::PostaSorte PostaDelMotore(const Posta& posta, const std::vector<int>& progressione) {
  stats::PostaSorte sorte;
  sorte.posta = posta.centesimi;
  if (posta.sorte.starts_with("estratto") && posta.sorte.size() == 9) {
    sorte.sorte = stats::SorteLotto::EstrattoDeterminato;
    sorte.posizione = posta.sorte.back() - '0';
  } else {
    sorte.sorte = stats::SorteDaNome(posta.sorte).value_or(stats::SorteLotto::Ambo);
  }
  for (int fattore : progressione) sorte.progressione.push_back(posta.centesimi * fattore);
  return sorte;
}

}  // namespace

Esito<std::vector<VerificaColpo>> VerificaGiocataLotto(const Giocata& giocata, const TabellaEstrazioni& tabella) {
  if (giocata.gioco != GiocoGiocata::Lotto)
    return AvvisoEsclamativo(fmt::format("la giocata {} è del gioco {} e non si verifica sull'archivio del Lotto",
                                         giocata.id, SiglaGioco(giocata.gioco)));
  const int prima = PrimaEstrazione(giocata, tabella);
  if (prima == 0) return std::vector<VerificaColpo>();
  stats::Giocata motore;
  motore.colonne = giocata.colonne;
  motore.ruote = giocata.ruote;
  for (const Posta& posta : giocata.poste) motore.poste.push_back(PostaDelMotore(posta, giocata.progressione));
  motore.prima_estrazione = prima;
  motore.colpi = giocata.colpi;
  motore.arresto = giocata.ferma_alla_vincita ? stats::Arresto::AllaPrimaVincita : stats::Arresto::AllaFine;
  if (auto giocabile = stats::ControllaGiocata(motore, tabella); !giocabile) return giocabile.Errore();

  std::vector<VerificaColpo> verifiche;
  for (const stats::ColpoGiocata& colpo : stats::VerificaGiocata(motore, tabella).colpi) {
    VerificaColpo verifica{.id_estr = colpo.id_estr,
                           .data = tabella[colpo.id_estr].data,
                           .spesa = colpo.spesa,
                           .lordo = colpo.vinto.lordo,
                           .ritenuta = colpo.vinto.ritenuta,
                           .netto = colpo.vinto.netto,
                           .vincite = {}};
    for (const stats::VincitaGiocata& vincita : colpo.vincite) {
      std::vector<int> usciti;
      for (int numero : giocata.colonne[static_cast<size_t>(vincita.colonna)])
        for (int p = 1; p <= kNumeriPerRuota; ++p)
          if (tabella[colpo.id_estr].Numero(vincita.ruota, p) == numero) usciti.push_back(numero);
      verifica.vincite.push_back({.ruota = vincita.ruota,
                                  .sorte = std::string(stats::NomeSorte(vincita.sorte)),
                                  .numeri = std::move(usciti),
                                  .combinazioni = static_cast<int>(vincita.combinazioni),
                                  .lordo = vincita.lordo});
    }
    verifiche.push_back(std::move(verifica));
  }
  return verifiche;
}

}  // namespace lottolab::agenda
