#include "Combinazioni.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <numeric>

namespace lottolab::stats {

double Fattoriale(int n) { return Disposizioni(std::max(n, 0), std::max(n, 0)); }

// Each partial product is itself a count of combinations, so it stays a whole number and exact
// while it fits in the double's 53 bits. Once it is infinite it stays so: the loops stop there, so
// that a count of billions costs no more than one of hundreds.
double Combinazioni(int n, int k) {
  if (k < 0 || k > n) return 0;
  k = std::min(k, n - k);
  double conteggio = 1;
  for (int i = 1; i <= k && std::isfinite(conteggio); ++i) conteggio = conteggio * (n - k + i) / i;
  return conteggio;
}

double Disposizioni(int n, int k) {
  if (k < 0 || k > n) return 0;
  double conteggio = 1;
  // 64 bits, so that the step past n = INT32_MAX does not overflow.
  for (int64_t i = int64_t{n} - k + 1; i <= n && std::isfinite(conteggio); ++i) conteggio *= static_cast<double>(i);
  return conteggio;
}

// Hypergeometric: j of the numbers played among the five drawn, the other 5 - j among the rest.
double ProbabilitaSorte(int sorte, int quantita) {
  if (sorte < 1 || sorte > kEstrattiPerRuota || quantita < sorte || quantita > kNumeriLotto) return 0;
  double favorevoli = 0;
  for (int j = sorte; j <= std::min(quantita, kEstrattiPerRuota); ++j)
    favorevoli += Combinazioni(quantita, j) * Combinazioni(kNumeriLotto - quantita, kEstrattiPerRuota - j);
  return favorevoli / Combinazioni(kNumeriLotto, kEstrattiPerRuota);
}

SviluppoCombinazioni::SviluppoCombinazioni(int n, int k) : m_n(n), m_posizioni(static_cast<size_t>(k)) {
  assert(k >= 1 && k <= n);
  std::iota(m_posizioni.begin(), m_posizioni.end(), 0);
}

bool SviluppoCombinazioni::Avanza() {
  if (m_finito) return false;
  if (m_sviluppati > 0) {
    const int k = static_cast<int>(m_posizioni.size());
    int i = k - 1;
    while (i >= 0 && m_posizioni[i] == m_n - k + i) --i;
    if (i < 0) {
      m_finito = true;
      return false;
    }
    ++m_posizioni[i];
    for (int j = i + 1; j < k; ++j) m_posizioni[j] = m_posizioni[j - 1] + 1;
  }
  ++m_sviluppati;
  return true;
}

SviluppoDisposizioni::SviluppoDisposizioni(int n, int k) : m_posizioni(static_cast<size_t>(n)), m_k(k) {
  assert(k >= 1 && k <= n);
  std::iota(m_posizioni.begin(), m_posizioni.end(), 0);
}

bool SviluppoDisposizioni::Avanza() {
  if (m_finito) return false;
  if (m_sviluppati > 0) {
    std::reverse(m_posizioni.begin() + static_cast<ptrdiff_t>(m_k), m_posizioni.end());
    if (!std::next_permutation(m_posizioni.begin(), m_posizioni.end())) {
      m_finito = true;
      return false;
    }
  }
  ++m_sviluppati;
  return true;
}

}  // namespace lottolab::stats
