#include "Configurazione.h"

#include <fmt/format.h>

#include "Percorsi.h"

namespace lottolab::app {

namespace fs = std::filesystem;

fs::path Configurazione::ArchivioLotto() const {
  return RisolviPercorso(base, ini.Leggi(kSezioneGenerale, "sFileBd", "BaseDati.dat"));
}

fs::path Configurazione::ArchivioModificabile() const {
  return RisolviPercorso(base, ini.Leggi(kSezioneGenerale, "sFileBdModificabile", "basedati.dat"));
}

fs::path Configurazione::ArchivioGioco(Gioco gioco) const {
  static constexpr std::string_view kPredefiniti[] = {"SuperEnalotto.dat", "10eLotto.dat", "10eLotto5.dat",
                                                      "WinForLife.dat", "ArchivioGenerico.dat"};
  const std::string chiave = fmt::format("sFileBd{}", Formato(gioco).sigla);
  return RisolviPercorso(base, ini.Leggi(kSezioneGenerale, chiave, kPredefiniti[static_cast<int>(gioco)]));
}

std::array<fs::path, 5> Configurazione::ArchiviGiochi() const {
  std::array<fs::path, 5> file;
  for (size_t g = 0; g < file.size(); ++g) file[g] = ArchivioGioco(static_cast<Gioco>(g));
  return file;
}

fs::path Configurazione::FileAgenda() const {
  return RisolviPercorso(base, ini.Leggi(kSezioneGenerale, "sFileAgenda", "AgendaGiocate.db"));
}

std::array<std::string, 5> Configurazione::IndirizziRisultatiGiochi() const {
  std::array<std::string, 5> indirizzi;
  for (size_t g = 0; g < indirizzi.size(); ++g) indirizzi[g] = IndirizzoRisultatiGioco(static_cast<Gioco>(g));
  return indirizzi;
}

std::string Configurazione::IndirizzoRisultati() const {
  return ini.Leggi(kSezioneGenerale, "sIndirizzoRisultati", "https://www.igt.it/STORICO_ESTRAZIONI_LOTTO/storico.zip");
}

std::string Configurazione::IndirizzoRisultatiGioco(Gioco gioco) const {
  return ini.Leggi(kSezioneGenerale, fmt::format("sIndirizzoRisultati{}", Formato(gioco).sigla), "");
}

Esito<Configurazione> CaricaConfigurazione(const fs::path& base) {
  auto ini = FileIni::Carica(FileConfigurazione(base));
  if (!ini) return ini.Errore();
  return Configurazione{base, std::move(ini).Valore()};
}

}  // namespace lottolab::app
