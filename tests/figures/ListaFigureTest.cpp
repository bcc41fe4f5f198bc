#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "figures/ListaFigure.h"

namespace lottolab::figures {
namespace {

ListaFigure Esempio() {
  ListaFigure lista;
  lista.struttura = "strutture/coppia.dat";
  lista.impronta = ImprontaFile("contenuto della struttura");
  lista.inizio = 7200;
  lista.fine = 7318;
  lista.ruote = {1, 10};
  lista.trovate = {{7318, {1}, {{7317, 1, 1, 45}, {7318, 1, 1, 12}}, {12, 45}},
                   {7310, {10, 11}, {{7309, 10, 5, 90}, {7310, 11, 1, 1}}, {1, 90}}};
  lista.esiti = {{1, 7325, {{2, 7320}, {1, 7321}}, true}, {2, 7325, {}, false}};
  return lista;
}

TEST(ListaFigure, ScrittaERilettaUguale) {
  const ListaFigure lista = Esempio();
  const std::string testo = TestoListaFigure(lista);
  EXPECT_TRUE(testo.starts_with("lottolab-efu 1\n[FIG]\n")) << testo;
  EXPECT_NE(testo.find("7318 | 1 | 7317.1.1.45 7318.1.1.12 | 12 45\n"), std::string::npos) << testo;
  EXPECT_NE(testo.find("2 | 7325 |  | aperta\n"), std::string::npos) << testo;
  auto letta = LeggiListaFigure(testo, "figure.efu");
  ASSERT_TRUE(letta.Riuscito()) << letta.Errore().testo;
  EXPECT_EQ(*letta, lista);
  EXPECT_NE(ImprontaFile("a"), ImprontaFile("b"));
}

TEST(ListaFigure, LeRigheNonConosciuteRestanoAlLoroPosto) {
  std::string testo = TestoListaFigure(Esempio());
  testo.insert(testo.find("[TRO]"), "autore=Mario\n");
  testo.insert(testo.find("[ESP]"), "# scelte a mano\n");
  testo += "[NOTE]\n1 da giocare sabato\r\n";
  auto letta = LeggiListaFigure(testo, "figure.efu");
  ASSERT_TRUE(letta.Riuscito()) << letta.Errore().testo;
  const std::string riscritta = TestoListaFigure(*letta);
  EXPECT_NE(riscritta.find("ruote=1 10\nautore=Mario\n[TRO]"), std::string::npos) << riscritta;
  EXPECT_NE(riscritta.find("12 45\n7310 | 10 11 | 7309.10.5.90 7310.11.1.1 | 1 90\n# scelte a mano\n[ESP]"),
            std::string::npos)
      << riscritta;
  EXPECT_TRUE(riscritta.ends_with("[NOTE]\n1 da giocare sabato\n")) << riscritta;
  EXPECT_EQ(*LeggiListaFigure(riscritta, "figure.efu"), *letta);
}

// Each damage is refused with the "non valido" message naming the file and the line.
TEST(ListaFigure, UnFileGuastoERifiutatoNominandoLaRiga) {
  const std::string buono = TestoListaFigure(Esempio());
  const auto riga_di = [&buono](std::string_view cercata) {
    return 1 + std::count(buono.begin(), buono.begin() + static_cast<long>(buono.find(cercata)), '\n');
  };
  const auto sostituito = [&buono](std::string_view vecchio, std::string_view nuovo) {
    std::string testo = buono;
    testo.replace(testo.find(vecchio), vecchio.size(), nuovo);
    return testo;
  };
  const struct {
    std::string testo;
    long riga;
    std::string_view motivo;
  } kGuasti[] = {
      {"[FIG]\nstruttura=x\n", 1, "manca \"lottolab-efu\""},
      {sostituito("lottolab-efu 1", "lottolab-efu 2"), 1, "versione più recente"},
      {sostituito("intervallo=7200-7318", "intervallo=7318-7200"), riga_di("intervallo="), "intervallo"},
      {sostituito("impronta=", "impronta=zz"), riga_di("impronta="), "impronta"},
      {sostituito("ruote=1 10", "ruote=1 13"), riga_di("ruote="), "ruote"},
      {sostituito("7317.1.1.45", "7317.1.6.45"), riga_di("7318 | 1 |"), "figura trovata"},
      {sostituito("7318 | 1 | ", "7318 | 1 "), riga_di("7318 | 1 |"), "figura trovata"},
      {sostituito("2@7320", "2-7320"), riga_di("1 | 7325"), "esito"},
      {sostituito("| chiusa", "| forse"), riga_di("1 | 7325"), "esito"},
  };
  for (const auto& guasto : kGuasti) {
    auto letta = LeggiListaFigure(guasto.testo, "figure.efu");
    ASSERT_FALSE(letta.Riuscito()) << guasto.testo;
    const std::string& messaggio = letta.Errore().testo;
    EXPECT_TRUE(messaggio.starts_with("File figure.efu non valido: riga " + std::to_string(guasto.riga) + ":"))
        << messaggio;
    EXPECT_NE(messaggio.find(guasto.motivo), std::string::npos) << messaggio;
  }
  auto senza_figura = LeggiListaFigure(sostituito("2 | 7325", "3 | 7325"), "figure.efu");
  ASSERT_FALSE(senza_figura.Riuscito());
  EXPECT_NE(senza_figura.Errore().testo.find("figura 3"), std::string::npos);
}

}  // namespace
}  // namespace lottolab::figures
