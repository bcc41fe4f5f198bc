#pragma once

// What the script benchmarks share: the real draws and a run of a script with a fresh engine and
// library object, as every run of a user's script has.

#include <benchmark/benchmark.h>

#include <string>
#include <string_view>

#include "ArchivioReale.h"
#include "script/EsecutoreScript.h"

namespace lottolab::script {

using bench::ArchivioReale;

// Runs the script once per iteration over the archive; what the last run wrote.
inline std::string EseguiOgniIterazione(benchmark::State& state, const TabellaEstrazioni& tab,
                                        std::u16string_view script) {
  class OspiteMuto final : public InterfacciaScript {
   public:
    void Scrivi(const TrattoTesto& tratto) override { testo += tratto.testo; }
    void Mostra(const Avviso& avviso) override { testo += avviso.testo; }
    void Messaggio(const std::string&) override {}
    void Avanzamento(double) override {}
    std::string testo;
  };
  OpzioniEsecuzione opzioni;
  opzioni.libreria.archivio = &tab;
  opzioni.libreria.cartella_output = std::filesystem::temp_directory_path();
  opzioni.nome_file_html = "lottolab-bench-script.htm";
  std::string scritto;
  for (auto _ : state) {
    OspiteMuto ospite;
    EsecutoreScript esecutore(ospite);
    if (esecutore.Esegui(script, opzioni).stato != EsitoEsecuzione::Stato::Completato)
      state.SkipWithError(ospite.testo.c_str());
    scritto = std::move(ospite.testo);
    benchmark::DoNotOptimize(scritto);
  }
  std::filesystem::remove(opzioni.libreria.cartella_output / opzioni.nome_file_html);
  return scritto;
}

}  // namespace lottolab::script
