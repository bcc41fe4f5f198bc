#include "AreaDisegno.h"

namespace lottolab::script {

std::optional<Rgb> RgbDiColoreScript(int32_t colore) {
  // The palette of the text output (OutputHtml's ColoreHtml), so a colour reads the same everywhere.
  static constexpr Rgb kTavolozza[] = {0x000000, 0x0000FF, 0xFF0000, 0x008000, 0xFFFF00, 0xFFFFFF, 0x00FFFF, 0xFF00FF};
  if (colore < 0 || colore > 0xFFFFFF) return std::nullopt;
  if (colore < 8) return kTavolozza[colore];
  const auto valore = static_cast<uint32_t>(colore);
  return ((valore & 0xFF) << 16) | (valore & 0xFF00) | ((valore >> 16) & 0xFF);
}

TipoFiguraCerchio TipoDiFigura(size_t vertici) {
  if (vertici <= 2) return TipoFiguraCerchio::Diametro;
  if (vertici == 3) return TipoFiguraCerchio::Triangolo;
  if (vertici == 4) return TipoFiguraCerchio::Quadrilatero;
  return TipoFiguraCerchio::Poligono;
}

}  // namespace lottolab::script
