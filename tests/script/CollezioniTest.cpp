#include <gtest/gtest.h>

#include "LibreriaDiProva.h"
#include "stats/ArchiviDiProva.h"

namespace lottolab::script {
namespace {

class Collezioni : public Libreria {
 protected:
  void SetUp() override {
    Avvia(test::Archivio().Estrazione().Tabella());
    Esegui("Dim c, x, s\nSet c = GetNewCollection\n");
  }
};

TEST_F(Collezioni, ItemsAreNumberedFrom1AndFoundByKeyIgnoringCase) {
  Esegui("c.Add 10\nAddItemColl c, \"venti\", \"Due\"\nc.Add 5, \"tre\", 1\nc.Add 7, , , \"due\"\n");
  EXPECT_EQ(Testo("c.Count"), "4");
  EXPECT_EQ(Testo("c(1) & \",\" & c.Item(2) & \",\" & GetItemCollection(c, 3) & \",\" & c(4)"), "5,10,venti,7");
  EXPECT_EQ(Testo("c(\"DUE\") & c(\"Tre\")"), "venti5");
  Esegui("s = \"\"\nFor Each x In c : s = s & x & \";\" : Next\n");
  EXPECT_EQ(Testo("s"), "5;10;venti;7;");
  Esegui("c.Remove \"due\"\nc.Remove 1\n");
  EXPECT_EQ(Testo("c.Count & \":\" & c(1) & \",\" & c(2)"), "2:10,7");
  EXPECT_EQ(Testo("AddItemColl(c, 1, \"due\")"), "3") << "a removed key can be used again";

  EXPECT_EQ(Testo("c(4)"), "errore 5");
  EXPECT_EQ(Testo("c(\"nessuna\")"), "errore 5");
  Esegui("On Error Resume Next\nc.Add 0, \"DUE\"\ns = Err.Number\nOn Error GoTo 0\n");
  EXPECT_EQ(Testo("s & \" \" & c.Count"), "457 3");
  EXPECT_TRUE(Vuoto("AddItemColl(c, 0, \"due\")"));
  AvvisoErrore5("AddItemColl", "già nella collezione", "a key taken");
  EXPECT_TRUE(Vuoto("GetItemCollection(c, 0)"));
  AvvisoErrore5("GetItemCollection", "Nessun elemento", "index 0");
  EXPECT_TRUE(Vuoto("GetItemCollection(Array(1), 1)"));
  AvvisoErrore5("GetItemCollection", "GetNewCollection", "an array is no collection");
}

TEST_F(Collezioni, SortingIsStableKeepsTheKeysAndPutsNumbersBeforeTexts) {
  Esegui("c.Add 3, \"a\"\nc.Add \"b\"\nc.Add 1\nc.Add 3, \"d\"\nc.Add 2.5\n");
  Esegui("OrdinaItemCollection c\n");
  Esegui("s = \"\"\nFor Each x In c : s = s & x & \";\" : Next\n");
  EXPECT_EQ(Testo("s"), "1;2,5;3;3;b;");
  EXPECT_EQ(Testo("c(\"a\") & c(\"d\") & IsEmpty(c(3))"), "33Falso");
  Esegui("c.Remove \"a\"\n");
  EXPECT_EQ(Testo("c(3)"), "3") << "the 3 keyed d was after the one keyed a";
  Esegui("OrdinaItemCollection c, -1\n");
  EXPECT_EQ(Testo("c(1) & c(2) & c(4)"), "b31");
  EXPECT_TRUE(Vuoto("OrdinaItemCollection(c, 0)"));
  AvvisoErrore5("OrdinaItemCollection", "Ordine", "order 0");
}

TEST_F(Collezioni, ObjectsAreSortedByTheirProperty) {
  Esegui(
      "Class Figura\n Public Nome, Ritardo\nEnd Class\n"
      "Function Nuova(n, r)\n Set Nuova = New Figura : Nuova.Nome = n : Nuova.Ritardo = r\nEnd Function\n"
      "c.Add Nuova(\"uno\", 40)\nc.Add Nuova(\"due\", 7)\nc.Add Nuova(\"tre\", 112)\n");
  Esegui("OrdinaItemCollection c, -1, \"Ritardo\"\n");
  EXPECT_EQ(Testo("c(1).Nome & c(2).Nome & c(3).Nome"), "treunodue");
  EXPECT_TRUE(Vuoto("OrdinaItemCollection(c, 1, \"Colore\")"));
  AvvisoErrore5("OrdinaItemCollection", "Colore", "a missing property");
  EXPECT_TRUE(Vuoto("OrdinaItemCollection(c)"));
  AvvisoErrore5("OrdinaItemCollection", "indicare la proprietà", "objects and no property");
}

}  // namespace
}  // namespace lottolab::script
