#include "Giochi.h"

namespace lottolab {

namespace {

constexpr FormatoGioco kFormati[] = {
    // Jolly, SuperStar.
    {Gioco::SuperEnalotto, "SE", "SuperEnalotto", 6, 90, 0, 2, 90, false},
    // Extra; Numero Oro, Doppio Oro, Gong.
    {Gioco::DieciELotto, "DL", "10eLotto", 20, 90, 15, 3, 90, false},
    {Gioco::DieciELottoOgniCinqueMinuti, "DL5", "10eLotto ogni 5 minuti", 20, 90, 15, 3, 90, true},
    // Numerone.
    {Gioco::WinForLife, "WF", "Win for Life", 10, 20, 0, 1, 20, true},
    {Gioco::Generico, "FT", "Archivio generico", 0, 0, 0, 0, 0, false},
};

constexpr std::string_view kNomiSpeciali[][kMassimoSpecialiGioco] = {
    {"Jolly", "SuperStar", ""}, {"Oro", "Doppio Oro", "Gong"}, {"Oro", "Doppio Oro", "Gong"}, {"Numerone", "", ""}, {}};

}  // namespace

std::string_view NomeNumeroSpeciale(Gioco gioco, int i) {
  if (i < 0 || i >= kMassimoSpecialiGioco) return {};
  return kNomiSpeciali[static_cast<int>(gioco)][i];
}

const FormatoGioco& Formato(Gioco gioco) { return kFormati[static_cast<int>(gioco)]; }

FormatoGioco FormatoGenerico(int numeri, int massimo) {
  FormatoGioco formato = Formato(Gioco::Generico);
  formato.numeri = numeri;
  formato.massimo = massimo;
  return formato;
}

}  // namespace lottolab
