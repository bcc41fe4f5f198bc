// The tables of draws a script draws (DisegnaEstrazione, DisegnaFiguraGeodomica and their QN and FT
// forms): the layout's arithmetic, what the picture holds (counted, and a few pixels), the user
// figures of the generic archive, and every refusal.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "DatiReali.h"
#include "StrutturaCoppia.h"
#include "TempDir.h"
#include "archive/DateEstrazione.h"
#include "disegno/TelaImmagine.h"
#include "figures/FileStrutture.h"
#include "script/ClsFunctionsGeodoScript.h"
#include "script/TavolaDisegno.h"
#include "stats/ArchiviDiProva.h"
#include "text/Utf.h"
#include "vbscript/ScriptControl.h"

namespace lottolab::disegno {
namespace {

using script::ImpaginazioneTavola;
using script::MisureTesto;
using script::PostoCella;
using script::Tavola;

TEST(ImpaginazioneTavola, CelleQuadrateInGruppiDistintiSottoTitoloEIntestazioni) {
  const MisureTesto misure{14, 40, 300, 12};
  for (bool con_titolo : {false, true}) {
    for (bool con_intestazioni : {false, true}) {
      Tavola tavola;
      tavola.gruppi = 3;
      tavola.numeri.assign(4, std::vector<int>(15, 1));
      if (con_titolo) tavola.titolo = "titolo";
      if (con_intestazioni) tavola.intestazioni = {"BA", "CA", "FI"};
      const ImpaginazioneTavola imp(tavola, 10, 20, misure);
      const auto prima = imp.Cella({0, 0});
      const double lato = prima.larghezza;
      SCOPED_TRACE(testing::Message() << con_titolo << con_intestazioni);
      EXPECT_EQ(prima.altezza, lato);
      EXPECT_GE(lato, 14 + 4) << "a number fits its cell with a margin";
      EXPECT_EQ(imp.Etichetta(0).x, 10);
      EXPECT_EQ(prima.x, imp.Etichetta(0).x + imp.Etichetta(0).larghezza) << "cells start right of the labels";
      EXPECT_EQ(imp.Cella({0, 4}).x, prima.x + 4 * lato) << "cells of a group touch";
      EXPECT_GT(imp.Cella({0, 5}).x, imp.Cella({0, 4}).x + lato) << "groups stand apart";
      EXPECT_EQ(imp.Cella({3, 14}).y, prima.y + 3 * lato);
      const double sopra = (con_titolo ? imp.Titolo().y + imp.Titolo().altezza : 20) + (con_intestazioni ? lato : 0);
      EXPECT_GE(prima.y, sopra);
      if (con_intestazioni) {
        EXPECT_EQ(imp.Intestazione(1).x, imp.Cella({0, 5}).x);
        EXPECT_EQ(imp.Intestazione(1).y + imp.Intestazione(1).altezza, prima.y);
      }
      EXPECT_EQ(imp.Altezza(), imp.Cella({3, 14}).y + lato - 20);
      EXPECT_EQ(imp.Larghezza(), imp.Cella({3, 14}).x + lato - 10);
      EXPECT_LT(imp.Raggio(), lato / 2) << "a ring stays in its cell";
    }
  }
  Tavola lunga;
  lunga.titolo = "un titolo più largo della tavola";
  lunga.numeri.assign(1, std::vector<int>(5, 1));
  EXPECT_GE(ImpaginazioneTavola(lunga, 0, 0, {14, 0, 900, 12}).Larghezza(), 900) << "the title is not cut";
}

class OspiteCheDisegna final : public script::InterfacciaScript {
 public:
  void Scrivi(const script::TrattoTesto& tratto) override { testo += tratto.testo; }
  void Mostra(const Avviso& avviso) override { avvisi.push_back(avviso); }
  void Messaggio(const std::string&) override {}
  void Avanzamento(double) override {}
  script::AreaDisegno* Disegno() override { return &tela; }

  TelaPng tela;
  std::string testo;
  std::vector<Avviso> avvisi;
};

// Three draws whose Bari and Venezia are written out, a pair of vertices one above the other (the
// lower marked for the play) and a generic archive of 6 numbers a draw.
class TavolaScript : public ::testing::Test {
 protected:
  void Avvia(TabellaEstrazioni tab) {
    AssicuraApplicazioneGrafica();
    m_tab = std::move(tab);
    script::ImpostazioniLibreria impostazioni;
    impostazioni.archivio = &m_tab;
    impostazioni.cartella_base = m_cartella.Percorso();
    impostazioni.cartella_output = m_cartella.Percorso();
    auto libreria =
        vbs::MakeRef<script::ClsFunctionsGeodoScript>(m_ospite, m_engine.interpreter().locale(), impostazioni);
    libreria->SetNomeFileHtmlOut("pagina.htm");
    ASSERT_TRUE(m_engine.SetLanguage("VBScript"));
    ASSERT_TRUE(m_engine.AddObject("ClsFunctionsGeodoScript", libreria, true));
    const figures::Struttura coppia = test::StrutturaCoppia();
    ASSERT_TRUE(figures::SalvaStruttura(m_cartella / "coppia.dat", coppia));
    std::ofstream(m_cartella / "sei.txt") << "# numeri 6 massimo 90\n"
                                             "01/01/2020 1 2 3 4 5 6\n"
                                             "02/01/2020 7 8 9 10 11 12\n"
                                             "03/01/2020 13 14 15 16 17 90\n";
    std::ofstream(m_cartella / "cento.txt") << "# numeri 5 massimo 100\n01/01/2020 1 2 3 4 100\n";
  }
  void AvviaDiProva() {
    Avvia(test::Archivio()
              .Estrazione({{BA, {10, 20, 30, 40, 50}}, {VE, {1, 2, 3, 4, 5}}})
              .Estrazione({{BA, {11, 22, 33, 44, 55}}, {VE, {6, 7, 8, 9, 10}}})
              .Estrazione()
              .Tabella());
  }
  void Esegui(std::string_view codice) { ASSERT_TRUE(m_engine.AddCode(text::Utf8ToUtf16(codice), "prova")); }
  std::string Testo(std::string_view espressione) {
    auto valore = m_engine.Eval(text::Utf8ToUtf16(espressione));
    if (!valore) return "errore";
    auto testo = valore->to_string(m_engine.interpreter().locale());
    return testo ? text::Utf16ToUtf8(testo->view()) : "";
  }
  QRgb Pixel(double x, double y) const {
    return m_ospite.tela.Immagine().pixel(static_cast<int>(x), static_cast<int>(y)) & 0xFFFFFF;
  }
  void NessunAvviso() const { EXPECT_TRUE(m_ospite.avvisi.empty()) << m_ospite.avvisi.front().testo; }

  test::CartellaTemporanea m_cartella;
  TabellaEstrazioni m_tab;
  OspiteCheDisegna m_ospite;
  vbs::ScriptControl m_engine;
};

TEST_F(TavolaScript, UnEstrazioneUnaRigaPerRuotaEDueSiImpilano) {
  AvviaDiProva();
  const int altezza = std::stoi(Testo("DisegnaEstrazione(2)"));
  NessunAvviso();
  const ConteggioTela& conteggio = m_ospite.tela.Conteggio();
  EXPECT_EQ(conteggio.poligoni, 55) << "a cell for each of the 5 positions of 11 wheels";
  EXPECT_EQ(conteggio.testi, 1 + 11 + 55) << "title, wheels, numbers";
  EXPECT_EQ(conteggio.cerchi + conteggio.linee, 0);
  EXPECT_GT(altezza, 11 * 12);
  EXPECT_EQ(Testo("DisegnaEstrazione(2, Array(BA_, VE_), 0, " + std::to_string(altezza) + ", 20)"),
            Testo("DisegnaEstrazione(1, Array(BA_, VE_), 300, 0, 20)"))
      << "the same wheels and size take the same height";
  EXPECT_EQ(m_ospite.tela.Conteggio().poligoni, 55 + 2 * 10);
  // Nothing was drawn below the stacked table's last row.
  EXPECT_EQ(Pixel(5, altezza + std::stoi(Testo("DisegnaEstrazione(1, BA_, 0, 0, 20)")) + 60), 0xFFFFFFu);
}

TEST_F(TavolaScript, NumeriDelloScriptComeUnEstrazione) {
  AvviaDiProva();
  Esegui("ReDim a(54)\nFor i = 0 To 54 : a(i) = 0 : Next\na(0) = 90 : a(54) = 1\n");
  EXPECT_EQ(Testo("DisegnaEstrazioneQN(a, Array(BA_, NZ_)) > 0"), "Vero");
  NessunAvviso();
  EXPECT_EQ(m_ospite.tela.Conteggio().poligoni, 10);
  EXPECT_EQ(m_ospite.tela.Conteggio().testi, 1 + 2 + 2) << "the empty cells hold no text";
}

TEST_F(TavolaScript, LaFiguraHaIVerticiCerchiatiEUnitiEIlGiocoEvidenziato) {
  AvviaDiProva();
  Esegui("Set f = GetCollFiguraUtente(\"coppia.dat\", 2)(1)\nh = DisegnaFiguraGeodomica(f, 0, 0, 20, Blu_, 3)\n");
  NessunAvviso();
  const ConteggioTela& conteggio = m_ospite.tela.Conteggio();
  EXPECT_EQ(conteggio.cerchi, 2);
  EXPECT_EQ(conteggio.linee, 1);
  EXPECT_EQ(conteggio.poligoni, 2 * 5) << "two draws, Bari alone";
  // The cells of the two vertices, found from the layout of the same measures.
  Tavola tavola;
  tavola.titolo = "x";
  tavola.intestazioni = {"BA"};
  tavola.etichette = {"00/00/0000"};
  tavola.numeri.assign(2, std::vector<int>(5, 0));
  MisureTesto misure;
  misure.larghezza_numero = m_ospite.tela.TextWidth("88", 20);
  misure.altezza = m_ospite.tela.TextHeight("88", 20);
  misure.larghezza_etichetta = m_ospite.tela.TextWidth("00/00/0000", 20);
  const ImpaginazioneTavola imp(tavola, 0, 0, misure);
  EXPECT_EQ(Testo("h"), std::to_string(static_cast<int>(imp.Altezza())));
  const auto alto = imp.Cella({0, 0});
  const auto basso = imp.Cella({1, 0});
  const auto accanto = imp.Cella({1, 1});
  EXPECT_EQ(Pixel(basso.x + 2, basso.y + 2), 0xFFF59Du) << "the number to play on the highlighted ground";
  EXPECT_EQ(Pixel(alto.x + 2, alto.y + 2), 0xFFFFFFu) << "the other vertex is not played";
  EXPECT_EQ(Pixel(accanto.x + 2, accanto.y + 2), 0xFFFFFFu);
  EXPECT_EQ(Pixel(alto.CentroX(), alto.y + alto.altezza), 0x0000FFu) << "the line joins the rings, in Blu_";
  EXPECT_EQ(Pixel(alto.CentroX() + imp.Raggio(), alto.CentroY()), 0x0000FFu) << "the ring";
}

TEST_F(TavolaScript, LeFigureQNEFTSiDisegnanoConILoroNomi) {
  AvviaDiProva();
  Esegui("ReDim a(54)\nFor i = 0 To 54 : a(i) = 0 : Next\na(45) = 90\n");
  EXPECT_EQ(Testo("DisegnaFiguraGeodomicaQN(GetCollFiguraUtenteQN(\"coppia.dat\", 3, a)(1)) > 0"), "Vero");
  NessunAvviso();
  EXPECT_EQ(m_ospite.tela.Conteggio().poligoni, 2 * 5) << "Venezia alone";
  EXPECT_EQ(m_ospite.tela.Conteggio().cerchi, 2);

  ASSERT_EQ(Testo("ApriBaseDatiFT(\"sei.txt\")"), "3");
  Esegui("Set c = GetCollFiguraUtenteFT(\"coppia.dat\", 1, 3)\n");
  NessunAvviso();
  EXPECT_EQ(Testo("c.Count"), "12") << "the 6 columns of draws 2 and 3";
  EXPECT_EQ(Testo("c(1) & \"|\" & c(12)"), "2: BA1 1, BA1 7|3: CA1 12, CA1 90") << "column 6 is Cagliari's first";
  EXPECT_EQ(Testo("c(12).EstrazioneVertice(1) & Join(c(12).NumeriGioco)"), "290");
  EXPECT_EQ(Testo("DisegnaFiguraGeodomicaFT(c(12), 0, 100) > 0"), "Vero");
  NessunAvviso();
  EXPECT_EQ(m_ospite.tela.Conteggio().poligoni, 2 * 5 + 2 * 6) << "the generic archive's 6 columns in one block";
  EXPECT_EQ(m_ospite.tela.Conteggio().cerchi, 4);
  EXPECT_EQ(Testo("GetCollFiguraUtenteFT(\"coppia.dat\", 3).Count"), "6") << "draw 2 is read before the range";
}

TEST_F(TavolaScript, RifiutiConUnMessaggioChiaro) {
  AvviaDiProva();
  Esegui(
      "ReDim a(54)\nFor i = 0 To 54 : a(i) = 0 : Next\n"
      "Set f = GetCollFiguraUtente(\"coppia.dat\", 2)(1)\n"
      "Set q = GetCollFiguraUtenteQN(\"coppia.dat\", 2, a)\n"
      "ApriBaseDatiFT \"sei.txt\"\nSet t = GetCollFiguraUtenteFT(\"coppia.dat\", 2)(1)\n");
  NessunAvviso();
  struct Caso {
    std::string_view codice;
    std::string_view spiegazione;
  };
  const Caso casi[] = {
      {"DisegnaEstrazione 0", "IdEstr"},
      {"DisegnaEstrazione 4", "IdEstr"},
      {"DisegnaEstrazione 1, 13", "uota"},
      {"DisegnaEstrazione 1, , 1E+300", "Coordinata non valida"},
      {"DisegnaEstrazione 1, , 0, 0, 0", "Dimensione del testo non valida"},
      {"DisegnaEstrazione 1, , 0, 0, 401", "Dimensione del testo non valida"},
      {"DisegnaEstrazioneQN Array(1, 2)", "55 elementi"},
      {"a(3) = 91 : DisegnaEstrazioneQN a", "aNumeri(4): 91"},
      {"a(3) = 2.5 : DisegnaEstrazioneQN a", "aNumeri(4): 2.5"},
      {"DisegnaFiguraGeodomica Empty", "figura di GetCollFiguraUtente"},
      {"DisegnaFiguraGeodomica GetCollFigureCiclometriche(Array(1, 46))(1)", "figura di GetCollFiguraUtente"},
      {"DisegnaFiguraGeodomicaQN 5", "figura di GetCollFiguraUtenteQN"},
      {"DisegnaFiguraGeodomica t", "viene da GetCollFiguraUtenteFT: la disegna DisegnaFiguraGeodomicaFT"},
      {"DisegnaFiguraGeodomicaFT f", "viene da GetCollFiguraUtente: la disegna DisegnaFiguraGeodomica"},
      {"DisegnaFiguraGeodomica f, , , , -1", "Colore non valido"},
      {"DisegnaFiguraGeodomica f, , , , , 1000", "Spessore non valido"},
      {"DisegnaFiguraGeodomica f, -1E+7", "Coordinata non valida"},
      {"GetCollFiguraUtenteFT \"coppia.dat\", 4", "IdEstrIniz"},
      {"GetCollFiguraUtenteFT \"coppia.dat\", 3, 2", "viene prima"},
      {"ApriBaseDatiFT \"cento.txt\" : GetCollFiguraUtenteFT \"coppia.dat\", 1", "numeri fino a 100"},
  };
  for (const Caso& caso : casi) {
    m_ospite.avvisi.clear();
    Esegui(caso.codice);
    ASSERT_EQ(m_ospite.avvisi.size(), 1u) << caso.codice;
    EXPECT_TRUE(m_ospite.avvisi[0].testo.starts_with("5- ")) << m_ospite.avvisi[0].testo << " <- " << caso.codice;
    EXPECT_NE(m_ospite.avvisi[0].testo.find(caso.spiegazione), std::string::npos)
        << m_ospite.avvisi[0].testo << " <- " << caso.codice;
  }
  EXPECT_FALSE(m_ospite.tela.Disegnata());
}

// Every figure of a structure found on the last draws of the real archive is drawn with a ring for
// each vertex and a line between each two in a row.
TEST_F(TavolaScript, LeFigureDellArchivioReale) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  Avvia(test::ArchivioReale());
  Esegui(
      "Set c = GetCollFiguraUtente(\"coppia.dat\", EstrazioniArchivio - 1, EstrazioniArchivio, Array(BA_, NZ_))\n"
      "y = 0\nFor Each f In c : y = y + DisegnaFiguraGeodomica(f, 0, y) : Next\n");
  NessunAvviso();
  EXPECT_EQ(Testo("c.Count"), "20");
  EXPECT_EQ(m_ospite.tela.Conteggio().cerchi, 40);
  EXPECT_EQ(m_ospite.tela.Conteggio().linee, 20);
}

// A generic archive of Bari's numbers alone holds the same figures as Bari's column of the table.
TEST_F(TavolaScript, LArchivioGenericoDiBariHaLeFigureDiBari) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& reale = test::ArchivioReale();
  constexpr int kEstrazioni = 300;
  const int prima = reale.EstrazioniArchivio() - kEstrazioni + 1;
  std::string testo = "# numeri 5 massimo 90\n";
  for (int id = prima; id <= reale.EstrazioniArchivio(); ++id) {
    testo += FormattaData(reale[id].data);
    for (int p = 1; p <= kNumeriPerRuota; ++p) testo += " " + std::to_string(reale[id].Numero(BA, p));
    testo += "\n";
  }
  Avvia(reale);
  std::ofstream(m_cartella / "bari.txt") << testo;
  ASSERT_EQ(Testo("ApriBaseDatiFT(\"bari.txt\")"), std::to_string(kEstrazioni));
  Esegui(
      "Function Elenco(c)\n"
      "  Dim f, i, s\n"
      "  For Each f In c\n"
      "    For i = 1 To f.QuantitaVertici : s = s & f.PosizioneVertice(i) & \":\" & f.Vertice(i) & \" \" : Next\n"
      "    s = s & \"|\"\n"
      "  Next\n"
      "  Elenco = s\n"
      "End Function\n");
  const std::string generico = Testo("Elenco(GetCollFiguraUtenteFT(\"coppia.dat\", 250, 300))");
  const std::string lotto =
      Testo("Elenco(GetCollFiguraUtente(\"coppia.dat\", EstrazioniArchivio - 50, EstrazioniArchivio, BA_))");
  NessunAvviso();
  EXPECT_EQ(std::count(generico.begin(), generico.end(), '|'), 51 * 5);
  EXPECT_EQ(generico, lotto);
}

}  // namespace
}  // namespace lottolab::disegno
