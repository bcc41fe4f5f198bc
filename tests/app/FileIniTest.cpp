#include <gtest/gtest.h>

#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "TempDir.h"
#include "app/FileIni.h"

namespace lottolab::app {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;

void ScriviTesto(const fs::path& file, const std::string& testo) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out << testo;
}

std::string LeggiTesto(const fs::path& file) {
  auto byte = test::LeggiByte(file);
  return {byte.begin(), byte.end()};
}

std::vector<std::string> NomiNellaCartella(const fs::path& cartella) {
  std::vector<std::string> nomi;
  for (const auto& voce : fs::directory_iterator(cartella)) nomi.push_back(voce.path().filename().string());
  std::sort(nomi.begin(), nomi.end());
  return nomi;
}

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
  EXPECT_EQ(NomiNellaCartella(cartella / "sotto"), std::vector<std::string>{"lottolab.ini"});
}

// Whatever stands where the configuration should be, loading ends at once with the reason: a
// device or a pipe is never read, a huge file never held in memory.
TEST(FileIni, RifiutaCioCheNonEUnFileDiConfigurazione) {
  CartellaTemporanea cartella;
  fs::create_directory(cartella / "cartella.ini");
  ASSERT_EQ(mkfifo((cartella / "tubo.ini").c_str(), 0600), 0);
  ScriviTesto(cartella / "enorme.ini", std::string(FileIni::kDimensioneMassima + 1, 'x'));
  ScriviTesto(cartella / "file", "x");
  fs::create_symlink("/dev/zero", cartella / "dispositivo.ini");
  const std::string lungo(5000, 'n');

  struct Caso {
    fs::path percorso;
    std::string motivo;
  };
  for (const Caso& caso : {Caso{cartella / "cartella.ini", "è una cartella"},
                           Caso{cartella / "tubo.ini", "è una pipe, non un file ordinario"},
                           Caso{cartella / "dispositivo.ini", "è una periferica, non un file ordinario"},
                           Caso{cartella / "enorme.ini", "supera 1 MB, troppo per un file di configurazione"},
                           Caso{cartella / "file" / "lottolab.ini", "una parte del percorso non è una cartella"},
                           Caso{cartella / lungo, "nome del file troppo lungo"}}) {
    auto ini = FileIni::Carica(caso.percorso);
    ASSERT_FALSE(ini) << caso.percorso;
    const std::string& testo = ini.Errore().testo;
    EXPECT_NE(testo.find("Impossibile leggere il file di configurazione"), std::string::npos) << testo;
    EXPECT_NE(testo.find(caso.motivo), std::string::npos) << testo;
    EXPECT_LT(testo.size(), 400u) << "a path of thousands of characters is cut in the message";
  }
  auto assente = FileIni::Carica(cartella / "assente.ini");
  ASSERT_TRUE(assente);
  EXPECT_EQ(assente->Testo(), "");
}

TEST(FileIni, LeggeFileOstiliSenzaPerdereLeChiaviBuone) {
  CartellaTemporanea cartella;
  std::string binario;
  for (int i = 0; i < 256; ++i) binario += static_cast<char>(i);
  const std::string testo = "[GENERALE]\n" + std::string(FileIni::kDimensioneMassima / 2, 'r') + "\n" + binario +
                            "\nsFileBd=buono.dat\n[\xff\x00]\nsFileBd=altro\n";
  ScriviTesto(cartella / "lottolab.ini", testo);
  auto ini = FileIni::Carica(cartella / "lottolab.ini");
  ASSERT_TRUE(ini);
  EXPECT_EQ(ini->Leggi("GENERALE", "sFileBd"), "buono.dat");
  EXPECT_EQ(ini->Testo(), testo + "\n") << "every line, odd or not, survives a save";
}

TEST(FileIni, UnValoreConUnACapoNonAggiungeChiavi) {
  FileIni ini;
  ini.Scrivi("GENERALE", "sFileBd", "a.dat\nsIndirizzoRisultati=http://altrove/\r");
  auto riletto = FileIni::DaTesto(ini.Testo());
  EXPECT_EQ(riletto.Leggi("GENERALE", "sFileBd"), "a.dat sIndirizzoRisultati=http://altrove/");
  EXPECT_EQ(riletto.Leggi("GENERALE", "sIndirizzoRisultati"), std::nullopt);
}

// A save replaces the file in one step: the old one stays whole when the save is refused, a link
// keeps pointing where it did, the permissions the user chose stay, and no temporary file is left.
TEST(FileIni, SalvaTuttoONiente) {
  CartellaTemporanea cartella;
  FileIni ini;
  ini.Scrivi("GENERALE", "sFileBd", "nuovo.dat");

  const fs::path file = cartella / "lottolab.ini";
  ScriviTesto(file, "[GENERALE]\nsFileBd=vecchio.dat\n");
  ASSERT_EQ(chmod(file.c_str(), 0640), 0);
  ASSERT_TRUE(ini.Salva(file));
  EXPECT_EQ(LeggiTesto(file), "[GENERALE]\nsFileBd=nuovo.dat\n");
  EXPECT_EQ(fs::status(file).permissions() & fs::perms::all, fs::perms(0640));

  fs::create_directory(cartella / "vero");
  ScriviTesto(cartella / "vero" / "lottolab.ini", "vecchio");
  fs::create_symlink("vero/lottolab.ini", cartella / "collegato.ini");
  ASSERT_TRUE(ini.Salva(cartella / "collegato.ini"));
  EXPECT_TRUE(fs::is_symlink(cartella / "collegato.ini"));
  EXPECT_EQ(LeggiTesto(cartella / "vero" / "lottolab.ini"), "[GENERALE]\nsFileBd=nuovo.dat\n");

  fs::create_directory(cartella / "cartella.ini");
  ASSERT_EQ(mkfifo((cartella / "tubo").c_str(), 0600), 0);
  fs::create_symlink("tubo", cartella / "verso-tubo.ini");
  for (const char* nome : {"cartella.ini", "verso-tubo.ini"}) {
    auto salvato = ini.Salva(cartella / nome);
    ASSERT_FALSE(salvato) << nome;
    EXPECT_NE(salvato.Errore().testo.find("Impossibile scrivere il file di configurazione"), std::string::npos);
  }
  EXPECT_TRUE(fs::is_directory(cartella / "cartella.ini"));
  EXPECT_TRUE(fs::is_fifo(cartella / "tubo"));
  EXPECT_EQ(
      NomiNellaCartella(cartella.Percorso()),
      (std::vector<std::string>{"cartella.ini", "collegato.ini", "lottolab.ini", "tubo", "vero", "verso-tubo.ini"}));
}

}  // namespace
}  // namespace lottolab::app
