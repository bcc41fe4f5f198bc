#include "Ritardi.h"

#include "Andamento.h"

#include <algorithm>
#include <cassert>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace lottolab::stats {

namespace {

// The played numbers, selected wheels and flagged positions in the shape the walks read fastest:
// flags indexed by number and by position, and the offsets of the selected wheels in a record.
class Giocata {
 public:
  Giocata(std::span<const int> ruote, std::span<const int> numeri, int sorte, const Posizioni& posizioni)
      : m_sorte(sorte) {
    assert(sorte >= 1 && sorte <= kNumeriPerRuota);
    for (int numero : numeri) {
      assert(numero >= 1 && numero <= kMassimoNumero);
      for (int p = 0; p < kNumeriPerRuota; ++p) m_giocato[p][numero] = posizioni[p] ? 1 : 0;
    }
    std::array<bool, kNumeroRuote + 1> scelta{};
    for (int ruota : ruote) {
      assert(ruota >= 1 && ruota <= kTutteLeRuote);
      if (ruota == kTutteLeRuote)
        std::fill(scelta.begin() + 1, scelta.end(), true);
      else
        scelta[ruota] = true;
    }
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
      if (scelta[ruota]) m_basi[m_numero_ruote++] = (ruota - 1) * kNumeriPerRuota;
  }

  // Played numbers among the flagged positions of a wheel's five numbers.
  int Colpi(const uint8_t* numeri) const {
    return m_giocato[0][numeri[0]] + m_giocato[1][numeri[1]] + m_giocato[2][numeri[2]] + m_giocato[3][numeri[3]] +
           m_giocato[4][numeri[4]];
  }

  // The delay walk: backwards from `fine`, wheel by wheel in table order; the first winning wheel
  // ends the walk before its draw is counted.
  template <typename Fonte>
  int Ritardo(const Fonte& fonte, int inizio, int fine) const {
    int contatore = 0;
    for (int id = fine; id >= inizio; --id) {
      if (!fonte.Presente(id)) continue;
      bool conta = false;
      for (int i = 0; i < m_numero_ruote; ++i) {
        const uint8_t* numeri = fonte.Numeri(id, m_basi[i]);
        if (numeri[0] != 0) conta = true;
        if (Colpi(numeri) >= m_sorte) return contatore;
      }
      if (conta) ++contatore;
    }
    return contatore;
  }

  bool UnaRuota() const { return m_numero_ruote == 1; }

  // The same test over every selected wheel, for the walks that count wins. The walks of one wheel,
  // the most frequent, know it at compile time and lose the loop.
  template <bool kUnaRuota, typename Fonte>
  Esame Esamina(const Fonte& fonte, int id) const {
    Esame esame;
    if (!fonte.Presente(id)) return esame;
    const int numero_ruote = kUnaRuota ? 1 : m_numero_ruote;
    for (int i = 0; i < numero_ruote; ++i) {
      const uint8_t* numeri = fonte.Numeri(id, m_basi[i]);
      if (numeri[0] != 0) esame.conta = true;
      if (Colpi(numeri) >= m_sorte) ++esame.vincite;
    }
    return esame;
  }

 private:
  int m_sorte;
  // For each position, whether a number held there is played and the position flagged: one flag for
  // every value a byte can hold, so that a damaged record cannot read past the end.
  std::array<std::array<uint8_t, 256>, kNumeriPerRuota> m_giocato{};
  std::array<int, kNumeroRuote> m_basi{};
  int m_numero_ruote = 0;
};

// The draws as the walks read them, record by record.
class FonteTabella {
 public:
  explicit FonteTabella(const TabellaEstrazioni& tab) : m_tab(tab) {}
  int Estrazioni() const { return m_tab.EstrazioniArchivio(); }
  bool Presente(int id) const { return m_tab[id].Presente(); }
  const uint8_t* Numeri(int id, int base) const { return &m_tab[id].numeri[base]; }

 private:
  const TabellaEstrazioni& m_tab;
};

template <typename Fonte>
void ControllaIntervallo([[maybe_unused]] const Fonte& fonte, [[maybe_unused]] int inizio, [[maybe_unused]] int fine) {
  assert(inizio >= 1 && fine <= fonte.Estrazioni());
}

template <bool kUnaRuota, typename Fonte>
Andamento Percorri(const Fonte& fonte, const Giocata& giocata, int inizio, int fine) {
  Andamento andamento;
  for (int id = inizio; id <= fine; ++id) andamento.Aggiungi(giocata.Esamina<kUnaRuota>(fonte, id));
  return andamento;
}

template <typename Fonte>
Andamento Percorri(const Fonte& fonte, const Giocata& giocata, int inizio, int fine) {
  ControllaIntervallo(fonte, inizio, fine);
  return giocata.UnaRuota() ? Percorri<true>(fonte, giocata, inizio, fine)
                            : Percorri<false>(fonte, giocata, inizio, fine);
}

template <typename Valore>
std::vector<int> Serie(const TabellaEstrazioni& tab, const Giocata& giocata, int inizio, int fine, Valore valore) {
  const FonteTabella fonte(tab);
  ControllaIntervallo(fonte, inizio, fine);
  std::vector<int> serie;
  if (fine < inizio) return serie;
  serie.reserve(static_cast<size_t>(fine - inizio + 1));
  Andamento andamento;
  for (int id = inizio; id <= fine; ++id) {
    andamento.Aggiungi(giocata.Esamina<false>(fonte, id));
    serie.push_back(valore(andamento));
  }
  return serie;
}

int InizioPredefinito(int inizio) { return inizio == 0 ? 1 : inizio; }
int FinePredefinita(const TabellaEstrazioni& tab, int fine) { return fine == 0 ? tab.EstrazioniArchivio() : fine; }

}  // namespace

int RitardoCombinazione(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                        int sorte, int fine, const Posizioni& posizioni, int inizio) {
  const FonteTabella fonte(tab);
  ControllaIntervallo(fonte, inizio, fine);
  return Giocata(ruote, numeri, sorte, posizioni).Ritardo(fonte, inizio, fine);
}

int FrequenzaCombinazione(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                          int sorte, int fine, const Posizioni& posizioni, int inizio) {
  return Percorri(FonteTabella(tab), Giocata(ruote, numeri, sorte, posizioni), inizio, fine).frequenza;
}

int StoricoCombinazione(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                        int sorte, int fine, const Posizioni& posizioni, int inizio) {
  return Percorri(FonteTabella(tab), Giocata(ruote, numeri, sorte, posizioni), inizio, fine).storico;
}

int IncrStoricoCombinazione(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                            int sorte, int fine, const Posizioni& posizioni, int inizio) {
  return Percorri(FonteTabella(tab), Giocata(ruote, numeri, sorte, posizioni), inizio, fine).IncrStorico();
}

StatisticaNumero StatisticaCombinazione(const TabellaEstrazioni& tab, std::span<const int> ruote,
                                        std::span<const int> numeri, int sorte, int fine, const Posizioni& posizioni,
                                        int inizio) {
  return Figure(Percorri(FonteTabella(tab), Giocata(ruote, numeri, sorte, posizioni), inizio, fine));
}

ColonneRuote::ColonneRuote(const TabellaEstrazioni& tab) : m_estrazioni(tab.EstrazioniArchivio()) {
  for (std::vector<uint8_t>& colonna : m_colonne)
    colonna.assign(static_cast<size_t>(m_estrazioni) * kNumeriPerRuota, 0);
  for (int id = 1; id <= m_estrazioni; ++id) {
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    for (int ruota = 0; ruota < kNumeroRuote; ++ruota) {
      const auto inizio = estrazione.numeri.begin() + ruota * kNumeriPerRuota;
      std::copy(inizio, inizio + kNumeriPerRuota,
                m_colonne[static_cast<size_t>(ruota)].begin() + static_cast<std::ptrdiff_t>(id - 1) * kNumeriPerRuota);
    }
  }
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
    std::vector<int>& contate = m_contate[static_cast<size_t>(ruota - 1)];
    contate.assign(static_cast<size_t>(m_estrazioni) + 1, 0);
    for (int id = 1; id <= m_estrazioni; ++id)
      contate[static_cast<size_t>(id)] =
          contate[static_cast<size_t>(id - 1)] + (Numeri(id, (ruota - 1) * kNumeriPerRuota)[0] != 0);
  }
}

namespace {

// One number on one wheel in every position, what scripts ask most, thousands of times in a run: the
// draws where the number came out are found by comparing the wheel's column sixteen bytes at a time,
// and the delay before each comes from the counted draws, so no draw is examined one by one. The
// figures are those of the walk: a win resets the delay even in a draw the wheel does not count in,
// and a damaged record that repeats the number wins once.
Andamento UnNumeroSuUnaRuota(const ColonneRuote& colonne, int ruota, int numero, int inizio, int fine) {
  Andamento andamento;
  int precedente = inizio - 1;
  auto vincita = [&](int id) {
    if (id == precedente) return;
    const int attesa = colonne.Contate(ruota, id - 1) - colonne.Contate(ruota, precedente);
    andamento.massimo_chiuso = std::max(andamento.massimo_chiuso, attesa);
    andamento.storico = std::max(andamento.storico, attesa);
    ++andamento.frequenza;
    precedente = id;
  };
  const uint8_t* colonna = colonne.Colonna(ruota);
  size_t i = static_cast<size_t>(inizio - 1) * kNumeriPerRuota;
  const size_t fine_byte = static_cast<size_t>(fine) * kNumeriPerRuota;
  const auto cercato = static_cast<uint8_t>(numero);
#ifdef __SSE2__
  const __m128i ripetuto = _mm_set1_epi8(static_cast<char>(cercato));
  for (; i + 16 <= fine_byte; i += 16) {
    const __m128i blocco = _mm_loadu_si128(reinterpret_cast<const __m128i*>(colonna + i));
    for (auto uguali = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(blocco, ripetuto))); uguali != 0;
         uguali &= uguali - 1)
      vincita(static_cast<int>((i + static_cast<size_t>(__builtin_ctz(uguali))) / kNumeriPerRuota) + 1);
  }
#endif
  for (; i < fine_byte; ++i)
    if (colonna[i] == cercato) vincita(static_cast<int>(i / kNumeriPerRuota) + 1);
  andamento.ritardo = colonne.Contate(ruota, fine) - colonne.Contate(ruota, precedente);
  andamento.storico = std::max(andamento.storico, andamento.ritardo);
  return andamento;
}

}  // namespace

StatisticaNumero StatisticaCombinazione(const ColonneRuote& colonne, std::span<const int> ruote,
                                        std::span<const int> numeri, int sorte, int fine, const Posizioni& posizioni,
                                        int inizio) {
  ControllaIntervallo(colonne, inizio, fine);
  if (ruote.size() == 1 && ruote[0] != kTutteLeRuote && numeri.size() == 1 && sorte == 1 &&
      posizioni == kTuttePosizioni && inizio <= fine)
    return Figure(UnNumeroSuUnaRuota(colonne, ruote[0], numeri[0], inizio, fine));
  return Figure(Percorri(colonne, Giocata(ruote, numeri, sorte, posizioni), inizio, fine));
}

std::vector<int> SerieRitardo(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                              int sorte, int fine, const Posizioni& posizioni, int inizio) {
  return Serie(tab, Giocata(ruote, numeri, sorte, posizioni), inizio, fine,
               [](const Andamento& a) { return a.ritardo; });
}

std::vector<int> SerieFreq(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                           int sorte, int fine, const Posizioni& posizioni, int inizio) {
  return Serie(tab, Giocata(ruote, numeri, sorte, posizioni), inizio, fine,
               [](const Andamento& a) { return a.frequenza; });
}

std::vector<int> SerieStorico(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                              int sorte, int fine, const Posizioni& posizioni, int inizio) {
  return Serie(tab, Giocata(ruote, numeri, sorte, posizioni), inizio, fine,
               [](const Andamento& a) { return a.storico; });
}

int EstrattoRitardo(const TabellaEstrazioni& tab, int ruota, int numero, int inizio, int fine,
                    const Posizioni& posizioni) {
  const std::array ruote{ruota};
  const std::array numeri{numero};
  return RitardoCombinazione(tab, ruote, numeri, 1, FinePredefinita(tab, fine), posizioni, InizioPredefinito(inizio));
}

int EstrattoFrequenza(const TabellaEstrazioni& tab, int ruota, int numero, int inizio, int fine,
                      const Posizioni& posizioni) {
  const std::array ruote{ruota};
  const std::array numeri{numero};
  return FrequenzaCombinazione(tab, ruote, numeri, 1, FinePredefinita(tab, fine), posizioni, InizioPredefinito(inizio));
}

int EstrattoStorico(const TabellaEstrazioni& tab, int ruota, int numero, int inizio, int fine,
                    const Posizioni& posizioni) {
  const std::array ruote{ruota};
  const std::array numeri{numero};
  return StoricoCombinazione(tab, ruote, numeri, 1, FinePredefinita(tab, fine), posizioni, InizioPredefinito(inizio));
}

int EstrattoIncrStorico(const TabellaEstrazioni& tab, int ruota, int numero, int inizio, int fine,
                        const Posizioni& posizioni) {
  const std::array ruote{ruota};
  const std::array numeri{numero};
  return IncrStoricoCombinazione(tab, ruote, numeri, 1, FinePredefinita(tab, fine), posizioni,
                                 InizioPredefinito(inizio));
}

int AmboRitardo(const TabellaEstrazioni& tab, int ruota, int n1, int n2, int inizio, int fine,
                const Posizioni& posizioni) {
  const std::array ruote{ruota};
  const std::array numeri{n1, n2};
  return RitardoCombinazione(tab, ruote, numeri, 2, FinePredefinita(tab, fine), posizioni, InizioPredefinito(inizio));
}

int AmboFrequenza(const TabellaEstrazioni& tab, int ruota, int n1, int n2, int inizio, int fine,
                  const Posizioni& posizioni) {
  const std::array ruote{ruota};
  const std::array numeri{n1, n2};
  return FrequenzaCombinazione(tab, ruote, numeri, 2, FinePredefinita(tab, fine), posizioni, InizioPredefinito(inizio));
}

}  // namespace lottolab::stats
