// The exhaustive search for the smallest cases: every possible column is a bit set of the m-groups
// it covers, and a depth-first search tries sizes from the lower bound up. At each level it takes
// the first uncovered group and branches on the columns that cover it, so every system it could
// miss would have to leave that group uncovered. Any system can be renumbered so that it holds
// the first column {0..k-1}, which the search therefore fixes; and a branch is cut when even columns
// covering as many groups as the best one could not cover the rest in the columns left.

#include <algorithm>
#include <array>
#include <bit>

#include "SistemiRidottiRicerca.h"

namespace lottolab::stats::ricerca {
namespace {

constexpr int kMassimiGruppi = 256;
constexpr int kMassimeColonne = 600;
constexpr std::int64_t kMassimiNodi = 100'000;

using Insieme = std::array<std::uint64_t, kMassimiGruppi / 64>;

int Quanti(const Insieme& insieme) {
  int quanti = 0;
  for (auto parola : insieme) quanti += std::popcount(parola);
  return quanti;
}

class Esatta {
 public:
  Esatta(Dimensioni d, const Binomiali& binomiali) : m_gruppi(static_cast<int>(binomiali(d.n, d.m))) {
    std::vector<int> tutti(static_cast<size_t>(d.n));
    for (int p = 0; p < d.n; ++p) tutti[static_cast<size_t>(p)] = p;
    m_per_gruppo.resize(static_cast<size_t>(m_gruppi));
    PerOgniCombinazione(tutti, d.k, [&](std::span<const int> colonna) {
      Maschera maschera;
      for (int p : colonna) maschera.Aggiungi(p);
      Insieme coperti{};
      int r = 0;
      PerOgniCombinazione(tutti, d.m, [&](std::span<const int> gruppo) {
        Maschera g;
        for (int p : gruppo) g.Aggiungi(p);
        if (g.Comuni(maschera) >= d.t) {
          coperti[static_cast<size_t>(r / 64)] |= std::uint64_t{1} << (r % 64);
          m_per_gruppo[static_cast<size_t>(r)].push_back(static_cast<int>(m_colonne.size()));
        }
        ++r;
      });
      m_colonne.emplace_back(colonna.begin(), colonna.end());
      m_coperti.push_back(coperti);
      m_massimo_per_colonna = std::max(m_massimo_per_colonna, Quanti(coperti));
    });
  }

  // True when `colonne` columns are enough; the columns found are left in m_scelte.
  bool Prova(int colonne) {
    m_scelte.assign(1, 0);
    return Cerca(m_coperti[0], colonne - 1);
  }

  bool Esaurita() const { return m_nodi > kMassimiNodi; }
  std::vector<std::vector<int>> Scelte() const {
    std::vector<std::vector<int>> colonne;
    for (int c : m_scelte) colonne.push_back(m_colonne[static_cast<size_t>(c)]);
    return colonne;
  }

 private:
  bool Cerca(const Insieme& coperti, int restano) {
    if (++m_nodi > kMassimiNodi) return false;
    const int mancano = m_gruppi - Quanti(coperti);
    if (mancano == 0) return true;
    if (mancano > restano * m_massimo_per_colonna) return false;
    int primo = 0;
    while ((coperti[static_cast<size_t>(primo / 64)] >> (primo % 64)) & 1) ++primo;
    for (int c : m_per_gruppo[static_cast<size_t>(primo)]) {
      Insieme dopo = coperti;
      for (size_t w = 0; w < dopo.size(); ++w) dopo[w] |= m_coperti[static_cast<size_t>(c)][w];
      m_scelte.push_back(c);
      if (Cerca(dopo, restano - 1)) return true;
      m_scelte.pop_back();
      if (Esaurita()) return false;
    }
    return false;
  }

  int m_gruppi;
  std::vector<std::vector<int>> m_colonne;
  std::vector<Insieme> m_coperti;
  std::vector<std::vector<int>> m_per_gruppo;
  int m_massimo_per_colonna = 0;
  std::vector<int> m_scelte;
  std::int64_t m_nodi = 0;
};

}  // namespace

std::optional<std::vector<std::vector<int>>> CercaMinimoEsatto(Dimensioni d, std::int64_t minimo,
                                                               std::int64_t dimensione_nota) {
  const Binomiali binomiali;
  if (binomiali(d.n, d.m) > kMassimiGruppi || binomiali(d.n, d.k) > kMassimeColonne) return std::nullopt;
  Esatta esatta(d, binomiali);
  for (auto colonne = std::max<std::int64_t>(minimo, 1); colonne <= dimensione_nota; ++colonne) {
    if (esatta.Prova(static_cast<int>(colonne))) return esatta.Scelte();
    if (esatta.Esaurita()) return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace lottolab::stats::ricerca
