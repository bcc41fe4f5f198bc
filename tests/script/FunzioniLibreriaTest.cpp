#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "LibreriaDiProva.h"
#include "archive/DateEstrazione.h"
#include "stats/ArchiviDiProva.h"

namespace lottolab::script {
namespace {

using test::Archivio;

// Dates chosen to cross a year, to repeat a month in two years and to leave gaps between draws.
TabellaEstrazioni TabellaDatata() {
  return TabellaEstrazioni({
      Datata(1, {150, 20, 12, 2003}),
      Datata(2, {152, 28, 12, 2004}),
      Datata(3, {153, 30, 12, 2004}),
      Datata(4, {1, 4, 1, 2005}),
      Datata(5, {2, 6, 1, 2005}),
      Datata(6, {3, 8, 1, 2005}),
      Datata(7, {4, 1, 2, 2005}),
  });
}

class LibreriaArchivio : public Libreria {
 protected:
  void SetUp() override { Avvia(TabellaDatata()); }
};

TEST_F(LibreriaArchivio, LeRuoteArrivanoNellaNumerazioneDegliScript) {
  EXPECT_EQ(Testo("Estratto(1, NZ_, 1)"), "78") << "NZ_ = 12 reads the table's wheel 11";
  EXPECT_EQ(Testo("Estratto(1, 12, 5)"), "82");
  EXPECT_EQ(Testo("Estratto(1, \"12\", 1)"), "78");
  EXPECT_EQ(Testo("Estratto(1, 12.0, 1)"), "78") << "the value is compared as written";
  EXPECT_EQ(Testo("Estratto(1, TU_, 1)"), "0") << "all the wheels are not one wheel";
  EXPECT_EQ(Testo("Estratto(1, TT_, 1)"), "0");
  EXPECT_EQ(Testo("Estratto(1, BA_, 1)"), "8");
  EXPECT_EQ(Testo("Estratto(1, VE_, 5)"), "75");
  EXPECT_EQ(Testo("Estratto(1, 0, 1)"), "0");
  EXPECT_EQ(Testo("Estratto(1, 13, 1)"), "0");
  EXPECT_EQ(Testo("TypeName(Estratto(1, 1, 1))"), "Integer");

  EXPECT_EQ(Testo("SiglaRuota(NZ_)"), "NZ");
  EXPECT_EQ(Testo("SiglaRuota(TU_)"), "TT");
  EXPECT_EQ(Testo("SiglaRuota(BA_) & SiglaRuota(VE_)"), "BAVE");
  EXPECT_EQ(Testo("\"[\" & SiglaRuota(0) & \"]\""), "[  ]");
  EXPECT_EQ(Testo("NomeRuota(NZ_)"), "Nazionale");
  EXPECT_EQ(Testo("NomeRuota(RO_)"), "Roma");
  EXPECT_EQ(Testo("Len(NomeRuota(TU_))"), "0");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// Plain variables of every subtype take the short path when they are whole numbers and the
// general one otherwise: both must read the same number and fail the same way.
TEST_F(LibreriaArchivio, EstrattoLeggeLeVariabiliComeLeCostanti) {
  Esegui(
      "Dim id, r, p, intero, lungo, doppio, testo\nid = 1 : p = 5\nintero = CInt(12) : lungo = CLng(12)\n"
      "doppio = 12.0 : testo = \"12\"");
  for (std::string_view ruota : {"intero", "lungo", "doppio", "testo"})
    EXPECT_EQ(Testo("Estratto(id, " + std::string(ruota) + ", p)"), "82") << ruota;
  Esegui("r = 11");
  EXPECT_EQ(Testo("Estratto(id, r, p)"), "0");
  Esegui("r = 40000");
  EXPECT_TRUE(Vuoto("Estratto(id, r, p)")) << "a wheel beyond an Integer fails to convert";
  EXPECT_TRUE(UnicoAvviso().testo.starts_with("6- ")) << "overflow";
  Esegui("r = 1 : p = 6");
  EXPECT_TRUE(Vuoto("Estratto(id, r, p)"));
  EXPECT_TRUE(UnicoAvviso().testo.starts_with("9- "));
}

TEST_F(LibreriaArchivio, UnIndiceFuoriDallArchivioEErrore9ELoScriptProsegue) {
  for (std::string_view chiamata :
       {"Estratto(0, 1, 1)", "Estratto(8, 1, 1)", "Estratto(1, 1, 0)", "Estratto(1, 1, 6)", "Estratto(1, 13, 6)"}) {
    EXPECT_TRUE(Vuoto(chiamata)) << chiamata;
    const Avviso avviso = UnicoAvviso();
    EXPECT_EQ(avviso.titolo, "ClsFunctionsGeodoScript.Estratto") << chiamata;
    EXPECT_TRUE(avviso.testo.starts_with("9- ")) << avviso.testo << chiamata;
  }
  for (std::string_view funzione : {"DataEstrazione", "giorno", "Mese", "Anno", "IndiceAnnuale", "IndiceMensile"}) {
    EXPECT_TRUE(Vuoto(std::string(funzione) + "(8)")) << funzione;
    const Avviso avviso = UnicoAvviso();
    EXPECT_EQ(avviso.titolo, "ClsFunctionsGeodoScript." + std::string(funzione));
    EXPECT_TRUE(avviso.testo.starts_with("9- ")) << avviso.testo;
  }

  Esegui("Dim dopo\nSub Main\n  dopo = Estratto(99, 1, 1)\n  dopo = \"proseguito\"\nEnd Sub");
  ASSERT_TRUE(m_engine.ExecuteStatement(u"Main"));
  EXPECT_EQ(Testo("dopo"), "proseguito");
  EXPECT_EQ(UnicoAvviso().titolo, "ClsFunctionsGeodoScript.Estratto");
}

TEST_F(LibreriaArchivio, DateEIndiciDelleEstrazioni) {
  EXPECT_EQ(Testo("DataEstrazione(4)"), "04/01/2005");
  EXPECT_EQ(Testo("DataEstrazione(4, True)"), "04/01/05");
  EXPECT_EQ(Testo("giorno(4) & \"-\" & Mese(4) & \"-\" & Anno(4)"), "4-1-2005");
  EXPECT_EQ(Testo("TypeName(giorno(4)) & TypeName(Mese(4)) & TypeName(Anno(4))"), "IntegerIntegerInteger");
  EXPECT_EQ(Testo("IndiceAnnuale(3) & \" \" & IndiceAnnuale(4)"), "153 1");

  std::string mensili;
  for (int id = 1; id <= 7; ++id) mensili += Testo("IndiceMensile(" + std::to_string(id) + ")");
  EXPECT_EQ(mensili, "1121231") << "December 2003 and December 2004 are different months";
  EXPECT_EQ(Testo("TypeName(IndiceMensile(1))"), "Integer");

  EXPECT_EQ(Testo("EstrazioniArchivio()"), "7");
  EXPECT_EQ(Testo("TypeName(EstrazioniArchivio())"), "Long");
  EXPECT_EQ(Testo("isIdEstrValido(0) & isIdEstrValido(1) & isIdEstrValido(7) & isIdEstrValido(8)"),
            "FalsoVeroVeroFalso");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaArchivio, DataEstrToIdEstrTrovaSoloLaDataEsatta) {
  EXPECT_EQ(Testo("DataEstrToIdEstr(\"06/01/2005\")"), "5");
  EXPECT_EQ(Testo("DataEstrToIdEstr(\"6/1/2005\")"), "5") << "no zero-padding required";
  EXPECT_EQ(Testo("DataEstrToIdEstr(\"20/12/2003\")"), "1");
  EXPECT_EQ(Testo("DataEstrToIdEstr(\"01/02/2005\")"), "7");
  EXPECT_EQ(Testo("DataEstrToIdEstr(\"07/01/2005\")"), "0") << "between two draws";
  EXPECT_EQ(Testo("DataEstrToIdEstr(\"01/01/1990\")"), "0");
  EXPECT_EQ(Testo("DataEstrToIdEstr(\"01/01/2030\")"), "0");
  EXPECT_EQ(Testo("TypeName(DataEstrToIdEstr(\"06/01/2005\"))"), "Long");
  EXPECT_TRUE(m_ospite.avvisi.empty());

  for (std::string_view testo : {"12/2020", "1/2/3/4", "06-01-2005"}) {
    EXPECT_EQ(Testo("DataEstrToIdEstr(\"" + std::string(testo) + "\")"), "0") << testo;
    const Avviso avviso = UnicoAvviso();
    EXPECT_EQ(avviso.tipo, TipoAvviso::Esclamativo);
    EXPECT_EQ(avviso.testo, "Data non corretta scrivere la data in formato GG/MM/AAAA " + std::string(testo));
  }
}

TEST_F(LibreriaArchivio, GetEstrazioneCompletaRiempieLaVariabileDelloScript) {
  Esegui("Dim a, esito\nesito = GetEstrazioneCompleta(2, a)");
  EXPECT_EQ(Testo("esito"), "Vero");
  EXPECT_EQ(Testo("LBound(a, 1) & \"..\" & UBound(a, 1) & \" \" & LBound(a, 2) & \"..\" & UBound(a, 2)"), "1..11 1..5");
  EXPECT_EQ(Testo("a(1, 1) & \" \" & a(1, 5) & \" \" & a(4, 2) & \" \" & a(11, 1)"), "8 12 30 78");

  Esegui("Dim b\nb = 7\nesito = GetEstrazioneCompleta(8, b)");
  EXPECT_EQ(Testo("esito"), "Falso");
  EXPECT_EQ(Testo("b"), "7") << "left as it was";
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaArchivio, UnaRuotaDiUnEstrazioneNumeroPerNumero) {
  EXPECT_EQ(Testo("Posizione(2, BA_, 10) & Posizione(2, NZ_, 82) & Posizione(2, BA_, 13)"), "350");
  EXPECT_EQ(Testo("IsNumeroPresenteInEstrazione(2, CA_, 15) & IsNumeroPresenteInEstrazione(2, CA_, 8) & "
                  "IsNumeroPresenteInEstrazione(2, TU_, 8) & IsNumeroPresenteInEstrazione(2, TU_, 90)"),
            "VeroFalsoVeroFalso");
  EXPECT_EQ(Testo("SommaEstratti(2, BA_) & \" \" & SommaEstratti(2, NZ_)"), "50 400");
  Esegui("Dim a, esito\nesito = GetArrayNumeriRuota(2, VE_, a)");
  EXPECT_EQ(Testo("esito & \" \" & LBound(a) & \"..\" & UBound(a) & \" \" & a(1) & \" \" & a(5)"), "Vero 1..5 71 75");
  EXPECT_TRUE(m_ospite.avvisi.empty());

  EXPECT_TRUE(Vuoto("Posizione(2, TU_, 8)"));
  EXPECT_EQ(UnicoAvviso().titolo, "ClsFunctionsGeodoScript.Posizione") << "all the wheels are no single wheel";
  EXPECT_TRUE(Vuoto("SommaEstratti(9, BA_)"));
  EXPECT_EQ(UnicoAvviso().testo, "9- Indice non incluso nell'intervallo");
}

TEST_F(Libreria, LeVerificheDiNumeriRuoteESortiNonSbaglianoMai) {
  Avvia(TabellaEstrazioni());
  EXPECT_EQ(Testo("isNumeroValidoLotto(1) & isNumeroValidoLotto(90) & isNumeroValidoLotto(\"45\")"), "VeroVeroVero");
  EXPECT_EQ(Testo("isNumeroValidoLotto(0) & isNumeroValidoLotto(91) & isNumeroValidoLotto(2.5) & "
                  "isNumeroValidoLotto(\"x\")"),
            "FalsoFalsoFalsoFalso");
  EXPECT_EQ(
      Testo("isRuotaValidaLotto(BA_) & isRuotaValidaLotto(TU_) & isRuotaValidaLotto(NZ_) & isRuotaValidaLotto(13)"),
      "VeroVeroVeroFalso");
  EXPECT_EQ(Testo("isSorteValidaLotto(AMBATA_) & isSorteValidaLotto(EDET5_) & isSorteValidaLotto(0) & "
                  "isSorteValidaLotto(11)"),
            "VeroVeroFalsoFalso");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(Libreria, SenzaArchivioNessunIdEstrEValido) {
  Avvia(TabellaEstrazioni());
  EXPECT_EQ(Testo("isIdEstrValido(1)"), "Falso");
  EXPECT_TRUE(m_ospite.avvisi.empty());
  EXPECT_TRUE(Vuoto("Estratto(1, 1, 1)"));
  const Avviso avviso = UnicoAvviso();
  EXPECT_EQ(avviso.titolo, "ClsFunctionsGeodoScript.Estratto");
  EXPECT_TRUE(avviso.testo.starts_with("5- ")) << avviso.testo;
}

class LibreriaAritmetica : public Libreria {
 protected:
  void SetUp() override { Avvia(TabellaEstrazioni()); }
};

TEST_F(LibreriaAritmetica, INumeriSonoRidottiSoloDoveLaRegolaLoVuole) {
  EXPECT_EQ(Testo("Distanza(91, 5)"), "4");
  EXPECT_EQ(Testo("Distanza(181, 5)"), "4") << "181 is 1 on the circle";
  EXPECT_EQ(Testo("Distanza(4, 4)"), "90");
  EXPECT_EQ(Testo("Gemello(91)"), "0");
  EXPECT_EQ(Testo("Gemello(99)"), "-1") << "99 taken as it is, not as 9";
  EXPECT_EQ(Testo("TypeName(Gemello(99))"), "Integer");

  EXPECT_EQ(Testo("Cadenza(95)"), "5");
  EXPECT_EQ(Testo("Figura(0)"), "9") << "0 is 90 on the circle";
  EXPECT_EQ(Testo("vert(0)"), "9");
  EXPECT_EQ(Testo("DiametraleD(95)"), "90");
  EXPECT_EQ(Testo("Diametrale(136)"), "1");
  EXPECT_EQ(Testo("Decina(91)"), "0");
  EXPECT_EQ(Testo("DecinaNaturale(111)"), "2");
  EXPECT_EQ(Testo("DecinaCabalistica(100)"), "2");
  EXPECT_EQ(Testo("ControFigura(127)"), "4");
  EXPECT_EQ(Testo("Radicale(100)"), "1");

  EXPECT_EQ(Testo("DiffCiclometrica(200, 10)"), "190") << "a positive difference is not reduced";
  EXPECT_EQ(Testo("DiffCiclometrica(5, 10)"), "85");
  EXPECT_EQ(Testo("DiffCiclometricaX(1, 3, 10)"), "8");
  EXPECT_EQ(Testo("ComplAdX(95, 90)"), "90") << "95 not reduced to 5";
  EXPECT_EQ(Testo("ComplAdX(30, 0)"), "60");

  EXPECT_EQ(Testo("pari(92) & \" \" & pari(91) & \" \" & dispari(91)"), "-1 0 -1");
  EXPECT_EQ(Testo("Primo(92) & \" \" & Primo(91)"), "-1 0");
  EXPECT_EQ(Testo("TypeName(pari(2))"), "Integer");
  EXPECT_EQ(Testo("Trasposizione(12) & \" \" & Trasposizione(39)"), "21 3");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaAritmetica, LeRuoteAbbinateRestanoNellaNumerazioneDegliScript) {
  EXPECT_EQ(Testo("RuotaGemella(BA_) & \" \" & RuotaGemella(NZ_) & \" \" & RuotaGemella(TU_)"), "10 12 11");
  EXPECT_EQ(Testo("RuotaDiametrale(MI_) & \" \" & RuotaDiametrale(NZ_)"), "10 12");
}

TEST_F(LibreriaAritmetica, PiramideLeggeUnArrayOUnNumero) {
  EXPECT_EQ(Testo("Piramide(Array(12, 34))"), "82");
  EXPECT_EQ(Testo("Piramide(Array(102, 124))"), "82") << "each number reduced first";
  EXPECT_EQ(Testo("Piramide(12)"), "12");
  Esegui("Dim p(2)\np(1) = 12\np(2) = 34");
  EXPECT_EQ(Testo("Piramide(p)"), "82") << "the unused element 0 is no number";
}

TEST_F(LibreriaAritmetica, LaRiduzioneAvvisaDiUnNumeroTroppoGrande) {
  EXPECT_EQ(Testo("Fuori90(91) & \" \" & Fuori90(0) & \" \" & Fuori90(-1)"), "1 90 89");
  EXPECT_EQ(Testo("FuoriX(50, 49) & \" \" & FuoriX(0, 49)"), "1 49");
  EXPECT_EQ(Testo("Fuori49(50) & \" \" & Fuori45(46) & \" \" & Fuori42(43)"), "1 1 1");
  EXPECT_EQ(Testo("TypeName(Fuori90(91))"), "Integer");
  EXPECT_TRUE(m_ospite.avvisi.empty());

  EXPECT_EQ(Testo("FuoriX(1E+20, 49)"), "49");
  Avviso avviso = UnicoAvviso();
  EXPECT_EQ(avviso.tipo, TipoAvviso::Esclamativo);
  EXPECT_EQ(avviso.testo, "Numero 1E+20 troppo grande la funzione tornera 49");
  EXPECT_EQ(Testo("Fuori90(40000)"), "90");
  EXPECT_EQ(UnicoAvviso().testo, "Numero 40000 troppo grande la funzione tornera 90");
}

class LibreriaRitardi : public Libreria {};

TEST_F(LibreriaRitardi, IlRitardoContaDallaFineAllUltimaVincita) {
  Avvia(Archivio()
            .Estrazione({{BA, {7, 1, 2, 3, 4}}})
            .Estrazione()
            .Estrazione()
            .Estrazione({{BA, {1, 2, 3, 4, 7}}, {NZ, {50, 1, 2, 3, 4}}})
            .Estrazione()
            .Estrazione()
            .Tabella());
  EXPECT_EQ(Testo("EstrattoRitardo(BA_, 7)"), "2") << "the whole archive by default";
  EXPECT_EQ(Testo("EstrattoRitardo(BA_, 7, 1, 4)"), "0") << "a win in the last draw";
  EXPECT_EQ(Testo("EstrattoRitardo(BA_, 7, , 3)"), "2");
  EXPECT_EQ(Testo("EstrattoRitardo(BA_, 7, 2, 3)"), "2") << "never won in the range";
  EXPECT_EQ(Testo("EstrattoRitardo(BA_, 97)"), "2") << "97 is 7 on the circle";
  EXPECT_EQ(Testo("EstrattoRitardo(NZ_, 50)"), "2");
  EXPECT_EQ(Testo("EstrattoRitardo(TU_, 50)"), "2");
  EXPECT_EQ(Testo("EstrattoRitardo(CA_, 50)"), "6");
  EXPECT_EQ(Testo("TypeName(EstrattoRitardo(BA_, 7))"), "Long");

  Esegui("Dim p(5)\np(1) = True");
  EXPECT_EQ(Testo("EstrattoRitardo(BA_, 7, , , p)"), "5") << "7 was fifth in draw 4";
  EXPECT_EQ(Testo("RitardoCombinazione(Array(BA_), Array(7), 1, 6, p)"), "5");
  EXPECT_EQ(Testo("RitardoCombinazione(Array(BA_), Array(7), 1, 6, p, 2)"), "5") << "never won in 2..6";
  EXPECT_EQ(Testo("RitardoCombinazione(Array(BA_), 7, 1, 6)"), "2") << "a single number for the array";
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaRitardi, UnAmboSuDueRuoteDellaStessaEstrazioneNonVince) {
  Avvia(Archivio()
            .Estrazione({{BA, {10, 20, 30, 1, 2}}})
            .Estrazione({{BA, {10, 1, 2, 3, 4}}, {CA, {1, 2, 3, 4, 20}}})
            .Estrazione({{FI, {10, 20, 1, 2, 3}}})
            .Estrazione()
            .Tabella());
  EXPECT_EQ(Testo("AmboRitardo(TU_, 10, 20)"), "1");
  EXPECT_EQ(Testo("AmboRitardo(TU_, 10, 20, 1, 2)"), "1") << "BA and CA of draw 2 are not added together";
  EXPECT_EQ(Testo("AmboRitardo(BA_, 10, 20)"), "3");
  EXPECT_EQ(Testo("RitardoCombinazione(Array(BA_, CA_), Array(10, 20, 30), AMBO_, 2)"), "1");
  EXPECT_EQ(Testo("RitardoCombinazione(Array(BA_, CA_), Array(10, 20, 30), TERNO_, 4)"), "3");
  EXPECT_EQ(Testo("TypeName(AmboRitardo(BA_, 10, 20))"), "Long");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaRitardi, IlRitardoSincronoAspettaLaVincitaSuLivelloRuoteInsieme) {
  Avvia(Archivio()
            .Estrazione({{BA, {10, 20, 1, 2, 3}}, {CA, {10, 20, 1, 2, 3}}})
            .Estrazione({{BA, {10, 20, 1, 2, 3}}})
            .Estrazione()
            .Estrazione({{CA, {10, 20, 4, 5, 6}}, {FI, {10, 5, 6, 7, 8}}})
            .Estrazione()
            .Tabella());
  Esegui("Dim tre\ntre = Array(BA_, CA_, FI_)");
  EXPECT_EQ(Testo("RitSincDiLiv(tre, Array(10, 20), AMBO_, 1)"), "1");
  EXPECT_EQ(Testo("RitardoCombinazione(tre, Array(10, 20), AMBO_, 5)"), "1") << "level 1 is the plain delay";
  EXPECT_EQ(Testo("RitSincDiLiv(tre, Array(10, 20), AMBO_, 2)"), "4") << "Firenze has one number only in draw 4";
  EXPECT_EQ(Testo("RitSincDiLiv(tre, Array(10, 20), AMBATA_, 2)"), "1");
  EXPECT_EQ(Testo("RitSincDiLiv(tre, Array(10, 20), AMBO_, 3)"), "5");
  EXPECT_EQ(Testo("RitSincDiLiv(tre, Array(10, 20), AMBO_, 2, 1, 1)"), "0");
  EXPECT_EQ(Testo("RitSincDiLiv(tre, Array(10, 20), AMBO_, 2, 2)"), "4") << "never in 2..5";
  EXPECT_EQ(Testo("RitSincDiLiv(TU_, Array(10, 20), AMBO_, 2)"), "4");
  EXPECT_EQ(Testo("RitSincDiLiv(TU_, Array(10, 20), AMBO_, 11)"), "5");
  EXPECT_EQ(Testo("TypeName(RitSincDiLiv(tre, Array(10, 20), AMBO_, 1))"), "Long");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaRitardi, GliArgomentiSbagliatiSonoErrore5ConUnaSpiegazione) {
  Avvia(Archivio().Estrazione().Estrazione().Estrazione().Tabella());
  Esegui("Dim vuoto()\nDim corto(2)");
  const struct {
    std::string_view chiamata;
    std::string_view funzione;
    std::string_view spiegazione;
  } kCasi[] = {
      {"RitardoCombinazione(Array(BA_), Array(7), 0, 3)", "RitardoCombinazione", "Sorte"},
      {"RitardoCombinazione(Array(BA_), Array(7), 6, 3)", "RitardoCombinazione", "Sorte"},
      {"RitardoCombinazione(Array(BA_), Array(), 1, 3)", "RitardoCombinazione", "numero"},
      {"RitardoCombinazione(Array(BA_), vuoto, 1, 3)", "RitardoCombinazione", "numero"},
      {"RitardoCombinazione(Array(), Array(7), 1, 3)", "RitardoCombinazione", "ruota"},
      {"RitardoCombinazione(Array(BA_, 13), Array(7), 1, 3)", "RitardoCombinazione", "Ruota"},
      {"RitardoCombinazione(Array(BA_), Array(7), 1, 4)", "RitardoCombinazione", "Fine"},
      {"RitardoCombinazione(Array(BA_), Array(7), 1, 0)", "RitardoCombinazione", "Fine"},
      {"RitardoCombinazione(Array(BA_), Array(7), 1, 3, , 0)", "RitardoCombinazione", "Inizio"},
      {"EstrattoRitardo(0, 7)", "EstrattoRitardo", "Ruota"},
      {"EstrattoRitardo(BA_, 7, 4)", "EstrattoRitardo", "Inizio"},
      {"EstrattoRitardo(BA_, 7, , , True)", "EstrattoRitardo", "posizioni"},
      {"EstrattoRitardo(BA_, 7, , , corto)", "EstrattoRitardo", "posizioni"},
      {"AmboRitardo(BA_, 7, 8, 1, 4)", "AmboRitardo", "Fine"},
      {"RitSincDiLiv(Array(BA_, CA_), Array(1, 2), AMBO_, 3)", "RitSincDiLiv", "Livello"},
      {"RitSincDiLiv(Array(BA_, BA_), Array(1, 2), AMBO_, 2)", "RitSincDiLiv", "Livello"},
      {"RitSincDiLiv(TU_, Array(1, 2), AMBO_, 12)", "RitSincDiLiv", "Livello"},
      {"RitSincDiLiv(BA_, Array(1, 2), AMBO_, 0)", "RitSincDiLiv", "Livello"},
      {"RitSincDiLiv(BA_, Array(1, 2), 6, 1)", "RitSincDiLiv", "Sorte"},
      {"RitSincDiLiv(BA_, Array(1, 2), AMBO_, 1, 1, 4)", "RitSincDiLiv", "Fine"},
  };
  for (const auto& caso : kCasi) {
    EXPECT_TRUE(Vuoto(caso.chiamata)) << caso.chiamata;
    AvvisoErrore5(caso.funzione, caso.spiegazione, caso.chiamata);
  }
}

TEST_F(Libreria, SullArchivioRealeIlCinquantatreSuVeneziaAveva182EstrazioniDiRitardo) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  Avvia(test::ArchivioReale());
  const int uscita = m_tab.UltimaEstrazioneEntro(GruppoData{0, 9, 2, 2005});
  ASSERT_GT(uscita, 1);
  const std::string id = std::to_string(uscita);
  EXPECT_EQ(Testo("DataEstrazione(" + id + ")"), "09/02/2005");
  EXPECT_EQ(Testo("DataEstrToIdEstr(\"09/02/2005\")"), id);
  EXPECT_EQ(Testo("Estratto(" + id + ", VE_, 1)"), "53");
  EXPECT_EQ(Testo("EstrattoRitardo(10, 53, 1, " + std::to_string(uscita - 1) + ")"), "182");
  EXPECT_EQ(Testo("EstrattoRitardo(VE_, 53, , " + id + ")"), "0");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

}  // namespace
}  // namespace lottolab::script
