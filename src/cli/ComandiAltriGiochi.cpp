// The commands for the games besides the Lotto (--gioco SE|DL|DL5|WF|FT).

#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <fmt/ostream.h>

#include "Argomenti.h"
#include "Comandi.h"
#include "Quantita.h"
#include "agenda/VerificaGioco.h"
#include "app/ErroreInatteso.h"
#include "archive/ArchivioGioco.h"
#include "archive/ClsEstrazioni.h"
#include "archive/DateEstrazione.h"
#include "archive/DieciELotto.h"
#include "archive/DieciELottoOgniCinqueMinuti.h"
#include "archive/RisultatiGioco.h"
#include "stats/RitardiGioco.h"

namespace lottolab::cli {

namespace fs = std::filesystem;

namespace {

Avviso UsoErrato(const Contesto& contesto, std::string_view uso) {
  return AvvisoEsclamativo(fmt::format("uso: lottolab --gioco {} {}", Formato(*contesto.gioco).sigla, uso));
}

// The draws of a results file for the game, with what it leaves in doubt told as warnings.
Esito<TabellaGioco> LeggiRisultati(Contesto& contesto, const fs::path& file) {
  std::vector<std::string> avvisi;
  auto letti =
      LeggiRisultatiGioco(*contesto.gioco, file, contesto.archivio, contesto.configurazione.ArchivioLotto(), avvisi);
  for (const std::string& avviso : avvisi) contesto.segnalatore.Avverti(avviso);
  return letti;
}

std::string Ora(const FormatoGioco& formato, const EstrazioneGioco& estrazione) {
  return formato.con_ora ? fmt::format(" {:02}:{:02}", estrazione.minuti / 60, estrazione.minuti % 60) : "";
}

std::string NumeriDi(const auto& numeri, int quanti) {
  std::string testo;
  for (int i = 0; i < quanti; ++i) testo += fmt::format("{}{:02}", i ? " " : "", numeri[i]);
  return testo;
}

// What follows the main numbers: the special numbers by name, where the draw holds them.
std::string Speciali(const FormatoGioco& formato, const EstrazioneGioco& estrazione) {
  std::string testo;
  for (int i = 0; i < formato.speciali; ++i)
    if (estrazione.speciali[i] != 0)
      testo += fmt::format("  {} {:02}", NomeNumeroSpeciale(formato.gioco, i), estrazione.speciali[i]);
  if (formato.extra > 0 && estrazione.extra[0] != 0) testo += "  Extra " + NumeriDi(estrazione.extra, formato.extra);
  return testo;
}

// The generic archive's format is its file's, so that file must be there.
Esito<TabellaGioco> CaricaArchivio(const Contesto& contesto) {
  if (*contesto.gioco == Gioco::Generico) return CaricaArchivioGenerico(contesto.archivio);
  return CaricaArchivioGioco(Formato(*contesto.gioco), contesto.archivio);
}

// "del SuperEnalotto", "dell'archivio generico".
std::string DelGioco(const FormatoGioco& formato) {
  return formato.gioco == Gioco::Generico ? "dell'archivio generico" : fmt::format("del {}", formato.nome);
}

// The game of the agenda's bets that the archive of the command holds, when it is the configured
// archive of a game the agenda knows; nothing otherwise.
std::optional<agenda::GiocoGiocata> GiocoDellAgenda(const Contesto& contesto) {
  const Gioco gioco = *contesto.gioco;
  const auto dell_agenda = agenda::GiocoDaSigla(Formato(gioco).sigla);
  if (!dell_agenda || agenda::GiocoDellArchivio(*dell_agenda) != gioco) return std::nullopt;
  std::error_code ec, ec_configurato;
  const bool configurato = fs::weakly_canonical(contesto.archivio, ec) ==
                               fs::weakly_canonical(contesto.configurazione.ArchivioGioco(gioco), ec_configurato) &&
                           !ec && !ec_configurato;
  return configurato ? dell_agenda : std::nullopt;
}

}  // namespace

Esito<int> ImportaGioco(Contesto& contesto, const fs::path& file) {
  auto nuove = LeggiRisultati(contesto, file);
  if (!nuove) return nuove.Errore();
  std::error_code ec;
  if (contesto.archivio.has_parent_path()) fs::create_directories(contesto.archivio.parent_path(), ec);
  auto aggiunte = ImportaEstrazioniGioco(nuove->formato(), contesto.archivio, nuove->Tutte());
  if (!aggiunte) return aggiunte.Errore();
  fmt::print(contesto.out, "{} {}\n", Fatte(*aggiunte, "importata", "importate", "estrazione", "estrazioni"),
             DelGioco(nuove->formato()));
  if (*aggiunte > 0)
    if (auto gioco = GiocoDellAgenda(contesto)) VerificaAgendaDopoImportazione(contesto, {*gioco});
  return aggiunte;
}

int ComandoImportaGioco(Contesto& contesto, const Parole& parole) {
  if (parole.size() != 1) return contesto.Fallisci(UsoErrato(contesto, "importa FILE"));
  auto aggiunte = ImportaGioco(contesto, parole[0]);
  return aggiunte ? kUscitaRiuscita : contesto.Fallisci(aggiunte.Errore());
}

int ComandoInfoGioco(Contesto& contesto, const Parole& parole) {
  if (!parole.empty()) return contesto.Fallisci(UsoErrato(contesto, "info"));
  auto tabella = CaricaArchivio(contesto);
  if (!tabella) return contesto.Fallisci(tabella.Errore());
  const FormatoGioco& formato = tabella->formato();
  const int n = tabella->EstrazioniArchivio();
  fmt::print(contesto.out, "gioco: {}\n", formato.nome);
  if (formato.gioco == Gioco::Generico)
    fmt::print(contesto.out, "numeri: {} da 1 a {}\n", formato.numeri, formato.massimo);
  fmt::print(contesto.out, "estrazioni: {}\n", n);
  fmt::print(contesto.out, "prima: {}\n", n ? FormattaData((*tabella)[1].data) + Ora(formato, (*tabella)[1]) : "-");
  fmt::print(contesto.out, "ultima: {}\n", n ? FormattaData((*tabella)[n].data) + Ora(formato, (*tabella)[n]) : "-");
  return kUscitaRiuscita;
}

int ComandoEstrazioneGioco(Contesto& contesto, const Parole& parole) {
  if (parole.size() != 1) return contesto.Fallisci(UsoErrato(contesto, "estrazione ID|GG/MM/AAAA"));
  auto tabella = CaricaArchivio(contesto);
  if (!tabella) return contesto.Fallisci(tabella.Errore());
  const FormatoGioco& formato = tabella->formato();
  std::vector<int> scelte;
  if (parole[0].find('/') != std::string::npos) {
    auto data = LeggiData(parole[0]);
    if (!data) return contesto.Fallisci(data.Errore());
    for (int k = 1; k <= tabella->EstrazioniArchivio(); ++k)
      if (ConfrontaDate((*tabella)[k].data, *data) == 0) scelte.push_back(k);
    if (scelte.empty()) return contesto.Fallisci(AvvisoEsclamativo(fmt::format("nessuna estrazione il {}", parole[0])));
  } else {
    int k = 0;
    const auto [fine, errore] = std::from_chars(parole[0].data(), parole[0].data() + parole[0].size(), k);
    if (errore != std::errc() || fine != parole[0].data() + parole[0].size() || !tabella->Contiene(k))
      return contesto.Fallisci(AvvisoEsclamativo(
          fmt::format("l'estrazione {} non è nell'archivio, che ne ha {}", parole[0], tabella->EstrazioniArchivio())));
    scelte.push_back(k);
  }
  for (int k : scelte) {
    const EstrazioneGioco& estrazione = (*tabella)[k];
    fmt::print(contesto.out, "{} {}{} concorso {}: {}{}\n", k, FormattaData(estrazione.data), Ora(formato, estrazione),
               estrazione.concorso, NumeriDi(estrazione.numeri, formato.numeri), Speciali(formato, estrazione));
  }
  return kUscitaRiuscita;
}

int ComandoStatisticaGioco(Contesto& contesto, const Parole& parole, Statistica statistica) {
  auto argomenti = SeparaArgomenti(parole, {"sorte", "inizio", "fine"});
  if (!argomenti) return contesto.Fallisci(argomenti.Errore());
  auto tabella = CaricaArchivio(contesto);
  if (!tabella) return contesto.Fallisci(tabella.Errore());
  const FormatoGioco& formato = tabella->formato();
  if (tabella->EstrazioniArchivio() == 0)
    return contesto.Fallisci(AvvisoEsclamativo(fmt::format("l'{} è vuoto", NomeArchivioGioco(formato))));

  std::vector<int> numeri;
  for (const std::string& parola : argomenti->parole) {
    int numero = 0;
    const auto [fine, errore] = std::from_chars(parola.data(), parola.data() + parola.size(), numero);
    if (errore != std::errc() || fine != parola.data() + parola.size() || numero < 1 || numero > formato.massimo)
      return contesto.Fallisci(AvvisoEsclamativo(
          fmt::format("\"{}\" non è un numero {} (da 1 a {})", parola, DelGioco(formato), formato.massimo)));
    if (std::find(numeri.begin(), numeri.end(), numero) != numeri.end())
      return contesto.Fallisci(AvvisoEsclamativo(fmt::format("numero ripetuto: {}", numero)));
    numeri.push_back(numero);
  }
  if (numeri.empty())
    return contesto.Fallisci(
        UsoErrato(contesto, "ritardo|frequenza|storico [--sorte N] [--inizio X] [--fine X] N1 [N2 ...]"));
  // Without --sorte the numbers are played as a whole, as for the Lotto.
  int sorte = std::min(static_cast<int>(numeri.size()), formato.numeri);
  if (auto it = argomenti->opzioni.find("sorte"); it != argomenti->opzioni.end()) {
    const auto [fine, errore] = std::from_chars(it->second.data(), it->second.data() + it->second.size(), sorte);
    if (errore != std::errc() || fine != it->second.data() + it->second.size() || sorte < 1 ||
        sorte > static_cast<int>(numeri.size()) || sorte > formato.numeri)
      return contesto.Fallisci(
          AvvisoEsclamativo(fmt::format("sorte non valida: {} (da 1 al numero dei numeri giocati, {} al più)",
                                        it->second, std::min<size_t>(numeri.size(), formato.numeri))));
  }
  auto intervallo = LeggiIntervallo(*tabella, *argomenti);
  if (!intervallo) return contesto.Fallisci(intervallo.Errore());
  const stats::StatisticaNumero figure =
      stats::StatisticaCombinazioneGioco(*tabella, numeri, sorte, intervallo->fine, intervallo->inizio);
  const int valore = statistica == Statistica::Ritardo     ? figure.ritardo
                     : statistica == Statistica::Frequenza ? figure.frequenza
                                                           : figure.storico;
  fmt::print(contesto.out, "{}\n", valore);
  return kUscitaRiuscita;
}

int ComandoTabelloneGioco(Contesto& contesto, const Parole& parole) {
  auto argomenti = SeparaArgomenti(parole, {"inizio", "fine"});
  if (!argomenti) return contesto.Fallisci(argomenti.Errore());
  if (!argomenti->parole.empty()) return contesto.Fallisci(UsoErrato(contesto, "tabellone [--inizio X] [--fine X]"));
  auto tabella = CaricaArchivio(contesto);
  if (!tabella) return contesto.Fallisci(tabella.Errore());
  if (tabella->EstrazioniArchivio() == 0)
    return contesto.Fallisci(AvvisoEsclamativo(fmt::format("l'{} è vuoto", NomeArchivioGioco(tabella->formato()))));
  auto intervallo = LeggiIntervallo(*tabella, *argomenti);
  if (!intervallo) return contesto.Fallisci(intervallo.Errore());
  const auto figure = stats::TabelloneGioco(*tabella, intervallo->fine, intervallo->inizio);
  fmt::print(contesto.out, "{:>6} {:>9} {:>9} {:>9}\n", "numero", "ritardo", "frequenza", "storico");
  for (size_t numero = 1; numero < figure.size(); ++numero)
    fmt::print(contesto.out, "{:>6} {:>9} {:>9} {:>9}\n", numero, figure[numero].ritardo, figure[numero].frequenza,
               figure[numero].storico);
  return kUscitaRiuscita;
}

}  // namespace lottolab::cli
