#include "TabellaEstrazioni.h"

#include <algorithm>

#include "DateEstrazione.h"

namespace lottolab {

namespace {

Avviso IndiceFuoriIntervallo() { return AvvisoCritico("TabellaEstrazioni", 9, "Indice non incluso nell'intervallo"); }

}  // namespace

Esito<int> TabellaEstrazioni::IndiceAnnuale(int id_estr) const {
  if (!Contiene(id_estr)) return IndiceFuoriIntervallo();
  return static_cast<int>((*this)[id_estr].data.indice_annuale);
}

Esito<std::string> TabellaEstrazioni::DataEstrazione(int id_estr, bool anno_breve) const {
  if (!Contiene(id_estr)) return IndiceFuoriIntervallo();
  return FormattaData((*this)[id_estr].data, anno_breve);
}

int TabellaEstrazioni::UltimaEstrazioneEntro(const GruppoData& data) const {
  auto dopo = std::upper_bound(m_estrazioni.begin(), m_estrazioni.end(), data,
                               [](const GruppoData& d, const Estrazione& e) { return ConfrontaDate(d, e.data) < 0; });
  return static_cast<int>(dopo - m_estrazioni.begin());
}

}  // namespace lottolab
