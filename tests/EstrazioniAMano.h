#pragma once

// Small archives written by hand for the tests of the windows: one Aggiungi a draw, naming only the
// wheels that matter; every other wheel holds 81..85.

#include <algorithm>
#include <array>
#include <initializer_list>
#include <utility>
#include <vector>

#include "archive/TabellaEstrazioni.h"

namespace lottolab::test {

struct NumeriRuota {
  int ruota;
  std::array<int, kNumeriPerRuota> numeri;
};

class EstrazioniAMano {
 public:
  // Nazionale is drawn from draw `nazionale_dal` on; draw k is dated k * `giorni` May 2005, with
  // annual index k, or left undated when `giorni` is 0.
  EstrazioniAMano(int nazionale_dal, int giorni) : m_nazionale_dal(nazionale_dal), m_giorni(giorni) {}

  // `assenti`: the wheels not drawn this time.
  EstrazioniAMano& Aggiungi(std::initializer_list<NumeriRuota> scritte, std::initializer_list<int> assenti = {}) {
    Estrazione estrazione;
    estrazione.id_estr = static_cast<int>(m_estrazioni.size()) + 1;
    if (m_giorni > 0)
      estrazione.data = GruppoData{static_cast<int16_t>(estrazione.id_estr),
                                   static_cast<int16_t>(estrazione.id_estr * m_giorni), 5, 2005};
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      if (ruota == NZ && estrazione.id_estr < m_nazionale_dal) continue;
      if (std::find(assenti.begin(), assenti.end(), ruota) != assenti.end()) continue;
      for (int p = 1; p <= kNumeriPerRuota; ++p) estrazione.ImpostaNumero(ruota, p, 80 + p);
    }
    for (const NumeriRuota& scritta : scritte)
      for (int p = 1; p <= kNumeriPerRuota; ++p) estrazione.ImpostaNumero(scritta.ruota, p, scritta.numeri[p - 1]);
    m_estrazioni.push_back(estrazione);
    return *this;
  }

  TabellaEstrazioni Tabella() const { return TabellaEstrazioni(m_estrazioni); }

 private:
  int m_nazionale_dal;
  int m_giorni;
  std::vector<Estrazione> m_estrazioni;
};

}  // namespace lottolab::test
