#include "Comandi.h"

#include <fmt/format.h>
#include <fmt/ostream.h>

#include "app/ErroreInatteso.h"
#include "app/Percorsi.h"

namespace lottolab::cli {

namespace {

constexpr std::string_view kUso =
    "uso: lottolab [--archivio PATH] COMANDO ...\n"
    "comandi:\n"
    "  importa FILE              aggiunge all'archivio le estrazioni nuove di un file di risultati (testo o zip)\n"
    "  aggiorna                  scarica i risultati pubblicati e li importa\n"
    "  info                      numero di estrazioni, prima e ultima data; controlla l'archivio\n"
    "  ripara                    toglie da un archivio l'estrazione incompleta in fondo, dopo averlo copiato\n"
    "  estrazione ID|GG/MM/AAAA  mostra un'estrazione\n"
    "  ritardo|frequenza|storico [--ruote BA,VE|TT] [--sorte N] [--posizioni 1,3] [--inizio X] [--fine X] N1 [N2 ...]\n"
    "  tabellone [--ruota VE] [--inizio X] [--fine X]\n"
    "  vbs [--locale it-IT|en-US] FILE.vbs [ARGOMENTI...]   esegue un programma VBScript\n"
    "  esegui SCRIPT.ls [--timeout MINUTI] [--html FILE] [--risposte FILE]   esegue uno script sull'archivio\n"
    "  nuovo-script FILE.ls      scrive lo schema di uno script nuovo\n"
    "  struttura FILE            mostra vertici, linee e condizioni di un file di struttura\n"
    "  funzioni [--html FILE]    elenca le funzioni degli script (o ne scrive la pagina di riferimento)\n"
    "  cerca-figura FILE [--inizio X] [--fine X] [--ruote BA,VE|TT] [--colpi N]   cerca una figura nell'archivio\n";

int EseguiParole(const Parole& argomenti, std::ostream& out, std::ostream& err) {
  SegnalatoreTerminale segnalatore(err);
  auto configurazione = app::CaricaConfigurazione(app::CartellaBase());
  if (!configurazione) {
    segnalatore.Mostra(configurazione.Errore());
    return segnalatore.CodiceUscita();
  }
  Contesto contesto{out, segnalatore, std::move(configurazione).Valore(), {}};
  contesto.archivio = contesto.configurazione.ArchivioLotto();

  size_t i = 0;
  while (i < argomenti.size() && argomenti[i] == "--archivio") {
    if (i + 1 == argomenti.size()) return contesto.Fallisci(AvvisoEsclamativo("manca il valore dell'opzione --archivio"));
    contesto.archivio = argomenti[i + 1];
    i += 2;
  }
  if (i == argomenti.size() || argomenti[i] == "--help" || argomenti[i] == "aiuto") {
    fmt::print(i == argomenti.size() ? err : out, "{}", kUso);
    return i == argomenti.size() ? kUscitaInputNonValido : kUscitaRiuscita;
  }
  const std::string& comando = argomenti[i];
  Parole parole(argomenti.begin() + static_cast<std::ptrdiff_t>(i) + 1, argomenti.end());

  if (comando == "importa") return ComandoImporta(contesto, parole);
  if (comando == "aggiorna") return ComandoAggiorna(contesto, parole);
  if (comando == "info") return ComandoInfo(contesto, parole);
  if (comando == "ripara") return ComandoRipara(contesto, parole);
  if (comando == "estrazione") return ComandoEstrazione(contesto, parole);
  if (comando == "ritardo") return ComandoStatistica(contesto, parole, Statistica::Ritardo);
  if (comando == "frequenza") return ComandoStatistica(contesto, parole, Statistica::Frequenza);
  if (comando == "storico") return ComandoStatistica(contesto, parole, Statistica::Storico);
  if (comando == "tabellone") return ComandoTabellone(contesto, parole);
  if (comando == "vbs") return ComandoVbs(contesto, parole, err);
  if (comando == "esegui") return ComandoEsegui(contesto, parole, err);
  if (comando == "nuovo-script") return ComandoNuovoScript(contesto, parole);
  if (comando == "struttura") return ComandoStruttura(contesto, parole);
  if (comando == "funzioni") return ComandoFunzioni(contesto, parole, err);
  if (comando == "cerca-figura") return ComandoCercaFigura(contesto, parole);
  return contesto.Fallisci(AvvisoEsclamativo(fmt::format("comando sconosciuto: {} (lottolab --help per l'elenco)", comando)));
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
