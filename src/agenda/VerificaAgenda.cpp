#include "VerificaAgenda.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>

#include "VerificaGioco.h"
#include "VerificaLotto.h"

namespace lottolab::agenda {

namespace {

// "dell'archivio del SuperEnalotto", as the messages name what is missing.
std::string NomeArchivio(GiocoGiocata gioco) {
  switch (gioco) {
    case GiocoGiocata::Lotto: return "l'archivio del Lotto";
    case GiocoGiocata::SuperEnalotto: return "l'archivio del SuperEnalotto";
    case GiocoGiocata::DieciELotto: return "l'archivio del 10eLotto serale";
    case GiocoGiocata::WinForLife: return "l'archivio di Win for Life";
  }
  return {};
}

Esito<std::vector<Giocata>> GiocateScelte(const Agenda& agenda, const SceltaVerifica& scelta) {
  if (scelta.id) {
    auto giocata = agenda.Carica(*scelta.id);
    if (!giocata) return giocata.Errore();
    return std::vector<Giocata>{std::move(giocata).Valore()};
  }
  auto aperte = agenda.Elenco({StatoGiocate::Aperte, scelta.gioco});
  if (!aperte) return aperte.Errore();
  std::vector<Giocata> giocate;
  for (const VoceAgenda& voce : *aperte) giocate.push_back(voce.giocata);
  return giocate;
}

}  // namespace

const void* ArchiviGiocate::Di(GiocoGiocata gioco) const {
  switch (gioco) {
    case GiocoGiocata::Lotto: return lotto;
    case GiocoGiocata::SuperEnalotto: return superenalotto;
    case GiocoGiocata::DieciELotto: return dieci_e_lotto;
    case GiocoGiocata::WinForLife: return win_for_life;
  }
  return nullptr;
}

Esito<std::vector<VerificaColpo>> VerificaGiocataAgenda(const Giocata& giocata, const ArchiviGiocate& archivi) {
  if (archivi.Di(giocata.gioco) == nullptr)
    return AvvisoEsclamativo(fmt::format("manca {}", NomeArchivio(giocata.gioco)));
  if (giocata.gioco == GiocoGiocata::Lotto) return VerificaGiocataLotto(giocata, *archivi.lotto);
  return VerificaGiocataAltroGioco(giocata, *static_cast<const TabellaGioco*>(archivi.Di(giocata.gioco)));
}

Esito<EsitoVerificaAgenda> VerificaAgenda(Agenda& agenda, const ArchiviGiocate& archivi, const SceltaVerifica& scelta) {
  auto giocate = GiocateScelte(agenda, scelta);
  if (!giocate) return giocate.Errore();
  EsitoVerificaAgenda esito;
  std::map<GiocoGiocata, int> in_attesa;
  for (const Giocata& giocata : *giocate) {
    if (archivi.Di(giocata.gioco) == nullptr) {
      ++in_attesa[giocata.gioco];
      continue;
    }
    auto risultati = VerificaGiocataAgenda(giocata, archivi);
    if (!risultati) {
      esito.non_verificate.push_back(fmt::format("giocata {}: {}", giocata.id, risultati.Errore().testo));
      continue;
    }
    if (auto salvate = agenda.SalvaVerifiche(giocata.id, *risultati); !salvate) return salvate.Errore();
    ++esito.verificate;
  }
  for (const auto& [gioco, quante] : in_attesa)
    esito.non_verificate.push_back(fmt::format("{} del gioco {} non verificat{}: manca {}", ContaGiocate(quante),
                                               SiglaGioco(gioco), quante == 1 ? "a" : "e", NomeArchivio(gioco)));
  auto nuove = agenda.VinciteNonViste();
  if (!nuove) return nuove.Errore();
  esito.vincite_da_vedere = static_cast<int>(nuove->size());
  return esito;
}

Esito<std::vector<GiocoGiocata>> GiochiDaVerificare(const Agenda& agenda, const SceltaVerifica& scelta) {
  auto giocate = GiocateScelte(agenda, scelta);
  if (!giocate) return giocate.Errore();
  std::vector<GiocoGiocata> giochi;
  for (const Giocata& giocata : *giocate)
    if (std::find(giochi.begin(), giochi.end(), giocata.gioco) == giochi.end()) giochi.push_back(giocata.gioco);
  std::sort(giochi.begin(), giochi.end());
  return giochi;
}

std::string ContaGiocate(int quante) { return quante == 1 ? "1 giocata" : fmt::format("{} giocate", quante); }

}  // namespace lottolab::agenda
