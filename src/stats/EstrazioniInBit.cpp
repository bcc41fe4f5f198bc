#include "EstrazioniInBit.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>

namespace lottolab::stats {

namespace {

constexpr int kBitBasso = 64;

}  // namespace

// The group's numbers as a set and the rows of its wheels, with the hit test on one draw.
class EstrazioniInBit::Gruppo {
 public:
  Gruppo(const EstrazioniInBit& estrazioni, std::span<const int> ruote, std::span<const int> numeri, int sorte)
      : m_estrazioni(estrazioni), m_sorte(sorte) {
    assert(sorte >= 1 && sorte <= kNumeriPerRuota);
    for (int numero : numeri) {
      assert(numero >= 1 && numero <= kMassimoNumero);
      if (numero <= kBitBasso)
        m_giocati.basso |= uint64_t{1} << (numero - 1);
      else
        m_giocati.alto |= uint64_t{1} << (numero - 1 - kBitBasso);
    }
    for (int ruota : ruote) {
      assert(ruota >= 1 && ruota <= kTutteLeRuote);
      m_scelte |= ruota == kTutteLeRuote ? (1u << kNumeroRuote) - 1 : 1u << (ruota - 1);
    }
    const size_t riga = static_cast<size_t>(estrazioni.Estrazioni()) + 1;
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
      if (m_scelte & (1u << (ruota - 1))) m_righe[m_numero_ruote++] = estrazioni.m_numeri.data() + (ruota - 1) * riga;
  }

  bool Presente(int id) const { return m_estrazioni.m_ruote_estratte[id] != 0; }
  bool Conta(int id) const { return (m_estrazioni.m_ruote_estratte[id] & m_scelte) != 0; }

  int Vincite(int id) const {
    int vincite = 0;
    for (int i = 0; i < m_numero_ruote; ++i) {
      const Insieme& estratti = m_righe[i][id];
      const uint64_t basso = estratti.basso & m_giocati.basso;
      const uint64_t alto = estratti.alto & m_giocati.alto;
      if ((basso | alto) != 0 && std::popcount(basso) + std::popcount(alto) >= m_sorte) ++vincite;
    }
    return vincite;
  }

 private:
  const EstrazioniInBit& m_estrazioni;
  int m_sorte;
  Insieme m_giocati;
  unsigned m_scelte = 0;
  std::array<const Insieme*, kNumeroRuote> m_righe{};
  int m_numero_ruote = 0;
};

EstrazioniInBit::EstrazioniInBit(const TabellaEstrazioni& tab) {
  const int estrazioni = tab.EstrazioniArchivio();
  const size_t riga = static_cast<size_t>(estrazioni) + 1;
  m_numeri.assign(kNumeroRuote * riga, Insieme{});
  m_ruote_estratte.assign(riga, 0);
  for (int id = 1; id <= estrazioni; ++id) {
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      if (estrazione.RuotaEstratta(ruota)) m_ruote_estratte[id] |= static_cast<uint16_t>(1u << (ruota - 1));
      Insieme& insieme = m_numeri[(ruota - 1) * riga + id];
      for (int p = 1; p <= kNumeriPerRuota; ++p) {
        const int numero = estrazione.Numero(ruota, p);
        if (numero < 1 || numero > kMassimoNumero) continue;
        if (numero <= kBitBasso)
          insieme.basso |= uint64_t{1} << (numero - 1);
        else
          insieme.alto |= uint64_t{1} << (numero - 1 - kBitBasso);
      }
    }
  }
}

int EstrazioniInBit::Ritardo(std::span<const int> ruote, std::span<const int> numeri, int sorte, int inizio,
                             int fine) const {
  assert(inizio >= 1 && fine <= Estrazioni());
  const Gruppo gruppo(*this, ruote, numeri, sorte);
  int ritardo = 0;
  for (int id = fine; id >= inizio; --id) {
    if (!gruppo.Presente(id)) continue;
    if (gruppo.Vincite(id) > 0) return ritardo;
    if (gruppo.Conta(id)) ++ritardo;
  }
  return ritardo;
}

StatisticaNumero EstrazioniInBit::Statistica(std::span<const int> ruote, std::span<const int> numeri, int sorte,
                                             int inizio, int fine) const {
  assert(inizio >= 1 && fine <= Estrazioni());
  const Gruppo gruppo(*this, ruote, numeri, sorte);
  StatisticaNumero dati;
  int massimo_chiuso = 0;
  for (int id = inizio; id <= fine; ++id) {
    if (!gruppo.Presente(id)) continue;
    const int vincite = gruppo.Vincite(id);
    dati.frequenza += vincite;
    if (vincite > 0) {
      massimo_chiuso = std::max(massimo_chiuso, dati.ritardo);
      dati.ritardo = 0;
    } else if (gruppo.Conta(id)) {
      dati.storico = std::max(dati.storico, ++dati.ritardo);
    }
  }
  dati.incr_storico = std::max(dati.ritardo - massimo_chiuso, 0);
  return dati;
}

}  // namespace lottolab::stats
