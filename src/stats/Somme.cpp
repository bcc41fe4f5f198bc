#include "stats/Somme.h"

#include <algorithm>

namespace lottolab::stats {

namespace {

constexpr int kPassoControllo = 512;

}  // namespace

std::vector<double> ProbabilitaSomme(int quanti, int massimo) {
  if (quanti < 1 || quanti > massimo) return {};
  const int minima = quanti * (quanti + 1) / 2;
  const int massima = quanti * (2 * massimo - quanti + 1) / 2;
  // modi[k][s]: the sets of k distinct numbers among those seen so far whose sum is s. Counts reach
  // C(90, 20) ~ 5e19, beyond 64 bits, so they are doubles.
  std::vector<std::vector<double>> modi(static_cast<size_t>(quanti) + 1,
                                        std::vector<double>(static_cast<size_t>(massima) + 1, 0.0));
  modi[0][0] = 1;
  for (int numero = 1; numero <= massimo; ++numero)
    for (int k = std::min(quanti, numero); k >= 1; --k)
      for (int s = massima; s >= numero; --s)
        modi[static_cast<size_t>(k)][static_cast<size_t>(s)] +=
            modi[static_cast<size_t>(k - 1)][static_cast<size_t>(s - numero)];
  const std::vector<double>& ultimi = modi[static_cast<size_t>(quanti)];
  double totale = 0;
  for (double m : ultimi) totale += m;
  std::vector<double> probabilita;
  probabilita.reserve(static_cast<size_t>(massima - minima + 1));
  for (int s = minima; s <= massima; ++s) probabilita.push_back(ultimi[static_cast<size_t>(s)] / totale);
  return probabilita;
}

std::optional<AnalisiSomme> CalcolaSomme(const EstrazioniPerAnalisi& estrazioni, const RichiestaSomme& richiesta,
                                         const ControlloCalcolo& controllo) {
  AnalisiSomme analisi;
  analisi.ruote = RuoteValide(estrazioni, richiesta.ruote);
  analisi.posizioni = richiesta.posizioni >= 1 && richiesta.posizioni <= estrazioni.numeri_per_ruota
                          ? richiesta.posizioni
                          : estrazioni.numeri_per_ruota;
  const int minima = analisi.posizioni * (analisi.posizioni + 1) / 2;
  const std::vector<double> probabilita = ProbabilitaSomme(analisi.posizioni, estrazioni.massimo);
  for (size_t i = 0; i < probabilita.size(); ++i) analisi.valori.push_back({minima + static_cast<int>(i), 0, 0, 0, 0});

  const int inizio = std::max(1, richiesta.inizio);
  const int fine = richiesta.fine <= 0 ? estrazioni.Estrazioni() : std::min(richiesta.fine, estrazioni.Estrazioni());
  // The delay of a value counts the draws after its last one: the draw counter at that time is kept.
  std::vector<int> contatore_ultima(analisi.valori.size(), 0);
  int contate = 0;
  for (int id = inizio; id <= fine; ++id) {
    if ((id - inizio) % kPassoControllo == 0) {
      if (controllo.annullato && controllo.annullato()) return std::nullopt;
      if (controllo.progresso) controllo.progresso((id - inizio) * 100 / std::max(1, fine - inizio + 1));
    }
    SommeEstrazione riga{id, {}};
    bool estratta = false;
    for (int ruota : analisi.ruote) {
      if (!estrazioni.RuotaEstratta(id, ruota)) {
        riga.somme.push_back(-1);
        continue;
      }
      const auto numeri = estrazioni.Numeri(id, ruota).first(static_cast<size_t>(analisi.posizioni));
      int somma = 0;
      for (uint8_t numero : numeri) somma += numero;
      riga.somme.push_back(somma);
      estratta = true;
      ++analisi.conteggiate;
      const int indice = somma - minima;
      // A damaged wheel (a 0 or a repeated number) can fall outside the possible sums: it is shown, not counted.
      if (indice < 0 || indice >= static_cast<int>(analisi.valori.size())) continue;
      ValoreSomma& valore = analisi.valori[static_cast<size_t>(indice)];
      ++valore.uscite;
      valore.ultima = id;
      contatore_ultima[static_cast<size_t>(indice)] = contate + 1;
    }
    if (!estratta) continue;
    ++contate;
    analisi.estrazioni.push_back(std::move(riga));
  }
  for (size_t i = 0; i < analisi.valori.size(); ++i) {
    analisi.valori[i].ritardo = contate - contatore_ultima[i];
    analisi.valori[i].attese = probabilita[i] * analisi.conteggiate;
  }
  return analisi;
}

std::vector<ClasseSomme> ClassiDiSomme(const AnalisiSomme& analisi, int ampiezza) {
  ampiezza = std::max(1, ampiezza);
  std::vector<ClasseSomme> classi;
  for (size_t i = 0; i < analisi.valori.size(); ++i) {
    const ValoreSomma& valore = analisi.valori[i];
    if (i % static_cast<size_t>(ampiezza) == 0) classi.push_back({valore.somma, valore.somma, 0, 0});
    ClasseSomme& classe = classi.back();
    classe.a = valore.somma;
    classe.uscite += valore.uscite;
    classe.attese += valore.attese;
  }
  return classi;
}

}  // namespace lottolab::stats
