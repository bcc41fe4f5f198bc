#include "Configurazione.h"

#include "Percorsi.h"

namespace lottolab::app {

namespace fs = std::filesystem;

fs::path Configurazione::ArchivioLotto() const {
  return RisolviPercorso(base, ini.Leggi(kSezioneGenerale, "sFileBd", "BaseDati.dat"));
}

fs::path Configurazione::ArchivioModificabile() const {
  return RisolviPercorso(base, ini.Leggi(kSezioneGenerale, "sFileBdModificabile", "basedati.dat"));
}

std::string Configurazione::IndirizzoRisultati() const {
  return ini.Leggi(kSezioneGenerale, "sIndirizzoRisultati", "https://www.igt.it/STORICO_ESTRAZIONI_LOTTO/storico.zip");
}

Esito<Configurazione> CaricaConfigurazione(const fs::path& base) {
  auto ini = FileIni::Carica(FileConfigurazione(base));
  if (!ini) return ini.Errore();
  return Configurazione{base, std::move(ini).Valore()};
}

}  // namespace lottolab::app
