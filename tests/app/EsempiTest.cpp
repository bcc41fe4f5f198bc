#include "app/Esempi.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "TempDir.h"

namespace lottolab::app {
namespace {

namespace fs = std::filesystem;

// The names in a folder, hidden ones included: what an installation leaves behind.
std::set<std::string> Contenuto(const fs::path& cartella) {
  std::set<std::string> nomi;
  for (const auto& voce : fs::directory_iterator(cartella)) nomi.insert(voce.path().filename().string());
  return nomi;
}

TEST(Esempi, IlPrimoAvvioLiScriveTuttiComeSonoIncorporati) {
  ASSERT_FALSE(Esempi().empty());
  test::CartellaTemporanea base;
  auto scritti = InstallaEsempi(base.Percorso());
  ASSERT_TRUE(scritti) << scritti.Errore().testo;
  EXPECT_EQ(*scritti, Esempi().size());

  std::set<std::string> attesi;
  for (const Esempio& esempio : Esempi()) {
    attesi.insert(std::string(esempio.nome));
    EXPECT_EQ(test::Leggi(CartellaEsempi(base.Percorso()) / esempio.nome), esempio.testo) << esempio.nome;
  }
  EXPECT_EQ(Contenuto(CartellaEsempi(base.Percorso())), attesi);
  // The folder was assembled aside and renamed: no hidden folder is left next to it, and it has the
  // permissions of any folder the user makes.
  EXPECT_EQ(Contenuto(base / "Script"), std::set<std::string>{"Esempi"});
  fs::create_directory(base / "Script" / "Altra");
  EXPECT_EQ(fs::status(CartellaEsempi(base.Percorso())).permissions(),
            fs::status(base / "Script" / "Altra").permissions());
}

TEST(Esempi, UnaCartellaGiaPresenteRestaComeLUtenteLHaLasciata) {
  test::CartellaTemporanea base;
  ASSERT_TRUE(InstallaEsempi(base.Percorso()));
  const fs::path cartella = CartellaEsempi(base.Percorso());
  const fs::path modificato = cartella / Esempi()[0].nome;
  const fs::path tolto = cartella / Esempi()[1].nome;
  test::Scrivi(modificato, "' il mio script\n");
  fs::remove(tolto);

  auto di_nuovo = InstallaEsempi(base.Percorso());
  ASSERT_TRUE(di_nuovo) << di_nuovo.Errore().testo;
  EXPECT_EQ(*di_nuovo, 0u);
  EXPECT_EQ(test::Leggi(modificato), "' il mio script\n");
  EXPECT_FALSE(fs::exists(tolto));

  // A link in the folder's place, even one that leads nowhere, is the user's too.
  test::CartellaTemporanea altra;
  fs::create_directories(altra / "Script");
  fs::create_directory_symlink(altra / "manca", CartellaEsempi(altra.Percorso()));
  EXPECT_EQ(InstallaEsempi(altra.Percorso()).ValoreOppure(99), 0u);
  EXPECT_FALSE(fs::exists(altra / "manca"));
}

TEST(Esempi, UnaCartellaCheNonSiPuoScrivereEUnAvvisoInItaliano) {
  test::CartellaTemporanea base;
  // A file where the scripts folder should be: no folder can be made under it, whoever runs the test.
  test::Scrivi(base / "Script", "non una cartella");
  auto scritti = InstallaEsempi(base.Percorso());
  ASSERT_FALSE(scritti);
  EXPECT_EQ(scritti.Errore().testo, "Gli script di esempio non sono stati scritti in " +
                                        CartellaEsempi(base.Percorso()).string() +
                                        ": una parte del percorso non è una cartella");
  EXPECT_EQ(test::Leggi(base / "Script"), "non una cartella");

  // A file that cannot be written leaves no half folder behind.
  test::CartellaTemporanea altra;
  const Esempio esempi[] = {{"primo.ls", "' uno\n"}, {"manca/secondo.ls", "' due\n"}};
  auto parziale = InstallaEsempi(altra.Percorso(), esempi);
  ASSERT_FALSE(parziale);
  EXPECT_NE(parziale.Errore().testo.find("secondo.ls"), std::string::npos) << parziale.Errore().testo;
  EXPECT_TRUE(Contenuto(altra / "Script").empty());
}

}  // namespace
}  // namespace lottolab::app
