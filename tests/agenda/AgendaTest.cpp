#include <fmt/format.h>
#include <gtest/gtest.h>

#include <chrono>
#include <ctime>

#include "AgendaDiProva.h"
#include "TempDir.h"
#include "agenda/Importi.h"

namespace lottolab::agenda {
namespace {

using test::GiocataLotto;
using test::Verifica;

class AgendaGiocate : public testing::Test {
 protected:
  void SetUp() override {
    auto agenda = Agenda::Apri(m_cartella / "AgendaGiocate.db");
    ASSERT_TRUE(agenda) << agenda.Errore().testo;
    m_agenda.emplace(std::move(agenda).Valore());
  }

  int64_t Aggiungi(const Giocata& giocata) {
    auto id = m_agenda->Aggiungi(giocata);
    EXPECT_TRUE(id) << id.Errore().testo;
    return id.ValoreOppure(0);
  }

  std::vector<int64_t> Id(const FiltroGiocate& filtro) {
    std::vector<int64_t> id;
    auto elenco = m_agenda->Elenco(filtro);
    EXPECT_TRUE(elenco) << elenco.Errore().testo;
    for (const VoceAgenda& voce : elenco.ValoreOppure({})) id.push_back(voce.giocata.id);
    return id;
  }

  lottolab::test::CartellaTemporanea m_cartella;
  std::optional<Agenda> m_agenda;
};

TEST_F(AgendaGiocate, UnaGiocataTornaComeEStataScritta) {
  Giocata lotto = GiocataLotto();
  lotto.progressione = {1, 1, 2, 2, 3, 3, 4, 4, 5, 5};
  lotto.ferma_alla_vincita = true;
  lotto.id_estr_dal = 9876;
  lotto.nota = "sistema d'\"autore\"; con àccènti\nsu due righe";
  Giocata sistema;
  sistema.gioco = GiocoGiocata::SuperEnalotto;
  sistema.colonne = {{1, 2, 3, 4, 5, 6}, {90, 80, 70, 60, 50, 40, 30}};
  sistema.numero_speciale = 90;
  sistema.poste = {{"giocata", 100}, {"superstar", 50}};
  sistema.id_estr_dal = 1;
  sistema.colpi = 1;
  Giocata tutte = GiocataLotto();
  tutte.ruote = {kTutteLeRuote};
  tutte.dal.reset();
  tutte.id_estr_dal = 5;

  // std::time reads a coarse clock that can lag the one the database reads by a tick.
  const auto adesso = [] { return std::chrono::system_clock::to_time_t(std::chrono::system_clock::now()); };
  const std::time_t prima = adesso();
  for (Giocata giocata : {lotto, sistema, tutte}) {
    giocata.id = Aggiungi(giocata);
    auto letta = m_agenda->Carica(giocata.id);
    ASSERT_TRUE(letta) << letta.Errore().testo;
    EXPECT_GE(letta->creata, prima);
    EXPECT_LE(letta->creata, adesso());
    giocata.creata = letta->creata;
    EXPECT_EQ(*letta, giocata) << "bet " << giocata.id;
  }
  EXPECT_EQ(m_agenda->Carica(99).Errore().testo, "la giocata 99 non è nell'agenda");
}

TEST_F(AgendaGiocate, LeGiocateNonValideSonoRifiutateSenzaScrivereNulla) {
  struct Caso {
    const char* descrizione;
    void (*guasta)(Giocata&);
    const char* messaggio;
  };
  const Caso casi[] = {
      {"no numbers", [](Giocata& g) { g.colonne.clear(); }, "mancano i numeri della giocata"},
      {"91", [](Giocata& g) { g.colonne[0][2] = 91; }, "numero non valido: 91 (deve essere tra 1 e 90)"},
      {"0", [](Giocata& g) { g.colonne[0][0] = 0; }, "numero non valido: 0 (deve essere tra 1 e 90)"},
      {"eleven numbers", [](Giocata& g) { g.colonne[0] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}; },
       "i numeri sono 11: ne servono da 1 a 10"},
      {"repeat in column 2",
       [](Giocata& g) {
         g.colonne.push_back({7, 8, 7});
       },
       "il numero 7 è ripetuto della colonna 2"},
      {"terno on two numbers",
       [](Giocata& g) {
         g.colonne[0] = {1, 2};
       },
       "la sorte terno vuole almeno 3 numeri per colonna"},
      {"no wheels", [](Giocata& g) { g.ruote.clear(); }, "mancano le ruote della giocata"},
      {"TT with BA",
       [](Giocata& g) {
         g.ruote = {kTutteLeRuote, BA};
       },
       "TT (tutte le ruote) si gioca da sola, senza altre ruote"},
      {"wheel twice",
       [](Giocata& g) {
         g.ruote = {VE, VE};
       },
       "la ruota VE è ripetuta"},
      {"stake twice",
       [](Giocata& g) {
         g.poste.push_back({"ambo", 5});
       },
       "la posta sulla sorte ambo è data due volte"},
      {"zero stake", [](Giocata& g) { g.poste[0].centesimi = 0; },
       "posta non valida sulla sorte ambo: deve essere tra 0,01 e 200 euro"},
      {"foreign sorte", [](Giocata& g) { g.poste[0].sorte = "superstar"; },
       "sorte non valida per il gioco LO: superstar"},
      {"no first draw", [](Giocata& g) { g.dal.reset(); }, "manca la prima estrazione in gioco"},
      {"31 February",
       [](Giocata& g) {
         g.dal = GruppoData{0, 31, 2, 2023};
       },
       "data non valida: 31/02/2023"},
      {"no colpi", [](Giocata& g) { g.colpi = 0; }, "colpi non validi: 0 (da 1 a 999)"},
      {"short progression",
       [](Giocata& g) {
         g.progressione = {1, 2};
       },
       "la progressione ha 2 valori ma i colpi sono 10"},
      {"Lotto special", [](Giocata& g) { g.numero_speciale = 5; }, "il Lotto non ha un numero speciale"},
      {"WF wheels",
       [](Giocata& g) {
         g.gioco = GiocoGiocata::WinForLife;
         g.colonne = {{1, 2, 3, 4, 5, 6, 7, 8, 9, 20}};
         g.numero_speciale = 20;
         g.poste = {{"giocata", 100}};
       },
       "le ruote valgono solo per il Lotto"},
      {"WF 21",
       [](Giocata& g) {
         g.gioco = GiocoGiocata::WinForLife;
         g.ruote.clear();
         g.colonne = {{1, 2, 3, 4, 5, 6, 7, 8, 9, 21}};
         g.numero_speciale = 20;
         g.poste = {{"giocata", 100}};
       },
       "numero non valido: 21 (deve essere tra 1 e 20)"},
      {"SE superstar without its number",
       [](Giocata& g) {
         g.gioco = GiocoGiocata::SuperEnalotto;
         g.ruote.clear();
         g.colonne = {{1, 2, 3, 4, 5, 6}};
         g.poste = {{"superstar", 50}};
       },
       "la sorte superstar vuole il numero speciale"},
  };
  for (const Caso& caso : casi) {
    Giocata giocata = GiocataLotto();
    caso.guasta(giocata);
    auto id = m_agenda->Aggiungi(giocata);
    ASSERT_FALSE(id) << caso.descrizione;
    EXPECT_EQ(id.Errore().testo, caso.messaggio) << caso.descrizione;
  }
  EXPECT_TRUE(m_agenda->Elenco()->empty());
}

TEST_F(AgendaGiocate, FiltriTotaliERimozione) {
  const int64_t aperta = Aggiungi(GiocataLotto());
  Giocata breve = GiocataLotto();
  breve.colpi = 3;
  const int64_t finita = Aggiungi(breve);
  Giocata ferma = GiocataLotto();
  ferma.ferma_alla_vincita = true;
  const int64_t vinta = Aggiungi(ferma);
  Giocata dieci;
  dieci.gioco = GiocoGiocata::DieciELotto;
  dieci.colonne = {{1, 2, 3, 4, 5}};
  dieci.poste = {{"giocata", 200}};
  dieci.id_estr_dal = 1;
  dieci.colpi = 2;
  const int64_t altro_gioco = Aggiungi(dieci);

  ASSERT_TRUE(m_agenda->SalvaVerifiche(aperta, Verifica(4, 150, {2}, 25000)));
  ASSERT_TRUE(m_agenda->SalvaVerifiche(finita, Verifica(3, 150)));
  ASSERT_TRUE(m_agenda->SalvaVerifiche(vinta, Verifica(2, 150, {2}, 8333)));
  ASSERT_TRUE(m_agenda->SalvaVerifiche(altro_gioco, Verifica(1, 200)));

  EXPECT_EQ(Id({}), (std::vector<int64_t>{aperta, finita, vinta, altro_gioco}));
  EXPECT_EQ(Id({StatoGiocate::Aperte, std::nullopt}), (std::vector<int64_t>{aperta, altro_gioco}));
  EXPECT_EQ(Id({StatoGiocate::Chiuse, std::nullopt}), (std::vector<int64_t>{finita, vinta}))
      << "all colpi checked, or a win when it stops at the first";
  EXPECT_EQ(Id({StatoGiocate::Aperte, GiocoGiocata::Lotto}), (std::vector<int64_t>{aperta}));
  EXPECT_EQ(Id({StatoGiocate::Tutte, GiocoGiocata::SuperEnalotto}), (std::vector<int64_t>{}));

  const Totali una = m_agenda->TotaliGiocata(aperta).Valore();
  EXPECT_EQ(una.spesa, 600);
  EXPECT_EQ(una.lordo, 25000);
  EXPECT_EQ(una.ritenuta, 2000);
  EXPECT_EQ(una.netto, 23000);
  EXPECT_EQ(una.Saldo(), 22400);
  EXPECT_EQ(una.colpi_verificati, 4);
  EXPECT_EQ(una.colpi_vincenti, 1);
  const Totali tutte = m_agenda->TotaliComplessivi().Valore();
  EXPECT_EQ(tutte.spesa, 600 + 450 + 300 + 200);
  EXPECT_EQ(tutte.lordo, 25000 + 8333);
  EXPECT_EQ(tutte.netto, 23000 + 8333 - 666);
  EXPECT_EQ(tutte.colpi_verificati, 10);
  EXPECT_EQ(m_agenda->TotaliComplessivi({StatoGiocate::Chiuse, std::nullopt})->spesa, 750);
  const auto elenco = m_agenda->Elenco().Valore();
  EXPECT_EQ(elenco[2].totali.netto, 8333 - 666);
  EXPECT_TRUE(elenco[2].chiusa);

  ASSERT_TRUE(m_agenda->Rimuovi(aperta));
  EXPECT_EQ(m_agenda->Rimuovi(aperta).Errore().testo, fmt::format("la giocata {} non è nell'agenda", aperta));
  EXPECT_EQ(Id({}), (std::vector<int64_t>{finita, vinta, altro_gioco}));
  EXPECT_EQ(m_agenda->TotaliComplessivi()->spesa, 450 + 300 + 200) << "its checks went with it";
  EXPECT_EQ(m_agenda->VinciteNonViste()->size(), 1u) << "and its wins";
  EXPECT_EQ(m_agenda->TotaliGiocata(aperta).Errore().testo, fmt::format("la giocata {} non è nell'agenda", aperta));
}

TEST_F(AgendaGiocate, LeVerificheSostituisconoLePrecedentiELeVinciteVisteRestanoViste) {
  const int64_t id = Aggiungi(GiocataLotto());
  EXPECT_EQ(m_agenda->UltimaVisione().Valore(), std::nullopt);
  auto prime = Verifica(3, 150, {2}, 25000);
  prime[1].vincite.push_back(VincitaColpo{VE, "terno", {12, 34, 56}, 1, 225000});
  ASSERT_TRUE(m_agenda->SalvaVerifiche(id, prime));
  EXPECT_EQ(m_agenda->Verifiche(id).Valore(), prime);
  auto non_viste = m_agenda->VinciteNonViste().Valore();
  ASSERT_EQ(non_viste.size(), 2u);
  EXPECT_EQ(non_viste[1].giocata, id);
  EXPECT_EQ(non_viste[1].colpo, 2);
  EXPECT_EQ(non_viste[1].id_estr, 101);
  EXPECT_EQ(non_viste[1].data, (GruppoData{0, 6, 1, 2023}));
  EXPECT_EQ(non_viste[1].vincita, prime[1].vincite[1]);

  ASSERT_TRUE(m_agenda->SegnaVisione());
  EXPECT_TRUE(m_agenda->UltimaVisione().Valore().has_value());
  EXPECT_TRUE(m_agenda->VinciteNonViste()->empty());

  // The archive grew: checked again, the same wins are old news and only the new one shows.
  auto seconde = Verifica(5, 150, {2, 5}, 25000);
  seconde[1].vincite.push_back(prime[1].vincite[1]);
  ASSERT_TRUE(m_agenda->SalvaVerifiche(id, seconde));
  EXPECT_EQ(m_agenda->Verifiche(id).Valore(), seconde);
  non_viste = m_agenda->VinciteNonViste().Valore();
  ASSERT_EQ(non_viste.size(), 1u);
  EXPECT_EQ(non_viste[0].colpo, 5);

  // Fewer draws replace more: nothing of the old results is left.
  ASSERT_TRUE(m_agenda->SalvaVerifiche(id, Verifica(1, 150)));
  EXPECT_EQ(m_agenda->Verifiche(id)->size(), 1u);
  EXPECT_TRUE(m_agenda->VinciteNonViste()->empty());

  auto troppe = m_agenda->SalvaVerifiche(id, Verifica(11, 150));
  EXPECT_EQ(troppe.Errore().testo, fmt::format("la verifica ha 11 estrazioni ma la giocata {} ha 10 colpi", id));
  auto incoerente = Verifica(2, 150, {1}, 1000);
  incoerente[0].netto += 1;
  EXPECT_EQ(m_agenda->SalvaVerifiche(id, incoerente).Errore().testo,
            fmt::format("colpo 1 della giocata {}: importi non coerenti", id));
  EXPECT_EQ(m_agenda->Verifiche(id)->size(), 1u) << "a refused check leaves the stored one";
}

TEST_F(AgendaGiocate, LaVerificaPassaLeGiocateAperteAlMotore) {
  const int64_t aperta = Aggiungi(GiocataLotto());
  Giocata breve = GiocataLotto();
  breve.colpi = 1;
  const int64_t chiusa = Aggiungi(breve);
  ASSERT_TRUE(m_agenda->SalvaVerifiche(chiusa, Verifica(1, 150)));

  std::vector<int64_t> viste;
  auto motore = [&](const Giocata& giocata) -> Esito<std::vector<VerificaColpo>> {
    viste.push_back(giocata.id);
    return Verifica(2, 150, {1}, 25000);
  };
  EXPECT_EQ(VerificaGiocate(*m_agenda, motore).Valore(), 1);
  EXPECT_EQ(viste, std::vector<int64_t>{aperta});
  EXPECT_EQ(m_agenda->TotaliGiocata(aperta)->colpi_verificati, 2);
  EXPECT_EQ(VerificaGiocate(*m_agenda, motore, chiusa).Errore().testo,
            fmt::format("la verifica ha 2 estrazioni ma la giocata {} ha 1 colpi", chiusa))
      << "a bet named is checked even when closed";
  auto guasto = [](const Giocata&) -> Esito<std::vector<VerificaColpo>> { return AvvisoEsclamativo("archivio vuoto"); };
  EXPECT_EQ(VerificaGiocate(*m_agenda, guasto).Errore().testo, "archivio vuoto");
  EXPECT_EQ(VerificaGiocate(*m_agenda, motore, 77).Errore().testo, "la giocata 77 non è nell'agenda");
}

TEST(Importi, LettiEScrittiAlCentesimo) {
  EXPECT_EQ(LeggiImporto("1").Valore(), 100);
  EXPECT_EQ(LeggiImporto("0.5").Valore(), 50);
  EXPECT_EQ(LeggiImporto("0,05").Valore(), 5);
  EXPECT_EQ(LeggiImporto("200").Valore(), 20000);
  for (const char* cattivo : {"", "-1", "1.", ".5", "1.005", "1,2,3", "1e3", "abc", " 1", "99999999"})
    EXPECT_FALSE(LeggiImporto(cattivo)) << cattivo;
  EXPECT_EQ(LeggiImporto("x").Errore().testo,
            "importo non valido: x (euro con al più due decimali, per esempio 1 o 0,50)");
  EXPECT_EQ(FormattaImporto(238095), "2380,95");
  EXPECT_EQ(FormattaImporto(5), "0,05");
  EXPECT_EQ(FormattaImporto(-300), "-3,00");
}

}  // namespace
}  // namespace lottolab::agenda
