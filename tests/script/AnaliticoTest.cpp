#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "LibreriaDiProva.h"
#include "stats/ArchiviDiProva.h"
#include "stats/ForzaBruta.h"

namespace lottolab::script {
namespace {

using test::Archivio;
using test::ArchivioCasuale;
using test::ForzaBruta;

class LibreriaAnalitico : public Libreria {};

// Nazionale is drawn from draw 3; 7 comes out on Bari in draws 1 and 5, on Nazionale in 3, on Venezia in 5.
TabellaEstrazioni Piccola() {
  return Archivio()
      .NazionaleDa(3)
      .Estrazione({{BA, {7, 1, 2, 3, 4}}})
      .Estrazione()
      .Estrazione({{NZ, {7, 1, 2, 3, 4}}})
      .Estrazione()
      .Estrazione({{BA, {7, 1, 2, 3, 4}}, {VE, {9, 7, 1, 2, 3}}})
      .Tabella();
}

// The script's wheel for a wheel of the table: all wheels are 11 and Nazionale 12 in scripts.
int RuotaScript(int ruota) { return ruota == NZ ? 12 : ruota == kTutteLeRuote ? 11 : ruota; }

TEST_F(LibreriaAnalitico, UnaRuotaNonEstrattaDaNullNonZero) {
  Avvia(Piccola());
  Esegui("Dim a, r, f, s\na = GeneraAnalitico(NZ_, 2)\nok = GeneraAnalitico2(NZ_, r, f, s, 2)");
  EXPECT_EQ(Testo("IsNull(a(7, 1)) And IsNull(a(90, 4))"), "Vero");
  EXPECT_EQ(Testo("ok"), "Falso");
  EXPECT_EQ(Testo("IsNull(r(7)) And IsNull(s(90)) And UBound(f) = 90"), "Vero");
  Esegui("a = GeneraAnaliticoTurbo(NZ_, 2)");
  EXPECT_EQ(Testo("IsNull(a(1, 1))"), "Vero");
  Esegui("a = GeneraAnalitico(NZ_, 5)");
  EXPECT_EQ(Testo("a(7, 1) & \" \" & a(7, 2) & \" \" & a(7, 3) & \" \" & a(8, 1)"), "2 1 2 3");
  Esegui("a = GeneraAnalitico(BA_, 4)");
  EXPECT_EQ(Testo("a(7, 1) & \" \" & a(7, 2) & \" \" & a(7, 3) & \" \" & a(7, 4)"), "3 1 3 3");
  Esegui("a = GeneraAnaliticoRuote(Array(BA_, VE_), 5)");
  EXPECT_EQ(Testo("a(7, 1) & \" \" & a(7, 2) & \" \" & a(7, 3)"), "0 3 3");
  Esegui("a = GeneraAnaliticoRuote(Array(NZ_), 2, 1)");
  EXPECT_EQ(Testo("IsNull(a(7, 1))"), "Vero");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaAnalitico, OgniFormaDaLeFigureDellaForzaBruta) {
  Avvia(ArchivioCasuale(120, 20, 11));
  Esegui("Dim a, b, r, f, s, ok, ok2");
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota)
    for (int fine : {4, 61, 120}) {
      const std::string argomenti = std::to_string(RuotaScript(ruota)) + ", " + std::to_string(fine);
      Esegui("a = GeneraAnalitico(" + argomenti + ")\nb = GeneraAnaliticoTurbo(" + argomenti +
             ")\nok = GeneraAnalitico2(" + std::to_string(RuotaScript(ruota)) + ", r, f, s, " + std::to_string(fine) +
             ")\nok2 = GeneraAnaliticoTurbo2(" + std::to_string(RuotaScript(ruota)) + ", r, f, s, " +
             std::to_string(fine) + ")");
      for (int numero : {1, 7, 20, 21}) {
        SCOPED_TRACE(testing::Message() << "wheel " << ruota << ", end " << fine << ", number " << numero);
        const auto attese = ForzaBruta(m_tab, ruota, {numero}, 1, fine);
        const std::string n = std::to_string(numero);
        if (!attese) {
          EXPECT_EQ(Testo("IsNull(a(" + n + ", 1)) And IsNull(b(" + n + ", 3)) And Not ok And Not ok2"), "Vero");
          continue;
        }
        const std::string attesa = std::to_string(attese->ritardo) + " " + std::to_string(attese->frequenza) + " " +
                                   std::to_string(attese->storico) + " " + std::to_string(attese->incr_storico);
        for (const char* matrice : {"a", "b"}) {
          const std::string m = std::string(matrice) + "(" + n + ", ";
          EXPECT_EQ(Testo(m + "1) & \" \" & " + m + "2) & \" \" & " + m + "3) & \" \" & " + m + "4)"), attesa);
        }
        EXPECT_EQ(Testo("r(" + n + ") & \" \" & f(" + n + ") & \" \" & s(" + n + ")"),
                  std::to_string(attese->ritardo) + " " + std::to_string(attese->frequenza) + " " +
                      std::to_string(attese->storico));
      }
    }
  // A range that starts later, for the plain form alone.
  Esegui("a = GeneraAnalitico(CA_, 100, 30)");
  const auto attese = ForzaBruta(m_tab, CA, {5}, 30, 100);
  ASSERT_TRUE(attese.has_value());
  EXPECT_EQ(Testo("a(5, 1) & \" \" & a(5, 3)"),
            std::to_string(attese->ritardo) + " " + std::to_string(attese->storico));
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaAnalitico, IlTabelloneScriveNumeriRuoteETrattini) {
  Avvia(Piccola());
  Esegui("TabelloneAnalitico 2");
  const std::string testo = m_ospite.testo;
  EXPECT_NE(testo.find("Analitico (ritardo)"), std::string::npos) << testo;
  EXPECT_NE(testo.find("NZ"), std::string::npos);
  // Number 7 at draw 2: delay 1 on Bari, no Nazionale yet, delay 1 on all wheels.
  const size_t riga = testo.find("\n    07");
  ASSERT_NE(riga, std::string::npos) << testo;
  const std::string sette = testo.substr(riga + 1, testo.find('\n', riga + 1) - riga - 1);
  EXPECT_NE(sette.find('-'), std::string::npos) << sette;
  EXPECT_EQ(sette.find(" 0 "), std::string::npos) << sette;

  m_ospite.testo.clear();
  Esegui("TabelloneAnaliticoTurbo 5, 3");
  EXPECT_NE(m_ospite.testo.find("Analitico (ritardo storico)"), std::string::npos);
  m_ospite.testo.clear();
  Esegui("TabelloneAnaliticoRuote Array(BA_, NZ_), 5");
  EXPECT_NE(m_ospite.testo.find("BA+NZ"), std::string::npos) << m_ospite.testo;
  EXPECT_NE(Testo("InStr(GetTabAnalitico(5, 1, 2), \"<table\")"), "0");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaAnalitico, GliArgomentiSbagliatiDannoErrore5) {
  Avvia(Piccola());
  const struct {
    const char* chiamata;
    const char* funzione;
    const char* spiegazione;
  } casi[] = {
      {"TabelloneAnalitico 5, 1, 7", "TabelloneAnalitico", "Dato"},
      {"TabelloneAnaliticoTurbo 9", "TabelloneAnaliticoTurbo", "Fine"},
      {"x = GeneraAnalitico(BA_, 2, 4)", "GeneraAnalitico", "Inizio (4) dopo Fine (2)"},
      {"x = GeneraAnalitico(13)", "GeneraAnalitico", "Ruota"},
      {"x = GeneraAnaliticoRuote(Array())", "GeneraAnaliticoRuote", "ruot"},
  };
  for (const auto& caso : casi) {
    Esegui(caso.chiamata);
    AvvisoErrore5(caso.funzione, caso.spiegazione, caso.chiamata);
  }
}

}  // namespace
}  // namespace lottolab::script
