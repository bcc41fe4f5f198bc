// The other games' bets checked on hand-made draws, every outcome counted by hand, and the run over
// the agenda that sends each bet to its game's archive.

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <numeric>

#include "AgendaDiProva.h"
#include "TempDir.h"
#include "agenda/TestiGiocata.h"
#include "agenda/VerificaAgenda.h"
#include "agenda/VerificaGioco.h"

namespace lottolab::agenda {
namespace {

EstrazioneGioco Estrazione(GruppoData data, std::vector<int> numeri, std::vector<int> extra,
                           std::vector<int> speciali) {
  EstrazioneGioco estrazione;
  estrazione.data = data;
  std::copy(numeri.begin(), numeri.end(), estrazione.numeri.begin());
  std::copy(extra.begin(), extra.end(), estrazione.extra.begin());
  std::copy(speciali.begin(), speciali.end(), estrazione.speciali.begin());
  return estrazione;
}

std::vector<int> DaA(int da, int a) {
  std::vector<int> numeri(static_cast<size_t>(a - da + 1));
  std::iota(numeri.begin(), numeri.end(), da);
  return numeri;
}

Giocata Altra(GiocoGiocata gioco, std::vector<std::vector<int>> colonne, std::vector<Posta> poste, int speciale = 0) {
  Giocata giocata;
  giocata.gioco = gioco;
  giocata.colonne = std::move(colonne);
  giocata.poste = std::move(poste);
  giocata.numero_speciale = speciale;
  giocata.dal = GruppoData{0, 3, 1, 2023};
  giocata.colpi = 2;
  return giocata;
}

// The wins of a draw as "sorte x combinazioni = lordo" or "sorte x combinazioni = ?" when not known.
std::vector<std::string> Vincite(const VerificaColpo& colpo) {
  std::vector<std::string> vincite;
  for (const VincitaColpo& v : colpo.vincite)
    vincite.push_back(fmt::format("{} [{}] x{} = {}", v.sorte, fmt::join(v.numeri, " "), v.combinazioni,
                                  v.importo_noto ? std::to_string(v.lordo) : "?"));
  return vincite;
}

// SuperEnalotto: 1 2 3 4 5 6, Jolly 7, SuperStar 8; then 10 20 30 40 50 60, Jolly 70, SuperStar 80.
const TabellaGioco kSuperEnalotto(Formato(Gioco::SuperEnalotto),
                                  {Estrazione({0, 3, 1, 2023}, DaA(1, 6), {}, {7, 8}),
                                   Estrazione({0, 5, 1, 2023}, {10, 20, 30, 40, 50, 60}, {}, {70, 80})});

TEST(VerificaAltriGiochi, SuperEnalottoPerCategorieConLaSuperStar) {
  Giocata giocata = Altra(GiocoGiocata::SuperEnalotto, {{1, 2, 3, 4, 5, 9}, {1, 2, 10, 11, 12, 13}},
                          {{"giocata", 100}, {"superstar", 50}}, 8);
  auto verifiche = VerificaGiocataAltroGioco(giocata, kSuperEnalotto);
  ASSERT_TRUE(verifiche) << verifiche.Errore().testo;
  ASSERT_EQ(verifiche->size(), 2u);
  // Two columns at 1 euro and their SuperStar at 0,50 in both draws; no quota is known.
  EXPECT_EQ((*verifiche)[0].spesa, 300);
  EXPECT_EQ((*verifiche)[1].spesa, 300);
  EXPECT_EQ(Vincite((*verifiche)[0]),
            (std::vector<std::string>{"punti 5 [1 2 3 4 5] x1 = ?", "punti 2 [1 2] x1 = ?",
                                      "punti 5 SuperStar [1 2 3 4 5 8] x1 = ?", "punti 2 SuperStar [1 2 8] x1 = ?"}));
  EXPECT_EQ((*verifiche)[0].lordo, 0) << "a pool prize without its quota adds nothing";
  EXPECT_TRUE((*verifiche)[1].vincite.empty()) << "one number of the second draw wins nothing";

  // Seven numbers are the integral system of seven columns: 1..6 is the six, each column holding
  // the Jolly 7 with five of the six is a 5+1. A progression of 2 plays two tickets.
  Giocata sistema = Altra(GiocoGiocata::SuperEnalotto, {DaA(1, 7)}, {{"giocata", 100}});
  sistema.progressione = {2, 1};
  sistema.ferma_alla_vincita = true;
  auto sviluppata = VerificaGiocataAltroGioco(sistema, kSuperEnalotto);
  ASSERT_TRUE(sviluppata) << sviluppata.Errore().testo;
  ASSERT_EQ(sviluppata->size(), 1u) << "stops at the first win";
  EXPECT_EQ(sviluppata->front().spesa, 1400);
  EXPECT_EQ(Vincite(sviluppata->front()),
            (std::vector<std::string>{"punti 6 [1 2 3 4 5 6] x2 = ?", "5+1 [1 2 3 4 5 6 7] x12 = ?"}));
}

TEST(VerificaAltriGiochi, DieciELottoConOpzioniEGong) {
  // Evening of 03/01/2023: 1..20, Extra 21..35, Oro 1, Doppio Oro 1 and 2, Gong 90.
  const TabellaGioco tabella(Formato(Gioco::DieciELotto),
                             {Estrazione({0, 3, 1, 2023}, DaA(1, 20), DaA(21, 35), {1, 2, 90})});
  // 3 of 5 pay 4 euro net; 2 of 5 on the Extra is a cell no source confirms; the Gong pays 65 net.
  Giocata giocata =
      Altra(GiocoGiocata::DieciELotto, {{1, 2, 3, 21, 22}}, {{"giocata", 100}, {"extra", 100}, {"gong", 100}}, 90);
  auto verifiche = VerificaGiocataAltroGioco(giocata, tabella);
  ASSERT_TRUE(verifiche) << verifiche.Errore().testo;
  ASSERT_EQ(verifiche->size(), 1u) << "the archive ends there";
  const VerificaColpo& colpo = verifiche->front();
  EXPECT_EQ(colpo.spesa, 300);
  ASSERT_EQ(colpo.vincite.size(), 3u);
  EXPECT_EQ(colpo.vincite[0].sorte, "3 su 5");
  EXPECT_EQ(colpo.vincite[0].numeri, (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(colpo.vincite[1].sorte, "2 su 5 Extra");
  EXPECT_EQ(colpo.vincite[1].numeri, (std::vector<int>{21, 22}));
  EXPECT_FALSE(colpo.vincite[1].importo_noto);
  EXPECT_EQ(colpo.vincite[2].sorte, "Gong");
  EXPECT_EQ(colpo.netto, 6900) << "4 + 65 euro net, the Extra not counted";
  EXPECT_EQ(colpo.lordo - colpo.ritenuta, colpo.netto);
  EXPECT_EQ(colpo.lordo, colpo.vincite[0].lordo + colpo.vincite[2].lordo);

  // The Numero Oro on one number: 63 euro net for a stake of 1 and 1 again for the Oro, doubled by
  // the progression on the stake.
  Giocata oro = Altra(GiocoGiocata::DieciELotto, {{1}}, {{"giocata", 100}, {"oro", 100}});
  oro.colpi = 1;
  oro.progressione = {2};
  auto con_oro = VerificaGiocataAltroGioco(oro, tabella);
  ASSERT_TRUE(con_oro) << con_oro.Errore().testo;
  EXPECT_EQ(con_oro->front().spesa, 400);
  EXPECT_EQ(Vincite(con_oro->front()).at(0).substr(0, 14), "1 su 1 Oro [1]");
  EXPECT_EQ(con_oro->front().netto, 12600);

  // Before the Gong existed the bet is refused in the user's words, naming the draw.
  const TabellaGioco prima_del_gong(Formato(Gioco::DieciELotto),
                                    {Estrazione({0, 3, 1, 2021}, DaA(1, 20), DaA(21, 35), {1, 2, 0})});
  giocata.dal = GruppoData{0, 1, 1, 2021};
  EXPECT_EQ(VerificaGiocataAltroGioco(giocata, prima_del_gong).Errore().testo,
            "giocata 0, estrazione del 03/01/2021: l'opzione Gong non esisteva il 03/01/2021");
}

TEST(VerificaAltriGiochi, WinForLifeColNumeroneDellaSchedina) {
  // 1..10 with Numerone 5, then 1..10 with Numerone 20.
  const TabellaGioco tabella(Formato(Gioco::WinForLife), {Estrazione({0, 3, 1, 2023}, DaA(1, 10), {}, {5}),
                                                          Estrazione({0, 3, 1, 2023}, DaA(1, 10), {}, {20})});
  std::vector<int> sette = DaA(1, 7);
  sette.insert(sette.end(), {11, 12, 13});
  Giocata giocata = Altra(GiocoGiocata::WinForLife, {sette, DaA(11, 20)}, {{"giocata", 200}}, 5);
  auto verifiche = VerificaGiocataAltroGioco(giocata, tabella);
  ASSERT_TRUE(verifiche) << verifiche.Errore().testo;
  ASSERT_EQ(verifiche->size(), 2u) << "two draws of the same day, from its first";
  // The Numerone is the ticket's, never looked for among the column's numbers; the two-euro ticket
  // also wins with no number (0, first category).
  EXPECT_EQ(Vincite((*verifiche)[0]),
            (std::vector<std::string>{"7+1 (quinta) [1 2 3 4 5 6 7] x1 = ?", "0+1 (Win for Life) [5] x1 = ?"}));
  EXPECT_EQ(Vincite((*verifiche)[1]),
            (std::vector<std::string>{"7 (settima) [1 2 3 4 5 6 7] x1 = 200", "0 (prima) [] x1 = ?"}));
  EXPECT_EQ((*verifiche)[1].spesa, 400);
  EXPECT_EQ((*verifiche)[1].netto, 200);
}

TEST(VerificaAltriGiochi, PosteCheIBigliettiNonVendonoSonoRifiutate) {
  const std::vector<std::pair<Giocata, std::string>> casi = {
      {Altra(GiocoGiocata::SuperEnalotto, {DaA(1, 6)}, {{"superstar", 50}}, 8),
       "manca la posta della giocata base (sorte giocata) del gioco SE"},
      {Altra(GiocoGiocata::SuperEnalotto, {DaA(1, 6)}, {{"giocata", 200}}),
       "al SuperEnalotto una colonna costa 0,50 euro (fino al 01/02/2016) o 1 euro"},
      {Altra(GiocoGiocata::WinForLife, {DaA(1, 10)}, {{"giocata", 150}}, 3),
       "a Win for Life una colonna costa 1 o 2 euro"},
      {Altra(GiocoGiocata::DieciELotto, {{1}}, {{"giocata", 120}}),
       "al 10eLotto la posta della sorte giocata va da 1 a 200 euro, a multipli di 0,50"},
      {Altra(GiocoGiocata::DieciELotto, {{1}}, {{"giocata", 100}, {"oro", 100}, {"doppio-oro", 200}}),
       "al 10eLotto si gioca il Numero Oro o il Doppio Oro, non entrambi"},
      {Altra(GiocoGiocata::DieciELotto, {{1}}, {{"giocata", 100}, {"doppio-oro", 100}}),
       "al 10eLotto il Doppio Oro costa il doppio della giocata base"},
      {Altra(GiocoGiocata::DieciELotto, {{1}}, {{"giocata", 100}, {"extra", 150}}),
       "al 10eLotto la posta dell'Extra non supera quella della giocata base"},
  };
  for (const auto& [giocata, messaggio] : casi) EXPECT_EQ(ControllaGiocata(giocata).Errore().testo, messaggio);
  Giocata lotto = test::GiocataLotto();
  EXPECT_FALSE(VerificaGiocataAltroGioco(lotto, kSuperEnalotto));
  Giocata win = Altra(GiocoGiocata::WinForLife, {DaA(1, 10)}, {{"giocata", 100}}, 3);
  EXPECT_EQ(VerificaGiocataAltroGioco(win, kSuperEnalotto).Errore().testo,
            "la giocata 0 è del Win for Life e non si verifica sull'SuperEnalotto");
}

// The run over the agenda: each bet to its game's archive, a bet that fails told beside the others,
// a game without its archive waiting for it.
TEST(VerificaAltriGiochi, LAgendaMandaOgniGiocataAlSuoArchivio) {
  lottolab::test::CartellaTemporanea cartella;
  auto agenda = Agenda::Apri(cartella / "AgendaGiocate.db").Valore();
  const int64_t se =
      agenda.Aggiungi(Altra(GiocoGiocata::SuperEnalotto, {{1, 2, 3, 41, 51, 61}}, {{"giocata", 100}})).Valore();
  Giocata lontana = Altra(GiocoGiocata::SuperEnalotto, {DaA(1, 6)}, {{"giocata", 100}});
  lontana.id_estr_dal = 1;
  lontana.dal.reset();
  lontana.colpi = 5;
  const int64_t id_lontana = agenda.Aggiungi(lontana).Valore();
  agenda.Aggiungi(Altra(GiocoGiocata::WinForLife, {DaA(1, 10)}, {{"giocata", 100}}, 3)).Valore();
  agenda.Aggiungi(test::GiocataLotto()).Valore();
  agenda.Aggiungi(test::GiocataLotto()).Valore();

  const ArchiviGiocate archivi{.superenalotto = &kSuperEnalotto};
  EXPECT_EQ(GiochiDaVerificare(agenda).Valore(),
            (std::vector<GiocoGiocata>{GiocoGiocata::Lotto, GiocoGiocata::SuperEnalotto, GiocoGiocata::WinForLife}));
  auto esito = VerificaAgenda(agenda, archivi);
  ASSERT_TRUE(esito) << esito.Errore().testo;
  EXPECT_EQ(esito->verificate, 2);
  EXPECT_EQ(esito->non_verificate,
            (std::vector<std::string>{"2 giocate del gioco LO non verificate: manca l'archivio del Lotto",
                                      "1 giocata del gioco WF non verificata: manca l'archivio di Win for Life"}));
  // 1 2 3 is a three, 1..6 a six: two wins whose quota is not known, both waiting to be seen.
  EXPECT_EQ(esito->vincite_da_vedere, 2);
  const Totali totali = agenda.TotaliGiocata(se).Valore();
  EXPECT_EQ(totali.spesa, 200);
  EXPECT_EQ(totali.colpi_vincenti, 1);
  EXPECT_EQ(totali.vincite_senza_importo, 1);
  EXPECT_EQ(totali.netto, 0);
  EXPECT_EQ(agenda.TotaliGiocata(id_lontana)->colpi_verificati, 2) << "still open: the archive ends";

  Giocata ferma = Altra(GiocoGiocata::SuperEnalotto, {DaA(1, 6)}, {{"giocata", 100}});
  ferma.ferma_alla_vincita = true;
  const int64_t id_ferma = agenda.Aggiungi(ferma).Valore();
  ASSERT_TRUE(VerificaAgenda(agenda, archivi, {.giochi = {GiocoGiocata::SuperEnalotto}}));
  EXPECT_EQ(agenda.Elenco({StatoGiocate::Chiuse, std::nullopt})->back().giocata.id, id_ferma)
      << "a win whose money is not known still closes a bet that stops at its first win";
  EXPECT_EQ(VerificaAgenda(agenda, archivi, {.id = 99}).Errore().testo, "la giocata 99 non è nell'agenda");

  // The quotas the user reads: 25 euro for a three is below the tax's threshold; 100,000 euro for a
  // six pays 20% on the part above 500 (2023). A quota for another draw's date is not taken.
  auto tre = ApplicaQuota(agenda, archivi, {GiocoGiocata::SuperEnalotto, 1, {0, 3, 1, 2023}, "punti 3", 2500});
  ASSERT_TRUE(tre) << tre.Errore().testo;
  EXPECT_EQ(tre->verificate, 1) << "only the bet whose check holds that draw with that category's win";
  EXPECT_EQ(agenda.TotaliGiocata(se)->netto, 2500);
  EXPECT_EQ(agenda.TotaliGiocata(se)->vincite_senza_importo, 0);
  ASSERT_TRUE(ApplicaQuota(agenda, archivi, {GiocoGiocata::SuperEnalotto, 1, {0, 3, 1, 2023}, "punti 6", 10'000'000}));
  const Totali sei = agenda.TotaliGiocata(id_ferma).Valore();
  EXPECT_EQ(sei.lordo, 10'000'000);
  EXPECT_EQ(sei.netto, 10'000'000 - (10'000'000 - 50'000) / 5);
  ASSERT_TRUE(ApplicaQuota(agenda, archivi, {GiocoGiocata::SuperEnalotto, 1, {0, 4, 1, 2023}, "punti 6", 100}));
  EXPECT_EQ(agenda.TotaliGiocata(id_ferma)->vincite_senza_importo, 1) << "the archive's draw 1 is of another day";
  EXPECT_EQ(ApplicaQuota(agenda, archivi, {GiocoGiocata::Lotto, 1, {0, 3, 1, 2023}, "ambo", 100}).Errore().testo,
            "il gioco LO non paga quote: i suoi premi sono fissi");
  EXPECT_EQ(
      ApplicaQuota(agenda, archivi, {GiocoGiocata::SuperEnalotto, 1, {0, 3, 1, 2023}, "punti 6", 0}).Errore().testo,
      "la quota deve essere maggiore di zero");
}

TEST(TestiGiocata, ColonneLetteComeLUtenteLeScrive) {
  using Colonne = std::vector<std::vector<int>>;
  EXPECT_EQ(LeggiColonne("12 34 56").Valore(), (Colonne{{12, 34, 56}}));
  EXPECT_EQ(LeggiColonne(" 1,2.3 / 4 5 6;\n7 ;").Valore(), (Colonne{{1, 2, 3}, {4, 5, 6}, {7}}));
  EXPECT_EQ(LeggiColonne("1 2 x3").Errore().testo, "numero non valido: x3");
  EXPECT_EQ(LeggiColonne("1 -2").Errore().testo, "numero non valido: -2");
  EXPECT_EQ(LeggiColonne("99999999999").Errore().testo, "numero non valido: 99999999999");
  EXPECT_EQ(LeggiColonne(" / ; ").Errore().testo, "mancano i numeri della giocata");
  const VincitaColpo ignota{0, "punti 3", {1, 2, 3}, 2, 0, false};
  EXPECT_EQ(TestoVincita(ignota), "punti 3 1.2.3 (2), importo non noto");
}

}  // namespace
}  // namespace lottolab::agenda
