// The entry points the host calls around the script's Main, and the script's side of stopping and
// progress.

#include <algorithm>
#include <fmt/format.h>

#include "Famiglia.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace {

namespace fs = std::filesystem;
using namespace famiglia;

// The page name used when the host set none.
constexpr std::string_view kNomePaginaPredefinito = "output.htm";

Result<Variant> InitScript(Libreria& lib, CallArgs&) {
  lib.colore_testo() = kNero;
  return Variant();
}

Result<Variant> AzzeraArrayInterruzioni(Libreria& lib, CallArgs&) {
  lib.interruzioni().clear();
  return Variant();
}

// Every draw of the archive starts active; functions that honour the flags skip inactive ones.
Result<Variant> InitArrayFlagEstrazioniAttive(Libreria& lib, CallArgs&) {
  const TabellaEstrazioni* archivio = lib.impostazioni().archivio;
  lib.estrazioni_attive().assign(archivio ? static_cast<size_t>(archivio->EstrazioniArchivio()) + 1 : 0, true);
  return Variant();
}

Result<Variant> AzzeraFlagStopProcess(Libreria& lib, CallArgs&) {
  lib.AzzeraStop();
  return Variant();
}

Result<Variant> StopProcess(Libreria& lib, CallArgs&) {
  lib.StopProcess();
  return Variant();
}

Result<Variant> ScriptInterrotto(Libreria& lib, CallArgs&) { return Variant::Boolean(lib.Interrotto()); }

// A record with the same first two values is updated; any other is added at the end.
Result<Variant> ImpostaInterruzioni(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto primo, args.Long(0));
  VBS_TRY_ASSIGN(auto secondo, args.Long(1));
  VBS_TRY_ASSIGN(auto terzo, args.Integer(2));
  for (Interruzione& record : lib.interruzioni()) {
    if (record.primo == primo && record.secondo == secondo) {
      record.terzo = terzo;
      return Variant();
    }
  }
  lib.interruzioni().push_back({primo, secondo, terzo});
  return Variant();
}

// AvanzamentoElab Valore, Massimo or AvanzamentoElab Inizio, Fine, Valore.
Result<Variant> AvanzamentoElab(Libreria& lib, CallArgs& args) {
  double inizio = 0;
  double fine = 0;
  double valore = 0;
  if (args.Has(2)) {
    VBS_TRY_ASSIGN(auto a, args.Double(0));
    VBS_TRY_ASSIGN(auto b, args.Double(1));
    VBS_TRY_ASSIGN(auto c, args.Double(2));
    inizio = a;
    fine = b;
    valore = c;
  } else {
    VBS_TRY_ASSIGN(auto a, args.Double(0));
    VBS_TRY_ASSIGN(auto b, args.Double(1));
    valore = a;
    fine = b;
  }
  const double ampiezza = fine - inizio;
  const double percentuale = ampiezza > 0 ? (valore - inizio) * 100.0 / ampiezza : 100.0;
  lib.ospite().Avanzamento(std::clamp(percentuale, 0.0, 100.0));
  return Variant();
}

// The script runs on a thread of its own, so the window never waits for it: what is left of the
// old meaning is the moment to notice "Interrompi subito" in a loop that calls nothing else.
Result<Variant> DoEventsEx(Libreria& lib, CallArgs&) {
  VBS_TRY(lib.ControllaInterruzione());
  return Variant();
}

Result<Variant> VisualizzaFormProgress(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto visibile, args.Boolean(0, true));
  lib.ospite().MostraAvanzamento(visibile);
  return Variant();
}

Result<Variant> ApriPagina(Libreria& lib, const std::string& nome, std::string_view funzione) {
  const fs::path file = lib.impostazioni().cartella_output / nome;
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, file, funzione));
  auto aperta = lib.html().Apri(file, lib.impostazioni().colore_sfondo_html);
  if (!aperta) lib.ospite().Mostra(aperta.Errore());
  return Variant();
}

Result<Variant> AzzeraHtmlOutput(Libreria& lib, CallArgs&) {
  const std::string& nome = lib.nome_file_html();
  return ApriPagina(lib, nome.empty() ? std::string(kNomePaginaPredefinito) : nome, "AzzeraHtmlOutput");
}

// In a multi-output run every output has a page of its own: the run's name, its number, ".html".
Result<Variant> AzzeraHtmlOutputMulti(Libreria& lib, CallArgs&) {
  lib.html().Chiudi();
  fs::path base = lib.nome_file_html().empty() ? fs::path(kNomePaginaPredefinito) : fs::path(lib.nome_file_html());
  const std::string nome = fmt::format("{}_{}.html", base.stem().string(), lib.pagine().size() + 1);
  auto risultato = ApriPagina(lib, nome, "AzzeraHtmlOutputMulti");
  if (lib.html().Aperto()) lib.pagine().push_back(lib.html().Percorso());
  return risultato;
}

Result<Variant> ChiudiFileHtmlOutput(Libreria& lib, CallArgs&) {
  lib.html().Chiudi();
  return Variant();
}

// The text output keeps its colours as it is written: there is nothing left to colour.
Result<Variant> ColoraRtfOutput(Libreria&, CallArgs&) { return Variant(); }

// The end of one output of a multi-output run: its page is complete.
Result<Variant> ColoraRtfOutputMulti(Libreria& lib, CallArgs&) {
  lib.html().Chiudi();
  return Variant();
}

// The host hands over its window itself, before the object is added; from a script it does nothing.
Result<Variant> setFromScript(Libreria&, CallArgs&) { return Variant(); }

Result<Variant> SetNomeFileHtmlOut(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto nome, args.String(0));
  lib.SetNomeFileHtmlOut(text::Utf16ToUtf8(nome));
  return Variant();
}

Result<Variant> SetFlagSalvaPrevisioniInCorso(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto attivo, args.Boolean(0, true));
  lib.SetFlagSalvaPrevisioniInCorso(attivo);
  return Variant();
}

const Libreria::Funzione kEsecuzione[] = {
    {"InitScript", 0, 0, &InitScript, "(host) prepara la libreria per un'esecuzione",
     "niente (Sub): riporta il colore del testo al nero", "InitScript"},
    {"AzzeraArrayInterruzioni", 0, 0, &AzzeraArrayInterruzioni, "(host) svuota i record delle interruzioni",
     "niente (Sub)", "AzzeraArrayInterruzioni"},
    {"InitArrayFlagEstrazioniAttive", 0, 0, &InitArrayFlagEstrazioniAttive, "(host) rende attive tutte le estrazioni",
     "niente (Sub): tutte le estrazioni tornano attive", "InitArrayFlagEstrazioniAttive"},
    {"AzzeraFlagStopProcess", 0, 0, &AzzeraFlagStopProcess, "azzera il segnale di arresto", "niente (Sub)",
     "AzzeraFlagStopProcess"},
    {"AzzeraHtmlOutput", 0, 0, &AzzeraHtmlOutput, "(host) avvia la pagina HTML dell'esecuzione",
     "niente (Sub): la pagina HTML riparte vuota nella cartella di output", "AzzeraHtmlOutput"},
    {"AzzeraHtmlOutputMulti", 0, 0, &AzzeraHtmlOutputMulti, "avvia la pagina HTML dell'output successivo",
     "niente (Sub): apre la pagina Nome_N.html dell'output N",
     "AzzeraHtmlOutputMulti : Scrivi \"primo output\" : ColoraRtfOutputMulti"},
    {"ColoraRtfOutput", 0, 0, &ColoraRtfOutput, "(host) completa l'output di testo", "niente (Sub)", "ColoraRtfOutput"},
    {"ColoraRtfOutputMulti", 0, 0, &ColoraRtfOutputMulti, "completa l'output corrente di un'esecuzione con più output",
     "niente (Sub): chiude la pagina HTML dell'output corrente", "ColoraRtfOutputMulti"},
    {"ChiudiFileHtmlOutput", 0, 0, &ChiudiFileHtmlOutput, "(host) chiude la pagina HTML", "niente (Sub)",
     "ChiudiFileHtmlOutput"},
    {"StopProcess", 0, 0, &StopProcess, "chiede allo script e ai cicli lunghi della libreria di fermarsi",
     "niente (Sub): da qui ScriptInterrotto dà True",
     "StopProcess : Scrivi ScriptInterrotto() : AzzeraFlagStopProcess"},
    {"ScriptInterrotto", 0, 0, &ScriptInterrotto,
     "True dopo che è stato chiesto l'arresto: i cicli lunghi lo controllano e terminano",
     "Boolean: True se è stato chiesto l'arresto", "If ScriptInterrotto() Then Scrivi \"fermato\""},
    {"ImpostaInterruzioni", 3, 3, &ImpostaInterruzioni,
     "A, B, C: aggiunge il record (A, B, C), o imposta C del record (A, B)", "niente (Sub)",
     "ImpostaInterruzioni 1, 2, 3"},
    {"AvanzamentoElab", 2, 3, &AvanzamentoElab,
     "Valore, Massimo | Inizio, Fine, Valore: aggiorna la barra di avanzamento",
     "niente (Sub): la percentuale, tra 0 e 100, va alla barra", "AvanzamentoElab 1, 100, 50"},
    {"DoEventsEx", 0, 0, &DoEventsEx,
     "lascia rispondere la finestra; in un ciclo lungo, il punto in cui \"Interrompi subito\" lo ferma",
     "niente (Sub); errore se l'utente ha chiesto di interrompere subito", "DoEventsEx"},
    {"VisualizzaFormProgress", 0, 1, &VisualizzaFormProgress,
     "[Visibile = True]: mostra o nasconde la barra di avanzamento", "niente (Sub)", "VisualizzaFormProgress True"},
    {"setFromScript", 0, 1, &setFromScript, "(host) affida alla libreria la finestra dello script",
     "niente (Sub): da uno script non fa nulla", "setFromScript"},
    {"SetNomeFileHtmlOut", 1, 1, &SetNomeFileHtmlOut, "Nome: il nome del file della pagina HTML dell'esecuzione",
     "niente (Sub)", "SetNomeFileHtmlOut \"ritardi.htm\""},
    {"SetFlagSalvaPrevisioniInCorso", 0, 1, &SetFlagSalvaPrevisioniInCorso,
     "[Attivo = True]: se l'esecuzione salva le previsioni", "niente (Sub)", "SetFlagSalvaPrevisioniInCorso False"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniEsecuzione() { return kEsecuzione; }

}  // namespace lottolab::script
