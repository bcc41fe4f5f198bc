#include <gtest/gtest.h>

#include <cstdlib>

#include "TempDir.h"
#include "app/Configurazione.h"
#include "app/Percorsi.h"

namespace lottolab::app {
namespace {

using test::CartellaTemporanea;

TEST(FileIni, LeggeSezioniEChiaviSenzaBadareAlleMaiuscole) {
  auto ini = FileIni::DaTesto(
      "; archivi\r\n[Generale]\r\nsFileBd = C:\\Lotto\\BaseDati.dat\r\nvuota=\r\n# altro\r\n[ALTRO]\r\nsFileBd=x\r\n");
  EXPECT_EQ(ini.Leggi("GENERALE", "SFILEBD"), "C:\\Lotto\\BaseDati.dat");
  EXPECT_EQ(ini.Leggi("altro", "sFileBd"), "x");
  EXPECT_EQ(ini.Leggi("GENERALE", "vuota"), "");
  EXPECT_EQ(ini.Leggi("GENERALE", "vuota", "predefinito"), "predefinito");
  EXPECT_EQ(ini.Leggi("GENERALE", "assente"), std::nullopt);
  EXPECT_EQ(ini.Leggi("GENERALE", "; archivi"), std::nullopt);
}

TEST(FileIni, ScriveMantenendoCommentiEOrdine) {
  auto ini = FileIni::DaTesto("; nota\n[GENERALE]\na=1\n\n[ALTRO]\nb=2\n");
  ini.Scrivi("generale", "A", "10");
  ini.Scrivi("GENERALE", "c", "3");
  ini.Scrivi("NUOVA", "d", "4");
  EXPECT_EQ(ini.Testo(), "; nota\n[GENERALE]\nA=10\nc=3\n\n[ALTRO]\nb=2\n[NUOVA]\nd=4\n");
}

TEST(FileIni, SalvaERicarica) {
  CartellaTemporanea cartella;
  auto file = cartella / "sotto" / "lottolab.ini";
  FileIni ini;
  ini.Scrivi("GENERALE", "sFileBd", "archivio.dat");
  ASSERT_TRUE(ini.Salva(file));
  auto riletto = FileIni::Carica(file);
  ASSERT_TRUE(riletto);
  EXPECT_EQ(riletto->Leggi("GENERALE", "sFileBd"), "archivio.dat");
  EXPECT_FALSE(std::filesystem::exists(cartella / "sotto" / "lottolab.ini.tmp"));
}

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
