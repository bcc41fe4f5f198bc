#include "Struttura.h"

namespace lottolab::figures {

namespace {

int16_t IdSullaCella(int16_t riga, int16_t colonna, std::span<const ClsVertice> vertici) {
  for (const ClsVertice& vertice : vertici)
    if (vertice.Index != 0 && vertice.Riga == riga && vertice.Colonna == colonna) return vertice.Index;
  return 0;
}

}  // namespace

int16_t GetIdVerticePartenzaFromCoordLinea(const ClsLineaCongiungimento& linea, std::span<const ClsVertice> vertici) {
  return IdSullaCella(linea.RigaInizio, linea.ColonnaInizio, vertici);
}

int16_t GetIdVerticeFineFromCoordLinea(const ClsLineaCongiungimento& linea, std::span<const ClsVertice> vertici) {
  return IdSullaCella(linea.RigaFine, linea.ColonnaFine, vertici);
}

}  // namespace lottolab::figures
