#include "RitardiAmbi.h"

#include <array>
#include <cassert>

namespace lottolab::stats {

namespace {

// Marks a delay not found yet; every delay found is 0 or more.
constexpr int kNonTrovato = -1;

// The delays still to find on each wheel and the wheels that still have some.
struct Ricerca {
  std::array<int, kTutteLeRuote + 1> mancanti{};
  int ruote_aperte = kTutteLeRuote;

  Ricerca() { mancanti.fill(kNumeroAmbi); }

  // Records `ritardo` for an ambo unless a later draw already gave it one.
  void Trova(int* ritardi_ruota, int ruota, int indice, int ritardo) {
    int& trovato = ritardi_ruota[indice];
    if (trovato != kNonTrovato) return;
    trovato = ritardo;
    if (--mancanti[ruota] == 0) --ruote_aperte;
  }
};

}  // namespace

int RitardiAmbi::Ritardo(int ruota, int a, int b) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote);
  assert(a >= 1 && a <= kMassimoNumero && b >= 1 && b <= kMassimoNumero && a != b);
  return m_ritardi[(ruota - 1) * kNumeroAmbi + IndiceAmbo(a, b)];
}

RitardiAmbi CalcolaRitardiAmbi(const TabellaEstrazioni& tab, int inizio, int fine) {
  assert(inizio >= 1 && fine <= tab.EstrazioniArchivio());
  RitardiAmbi risultato;
  std::vector<int>& ritardi = risultato.m_ritardi;
  ritardi.assign(static_cast<size_t>(kTutteLeRuote) * kNumeroAmbi, kNonTrovato);
  int* su_tutte = &ritardi[(kTutteLeRuote - 1) * kNumeroAmbi];

  // Counted draws after the one being examined, wheel by wheel.
  std::array<int, kTutteLeRuote + 1> contate{};
  Ricerca ricerca;
  for (int id = fine; id >= inizio && ricerca.ruote_aperte > 0; --id) {
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      const uint8_t* numeri = &estrazione.numeri[(ruota - 1) * kNumeriPerRuota];
      // An ambo found on a wheel is found on all wheels together by the same draw, so while any
      // wheel is open the wheels together are too, and a complete wheel has nothing left to give.
      if (ricerca.mancanti[ruota] > 0) {
        int* sulla_ruota = &ritardi[(ruota - 1) * kNumeroAmbi];
        for (int i = 0; i < kNumeriPerRuota; ++i) {
          const int a = numeri[i];
          if (a == 0 || a > kMassimoNumero) continue;
          for (int j = i + 1; j < kNumeriPerRuota; ++j) {
            const int b = numeri[j];
            if (b == 0 || b > kMassimoNumero || b == a) continue;
            const int indice = IndiceAmbo(a, b);
            ricerca.Trova(sulla_ruota, ruota, indice, contate[ruota]);
            ricerca.Trova(su_tutte, kTutteLeRuote, indice, contate[kTutteLeRuote]);
          }
        }
      }
      if (numeri[0] != 0) ++contate[ruota];
    }
    ++contate[kTutteLeRuote];
  }

  // An ambo that never won waited through every counted draw of the range.
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    int* sulla_ruota = &ritardi[(ruota - 1) * kNumeroAmbi];
    for (int indice = 0; indice < kNumeroAmbi; ++indice)
      if (sulla_ruota[indice] == kNonTrovato) sulla_ruota[indice] = contate[ruota];
  }
  return risultato;
}

}  // namespace lottolab::stats
