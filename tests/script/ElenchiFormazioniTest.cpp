#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <numeric>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "LibreriaDiProva.h"
#include "stats/ArchiviDiProva.h"

namespace lottolab::script {
namespace {

using test::Archivio;
using test::ArchivioCasuale;
using test::ArchivioReale;

// The wheel as a script writes it: Nazionale is 12 and all the wheels 11, the other way round from
// the table.
int RuotaScript(int ruota) { return ruota == NZ ? 12 : ruota == kTutteLeRuote ? 11 : ruota; }

std::vector<int> RuoteSingole(int ruota) {
  if (ruota != kTutteLeRuote) return {ruota};
  std::vector<int> tutte(kNumeroRuote);
  std::iota(tutte.begin(), tutte.end(), 1);
  return tutte;
}

// A play as its definition reads, one draw at a time and with no shortcut: slow, and written apart
// from the library.
class Giocata {
 public:
  Giocata(const TabellaEstrazioni& tab, std::vector<int> ruote, std::vector<int> numeri, int sorte, int posizione = 0)
      : m_tab(tab), m_numeri(std::move(numeri)), m_sorte(sorte), m_posizione(posizione) {
    for (int ruota : ruote)
      for (int r : RuoteSingole(ruota)) m_ruote.push_back(r);
  }

  // The wheels of the draw on which at least `sorte` of the numbers came out.
  int Vincite(const Estrazione& estrazione) const {
    if (!estrazione.Presente()) return 0;
    int vincite = 0;
    for (int ruota : m_ruote) {
      int colpi = 0;
      for (int p = 1; p <= kNumeriPerRuota; ++p) {
        const bool presa = std::count(m_numeri.begin(), m_numeri.end(), estrazione.Numero(ruota, p)) > 0;
        if (presa && (m_posizione == 0 || m_posizione == p)) ++colpi;
      }
      if (colpi >= m_sorte) ++vincite;
    }
    return vincite;
  }

  bool Conta(const Estrazione& estrazione) const {
    return estrazione.Presente() &&
           std::any_of(m_ruote.begin(), m_ruote.end(), [&](int r) { return estrazione.RuotaEstratta(r); });
  }

  int Ritardo(int inizio, int fine) const { return Ritardo(Estrazioni(inizio, fine)); }

  // Over a list of draws, as the relative delays take the group's events.
  int Ritardo(const std::vector<Estrazione>& estrazioni) const {
    int ritardo = 0;
    for (auto it = estrazioni.rbegin(); it != estrazioni.rend(); ++it) {
      if (Vincite(*it) > 0) return ritardo;
      if (Conta(*it)) ++ritardo;
    }
    return ritardo;
  }

  // The largest delay at any end draw.
  int Storico(const std::vector<Estrazione>& estrazioni) const {
    int storico = 0;
    for (size_t fine = 0; fine <= estrazioni.size(); ++fine)
      storico = std::max(storico, Ritardo(std::vector<Estrazione>(estrazioni.begin(), estrazioni.begin() + fine)));
    return storico;
  }

  int Frequenza(int inizio, int fine) const {
    int frequenza = 0;
    for (const Estrazione& estrazione : Estrazioni(inizio, fine)) frequenza += Vincite(estrazione);
    return frequenza;
  }

  int IncrStorico(int inizio, int fine) const {
    const std::vector<Estrazione> estrazioni = Estrazioni(inizio, fine);
    int chiuso = 0;
    for (size_t i = 0; i < estrazioni.size(); ++i) {
      if (Vincite(estrazioni[i]) > 0)
        chiuso = std::max(chiuso, Ritardo(std::vector<Estrazione>(estrazioni.begin(), estrazioni.begin() + i)));
    }
    return std::max(Ritardo(estrazioni) - chiuso, 0);
  }

  std::vector<Estrazione> Estrazioni(int inizio, int fine) const {
    std::vector<Estrazione> estrazioni;
    for (int id = inizio; id <= fine; ++id) estrazioni.push_back(m_tab[id]);
    return estrazioni;
  }

 private:
  const TabellaEstrazioni& m_tab;
  std::vector<int> m_ruote;
  std::vector<int> m_numeri;
  int m_sorte;
  int m_posizione;
};

std::string Elenco(const std::vector<int>& valori) {
  std::string testo = "1:";
  for (size_t i = 0; i < valori.size(); ++i) testo += (i ? "," : "") + std::to_string(valori[i]);
  return testo;
}

std::string ArrayScript(const std::vector<int>& numeri) {
  std::string testo = "Array(";
  for (size_t i = 0; i < numeri.size(); ++i) testo += (i ? ", " : "") + std::to_string(numeri[i]);
  return testo + ")";
}

// Every combination of `sorte` elements of `numeri`.
std::vector<std::vector<int>> Combinazioni(const std::vector<int>& numeri, int sorte) {
  std::vector<std::vector<int>> tutte;
  const size_t n = numeri.size();
  for (unsigned maschera = 0; maschera < (1u << n); ++maschera) {
    if (std::popcount(maschera) != sorte) continue;
    std::vector<int> scelta;
    for (size_t i = 0; i < n; ++i)
      if (maschera & (1u << i)) scelta.push_back(numeri[i]);
    tutte.push_back(scelta);
  }
  return tutte;
}

// "lower bound:elements" of a script's array, to compare whole lists in one expression.
constexpr std::string_view kFunzioneElenco =
    "Function Elenco(a)\n"
    "  Dim i, s\n"
    "  For i = LBound(a) To UBound(a)\n"
    "    If i > LBound(a) Then s = s & \",\"\n"
    "    s = s & a(i)\n"
    "  Next\n"
    "  Elenco = LBound(a) & \":\" & s\n"
    "End Function\n";

class LibreriaElenchi : public Libreria {
 protected:
  // Numbers from 1..30 only, so that 31..90 share the longest delay; Nazionale from draw 40.
  void SetUp() override {
    Avvia(ArchivioCasuale(80, 30, 11));
    Esegui(kFunzioneElenco);
    Esegui("Dim r, esito");
  }
};

// The delays of the ninety numbers and their ranking by the definitions.
struct Attesa {
  std::vector<int> ritardi;     // element n - 1 for number n
  std::vector<int> classifica;  // numbers from the most delayed down, smaller first on a tie
};

Attesa Atteso(const TabellaEstrazioni& tab, int ruota, int inizio, int fine) {
  Attesa attesa;
  for (int n = 1; n <= kMassimoNumero; ++n)
    attesa.ritardi.push_back(Giocata(tab, {ruota}, {n}, 1).Ritardo(inizio, fine));
  attesa.classifica.resize(kMassimoNumero);
  std::iota(attesa.classifica.begin(), attesa.classifica.end(), 1);
  std::sort(attesa.classifica.begin(), attesa.classifica.end(), [&](int a, int b) {
    const int ra = attesa.ritardi[static_cast<size_t>(a - 1)];
    const int rb = attesa.ritardi[static_cast<size_t>(b - 1)];
    return ra != rb ? ra > rb : a < b;
  });
  return attesa;
}

TEST_F(LibreriaElenchi, IRitardiDeiNovantaNumeriELaLoroClassifica) {
  for (int ruota : {int{BA}, int{CA}, int{NZ}, kTutteLeRuote}) {
    for (auto [inizio, fine] : {std::pair{1, 80}, {1, 39}, {1, 6}, {30, 80}}) {
      SCOPED_TRACE(testing::Message() << "wheel " << ruota << ", draws " << inizio << ".." << fine);
      const Attesa attesa = Atteso(m_tab, ruota, inizio, fine);
      const std::string r = std::to_string(RuotaScript(ruota));
      const std::string intervallo = ", " + std::to_string(inizio) + ", " + std::to_string(fine);
      for (std::string_view turbo : {"", "Turbo"}) {
        const std::string t(turbo);
        Esegui("ElencoRitardi" + t + " " + r + ", r" + intervallo);
        EXPECT_EQ(Testo("Elenco(r)"), Elenco(attesa.ritardi)) << t;
        if (inizio != 1) continue;
        const std::string f = std::to_string(fine);
        EXPECT_EQ(Testo("PiuRitardatario" + t + "(" + r + ", " + f + ")"), std::to_string(attesa.classifica[0])) << t;
        Esegui("PiuRitardatari" + t + " " + r + ", 7, r, " + f);
        EXPECT_EQ(Testo("Elenco(r)"),
                  Elenco(std::vector<int>(attesa.classifica.begin(), attesa.classifica.begin() + 7)))
            << t;
        for (int posto = 1; posto <= kMassimoNumero; posto += 11) {
          const int numero = attesa.classifica[static_cast<size_t>(posto - 1)];
          EXPECT_EQ(Testo("NumeroPosRit" + t + "(" + r + ", " + std::to_string(posto) + ", " + f + ")"),
                    std::to_string(numero))
              << t;
          EXPECT_EQ(Testo("PosNumeroRit" + t + "(" + r + ", " + std::to_string(numero + 90) + ", " + f + ")"),
                    std::to_string(posto))
              << t << ": the number is brought into 1..90";
        }
      }
    }
  }
  EXPECT_EQ(Testo("TypeName(PiuRitardatario(1)) & TypeName(NumeroPosRit(1, 1)) & TypeName(PosNumeroRit(1, 1))"),
            "IntegerIntegerInteger");
  Esegui("ElencoRitardi 1, r");
  EXPECT_EQ(Testo("TypeName(r(1)) & UBound(r)"), "Long90");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaElenchi, RitPosContaSoloUnaPosizione) {
  for (int ruota : {int{BA}, int{NZ}, kTutteLeRuote}) {
    for (int numero : {1, 7, 30, 31}) {
      for (int posizione = 1; posizione <= kNumeriPerRuota; ++posizione) {
        for (auto [inizio, fine] : {std::pair{1, 80}, {20, 60}}) {
          const std::string argomenti = std::to_string(RuotaScript(ruota)) + ", " + std::to_string(numero) + ", " +
                                        std::to_string(posizione) + ", " + std::to_string(inizio) + ", " +
                                        std::to_string(fine) + ")";
          const std::string atteso =
              std::to_string(Giocata(m_tab, {ruota}, {numero}, 1, posizione).Ritardo(inizio, fine));
          EXPECT_EQ(Testo("RitPos(" + argomenti), atteso) << argomenti;
          EXPECT_EQ(Testo("RitPosTurbo(" + argomenti), atteso) << argomenti;
        }
      }
    }
  }
  EXPECT_EQ(Testo("RitPos(1, 5, 1) = RitPos(1, 5, 1, 1, 80)"), "Vero") << "the whole archive by default";
  EXPECT_EQ(Testo("TypeName(RitPos(1, 5, 1)) & TypeName(RitPosTurbo(1, 5, 1))"), "LongLong");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(Libreria, LAmboPosizionaleVinceSoloConOgniNumeroNellaSuaPosizione) {
  Avvia(Archivio()
            .Estrazione({{BA, {10, 20, 1, 2, 3}}})
            .Estrazione({{BA, {20, 10, 1, 2, 3}}})
            .Estrazione({{BA, {10, 5, 20, 1, 2}}})
            .Estrazione({{CA, {10, 20, 1, 2, 3}}})
            .Vuota()
            .Estrazione({{BA, {10, 6, 7, 8, 9}}, {CA, {1, 20, 2, 3, 4}}})
            .Estrazione()
            .Tabella());
  EXPECT_EQ(Testo("AmboPosRit(BA_, 10, 1, 20, 2)"), "5") << "won in draw 1 only; record 5 holds no draw";
  EXPECT_EQ(Testo("AmboPosRit(BA_, 20, 2, 10, 1)"), "5") << "the pairs in either order";
  EXPECT_EQ(Testo("AmboPosRit(BA_, 20, 1, 10, 2)"), "4");
  EXPECT_EQ(Testo("AmboPosRit(BA_, 10, 1, 20, 3)"), "3");
  EXPECT_EQ(Testo("AmboPosRit(CA_, 10, 1, 20, 2)"), "2");
  EXPECT_EQ(Testo("AmboPosRit(TU_, 10, 1, 20, 2)"), "2") << "draw 6 has the two numbers on two wheels";
  EXPECT_EQ(Testo("AmboPosRit(BA_, 10, 1, 20, 2, 2)"), "5") << "never won in 2..7";
  EXPECT_EQ(Testo("AmboPosRit(BA_, 10, 1, 20, 2, 1, 3)"), "2");
  EXPECT_EQ(Testo("AmboPosRit(BA_, 100, 1, 20, 2, 1, 1)"), "0") << "100 is 10 on the circle";
  EXPECT_EQ(Testo("TypeName(AmboPosRit(BA_, 10, 1, 20, 2))"), "Long");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(Libreria, RitPosCronoDaIRitardiChiusiDaOgniUscitaEPoiQuelloInCorso) {
  Avvia(Archivio()
            .Estrazione()
            .Estrazione({{BA, {7, 1, 2, 3, 4}}})
            .Estrazione({{BA, {1, 7, 2, 3, 4}}})
            .Estrazione()
            .Estrazione({{BA, {7, 1, 2, 3, 4}}, {CA, {7, 1, 2, 3, 4}}})
            .Estrazione()
            .Estrazione()
            .Tabella());
  Esegui(kFunzioneElenco);
  Esegui("Dim r");
  EXPECT_EQ(Testo("RitPosCrono(BA_, 7, 1, r) & \" \" & Elenco(r)"), "3 1:1,2,2") << "7 second in draw 3 is no outing";
  EXPECT_EQ(Testo("RitPosCrono(TU_, 7, 1, r) & \" \" & Elenco(r)"), "3 1:1,2,2") << "one outing for draw 5";
  EXPECT_EQ(Testo("RitPosCrono(BA_, 7, 1, r, 3, 6) & \" \" & Elenco(r)"), "2 1:2,1");
  EXPECT_EQ(Testo("RitPosCrono(BA_, 7, 2, r) & \" \" & Elenco(r)"), "2 1:2,4");
  EXPECT_EQ(Testo("RitPosCrono(BA_, 8, 2, r) & \" \" & Elenco(r)"), "1 1:7") << "never out";
  EXPECT_EQ(Testo("TypeName(RitPosCrono(BA_, 7, 1, r)) & TypeName(r(1))"), "LongLong");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// Each delay of the chronology is the delay of the draw before its outing, its last one RitPos's, and
// with every outing counted the runs and the outings cover the counted draws of the range exactly.
TEST_F(LibreriaElenchi, LaCronologiaDiRitPosCopreLeEstrazioniContate) {
  Esegui(
      "Function Somma(a)\n  Dim i, s\n  For i = 1 To UBound(a)\n    s = s + a(i) + 1\n  Next\n"
      "  Somma = s\nEnd Function\n");
  for (int ruota : {int{BA}, int{NZ}, kTutteLeRuote}) {
    for (int numero : {3, 17, 30}) {
      for (int posizione : {1, 4}) {
        for (auto [inizio, fine] : {std::pair{1, 80}, {20, 60}}) {
          const Giocata giocata(m_tab, {ruota}, {numero}, 1, posizione);
          std::vector<int> attesi;
          int contate = 0;
          for (int id = inizio; id <= fine; ++id) {
            if (giocata.Conta(m_tab[id])) ++contate;
            if (giocata.Vincite(m_tab[id]) > 0) attesi.push_back(id > inizio ? giocata.Ritardo(inizio, id - 1) : 0);
          }
          attesi.push_back(giocata.Ritardo(inizio, fine));
          const std::string argomenti = std::to_string(RuotaScript(ruota)) + ", " + std::to_string(numero) + ", " +
                                        std::to_string(posizione) + ", r, " + std::to_string(inizio) + ", " +
                                        std::to_string(fine);
          EXPECT_EQ(Testo("RitPosCrono(" + argomenti + ")"), std::to_string(attesi.size())) << argomenti;
          EXPECT_EQ(Testo("Elenco(r)"), Elenco(attesi)) << argomenti;
          EXPECT_EQ(Testo("Somma(r) - 1"), std::to_string(contate)) << argomenti;
        }
      }
    }
  }
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// The synchronous delay by its definition: the draws back to the latest in which at least `livello`
// wheels win at once.
TEST_F(LibreriaElenchi, IlRitardoSincronoVuoleLivelloRuoteVincentiNellaStessaEstrazione) {
  const std::vector<int> numeri{2, 9, 14, 21, 26, 30};
  for (auto [ruote, sorte] : {std::pair{std::vector<int>{BA, CA, NZ}, 1},
                              {std::vector<int>{kTutteLeRuote}, 1},
                              {std::vector<int>{kTutteLeRuote}, 2}}) {
    const Giocata giocata(m_tab, ruote, numeri, sorte);
    std::string aruote = "Array(";
    for (size_t i = 0; i < ruote.size(); ++i) aruote += (i ? ", " : "") + std::to_string(RuotaScript(ruote[i]));
    for (int livello = 1; livello <= 3; ++livello) {
      for (auto [inizio, fine] : {std::pair{1, 80}, {10, 50}}) {
        int ritardo = 0;
        for (int id = fine; id >= inizio && giocata.Vincite(m_tab[id]) < livello; --id)
          if (giocata.Conta(m_tab[id])) ++ritardo;
        const std::string chiamata = "RitSincDiLiv(" + aruote + "), " + ArrayScript(numeri) + ", " +
                                     std::to_string(sorte) + ", " + std::to_string(livello) + ", " +
                                     std::to_string(inizio) + ", " + std::to_string(fine) + ")";
        EXPECT_EQ(Testo(chiamata), std::to_string(ritardo)) << chiamata;
      }
    }
  }
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaElenchi, GetRitardoEstrattiDaIRitardiPrimaDellEstrazione) {
  for (int ruota : {int{BA}, int{FI}, int{NZ}}) {
    for (int id : {2, 7, 45, 80}) {
      std::vector<int> attesi;
      for (int p = 1; p <= kNumeriPerRuota; ++p) {
        const int numero = m_tab[id].Numero(ruota, p);
        if (numero != 0) attesi.push_back(Giocata(m_tab, {ruota}, {numero}, 1).Ritardo(1, id - 1));
      }
      Esegui("esito = GetRitardoEstratti(" + std::to_string(id) + ", " + std::to_string(RuotaScript(ruota)) + ", r)");
      const bool estratta = m_tab[id].Presente() && attesi.size() == kNumeriPerRuota;
      EXPECT_EQ(Testo("esito"), estratta ? "Vero" : "Falso") << "wheel " << ruota << ", draw " << id;
      if (!estratta) continue;
      EXPECT_EQ(Testo("Elenco(r)"), Elenco(attesi)) << "wheel " << ruota << ", draw " << id;
    }
  }
  Esegui("esito = GetRitardoEstratti(1, BA_, r)");
  EXPECT_EQ(Testo("Elenco(r)"), "1:0,0,0,0,0") << "no draw comes before the first";

  Esegui("r = 7\nesito = GetRitardoEstratti(5, BA_, r)");
  EXPECT_EQ(Testo("esito & \" \" & r"), "Falso 7") << "record 5 holds no draw";
  Esegui("esito = GetRitardoEstratti(10, NZ_, r)");
  EXPECT_EQ(Testo("esito & \" \" & r"), "Falso 7") << "Nazionale is drawn from draw 40 only";
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaElenchi, IRitardiRelativiSiContanoNegliEventiDelGruppo) {
  const std::vector<int> gruppo{2, 5, 9, 14, 21, 30};
  for (auto [ruote, sorte] : {std::pair{std::vector<int>{BA}, 1},
                              {std::vector<int>{CA, NZ}, 2},
                              {std::vector<int>{kTutteLeRuote}, 2},
                              {std::vector<int>{kTutteLeRuote}, 3}}) {
    for (auto [inizio, fine] : {std::pair{1, 80}, {10, 50}}) {
      std::string aruote = "Array(";
      for (size_t i = 0; i < ruote.size(); ++i) aruote += (i ? ", " : "") + std::to_string(RuotaScript(ruote[i]));
      aruote += ")";
      const std::string argomenti = aruote + ", " + ArrayScript(gruppo) + ", " + std::to_string(sorte) + ", " +
                                    std::to_string(inizio) + ", " + std::to_string(fine) + ")";
      SCOPED_TRACE(argomenti);
      const Giocata del_gruppo(m_tab, ruote, gruppo, sorte);
      std::vector<Estrazione> eventi;
      for (const Estrazione& estrazione : del_gruppo.Estrazioni(inizio, fine))
        if (del_gruppo.Vincite(estrazione) > 0) eventi.push_back(estrazione);
      EXPECT_EQ(Testo("InitCalcoloRitRel(" + argomenti), std::to_string(eventi.size()));
      EXPECT_EQ(Testo("InitCalcoloRitRelTurbo(" + argomenti), std::to_string(eventi.size()));
      for (const std::vector<int>& combinazione : Combinazioni(gruppo, sorte)) {
        const Giocata giocata(m_tab, ruote, combinazione, sorte);
        const std::string ritardo = std::to_string(giocata.Ritardo(eventi));
        const std::string massimo = std::to_string(giocata.Storico(eventi));
        std::vector<int> rovesciata(combinazione.rbegin(), combinazione.rend());
        EXPECT_EQ(Testo("GetRitRel(" + ArrayScript(combinazione) + ")"), ritardo) << ArrayScript(combinazione);
        EXPECT_EQ(Testo("GetRitRelTurbo(" + ArrayScript(rovesciata) + ")"), ritardo) << ArrayScript(combinazione);
        EXPECT_EQ(Testo("GetRitRelMax(" + ArrayScript(combinazione) + ")"), massimo) << ArrayScript(combinazione);
        EXPECT_EQ(Testo("GetRitRelMaxTurbo(" + ArrayScript(combinazione) + ")"), massimo) << ArrayScript(combinazione);
      }
    }
  }
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(Libreria, IRitardiRelativiDiUnaTabellaScrittaAMano) {
  // The ambi of {1, 2, 3} on Bari: the group wins in draws 1, 3 and 4, each time with another ambo;
  // draw 2 is not one of its events.
  Avvia(Archivio()
            .Estrazione({{BA, {1, 2, 40, 41, 42}}})
            .Estrazione({{BA, {1, 50, 51, 52, 53}}})
            .Estrazione({{BA, {60, 3, 2, 61, 62}}})
            .Estrazione({{BA, {70, 71, 72, 3, 1}}})
            .Tabella());
  for (std::string_view turbo : {"", "Turbo"}) {
    const std::string t(turbo);
    EXPECT_EQ(Testo("InitCalcoloRitRel" + t + "(BA_, Array(1, 2, 3), AMBO_)"), "3");
    EXPECT_EQ(
        Testo("GetRitRel" + t + "(Array(1, 2)) & GetRitRel" + t + "(Array(2, 3)) & GetRitRel" + t + "(Array(1, 3))"),
        "210");
    EXPECT_EQ(Testo("GetRitRelMax" + t + "(Array(1, 2)) & GetRitRelMax" + t + "(Array(2, 3)) & GetRitRelMax" + t +
                    "(Array(1, 3))"),
              "212");
  }
  EXPECT_EQ(Testo("InitCalcoloRitRel(BA_, Array(1, 2, 3), AMBO_, 2, 4)"), "2");
  EXPECT_EQ(Testo("GetRitRel(Array(1, 2)) & GetRitRelMax(Array(1, 3))"), "21");
  EXPECT_EQ(Testo("TypeName(GetRitRel(Array(1, 2))) & TypeName(GetRitRelMaxTurbo(Array(1, 2)))"), "LongLong");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// The rows of a lunghette matrix as "numbers:delay", separated by spaces.
constexpr std::string_view kFunzioneRighe =
    "Function Righe(m, n)\n"
    "  Dim i, j, s\n"
    "  For i = 1 To n\n"
    "    If i > 1 Then s = s & \" \"\n"
    "    For j = 1 To UBound(m, 2) - 1\n"
    "      If j > 1 Then s = s & \"-\"\n"
    "      s = s & m(i, j)\n"
    "    Next\n"
    "    s = s & \":\" & m(i, UBound(m, 2))\n"
    "  Next\n"
    "  Righe = s\n"
    "End Function\n";

TEST_F(Libreria, LeLunghettePiuRitardateInOrdineDiRitardoEPoiDiNumeri) {
  // The ambi of 1..4 on Bari: 1-2, 1-3 and 2-3 win in draw 1, 1-4 in draw 2, 2-3 again in draw 4.
  Avvia(Archivio()
            .Estrazione({{BA, {1, 2, 3, 80, 81}}})
            .Estrazione({{BA, {4, 70, 71, 1, 72}}, {CA, {2, 4, 3, 70, 71}}})
            .Estrazione()
            .Estrazione({{BA, {70, 3, 71, 72, 2}}})
            .Estrazione()
            .Tabella());
  Esegui(kFunzioneRighe);
  Esegui("Dim r, n");
  EXPECT_EQ(Testo("GetLunghettePiuRitardate(Array(4, 3, 2, 1, 3), 2, BA_, AMBO_, 10, r)"), "6")
      << "3 given twice counts once";
  EXPECT_EQ(Testo("Righe(r, 6)"), "2-4:5 3-4:5 1-2:4 1-3:4 1-4:3 2-3:1");
  EXPECT_EQ(Testo("LBound(r, 1) & LBound(r, 2) & UBound(r, 1) & UBound(r, 2) & TypeName(r(1, 3))"), "1163Long");
  EXPECT_EQ(Testo("GetLunghettePiuRitardate(Array(1, 2, 3, 4), 2, BA_, AMBO_, 3, r, 4)"), "3");
  EXPECT_EQ(Testo("Righe(r, 3)"), "2-4:4 3-4:4 1-2:3");
  EXPECT_EQ(Testo("UBound(r, 1)"), "3");
  EXPECT_EQ(Testo("GetLunghettePiuRitardate(Array(1, 2, 3, 4), 2, Array(BA_, CA_), AMBO_, 2, r)"), "2");
  EXPECT_EQ(Testo("Righe(r, 2)"), "1-2:4 1-3:4") << "2-4 and 3-4 won on Cagliari in draw 2";
  EXPECT_EQ(Testo("GetLunghettePiuRitardate(Array(1, 2, 3, 4), 3, BA_, AMBATA_, 4, r)"), "4");
  EXPECT_EQ(Testo("Righe(r, 4)"), "1-2-3:1 1-2-4:1 1-3-4:1 2-3-4:1") << "every terno has 2 or 3, out in draw 4";
  EXPECT_EQ(Testo("TypeName(GetLunghettePiuRitardate(1, 1, BA_, AMBATA_, 1, r))"), "Long");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// Every lunghetta measured apart, then sorted by the rule, against the one walk of the library.
TEST_F(LibreriaElenchi, LeLunghetteSonoQuelleDeiRitardiMisuratiUnaPerUna) {
  Esegui(kFunzioneRighe);
  const std::vector<int> numeri{2, 5, 9, 14, 21, 26, 30, 45};
  for (auto [ruote, classe, sorte] : {std::tuple{std::vector<int>{BA}, 3, 2},
                                      {std::vector<int>{CA, NZ}, 4, 2},
                                      {std::vector<int>{kTutteLeRuote}, 3, 3},
                                      {std::vector<int>{FI}, 2, 1}}) {
    for (int fine : {80, 45}) {
      std::vector<std::pair<int, std::vector<int>>> attese;
      for (const std::vector<int>& lunghetta : Combinazioni(numeri, classe))
        attese.emplace_back(Giocata(m_tab, ruote, lunghetta, sorte).Ritardo(1, fine), lunghetta);
      std::sort(attese.begin(), attese.end(), [](const auto& a, const auto& b) {
        return a.first != b.first ? a.first > b.first : a.second < b.second;
      });
      std::string righe;
      for (size_t i = 0; i < 12; ++i) {
        righe += (i ? " " : "");
        for (size_t j = 0; j < attese[i].second.size(); ++j)
          righe += (j ? "-" : "") + std::to_string(attese[i].second[j]);
        righe += ":" + std::to_string(attese[i].first);
      }
      std::string aruote = "Array(";
      for (size_t i = 0; i < ruote.size(); ++i) aruote += (i ? ", " : "") + std::to_string(RuotaScript(ruote[i]));
      const std::string chiamata = "GetLunghettePiuRitardate(" + ArrayScript(numeri) + ", " + std::to_string(classe) +
                                   ", " + aruote + "), " + std::to_string(sorte) + ", 12, r, " + std::to_string(fine) +
                                   ")";
      EXPECT_EQ(Testo(chiamata), "12") << chiamata;
      EXPECT_EQ(Testo("Righe(r, 12)"), righe) << chiamata;
    }
  }
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

class LibreriaErrori : public Libreria {
 protected:
  void SetUp() override {
    Avvia(ArchivioCasuale(30, 30, 3));
    Esegui("Dim r");
  }

  // The call fails with error 5 under the function's own name, and the script goes on.
  void AttendiErrore5(const std::string& chiamata) {
    m_ospite.avvisi.clear();
    Esegui("On Error Resume Next\n" + chiamata);
    AvvisoErrore5(chiamata.substr(0, chiamata.find_first_of(" (")), "", chiamata);
  }
};

TEST_F(LibreriaErrori, GliArgomentiSbagliatiDegliElenchiSonoErrore5) {
  for (std::string chiamata :
       {"ElencoRitardi 13, r", "ElencoRitardi 0, r", "ElencoRitardiTurbo 1, r, 0", "ElencoRitardi 1, r, 1, 31",
        "ElencoRitardi 1, r, 20, 10", "PiuRitardatario 1, 31", "PiuRitardatarioTurbo 14", "PiuRitardatari 1, 0, r",
        "PiuRitardatari 1, 91, r", "PiuRitardatariTurbo 1, 5, r, 99", "PosNumeroRit 13, 5", "NumeroPosRit 1, 0",
        "NumeroPosRitTurbo 1, 91", "RitPos 1, 5, 0", "RitPos 1, 5, 6", "RitPosTurbo 1, 5, 1, 25, 24",
        "GetRitardoEstratti 0, 1, r", "GetRitardoEstratti 31, 1, r", "GetRitardoEstratti 3, TU_, r"}) {
    AttendiErrore5(chiamata);
  }
}

TEST_F(LibreriaErrori, GliArgomentiSbagliatiDeiRitardiPosizionaliSonoErrore5) {
  for (std::string chiamata :
       {"AmboPosRit 13, 1, 1, 2, 2", "AmboPosRit 1, 1, 0, 2, 2", "AmboPosRit 1, 1, 1, 2, 6", "AmboPosRit 1, 1, 1, 2, 1",
        "AmboPosRit 1, 1, 1, 91, 2", "AmboPosRit 1, 1, 1, 2, 2, 20, 10", "AmboPosRit 1, 1, 1, 2, 2, 1, 31",
        "RitPosCrono 0, 5, 1, r", "RitPosCrono 1, 5, 6, r", "RitPosCrono 1, 5, 1, r, 25, 24"}) {
    AttendiErrore5(chiamata);
  }
}

TEST_F(LibreriaErrori, LeLunghetteRifiutanoSviluppiTroppoGrandiESortiOltreLaClasse) {
  std::string novanta = "Array(1";
  for (int n = 2; n <= kMassimoNumero; ++n) novanta += ", " + std::to_string(n);
  novanta += ")";
  const std::string chiamate[] = {"GetLunghettePiuRitardate " + novanta + ", 4, BA_, AMBO_, 10, r",
                                  "GetLunghettePiuRitardate Array(1, 2, 3), 2, BA_, TERNO_, 10, r",
                                  "GetLunghettePiuRitardate Array(1, 2, 3), 0, BA_, AMBATA_, 10, r",
                                  "GetLunghettePiuRitardate Array(1, 2, 3), 4, BA_, AMBATA_, 10, r",
                                  "GetLunghettePiuRitardate Array(), 1, BA_, AMBATA_, 10, r",
                                  "GetLunghettePiuRitardate Array(1, 2, 3), 2, 13, AMBO_, 10, r",
                                  "GetLunghettePiuRitardate Array(1, 2, 3), 2, BA_, AMBO_, 0, r",
                                  "GetLunghettePiuRitardate Array(1, 2, 3), 2, BA_, AMBO_, 1, r, 31"};
  for (const std::string& chiamata : chiamate) AttendiErrore5(chiamata);
  EXPECT_EQ(Testo("GetLunghettePiuRitardate(" + novanta + ", 3, BA_, AMBO_, 1, r)"), "1")
      << "117,480 terni are allowed";
  EXPECT_EQ(Testo("UBound(r, 2)"), "4");
}

TEST_F(LibreriaErrori, IRitardiRelativiVoglionoUnGruppoEUnaSuaCombinazione) {
  for (std::string_view turbo : {"", "Turbo"}) {
    const std::string t(turbo);
    AttendiErrore5("GetRitRel" + t + " Array(1, 2)");
    AttendiErrore5("InitCalcoloRitRel" + t + " BA_, Array(1, 1), AMBO_");
    AttendiErrore5("InitCalcoloRitRel" + t + " BA_, Array(1, 2), 6");
    AttendiErrore5("InitCalcoloRitRel" + t + " 13, Array(1, 2), AMBO_");
    AttendiErrore5("InitCalcoloRitRel" + t + " BA_, Array(1, 2), AMBO_, 5, 2");
    EXPECT_EQ(Testo("InitCalcoloRitRel" + t + "(BA_, Array(1, 2, 3, 4), AMBO_) >= 0"), "Vero");
    AttendiErrore5("GetRitRel" + t + " Array(1, 5)");
    AttendiErrore5("GetRitRel" + t + " Array(1, 1)");
    AttendiErrore5("GetRitRelMax" + t + " Array(1, 2, 3)");
    Esegui("ResetRitardoRel" + t);
    AttendiErrore5("GetRitRelMax" + t + " Array(1, 2)");
  }
  std::string novanta = "Array(1";
  for (int n = 2; n <= kMassimoNumero; ++n) novanta += ", " + std::to_string(n);
  AttendiErrore5("InitCalcoloRitRelTurbo TU_, " + novanta + "), CINQUINA_");
}

TEST_F(LibreriaErrori, LeFormazioniInesistentiEGliArgomentiSbagliatiSonoErrore5) {
  AttendiErrore5("GetQElemFormazione 1");
  AttendiErrore5("AddItemFormazione 1, 5");
  AttendiErrore5("StatisticaGruppoFormazioni BA_, AMBATA_");
  Esegui("AddItemFormazione 0, 5");
  for (std::string chiamata :
       {"AddItemFormazione 2, 5", "AddItemFormazione -1, 5", "GetItemFormazione 1, 0", "GetItemFormazione 1, 2",
        "GetElementiFormazione 0", "GetClasseFormazione 2", "AddItemFormazioneMultipla Array()",
        "AddNumeriToGruppoStatistico Array()", "StatisticaFormazione Array(1, 2), BA_, 0, r, r, r, r",
        "StatisticaFormazione Array(1, 2), 13, 1, r, r, r, r", "StatisticaFormazione Array(), BA_, 1, r, r, r, r",
        "StatisticaFormazione Array(1, 2), BA_, 1, r, r, r, r, 9, 8", "StatisticaGruppoFormazioni BA_, 6",
        "StatisticaGruppoFormazioni BA_, 1, 1, 31"}) {
    AttendiErrore5(chiamata);
  }
}

TEST_F(Libreria, LeFormazioniSiCostruisconoERestanoNelloStatoDellEsecuzione) {
  Avvia(ArchivioCasuale(10, 30, 5));
  Esegui(kFunzioneElenco);
  EXPECT_EQ(Testo("AddItemFormazione(0, 5)"), "1");
  EXPECT_EQ(Testo("AddItemFormazione(1, 7) & AddItemFormazione(1, 95) & AddItemFormazione(1, 0)"), "111")
      << "95 is 5 again, 0 is 90";
  EXPECT_EQ(Testo("AddItemFormazioneMultipla(Array(3, 4, 3, 93))"), "2");
  EXPECT_EQ(Testo("AddNumeriToGruppoStatistico(Array(10, 20, 30))"), "5");
  EXPECT_EQ(Testo("AddItemFormazioneMultipla(Array(1, 2, 3, 4, 5, 6, 7))"), "6");

  EXPECT_EQ(Testo("Elenco(GetElementiFormazione(1))"), "1:5,7,90");
  EXPECT_EQ(Testo("Elenco(GetElementiFormazione(2))"), "1:3,4");
  EXPECT_EQ(Testo("Elenco(GetElementiFormazione(4))"), "1:20");
  EXPECT_EQ(Testo("GetItemFormazione(1, 3) & \" \" & GetItemFormazione(5, 1)"), "90 30");
  EXPECT_EQ(Testo("GetQElemFormazione(1) & GetQElemFormazione(3) & GetQElemFormazione(6)"), "317");
  EXPECT_EQ(Testo("GetClasseFormazione(1) & GetClasseFormazione(3) & GetClasseFormazione(6)"), "315")
      << "seven numbers win at most a cinquina";
  EXPECT_EQ(Testo("TypeName(AddItemFormazione(1, 8)) & TypeName(GetItemFormazione(1, 1)) & "
                  "TypeName(GetQElemFormazione(1)) & TypeName(GetClasseFormazione(1))"),
            "LongIntegerLongInteger");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// The fields of a line of a table, single-spaced.
std::string Campi(const std::string& riga) {
  std::istringstream campi(riga);
  std::string campo, letti;
  while (campi >> campo) letti += (letti.empty() ? "" : " ") + campo;
  return letti;
}

class LibreriaStatisticaFormazioni : public Libreria {
 protected:
  void SetUp() override {
    Avvia(ArchivioCasuale(90, 25, 17));
    Esegui("Dim rit, ritmax, incr, freq");
  }

  std::string Figure(const Giocata& giocata, int inizio, int fine) {
    const std::vector<Estrazione> estrazioni = giocata.Estrazioni(inizio, fine);
    return std::to_string(giocata.Ritardo(inizio, fine)) + " " + std::to_string(giocata.Storico(estrazioni)) + " " +
           std::to_string(giocata.IncrStorico(inizio, fine)) + " " + std::to_string(giocata.Frequenza(inizio, fine));
  }
};

TEST_F(LibreriaStatisticaFormazioni, StatisticaFormazioneRiempieLeVariabiliDelloScript) {
  for (const std::vector<int>& numeri : {std::vector<int>{3}, {3, 8, 11}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}) {
    for (auto [ruote, sorte] : {std::pair{std::vector<int>{BA}, 1},
                                {std::vector<int>{MI, NZ}, 2},
                                {std::vector<int>{kTutteLeRuote}, 2},
                                {std::vector<int>{kTutteLeRuote}, 3}}) {
      for (auto [inizio, fine] : {std::pair{1, 90}, {20, 70}}) {
        std::string aruote = "Array(";
        for (size_t i = 0; i < ruote.size(); ++i) aruote += (i ? ", " : "") + std::to_string(RuotaScript(ruote[i]));
        for (std::string nome : {"StatisticaFormazione ", "StatisticaFormazioneTurbo "}) {
          const std::string chiamata = nome + ArrayScript(numeri) + ", " + aruote + "), " + std::to_string(sorte) +
                                       ", rit, ritmax, incr, freq, " + std::to_string(inizio) + ", " +
                                       std::to_string(fine);
          Esegui(chiamata);
          EXPECT_EQ(Testo("rit & \" \" & ritmax & \" \" & incr & \" \" & freq"),
                    Figure(Giocata(m_tab, ruote, numeri, sorte), inizio, fine))
              << chiamata;
        }
      }
    }
  }
  Esegui("StatisticaFormazione Array(1, 2), BA_, AMBO_, rit, ritmax, incr, freq");
  EXPECT_EQ(Testo("TypeName(rit) & TypeName(ritmax) & TypeName(incr) & TypeName(freq)"), "LongLongLongLong");
  EXPECT_EQ(Testo("rit"), Testo("RitardoCombinazione(BA_, Array(1, 2), AMBO_, 90)")) << "the whole archive by default";
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaStatisticaFormazioni, StatisticaGruppoFormazioniScriveUnaRigaPerFormazione) {
  const std::vector<std::vector<int>> formazioni{{4, 9}, {12, 1, 7}, {20}, {21}};
  Esegui(
      "AddItemFormazioneMultipla Array(4, 9)\nAddItemFormazioneMultipla Array(12, 1, 7)\n"
      "AddNumeriToGruppoStatistico Array(20, 21)\nStatisticaGruppoFormazioni Array(BA_, NZ_), AMBATA_, 10, 80");
  std::istringstream righe(m_ospite.testo);
  std::string riga;
  std::getline(righe, riga);
  EXPECT_EQ(Campi(riga), "Formazione Rit RitMax IncrMax Freq Numeri");
  for (size_t i = 0; i < formazioni.size(); ++i) {
    ASSERT_TRUE(std::getline(righe, riga));
    std::string numeri;
    for (int n : formazioni[i])
      numeri += (numeri.empty() ? "" : ".") + std::string(n < 10 ? "0" : "") + std::to_string(n);
    const std::string attesa =
        std::to_string(i + 1) + " " + Figure(Giocata(m_tab, {BA, NZ}, formazioni[i], 1), 10, 80) + " " + numeri;
    EXPECT_EQ(Campi(riga), attesa);
  }
  EXPECT_FALSE(std::getline(righe, riga)) << riga;
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// The Turbo tables against the plain walks on the real archive, at end draws spread over it.
TEST_F(Libreria, LeFormeTurboDannoLeStesseCifreSullArchivioReale) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  Avvia(ArchivioReale());
  Esegui(kFunzioneElenco);
  Esegui(
      "Function Differenze()\n"
      "  Dim ruota, fine, a, b, n, p, d\n"
      "  For fine = 1 To EstrazioniArchivio() Step 401\n"
      "    For ruota = 1 To 12\n"
      "      ElencoRitardi ruota, a, 1, fine\n"
      "      ElencoRitardiTurbo ruota, b, 1, fine\n"
      "      If Elenco(a) <> Elenco(b) Then d = d + 1\n"
      "      ElencoRitardi ruota, a, fine \\ 2 + 1, fine\n"
      "      ElencoRitardiTurbo ruota, b, fine \\ 2 + 1, fine\n"
      "      If Elenco(a) <> Elenco(b) Then d = d + 1\n"
      "      If PiuRitardatario(ruota, fine) <> PiuRitardatarioTurbo(ruota, fine) Then d = d + 1\n"
      "      PiuRitardatari ruota, 90, a, fine\n"
      "      PiuRitardatariTurbo ruota, 90, b, fine\n"
      "      If Elenco(a) <> Elenco(b) Then d = d + 1\n"
      "      n = (fine Mod 90) + 1\n"
      "      If PosNumeroRit(ruota, n, fine) <> PosNumeroRitTurbo(ruota, n, fine) Then d = d + 1\n"
      "      If NumeroPosRit(ruota, n, fine) <> NumeroPosRitTurbo(ruota, n, fine) Then d = d + 1\n"
      "      For p = 1 To 5\n"
      "        If RitPos(ruota, n, p, 1, fine) <> RitPosTurbo(ruota, n, p, 1, fine) Then d = d + 1\n"
      "      Next\n"
      "    Next\n"
      "  Next\n"
      "  Differenze = d + 0\n"
      "End Function\n");
  EXPECT_EQ(Testo("Differenze()"), "0");

  const std::vector<int> gruppo{3, 17, 28, 44, 59, 61, 72, 86, 90};
  Esegui("Dim eventi\neventi = InitCalcoloRitRel(Array(BA_, NA_, NZ_), " + ArrayScript(gruppo) + ", AMBO_)");
  EXPECT_EQ(Testo("eventi = InitCalcoloRitRelTurbo(Array(BA_, NA_, NZ_), " + ArrayScript(gruppo) + ", AMBO_)"), "Vero");
  for (const std::vector<int>& ambo : Combinazioni(gruppo, 2)) {
    const std::string a = ArrayScript(ambo);
    EXPECT_EQ(Testo("GetRitRel(" + a + ") & \" \" & GetRitRelMax(" + a + ")"),
              Testo("GetRitRelTurbo(" + a + ") & \" \" & GetRitRelMaxTurbo(" + a + ")"))
        << a;
  }
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

}  // namespace
}  // namespace lottolab::script
