#include <gtest/gtest.h>

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "ServerLocali.h"
#include "TempDir.h"
#include "rete/ScaricaRisultati.h"
#include "rete/Trasferimento.h"

namespace lottolab::rete {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class Trasferimento : public testing::Test {
 protected:
  // The files of the folder, to see that no temporary file is left behind.
  std::vector<std::string> Contenuto() const {
    std::vector<std::string> nomi;
    for (const auto& voce : fs::recursive_directory_iterator(m_cartella.Percorso()))
      nomi.push_back(fs::relative(voce.path(), m_cartella.Percorso()).string());
    std::sort(nomi.begin(), nomi.end());
    return nomi;
  }
  static OpzioniTrasferimento Opzioni(std::chrono::seconds tempo = 10s) {
    OpzioniTrasferimento opzioni;
    opzioni.attesa_connessione = 5s;
    opzioni.tempo_massimo = tempo;
    return opzioni;
  }

  test::CartellaTemporanea m_cartella;
  fs::path m_destinazione = m_cartella / "scaricato.txt";
  test::ServerHttp m_http;
};

TEST_F(Trasferimento, UnDownloadRiuscitoSostituisceLaDestinazioneEHaAvanzamento) {
  const std::string corpo(100'000, 'x');
  m_http.Aggiungi("/dati.txt", {200, corpo, 0ms, 10'000, 1ms});
  test::Scrivi(m_destinazione, "vecchio");
  std::vector<uint64_t> totali;
  OpzioniTrasferimento opzioni = Opzioni();
  opzioni.avanzamento = [&](uint64_t, uint64_t totale) {
    totali.push_back(totale);
    return Prosegui::Si;
  };

  auto esito = Scarica(m_http.Indirizzo("/dati.txt"), m_destinazione, opzioni);
  ASSERT_TRUE(esito) << esito.Errore().testo;
  EXPECT_EQ(*esito, corpo.size());
  EXPECT_EQ(test::Leggi(m_destinazione), corpo);
  EXPECT_EQ(Contenuto(), std::vector<std::string>{"scaricato.txt"});
  EXPECT_NE(std::find(totali.begin(), totali.end(), corpo.size()), totali.end()) << "the total is told";
}

// Every failure leaves the destination as it was and no file beside it, and says why in Italian,
// naming the host.
TEST_F(Trasferimento, OgniFallimentoLasciaLaDestinazioneComEraEDiceIlMotivo) {
  m_http.Aggiungi("/lento.txt", {200, "tardi", 3s});
  m_http.Aggiungi("/errore.txt", {500, "guasto"});
  m_http.Aggiungi("/grande.txt", {200, std::string(5000, 'g')});
  m_http.Aggiungi("/piano.txt", {200, std::string(200'000, 'p'), 0ms, 1000, 20ms});
  const std::string host = fmt::format("127.0.0.1:{}", m_http.Porta());
  const uint16_t chiusa = test::PortaChiusa();
  struct Caso {
    std::string indirizzo;
    std::string motivo;
    OpzioniTrasferimento opzioni;
  };
  OpzioniTrasferimento piccolo = Opzioni();
  piccolo.byte_massimi = 1000;
  OpzioniTrasferimento annullato = Opzioni();
  annullato.avanzamento = [](uint64_t fatti, uint64_t) { return fatti > 0 ? Prosegui::No : Prosegui::Si; };
  OpzioniTrasferimento solo_web = Opzioni();
  solo_web.protocolli = "http,https";
  const std::vector<Caso> casi = {
      {m_http.Indirizzo("/assente.txt"), host + " ha risposto 404 (file non trovato)", Opzioni()},
      {m_http.Indirizzo("/errore.txt"), host + " ha risposto 500 (errore interno del server)", Opzioni()},
      {m_http.Indirizzo("/lento.txt"), host + " non ha completato il trasferimento entro 1 secondo", Opzioni(1s)},
      {fmt::format("http://127.0.0.1:{}/x.zip", chiusa),
       fmt::format("127.0.0.1:{} non accetta la connessione: il server è spento o irraggiungibile, oppure il computer "
                   "non è collegato a Internet",
                   chiusa),
       Opzioni()},
      {m_http.Indirizzo("/grande.txt"), "il file supera il limite di 1000 byte", piccolo},
      {m_http.Indirizzo("/piano.txt"), "trasferimento annullato", annullato},
      {"file:///etc/hostname", "l'indirizzo usa un protocollo non ammesso qui", solo_web},
  };
  test::Scrivi(m_destinazione, "vecchio");
  for (const Caso& caso : casi) {
    const auto inizio = std::chrono::steady_clock::now();
    auto esito = Scarica(caso.indirizzo, m_destinazione, caso.opzioni);
    ASSERT_FALSE(esito) << caso.indirizzo;
    EXPECT_EQ(esito.Errore().testo, fmt::format("Impossibile scaricare {}: {}", caso.indirizzo, caso.motivo));
    EXPECT_LT(std::chrono::steady_clock::now() - inizio, 3s) << caso.indirizzo << " gives up in time";
    EXPECT_EQ(test::Leggi(m_destinazione), "vecchio") << caso.indirizzo;
    EXPECT_EQ(Contenuto(), std::vector<std::string>{"scaricato.txt"}) << caso.indirizzo;
  }
}

TEST_F(Trasferimento, LaCartellaMancanteVieneCreataEUnaCartellaImpossibileLoDice) {
  m_http.Aggiungi("/lotto.txt", {200, "estrazioni"});
  const fs::path dentro = m_cartella / "nuova" / "base" / "lotto.txt";
  auto esito = ScaricaRisultati(m_http.Indirizzo("/lotto.txt"), dentro);
  ASSERT_TRUE(esito) << esito.Errore().testo;
  EXPECT_EQ(test::Leggi(dentro), "estrazioni");

  test::Scrivi(m_cartella / "un-file", "");
  const fs::path impossibile = m_cartella / "un-file" / "lotto.txt";
  esito = ScaricaRisultati(m_http.Indirizzo("/lotto.txt"), impossibile);
  ASSERT_FALSE(esito);
  EXPECT_EQ(esito.Errore().testo, fmt::format("Impossibile scaricare {}: impossibile creare la cartella {}",
                                              m_http.Indirizzo("/lotto.txt"), (m_cartella / "un-file").string()));
}

TEST_F(Trasferimento, FtpScaricaEInviaConUtenteEPassword) {
  test::ServerFtp ftp("mario", "segreta");
  ftp.Metti("/pubblico/lotto.txt", "numeri del lotto");
  OpzioniTrasferimento opzioni = Opzioni();
  opzioni.utente = "mario";
  opzioni.password = "segreta";

  auto scaricato = Scarica(ftp.Indirizzo("/pubblico/lotto.txt"), m_destinazione, opzioni);
  ASSERT_TRUE(scaricato) << scaricato.Errore().testo;
  EXPECT_EQ(test::Leggi(m_destinazione), "numeri del lotto");

  const std::string inviato(70'000, 'i');
  test::Scrivi(m_cartella / "previsione.txt", inviato);
  auto caricato = Carica(m_cartella / "previsione.txt", ftp.Indirizzo("/uscite/nuova/previsione.txt"), opzioni);
  ASSERT_TRUE(caricato) << caricato.Errore().testo;
  EXPECT_EQ(*caricato, inviato.size());
  EXPECT_EQ(ftp.Contenuto("/uscite/nuova/previsione.txt"), inviato);

  const std::string host = fmt::format("127.0.0.1:{}", ftp.Porta());
  auto assente = Scarica(ftp.Indirizzo("/pubblico/assente.txt"), m_destinazione, opzioni);
  ASSERT_FALSE(assente);
  EXPECT_EQ(assente.Errore().testo, fmt::format("Impossibile scaricare {}: il file non esiste su {}",
                                                ftp.Indirizzo("/pubblico/assente.txt"), host));
  EXPECT_EQ(test::Leggi(m_destinazione), "numeri del lotto");

  opzioni.password = "sbagliata";
  auto rifiutato = Carica(m_cartella / "previsione.txt", ftp.Indirizzo("/x.txt"), opzioni);
  ASSERT_FALSE(rifiutato);
  EXPECT_EQ(rifiutato.Errore().testo,
            fmt::format("Impossibile inviare {} a {}: {} ha rifiutato il nome utente o la password",
                        (m_cartella / "previsione.txt").string(), ftp.Indirizzo("/x.txt"), host));
  EXPECT_FALSE(ftp.Contenuto("/x.txt"));

  auto senza_file = Carica(m_cartella / "assente.txt", ftp.Indirizzo("/x.txt"), opzioni);
  ASSERT_FALSE(senza_file);
  EXPECT_TRUE(senza_file.Errore().testo.ends_with(": il file non esiste o non è un file normale"))
      << senza_file.Errore().testo;
}

}  // namespace
}  // namespace lottolab::rete
