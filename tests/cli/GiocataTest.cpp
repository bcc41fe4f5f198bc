#include <gtest/gtest.h>

#include "LottolabDiProva.h"
#include "agenda/Agenda.h"

namespace lottolab::cli {
namespace {

class Giocata : public LottolabDiProva {
 protected:
  Uscita Aggiungi(std::vector<std::string> parole) {
    parole.insert(parole.begin(), {"giocata", "aggiungi"});
    return Lottolab(parole);
  }
};

TEST_F(Giocata, AggiuntaElencataERimossa) {
  const Uscita prima =
      Aggiungi({"--numeri", "12,34,56", "--ruote",        "BA,VE",   "--sorte", "ambo",   "--posta",
                "1",        "--sorte",  "Terno",          "--posta", "0,50",    "--dal",  "05/01/2023",
                "--colpi",  "4",        "--progressione", "1,1,2,2", "--ferma", "--nota", "dal giornale"});
  ASSERT_EQ(prima.codice, 0) << prima.err;
  EXPECT_EQ(prima.out, "aggiunta la giocata 1\n");
  const Uscita seconda = Lottolab({"--gioco",    "SE",
                                   "giocata",    "aggiungi",
                                   "--numeri",   "1,2,3,4,5,6",
                                   "--numeri",   "7,8,9,10,11,12",
                                   "--speciale", "90",
                                   "--sorte",    "giocata",
                                   "--posta",    "1",
                                   "--sorte",    "superstar",
                                   "--posta",    "0.5",
                                   "--dal",      "1234",
                                   "--colpi",    "2"});
  ASSERT_EQ(seconda.codice, 0) << seconda.err;
  ASSERT_EQ(Aggiungi({"--gioco", "LO", "--numeri", "90", "--ruote", "TT", "--sorte", "ambata", "--posta", "10", "--dal",
                      "1/2/2024", "--colpi", "1"})
                .codice,
            0);

  // The engine's results, stored as the check would store them.
  {
    auto agenda = agenda::Agenda::Apri(m_base / "AgendaGiocate.db").Valore();
    agenda::VerificaColpo vinto{101, GruppoData{0, 7, 1, 2023}, 150, 25000, 2000, 23000, {}};
    vinto.vincite.push_back({BA, "ambo", {12, 34}, 1, 25000});
    ASSERT_TRUE(agenda.SalvaVerifiche(1, {{100, GruppoData{0, 5, 1, 2023}, 150, 0, 0, 0, {}}, vinto}));
  }
  const Uscita elenco = Lottolab({"giocata", "elenco"});
  ASSERT_EQ(elenco.codice, 0) << elenco.err;
  EXPECT_EQ(elenco.out,
            "    id  gioco  numeri                            ruote  poste                          dal         "
            "colpi  stato   spesa   vinto   saldo\n"
            "     1  LO     12.34.56                          BA,VE  ambo 1,00 terno 0,50 x1,1,2,2  05/01/2023  "
            "2/4    chiusa   3,00  230,00  227,00\n"
            "     2  SE     1.2.3.4.5.6 / 7.8.9.10.11.12 +90  -      giocata 1,00 superstar 0,50    estr. 1234  "
            "0/2    aperta   0,00    0,00    0,00\n"
            "     3  LO     90                                TT     estratto 10,00                 01/02/2024  "
            "0/1    aperta   0,00    0,00    0,00\n"
            "totale                                                                                             "
            "                3,00  230,00  227,00\n");
  EXPECT_EQ(Lottolab({"giocata", "elenco", "--chiuse"}).out.find("     2  SE"), std::string::npos);
  const std::string aperte = Lottolab({"giocata", "elenco", "--aperte", "--gioco", "SE"}).out;
  EXPECT_NE(aperte.find("     2  SE"), std::string::npos);
  EXPECT_EQ(aperte.find("     3  LO"), std::string::npos);

  const Uscita rimossa = Lottolab({"giocata", "rimuovi", "1"});
  EXPECT_EQ(rimossa.out, "rimossa la giocata 1\n");
  EXPECT_EQ(Lottolab({"giocata", "elenco", "--chiuse"}).out, "nessuna giocata\n");
  const Uscita di_nuovo = Lottolab({"giocata", "rimuovi", "1"});
  EXPECT_EQ(di_nuovo.codice, 2);
  EXPECT_EQ(di_nuovo.err, "lottolab: la giocata 1 non è nell'agenda\n");
}

TEST_F(Giocata, OgniParolaSbagliataHaIlSuoMessaggio) {
  const std::vector<std::string> base = {"--numeri", "12,34", "--ruote", "BA",       "--sorte", "ambo",
                                         "--posta",  "1",     "--dal",   "1/2/2024", "--colpi", "3"};
  struct Caso {
    std::vector<std::string> parole;
    std::string messaggio;
  };
  auto con = [&](std::string opzione, std::string valore) {
    std::vector<std::string> parole = base;
    auto trovata = std::find(parole.begin(), parole.end(), opzione);
    if (trovata == parole.end()) {
      parole.push_back(opzione);
      if (!valore.empty()) parole.push_back(valore);
    } else {
      *std::next(trovata) = valore;
    }
    return parole;
  };
  const std::vector<Caso> casi = {
      {con("--numeri", "12,,34"), "numero mancante in 12,,34"},
      {con("--numeri", "12,x"), "numero non valido: x"},
      {con("--ruote", "BA,XX"), "ruota sconosciuta: XX (usare BA CA FI GE MI NA PA RO TO VE NZ o TT)"},
      {con("--sorte", "quintina"),
       "sorte non valida per il gioco LO: quintina (si gioca su estratto, ambo, terno, quaterna, cinquina, ambetto, "
       "estratto1, estratto2, estratto3, estratto4, estratto5)"},
      {con("--sorte", "terno"), "la sorte terno vuole almeno 3 numeri per colonna"},
      {con("--posta", "0.001"), "importo non valido: 0.001 (euro con al più due decimali, per esempio 1 o 0,50)"},
      {con("--dal", "31/02/2024"), "data non valida: 31/02/2024"},
      {con("--dal", "ieri"), "prima estrazione non valida: ieri (una data GG/MM/AAAA o un'estrazione)"},
      {con("--colpi", "0"), "colpi non validi: 0 (da 1 a 999)"},
      {con("--gioco", "DL5"), "gioco non valido per l'agenda: DL5 (LO, SE, DL o WF)"},
      {con("--gioco", "SE"), "sorte non valida per il gioco SE: ambo (si gioca su giocata, superstar)"},
      {con("--ruota", "BA"), "opzione sconosciuta: --ruota"},
      {{"--numeri", "1,2", "--ruote", "BA", "--sorte", "ambo", "--posta", "1", "--colpi"},
       "manca il valore dell'opzione --colpi"},
      {{"--gioco", "SE", "--numeri", "1,2", "--sorte", "giocata", "--posta", "1", "--dal", "1", "--colpi", "1"},
       "i numeri sono 2: ne servono da 6 a 20"},
      {{"--numeri", "1,2", "--ruote", "BA", "--posta", "1", "--dal", "1", "--colpi", "1"},
       "--posta va dopo la sua --sorte"},
      {{"--numeri", "1,2", "--ruote", "BA", "--sorte", "ambo", "--sorte", "estratto", "--posta", "1"},
       "manca la posta della sorte ambo"},
      {{"--numeri", "1,2", "--ruote", "BA", "--sorte", "ambo", "--posta", "1", "--dal", "1"},
       "manca --colpi: quante estrazioni la giocata resta in gioco"},
  };
  for (const Caso& caso : casi) {
    const Uscita uscita = Aggiungi(caso.parole);
    EXPECT_EQ(uscita.codice, 2) << caso.messaggio;
    EXPECT_TRUE(uscita.err.starts_with("lottolab: " + caso.messaggio)) << uscita.err;
    EXPECT_EQ(std::count(uscita.err.begin(), uscita.err.end(), '\n'), 1) << uscita.err;
  }
  EXPECT_EQ(Lottolab({"giocata", "elenco"}).out, "nessuna giocata\n");

  const std::vector<std::pair<std::vector<std::string>, std::string>> altre = {
      {{"giocata", "gioca"}, "azione sconosciuta: gioca (aggiungi, elenco, rimuovi, verifica o quota)"},
      {{"giocata", "elenco", "--aperte", "--chiuse"}, "--aperte e --chiuse non vanno insieme"},
      {{"giocata", "elenco", "tutte"}, "parola inattesa: tutte (elenco prende --aperte o --chiuse e --gioco)"},
      {{"giocata", "rimuovi", "-3"}, "numero di giocata non valido: -3"},
      {{"giocata", "rimuovi"}, "uso: lottolab giocata rimuovi ID"},
      {{"giocata", "verifica", "8"}, "la giocata 8 non è nell'agenda"},
  };
  for (const auto& [parole, messaggio] : altre) {
    const Uscita uscita = Lottolab(parole);
    EXPECT_EQ(uscita.codice, 2) << messaggio;
    EXPECT_EQ(uscita.err, "lottolab: " + messaggio + "\n");
  }
  const Uscita senza_azione = Lottolab({"giocata"});
  EXPECT_EQ(senza_azione.codice, 2);
  EXPECT_TRUE(senza_azione.err.starts_with("uso: lottolab giocata aggiungi")) << senza_azione.err;
}

TEST_F(Giocata, LAgendaConfigurataEUnFileGuastoNonToccato) {
  test::Scrivi(m_base / "lottolab.ini", "[GENERALE]\nsFileAgenda=mie/giocate.db\n");
  std::filesystem::create_directories(m_base / "mie");
  ASSERT_EQ(
      Aggiungi({"--numeri", "1", "--ruote", "NZ", "--sorte", "estratto", "--posta", "1", "--dal", "7", "--colpi", "1"})
          .codice,
      0);
  EXPECT_TRUE(std::filesystem::exists(m_base / "mie" / "giocate.db"));
  EXPECT_FALSE(std::filesystem::exists(m_base / "AgendaGiocate.db"));

  test::Scrivi(m_base / "mie" / "giocate.db", "non un database");
  const Uscita guasto = Lottolab({"giocata", "elenco"});
  EXPECT_EQ(guasto.codice, 2);
  EXPECT_EQ(guasto.err, "lottolab: il file " + (m_base / "mie" / "giocate.db").string() +
                            " non è un'agenda delle giocate (è danneggiato o non è un database SQLite): non viene "
                            "modificato\n");
  EXPECT_EQ(test::Leggi(m_base / "mie" / "giocate.db"), "non un database");
}

// The check plays the stored bet on the archive: 12-34 comes out on Bari in the second draw, and a
// bet that stops at its first win is closed there. 250 x 1 euro / 3 ambi = 83,33 gross, 76,66 net.
TEST_F(Giocata, LaVerificaGiocaLeGiocateSullArchivio) {
  test::Scrivi(m_base / "lotto.txt",
               "2023/01/05\tBA\t1\t2\t3\t4\t5\n"
               "2023/01/07\tBA\t12\t7\t34\t8\t9\n"
               "2023/01/10\tBA\t12\t34\t56\t8\t9\n");
  ASSERT_EQ(Lottolab({"importa", (m_base / "lotto.txt").string()}).codice, 0);
  ASSERT_EQ(Aggiungi({"--numeri", "12,34,56", "--ruote", "BA", "--sorte", "ambo", "--posta", "1", "--dal", "05/01/2023",
                      "--colpi", "3", "--ferma"})
                .codice,
            0);
  const Uscita verifica = Lottolab({"giocata", "verifica"});
  ASSERT_EQ(verifica.codice, 0) << verifica.err;
  EXPECT_EQ(verifica.out,
            "giocate verificate: 1\ngiocata 1 colpo 2 del 07/01/2023: ambo 12.34 su BA (1), lordo 83,33\n");
  EXPECT_EQ(Lottolab({"giocata", "verifica"}).out, "giocate verificate: 0\n") << "closed, and its win already seen";
  EXPECT_NE(Lottolab({"giocata", "elenco"}).out.find("2/3    chiusa   2,00  76,66  74,66"), std::string::npos);
}

// An import that adds draws checks the open bets at once and leaves their wins to be seen.
TEST_F(Giocata, LImportazioneVerificaLeGiocateAperte) {
  test::Scrivi(m_base / "a.txt", "2023/01/05\tBA\t1\t2\t3\t4\t5\n");
  test::Scrivi(m_base / "b.txt", "2023/01/07\tBA\t12\t7\t34\t8\t9\n");
  ASSERT_EQ(Lottolab({"importa", (m_base / "a.txt").string()}).out, "importata 1 estrazione\n")
      << "no agenda yet, nothing to check";
  ASSERT_EQ(Aggiungi({"--numeri", "12,34,56", "--ruote", "BA", "--sorte", "ambo", "--posta", "1", "--dal", "06/01/2023",
                      "--colpi", "3"})
                .codice,
            0);
  EXPECT_EQ(Lottolab({"importa", (m_base / "b.txt").string()}).out,
            "importata 1 estrazione\nagenda: verificata 1 giocata, vincite da vedere 1 (lottolab giocata verifica)\n");
  EXPECT_NE(Lottolab({"giocata", "verifica"}).out.find("ambo 12.34 su BA (1), lordo 83,33"), std::string::npos);
}

// A SuperEnalotto bet: the import that adds its draws checks it, its win is its category, and a
// quota the archive does not hold is said to be unknown rather than counted as nothing.
TEST_F(Giocata, LeGiocateDegliAltriGiochiSiVerificanoPerCategoria) {
  test::Scrivi(m_base / "se1.txt", "2023/01/03\t1\t1\t2\t3\t4\t5\t6\t7\t8\n");
  test::Scrivi(m_base / "se2.txt", "2023/01/05\t2\t1\t2\t3\t40\t50\t60\t70\t80\n");
  ASSERT_EQ(Lottolab({"--gioco", "SE", "importa", (m_base / "se1.txt").string()}).codice, 0);
  ASSERT_EQ(Aggiungi({"--gioco", "SE", "--numeri", "1,2,3,4,5,9", "--sorte", "giocata", "--posta", "1", "--dal",
                      "04/01/2023", "--colpi", "2"})
                .codice,
            0);
  ASSERT_EQ(Aggiungi({"--numeri", "12,34", "--ruote", "BA", "--sorte", "ambo", "--posta", "1", "--dal", "04/01/2023",
                      "--colpi", "1"})
                .codice,
            0);
  const Uscita importa = Lottolab({"--gioco", "SE", "importa", (m_base / "se2.txt").string()});
  ASSERT_EQ(importa.codice, 0) << importa.err;
  EXPECT_EQ(importa.out,
            "importata 1 estrazione del SuperEnalotto\n"
            "agenda: verificata 1 giocata, vincite da vedere 1 (lottolab giocata verifica)\n")
      << "the Lotto bet waits for the Lotto's draws";

  const Uscita verifica = Lottolab({"giocata", "verifica"});
  EXPECT_EQ(verifica.codice, 0);
  EXPECT_EQ(verifica.err, "lottolab: attenzione: 1 giocata del gioco LO non verificata: manca l'archivio del Lotto\n");
  EXPECT_EQ(verifica.out,
            "giocate verificate: 1\n"
            "giocata 1 colpo 1 del 05/01/2023: punti 3 1.2.3 (1), importo non noto\n");
  const std::string elenco = Lottolab({"giocata", "elenco", "--gioco", "SE"}).out;
  EXPECT_NE(elenco.find("1/2    aperta   1,00  0,00*  -1,00"), std::string::npos) << elenco;
  EXPECT_NE(elenco.find("* più 1 vincita di cui la quota non è nota"), std::string::npos) << elenco;
  const Uscita senza_lotto = Lottolab({"giocata", "verifica", "2"});
  EXPECT_EQ(senza_lotto.codice, 2);
  EXPECT_EQ(senza_lotto.err, "lottolab: 1 giocata del gioco LO non verificata: manca l'archivio del Lotto\n");

  // The quota read on the operator's page gives the win its money.
  const Uscita quota = Lottolab({"giocata", "quota", "1", "1", "punti 3", "28,31"});
  ASSERT_EQ(quota.codice, 0) << quota.err;
  EXPECT_EQ(quota.out, "quota di \"punti 3\" del 05/01/2023: 28,31; giocate verificate di nuovo: 1\n");
  EXPECT_NE(Lottolab({"giocata", "elenco", "--gioco", "SE"}).out.find("1/2    aperta   1,00  28,31  27,31"),
            std::string::npos);
  const std::vector<std::pair<std::vector<std::string>, std::string>> rifiutate = {
      {{"giocata", "quota", "1", "1", "punti 4", "1"},
       "il colpo 1 della giocata 1 non ha vinto \"punti 4\" (ha vinto: punti 3)"},
      {{"giocata", "quota", "1", "2", "punti 3", "1"}, "colpo non valido: 2 (la giocata 1 ne ha verificati 1)"},
      {{"giocata", "quota", "1", "1", "punti 3", "-1"},
       "importo non valido: -1 (euro con al più due decimali, per esempio 1 o 0,50)"},
      {{"giocata", "quota", "1", "1"}, "uso: lottolab giocata quota ID COLPO CATEGORIA IMPORTO"},
  };
  for (const auto& [parole, messaggio] : rifiutate) EXPECT_EQ(Lottolab(parole).err, "lottolab: " + messaggio + "\n");
}

}  // namespace
}  // namespace lottolab::cli
