#include "VerificaGioco.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <span>
#include <string>

#include "PrimaEstrazione.h"
#include "stats/GiocataGioco.h"

namespace lottolab::agenda {

namespace {

using stats::Centesimi;
using stats::OpzioneDieciELotto;
using stats::Tassato;

// Past this many columns a system is refused: every draw would check them all, colpo after colpo.
constexpr size_t kMassimeColonneSviluppate = 50'000;

// Each column of `k` numbers, or every k-subset of a longer one (an integral system).
Esito<std::vector<std::vector<int>>> ColonneSviluppate(const std::vector<std::vector<int>>& colonne, size_t k) {
  std::vector<std::vector<int>> sviluppate;
  for (const std::vector<int>& colonna : colonne) {
    if (colonna.size() < k) return AvvisoEsclamativo(fmt::format("una colonna ha meno di {} numeri", k));
    std::vector<bool> scelti(colonna.size(), false);
    std::fill(scelti.begin(), scelti.begin() + static_cast<std::ptrdiff_t>(k), true);
    do {
      if (sviluppate.size() == kMassimeColonneSviluppate)
        return AvvisoEsclamativo(
            fmt::format("la giocata sviluppa più di {} colonne: troppe da verificare", kMassimeColonneSviluppate));
      std::vector<int>& nuova = sviluppate.emplace_back();
      for (size_t i = 0; i < colonna.size(); ++i)
        if (scelti[i]) nuova.push_back(colonna[i]);
    } while (std::prev_permutation(scelti.begin(), scelti.end()));
  }
  return sviluppate;
}

std::vector<int> Presi(const std::vector<int>& colonna, std::span<const uint8_t> estratti) {
  std::vector<int> presi;
  for (int numero : colonna)
    if (std::find(estratti.begin(), estratti.end(), numero) != estratti.end()) presi.push_back(numero);
  return presi;
}

// Adds `copie` wins of a column to the draw's check, with those of the same category and the same
// knowledge of its money.
void Aggiungi(VerificaColpo& colpo, const std::string& sorte, const std::vector<int>& numeri,
              const std::optional<Tassato>& vinto, int copie) {
  auto stessa = std::find_if(colpo.vincite.begin(), colpo.vincite.end(), [&](const VincitaColpo& v) {
    return v.sorte == sorte && v.importo_noto == vinto.has_value();
  });
  if (stessa == colpo.vincite.end()) {
    colpo.vincite.push_back(VincitaColpo{0, sorte, {}, 0, 0, vinto.has_value()});
    stessa = colpo.vincite.end() - 1;
  }
  stessa->combinazioni += copie;
  for (int numero : numeri)
    if (std::find(stessa->numeri.begin(), stessa->numeri.end(), numero) == stessa->numeri.end())
      stessa->numeri.push_back(numero);
  std::sort(stessa->numeri.begin(), stessa->numeri.end());
  if (!vinto) return;
  stessa->lordo += vinto->lordo * copie;
  colpo.lordo += vinto->lordo * copie;
  colpo.ritenuta += vinto->ritenuta * copie;
  colpo.netto += vinto->netto * copie;
}

Centesimi PostaDi(const Giocata& giocata, std::string_view sorte) {
  for (const Posta& posta : giocata.poste)
    if (posta.sorte == sorte) return posta.centesimi;
  return 0;
}

// The engine's bet on the columns, started at draw `id` for one colpo.
Esito<stats::ColpoGioco> GiocaColpo(stats::GiocataGioco& motore, const TabellaGioco& tabella, int id) {
  motore.prima_estrazione = id;
  auto esito = stats::VerificaGiocataGioco(motore, tabella);
  if (!esito) return esito.Errore();
  return std::move(esito->colpi.front());
}

// The checks of one draw for each game; `fattore` is the progression's at this colpo.
class Colpi {
 public:
  Colpi(const Giocata& giocata, const TabellaGioco& tabella, std::vector<std::vector<int>> colonne,
        const QuoteNote& quote)
      : m_giocata(giocata), m_tabella(tabella), m_colonne(std::move(colonne)), m_quote(quote) {
    m_motore.colonne = m_colonne;
    m_motore.colpi = 1;
  }

  Esito<Fatto> SuperEnalotto(VerificaColpo& colpo, int fattore) {
    const EstrazioneGioco& estrazione = m_tabella[colpo.id_estr];
    auto giocato = GiocaColpo(m_motore, m_tabella, colpo.id_estr);
    if (!giocato) return giocato.Errore();
    colpo.spesa += giocato->spesa * fattore;
    const auto sei = std::span(estrazione.numeri).first(6);
    for (const stats::VincitaGioco& v : giocato->vincite) {
      std::vector<int> numeri = Presi(m_colonne[static_cast<size_t>(v.colonna)], sei);
      if (v.categoria == "5+1") numeri.push_back(estrazione.speciali[0]);
      const std::string sorte = v.categoria == "5+1" ? v.categoria : "punti " + v.categoria;
      Aggiungi(colpo, sorte, numeri, v.vinto ? v.vinto : Quota(colpo, sorte), fattore);
    }
    // The SuperStar pays every score of a column when its number comes out, by shares of its own pool.
    const int superstar = estrazione.speciali[1];
    if (PostaDi(m_giocata, "superstar") == 0 || superstar == 0) return Fatto{};
    colpo.spesa += PostaDi(m_giocata, "superstar") * static_cast<int64_t>(m_colonne.size()) * fattore;
    if (superstar != m_giocata.numero_speciale) return Fatto{};
    for (const std::vector<int>& colonna : m_colonne) {
      std::vector<int> numeri = Presi(colonna, sei);
      const size_t punti = numeri.size();
      numeri.push_back(superstar);
      const std::string sorte = fmt::format("punti {} SuperStar", punti);
      Aggiungi(colpo, sorte, numeri, Quota(colpo, sorte), fattore);
    }
    return Fatto{};
  }

  Esito<Fatto> DieciELotto(VerificaColpo& colpo, int fattore) {
    const EstrazioneGioco& estrazione = m_tabella[colpo.id_estr];
    const Centesimi base = PostaDi(m_giocata, "giocata") * fattore;
    m_motore.posta = base;
    m_motore.opzione = PostaDi(m_giocata, "doppio-oro") ? OpzioneDieciELotto::DoppioOro
                       : PostaDi(m_giocata, "oro")      ? OpzioneDieciELotto::Oro
                                                        : OpzioneDieciELotto::Base;
    auto giocato = GiocaColpo(m_motore, m_tabella, colpo.id_estr);
    if (!giocato) return giocato.Errore();
    colpo.spesa += giocato->spesa;
    const auto venti = std::span(estrazione.numeri).first(20);
    auto aggiungi = [&](const stats::VincitaGioco& v, std::span<const uint8_t> estratti) {
      const std::vector<int>& colonna = m_colonne[static_cast<size_t>(v.colonna)];
      std::string sorte = fmt::format("{} su {}", v.punti, colonna.size());
      if (v.categoria != "base") sorte += " " + v.categoria;
      Aggiungi(colpo, sorte, Presi(colonna, estratti), v.vinto, 1);
    };
    for (const stats::VincitaGioco& v : giocato->vincite) aggiungi(v, venti);

    // The Extra is played with its own stake: the engine's run with it gives the Extra's wins.
    if (const Centesimi extra = PostaDi(m_giocata, "extra") * fattore; extra > 0) {
      stats::GiocataGioco con_extra = m_motore;
      con_extra.posta = extra;
      con_extra.opzione = OpzioneDieciELotto::Extra;
      auto giocato_extra = GiocaColpo(con_extra, m_tabella, colpo.id_estr);
      if (!giocato_extra) return giocato_extra.Errore();
      colpo.spesa += extra * static_cast<int64_t>(m_colonne.size());
      for (const stats::VincitaGioco& v : giocato_extra->vincite)
        if (v.categoria == "Extra") aggiungi(v, estrazione.extra);
    }
    // The Gong is one number for the whole ticket, against the Gong drawn.
    if (const Centesimi gong = PostaDi(m_giocata, "gong") * fattore; gong > 0) {
      auto premio = stats::PremioDieciELotto(OpzioneDieciELotto::Gong, 1, 1, gong, estrazione.data);
      if (!premio) return premio.Errore();
      colpo.spesa += gong;
      if (estrazione.speciali[2] != 0 && estrazione.speciali[2] == m_giocata.numero_speciale)
        Aggiungi(colpo, "Gong", {m_giocata.numero_speciale}, *premio, 1);
    }
    return Fatto{};
  }

  // Checked here rather than by the engine, which looks for the Numerone among the column's numbers
  // while the ticket carries it beside them.
  Esito<Fatto> WinForLife(VerificaColpo& colpo, int fattore) {
    const EstrazioneGioco& estrazione = m_tabella[colpo.id_estr];
    const Centesimi prezzo = PostaDi(m_giocata, "giocata");
    const auto biglietto = prezzo == 200 ? stats::BigliettoWinForLife::DueEuro : stats::BigliettoWinForLife::UnEuro;
    colpo.spesa += prezzo * static_cast<int64_t>(m_colonne.size()) * fattore;
    const bool numerone = estrazione.speciali[0] != 0 && estrazione.speciali[0] == m_giocata.numero_speciale;
    for (const std::vector<int>& colonna : m_colonne) {
      std::vector<int> numeri = Presi(colonna, std::span(estrazione.numeri).first(10));
      const int punti = static_cast<int>(numeri.size());
      auto categoria = stats::CategoriaWinForLifeDi(punti, numerone, biglietto);
      if (!categoria) continue;
      if (numerone) numeri.push_back(m_giocata.numero_speciale);
      const std::string sorte = fmt::format("{}{} ({})", punti, numerone ? "+1" : "", stats::NomeCategoria(*categoria));
      const std::optional<Tassato> vinto =
          *categoria == stats::CategoriaWinForLife::Settima
              ? stats::TassaVincitaSuperEnalotto(stats::kPremioSettimaWinForLife, estrazione.data)
              : Quota(colpo, sorte);
      Aggiungi(colpo, sorte, numeri, vinto, fattore);
    }
    return Fatto{};
  }

 private:
  // A pool prize with the quota the user gave, taxed as the operator taxes it; none without one.
  std::optional<Tassato> Quota(const VerificaColpo& colpo, const std::string& sorte) const {
    const std::optional<int64_t> quota = m_quote ? m_quote(colpo.id_estr, colpo.data, sorte) : std::nullopt;
    if (!quota) return std::nullopt;
    return stats::TassaVincitaSuperEnalotto(*quota, colpo.data);
  }

  const Giocata& m_giocata;
  const TabellaGioco& m_tabella;
  std::vector<std::vector<int>> m_colonne;
  const QuoteNote& m_quote;
  stats::GiocataGioco m_motore;
};

}  // namespace

Gioco GiocoDellArchivio(GiocoGiocata gioco) {
  switch (gioco) {
    case GiocoGiocata::SuperEnalotto: return Gioco::SuperEnalotto;
    case GiocoGiocata::WinForLife: return Gioco::WinForLife;
    default: return Gioco::DieciELotto;
  }
}

Esito<std::vector<VerificaColpo>> VerificaGiocataAltroGioco(const Giocata& giocata, const TabellaGioco& tabella,
                                                            const QuoteNote& quote) {
  if (giocata.gioco == GiocoGiocata::Lotto)
    return AvvisoEsclamativo("una giocata del Lotto si verifica sull'archivio del Lotto");
  const Gioco gioco = GiocoDellArchivio(giocata.gioco);
  if (tabella.formato().gioco != gioco)
    return AvvisoEsclamativo(fmt::format("la giocata {} è del {} e non si verifica sull'{}", giocata.id,
                                         Formato(gioco).nome, tabella.formato().nome));
  if (auto valida = ControllaGiocata(giocata); !valida) return valida.Errore();
  const int prima = PrimaEstrazione(giocata, tabella);
  if (prima == 0) return std::vector<VerificaColpo>();

  const size_t per_colonna = giocata.gioco == GiocoGiocata::SuperEnalotto ? 6
                             : giocata.gioco == GiocoGiocata::WinForLife  ? 10
                                                                          : 0;
  auto colonne = per_colonna ? ColonneSviluppate(giocata.colonne, per_colonna)
                             : Esito<std::vector<std::vector<int>>>(giocata.colonne);
  if (!colonne) return colonne.Errore();
  Colpi colpi(giocata, tabella, std::move(colonne).Valore(), quote);

  std::vector<VerificaColpo> verifiche;
  for (int k = 0; k < giocata.colpi && tabella.Contiene(prima + k); ++k) {
    const int fattore = giocata.progressione.empty() ? 1 : giocata.progressione[static_cast<size_t>(k)];
    VerificaColpo colpo{prima + k, tabella[prima + k].data, 0, 0, 0, 0, {}};
    auto fatto = giocata.gioco == GiocoGiocata::SuperEnalotto ? colpi.SuperEnalotto(colpo, fattore)
                 : giocata.gioco == GiocoGiocata::WinForLife  ? colpi.WinForLife(colpo, fattore)
                                                              : colpi.DieciELotto(colpo, fattore);
    if (!fatto)
      return AvvisoEsclamativo(
          fmt::format("giocata {}, estrazione del {}: {}", giocata.id, FormattaData(colpo.data), fatto.Errore().testo));
    const bool vinto = !colpo.vincite.empty();
    verifiche.push_back(std::move(colpo));
    if (vinto && giocata.ferma_alla_vincita) break;
  }
  return verifiche;
}

}  // namespace lottolab::agenda
