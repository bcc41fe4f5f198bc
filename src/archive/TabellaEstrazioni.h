#pragma once

// The in-memory table of draws, indexed by IdEstr from 1. Every analysis, script and figure search
// reads draws from here and never from the file.

#include <optional>
#include <string>
#include <vector>

#include "Esito.h"
#include "Estrazione.h"

namespace lottolab {

class TabellaEstrazioni {
 public:
  TabellaEstrazioni() = default;
  explicit TabellaEstrazioni(std::vector<Estrazione> estrazioni) : m_estrazioni(std::move(estrazioni)) {}

  // The number of draws held: the table's upper bound.
  int EstrazioniArchivio() const { return static_cast<int>(m_estrazioni.size()); }
  bool Vuota() const { return m_estrazioni.empty(); }
  bool Contiene(int id_estr) const { return id_estr >= 1 && id_estr <= EstrazioniArchivio(); }

  // The draw with index id_estr; the index must be inside the table.
  const Estrazione& operator[](int id_estr) const { return m_estrazioni[id_estr - 1]; }
  Estrazione& operator[](int id_estr) { return m_estrazioni[id_estr - 1]; }

  // The number at (ruota, posizione) of draw id_estr; 0 for a wheel outside 1..11; nothing for a
  // draw outside the table or a position outside 1..5. Inline: scripts read every number this way.
  std::optional<int> Estratto(int id_estr, int ruota, int posizione) const {
    if (!Contiene(id_estr) || posizione < 1 || posizione > kNumeriPerRuota) return std::nullopt;
    if (ruota < 1 || ruota > kNumeroRuote) return 0;
    return static_cast<int>((*this)[id_estr].Numero(ruota, posizione));
  }
  Esito<int> IndiceAnnuale(int id_estr) const;
  // "GG/MM/AAAA"; with the short year "GG/MM/AA".
  Esito<std::string> DataEstrazione(int id_estr, bool anno_breve = false) const;

  // The last draw whose date is on or before the given one; 0 when there is none.
  int UltimaEstrazioneEntro(const GruppoData& data) const;

  const std::vector<Estrazione>& Tutte() const { return m_estrazioni; }
  std::vector<Estrazione>& Tutte() { return m_estrazioni; }

 private:
  std::vector<Estrazione> m_estrazioni;
};

}  // namespace lottolab
