#pragma once

// The draws of one game other than the Lotto, in memory, indexed by IdEstr from 1, loaded whole
// from its archive as the Lotto table is.

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "Avviso.h"
#include "Estrazione.h"
#include "Giochi.h"

namespace lottolab {

struct EstrazioneGioco {
  int32_t id_estr = 0;
  GruppoData data;
  int16_t concorso = 0;  // the contest's number within its year (within its day where contests have a time)
  int16_t minuti = 0;    // the time of day as minutes after midnight, where the game has one
  std::array<uint8_t, kMassimoNumeriGioco> numeri{};
  std::array<uint8_t, kMassimoExtraGioco> extra{};        // 0: not drawn in that period
  std::array<uint8_t, kMassimoSpecialiGioco> speciali{};  // 0: not held (a SuperStar before it existed)

  friend bool operator==(const EstrazioneGioco&, const EstrazioneGioco&) = default;
};

// Appends a draw read from line `riga` of a results file, numbered next, its contest as its annual
// index; refused, naming the line, when its date does not come after the last one's.
std::optional<Avviso> AccodaLetta(std::vector<EstrazioneGioco>& estrazioni, EstrazioneGioco estrazione, int riga);

class TabellaGioco {
 public:
  explicit TabellaGioco(FormatoGioco formato, std::vector<EstrazioneGioco> estrazioni = {})
      : m_formato(formato), m_estrazioni(std::move(estrazioni)) {}

  const FormatoGioco& formato() const { return m_formato; }
  int EstrazioniArchivio() const { return static_cast<int>(m_estrazioni.size()); }
  bool Contiene(int id_estr) const { return id_estr >= 1 && id_estr <= EstrazioniArchivio(); }
  const EstrazioneGioco& operator[](int id_estr) const { return m_estrazioni[id_estr - 1]; }
  const std::vector<EstrazioneGioco>& Tutte() const { return m_estrazioni; }
  // The last draw whose date is on or before the given one (the last of that day, for games with a
  // time); 0 when there is none.
  int UltimaEstrazioneEntro(const GruppoData& data) const;

 private:
  FormatoGioco m_formato;
  std::vector<EstrazioneGioco> m_estrazioni;
};

}  // namespace lottolab
