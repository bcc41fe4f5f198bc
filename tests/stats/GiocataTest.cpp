#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <tuple>

#include "ArchiviDiProva.h"
#include "stats/Giocata.h"

namespace lottolab::stats {
namespace {

using test::Archivio;

// Draws dated from 2018, after every rule of the Lotto used here came in.
TabellaEstrazioni Datata(TabellaEstrazioni tabella) {
  for (Estrazione& estrazione : tabella.Tutte()) estrazione.data = Data(2 + estrazione.id_estr, 1, 2018);
  return tabella;
}

Giocata Ambo(std::vector<int> numeri, std::vector<int> ruote) {
  Giocata giocata;
  giocata.colonne = {std::move(numeri)};
  giocata.ruote = std::move(ruote);
  giocata.poste = {PostaSorte{SorteLotto::Ambo, 100, {}, 0}};
  return giocata;
}

TEST(Giocata, ContoColpoPerColpo) {
  const TabellaEstrazioni tabella = Datata(Archivio()
                                               .Estrazione()
                                               .Estrazione({{BA, {1, 2, 3, 4, 5}}})
                                               .Vuota()
                                               .Estrazione({{BA, {1, 2, 3, 4, 5}}, {VE, {1, 2, 9, 8, 7}}})
                                               .Estrazione()
                                               .Tabella());
  Giocata giocata = Ambo({1, 2}, {BA, VE});
  giocata.colpi = 5;
  giocata.poste.front().progressione = {100, 200};
  ASSERT_TRUE(ControllaGiocata(giocata, tabella));
  const EsitoGiocata esito = VerificaGiocata(giocata, tabella);

  ASSERT_EQ(esito.colpi.size(), 4u) << "the empty record spends no colpo";
  EXPECT_EQ(esito.colpi_mancanti, 1);
  EXPECT_EQ(esito.colpi[2].id_estr, 4);
  const std::vector<Centesimi> spese{esito.colpi[0].spesa, esito.colpi[1].spesa, esito.colpi[2].spesa};
  EXPECT_EQ(spese, (std::vector<Centesimi>{100, 200, 200})) << "the progression's last stake goes on";
  EXPECT_EQ(esito.colpi[1].vinto.lordo, 25'000) << "2 euro over two wheels: 1 euro on Bari";
  EXPECT_EQ(esito.colpi[1].vinto.netto, 23'000);
  ASSERT_EQ(esito.colpi[2].vincite.size(), 2u) << "each wheel pays on its own";
  EXPECT_EQ(esito.colpi[2].vinto.lordo, 50'000);
  EXPECT_EQ(esito.saldo, 2 * 23'000 + 23'000 - 100 - 200 - 200 - 200);

  const Riepilogo riepilogo = Riassumi(esito);
  EXPECT_EQ(riepilogo.colpi_vincenti_per_sorte[static_cast<size_t>(SorteLotto::Ambo)], 2);
  EXPECT_EQ(riepilogo.massima_serie_senza_vincite, 1);
  EXPECT_EQ(riepilogo.massimo_calo, 200) << "the last colpo lost its stake after the peak";

  giocata.arresto = Arresto::AllaPrimaVincita;
  const EsitoGiocata fermata = VerificaGiocata(giocata, tabella);
  EXPECT_EQ(fermata.colpi.size(), 2u);
  EXPECT_EQ(fermata.colpi_mancanti, 0);

  Giocata senza_vincite = Ambo({60, 61}, {BA});
  EXPECT_EQ(RetroVerifica(senza_vincite, tabella, 1, 5).massimo_calo, 400);
  EXPECT_EQ(RetroVerifica(senza_vincite, tabella, 1, 5).massima_serie_senza_vincite, 4);
  const Riepilogo fino_alla_terza = RetroVerifica(Ambo({1, 2}, {BA}), tabella, 1, 4);
  EXPECT_EQ(fino_alla_terza.colpi, 3) << "the empty record inside the range carries no colpo past its end";
  EXPECT_EQ(fino_alla_terza.colpi_vincenti_per_sorte[static_cast<size_t>(SorteLotto::Ambo)], 2);
}

TEST(Giocata, GiocateRifiutate) {
  const TabellaEstrazioni tabella = Datata(Archivio().Estrazione().Tabella());
  Giocata colpi_zero = Ambo({1, 2}, {BA});
  colpi_zero.colpi = 0;
  Giocata fuori = Ambo({1, 2}, {BA});
  fuori.prima_estrazione = 2;
  Giocata colonna_sbagliata = Ambo({1, 2}, {BA});
  colonna_sbagliata.colonne.push_back({3});
  Giocata progressione_sbagliata = Ambo({1, 2}, {BA});
  progressione_sbagliata.poste.front().progressione = {100, 1};
  for (const Giocata& giocata : {colpi_zero, fuori, colonna_sbagliata, progressione_sbagliata, Ambo({}, {BA})})
    EXPECT_FALSE(ControllaGiocata(giocata, tabella));
  auto colonna = ControllaGiocata(colonna_sbagliata, tabella);
  ASSERT_FALSE(colonna);
  EXPECT_EQ(colonna.Errore().testo.rfind("colonna 2: ", 0), 0u) << colonna.Errore().testo;
}

// A bet on the real draws, its wins found again by reading every wheel of every draw. Ambo and terno
// on five numbers for one euro each on Tutte pay exactly 2,50 and 45,00 a combination.
TEST(Giocata, ArchivioReale) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tabella = test::ArchivioReale();
  const int prima = tabella.UltimaEstrazioneEntro(Data(2, 1, 2018));
  ASSERT_GT(prima, 0);
  const std::vector<int> numeri{3, 17, 29, 58, 90};
  Giocata giocata;
  giocata.colonne = {numeri};
  giocata.ruote = {kTutteLeRuote};
  giocata.poste = {PostaSorte{SorteLotto::Ambo, 100, {}, 0}, PostaSorte{SorteLotto::Terno, 100, {}, 0}};
  giocata.prima_estrazione = prima;
  giocata.colpi = 600;
  ASSERT_TRUE(ControllaGiocata(giocata, tabella));
  const EsitoGiocata esito = VerificaGiocata(giocata, tabella);

  std::map<std::tuple<int, int, int>, int64_t> attese;  // (draw, wheel, sorte) -> combinations
  Centesimi lordo = 0;
  int giocati = 0;
  for (int id = prima; id <= tabella.EstrazioniArchivio() && giocati < 600; ++id, ++giocati)
    for (int ruota = BA; ruota <= VE; ++ruota) {
      int presi = 0;
      for (int p = 1; p <= 5; ++p) presi += std::count(numeri.begin(), numeri.end(), tabella[id].Numero(ruota, p));
      const int64_t ambi = presi * (presi - 1) / 2;
      const int64_t terni = presi * (presi - 1) * (presi - 2) / 6;
      if (ambi > 0) attese[{id, ruota, 2}] = ambi;
      if (terni > 0) attese[{id, ruota, 3}] = terni;
      lordo += ambi * 250 + terni * 4'500;
    }
  std::map<std::tuple<int, int, int>, int64_t> trovate;
  for (const ColpoGiocata& colpo : esito.colpi)
    for (const VincitaGiocata& vincita : colpo.vincite)
      trovate[{vincita.id_estr, vincita.ruota, static_cast<int>(vincita.sorte)}] = vincita.combinazioni;
  EXPECT_EQ(trovate, attese);
  EXPECT_FALSE(attese.empty());
  EXPECT_EQ(esito.vinto.lordo, lordo);
  EXPECT_EQ(esito.spesa, 200 * static_cast<Centesimi>(esito.colpi.size()));
  EXPECT_EQ(esito.saldo, esito.vinto.netto - esito.spesa);
}

}  // namespace
}  // namespace lottolab::stats
