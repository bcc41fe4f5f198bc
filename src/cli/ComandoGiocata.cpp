// `lottolab giocata`: the agenda of the bets played, from the command line.

#include <fmt/format.h>
#include <fmt/ostream.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "Argomenti.h"
#include "Comandi.h"
#include "Quantita.h"
#include "agenda/Agenda.h"
#include "agenda/Importi.h"
#include "agenda/TestiGiocata.h"
#include "agenda/VerificaAgenda.h"
#include "agenda/VerificaGioco.h"
#include "archive/DateEstrazione.h"
#include "archive/Ruote.h"

namespace lottolab::cli {

namespace {

using agenda::Agenda;
using agenda::Giocata;
using agenda::GiocoGiocata;
using agenda::TestoDal;
using agenda::TestoNumeri;
using agenda::TestoPoste;
using agenda::TestoRuote;

constexpr std::string_view kUso =
    "uso: lottolab giocata aggiungi --numeri 12,34,56 [--numeri ...] --ruote BA,VE --sorte ambo --posta 1 "
    "[--sorte terno --posta 0.5 ...] --dal GG/MM/AAAA|ID --colpi N [--progressione 1,1,2,...] [--ferma] "
    "[--nota TESTO] [--gioco LO|SE|DL|WF] [--speciale N]\n"
    "     lottolab giocata elenco [--aperte|--chiuse] [--gioco LO|SE|DL|WF]\n"
    "     lottolab giocata rimuovi ID\n"
    "     lottolab giocata verifica [ID]\n"
    "     lottolab giocata quota ID COLPO CATEGORIA IMPORTO";

std::optional<int64_t> Intero(std::string_view testo, int64_t massimo) {
  int64_t valore = 0;
  auto [fine, ec] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
  if (ec != std::errc() || fine != testo.data() + testo.size() || valore < 0 || valore > massimo) return std::nullopt;
  return valore;
}

// "12,34,56": whole numbers; their range is the game's, checked with the bet.
Esito<std::vector<int>> ListaInteri(std::string_view testo, std::string_view cosa) {
  std::vector<int> valori;
  for (size_t inizio = 0;;) {
    const size_t virgola = testo.find(',', inizio);
    const std::string_view parte = testo.substr(inizio, virgola == std::string_view::npos ? virgola : virgola - inizio);
    auto valore = Intero(parte, 9999);
    if (parte.empty()) return AvvisoEsclamativo(fmt::format("{} mancante in {}", cosa, testo));
    if (!valore) return AvvisoEsclamativo(fmt::format("{} non valido: {}", cosa, parte));
    valori.push_back(static_cast<int>(*valore));
    if (virgola == std::string_view::npos) return valori;
    inizio = virgola + 1;
  }
}

Esito<GiocoGiocata> LeggiGiocoGiocata(std::string_view sigla) {
  if (auto gioco = agenda::GiocoDaSigla(sigla)) return *gioco;
  return AvvisoEsclamativo(fmt::format("gioco non valido per l'agenda: {} (LO, SE, DL o WF)", sigla));
}

// The game of a new bet when its words name none: the one of the global --gioco, or the Lotto.
Esito<GiocoGiocata> GiocoDelContesto(const Contesto& contesto) {
  if (!contesto.gioco) return GiocoGiocata::Lotto;
  return LeggiGiocoGiocata(Formato(*contesto.gioco).sigla);
}

// The first draw: a date GG/MM/AAAA or an IdEstr.
Esito<Fatto> LeggiDal(std::string_view testo, Giocata& giocata) {
  if (testo.find('/') != std::string_view::npos) {
    auto data = LeggiData(testo);
    if (!data || !DataValida(*data)) return AvvisoEsclamativo(fmt::format("data non valida: {}", testo));
    giocata.dal = *data;
  } else if (auto id = Intero(testo, 10'000'000); id && *id >= 1) {
    giocata.id_estr_dal = static_cast<int>(*id);
  } else {
    return AvvisoEsclamativo(
        fmt::format("prima estrazione non valida: {} (una data GG/MM/AAAA o un'estrazione)", testo));
  }
  return Fatto{};
}

// The words of `aggiungi`, in order: a --posta goes with the --sorte before it.
Esito<Giocata> LeggiGiocata(const Contesto& contesto, const Parole& parole) {
  Giocata giocata;
  std::optional<std::string> sorte_in_attesa;
  std::vector<std::pair<std::string, std::string>> poste;
  std::optional<std::string> testo_gioco, testo_ruote;
  bool colpi_dati = false;
  for (size_t i = 0; i < parole.size(); ++i) {
    const std::string& opzione = parole[i];
    if (opzione == "--ferma") {
      giocata.ferma_alla_vincita = true;
      continue;
    }
    static const std::vector<std::string_view> kConValore = {"--numeri", "--ruote",   "--sorte",        "--posta",
                                                             "--dal",    "--colpi",   "--progressione", "--nota",
                                                             "--gioco",  "--speciale"};
    if (std::find(kConValore.begin(), kConValore.end(), opzione) == kConValore.end())
      return AvvisoEsclamativo(opzione.starts_with("--") ? fmt::format("opzione sconosciuta: {}", opzione)
                                                         : fmt::format("parola inattesa: {}", opzione));
    if (i + 1 == parole.size()) return AvvisoEsclamativo(fmt::format("manca il valore dell'opzione {}", opzione));
    const std::string& valore = parole[++i];
    if (opzione == "--numeri") {
      auto colonna = ListaInteri(valore, "numero");
      if (!colonna) return colonna.Errore();
      giocata.colonne.push_back(*colonna);
    } else if (opzione == "--sorte") {
      if (sorte_in_attesa) return AvvisoEsclamativo(fmt::format("manca la posta della sorte {}", *sorte_in_attesa));
      sorte_in_attesa = valore;
    } else if (opzione == "--posta") {
      if (!sorte_in_attesa) return AvvisoEsclamativo("--posta va dopo la sua --sorte");
      poste.emplace_back(*sorte_in_attesa, valore);
      sorte_in_attesa.reset();
    } else if (opzione == "--dal") {
      if (auto dal = LeggiDal(valore, giocata); !dal) return dal.Errore();
    } else if (opzione == "--colpi") {
      auto colpi = Intero(valore, 999);
      if (!colpi || *colpi < 1) return AvvisoEsclamativo(fmt::format("colpi non validi: {} (da 1 a 999)", valore));
      giocata.colpi = static_cast<int>(*colpi);
      colpi_dati = true;
    } else if (opzione == "--progressione") {
      auto fattori = ListaInteri(valore, "fattore della progressione");
      if (!fattori) return fattori.Errore();
      giocata.progressione = *fattori;
    } else if (opzione == "--speciale") {
      auto speciale = Intero(valore, 90);
      if (!speciale || *speciale < 1) return AvvisoEsclamativo(fmt::format("numero speciale non valido: {}", valore));
      giocata.numero_speciale = static_cast<int>(*speciale);
    } else if (opzione == "--nota") {
      giocata.nota = valore;
    } else if (opzione == "--gioco") {
      testo_gioco = valore;
    } else {
      testo_ruote = valore;
    }
  }
  if (sorte_in_attesa) return AvvisoEsclamativo(fmt::format("manca la posta della sorte {}", *sorte_in_attesa));
  auto gioco = testo_gioco ? LeggiGiocoGiocata(*testo_gioco) : GiocoDelContesto(contesto);
  if (!gioco) return gioco.Errore();
  giocata.gioco = *gioco;
  if (testo_ruote) {
    auto ruote = LeggiRuote(*testo_ruote);
    if (!ruote) return ruote.Errore();
    giocata.ruote = *ruote;
  }
  for (const auto& [sorte, importo] : poste) {
    auto parola = agenda::LeggiSorte(giocata.gioco, sorte);
    if (!parola) return parola.Errore();
    auto centesimi = agenda::LeggiImporto(importo);
    if (!centesimi) return centesimi.Errore();
    giocata.poste.push_back({*parola, *centesimi});
  }
  if (!colpi_dati) return AvvisoEsclamativo("manca --colpi: quante estrazioni la giocata resta in gioco");
  if (auto valida = agenda::ControllaGiocata(giocata); !valida) return valida.Errore();
  return giocata;
}

// The net won, marked when some win's money is not known and so not in it.
std::string Vinto(const agenda::Totali& totali) {
  return agenda::FormattaImporto(totali.netto) + (totali.vincite_senza_importo > 0 ? "*" : "");
}

int Aggiungi(Contesto& contesto, Agenda& agenda, const Parole& parole) {
  auto giocata = LeggiGiocata(contesto, parole);
  if (!giocata) return contesto.Fallisci(giocata.Errore());
  auto id = agenda.Aggiungi(*giocata);
  if (!id) return contesto.Fallisci(id.Errore());
  fmt::print(contesto.out, "aggiunta la giocata {}\n", *id);
  return kUscitaRiuscita;
}

int Elenco(Contesto& contesto, const Agenda& agenda, const Parole& parole) {
  agenda::FiltroGiocate filtro;
  for (size_t i = 0; i < parole.size(); ++i) {
    if (parole[i] == "--aperte" || parole[i] == "--chiuse") {
      if (filtro.stato != agenda::StatoGiocate::Tutte)
        return contesto.Fallisci(AvvisoEsclamativo("--aperte e --chiuse non vanno insieme"));
      filtro.stato = parole[i] == "--aperte" ? agenda::StatoGiocate::Aperte : agenda::StatoGiocate::Chiuse;
    } else if (parole[i] == "--gioco" && i + 1 < parole.size()) {
      auto gioco = LeggiGiocoGiocata(parole[++i]);
      if (!gioco) return contesto.Fallisci(gioco.Errore());
      filtro.gioco = *gioco;
    } else {
      return contesto.Fallisci(AvvisoEsclamativo(
          fmt::format("parola inattesa: {} (elenco prende --aperte o --chiuse e --gioco)", parole[i])));
    }
  }
  auto voci = agenda.Elenco(filtro);
  if (!voci) return contesto.Fallisci(voci.Errore());
  auto totali = agenda.TotaliComplessivi(filtro);
  if (!totali) return contesto.Fallisci(totali.Errore());
  if (voci->empty()) {
    fmt::print(contesto.out, "nessuna giocata\n");
    return kUscitaRiuscita;
  }

  using Riga = std::array<std::string, 11>;
  std::vector<Riga> righe = {
      {"id", "gioco", "numeri", "ruote", "poste", "dal", "colpi", "stato", "spesa", "vinto", "saldo"}};
  for (const agenda::VoceAgenda& voce : *voci) {
    const Giocata& g = voce.giocata;
    righe.push_back({std::to_string(g.id), std::string(agenda::SiglaGioco(g.gioco)), TestoNumeri(g), TestoRuote(g),
                     TestoPoste(g), TestoDal(g), fmt::format("{}/{}", voce.totali.colpi_verificati, g.colpi),
                     voce.chiusa ? "chiusa" : "aperta", agenda::FormattaImporto(voce.totali.spesa), Vinto(voce.totali),
                     agenda::FormattaImporto(voce.totali.Saldo())});
  }
  righe.push_back({"totale", "", "", "", "", "", "", "", agenda::FormattaImporto(totali->spesa), Vinto(*totali),
                   agenda::FormattaImporto(totali->Saldo())});
  std::array<size_t, 11> larghezze{};
  for (const Riga& riga : righe)
    for (size_t c = 0; c < riga.size(); ++c) larghezze[c] = std::max(larghezze[c], riga[c].size());
  // Amounts line up on the right, words on the left.
  for (const Riga& riga : righe) {
    std::string testo;
    for (size_t c = 0; c < riga.size(); ++c) {
      const bool a_destra = c == 0 || c >= 8;
      testo += a_destra ? fmt::format("{:>{}}", riga[c], larghezze[c]) : fmt::format("{:<{}}", riga[c], larghezze[c]);
      if (c + 1 < riga.size()) testo += "  ";
    }
    while (!testo.empty() && testo.back() == ' ') testo.pop_back();
    fmt::print(contesto.out, "{}\n", testo);
  }
  if (totali->vincite_senza_importo > 0)
    fmt::print(contesto.out,
               "* più {} vincit{} di cui la quota non è nota (SuperEnalotto, Win for Life o premio del 10eLotto non "
               "confermato): vinto e saldo non le contano\n",
               totali->vincite_senza_importo, totali->vincite_senza_importo == 1 ? "a" : "e");
  return kUscitaRiuscita;
}

Esito<int64_t> LeggiId(const std::string& testo) {
  auto id = Intero(testo, std::numeric_limits<int64_t>::max());
  if (!id || *id < 1) return AvvisoEsclamativo(fmt::format("numero di giocata non valido: {}", testo));
  return *id;
}

int Rimuovi(Contesto& contesto, Agenda& agenda, const Parole& parole) {
  if (parole.size() != 1) return contesto.Fallisci(AvvisoEsclamativo("uso: lottolab giocata rimuovi ID"));
  auto id = LeggiId(parole[0]);
  if (!id) return contesto.Fallisci(id.Errore());
  if (auto rimossa = agenda.Rimuovi(*id); !rimossa) return contesto.Fallisci(rimossa.Errore());
  fmt::print(contesto.out, "rimossa la giocata {}\n", *id);
  return kUscitaRiuscita;
}

// Where the draws of each game's bets are: the Lotto's archive of the command, the others'
// configured ones.
agenda::FileArchivio FileDegliArchivi(const Contesto& contesto, std::filesystem::path lotto) {
  return [&contesto, lotto = std::move(lotto)](GiocoGiocata gioco) {
    return gioco == GiocoGiocata::Lotto ? lotto
                                        : contesto.configurazione.ArchivioGioco(agenda::GiocoDellArchivio(gioco));
  };
}

// The open bets (or the one named) checked against the archives, then every win not seen yet.
int Verifica(Contesto& contesto, Agenda& agenda, const Parole& parole) {
  if (parole.size() > 1) return contesto.Fallisci(AvvisoEsclamativo("uso: lottolab giocata verifica [ID]"));
  agenda::SceltaVerifica scelta;
  if (parole.size() == 1) {
    auto id = LeggiId(parole[0]);
    if (!id) return contesto.Fallisci(id.Errore());
    if (auto giocata = agenda.Carica(*id); !giocata) return contesto.Fallisci(giocata.Errore());
    scelta.id = *id;
  }
  auto giochi = agenda::GiochiDaVerificare(agenda, scelta);
  if (!giochi) return contesto.Fallisci(giochi.Errore());
  const agenda::ArchiviCaricati caricati =
      agenda::CaricaArchivi(*giochi, FileDegliArchivi(contesto, contesto.archivio));
  auto esito = agenda::VerificaAgenda(agenda, caricati.Archivi(), scelta);
  if (!esito) return contesto.Fallisci(esito.Errore());
  std::vector<std::string> non_verificate = caricati.errori;
  non_verificate.insert(non_verificate.end(), esito->non_verificate.begin(), esito->non_verificate.end());
  // The one bet asked for, when it could not be checked, is the command's failure.
  if (scelta.id && esito->verificate == 0 && !non_verificate.empty())
    return contesto.Fallisci(AvvisoEsclamativo(non_verificate.back()));
  for (const std::string& riga : non_verificate) contesto.segnalatore.Avverti(riga);
  fmt::print(contesto.out, "giocate verificate: {}\n", esito->verificate);
  auto nuove = agenda.VinciteNonViste();
  if (!nuove) return contesto.Fallisci(nuove.Errore());
  for (const agenda::VincitaNonVista& v : *nuove)
    fmt::print(contesto.out, "giocata {} colpo {} del {}: {}\n", v.giocata, v.colpo, FormattaData(v.data),
               agenda::TestoVincita(v.vincita));
  // What was printed has been seen: the next check shows only what it adds.
  if (auto vista = agenda.SegnaVisione(); !vista) return contesto.Fallisci(vista.Errore());
  return kUscitaRiuscita;
}

// The quota the user read for a win of a pool game: stored, and every bet that won that category in
// that draw checked again so that the win takes its money.
int Quota(Contesto& contesto, Agenda& agenda, const Parole& parole) {
  if (parole.size() != 4)
    return contesto.Fallisci(AvvisoEsclamativo("uso: lottolab giocata quota ID COLPO CATEGORIA IMPORTO"));
  auto id = LeggiId(parole[0]);
  if (!id) return contesto.Fallisci(id.Errore());
  auto giocata = agenda.Carica(*id);
  if (!giocata) return contesto.Fallisci(giocata.Errore());
  auto verifiche = agenda.Verifiche(*id);
  if (!verifiche) return contesto.Fallisci(verifiche.Errore());
  const auto colpo = Intero(parole[1], static_cast<int64_t>(verifiche->size()));
  if (!colpo || *colpo < 1)
    return contesto.Fallisci(AvvisoEsclamativo(
        fmt::format("colpo non valido: {} (la giocata {} ne ha verificati {})", parole[1], *id, verifiche->size())));
  const agenda::VerificaColpo& verificato = (*verifiche)[static_cast<size_t>(*colpo - 1)];
  std::vector<std::string> categorie;
  for (const agenda::VincitaColpo& vincita : verificato.vincite) categorie.push_back(vincita.sorte);
  if (std::find(categorie.begin(), categorie.end(), parole[2]) == categorie.end())
    return contesto.Fallisci(AvvisoEsclamativo(
        categorie.empty() ? fmt::format("il colpo {} della giocata {} non ha vincite", *colpo, *id)
                          : fmt::format("il colpo {} della giocata {} non ha vinto \"{}\" (ha vinto: {})", *colpo, *id,
                                        parole[2], fmt::join(categorie, ", "))));
  auto importo = agenda::LeggiImporto(parole[3]);
  if (!importo) return contesto.Fallisci(importo.Errore());
  const agenda::ArchiviCaricati caricati =
      agenda::CaricaArchivi({giocata->gioco}, FileDegliArchivi(contesto, contesto.archivio));
  auto esito = agenda::ApplicaQuota(agenda, caricati.Archivi(),
                                    {giocata->gioco, verificato.id_estr, verificato.data, parole[2], *importo});
  if (!esito) return contesto.Fallisci(esito.Errore());
  for (const std::string& riga : caricati.errori) contesto.segnalatore.Avverti(riga);
  for (const std::string& riga : esito->non_verificate) contesto.segnalatore.Avverti(riga);
  fmt::print(contesto.out, "quota di \"{}\" del {}: {}; giocate verificate di nuovo: {}\n", parole[2],
             FormattaData(verificato.data), agenda::FormattaImporto(*importo), esito->verificate);
  return kUscitaRiuscita;
}

}  // namespace

void VerificaAgendaDopoImportazione(Contesto& contesto, const std::vector<GiocoGiocata>& giochi) {
  auto esito = agenda::VerificaAgendaSuiFile(contesto.configurazione.FileAgenda(),
                                             FileDegliArchivi(contesto, contesto.configurazione.ArchivioLotto()),
                                             {.giochi = giochi});
  if (!esito) {
    contesto.segnalatore.Avverti("giocate dell'agenda non verificate: " + esito.Errore().testo);
    return;
  }
  for (const std::string& riga : esito->non_verificate) contesto.segnalatore.Avverti("agenda: " + riga);
  if (esito->verificate > 0 || esito->vincite_da_vedere > 0)
    fmt::print(contesto.out, "agenda: {}, vincite da vedere {} (lottolab giocata verifica)\n",
               Fatte(esito->verificate, "verificata", "verificate", "giocata", "giocate"), esito->vincite_da_vedere);
}

int ComandoGiocata(Contesto& contesto, const Parole& parole) {
  if (parole.empty()) {
    fmt::print(contesto.err, "{}\n", kUso);
    return kUscitaInputNonValido;
  }
  const std::string& azione = parole[0];
  if (azione != "aggiungi" && azione != "elenco" && azione != "rimuovi" && azione != "verifica" && azione != "quota")
    return contesto.Fallisci(
        AvvisoEsclamativo(fmt::format("azione sconosciuta: {} (aggiungi, elenco, rimuovi, verifica o quota)", azione)));
  auto aperta = Agenda::Apri(contesto.configurazione.FileAgenda());
  if (!aperta) return contesto.Fallisci(aperta.Errore());
  Agenda& agenda = aperta.Valore();
  const Parole resto(parole.begin() + 1, parole.end());
  if (azione == "aggiungi") return Aggiungi(contesto, agenda, resto);
  if (azione == "elenco") return Elenco(contesto, agenda, resto);
  if (azione == "rimuovi") return Rimuovi(contesto, agenda, resto);
  if (azione == "quota") return Quota(contesto, agenda, resto);
  return Verifica(contesto, agenda, resto);
}

}  // namespace lottolab::cli
