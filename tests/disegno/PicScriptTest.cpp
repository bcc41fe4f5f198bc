// The Pic... names and the circle's names from a script, on a host whose picture area is the
// headless one: what they drew (counted by the picture), the page's links, and every refusal.

#include <gtest/gtest.h>

#include "TempDir.h"
#include "disegno/TelaImmagine.h"
#include "script/ClsFunctionsGeodoScript.h"
#include "text/Utf.h"
#include "vbscript/ScriptControl.h"

namespace lottolab::disegno {
namespace {

class OspiteCheDisegna final : public script::InterfacciaScript {
 public:
  explicit OspiteCheDisegna(bool disegna) : m_disegna(disegna) {}
  void Scrivi(const script::TrattoTesto& tratto) override { testo += tratto.testo; }
  void Mostra(const Avviso& avviso) override { avvisi.push_back(avviso); }
  void Messaggio(const std::string&) override {}
  void Avanzamento(double) override {}
  script::AreaDisegno* Disegno() override { return m_disegna ? &tela : nullptr; }

  TelaPng tela;
  std::string testo;
  std::vector<Avviso> avvisi;

 private:
  bool m_disegna;
};

class PicScript : public ::testing::Test {
 protected:
  void Avvia(bool disegna = true) {
    AssicuraApplicazioneGrafica();
    m_ospite = std::make_unique<OspiteCheDisegna>(disegna);
    script::ImpostazioniLibreria impostazioni;
    impostazioni.cartella_output = m_cartella.Percorso();
    auto libreria =
        vbs::MakeRef<script::ClsFunctionsGeodoScript>(*m_ospite, m_engine.interpreter().locale(), impostazioni);
    libreria->SetNomeFileHtmlOut("pagina.htm");
    m_libreria = libreria.get();
    ASSERT_TRUE(m_engine.SetLanguage("VBScript"));
    ASSERT_TRUE(m_engine.AddObject("ClsFunctionsGeodoScript", libreria, true));
  }
  void Esegui(std::string_view codice) { ASSERT_TRUE(m_engine.AddCode(text::Utf8ToUtf16(codice), "prova")); }
  std::string Testo(std::string_view espressione) {
    auto valore = m_engine.Eval(text::Utf8ToUtf16(espressione));
    if (!valore) return "errore";
    auto testo = valore->to_string(m_engine.interpreter().locale());
    return testo ? text::Utf16ToUtf8(testo->view()) : "";
  }

  test::CartellaTemporanea m_cartella;
  std::unique_ptr<OspiteCheDisegna> m_ospite;
  script::ClsFunctionsGeodoScript* m_libreria = nullptr;
  vbs::ScriptControl m_engine;
};

TEST_F(PicScript, DisegnaEContaCiòCheLoScriptChiede) {
  Avvia();
  ASSERT_TRUE(m_libreria->html().Apri(m_cartella / "pagina.htm", "#FFFFFF"));
  Esegui(R"(
PicSetDimensioni 300, 200
PicRiempi RGB(0, 0, 255)
PicLinea 0, 0, 10, 10
PicLineaTratteggiata 0, 5, 100, 5, Rosso_, 2
PicPoligono Array(1, 50, 50), Array(1, 1, 50), Verde_, 1, Giallo_
PicPoligono Array(Empty, 100, 150, 150), Array(Empty, 100, 100, 150)
PicCerchio 250, 150, 20, Nero_, 1, Rosso_
PicPunto 5, 190, Bianco_, 3
PicStampaTesto 10, 100, "Prova"
PicStampaTestoRT 10, 150, "Giù", 90, Ciano_, 14
)");
  const ConteggioTela& conteggio = m_ospite->tela.Conteggio();
  EXPECT_EQ(conteggio.linee, 2);
  EXPECT_EQ(conteggio.poligoni, 2);
  EXPECT_EQ(conteggio.cerchi, 1);
  EXPECT_EQ(conteggio.punti, 1);
  EXPECT_EQ(conteggio.testi, 2);
  const QImage& immagine = m_ospite->tela.Immagine();
  EXPECT_EQ(immagine.size(), QSize(300, 200));
  EXPECT_EQ(immagine.pixel(200, 20) & 0xFFFFFF, 0x0000FFu);  // RGB(0, 0, 255) as VBScript builds it
  EXPECT_EQ(immagine.pixel(250, 150) & 0xFFFFFF, 0xFF0000u);
  EXPECT_EQ(immagine.pixel(40, 10) & 0xFFFFFF, 0xFFFF00u);
  EXPECT_GT(std::stoi(Testo("PicTextWidth(\"Prova lunga\")")), std::stoi(Testo("PicTextWidth(\"Prova\")")));
  EXPECT_GT(std::stoi(Testo("PicTextHeight(\"a\", 30)")), std::stoi(Testo("PicTextHeight(\"a\", 10)")));
  EXPECT_TRUE(m_ospite->avvisi.empty()) << m_ospite->avvisi.front().testo;
  // The page links the picture once, and PicEsegui writes it beside the page.
  Esegui("PicEsegui");
  m_libreria->html().Chiudi();
  const std::string pagina = m_libreria->html().Testo();
  EXPECT_NE(pagina.find("<img src=\"pagina.png\""), std::string::npos) << pagina;
  EXPECT_EQ(pagina.find("<img", pagina.find("<img") + 1), std::string::npos) << pagina;
  EXPECT_TRUE(std::filesystem::exists(m_cartella / "pagina.png"));
}

TEST_F(PicScript, CerchioConLeSueFigureEImpostazioni) {
  Avvia();
  ASSERT_TRUE(m_libreria->html().Apri(m_cartella / "pagina.htm", "#FFFFFF"));
  Esegui(R"(
d = GetNewDisegnoCiclometrico()
ImpostaPropColoriCerchioCiclo d, , , , , Rosso_
ImpostaPropDrawWidthCerchioCiclo d, 1, 6
ImpostaPropFlagFigureCerchioCiclo d, False
DisegnaCerchioCiclometrico d, Array(1, 46), Array(Array(1, 46), Array(1, 31, 61), Array(2, 20, 47, 65)), , , 0, 0, 0, 400
QvCerchio_InitDisegno d, "Figure"
)");
  EXPECT_TRUE(m_ospite->avvisi.empty()) << m_ospite->avvisi.front().testo;
  const ConteggioCerchio& cerchio = m_ospite->tela.Conteggio().cerchio;
  EXPECT_EQ(cerchio.poligoni, 2);  // the diameter is switched off
  EXPECT_EQ(cerchio.marcati, 2);
  EXPECT_EQ(cerchio.numeri, 90);
  // The triangle's base 31-61 crosses the vertical axis in the figures' red, 6 pixels wide.
  const QPointF sinistra = PuntoDelNumero(61, QRectF(0, 0, 400, 400));
  EXPECT_EQ(m_ospite->tela.Immagine().pixel(200, static_cast<int>(sinistra.y())) & 0xFFFFFF, 0xFF0000u);
  EXPECT_TRUE(std::filesystem::exists(m_cartella / "pagina_cerchio1.png"));
  m_libreria->html().Chiudi();
  EXPECT_NE(m_libreria->html().Testo().find("pagina_cerchio1.png"), std::string::npos);
}

// The figures a search finds are drawn with the numbers they come from, and named under the
// picture of the view; a figure found by the script itself joins them.
TEST_F(PicScript, FigureTrovateDisegnateEdElencate) {
  Avvia();
  ASSERT_TRUE(m_libreria->html().Apri(m_cartella / "pagina.htm", "#FFFFFF"));
  // 20-65 a diameter, 5-35-65 an equilateral triangle, 20 as far from 5 as from 35: an isosceles
  // triangle, and with 65 a kite.
  Esegui(R"(
d = GetNewDisegnoCiclometrico()
n = Array(5, 35, 65, 20)
tutte = DisegnaEstrazioneFromFiguraCiclometrica(d, n)
diametri = DisegnaEstrazioneFromFiguraCiclometrica(d, n, , 1)
Set eq = GetCollTriangoliEquilateri(n)
daCollezione = DisegnaEstrazioneFromFiguraCiclometrica(d, n, , eq, 1)
numero = QvCerchio_TovataFigura(d, Array(1, 46), Rosso_, 3)
QvCerchio_InitDisegno d, "Trovate"
)");
  ASSERT_TRUE(m_ospite->avvisi.empty()) << m_ospite->avvisi.front().testo;
  EXPECT_EQ(Testo("tutte"), "4");
  EXPECT_EQ(Testo("diametri"), "1");
  EXPECT_EQ(Testo("daCollezione"), "1");
  EXPECT_EQ(Testo("numero"), "2");
  const ConteggioCerchio& cerchio = m_ospite->tela.Conteggio().cerchio;
  EXPECT_EQ(cerchio.poligoni, 4 + 1 + 1);
  EXPECT_EQ(cerchio.marcati, 3 * 4);
  m_libreria->html().Chiudi();
  const std::string pagina = m_libreria->html().Testo();
  EXPECT_NE(pagina.find("<ol><li>Triangolo equilatero 5-35-65</li><li>1-46</li></ol>"), std::string::npos) << pagina;
}

TEST_F(PicScript, RifiutiConUnMessaggioChiaro) {
  Avvia();
  struct Caso {
    std::string_view codice;
    std::string_view spiegazione;
  };
  const Caso casi[] = {
      {"PicSetDimensioni 0, 10", "Dimensioni non valide"},
      {"PicSetDimensioni 9000, 10", "Dimensioni non valide"},
      {"PicRiempi -1", "Colore non valido"},
      {"PicRiempi &H1000000", "Colore non valido"},
      {"PicLinea 0, 0, 1E+300, 0", "Coordinata non valida"},
      {"PicLinea 0, 0, 1, 1, Nero_, 1000", "Spessore non valido"},
      {"PicPoligono Array(1, 2, 3), Array(1, 2)", "lo stesso numero di valori"},
      {"PicCerchio 1, 1, -3", "Raggio non valido"},
      {"PicStampaTesto 1, 1, \"x\", Nero_, 0", "Dimensione del testo non valida"},
      {"DisegnaCerchioCiclometrico 1", "Disegno ciclometrico non valido"},
      {"d = GetNewDisegnoCiclometrico() : DisegnaCerchioCiclometrico d, Array(0, 91)", "numero non valido"},
      {"DisegnaCerchioCiclometrico d, , Array(Array(1, 2)), , , 2", "Evidenziata non valida"},
      {"DisegnaCerchioCiclometrico d, , 5", "array di array"},
      {"DisegnaCerchioCiclometrico d, , Array(Array(1, 100))", "figura 1: numero non valido"},
      {"DisegnaCerchioCiclometrico d, , Array(Array(1, 2)), Array(-5)", "aColori"},
      {"ImpostaPropDrawWidthCerchioCiclo d, -1", "Spessore non valido"},
      {"DisegnaEstrazioneFromFiguraCiclometrica d, Array(1, 46), , 9", "Figure non valide"},
      {"DisegnaEstrazioneFromFiguraCiclometrica d, Array(1, 46), BA_", "aRuote vale solo con IdEstr"},
      {"Set c = GetNewCollection() : c.Add 3 : DisegnaEstrazioneFromFiguraCiclometrica d, Array(1, 46), , c",
       "non è una figura ciclometrica"},
      {"QvCerchio_TovataFigura d, Array()", "serve una figura"},
      {"QvCerchio_TovataFigura d, Array(1, 46), -2", "Colore non valido"},
  };
  for (const Caso& caso : casi) {
    m_ospite->avvisi.clear();
    Esegui(caso.codice);
    ASSERT_EQ(m_ospite->avvisi.size(), 1u) << caso.codice;
    EXPECT_NE(m_ospite->avvisi[0].testo.find(caso.spiegazione), std::string::npos)
        << m_ospite->avvisi[0].testo << " <- " << caso.codice;
  }
  EXPECT_EQ(m_ospite->tela.Conteggio().linee, 0);
  EXPECT_FALSE(m_ospite->tela.Disegnata());
}

TEST_F(PicScript, SenzaAreaDiDisegno) {
  Avvia(false);
  Esegui("PicLinea 0, 0, 1, 1 : d = GetNewDisegnoCiclometrico() : QvCerchio_InitDisegno d");
  ASSERT_EQ(m_ospite->avvisi.size(), 2u);
  for (const Avviso& avviso : m_ospite->avvisi)
    EXPECT_NE(avviso.testo.find("Nessuna area di disegno"), std::string::npos) << avviso.testo;
}

// Each chart goes to its own PNG beside the page, linked from it, at the layout's size; the
// picture area is not linked by charts alone.
TEST_F(PicScript, GraficiAccantoAllaPagina) {
  Avvia();
  ASSERT_TRUE(m_libreria->html().Apri(m_cartella / "pagina.htm", "#FFFFFF"));
  Esegui(R"(
Dim v(4), i
For i = 1 To 4 : v(i) = i * i : Next
LayOutGrafico 300, 200
PreparaGrafico "Quadrati", "n", "n x n", 2
InserisciGrafico v, "quadrati", Rosso_, Array("uno", "due", "tre", "quattro")
InserisciGrafico Array(1, 2, 3)
n1 = Grafico()
n2 = Grafico(Array(5, 1, 4), "Al volo")
)");
  EXPECT_TRUE(m_ospite->avvisi.empty()) << m_ospite->avvisi.front().testo;
  EXPECT_EQ(Testo("n1 & n2"), "12");
  EXPECT_EQ(m_ospite->tela.UltimoGrafico().punti, 3);
  const QImage primo(QString::fromStdString((m_cartella / "pagina_grafico1.png").string()));
  EXPECT_EQ(primo.size(), QSize(300, 200));
  EXPECT_TRUE(std::filesystem::exists(m_cartella / "pagina_grafico2.png"));
  m_libreria->html().Chiudi();
  const std::string pagina = m_libreria->html().Testo();
  EXPECT_NE(pagina.find("<img src=\"pagina_grafico1.png\" alt=\"Quadrati\">"), std::string::npos) << pagina;
  EXPECT_NE(pagina.find("<img src=\"pagina_grafico2.png\" alt=\"Al volo\">"), std::string::npos) << pagina;
  EXPECT_EQ(pagina.find("pagina.png"), std::string::npos) << "no Pic... call, no picture";
  Esegui("Grafico");
  ASSERT_EQ(m_ospite->avvisi.size(), 1u);
  EXPECT_NE(m_ospite->avvisi[0].testo.find("Nessun grafico da mostrare"), std::string::npos)
      << "the chart shown is no longer in preparation";
}

TEST_F(PicScript, AlPiùCinquantaGraficiPerEsecuzione) {
  Avvia();
  Esegui("LayOutGrafico 100, 100 : For i = 1 To 51 : Grafico Array(i) : Next");
  ASSERT_EQ(m_ospite->avvisi.size(), 1u);
  EXPECT_NE(m_ospite->avvisi[0].testo.find("al massimo 50"), std::string::npos) << m_ospite->avvisi[0].testo;
  EXPECT_TRUE(std::filesystem::exists(m_cartella / "pagina_grafico50.png"));
  EXPECT_FALSE(std::filesystem::exists(m_cartella / "pagina_grafico51.png"));
}

// DisegnaLineaGrafico scales as PuntiSuArray does: over the whole picture when no rectangle is given.
TEST_F(PicScript, LineaDeiValoriSullAreaDiDisegno) {
  Avvia();
  Esegui(R"(
PicSetDimensioni 101, 51
n = DisegnaLineaGrafico(Array(0, 10, 10), Rosso_, 3)
m = DisegnaLineaGrafico(Array(2, 2), Blu_, 2, 0, 0, 50, 50, 0, 4)
)");
  EXPECT_TRUE(m_ospite->avvisi.empty()) << m_ospite->avvisi.front().testo;
  EXPECT_EQ(Testo("n & \" \" & m"), "3 2");
  EXPECT_EQ(m_ospite->tela.Conteggio().spezzate, 2);
  const QImage& immagine = m_ospite->tela.Immagine();
  EXPECT_EQ(immagine.pixel(75, 0) & 0xFFFFFF, 0xFF0000u) << "the flat top from (50, 0) to (100, 0)";
  EXPECT_EQ(immagine.pixel(20, 30) & 0xFFFFFF, 0xFF0000u) << "from (0, 50) up to (50, 0)";
  EXPECT_EQ(immagine.pixel(10, 25) & 0xFFFFFF, 0x0000FFu) << "2 of 0..4 at mid height of 50 pixels";
  EXPECT_EQ(immagine.pixel(75, 25) & 0xFFFFFF, 0xFFFFFFu);
  Esegui("DisegnaLineaGrafico Array(1, 2), Blu_, 1, 0, 0, 9000");
  EXPECT_EQ(m_ospite->avvisi.size(), 1u);
}

}  // namespace
}  // namespace lottolab::disegno
