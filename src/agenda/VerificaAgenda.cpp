#include "VerificaAgenda.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>

#include "VerificaLotto.h"
#include "archive/ArchivioGioco.h"
#include "archive/ClsEstrazioni.h"
#include "archive/DateEstrazione.h"

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
  auto aperte = agenda.Elenco({StatoGiocate::Aperte, std::nullopt});
  if (!aperte) return aperte.Errore();
  std::vector<Giocata> giocate;
  for (const VoceAgenda& voce : *aperte)
    if (scelta.giochi.empty() ||
        std::find(scelta.giochi.begin(), scelta.giochi.end(), voce.giocata.gioco) != scelta.giochi.end())
      giocate.push_back(voce.giocata);
  return giocate;
}

}  // namespace

bool ArchiviGiocate::Ha(GiocoGiocata gioco) const {
  return gioco == GiocoGiocata::Lotto ? lotto != nullptr : AltroGioco(gioco) != nullptr;
}

const TabellaGioco* ArchiviGiocate::AltroGioco(GiocoGiocata gioco) const {
  switch (gioco) {
    case GiocoGiocata::SuperEnalotto: return superenalotto;
    case GiocoGiocata::DieciELotto: return dieci_e_lotto;
    case GiocoGiocata::WinForLife: return win_for_life;
    case GiocoGiocata::Lotto: break;
  }
  return nullptr;
}

Esito<std::vector<VerificaColpo>> VerificaGiocataAgenda(const Giocata& giocata, const ArchiviGiocate& archivi,
                                                        const QuoteNote& quote) {
  if (!archivi.Ha(giocata.gioco)) return AvvisoEsclamativo(fmt::format("manca {}", NomeArchivio(giocata.gioco)));
  if (giocata.gioco == GiocoGiocata::Lotto) return VerificaGiocataLotto(giocata, *archivi.lotto);
  return VerificaGiocataAltroGioco(giocata, *archivi.AltroGioco(giocata.gioco), quote);
}

Esito<EsitoVerificaAgenda> VerificaAgenda(Agenda& agenda, const ArchiviGiocate& archivi, const SceltaVerifica& scelta,
                                          const PassoVerifica& passo) {
  auto giocate = GiocateScelte(agenda, scelta);
  if (!giocate) return giocate.Errore();
  EsitoVerificaAgenda esito;
  std::map<GiocoGiocata, int> in_attesa;
  // The quotas of each game, read once; one is taken only for the draw of the same index and date.
  std::map<GiocoGiocata, std::vector<QuotaPubblicata>> quote;
  for (const Giocata& giocata : *giocate)
    if ((giocata.gioco == GiocoGiocata::SuperEnalotto || giocata.gioco == GiocoGiocata::WinForLife) &&
        !quote.contains(giocata.gioco)) {
      auto del_gioco = agenda.Quote(giocata.gioco);
      if (!del_gioco) return del_gioco.Errore();
      quote[giocata.gioco] = std::move(del_gioco).Valore();
    }
  int fatte = 0;
  for (const Giocata& giocata : *giocate) {
    if (passo) passo(fatte++, static_cast<int>(giocate->size()));
    if (!archivi.Ha(giocata.gioco)) {
      ++in_attesa[giocata.gioco];
      continue;
    }
    const std::vector<QuotaPubblicata>& del_gioco = quote[giocata.gioco];
    auto risultati = VerificaGiocataAgenda(
        giocata, archivi, [&](int id_estr, const GruppoData& data, const std::string& sorte) -> std::optional<int64_t> {
          for (const QuotaPubblicata& q : del_gioco)
            if (q.id_estr == id_estr && q.sorte == sorte && ConfrontaDate(q.data, data) == 0) return q.centesimi;
          return std::nullopt;
        });
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

Esito<EsitoVerificaAgenda> ApplicaQuota(Agenda& agenda, const ArchiviGiocate& archivi, const QuotaPubblicata& quota) {
  if (auto salvata = agenda.SalvaQuota(quota); !salvata) return salvata.Errore();
  auto voci = agenda.Elenco({StatoGiocate::Tutte, quota.gioco});
  if (!voci) return voci.Errore();
  EsitoVerificaAgenda esito;
  for (const VoceAgenda& voce : *voci) {
    auto verifiche = agenda.Verifiche(voce.giocata.id);
    if (!verifiche) return verifiche.Errore();
    auto vinta = [&](const VerificaColpo& colpo) {
      return colpo.id_estr == quota.id_estr &&
             std::any_of(colpo.vincite.begin(), colpo.vincite.end(),
                         [&](const VincitaColpo& vincita) { return vincita.sorte == quota.sorte; });
    };
    if (std::none_of(verifiche->begin(), verifiche->end(), vinta)) continue;
    auto di_nuovo = VerificaAgenda(agenda, archivi, {.id = voce.giocata.id});
    if (!di_nuovo) return di_nuovo;
    esito.verificate += di_nuovo->verificate;
    esito.non_verificate.insert(esito.non_verificate.end(), di_nuovo->non_verificate.begin(),
                                di_nuovo->non_verificate.end());
  }
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

ArchiviGiocate ArchiviCaricati::Archivi() const {
  auto di = [](const auto& tabella) { return tabella ? &*tabella : nullptr; };
  return ArchiviGiocate{di(lotto), di(superenalotto), di(dieci_e_lotto), di(win_for_life)};
}

ArchiviCaricati CaricaArchivi(const std::vector<GiocoGiocata>& giochi, const FileArchivio& file) {
  ArchiviCaricati caricati;
  for (GiocoGiocata gioco : giochi) {
    const std::filesystem::path percorso = file(gioco);
    std::error_code ec;
    if (!std::filesystem::exists(percorso, ec)) continue;
    auto errore = [&](const Avviso& avviso) {
      caricati.errori.push_back(
          fmt::format("giocate del gioco {} non verificate: {}", SiglaGioco(gioco), avviso.testo));
    };
    if (gioco == GiocoGiocata::Lotto) {
      auto tabella = ClsEstrazioni(percorso).CaricaEstrazioni();
      if (tabella)
        caricati.lotto = std::move(tabella).Valore();
      else
        errore(tabella.Errore());
      continue;
    }
    auto tabella = CaricaArchivioGioco(Formato(GiocoDellArchivio(gioco)), percorso);
    if (!tabella) {
      errore(tabella.Errore());
      continue;
    }
    auto& posto = gioco == GiocoGiocata::SuperEnalotto ? caricati.superenalotto
                  : gioco == GiocoGiocata::WinForLife  ? caricati.win_for_life
                                                       : caricati.dieci_e_lotto;
    posto = std::move(tabella).Valore();
  }
  return caricati;
}

Esito<EsitoVerificaAgenda> VerificaAgendaSuiFile(const std::filesystem::path& file_agenda, const FileArchivio& file,
                                                 const SceltaVerifica& scelta) {
  std::error_code ec;
  if (!std::filesystem::exists(file_agenda, ec)) return EsitoVerificaAgenda{};
  auto aperta = Agenda::Apri(file_agenda);
  if (!aperta) return aperta.Errore();
  Agenda& agenda = aperta.Valore();
  auto giochi = GiochiDaVerificare(agenda, scelta);
  if (!giochi) return giochi.Errore();
  const ArchiviCaricati caricati = CaricaArchivi(*giochi, file);
  auto esito = VerificaAgenda(agenda, caricati.Archivi(), scelta);
  if (!esito) return esito;
  esito->non_verificate.insert(esito->non_verificate.begin(), caricati.errori.begin(), caricati.errori.end());
  return esito;
}

std::string ContaGiocate(int quante) { return quante == 1 ? "1 giocata" : fmt::format("{} giocate", quante); }

}  // namespace lottolab::agenda
