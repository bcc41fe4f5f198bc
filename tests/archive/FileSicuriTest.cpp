#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <iterator>

#include "TempDir.h"
#include "archive/FileSicuri.h"

namespace lottolab {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;
using Genere = GuastoFile::Genere;

std::string Leggi(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

size_t Voci(const fs::path& cartella) {
  return static_cast<size_t>(std::distance(fs::directory_iterator(cartella), fs::directory_iterator()));
}

// What the path names decides the answer before a byte is read: a pipe with no writer or an endless
// device answers at once, and a file past the limit is refused however it reached that size.
TEST(FileSicuri, LaLetturaDiceIlMotivoSenzaIlNomeDelFile) {
  CartellaTemporanea cartella;
  ASSERT_EQ(::mkfifo((cartella / "tubo").c_str(), 0600), 0);
  std::ofstream(cartella / "cinque") << "12345";
  struct Caso {
    fs::path file;
    Genere genere;
    std::string motivo;
  };
  for (const Caso& caso :
       {Caso{cartella / "manca", Genere::Assente, "il file o la cartella non esiste"},
        Caso{cartella.Percorso(), Genere::NonOrdinario, "è una cartella"},
        Caso{cartella / "tubo", Genere::NonOrdinario, "è una pipe"},
        Caso{"/dev/zero", Genere::NonOrdinario, "è una periferica"},
        Caso{cartella / "cinque", Genere::TroppoGrande, "supera 4 byte"},
        Caso{cartella / "cinque" / "x", Genere::Sistema, "una parte del percorso non è una cartella"}}) {
    auto letto = LeggiFileOrdinario(caso.file, 4);
    ASSERT_FALSE(letto) << caso.file;
    EXPECT_EQ(letto.Errore().genere, caso.genere) << caso.file;
    EXPECT_EQ(letto.Errore().motivo, caso.motivo);
  }
  EXPECT_EQ(LeggiFileOrdinario(cartella / "cinque", 5).ValoreOppure(""), "12345");
}

// The writer replaces the file a link names, keeps its permissions, refuses what is not a regular
// file, and leaves nothing beside the file, whether it succeeds or fails.
TEST(FileSicuri, LaScritturaSostituisceIlFileVeroENonLasciaAltro) {
  CartellaTemporanea cartella;
  const fs::path vero = cartella / "vero.ini";
  std::ofstream(vero) << "vecchio";
  ASSERT_EQ(::chmod(vero.c_str(), 0640), 0);
  fs::create_symlink(vero, cartella / "collegamento.ini");

  ASSERT_TRUE(ScriviFileOrdinario(cartella / "collegamento.ini", "nuovo"));
  EXPECT_TRUE(fs::is_symlink(cartella / "collegamento.ini"));
  EXPECT_EQ(Leggi(vero), "nuovo");
  struct stat stato {};
  ASSERT_EQ(::stat(vero.c_str(), &stato), 0);
  EXPECT_EQ(stato.st_mode & 07777, 0640u);
  EXPECT_EQ(Voci(cartella.Percorso()), 2u);

  fs::create_directory(cartella / "cartella.ini");
  ASSERT_EQ(::mkfifo((cartella / "tubo.ini").c_str(), 0600), 0);
  for (const char* nome : {"cartella.ini", "tubo.ini"}) {
    auto scritto = ScriviFileOrdinario(cartella / nome, "x");
    ASSERT_FALSE(scritto) << nome;
    EXPECT_EQ(scritto.Errore().genere, Genere::NonOrdinario) << nome;
  }
  auto scritto = ScriviFileOrdinario(cartella / "manca" / "nuovo.ini", "x");
  ASSERT_FALSE(scritto);
  EXPECT_EQ(scritto.Errore().motivo, "il file o la cartella non esiste");
  EXPECT_EQ(Voci(cartella.Percorso()), 4u) << "no temporary file is left beside the files";

  auto archivio = SostituisciFile(cartella / "cartella.ini", "x");
  ASSERT_FALSE(archivio);
  EXPECT_EQ(archivio.Errore().testo, (cartella / "cartella.ini").string() + " è una cartella: serve un file ordinario");
}

}  // namespace
}  // namespace lottolab
