#include "Giocata.h"

#include <algorithm>
#include <cassert>
#include <fmt/format.h>

namespace lottolab::stats {

namespace {

PuntataLotto Puntata(const Giocata& giocata, const std::vector<int>& ruote, size_t colonna, const PostaSorte& posta,
                     int colpo) {
  return PuntataLotto{posta.sorte, giocata.colonne[colonna], ruote, posta.AlColpo(colpo), posta.posizione};
}

}  // namespace

Centesimi PostaSorte::AlColpo(int colpo) const {
  assert(colpo >= 1);
  if (progressione.empty()) return posta;
  return progressione[std::min(progressione.size(), static_cast<size_t>(colpo)) - 1];
}

Esito<Fatto> ControllaGiocata(const Giocata& giocata, const TabellaEstrazioni& tabella) {
  if (giocata.colonne.empty()) return AvvisoEsclamativo("la giocata non ha numeri");
  if (giocata.poste.empty()) return AvvisoEsclamativo("la giocata non ha poste");
  if (giocata.colpi < 1) return AvvisoEsclamativo(fmt::format("colpi non validi: {} (almeno 1)", giocata.colpi));
  if (!tabella.Contiene(giocata.prima_estrazione))
    return AvvisoEsclamativo(fmt::format("estrazione non trovata: {} (l'archivio ne contiene {})",
                                         giocata.prima_estrazione, tabella.EstrazioniArchivio()));
  const std::vector<int> ruote = RuoteGiocate(giocata.ruote);
  const GruppoData& data = tabella[giocata.prima_estrazione].data;
  for (size_t c = 0; c < giocata.colonne.size(); ++c)
    for (const PostaSorte& posta : giocata.poste) {
      const int ultimo = std::max<int>(1, static_cast<int>(posta.progressione.size()));
      for (int colpo = 1; colpo <= ultimo; ++colpo) {
        auto controllo = ControllaPuntata(Puntata(giocata, ruote, c, posta, colpo), data);
        if (!controllo && giocata.colonne.size() > 1)
          return AvvisoEsclamativo(fmt::format("colonna {}: {}", c + 1, controllo.Errore().testo));
        if (!controllo) return controllo;
      }
    }
  return Fatto{};
}

Centesimi SpesaAlColpo(const Giocata& giocata, int colpo) {
  Centesimi spesa = 0;
  for (const PostaSorte& posta : giocata.poste) spesa += posta.AlColpo(colpo);
  return spesa * static_cast<Centesimi>(giocata.colonne.size());
}

EsitoGiocata VerificaGiocata(const Giocata& giocata, const TabellaEstrazioni& tabella) {
  const std::vector<int> ruote = RuoteGiocate(giocata.ruote);
  EsitoGiocata esito;
  int colpo = 0;
  for (int id = giocata.prima_estrazione; id <= tabella.EstrazioniArchivio() && colpo < giocata.colpi; ++id) {
    const Estrazione& estrazione = tabella[id];
    if (!estrazione.Presente()) continue;
    ColpoGiocata conto{++colpo, id, SpesaAlColpo(giocata, colpo), {}, 0, {}};
    Centesimi lordo = 0;
    for (size_t c = 0; c < giocata.colonne.size(); ++c)
      for (const PostaSorte& posta : giocata.poste) {
        const PuntataLotto puntata = Puntata(giocata, ruote, c, posta, colpo);
        const Centesimi premio = PremioPerCombinazione(puntata, estrazione.data);
        for (int ruota : ruote) {
          if (!estrazione.RuotaEstratta(ruota)) continue;
          const int64_t vinte = CombinazioniVincenti(puntata, NumeriRuota(estrazione, ruota));
          if (vinte == 0) continue;
          conto.vincite.push_back({id, colpo, ruota, static_cast<int>(c), posta.sorte, vinte, vinte * premio});
          lordo += vinte * premio;
        }
      }
    conto.vinto = TassaVincitaLotto(lordo, estrazione.data);
    esito.spesa += conto.spesa;
    esito.vinto.lordo += conto.vinto.lordo;
    esito.vinto.ritenuta += conto.vinto.ritenuta;
    esito.vinto.netto += conto.vinto.netto;
    esito.saldo = esito.vinto.netto - esito.spesa;
    conto.saldo = esito.saldo;
    esito.colpi.push_back(std::move(conto));
    if (!esito.colpi.back().vincite.empty()) {
      esito.vinta = true;
      if (giocata.arresto == Arresto::AllaPrimaVincita) return esito;
    }
  }
  esito.colpi_mancanti = giocata.colpi - colpo;
  return esito;
}

Riepilogo Riassumi(const EsitoGiocata& esito) {
  Riepilogo riepilogo;
  riepilogo.colpi = static_cast<int>(esito.colpi.size());
  riepilogo.spesa = esito.spesa;
  riepilogo.vinto = esito.vinto;
  riepilogo.saldo = esito.saldo;
  Centesimi picco = 0;
  int serie = 0;
  for (const ColpoGiocata& conto : esito.colpi) {
    std::array<bool, 8> sorti_vinte{};
    for (const VincitaGiocata& vincita : conto.vincite) {
      const auto s = static_cast<size_t>(vincita.sorte);
      sorti_vinte[s] = true;
      riepilogo.lordo_per_sorte[s] += vincita.lordo;
    }
    for (size_t s = 0; s < sorti_vinte.size(); ++s) riepilogo.colpi_vincenti_per_sorte[s] += sorti_vinte[s] ? 1 : 0;
    serie = conto.vincite.empty() ? serie + 1 : 0;
    riepilogo.massima_serie_senza_vincite = std::max(riepilogo.massima_serie_senza_vincite, serie);
    picco = std::max(picco, conto.saldo);
    riepilogo.massimo_calo = std::max(riepilogo.massimo_calo, picco - conto.saldo);
  }
  return riepilogo;
}

Riepilogo RetroVerifica(Giocata giocata, const TabellaEstrazioni& tabella, int inizio, int fine) {
  giocata.prima_estrazione = inizio;
  // A colpo is a draw held: records without one inside the range must not push the bet past `fine`.
  giocata.colpi = 0;
  for (int id = inizio; id <= fine && tabella.Contiene(id); ++id)
    if (tabella[id].Presente()) ++giocata.colpi;
  giocata.arresto = Arresto::AllaFine;
  Riepilogo riepilogo = Riassumi(VerificaGiocata(giocata, tabella));
  return riepilogo;
}

}  // namespace lottolab::stats
