#include "Progressione.h"

#include <fmt/format.h>

#include <numeric>

namespace lottolab::stats {

namespace {

// Any numbers and wheels of the right count: the prize depends on the counts alone.
PuntataLotto Puntata(const ParametriProgressione& p, Centesimi posta) {
  PuntataLotto puntata{p.sorte, std::vector<int>(static_cast<size_t>(p.numeri)),
                       std::vector<int>(static_cast<size_t>(p.ruote)), posta, 0};
  std::iota(puntata.numeri.begin(), puntata.numeri.end(), 1);
  std::iota(puntata.ruote.begin(), puntata.ruote.end(), 1);
  return puntata;
}

// The first multiple of `passo` at or above `minimo`.
Centesimi MultiploDa(Centesimi minimo, Centesimi passo) { return (minimo + passo - 1) / passo * passo; }

}  // namespace

Centesimi VincitaMinimaNetta(const ParametriProgressione& parametri, Centesimi posta) {
  return TassaVincitaLotto(PremioPerCombinazione(Puntata(parametri, posta), parametri.data), parametri.data).netto;
}

Esito<std::vector<Centesimi>> VettoreProgressione(const ParametriProgressione& p) {
  const PosteLotto& limiti = LimitiPosteLotto();
  if (p.sorte < SorteLotto::Estratto || p.sorte > SorteLotto::Cinquina)
    return AvvisoEsclamativo("la progressione si calcola per le sorti da estratto a cinquina");
  if (p.colpi < 1) return AvvisoEsclamativo(fmt::format("colpi non validi: {} (almeno 1)", p.colpi));
  if (p.utile < 0) return AvvisoEsclamativo("l'utile minimo non può essere negativo");
  if (p.passo < 1 || p.passo > limiti.massima_biglietto)
    return AvvisoEsclamativo(fmt::format("passo non valido: {} euro", FormattaEuro(p.passo)));
  if (p.ruote < 1 || p.ruote > kNumeroRuote)
    return AvvisoEsclamativo(fmt::format("ruote non valide: {} (da 1 a {})", p.ruote, kNumeroRuote));
  const Centesimi prima = MultiploDa(std::max(p.posta_minima, limiti.minima_sorte), p.passo);
  if (auto controllo = ControllaPuntata(Puntata(p, prima), p.data); !controllo) return controllo.Errore();

  std::vector<Centesimi> poste;
  Centesimi spesa = 0;
  Centesimi posta = prima;
  for (int colpo = 1; colpo <= p.colpi; ++colpo) {
    // The net win grows with the stake, so the first stake that covers is the smallest; the one of
    // the colpo before is where the search starts, since what must be covered only grows.
    while (posta <= limiti.massima_biglietto && VincitaMinimaNetta(p, posta) < spesa + posta + p.utile)
      posta += p.passo;
    if (posta > limiti.massima_biglietto) break;
    poste.push_back(posta);
    spesa += posta;
  }
  return poste;
}

}  // namespace lottolab::stats
