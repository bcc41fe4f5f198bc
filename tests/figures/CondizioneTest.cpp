#include <gtest/gtest.h>

#include <fmt/format.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "figures/Condizione.h"
#include "stats/ClsFunctions.h"

namespace lottolab::figures {
namespace {

using stats::ClsFunctions;

struct Caso {
  std::string_view testo;
  bool vale;
};

// Index 1..n without captions, after the editor's template, whose caption "2" must never be found.
std::vector<ClsVertice> VerticiNumerati(int n) {
  std::vector<ClsVertice> vertici{{.Index = 0, .Caption = "2"}};
  for (int i = 1; i <= n; ++i) vertici.push_back({.Index = static_cast<int16_t>(i), .Caption = ""});
  return vertici;
}

// The numbers side by side on wheel 1, positions 1, 2, ...
FiguraPiazzata SuUnaRuota(std::initializer_list<int> numeri) {
  FiguraPiazzata figura;
  for (int numero : numeri)
    figura.vertici.push_back({.ruota = 1, .posizione = static_cast<int>(figura.vertici.size()) + 1, .numero = numero});
  return figura;
}

void Verifica(std::initializer_list<Caso> casi, const FiguraPiazzata& figura, const std::vector<ClsVertice>& vertici) {
  for (const Caso& caso : casi) {
    auto compilata = Condizione::Compila(caso.testo, vertici);
    if (!compilata) {
      ADD_FAILURE() << caso.testo << ": " << compilata.Errore().messaggio << " (colonna " << compilata.Errore().colonna
                    << ")";
      continue;
    }
    const Condizione& condizione = *compilata;
    EXPECT_EQ(condizione.Vale(figura), caso.vale) << caso.testo;
    EXPECT_EQ(condizione.Testo(), caso.testo);
  }
}

TEST(Condizione, VerticiPerDidascaliaSenzaMaiuscoleOPerIndex) {
  const std::vector<ClsVertice> vertici = {{.Index = 0, .Caption = "A"},  {.Index = 3, .Caption = "A"},
                                           {.Index = 5, .Caption = "b "}, {.Index = 7, .Caption = ""},
                                           {.Index = 9, .Caption = "3"},  {.Index = 4, .Caption = "È"}};
  FiguraPiazzata figura = SuUnaRuota({45, 90, 46, 12, 8});
  Verifica({{"[a] = 45", true},
            {"[ B ] = 90", true},
            {"[7] = 46", true},
            {"[3] = 12", true},  // the caption "3" comes before the Index 3
            {"[9] = 12", true},
            {"[È] = 8", true},
            {"[A] = [3]", false}},
           figura, vertici);
}

TEST(Condizione, OperatoriEPrecedenze) {
  const auto vertici = VerticiNumerati(3);
  Verifica({{"[1] = [2]", false},
            {"[1] - 1 = [2]", true},
            {"[1] + 1 = [3]", true},
            {"[1] + 1 = [2]", false},
            {"[1] = [2] Or [1] = [3]", false},
            {"[2] < [1]", true},
            {"[1] <= 10", true},
            {"[1] >= 11", false},
            {"[1] <> [2]", true},
            {"[1] > [3]", false},
            {"1 = 1 Or 1 = 2 And 1 = 2", true},
            {"(1 = 1 Or 1 = 2) And 1 = 2", false},
            {"Not 1 = 2", true},
            {"Not 1 = 1 Or 1 = 1", true},
            {"1 = 1 aNd NOT 1 = 2", true},
            {"2 + 3 * 4 = 14", true},
            {"(2 + 3) * 4 = 20", true},
            {"10 - 3 - 2 = 5", true},
            {"-[1] * 2 = -20", true},
            {"- 2 * - 3 = 6", true},
            {"-(2 - 5) = 3", true},
            {"5 - -4 = 9", true},
            {"(1 = 1) = -1 And (1 = 2) = 0", true},
            {"(Not 2) = -3 And (6 And 3) = 2 And (6 Or 3) = 7", true},
            {"5", true},
            {"[1] - 10", false}},
           SuUnaRuota({10, 9, 11}), vertici);
  Verifica({{"[1] = [2] Or [1] = [3]", true}, {"[1] = [3] And [1] - 1 = [2]", false}}, SuUnaRuota({10, 7, 10}),
           vertici);
}

TEST(Condizione, FunzioniDeiNumeriConLeRegoleDiClsFunctions) {
  const auto vertici = VerticiNumerati(3);
  Verifica({{"Cadenza([2]) = 0 And Cadenza(-7) = 7 And Cadenza(45) = 5", true},
            {"Decina([2]) = 9 And Decina(5) = 0 And Decina(45) = 4", true},
            {"DecinaCabalistica([2]) = 1 And DecinaCabalistica(10) = 2 And DecinaCabalistica(89) = 9", true},
            {"Figura(89) = 8 And Figura([2]) = 9 And Figura(9) = 9", true},
            {"[3] = (diametrale([1]))", true},
            {"Diametrale(45) = 90 And DIAMETRALE([2]) = 45 And Diametrale(1) = 46", true},
            {"DiffCiclometrica(7, 7) = 90 And DiffCiclometrica(1, 90) = 1 And DiffCiclometrica(1, 47) = 44", true},
            {"DiffCiclometrica([1], [3]) = 45", true},
            {"SommaCiclometrica(45, 45) = 90 And SommaCiclometrica(80, 20) = 10", true},
            {"SommaCiclometrica(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14) = 15", true},
            {"SommaCiclometricaGlob() = 47", true},
            {"Vertibili(33, 39) And Vertibili(39, 33) And Vertibili(9, 90) And Vertibili([2], 9)", true},
            {"Vertibili(12, 21) And Vertibili(5, 50)", true},
            {"Vertibili(33, 33) Or Vertibili(12, 12)", false}},
           SuUnaRuota({46, 90, 1}), vertici);
}

TEST(Condizione, FunzioniSullaFiguraPiazzata) {
  const auto vertici = VerticiNumerati(4);
  const FiguraPiazzata figura{{{.ruota = 1, .posizione = 2, .numero = 45, .chiusura = true},
                               {.ruota = 1, .posizione = 5, .numero = 45},
                               {.ruota = 4, .posizione = 1, .numero = 54, .chiusura = true},
                               {.ruota = 1, .posizione = 3, .numero = 18}}};
  Verifica({{"PosizioneVertice([3]) = 1 And PosizioneVertice( [2] ) = 5", true},
            {"PuntiSu(1) = 3 And PuntiSu(4) = 1 And PuntiSu(11) = 0", true},
            {"RuotaUnica()", false},
            {"RuotaUnica", false},
            {"ContaPresenze(45) >= 2 And ContaPresenze(54) = 1 And ContaPresenze(90) = 0", true},
            {"ContaChiusure(45) = 1 And ContaChiusure(54) = 1 And ContaChiusure(18) = 0", true},
            {"QuantitaCadenze() = 3", true},
            {"QuantitaFigure() = 1", true},  // 45, 54 and 18 all have figure 9
            {"SommaCiclometricaGlob() = 72", true}},
           figura, vertici);
  Verifica({{"RuotaUnica()", true}, {"Cadenza([A]) = Cadenza([B])", true}, {"DiffCiclometrica([A], [B]) = 5", false}},
           SuUnaRuota({12, 72}), {{.Index = 1, .Caption = "A"}, {.Index = 2, .Caption = "B"}});
}

// The functions answer small numbers from tables; either side of their edges must agree with
// ClsFunctions.
TEST(Condizione, FunzioniOltreLeTabelle) {
  const auto vertici = VerticiNumerati(0);
  const FiguraPiazzata vuota;
  for (int n : {-1000, -513, -512, -511, -7, 0, 1, 90, 91, 999, 1023, 1024, 1025, 123456}) {
    const std::string testo = fmt::format(
        "Cadenza({0}) = {1} And Decina({0}) = {2} And DecinaCabalistica({0}) = {3} And Figura({0}) = {4} And "
        "Diametrale({0}) = {5} And Vertibili({0}, {6}) And SommaCiclometrica({0}, 0) = {7}",
        n, ClsFunctions::Cadenza(n), ClsFunctions::Decina(n), ClsFunctions::DecinaCabalistica(n),
        ClsFunctions::Figura(n), ClsFunctions::Diametrale(n), ClsFunctions::vert(n), ClsFunctions::Fuori90(n));
    auto compilata = Condizione::Compila(testo, vertici);
    ASSERT_TRUE(compilata) << testo;
    EXPECT_TRUE(compilata->Vale(vuota)) << testo;
  }
}

TEST(Condizione, TestiRifiutatiConLaColonnaDelProblema) {
  const std::vector<ClsVertice> vertici = {{.Index = 0, .Caption = "Z"},
                                           {.Index = 1, .Caption = "A"},
                                           {.Index = 2, .Caption = "B"},
                                           {.Index = 3, .Caption = "È"}};
  struct Rifiuto {
    std::string testo;
    size_t colonna;
    std::string_view nel_messaggio;
  };
  const std::string annidato = std::string(150, '(') + "1" + std::string(150, ')');
  std::string pila_piena = "1";
  for (int i = 0; i < 70; ++i) pila_piena = "1 + (" + pila_piena + ")";
  for (const Rifiuto& caso : std::initializer_list<Rifiuto>{
           {"[A] = = [B]", 7, "'='"},
           {"[A] = [Z]", 7, "[Z]"},
           {"[È] = [Y]", 7, "[Y]"},
           {"[ ] = 1", 1, "nome del vertice"},
           {"[0] = 1", 1, "[0]"},
           {"[A] = [B", 9, "']'"},
           {"([A] = [B]", 11, "')'"},
           {"Cadenza([A]", 12, "')'"},
           {"", 1, "finito"},
           {"[A] = [B] = 1", 11, "And o Or"},
           {"[A] [B]", 5, "'[B]'"},
           {"[A] = 1)", 8, "')'"},
           {"[A] = 1.5", 8, "'.'"},
           {"[A] # 1", 5, "'#'"},
           {"[A] = Not [B]", 7, "'Not'"},
           {"Foo([A]) = 1", 1, "Foo"},
           {"Cadenza = 1", 9, "'('"},
           {"Cadenza([A], [B]) = 1", 12, "Cadenza vuole un argomento"},
           {"DiffCiclometrica([A]) = 1", 21, "DiffCiclometrica vuole 2 argomenti"},
           {"SommaCiclometrica(5) = 5", 20, "almeno 2"},
           {"RuotaUnica(1)", 12, "non vuole argomenti"},
           {"PosizioneVertice(3) = 1", 18, "vertice"},
           {"PosizioneVertice([A] + 1) = 1", 22, "')'"},
           {"99999999999999999999 = 1", 1, "troppo grande"},
           {annidato, 101, "annidata"},
           {pila_piena, 321, "complessa"},
       }) {
    auto compilata = Condizione::Compila(caso.testo, vertici);
    ASSERT_FALSE(compilata) << caso.testo;
    const ErroreSintassi& errore = compilata.Errore();
    EXPECT_TRUE(errore.messaggio.starts_with("Errore di sintassi")) << errore.messaggio;
    EXPECT_NE(errore.messaggio.find(caso.nel_messaggio), std::string::npos) << errore.messaggio;
    EXPECT_EQ(errore.colonna, caso.colonna) << caso.testo << ": " << errore.messaggio;
  }
}

TEST(Condizione, AnnidamentiProfondiMaAmmessi) {
  std::string somma = "1";
  for (int i = 0; i < 40; ++i) somma = "1 + (" + somma + ")";
  const std::string parentesi = std::string(60, '(') + "[1]" + std::string(60, ')') + " = 7";
  Verifica({{somma + " = 41", true}, {parentesi, true}, {"Not Not Not Not 1 = 1", true}}, SuUnaRuota({7}),
           VerticiNumerati(1));
}

// Texts as a hostile file or a careless paste brings them: each is refused with a message, or
// compiles and evaluates to some answer, and nothing crashes or runs long.
TEST(Condizione, TestiOstiliRifiutatiOValutatiSenzaDanni) {
  const auto vertici = VerticiNumerati(2);
  auto rifiutato = [&](const std::string& testo, std::string_view nel_messaggio, size_t colonna) {
    auto compilata = Condizione::Compila(testo, vertici);
    ASSERT_FALSE(compilata) << testo.substr(0, 40);
    const ErroreSintassi& errore = compilata.Errore();
    EXPECT_NE(errore.messaggio.find(nel_messaggio), std::string::npos) << errore.messaggio;
    EXPECT_EQ(errore.colonna, colonna) << errore.messaggio;
  };
  rifiutato(std::string(100'000, '('), "lunga 100000 caratteri, al massimo 500", 501);
  std::string somme;
  for (int i = 0; i < 1'000'000; ++i) somme += "1+";
  rifiutato(somme + "1", "lunga 2000001 caratteri", 501);
  std::string accentate;
  for (int i = 0; i < 250; ++i) accentate += "è";
  rifiutato(accentate + std::string(251, 'x'), "lunga 501 caratteri", 501);
  std::string negazioni;
  for (int i = 0; i < 120; ++i) negazioni += "Not ";
  rifiutato(negazioni + "1", "annidata", 397);  // the hundredth Not
  rifiutato(std::string(240, '-') + "1", "annidata", 100);
  rifiutato("Cadenza(" + std::string(200, '(') + "1" + std::string(200, ')') + ")", "annidata", 108);

  const std::string estremi[] = {"9223372036854775807", "(-9223372036854775807 - 1)", "0", "[1]",
                                 "9223372036854775807 * 9223372036854775807"};
  const FiguraPiazzata figura = SuUnaRuota({90, 1});
  for (const std::string& x : estremi) {
    const std::string testi[] = {
        fmt::format("Cadenza({0}) + Decina({0}) + DecinaCabalistica({0}) + Figura({0}) + Diametrale({0}) = 1", x),
        fmt::format("DiffCiclometrica({0}, -{0}) + SommaCiclometrica({0}, {0}, 1) = 1 Or Vertibili({0}, {0})", x),
        fmt::format("PuntiSu({0}) + ContaPresenze({0}) + ContaChiusure({0}) - {0} * {0} = 1", x),
        fmt::format("-(-{0}) < {0} And Not {0} Or {0} >= -{0}", x),
    };
    for (const std::string& testo : testi) {
      auto compilata = Condizione::Compila(testo, vertici);
      ASSERT_TRUE(compilata) << testo << ": " << compilata.Errore().messaggio;
      static_cast<void>(compilata->Vale(figura));
    }
  }
}

}  // namespace
}  // namespace lottolab::figures
