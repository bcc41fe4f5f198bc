// aggiorna: the published results downloaded and imported, for the Lotto and for each other game
// whose results address the configuration gives.

#include <fmt/format.h>
#include <optional>

#include "Argomenti.h"
#include "Comandi.h"
#include "archive/ArchivioGioco.h"
#include "rete/ScaricaRisultati.h"

namespace lottolab::cli {

namespace fs = std::filesystem;

namespace {

constexpr Gioco kAltriGiochi[] = {Gioco::SuperEnalotto, Gioco::DieciELotto, Gioco::DieciELottoOgniCinqueMinuti,
                                  Gioco::WinForLife, Gioco::Generico};

// The file at `indirizzo`, downloaded into the base folder as `nome`; the download creates the base
// folder of a new installation.
Esito<fs::path> Scarica(const Contesto& contesto, const std::string& indirizzo, const std::string& nome) {
  return rete::ScaricaRisultati(indirizzo, contesto.configurazione.base / nome);
}

int AggiornaLotto(Contesto& contesto, const std::string& indirizzo) {
  auto scaricato = Scarica(contesto, indirizzo, "risultati-scaricati.zip");
  if (!scaricato) return contesto.Fallisci(scaricato.Errore());
  const int uscita = ImportaLotto(contesto, *scaricato);
  std::error_code ec;
  fs::remove(*scaricato, ec);
  return uscita;
}

// The game of `contesto.gioco` updated into `contesto.archivio` from `indirizzo`.
Esito<int> AggiornaGioco(Contesto& contesto, const std::string& indirizzo) {
  const FormatoGioco& formato = Formato(*contesto.gioco);
  auto scaricato = Scarica(contesto, indirizzo, fmt::format("risultati-scaricati-{}", formato.sigla));
  if (!scaricato) return scaricato.Errore();
  auto aggiunte = ImportaGioco(contesto, *scaricato);
  std::error_code ec;
  fs::remove(*scaricato, ec);
  return aggiunte;
}

}  // namespace

int ComandoAggiorna(Contesto& contesto, const Parole& parole) {
  auto argomenti = SeparaArgomenti(parole, {"indirizzo"});
  if (!argomenti) return contesto.Fallisci(argomenti.Errore());
  if (!argomenti->parole.empty())
    return contesto.Fallisci(AvvisoEsclamativo("uso: lottolab [--gioco GIOCO] aggiorna [--indirizzo URL]"));
  // An address given on the command line stands for the configured one of the game updated, alone.
  const auto dato = argomenti->opzioni.find("indirizzo");
  const std::optional<std::string> indirizzo =
      dato == argomenti->opzioni.end() ? std::nullopt : std::optional<std::string>(dato->second);
  if (contesto.gioco) {
    const FormatoGioco& formato = Formato(*contesto.gioco);
    if (indirizzo) {
      auto aggiunte = AggiornaGioco(contesto, *indirizzo);
      return aggiunte ? kUscitaRiuscita : contesto.Fallisci(aggiunte.Errore());
    }
    if (contesto.configurazione.IndirizzoRisultatiGioco(formato.gioco).empty())
      return contesto.Fallisci(AvvisoEsclamativo(
          fmt::format("l'{} non ha un indirizzo da cui scaricare i risultati: lo dà la chiave sIndirizzoRisultati{} di "
                      "[GENERALE] in lottolab.ini",
                      NomeArchivioGioco(formato), formato.sigla)));
    auto aggiunte = AggiornaGioco(contesto, contesto.configurazione.IndirizzoRisultatiGioco(formato.gioco));
    return aggiunte ? kUscitaRiuscita : contesto.Fallisci(aggiunte.Errore());
  }
  if (indirizzo) return AggiornaLotto(contesto, *indirizzo);
  AggiornaLotto(contesto, contesto.configurazione.IndirizzoRisultati());
  for (Gioco gioco : kAltriGiochi) {
    if (contesto.configurazione.IndirizzoRisultatiGioco(gioco).empty()) continue;
    Contesto del_gioco = contesto;
    del_gioco.gioco = gioco;
    del_gioco.archivio = contesto.configurazione.ArchivioGioco(gioco);
    auto aggiunte = AggiornaGioco(del_gioco, contesto.configurazione.IndirizzoRisultatiGioco(gioco));
    if (aggiunte) continue;
    Avviso avviso = aggiunte.Errore();
    avviso.testo = fmt::format("l'{} non è stato aggiornato: {}", NomeArchivioGioco(Formato(gioco)), avviso.testo);
    contesto.Fallisci(avviso);
  }
  return contesto.segnalatore.CodiceUscita();
}

}  // namespace lottolab::cli
