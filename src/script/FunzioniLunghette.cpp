// The most delayed lunghette: among the groups of Classe numbers taken from a set, those whose delay
// for a sorte is the largest.
//
// A development holds up to a million groups, so their delays are not measured one by one. A single
// walk back from Fine settles each group at the first draw where it wins, by the rules of Ritardi.h,
// and stops as soon as no group is left open; the groups still open at the first draw never won.

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <numeric>
#include <span>
#include <vector>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "RitardoConRegola.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

constexpr int64_t kMassimoLunghette = 1'000'000;

// C(n, k) for n up to 90, held no higher than just above kMassimoLunghette: a development is refused
// past that, and below it every value an index needs is exact.
class Binomiali {
 public:
  explicit Binomiali(int classe)
      : m_classe(classe), m_valori(static_cast<size_t>((kMassimoNumero + 1) * (classe + 1))) {
    for (int n = 0; n <= kMassimoNumero; ++n) {
      Valore(n, 0) = 1;
      for (int k = 1; k <= classe && n > 0; ++k)
        Valore(n, k) = std::min(Valore(n - 1, k - 1) + Valore(n - 1, k), kMassimoLunghette + 1);
    }
  }
  int64_t operator()(int n, int k) const { return m_valori[Posto(n, k)]; }

 private:
  size_t Posto(int n, int k) const { return static_cast<size_t>(n * (m_classe + 1) + k); }
  int64_t& Valore(int n, int k) { return m_valori[Posto(n, k)]; }

  int m_classe;
  std::vector<int64_t> m_valori;
};

// The places of the set drawn on one wheel of a draw. A number that a damaged record repeats on a wheel
// counts once: no real draw repeats one.
class Estratti {
 public:
  void Azzera(int posti) {
    m_preso.fill(false);
    m_da_qui.fill(0);
    m_posti = posti;
    m_quanti = 0;
  }
  void Aggiungi(int posto) {
    if (m_preso[static_cast<size_t>(posto)]) return;
    m_preso[static_cast<size_t>(posto)] = true;
    ++m_quanti;
  }
  // Counts, once all are added, the places drawn from each place on.
  void Chiudi() {
    for (int posto = m_posti - 1; posto >= 0; --posto)
      m_da_qui[static_cast<size_t>(posto)] =
          m_da_qui[static_cast<size_t>(posto) + 1] + (m_preso[static_cast<size_t>(posto)] ? 1 : 0);
  }
  int Quanti() const { return m_quanti; }
  bool Preso(int posto) const { return m_preso[static_cast<size_t>(posto)]; }
  int DaQui(int posto) const { return m_da_qui[static_cast<size_t>(posto)]; }

 private:
  std::array<bool, kMassimoNumero> m_preso{};
  std::array<int, kMassimoNumero + 1> m_da_qui{};
  int m_posti = 0;
  int m_quanti = 0;
};

// The groups are numbered by their places in the set, 0..n-1, in colexicographic order. The places go
// from the largest number down, so that this order is the reverse of the numbers' lexicographic one
// and a tie on the delay is broken by the index alone.
class Sviluppo {
 public:
  Sviluppo(std::vector<int> numeri, int classe) : m_classe(classe), m_binomiali(classe) {
    std::sort(numeri.begin(), numeri.end(), std::greater<>());
    numeri.erase(std::unique(numeri.begin(), numeri.end()), numeri.end());
    m_numeri = std::move(numeri);
    m_posto.fill(-1);
    for (size_t i = 0; i < m_numeri.size(); ++i) m_posto[static_cast<size_t>(m_numeri[i])] = static_cast<int>(i);
  }

  int Numeri() const { return static_cast<int>(m_numeri.size()); }
  int64_t Gruppi() const { return m_binomiali(Numeri(), m_classe); }
  // The place of a number drawn, -1 when it is not in the set; a draw holds numbers up to 255.
  int Posto(uint8_t numero) const { return numero <= kMassimoNumero ? m_posto[numero] : -1; }

  // Calls visita with the index of every group that holds at least `sorte` of the places drawn.
  template <typename Visita>
  void Vincenti(const Estratti& estratti, int sorte, Visita visita) const {
    Scegli(0, 0, 0, 0, estratti, sorte, visita);
  }

  // The numbers of a group, increasing.
  std::vector<int> Gruppo(int64_t indice) const {
    std::vector<int> numeri;
    int posto = Numeri();
    for (int k = m_classe; k >= 1; --k) {
      do {
        --posto;
      } while (m_binomiali(posto, k) > indice);
      indice -= m_binomiali(posto, k);
      numeri.push_back(m_numeri[static_cast<size_t>(posto)]);
    }
    return numeri;
  }

 private:
  // Chooses the place of element `scelti` from `da` on, `presi` of the places before it being drawn;
  // the branches that can no longer reach `sorte` are cut.
  template <typename Visita>
  void Scegli(int da, int scelti, int presi, int64_t indice, const Estratti& estratti, int sorte,
              Visita& visita) const {
    if (scelti == m_classe) {
      visita(indice);
      return;
    }
    const int restanti = m_classe - scelti;
    for (int posto = da; posto <= Numeri() - restanti; ++posto) {
      const int ancora = estratti.DaQui(posto);
      if (presi + std::min(ancora, restanti) < sorte) return;
      const int preso = estratti.Preso(posto) ? 1 : 0;
      if (presi + preso + std::min(ancora - preso, restanti - 1) < sorte) continue;
      Scegli(posto + 1, scelti + 1, presi + preso, indice + m_binomiali(posto, scelti + 1), estratti, sorte, visita);
    }
  }

  int m_classe;
  Binomiali m_binomiali;
  std::vector<int> m_numeri;  // decreasing: element i is the number at place i
  std::array<int, kMassimoNumero + 1> m_posto{};
};

// The delay of every group at `fine`, by index; the user's interruption ends the walk.
Result<std::vector<int>> RitardiGruppi(const Libreria& lib, const TabellaEstrazioni& tab, const Sviluppo& sviluppo,
                                       std::span<const int> ruote, int sorte, int fine) {
  constexpr int kAperto = -1;
  std::vector<int> ritardi(static_cast<size_t>(sviluppo.Gruppi()), kAperto);
  int64_t aperti = sviluppo.Gruppi();
  int contate = 0;
  Estratti estratti;
  for (int id = fine; id >= 1 && aperti > 0; --id) {
    VBS_TRY(lib.ControllaInterruzione());
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    for (int ruota : ruote) {
      estratti.Azzera(sviluppo.Numeri());
      for (int p = 1; p <= kNumeriPerRuota; ++p) {
        const int posto = sviluppo.Posto(estrazione.Numero(ruota, p));
        if (posto >= 0) estratti.Aggiungi(posto);
      }
      if (estratti.Quanti() < sorte) continue;
      estratti.Chiudi();
      sviluppo.Vincenti(estratti, sorte, [&](int64_t indice) {
        int& ritardo = ritardi[static_cast<size_t>(indice)];
        if (ritardo != kAperto) return;
        ritardo = contate;
        --aperti;
      });
    }
    if (Contata(estrazione, ruote)) ++contate;
  }
  std::replace(ritardi.begin(), ritardi.end(), kAperto, contate);
  return ritardi;
}

// aRet(riga, 1..Classe + 1): the numbers of the group, then its delay.
Result<Variant> Matrice(const Sviluppo& sviluppo, std::span<const int64_t> scelti, const std::vector<int>& ritardi,
                        int classe) {
  const int32_t righe = static_cast<int32_t>(scelti.size());
  const vbs::ArrayBound limiti[] = {{1, righe}, {1, classe + 1}};
  VBS_TRY_ASSIGN(auto array, vbs::SafeArray::Create(limiti));
  auto elementi = (array)->elements();
  // The first index varies fastest in storage.
  const auto elemento = [&](int32_t riga, int colonna) -> Variant& {
    return elementi[static_cast<size_t>(riga + colonna * righe)];
  };
  for (int32_t riga = 0; riga < righe; ++riga) {
    const int64_t indice = scelti[static_cast<size_t>(riga)];
    const std::vector<int> numeri = sviluppo.Gruppo(indice);
    for (int colonna = 0; colonna < classe; ++colonna)
      elemento(riga, colonna) = Variant::Long(numeri[static_cast<size_t>(colonna)]);
    elemento(riga, classe) = Variant::Long(ritardi[static_cast<size_t>(indice)]);
  }
  return Variant::Array(std::move(array));
}

Result<Variant> GetLunghettePiuRitardate(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto numeri, NumeriArgomento(args, 0));
  if (numeri.empty()) return ArgomentoNonValido("Nessun numero indicato");
  std::sort(numeri.begin(), numeri.end());
  numeri.erase(std::unique(numeri.begin(), numeri.end()), numeri.end());
  VBS_TRY_ASSIGN(auto classe, InteroTra(args, 1, 1, static_cast<int>(numeri.size()), "Classe"));
  const Sviluppo sviluppo(std::move(numeri), classe);
  if (sviluppo.Gruppi() > kMassimoLunghette) {
    return ArgomentoNonValido(fmt::format("Troppe lunghette: {} numeri in classe {} superano 1.000.000 combinazioni",
                                          sviluppo.Numeri(), classe));
  }
  VBS_TRY_ASSIGN(auto ruote, RuoteGiocate(args, 2));
  VBS_TRY_ASSIGN(auto sorte, SorteArgomento(args, 3));
  if (sorte > classe)
    return ArgomentoNonValido(fmt::format("La sorte {} supera la classe {} delle lunghette", sorte, classe));
  VBS_TRY_ASSIGN(auto quante, args.Long(4));
  if (quante < 1) return ArgomentoNonValido(fmt::format("Quante non valida: {} (almeno 1)", quante));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomento(*archivio, args, std::nullopt, 6));

  VBS_TRY_ASSIGN(auto calcolati, RitardiGruppi(lib, *archivio, sviluppo, RuoteSingole(ruote), sorte, intervallo.fine));
  const std::vector<int>& ritardi = calcolati;
  std::vector<int64_t> ordine(ritardi.size());
  std::iota(ordine.begin(), ordine.end(), 0);
  const auto righe = static_cast<ptrdiff_t>(std::min<int64_t>(quante, sviluppo.Gruppi()));
  std::partial_sort(ordine.begin(), ordine.begin() + righe, ordine.end(), [&](int64_t a, int64_t b) {
    const int ra = ritardi[static_cast<size_t>(a)];
    const int rb = ritardi[static_cast<size_t>(b)];
    return ra != rb ? ra > rb : a > b;
  });
  VBS_TRY_ASSIGN(auto matrice, Matrice(sviluppo, std::span(ordine).first(static_cast<size_t>(righe)), ritardi, classe));
  args.Out(5) = std::move(matrice);
  return Variant::Long(static_cast<int32_t>(righe));
}

const Libreria::Funzione kLunghette[] = {
    {"GetLunghettePiuRitardate", 6, 7, &GetLunghettePiuRitardate,
     "aNumeri, Classe, aRuote, Sorte, Quante, aRet, [Fine = ultima estrazione]: tra le lunghette di Classe numeri "
     "presi da aNumeri (al massimo 1.000.000), le Quante con il ritardo maggiore per Sorte (1..Classe) su aRuote a "
     "Fine; riempie aRet(1..righe, 1..Classe + 1) con i numeri di ogni lunghetta in ordine crescente e poi il suo "
     "ritardo, dalla più ritardata in giù, a pari ritardo prima quella con i numeri più piccoli; restituisce le "
     "righe, Quante o tutte le lunghette se sono meno (Long)",
     "Long: le righe di aRet; in aRet(riga, 1..Classe + 1) i numeri e il ritardo",
     "n = GetLunghettePiuRitardate(Array(1, 2, 3, 4, 5, 6, 7, 8, 9, 10), 3, Array(BA_), AMBO_, 5, aL) : Scrivi aL(1, "
     "1) & \"-\" & aL(1, 2) & \"-\" & aL(1, 3) & \" rit \" & aL(1, 4)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniLunghette() { return kLunghette; }

}  // namespace lottolab::script
