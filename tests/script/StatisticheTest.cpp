#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

#include "LibreriaDiProva.h"
#include "stats/ArchiviDiProva.h"

namespace lottolab::script {
namespace {

using test::Archivio;

// The figures of a combination from their definitions, draw by draw and end draw by end draw, the
// historical maximum as the largest delay of any end: slow, and written apart from the library.
class Riferimento {
 public:
  Riferimento(const TabellaEstrazioni& tab, std::vector<int> ruote, std::vector<int> numeri, int sorte,
              std::array<bool, kNumeriPerRuota> posizioni = {true, true, true, true, true})
      : m_tab(tab), m_numeri(std::move(numeri)), m_sorte(sorte), m_posizioni(posizioni) {
    for (int ruota : ruote) {
      if (ruota == kTutteLeRuote)
        for (int r = 1; r <= kNumeroRuote; ++r) m_ruote.push_back(r);
      else
        m_ruote.push_back(ruota);
    }
    std::sort(m_ruote.begin(), m_ruote.end());
    m_ruote.erase(std::unique(m_ruote.begin(), m_ruote.end()), m_ruote.end());
  }

  int Ritardo(int inizio, int fine) const {
    int ritardo = 0;
    for (int id = fine; id >= inizio; --id) {
      if (Vincite(id) > 0) return ritardo;
      if (Conta(id)) ++ritardo;
    }
    return ritardo;
  }

  int Frequenza(int inizio, int fine) const {
    int frequenza = 0;
    for (int id = inizio; id <= fine; ++id) frequenza += Vincite(id);
    return frequenza;
  }

  int Storico(int inizio, int fine) const {
    int storico = 0;
    for (int id = inizio; id <= fine; ++id) storico = std::max(storico, Ritardo(inizio, id));
    return storico;
  }

  int IncrStorico(int inizio, int fine) const {
    int chiuso = 0;
    for (int id = inizio; id <= fine; ++id)
      if (Vincite(id) > 0) chiuso = std::max(chiuso, Ritardo(inizio, id - 1));
    return std::max(Ritardo(inizio, fine) - chiuso, 0);
  }

  int Prima(int inizio, int fine) const {
    for (int id = inizio; id <= fine; ++id)
      if (Vincite(id) > 0) return id;
    return 0;
  }

  int Ultima(int inizio, int fine) const {
    for (int id = fine; id >= inizio; --id)
      if (Vincite(id) > 0) return id;
    return 0;
  }

  int EstrazioneStorico(int inizio, int fine) const {
    const int storico = Storico(inizio, fine);
    if (storico == 0) return 0;
    for (int id = inizio; id <= fine; ++id)
      if (Ritardo(inizio, id) == storico) return id;
    return 0;
  }

 private:
  int Vincite(int id) const {
    const Estrazione& estrazione = m_tab[id];
    if (!estrazione.Presente()) return 0;
    int vincite = 0;
    for (int ruota : m_ruote) {
      int colpi = 0;
      for (int p = 1; p <= kNumeriPerRuota; ++p) {
        const int numero = estrazione.Numero(ruota, p);
        if (m_posizioni[p - 1] && std::find(m_numeri.begin(), m_numeri.end(), numero) != m_numeri.end()) ++colpi;
      }
      if (colpi >= m_sorte) ++vincite;
    }
    return vincite;
  }

  bool Conta(int id) const {
    const Estrazione& estrazione = m_tab[id];
    return estrazione.Presente() &&
           std::any_of(m_ruote.begin(), m_ruote.end(), [&](int r) { return estrazione.RuotaEstratta(r); });
  }

  const TabellaEstrazioni& m_tab;
  std::vector<int> m_ruote;
  std::vector<int> m_numeri;
  int m_sorte;
  std::array<bool, kNumeriPerRuota> m_posizioni;
};

// A table wheel as scripts number it: all wheels 11, Nazionale 12.
int RuotaScript(int ruota) {
  if (ruota == kTutteLeRuote) return 11;
  if (ruota == NZ) return 12;
  return ruota;
}

std::string Lista(const std::vector<int>& valori) {
  std::string testo = "Array(";
  for (size_t i = 0; i < valori.size(); ++i) testo += (i ? ", " : "") + std::to_string(valori[i]);
  return testo + ")";
}

struct Intervallo {
  int inizio;
  int fine;
};

class LibreriaStatistiche : public Libreria {
 protected:
  // `argomenti` and the range, as a call of `nome` writes them, with `dopo` at the end.
  std::string Chiamata(std::string_view nome, const std::string& argomenti, Intervallo intervallo,
                       std::string_view dopo = "") {
    return std::string(nome) + "(" + argomenti + ", " + std::to_string(intervallo.inizio) + ", " +
           std::to_string(intervallo.fine) + std::string(dopo) + ")";
  }
};

TEST_F(LibreriaStatistiche, LeFigureDiUnNumeroSuUnaPiccolaTabella) {
  Avvia(Archivio()
            .Estrazione({{BA, {7, 1, 2, 3, 4}}})
            .Estrazione()
            .Estrazione()
            .Estrazione()
            .Estrazione({{BA, {1, 2, 3, 4, 7}}})
            .Estrazione()
            .Tabella());
  EXPECT_EQ(Testo("EstrattoFrequenza(BA_, 7)"), "2");
  EXPECT_EQ(Testo("EstrattoStorico(BA_, 7)"), "3") << "draws 2..4";
  EXPECT_EQ(Testo("EstrattoIncrStorico(BA_, 7)"), "0");
  EXPECT_EQ(Testo("EstrattoIncrStorico(BA_, 7, 1, 4)"), "3") << "no run closed yet: the whole delay";
  EXPECT_EQ(Testo("EstrattoFrequenza(TU_, 81)"), "64") << "six draws of eleven wheels, Bari twice without it";
  EXPECT_EQ(Testo("SeriePrima(BA_, 7, 1)"), "1");
  EXPECT_EQ(Testo("SerieUltima(BA_, 7, 1)"), "5");
  EXPECT_EQ(Testo("SerieUltima(BA_, 7, 1, 2, 4)"), "0");
  EXPECT_EQ(Testo("SerieEstrazioneStorico(BA_, 7, 1)"), "4") << "the run 2..4 ends at draw 4";
  EXPECT_EQ(Testo("SerieEstrazioneStorico(BA_, 81, 1, 2, 4)"), "0") << "81 wins every Bari of 2..4";
  Esegui("Dim rit, massimo, incr, freq\nStatEstratto BA_, 7, , , rit, massimo, incr, freq");
  EXPECT_EQ(Testo("rit & \" \" & massimo & \" \" & incr & \" \" & freq"), "1 3 0 2");
  EXPECT_EQ(Testo("TypeName(massimo)"), "Long");
  Esegui("StatAmboTurbo BA_, 7, 4, 2, , rit, massimo, incr, freq");
  EXPECT_EQ(Testo("rit & \" \" & massimo & \" \" & incr & \" \" & freq"), "1 3 0 1");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// Delay, historical maximum, its increment and frequency, counted by hand.
TEST_F(LibreriaStatistiche, StatFrzTurboSuUnaPiccolaTabella) {
  Avvia(Archivio()
            .NazionaleDa(3)
            .Estrazione({{BA, {1, 2, 3, 40, 41}}, {CA, {1, 2, 50, 51, 52}}})
            .Estrazione()
            .Estrazione({{BA, {1, 60, 61, 62, 63}}})
            .Estrazione({{CA, {2, 3, 70, 71, 72}}})
            .Estrazione()
            .Estrazione()
            .Tabella());
  const struct {
    std::string_view giocata;
    std::string_view figure;
    std::string_view perche;
  } kCasi[] = {
      {"Array(BA_, CA_), Array(1, 2, 3), AMBO_, , ", "2 2 0 3", "Bari and Cagliari in draw 1, Cagliari in draw 4"},
      {"Array(BA_, CA_), Array(1, 2, 3), AMBATA_, , ", "2 2 1 4", "the runs closed were 1 and 0"},
      {"Array(BA_, CA_), Array(1, 2, 3), AMBO_, , 4", "0 2 0 3", "up to draw 4"},
      {"BA_, Array(1, 2), AMBATA_, , ", "3 3 2 2", "either number, not the ambo"},
      {"TU_, Array(1, 2), AMBO_, , ", "5 5 5 2", "no run closed before draw 1"},
      {"NZ_, Array(81, 2), AMBO_, 2, 6", "4 4 4 0", "Nazionale drawn from draw 3"},
  };
  Esegui("Dim rit, massimo, incr, freq");
  for (const auto& caso : kCasi) {
    Esegui("StatFrzTurbo " + std::string(caso.giocata) + ", rit, massimo, incr, freq");
    EXPECT_EQ(Testo("rit & \" \" & massimo & \" \" & incr & \" \" & freq"), caso.figure)
        << caso.giocata << ": " << caso.perche;
  }
  EXPECT_EQ(Testo("TypeName(freq)"), "Long");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// Every number of a random table with frequent wins, on every wheel, at a few ranges: the plain and
// the Turbo forms against the figures from their definitions. The positions send the Turbo forms to
// the walk, which must give the same figures.
TEST_F(LibreriaStatistiche, LeFigureDegliEstrattiSonoQuelleDellaDefinizione) {
  Avvia(test::ArchivioCasuale(40, 12, 7));
  Esegui("Dim p(5)\np(2) = True\np(4) = True");
  const Intervallo kIntervalli[] = {{1, 40}, {3, 17}, {6, 6}, {12, 11}};
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    for (int numero = 1; numero <= 12; ++numero) {
      for (bool tutte : {true, false}) {
        const Riferimento atteso(
            m_tab, {ruota}, {numero}, 1,
            tutte ? std::array{true, true, true, true, true} : std::array{false, true, false, true, false});
        const std::string argomenti = std::to_string(RuotaScript(ruota)) + ", " + std::to_string(numero);
        const std::string_view posizioni = tutte ? "" : ", p";
        for (const Intervallo& i : kIntervalli) {
          SCOPED_TRACE(argomenti + " in " + std::to_string(i.inizio) + ".." + std::to_string(i.fine) +
                       (tutte ? "" : " on positions 2 and 4"));
          for (std::string_view turbo : {"", "Turbo"}) {
            const std::string suffisso(turbo);
            EXPECT_EQ(Testo(Chiamata("EstrattoFrequenza" + suffisso, argomenti, i, posizioni)),
                      std::to_string(atteso.Frequenza(i.inizio, i.fine)));
            EXPECT_EQ(Testo(Chiamata("EstrattoStorico" + suffisso, argomenti, i, posizioni)),
                      std::to_string(atteso.Storico(i.inizio, i.fine)));
            EXPECT_EQ(Testo(Chiamata("EstrattoIncrStorico" + suffisso, argomenti, i, posizioni)),
                      std::to_string(atteso.IncrStorico(i.inizio, i.fine)));
          }
          EXPECT_EQ(Testo(Chiamata("EstrattoRitardoTurbo", argomenti, i, posizioni)),
                    std::to_string(atteso.Ritardo(i.inizio, i.fine)));
          EXPECT_EQ(Testo(Chiamata("RitardoEstratto", argomenti, i, posizioni)),
                    std::to_string(atteso.Ritardo(i.inizio, i.fine)));
        }
      }
    }
  }
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaStatistiche, LeFigureDegliAmbiSonoQuelleDellaDefinizione) {
  Avvia(test::ArchivioCasuale(40, 9, 11));
  const Intervallo kIntervalli[] = {{1, 40}, {4, 25}};
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    for (int a = 1; a <= 9; ++a) {
      for (int b = a; b <= 9; ++b) {
        const Riferimento atteso(m_tab, {ruota}, {a, b}, 2);
        const std::string argomenti =
            std::to_string(RuotaScript(ruota)) + ", " + std::to_string(a) + ", " + std::to_string(b);
        for (const Intervallo& i : kIntervalli) {
          SCOPED_TRACE(argomenti + " in " + std::to_string(i.inizio) + ".." + std::to_string(i.fine));
          const std::string rit = std::to_string(atteso.Ritardo(i.inizio, i.fine));
          const std::string freq = std::to_string(atteso.Frequenza(i.inizio, i.fine));
          const std::string storico = std::to_string(atteso.Storico(i.inizio, i.fine));
          const std::string incr = std::to_string(atteso.IncrStorico(i.inizio, i.fine));
          for (std::string_view turbo : {"", "Turbo"}) {
            const std::string suffisso(turbo);
            EXPECT_EQ(Testo(Chiamata("AmboFrequenza" + suffisso, argomenti, i)), freq);
            EXPECT_EQ(Testo(Chiamata("AmboStorico" + suffisso, argomenti, i)), storico);
            EXPECT_EQ(Testo(Chiamata("AmboIncrStorico" + suffisso, argomenti, i)), incr);
            Esegui("Call " + Chiamata("StatAmbo" + suffisso, argomenti, i, ", r, m, n, f"));
            EXPECT_EQ(Testo("r & \" \" & m & \" \" & n & \" \" & f"), rit + " " + storico + " " + incr + " " + freq);
          }
          EXPECT_EQ(Testo(Chiamata("AmboRitardoTurbo", argomenti, i)), rit);
        }
      }
    }
  }
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaStatistiche, LeSerieMisuranoIlGruppoComeUnTutto) {
  Avvia(test::ArchivioCasuale(40, 12, 3));
  Esegui("Dim p(5)\np(1) = True\np(5) = True");
  const std::vector<std::vector<int>> kRuote = {{BA}, {BA, CA, NZ}, {kTutteLeRuote}};
  const std::vector<std::vector<int>> kGruppi = {{1, 2, 3}, {4, 5, 6, 7, 8}, {9}};
  const Intervallo kIntervalli[] = {{1, 40}, {5, 30}, {20, 19}};
  for (const auto& ruote : kRuote) {
    std::vector<int> nello_script;
    for (int ruota : ruote) nello_script.push_back(RuotaScript(ruota));
    for (const auto& gruppo : kGruppi) {
      for (int sorte = 1; sorte <= 3; ++sorte) {
        for (bool tutte : {true, false}) {
          const Riferimento atteso(
              m_tab, ruote, gruppo, sorte,
              tutte ? std::array{true, true, true, true, true} : std::array{true, false, false, false, true});
          const std::string argomenti = Lista(nello_script) + ", " + Lista(gruppo) + ", " + std::to_string(sorte);
          const std::string_view posizioni = tutte ? "" : ", p";
          for (const Intervallo& i : kIntervalli) {
            SCOPED_TRACE(argomenti + " in " + std::to_string(i.inizio) + ".." + std::to_string(i.fine) +
                         (tutte ? "" : " on positions 1 and 5"));
            const std::string ritardo = std::to_string(atteso.Ritardo(i.inizio, i.fine));
            const std::string frequenza = std::to_string(atteso.Frequenza(i.inizio, i.fine));
            const std::string storico = std::to_string(atteso.Storico(i.inizio, i.fine));
            for (std::string_view turbo : {"", "Turbo"}) {
              const std::string suffisso(turbo);
              EXPECT_EQ(Testo(Chiamata("SerieRitardo" + suffisso, argomenti, i, posizioni)), ritardo);
              EXPECT_EQ(Testo(Chiamata("SerieFreq" + suffisso, argomenti, i, posizioni)), frequenza);
              EXPECT_EQ(Testo(Chiamata("SerieStorico" + suffisso, argomenti, i, posizioni)), storico);
            }
            if (tutte) {
              Esegui("Call " + Chiamata("StatFrzTurbo", argomenti, i, ", r, m, n, f"));
              EXPECT_EQ(Testo("r & \" \" & m & \" \" & n & \" \" & f"),
                        ritardo + " " + storico + " " + std::to_string(atteso.IncrStorico(i.inizio, i.fine)) + " " +
                            frequenza);
            }
            EXPECT_EQ(Testo("RitardoCombinazioneTurbo(" + argomenti + ", " + std::to_string(i.fine) +
                            (tutte ? ", , " : ", p, ") + std::to_string(i.inizio) + ")"),
                      ritardo);
            EXPECT_EQ(Testo(Chiamata("SeriePrima", argomenti, i, posizioni)),
                      std::to_string(atteso.Prima(i.inizio, i.fine)));
            EXPECT_EQ(Testo(Chiamata("SerieUltima", argomenti, i, posizioni)),
                      std::to_string(atteso.Ultima(i.inizio, i.fine)));
            EXPECT_EQ(Testo(Chiamata("SerieEstrazioneStorico", argomenti, i, posizioni)),
                      std::to_string(atteso.EstrazioneStorico(i.inizio, i.fine)));
          }
        }
      }
    }
  }
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaStatistiche, GliArgomentiSbagliatiSonoErrore5ConUnaSpiegazione) {
  Avvia(Archivio().Estrazione().Estrazione().Estrazione().Tabella());
  Esegui("Dim a, b, c, d");
  const struct {
    std::string_view chiamata;
    std::string_view funzione;
    std::string_view spiegazione;
  } kCasi[] = {
      {"EstrattoFrequenza(0, 7)", "EstrattoFrequenza", "Ruota"},
      {"EstrattoStoricoTurbo(BA_, 7, 0)", "EstrattoStoricoTurbo", "Inizio"},
      {"EstrattoIncrStorico(BA_, 7, , , True)", "EstrattoIncrStorico", "posizioni"},
      {"AmboFrequenzaTurbo(BA_, 1, 2, 1, 4)", "AmboFrequenzaTurbo", "Fine"},
      {"AmboStorico(13, 1, 2)", "AmboStorico", "Ruota"},
      {"SerieFreq(BA_, 7, 6)", "SerieFreq", "Sorte"},
      {"SerieRitardo(Array(), 7, 1)", "SerieRitardo", "ruota"},
      {"SeriePrima(BA_, Array(), 1)", "SeriePrima", "numero"},
      {"SerieEstrazioneStorico(BA_, 7, 1, 1, 9)", "SerieEstrazioneStorico", "Fine"},
      {"StatEstratto(BA_, 7, 4, , a, b, c, d)", "StatEstratto", "Inizio"},
      {"StatAmboTurbo(0, 1, 2, , , a, b, c, d)", "StatAmboTurbo", "Ruota"},
      {"StatFrzTurbo(BA_, 7, 6, , , a, b, c, d)", "StatFrzTurbo", "Sorte"},
      {"StatFrzTurbo(BA_, 7, 1, 1, 9, a, b, c, d)", "StatFrzTurbo", "Fine"},
  };
  for (const auto& caso : kCasi) {
    EXPECT_TRUE(Vuoto(caso.chiamata)) << caso.chiamata;
    AvvisoErrore5(caso.funzione, caso.spiegazione, caso.chiamata);
  }
  EXPECT_TRUE(Vuoto("a")) << "a refused call leaves the variables alone";
}

// Every number on every wheel, and an ambo of every number, at a few ranges of the real archive: the
// script counts the figures where the Turbo form and the plain one differ.
TEST_F(LibreriaStatistiche, SullArchivioRealeLeFormeTurboDannoLeStesseFigure) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  Avvia(test::ArchivioReale());
  Esegui(R"(
Function Differenze(inizio, fine)
  Dim r, n, m, diverse
  For r = 1 To 12
    For n = 1 To 90
      If EstrattoRitardoTurbo(r, n, inizio, fine) <> EstrattoRitardo(r, n, inizio, fine) Then diverse = diverse + 1
      If EstrattoFrequenzaTurbo(r, n, inizio, fine) <> EstrattoFrequenza(r, n, inizio, fine) Then diverse = diverse + 1
      If EstrattoStoricoTurbo(r, n, inizio, fine) <> EstrattoStorico(r, n, inizio, fine) Then diverse = diverse + 1
      If EstrattoIncrStoricoTurbo(r, n, inizio, fine) <> EstrattoIncrStorico(r, n, inizio, fine) Then diverse = diverse + 1
      m = (n * 37) Mod 90 + 1
      If AmboRitardoTurbo(r, n, m, inizio, fine) <> AmboRitardo(r, n, m, inizio, fine) Then diverse = diverse + 1
      If AmboFrequenzaTurbo(r, n, m, inizio, fine) <> AmboFrequenza(r, n, m, inizio, fine) Then diverse = diverse + 1
      If AmboStoricoTurbo(r, n, m, inizio, fine) <> AmboStorico(r, n, m, inizio, fine) Then diverse = diverse + 1
      If AmboIncrStoricoTurbo(r, n, m, inizio, fine) <> AmboIncrStorico(r, n, m, inizio, fine) Then diverse = diverse + 1
    Next
  Next
  Differenze = CLng(diverse)
End Function
)");
  const int ultima = m_tab.EstrazioniArchivio();
  EXPECT_EQ(Testo("Differenze(1, " + std::to_string(ultima) + ")"), "0");
  EXPECT_EQ(Testo("Differenze(1, " + std::to_string(ultima - 1000) + ")"), "0");
  EXPECT_EQ(Testo("Differenze(2000, 5000)"), "0");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// Random formations of one to six numbers, for every sorte they can win, on groups of wheels, at
// ranges of the real archive: StatFrzTurbo against the walk of StatisticaFormazione.
TEST_F(LibreriaStatistiche, SullArchivioRealeStatFrzTurboDaLeFigureDelPercorso) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  Avvia(test::ArchivioReale());
  Esegui(R"(
Function Diverse(ruote, numeri, sorte, inizio, fine)
  Dim r1, m1, i1, f1, r2, m2, i2, f2
  StatFrzTurbo ruote, numeri, sorte, inizio, fine, r1, m1, i1, f1
  StatisticaFormazione numeri, ruote, sorte, r2, m2, i2, f2, inizio, fine
  Diverse = r1 <> r2 Or m1 <> m2 Or i1 <> i2 Or f1 <> f2
End Function
)");
  const int ultima = m_tab.EstrazioniArchivio();
  const std::string_view kRuote[] = {"BA_", "NZ_", "TU_", "Array(CA_, FI_, NZ_)",
                                     "Array(BA_, CA_, FI_, GE_, MI_, NA_, PA_, RO_, TO_, VE_, NZ_)"};
  std::mt19937 generatore(29);
  std::vector<int> urna(kMassimoNumero);
  for (int n = 1; n <= kMassimoNumero; ++n) urna[static_cast<size_t>(n - 1)] = n;
  for (int quanti = 1; quanti <= 6; ++quanti) {
    for (int sorte = 1; sorte <= std::min(quanti, kNumeriPerRuota); ++sorte) {
      for (std::string_view ruote : kRuote) {
        for (int prova = 0; prova < 3; ++prova) {
          std::shuffle(urna.begin(), urna.end(), generatore);
          const int inizio = prova == 0 ? 1 : std::uniform_int_distribution<int>(1, ultima)(generatore);
          const int fine = prova == 0 ? ultima : std::uniform_int_distribution<int>(inizio, ultima)(generatore);
          const std::string chiamata = "Diverse(" + std::string(ruote) + ", " +
                                       Lista({urna.begin(), urna.begin() + quanti}) + ", " + std::to_string(sorte) +
                                       ", " + std::to_string(inizio) + ", " + std::to_string(fine) + ")";
          EXPECT_EQ(Testo(chiamata), "Falso") << chiamata;
        }
      }
    }
  }
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

}  // namespace
}  // namespace lottolab::script
