#pragma once

// The settings that the core needs before the first load, read from section "GENERALE" of the
// program's INI file. Keys keep the names users already know from their configuration files.

#include <array>
#include <filesystem>
#include <string>

#include "FileIni.h"
#include "archive/Giochi.h"

namespace lottolab::app {

inline constexpr std::string_view kSezioneGenerale = "GENERALE";

struct Configurazione {
  std::filesystem::path base;
  FileIni ini;

  // Key sFileBd: the archive every analysis reads; "BaseDati.dat" in the base folder by default.
  std::filesystem::path ArchivioLotto() const;
  // Key sFileBdModificabile: the archive the user may edit; "basedati.dat" by default.
  std::filesystem::path ArchivioModificabile() const;
  // Keys sFileBdSE, sFileBdDL, sFileBdDL5, sFileBdWF, sFileBdFT: the archive of each other game,
  // "SuperEnalotto.dat", "10eLotto.dat", "10eLotto5.dat", "WinForLife.dat", "ArchivioGenerico.dat" by default.
  std::filesystem::path ArchivioGioco(Gioco gioco) const;
  // Every game's archive, by Gioco.
  std::array<std::filesystem::path, 5> ArchiviGiochi() const;
  // Key sFileAgenda: the agenda of the bets played, "AgendaGiocate.db" in the base folder by default.
  std::filesystem::path FileAgenda() const;
  // Key sIndirizzoRisultati: where the operator publishes the results file (zip of text lines).
  std::string IndirizzoRisultati() const;
  // Keys sIndirizzoRisultatiSE, sIndirizzoRisultatiDL, sIndirizzoRisultatiDL5, sIndirizzoRisultatiWF,
  // sIndirizzoRisultatiFT: where a results file of each other game is found (a text, or a zip holding
  // one); empty by default, since no public file exists for some of them, and then `aggiorna`
  // passes the game over.
  std::string IndirizzoRisultatiGioco(Gioco gioco) const;
  // The same for every game, by Gioco.
  std::array<std::string, 5> IndirizziRisultatiGiochi() const;
};

// Reads the configuration of the given base folder (lottolab.ini there; an absent file gives the
// defaults).
Esito<Configurazione> CaricaConfigurazione(const std::filesystem::path& base);

}  // namespace lottolab::app
