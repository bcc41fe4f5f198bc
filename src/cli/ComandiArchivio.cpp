#include <fmt/format.h>
#include <fmt/ostream.h>

#include "Argomenti.h"
#include "Comandi.h"
#include "Quantita.h"
#include "app/ErroreInatteso.h"
#include "archive/AllineaDieciELotto.h"
#include "archive/ClsEstrazioni.h"
#include "archive/DateEstrazione.h"
#include "archive/ImportaRisultati.h"
#include "archive/RiparaArchivio.h"

namespace lottolab::cli {

namespace fs = std::filesystem;

namespace {

Avviso UsoErrato(std::string_view uso) { return AvvisoEsclamativo(fmt::format("uso: lottolab {}", uso)); }

// Whether the archive of the command is the configured one, which the other archives and the
// agenda follow.
bool ArchivioConfigurato(const Contesto& contesto) {
  std::error_code ec, ec_configurato;
  return fs::weakly_canonical(contesto.archivio, ec) ==
             fs::weakly_canonical(contesto.configurazione.ArchivioLotto(), ec_configurato) &&
         !ec && !ec_configurato;
}

// The evening 10eLotto derived again from the Lotto archive that has just grown, when it is the
// configured one that the 10eLotto is derived from; what was done told in one line. Gives whether
// evenings were added or completed.
bool AllineaIlDieciELotto(Contesto& contesto) {
  std::error_code ec;
  if (!ArchivioConfigurato(contesto)) return false;
  const fs::path file = contesto.configurazione.ArchivioGioco(Gioco::DieciELotto);
  if (!fs::exists(file, ec)) return false;
  auto lotto = ClsEstrazioni(contesto.archivio).CaricaEstrazioni();
  auto allineato =
      lotto ? AllineaDieciELotto(*lotto, file) : Esito<std::optional<DieciELottoAllineato>>(lotto.Errore());
  if (!allineato) {
    contesto.segnalatore.Avverti("10eLotto serale non ricavato di nuovo dall'archivio del Lotto: " +
                                 allineato.Errore().testo);
    return false;
  }
  if (!allineato->has_value()) return false;
  const DieciELottoAllineato& fatto = **allineato;
  for (const std::string& differenza : fatto.differenze) contesto.segnalatore.Avverti(differenza);
  if (fatto.aggiunte == 0 && fatto.completate == 0) {
    fmt::print(contesto.out, "10eLotto serale: nessuna serata da aggiungere dall'archivio del Lotto\n");
    return false;
  }
  fmt::print(contesto.out, "10eLotto serale: aggiunte {} serate dall'archivio del Lotto{}\n", fatto.aggiunte,
             fatto.completate ? fmt::format(", completate {}", fatto.completate) : "");
  return true;
}

}  // namespace

int ImportaLotto(Contesto& contesto, const fs::path& file) {
  std::error_code ec;
  if (contesto.archivio.has_parent_path()) fs::create_directories(contesto.archivio.parent_path(), ec);
  if (ec)
    return contesto.Fallisci(AvvisoEsclamativo(fmt::format(
        "impossibile creare la cartella dell'archivio {}: {}",
        app::PercorsoPerMessaggio(contesto.archivio.parent_path().string()), app::DescriviErroreDiSistema(ec))));
  ClsEstrazioni archivio(contesto.archivio);
  auto importate = ImportaRisultati(archivio, file);
  if (!importate) return contesto.Fallisci(importate.Errore());
  fmt::print(contesto.out, "{}\n", Fatte(*importate, "importata", "importate", "estrazione", "estrazioni"));
  // The agenda follows the configured archives only: another archive's draws are not its bets'.
  if (*importate > 0 && ArchivioConfigurato(contesto)) {
    std::vector<agenda::GiocoGiocata> giochi = {agenda::GiocoGiocata::Lotto};
    if (AllineaIlDieciELotto(contesto)) giochi.push_back(agenda::GiocoGiocata::DieciELotto);
    VerificaAgendaDopoImportazione(contesto, giochi);
  }
  return kUscitaRiuscita;
}

int ComandoImporta(Contesto& contesto, const Parole& parole) {
  if (parole.size() != 1) return contesto.Fallisci(UsoErrato("importa FILE"));
  std::error_code ec;
  if (!fs::exists(parole[0], ec))
    return contesto.Fallisci(
        AvvisoEsclamativo(ec ? fmt::format("il file {} non è accessibile: {}", app::PercorsoPerMessaggio(parole[0]),
                                           app::DescriviErroreDiSistema(ec))
                             : fmt::format("il file {} non esiste", app::PercorsoPerMessaggio(parole[0]))));
  return ImportaLotto(contesto, parole[0]);
}

int ComandoInfo(Contesto& contesto, const Parole& parole) {
  if (!parole.empty()) return contesto.Fallisci(UsoErrato("info"));
  auto caricate = contesto.CaricaTabellaControllata();
  if (!caricate) return contesto.Fallisci(caricate.Errore());
  const TabellaEstrazioni& tabella = caricate->tabella;
  int n = tabella.EstrazioniArchivio();
  fmt::print(contesto.out, "estrazioni: {}\n", n);
  fmt::print(contesto.out, "prima: {}\n", n ? FormattaData(tabella[1].data) : "-");
  fmt::print(contesto.out, "ultima: {}\n", n ? FormattaData(tabella[n].data) : "-");
  // info is how a user or a script checks an archive: a damaged one fails it.
  const std::vector<std::string> avvisi = caricate->rapporto.Avvisi();
  for (const std::string& avviso : avvisi) contesto.segnalatore.Avverti(avviso);
  return avvisi.empty() ? kUscitaRiuscita : kUscitaErrore;
}

int ComandoRipara(Contesto& contesto, const Parole& parole) {
  if (!parole.empty()) return contesto.Fallisci(UsoErrato("ripara"));
  auto riparazione = RiparaArchivio(contesto.archivio);
  if (!riparazione) return contesto.Fallisci(riparazione.Errore());
  fmt::print(contesto.out, "{}\n", DescriviRiparazione(contesto.archivio, *riparazione));
  return kUscitaRiuscita;
}

int ComandoEstrazione(Contesto& contesto, const Parole& parole) {
  if (parole.size() != 1) return contesto.Fallisci(UsoErrato("estrazione ID|GG/MM/AAAA"));
  auto tabella = contesto.CaricaTabella();
  if (!tabella) return contesto.Fallisci(tabella.Errore());
  auto indice = LeggiRiferimentoEstrazione(*tabella, parole[0]);
  if (!indice) return contesto.Fallisci(indice.Errore());

  const Estrazione& estrazione = (*tabella)[*indice];
  // A date names one draw exactly here: showing the draw before it would mislead.
  if (parole[0].find('/') != std::string::npos && ConfrontaDate(estrazione.data, *LeggiData(parole[0])) != 0)
    return contesto.Fallisci(AvvisoEsclamativo(fmt::format("nessuna estrazione il {}", parole[0])));

  fmt::print(contesto.out, "{} {} {}\n", *indice, FormattaData(estrazione.data), estrazione.data.indice_annuale);
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
    if (!estrazione.RuotaEstratta(ruota)) continue;
    fmt::print(contesto.out, "{}", SiglaRuota(ruota));
    for (int posizione = 1; posizione <= kNumeriPerRuota; ++posizione)
      fmt::print(contesto.out, " {:02}", estrazione.Numero(ruota, posizione));
    fmt::print(contesto.out, "\n");
  }
  return kUscitaRiuscita;
}

}  // namespace lottolab::cli
