#include "GiocataGioco.h"

#include <algorithm>
#include <fmt/format.h>

#include "archive/DateEstrazione.h"

namespace lottolab::stats {

namespace {

int Presi(const std::vector<int>& colonna, std::span<const uint8_t> estratti) {
  return static_cast<int>(
      std::ranges::count_if(colonna, [&](int n) { return std::ranges::find(estratti, n) != estratti.end(); }));
}

bool Contiene(const std::vector<int>& colonna, int numero) {
  return numero != 0 && std::ranges::find(colonna, numero) != colonna.end();
}

// The column's price and its wins in one draw.
struct Colpo {
  Centesimi spesa = 0;
  std::vector<VincitaGioco> vincite;
};

Esito<Colpo> DieciELotto(const GiocataGioco& giocata, const EstrazioneGioco& estrazione,
                         const std::vector<int>& colonna) {
  const int giocati = static_cast<int>(colonna.size());
  const auto numeri = std::span(estrazione.numeri).first(20);
  const int punti = Presi(colonna, numeri);
  if (auto controllo = ControllaDieciELotto(giocata.opzione, giocati, estrazione.data); !controllo)
    return controllo.Errore();
  // The base table knows every score, so this refuses the stake alone.
  if (auto prova = PremioDieciELotto(OpzioneDieciELotto::Base, giocati, 0, giocata.posta, estrazione.data); !prova)
    return prova.Errore();
  Colpo colpo;
  const int costo_opzione = giocata.opzione == OpzioneDieciELotto::Base        ? 0
                            : giocata.opzione == OpzioneDieciELotto::DoppioOro ? 2
                                                                               : 1;
  colpo.spesa = giocata.posta * (1 + costo_opzione);
  auto vincita = [&](OpzioneDieciELotto tabella, int punti_tabella, bool speciale, std::string categoria) {
    VincitaGioco v{estrazione.id_estr, 0, 0, punti_tabella, speciale, std::move(categoria), std::nullopt};
    if (auto premio =
            PremioDieciELotto(tabella, giocati, punti_tabella, giocata.posta, estrazione.data, giocata.regole))
      v.vinto = *premio;
    if (!v.vinto || v.vinto->netto > 0) colpo.vincite.push_back(std::move(v));
  };
  // The Oro tables give the ticket's whole prize when their numbers matched; the base table otherwise.
  const bool oro = Contiene(colonna, estrazione.speciali[0]);
  const bool doppio = oro && Contiene(colonna, estrazione.speciali[1]);
  if (giocata.opzione == OpzioneDieciELotto::DoppioOro && doppio)
    vincita(OpzioneDieciELotto::DoppioOro, punti, true, "Doppio Oro");
  else if ((giocata.opzione == OpzioneDieciELotto::Oro || giocata.opzione == OpzioneDieciELotto::DoppioOro) && oro)
    vincita(OpzioneDieciELotto::Oro, punti, true, "Oro");
  else
    vincita(OpzioneDieciELotto::Base, punti, false, "base");
  // No match among the fifteen is taken to win nothing: the Extra's table is not known there.
  if (const int extra = Presi(colonna, estrazione.extra); giocata.opzione == OpzioneDieciELotto::Extra && extra > 0)
    vincita(OpzioneDieciELotto::Extra, extra, false, "Extra");
  return colpo;
}

Colpo Categoria(const GiocataGioco& giocata, const TabellaGioco& tabella, const EstrazioneGioco& estrazione,
                const std::vector<int>& colonna, const QuotaCategoria& quota) {
  const FormatoGioco& formato = tabella.formato();
  const int punti = Presi(colonna, std::span(estrazione.numeri).first(static_cast<size_t>(formato.numeri)));
  const bool speciale = Contiene(colonna, estrazione.speciali[0]);
  Colpo colpo;
  std::optional<std::string> categoria;
  if (formato.gioco == Gioco::SuperEnalotto) {
    colpo.spesa = ConfrontaDate(estrazione.data, kInizioPuntiDue) >= 0 ? kCentesimiPerEuro : kCentesimiPerEuro / 2;
    if (auto c = CategoriaSuperEnalottoDi(punti, speciale, estrazione.data)) categoria = std::string(NomeCategoria(*c));
  } else {
    const auto biglietto =
        giocata.posta == 2 * kCentesimiPerEuro ? BigliettoWinForLife::DueEuro : BigliettoWinForLife::UnEuro;
    colpo.spesa = biglietto == BigliettoWinForLife::DueEuro ? 2 * kCentesimiPerEuro : kCentesimiPerEuro;
    if (auto c = CategoriaWinForLifeDi(punti, speciale, biglietto)) categoria = std::string(NomeCategoria(*c));
  }
  if (!categoria) return colpo;
  VincitaGioco v{estrazione.id_estr, 0, 0, punti, speciale, *categoria, std::nullopt};
  if (formato.gioco == Gioco::WinForLife && *categoria == NomeCategoria(CategoriaWinForLife::Settima))
    v.vinto = TassaVincitaSuperEnalotto(kPremioSettimaWinForLife, estrazione.data);
  else if (auto q = quota ? quota(estrazione.id_estr, *categoria) : std::nullopt)
    v.vinto = TassaVincitaSuperEnalotto(*q, estrazione.data);
  colpo.vincite.push_back(std::move(v));
  return colpo;
}

}  // namespace

Esito<EsitoGiocataGioco> VerificaGiocataGioco(const GiocataGioco& giocata, const TabellaGioco& tabella,
                                              const QuotaCategoria& quota) {
  const FormatoGioco& formato = tabella.formato();
  if (formato.gioco == Gioco::Generico) return AvvisoEsclamativo("l'archivio generico non ha una tabella dei premi");
  if (giocata.colonne.empty()) return AvvisoEsclamativo("la giocata non ha numeri");
  if (giocata.colpi < 1) return AvvisoEsclamativo(fmt::format("colpi non validi: {} (almeno 1)", giocata.colpi));
  if (!tabella.Contiene(giocata.prima_estrazione))
    return AvvisoEsclamativo(fmt::format("estrazione non trovata: {} (l'archivio ne contiene {})",
                                         giocata.prima_estrazione, tabella.EstrazioniArchivio()));
  const bool dieci = formato.gioco == Gioco::DieciELotto || formato.gioco == Gioco::DieciELottoOgniCinqueMinuti;
  const int richiesti = formato.gioco == Gioco::SuperEnalotto ? 6 : formato.gioco == Gioco::WinForLife ? 10 : 0;
  for (const std::vector<int>& colonna : giocata.colonne) {
    for (size_t i = 0; i < colonna.size(); ++i)
      if (colonna[i] < 1 || colonna[i] > formato.massimo ||
          std::find(colonna.begin(), colonna.begin() + static_cast<std::ptrdiff_t>(i), colonna[i]) !=
              colonna.begin() + static_cast<std::ptrdiff_t>(i))
        return AvvisoEsclamativo(
            fmt::format("numero non valido o ripetuto: {} (da 1 a {})", colonna[i], formato.massimo));
    if (richiesti != 0 && static_cast<int>(colonna.size()) != richiesti)
      return AvvisoEsclamativo(
          fmt::format("al {} una colonna ha {} numeri, non {}", formato.nome, richiesti, colonna.size()));
  }

  EsitoGiocataGioco esito;
  int colpo = 0;
  for (int id = giocata.prima_estrazione; id <= tabella.EstrazioniArchivio() && colpo < giocata.colpi; ++id) {
    const EstrazioneGioco& estrazione = tabella[id];
    ColpoGioco conto{++colpo, id, 0, {}, 0, {}};
    for (size_t c = 0; c < giocata.colonne.size(); ++c) {
      Colpo della_colonna;
      if (dieci) {
        auto letto = DieciELotto(giocata, estrazione, giocata.colonne[c]);
        if (!letto) return letto.Errore();
        della_colonna = std::move(letto).Valore();
      } else {
        della_colonna = Categoria(giocata, tabella, estrazione, giocata.colonne[c], quota);
      }
      conto.spesa += della_colonna.spesa;
      for (VincitaGioco& vincita : della_colonna.vincite) {
        vincita.colpo = colpo;
        vincita.colonna = static_cast<int>(c);
        if (vincita.vinto) {
          conto.vinto.lordo += vincita.vinto->lordo;
          conto.vinto.ritenuta += vincita.vinto->ritenuta;
          conto.vinto.netto += vincita.vinto->netto;
        } else {
          esito.importi_mancanti = true;
        }
        conto.vincite.push_back(std::move(vincita));
      }
    }
    esito.spesa += conto.spesa;
    esito.vinto.lordo += conto.vinto.lordo;
    esito.vinto.ritenuta += conto.vinto.ritenuta;
    esito.vinto.netto += conto.vinto.netto;
    esito.saldo = esito.vinto.netto - esito.spesa;
    conto.saldo = esito.saldo;
    const bool vinto = !conto.vincite.empty();
    esito.colpi.push_back(std::move(conto));
    if (vinto) {
      esito.vinta = true;
      if (giocata.arresto == Arresto::AllaPrimaVincita) return esito;
    }
  }
  esito.colpi_mancanti = giocata.colpi - colpo;
  return esito;
}

}  // namespace lottolab::stats
