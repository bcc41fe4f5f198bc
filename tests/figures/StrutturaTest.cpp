#include <gtest/gtest.h>

#include "figures/Struttura.h"

namespace lottolab::figures {
namespace {

TEST(LineeCongiungimento, EachEndFindsTheVertexOnItsCellAndNeverTheTemplate) {
  ClsVertice vertici[3];
  vertici[0].Riga = vertici[1].Riga = 2;
  vertici[0].Colonna = vertici[1].Colonna = 3;
  vertici[1].Index = 4;
  vertici[2].Index = 7;
  vertici[2].Riga = 5;
  vertici[2].Colonna = 1;
  const ClsLineaCongiungimento linea{.Numero = 1, .RigaInizio = 2, .ColonnaInizio = 3, .RigaFine = 5, .ColonnaFine = 1};
  EXPECT_EQ(GetIdVerticePartenzaFromCoordLinea(linea, vertici), 4);
  EXPECT_EQ(GetIdVerticeFineFromCoordLinea(linea, vertici), 7);
  const ClsLineaCongiungimento vuota{.Numero = 2, .RigaInizio = 9, .ColonnaInizio = 9, .RigaFine = 2, .ColonnaFine = 3};
  EXPECT_EQ(GetIdVerticePartenzaFromCoordLinea(vuota, vertici), 0);
}

}  // namespace
}  // namespace lottolab::figures
