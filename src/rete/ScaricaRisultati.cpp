#include "ScaricaRisultati.h"

namespace lottolab::rete {

namespace fs = std::filesystem;

Esito<fs::path> ScaricaRisultati(const std::string& indirizzo, const fs::path& destinazione,
                                 AvanzamentoTrasferimento avanzamento) {
  OpzioniTrasferimento opzioni;
  opzioni.tempo_massimo = std::chrono::seconds(300);
  opzioni.protocolli = "http,https,ftp,ftps,file";
  opzioni.avanzamento = std::move(avanzamento);
  auto scaricato = Scarica(indirizzo, destinazione, opzioni);
  if (!scaricato) return scaricato.Errore();
  return destinazione;
}

}  // namespace lottolab::rete
