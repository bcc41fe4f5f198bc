#pragma once

// How often each number came out in each period of the archive: each year, each month of one year,
// or each run of N consecutive draws, with the frequency a fair draw would give in that period.

#include <optional>
#include <vector>

#include "stats/EstrazioniPerAnalisi.h"
#include "stats/TerniRitardatari.h"

namespace lottolab::stats {

enum class TipoPeriodo { Anno, MeseDellAnno, Blocco };

struct RichiestaFrequenze {
  std::vector<int> ruote;  // none: every wheel
  TipoPeriodo tipo = TipoPeriodo::Anno;
  int anno = 0;  // the year whose months are counted
  int estrazioni_per_blocco = 100;
};

struct PeriodoFrequenze {
  int primo = 0;  // the first and last draw of the period
  int ultimo = 0;
  int anno = 0;
  int mese = 0;            // 1..12 for a month, 0 otherwise
  int ruote_estratte = 0;  // the wheels drawn, summed over the period's draws
};

struct FrequenzePeriodi {
  int massimo = 0;
  int numeri_per_ruota = 0;
  std::vector<PeriodoFrequenze> periodi;
  std::vector<int> frequenze;  // number n, period p: element (n - 1) * periodi.size() + p

  int Frequenza(int numero, size_t periodo) const {
    return frequenze[static_cast<size_t>(numero - 1) * periodi.size() + periodo];
  }
  int Totale(int numero) const;
  // What a fair draw gives each number: its share of the numbers drawn in the period.
  double Attesa(size_t periodo) const;
  double AttesaTotale() const;
};

// The periods that hold at least one draw, oldest first. The runs of N draws are counted back from
// the last draw, so that the most recent run is whole and only the oldest may be shorter. A block
// of 0 or less counts as 1. Nothing when stopped.
std::optional<FrequenzePeriodi> CalcolaFrequenzePeriodi(const EstrazioniPerAnalisi& estrazioni,
                                                        const RichiestaFrequenze& richiesta,
                                                        const ControlloCalcolo& controllo = {});

}  // namespace lottolab::stats
