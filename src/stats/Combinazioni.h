#pragma once

// Counting and enumerating groups of numbers, and the probabilities of the Lotto sorti.
//
// Counts are doubles: they are exact integers while they stay below 2^53 (every count of the 90
// numbers up to class 12 or so) and a close approximation beyond, which is what scripts print.
// Enumerations walk positions 0..n-1 of the caller's elements, so the caller keeps the elements
// and maps each position to its own value; they never hold more than one group at a time.

#include <cstdint>
#include <span>
#include <vector>

namespace lottolab::stats {

inline constexpr int kNumeriLotto = 90;
inline constexpr int kEstrattiPerRuota = 5;

// n!, 1 for n <= 0; infinity beyond 170!.
double Fattoriale(int n);

// The k-combinations of n, 0 when k < 0 or k > n.
double Combinazioni(int n, int k);

// The k-dispositions of n (ordered groups of k different elements), n! / (n - k)!; 0 when k < 0
// or k > n.
double Disposizioni(int n, int k);

// The probability that one draw of five numbers on one wheel gives at least one win of `sorte`
// (1 estratto .. 5 cinquina) to `quantita` numbers played: at least `sorte` of them among the five
// drawn. 0 when the sorte cannot be won (more than five, or more than the numbers played).
double ProbabilitaSorte(int sorte, int quantita);

// The k-combinations of positions 0..n-1 in lexicographic order: {0,1,2}, {0,1,3}, ... Starts
// before the first group; each Avanza moves to the next one.
class SviluppoCombinazioni {
 public:
  // 1 <= k <= n.
  SviluppoCombinazioni(int n, int k);

  // False once every group has been given, and from then on.
  bool Avanza();
  std::span<const int> Gruppo() const { return m_posizioni; }
  double Totale() const { return Combinazioni(m_n, static_cast<int>(m_posizioni.size())); }
  double Sviluppati() const { return m_sviluppati; }

 private:
  int m_n;
  std::vector<int> m_posizioni;
  double m_sviluppati = 0;
  bool m_finito = false;
};

// The k-dispositions of positions 0..n-1 in lexicographic order: for n = 3, k = 2 they are
// {0,1}, {0,2}, {1,0}, {1,2}, {2,0}, {2,1}. With k = n they are the permutations.
class SviluppoDisposizioni {
 public:
  // 1 <= k <= n.
  SviluppoDisposizioni(int n, int k);

  bool Avanza();
  std::span<const int> Gruppo() const { return std::span<const int>(m_posizioni).first(m_k); }
  double Totale() const { return Disposizioni(static_cast<int>(m_posizioni.size()), m_k); }
  double Sviluppati() const { return m_sviluppati; }

 private:
  // All n positions: the group is the first k, the rest are kept in descending order between
  // steps so that the next permutation of the whole is the next disposition of the first k.
  std::vector<int> m_posizioni;
  size_t m_k;
  double m_sviluppati = 0;
  bool m_finito = false;
};

}  // namespace lottolab::stats
