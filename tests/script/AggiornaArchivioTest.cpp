#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "DatiReali.h"
#include "LibreriaDiProva.h"
#include "TempDir.h"
#include "archive/ClsEstrazioni.h"
#include "stats/ArchiviDiProva.h"

namespace lottolab::script {
namespace {

std::string Contenuto(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// A user's archive ten draws behind the real one, brought up to date by a script from a results file
// reached as a local address, as it would be from the operator's site.
class AggiornaArchivio : public Libreria {
 protected:
  void Prepara(Modalita modalita = Modalita::Normale) {
    LOTTOLAB_RICHIEDI_DATI_REALI();
    const TabellaEstrazioni& reale = test::ArchivioReale();
    m_vecchie = reale.EstrazioniArchivio() - 10;
    std::vector<Estrazione> indietro(reale.Tutte().begin(), reale.Tutte().begin() + m_vecchie);
    ASSERT_TRUE(ClsEstrazioni(m_cartella / "BaseDati.dat").SalvaFileEstrazioni(indietro).Riuscito());
    auto letta = ClsEstrazioni(m_cartella / "BaseDati.dat").CaricaEstrazioni();
    ASSERT_TRUE(letta.Riuscito());
    ImpostazioniLibreria impostazioni;
    impostazioni.cartella_base = m_cartella.Percorso();
    impostazioni.file_archivio = m_cartella / "BaseDati.dat";
    impostazioni.archivi_giochi[static_cast<size_t>(Gioco::SuperEnalotto)] = m_cartella / "SuperEnalotto.dat";
    impostazioni.modalita = modalita;
    Avvia(std::move(letta).Valore(), std::move(impostazioni));
  }

  static std::string Indirizzo(const std::string& file) {
    return "\"file://" + (test::CartellaDatiReali() / file).string() + "\"";
  }

  test::CartellaTemporanea m_cartella;
  int m_vecchie = 0;
};

TEST_F(AggiornaArchivio, LeNuoveEstrazioniEntranoNelFileENellEsecuzione) {
  Prepara();
  EXPECT_EQ(Testo("AggiornaArchivio(" + Indirizzo("lotto.txt") + ")"), "10");
  const TabellaEstrazioni& reale = test::ArchivioReale();
  EXPECT_EQ(Testo("EstrazioniArchivio"), std::to_string(reale.EstrazioniArchivio()))
      << "the rest of the run reads the updated archive";
  EXPECT_EQ(Testo("Estratto(EstrazioniArchivio, BA_, 1)"),
            std::to_string(reale[reale.EstrazioniArchivio()].Numero(BA, 1)));
  auto sul_disco = ClsEstrazioni(m_cartella / "BaseDati.dat").GetNumeroEstrazioni();
  ASSERT_TRUE(sul_disco.Riuscito());
  EXPECT_EQ(*sul_disco, reale.EstrazioniArchivio());
  EXPECT_EQ(Testo("AggiornaArchivio(" + Indirizzo("lotto.txt") + ")"), "0");

  // The SuperEnalotto from its own results into a game archive not held yet; the run's other
  // game archives are kept as they were read.
  std::ofstream(m_cartella / "generico.txt") << "# numeri 5 massimo 90\n01/02/2020 1 2 3 4 5\n";
  EXPECT_EQ(Testo("ApriBaseDatiFT(\"generico.txt\")"), "1");
  EXPECT_EQ(Testo("AggiornaArchivioSE(" + Indirizzo("superenalotto.txt") + ") > 1000"), "Vero");
  EXPECT_EQ(Testo("EstrazioniArchivioFT & \" \" & EstrattoFT(1, 5)"), "1 5");
  EXPECT_EQ(Testo("EstrazioniArchivioSE > 1000"), "Vero");
  EXPECT_TRUE(m_ospite.avvisi.empty()) << m_ospite.avvisi.front().testo;
}

TEST_F(AggiornaArchivio, UnRifiutoLasciaLArchivioComEra) {
  Prepara();
  const std::string prima = Contenuto(m_cartella / "BaseDati.dat");
  // A results file cut in the middle of a draw disagrees with the archive and is refused whole.
  std::ifstream completo(test::CartellaDatiReali() / "lotto.txt", std::ios::binary);
  std::ofstream tagliato(m_cartella / "tagliato.txt", std::ios::binary);
  std::string riga;
  for (int n = 0; n < 76000 && std::getline(completo, riga); ++n) tagliato << riga << '\n';
  tagliato.close();
  EXPECT_TRUE(Vuoto("AggiornaArchivio(\"file://" + (m_cartella / "tagliato.txt").string() + "\")"));
  AvvisoErrore5("AggiornaArchivio", "è diversa da quella in archivio", "a cut results file");
  EXPECT_TRUE(Vuoto("AggiornaArchivio(\"file://" + (m_cartella / "manca.zip").string() + "\")"));
  AvvisoErrore5("AggiornaArchivio", "Impossibile scaricare", "a missing file");
  EXPECT_TRUE(Vuoto("AggiornaArchivioSE"));
  AvvisoErrore5("AggiornaArchivioSE", "sIndirizzoRisultatiSE", "no address configured");
  EXPECT_TRUE(Vuoto("AggiornaArchivioWF"));
  AvvisoErrore5("AggiornaArchivioWF", "non ha un archivio del gioco", "no archive of the game");
  EXPECT_EQ(Contenuto(m_cartella / "BaseDati.dat"), prima);
  EXPECT_EQ(Testo("EstrazioniArchivio"), std::to_string(m_vecchie));
}

TEST_F(AggiornaArchivio, InModalitaProtettaNonSiAggiorna) {
  Prepara(Modalita::Protetta);
  EXPECT_TRUE(Vuoto("AggiornaArchivio(" + Indirizzo("lotto.txt") + ")"));
  AvvisoErrore5("AggiornaArchivio", "modalità protetta", "protected mode");
  EXPECT_EQ(Testo("EstrazioniArchivio"), std::to_string(m_vecchie));
}

}  // namespace
}  // namespace lottolab::script
