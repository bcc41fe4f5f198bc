#include "TabellaGioco.h"

#include <algorithm>

#include "DateEstrazione.h"

namespace lottolab {

int TabellaGioco::UltimaEstrazioneEntro(const GruppoData& data) const {
  auto dopo =
      std::upper_bound(m_estrazioni.begin(), m_estrazioni.end(), data,
                       [](const GruppoData& d, const EstrazioneGioco& e) { return ConfrontaDate(d, e.data) < 0; });
  return static_cast<int>(dopo - m_estrazioni.begin());
}

}  // namespace lottolab
