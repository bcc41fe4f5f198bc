#include "TerniRitardatari.h"

#include <algorithm>
#include <atomic>
#include <cassert>
#include <thread>

#include "TracciaVincite.h"

namespace lottolab::stats {

namespace {

// kPrimi[a]: the terni whose first number is below a. kCoppie[b]: the pairs {y, z} with y < b.
struct TavoleTerni {
  std::array<int, kMassimoNumero + 2> primi{};
  std::array<int, kMassimoNumero + 2> coppie{};

  constexpr TavoleTerni() {
    for (int a = 1; a <= kMassimoNumero; ++a) {
      const int restanti = kMassimoNumero - a;
      primi[a + 1] = primi[a] + restanti * (restanti - 1) / 2;
      coppie[a + 1] = coppie[a] + restanti;
    }
  }
};
constexpr TavoleTerni kTavole;

// A draw in every this many the threads look at the stop flag and the first reports its progress.
constexpr int kPassoControllo = 256;

struct Blocco {
  int primo = 0;
  int oltre = 0;
  std::vector<TracciaVincite> tracce;
  std::array<int, kTutteLeRuote + 1> contate{};
};

void Cammina(const TabellaEstrazioni& tab, int ruota, int inizio, int fine, Blocco& blocco, std::atomic<bool>& fermo,
             const ControlloCalcolo* controllo) {
  blocco.tracce.assign(static_cast<size_t>(blocco.oltre - blocco.primo), TracciaVincite{});
  const int prima_ruota = ruota == kTutteLeRuote ? 1 : ruota;
  const int ultima_ruota = ruota == kTutteLeRuote ? kNumeroRuote : ruota;
  int& contate = blocco.contate[ruota];
  for (int id = inizio; id <= fine; ++id) {
    if ((id - inizio) % kPassoControllo == 0) {
      if (controllo) {
        if (controllo->annullato && controllo->annullato()) fermo = true;
        if (controllo->progresso) controllo->progresso(static_cast<int>(100LL * (id - inizio) / (fine - inizio + 1)));
      }
      if (fermo) return;
    }
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    bool contata = ruota == kTutteLeRuote;
    for (int r = prima_ruota; r <= ultima_ruota; ++r) {
      std::array<int, kNumeriPerRuota> numeri{};
      int quanti = 0;
      for (int p = 1; p <= kNumeriPerRuota; ++p) {
        const int numero = estrazione.Numero(r, p);
        if (numero == 0 || numero > kMassimoNumero) continue;
        // In increasing order, by insertion: five numbers at most.
        int i = quanti++;
        for (; i > 0 && numeri[static_cast<size_t>(i - 1)] > numero; --i)
          numeri[static_cast<size_t>(i)] = numeri[static_cast<size_t>(i - 1)];
        numeri[static_cast<size_t>(i)] = numero;
      }
      const bool estratta = ruota == kTutteLeRuote || estrazione.RuotaEstratta(r);
      for (int i = 0; i < quanti; ++i)
        for (int j = i + 1; j < quanti; ++j)
          for (int k = j + 1; k < quanti; ++k) {
            const int a = numeri[i], b = numeri[j], c = numeri[k];
            if (a == b || b == c) continue;
            const int indice = IndiceTerno(a, b, c);
            if (indice < blocco.primo || indice >= blocco.oltre) continue;
            blocco.tracce[static_cast<size_t>(indice - blocco.primo)].Vince(contate, estratta);
          }
      contata = contata || estrazione.RuotaEstratta(r);
    }
    if (contata) ++contate;
  }
}

}  // namespace

int IndiceTerno(int a, int b, int c) {
  assert(a >= 1 && a < b && b < c && c <= kMassimoNumero);
  return kTavole.primi[a] + (kTavole.coppie[b] - kTavole.coppie[a + 1]) + (c - b - 1);
}

std::optional<std::vector<TernoStatistica>> CalcolaTerniRitardatari(const TabellaEstrazioni& tab, int ruota, int inizio,
                                                                    int fine, int quanti,
                                                                    const ControlloCalcolo& controllo, int thread) {
  assert(ruota >= 1 && ruota <= kTutteLeRuote && inizio >= 1 && fine <= tab.EstrazioniArchivio() && quanti >= 0);
  if (thread <= 0) thread = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  thread = std::min(thread, 16);

  std::vector<Blocco> blocchi(static_cast<size_t>(thread));
  for (int t = 0; t < thread; ++t) {
    blocchi[static_cast<size_t>(t)].primo = static_cast<int>(static_cast<long long>(kNumeroTerni) * t / thread);
    blocchi[static_cast<size_t>(t)].oltre = static_cast<int>(static_cast<long long>(kNumeroTerni) * (t + 1) / thread);
  }
  std::atomic<bool> fermo = false;
  {
    std::vector<std::jthread> lavoratori;
    for (int t = 1; t < thread; ++t)
      lavoratori.emplace_back(
          [&, t] { Cammina(tab, ruota, inizio, fine, blocchi[static_cast<size_t>(t)], fermo, nullptr); });
    Cammina(tab, ruota, inizio, fine, blocchi[0], fermo, &controllo);
  }
  if (fermo) return std::nullopt;
  if (controllo.progresso) controllo.progresso(100);

  std::vector<TernoStatistica> terni;
  const int contate = blocchi[0].contate[ruota];
  if (contate == 0) return terni;
  terni.reserve(kNumeroTerni);
  // The blocks lie end to end in the order of IndiceTerno, which is the order of these loops.
  auto blocco = blocchi.begin();
  int indice = 0;
  for (int a = 1; a <= kMassimoNumero; ++a)
    for (int b = a + 1; b <= kMassimoNumero; ++b)
      for (int c = b + 1; c <= kMassimoNumero; ++c, ++indice) {
        while (indice >= blocco->oltre) ++blocco;
        terni.push_back({{a, b, c}, blocco->tracce[static_cast<size_t>(indice - blocco->primo)].Statistica(contate)});
      }
  const auto prima = [](const TernoStatistica& x, const TernoStatistica& y) {
    if (x.dati.ritardo != y.dati.ritardo) return x.dati.ritardo > y.dati.ritardo;
    if (x.dati.storico != y.dati.storico) return x.dati.storico > y.dati.storico;
    return x.numeri < y.numeri;
  };
  const size_t tenuti = quanti == 0 ? terni.size() : std::min(terni.size(), static_cast<size_t>(quanti));
  std::partial_sort(terni.begin(), terni.begin() + static_cast<long>(tenuti), terni.end(), prima);
  terni.resize(tenuti);
  return terni;
}

}  // namespace lottolab::stats
