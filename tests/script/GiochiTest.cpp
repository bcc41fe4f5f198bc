#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "DatiReali.h"
#include "LibreriaDiProva.h"
#include "TempDir.h"
#include "archive/ArchivioGioco.h"
#include "archive/DateEstrazione.h"
#include "archive/DieciELotto.h"
#include "archive/SuperEnalotto.h"
#include "stats/ArchiviDiProva.h"

namespace lottolab::script {
namespace {

EstrazioneGioco Gioco6(GruppoData data, std::array<int, 6> numeri, int jolly = 0, int superstar = 0) {
  EstrazioneGioco estrazione;
  estrazione.data = data;
  estrazione.concorso = data.indice_annuale;
  for (size_t i = 0; i < numeri.size(); ++i) estrazione.numeri[i] = static_cast<uint8_t>(numeri[i]);
  estrazione.speciali = {static_cast<uint8_t>(jolly), static_cast<uint8_t>(superstar), 0};
  return estrazione;
}

TabellaGioco Numerata(FormatoGioco formato, std::vector<EstrazioneGioco> estrazioni) {
  for (size_t i = 0; i < estrazioni.size(); ++i) estrazioni[i].id_estr = static_cast<int32_t>(i) + 1;
  return TabellaGioco(formato, std::move(estrazioni));
}

// The library over a Lotto table and the archives of the other games written into a folder of
// their own, as a run finds them.
class Giochi : public Libreria {
 protected:
  void Scrivi(Gioco gioco, const TabellaGioco& tabella) {
    ASSERT_TRUE(SalvaArchivioGioco(tabella, File(gioco)).Riuscito());
  }
  std::filesystem::path File(Gioco gioco) { return m_cartella / (std::string(Formato(gioco).sigla) + ".dat"); }

  void AvviaGiochi(TabellaEstrazioni lotto = test::ArchivioCasuale(30, 90, 7)) {
    ImpostazioniLibreria impostazioni;
    for (size_t g = 0; g < impostazioni.archivi_giochi.size(); ++g)
      impostazioni.archivi_giochi[g] = File(static_cast<Gioco>(g));
    impostazioni.cartella_base = m_cartella.Percorso();
    Avvia(std::move(lotto), std::move(impostazioni));
  }

  test::CartellaTemporanea m_cartella;
};

TEST_F(Giochi, UnoScriptLeggeIlLottoEIlSuperEnalottoFiancoAFianco) {
  Scrivi(Gioco::SuperEnalotto,
         Numerata(Formato(Gioco::SuperEnalotto), {Gioco6({1, 3, 12, 1997}, {3, 17, 25, 60, 71, 88}, 44, 0),
                                                  Gioco6({2, 6, 12, 1997}, {1, 2, 3, 4, 5, 90}, 9, 12)}));
  AvviaGiochi();
  Esegui(
      "Function Somme()\n"
      "  Dim id, p, s\n"
      "  For id = 1 To EstrazioniArchivioSE\n"
      "    For p = 1 To 6 : s = s + EstrattoSE(id, p) + Estratto(id, BA_, 1) : Next\n"
      "  Next\n"
      "  Somme = s\n"
      "End Function");
  const int lotto = m_tab[1].Numero(1, 1) * 6 + m_tab[2].Numero(1, 1) * 6;
  EXPECT_EQ(Testo("Somme()"), std::to_string(264 + 105 + lotto));
  EXPECT_EQ(Testo("EstrattoSE(2, 6) & \" \" & DataEstrazioneSE(1) & \" \" & IndiceAnnualeSE(2) & \" \" & AnnoSE(2)"),
            "90 03/12/1997 2 1997");
  EXPECT_EQ(Testo("StringaEstrattiSE(1) & \"|\" & StringaEstrattiSE(2, \"-\")"), "03.17.25.60.71.88|01-02-03-04-05-90");
  EXPECT_EQ(Testo("PosizioneSE(1, 60) & IsNumeroPresenteInEstrazioneSE(1, 44) & SommaEstrattiSE(2)"), "4Falso105");
  EXPECT_EQ(Testo("DataEstrToIdEstrSE(\"06/12/1997\") & DataEstrToIdEstrSE(\"05/12/1997\")"), "20");
  Esegui("Dim a : GetEstrazioneCompletaSE 2, a");
  EXPECT_EQ(Testo("UBound(a) & \":\" & a(1) & a(6) & \" \" & a(7) & \" \" & a(8)"), "8:190 9 12")
      << "the Jolly and the SuperStar follow the six numbers";
  Esegui("ScriviEstrazioneSE 2");
  EXPECT_EQ(m_ospite.testo, "SuperEnalotto del 06/12/1997, concorso 2\n01 02 03 04 05 90\nJolly 09  SuperStar 12\n");
  EXPECT_EQ(Testo("isSorteValidaSE(6) & isSorteValidaSE(7) & isIdEstrValidoSE(3)"), "VeroFalsoFalso");

  for (std::string_view fuori : {"EstrattoSE(1, 7)", "EstrattoSE(3, 1)"}) {
    EXPECT_TRUE(Vuoto(fuori));
    EXPECT_TRUE(UnicoAvviso().testo.starts_with("9- ")) << fuori << ": a draw has six numbers, the archive two draws";
  }
  EXPECT_TRUE(Vuoto("EstrattoWF(1, 1)"));
  AvvisoErrore5("EstrattoWF", "lottolab --gioco WF importa", "no Win for Life archive");
}

TEST_F(Giochi, UnArchivioDannegiatoSiSpiegaEdEVistoUnaVoltaSola) {
  std::ofstream(File(Gioco::SuperEnalotto), std::ios::binary) << "dieci byte";
  AvviaGiochi();
  EXPECT_TRUE(Vuoto("EstrattoSE(1, 1)"));
  AvvisoErrore5("EstrattoSE", "SE.dat", "a file of no whole record");
  EXPECT_EQ(Testo("isIdEstrValidoSE(1) & EstrazioneAttivataSE(1)"), "FalsoFalso") << "questions are a plain no";
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// The 10eLotto of the evening, when its archive was never imported, is the Lotto archive's own.
TEST_F(Giochi, Il10eLottoSeraleSenzaArchivioSiRicavaDalLotto) {
  std::vector<Estrazione> serate;
  for (int16_t giorno = 1; giorno <= 5; ++giorno) serate.push_back(Datata(giorno, {giorno, giorno, 2, 2010}));
  TabellaEstrazioni lotto(std::move(serate));
  const std::vector<EstrazioneGioco> attese = DieciELottoDalLotto(lotto);
  ASSERT_FALSE(attese.empty());
  AvviaGiochi(std::move(lotto));
  EXPECT_EQ(Testo("EstrazioniArchivioDL"), std::to_string(attese.size()));
  EXPECT_EQ(Testo("EstrattoDL(1, 20)"), std::to_string(attese[0].numeri[19]));
  EXPECT_EQ(Testo("NumeroOroDL(1)"), std::to_string(attese[0].speciali[0]));
}

TEST_F(Giochi, IlDieciELottoOgniCinqueMinutiSiSceglieESiCercaPerOra) {
  std::vector<EstrazioneGioco> giornata;
  for (int concorso = 1; concorso <= 4; ++concorso) {
    EstrazioneGioco estrazione;
    estrazione.data = {static_cast<int16_t>(concorso), 10, 3, 2025};
    estrazione.concorso = static_cast<int16_t>(concorso);
    estrazione.minuti = static_cast<int16_t>(600 + concorso * 5);
    for (int i = 0; i < 20; ++i) estrazione.numeri[static_cast<size_t>(i)] = static_cast<uint8_t>(concorso + i * 4);
    estrazione.speciali[0] = static_cast<uint8_t>(concorso + 4);
    giornata.push_back(estrazione);
  }
  Scrivi(Gioco::DieciELottoOgniCinqueMinuti, Numerata(Formato(Gioco::DieciELottoOgniCinqueMinuti), giornata));
  AvviaGiochi();
  Esegui("ImpostaArchivio10ELotto True");
  EXPECT_EQ(Testo("EstrazioniArchivioDL & \" \" & EstrazioneIniDL(\"10/03/2025\") & EstrazioneFinDL(\"10/03/2025\")"),
            "4 14");
  EXPECT_EQ(Testo("FasciaIniDL(\"10/03/2025\", \"10:07\") & FasciaFinDL(\"10/03/2025\", \"10:07\")"), "21")
      << "contests at 10:05, 10:10, 10:15, 10:20";
  EXPECT_EQ(Testo("FasciaIniDL(\"10/03/2025\", \"11:00\") & EstrazioneIniDL(\"11/03/2025\")"), "00");
  EXPECT_EQ(Testo("NumeroOroDL(3) & \" \" & EstrattoRitardoDL(1) & \" \" & EstrattoFrequenzaDL(5)"), "7 3 1");
  EXPECT_TRUE(Vuoto("FasciaIniDL(\"10/03/2025\", \"25:00\")"));
  AvvisoErrore5("FasciaIniDL", "hh:mm", "an hour that does not exist");
  Esegui("ResetArchivi");
  EXPECT_EQ(Testo("EstrazioniArchivioDL"), std::to_string(DieciELottoDalLotto(m_tab).size()))
      << "back to the evening draws";
}

TEST_F(Giochi, IlWinForLifeHaOraENumerone) {
  EstrazioneGioco estrazione;
  estrazione.data = {1, 2, 1, 2024};
  estrazione.concorso = 1;
  estrazione.minuti = 8 * 60;
  estrazione.numeri = {1, 3, 5, 7, 9, 11, 13, 15, 17, 19};
  estrazione.speciali[0] = 20;
  Scrivi(Gioco::WinForLife, Numerata(Formato(Gioco::WinForLife), {estrazione}));
  AvviaGiochi();
  EXPECT_EQ(Testo("OraWF(1) & \" \" & NumeroOroWF(1) & \" \" & EstrattoWF(1, 10) & \" \" & EstrattoRitardoWF(22)"),
            "08:00 20 19 1")
      << "22 is brought into 1..20: it is 2, which did not come out";
  Esegui("Dim r, m, i, f : StatisticaNumeroOroWF 20, 1, 1, r, m, i, f");
  EXPECT_EQ(Testo("r & m & i & f"), "0001");
}

// The delay and the other figures of a group counted draw by draw, apart from the library.
struct Figure {
  int ritardo = 0, frequenza = 0, storico = 0, incr = 0, prima = 0, estrazione_storico = 0;
};

Figure APiedi(const TabellaGioco& tab, const std::vector<int>& numeri, int sorte, int inizio, int fine,
              int sola_posizione = 0) {
  Figure f;
  int corsa = 0, chiusa = 0;
  for (int id = inizio; id <= fine; ++id) {
    int colpi = 0;
    for (int p = 1; p <= tab.formato().numeri; ++p) {
      if (sola_posizione && p != sola_posizione) continue;
      colpi += static_cast<int>(std::count(numeri.begin(), numeri.end(), tab[id].numeri[static_cast<size_t>(p - 1)]));
    }
    if (colpi >= sorte) {
      ++f.frequenza;
      if (f.prima == 0) f.prima = id;
      chiusa = std::max(chiusa, corsa);
      corsa = 0;
    } else if (++corsa > f.storico) {
      f.storico = corsa;
      f.estrazione_storico = id;
    }
  }
  f.ritardo = corsa;
  f.incr = std::max(0, corsa - chiusa);
  return f;
}

std::string Lista(const std::vector<int>& numeri) {
  std::string testo;
  for (int n : numeri) testo += (testo.empty() ? "" : ", ") + std::to_string(n);
  return "Array(" + testo + ")";
}

class GiochiReali : public Giochi {
 protected:
  void SetUp() override {
    if (!test::DatiRealiPresenti()) GTEST_SKIP() << "real draws not found in " << test::CartellaDatiReali().string();
    std::ifstream file(test::CartellaDatiReali() / "superenalotto.txt", std::ios::binary);
    std::stringstream testo;
    testo << file.rdbuf();
    auto risultati = LeggiRisultatiSuperEnalotto(testo.str());
    ASSERT_TRUE(risultati) << risultati.Errore().testo;
    auto archivio = ArchivioSuperEnalotto(test::ArchivioReale(), *risultati);
    ASSERT_TRUE(archivio) << archivio.Errore().testo;
    m_se.emplace(std::move(archivio).Valore());
    Scrivi(Gioco::SuperEnalotto, *m_se);
    AvviaGiochi(test::ArchivioReale());
  }

  std::optional<TabellaGioco> m_se;
};

TEST_F(GiochiReali, LeFigureDelSuperEnalottoSonoQuelleContateEstrazionePerEstrazione) {
  const TabellaGioco& tab = *m_se;
  const int ultima = tab.EstrazioniArchivio();
  ASSERT_GT(ultima, 4000);
  struct Caso {
    std::vector<int> numeri;
    int sorte, inizio, fine;
  };
  const Caso casi[] = {{{90}, 1, 1, ultima},           {{1}, 1, 500, 3000},
                       {{13, 47}, 2, 1, ultima},       {{13, 47}, 1, 1, ultima},
                       {{5, 6, 7, 8}, 2, 100, ultima}, {{11, 22, 33}, 3, 1, ultima}};
  for (const Caso& c : casi) {
    const Figure attese = APiedi(tab, c.numeri, c.sorte, c.inizio, c.fine);
    const std::string gruppo = fmt::format("{}, {}, {}, {}", Lista(c.numeri), c.sorte, c.inizio, c.fine);
    const std::string dove = gruppo;
    EXPECT_EQ(Testo("SerieRitardoSE(" + gruppo + ")"), std::to_string(attese.ritardo)) << dove;
    EXPECT_EQ(Testo("SerieFreqSE(" + gruppo + ")"), std::to_string(attese.frequenza)) << dove;
    EXPECT_EQ(Testo("SerieStoricoSE(" + gruppo + ")"), std::to_string(attese.storico)) << dove;
    EXPECT_EQ(Testo("SeriePrimaSE(" + gruppo + ")"), std::to_string(attese.prima)) << dove;
    EXPECT_EQ(Testo(fmt::format("RitardoCombinazioneSE({}, {}, {}, , {})", Lista(c.numeri), c.sorte, c.fine, c.inizio)),
              std::to_string(attese.ritardo))
        << dove;
    Esegui(fmt::format("Dim r, m, i, f : StatisticaFormazioneSE {}, {}, r, m, i, f, {}, {}", Lista(c.numeri), c.sorte,
                       c.inizio, c.fine));
    EXPECT_EQ(Testo("r & \" \" & m & \" \" & i & \" \" & f"),
              fmt::format("{} {} {} {}", attese.ritardo, attese.storico, attese.incr, attese.frequenza))
        << dove;
    if (c.numeri.size() <= 2 && c.sorte == static_cast<int>(c.numeri.size())) {
      const std::string chiamata =
          (c.numeri.size() == 1 ? "Estratto" : "Ambo") + std::string("{}SE(") +
          (c.numeri.size() == 1 ? std::to_string(c.numeri[0])
                                : std::to_string(c.numeri[0]) + ", " + std::to_string(c.numeri[1])) +
          fmt::format(", {}, {})", c.inizio, c.fine);
      EXPECT_EQ(Testo(fmt::format(fmt::runtime(chiamata), "Ritardo")), std::to_string(attese.ritardo)) << dove;
      EXPECT_EQ(Testo(fmt::format(fmt::runtime(chiamata), "Frequenza")), std::to_string(attese.frequenza)) << dove;
      EXPECT_EQ(Testo(fmt::format(fmt::runtime(chiamata), "Storico")), std::to_string(attese.storico)) << dove;
      EXPECT_EQ(Testo(fmt::format(fmt::runtime(chiamata), "IncrStorico")), std::to_string(attese.incr)) << dove;
    }
  }
  // Every number's delay in one call, and the Jolly that never counts for the main numbers.
  Esegui("Dim a : ElencoRitardiSE a, 1000");
  for (int n = 1; n <= 90; ++n)
    ASSERT_EQ(Testo(fmt::format("a({})", n)), std::to_string(APiedi(tab, {n}, 1, 1000, ultima).ritardo)) << n;
}

// The generic archive opened from a text holds the same draws: the same figures from another route,
// and the functions only it has.
TEST_F(GiochiReali, LArchivioGenericoApertoDaTestoDaLeStesseFigure) {
  const TabellaGioco& tab = *m_se;
  std::string testo = "# numeri 6 massimo 90\n";
  for (const EstrazioneGioco& e : tab.Tutte()) {
    testo += FormattaData(e.data);
    for (int i = 0; i < 6; ++i) testo += fmt::format(" {}", e.numeri[static_cast<size_t>(i)]);
    testo += "\n";
  }
  std::ofstream(m_cartella / "se.txt", std::ios::binary) << testo;
  EXPECT_EQ(Testo("ApriBaseDatiFT(\"se.txt\")"), std::to_string(tab.EstrazioniArchivio()));
  const int ultima = tab.EstrazioniArchivio();
  for (int posizione : {1, 3, 6}) {
    EXPECT_EQ(Testo(fmt::format("RitPosFT(77, {})", posizione)),
              std::to_string(APiedi(tab, {77}, 1, 1, ultima, posizione).ritardo))
        << posizione;
  }
  EXPECT_EQ(Testo("SerieEstrazioneStoricoFT(Array(8, 9), 1)"),
            std::to_string(APiedi(tab, {8, 9}, 1, 1, ultima).estrazione_storico));
  EXPECT_EQ(Testo("EstrattoRitardoFT(31) = EstrattoRitardoSE(31) And AmboFrequenzaFT(1, 2) = AmboFrequenzaSE(1, 2)"),
            "Vero");
  // The ranking: the most delayed first, equal delays with the smaller number first.
  std::vector<std::pair<int, int>> classifica;
  for (int n = 1; n <= 90; ++n) classifica.push_back({-APiedi(tab, {n}, 1, 1, ultima).ritardo, n});
  std::sort(classifica.begin(), classifica.end());
  EXPECT_EQ(Testo("PiuRitardatarioFT() & \" \" & NumeroPosRitFT(2) & \" \" & PosNumeroRitFT(" +
                  std::to_string(classifica[4].second) + ")"),
            fmt::format("{} {} 5", classifica[0].second, classifica[1].second));
  Esegui("Dim q : PiuRitardatariFT 3, q");
  EXPECT_EQ(Testo("q(3)"), std::to_string(classifica[2].second));

  // The analitico of the generic archive, number by number, against the walk; over a stretch too.
  Esegui(
      fmt::format("Dim m : m = GeneraAnaliticoFT()\nDim t : t = GeneraAnaliticoFT({}, {})", ultima - 50, ultima - 500));
  EXPECT_EQ(Testo("UBound(m, 1) & \" \" & UBound(m, 2)"), "90 4");
  for (int n : {1, 45, 90}) {
    const Figure tutto = APiedi(tab, {n}, 1, 1, ultima);
    EXPECT_EQ(Testo(fmt::format("m({0}, 1) & \" \" & m({0}, 2) & \" \" & m({0}, 3) & \" \" & m({0}, 4)", n)),
              fmt::format("{} {} {} {}", tutto.ritardo, tutto.frequenza, tutto.storico, tutto.incr))
        << n;
    const Figure tratto = APiedi(tab, {n}, 1, ultima - 500, ultima - 50);
    EXPECT_EQ(Testo(fmt::format("t({0}, 1) & \" \" & t({0}, 2)", n)),
              fmt::format("{} {}", tratto.ritardo, tratto.frequenza))
        << n;
  }
  m_ospite.testo.clear();
  Esegui("TabelloneAnaliticoFT");
  EXPECT_NE(m_ospite.testo.find("Analitico dell'archivio generico dal"), std::string::npos) << m_ospite.testo;
  EXPECT_EQ(std::count(m_ospite.testo.begin(), m_ospite.testo.end(), '\n'), 1 + 2 + 90) << m_ospite.testo;
  // The nearest draws holding a number, found by hand.
  int precedente = 0;
  for (int id = ultima - 1; id >= 1 && precedente == 0; --id)
    for (int i = 0; i < 6; ++i) precedente = tab[id].numeri[static_cast<size_t>(i)] == 7 ? id : precedente;
  EXPECT_EQ(Testo(fmt::format("PrimaPrecedenteFT({}, Array(7))", ultima)), std::to_string(precedente));
  EXPECT_EQ(Testo(fmt::format("PrimaSuccessivaFT({}, Array(7)) = 0", ultima)), "Vero");
}

}  // namespace
}  // namespace lottolab::script
