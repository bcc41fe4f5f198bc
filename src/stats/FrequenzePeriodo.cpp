#include "stats/FrequenzePeriodo.h"

#include <algorithm>
#include <numeric>

namespace lottolab::stats {

namespace {

constexpr int kPassoControllo = 512;

// Which period draw `id` belongs to, as a key that grows with the draws; -1 when it belongs to none.
int ChiavePeriodo(const EstrazioniPerAnalisi& estrazioni, const RichiestaFrequenze& richiesta, int id) {
  const GruppoData& data = estrazioni.date[static_cast<size_t>(id - 1)];
  switch (richiesta.tipo) {
    case TipoPeriodo::Anno: return data.anno;
    case TipoPeriodo::MeseDellAnno: return data.anno == richiesta.anno ? data.mese : -1;
    case TipoPeriodo::Blocco: {
      const int blocco = std::max(1, richiesta.estrazioni_per_blocco);
      // Counted back from the last draw: the last block is whole.
      return (id - 1 + (blocco - estrazioni.Estrazioni() % blocco) % blocco) / blocco;
    }
  }
  return -1;
}

}  // namespace

int FrequenzePeriodi::Totale(int numero) const {
  const auto inizio = frequenze.begin() + static_cast<std::ptrdiff_t>(static_cast<size_t>(numero - 1) * periodi.size());
  return std::accumulate(inizio, inizio + static_cast<std::ptrdiff_t>(periodi.size()), 0);
}

double FrequenzePeriodi::Attesa(size_t periodo) const {
  return massimo > 0 ? static_cast<double>(periodi[periodo].ruote_estratte) * numeri_per_ruota / massimo : 0.0;
}

double FrequenzePeriodi::AttesaTotale() const {
  double totale = 0;
  for (size_t p = 0; p < periodi.size(); ++p) totale += Attesa(p);
  return totale;
}

std::optional<FrequenzePeriodi> CalcolaFrequenzePeriodi(const EstrazioniPerAnalisi& estrazioni,
                                                        const RichiestaFrequenze& richiesta,
                                                        const ControlloCalcolo& controllo) {
  const std::vector<int> ruote = RuoteValide(estrazioni, richiesta.ruote);
  FrequenzePeriodi risultato;
  risultato.massimo = estrazioni.massimo;
  risultato.numeri_per_ruota = estrazioni.numeri_per_ruota;
  // First the periods, then one pass that counts into them.
  std::vector<int> periodo_di(static_cast<size_t>(estrazioni.Estrazioni()) + 1, -1);
  int chiave_corrente = -1;
  for (int id = 1; id <= estrazioni.Estrazioni(); ++id) {
    const int chiave = ChiavePeriodo(estrazioni, richiesta, id);
    if (chiave < 0) continue;
    if (risultato.periodi.empty() || chiave != chiave_corrente) {
      const GruppoData& data = estrazioni.date[static_cast<size_t>(id - 1)];
      risultato.periodi.push_back(
          {id, id, data.anno, richiesta.tipo == TipoPeriodo::MeseDellAnno ? static_cast<int>(data.mese) : 0, 0});
      chiave_corrente = chiave;
    }
    risultato.periodi.back().ultimo = id;
    periodo_di[static_cast<size_t>(id)] = static_cast<int>(risultato.periodi.size()) - 1;
  }
  const size_t periodi = risultato.periodi.size();
  risultato.frequenze.assign(static_cast<size_t>(estrazioni.massimo) * periodi, 0);
  for (int id = 1; id <= estrazioni.Estrazioni(); ++id) {
    if (id % kPassoControllo == 0) {
      if (controllo.annullato && controllo.annullato()) return std::nullopt;
      if (controllo.progresso) controllo.progresso(id * 100 / estrazioni.Estrazioni());
    }
    const int periodo = periodo_di[static_cast<size_t>(id)];
    if (periodo < 0) continue;
    for (int ruota : ruote) {
      if (!estrazioni.RuotaEstratta(id, ruota)) continue;
      ++risultato.periodi[static_cast<size_t>(periodo)].ruote_estratte;
      for (uint8_t numero : estrazioni.Numeri(id, ruota))
        if (numero >= 1 && numero <= estrazioni.massimo)
          ++risultato.frequenze[static_cast<size_t>(numero - 1) * periodi + static_cast<size_t>(periodo)];
    }
  }
  return risultato;
}

}  // namespace lottolab::stats
