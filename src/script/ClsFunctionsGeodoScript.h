#pragma once

// The library object: the one object through which a user's script reaches the archive, the
// statistics and the output. The host adds it to the engine with its members as global names, so
// scripts call `Estratto(...)` or `Scrivi(...)` with no prefix. A new one is made for every run and
// holds that run's state.
//
// The members are a table of rows, one per public name, gathered from one file per family:
//
//   {"Estratto", 3, 3, &Estratto, "IdEstr, Ruota, Posizione: the number drawn there, 0 for TU_"},
//
// The text after the name describes the arguments and the result; the reference page and the
// editor's call tips are generated from it. Every function's failure is caught here, shown titled
// "ClsFunctionsGeodoScript." and the function's name, and the script goes on; only a refusal of the
// run's file rules (AccessoFile.h, error 70) and an interruption stop it, as script errors.

#include <array>
#include <atomic>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <typeindex>
#include <unordered_map>
#include <vector>

#include "AccessoFile.h"
#include "ArchiviGiochi.h"
#include "InterfacciaScript.h"
#include "OutputHtml.h"
#include "archive/TabellaEstrazioni.h"
#include "vbscript/value/CallArgs.h"
#include "vbscript/value/Object.h"

namespace vbs {
class Interpreter;
}

namespace lottolab::script {

struct ImpostazioniLibreria {
  const TabellaEstrazioni* archivio = nullptr;  // null when no archive is loaded
  FileDeiGiochi archivi_giochi;                 // by Gioco: read at the first call that needs each
  std::filesystem::path cartella_base;          // holds Script/ and Script/Funzioni/
  std::filesystem::path cartella_output;        // where the run's HTML pages go: scriptOutput/ of the base
  std::filesystem::path cartella_dati_app;      // what GetDirectoryAppData gives
  std::string colore_sfondo_html = "#FFFFFF";
  Modalita modalita = Modalita::Normale;
  std::vector<std::filesystem::path> sola_lettura;  // lottolab.ini and the archives
  std::filesystem::path file_agenda;                // the agenda of real bets; empty when the host has none
  // What AggiornaArchivio updates: the configured Lotto archive (empty when the host has none) and
  // where the operators publish the results of the Lotto and, by Gioco, of the other games.
  std::filesystem::path file_archivio;
  std::string indirizzo_risultati;
  std::array<std::string, 5> indirizzi_giochi;
};

// One record of ImpostaInterruzioni.
struct Interruzione {
  int32_t primo = 0;
  int32_t secondo = 0;
  int16_t terzo = 0;
};

class ClsFunctionsGeodoScript final : public vbs::Object {
 public:
  using Chiamata = vbs::Result<vbs::Variant> (*)(ClsFunctionsGeodoScript& libreria, vbs::CallArgs& args);
  struct Funzione {
    std::string_view nome;
    uint8_t min_args;
    uint8_t max_args;
    Chiamata chiamata;
    std::string_view descrizione;       // "arguments: meaning", or only the meaning for a name without any
    std::string_view restituisce = {};  // what the call gives back, for the reference
    std::string_view esempio = {};      // one line of a script that calls it
  };

  // The rows of one family file, under the title the reference gives them.
  struct Famiglia {
    std::string_view titolo;
    std::span<const Funzione> funzioni;
  };

  // The whole-number form of a function that scripts call in their innermost loops (see
  // vbs::Object::WholeNumberForm).
  struct FormaIntera {
    std::string_view nome;
    WholeNumberCall forma;
  };

  ClsFunctionsGeodoScript(InterfacciaScript& ospite, const vbs::Locale& locale, ImpostazioniLibreria impostazioni);
  ~ClsFunctionsGeodoScript() override;

  // The whole table, every family together.
  static std::span<const Funzione> Funzioni();
  // The same rows, family by family.
  static std::span<const Famiglia> Famiglie();

  std::u16string ClassName() const override { return u"ClsFunctionsGeodoScript"; }
  vbs::DispId FindMember(std::string_view name) override;
  const void* MemberLayout() const override { return Funzioni().data(); }
  vbs::Result<vbs::Variant> Invoke(vbs::DispId member, vbs::InvokeKind kind, std::span<vbs::Variant> args) override;
  WholeNumberCall WholeNumberForm(vbs::DispId member) override;

  // ---- What the host sets before the run ----
  void SetNomeFileHtmlOut(std::string nome) { m_nome_file_html = std::move(nome); }
  void SetFlagSalvaPrevisioniInCorso(bool attivo) { m_salva_previsioni = attivo; }
  // From any thread: what the stop button does. The script sees it through ScriptInterrotto.
  void StopProcess() { m_stop.store(true, std::memory_order_relaxed); }
  // The engine the library runs in, whose interruption long loops of the library watch.
  void SetMotore(vbs::Interpreter* motore) { m_motore = motore; }
  // The engine, for the functions that run code in it (Includi, CreateObjectX); null before SetMotore.
  vbs::Interpreter* motore() const { return m_motore; }

  // ---- The run's state, for the families ----
  InterfacciaScript& ospite() { return m_ospite; }
  const vbs::Locale& locale() const { return m_locale; }
  const ImpostazioniLibreria& impostazioni() const { return m_impostazioni; }
  // What the run's scripts may do with files; the host gives the same rules to the engine.
  const std::shared_ptr<const AccessoFile>& accesso() const { return m_accesso; }
  // Asks the run's rules; a refusal is the error the function returns.
  [[nodiscard]] vbs::Status Consenti(vbs::FileAccess accesso, const std::filesystem::path& percorso,
                                     std::string_view funzione) const {
    return m_accesso->Check(accesso, percorso, funzione);
  }
  // Error kAborted once the user interrupted the run or its time-out passed; loops of the library
  // that may run long ask it every few thousand steps, so that "Interrompi subito" ends them too.
  [[nodiscard]] vbs::Status ControllaInterruzione() const;
  // The archive; error 5 with a clear description when none is loaded. Inline: nearly every
  // function of the library asks for it at every call.
  vbs::Result<const TabellaEstrazioni*> Archivio() const {
    if (m_impostazioni.archivio && !m_impostazioni.archivio->Vuota()) [[likely]]
      return m_impostazioni.archivio;
    return ArchivioMancante();
  }

  // The Lotto archive of the rest of the run, in place of the configured one; every draw active.
  void SostituisciArchivio(std::shared_ptr<const TabellaEstrazioni> tabella);

  bool Interrotto() const { return m_stop.load(std::memory_order_relaxed); }
  void AzzeraStop() { m_stop.store(false, std::memory_order_relaxed); }
  std::vector<Interruzione>& interruzioni() { return m_interruzioni; }
  std::vector<bool>& estrazioni_attive() { return m_estrazioni_attive; }

  const std::string& nome_file_html() const { return m_nome_file_html; }
  bool salva_previsioni() const { return m_salva_previsioni; }
  OutputHtml& html() { return m_html; }
  // The HTML pages of a multi-output run, in the order they were written.
  std::vector<std::filesystem::path>& pagine() { return m_pagine; }
  // The text colour that ColoreTesto set for the next output.
  int16_t& colore_testo() { return m_colore_testo; }

  // Text output: to the host and, when the page is open, to the HTML page.
  void Scrivi(std::string testo, int16_t colore, bool grassetto);

  // The state a family keeps for the run (files it opened, a table being built, a development in
  // progress), made empty on first use and dropped with the object. Each family declares its own
  // type in its own file.
  template <typename T>
  T& Stato() {
    std::shared_ptr<void>& stato = m_stati[std::type_index(typeid(T))];
    if (!stato) stato = std::make_shared<T>();
    return *static_cast<T*>(stato.get());
  }

 private:
  [[gnu::noinline]] static vbs::ScriptError ArchivioMancante();
  // The error of a function, shown to the user as a critical notice; the call then gives Empty.
  [[gnu::noinline]] vbs::Result<vbs::Variant> Avvisa(std::string_view funzione, vbs::Failure errore);

  // The table, kept at hand: every call of a script starts here.
  const std::span<const Funzione> m_funzioni = Funzioni();
  InterfacciaScript& m_ospite;
  const vbs::Locale& m_locale;
  ImpostazioniLibreria m_impostazioni;
  std::shared_ptr<const TabellaEstrazioni> m_archivio_aperto;  // what ApriFileBaseDati read
  std::shared_ptr<const AccessoFile> m_accesso;
  vbs::Interpreter* m_motore = nullptr;
  std::atomic<bool> m_stop{false};
  std::vector<Interruzione> m_interruzioni;
  std::vector<bool> m_estrazioni_attive;
  std::string m_nome_file_html;
  bool m_salva_previsioni = false;
  OutputHtml m_html;
  std::vector<std::filesystem::path> m_pagine;
  int16_t m_colore_testo = kNero;
  std::unordered_map<std::type_index, std::shared_ptr<void>> m_stati;
};

// The families of the table, one file each.
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniCostanti();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniEsecuzione();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniMotore();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniOutput();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniArchivio();
std::span<const ClsFunctionsGeodoScript::FormaIntera> FormeIntereArchivio();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniAritmetica();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniConversioni();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniInfoEstrazioni();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniRitardi();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniStatistiche();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniElenchi();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniRitardiRelativi();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniLunghette();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniFormazioni();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniTabelle();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniAnalitico();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniTesto();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniCombinazioni();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniArray();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniFile();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniDialoghi();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniEstrazioniAttive();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniCollezioni();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniCiclometria();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniFigureUtente();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniGiochiArchivio();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniGiochiStatistiche();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniGiochiElenchi();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniGiochiEstrazioniAttive();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniGiochiFile();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniBaseDati();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniBaseDatiGiochi();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniAggiornaArchivio();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniSistemi();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniGiocate();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniGiocateGiochi();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniGiocateAgenda();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniEsiti();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniEsitiGiochi();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniPic();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniPicCerchio();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniDisegnoTavola();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniGrafici();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniPremi();
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniXls();
// The transfers (FunzioniRete.cpp), the one family that reaches the network.
std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniRete();

}  // namespace lottolab::script
