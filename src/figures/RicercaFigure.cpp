#include "RicercaFigure.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cassert>

#include "Condizione.h"
#include "LimitiStrutture.h"

namespace lottolab::figures {

namespace {

Esito<std::vector<Condizione>> CompilaCondizioni(const Struttura& struttura) {
  if (auto motivo = LimiteSuperato(struttura)) return AvvisoEsclamativo("La struttura " + *motivo + ".");
  std::vector<Condizione> condizioni;
  for (size_t k = 0; k < struttura.condizioni.size(); ++k) {
    auto compilata = Condizione::Compila(struttura.condizioni[k], struttura.vertici);
    if (!compilata)
      return AvvisoEsclamativo(fmt::format("{} (condizione {}, colonna {}: {})", compilata.Errore().messaggio, k + 1,
                                           compilata.Errore().colonna, struttura.condizioni[k]));
    condizioni.push_back(std::move(compilata).Valore());
  }
  size_t costo = 0;
  for (const Condizione& condizione : condizioni) costo += condizione.Costo();
  if (costo > kMassimoCostoCondizioni)
    return AvvisoEsclamativo(
        fmt::format("Le condizioni chiedono troppo lavoro per ogni posizione della figura ({} passi, al massimo {}): "
                    "semplificarle o ridurne il numero.",
                    costo, kMassimoCostoCondizioni));
  return condizioni;
}

// Which columns of the table the chosen wheels allow.
std::array<bool, kColonneTabella + 1> ColonneAmmesse(const std::vector<int>& ruote) {
  std::array<bool, kColonneTabella + 1> ammesse{};
  for (int colonna = 1; colonna <= kColonneTabella; ++colonna)
    ammesse[colonna] =
        ruote.empty() || std::find(ruote.begin(), ruote.end(), RuotaDellaColonna(colonna)) != ruote.end();
  return ammesse;
}

// Puts the shape's anchor on (riga, colonna); false when a vertex falls on a column not allowed or on
// an empty cell. The rows are known to lie inside the table.
bool Piazza(const TabellaEstrazioni& tab, const Forma& forma, int riga, int colonna,
            const std::array<bool, kColonneTabella + 1>& ammesse, FiguraPiazzata& figura) {
  for (size_t k = 0; k < forma.punti.size(); ++k) {
    const Forma::Punto& punto = forma.punti[k];
    const int c = colonna + punto.colonne;
    if (!ammesse[c]) return false;
    VerticePiazzato& vertice = figura.vertici[k];
    vertice.id_estr = riga + punto.righe;
    vertice.ruota = RuotaDellaColonna(c);
    vertice.posizione = PosizioneDellaColonna(c);
    vertice.numero = tab[vertice.id_estr].Numero(vertice.ruota, vertice.posizione);
    if (vertice.numero == 0) return false;
  }
  return true;
}

}  // namespace

FiguraPiazzata FigureTrovate::Figura(const TabellaEstrazioni& tab, const FiguraTrovata& trovata) const {
  const Forma& forma = forme[static_cast<size_t>(trovata.forma)];
  FiguraPiazzata figura;
  figura.vertici.resize(forma.punti.size());
  for (size_t k = 0; k < forma.punti.size(); ++k) figura.vertici[k].chiusura = forma.punti[k].chiusura;
  [[maybe_unused]] const bool piazzata =
      Piazza(tab, forma, trovata.estrazione - forma.riga_massima, trovata.colonna, ColonneAmmesse({}), figura);
  assert(piazzata);
  return figura;
}

Esito<FigureTrovate> CercaFigura(const TabellaEstrazioni& tab, const Struttura& struttura,
                                 const OpzioniRicerca& opzioni) {
  auto condizioni = CompilaCondizioni(struttura);
  if (!condizioni) return condizioni.Errore();
  FigureTrovate trovate;
  trovate.forme = FormeDaCercare(struttura);
  const std::vector<Forma>& forme = trovate.forme;
  const int fine = opzioni.fine == 0 ? tab.EstrazioniArchivio() : std::min(opzioni.fine, tab.EstrazioniArchivio());
  const int inizio = std::max(opzioni.inizio, 1);
  const auto ammesse = ColonneAmmesse(opzioni.ruote);

  std::vector<FiguraPiazzata> figure;
  for (const Forma& forma : forme) {
    FiguraPiazzata figura;
    figura.vertici.resize(forma.punti.size());
    for (size_t k = 0; k < forma.punti.size(); ++k) figura.vertici[k].chiusura = forma.punti[k].chiusura;
    figure.push_back(std::move(figura));
  }
  constexpr int kEstrazioniTraAvvisi = 256;
  for (int ultima = inizio; ultima <= fine; ++ultima) {
    if (opzioni.avanzamento && (ultima - inizio) % kEstrazioniTraAvvisi == 0 &&
        !opzioni.avanzamento(static_cast<double>(ultima - inizio) / (fine - inizio + 1)))
      break;
    for (size_t f = 0; f < forme.size(); ++f) {
      const Forma& forma = forme[f];
      const int riga = ultima - forma.riga_massima;
      if (riga + forma.riga_minima < 1) continue;
      for (int colonna = 1 - forma.colonna_minima; colonna <= kColonneTabella - forma.colonna_massima; ++colonna) {
        FiguraPiazzata& figura = figure[f];
        if (!Piazza(tab, forma, riga, colonna, ammesse, figura)) continue;
        const bool valgono = std::all_of(condizioni->begin(), condizioni->end(),
                                         [&](const Condizione& condizione) { return condizione.Vale(figura); });
        if (valgono) trovate.elenco.push_back({ultima, static_cast<int>(f), colonna});
      }
    }
  }
  if (opzioni.avanzamento) opzioni.avanzamento(1.0);
  return trovate;
}

}  // namespace lottolab::figures
