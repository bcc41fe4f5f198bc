// What a script asks of the engine that runs it and of its window: code of another file added while
// it runs, an object that may not exist here, a line of text in the window's status band.

#include <fmt/format.h>

#include "Famiglia.h"
#include "IncludiFile.h"
#include "vbscript/compile/Compiler.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/syntax/Parser.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

Result<vbs::Interpreter*> Motore(const Libreria& lib, std::string_view funzione) {
  if (vbs::Interpreter* motore = lib.motore()) return motore;
  return ArgomentoNonValido(fmt::format("{}: questo ambiente non esegue script", funzione));
}

// The file is found as an include line finds it: a bare name in Script/Funzioni/ of the base folder.
// Its procedures and variables become the script's own, as if the file had been included.
Result<Variant> Includi(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto motore, Motore(lib, "Includi"));
  VBS_TRY_ASSIGN(auto nome, args.String(0));
  if (nome.empty()) return ArgomentoNonValido("Includi: manca il nome del file");
  const CartelleScript cartelle{lib.impostazioni().cartella_base, lib.impostazioni().cartella_dati_app};
  auto espanso = GestioneIncludiFile(u"includi \"" + nome + u"\"", cartelle, lib.accesso().get());
  if (!espanso) return vbs::MakeError(vbs::err::kFileNotFound, text::Utf8ToUtf16("Includi: " + espanso.Errore().testo));
  for (FileIncluso& incluso : espanso->inclusi) {
    const uint32_t sorgente = motore->sources().Add(incluso.percorso.string(), std::move(incluso.codice));
    vbs::ParseResult letto = vbs::ParseProgram(motore->sources(), sorgente);
    if (!letto.errors.empty()) return letto.errors.front();
    VBS_TRY_ASSIGN(auto programma, vbs::Compiler(*motore, nullptr).CompileProgram(letto.program));
    VBS_TRY(motore->RunProgram(motore->Keep(std::move(programma))));
  }
  return Variant::Boolean(true);
}

Result<Variant> CreateObjectX(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto motore, Motore(lib, "CreateObjectX"));
  VBS_TRY_ASSIGN(auto nome, args.String(0));
  auto oggetto = motore->CreateObject(nome);
  if (!oggetto) return Variant::Nothing();
  return Variant::Object(std::move(oggetto).value());
}

Result<Variant> TestoInBandaPassante(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto testo, args.String(0));
  lib.ospite().Messaggio(text::Utf16ToUtf8(testo));
  return Variant();
}

const Libreria::Funzione kMotore[] = {
    {"Includi", 1, 1, &Includi,
     "NomeFile: aggiunge all'esecuzione il codice del file, come una riga includi: un nome senza cartella si cerca "
     "in Script/Funzioni della cartella base; le sue Sub, Function e variabili diventano dello script. Un file che "
     "manca o che non si può leggere è l'errore 53, uno con errori di sintassi è quell'errore",
     "Boolean: True quando il codice è stato aggiunto",
     "If FileEsistente(\"Script/Funzioni/Mie.ls\") Then Includi \"Mie.ls\""},
    {"CreateObjectX", 1, 1, &CreateObjectX,
     "NomeClasse: come CreateObject, ma un oggetto che qui non esiste dà Nothing invece di un errore, così lo "
     "script può scegliere un'altra strada (If o Is Nothing Then ...)",
     "Object: l'oggetto, o Nothing", "Set d = CreateObjectX(\"Scripting.Dictionary\") : Scrivi d Is Nothing"},
    {"TestoInBandaPassante", 1, 1, &TestoInBandaPassante,
     "Testo: scrive il testo nella banda di stato della finestra dello script (dove scrive Messaggio), al posto del "
     "precedente; dalla riga di comando va nei messaggi",
     "niente (Sub)", "TestoInBandaPassante \"Analisi della ruota di Bari...\""},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniMotore() { return kMotore; }

}  // namespace lottolab::script
