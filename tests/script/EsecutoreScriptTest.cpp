#include "script/EsecutoreScript.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <future>
#include <sstream>
#include <thread>

#include "TempDir.h"
#include "text/Utf.h"

namespace lottolab::script {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;
using test::Leggi;
using test::Scrivi;

class OspiteDiProva final : public InterfacciaScript {
 public:
  void Scrivi(const TrattoTesto& tratto) override {
    std::lock_guard blocco(m_mutex);
    m_testo += tratto.testo;
    m_tratti.push_back(tratto);
  }
  void Mostra(const Avviso& avviso) override {
    std::lock_guard blocco(m_mutex);
    m_avvisi.push_back(avviso);
  }
  void Messaggio(const std::string& testo) override { m_messaggi.push_back(testo); }
  void Avanzamento(double percentuale) override { m_avanzamento.push_back(percentuale); }

  std::string Testo() {
    std::lock_guard blocco(m_mutex);
    return m_testo;
  }
  std::vector<Avviso> Avvisi() {
    std::lock_guard blocco(m_mutex);
    return m_avvisi;
  }
  std::vector<TrattoTesto> m_tratti;
  std::vector<std::string> m_messaggi;
  std::vector<double> m_avanzamento;

 private:
  std::mutex m_mutex;
  std::string m_testo;
  std::vector<Avviso> m_avvisi;
};

class EsecuzioneScript : public ::testing::Test {
 protected:
  EsecuzioneScript() {
    fs::create_directories(m_base / "scriptOutput");
    m_opzioni.libreria.cartella_base = m_base.Percorso();
    m_opzioni.libreria.cartella_output = m_base / "scriptOutput";
    m_opzioni.libreria.cartella_dati_app = m_base / "dati";
    m_opzioni.nome_file_html = "pagina.htm";
  }
  EsitoEsecuzione Esegui(std::string_view codice) { return m_esecutore.Esegui(text::Utf8ToUtf16(codice), m_opzioni); }

  CartellaTemporanea m_base;
  OspiteDiProva m_ospite;
  EsecutoreScript m_esecutore{m_ospite};
  OpzioniEsecuzione m_opzioni;
};

TEST(Inclusioni, TheLineNamesItsFileByTheRulesOfTheBaseFolders) {
  const CartelleScript cartelle{"/base", "/dati"};
  auto file = [&](std::u16string_view riga) { return FileDiInclusione(riga, cartelle); };
  EXPECT_EQ(file(u"includi Libreria.ls"), fs::path("/base/Script/Funzioni/Libreria.ls"));
  EXPECT_EQ(file(u"  INCLUDI \"Libreria.ls\"  ' le mie funzioni"), fs::path("/base/Script/Funzioni/Libreria.ls"));
  EXPECT_EQ(file(u"Includi GetDirectoryAppData\\Funz\\a.ls"), fs::path("/dati/Funz/a.ls"));
  EXPECT_EQ(file(u"includi \\\\server\\x.ls"), fs::path("//server/x.ls"));
  EXPECT_EQ(file(u"includi /opt/x.ls"), fs::path("/opt/x.ls"));
  EXPECT_EQ(file(u"' includi x.ls"), std::nullopt);
  EXPECT_EQ(file(u"includix.ls"), std::nullopt);
  EXPECT_EQ(file(u"Dim includi"), std::nullopt);
}

TEST(Inclusioni, IncludeLinesBecomeCommentsAndIncludedCodeLosesItsOptions) {
  CartellaTemporanea base;
  Scrivi(base / "Script/Funzioni/A.ls",
         "Option Explicit\r\noption compare text\r\nFunction Uno : Uno = 1 : End Function\r\n");
  auto espanso = GestioneIncludiFile(u"Option Explicit\nIncludi A.ls\nSub Main\nEnd Sub", {base.Percorso(), {}});
  ASSERT_TRUE(espanso);
  EXPECT_EQ(espanso->codice_utente, u"Option Explicit\n'Includi A.ls\nSub Main\nEnd Sub");
  ASSERT_EQ(espanso->inclusi.size(), 1u);
  EXPECT_EQ(espanso->inclusi[0].codice, u"\r\n\r\nFunction Uno : Uno = 1 : End Function\r\n");

  auto mancante = GestioneIncludiFile(u"includi Manca.ls\n", {base.Percorso(), {}});
  ASSERT_FALSE(mancante);
  EXPECT_EQ(mancante.Errore().testo,
            "File di inclusione \n" + (base / "Script/Funzioni/Manca.ls").string() + "\npercorso errato");
}

TEST(Timeout, EntriesOfTheBoxAndTheirMilliseconds) {
  const auto voci = VociTimeout();
  ASSERT_EQ(voci.size(), 11u);
  EXPECT_EQ(voci.front(), "Infinito");
  EXPECT_EQ(voci[1], "1 minuto");
  EXPECT_EQ(TimeoutDaVoce(1, voci[1]), 60000);
  EXPECT_EQ(voci[3], "3 minuti");
  EXPECT_EQ(TimeoutDaVoce(0, voci[0]), -1);
  EXPECT_EQ(TimeoutDaVoce(3, voci[3]), 180000);
  EXPECT_EQ(TimeoutDaVoce(10, voci[10]), 600000);
}

TEST(NomePagina, OutputFollowedByTheTimeStamp) {
  std::tm quando{};
  quando.tm_year = 2026 - 1900;
  quando.tm_mon = 0;
  quando.tm_mday = 5;
  quando.tm_hour = 7;
  quando.tm_min = 8;
  quando.tm_sec = 9;
  quando.tm_isdst = -1;
  EXPECT_EQ(NomeFileHtmlOutput(std::chrono::system_clock::from_time_t(std::mktime(&quando))),
            "Output20260105070809.htm");
}

TEST_F(EsecuzioneScript, RunsMainBetweenTheEntryPointsAndClosesThePage) {
  auto esito = Esegui("Sub Main\nScrivi \"a<b\"\nColoreTesto Rosso_\nScrivi 2.5, True\nEnd Sub");
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::Completato);
  EXPECT_EQ(m_ospite.Testo(), "a<b\n2,5\n");
  ASSERT_EQ(m_ospite.m_tratti.size(), 2u);
  EXPECT_EQ(m_ospite.m_tratti[1].colore, kRosso);
  EXPECT_TRUE(m_ospite.m_tratti[1].grassetto);
  EXPECT_EQ(Leggi(esito.pagina_html),
            "<html>\n<body bgcolor =#FFFFFF>\n<pre>\na&lt;b\n<font color=\"#FF0000\"><b>2,5\n</b></font></pre>\n"
            "</body>\n</html>\n");
}

TEST_F(EsecuzioneScript, ErrorsGiveTheLineOfTheUsersFileAndThePageIsStillClosed) {
  Scrivi(m_base / "Script/Funzioni/Lib.ls", "Option Explicit\nFunction Due\nDue = 2\nEnd Function\n");
  auto esito = Esegui("Option Explicit\nincludi Lib.ls\nSub Main\nScrivi Due()\nx = 1\nEnd Sub");
  ASSERT_EQ(esito.stato, EsitoEsecuzione::Stato::ErroreScript);
  EXPECT_EQ(esito.errore->numero, 500);
  EXPECT_EQ(esito.errore->riga, 5u);
  EXPECT_EQ(esito.errore->colonna, 1u);
  EXPECT_EQ(RapportoErrore(*esito.errore),
            "Errore script !\n500 - Variabile non definita: 'x'\nLinea   : 5\nColonna : 1\nSource : "
            "Errore di run-time di Microsoft VBScript\n");
  EXPECT_EQ(m_ospite.Testo(), "2\n");
  EXPECT_TRUE(Leggi(esito.pagina_html).ends_with("</html>\n"));
  EXPECT_EQ(esito.errore->codice, "script");

  Scrivi(m_base / "Script/Funzioni/Lib.ls", "Function Due\nDue = 2\nDue = Due / 0\nEnd Function\n");
  auto nellInclusione = Esegui("includi Lib.ls\nSub Main\nScrivi Due()\nEnd Sub");
  ASSERT_EQ(nellInclusione.stato, EsitoEsecuzione::Stato::ErroreScript);
  EXPECT_EQ(nellInclusione.errore->numero, 11);
  EXPECT_EQ(nellInclusione.errore->riga, 3u);
  EXPECT_EQ(nellInclusione.errore->codice, "Lib.ls") << "the line is the included file's";
}

// A procedure of an included file means by a name it does not declare the global that the user's
// script made by assigning it; the library's names stay the library's.
TEST_F(EsecuzioneScript, IncludedProceduresSeeTheGlobalsTheScriptMadeByAssignment) {
  Scrivi(m_base / "Script/Funzioni/Lib.ls",
         "Function Conta\nconteggio = conteggio + 1\nConta = conteggio\nEnd Function\n");
  auto esito = Esegui(
      "includi Lib.ls\nconteggio = 10\nSub Main\nFor r = 1 To 2\nScrivi Conta() & \" \" & r & \" \" & TU_\nNext\n"
      "Scrivi conteggio & \" \" & r\nEnd Sub");
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::Completato);
  EXPECT_EQ(m_ospite.Testo(), "11 1 11\n12 2 11\n12 3\n");
}

TEST_F(EsecuzioneScript, AScriptWithoutMainFailsAtTheCallOfMain) {
  auto esito = Esegui("Dim a\na = 1");
  ASSERT_EQ(esito.stato, EsitoEsecuzione::Stato::ErroreScript);
  EXPECT_EQ(esito.errore->numero, 13);
}

TEST_F(EsecuzioneScript, AnIncludeWithErrorsOrMissingStopsBeforeAnyUserCode) {
  Scrivi(m_base / "dati/Rotto.ls", "Sub Rotto(\n");
  auto esito = Esegui("Scrivi \"globale\"\nincludi GetDirectoryAppData\\Rotto.ls\nSub Main\nScrivi \"main\"\nEnd Sub");
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::InclusioneNonRiuscita);
  EXPECT_EQ(m_ospite.Testo(), "");
  ASSERT_EQ(m_ospite.Avvisi().size(), 1u);
  EXPECT_EQ(m_ospite.Avvisi()[0].testo, "Il file di inclusione Rotto.lscontiene errori\nLinea : 1");

  auto mancante = Esegui("includi Manca.ls\nSub Main\nScrivi \"main\"\nEnd Sub");
  EXPECT_EQ(mancante.stato, EsitoEsecuzione::Stato::InclusioneNonRiuscita);
  EXPECT_EQ(m_ospite.Testo(), "");
}

TEST_F(EsecuzioneScript, ALibraryFailureIsReportedWithItsNameAndTheScriptGoesOn) {
  auto esito = Esegui("Sub Main\nColoreTesto \"rosso\"\nScrivi \"dopo\"\nEnd Sub");
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::Completato);
  EXPECT_EQ(m_ospite.Testo(), "dopo\n");
  ASSERT_EQ(m_ospite.Avvisi().size(), 1u);
  EXPECT_EQ(m_ospite.Avvisi()[0].titolo, "ClsFunctionsGeodoScript.ColoreTesto");
  EXPECT_EQ(m_ospite.Avvisi()[0].testo, "13- Tipo non corrispondente (argomento 1)");
}

TEST_F(EsecuzioneScript, ConstantsAreReadOnly) {
  auto esito = Esegui("Sub Main\nScrivi TU_ & TT_ & NZ_ & TypeName(PI_)\nTU_ = 3\nEnd Sub");
  ASSERT_EQ(esito.stato, EsitoEsecuzione::Stato::ErroreScript);
  EXPECT_EQ(m_ospite.Testo(), "111112Currency\n");
  EXPECT_EQ(esito.errore->riga, 3u);
}

TEST_F(EsecuzioneScript, AMultiOutputRunWritesAPagePerOutput) {
  m_opzioni.multi_output = true;
  auto esito =
      Esegui("Sub Main\nScrivi \"primo\"\nColoraRtfOutputMulti\nAzzeraHtmlOutputMulti\nScrivi \"secondo\"\nEnd Sub");
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::Completato);
  ASSERT_EQ(esito.pagine.size(), 2u);
  EXPECT_EQ(esito.pagine[0].filename(), "pagina_1.html");
  EXPECT_EQ(esito.pagine[1].filename(), "pagina_2.html");
  EXPECT_NE(Leggi(esito.pagine[0]).find("primo\n</pre>"), std::string::npos);
  EXPECT_NE(Leggi(esito.pagine[1]).find("secondo\n</pre>"), std::string::npos);
}

TEST_F(EsecuzioneScript, ProgressAndNoticesReachTheHost) {
  auto esito = Esegui(
      "Sub Main\nAvanzamentoElab 5, 20\nAvanzamentoElab 10, 20, 15\nAvanzamentoElab 1, 0\n"
      "Messaggio \"quasi\"\nEnd Sub");
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::Completato);
  EXPECT_EQ(m_ospite.m_avanzamento, (std::vector<double>{25, 50, 100}));
  EXPECT_EQ(m_ospite.m_messaggi, std::vector<std::string>{"quasi"});
}

TEST_F(EsecuzioneScript, TheTimeOutEndsAnEndlessScript) {
  m_opzioni.timeout_ms = 100;
  auto esito = Esegui("Sub Main\nDo\nLoop\nEnd Sub");
  ASSERT_EQ(esito.stato, EsitoEsecuzione::Stato::ErroreScript);
  EXPECT_EQ(esito.errore->riga, 2u);
  EXPECT_TRUE(Leggi(esito.pagina_html).ends_with("</html>\n"));
}

// A script that runs until it is told to stop, on a thread of its own.
class EsecuzioneInCorso : public EsecuzioneScript {
 protected:
  std::future<EsitoEsecuzione> Avvia(std::string codice) {
    auto esito = std::async(std::launch::async, [this, codice] { return Esegui(codice); });
    while (m_ospite.Testo().empty()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return esito;
  }
};

TEST_F(EsecuzioneInCorso, TheStopIsSeenByAScriptThatLooksForIt) {
  auto esito = Avvia("Sub Main\nScrivi \"via\"\nDo Until ScriptInterrotto()\nLoop\nScrivi \"fermato\"\nEnd Sub");
  EXPECT_EQ(m_esecutore.Esegui(u"Sub Main\nEnd Sub", m_opzioni).stato, EsitoEsecuzione::Stato::GiaInEsecuzione);
  EXPECT_EQ(m_ospite.Avvisi().at(0).testo, "Attendere il termine dello script in corso");
  m_esecutore.Stop();
  EXPECT_EQ(esito.get().stato, EsitoEsecuzione::Stato::Completato);
  EXPECT_EQ(m_ospite.Testo(), "via\nfermato\n");
  EXPECT_FALSE(m_esecutore.InEsecuzione());
}

TEST_F(EsecuzioneInCorso, InterruptingEndsAScriptThatNeverLooks) {
  auto esito = Avvia("Sub Main\nScrivi \"via\"\nDo\nLoop\nEnd Sub");
  m_esecutore.Stop();
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  EXPECT_TRUE(m_esecutore.InEsecuzione());
  m_esecutore.InterrompiSubito();
  EXPECT_EQ(esito.get().stato, EsitoEsecuzione::Stato::ErroreScript);
}

}  // namespace
}  // namespace lottolab::script
