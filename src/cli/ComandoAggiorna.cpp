// aggiorna: the published results downloaded and imported, for the Lotto and for each other game
// whose results address the configuration gives.

#include <fmt/format.h>

#include "Comandi.h"
#include "archive/ArchivioGioco.h"
#include "archive/ScaricaRisultati.h"

namespace lottolab::cli {

namespace fs = std::filesystem;

namespace {

constexpr Gioco kAltriGiochi[] = {Gioco::SuperEnalotto, Gioco::DieciELotto, Gioco::DieciELottoOgniCinqueMinuti,
                                  Gioco::WinForLife, Gioco::Generico};

// The file at `indirizzo`, downloaded into the base folder as `nome`.
Esito<fs::path> Scarica(const Contesto& contesto, const std::string& indirizzo, const std::string& nome) {
  std::error_code ec;
  fs::create_directories(contesto.configurazione.base, ec);
  return ScaricaRisultati(indirizzo, contesto.configurazione.base / nome);
}

int AggiornaLotto(Contesto& contesto) {
  auto scaricato = Scarica(contesto, contesto.configurazione.IndirizzoRisultati(), "risultati-scaricati.zip");
  if (!scaricato) return contesto.Fallisci(scaricato.Errore());
  const int uscita = ImportaLotto(contesto, *scaricato);
  std::error_code ec;
  fs::remove(*scaricato, ec);
  return uscita;
}

// The game of `contesto.gioco` updated into `contesto.archivio` from its configured address.
Esito<int> AggiornaGioco(Contesto& contesto) {
  const FormatoGioco& formato = Formato(*contesto.gioco);
  auto scaricato = Scarica(contesto, contesto.configurazione.IndirizzoRisultatiGioco(formato.gioco),
                           fmt::format("risultati-scaricati-{}", formato.sigla));
  if (!scaricato) return scaricato.Errore();
  auto aggiunte = ImportaGioco(contesto, *scaricato);
  std::error_code ec;
  fs::remove(*scaricato, ec);
  return aggiunte;
}

}  // namespace

int ComandoAggiorna(Contesto& contesto, const Parole& parole) {
  if (!parole.empty()) return contesto.Fallisci(AvvisoEsclamativo("uso: lottolab [--gioco GIOCO] aggiorna"));
  if (contesto.gioco) {
    const FormatoGioco& formato = Formato(*contesto.gioco);
    if (contesto.configurazione.IndirizzoRisultatiGioco(formato.gioco).empty())
      return contesto.Fallisci(AvvisoEsclamativo(
          fmt::format("l'{} non ha un indirizzo da cui scaricare i risultati: lo dà la chiave sIndirizzoRisultati{} di "
                      "[GENERALE] in lottolab.ini",
                      NomeArchivioGioco(formato), formato.sigla)));
    auto aggiunte = AggiornaGioco(contesto);
    return aggiunte ? kUscitaRiuscita : contesto.Fallisci(aggiunte.Errore());
  }
  AggiornaLotto(contesto);
  for (Gioco gioco : kAltriGiochi) {
    if (contesto.configurazione.IndirizzoRisultatiGioco(gioco).empty()) continue;
    Contesto del_gioco = contesto;
    del_gioco.gioco = gioco;
    del_gioco.archivio = contesto.configurazione.ArchivioGioco(gioco);
    auto aggiunte = AggiornaGioco(del_gioco);
    if (aggiunte) continue;
    Avviso avviso = aggiunte.Errore();
    avviso.testo = fmt::format("l'{} non è stato aggiornato: {}", NomeArchivioGioco(Formato(gioco)), avviso.testo);
    contesto.Fallisci(avviso);
  }
  return contesto.segnalatore.CodiceUscita();
}

}  // namespace lottolab::cli
