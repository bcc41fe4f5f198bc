#include <gtest/gtest.h>

#include "TempDir.h"
#include "archive/ClsEstrazioni.h"
#include "archive/RiparaArchivio.h"

namespace lottolab {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;
using test::LeggiByte;
using test::ScriviByte;

std::vector<fs::path> CopieAccanto(const fs::path& archivio) {
  std::vector<fs::path> copie;
  for (const auto& voce : fs::directory_iterator(archivio.parent_path()))
    if (voce.path().filename().string().starts_with(archivio.filename().string() + ".bak-"))
      copie.push_back(voce.path());
  return copie;
}

TEST(RiparaArchivio, CopiaPrimaPoiTaglia) {
  CartellaTemporanea cartella;
  ClsEstrazioni archivio(cartella / "BaseDati.dat");
  Estrazione e;
  e.data = {1, 2, 1, 2024};
  for (int p = 1; p <= kNumeriPerRuota; ++p) e.ImpostaNumero(BA, p, p);
  e.id_estr = 1;
  ASSERT_TRUE(archivio.ScriviEstrazione(e, 1));
  e.id_estr = 2;
  ASSERT_TRUE(archivio.ScriviEstrazione(e, 2));
  const auto intero = LeggiByte(archivio.Archivio());
  auto guasto = intero;
  guasto.resize(guasto.size() + 40, 9);
  ScriviByte(archivio.Archivio(), guasto);

  auto riparazione = RiparaArchivio(archivio.Archivio());
  ASSERT_TRUE(riparazione) << riparazione.Errore().testo;
  EXPECT_TRUE(riparazione->eseguita);
  EXPECT_EQ(riparazione->byte_tolti, 40);
  EXPECT_EQ(riparazione->estrazioni, 2);
  EXPECT_EQ(LeggiByte(archivio.Archivio()), intero);
  ASSERT_EQ(CopieAccanto(archivio.Archivio()), std::vector<fs::path>{riparazione->copia});
  EXPECT_EQ(LeggiByte(riparazione->copia), guasto) << "the copy is the file as it was";
  EXPECT_TRUE(riparazione->copia.filename().string().starts_with("BaseDati.dat.bak-20"));
  EXPECT_EQ(
      DescriviRiparazione(archivio.Archivio(), *riparazione),
      "Archivio " + archivio.Archivio().string() +
          " riparato: tolti 40 byte dopo l'ultima estrazione intera, ora contiene 2 estrazioni. Il file com'era è "
          "stato copiato in " +
          riparazione->copia.string() + ".");
  EXPECT_TRUE(archivio.ScriviEstrazione(e, 2)) << "the repaired archive takes writes again";

  auto di_nuovo = RiparaArchivio(archivio.Archivio());
  ASSERT_TRUE(di_nuovo);
  EXPECT_FALSE(di_nuovo->eseguita);
  EXPECT_EQ(DescriviRiparazione(archivio.Archivio(), *di_nuovo),
            "L'archivio " + archivio.Archivio().string() +
                " è già fatto di estrazioni intere (2): nessuna riparazione necessaria.");
  EXPECT_EQ(CopieAccanto(archivio.Archivio()).size(), 1u);

  // A second repair in the same second keeps both copies.
  ScriviByte(archivio.Archivio(), guasto);
  ASSERT_TRUE(RiparaArchivio(archivio.Archivio()));
  ScriviByte(archivio.Archivio(), guasto);
  ASSERT_TRUE(RiparaArchivio(archivio.Archivio()));
  EXPECT_EQ(CopieAccanto(archivio.Archivio()).size(), 3u);
}

TEST(RiparaArchivio, RifiutaCioCheNonSiPuoRiparare) {
  CartellaTemporanea cartella;
  const fs::path assente = cartella / "assente.dat";
  auto esito = RiparaArchivio(assente);
  ASSERT_FALSE(esito);
  EXPECT_EQ(esito.Errore().testo, "L'archivio " + assente.string() + " non esiste: non c'è nulla da riparare.");

  esito = RiparaArchivio(cartella.Percorso());
  ASSERT_FALSE(esito);
  EXPECT_EQ(esito.Errore().testo, cartella.Percorso().string() + " è una cartella: serve un file ordinario");

  const fs::path altro = cartella / "foto.jpg";
  ScriviByte(altro, std::vector<unsigned char>(1000, 0xAB));
  esito = RiparaArchivio(altro);
  ASSERT_FALSE(esito);
  EXPECT_TRUE(esito.Errore().testo.find("non è un archivio delle estrazioni") != std::string::npos)
      << esito.Errore().testo;
  EXPECT_TRUE(CopieAccanto(altro).empty());
  EXPECT_EQ(LeggiByte(altro).size(), 1000u);
}

}  // namespace
}  // namespace lottolab
