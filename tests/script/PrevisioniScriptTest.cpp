// SalvaPrevisione from a script: what is saved is read back as the script gave it, and a hostile
// argument, a run without an agenda's folder or a protected run writes nothing.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "LibreriaDiProva.h"
#include "TempDir.h"
#include "previsioni/ArchivioPrevisioni.h"

namespace lottolab::script {
namespace {

TabellaEstrazioni DieciEstrazioni() {
  std::vector<Estrazione> estrazioni;
  for (int id = 1; id <= 10; ++id) estrazioni.push_back(Datata(id, {static_cast<int16_t>(id), 1, 2, 2024}));
  return TabellaEstrazioni(std::move(estrazioni));
}

class Previsioni : public Libreria {
 protected:
  void SetUp() override {
    ImpostazioniLibreria impostazioni;
    impostazioni.cartella_base = m_cartella.Percorso();
    impostazioni.cartella_output = m_cartella.Percorso();
    impostazioni.file_agenda = m_cartella / "AgendaGiocate.db";
    Avvia(DieciEstrazioni(), impostazioni);
  }

  std::vector<previsioni::Previsione> Salvate() {
    auto archivio = previsioni::ArchivioPrevisioni::Apri(m_cartella / "Previsioni.db");
    EXPECT_TRUE(archivio);
    if (!archivio) return {};
    auto elenco = archivio->Elenco();
    EXPECT_TRUE(elenco);
    return elenco ? *elenco : std::vector<previsioni::Previsione>{};
  }

  test::CartellaTemporanea m_cartella;
};

TEST_F(Previsioni, LoScriptSalvaELaPrevisioneSiRilegge) {
  EXPECT_EQ(Testo("SalvaPrevisione(Array(91, 45), Array(NZ_, BA_), 9, 4, \"ambo per Natale\")"), "1");
  EXPECT_EQ(Testo("SalvaPrevisione(Array(3), TT_, 18)"), "2");
  ASSERT_TRUE(m_ospite.avvisi.empty()) << m_ospite.avvisi.front().testo;
  const auto salvate = Salvate();
  ASSERT_EQ(salvate.size(), 2U);
  // 91 is brought into 1..90; NZ_ is the table's wheel 11, kept after Bari; TT_ the ten city wheels.
  EXPECT_EQ(salvate[0].numeri, (std::vector<int>{1, 45}));
  EXPECT_EQ(salvate[0].ruote, (std::vector<int>{BA, NZ}));
  EXPECT_EQ(salvate[0].id_estr, 4);
  EXPECT_EQ(salvate[0].colpi, 9);
  EXPECT_EQ(salvate[0].testo, "ambo per Natale");
  EXPECT_EQ(salvate[1].ruote, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
  EXPECT_EQ(salvate[1].id_estr, 10) << "the archive's last draw";
}

TEST_F(Previsioni, GliArgomentiOstiliNonScrivonoNulla) {
  const struct {
    const char* chiamata;
    const char* spiegazione;
  } casi[] = {
      {"SalvaPrevisione(Array(5, 5), Array(BA_), 3)", "due volte"},
      {"SalvaPrevisione(Array(5), Array(BA_), 0)", "Colpi"},
      {"SalvaPrevisione(Array(5), Array(BA_), 1001)", "da 1 a 1000"},
      {"SalvaPrevisione(Array(5), Array(BA_), 3, 11)", "IdEstr"},
      {"SalvaPrevisione(Array(5), Array(13), 3)", "13"},
      {"SalvaPrevisione(Array(5), Array(BA_), 3, 1, String(2001, \"x\"))", "2000 caratteri"},
  };
  for (const auto& caso : casi) {
    EXPECT_TRUE(Vuoto(caso.chiamata)) << caso.chiamata;
    AvvisoErrore5("SalvaPrevisione", caso.spiegazione, caso.chiamata);
  }
  EXPECT_TRUE(Salvate().empty());
}

TEST_F(Libreria, SenzaAgendaNonSiSalva) {
  Avvia(DieciEstrazioni());
  EXPECT_TRUE(Vuoto("SalvaPrevisione(Array(1), Array(BA_), 3)"));
  AvvisoErrore5("SalvaPrevisione", "Nessun archivio delle previsioni", "no agenda");
}

TEST_F(Libreria, InModalitaProtettaNonSiSalva) {
  test::CartellaTemporanea cartella;
  ImpostazioniLibreria impostazioni;
  impostazioni.modalita = Modalita::Protetta;
  impostazioni.cartella_base = cartella.Percorso();
  impostazioni.cartella_output = cartella / "scriptOutput";
  impostazioni.file_agenda = cartella / "AgendaGiocate.db";
  Avvia(DieciEstrazioni(), impostazioni);
  EXPECT_EQ(Testo("SalvaPrevisione(Array(1), Array(BA_), 3)"), "errore 70");
  EXPECT_FALSE(std::filesystem::exists(cartella / "Previsioni.db"));
}

}  // namespace
}  // namespace lottolab::script
