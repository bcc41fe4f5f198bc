#pragma once

// The integral development that searches walk: the k-combinations of positions 0..n-1 in
// lexicographic order, as SviluppoCombinazioni gives them, that can also skip every combination
// that shares the first few positions of the current one. A search that finds a prefix hopeless
// (its first two numbers already fail a filter) prunes the whole branch in one step instead of
// walking the C(n - p, k - l) combinations under it.

#include <span>
#include <vector>

namespace lottolab::stats {

class SviluppoIntegrale {
 public:
  // 1 <= k <= n.
  SviluppoIntegrale(int n, int k);

  // To the next group; false once every group has been given, and from then on.
  bool Avanza();
  std::span<const int> Gruppo() const { return m_posizioni; }
  double Totale() const;
  // The groups walked past so far, given or skipped, the current one included.
  double Sviluppati() const { return m_sviluppati; }

  // Makes the next Avanza give the first group whose first `livello` (1..k) positions differ from
  // the current group's; the groups between are skipped, and their count is returned. Nothing is
  // skipped before the first group, after the last, or at livello k.
  double Salta(int livello);

 private:
  // The number of groups before `gruppo` in the order.
  double Rango(std::span<const int> gruppo) const;

  int m_n;
  std::vector<int> m_posizioni;
  double m_sviluppati = 0;
  bool m_iniziato = false;
  bool m_finito = false;
};

}  // namespace lottolab::stats
