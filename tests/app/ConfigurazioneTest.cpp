#include <gtest/gtest.h>

#include <cstdlib>

#include "TempDir.h"
#include "app/Configurazione.h"
#include "app/Percorsi.h"

namespace lottolab::app {
namespace {

using test::CartellaTemporanea;

TEST(Configurazione, ArchiviPredefinitiERelativiAllaCartellaBase) {
  CartellaTemporanea cartella;
  auto predefinita = CaricaConfigurazione(cartella.Percorso());
  ASSERT_TRUE(predefinita);
  EXPECT_EQ(predefinita->ArchivioLotto(), cartella / "BaseDati.dat");
  EXPECT_EQ(predefinita->ArchivioModificabile(), cartella / "basedati.dat");

  FileIni ini;
  ini.Scrivi("GENERALE", "sFileBd", "Archivi\\lotto.dat");
  ini.Scrivi("GENERALE", "sFileBdModificabile", "/var/tmp/mio.dat");
  ASSERT_TRUE(ini.Salva(FileConfigurazione(cartella.Percorso())));
  auto letta = CaricaConfigurazione(cartella.Percorso());
  ASSERT_TRUE(letta);
  EXPECT_EQ(letta->ArchivioLotto(), cartella / "Archivi/lotto.dat");
  EXPECT_EQ(letta->ArchivioModificabile(), "/var/tmp/mio.dat");
}

TEST(CartellaBase, DaLottolabHomeOppureNellaCasaDellUtente) {
  const char* home_prima = std::getenv("HOME");
  std::string home_salvata = home_prima ? home_prima : "";
  setenv("LOTTOLAB_HOME", "/srv/lotto", 1);
  EXPECT_EQ(CartellaBase(), "/srv/lotto");
  setenv("LOTTOLAB_HOME", "", 1);
  setenv("HOME", "/home/utente", 1);
  EXPECT_EQ(CartellaBase(), "/home/utente/.local/share/lottolab");
  setenv("HOME", home_salvata.c_str(), 1);
  unsetenv("LOTTOLAB_HOME");
}

}  // namespace
}  // namespace lottolab::app
