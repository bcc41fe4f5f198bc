#include "Comandi.h"

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "app/ErroreInatteso.h"
#include "app/Esempi.h"
#include "app/Percorsi.h"

namespace lottolab::cli {

namespace {

// One row of the command line: the command's name, the words it takes and what it does as the usage
// text shows them, and the function that runs it.
struct Comando {
  std::string_view nome;
  std::string_view parole;
  std::string_view descrizione;  // empty when the words say enough
  int (*esegui)(Contesto& contesto, const Parole& parole);
  // The command for the game of --gioco; null where it works on the Lotto alone.
  int (*esegui_altro_gioco)(Contesto& contesto, const Parole& parole) = nullptr;
};

constexpr std::string_view kParoleStatistica =
    "[--ruote BA,VE|TT] [--sorte N] [--posizioni 1,3] [--inizio X] [--fine X] N1 [N2 ...]";

// In the order of the usage text.
constexpr std::array kComandi = {
    Comando{"importa", "FILE", "aggiunge all'archivio le estrazioni nuove di un file di risultati (testo o zip)",
            ComandoImporta, ComandoImportaGioco},
    Comando{"aggiorna", "[--indirizzo URL]",
            "scarica e importa i risultati pubblicati (del Lotto e di ogni gioco con un indirizzo)", ComandoAggiorna,
            ComandoAggiorna},
    Comando{"info", "", "numero di estrazioni, prima e ultima data; controlla l'archivio", ComandoInfo,
            ComandoInfoGioco},
    Comando{"ripara", "", "toglie da un archivio l'estrazione incompleta in fondo, dopo averlo copiato", ComandoRipara},
    Comando{"estrazione", "ID|GG/MM/AAAA", "mostra un'estrazione", ComandoEstrazione, ComandoEstrazioneGioco},
    Comando{"ritardo", kParoleStatistica, "",
            [](Contesto& contesto, const Parole& parole) {
              return ComandoStatistica(contesto, parole, Statistica::Ritardo);
            },
            [](Contesto& contesto, const Parole& parole) {
              return ComandoStatisticaGioco(contesto, parole, Statistica::Ritardo);
            }},
    Comando{"frequenza", kParoleStatistica, "",
            [](Contesto& contesto, const Parole& parole) {
              return ComandoStatistica(contesto, parole, Statistica::Frequenza);
            },
            [](Contesto& contesto, const Parole& parole) {
              return ComandoStatisticaGioco(contesto, parole, Statistica::Frequenza);
            }},
    Comando{"storico", kParoleStatistica, "",
            [](Contesto& contesto, const Parole& parole) {
              return ComandoStatistica(contesto, parole, Statistica::Storico);
            },
            [](Contesto& contesto, const Parole& parole) {
              return ComandoStatisticaGioco(contesto, parole, Statistica::Storico);
            }},
    Comando{"tabellone", "[--ruota VE] [--inizio X] [--fine X]", "", ComandoTabellone, ComandoTabelloneGioco},
    Comando{"vbs", "[--locale it-IT|en-US] FILE.vbs [ARGOMENTI...]", "esegue un programma VBScript", ComandoVbs},
    Comando{"esegui", "SCRIPT.ls [--timeout MINUTI] [--html FILE] [--risposte FILE]", "esegue uno script sull'archivio",
            ComandoEsegui},
    Comando{"nuovo-script", "FILE.ls", "scrive lo schema di uno script nuovo", ComandoNuovoScript},
    Comando{"struttura", "FILE", "mostra vertici, linee e condizioni di un file di struttura", ComandoStruttura},
    Comando{"funzioni", "[--html FILE]", "elenca le funzioni degli script (o ne scrive la pagina di riferimento)",
            ComandoFunzioni},
    Comando{"cerca-figura", "FILE [--inizio X] [--fine X] [--ruote BA,VE|TT] [--colpi N]",
            "cerca una figura nell'archivio", ComandoCercaFigura},
    Comando{"premio", "--sorte S --numeri N1,N2 --ruote BA,VE --posta 1 [--data GG/MM/AAAA]",
            "lordo, ritenuta e netto per punti", ComandoPremio, ComandoPremio},
    Comando{"verifica-giocata", "--sorte S --numeri N1,N2 --ruote BA,VE --posta 1 --dal GG/MM/AAAA --colpi N",
            "conto per estrazione", ComandoVerificaGiocata},
    Comando{"retroverifica",
            "--sorte S (--numeri N1,N2 [--classe K] | --sistema FILE) --ruote BA,VE --posta 1 [--inizio X] [--fine X]",
            "la giocata in ogni estrazione dell'intervallo: spesa, vincite, saldo", ComandoRetroverifica},
    Comando{"giocata", "aggiungi|elenco|rimuovi|verifica ...", "l'agenda delle giocate (lottolab giocata per l'uso)",
            ComandoGiocata, ComandoGiocata},
};

// Descriptions line up in this column after the indent; a longer synopsis keeps its description
// three blanks away.
constexpr size_t kColonnaDescrizione = 26;

// The usage text, one line per command; neighbours that take the same words for the same purpose
// share a line, their names joined by "|".
std::string TestoUso() {
  std::string testo = "uso: lottolab [--gioco LO|SE|DL|DL5|WF|FT] [--archivio PATH] COMANDO ...\ncomandi:\n";
  for (auto comando = kComandi.begin(); comando != kComandi.end();) {
    std::string sinossi(comando->nome);
    auto dopo = std::next(comando);
    for (; dopo != kComandi.end() && dopo->parole == comando->parole && dopo->descrizione == comando->descrizione;
         ++dopo)
      sinossi += fmt::format("|{}", dopo->nome);
    if (!comando->parole.empty()) sinossi += fmt::format(" {}", comando->parole);
    if (comando->descrizione.empty())
      testo += fmt::format("  {}\n", sinossi);
    else if (sinossi.size() < kColonnaDescrizione)
      testo += fmt::format("  {:<{}}{}\n", sinossi, kColonnaDescrizione, comando->descrizione);
    else
      testo += fmt::format("  {}   {}\n", sinossi, comando->descrizione);
    comando = dopo;
  }
  testo +=
      "giochi (--gioco): LO Lotto (predefinito), SE SuperEnalotto, DL 10eLotto serale, DL5 10eLotto ogni 5 minuti,\n"
      "  WF Win for Life, FT archivio generico; per gli altri giochi valgono per ora importa, aggiorna, info,\n"
      "  estrazione, ritardo, frequenza, storico, tabellone (senza --ruote, --ruota e --posizioni) e premio\n";
  return testo;
}

// The game of --gioco: LO for the Lotto (none), or the code of another game.
Esito<std::optional<Gioco>> LeggiGioco(std::string_view sigla) {
  if (sigla == "LO") return std::optional<Gioco>();
  for (Gioco gioco : {Gioco::SuperEnalotto, Gioco::DieciELotto, Gioco::DieciELottoOgniCinqueMinuti, Gioco::WinForLife,
                      Gioco::Generico})
    if (Formato(gioco).sigla == sigla) return std::optional<Gioco>(gioco);
  return AvvisoEsclamativo(fmt::format("gioco sconosciuto: {} (LO, SE, DL, DL5, WF o FT)", sigla));
}

int EseguiParole(const Parole& argomenti, std::ostream& out, std::ostream& err) {
  SegnalatoreTerminale segnalatore(err);
  auto configurazione = app::CaricaConfigurazione(app::CartellaBase());
  if (!configurazione) {
    segnalatore.Mostra(configurazione.Errore());
    return segnalatore.CodiceUscita();
  }
  Contesto contesto{out, err, segnalatore, std::move(configurazione).Valore(), {}, {}};
  contesto.archivio = contesto.configurazione.ArchivioLotto();

  size_t i = 0;
  bool archivio_dato = false;
  while (i < argomenti.size() && (argomenti[i] == "--archivio" || argomenti[i] == "--gioco")) {
    if (i + 1 == argomenti.size())
      return contesto.Fallisci(AvvisoEsclamativo(fmt::format("manca il valore dell'opzione {}", argomenti[i])));
    if (argomenti[i] == "--archivio") {
      contesto.archivio = argomenti[i + 1];
      archivio_dato = true;
    } else if (auto gioco = LeggiGioco(argomenti[i + 1])) {
      contesto.gioco = *gioco;
    } else {
      return contesto.Fallisci(gioco.Errore());
    }
    i += 2;
  }
  if (contesto.gioco && !archivio_dato) contesto.archivio = contesto.configurazione.ArchivioGioco(*contesto.gioco);
  if (i == argomenti.size() || argomenti[i] == "--help" || argomenti[i] == "aiuto") {
    fmt::print(i == argomenti.size() ? err : out, "{}", TestoUso());
    return i == argomenti.size() ? kUscitaInputNonValido : kUscitaRiuscita;
  }
  const std::string& comando = argomenti[i];
  Parole parole(argomenti.begin() + static_cast<std::ptrdiff_t>(i) + 1, argomenti.end());

  const auto trovato = std::ranges::find(kComandi, std::string_view(comando), &Comando::nome);
  // The first run on a base folder leaves there the example scripts a user starts from.
  if (trovato != kComandi.end())
    if (auto esempi = app::InstallaEsempi(contesto.configurazione.base); !esempi)
      segnalatore.Avverti(esempi.Errore().testo);
  if (trovato != kComandi.end() && contesto.gioco) {
    if (trovato->esegui_altro_gioco) return trovato->esegui_altro_gioco(contesto, parole);
    return contesto.Fallisci(AvvisoEsclamativo(fmt::format(
        "il comando {} per ora vale solo per il Lotto, non per il {}", comando, Formato(*contesto.gioco).nome)));
  }
  if (trovato != kComandi.end()) return trovato->esegui(contesto, parole);
  return contesto.Fallisci(
      AvvisoEsclamativo(fmt::format("comando sconosciuto: {} (lottolab --help per l'elenco)", comando)));
}

}  // namespace

int EseguiLottolab(const Parole& argomenti, std::ostream& out, std::ostream& err) {
  try {
    return EseguiParole(argomenti, out, err);
  } catch (...) {
    out.flush();
    fmt::print(err, "lottolab: {}\n", app::DescriviEccezioneCorrente());
    return kUscitaErrore;
  }
}

}  // namespace lottolab::cli
