// The configured archives brought up to date from the results the operators publish, as the
// program's own update does, and read again by the rest of the run. It is the one way a script
// writes them: through the same import, all of it or nothing, and never in the protected mode.

#include <fmt/format.h>

#include <filesystem>
#include <string>
#include <vector>

#include "ArchiviGiochi.h"
#include "Famiglia.h"
#include "archive/ArchivioGioco.h"
#include "archive/ClsEstrazioni.h"
#include "archive/ImportaRisultati.h"
#include "archive/RisultatiGioco.h"
#include "rete/ScaricaRisultati.h"

namespace lottolab::script {

namespace {

namespace fs = std::filesystem;
using namespace famiglia;

// The address given, or the configured one; the file downloaded beside the archives.
Result<fs::path> Scarica(Libreria& lib, const CallArgs& args, const std::string& configurato, std::string_view chiave,
                         std::string_view funzione, const std::string& nome_file) {
  if (lib.impostazioni().modalita == Modalita::Protetta)
    return ArgomentoNonValido(fmt::format("{}: in modalità protetta uno script non aggiorna gli archivi", funzione));
  VBS_TRY_ASSIGN(auto dato, args.String(0, u""));
  const std::string indirizzo = dato.empty() ? configurato : text::Utf16ToUtf8(dato);
  if (indirizzo.empty())
    return ArgomentoNonValido(fmt::format(
        "{}: manca l'indirizzo da cui scaricare i risultati: lo dà la chiave {} di [GENERALE] in lottolab.ini",
        funzione, chiave));
  if (lib.impostazioni().cartella_base.empty())
    return ArgomentoNonValido(fmt::format("{}: questo ambiente non ha una cartella base", funzione));
  auto scaricato = rete::ScaricaRisultati(
      indirizzo, lib.impostazioni().cartella_base / nome_file, [&lib](uint64_t fatti, uint64_t totali) {
        if (lib.Interrotto()) return rete::Prosegui::No;
        if (totali > 0) lib.ospite().Avanzamento(100.0 * static_cast<double>(fatti) / static_cast<double>(totali));
        return rete::Prosegui::Si;
      });
  VBS_TRY(lib.ControllaInterruzione());
  if (!scaricato) return ArgomentoNonValido(fmt::format("{}: {}", funzione, scaricato.Errore().testo));
  return *scaricato;
}

void Rimuovi(const fs::path& file) {
  std::error_code ignorato;
  fs::remove(file, ignorato);
}

Result<Variant> AggiornaArchivio(Libreria& lib, CallArgs& args) {
  const ImpostazioniLibreria& impostazioni = lib.impostazioni();
  if (impostazioni.file_archivio.empty())
    return ArgomentoNonValido("AggiornaArchivio: questo ambiente non ha un archivio del Lotto da aggiornare");
  VBS_TRY_ASSIGN(auto scaricato, Scarica(lib, args, impostazioni.indirizzo_risultati, "sIndirizzoRisultati",
                                         "AggiornaArchivio", "risultati-scaricati.zip"));
  ClsEstrazioni archivio(impostazioni.file_archivio);
  auto importate = ImportaRisultati(archivio, scaricato);
  Rimuovi(scaricato);
  if (!importate) return ArgomentoNonValido("AggiornaArchivio: " + importate.Errore().testo);
  if (*importate > 0) {
    auto tabella = archivio.CaricaEstrazioni();
    if (!tabella) return ArgomentoNonValido("AggiornaArchivio: " + tabella.Errore().testo);
    lib.SostituisciArchivio(std::make_shared<const TabellaEstrazioni>(std::move(tabella).Valore()));
  }
  return Variant::Long(*importate);
}

template <Suffisso kSuffisso>
Result<Variant> AggiornaArchivioGioco(Libreria& lib, CallArgs& args) {
  constexpr std::string_view kNomi[] = {"AggiornaArchivioSE", "AggiornaArchivioDL", "AggiornaArchivioWF",
                                        "AggiornaArchivioFT"};
  const std::string_view funzione = kNomi[static_cast<size_t>(kSuffisso)];
  ArchiviGiochi& archivi = lib.Stato<ArchiviGiochi>();
  const Gioco gioco = archivi.GiocoDi(kSuffisso);
  const ImpostazioniLibreria& impostazioni = lib.impostazioni();
  const fs::path& file = impostazioni.archivi_giochi[static_cast<size_t>(gioco)];
  if (file.empty())
    return ArgomentoNonValido(fmt::format("{}: questo ambiente non ha un archivio del gioco da aggiornare", funzione));
  const FormatoGioco& formato = Formato(gioco);
  const std::string chiave =
      fmt::format("sIndirizzoRisultati{}{}", formato.sigla, gioco == Gioco::DieciELottoOgniCinqueMinuti ? "5" : "");
  VBS_TRY_ASSIGN(auto scaricato, Scarica(lib, args, impostazioni.indirizzi_giochi[static_cast<size_t>(gioco)], chiave,
                                         funzione, fmt::format("risultati-scaricati-{}", formato.sigla)));
  std::vector<std::string> avvisi;
  auto nuove = LeggiRisultatiGioco(gioco, scaricato, file, impostazioni.file_archivio, avvisi);
  Rimuovi(scaricato);
  for (const std::string& avviso : avvisi) lib.ospite().Messaggio(fmt::format("{}: {}", funzione, avviso));
  if (!nuove) return ArgomentoNonValido(fmt::format("{}: {}", funzione, nuove.Errore().testo));
  auto aggiunte = ImportaEstrazioniGioco(nuove->formato(), file, nuove->Tutte());
  if (!aggiunte) return ArgomentoNonValido(fmt::format("{}: {}", funzione, aggiunte.Errore().testo));
  if (*aggiunte > 0) archivi.Dimentica(gioco);
  return Variant::Long(*aggiunte);
}

const Libreria::Funzione kAggiorna[] = {
    {"AggiornaArchivio", 0, 1, &AggiornaArchivio,
     "[Indirizzo]: aggiorna l'archivio del Lotto configurato dai risultati pubblicati (l'indirizzo della chiave "
     "sIndirizzoRisultati, o quello dato), con la stessa importazione del comando aggiorna: tutta o niente; il resto "
     "dell'esecuzione legge l'archivio aggiornato. Non in modalità protetta; senza rete è un errore che lo dice",
     "Long: quante estrazioni sono state aggiunte", "n = AggiornaArchivio : Scrivi n & \" estrazioni nuove\""},
    {"AggiornaArchivioSE", 0, 1, &AggiornaArchivioGioco<Suffisso::SE>,
     "[Indirizzo]: AggiornaArchivio per l'archivio del SuperEnalotto (chiave sIndirizzoRisultatiSE)",
     "Long: quante estrazioni sono state aggiunte", "n = AggiornaArchivioSE : Scrivi n"},
    {"AggiornaArchivioDL", 0, 1, &AggiornaArchivioGioco<Suffisso::DL>,
     "[Indirizzo]: AggiornaArchivio per l'archivio del 10eLotto in uso, serale (chiave sIndirizzoRisultatiDL) o ogni "
     "cinque minuti dopo ImpostaArchivio10ELotto True (sIndirizzoRisultatiDL5)",
     "Long: quante estrazioni sono state aggiunte", "n = AggiornaArchivioDL : Scrivi n"},
    {"AggiornaArchivioWF", 0, 1, &AggiornaArchivioGioco<Suffisso::WF>,
     "[Indirizzo]: AggiornaArchivio per l'archivio del Win for Life (chiave sIndirizzoRisultatiWF)",
     "Long: quante estrazioni sono state aggiunte", "n = AggiornaArchivioWF : Scrivi n"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniAggiornaArchivio() { return kAggiorna; }

}  // namespace lottolab::script
