#pragma once

// Tables of draws for the statistics tests: small ones written by hand, larger ones drawn at random
// with a fixed seed, and the real archive read once for the whole test program.

#include <algorithm>
#include <array>
#include <initializer_list>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

#include "DatiReali.h"
#include "archive/ImportaRisultati.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::test {

// Numbers that the hand-written tests never play, held by every wheel not written out.
inline constexpr std::array<int, kNumeriPerRuota> kRiempitivo{81, 82, 83, 84, 85};

struct NumeriRuota {
  int ruota;
  std::array<int, kNumeriPerRuota> numeri;
};

// Builds a table draw by draw. Every wheel holds kRiempitivo unless written out; Nazionale is drawn
// only from the draw chosen with NazionaleDa.
class Archivio {
 public:
  // Nazionale is drawn from draw `id` on (the first draw by default).
  Archivio& NazionaleDa(int id) {
    m_nazionale_da = id;
    return *this;
  }

  Archivio& Estrazione(std::initializer_list<NumeriRuota> ruote = {}) {
    lottolab::Estrazione estrazione;
    estrazione.id_estr = static_cast<int>(m_estrazioni.size()) + 1;
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      if (ruota == NZ && estrazione.id_estr < m_nazionale_da) continue;
      for (int p = 1; p <= kNumeriPerRuota; ++p) estrazione.ImpostaNumero(ruota, p, kRiempitivo[p - 1]);
    }
    for (const NumeriRuota& scritta : ruote)
      for (int p = 1; p <= kNumeriPerRuota; ++p) estrazione.ImpostaNumero(scritta.ruota, p, scritta.numeri[p - 1]);
    m_estrazioni.push_back(estrazione);
    return *this;
  }

  // A record that holds no draw: every number 0.
  Archivio& Vuota() {
    lottolab::Estrazione estrazione;
    estrazione.id_estr = static_cast<int>(m_estrazioni.size()) + 1;
    m_estrazioni.push_back(estrazione);
    return *this;
  }

  TabellaEstrazioni Tabella() const { return TabellaEstrazioni(m_estrazioni); }

 private:
  std::vector<lottolab::Estrazione> m_estrazioni;
  int m_nazionale_da = 1;
};

// `quante` random draws whose numbers come from 1..`massimo`, so that a small `massimo` makes wins
// of every sorte frequent. Nazionale starts at draw `quante` / 2; about one draw in twenty misses a
// wheel other than Bari, and draw 5 is a record that holds no draw. In draw 6 Cagliari lacks its first
// number only: not drawn, by the archive's rule, yet holding numbers that can win.
inline TabellaEstrazioni ArchivioCasuale(int quante, int massimo, unsigned seme) {
  std::mt19937 generatore(seme);
  std::vector<int> urna(static_cast<size_t>(massimo));
  std::iota(urna.begin(), urna.end(), 1);
  std::vector<lottolab::Estrazione> estrazioni(static_cast<size_t>(quante));
  for (int id = 1; id <= quante; ++id) {
    lottolab::Estrazione& estrazione = estrazioni[static_cast<size_t>(id - 1)];
    estrazione.id_estr = id;
    if (id == 5) continue;
    const int saltata = std::uniform_int_distribution<int>(2, 2 * kNumeroRuote * 10)(generatore);
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      if (ruota == saltata || (ruota == NZ && id < quante / 2)) continue;
      std::shuffle(urna.begin(), urna.end(), generatore);
      for (int p = 1; p <= kNumeriPerRuota; ++p) estrazione.ImpostaNumero(ruota, p, urna[static_cast<size_t>(p - 1)]);
    }
    if (id == 6) estrazione.ImpostaNumero(CA, 1, 0);
  }
  return TabellaEstrazioni(std::move(estrazioni));
}

// The real draws of 1939 onwards, read once; empty when the data folder is absent.
inline const TabellaEstrazioni& ArchivioReale() {
  static const TabellaEstrazioni archivio = [] {
    if (!DatiRealiPresenti()) return TabellaEstrazioni();
    auto lette = LeggiNuoveEstrazioniDaFile(TabellaEstrazioni(), CartellaDatiReali() / "lotto.txt");
    EXPECT_TRUE(lette.Riuscito()) << (lette.Riuscito() ? "" : lette.Errore().testo);
    return lette.Riuscito() ? TabellaEstrazioni(std::move(lette).Valore()) : TabellaEstrazioni();
  }();
  return archivio;
}

}  // namespace lottolab::test
