#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "DatiReali.h"
#include "LibreriaDiProva.h"
#include "StrutturaCoppia.h"
#include "TempDir.h"
#include "archive/ArchivioGioco.h"
#include "archive/SuperEnalotto.h"
#include "figures/FileStrutture.h"
#include "script/Riferimento.h"
#include "stats/ArchiviDiProva.h"
#include "text/AsciiCase.h"

namespace lottolab::script {
namespace {

TEST(Riferimento, OgniNomeLegatoHaTuttaLaSuaScheda) {
  std::vector<std::string> incomplete;
  for (const SchedaFunzione& scheda : Riferimento()) {
    if (!scheda.legata) continue;
    const bool esempio_del_nome =
        text::LowerAscii(scheda.esempio).find(text::LowerAscii(scheda.nome)) != std::string::npos;
    if (scheda.significato.empty() || scheda.restituisce.empty() || !esempio_del_nome ||
        scheda.esempio.find('\n') != std::string_view::npos)
      incomplete.emplace_back(scheda.nome);
  }
  EXPECT_TRUE(incomplete.empty()) << incomplete.size() << " names without meaning, return value or a one-line example "
                                  << "that calls them, the first: " << incomplete.front();
  const SchedaFunzione* scheda = CercaScheda("estrattoRITARDO");
  ASSERT_NE(scheda, nullptr);
  EXPECT_EQ(scheda->nome, "EstrattoRitardo");
  EXPECT_EQ(CercaScheda("BA_"), nullptr) << "constants are not among the public names";
}

// Draws of a game with K numbers of 1..M, shuffled, on 28 days of each month from 2020.
TabellaGioco Casuale(FormatoGioco formato, int quante) {
  std::mt19937 generatore(7);
  std::vector<int> urna(static_cast<size_t>(formato.massimo));
  std::vector<EstrazioneGioco> estrazioni;
  for (int i = 0; i < quante; ++i) {
    std::iota(urna.begin(), urna.end(), 1);
    std::shuffle(urna.begin(), urna.end(), generatore);
    EstrazioneGioco estrazione;
    estrazione.id_estr = i + 1;
    const int nel_anno = i % 336;
    estrazione.data = {static_cast<int16_t>(nel_anno + 1), static_cast<int16_t>(nel_anno % 28 + 1),
                       static_cast<int16_t>(nel_anno / 28 + 1), static_cast<int16_t>(2020 + i / 336)};
    estrazione.concorso = estrazione.data.indice_annuale;
    for (int n = 0; n < formato.numeri; ++n) estrazione.numeri[static_cast<size_t>(n)] = static_cast<uint8_t>(urna[n]);
    estrazioni.push_back(estrazione);
  }
  return TabellaGioco(formato, std::move(estrazioni));
}

// The 10eLotto every five minutes: Casuale's draws, 288 a day from 00:00.
TabellaGioco OgniCinqueMinuti(int quante) {
  TabellaGioco casuali = Casuale(Formato(Gioco::DieciELottoOgniCinqueMinuti), quante);
  std::vector<EstrazioneGioco> estrazioni = casuali.Tutte();
  for (size_t i = 0; i < estrazioni.size(); ++i) {
    const int nel_giorno = static_cast<int>(i % 288);
    estrazioni[i].data = {static_cast<int16_t>(i / 288 + 1), static_cast<int16_t>(i / 288 + 1), 1, 2024};
    estrazioni[i].minuti = static_cast<int16_t>(nel_giorno * 5);
    estrazioni[i].concorso = static_cast<int16_t>(nel_giorno + 1);
  }
  return TabellaGioco(casuali.formato(), std::move(estrazioni));
}

// Every example of the reference, run as a script runs it on the real draws and on the archives of
// the other games: a user who copies one gets no error and no message.
class EsempiDelRiferimento : public Libreria {
 protected:
  void SetUp() override {
    LOTTOLAB_RICHIEDI_DATI_REALI();
    ImpostazioniLibreria impostazioni;
    impostazioni.cartella_base = m_cartella.Percorso();
    impostazioni.cartella_output = m_cartella / "scriptOutput";
    std::filesystem::create_directories(impostazioni.cartella_output);  // as every host does before a run
    for (size_t g = 0; g < impostazioni.archivi_giochi.size(); ++g) {
      const Gioco gioco = static_cast<Gioco>(g);
      impostazioni.archivi_giochi[g] = m_cartella / (std::string(Formato(gioco).sigla) + ".dat");
    }
    std::ifstream file(test::CartellaDatiReali() / "superenalotto.txt", std::ios::binary);
    std::stringstream testo;
    testo << file.rdbuf();
    auto risultati = LeggiRisultatiSuperEnalotto(testo.str());
    ASSERT_TRUE(risultati) << risultati.Errore().testo;
    auto superenalotto = ArchivioSuperEnalotto(test::ArchivioReale(), *risultati);
    ASSERT_TRUE(superenalotto) << superenalotto.Errore().testo;
    const auto file_di = [&](Gioco gioco) { return impostazioni.archivi_giochi[static_cast<size_t>(gioco)]; };
    ASSERT_TRUE(SalvaArchivioGioco(*superenalotto, file_di(Gioco::SuperEnalotto)).Riuscito());
    for (Gioco gioco : {Gioco::DieciELotto, Gioco::WinForLife})
      ASSERT_TRUE(SalvaArchivioGioco(Casuale(Formato(gioco), 400), file_di(gioco)).Riuscito());
    ASSERT_TRUE(SalvaArchivioGioco(Casuale(FormatoGenerico(5, 90), 400), file_di(Gioco::Generico)).Riuscito());
    ASSERT_TRUE(SalvaArchivioGioco(OgniCinqueMinuti(400), file_di(Gioco::DieciELottoOgniCinqueMinuti)).Riuscito());
    ASSERT_TRUE(SalvaArchivioGioco(Casuale(FormatoGenerico(5, 90), 400), file_di(Gioco::Generico)).Riuscito());
    impostazioni.file_agenda = m_cartella / "AgendaGiocate.db";
    const figures::Struttura coppia = test::StrutturaCoppia();
    std::filesystem::create_directories(m_cartella / "strutture");
    ASSERT_TRUE(figures::SalvaStruttura(m_cartella / "strutture" / "coppia.dat", coppia));
    m_ospite.disegno = &m_area;
    Avvia(test::ArchivioReale(), std::move(impostazioni));
  }

  test::CartellaTemporanea m_cartella;
  AreaMuta m_area;
};

// Names whose job needs what a test never has: a desktop to open files on, or a server (their own
// tests reach local servers and files).
bool FuoriDaUnaProva(std::string_view nome) {
  constexpr std::string_view kFuori[] = {"ApriDirectory",      "LanciaFile",         "DownloadFromWeb",
                                         "DownloadFromFtp",    "UploadFileFtp",      "AggiornaArchivio",
                                         "AggiornaArchivioSE", "AggiornaArchivioDL", "AggiornaArchivioWF"};
  return std::find(std::begin(kFuori), std::end(kFuori), nome) != std::end(kFuori);
}

TEST_F(EsempiDelRiferimento, GiranoSenzaErroriNeMessaggi) {
  std::vector<std::string> falliti;
  size_t eseguiti = 0;
  for (const SchedaFunzione& scheda : Riferimento()) {
    if (!scheda.legata || scheda.esempio.empty() || FuoriDaUnaProva(scheda.nome)) continue;
    ++eseguiti;
    m_ospite.avvisi.clear();
    if (!m_engine.ExecuteStatement(text::Utf8ToUtf16(scheda.esempio))) {
      falliti.push_back(fmt::format("{}: errore {} {}", scheda.nome, m_engine.Error().number,
                                    text::Utf16ToUtf8(m_engine.Error().description)));
    } else if (!m_ospite.avvisi.empty()) {
      falliti.push_back(fmt::format("{}: {}", scheda.nome, m_ospite.avvisi.front().testo));
    }
  }
  std::string elenco;
  for (const std::string& fallito : falliti) elenco += fallito + "\n";
  EXPECT_TRUE(falliti.empty()) << falliti.size() << " examples fail:\n" << elenco;
  EXPECT_GT(eseguiti, 600u);
}

}  // namespace
}  // namespace lottolab::script
