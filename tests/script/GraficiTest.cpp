// The charts' arithmetic (axes, ticks, the scaling of PuntiSuArray) and the chart names of the
// library on a host that does not draw: what they give and every refusal.

#include <gtest/gtest.h>

#include "LibreriaDiProva.h"
#include "script/DisegnoGrafico.h"

namespace lottolab::script {
namespace {

DisegnoGrafico GraficoDi(TipoGrafico tipo, std::vector<std::vector<double>> valori, std::vector<double> x = {}) {
  DisegnoGrafico grafico;
  grafico.tipo = tipo;
  for (auto& y : valori) grafico.serie.push_back(SerieGrafico{"", std::nullopt, x, std::move(y)});
  return grafico;
}

TEST(DisegnoGrafico, GliAssiVannoDaTaccaATaccaConUnPassoTondo) {
  struct Caso {
    const char* cosa;
    DisegnoGrafico grafico;
    bool asse_x;
    AsseGrafico atteso;
  };
  DisegnoGrafico fissato = GraficoDi(TipoGrafico::Linee, {{0}});
  fissato.impaginazione.minimo_y = -10;
  fissato.impaginazione.massimo_y = 10;
  DisegnoGrafico minimo_sopra = GraficoDi(TipoGrafico::Linee, {{1, 2}});
  minimo_sopra.impaginazione.minimo_y = 10;
  const Caso casi[] = {
      {"0..100", GraficoDi(TipoGrafico::Linee, {{0, 37, 100}}), false, {0, 100, 20}},
      {"the lowest of every series", GraficoDi(TipoGrafico::Punti, {{3, 5}, {-12, 4}}), false, {-15, 5, 5}},
      {"bars rise from 0", GraficoDi(TipoGrafico::Barre, {{3, 7}}), false, {0, 7, 1}},
      {"all equal", GraficoDi(TipoGrafico::Linee, {{5, 5, 5}}), false, {4.4, 5.6, 0.2}},
      {"all zero", GraficoDi(TipoGrafico::Linee, {{0, 0}}), false, {-1, 1, 0.5}},
      {"LayOutGrafico's scale", fissato, false, {-10, 10, 5}},
      {"a minimum above the values", minimo_sopra, false, {10, 11, 0.2}},
      {"places 1..4 have whole ticks", GraficoDi(TipoGrafico::Linee, {{3, 5, 2, 8}}), true, {1, 4, 1}},
      {"a single place", GraficoDi(TipoGrafico::Punti, {{3}}), true, {0, 2, 1}},
      {"the places of bars", GraficoDi(TipoGrafico::Barre, {{1, 2}, {1, 2, 3}}), true, {0.5, 3.5, 1}},
      {"X given", GraficoDi(TipoGrafico::Linee, {{1, 2}}, {0.1, 0.35}), true, {0.1, 0.35, 0.05}},
  };
  const AsseGrafico minuscolo = AsseY(GraficoDi(TipoGrafico::Linee, {{0, 5e-324}}));
  EXPECT_LT(minuscolo.minimo, minuscolo.massimo) << "a range of the smallest double ends";
  EXPECT_GT(minuscolo.passo, 0);
  EXPECT_EQ(AsseX(GraficoDi(TipoGrafico::Barre, {})).massimo, 1.5) << "a bar chart with no series has a place";
  for (const Caso& caso : casi) {
    const AsseGrafico asse = caso.asse_x ? AsseX(caso.grafico) : AsseY(caso.grafico);
    EXPECT_NEAR(asse.minimo, caso.atteso.minimo, 1e-9) << caso.cosa;
    EXPECT_NEAR(asse.massimo, caso.atteso.massimo, 1e-9) << caso.cosa;
    EXPECT_NEAR(asse.passo, caso.atteso.passo, 1e-9) << caso.cosa;
  }
}

TEST(DisegnoGrafico, TaccheEdEtichette) {
  const std::vector<double> tacche = TaccheAsse(AsseGrafico{-1, 1, 0.5});
  ASSERT_EQ(tacche.size(), 5u);
  EXPECT_DOUBLE_EQ(tacche.front(), -1);
  EXPECT_DOUBLE_EQ(tacche.back(), 1);
  EXPECT_EQ(TaccheAsse(AsseGrafico{0.1, 0.35, 0.05}).size(), 6u) << "ticks at both ends despite rounding";
  EXPECT_EQ(DecimaliAsse(5), 0);
  EXPECT_EQ(DecimaliAsse(0.2), 1);
  EXPECT_EQ(DecimaliAsse(0.05), 2);
  EXPECT_EQ(EtichettaNumero(2.5, 1), "2,5");
  EXPECT_EQ(EtichettaNumero(-1e-12, 2), "0,00");
  EXPECT_EQ(EtichettaNumero(-40, 0), "-40");
}

TEST(DisegnoGrafico, IValoriNelRettangolo) {
  const RettangoloGrafico rettangolo{10, 10, 100, 50};
  using Punti = std::vector<std::pair<double, double>>;
  const std::vector<double> tre = {1, 2, 3};
  EXPECT_EQ(PuntiNelRettangolo(tre, rettangolo, 1, 3), (Punti{{10, 60}, {60, 35}, {110, 10}}));
  const std::vector<double> uno = {7};
  EXPECT_EQ(PuntiNelRettangolo(uno, rettangolo, 7, 7), (Punti{{60, 35}})) << "no division by zero";
  EXPECT_EQ(PuntiNelRettangolo(tre, rettangolo, 2, 2.5), (Punti{{10, 60}, {60, 60}, {110, 10}}))
      << "beyond the scale, on the edge";
}

class Grafici : public Libreria {
 protected:
  void SetUp() override { Avvia(TabellaEstrazioni{}); }
};

TEST_F(Grafici, PuntiSuArrayRiempieGliArrayDaUno) {
  Esegui("Dim v(3), x, y, n\nv(1) = 10 : v(2) = 30 : v(3) = 20\nn = PuntiSuArray(v, x, y, 0, 100, 200, 40)\n");
  EXPECT_EQ(Testo("n & \" \" & LBound(x) & \" \" & UBound(y)"), "3 1 3") << "the Empty v(0) is passed over";
  EXPECT_EQ(Testo("Join(x, \";\") & \"|\" & Join(y, \";\")"), "0;100;200|140;100;120");
  EXPECT_EQ(Testo("PuntiSuArray(v, x, y, 0, 0, 10, 100, 0, 100) & \" \" & Join(y, \";\")"), "3 90;70;80");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(Grafici, InserisciGraficoDaIlNumeroDellaSerie) {
  Esegui("PreparaGrafico \"Ritardi\", \"Estrazione\", \"Ritardo\"\n");
  EXPECT_EQ(Testo("InserisciGrafico(Array(1, 2, 3), \"uno\", Rosso_)"), "1");
  EXPECT_EQ(Testo("InserisciGrafico(Array(1, 2), Array(5, 6))"), "2");
  EXPECT_EQ(Testo("InserisciGrafico(Array(4), , , Array(\"a\", Null, 3))"), "3");
  Esegui("PreparaGrafico \"Nuovo\"\n");
  EXPECT_EQ(Testo("InserisciGrafico(Array(1))"), "1") << "a new chart replaces the one not shown";
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(Grafici, RifiutiConUnMessaggioChiaro) {
  Esegui(
      "Dim x, y, i, vuoto(3), matrice(2, 2), tanti(100001), barre(2001)\n"
      "For i = 0 To 100001 : tanti(i) = i : Next\nFor i = 0 To 2001 : barre(i) = i : Next\n");
  struct Caso {
    const char* funzione;
    const char* chiamata;
    const char* motivo;
  };
  const Caso casi[] = {
      {"InserisciGrafico", "InserisciGrafico Empty", "deve essere un array"},
      {"InserisciGrafico", "InserisciGrafico Null", "deve essere un array"},
      {"InserisciGrafico", "InserisciGrafico vuoto", "non ha valori"},
      {"InserisciGrafico", "InserisciGrafico Array()", "non ha valori"},
      {"InserisciGrafico", "InserisciGrafico matrice", "una sola dimensione"},
      {"InserisciGrafico", "InserisciGrafico Array(1, Null)", "aValori(1) è Null"},
      {"InserisciGrafico", "InserisciGrafico Array(1, \"x\")", "aValori(1) non è un numero"},
      {"InserisciGrafico", "InserisciGrafico Array(1, 1E+300)", "fuori scala"},
      {"InserisciGrafico", "InserisciGrafico tanti", "troppi valori, al massimo 100000"},
      {"InserisciGrafico", "InserisciGrafico Array(1, 2), Array(1)", "lo stesso numero di valori"},
      {"InserisciGrafico", "InserisciGrafico Array(1), \"n\", -1", "Colore non valido"},
      {"InserisciGrafico", "InserisciGrafico Array(1), String(201, \"a\")", "NomeSerie troppo lungo"},
      {"InserisciGrafico", "InserisciGrafico Array(1), , , 5", "aEtichetteX deve essere un array"},
      {"PreparaGrafico", "PreparaGrafico \"t\", , , 4", "Tipo di grafico non valido"},
      {"InserisciGrafico", "PreparaGrafico \"b\", , , 2 : InserisciGrafico Array(1), Array(2)", "non le coppie"},
      {"InserisciGrafico", "PreparaGrafico \"b\", , , 2 : InserisciGrafico barre", "al massimo 2000"},
      {"InserisciGrafico", "PreparaGrafico \"s\" : For i = 0 To 16 : InserisciGrafico Array(i) : Next",
       "Troppe serie nel grafico: al massimo 16"},
      {"LayOutGrafico", "LayOutGrafico 99", "Dimensioni del grafico non valide"},
      {"LayOutGrafico", "LayOutGrafico 800, 8001", "Dimensioni del grafico non valide"},
      {"LayOutGrafico", "LayOutGrafico , , 5, 5", "MinY deve essere minore di MaxY"},
      {"LayOutGrafico", "LayOutGrafico , , , 1E+300", "Limite della scala non valido"},
      {"Grafico", "PreparaGrafico \"x\" : Grafico", "Nessun grafico da mostrare"},
      {"Grafico", "Grafico Array(1, 2)", "Nessuna area di disegno"},
      {"Grafico", "Grafico Array(Empty)", "non ha valori"},
      {"Grafico", "PreparaGrafico \"x\" : InserisciGrafico Array(1) : Grafico 5, \"titolo\"", "aValori non è un array"},
      {"PuntiSuArray", "PuntiSuArray Array(1, 2), x, y, 0, 0, -1, 10", "Larghezza o altezza non valida"},
      {"PuntiSuArray", "PuntiSuArray Array(1, 2), x, y, 0, 0, 10, 10, 5, 1", "Minimo e Massimo non validi"},
      {"PuntiSuArray", "PuntiSuArray Array(1), x, y, 1E+7, 0, 10, 10", "Coordinata non valida"},
      {"DisegnaLineaGrafico", "DisegnaLineaGrafico Array(1, 2)", "Nessuna area di disegno"},
  };
  for (const Caso& caso : casi) {
    Esegui(caso.chiamata);
    AvvisoErrore5(caso.funzione, caso.motivo, caso.chiamata);
  }
}

}  // namespace
}  // namespace lottolab::script
