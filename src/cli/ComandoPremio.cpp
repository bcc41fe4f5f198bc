// The prize tables from the command line: `premio` prints what a line of a ticket pays for each count
// of numbers drawn, `verifica-giocata` checks a bet against the archive draw by draw.

#include <algorithm>
#include <array>
#include <charconv>

#include <fmt/format.h>
#include <fmt/ostream.h>

#include "Argomenti.h"
#include "ArgomentiPuntata.h"
#include "Comandi.h"
#include "archive/DateEstrazione.h"
#include "stats/Giocata.h"
#include "stats/PremiAltriGiochi.h"

namespace lottolab::cli {

namespace {

std::string Percento(int centesimi_di_punto) {
  return centesimi_di_punto % 100 == 0 ? fmt::format("{}%", centesimi_di_punto / 100)
                                       : fmt::format("{},{:02}%", centesimi_di_punto / 100, centesimi_di_punto % 100);
}

constexpr std::string_view kIntestazione = "{:>5} {:>12} {:>14} {:>12} {:>14}\n";

// A row of the table; no combinations column where the game has none (0).
void StampaRiga(Contesto& contesto, int punti, int64_t combinazioni, const stats::Tassato& vinto) {
  fmt::print(contesto.out, fmt::runtime(kIntestazione), punti, combinazioni == 0 ? "" : std::to_string(combinazioni),
             stats::FormattaEuro(vinto.lordo), stats::FormattaEuro(vinto.ritenuta), stats::FormattaEuro(vinto.netto));
}

int PremioLotto(Contesto& contesto, const Argomenti& argomenti, const GruppoData& data) {
  auto puntata = LeggiPuntata(argomenti, data);
  if (!puntata) return contesto.Fallisci(puntata.Errore());
  std::string ruote;
  for (int r : puntata->ruote) ruote += fmt::format("{}{}", ruote.empty() ? "" : " ", SiglaRuota(r));
  fmt::print(contesto.out, "{} su {} numeri, ruote {}, posta {} euro, {} combinazioni, ritenuta {} al {}\n",
             stats::NomeSorte(puntata->sorte), puntata->numeri.size(), ruote, stats::FormattaEuro(puntata->posta),
             stats::CombinazioniGiocate(*puntata), Percento(stats::RitenutaLotto(data)), FormattaData(data));
  fmt::print(contesto.out, "vincita su ciascuna ruota dove escono:\n");
  fmt::print(contesto.out, fmt::runtime(kIntestazione), "punti", "combinazioni", "lordo", "ritenuta", "netto");
  const stats::Centesimi premio = stats::PremioPerCombinazione(*puntata, data);
  for (const stats::EsitoPossibile& esito : stats::EsitiPossibili(*puntata))
    StampaRiga(contesto, esito.punti, esito.combinazioni, stats::TassaVincitaLotto(esito.combinazioni * premio, data));
  return kUscitaRiuscita;
}

int PremioDieciELotto(Contesto& contesto, const Argomenti& argomenti, const GruppoData& data) {
  auto numeri = LeggiNumeri(Opzione(argomenti, "numeri"));
  if (!numeri) return contesto.Fallisci(numeri.Errore());
  auto posta = stats::LeggiEuro(Opzione(argomenti, "posta", "1"));
  if (!posta) return contesto.Fallisci(posta.Errore());
  const std::string nome = Opzione(argomenti, "opzione", "base");
  const std::array<std::pair<std::string_view, stats::OpzioneDieciELotto>, 5> kOpzioni = {{
      {"base", stats::OpzioneDieciELotto::Base},
      {"oro", stats::OpzioneDieciELotto::Oro},
      {"doppio-oro", stats::OpzioneDieciELotto::DoppioOro},
      {"extra", stats::OpzioneDieciELotto::Extra},
      {"gong", stats::OpzioneDieciELotto::Gong},
  }};
  auto opzione = std::ranges::find(kOpzioni, std::string_view(nome),
                                   &std::pair<std::string_view, stats::OpzioneDieciELotto>::first);
  if (opzione == kOpzioni.end())
    return contesto.Fallisci(
        AvvisoEsclamativo(fmt::format("opzione non valida: {} (base, oro, doppio-oro, extra, gong)", nome)));
  const int giocati = static_cast<int>(numeri->size());
  if (auto controllo = stats::ControllaDieciELotto(opzione->second, giocati, data); !controllo)
    return contesto.Fallisci(controllo.Errore());
  fmt::print(contesto.out, "10eLotto {} su {} numeri, posta {} euro, ritenuta {} al {}\n", nome, giocati,
             stats::FormattaEuro(*posta), Percento(stats::RitenutaDieciELotto(data)), FormattaData(data));
  fmt::print(contesto.out, fmt::runtime(kIntestazione), "punti", "", "lordo", "ritenuta", "netto");
  const int massimo = opzione->second == stats::OpzioneDieciELotto::Gong ? 1 : giocati;
  for (int punti = 0; punti <= massimo; ++punti) {
    // An option's cell that is not known is told on its row.
    if (!stats::PremioNettoPerEuroDieciELotto(opzione->second, giocati, punti)) {
      fmt::print(contesto.out, "{:>5} {:>12} {:>14}\n", punti, "", "non noto");
      continue;
    }
    auto premio = stats::PremioDieciELotto(opzione->second, giocati, punti, *posta, data);
    if (!premio) return contesto.Fallisci(premio.Errore());
    if (premio->netto > 0) StampaRiga(contesto, punti, 0, *premio);
  }
  return kUscitaRiuscita;
}

// A category's quota, as published for the draw, taxed on its part above 500 euro.
int PremioAQuota(Contesto& contesto, const Argomenti& argomenti, const GruppoData& data) {
  if (!argomenti.opzioni.contains("quota"))
    return contesto.Fallisci(AvvisoEsclamativo(
        "manca l'opzione --quota: il premio di ogni categoria è la quota pubblicata per l'estrazione"));
  auto quota = stats::LeggiEuro(Opzione(argomenti, "quota"));
  if (!quota) return contesto.Fallisci(quota.Errore());
  const stats::Tassato vinto = stats::TassaVincitaSuperEnalotto(*quota, data);
  fmt::print(contesto.out, "ritenuta {} sulla parte oltre {} euro, al {}\n",
             Percento(stats::RitenutaSuperEnalotto(data)), stats::FormattaEuro(stats::kFranchigiaSuperEnalotto),
             FormattaData(data));
  fmt::print(contesto.out, "{:>14} {:>12} {:>14}\n{:>14} {:>12} {:>14}\n", "lordo", "ritenuta", "netto",
             stats::FormattaEuro(vinto.lordo), stats::FormattaEuro(vinto.ritenuta), stats::FormattaEuro(vinto.netto));
  return kUscitaRiuscita;
}

}  // namespace

int ComandoPremio(Contesto& contesto, const Parole& parole) {
  auto argomenti =
      SeparaArgomenti(parole, {"sorte", "numeri", "ruote", "posta", "data", "posizione", "opzione", "quota"});
  if (!argomenti) return contesto.Fallisci(argomenti.Errore());
  if (!argomenti->parole.empty())
    return contesto.Fallisci(AvvisoEsclamativo(fmt::format("parola inattesa: {}", argomenti->parole.front())));
  auto data = LeggiDataPremio(Opzione(*argomenti, "data"));
  if (!data) return contesto.Fallisci(data.Errore());
  if (!contesto.gioco) return PremioLotto(contesto, *argomenti, *data);
  switch (*contesto.gioco) {
    case Gioco::DieciELotto:
    case Gioco::DieciELottoOgniCinqueMinuti: return PremioDieciELotto(contesto, *argomenti, *data);
    case Gioco::SuperEnalotto:
    case Gioco::WinForLife: return PremioAQuota(contesto, *argomenti, *data);
    case Gioco::Generico: break;
  }
  return contesto.Fallisci(AvvisoEsclamativo("l'archivio generico non ha una tabella dei premi"));
}

int ComandoVerificaGiocata(Contesto& contesto, const Parole& parole) {
  auto argomenti =
      SeparaArgomenti(parole, {"sorte", "numeri", "ruote", "posta", "posizione", "dal", "colpi", "arresto"});
  if (!argomenti) return contesto.Fallisci(argomenti.Errore());
  if (!argomenti->parole.empty())
    return contesto.Fallisci(AvvisoEsclamativo(fmt::format("parola inattesa: {}", argomenti->parole.front())));
  for (const char* richiesta : {"dal", "colpi"})
    if (!argomenti->opzioni.contains(richiesta))
      return contesto.Fallisci(AvvisoEsclamativo(fmt::format("manca l'opzione --{}", richiesta)));
  const std::string testo_colpi = Opzione(*argomenti, "colpi");
  int colpi = 0;
  const auto [fine, errore] = std::from_chars(testo_colpi.data(), testo_colpi.data() + testo_colpi.size(), colpi);
  if (errore != std::errc() || fine != testo_colpi.data() + testo_colpi.size() || colpi < 1 || colpi > 100'000)
    return contesto.Fallisci(AvvisoEsclamativo(fmt::format("colpi non validi: {} (da 1 a 100000)", testo_colpi)));

  const std::string arresto = Opzione(*argomenti, "arresto", "fine");
  if (arresto != "fine" && arresto != "vincita")
    return contesto.Fallisci(AvvisoEsclamativo(fmt::format("arresto non valido: {} (fine o vincita)", arresto)));

  auto tabella = contesto.CaricaTabellaNonVuota();
  if (!tabella) return contesto.Fallisci(tabella.Errore());
  // --dal names the first draw played: the one on that date, or the first after it.
  auto dal = LeggiDataPremio(Opzione(*argomenti, "dal"));
  if (!dal) return contesto.Fallisci(dal.Errore());
  int prima = 1;
  while (tabella->Contiene(prima) && ConfrontaDate((*tabella)[prima].data, *dal) < 0) ++prima;
  if (!tabella->Contiene(prima))
    return contesto.Fallisci(
        AvvisoEsclamativo(fmt::format("nessuna estrazione in archivio dal {}", Opzione(*argomenti, "dal"))));
  auto puntata = LeggiPuntata(*argomenti, (*tabella)[prima].data);
  if (!puntata) return contesto.Fallisci(puntata.Errore());
  stats::Giocata giocata;
  giocata.colonne = {puntata->numeri};
  giocata.ruote = puntata->ruote;
  giocata.poste = {stats::PostaSorte{puntata->sorte, puntata->posta, {}, puntata->posizione}};
  giocata.prima_estrazione = prima;
  giocata.colpi = colpi;
  giocata.arresto = arresto == "vincita" ? stats::Arresto::AllaPrimaVincita : stats::Arresto::AllaFine;
  const stats::EsitoGiocata esito = stats::VerificaGiocata(giocata, *tabella);

  constexpr std::string_view kRiga = "{:>5} {:>10} {:>10} {:>10} {:>12} {:>10} {:>12} {:>12}\n";
  fmt::print(contesto.out, fmt::runtime(kRiga), "colpo", "estrazione", "data", "spesa", "lordo", "ritenuta", "netto",
             "saldo");
  for (const stats::ColpoGiocata& conto : esito.colpi) {
    fmt::print(contesto.out, fmt::runtime(kRiga), conto.colpo, conto.id_estr,
               FormattaData((*tabella)[conto.id_estr].data), stats::FormattaEuro(conto.spesa),
               stats::FormattaEuro(conto.vinto.lordo), stats::FormattaEuro(conto.vinto.ritenuta),
               stats::FormattaEuro(conto.vinto.netto), stats::FormattaEuro(conto.saldo));
    for (const stats::VincitaGiocata& vincita : conto.vincite)
      fmt::print(contesto.out, "      vincita: {} {} x {} = {} lordi\n", SiglaRuota(vincita.ruota),
                 stats::NomeSorte(vincita.sorte), vincita.combinazioni, stats::FormattaEuro(vincita.lordo));
  }
  const stats::Riepilogo riepilogo = stats::Riassumi(esito);
  fmt::print(contesto.out, "totale: spesa {}, lordo {}, ritenuta {}, netto {}, saldo {}\n",
             stats::FormattaEuro(riepilogo.spesa), stats::FormattaEuro(riepilogo.vinto.lordo),
             stats::FormattaEuro(riepilogo.vinto.ritenuta), stats::FormattaEuro(riepilogo.vinto.netto),
             stats::FormattaEuro(riepilogo.saldo));
  fmt::print(contesto.out, "colpi vincenti: {}; al più {} colpi di fila senza vincite; calo massimo del saldo {}\n",
             riepilogo.colpi_vincenti_per_sorte[static_cast<size_t>(puntata->sorte)],
             riepilogo.massima_serie_senza_vincite, stats::FormattaEuro(riepilogo.massimo_calo));
  if (esito.colpi_mancanti > 0)
    fmt::print(contesto.out, "giocata in corso: mancano {} colpi all'archivio\n", esito.colpi_mancanti);
  return kUscitaRiuscita;
}

}  // namespace lottolab::cli
