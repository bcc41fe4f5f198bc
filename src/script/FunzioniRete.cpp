// Downloads and uploads of whole files: a web page or file over HTTP(S), a file from or to an FTP
// server. The destination of a download and the source of an upload pass the run's file rules
// (AccessoFile.h) like any other name, and a protected script sends nothing. A failed transfer is
// shown to the user in a sentence naming the host and gives False, so the script can go on; the
// user's interruption and the run's time-out stop the transfer within a second and end the script.

#include <fmt/format.h>

#include <chrono>

#include "ArgomentoPercorso.h"
#include "Famiglia.h"
#include "rete/Trasferimento.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace {

namespace fs = std::filesystem;
using namespace famiglia;

constexpr int32_t kSecondiPredefiniti = 60;
constexpr int32_t kSecondiMassimi = 3600;

Result<std::string> Indirizzo(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto testo, args.String(i));
  std::string indirizzo = text::Utf16ToUtf8(testo);
  if (indirizzo.empty()) return ArgomentoNonValido("Indirizzo mancante");
  return indirizzo;
}

Result<std::chrono::seconds> TempoMassimo(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto secondi, args.Long(i, kSecondiPredefiniti));
  if (secondi < 1 || secondi > kSecondiMassimi)
    return ArgomentoNonValido(fmt::format("Timeout in secondi da 1 a {}: {} non è ammesso", kSecondiMassimi, secondi));
  return std::chrono::seconds(secondi);
}

// An FTP address may be written without its scheme, as "server/cartella/file".
std::string ConSchemaFtp(std::string indirizzo) {
  if (indirizzo.find("://") == std::string::npos) indirizzo = "ftp://" + indirizzo;
  return indirizzo;
}

// The user name and password of arguments i and i + 1, then the time-out at i + 2.
Result<rete::OpzioniTrasferimento> OpzioniFtp(const CallArgs& args, size_t i) {
  rete::OpzioniTrasferimento opzioni;
  opzioni.protocolli = "ftp,ftps";
  VBS_TRY_ASSIGN(auto utente, args.String(i, u""));
  VBS_TRY_ASSIGN(auto password, args.String(i + 1, u""));
  VBS_TRY_ASSIGN(opzioni.tempo_massimo, TempoMassimo(args, i + 2));
  opzioni.utente = text::Utf16ToUtf8(utente);
  opzioni.password = text::Utf16ToUtf8(password);
  if (opzioni.utente.empty() && !opzioni.password.empty()) opzioni.utente = "anonymous";
  return opzioni;
}

// The engine looks at its clock once every 1024 asks, which a loop of the library reaches at once;
// a transfer asks a few times a second, so it asks that many times in a row, to see the run's
// time-out within a second.
constexpr int kChiestePerOrologio = 1024;

vbs::Status Interruzione(const Libreria& lib) {
  for (int chiesta = 0; chiesta < kChiestePerOrologio; ++chiesta) VBS_TRY(lib.ControllaInterruzione());
  return vbs::Ok();
}

// Runs `trasferisci` with the run's progress bar following it and the run's interruption able to
// stop it: an interruption ends the script, any other failure is shown and gives False.
template <typename Operazione>
Result<Variant> Trasferisci(Libreria& lib, std::string_view funzione, rete::OpzioniTrasferimento opzioni,
                            Operazione trasferisci) {
  opzioni.avanzamento = [&lib](uint64_t fatti, uint64_t totali) {
    if (lib.Interrotto() || !Interruzione(lib)) return rete::Prosegui::No;
    if (totali > 0) lib.ospite().Avanzamento(100.0 * static_cast<double>(fatti) / static_cast<double>(totali));
    return rete::Prosegui::Si;
  };
  const Esito<uint64_t> esito = trasferisci(opzioni);
  VBS_TRY(Interruzione(lib));
  if (esito) return Variant::Boolean(true);
  lib.ospite().Mostra(
      Avviso{TipoAvviso::Esclamativo, "ClsFunctionsGeodoScript." + std::string(funzione), esito.Errore().testo});
  return Variant::Boolean(false);
}

Result<Variant> Scarica(Libreria& lib, std::string_view funzione, const std::string& indirizzo, const fs::path& file,
                        rete::OpzioniTrasferimento opzioni) {
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, file, funzione));
  return Trasferisci(lib, funzione, std::move(opzioni),
                     [&](const rete::OpzioniTrasferimento& con) { return rete::Scarica(indirizzo, file, con); });
}

Result<Variant> DownloadFromWeb(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto indirizzo, Indirizzo(args, 0));
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 1));
  rete::OpzioniTrasferimento opzioni;
  opzioni.protocolli = "http,https";
  VBS_TRY_ASSIGN(opzioni.tempo_massimo, TempoMassimo(args, 2));
  return Scarica(lib, "DownloadFromWeb", indirizzo, file, std::move(opzioni));
}

Result<Variant> DownloadFromFtp(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto indirizzo, Indirizzo(args, 0));
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 1));
  VBS_TRY_ASSIGN(auto opzioni, OpzioniFtp(args, 2));
  return Scarica(lib, "DownloadFromFtp", ConSchemaFtp(indirizzo), file, std::move(opzioni));
}

Result<Variant> UploadFileFtp(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto indirizzo, Indirizzo(args, 1));
  VBS_TRY_ASSIGN(auto opzioni, OpzioniFtp(args, 2));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Read, file, "UploadFileFtp"));
  if (lib.accesso()->modalita() == Modalita::Protetta)
    return vbs::MakeError(vbs::err::kPermissionDenied,
                          text::Utf8ToUtf16(fmt::format("Permesso negato: UploadFileFtp non può inviare {} (in "
                                                        "modalità protetta nessun file si invia in rete)",
                                                        file.string())));
  indirizzo = ConSchemaFtp(indirizzo);
  if (indirizzo.ends_with('/')) indirizzo += file.filename().string();
  return Trasferisci(lib, "UploadFileFtp", std::move(opzioni),
                     [&](const rete::OpzioniTrasferimento& con) { return rete::Carica(file, indirizzo, con); });
}

const Libreria::Funzione kRete[] = {
    {"DownloadFromWeb", 2, 3, &DownloadFromWeb,
     "Url, FileDestinazione, [Timeout = 60]: scarica l'indirizzo http o https nel file, sostituendolo solo a "
     "trasferimento completo; Timeout in secondi (1..3600) per l'intero trasferimento. True se scaricato; altrimenti "
     "mostra il motivo (server irraggiungibile, risposta 404, tempo scaduto...) e dà False",
     "Boolean: True se scaricato, False dopo un avviso col motivo",
     "Scrivi DownloadFromWeb(\"http://localhost:8000/estrazioni.txt\", \"scriptOutput/estrazioni.txt\", 5)"},
    {"DownloadFromFtp", 2, 5, &DownloadFromFtp,
     "Url, FileDestinazione, [Utente], [Password], [Timeout = 60]: scarica il file ftp://server[:porta]/percorso "
     "(ftp:// "
     "si può omettere) nel file, sostituendolo solo a trasferimento completo; senza Utente l'accesso è anonimo. True "
     "se scaricato, altrimenti mostra il motivo e dà False",
     "Boolean: True se scaricato, False dopo un avviso col motivo",
     "Scrivi DownloadFromFtp(\"ftp://localhost:2121/pub/estrazioni.txt\", \"scriptOutput/estrazioni.txt\", \"\", \"\", "
     "5)"},
    {"UploadFileFtp", 2, 5, &UploadFileFtp,
     "FileOrigine, Url, [Utente], [Password], [Timeout = 60]: invia il file a ftp://server[:porta]/percorso (un Url "
     "che termina con \"/\" prende il nome del file), creando le cartelle mancanti. True se inviato, altrimenti mostra "
     "il motivo e dà False; in modalità protetta è rifiutato (errore 70)",
     "Boolean: True se inviato, False dopo un avviso col motivo; errore 70 in modalità protetta",
     "b = ScriviFile(\"scriptOutput/previsioni.txt\", \"12.34.56\", False, True) : Scrivi "
     "UploadFileFtp(\"scriptOutput/previsioni.txt\", \"ftp://localhost:2121/archivio/\", \"\", \"\", 5)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniRete() { return kRete; }

}  // namespace lottolab::script
