// Files and folders a script reads and writes: text files line by line, draws kept in the
// operator's results layout, and the usual operations on files. Names may be written with
// backslashes, as scripts for Windows do, and relative names start from the base folder.
//
// A failure the user can fix (a missing file, a name already taken) is shown to the user and the
// function gives its "nothing" (False, 0) so that the script can go on. No function replaces or
// removes anything the script did not name explicitly. Before it touches a file each function asks
// the run's rules (AccessoFile.h), whose refusal ends the script with error 70.

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fmt/format.h>
#include <fstream>
#include <map>
#include <thread>

#include "ArgomentiLotto.h"
#include "ArgomentoPercorso.h"
#include "Famiglia.h"
#include "LetturaFile.h"
#include "archive/DateEstrazione.h"
#include "archive/ImportaRisultati.h"
#include "text/Utf.h"
#include "text/Wildcard.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

namespace fs = std::filesystem;
using namespace famiglia;

// What the script opened or read in this run. The files written stay open between calls so that
// writing line after line costs no reopening; the run sequence closes them at the end of every run.
struct StatoFile {
  std::map<fs::path, std::ofstream> aperti;
  // The draws of the last file of draws read, kept while the file is unchanged: scripts read one
  // draw per call.
  fs::path file_estrazioni;
  fs::file_time_type modifica_estrazioni;
  uintmax_t dimensione_estrazioni = 0;
  std::vector<Estrazione> estrazioni;
};

void Segnala(Libreria& lib, std::string_view funzione, std::string motivo) {
  lib.ospite().Mostra(
      Avviso{TipoAvviso::Esclamativo, "ClsFunctionsGeodoScript." + std::string(funzione), std::move(motivo)});
}

Result<Variant> NonRiuscito(Libreria& lib, std::string_view funzione, std::string motivo, Variant nulla) {
  Segnala(lib, funzione, std::move(motivo));
  return nulla;
}

Result<Variant> NonRiuscito(Libreria& lib, std::string_view funzione, std::string motivo) {
  return NonRiuscito(lib, funzione, std::move(motivo), Variant::Boolean(false));
}

std::string ConSeparatore(std::string cartella) {
  if (!cartella.empty() && cartella.back() != '/') cartella += '/';
  return cartella;
}

bool FileEsiste(const fs::path& percorso) {
  std::error_code ec;
  return fs::is_regular_file(percorso, ec);
}

bool CartellaEsiste(const fs::path& percorso) {
  std::error_code ec;
  return fs::is_directory(percorso, ec);
}

// Closing writes what is still buffered, so a full disk shows here.
bool ChiusoBene(std::ofstream& out) {
  out.close();
  return !out.fail();
}

std::string MotivoChiusura(const fs::path& file) {
  return fmt::format("Errore nella scrittura del file {}: il testo potrebbe essere incompleto", file.string());
}

// Before a file is read or copied, what the script wrote to it reaches the disk.
void ScaricaSeAperto(Libreria& lib, const fs::path& file) {
  auto& aperti = lib.Stato<StatoFile>().aperti;
  if (auto it = aperti.find(file); it != aperti.end()) it->second.flush();
}

// Before a file is removed, renamed or replaced, the script's writing to it ends.
bool ChiudiSeAperto(Libreria& lib, const fs::path& file) {
  auto& aperti = lib.Stato<StatoFile>().aperti;
  auto it = aperti.find(file);
  if (it == aperti.end()) return true;
  const bool bene = ChiusoBene(it->second);
  aperti.erase(it);
  return bene;
}

Result<Variant> ChiudiERiferisci(Libreria& lib, std::string_view funzione, const fs::path& file) {
  if (!ChiudiSeAperto(lib, file)) return NonRiuscito(lib, funzione, MotivoChiusura(file));
  return Variant::Boolean(true);
}

// The first line written to a file in a run opens it: appending to what it holds, or emptying it
// first when the script asks.
Result<Variant> ScriviFile(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto testo, args.String(1));
  VBS_TRY_ASSIGN(auto aggiungi, args.Boolean(2, true));
  VBS_TRY_ASSIGN(auto chiudi, args.Boolean(3, false));

  auto& aperti = lib.Stato<StatoFile>().aperti;
  auto it = aperti.find(file);
  if (it == aperti.end()) {
    VBS_TRY(lib.Consenti(vbs::FileAccess::Write, file, "ScriviFile"));
    // Opening a pipe to write waits for a reader, and a device is nobody's text file.
    std::error_code ec;
    if (fs::exists(file, ec) && !FileEsiste(file))
      return NonRiuscito(lib, "ScriviFile", fmt::format("{} non è un file: non viene scritto", file.string()));
    std::ofstream out(file, std::ios::binary | (aggiungi ? std::ios::app : std::ios::trunc));
    if (!out)
      return NonRiuscito(lib, "ScriviFile", fmt::format("Impossibile aprire in scrittura il file {}", file.string()));
    it = aperti.emplace(file, std::move(out)).first;
  }
  it->second << text::Utf16ToUtf8(testo) << '\n';
  if (!it->second) {
    aperti.erase(it);
    return NonRiuscito(lib, "ScriviFile", MotivoChiusura(file));
  }
  if (chiudi) return ChiudiERiferisci(lib, "ScriviFile", file);
  return Variant::Boolean(true);
}

Result<Variant> CloseFileHandle(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  return ChiudiERiferisci(lib, "CloseFileHandle", file);
}

Result<Variant> CloseAllFileHandle(Libreria& lib, CallArgs&) {
  auto& aperti = lib.Stato<StatoFile>().aperti;
  for (auto& [file, out] : aperti) {
    if (!ChiusoBene(out)) Segnala(lib, "CloseAllFileHandle", MotivoChiusura(file));
  }
  aperti.clear();
  return Variant();
}

// The lines without their ends ("\n" or "\r\n"); the end of the last line makes no empty line after it.
std::vector<Variant> Righe(std::u16string_view testo) {
  std::vector<Variant> righe;
  while (!testo.empty()) {
    const size_t a_capo = testo.find(u'\n');
    std::u16string_view riga = testo.substr(0, a_capo);
    if (riga.ends_with(u'\r')) riga.remove_suffix(1);
    righe.push_back(Variant::String(riga));
    testo.remove_prefix(a_capo == std::u16string_view::npos ? testo.size() : a_capo + 1);
  }
  return righe;
}

Result<Variant> LeggiRigheFileDiTesto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Read, file, "LeggiRigheFileDiTesto"));
  ScaricaSeAperto(lib, file);
  std::error_code ec;
  if (!fs::exists(file, ec))
    return NonRiuscito(lib, "LeggiRigheFileDiTesto", fmt::format("Il file {} non esiste", file.string()),
                       Variant::Long(0));
  auto contenuto = LeggiFileRegolare(file, kLimiteFileTesto);
  if (!contenuto) return NonRiuscito(lib, "LeggiRigheFileDiTesto", contenuto.Errore().testo, Variant::Long(0));
  std::vector<Variant> righe = Righe(text::DecodeScriptFile(*contenuto));
  const auto quante = static_cast<int32_t>(righe.size());
  args.Out(1) = ArrayDaUno(std::move(righe));
  return Variant::Long(quante);
}

template <bool (*Esiste)(const fs::path&)>
Result<Variant> Esistente(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto percorso, PercorsoArgomento(lib, args, 0));
  return Variant::Boolean(Esiste(percorso));
}

Result<Variant> CreaDirectory(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto cartella, PercorsoArgomento(lib, args, 0));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, cartella, "CreaDirectory"));
  std::error_code ec;
  fs::create_directories(cartella, ec);
  if (!CartellaEsiste(cartella))
    return NonRiuscito(lib, "CreaDirectory", fmt::format("Impossibile creare la cartella {}", cartella.string()));
  return Variant::Boolean(true);
}

Result<Variant> CopiaFile(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto origine, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto destinazione, PercorsoArgomento(lib, args, 1));
  VBS_TRY_ASSIGN(auto sovrascrivi, args.Boolean(2, false));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Read, origine, "CopiaFile"));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, destinazione, "CopiaFile"));
  std::error_code ec;
  if (!FileEsiste(origine))
    return NonRiuscito(lib, "CopiaFile", fmt::format("Il file {} non esiste", origine.string()));
  if (fs::exists(destinazione, ec) && !sovrascrivi)
    return NonRiuscito(lib, "CopiaFile",
                       fmt::format("Il file {} esiste già: non viene sovrascritto", destinazione.string()));
  ScaricaSeAperto(lib, origine);
  ChiudiSeAperto(lib, destinazione);
  const auto opzioni = sovrascrivi ? fs::copy_options::overwrite_existing : fs::copy_options::none;
  if (!fs::copy_file(origine, destinazione, opzioni, ec) || ec)
    return NonRiuscito(lib, "CopiaFile",
                       fmt::format("Impossibile copiare il file {} in {}", origine.string(), destinazione.string()));
  return Variant::Boolean(true);
}

Result<Variant> EliminaFile(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Delete, file, "EliminaFile"));
  std::error_code ec;
  if (!FileEsiste(file)) return NonRiuscito(lib, "EliminaFile", fmt::format("Il file {} non esiste", file.string()));
  ChiudiSeAperto(lib, file);
  if (!fs::remove(file, ec))
    return NonRiuscito(lib, "EliminaFile", fmt::format("Impossibile eliminare il file {}", file.string()));
  return Variant::Boolean(true);
}

Result<Variant> RinominaFile(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto origine, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto destinazione, PercorsoArgomento(lib, args, 1));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Delete, origine, "RinominaFile"));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, destinazione, "RinominaFile"));
  std::error_code ec;
  if (!FileEsiste(origine))
    return NonRiuscito(lib, "RinominaFile", fmt::format("Il file {} non esiste", origine.string()));
  if (fs::exists(destinazione, ec))
    return NonRiuscito(lib, "RinominaFile",
                       fmt::format("Il file {} esiste già: non viene sostituito", destinazione.string()));
  ChiudiSeAperto(lib, origine);
  fs::rename(origine, destinazione, ec);
  if (ec)
    return NonRiuscito(lib, "RinominaFile",
                       fmt::format("Impossibile rinominare il file {} in {}", origine.string(), destinazione.string()));
  return Variant::Boolean(true);
}

// Models separated by ";"; "*.*" stands for every file, with or without an extension.
bool CorrispondeAlFiltro(std::u16string_view nome, std::u16string_view filtro) {
  while (true) {
    const size_t fine = filtro.find(u';');
    const std::u16string_view modello = filtro.substr(0, fine);
    if (modello == u"*.*" || text::MatchesWildcard(modello, nome)) return true;
    if (fine == std::u16string_view::npos) return false;
    filtro.remove_prefix(fine + 1);
  }
}

Result<Variant> ElencoFileInDirectory(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto cartella, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto filtro, args.String(2, u"*.*"));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Read, cartella, "ElencoFileInDirectory"));
  std::error_code ec;
  if (!CartellaEsiste(cartella))
    return NonRiuscito(lib, "ElencoFileInDirectory", fmt::format("La cartella {} non esiste", cartella.string()),
                       Variant::Long(0));
  std::vector<std::u16string> nomi;
  for (fs::directory_iterator it(cartella, ec), fine; !ec && it != fine; it.increment(ec)) {
    std::error_code tipo;
    if (!it->is_regular_file(tipo)) continue;
    std::u16string nome = text::Utf8ToUtf16(it->path().filename().string());
    if (CorrispondeAlFiltro(nome, filtro)) nomi.push_back(std::move(nome));
  }
  if (ec)
    return NonRiuscito(lib, "ElencoFileInDirectory",
                       fmt::format("Impossibile leggere la cartella {}", cartella.string()), Variant::Long(0));
  std::sort(nomi.begin(), nomi.end());
  std::vector<Variant> valori;
  valori.reserve(nomi.size());
  for (const std::u16string& nome : nomi) valori.push_back(Variant::String(nome));
  args.Out(1) = ArrayDaUno(std::move(valori));
  return Variant::Long(static_cast<int32_t>(nomi.size()));
}

Result<Variant> GetDirectoryTemp(Libreria&, CallArgs&) {
  std::error_code ec;
  return Variant::String(text::Utf8ToUtf16(ConSeparatore(fs::temp_directory_path(ec).string())));
}

Result<Variant> GetDirectoryAppData(Libreria& lib, CallArgs&) {
  return Variant::String(text::Utf8ToUtf16(ConSeparatore(lib.impostazioni().cartella_dati_app.string())));
}

bool DesktopDisponibile() { return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY"); }

// The desktop's opener is started without a shell, so no name can run a command, and without
// waiting for it, since some desktops keep it until the program it starts is closed.
bool AvviaApertura(const fs::path& file) {
  const std::string percorso = file.string();
  char programma[] = "xdg-open";
  char* argomenti[] = {programma, const_cast<char*>(percorso.c_str()), nullptr};
  pid_t processo = 0;
  if (posix_spawnp(&processo, programma, nullptr, nullptr, argomenti, environ) != 0) return false;
  std::thread([processo] { waitpid(processo, nullptr, 0); }).detach();
  return true;
}

// What LanciaFile and ApriDirectory open: a file, written through first when the script has it open,
// or a folder.
Result<Variant> ApriSulDesktop(Libreria& lib, CallArgs& args, std::string_view funzione, bool cartella) {
  VBS_TRY_ASSIGN(auto percorso, PercorsoArgomento(lib, args, 0));
  VBS_TRY(lib.Consenti(vbs::FileAccess::Launch, percorso, funzione));
  const std::string cosa = fmt::format("{} {}", cartella ? "la cartella" : "il file", percorso.string());
  std::error_code ec;
  if (cartella ? !fs::is_directory(percorso, ec) : !fs::exists(percorso, ec))
    return NonRiuscito(lib, funzione, fmt::format("{}{} non esiste", cartella ? "L" : "I", cosa.substr(1)));
  if (!DesktopDisponibile()) return NonRiuscito(lib, funzione, fmt::format("Nessun desktop su cui aprire {}", cosa));
  if (!cartella) ScaricaSeAperto(lib, percorso);
  if (!AvviaApertura(percorso))
    return NonRiuscito(lib, funzione, fmt::format("Impossibile aprire {} (xdg-open)", cosa));
  return Variant::Boolean(true);
}

Result<Variant> LanciaFile(Libreria& lib, CallArgs& args) { return ApriSulDesktop(lib, args, "LanciaFile", false); }

Result<Variant> ApriDirectory(Libreria& lib, CallArgs& args) {
  return ApriSulDesktop(lib, args, "ApriDirectory", true);
}

// The draws of a file in the operator's results layout, read again only when the file changed; null
// when it cannot be read, after telling the user why; error 70 when the run's rules forbid reading it.
Result<const std::vector<Estrazione>*> EstrazioniDelFile(Libreria& lib, std::string_view funzione,
                                                         const fs::path& file) {
  VBS_TRY(lib.Consenti(vbs::FileAccess::Read, file, funzione));
  ScaricaSeAperto(lib, file);
  StatoFile& stato = lib.Stato<StatoFile>();
  std::error_code ec;
  const auto modifica = fs::last_write_time(file, ec);
  const uintmax_t dimensione = ec ? 0 : fs::file_size(file, ec);
  if (!ec && file == stato.file_estrazioni && modifica == stato.modifica_estrazioni &&
      dimensione == stato.dimensione_estrazioni)
    return static_cast<const std::vector<Estrazione>*>(&stato.estrazioni);
  stato.file_estrazioni.clear();
  auto regolare = FileRegolare(file);
  auto lette = regolare ? LeggiNuoveEstrazioniDaFile(TabellaEstrazioni(), file)
                        : Esito<std::vector<Estrazione>>(regolare.Errore());
  if (!lette) {
    Avviso avviso = lette.Errore();
    avviso.titolo = "ClsFunctionsGeodoScript." + std::string(funzione);
    lib.ospite().Mostra(avviso);
    return static_cast<const std::vector<Estrazione>*>(nullptr);
  }
  stato.estrazioni = std::move(lette).Valore();
  if (!ec) {
    stato.file_estrazioni = file;
    stato.modifica_estrazioni = modifica;
    stato.dimensione_estrazioni = dimensione;
  }
  return static_cast<const std::vector<Estrazione>*>(&stato.estrazioni);
}

Result<Variant> QuantitaEstrazioniInFile(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto estrazioni, EstrazioniDelFile(lib, "QuantitaEstrazioniInFile", file));
  return Variant::Long(estrazioni ? static_cast<int32_t>((estrazioni)->size()) : 0);
}

Result<Variant> LeggiEstrazioneDaFile(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto indice, args.Long(1));
  VBS_TRY_ASSIGN(auto letta, EstrazioniDelFile(lib, "LeggiEstrazioneDaFile", file));
  const auto* estrazioni = letta;
  if (!estrazioni || indice < 1 || static_cast<size_t>(indice) > estrazioni->size()) return Variant::Boolean(false);
  const Estrazione& estrazione = (*estrazioni)[static_cast<size_t>(indice) - 1];
  VBS_TRY_ASSIGN(auto numeri, ArrayEstrazione(estrazione));
  args.Out(2) = std::move(numeri);
  if (args.Has(3)) args.Out(3) = Variant::String(text::Utf8ToUtf16(FormattaData(estrazione.data)));
  return Variant::Boolean(true);
}

const Libreria::Funzione kFile[] = {
    {"ScriviFile", 2, 4, &ScriviFile,
     "NomeFile, Testo, [Aggiungi = True], [AChiusura = False]: scrive Testo e un a capo nel file (UTF-8), che resta "
     "aperto fino a CloseFileHandle o alla fine dell'esecuzione; la prima riga dell'esecuzione si aggiunge al "
     "contenuto del file, oppure lo svuota prima se Aggiungi è False; AChiusura lo chiude dopo questa riga. True se "
     "scritto",
     "Boolean: True se scritto, False dopo un avviso",
     "Scrivi ScriviFile(\"scriptOutput/previsioni.txt\", \"12.34.56\", False, True)"},
    {"CloseFileHandle", 1, 1, &CloseFileHandle,
     "NomeFile: chiude il file aperto da ScriviFile, scrivendo ciò che resta; True se chiuso (anche se non era "
     "aperto)",
     "Boolean: True se chiuso, False dopo un avviso",
     "b = ScriviFile(\"scriptOutput/note.txt\", \"prima riga\", False) : Scrivi "
     "CloseFileHandle(\"scriptOutput/note.txt\")"},
    {"CloseAllFileHandle", 0, 0, &CloseAllFileHandle,
     "chiude tutti i file aperti da ScriviFile; l'esecuzione la chiama alla fine, quindi i file sono sempre completi",
     "niente (Sub)", "b = ScriviFile(\"scriptOutput/note.txt\", \"riga\", False) : CloseAllFileHandle"},
    {"LeggiRigheFileDiTesto", 2, 2, &LeggiRigheFileDiTesto,
     "NomeFile, aRighe: riempie aRighe(1 To n) con le righe del file di testo, UTF-8 o Windows-1252, e restituisce n "
     "(Long); 0 lasciando aRighe invariato se il file non si può leggere",
     "Long: quante righe; in aRighe le righe (array da 1); 0 dopo un avviso se il file non si legge",
     "b = ScriviFile(\"scriptOutput/righe.txt\", \"uno\", False, True) : n = "
     "LeggiRigheFileDiTesto(\"scriptOutput/righe.txt\", aR) : Scrivi n & \" \" & aR(1)"},
    {"FileEsistente", 1, 1, &Esistente<&FileEsiste>, "NomeFile: True se il file esiste",
     "Boolean: True se il file esiste", "Scrivi FileEsistente(\"scriptOutput/previsioni.txt\")"},
    {"DirectoryEsistente", 1, 1, &Esistente<&CartellaEsiste>, "Cartella: True se la cartella esiste",
     "Boolean: True se la cartella esiste", "Scrivi DirectoryEsistente(GetDirectoryTemp)"},
    {"CreaDirectory", 1, 1, &CreaDirectory,
     "Cartella: crea la cartella e quelle superiori mancanti; True se alla fine esiste",
     "Boolean: True se la cartella esiste alla fine, False dopo un avviso",
     "Scrivi CreaDirectory(\"scriptOutput/archivio\")"},
    {"CopiaFile", 2, 3, &CopiaFile,
     "Origine, Destinazione, [Sovrascrivi = False]: copia il file; una Destinazione esistente viene sostituita solo "
     "con Sovrascrivi. True se copiato",
     "Boolean: True se copiato, False dopo un avviso",
     "b = ScriviFile(\"scriptOutput/a.txt\", \"x\", False, True) : Scrivi CopiaFile(\"scriptOutput/a.txt\", "
     "\"scriptOutput/b.txt\", True)"},
    {"EliminaFile", 1, 1, &EliminaFile, "NomeFile: elimina il file (mai una cartella); True se eliminato",
     "Boolean: True se eliminato, False dopo un avviso",
     "b = ScriviFile(\"scriptOutput/tmp.txt\", \"x\", False, True) : Scrivi EliminaFile(\"scriptOutput/tmp.txt\")"},
    {"RinominaFile", 2, 2, &RinominaFile,
     "Origine, Destinazione: rinomina o sposta il file; rifiutato se Destinazione esiste. True se eseguito",
     "Boolean: True se eseguito, False dopo un avviso",
     "b = ScriviFile(\"scriptOutput/vecchio.txt\", \"x\", False, True) : Scrivi "
     "RinominaFile(\"scriptOutput/vecchio.txt\", \"scriptOutput/nuovo.txt\") : b = "
     "RinominaFile(\"scriptOutput/nuovo.txt\", \"scriptOutput/vecchio.txt\")"},
    {"ElencoFileInDirectory", 2, 3, &ElencoFileInDirectory,
     "Cartella, aFile, [Filtro = \"*.*\"]: riempie aFile(1 To n) con i nomi, in ordine alfabetico, dei file della "
     "cartella che corrispondono a Filtro (* e ?, più modelli separati da \";\") e restituisce n (Long)",
     "Long: quanti file; in aFile i nomi (array da 1)",
     "b = ScriviFile(\"scriptOutput/elenco.txt\", \"x\", False, True) : n = ElencoFileInDirectory(\"scriptOutput\", "
     "aF, \"*.txt\") : Scrivi n & \" \" & aF(1)"},
    {"GetDirectoryTemp", 0, 0, &GetDirectoryTemp, "la cartella per i file temporanei, terminante con \"/\"",
     "String: la cartella, con \"/\" finale", "Scrivi GetDirectoryTemp"},
    {"GetDirectoryAppData", 0, 0, &GetDirectoryAppData, "la cartella dei dati dell'applicazione, terminante con \"/\"",
     "String: la cartella, con \"/\" finale", "Scrivi GetDirectoryAppData & \"scriptOutput/\""},
    {"ApriDirectory", 1, 1, &ApriDirectory,
     "Cartella: apre la cartella nel gestore dei file del desktop; True se avviato, False (con un avviso) se la "
     "cartella non esiste o non c'è un desktop",
     "Boolean: True se avviato, False dopo un avviso", "Scrivi ApriDirectory(GetDirectoryAppData & \"scriptOutput\")"},
    {"LanciaFile", 1, 1, &LanciaFile,
     "NomeFile: apre il file con il programma del desktop associato (xdg-open), senza attendere; True se avviato, "
     "False se non c'è un desktop; in modalità protetta è rifiutato (errore 70)",
     "Boolean: True se avviato, False dopo un avviso; errore 70 in modalità protetta",
     "b = ScriviFile(\"scriptOutput/previsioni.txt\", \"12.34.56\", False, True) : Scrivi "
     "LanciaFile(\"scriptOutput/previsioni.txt\")"},
    {"QuantitaEstrazioniInFile", 1, 1, &QuantitaEstrazioniInFile,
     "NomeFile: il numero di estrazioni (Long) nel file, scritto nel formato dei risultati del gestore del gioco "
     "(una riga per ruota: AAAA/MM/GG, sigla della ruota, cinque numeri) o in uno zip che lo contiene; 0 se non si "
     "può leggere",
     "Long: quante estrazioni, 0 dopo un avviso se il file non si legge",
     "b = ScriviFile(\"scriptOutput/estrazioni.txt\", \"2024/01/02\" & vbTab & \"BA\" & vbTab & \"1\" & vbTab & \"2\" "
     "& vbTab & \"3\" & vbTab & \"4\" & vbTab & \"5\", False, True) : Scrivi "
     "QuantitaEstrazioniInFile(\"scriptOutput/estrazioni.txt\")"},
    {"LeggiEstrazioneDaFile", 3, 4, &LeggiEstrazioneDaFile,
     "NomeFile, Indice, aNumeri, [Data]: riempie aNumeri(Ruota 1..11, Posizione 1..5), NZ alla 11, con i numeri "
     "dell'estrazione numero Indice del file (da 1, dalla più vecchia) e Data con la sua data \"GG/MM/AAAA\"; True "
     "se l'estrazione esiste, altrimenti False lasciando invariate le variabili",
     "Boolean: True se l'estrazione c'è; in aNumeri la matrice (1..11, 1..5), in Data la data",
     "b = ScriviFile(\"scriptOutput/estrazioni.txt\", \"2024/01/02\" & vbTab & \"BA\" & vbTab & \"1\" & vbTab & \"2\" "
     "& vbTab & \"3\" & vbTab & \"4\" & vbTab & \"5\", False, True) : If "
     "LeggiEstrazioneDaFile(\"scriptOutput/estrazioni.txt\", 1, aN, sData) Then Scrivi sData & \" \" & aN(BA_, 1)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniFile() { return kFile; }

}  // namespace lottolab::script
