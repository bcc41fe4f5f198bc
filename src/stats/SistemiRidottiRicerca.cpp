#include "SistemiRidottiRicerca.h"

#include <algorithm>
#include <cassert>

namespace lottolab::stats::ricerca {
namespace {

// Above this many (t-1)-groups the index of the columns by (t-1)-group is not worth its memory.
constexpr std::uint64_t kMassimiSottogruppi = 200'000;

}  // namespace

Binomiali::Binomiali() {
  for (int n = 0; n <= 90; ++n) {
    m_tabella[n][0] = 1;
    for (int k = 1; k <= 13 && k <= n; ++k)
      m_tabella[n][k] = m_tabella[n - 1][k - 1] + (k <= n - 1 ? m_tabella[n - 1][k] : 0);
  }
}

std::uint64_t Binomiali::Rango(std::span<const int> gruppo) const {
  std::uint64_t rango = 0;
  for (size_t i = 0; i < gruppo.size(); ++i) rango += (*this)(gruppo[i], static_cast<int>(i) + 1);
  return rango;
}

void Binomiali::Gruppo(std::uint64_t rango, int dimensione, std::span<int> gruppo) const {
  // The largest position whose binomial fits in what is left of the rank, from the last one down.
  int p = 90;
  for (int i = dimensione; i >= 1; --i) {
    while ((*this)(p, i) > rango) --p;
    gruppo[i - 1] = p;
    rango -= (*this)(p, i);
    --p;
  }
}

Copertura::Copertura(Dimensioni d, const Binomiali& binomiali) : m_d(d), m_binomiali(binomiali) {
  const auto gruppi = binomiali(d.n, d.m);
  m_coperture.assign(gruppi, 0);
  m_scoperti.resize(gruppi);
  m_posizione.resize(gruppi);
  for (std::uint32_t r = 0; r < gruppi; ++r) {
    m_scoperti[r] = r;
    m_posizione[r] = static_cast<std::int32_t>(r);
  }
  m_con_indice = d.t >= 2 && binomiali(d.n, d.t - 1) <= kMassimiSottogruppi;
  if (m_con_indice) m_per_sottogruppo.resize(binomiali(d.n, d.t - 1));
}

template <typename F>
void Copertura::PerOgniSottogruppo(std::span<const int> numeri, F&& f) const {
  PerOgniCombinazione(numeri, m_d.t - 1, [&](std::span<const int> sottogruppo) { f(m_binomiali.Rango(sottogruppo)); });
}

// Column `vecchio`'s entries in the index become `indice`'s; -1 adds or removes them.
void Copertura::Indicizza(int indice, int vecchio) {
  if (!m_con_indice) return;
  const int di = vecchio >= 0 ? vecchio : indice;
  PerOgniSottogruppo(m_colonne[static_cast<size_t>(di)], [&](std::uint64_t r) {
    auto& lista = m_per_sottogruppo[r];
    if (vecchio < 0) {
      lista.push_back(indice);
    } else {
      auto posto = std::find(lista.begin(), lista.end(), vecchio);
      if (indice >= 0) {
        *posto = indice;
      } else {
        *posto = lista.back();
        lista.pop_back();
      }
    }
  });
}

bool Copertura::Vicine(std::span<const int> gruppo, std::vector<int>& colonne) const {
  if (!m_con_indice) return false;
  PerOgniSottogruppo(gruppo, [&](std::uint64_t r) {
    const auto& lista = m_per_sottogruppo[r];
    colonne.insert(colonne.end(), lista.begin(), lista.end());
  });
  return true;
}

void Copertura::Conta(std::uint64_t rango, int delta) {
  auto& conto = m_coperture[rango];
  if (delta > 0) {
    if (conto++ == 0) {
      const auto i = m_posizione[rango];
      m_posizione[m_scoperti.back()] = i;
      m_scoperti[i] = m_scoperti.back();
      m_scoperti.pop_back();
      m_posizione[rango] = -1;
    }
  } else if (--conto == 0) {
    m_posizione[rango] = static_cast<std::int32_t>(m_scoperti.size());
    m_scoperti.push_back(static_cast<std::uint32_t>(rango));
  }
}

template <typename F>
void Copertura::PerOgniGruppoAlConfine(std::span<const int> resto, int numero, int escluso, F&& f) const {
  std::array<int, 96> fuori{};
  int quanti_fuori = 0;
  // A covering design (m = t) takes nothing from outside the column: no need to list it.
  if (m_d.m > m_d.t) {
    Maschera dentro;
    for (int p : resto) dentro.Aggiungi(p);
    for (int p = 0; p < m_d.n; ++p)
      if (p != numero && p != escluso && !dentro.Contiene(p)) fuori[quanti_fuori++] = p;
  }
  std::array<int, 16> gruppo{};
  PerOgniCombinazione(resto, m_d.t - 1, [&](std::span<const int> dal_resto) {
    PerOgniCombinazione(std::span<const int>(fuori.data(), static_cast<size_t>(quanti_fuori)), m_d.m - m_d.t,
                        [&](std::span<const int> da_fuori) {
                          int q = 0;
                          gruppo[q++] = numero;
                          for (int p : dal_resto) gruppo[q++] = p;
                          for (int p : da_fuori) gruppo[q++] = p;
                          std::sort(gruppo.begin(), gruppo.begin() + q);
                          f(m_binomiali.Rango(std::span<const int>(gruppo.data(), static_cast<size_t>(q))));
                        });
  });
}

namespace {

// Calls f(rank) for every m-group that shares at least t numbers with `colonna`.
template <typename F>
void PerOgniGruppoCoperto(const Dimensioni& d, const Binomiali& binomiali, std::span<const int> colonna, F&& f) {
  Maschera dentro;
  for (int p : colonna) dentro.Aggiungi(p);
  std::array<int, 96> fuori{};
  int quanti_fuori = 0;
  for (int p = 0; p < d.n; ++p)
    if (!dentro.Contiene(p)) fuori[quanti_fuori++] = p;
  std::array<int, 16> gruppo{};
  const int k = static_cast<int>(colonna.size());
  for (int comuni = d.t; comuni <= std::min(k, d.m); ++comuni) {
    PerOgniCombinazione(colonna, comuni, [&](std::span<const int> dalla_colonna) {
      PerOgniCombinazione(std::span<const int>(fuori.data(), static_cast<size_t>(quanti_fuori)), d.m - comuni,
                          [&](std::span<const int> da_fuori) {
                            int q = 0;
                            for (int p : dalla_colonna) gruppo[q++] = p;
                            for (int p : da_fuori) gruppo[q++] = p;
                            std::sort(gruppo.begin(), gruppo.begin() + q);
                            f(binomiali.Rango(std::span<const int>(gruppo.data(), static_cast<size_t>(q))));
                          });
    });
  }
}

}  // namespace

void Copertura::AggiungiColonna(std::span<const int> colonna) {
  assert(static_cast<int>(colonna.size()) == m_d.k);
  std::vector<int> ordinata(colonna.begin(), colonna.end());
  std::sort(ordinata.begin(), ordinata.end());
  PerOgniGruppoCoperto(m_d, m_binomiali, ordinata, [&](std::uint64_t r) { Conta(r, +1); });
  Maschera maschera;
  for (int p : ordinata) maschera.Aggiungi(p);
  m_colonne.push_back(std::move(ordinata));
  m_maschere.push_back(maschera);
  Indicizza(Colonne() - 1, -1);
}

void Copertura::RimuoviColonna(int indice) {
  PerOgniGruppoCoperto(m_d, m_binomiali, m_colonne[indice], [&](std::uint64_t r) { Conta(r, -1); });
  const int ultima = Colonne() - 1;
  Indicizza(-1, indice);
  if (indice != ultima) Indicizza(indice, ultima);
  m_colonne[indice] = std::move(m_colonne.back());
  m_colonne.pop_back();
  m_maschere[indice] = m_maschere.back();
  m_maschere.pop_back();
}

std::int64_t Copertura::SoloDa(int indice) const {
  std::int64_t soli = 0;
  PerOgniGruppoCoperto(m_d, m_binomiali, m_colonne[indice], [&](std::uint64_t r) { soli += m_coperture[r] == 1; });
  return soli;
}

namespace {

// The column without one of its numbers, in a buffer on the stack: this runs at every step.
struct Resto {
  std::array<int, 16> numeri{};
  int quanti = 0;

  Resto(const std::vector<int>& colonna, int numero) {
    for (int p : colonna)
      if (p != numero) numeri[quanti++] = p;
  }
  std::span<const int> Numeri() const { return {numeri.data(), static_cast<size_t>(quanti)}; }
};

}  // namespace

std::int64_t Copertura::Variazione(int indice, int esce, int entra) const {
  const Resto resto(m_colonne[indice], esce);
  std::int64_t persi = 0;
  std::int64_t guadagnati = 0;
  PerOgniGruppoAlConfine(resto.Numeri(), esce, entra, [&](std::uint64_t r) { persi += m_coperture[r] == 1; });
  PerOgniGruppoAlConfine(resto.Numeri(), entra, esce, [&](std::uint64_t r) { guadagnati += m_coperture[r] == 0; });
  return persi - guadagnati;
}

void Copertura::Sposta(int indice, int esce, int entra) {
  const Resto resto(m_colonne[indice], esce);
  PerOgniGruppoAlConfine(resto.Numeri(), esce, entra, [&](std::uint64_t r) { Conta(r, -1); });
  PerOgniGruppoAlConfine(resto.Numeri(), entra, esce, [&](std::uint64_t r) { Conta(r, +1); });
  Indicizza(-1, indice);
  auto& colonna = m_colonne[indice];
  colonna.erase(std::find(colonna.begin(), colonna.end(), esce));
  colonna.insert(std::upper_bound(colonna.begin(), colonna.end(), entra), entra);
  m_maschere[indice].Togli(esce);
  m_maschere[indice].Aggiungi(entra);
  Indicizza(indice, -1);
}

std::int64_t Copertura::NuoviCoperti(std::span<const int> parziale, int entra) const {
  std::int64_t nuovi = 0;
  PerOgniGruppoAlConfine(parziale, entra, -1, [&](std::uint64_t r) { nuovi += m_coperture[r] == 0; });
  return nuovi;
}

}  // namespace lottolab::stats::ricerca
