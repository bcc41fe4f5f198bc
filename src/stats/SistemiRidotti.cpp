#include "SistemiRidotti.h"

#include <algorithm>
#include <cassert>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "Combinazioni.h"
#include "SistemiRidottiRicerca.h"

namespace lottolab::stats {
namespace {

// Beyond this many m-groups walked by a single move of the annealing, a build would take minutes.
constexpr double kMassimoCostoMossa = 200'000;

std::optional<Avviso> ParametriFuoriMisura(const ParametriSistema& p) {
  const int n = p.numeri;
  if (n < 1 || n > kMassimoNumeriSistema)
    return AvvisoEsclamativo(
        fmt::format("I numeri del sistema devono essere da 1 a {}, non {}.", kMassimoNumeriSistema, n));
  if (p.classe < 1 || p.classe > std::min(n, kMassimaClasseSistema))
    return AvvisoEsclamativo(fmt::format("Le colonne del sistema devono avere da 1 a {} numeri, non {}.",
                                         std::min(n, kMassimaClasseSistema), p.classe));
  if (p.garanzia < 1 || p.garanzia > p.classe)
    return AvvisoEsclamativo(fmt::format("La sorte garantita deve essere da 1 a {} (i numeri di una colonna), non {}.",
                                         p.classe, p.garanzia));
  if (p.condizione < p.garanzia || p.condizione > std::min(n, kMassimaCondizioneSistema))
    return AvvisoEsclamativo(
        fmt::format("La condizione (quanti dei {} numeri devono uscire) deve essere da {} a {}, non {}.", n, p.garanzia,
                    std::min(n, kMassimaCondizioneSistema), p.condizione));
  const double gruppi = Combinazioni(n, p.condizione);
  if (gruppi > kMassimiGruppiVerificati)
    return AvvisoEsclamativo(fmt::format(
        "Per garantire il sistema andrebbero controllati {:.0f} gruppi di {} numeri, più dei {:.0f} ammessi: "
        "ridurre i numeri o la condizione.",
        gruppi, p.condizione, kMassimiGruppiVerificati));
  const double mossa =
      Combinazioni(p.classe - 1, p.garanzia - 1) * Combinazioni(n - p.classe - 1, p.condizione - p.garanzia);
  if (mossa > kMassimoCostoMossa)
    return AvvisoEsclamativo(fmt::format(
        "Un sistema di {} numeri in colonne di {} con garanzia {} su {} richiederebbe troppo calcolo: avvicinare la "
        "garanzia alla condizione o ridurre i numeri.",
        n, p.classe, p.garanzia, p.condizione));
  return std::nullopt;
}

// Marks the m-groups, by colexicographic rank, that share at least t numbers with the column:
// `scelti` are the numbers taken so far, in increasing order, `comuni` how many of them the column
// holds, `della_colonna_da[p]` how many of the column's numbers are p or above. Written apart from the search's own
// enumeration so that the check shares no code with it.
void SegnaCoperti(const std::vector<bool>& nella_colonna, const std::vector<int>& della_colonna_da, int numeri,
                  int condizione, int garanzia, std::vector<int>& scelti, int comuni, std::vector<bool>& coperti) {
  const int presi = static_cast<int>(scelti.size());
  if (presi == condizione) {
    if (comuni < garanzia) return;
    double rango = 0;
    for (int i = 0; i < presi; ++i) rango += Combinazioni(scelti[static_cast<size_t>(i)], i + 1);
    coperti[static_cast<size_t>(rango)] = true;
    return;
  }
  const int da = scelti.empty() ? 0 : scelti.back() + 1;
  for (int p = da; p <= numeri - (condizione - presi); ++p) {
    // The column's numbers from p on cannot bring the group up to t, nor can they further on.
    if (comuni + std::min(della_colonna_da[static_cast<size_t>(p)], condizione - presi) < garanzia) return;
    const bool dentro = nella_colonna[static_cast<size_t>(p)];
    scelti.push_back(p);
    SegnaCoperti(nella_colonna, della_colonna_da, numeri, condizione, garanzia, scelti, comuni + dentro, coperti);
    scelti.pop_back();
  }
}

}  // namespace

std::int64_t LimiteSchoenheim(int v, int k, int t) {
  assert(1 <= t && t <= k && k <= v);
  std::int64_t limite = 1;
  for (int i = t - 1; i >= 0; --i) {
    const std::int64_t vi = v - i;
    const std::int64_t ki = k - i;
    limite = (vi * limite + ki - 1) / ki;
  }
  return limite;
}

std::optional<std::vector<int>> VerificaGaranzia(std::span<const ColonnaSistema> colonne, int numeri, int condizione,
                                                 int garanzia) {
  assert(1 <= garanzia && garanzia <= condizione && condizione <= numeri && numeri <= kMassimoNumeriSistema);
  assert(Combinazioni(numeri, condizione) <= kMassimiGruppiVerificati);
  std::vector<bool> coperti(static_cast<size_t>(Combinazioni(numeri, condizione)), false);
  std::vector<int> scelti;
  for (const auto& colonna : colonne) {
    std::vector<bool> nella_colonna(static_cast<size_t>(numeri), false);
    for (int numero : colonna) {
      assert(numero >= 1 && numero <= numeri && !nella_colonna[static_cast<size_t>(numero - 1)]);
      nella_colonna[static_cast<size_t>(numero - 1)] = true;
    }
    std::vector<int> della_colonna_da(static_cast<size_t>(numeri) + 1, 0);
    for (int p = numeri - 1; p >= 0; --p)
      della_colonna_da[static_cast<size_t>(p)] =
          della_colonna_da[static_cast<size_t>(p) + 1] + nella_colonna[static_cast<size_t>(p)];
    SegnaCoperti(nella_colonna, della_colonna_da, numeri, condizione, garanzia, scelti, 0, coperti);
  }
  SviluppoCombinazioni gruppi(numeri, condizione);
  while (gruppi.Avanza()) {
    double rango = 0;
    const auto gruppo = gruppi.Gruppo();
    for (size_t i = 0; i < gruppo.size(); ++i) rango += Combinazioni(gruppo[i], static_cast<int>(i) + 1);
    if (!coperti[static_cast<size_t>(rango)]) {
      std::vector<int> scoperto;
      for (int p : gruppo) scoperto.push_back(p + 1);
      return scoperto;
    }
  }
  return std::nullopt;
}

Esito<SistemaRidotto> CostruisciSistemaRidotto(const ParametriSistema& parametri, const ControlloSistema& controllo) {
  if (auto errore = ParametriFuoriMisura(parametri)) return *errore;
  const ricerca::Dimensioni d{parametri.numeri, parametri.classe, parametri.garanzia, parametri.condizione};
  const std::int64_t minimo = d.m == d.t ? LimiteSchoenheim(d.n, d.k, d.t) : 1;
  const auto inizio = std::chrono::steady_clock::now();
  const std::function<std::optional<ricerca::EsitoRicerca>(const ricerca::Copertura&, int)> osserva =
      [&](const ricerca::Copertura& copertura, int migliore) -> std::optional<ricerca::EsitoRicerca> {
    if (controllo.interrompi && controllo.interrompi()) return ricerca::EsitoRicerca::Interrotto;
    if (controllo.avanzamento) controllo.avanzamento({copertura.Colonne(), migliore, copertura.Scoperti()});
    if (std::chrono::steady_clock::now() - inizio > controllo.tempo_massimo || (controllo.basta && controllo.basta()))
      return ricerca::EsitoRicerca::TempoScaduto;
    return std::nullopt;
  };
  auto trovato = ricerca::CercaConRicottura(d, parametri.seme, std::max(controllo.sforzo, 1), minimo, osserva);
  if (trovato.esito == ricerca::EsitoRicerca::Interrotto)
    return AvvisoEsclamativo("La costruzione del sistema ridotto è stata interrotta.");
  if (trovato.colonne.empty())
    return AvvisoEsclamativo(fmt::format("Il tempo concesso ({} s) è finito prima che si trovasse un sistema.",
                                         std::chrono::duration<double>(controllo.tempo_massimo).count()));

  SistemaRidotto sistema;
  sistema.parametri = parametri;
  sistema.tempo_scaduto = trovato.esito == ricerca::EsitoRicerca::TempoScaduto;
  sistema.minimo_dimostrato = static_cast<std::int64_t>(trovato.colonne.size()) == minimo;
  if (!sistema.minimo_dimostrato) {
    if (auto esatto = ricerca::CercaMinimoEsatto(d, minimo, static_cast<std::int64_t>(trovato.colonne.size()))) {
      trovato.colonne = std::move(*esatto);
      sistema.minimo_dimostrato = true;
    }
  }
  for (auto& colonna : trovato.colonne) {
    std::sort(colonna.begin(), colonna.end());
    for (int& numero : colonna) ++numero;
    sistema.colonne.push_back(std::move(colonna));
  }
  std::sort(sistema.colonne.begin(), sistema.colonne.end());
  if (auto scoperto = VerificaGaranzia(sistema.colonne, d.n, d.m, d.t))
    return AvvisoCritico("CostruisciSistemaRidotto", 1,
                         fmt::format("il sistema costruito non garantisce il {} su {}: il gruppo {} resta scoperto",
                                     d.t, d.m, fmt::join(*scoperto, " ")));
  return sistema;
}

}  // namespace lottolab::stats
