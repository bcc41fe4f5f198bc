#include "Giochi.h"

namespace lottolab {

namespace {

constexpr FormatoGioco kFormati[] = {
    {Gioco::SuperEnalotto, "SE", "SuperEnalotto", 6, 90, 2, 90, false},
    {Gioco::DieciELotto, "DL", "10eLotto", 20, 90, 2, 90, false},
    {Gioco::DieciELottoOgniCinqueMinuti, "DL5", "10eLotto ogni 5 minuti", 20, 90, 2, 90, true},
    {Gioco::WinForLife, "WF", "Win for Life", 10, 20, 1, 20, true},
    {Gioco::Generico, "FT", "Archivio generico", 0, 0, 0, 0, false},
};

}  // namespace

const FormatoGioco& Formato(Gioco gioco) { return kFormati[static_cast<int>(gioco)]; }

FormatoGioco FormatoGenerico(int numeri, int massimo) {
  FormatoGioco formato = Formato(Gioco::Generico);
  formato.numeri = numeri;
  formato.massimo = massimo;
  return formato;
}

}  // namespace lottolab
