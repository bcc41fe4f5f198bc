// The bytes as the text of a figure's condition, compiled against four vertices and evaluated on
// placed figures whose numbers reach both ends of 1..90.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "TestoFuzz.h"
#include "figures/Condizione.h"

namespace {

using namespace lottolab::figures;

std::vector<ClsVertice> Vertici() {
  std::vector<ClsVertice> vertici;
  const char* captions[] = {"A", "B", "C", ""};
  for (int16_t i = 0; i < 4; ++i) {
    ClsVertice v;
    v.Index = static_cast<int16_t>(i + 1);
    v.Caption = captions[i];
    v.Riga = i;
    v.Colonna = static_cast<int16_t>(i * 9 + 1);
    v.UsaPerChiusura = i % 2 == 0;
    vertici.push_back(v);
  }
  return vertici;
}

FiguraPiazzata Figura(int a, int b, int c, int d) {
  FiguraPiazzata figura;
  int numeri[] = {a, b, c, d};
  for (int i = 0; i < 4; ++i) figura.vertici.push_back({10 + i, i * 3 + 1, i + 1, numeri[i], i % 2 == 0});
  return figura;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const std::vector<ClsVertice> vertici = Vertici();
  auto compilata = Condizione::Compila(lottolab::fuzz::ComeTesto(data, size), vertici);
  if (compilata) {
    for (const FiguraPiazzata& figura : {Figura(1, 90, 45, 7), Figura(90, 90, 90, 90), Figura(1, 2, 3, 89)})
      (void)compilata->Vale(figura);
  }
  return 0;
}
