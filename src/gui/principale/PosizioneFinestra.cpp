#include "gui/principale/PosizioneFinestra.h"

#include <algorithm>

namespace lottolab::gui {

namespace {

// Below this the area is a laptop's: three quarters of it is too little for a table or a script.
constexpr QSize kAreaPiccola(1280, 720);

}  // namespace

QSize DimensioneNuovaFinestra(QSize voluta, QSize area) {
  const bool piccola = area.width() < kAreaPiccola.width() || area.height() < kAreaPiccola.height();
  const QSize minima = piccola ? area : area * 3 / 4;
  return voluta.expandedTo(minima).boundedTo(area);
}

QPoint PosizioneNuovaFinestra(const QRect& proposta, QSize area) {
  return {std::clamp(proposta.x(), 0, std::max(0, area.width() - proposta.width())),
          std::clamp(proposta.y(), 0, std::max(0, area.height() - proposta.height()))};
}

}  // namespace lottolab::gui
