#include "TabellaGioco.h"

#include <algorithm>

#include <fmt/format.h>

#include "DateEstrazione.h"
#include "RigheDiTesto.h"

namespace lottolab {

std::optional<Avviso> AccodaLetta(std::vector<EstrazioneGioco>& estrazioni, EstrazioneGioco estrazione, int riga) {
  if (!estrazioni.empty() && ConfrontaDate(estrazioni.back().data, estrazione.data) >= 0)
    return ErroreRiga(riga, fmt::format("la data {} non viene dopo quella della riga prima ({})",
                                        FormattaData(estrazione.data), FormattaData(estrazioni.back().data)));
  estrazione.data.indice_annuale = estrazione.concorso;
  estrazione.id_estr = static_cast<int32_t>(estrazioni.size()) + 1;
  estrazioni.push_back(estrazione);
  return std::nullopt;
}

int TabellaGioco::UltimaEstrazioneEntro(const GruppoData& data) const {
  auto dopo =
      std::upper_bound(m_estrazioni.begin(), m_estrazioni.end(), data,
                       [](const GruppoData& d, const EstrazioneGioco& e) { return ConfrontaDate(d, e.data) < 0; });
  return static_cast<int>(dopo - m_estrazioni.begin());
}

}  // namespace lottolab
