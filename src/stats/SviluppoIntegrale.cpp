#include "SviluppoIntegrale.h"

#include <cassert>
#include <numeric>

#include "Combinazioni.h"

namespace lottolab::stats {

SviluppoIntegrale::SviluppoIntegrale(int n, int k) : m_n(n), m_posizioni(static_cast<size_t>(k)) {
  assert(k >= 1 && k <= n);
}

double SviluppoIntegrale::Totale() const { return Combinazioni(m_n, static_cast<int>(m_posizioni.size())); }

bool SviluppoIntegrale::Avanza() {
  if (m_finito) return false;
  const int k = static_cast<int>(m_posizioni.size());
  if (!m_iniziato) {
    std::iota(m_posizioni.begin(), m_posizioni.end(), 0);
    m_iniziato = true;
    m_sviluppati = 1;
    return true;
  }
  int i = k - 1;
  while (i >= 0 && m_posizioni[static_cast<size_t>(i)] == m_n - k + i) --i;
  if (i < 0) {
    m_finito = true;
    return false;
  }
  ++m_posizioni[static_cast<size_t>(i)];
  for (int j = i + 1; j < k; ++j) m_posizioni[static_cast<size_t>(j)] = m_posizioni[static_cast<size_t>(j - 1)] + 1;
  ++m_sviluppati;
  return true;
}

double SviluppoIntegrale::Salta(int livello) {
  const int k = static_cast<int>(m_posizioni.size());
  assert(livello >= 1 && livello <= k);
  if (!m_iniziato || m_finito) return 0;
  const double prima = Rango(m_posizioni);
  // The last group with this prefix: the positions after it as high as they go.
  for (int j = livello; j < k; ++j) m_posizioni[static_cast<size_t>(j)] = m_n - k + j;
  const double saltati = Rango(m_posizioni) - prima;
  m_sviluppati += saltati;
  return saltati;
}

double SviluppoIntegrale::Rango(std::span<const int> gruppo) const {
  const int k = static_cast<int>(gruppo.size());
  double rango = 0;
  int da = 0;
  for (int i = 0; i < k; ++i) {
    // The groups that agree before i and hold a smaller position at i.
    for (int v = da; v < gruppo[static_cast<size_t>(i)]; ++v) rango += Combinazioni(m_n - 1 - v, k - 1 - i);
    da = gruppo[static_cast<size_t>(i)] + 1;
  }
  return rango;
}

}  // namespace lottolab::stats
