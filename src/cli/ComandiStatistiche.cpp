#include <algorithm>

#include <fmt/format.h>
#include <fmt/ostream.h>

#include "Argomenti.h"
#include "Comandi.h"
#include "stats/Ritardi.h"
#include "stats/Tabellone.h"

namespace lottolab::cli {

int ComandoStatistica(Contesto& contesto, const Parole& parole, Statistica statistica) {
  auto argomenti = SeparaArgomenti(parole, {"ruote", "sorte", "posizioni", "inizio", "fine"});
  if (!argomenti) return contesto.Fallisci(argomenti.Errore());
  const auto& opzioni = argomenti->opzioni;

  std::vector<int> numeri;
  for (const std::string& parola : argomenti->parole) {
    auto numero = LeggiNumero(parola);
    if (!numero) return contesto.Fallisci(numero.Errore());
    if (std::find(numeri.begin(), numeri.end(), *numero) != numeri.end())
      return contesto.Fallisci(AvvisoEsclamativo(fmt::format("numero ripetuto: {}", *numero)));
    numeri.push_back(*numero);
  }
  if (numeri.empty())
    return contesto.Fallisci(
        AvvisoEsclamativo("uso: lottolab ritardo|frequenza|storico [--ruote BA,VE|TT] [--sorte N] [--posizioni 1,3] "
                          "[--inizio X] [--fine X] N1 [N2 ...]"));

  auto ruote = LeggiRuote(opzioni.contains("ruote") ? opzioni.at("ruote") : "TT");
  if (!ruote) return contesto.Fallisci(ruote.Errore());
  // Without --sorte the numbers are played as a whole: two numbers as an ambo, three as a terno.
  auto sorte = opzioni.contains("sorte") ? LeggiSorte(opzioni.at("sorte"))
                                         : Esito<int>(std::min<int>(static_cast<int>(numeri.size()), 5));
  if (!sorte) return contesto.Fallisci(sorte.Errore());
  if (*sorte > static_cast<int>(numeri.size()))
    return contesto.Fallisci(AvvisoEsclamativo(
        fmt::format("la sorte {} richiede almeno {} numeri, ne sono stati dati {}", *sorte, *sorte, numeri.size())));
  auto posizioni = opzioni.contains("posizioni") ? LeggiPosizioni(opzioni.at("posizioni"))
                                                 : Esito<stats::Posizioni>(stats::kTuttePosizioni);
  if (!posizioni) return contesto.Fallisci(posizioni.Errore());

  auto tabella = contesto.CaricaTabellaNonVuota();
  if (!tabella) return contesto.Fallisci(tabella.Errore());
  auto intervallo = LeggiIntervallo(*tabella, *argomenti);
  if (!intervallo) return contesto.Fallisci(intervallo.Errore());

  auto calcola = statistica == Statistica::Ritardo     ? &stats::RitardoCombinazione
                 : statistica == Statistica::Frequenza ? &stats::FrequenzaCombinazione
                                                       : &stats::StoricoCombinazione;
  int valore = calcola(*tabella, *ruote, numeri, *sorte, intervallo->fine, *posizioni, intervallo->inizio);
  fmt::print(contesto.out, "{}\n", valore);
  return kUscitaRiuscita;
}

int ComandoTabellone(Contesto& contesto, const Parole& parole) {
  auto argomenti = SeparaArgomenti(parole, {"ruota", "inizio", "fine"});
  if (!argomenti) return contesto.Fallisci(argomenti.Errore());
  if (!argomenti->parole.empty())
    return contesto.Fallisci(AvvisoEsclamativo("uso: lottolab tabellone [--ruota VE] [--inizio X] [--fine X]"));

  std::vector<int> ruote;
  if (auto it = argomenti->opzioni.find("ruota"); it != argomenti->opzioni.end()) {
    auto ruota = LeggiRuota(it->second);
    if (!ruota) return contesto.Fallisci(ruota.Errore());
    ruote.push_back(*ruota);
  } else {
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) ruote.push_back(ruota);
  }

  auto tabella = contesto.CaricaTabellaNonVuota();
  if (!tabella) return contesto.Fallisci(tabella.Errore());
  auto intervallo = LeggiIntervallo(*tabella, *argomenti);
  if (!intervallo) return contesto.Fallisci(intervallo.Errore());

  auto tabellone = stats::CalcolaTabellone(*tabella, intervallo->inizio, intervallo->fine);
  fmt::print(contesto.out, "{:<5} {:>6} {:>9} {:>9} {:>9}\n", "ruota", "numero", "ritardo", "frequenza", "storico");
  for (int ruota : ruote) {
    for (int numero = 1; numero <= kMassimoNumero; ++numero) {
      const auto& dati = tabellone.Dati(ruota, numero);
      fmt::print(contesto.out, "{:<5} {:>6} {:>9} {:>9} {:>9}\n", SiglaRuota(ruota), numero, dati.ritardo,
                 dati.frequenza, dati.storico);
    }
  }
  return kUscitaRiuscita;
}

}  // namespace lottolab::cli
