#include <gtest/gtest.h>

#include "TempDir.h"
#include "previsioni/ArchivioPrevisioni.h"

namespace lottolab::previsioni {
namespace {

using test::CartellaTemporanea;

Previsione Esempio() {
  Previsione p;
  p.numeri = {90, 1, 45};
  p.ruote = {1, 11};
  p.id_estr = 7000;
  p.colpi = 12;
  p.testo = "ambo secco: è la volta buona";
  return p;
}

TEST(ArchivioPrevisioni, SalvaRileggeERimuove) {
  CartellaTemporanea cartella;
  const auto file = FilePrevisioniAccanto(cartella / "AgendaGiocate.db");
  {
    auto archivio = ArchivioPrevisioni::Apri(file);
    ASSERT_TRUE(archivio) << archivio.Errore().testo;
    EXPECT_EQ(*archivio->Aggiungi(Esempio()), 1);
    Previsione seconda = Esempio();
    seconda.testo.clear();
    EXPECT_EQ(*archivio->Aggiungi(seconda), 2);
  }
  auto archivio = ArchivioPrevisioni::Apri(file);
  ASSERT_TRUE(archivio);
  auto elenco = archivio->Elenco();
  ASSERT_TRUE(elenco);
  ASSERT_EQ(elenco->size(), 2U);
  const Previsione& prima = (*elenco)[0];
  EXPECT_EQ(prima.numeri, (std::vector<int>{90, 1, 45}));
  EXPECT_EQ(prima.ruote, (std::vector<int>{1, 11}));
  EXPECT_EQ(prima.id_estr, 7000);
  EXPECT_EQ(prima.colpi, 12);
  EXPECT_EQ(prima.testo, "ambo secco: è la volta buona");
  EXPECT_GT(prima.creata, 0);

  // An unknown id among the chosen ones removes none of them.
  auto fallita = archivio->Rimuovi({1, 99});
  ASSERT_FALSE(fallita);
  EXPECT_EQ(fallita.Errore().testo, "la previsione 99 non è nell'archivio");
  EXPECT_EQ(archivio->Elenco()->size(), 2U);
  ASSERT_TRUE(archivio->Rimuovi({2, 1}));
  EXPECT_TRUE(archivio->Elenco()->empty());
}

TEST(ArchivioPrevisioni, RifiutaPrevisioniMalformate) {
  CartellaTemporanea cartella;
  auto archivio = ArchivioPrevisioni::Apri(cartella / "p.db");
  ASSERT_TRUE(archivio);
  const std::pair<void (*)(Previsione&), std::string> casi[] = {
      {[](Previsione& p) { p.numeri.clear(); }, "una previsione ha da 1 a 90 numeri"},
      {[](Previsione& p) { p.numeri.push_back(91); }, "il numero 91 non è tra 1 e 90"},
      {[](Previsione& p) { p.numeri.push_back(1); }, "i numeri di una previsione devono essere tutti diversi"},
      {[](Previsione& p) { p.ruote = {12}; }, "la ruota 12 non esiste"},
      {[](Previsione& p) {
         p.ruote = {3, 3};
       },
       "le ruote di una previsione devono essere tutte diverse"},
      {[](Previsione& p) { p.colpi = 0; }, "i colpi di una previsione vanno da 1 a 1000, non 0"},
      {[](Previsione& p) { p.testo.assign(5000, 'x'); }, "il testo di una previsione ha al più 2000 caratteri"},
  };
  for (const auto& [guasta, messaggio] : casi) {
    Previsione p = Esempio();
    guasta(p);
    auto id = archivio->Aggiungi(p);
    ASSERT_FALSE(id) << messaggio;
    EXPECT_EQ(id.Errore().testo, messaggio);
  }
  EXPECT_TRUE(archivio->Elenco()->empty());
  // The limit counts characters, not the bytes of their UTF-8.
  Previsione accentata = Esempio();
  accentata.testo.clear();
  for (int k = 0; k < 2000; ++k) accentata.testo += "è";
  EXPECT_TRUE(archivio->Aggiungi(accentata));
}

TEST(ArchivioPrevisioni, NonToccaFileCheNonSonoSuoi) {
  CartellaTemporanea cartella;
  const auto testo = cartella / "note.txt";
  test::Scrivi(testo, "non sono un database, ma un file di testo abbastanza lungo da sembrare qualcosa");
  auto rifiutato = ArchivioPrevisioni::Apri(testo);
  ASSERT_FALSE(rifiutato);
  EXPECT_NE(rifiutato.Errore().testo.find("non è un archivio delle previsioni"), std::string::npos);
  EXPECT_EQ(test::Leggi(testo), "non sono un database, ma un file di testo abbastanza lungo da sembrare qualcosa");
  EXPECT_FALSE(ArchivioPrevisioni::Apri(cartella.Percorso()));
  // The agenda's file is an SQLite database of another kind.
  {
    auto agenda = agenda::Connessione::Apri(cartella / "altro.db");
    ASSERT_TRUE(agenda);
    ASSERT_TRUE(agenda->Esegui("PRAGMA application_id = 1; CREATE TABLE t (x);"));
  }
  EXPECT_FALSE(ArchivioPrevisioni::Apri(cartella / "altro.db"));
}

}  // namespace
}  // namespace lottolab::previsioni
