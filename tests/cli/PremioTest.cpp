#include <gtest/gtest.h>

#include <fstream>

#include "LottolabDiProva.h"
#include "RisultatiDiProva.h"

namespace lottolab::cli {
namespace {

class Premio : public LottolabDiProva {
 protected:
  Uscita Esegui(std::vector<std::string> parole) {
    parole.insert(parole.begin(), {"--archivio", (m_base / "BaseDati.dat").string()});
    return Lottolab(parole);
  }
};

TEST_F(Premio, TabellaPerPunti) {
  auto ambo = Esegui(
      {"premio", "--sorte", "ambo", "--numeri", "12,34,56", "--ruote", "BA", "--posta", "1", "--data", "01/10/2017"});
  EXPECT_EQ(ambo.codice, 0) << ambo.err;
  EXPECT_EQ(ambo.out,
            "ambo su 3 numeri, ruote BA, posta 1,00 euro, 3 combinazioni, ritenuta 8% al 01/10/2017\n"
            "vincita su ciascuna ruota dove escono:\n"
            "punti combinazioni          lordo     ritenuta          netto\n"
            "    2            1          83,33         6,67          76,66\n"
            "    3            3         249,99        20,00         229,99\n");

  auto tutte = Esegui(
      {"premio", "--sorte", "estratto", "--numeri", "5", "--ruote", "TT", "--posta", "1", "--data", "31/12/2004"});
  EXPECT_NE(tutte.out.find("ruote BA CA FI GE MI NA PA RO TO VE, posta 1,00 euro, 1 combinazioni, ritenuta 3%"),
            std::string::npos)
      << tutte.out;
  EXPECT_NE(tutte.out.find("    1            1           1,12         0,03           1,09\n"), std::string::npos);

  auto dieci = Esegui({"--gioco", "DL", "premio", "--numeri", "1,2,3,4,5", "--data", "01/07/2019"});
  EXPECT_EQ(dieci.codice, 0) << dieci.err;
  EXPECT_NE(dieci.out.find("    5                      157,30        17,30         140,00\n"), std::string::npos)
      << dieci.out;
  auto quota = Esegui({"--gioco", "SE", "premio", "--quota", "1000,00", "--data", "01/03/2020"});
  EXPECT_NE(quota.out.find("1.000,00       100,00         900,00"), std::string::npos) << quota.out;
}

TEST_F(Premio, RichiesteSbagliate) {
  const std::vector<std::vector<std::string>> casi = {
      {"premio", "--sorte", "ambo", "--numeri", "12", "--ruote", "BA", "--posta", "1"},
      {"premio", "--sorte", "sestina", "--numeri", "12,13", "--ruote", "BA", "--posta", "1"},
      {"premio", "--sorte", "ambo", "--numeri", "12,13", "--ruote", "XX", "--posta", "1"},
      {"premio", "--sorte", "ambo", "--numeri", "12,13", "--ruote", "BA", "--posta", "0,01"},
      {"premio", "--sorte", "ambo", "--numeri", "12,13", "--ruote", "BA", "--posta", "uno"},
      {"premio", "--sorte", "ambo", "--numeri", "12,13", "--ruote", "BA"},
      {"premio", "--sorte", "ambetto", "--numeri", "12,13", "--ruote", "BA", "--posta", "1", "--data", "01/01/2013"},
      {"premio", "--sorte", "ambo", "--numeri", "12,13", "--ruote", "BA", "--posta", "1", "--data", "31/02/2020"},
      {"premio", "--sorte", "determinato", "--numeri", "12", "--ruote", "BA", "--posta", "1", "--posizione", "1,2"},
      {"--gioco", "DL", "premio", "--numeri", "1,2", "--data", "30/06/2019"},
      {"--gioco", "SE", "premio"},
      {"--gioco", "FT", "premio"},
      {"verifica-giocata", "--sorte", "ambo", "--numeri", "7,8", "--ruote", "VE", "--posta", "1", "--colpi", "3"},
      {"verifica-giocata", "--sorte", "ambo", "--numeri", "7,8", "--ruote", "VE", "--posta", "1", "--colpi", "0",
       "--dal", "01/05/2005"},
      {"retroverifica", "--sorte", "ambo", "--numeri", "7,8,9", "--classe", "4", "--ruote", "VE", "--posta", "1"},
      {"retroverifica", "--sorte", "ambo", "--numeri", "7,8", "--sistema", "x.txt", "--ruote", "VE", "--posta", "1"},
      {"retroverifica", "--sorte", "ambo", "--sistema", "non-esiste.txt", "--ruote", "VE", "--posta", "1"},
      {"retroverifica", "--sorte", "ambo", "--numeri", "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20", "--classe",
       "5", "--ruote", "VE", "--posta", "1"},
  };
  for (const auto& parole : casi) {
    auto uscita = Esegui(parole);
    EXPECT_NE(uscita.codice, 0) << parole[2];
    EXPECT_TRUE(uscita.out.empty()) << uscita.out;
    EXPECT_TRUE(uscita.err.starts_with("lottolab: ") && uscita.err.ends_with("\n")) << uscita.err;
  }
}

TEST_F(Premio, VerificaGiocataSullArchivio) {
  const auto file = m_base / "risultati.txt";
  std::ofstream(file) << test::kRisultati;
  ASSERT_EQ(Esegui({"importa", file.string()}).codice, 0);
  auto conto = Esegui({"verifica-giocata", "--sorte", "ambo", "--numeri", "7,8", "--ruote", "VE", "--posta", "1",
                       "--dal", "01/05/2005", "--colpi", "3"});
  EXPECT_EQ(conto.codice, 0) << conto.err;
  EXPECT_EQ(conto.out,
            "colpo estrazione       data      spesa        lordo   ritenuta        netto        saldo\n"
            "    1          2 03/05/2005       1,00       250,00      15,00       235,00       234,00\n"
            "      vincita: VE ambo x 1 = 250,00 lordi\n"
            "    2          3 04/05/2005       1,00         0,00       0,00         0,00       233,00\n"
            "totale: spesa 2,00, lordo 250,00, ritenuta 15,00, netto 235,00, saldo 233,00\n"
            "colpi vincenti: 1; al più 1 colpi di fila senza vincite; calo massimo del saldo 1,00\n"
            "giocata in corso: mancano 1 colpi all'archivio\n");
  auto fermata = Esegui({"verifica-giocata", "--sorte", "ambo", "--numeri", "7,8", "--ruote", "VE", "--posta", "1",
                         "--dal", "01/05/2005", "--colpi", "3", "--arresto", "vincita"});
  EXPECT_EQ(fermata.out.find("\n    2 "), std::string::npos) << fermata.out;
  EXPECT_EQ(fermata.out.find("giocata in corso"), std::string::npos) << fermata.out;
}

TEST_F(Premio, RetroverificaDiUnSistema) {
  const auto file = m_base / "risultati.txt";
  std::ofstream(file) << test::kRisultati;
  ASSERT_EQ(Esegui({"importa", file.string()}).codice, 0);
  // The three ambi of 7, 8, 9 all come out on Venezia in the second draw.
  const std::string atteso =
      "ambo su 3 colonne, posta 1,00 euro a colonna, dal 30/04/2005 al 04/05/2005: 3 colpi, 3,00 euro a colpo\n"
      "spesa 9,00, lordo 750,00, ritenuta 45,00, netto 705,00, saldo 696,00\n"
      "ambo: vinto in 1 colpi, 750,00 lordi\n"
      "al più 1 colpi di fila senza vincite; calo massimo del saldo 3,00\n";
  auto integrale = Esegui(
      {"retroverifica", "--sorte", "ambo", "--numeri", "7,8,9", "--classe", "2", "--ruote", "VE", "--posta", "1"});
  EXPECT_EQ(integrale.codice, 0) << integrale.err;
  EXPECT_EQ(integrale.out, atteso);

  const auto sistema = m_base / "sistema.txt";
  std::ofstream(sistema) << "# ambi di 7 8 9\n7 8\n7,9\r\n8;9\n";
  auto dal_file =
      Esegui({"retroverifica", "--sorte", "ambo", "--sistema", sistema.string(), "--ruote", "VE", "--posta", "1"});
  EXPECT_EQ(dal_file.out, atteso) << dal_file.err;

  auto sulla_nazionale = [&](const std::string& ruote) {
    return Esegui({"retroverifica", "--sorte", "estratto", "--numeri", "7", "--ruote", ruote, "--posta", "10",
                   "--inizio", "3", "--fine", "3"})
        .out;
  };
  EXPECT_NE(sulla_nazionale("NZ").find(": 1 colpi, 10,00 euro a colpo\nspesa 10,00, lordo 112,30,"), std::string::npos)
      << sulla_nazionale("NZ");
  EXPECT_NE(sulla_nazionale("TT").find("spesa 10,00, lordo 0,00,"), std::string::npos)
      << "Tutte leaves the Nazionale out: " << sulla_nazionale("TT");
}

}  // namespace
}  // namespace lottolab::cli
