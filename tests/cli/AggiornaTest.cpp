#include <gtest/gtest.h>

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "DatiReali.h"
#include "LottolabDiProva.h"
#include "ServerLocali.h"

namespace lottolab::cli {
namespace {

namespace fs = std::filesystem;

constexpr const char* kRuote[] = {"BA", "CA", "FI", "GE", "MI", "NA", "PA", "RO", "TO", "VE", "NZ"};

// Wheel r of a Lotto draw whose numbers start from `primo`: five numbers in a row, every wheel
// after the one before, so that no number repeats among the city wheels.
int Numero(int primo, int ruota, int posizione) { return (primo + ruota * 5 + posizione) % 90 + 1; }

std::string EstrazioneDelLotto(const std::string& data, int primo) {
  std::string righe;
  for (int ruota = 0; ruota < 11; ++ruota)
    righe +=
        fmt::format("{}\t{}\t{}\t{}\t{}\t{}\t{}\n", data, kRuote[ruota], Numero(primo, ruota, 0),
                    Numero(primo, ruota, 1), Numero(primo, ruota, 2), Numero(primo, ruota, 3), Numero(primo, ruota, 4));
  return righe;
}

// The evening 10eLotto of that draw, as a results line gives it: the first two numbers of the ten
// city wheels; the Numero Oro "-" (not given).
std::string SerataDelLotto(const std::string& data, int concorso, int primo) {
  std::vector<int> numeri;
  for (int ruota = 0; ruota < 10; ++ruota)
    for (int posizione = 0; posizione < 2; ++posizione) numeri.push_back(Numero(primo, ruota, posizione));
  std::sort(numeri.begin(), numeri.end());
  return fmt::format("{} {} {} -\n", data, concorso, fmt::join(numeri, " "));
}

class Aggiorna : public LottolabDiProva {
 protected:
  std::string Scrivi(const std::string& nome, const std::string& testo) {
    test::Scrivi(m_base / nome, testo);
    return (m_base / nome).string();
  }
  std::string Indirizzo(const std::string& nome) { return "file://" + (m_base / nome).string(); }
};

TEST_F(Aggiorna, OgniGiocoConUnIndirizzoEUnoCheFallisceNonFermaGliAltri) {
  Scrivi("lotto.txt", EstrazioneDelLotto("2010/01/05", 0));
  Scrivi("se.txt", "2010/01/02\t1\t1\t2\t3\t4\t5\t6\t7\t8\n");
  Scrivi("ft.txt", "# numeri 3 massimo 40\n01/02/2026 1 2 40\n");
  Scrivi("lottolab.ini", "[GENERALE]\nsIndirizzoRisultati=" + Indirizzo("lotto.txt") + "\nsIndirizzoRisultatiSE=" +
                             Indirizzo("se.txt") + "\nsIndirizzoRisultatiWF=" + Indirizzo("non-pubblicato.txt") +
                             "\nsIndirizzoRisultatiFT=" + Indirizzo("ft.txt") + "\n");
  auto tutti = Lottolab({"aggiorna"});
  EXPECT_EQ(tutti.codice, 2) << "Win for Life failed";
  EXPECT_EQ(tutti.out,
            "importata 1 estrazione\n"
            "importata 1 estrazione del SuperEnalotto\n"
            "importata 1 estrazione dell'archivio generico\n");
  EXPECT_NE(tutti.err.find("lottolab: l'archivio del Win for Life non è stato aggiornato: Impossibile scaricare " +
                           Indirizzo("non-pubblicato.txt")),
            std::string::npos)
      << tutti.err;
  EXPECT_FALSE(fs::exists(m_base / "WinForLife.dat"));
  EXPECT_FALSE(fs::exists(m_base / "10eLotto5.dat")) << "no address, no archive";
  for (const fs::directory_entry& voce : fs::directory_iterator(m_base.Percorso()))
    EXPECT_FALSE(voce.path().filename().string().starts_with("risultati-scaricati")) << voce.path();

  Scrivi("se.txt", "2010/01/02\t1\t1\t2\t3\t4\t5\t6\t7\t8\n2010/01/05\t2\t11\t12\t13\t14\t15\t90\t17\t0\n");
  auto solo_se = Lottolab({"--gioco", "SE", "aggiorna"});
  EXPECT_EQ(solo_se.codice, 0) << solo_se.err;
  EXPECT_EQ(solo_se.out, "importata 1 estrazione del SuperEnalotto\n");

  auto senza_indirizzo = Lottolab({"--gioco", "DL5", "aggiorna"});
  EXPECT_EQ(senza_indirizzo.codice, 2);
  EXPECT_EQ(senza_indirizzo.err,
            "lottolab: l'archivio del 10eLotto ogni 5 minuti non ha un indirizzo da cui scaricare i risultati: lo dà "
            "la chiave sIndirizzoRisultatiDL5 di [GENERALE] in lottolab.ini\n");
  auto rifiutato = Lottolab({"--gioco", "SE", "aggiorna", "ancora"});
  EXPECT_EQ(rifiutato.codice, 2);
}

// A new installation: the base folder does not exist yet, and the update creates it with the
// archive. The results come from a server of the test; a failed download says why in Italian,
// naming the host, and leaves nothing behind.
TEST_F(Aggiorna, UnaNuovaInstallazioneSiAggiornaDaUnIndirizzoDato) {
  test::ServerHttp server;
  server.Aggiungi("/lotto.txt", {200, EstrazioneDelLotto("2010/01/05", 0) + EstrazioneDelLotto("2010/01/07", 3)});
  server.Aggiungi("/se.txt", {200, "2010/01/02\t1\t1\t2\t3\t4\t5\t6\t7\t8\n"});
  const fs::path nuova = m_base / "nuova" / "lottolab";
  setenv("LOTTOLAB_HOME", nuova.c_str(), 1);

  auto lotto = Lottolab({"aggiorna", "--indirizzo", server.Indirizzo("/lotto.txt")});
  EXPECT_EQ(lotto.codice, 0) << lotto.err;
  EXPECT_EQ(lotto.out, "importate 2 estrazioni\n");
  auto se = Lottolab({"--gioco", "SE", "aggiorna", "--indirizzo", server.Indirizzo("/se.txt")});
  EXPECT_EQ(se.out, "importata 1 estrazione del SuperEnalotto\n") << se.err;
  // The archives and their lock files, the example scripts of a first run, and nothing of the downloads.
  auto file = [&] {
    std::vector<std::string> nomi;
    for (const fs::directory_entry& voce : fs::directory_iterator(nuova)) nomi.push_back(voce.path().filename());
    std::sort(nomi.begin(), nomi.end());
    return nomi;
  };
  const std::vector<std::string> archivi = {"BaseDati.dat", "BaseDati.dat.lock", "Script", "SuperEnalotto.dat",
                                            "SuperEnalotto.dat.lock"};
  EXPECT_EQ(file(), archivi);

  const std::string host = fmt::format("127.0.0.1:{}", server.Porta());
  const uint16_t chiusa = test::PortaChiusa();
  const std::string spento = fmt::format("http://127.0.0.1:{}/lotto.zip", chiusa);
  const std::pair<std::string, std::string> guasti[] = {
      {server.Indirizzo("/assente.zip"), host + " ha risposto 404 (file non trovato)"},
      {spento, fmt::format("127.0.0.1:{} non accetta la connessione: il server è spento o irraggiungibile, oppure il "
                           "computer non è collegato a Internet",
                           chiusa)},
  };
  const std::string archivio = test::Leggi(nuova / "BaseDati.dat");
  for (const auto& [indirizzo, motivo] : guasti) {
    auto fallito = Lottolab({"aggiorna", "--indirizzo", indirizzo});
    EXPECT_NE(fallito.codice, 0);
    EXPECT_EQ(fallito.err, fmt::format("lottolab: Impossibile scaricare {}: {}\n", indirizzo, motivo));
  }
  EXPECT_EQ(test::Leggi(nuova / "BaseDati.dat"), archivio);
  EXPECT_EQ(file(), archivi);
  EXPECT_EQ(Lottolab({"aggiorna", "--indirizzo"}).codice, 2);
}

// The 10eLotto evening archive follows the Lotto archive once it exists: the evenings the Lotto adds
// are derived, those held from the results alone completed, their contests kept.
TEST_F(Aggiorna, LImportazioneDelLottoAllineaIl10eLotto) {
  EXPECT_EQ(Lottolab({"importa",
                      Scrivi("lotto1.txt", EstrazioneDelLotto("2010/01/05", 0) + EstrazioneDelLotto("2010/01/07", 3))})
                .out,
            "importate 2 estrazioni\n")
      << "no 10eLotto archive yet, nothing to follow";
  auto dl = Lottolab({"--gioco", "DL", "importa", Scrivi("dl.txt", SerataDelLotto("2010/01/09", 7, 11))});
  EXPECT_EQ(dl.out, "importate 3 estrazioni del 10eLotto\n") << dl.err;
  const std::string sera_dai_risultati = Lottolab({"--gioco", "DL", "estrazione", "3"}).out;
  EXPECT_EQ(sera_dai_risultati.find("Oro"), std::string::npos) << sera_dai_risultati;

  const std::string lotto2 =
      Scrivi("lotto2.txt", EstrazioneDelLotto("2010/01/09", 11) + EstrazioneDelLotto("2010/01/12", 20));
  auto altro = Lottolab({"--archivio", (m_base / "prova.dat").string(), "importa", lotto2});
  EXPECT_EQ(altro.out, "importate 2 estrazioni\n") << "the 10eLotto follows the configured Lotto archive alone";

  auto lotto = Lottolab({"importa", lotto2});
  EXPECT_EQ(lotto.codice, 0) << lotto.err;
  EXPECT_EQ(lotto.out,
            "importate 2 estrazioni\n10eLotto serale: aggiunte 1 serate dall'archivio del Lotto, completate 1\n");
  EXPECT_EQ(Lottolab({"--gioco", "DL", "info"}).out,
            "gioco: 10eLotto\nestrazioni: 4\nprima: 05/01/2010\nultima: 12/01/2010\n");
  const std::string completata = Lottolab({"--gioco", "DL", "estrazione", "3"}).out;
  EXPECT_TRUE(completata.starts_with("3 09/01/2010 concorso 7: ")) << completata;
  EXPECT_TRUE(completata.ends_with("  Oro 12\n")) << completata;

  const std::string prima = test::Leggi(m_base / "10eLotto.dat");
  EXPECT_EQ(Lottolab({"importa", lotto2}).out, "importate 0 estrazioni\n");
  EXPECT_EQ(test::Leggi(m_base / "10eLotto.dat"), prima);

  // An evening the Lotto archive lacks is never dropped: the 10eLotto archive stays as it is.
  ASSERT_EQ(Lottolab({"--gioco", "DL", "importa", Scrivi("dl2.txt", SerataDelLotto("2010/01/14", 9, 30))}).codice, 0);
  const std::string con_la_14 = test::Leggi(m_base / "10eLotto.dat");
  auto senza = Lottolab({"importa", Scrivi("lotto3.txt", EstrazioneDelLotto("2010/01/16", 40))});
  EXPECT_EQ(senza.codice, 0) << "the Lotto import itself went well";
  EXPECT_NE(senza.err.find("lottolab: attenzione: 10eLotto serale non ricavato di nuovo dall'archivio del Lotto: "
                           "L'archivio del 10eLotto " +
                           (m_base / "10eLotto.dat").string() +
                           " ha la serata del 14/01/2010, che l'archivio del Lotto non ha\n"),
            std::string::npos)
      << senza.err;
  EXPECT_EQ(test::Leggi(m_base / "10eLotto.dat"), con_la_14);
}

// The last hundred Lotto draws imported after the 10eLotto results give the archive that the whole
// Lotto archive gives at once, byte for byte.
TEST_F(Aggiorna, IlLottoRealeImportatoInDueVolteDaIl10eLottoDiUnaVolta) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const fs::path lotto = test::CartellaDatiReali() / "lotto.txt";
  const fs::path dieci_e_lotto = test::CartellaDatiReali() / "10elotto.txt";
  std::string testo = test::Leggi(lotto);
  for (int righe = 0; righe < 100 * 11; ++righe) testo.erase(testo.rfind('\n', testo.size() - 2) + 1);
  ASSERT_EQ(Lottolab({"importa", Scrivi("lotto-prima.txt", testo)}).codice, 0);
  ASSERT_EQ(Lottolab({"--gioco", "DL", "importa", dieci_e_lotto.string()}).codice, 0);
  const auto seguito = Lottolab({"importa", lotto.string()});
  EXPECT_EQ(seguito.out,
            "importate 100 estrazioni\n10eLotto serale: aggiunte 0 serate dall'archivio del Lotto, "
            "completate 100\n")
      << seguito.err;
  const std::string allineato = test::Leggi(m_base / "10eLotto.dat");

  fs::remove(m_base / "10eLotto.dat");
  ASSERT_EQ(Lottolab({"--gioco", "DL", "importa", dieci_e_lotto.string()}).codice, 0);
  EXPECT_EQ(test::Leggi(m_base / "10eLotto.dat"), allineato);
}

}  // namespace
}  // namespace lottolab::cli
