#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "LibreriaDiProva.h"
#include "TempDir.h"
#include "agenda/Agenda.h"
#include "archive/ArchivioGioco.h"
#include "stats/ArchiviDiProva.h"
#include "stats/Giocata.h"

namespace lottolab::script {
namespace {

// Six draws of January 2020 (tax 8%) in which Bari alone changes; every other wheel holds 81..85.
//   1: 81 82 83 84 85   2: 1 2 3 4 5   3: 10 20 40 41 42   4: 10 30 43 44 45   5: 10 20 30 46 47
//   6: 50 51 52 53 54
TabellaEstrazioni SeiEstrazioni() {
  const std::array<std::array<int, 5>, 6> bari{{{81, 82, 83, 84, 85},
                                                {1, 2, 3, 4, 5},
                                                {10, 20, 40, 41, 42},
                                                {10, 30, 43, 44, 45},
                                                {10, 20, 30, 46, 47},
                                                {50, 51, 52, 53, 54}}};
  const std::array<int, 6> giorni{2, 4, 7, 9, 11, 14};
  std::vector<Estrazione> estrazioni;
  for (int id = 1; id <= 6; ++id) {
    Estrazione estrazione;
    estrazione.id_estr = id;
    estrazione.data = {static_cast<int16_t>(id), static_cast<int16_t>(giorni[static_cast<size_t>(id - 1)]), 1, 2020};
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
      for (int p = 1; p <= kNumeriPerRuota; ++p)
        estrazione.ImpostaNumero(ruota, p, ruota == BA ? bari[static_cast<size_t>(id - 1)][p - 1] : 80 + p);
    estrazioni.push_back(estrazione);
  }
  return TabellaEstrazioni(std::move(estrazioni));
}

// The library over the six draws, with its page and its agenda in a folder of their own.
class Giocate : public Libreria {
 protected:
  void SetUp() override {
    ImpostazioniLibreria impostazioni;
    impostazioni.cartella_base = m_cartella.Percorso();
    impostazioni.cartella_output = m_cartella.Percorso();
    impostazioni.file_agenda = m_cartella / "AgendaGiocate.db";
    impostazioni.archivi_giochi[static_cast<size_t>(Gioco::SuperEnalotto)] = m_cartella / "SE.dat";
    impostazioni.archivi_giochi[static_cast<size_t>(Gioco::DieciELotto)] = m_cartella / "DL.dat";
    Avvia(SeiEstrazioni(), impostazioni);
    Esegui("Dim pAmbo(5), pAmboTerno(5) : pAmbo(AMBO_) = 1 : pAmboTerno(AMBO_) = 1 : pAmboTerno(TERNO_) = 1");
  }

  test::CartellaTemporanea m_cartella;
};

// Ambo on three numbers pays 250 / 3 = 83,33 gross a combination on one wheel, 76,66 net of the 8%
// (6,67); a terno on them 4.500. The bets are placed after draw 1 and play from draw 2.
TEST_F(Giocate, UnaGiocataSiFermaAllaSorteChiestaOGiocaTuttiIColpi) {
  Esegui("ImpostaGiocata 1, Array(10, 20, 30), Array(BA_), pAmbo, 3");
  Esegui("ImpostaGiocata 2, Array(10, 20, 30), Array(BA_), pAmbo, 3, 0");
  Esegui("ImpostaGiocata 3, Array(10, 20, 30), Array(BA_), pAmboTerno, 5, 3");
  EXPECT_EQ(Testo("Gioca(1)"), "Vero");
  EXPECT_TRUE(m_ospite.avvisi.empty()) << m_ospite.avvisi.front().testo;
  // 1 stops at its first ambo (draw 3); 2 plays its three colpi, winning in 3 and 4; 3 goes on past
  // the ambi of 3 and 4 and stops at the terno of 5, where the three ambi win too:
  // 3 x 83,33 + 4.500 = 4.749,99 gross, 380,00 tax, 4.369,99 net.
  EXPECT_EQ(Testo("GetSpesa(1) & \" \" & GetVincita(1) & \" \" & GetGuadagno(1)"), "2 76,66 74,66");
  EXPECT_EQ(Testo("GetSpesa(2) & \" \" & GetVincita(2)"), "3 153,32");
  EXPECT_EQ(Testo("GetSpesa(3) & \" \" & GetVincita(3)"), "8 4523,31");
  EXPECT_EQ(Testo("GetSpesa() & \" \" & GetVincita() & \" \" & GetGuadagno()"), "13 4753,29 4740,29");
  EXPECT_NE(m_ospite.testo.find("Giocata 1 (Lotto) dopo l'estrazione 1: vinta al colpo 2 (estrazione 3 del "
                                "07/01/2020: ambo su BA); spesa 2,00, vinto netto 76,66"),
            std::string::npos)
      << m_ospite.testo;
  EXPECT_NE(m_ospite.testo.find("al colpo 4 (estrazione 5 del 11/01/2020: ambo su BA x3, terno su BA)"),
            std::string::npos)
      << m_ospite.testo;

  // The slots were used up; a bet placed after draw 4 on numbers that never come out plays draws 5
  // and 6 and stays open for its other eight colpi, until it is interrupted.
  EXPECT_TRUE(Vuoto("Gioca(2)"));
  AvvisoErrore5("Gioca", "Nessuna giocata impostata", "slots used up");
  Esegui("ImpostaGiocata 7, Array(70, 71), Array(TU_), pAmbo, 10");
  EXPECT_EQ(Testo("Gioca(4, False)"), "Falso");
  Esegui("Dim s, n : n = GetSituazioneGiocate(s)");
  EXPECT_EQ(Testo("n & \" \" & GetQuantitaGiocateEffettuate()"), "4 4");
  const std::string riga =
      "s(4, 1) & s(4, 2) & \" \" & s(4, 3) & \" \" & s(4, 4) & \" \" & s(4, 5) & \" \" & "
      "s(4, 6) & \" \" & s(4, 7) & \" \" & s(4, 8) & \" \" & s(4, 9)";
  EXPECT_EQ(Testo(riga), "7LO 4 10 2 2 0 2 0");
  EXPECT_EQ(Testo("s(1, 6) & s(1, 7) & s(2, 6) & s(3, 5) & s(3, 9)"), "12144523,31");
  Esegui("InterrompiTutteLegiocate : n = GetSituazioneGiocate(s)");
  EXPECT_EQ(Testo("s(4, 6) & s(1, 6)"), "31");
}

// A stake per colpo: 1, 2, 3 euro on the ambo. Draw 3 pays 2 x 83,33 (166,67, 13,33 tax) and
// draw 4 3 x 83,33 = 250,00 (20,00 tax).
TEST_F(Giocate, LaProgressioneCambiaLaPostaDiOgniColpo) {
  Esegui("ImpostaGiocata 1, Array(10, 20, 30), Array(BA_), pAmbo, 3, 0");
  Esegui("ImpostaProgressione 1, AMBO_, Array(1, 2, 3)");
  Esegui("Gioca 1, False");
  EXPECT_EQ(Testo("GetSpesa() & \" \" & GetVincita() & \" \" & GetGuadagno()"), "6 383,34 377,34");
  // The last stake is repeated, and a sorte not yet played is added with its progression.
  Esegui("ImpostaGiocata 1, Array(10, 20, 30), Array(BA_), pAmbo, 4, 0");
  Esegui("ImpostaProgressione 1, TERNO_, Array(0.5, 1)");
  Esegui("Gioca 1, False");
  // Ambo 1 a colpo (4), terno 0,5 then 1 (3,5): draws 2..5; ambi 83,33 in 3 and 4, three ambi and
  // the terno (4.500) in 5: gross 83,33 + 83,33 + 4.749,99, tax 6,67 + 6,67 + 380,00.
  EXPECT_EQ(Testo("GetSpesa() - 6 & \" \" & GetVincita() - 383.34"), "7,5 4523,31");
}

// Two columns of a system on the same wheel and stakes, the second added after the first.
TEST_F(Giocate, UnaLunghettaAggiuntaEUnaColonnaInPiu) {
  Esegui("ImpostaGiocata 1, Array(10, 20), Array(BA_), pAmbo, 1");
  Esegui("AddLunghettaInGiocata 1, Array(30, 40)");
  EXPECT_EQ(Testo("Gioca(2)"), "Vero");
  // Draw 3 has 10 20 40: the first column's ambo, 250 gross, 230 net; two columns cost 2.
  EXPECT_EQ(Testo("GetSpesa() & \" \" & GetVincita()"), "2 230");
  EXPECT_NE(m_ospite.testo.find("ambo su BA (colonna 1)"), std::string::npos) << m_ospite.testo;
}

// The estratto determinato on two positions: draw 3 has 10 first and 20 second on Bari, each paying
// 55 / 2 numbers = 27,50; 55,00 gross, 4,40 tax.
TEST_F(Giocate, LEstrattoDeterminatoDiceLaPosizioneVinta) {
  Esegui("Dim p(11) : p(EDET1_) = 1 : p(EDET2_) = 1");
  Esegui("ImpostaGiocata 1, Array(10, 20), Array(BA_), p, 1");
  EXPECT_EQ(Testo("Gioca(2)"), "Vero");
  EXPECT_NE(m_ospite.testo.find("estratto determinato in posizione 1 su BA, estratto determinato in posizione 2 su BA"),
            std::string::npos)
      << m_ospite.testo;
  EXPECT_EQ(Testo("GetSpesa() & \" \" & GetVincita()"), "2 50,6");
}

// The virtual ledger is kept apart: its bets never reach the real totals and each reset forgets
// its own ledger only.
TEST_F(Giocate, LeGiocateVirtualiNonEntranoNeiTotaliReali) {
  Esegui("ImpostaGiocataVirtuale 1, Array(10, 20, 30), Array(BA_), pAmbo, 3");
  EXPECT_EQ(Testo("GiocaVirtuale(1)"), "Vero");
  EXPECT_NE(m_ospite.testo.find("[virtuale] Giocata 1"), std::string::npos);
  EXPECT_EQ(Testo("GetSpesa() & \" \" & GetVincita() & \" \" & GetQuantitaGiocateEffettuate()"), "0 0 0");
  EXPECT_TRUE(Vuoto("Gioca(1)")) << "the virtual slot is not a real one";
  AvvisoErrore5("Gioca", "ImpostaGiocata", "no real slot");
  Esegui("ImpostaGiocata 1, Array(10, 20, 30), Array(BA_), pAmbo, 3");
  Esegui("Gioca 1");
  Esegui("ResettaGiocate");
  EXPECT_EQ(Testo("GetQuantitaGiocateEffettuate()"), "0");
  m_ospite.testo.clear();
  Esegui("OutputVirtuale");
  EXPECT_NE(m_ospite.testo.find("Giocate virtuali"), std::string::npos);
  EXPECT_TRUE(std::regex_search(m_ospite.testo, std::regex("Vinto netto +76,66\n"))) << m_ospite.testo;
  Esegui("ResettaGiocateVirtuale");
  m_ospite.testo.clear();
  Esegui("OutputVirtuale");
  EXPECT_TRUE(std::regex_search(m_ospite.testo, std::regex("Giocate +0\n"))) << m_ospite.testo;
}

// Every wrong argument is the user's message as error 5 (or the engine's conversion error), never
// a crash, and the slot is left as it was.
TEST_F(Giocate, GliArgomentiSbagliatiDannoUnMessaggio) {
  struct Caso {
    std::string chiamata;
    std::string funzione;
    std::string spiegazione;
  };
  const Caso casi[] = {
      {"ImpostaGiocata(1, Empty, Array(BA_), pAmbo, 3)", "ImpostaGiocata", "numero non valido: 0"},
      {"ImpostaGiocata(1, Array(10, 91), Array(BA_), pAmbo, 3)", "ImpostaGiocata", "numero non valido: 91"},
      {"ImpostaGiocata(1, Array(10, 10), Array(BA_), pAmbo, 3)", "ImpostaGiocata", "due volte"},
      {"ImpostaGiocata(1, Array(10, 20.5), Array(BA_), pAmbo, 3)", "ImpostaGiocata", "numero intero"},
      {"ImpostaGiocata(1, Array(), Array(BA_), pAmbo, 3)", "ImpostaGiocata", "nessun numero"},
      {"ImpostaGiocata(1, Array(10, 20), Array(13), pAmbo, 3)", "ImpostaGiocata", "ruota non valida: 13"},
      {"ImpostaGiocata(1, Array(10, 20), Array(), pAmbo, 3)", "ImpostaGiocata", "nessuna ruota"},
      {"ImpostaGiocata(1, Array(10, 20), Array(BA_), Array(0, 0, 0), 3)", "ImpostaGiocata", "Nessuna posta"},
      {"ImpostaGiocata(1, Array(10, 20), Array(BA_), Array(1), 3)", "ImpostaGiocata", "aPoste(0)"},
      {"ImpostaGiocata(1, Array(10, 20), Array(BA_), 1, 3)", "ImpostaGiocata", "aPoste deve essere un array"},
      {"ImpostaGiocata(1, Array(10, 20), Array(BA_), Array(0, 0, 0.01), 3)", "ImpostaGiocata", "va da 0,05"},
      {"ImpostaGiocata(1, Array(10, 20), Array(BA_), Array(0, 0, 0.125), 3)", "ImpostaGiocata", "due decimali"},
      {"ImpostaGiocata(1, Array(10, 20), Array(BA_), Array(0, 0, -1), 3)", "ImpostaGiocata", "non negativa"},
      {"ImpostaGiocata(1, Array(10), Array(BA_), pAmbo, 3)", "ImpostaGiocata", "da 2 a 10 numeri"},
      {"ImpostaGiocata(1, Array(10, 20), Array(BA_), pAmbo, 0)", "ImpostaGiocata", "colpi non validi: 0"},
      {"ImpostaGiocata(0, Array(10, 20), Array(BA_), pAmbo, 3)", "ImpostaGiocata", "Indice della giocata"},
      {"ImpostaGiocata(1, Array(10, 20), Array(BA_), pAmbo, 3, 6)", "ImpostaGiocata", "SorteArresto non valida"},
      {"AddLunghettaInGiocata(9, Array(1, 2))", "AddLunghettaInGiocata", "La giocata 9 non è impostata"},
      {"ImpostaProgressione(9, AMBO_, Array(1))", "ImpostaProgressione", "non è impostata"},
      {"Gioca(1)", "Gioca", "Nessuna giocata impostata"},
      {"GetSpesa(-1)", "GetSpesa", "Indice della giocata"},
      {"SetPremioPagatoFT(21, 1)", "SetPremioPagatoFT", "Punti non validi"},
      {"AddRecordAgendaGiocate(Array(10, 20), Array(BA_), pAmbo, 3, 99)", "AddRecordAgendaGiocate",
       "IdEstrInizio non valido"},
  };
  for (const Caso& caso : casi) {
    EXPECT_TRUE(Vuoto(caso.chiamata)) << caso.chiamata;
    AvvisoErrore5(caso.funzione, caso.spiegazione, caso.chiamata);
  }
  EXPECT_TRUE(Vuoto("ImpostaGiocata(1, Array(10, Null), Array(BA_), pAmbo, 3)"));
  EXPECT_TRUE(UnicoAvviso().testo.starts_with("94- ")) << "Null is the engine's conversion error";

  // Arrays from 0 or from 1, with an Empty first element or none, are read alike; a slot whose
  // progression is refused keeps its stakes.
  Esegui("Dim a(2) : a(1) = 10 : a(2) = 20 : Dim r(1) : r(1) = BA_");
  EXPECT_EQ(Testo("ImpostaGiocata(1, a, r, pAmbo, 3)"), "Vero");
  EXPECT_EQ(Testo("ImpostaGiocata(2, Array(10, 20), BA_, Array(Empty, 0, 1), 3)"), "Vero");
  EXPECT_TRUE(Vuoto("AddLunghettaInGiocata(1, Array(5, 5))"));
  AvvisoErrore5("AddLunghettaInGiocata", "giocata 1, colonna 2: il numero 5 è giocato due volte", "a column refused");
  EXPECT_TRUE(Vuoto("ImpostaProgressione(1, TERNO_, Array(1))"));
  AvvisoErrore5("ImpostaProgressione", "per la sorte terno si giocano da 3", "a sorte the columns cannot play");
  EXPECT_TRUE(Vuoto("AddRecordAgendaGiocate(Array(10, 20), Array(BA_), pAmbo, 100000000)"));
  AvvisoErrore5("AddRecordAgendaGiocate", "colpi", "more colpi than the agenda keeps");
  EXPECT_TRUE(Vuoto("ImpostaProgressione(1, AMBO_, Array(1, 0.01))"));
  AvvisoErrore5("ImpostaProgressione", "va da 0,05", "a stake below the minimum in the progression");
  EXPECT_EQ(Testo("Gioca(2, False)"), "Vero");
  EXPECT_EQ(Testo("GetSpesa(1) & \" \" & GetSpesa(2)"), "1 1") << "both win the ambo of draw 3, their first colpo";
}

// The account draw by draw goes into the page as a table, and so does the summary.
TEST_F(Giocate, ResocontoERiepilogoSonoTabelleNellaPagina) {
  Esegui("AzzeraHtmlOutput");
  Esegui("ImpostaGiocata 1, Array(10, 20, 30), Array(BA_), pAmbo, 3, 0");
  Esegui("Gioca 1, False");
  m_ospite.testo.clear();
  Esegui("ScriviResoconto");
  const std::string pagina = Testo("GetTestoHtml");
  EXPECT_NE(pagina.find("<table"), std::string::npos) << pagina;
  EXPECT_NE(pagina.find("<td>3</td><td>07/01/2020</td><td>1</td><td>1,00</td><td>83,33</td><td>76,66</td>"
                        "<td>74,66</td><td>ambo su BA</td>"),
            std::string::npos)
      << pagina;
  EXPECT_NE(m_ospite.testo.find("Totale"), std::string::npos);
  EXPECT_NE(m_ospite.testo.find("150,32"), std::string::npos) << "the balance after draw 4:\n" << m_ospite.testo;
  Esegui("Output \"Prova\"");
  const std::string riepilogo = Testo("GetTestoHtml");
  for (std::string_view voce :
       {"<b>Prova", "Estrazioni vincenti di ambo</td><td>2 (lordo 166,66)",
        "Serie più lunga senza vincite</td><td>1 estrazioni", "Calo massimo del saldo</td><td>1,00"})
    EXPECT_NE(riepilogo.find(voce), std::string::npos) << voce << "\n" << riepilogo;
}

// A bet written into the agenda comes back as it was given; a slot's progression becomes the
// agenda's factors.
TEST_F(Giocate, LAgendaRiceveLaGiocataDelloScript) {
  Esegui("Dim p(5) : p(AMBO_) = 1 : p(TERNO_) = 0.5");
  const std::string id = Testo("AddRecordAgendaGiocate(Array(12, 34, 56), Array(BA_, VE_), p, 10, , \"prima\")");
  ASSERT_TRUE(m_ospite.avvisi.empty()) << m_ospite.avvisi.front().testo;
  Esegui("ImpostaGiocata 4, Array(1, 2), Array(TU_), pAmbo, 3");
  Esegui("ImpostaProgressione 4, AMBO_, Array(1, 2)");
  const std::string seconda = Testo("CreaGiocataAgenda(4)");
  ASSERT_TRUE(m_ospite.avvisi.empty()) << m_ospite.avvisi.front().testo;

  auto agenda = agenda::Agenda::Apri(m_cartella / "AgendaGiocate.db");
  ASSERT_TRUE(agenda) << agenda.Errore().testo;
  auto letta = agenda.Valore().Carica(std::stoll(id));
  ASSERT_TRUE(letta) << letta.Errore().testo;
  EXPECT_EQ(letta->colonne, (std::vector<std::vector<int>>{{12, 34, 56}}));
  EXPECT_EQ(letta->ruote, (std::vector<int>{BA, VE}));
  EXPECT_EQ(letta->poste, (std::vector<agenda::Posta>{{"ambo", 100}, {"terno", 50}}));
  EXPECT_EQ(letta->id_estr_dal, 7) << "the draw after the archive's last";
  EXPECT_EQ(letta->colpi, 10);
  EXPECT_FALSE(letta->ferma_alla_vincita);
  EXPECT_EQ(letta->nota, "prima");
  auto dalla_giocata = agenda.Valore().Carica(std::stoll(seconda));
  ASSERT_TRUE(dalla_giocata) << dalla_giocata.Errore().testo;
  EXPECT_EQ(dalla_giocata->ruote, std::vector<int>{kTutteLeRuote});
  EXPECT_EQ(dalla_giocata->progressione, (std::vector<int>{1, 2, 2}));
  EXPECT_TRUE(dalla_giocata->ferma_alla_vincita);

  Esegui("ImpostaProgressione 4, AMBO_, Array(1, 1.5)");
  EXPECT_TRUE(Vuoto("CreaGiocataAgenda(4)"));
  AvvisoErrore5("CreaGiocataAgenda", "progressione sola", "a factor that is no whole number");
}

TEST_F(Libreria, UnaGiocataNellAgendaSenzaAgendaEUnErroreChiaro) {
  Avvia(SeiEstrazioni());
  EXPECT_TRUE(Vuoto("AddRecordAgendaGiocate(Array(12, 34), Array(BA_), Array(0, 0, 1), 3)"));
  AvvisoErrore5("AddRecordAgendaGiocate", "Nessuna agenda delle giocate configurata", "no agenda");
}

TEST_F(Libreria, UnoScriptProtettoNonScriveNellAgenda) {
  test::CartellaTemporanea cartella;
  ImpostazioniLibreria impostazioni;
  impostazioni.modalita = Modalita::Protetta;
  impostazioni.cartella_base = cartella.Percorso();
  impostazioni.cartella_output = cartella / "scriptOutput";
  impostazioni.file_agenda = cartella / "AgendaGiocate.db";
  Avvia(SeiEstrazioni(), impostazioni);
  EXPECT_EQ(Testo("AddRecordAgendaGiocate(Array(12, 34), Array(BA_), Array(0, 0, 1), 3)"), "errore 70");
  EXPECT_FALSE(std::filesystem::exists(cartella / "AgendaGiocate.db"));
}

// The other games: a SuperEnalotto win is its category, without money; the generic archive wins
// what the script said a score pays.
TEST_F(Giocate, GliAltriGiochiVinconoCategorieOPremiDelloScript) {
  EstrazioneGioco prima, seconda;
  prima.id_estr = 1;
  prima.data = {1, 4, 1, 2020};
  prima.numeri = {60, 61, 62, 63, 64, 65};
  seconda.id_estr = 2;
  seconda.data = {2, 7, 1, 2020};
  seconda.numeri = {1, 2, 3, 4, 5, 90};
  seconda.speciali = {6, 0, 0};
  ASSERT_TRUE(SalvaArchivioGioco(TabellaGioco(Formato(Gioco::SuperEnalotto), {prima, seconda}), m_cartella / "SE.dat")
                  .Riuscito());

  Esegui("ImpostaGiocataSE 1, Array(1, 2, 3, 4, 5, 6), 1, 3");
  EXPECT_EQ(Testo("GiocaSE(1)"), "Vero");
  EXPECT_NE(m_ospite.testo.find("(SuperEnalotto) dopo l'estrazione 1: vinta al colpo 1 (estrazione 2 del "
                                "07/01/2020: 5+1 (quota non nota))"),
            std::string::npos)
      << m_ospite.testo;
  EXPECT_EQ(Testo("GetSpesa() & \" \" & GetVincita()"), "1 0");
  EXPECT_TRUE(Vuoto("ImpostaGiocataSE(1, Array(1, 2, 3, 4, 5), 1, 3)"));
  AvvisoErrore5("ImpostaGiocataSE", "una colonna ha 6 numeri", "five numbers");

  std::ofstream(m_cartella / "ft.txt", std::ios::binary)
      << "# numeri 5 massimo 20\n02/01/2020 1 2 3 4 5\n04/01/2020 1 2 9 10 11\n07/01/2020 1 2 3 12 13\n";
  ASSERT_EQ(Testo("ApriBaseDatiFT(\"ft.txt\")"), "3");
  Esegui("ImpostaGiocataFT 1, Array(1, 2, 3), 0.5, 2");
  EXPECT_EQ(Testo("GiocaFT(1, False)"), "Falso") << "no prize set: hits only";
  Esegui("SetPremioPagatoFT 3, 10 : ImpostaGiocataFT 1, Array(1, 2, 3), 0.5, 2, 0");
  EXPECT_EQ(Testo("GiocaFT(1, False)"), "Vero");
  // Two colpi of 0,50 each for each FT bet; the second wins 10 at draw 3.
  EXPECT_EQ(Testo("GetSpesa() & \" \" & GetVincita()"), "3 10");
  m_ospite.testo.clear();
  Esegui("ScriviResocontoFT");
  EXPECT_NE(m_ospite.testo.find("punti 2"), std::string::npos) << m_ospite.testo;
  EXPECT_NE(m_ospite.testo.find("punti 3"), std::string::npos) << m_ospite.testo;

  // The 10eLotto with the Oro: each colpo costs the stake twice. Five numbers with two matches, the
  // Oro not among them, win 1 euro net per euro staked (1,12 gross, 11% tax); the progression
  // stakes 1, then 2.
  std::vector<EstrazioneGioco> serate;
  for (int id = 1; id <= 3; ++id) {
    EstrazioneGioco serata;
    serata.id_estr = id;
    serata.data = {static_cast<int16_t>(id), static_cast<int16_t>(id + 1), 1, 2020};
    for (size_t i = 0; i < 20; ++i) serata.numeri[i] = static_cast<uint8_t>((id == 1 ? 30 : 60) + i);
    if (id > 1) serata.numeri[0] = 1, serata.numeri[1] = 2;
    serata.speciali = {serata.numeri[5], serata.numeri[6], 0};
    serate.push_back(serata);
  }
  ASSERT_TRUE(SalvaArchivioGioco(TabellaGioco(Formato(Gioco::DieciELotto), serate), m_cartella / "DL.dat").Riuscito());
  EXPECT_TRUE(Vuoto("ImpostaGiocataDL(1, Array(11, 12, 13, 14, 15), 1, 2, 0, \"platino\")"));
  AvvisoErrore5("ImpostaGiocataDL", "Opzione del 10eLotto non valida", "an option the game has not");
  Esegui("ImpostaGiocataDL 1, Array(11, 12, 13, 1, 2), 1, 2, 0, \"Oro\"");
  Esegui("ImpostaProgressioneDL 1, 0, Array(1, 2)");
  m_ospite.testo.clear();
  EXPECT_EQ(Testo("GiocaDL(1)"), "Vero");
  EXPECT_NE(m_ospite.testo.find("spesa 6,00, vinto netto 3,00"), std::string::npos) << m_ospite.testo;
  EXPECT_EQ(Testo("GetSpesa() & \" \" & GetVincita()"), "9 13");
}

// A back-test over the real archive: after each of the last 300 draws, the first two numbers of Bari
// played as an ambo on Bari and Napoli for five colpi, stopping at the first win. The script's
// totals are those of the engine called here bet by bet.
TEST_F(Libreria, UnaRetroverificaDelloScriptSullArchivioRealeTornaConLaVerificaDiretta) {
  const TabellaEstrazioni& reale = test::ArchivioReale();
  if (reale.Vuota()) GTEST_SKIP() << "real draws not found in " << test::CartellaDatiReali().string();
  const int ultima = reale.EstrazioniArchivio();
  const int prima = ultima - 299;
  stats::Centesimi spesa = 0, netto = 0;
  int vinte = 0, aperte = 0;
  for (int id = prima; id <= ultima; ++id) {
    if (id == ultima) {
      ++aperte;
      continue;
    }
    stats::Giocata giocata;
    giocata.colonne = {{reale[id].Numero(BA, 1), reale[id].Numero(BA, 2)}};
    giocata.ruote = {BA, NA};
    giocata.poste = {{stats::SorteLotto::Ambo, 100, {}, 0}};
    giocata.prima_estrazione = id + 1;
    giocata.colpi = 5;
    giocata.arresto = stats::Arresto::AllaPrimaVincita;
    const stats::EsitoGiocata esito = stats::VerificaGiocata(giocata, reale);
    spesa += esito.spesa;
    netto += esito.vinto.netto;
    vinte += esito.vinta ? 1 : 0;
    aperte += esito.colpi_mancanti > 0 ? 1 : 0;
  }

  Avvia(reale);
  Esegui(
      "Function Prova(da, a)\n"
      "  Dim id, p(5), n, s, k, aperte\n"
      "  p(AMBO_) = 1\n"
      "  For id = da To a\n"
      "    ImpostaGiocata 1, Array(Estratto(id, BA_, 1), Estratto(id, BA_, 2)), Array(BA_, NA_), p, 5\n"
      "    If Gioca(id, False) Then n = n + 1\n"
      "  Next\n"
      "  GetSituazioneGiocate s\n"
      "  For k = 1 To UBound(s, 1)\n"
      "    If s(k, 6) = 2 Then aperte = aperte + 1\n"
      "  Next\n"
      "  Prova = n & \" \" & aperte\n"
      "End Function");
  EXPECT_EQ(Testo(fmt::format("Prova({}, {})", prima, ultima)), fmt::format("{} {}", vinte, aperte));
  EXPECT_EQ(Testo("Round(GetSpesa() * 100) & \" \" & Round(GetVincita() * 100) & \" \" & "
                  "GetQuantitaGiocateEffettuate()"),
            fmt::format("{} {} 300", spesa, netto));
  EXPECT_GT(vinte, 0) << "an ambo on two wheels over 300 bets wins at times";
}

}  // namespace
}  // namespace lottolab::script
