#pragma once

// The archives of the games besides the Lotto as a run's script reads them, side by side with the
// Lotto's: each loaded from its file at the first call that needs it and kept for the run, so that a
// script calling Estratto and EstrattoSE in one loop reads both from memory.
//
// The library's names end in a suffix that names the archive: SE the SuperEnalotto, WF the Win for
// Life, DL the 10eLotto (the evening draws, or the ones every five minutes once the script chose
// them with ImpostaArchivio10ELotto), FT the generic archive (the configured one, or the file that
// ApriBaseDatiFT opened).

#include <array>
#include <filesystem>
#include <optional>
#include <vector>

#include "archive/Esito.h"
#include "archive/TabellaEstrazioni.h"
#include "archive/TabellaGioco.h"

namespace lottolab::script {

enum class Suffisso : unsigned char { SE, DL, WF, FT };
inline constexpr int kNumeroSuffissi = 4;

// Each game's archive file, by Gioco.
using FileDeiGiochi = std::array<std::filesystem::path, 5>;

class ArchiviGiochi {
 public:
  // The game the suffix names now.
  Gioco GiocoDi(Suffisso suffisso) const;

  // The table of the suffix, loaded on first use; the reason, in the user's words, when there is none.
  // The evening 10eLotto, whose file is missing or empty, is derived from the Lotto archive `lotto`.
  const Esito<TabellaGioco>& Tabella(Suffisso suffisso, const FileDeiGiochi& file, const TabellaEstrazioni* lotto);

  void ScegliDieciELottoOgniCinqueMinuti(bool scelto);
  bool DieciELottoOgniCinqueMinuti() const { return m_dl_ogni_cinque_minuti; }
  // The generic archive the FT names read from now on.
  void ApriGenerico(TabellaGioco tabella);
  // Forgets every table, so that each is read again from its file at its next use.
  void Dimentica();
  // Forgets the table of one game only, as after its file grew.
  void Dimentica(Gioco gioco);

  // The flags of the active draws of the suffix's archive, one per IdEstr, every draw active at first.
  std::vector<bool>& Attive(Suffisso suffisso, const TabellaGioco& tabella);

 private:
  std::array<std::optional<Esito<TabellaGioco>>, 5> m_tabelle;
  std::array<std::vector<bool>, kNumeroSuffissi> m_attive;
  bool m_dl_ogni_cinque_minuti = false;
};

}  // namespace lottolab::script
