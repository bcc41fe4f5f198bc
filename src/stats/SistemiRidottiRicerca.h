#pragma once

// The search behind CostruisciSistemaRidotto, private to the library. Positions are 0..N-1 here.
//
// Every m-group of the N has a rank (its colexicographic index) and a counter of the columns that
// hold at least t of its numbers; the groups whose counter is zero are kept in a list with O(1)
// insertion and removal, so the annealing picks an uncovered group at random and the cost is the
// list's length. Moving one number of a column changes only the groups that hold the leaving or
// the arriving number and exactly t - 1 of the column's other numbers, and only those are walked.

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <random>
#include <span>
#include <vector>

namespace lottolab::stats::ricerca {

// A set of positions 0..127 as two words, for intersections counted by popcount.
struct Maschera {
  std::uint64_t basso = 0;
  std::uint64_t alto = 0;

  void Aggiungi(int p) { (p < 64 ? basso : alto) |= std::uint64_t{1} << (p & 63); }
  void Togli(int p) { (p < 64 ? basso : alto) &= ~(std::uint64_t{1} << (p & 63)); }
  bool Contiene(int p) const { return ((p < 64 ? basso : alto) >> (p & 63)) & 1; }
  int Comuni(const Maschera& altra) const {
    return __builtin_popcountll(basso & altra.basso) + __builtin_popcountll(alto & altra.alto);
  }
};

// Binomial coefficients up to C(90, 12), exact in 64 bits.
class Binomiali {
 public:
  Binomiali();
  std::uint64_t operator()(int n, int k) const { return (k < 0 || n < k) ? 0 : m_tabella[n][k]; }
  // The colexicographic rank of a group given in increasing order.
  std::uint64_t Rango(std::span<const int> gruppo) const;
  // The group of `dimensione` positions with that rank, in increasing order.
  void Gruppo(std::uint64_t rango, int dimensione, std::span<int> gruppo) const;

 private:
  std::array<std::array<std::uint64_t, 14>, 91> m_tabella{};
};

// Calls f with every r-combination of `elementi` (in the order given), in a buffer it reuses.
template <typename F>
void PerOgniCombinazione(std::span<const int> elementi, int r, F&& f) {
  const int n = static_cast<int>(elementi.size());
  if (r > n) return;
  std::array<int, 16> indici{};
  std::array<int, 16> scelti{};
  for (int i = 0; i < r; ++i) indici[i] = i;
  while (true) {
    for (int i = 0; i < r; ++i) scelti[i] = elementi[indici[i]];
    f(std::span<const int>(scelti.data(), static_cast<size_t>(r)));
    int i = r - 1;
    while (i >= 0 && indici[i] == n - r + i) --i;
    if (i < 0) return;
    ++indici[i];
    for (int j = i + 1; j < r; ++j) indici[j] = indici[j - 1] + 1;
  }
}

struct Dimensioni {
  int n = 0;  // N
  int k = 0;
  int t = 0;
  int m = 0;
};

// The columns being improved and the counters of the m-groups they cover.
class Copertura {
 public:
  Copertura(Dimensioni d, const Binomiali& binomiali);

  void AggiungiColonna(std::span<const int> colonna);
  void RimuoviColonna(int indice);
  // The change in uncovered groups if number `esce` of column `indice` were replaced by `entra`.
  std::int64_t Variazione(int indice, int esce, int entra) const;
  void Sposta(int indice, int esce, int entra);
  // The uncovered groups that only column `indice` covers now.
  std::int64_t SoloDa(int indice) const;

  std::int64_t Scoperti() const { return static_cast<std::int64_t>(m_scoperti.size()); }
  std::uint32_t Scoperto(std::size_t i) const { return m_scoperti[i]; }
  // The uncovered groups that a column being built, `parziale`, would cover once `entra` joined it.
  std::int64_t NuoviCoperti(std::span<const int> parziale, int entra) const;
  // Appends the columns that hold exactly t - 1 numbers of an uncovered `gruppo`. False when the
  // index behind it is not kept (t = 1, or too many (t-1)-groups), and the caller must scan.
  bool Vicine(std::span<const int> gruppo, std::vector<int>& colonne) const;
  int Colonne() const { return static_cast<int>(m_colonne.size()); }
  const std::vector<int>& Colonna(int i) const { return m_colonne[i]; }
  const Maschera& MascheraColonna(int i) const { return m_maschere[i]; }
  const Dimensioni& Misure() const { return m_d; }
  const Binomiali& Tabella() const { return m_binomiali; }

 private:
  // Calls f(rank) for every m-group holding `numero`, exactly t - 1 of `resto`, and otherwise only
  // positions outside `resto` and `escluso` (pass -1 for none).
  template <typename F>
  void PerOgniGruppoAlConfine(std::span<const int> resto, int numero, int escluso, F&& f) const;
  void Conta(std::uint64_t rango, int delta);
  // Calls f(rank) for every (t-1)-group of `numeri`.
  template <typename F>
  void PerOgniSottogruppo(std::span<const int> numeri, F&& f) const;
  void Indicizza(int indice, int vecchio);

  Dimensioni m_d;
  const Binomiali& m_binomiali;
  std::vector<std::vector<int>> m_colonne;
  std::vector<Maschera> m_maschere;
  std::vector<std::uint32_t> m_coperture;
  std::vector<std::uint32_t> m_scoperti;
  std::vector<std::int32_t> m_posizione;  // index in m_scoperti, -1 when covered
  // For every (t-1)-group, by rank, the columns that hold it: the candidates of a move are found
  // without scanning every column.
  bool m_con_indice = false;
  std::vector<std::vector<int>> m_per_sottogruppo;
};

enum class EsitoRicerca { Concluso, Interrotto, TempoScaduto };

struct RisultatoRicerca {
  std::vector<std::vector<int>> colonne;
  EsitoRicerca esito = EsitoRicerca::Concluso;
};

// The smallest system the annealing finds; `controllo` is called every few thousand steps with the
// current state and the best size so far, and returns the reason to stop, if any. `minimo` is a
// size below which there is no point in trying.
RisultatoRicerca CercaConRicottura(Dimensioni d, std::uint64_t seme, int sforzo, std::int64_t minimo,
                                   const std::function<std::optional<EsitoRicerca>(const Copertura&, int)>& controllo);

// An exhaustive search for the smallest system, for the cases small enough (at most 256 m-groups
// and 600 possible columns). Nothing when the case is too large or the search exceeded its budget.
std::optional<std::vector<std::vector<int>>> CercaMinimoEsatto(Dimensioni d, std::int64_t minimo,
                                                               std::int64_t dimensione_nota);

}  // namespace lottolab::stats::ricerca
