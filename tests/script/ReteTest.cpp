// DownloadFromWeb, DownloadFromFtp and UploadFileFtp against servers of the test on 127.0.0.1: what
// a script gets back, what the user is shown, and what each mode lets through.

#include <gtest/gtest.h>

#include <fmt/format.h>

#include "LibreriaDiProva.h"
#include "ServerLocali.h"
#include "TempDir.h"
#include "script/EsecutoreScript.h"
#include "text/Utf.h"

namespace lottolab::script {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using test::Leggi;
using test::Scrivi;

class Rete : public ::testing::Test {
 protected:
  Rete() {
    fs::create_directories(m_base / "scriptOutput");
    m_opzioni.libreria.cartella_base = m_base.Percorso();
    m_opzioni.libreria.cartella_output = m_base / "scriptOutput";
    m_opzioni.libreria.cartella_dati_app = m_base.Percorso();
    m_opzioni.nome_file_html = (m_base / "scriptOutput" / "pagina.htm").string();
    m_http.Aggiungi("/dati.txt", {200, "riga 1\nriga 2\n"});
    m_ftp.Metti("/pub/previsioni.txt", "12 34 56");
  }

  // Runs the body inside Sub Main, with WEB and FTP the servers' addresses and FUORI a folder outside
  // the base folder, each with a trailing "/".
  EsitoEsecuzione Esegui(std::string_view corpo) {
    const std::string codice =
        fmt::format("Const WEB = \"{}\"\nConst FTP = \"127.0.0.1:{}/\"\nConst FUORI = \"{}/\"\nSub Main\n{}\nEnd Sub\n",
                    m_http.Indirizzo("/"), m_ftp.Porta(), m_fuori.Percorso().string(), corpo);
    m_ospite.testo.clear();
    m_ospite.avvisi.clear();
    return m_esecutore.Esegui(text::Utf8ToUtf16(codice), m_opzioni);
  }

  std::string Avvisi() const {
    std::string testo;
    for (const Avviso& avviso : m_ospite.avvisi) testo += avviso.titolo + ": " + avviso.testo + "\n";
    return testo;
  }

  test::CartellaTemporanea m_base;
  test::CartellaTemporanea m_fuori;
  test::ServerHttp m_http;
  test::ServerFtp m_ftp{"mario", "segreta"};
  OspiteDiProva m_ospite;
  EsecutoreScript m_esecutore{m_ospite};
  OpzioniEsecuzione m_opzioni;
};

TEST_F(Rete, ScaricaEInviaRestituendoVeroOFalsoColMotivo) {
  const uint16_t chiusa = test::PortaChiusa();
  const auto esito = Esegui(fmt::format(
      "Scrivi DownloadFromWeb(WEB & \"dati.txt\", \"scaricati\\web.txt\")\n"
      "Scrivi DownloadFromWeb(WEB & \"assente.txt\", \"scaricati\\web.txt\", 5)\n"
      "Scrivi DownloadFromWeb(\"http://127.0.0.1:{}/x.txt\", \"scaricati\\altro.txt\")\n"
      "Scrivi DownloadFromFtp(FTP & \"pub/previsioni.txt\", \"scaricati/ftp.txt\", \"mario\", \"segreta\")\n"
      "Scrivi UploadFileFtp(\"scaricati/web.txt\", \"ftp://\" & FTP & \"su/\", \"mario\", \"segreta\", 10)\n"
      "Scrivi UploadFileFtp(\"scaricati/web.txt\", FTP & \"su/x.txt\", \"mario\", \"sbagliata\")",
      chiusa));
  ASSERT_EQ(esito.stato, EsitoEsecuzione::Stato::Completato) << (esito.errore ? esito.errore->descrizione : "");
  EXPECT_EQ(m_ospite.testo, "Vero\nFalso\nFalso\nVero\nVero\nFalso\n");
  EXPECT_EQ(Leggi(m_base / "scaricati" / "web.txt"), "riga 1\nriga 2\n");
  EXPECT_EQ(Leggi(m_base / "scaricati" / "ftp.txt"), "12 34 56");
  EXPECT_EQ(m_ftp.Contenuto("/su/web.txt"), "riga 1\nriga 2\n");
  EXPECT_FALSE(fs::exists(m_base / "scaricati" / "altro.txt"));
  const std::string web = fmt::format("127.0.0.1:{}", m_http.Porta());
  const std::string ftp = fmt::format("127.0.0.1:{}", m_ftp.Porta());
  EXPECT_EQ(Avvisi(),
            fmt::format("ClsFunctionsGeodoScript.DownloadFromWeb: Impossibile scaricare {0}assente.txt: {1} ha "
                        "risposto 404 (file non trovato)\n"
                        "ClsFunctionsGeodoScript.DownloadFromWeb: Impossibile scaricare http://127.0.0.1:{2}/x.txt: "
                        "127.0.0.1:{2} non accetta la connessione: il server è spento o irraggiungibile, oppure il "
                        "computer non è collegato a Internet\n"
                        "ClsFunctionsGeodoScript.UploadFileFtp: Impossibile inviare {3} a ftp://{4}/su/x.txt: {4} ha "
                        "rifiutato il nome utente o la password\n",
                        m_http.Indirizzo("/"), web, chiusa, (m_base / "scaricati" / "web.txt").string(), ftp));
}

// The Timeout argument ends a stalled transfer with a message; the run's own time-out ends the
// script within a second, with nothing left at the destination.
TEST_F(Rete, TempoMassimoEInterruzione) {
  m_http.Aggiungi("/lento.txt", {200, std::string(100'000, 'l'), 0ms, 1000, 100ms});
  auto esito = Esegui("Scrivi DownloadFromWeb(WEB & \"lento.txt\", \"lento.txt\", 1)");
  ASSERT_EQ(esito.stato, EsitoEsecuzione::Stato::Completato);
  EXPECT_EQ(m_ospite.testo, "Falso\n");
  EXPECT_NE(Avvisi().find("non ha completato il trasferimento entro 1 secondo"), std::string::npos) << Avvisi();

  m_opzioni.timeout_ms = 500;
  const auto inizio = std::chrono::steady_clock::now();
  esito = Esegui("Scrivi DownloadFromWeb(WEB & \"lento.txt\", \"lento.txt\")\nScrivi \"dopo\"");
  EXPECT_LT(std::chrono::steady_clock::now() - inizio, 3s);
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::ErroreScript);
  EXPECT_EQ(m_ospite.testo, "");
  EXPECT_FALSE(fs::exists(m_base / "lento.txt"));
  EXPECT_EQ(std::distance(fs::directory_iterator(m_base.Percorso()), fs::directory_iterator()), 1)
      << "only scriptOutput: no temporary file left";

  m_opzioni.timeout_ms = -1;
  esito = Esegui("DownloadFromWeb WEB & \"dati.txt\", \"x.txt\", 0");
  EXPECT_NE(Avvisi().find("Timeout in secondi da 1 a 3600: 0 non è ammesso"), std::string::npos) << Avvisi();
  EXPECT_FALSE(fs::exists(m_base / "x.txt"));
}

TEST_F(Rete, InModalitaProtettaScaricaSoloNellOutputENonInviaNulla) {
  m_opzioni.libreria.modalita = Modalita::Protetta;
  auto esito = Esegui("Scrivi DownloadFromWeb(WEB & \"dati.txt\", \"scriptOutput/web.txt\")");
  ASSERT_EQ(esito.stato, EsitoEsecuzione::Stato::Completato) << (esito.errore ? esito.errore->descrizione : "");
  EXPECT_EQ(Leggi(m_base / "scriptOutput" / "web.txt"), "riga 1\nriga 2\n");

  const std::pair<std::string, std::string> rifiutati[] = {
      {"DownloadFromWeb WEB & \"dati.txt\", FUORI & \"web.txt\"", "DownloadFromWeb"},
      {"DownloadFromFtp FTP & \"pub/previsioni.txt\", \"Script/p.txt\", \"mario\", \"segreta\"", "DownloadFromFtp"},
      {"UploadFileFtp \"scriptOutput/web.txt\", FTP & \"su/\", \"mario\", \"segreta\"", "UploadFileFtp"},
  };
  for (const auto& [corpo, funzione] : rifiutati) {
    esito = Esegui(corpo);
    ASSERT_TRUE(esito.errore) << corpo;
    EXPECT_EQ(esito.errore->numero, 70) << esito.errore->descrizione;
    EXPECT_NE(esito.errore->descrizione.find("Permesso negato: " + funzione), std::string::npos)
        << esito.errore->descrizione;
  }
  EXPECT_FALSE(fs::exists(m_fuori / "web.txt"));
  EXPECT_FALSE(fs::exists(m_base / "Script"));
  EXPECT_FALSE(m_ftp.Contenuto("/su/web.txt"));
}

}  // namespace
}  // namespace lottolab::script
