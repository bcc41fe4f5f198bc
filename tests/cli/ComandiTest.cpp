#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <sys/stat.h>

#include "DatiReali.h"
#include "LottolabDiProva.h"
#include "RisultatiDiProva.h"

namespace lottolab::cli {
namespace {

// The command line against an archive in the test's own base folder.
class RigaDiComando : public LottolabDiProva {
 protected:
  Uscita Esegui(std::vector<std::string> parole) {
    parole.insert(parole.begin(), {"--archivio", Archivio()});
    return Lottolab(parole);
  }

  std::string Archivio() const { return (m_base / "BaseDati.dat").string(); }

  std::string ScriviRisultati(const std::string& nome, const std::string& testo) {
    auto file = m_base / nome;
    std::ofstream(file) << testo;
    return file.string();
  }
};

using test::kRisultati;

TEST_F(RigaDiComando, ImportaInfoEdEstrazione) {
  auto file = ScriviRisultati("risultati.txt", kRisultati);
  auto importa = Esegui({"importa", file});
  EXPECT_EQ(importa.codice, 0) << importa.err;
  EXPECT_EQ(importa.out, "importate 3 estrazioni\n");
  EXPECT_EQ(Esegui({"importa", file}).out, "importate 0 estrazioni\n");

  EXPECT_EQ(Esegui({"info"}).out, "estrazioni: 3\nprima: 30/04/2005\nultima: 04/05/2005\n");
  auto per_data = Esegui({"estrazione", "4/5/2005"});
  EXPECT_EQ(per_data.out,
            "3 04/05/2005 3\nBA 31 32 33 34 35\nRO 41 42 43 44 45\nVE 61 62 63 64 65\nNZ 51 52 53 54 07\n");
  EXPECT_EQ(Esegui({"estrazione", "3"}).out, per_data.out);
}

TEST_F(RigaDiComando, StatisticheDiUnaCombinazione) {
  ASSERT_EQ(Esegui({"importa", ScriviRisultati("risultati.txt", kRisultati)}).codice, 0);
  EXPECT_EQ(Esegui({"ritardo", "--ruote", "VE", "7"}).out, "1\n");
  EXPECT_EQ(Esegui({"ritardo", "--ruote", "TT", "7"}).out, "0\n");
  EXPECT_EQ(Esegui({"ritardo", "--ruote", "NZ", "1"}).out, "1\n") << "draws before the wheel existed do not count";
  EXPECT_EQ(Esegui({"ritardo", "--ruote", "VE", "--fine", "03/05/2005", "7"}).out, "0\n");
  EXPECT_EQ(Esegui({"ritardo", "--ruote", "VE", "--fine", "2", "7"}).out, "0\n");
  EXPECT_EQ(Esegui({"ritardo", "--ruote", "VE", "--posizioni", "1", "7"}).out, "3\n");
  EXPECT_EQ(Esegui({"ritardo", "--ruote", "BA,VE", "2", "7"}).out, "3\n") << "an ambo split over two wheels is no win";
  EXPECT_EQ(Esegui({"ritardo", "--ruote", "BA,VE", "--sorte", "1", "2", "7"}).out, "1\n");
  EXPECT_EQ(Esegui({"frequenza", "7"}).out, "2\n");
  EXPECT_EQ(Esegui({"storico", "--ruote", "VE", "7"}).out, "1\n");
}

TEST_F(RigaDiComando, TabelloneAllineato) {
  ASSERT_EQ(Esegui({"importa", ScriviRisultati("risultati.txt", kRisultati)}).codice, 0);
  auto tabellone = Esegui({"tabellone", "--ruota", "VE"});
  ASSERT_EQ(tabellone.codice, 0) << tabellone.err;
  std::istringstream righe(tabellone.out);
  std::string intestazione, riga;
  std::getline(righe, intestazione);
  EXPECT_EQ(intestazione, "ruota numero   ritardo frequenza   storico");
  int conteggio = 0;
  std::string settima;
  while (std::getline(righe, riga)) {
    EXPECT_EQ(riga.size(), intestazione.size());
    if (++conteggio == 7) settima = riga;
  }
  EXPECT_EQ(conteggio, 90);
  EXPECT_EQ(settima, "VE         7         1         1         1");
  auto tutte = Esegui({"tabellone"}).out;
  EXPECT_EQ(std::count(tutte.begin(), tutte.end(), '\n'), 1 + 90 * 11);
}

// The usage text is what a user reads first and what scripts around the command line may parse: it
// stays as it is, word for word, whatever the way the commands are registered.
TEST_F(LottolabDiProva, UsoElencaIComandi) {
  const std::string uso =
      "uso: lottolab [--gioco LO|SE|DL|DL5|WF|FT] [--archivio PATH] COMANDO ...\n"
      "comandi:\n"
      "  importa FILE              aggiunge all'archivio le estrazioni nuove di un file di risultati (testo o zip)\n"
      "  aggiorna [--indirizzo URL]   scarica e importa i risultati pubblicati (del Lotto e di ogni gioco con "
      "un indirizzo)\n"
      "  info                      numero di estrazioni, prima e ultima data; controlla l'archivio\n"
      "  ripara                    toglie da un archivio l'estrazione incompleta in fondo, dopo averlo copiato\n"
      "  estrazione ID|GG/MM/AAAA  mostra un'estrazione\n"
      "  ritardo|frequenza|storico [--ruote BA,VE|TT] [--sorte N] [--posizioni 1,3] [--inizio X] [--fine X] N1 [N2 "
      "...]\n"
      "  tabellone [--ruota VE] [--inizio X] [--fine X]\n"
      "  vbs [--locale it-IT|en-US] FILE.vbs [ARGOMENTI...]   esegue un programma VBScript\n"
      "  esegui SCRIPT.ls [--timeout MINUTI] [--html FILE] [--risposte FILE]   esegue uno script sull'archivio\n"
      "  nuovo-script FILE.ls      scrive lo schema di uno script nuovo\n"
      "  struttura FILE            mostra vertici, linee e condizioni di un file di struttura\n"
      "  funzioni [--html FILE]    elenca le funzioni degli script (o ne scrive la pagina di riferimento)\n"
      "  cerca-figura FILE [--inizio X] [--fine X] [--ruote BA,VE|TT] [--colpi N]   cerca una figura nell'archivio\n"
      "  premio --sorte S --numeri N1,N2 --ruote BA,VE --posta 1 [--data GG/MM/AAAA]   lordo, ritenuta e netto per "
      "punti\n"
      "  verifica-giocata --sorte S --numeri N1,N2 --ruote BA,VE --posta 1 --dal GG/MM/AAAA --colpi N   conto per "
      "estrazione\n"
      "  retroverifica --sorte S (--numeri N1,N2 [--classe K] | --sistema FILE) --ruote BA,VE --posta 1 [--inizio X] "
      "[--fine X]   la giocata in ogni estrazione dell'intervallo: spesa, vincite, saldo\n"
      "  giocata aggiungi|elenco|rimuovi|verifica ...   l'agenda delle giocate (lottolab giocata per l'uso)\n"
      "giochi (--gioco): LO Lotto (predefinito), SE SuperEnalotto, DL 10eLotto serale, DL5 10eLotto ogni 5 minuti,\n"
      "  WF Win for Life, FT archivio generico; per gli altri giochi valgono per ora importa, aggiorna, info,\n"
      "  estrazione, ritardo, frequenza, storico, tabellone (senza --ruote, --ruota e --posizioni) e premio\n";
  EXPECT_EQ(Lottolab({}).err, uso);
  EXPECT_EQ(Lottolab({}).codice, 2);
  const Uscita aiuto = Lottolab({"--archivio", "x", "--help"});
  EXPECT_EQ(aiuto.out, uso);
  EXPECT_EQ(aiuto.codice, 0);
  EXPECT_EQ(Lottolab({"aiuto"}).out, uso);
  const Uscita sconosciuto = Lottolab({"Importa"});
  EXPECT_EQ(sconosciuto.err, "lottolab: comando sconosciuto: Importa (lottolab --help per l'elenco)\n");
  EXPECT_EQ(sconosciuto.codice, 2);
}

TEST_F(RigaDiComando, ArgomentiSbagliatiDannoUnaRigaEdEsito2) {
  ASSERT_EQ(Esegui({"importa", ScriviRisultati("risultati.txt", kRisultati)}).codice, 0);
  const std::vector<std::vector<std::string>> sbagliati = {
      {"ritardo", "--ruote", "XX", "7"},
      {"ritardo", "91"},
      {"ritardo", "0"},
      {"ritardo", "sette"},
      {"ritardo", "--sorte", "6", "7"},
      {"ritardo", "--sorte", "0", "7"},
      {"ritardo", "--sorte", "2", "7"},
      {"ritardo", "--fine", "01/01/1990", "7"},
      {"ritardo", "--fine", "12/2020", "7"},
      {"ritardo", "--fine", "99", "7"},
      {"ritardo", "--posizioni", "6", "7"},
      {"ritardo"},
      {"ritardo", "7", "7"},
      {"ritardo", "--inizio", "3", "--fine", "1", "7"},
      {"ritardo", "--colore", "rosso", "7"},
      {"tabellone", "--ruota", "ZZ"},
      {"estrazione", "01/01/2005"},
      {"estrazione", "0"},
      {"comando-inesistente"},
      {"importa", "/nessun/file.txt"},
  };
  for (const auto& parole : sbagliati) {
    auto uscita = Esegui(parole);
    std::string riassunto;
    for (const auto& p : parole) riassunto += p + " ";
    EXPECT_EQ(uscita.codice, 2) << riassunto;
    EXPECT_TRUE(uscita.out.empty()) << riassunto;
    EXPECT_EQ(std::count(uscita.err.begin(), uscita.err.end(), '\n'), 1) << riassunto << ": " << uscita.err;
  }
}

TEST_F(RigaDiComando, SenzaArchivioSiFermaConUnMessaggio) {
  auto uscita = Esegui({"info"});
  EXPECT_EQ(uscita.codice, 2);
  EXPECT_EQ(uscita.err, "lottolab: Non esiste il file relativo alla base dati originale " + Archivio() + "\n");
}

TEST_F(RigaDiComando, ArchivioRealeFattiNoti) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  auto importa = Esegui({"importa", (test::CartellaDatiReali() / "lotto.txt").string()});
  ASSERT_EQ(importa.codice, 0) << importa.err;
  EXPECT_EQ(importa.out, "importate 7318 estrazioni\n");
  EXPECT_EQ(Esegui({"info"}).out, "estrazioni: 7318\nprima: 07/01/1939\nultima: 30/05/2026\n");

  auto estrazione = Esegui({"estrazione", "09/02/2005"});
  EXPECT_NE(estrazione.out.find("\nVE 53 31 88 28 77\n"), std::string::npos) << estrazione.out;
  // The day before: 53 had been missing from Venezia for 182 draws, the longest absence there.
  EXPECT_EQ(Esegui({"ritardo", "--ruote", "VE", "--fine", "08/02/2005", "53"}).out, "182\n");
  EXPECT_EQ(Esegui({"ritardo", "--ruote", "VE", "--fine", "09/02/2005", "53"}).out, "0\n");
  EXPECT_EQ(Esegui({"storico", "--ruote", "VE", "53"}).out, "182\n");
  EXPECT_EQ(Esegui({"ritardo", "--ruote", "NZ", "--fine", "04/05/2005", "--inizio", "1", "1"}).out, "1\n");
}

TEST_F(RigaDiComando, UnArchivioGuastoSiDiceERipara) {
  ASSERT_EQ(Esegui({"importa", ScriviRisultati("risultati.txt", kRisultati)}).codice, 0);
  std::ofstream(Archivio(), std::ios::app | std::ios::binary) << std::string(34, '\x07');
  const std::string avviso =
      "lottolab: attenzione: L'archivio " + Archivio() + " ha 34 byte oltre l'ultima estrazione intera";

  auto info = Esegui({"info"});
  EXPECT_EQ(info.codice, 1);
  // The stray bytes still count as a draw, as the length rule says; the warning is what tells.
  EXPECT_EQ(info.out, "estrazioni: 4\nprima: 30/04/2005\nultima: 1799/1799/1799\n");
  EXPECT_TRUE(info.err.starts_with(avviso)) << info.err;
  EXPECT_EQ(std::count(info.err.begin(), info.err.end(), '\n'), 1);

  auto ritardo = Esegui({"ritardo", "--ruote", "VE", "7"});
  EXPECT_EQ(ritardo.codice, 0) << "other commands warn and go on";
  EXPECT_EQ(ritardo.out, "1\n");
  EXPECT_TRUE(ritardo.err.starts_with(avviso)) << ritardo.err;

  auto importa = Esegui({"importa", ScriviRisultati("altri.txt", kRisultati)});
  EXPECT_EQ(importa.codice, 2);
  EXPECT_NE(importa.err.find("non vi si aggiunge nulla"), std::string::npos) << importa.err;

  auto ripara = Esegui({"ripara"});
  EXPECT_EQ(ripara.codice, 0) << ripara.err;
  EXPECT_TRUE(ripara.out.starts_with("Archivio " + Archivio() + " riparato: tolti 34 byte")) << ripara.out;
  info = Esegui({"info"});
  EXPECT_EQ(info.codice, 0);
  EXPECT_EQ(info.out, "estrazioni: 3\nprima: 30/04/2005\nultima: 04/05/2005\n");
  EXPECT_EQ(info.err, "");
  EXPECT_EQ(Esegui({"ripara"}).out, "L'archivio " + Archivio() +
                                        " è già fatto di estrazioni intere (3): nessuna "
                                        "riparazione necessaria.\n");
}

TEST_F(RigaDiComando, PercorsiCheNonSonoFileDannoUnaRiga) {
  const auto fifo = (m_base / "fifo").string();
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  const auto risultati = ScriviRisultati("risultati.txt", kRisultati);
  const std::string lungo = (m_base / std::string(5000, 'x')).string();
  for (const std::string& percorso : {m_base.Percorso().string(), std::string("/dev/zero"), fifo, lungo}) {
    for (const std::vector<std::string>& parole : {std::vector<std::string>{"--archivio", percorso, "info"},
                                                   {"--archivio", percorso, "importa", risultati},
                                                   {"--archivio", percorso, "ripara"},
                                                   {"importa", percorso}}) {
      auto uscita = Lottolab(parole);
      EXPECT_NE(uscita.codice, 0) << percorso.substr(0, 60) << " " << parole[parole.size() - 1];
      EXPECT_EQ(std::count(uscita.err.begin(), uscita.err.end(), '\n'), 1) << uscita.err;
    }
  }
}

TEST_F(RigaDiComando, ImportaRifiutaLeDateOltreDomani) {
  auto uscita = Esegui({"importa", ScriviRisultati("futuro.txt", "9999/12/31\tBA\t1\t2\t3\t4\t5\n")});
  EXPECT_EQ(uscita.codice, 2);
  EXPECT_TRUE(uscita.err.starts_with("lottolab: Riga 1: la data 9999/12/31 è nel futuro, oltre domani")) << uscita.err;
}

TEST_F(RigaDiComando, IlPrimoComandoScriveGliEsempiEUnGuastoEUnAvviso) {
  auto uscita = Lottolab({"nuovo-script", (m_base / "mio.ls").string()});
  EXPECT_EQ(uscita.codice, 0) << uscita.err;
  EXPECT_EQ(uscita.err, "");
  EXPECT_TRUE(std::filesystem::is_directory(m_base / "Script" / "Esempi"));

  // The command still does its work when the examples cannot be written; the exit status is its own.
  test::BaseTemporanea guasta;
  test::Scrivi(guasta / "Script", "non una cartella");
  auto avvisato = Lottolab({"nuovo-script", (guasta / "mio.ls").string()});
  EXPECT_EQ(avvisato.codice, 0) << avvisato.err;
  EXPECT_TRUE(avvisato.err.starts_with("lottolab: attenzione: Gli script di esempio non sono stati scritti in "))
      << avvisato.err;
  EXPECT_TRUE(std::filesystem::exists(guasta / "mio.ls"));
}

}  // namespace
}  // namespace lottolab::cli
