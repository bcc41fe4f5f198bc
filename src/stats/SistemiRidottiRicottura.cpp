// The greedy start and the simulated annealing that takes columns away.
//
// The annealing keeps the number of columns fixed and minimises the uncovered m-groups. Its move
// follows the neighbourhood that works best on covering designs: pick an uncovered group at random,
// pick a column that holds t - 1 of its numbers, and swap one of the column's other numbers for one
// of the group's missing numbers, so that the move covers the group it was chosen for. Moves that
// uncover more than they cover are accepted with the Metropolis probability, under a temperature
// that falls geometrically over the steps allowed at each size. Whenever no group is left uncovered
// the system is kept, the columns that alone cover the fewest groups are taken away, and the
// annealing starts again with fewer columns.

#include <algorithm>
#include <cmath>

#include "SistemiRidottiRicerca.h"

namespace lottolab::stats::ricerca {
namespace {

constexpr double kTemperaturaIniziale = 0.3;
constexpr double kTemperaturaFinale = 0.02;
constexpr int kPassiTraControlli = 2048;
// A size is given up after this many annealings, each from where the previous one stopped.
constexpr int kTentativiPerMisura = 2;
// Above this many groups walked per candidate number, the greedy start fills columns at random
// instead of weighing every number.
constexpr std::uint64_t kMassimoCostoGoloso = 4000;

class Ricottura {
 public:
  Ricottura(Dimensioni d, std::uint64_t seme, int sforzo,
            const std::function<std::optional<EsitoRicerca>(const Copertura&, int)>& controllo)
      : m_d(d), m_copertura(d, m_binomiali), m_caso(seme), m_sforzo(sforzo), m_controllo(controllo) {}

  RisultatoRicerca Esegui(std::int64_t minimo);

 private:
  int Caso(int fino_a) { return static_cast<int>(m_caso() % static_cast<std::uint64_t>(fino_a)); }
  double Uniforme() { return std::uniform_real_distribution<double>(0.0, 1.0)(m_caso); }
  std::optional<EsitoRicerca> Controlla(int migliore) { return m_controllo(m_copertura, migliore); }
  std::optional<EsitoRicerca> CostruisciGolosamente();
  std::optional<EsitoRicerca> Ricuoci(bool& coperto, int migliore);
  void TogliColonne(int quante);

  Dimensioni m_d;
  Binomiali m_binomiali;
  Copertura m_copertura;
  std::mt19937_64 m_caso;
  int m_sforzo;
  const std::function<std::optional<EsitoRicerca>(const Copertura&, int)>& m_controllo;
};

std::optional<EsitoRicerca> Ricottura::CostruisciGolosamente() {
  const bool pesa =
      m_binomiali(m_d.k - 1, m_d.t - 1) * m_binomiali(m_d.n - m_d.t, m_d.m - m_d.t) <= kMassimoCostoGoloso;
  std::array<int, 16> gruppo{};
  while (m_copertura.Scoperti() > 0) {
    const auto rango = m_copertura.Scoperto(static_cast<size_t>(Caso(static_cast<int>(m_copertura.Scoperti()))));
    m_binomiali.Gruppo(rango, m_d.m, gruppo);
    std::shuffle(gruppo.begin(), gruppo.begin() + m_d.m, m_caso);
    // t numbers of the uncovered group make it covered; the others are chosen to cover the most.
    std::vector<int> colonna(gruppo.begin(), gruppo.begin() + m_d.t);
    Maschera dentro;
    for (int p : colonna) dentro.Aggiungi(p);
    while (static_cast<int>(colonna.size()) < m_d.k) {
      int scelto = -1;
      if (pesa) {
        std::int64_t meglio = -1;
        int pari = 0;
        for (int p = 0; p < m_d.n; ++p) {
          if (dentro.Contiene(p)) continue;
          const auto nuovi = m_copertura.NuoviCoperti(colonna, p);
          if (nuovi > meglio) {
            meglio = nuovi;
            scelto = p;
            pari = 1;
          } else if (nuovi == meglio && Caso(++pari) == 0) {
            scelto = p;
          }
        }
      } else {
        do scelto = Caso(m_d.n);
        while (dentro.Contiene(scelto));
      }
      colonna.push_back(scelto);
      dentro.Aggiungi(scelto);
    }
    m_copertura.AggiungiColonna(colonna);
    if (auto stop = Controlla(m_copertura.Colonne())) return stop;
  }
  return std::nullopt;
}

void Ricottura::TogliColonne(int quante) {
  // The columns that alone cover the fewest groups go first, ties in random order; all are weighed
  // once, before any goes, so that taking many away costs one pass over them.
  struct Peso {
    std::int64_t soli;
    std::uint64_t caso;
    int indice;
  };
  std::vector<Peso> pesi;
  for (int i = 0; i < m_copertura.Colonne(); ++i) pesi.push_back({m_copertura.SoloDa(i), m_caso(), i});
  std::sort(pesi.begin(), pesi.end(),
            [](const Peso& a, const Peso& b) { return a.soli != b.soli ? a.soli < b.soli : a.caso < b.caso; });
  std::vector<int> tolte;
  for (int i = 0; i < quante; ++i) tolte.push_back(pesi[static_cast<size_t>(i)].indice);
  // From the highest index down, the last column moved into a freed place is never one to take away.
  std::sort(tolte.rbegin(), tolte.rend());
  for (int indice : tolte) m_copertura.RimuoviColonna(indice);
}

std::optional<EsitoRicerca> Ricottura::Ricuoci(bool& coperto, int migliore) {
  const int colonne = m_copertura.Colonne();
  const std::int64_t passi = std::int64_t{m_sforzo} * colonne * m_d.k * (m_d.n - m_d.k);
  const double raffreddamento = std::pow(kTemperaturaFinale / kTemperaturaIniziale, 1.0 / static_cast<double>(passi));
  double temperatura = kTemperaturaIniziale;
  std::array<int, 16> gruppo{};
  std::vector<int> vicine;
  std::vector<int> massime;
  for (std::int64_t passo = 0; passo < passi && m_copertura.Scoperti() > 0; ++passo) {
    if (passo % kPassiTraControlli == 0)
      if (auto stop = Controlla(migliore)) return stop;
    temperatura *= raffreddamento;
    const auto rango = m_copertura.Scoperto(static_cast<size_t>(Caso(static_cast<int>(m_copertura.Scoperti()))));
    m_binomiali.Gruppo(rango, m_d.m, gruppo);
    Maschera maschera;
    for (int i = 0; i < m_d.m; ++i) maschera.Aggiungi(gruppo[i]);
    // The columns one number short of covering the group; when there is none, the closest ones.
    vicine.clear();
    massime.clear();
    const bool indicizzate =
        m_copertura.Vicine(std::span<const int>(gruppo.data(), static_cast<size_t>(m_d.m)), vicine);
    if (!indicizzate || vicine.empty()) {
      int piu_vicina = -1;
      for (int c = 0; c < colonne; ++c) {
        const int comuni = m_copertura.MascheraColonna(c).Comuni(maschera);
        if (!indicizzate && comuni == m_d.t - 1) vicine.push_back(c);
        if (comuni > piu_vicina) {
          piu_vicina = comuni;
          massime.clear();
        }
        if (comuni == piu_vicina) massime.push_back(c);
      }
    }
    const auto& candidate = vicine.empty() ? massime : vicine;
    const int c = candidate[static_cast<size_t>(Caso(static_cast<int>(candidate.size())))];
    const auto& colonna = m_copertura.Colonna(c);
    std::array<int, 16> uscenti{};
    int quante_uscenti = 0;
    for (int p : colonna)
      if (!maschera.Contiene(p)) uscenti[quante_uscenti++] = p;
    std::array<int, 16> entranti{};
    int quante_entranti = 0;
    for (int i = 0; i < m_d.m; ++i)
      if (!m_copertura.MascheraColonna(c).Contiene(gruppo[i])) entranti[quante_entranti++] = gruppo[i];
    const int esce = uscenti[Caso(quante_uscenti)];
    const int entra = entranti[Caso(quante_entranti)];
    const auto variazione = m_copertura.Variazione(c, esce, entra);
    if (variazione <= 0 || Uniforme() < std::exp(-static_cast<double>(variazione) / temperatura))
      m_copertura.Sposta(c, esce, entra);
  }
  coperto = m_copertura.Scoperti() == 0;
  return std::nullopt;
}

RisultatoRicerca Ricottura::Esegui(std::int64_t minimo) {
  RisultatoRicerca risultato;
  auto copia = [&] {
    risultato.colonne.clear();
    for (int i = 0; i < m_copertura.Colonne(); ++i) risultato.colonne.push_back(m_copertura.Colonna(i));
  };
  if (auto stop = CostruisciGolosamente()) {
    risultato.esito = *stop;
    return risultato;
  }
  copia();
  // The size falls by a stride that starts at half the distance to the lower bound and halves at
  // every failure, going back to the last system that kept the guarantee.
  const std::int64_t fondo = std::max<std::int64_t>(minimo, 1);
  std::int64_t salto = std::max<std::int64_t>(1, (m_copertura.Colonne() - fondo) / 2);
  while (static_cast<std::int64_t>(risultato.colonne.size()) > fondo) {
    const auto obiettivo = std::max(fondo, static_cast<std::int64_t>(risultato.colonne.size()) - salto);
    TogliColonne(m_copertura.Colonne() - static_cast<int>(obiettivo));
    bool coperto = false;
    for (int tentativo = 0; tentativo < kTentativiPerMisura && !coperto; ++tentativo) {
      if (auto stop = Ricuoci(coperto, static_cast<int>(risultato.colonne.size()))) {
        risultato.esito = *stop;
        return risultato;
      }
    }
    if (coperto) {
      copia();
      continue;
    }
    if (salto == 1) break;
    salto = std::max<std::int64_t>(1, salto / 2);
    while (m_copertura.Colonne() > 0) m_copertura.RimuoviColonna(m_copertura.Colonne() - 1);
    for (const auto& colonna : risultato.colonne) m_copertura.AggiungiColonna(colonna);
  }
  return risultato;
}

}  // namespace

RisultatoRicerca CercaConRicottura(Dimensioni d, std::uint64_t seme, int sforzo, std::int64_t minimo,
                                   const std::function<std::optional<EsitoRicerca>(const Copertura&, int)>& controllo) {
  Ricottura ricottura(d, seme, sforzo, controllo);
  return ricottura.Esegui(minimo);
}

}  // namespace lottolab::stats::ricerca
