#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "DatiReali.h"
#include "TempDir.h"
#include "archive/ArchivioGioco.h"
#include "archive/DateEstrazione.h"
#include "archive/ImportaRisultati.h"
#include "archive/SuperEnalotto.h"

namespace lottolab {
namespace {

namespace fs = std::filesystem;

std::string Leggi(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::stringstream testo;
  testo << in.rdbuf();
  return testo.str();
}

TEST(RisultatiSuperEnalotto, LeggeLeRigheESaltaIntestazioneERigheVuote) {
  auto esito = LeggiRisultatiSuperEnalotto(
      "# date\tcontest\tn1\tn2\tn3\tn4\tn5\tn6\tjolly\tsuperstar\n"
      "2009/12/29\t155\t3\t9\t20\t44\t61\t83\t5\t12\n"
      "\n"
      "2010/01/02\t1\t1\t2\t3\t4\t5\t90\t6\t0\r\n");
  ASSERT_TRUE(esito) << esito.Errore().testo;
  ASSERT_EQ(esito->size(), 2u);
  const EstrazioneGioco& seconda = (*esito)[1];
  EXPECT_EQ(seconda.id_estr, 2);
  EXPECT_EQ(seconda.data, (GruppoData{1, 2, 1, 2010}));
  EXPECT_EQ(seconda.numeri[5], 90);
  EXPECT_EQ(seconda.speciali[0], 6);
  EXPECT_EQ(seconda.speciali[1], 0) << "no SuperStar";
}

TEST(RisultatiSuperEnalotto, UnaRigaSbagliataRifiutaIlFileENominaLaRiga) {
  const std::string buona = "2010/01/02\t1\t1\t2\t3\t4\t5\t6\t7\t8\n";
  const struct {
    std::string riga;
    std::string messaggio;
  } casi[] = {
      {"02/01/2010\t2\t1\t2\t3\t4\t5\t6\t7\t8", "Riga 2: \"02/01/2010\" non è una data AAAA/MM/GG"},
      {"2010/01/05\t2\t1\t2\t3\t4\t5\t91\t7\t8", "Riga 2: \"91\" non è un numero da 1 a 90"},
      {"2010/01/05\t2\t1\t2\t3\t4\t5\t5\t7\t8", "Riga 2: il numero 5 compare due volte"},
      {"2010/01/05\t2\t1\t2\t3\t4\t5\t6\t6\t8", "Riga 2: il Jolly 6 è anche tra i sei numeri"},
      {"2010/01/05\t2\t1\t2\t3\t4\t5\t6\t7", "Riga 2: manca la SuperStar (0 dove non c'era)"},
      {"2010/01/05\t2\t1\t2\t3\t4", "Riga 2: mancano dei numeri: ne servono sei, il Jolly e la SuperStar"},
      {"2010/01/05\t2\t1\t2\t3\t4\t5\t6\t7\t8\t9", "Riga 2: ci sono campi in più dopo la SuperStar"},
      {"2010/01/02\t2\t1\t2\t3\t4\t5\t6\t7\t8",
       "Riga 2: la data 02/01/2010 non viene dopo quella della riga prima (02/01/2010)"},
      {"2010/01/05\t3\t1\t2\t3\t4\t5\t6\t7\t8", "Riga 2: il concorso 3 del 05/01/2010 doveva essere il 2"},
      {"2011/01/04\t2\t1\t2\t3\t4\t5\t6\t7\t8", "Riga 2: il concorso 2 del 04/01/2011 doveva essere il 1"},
  };
  for (const auto& caso : casi) {
    auto esito = LeggiRisultatiSuperEnalotto(buona + caso.riga + "\n");
    ASSERT_FALSE(esito) << caso.riga;
    EXPECT_EQ(esito.Errore().testo, caso.messaggio);
  }
}

Estrazione DrawDelLotto(GruppoData data, std::initializer_list<std::pair<Ruota, std::array<int, 5>>> ruote) {
  Estrazione draw;
  draw.data = data;
  for (const auto& [ruota, numeri] : ruote)
    for (int p = 0; p < 5; ++p) draw.ImpostaNumero(ruota, p + 1, numeri[p]);
  return draw;
}

TEST(SuperEnalottoDalLotto, PrendeIPrimiNumeriDiSeiRuoteEIlJollyDaVenezia) {
  // Firenze repeats Bari's first number, Milano both: each takes the next number of its own wheel.
  // Venezia's first two numbers are among the six, so the Jolly is its third.
  const std::initializer_list<std::pair<Ruota, std::array<int, 5>>> ruote = {
      {BA, {10, 1, 1, 1, 1}}, {FI, {10, 20, 2, 2, 2}}, {MI, {10, 20, 30, 3, 3}}, {NA, {40, 4, 4, 4, 4}},
      {PA, {50, 5, 5, 5, 5}}, {RO, {60, 6, 6, 6, 6}},  {VE, {60, 10, 70, 7, 7}}};
  TabellaEstrazioni lotto({DrawDelLotto({0, 29, 11, 1997}, ruote), DrawDelLotto({0, 3, 12, 1997}, ruote),
                           DrawDelLotto({0, 6, 12, 1997}, ruote), DrawDelLotto({0, 3, 1, 1998}, ruote),
                           DrawDelLotto({0, 25, 3, 2006}, ruote), DrawDelLotto({0, 28, 3, 2006}, ruote),
                           DrawDelLotto({0, 1, 7, 2009}, ruote)});
  std::vector<Estrazione> con_nazionale = lotto.Tutte();
  for (Estrazione& draw : con_nazionale) draw.ImpostaNumero(NZ, 1, 33);
  lotto = TabellaEstrazioni(con_nazionale);
  const auto derivate = SuperEnalottoDalLotto(lotto);
  ASSERT_EQ(derivate.size(), 5u) << "only from 03/12/1997 to 30/06/2009";
  EXPECT_EQ(derivate[3].speciali[1], 0);
  EXPECT_EQ(derivate[4].speciali[1], 33) << "the SuperStar is Nazionale's first number from 28/03/2006";
  const EstrazioneGioco& prima = derivate[0];
  EXPECT_EQ(prima.data, (GruppoData{1, 3, 12, 1997}));
  EXPECT_EQ(std::vector<int>(prima.numeri.begin(), prima.numeri.begin() + 6),
            (std::vector<int>{10, 20, 30, 40, 50, 60}));
  EXPECT_EQ(prima.speciali[0], 70);
  EXPECT_EQ(prima.speciali[1], 0) << "no SuperStar before 28/03/2006";
  EXPECT_EQ(derivate[1].concorso, 2);
  EXPECT_EQ(derivate[2].concorso, 1) << "contests count within the year";
  EXPECT_EQ(derivate[2].id_estr, 3);
}

TEST(ArchivioGioco, SiSalvaESiRileggeUgualeOSiRifiutaNominandoIlRecord) {
  test::CartellaTemporanea cartella;
  const fs::path file = cartella / "superenalotto.dat";
  auto letto = CaricaArchivioGioco(Formato(Gioco::SuperEnalotto), file);
  ASSERT_TRUE(letto);
  EXPECT_EQ(letto->EstrazioniArchivio(), 0) << "no file yet is an empty archive";

  auto risultati = LeggiRisultatiSuperEnalotto(
      "2010/01/02\t1\t1\t2\t3\t4\t5\t6\t7\t8\n2010/01/05\t2\t11\t12\t13\t14\t15\t90\t17\t0\n");
  ASSERT_TRUE(risultati);
  const TabellaGioco tabella(Formato(Gioco::SuperEnalotto), *risultati);
  ASSERT_TRUE(SalvaArchivioGioco(tabella, file));
  EXPECT_EQ(fs::file_size(file), 2 * ByteRecordGioco(Formato(Gioco::SuperEnalotto)));
  letto = CaricaArchivioGioco(Formato(Gioco::SuperEnalotto), file);
  ASSERT_TRUE(letto) << letto.Errore().testo;
  EXPECT_EQ(letto->Tutte(), tabella.Tutte());

  // A game with a time of day keeps it.
  TabellaGioco cinque_minuti(Formato(Gioco::DieciELottoOgniCinqueMinuti));
  EstrazioneGioco sera;
  sera.id_estr = 1;
  sera.data = {0, 4, 8, 2026};
  sera.minuti = 23 * 60 + 55;
  for (int i = 0; i < 20; ++i) sera.numeri[i] = static_cast<uint8_t>(i * 4 + 1);
  cinque_minuti = TabellaGioco(Formato(Gioco::DieciELottoOgniCinqueMinuti), {sera});
  ASSERT_TRUE(SalvaArchivioGioco(cinque_minuti, cartella / "dl5.dat"));
  auto dl5 = CaricaArchivioGioco(Formato(Gioco::DieciELottoOgniCinqueMinuti), cartella / "dl5.dat");
  ASSERT_TRUE(dl5) << dl5.Errore().testo;
  EXPECT_EQ(dl5->Tutte(), cinque_minuti.Tutte());

  // A Lotto archive or a truncated file is no SuperEnalotto archive; neither is a number out of range.
  const std::string intero = Leggi(file);
  std::ofstream(file, std::ios::binary) << intero.substr(0, intero.size() - 3);
  letto = CaricaArchivioGioco(Formato(Gioco::SuperEnalotto), file);
  ASSERT_FALSE(letto);
  EXPECT_EQ(letto.Errore().testo, "Il file " + file.string() +
                                      " non è un archivio del SuperEnalotto valido: la sua lunghezza (41 byte) non è "
                                      "un multiplo dei 22 byte di un record");
  std::string guasto = intero;
  guasto[22 + 14] = 91;
  std::ofstream(file, std::ios::binary) << guasto;
  letto = CaricaArchivioGioco(Formato(Gioco::SuperEnalotto), file);
  ASSERT_FALSE(letto);
  EXPECT_EQ(letto.Errore().testo, "Il file " + file.string() +
                                      " non è un archivio del SuperEnalotto valido: il record 2 ha il numero 91 fuori "
                                      "da 1..90 (posizione 1)");
  std::swap(guasto[0], guasto[22]);
  guasto[22 + 14] = 11;
  std::ofstream(file, std::ios::binary) << guasto;
  letto = CaricaArchivioGioco(Formato(Gioco::SuperEnalotto), file);
  ASSERT_FALSE(letto);
  EXPECT_NE(letto.Errore().testo.find("il record 1 ha IdEstr 2 invece di 1"), std::string::npos);
}

TEST(SuperEnalottoReale, IPrimiSeiMesiDel2009DelLottoSonoQuelliDeiRisultati) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  auto lotto = LeggiNuoveEstrazioniDaFile(TabellaEstrazioni{}, test::CartellaDatiReali() / "lotto.txt");
  ASSERT_TRUE(lotto) << lotto.Errore().testo;
  const TabellaEstrazioni tabella(*lotto);
  auto risultati = LeggiRisultatiSuperEnalotto(Leggi(test::CartellaDatiReali() / "superenalotto.txt"));
  ASSERT_TRUE(risultati) << risultati.Errore().testo;
  EXPECT_EQ(risultati->size(), 2855u);

  const auto derivate = SuperEnalottoDalLotto(tabella);
  int nel_2009 = 0;
  for (const EstrazioneGioco& derivata : derivate) nel_2009 += derivata.data.anno == 2009;
  EXPECT_EQ(nel_2009, 78);
  // The first contest, as the operator tells it: 20 36 39 41 72 76, Jolly 88.
  EXPECT_EQ(derivate.front().data, (GruppoData{1, 3, 12, 1997}));
  EXPECT_EQ(std::vector<int>(derivate.front().numeri.begin(), derivate.front().numeri.begin() + 6),
            (std::vector<int>{20, 36, 39, 41, 72, 76}));
  EXPECT_EQ(derivate.front().speciali[0], 88);

  auto archivio = ArchivioSuperEnalotto(tabella, *risultati);
  ASSERT_TRUE(archivio) << archivio.Errore().testo;
  EXPECT_EQ(archivio->EstrazioniArchivio(), static_cast<int>(derivate.size()) - 78 + 2855);
  const EstrazioneGioco& ultima_derivata = (*archivio)[static_cast<int>(derivate.size()) - 78];
  EXPECT_EQ(ultima_derivata.data.anno, 2008);
  EXPECT_EQ((*archivio)[static_cast<int>(derivate.size()) - 77].data, (GruppoData{1, 2, 1, 2009}));

  // A result changed in those months is caught, and named.
  std::vector<EstrazioneGioco> alterati = *risultati;
  alterati[10].speciali[0] = alterati[10].speciali[0] % 90 + 1;
  auto rifiutato = ArchivioSuperEnalotto(tabella, alterati);
  ASSERT_FALSE(rifiutato);
  EXPECT_NE(rifiutato.Errore().testo.find(FormattaData(alterati[10].data)), std::string::npos);
}

}  // namespace
}  // namespace lottolab
