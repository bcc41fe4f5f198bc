#include "PremiAltriGiochi.h"

#include <array>
#include <fmt/format.h>

#include "archive/DateEstrazione.h"

namespace lottolab::stats {

namespace {

constexpr int kMassimoGiocatiDieciELotto = 10;
constexpr Centesimi kMassimaPostaDieciELotto = 200 * kCentesimiPerEuro;

// Net euro per euro staked, rows by numbers played, columns by matches (0..10).
using Tabella = std::array<std::array<int64_t, kMassimoGiocatiDieciELotto + 1>, kMassimoGiocatiDieciELotto + 1>;

constexpr Tabella kBaseDieciELotto = {{
    {},
    {0, 3},
    {0, 0, 14},
    {0, 0, 2, 45},
    {0, 0, 1, 10, 90},
    {0, 0, 1, 4, 15, 140},
    {0, 0, 0, 2, 10, 100, 1'000},
    {1, 0, 0, 0, 4, 40, 400, 1'600},
    {1, 0, 0, 0, 0, 20, 200, 800, 10'000},
    {2, 0, 0, 0, 0, 10, 40, 400, 2'000, 100'000},
    {2, 0, 0, 0, 0, 5, 15, 150, 1'000, 20'000, 1'000'000},
}};

// The cells of the option tables that the sources confirm, as totals (base prize included); any
// other cell is not known.
struct Cella {
  OpzioneDieciELotto opzione;
  int giocati;
  int punti;
  int64_t netto;
};

constexpr std::array kCelleOpzioni = {
    Cella{OpzioneDieciELotto::Oro, 1, 1, 63},
    Cella{OpzioneDieciELotto::Oro, 3, 1, 15},
    Cella{OpzioneDieciELotto::Oro, 3, 2, 25},
    Cella{OpzioneDieciELotto::Oro, 3, 3, 130},
    Cella{OpzioneDieciELotto::Oro, 10, 10, 2'500'000},
    Cella{OpzioneDieciELotto::DoppioOro, 10, 10, 5'000'000},
    Cella{OpzioneDieciELotto::Extra, 10, 10, 2'000'000},
};

constexpr int64_t kGong = 65;

constexpr GruppoData kInizioExtra = Data(9, 9, 2020);
constexpr GruppoData kInizioGong = Data(26, 10, 2022);

constexpr std::array<std::string_view, 6> kNomiSuperEnalotto = {"6", "5+1", "5", "4", "3", "2"};
constexpr std::array<std::string_view, 8> kNomiWinForLife = {"prima",  "seconda", "terza",   "quarta",
                                                             "quinta", "sesta",   "settima", "Win for Life"};

std::string_view NomeOpzione(OpzioneDieciELotto opzione) {
  constexpr std::array<std::string_view, 5> kNomi = {"base", "Oro", "Doppio Oro", "Extra", "Gong"};
  return kNomi[static_cast<size_t>(opzione)];
}

}  // namespace

std::optional<Centesimi> PremioNettoPerEuroDieciELotto(OpzioneDieciELotto opzione, int giocati, int punti,
                                                       const RegoleDieciELotto& regole) {
  if (opzione == OpzioneDieciELotto::Gong) return punti == 1 ? kGong * kCentesimiPerEuro : 0;
  if (giocati < 1 || giocati > kMassimoGiocatiDieciELotto || punti < 0 || punti > giocati) return std::nullopt;
  const int64_t base = kBaseDieciELotto[static_cast<size_t>(giocati)][static_cast<size_t>(punti)];
  if (opzione == OpzioneDieciELotto::Base) return base * kCentesimiPerEuro;
  // The Oro tables pay when the Oro numbers are among the matches, so fewer matches win nothing.
  if (punti < (opzione == OpzioneDieciELotto::Oro ? 1 : opzione == OpzioneDieciELotto::DoppioOro ? 2 : 0)) return 0;
  for (const Cella& cella : kCelleOpzioni) {
    if (cella.opzione != opzione || cella.giocati != giocati || cella.punti != punti) continue;
    const bool aggiunta = opzione != OpzioneDieciELotto::Extra && regole.colonne_oro == ColonneOro::Incrementi;
    return (cella.netto + (aggiunta ? base : 0)) * kCentesimiPerEuro;
  }
  return std::nullopt;
}

Esito<Fatto> ControllaDieciELotto(OpzioneDieciELotto opzione, int giocati, const GruppoData& data) {
  if (giocati < 1 || giocati > kMassimoGiocatiDieciELotto)
    return AvvisoEsclamativo(fmt::format("al 10eLotto si giocano da 1 a 10 numeri, non {}", giocati));
  if (ConfrontaDate(data, kInizioTabellaDieciELotto) < 0)
    return AvvisoEsclamativo(fmt::format("i premi del 10eLotto sono noti dal {}, non per il {}",
                                         FormattaData(kInizioTabellaDieciELotto), FormattaData(data)));
  if ((opzione == OpzioneDieciELotto::Extra && ConfrontaDate(data, kInizioExtra) < 0) ||
      (opzione == OpzioneDieciELotto::Gong && ConfrontaDate(data, kInizioGong) < 0))
    return AvvisoEsclamativo(fmt::format("l'opzione {} non esisteva il {}", NomeOpzione(opzione), FormattaData(data)));
  return Fatto{};
}

Esito<Tassato> PremioDieciELotto(OpzioneDieciELotto opzione, int giocati, int punti, Centesimi posta,
                                 const GruppoData& data, const RegoleDieciELotto& regole) {
  if (auto controllo = ControllaDieciELotto(opzione, giocati, data); !controllo) return controllo.Errore();
  if (posta < kCentesimiPerEuro || posta > kMassimaPostaDieciELotto || posta % (kCentesimiPerEuro / 2) != 0)
    return AvvisoEsclamativo(
        fmt::format("la posta del 10eLotto va da 1 a 200 euro, a multipli di 0,50, non {}", FormattaEuro(posta)));
  auto per_euro = PremioNettoPerEuroDieciELotto(opzione, giocati, punti, regole);
  if (!per_euro)
    return AvvisoEsclamativo(
        fmt::format("premio {} del 10eLotto per {} punti su {} numeri non noto", NomeOpzione(opzione), punti, giocati));
  const Centesimi netto = ArrotondaMetaInSu(*per_euro * posta, kCentesimiPerEuro);
  const int aliquota = RitenutaDieciELotto(data);
  const Centesimi lordo = ArrotondaMetaInSu(netto * 10'000, 10'000 - aliquota);
  return Tassato{lordo, lordo - netto, netto};
}

std::optional<CategoriaSuperEnalotto> CategoriaSuperEnalottoDi(int punti, bool jolly, const GruppoData& data) {
  switch (punti) {
    case 6: return CategoriaSuperEnalotto::Sei;
    case 5: return jolly ? CategoriaSuperEnalotto::CinquePiuUno : CategoriaSuperEnalotto::Cinque;
    case 4: return CategoriaSuperEnalotto::Quattro;
    case 3: return CategoriaSuperEnalotto::Tre;
    case 2:
      if (ConfrontaDate(data, kInizioPuntiDue) >= 0) return CategoriaSuperEnalotto::Due;
      return std::nullopt;
    default: return std::nullopt;
  }
}

std::string_view NomeCategoria(CategoriaSuperEnalotto categoria) {
  return kNomiSuperEnalotto[static_cast<size_t>(categoria)];
}

Tassato TassaVincitaSuperEnalotto(Centesimi quota, const GruppoData& data) {
  const Centesimi imponibile = std::max<Centesimi>(0, quota - kFranchigiaSuperEnalotto);
  const Centesimi ritenuta = Percentuale(imponibile, RitenutaSuperEnalotto(data));
  return {quota, ritenuta, quota - ritenuta};
}

std::optional<CategoriaWinForLife> CategoriaWinForLifeDi(int punti, bool numerone, BigliettoWinForLife biglietto) {
  // 0..3 matches mirror 10..7: the same categories, on the two-euro ticket only.
  if (punti <= 3) {
    if (biglietto != BigliettoWinForLife::DueEuro || punti < 0) return std::nullopt;
    punti = 10 - punti;
  }
  switch (punti) {
    case 10: return numerone ? CategoriaWinForLife::WinForLife : CategoriaWinForLife::Prima;
    case 9: return numerone ? CategoriaWinForLife::Seconda : CategoriaWinForLife::Terza;
    case 8: return numerone ? CategoriaWinForLife::Quarta : CategoriaWinForLife::Sesta;
    case 7: return numerone ? CategoriaWinForLife::Quinta : CategoriaWinForLife::Settima;
    default: return std::nullopt;
  }
}

std::string_view NomeCategoria(CategoriaWinForLife categoria) {
  return kNomiWinForLife[static_cast<size_t>(categoria)];
}

}  // namespace lottolab::stats
