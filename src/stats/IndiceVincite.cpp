#include "IndiceVincite.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <iterator>
#include <numeric>
#include <utility>

namespace lottolab::stats {

namespace {

constexpr unsigned kOgniPosizione = (1u << kNumeriPerRuota) - 1;
constexpr unsigned kOgniRuota = (1u << kNumeroRuote) - 1;

std::span<const int> NellIntervallo(std::span<const int> valori, int da, int a) {
  auto primo = std::lower_bound(valori.begin(), valori.end(), da);
  auto dopo = std::upper_bound(primo, valori.end(), a);
  return {primo, dopo};
}

// Calls uscita(numero, posizioni) for each number 1..90 on one wheel of a draw, with bit p - 1 set for
// each position p that holds it: a number that a damaged record repeats wins there once.
template <typename Uscita>
void PerOgniNumero(const Estrazione& estrazione, int ruota, Uscita uscita) {
  for (int p = 1; p <= kNumeriPerRuota; ++p) {
    const int numero = estrazione.Numero(ruota, p);
    if (numero < 1 || numero > kMassimoNumero) continue;
    bool gia_letto = false;
    for (int q = 1; q < p; ++q) gia_letto = gia_letto || estrazione.Numero(ruota, q) == numero;
    if (gia_letto) continue;
    unsigned posizioni = 0;
    for (int q = p; q <= kNumeriPerRuota; ++q)
      if (estrazione.Numero(ruota, q) == numero) posizioni |= 1u << (q - 1);
    uscita(numero, static_cast<uint8_t>(posizioni));
  }
}

// The wheels played on which a group wins in one draw, from the rows of wheels of its numbers. The
// sorte is a template argument so that the counters unroll into registers.
template <int kSorte>
class RuoteVincenti {
 public:
  RuoteVincenti(std::span<const uint16_t* const> righe, unsigned scelte) : m_righe(righe), m_scelte(scelte) {}

  unsigned operator()(int id) const {
    // Bit r - 1 of almeno[j] is set once j + 1 numbers of the group have come out on wheel r.
    std::array<unsigned, kSorte> almeno{};
    for (const uint16_t* riga : m_righe) {
      const unsigned ruote = riga[id];
      for (int j = kSorte - 1; j > 0; --j) almeno[j] |= almeno[j - 1] & ruote;
      almeno[0] |= ruote;
    }
    return almeno[kSorte - 1] & m_scelte;
  }

 private:
  std::span<const uint16_t* const> m_righe;
  unsigned m_scelte;
};

// azione(vincenti) with the RuoteVincenti of the sorte.
template <typename Azione>
auto ConLaSorte(int sorte, std::span<const uint16_t* const> righe, unsigned scelte, Azione azione) {
  switch (sorte) {
    case 1: return azione(RuoteVincenti<1>(righe, scelte));
    case 2: return azione(RuoteVincenti<2>(righe, scelte));
    case 3: return azione(RuoteVincenti<3>(righe, scelte));
    case 4: return azione(RuoteVincenti<4>(righe, scelte));
    default: return azione(RuoteVincenti<kNumeriPerRuota>(righe, scelte));
  }
}

}  // namespace

// A group as the walk over the sets of wheels reads it: one row per number, however often it was
// played, since a wheel's hit test counts each of its numbers once, and the wheels played as a set.
class IndiceVincite::Giocata {
 public:
  Giocata(const IndiceVincite& indice, std::span<const int> ruote, std::span<const int> numeri) {
    const size_t riga = static_cast<size_t>(indice.Estrazioni()) + 1;
    std::array<bool, kMassimoNumero + 1> letto{};
    for (int numero : numeri) {
      assert(numero >= 1 && numero <= kMassimoNumero);
      if (std::exchange(letto[numero], true)) continue;
      m_righe[m_numeri++] = indice.m_ruote_uscite.data() + static_cast<size_t>(numero - 1) * riga;
    }
    for (int ruota : ruote) {
      assert(ruota >= 1 && ruota <= kTutteLeRuote);
      m_scelte |= ruota == kTutteLeRuote ? kOgniRuota : 1u << (ruota - 1);
    }
  }

  std::span<const uint16_t* const> Righe() const { return {m_righe.data(), m_numeri}; }
  unsigned Scelte() const { return m_scelte; }

 private:
  std::array<const uint16_t*, kMassimoNumero> m_righe{};
  size_t m_numeri = 0;
  unsigned m_scelte = 0;
};

size_t IndiceVincite::Lista(int ruota, int numero) {
  return static_cast<size_t>(ruota - 1) * kMassimoNumero + static_cast<size_t>(numero - 1);
}

std::span<const int> IndiceVincite::Vincite(int ruota, int numero) const {
  const size_t lista = Lista(ruota, numero);
  return std::span<const int>(m_vincite).subspan(m_inizi[lista], m_inizi[lista + 1] - m_inizi[lista]);
}

IndiceVincite::IndiceVincite(const TabellaEstrazioni& tab) {
  const int estrazioni = tab.EstrazioniArchivio();
  const size_t riga = static_cast<size_t>(estrazioni) + 1;
  m_ruote_uscite.assign(kMassimoNumero * riga, 0);
  m_ruote_estratte.assign(riga, 0);
  for (std::vector<int>& contate : m_contate) contate.assign(riga, 0);
  m_inizi.assign(Lista(kNumeroRuote, kMassimoNumero) + 2, 0);
  for (int id = 1; id <= estrazioni; ++id) {
    const Estrazione& estrazione = tab[id];
    const bool presente = estrazione.Presente();
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      const bool estratta = presente && estrazione.RuotaEstratta(ruota);
      m_contate[ruota][id] = m_contate[ruota][id - 1] + (estratta ? 1 : 0);
      if (estratta) m_ruote_estratte[id] |= static_cast<uint16_t>(1u << (ruota - 1));
      if (!presente) continue;
      PerOgniNumero(estrazione, ruota, [&](int numero, uint8_t) {
        m_ruote_uscite[static_cast<size_t>(numero - 1) * riga + static_cast<size_t>(id)] |=
            static_cast<uint16_t>(1u << (ruota - 1));
        ++m_inizi[Lista(ruota, numero) + 1];
      });
    }
    // A present draw has Bari drawn, so it counts on all wheels together.
    m_contate[kTutteLeRuote][id] = m_contate[kTutteLeRuote][id - 1] + (presente ? 1 : 0);
  }
  // The walk above measured every list, so that this one fills them in place, end to end.
  std::partial_sum(m_inizi.begin(), m_inizi.end(), m_inizi.begin());
  m_vincite.resize(m_inizi.back());
  m_posizioni.resize(m_inizi.back());
  std::vector<size_t> libero(m_inizi.begin(), std::prev(m_inizi.end()));
  for (int id = 1; id <= estrazioni; ++id) {
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      PerOgniNumero(estrazione, ruota, [&](int numero, uint8_t posizioni) {
        const size_t posto = libero[Lista(ruota, numero)]++;
        m_vincite[posto] = id;
        m_posizioni[posto] = posizioni;
      });
    }
  }
}

StatisticaNumero IndiceVincite::Statistica(std::span<const int> vincite, int ruota, int inizio, int fine) const {
  if (fine < inizio) return {};
  const std::vector<int>& contate = m_contate[ruota];
  int contate_alla_vincita = contate[inizio - 1];
  int massimo_chiuso = 0;
  for (int id : vincite) {
    massimo_chiuso = std::max(massimo_chiuso, contate[id - 1] - contate_alla_vincita);
    contate_alla_vincita = contate[id];
  }
  StatisticaNumero dati;
  dati.ritardo = contate[fine] - contate_alla_vincita;
  dati.frequenza = static_cast<int>(vincite.size());
  dati.storico = std::max(massimo_chiuso, dati.ritardo);
  dati.incr_storico = std::max(dati.ritardo - massimo_chiuso, 0);
  return dati;
}

StatisticaNumero IndiceVincite::Estratto(int ruota, int numero, int inizio, int fine) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote && numero >= 1 && numero <= kMassimoNumero);
  assert(inizio >= 1 && fine <= Estrazioni());
  if (ruota == kTutteLeRuote) {
    const int numeri[] = {numero};
    return Gruppo(std::span<const int>(&ruota, 1), numeri, 1, inizio, fine);
  }
  return Statistica(NellIntervallo(Vincite(ruota, numero), inizio, fine), ruota, inizio, fine);
}

StatisticaNumero IndiceVincite::Ambo(int ruota, int a, int b, int inizio, int fine) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote && a != b);
  assert(a >= 1 && a <= kMassimoNumero && b >= 1 && b <= kMassimoNumero);
  assert(inizio >= 1 && fine <= Estrazioni());
  if (ruota == kTutteLeRuote) {
    const int numeri[] = {a, b};
    return Gruppo(std::span<const int>(&ruota, 1), numeri, 2, inizio, fine);
  }
  const auto uscite_a = NellIntervallo(Vincite(ruota, a), inizio, fine);
  const auto uscite_b = NellIntervallo(Vincite(ruota, b), inizio, fine);
  std::vector<int> vincite;
  std::set_intersection(uscite_a.begin(), uscite_a.end(), uscite_b.begin(), uscite_b.end(),
                        std::back_inserter(vincite));
  return Statistica(vincite, ruota, inizio, fine);
}

int IndiceVincite::UltimaVincita(int ruota, int numero, unsigned cercate, int inizio, int fine) const {
  const size_t primo = m_inizi[Lista(ruota, numero)];
  const std::span<const int> vincite = Vincite(ruota, numero);
  const auto dopo = std::upper_bound(vincite.begin(), vincite.end(), fine);
  for (size_t i = static_cast<size_t>(dopo - vincite.begin()); i-- > 0 && vincite[i] >= inizio;)
    if ((m_posizioni[primo + i] & cercate) != 0) return vincite[i];
  return inizio - 1;
}

int IndiceVincite::Ritardo(int ruota, int numero, int posizione, int inizio, int fine) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote && numero >= 1 && numero <= kMassimoNumero);
  assert(posizione >= 0 && posizione <= kNumeriPerRuota && inizio >= 1 && fine <= Estrazioni());
  if (fine < inizio) return 0;
  const unsigned cercate = posizione == 0 ? kOgniPosizione : 1u << (posizione - 1);
  int ultima = inizio - 1;
  if (ruota == kTutteLeRuote) {
    for (int r = 1; r <= kNumeroRuote; ++r) ultima = std::max(ultima, UltimaVincita(r, numero, cercate, inizio, fine));
  } else {
    ultima = UltimaVincita(ruota, numero, cercate, inizio, fine);
  }
  return m_contate[ruota][fine] - m_contate[ruota][ultima];
}

StatisticaNumero IndiceVincite::Gruppo(std::span<const int> ruote, std::span<const int> numeri, int sorte, int inizio,
                                       int fine) const {
  assert(sorte >= 1 && sorte <= kNumeriPerRuota && inizio >= 1 && fine <= Estrazioni());
  // One number or one ambo on one wheel reads its lists, which hold only the draws where it came out.
  if (ruote.size() == 1 && ruote[0] != kTutteLeRuote && numeri.size() == static_cast<size_t>(sorte)) {
    if (sorte == 1) return Estratto(ruote[0], numeri[0], inizio, fine);
    if (sorte == 2 && numeri[0] != numeri[1]) return Ambo(ruote[0], numeri[0], numeri[1], inizio, fine);
  }
  const Giocata giocata(*this, ruote, numeri);
  const unsigned scelte = giocata.Scelte();
  return ConLaSorte(sorte, giocata.Righe(), scelte, [&](const auto& vincenti) {
    StatisticaNumero dati;
    int massimo_chiuso = 0;
    for (int id = inizio; id <= fine; ++id) {
      if (const unsigned vinte = vincenti(id); vinte != 0) {
        dati.frequenza += std::popcount(vinte);
        massimo_chiuso = std::max(massimo_chiuso, dati.ritardo);
        dati.ritardo = 0;
      } else if ((m_ruote_estratte[id] & scelte) != 0) {
        ++dati.ritardo;
      }
    }
    dati.storico = std::max(massimo_chiuso, dati.ritardo);
    dati.incr_storico = std::max(dati.ritardo - massimo_chiuso, 0);
    return dati;
  });
}

int IndiceVincite::RitardoGruppo(std::span<const int> ruote, std::span<const int> numeri, int sorte, int inizio,
                                 int fine) const {
  assert(sorte >= 1 && sorte <= kNumeriPerRuota && inizio >= 1 && fine <= Estrazioni());
  if (ruote.size() == 1 && numeri.size() == 1 && sorte == 1) return Ritardo(ruote[0], numeri[0], 0, inizio, fine);
  const Giocata giocata(*this, ruote, numeri);
  const unsigned scelte = giocata.Scelte();
  return ConLaSorte(sorte, giocata.Righe(), scelte, [&](const auto& vincenti) {
    int ritardo = 0;
    for (int id = fine; id >= inizio; --id) {
      if (vincenti(id) != 0) break;
      if ((m_ruote_estratte[id] & scelte) != 0) ++ritardo;
    }
    return ritardo;
  });
}

}  // namespace lottolab::stats
