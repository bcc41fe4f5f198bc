#include <gtest/gtest.h>

#include <numeric>

#include "stats/GiocataGioco.h"

namespace lottolab::stats {
namespace {

EstrazioneGioco Estrazione(int id, GruppoData data, std::vector<int> numeri, std::vector<int> speciali,
                           std::vector<int> extra = {}) {
  EstrazioneGioco estrazione;
  estrazione.id_estr = id;
  estrazione.data = data;
  std::copy(numeri.begin(), numeri.end(), estrazione.numeri.begin());
  std::copy(speciali.begin(), speciali.end(), estrazione.speciali.begin());
  std::copy(extra.begin(), extra.end(), estrazione.extra.begin());
  return estrazione;
}

std::vector<int> DaA(int primo, int ultimo) {
  std::vector<int> numeri(static_cast<size_t>(ultimo - primo + 1));
  std::iota(numeri.begin(), numeri.end(), primo);
  return numeri;
}

TEST(GiocataGioco, DieciELottoConLeOpzioni) {
  const TabellaGioco tabella(Formato(Gioco::DieciELotto),
                             {Estrazione(1, Data(3, 1, 2023), DaA(1, 20), {1, 2, 60}, DaA(21, 35)),
                              Estrazione(2, Data(5, 1, 2023), DaA(71, 90), {71, 72, 60}, DaA(41, 55))});
  auto giocata = [](std::vector<int> colonna, OpzioneDieciELotto opzione) {
    GiocataGioco g;
    g.colonne = {std::move(colonna)};
    g.opzione = opzione;
    return g;
  };
  auto base = VerificaGiocataGioco(giocata(DaA(1, 5), OpzioneDieciELotto::Base), tabella);
  ASSERT_TRUE(base) << base.Errore().testo;
  ASSERT_EQ(base->colpi.front().vincite.size(), 1u);
  EXPECT_EQ(base->colpi.front().vinto.netto, 14'000);
  EXPECT_EQ(base->colpi.front().vinto.lordo, 15'730);

  auto oro = VerificaGiocataGioco(giocata({1, 50, 51}, OpzioneDieciELotto::Oro), tabella);
  ASSERT_TRUE(oro);
  EXPECT_EQ(oro->colpi.front().spesa, 200) << "the Oro costs the stake again";
  EXPECT_EQ(oro->colpi.front().vinto.netto, 1'500);
  EXPECT_EQ(oro->colpi.front().vincite.front().categoria, "Oro");

  auto extra = VerificaGiocataGioco(giocata(DaA(21, 30), OpzioneDieciELotto::Extra), tabella);
  ASSERT_TRUE(extra);
  EXPECT_EQ(extra->colpi.front().vinto.netto, 200'000'000 + 200) << "ten of the Extra, and no match of the twenty";
  EXPECT_FALSE(extra->importi_mancanti);

  auto ignota = VerificaGiocataGioco(giocata(DaA(21, 25), OpzioneDieciELotto::Extra), tabella);
  ASSERT_TRUE(ignota);
  EXPECT_TRUE(ignota->importi_mancanti) << "an Extra cell not known is told, not priced";
  EXPECT_FALSE(ignota->colpi.front().vincite.front().vinto);

  GiocataGioco due_colpi = giocata(DaA(1, 5), OpzioneDieciELotto::Base);
  due_colpi.colpi = 3;
  auto conto = VerificaGiocataGioco(due_colpi, tabella);
  ASSERT_TRUE(conto);
  EXPECT_EQ(conto->colpi.size(), 2u);
  EXPECT_EQ(conto->colpi_mancanti, 1);
  EXPECT_EQ(conto->saldo, 14'000 - 200);
}

TEST(GiocataGioco, CategorieAQuota) {
  const TabellaGioco superenalotto(Formato(Gioco::SuperEnalotto), {Estrazione(1, Data(30, 1, 2016), DaA(1, 6), {7, 8}),
                                                                   Estrazione(2, Data(3, 1, 2023), DaA(1, 6), {7, 8})});
  GiocataGioco giocata;
  giocata.colonne = {{1, 2, 3, 4, 5, 7}, {1, 2, 40, 41, 42, 43}};
  giocata.colpi = 2;
  auto esito = VerificaGiocataGioco(giocata, superenalotto, [](int id, const std::string& categoria) {
    return id == 2 && categoria == "5+1" ? std::optional<Centesimi>(100'000) : std::nullopt;
  });
  ASSERT_TRUE(esito) << esito.Errore().testo;
  ASSERT_EQ(esito->colpi[0].vincite.size(), 1u) << "no punti 2 before 02/02/2016";
  EXPECT_EQ(esito->colpi[0].spesa, 100) << "two columns at 0,50";
  EXPECT_EQ(esito->colpi[1].spesa, 200);
  ASSERT_EQ(esito->colpi[1].vincite.size(), 2u);
  EXPECT_EQ(esito->colpi[1].vincite[0].categoria, "5+1");
  EXPECT_EQ(esito->colpi[1].vinto.netto, 90'000);
  EXPECT_EQ(esito->colpi[1].vincite[1].categoria, "2");
  EXPECT_TRUE(esito->importi_mancanti);

  const TabellaGioco generico(FormatoGenerico(5, 50), {Estrazione(1, Data(3, 1, 2023), DaA(1, 5), {})});
  GiocataGioco corta;
  corta.colonne = {{1, 2, 3, 4, 5}};
  EXPECT_FALSE(VerificaGiocataGioco(corta, superenalotto));
  EXPECT_FALSE(VerificaGiocataGioco(corta, generico));
  const TabellaGioco vecchio(Formato(Gioco::DieciELotto), {Estrazione(1, Data(3, 1, 2019), DaA(1, 20), {1, 2, 3})});
  EXPECT_FALSE(VerificaGiocataGioco(corta, vecchio)) << "before the 10eLotto table's date";
  const TabellaGioco dieci(Formato(Gioco::DieciELotto), {Estrazione(1, Data(3, 1, 2023), DaA(1, 20), {1, 2, 3})});
  corta.posta = 125;
  EXPECT_FALSE(VerificaGiocataGioco(corta, dieci)) << "stakes go in steps of 0,50";
}

}  // namespace
}  // namespace lottolab::stats
