#include <gtest/gtest.h>

#include <set>

#include "ArchiviDiProva.h"
#include "stats/Isotopi.h"
#include "stats/NumeriSpia.h"
#include "stats/Sincroni.h"

namespace lottolab::stats {
namespace {

using test::Archivio;

const NumeroSeguito& Seguito(const EsitoSpia& esito, int n) { return esito.seguiti[static_cast<size_t>(n - 1)]; }

TEST(NumeriSpia, ContaICasiChiusiEIlPrimoColpoDiOgniNumero) {
  // The spia 7 on Bari comes out in draws 1, 4 and 6; with two colpi the case of draw 6 is unfinished.
  const TabellaEstrazioni tab = Archivio()
                                    .Estrazione({{BA, {7, 1, 2, 3, 4}}})
                                    .Estrazione({{VE, {20, 21, 22, 23, 24}}})
                                    .Estrazione({{CA, {20, 30, 31, 32, 33}}})
                                    .Estrazione({{BA, {1, 2, 3, 4, 7}}})
                                    .Estrazione({{VE, {30, 40, 41, 42, 43}}})
                                    .Estrazione({{BA, {7, 8, 9, 10, 11}}})
                                    .Estrazione()
                                    .Tabella();
  DomandaSpia domanda{{7, 0}, BA, kTutteLeRuote, 2, 1, 7};
  const EsitoSpia tutte = *CalcolaNumeriSpia(tab, domanda);
  EXPECT_EQ(tutte.uscite, 3);
  EXPECT_EQ(tutte.casi, 2);
  EXPECT_EQ(tutte.ritardo_attuale, 1);
  // 20 came at colpo 1 after draw 1 (Venezia) and again at colpo 2 (Cagliari): one presence, colpo 1.
  EXPECT_EQ(Seguito(tutte, 20).presenze, 1);
  EXPECT_EQ(Seguito(tutte, 20).colpo_minimo, 1);
  // 30 came after both cases: colpo 2, then colpo 1.
  EXPECT_EQ(Seguito(tutte, 30).presenze, 2);
  EXPECT_EQ(Seguito(tutte, 30).somma_colpi, 3);
  EXPECT_EQ(Seguito(tutte, 81).presenze, 2);  // the filler, on every wheel
  EXPECT_EQ(Seguito(tutte, 8).presenze, 1);   // draw 6 is the second colpo of the case of draw 4

  domanda.ruota_esito = VE;
  const EsitoSpia venezia = *CalcolaNumeriSpia(tab, domanda);
  EXPECT_EQ(Seguito(venezia, 20).presenze, 1);
  EXPECT_EQ(Seguito(venezia, 30).presenze, 1);
  EXPECT_EQ(Seguito(venezia, 31).presenze, 0);

  // The ambo 7-1 came in draws 1 and 4 only; a range ending on the spia's draw has delay 0.
  domanda.spia = {7, 1};
  domanda.fine = 4;
  const EsitoSpia ambo = *CalcolaNumeriSpia(tab, domanda);
  EXPECT_EQ(ambo.uscite, 2);
  EXPECT_EQ(ambo.casi, 1);
  EXPECT_EQ(ambo.ritardo_attuale, 0);

  domanda.spia = {55, 0};
  const EsitoSpia mai = *CalcolaNumeriSpia(tab, domanda);
  EXPECT_EQ(mai.uscite, 0);
  EXPECT_FALSE(mai.ritardo_attuale.has_value());
}

TEST(NumeriSpia, UgualeAUnConteggioDiretto) {
  const TabellaEstrazioni tab = test::ArchivioCasuale(400, 30, 11);
  const DomandaSpia domanda{{4, 0}, MI, kTutteLeRuote, 5, 20, 390};
  const EsitoSpia esito = *CalcolaNumeriSpia(tab, domanda);
  std::array<int, 90> attese{};
  int casi = 0;
  for (int id = domanda.inizio; id + domanda.colpi <= domanda.fine; ++id) {
    bool spia = false;
    for (int p = 1; p <= 5; ++p) spia = spia || tab[id].Numero(MI, p) == 4;
    if (!spia) continue;
    ++casi;
    std::set<int> visti;
    for (int c = 1; c <= domanda.colpi; ++c)
      for (int r = 1; r <= kNumeroRuote; ++r)
        for (int p = 1; p <= 5; ++p)
          if (int n = tab[id + c].Numero(r, p); n > 0) visti.insert(n);
    for (int n : visti) ++attese[static_cast<size_t>(n - 1)];
  }
  EXPECT_EQ(esito.casi, casi);
  for (int n = 1; n <= 90; ++n) EXPECT_EQ(Seguito(esito, n).presenze, attese[static_cast<size_t>(n - 1)]) << n;
}

TEST(NumeriSpia, SiFermaQuandoAnnullato) {
  const TabellaEstrazioni tab = test::ArchivioCasuale(50, 90, 3);
  ControlloCalcolo controllo;
  controllo.annullato = [] { return true; };
  EXPECT_FALSE(CalcolaNumeriSpia(tab, {{1, 0}, BA, BA, 3, 1, 50}, controllo).has_value());
}

TEST(Sincroni, FrequenzaERitardoDeiCompagni) {
  // Nazionale is drawn from draw 3: its first two draws age no companion.
  const TabellaEstrazioni tab = Archivio()
                                    .NazionaleDa(3)
                                    .Estrazione({{BA, {5, 10, 11, 12, 13}}})
                                    .Estrazione({{BA, {5, 10, 20, 21, 22}}, {CA, {30, 1, 2, 3, 4}}})
                                    .Estrazione({{NZ, {5, 40, 41, 42, 43}}})
                                    .Estrazione({{NZ, {1, 2, 3, 4, 6}}})
                                    .Tabella();
  const EsitoSincroni bari = CalcolaSincroni(tab, 5, BA, CompagniDa::StessaRuota, 1, 4);
  EXPECT_EQ(bari.uscite, 2);
  const auto& compagni = bari.compagni;
  EXPECT_EQ(compagni[9].frequenza, 2);  // 10
  EXPECT_EQ(compagni[9].ritardo, 2);
  EXPECT_EQ(compagni[10].frequenza, 1);  // 11
  EXPECT_EQ(compagni[10].ritardo, 3);
  EXPECT_EQ(compagni[29].frequenza, 0);  // 30, on Cagliari
  EXPECT_EQ(compagni[29].ritardo, 4);
  EXPECT_EQ(compagni[4].frequenza, 0);  // the number itself

  const EsitoSincroni ogni = CalcolaSincroni(tab, 5, BA, CompagniDa::OgniRuota, 1, 4);
  EXPECT_EQ(ogni.compagni[29].frequenza, 1);
  EXPECT_EQ(ogni.compagni[80].frequenza, 2);  // the filler, once a draw however many wheels hold it

  const EsitoSincroni nazionale = CalcolaSincroni(tab, 5, NZ, CompagniDa::StessaRuota, 1, 4);
  EXPECT_EQ(nazionale.estrazioni_contate, 2);
  EXPECT_EQ(nazionale.compagni[39].ritardo, 1);  // 40
  EXPECT_EQ(nazionale.compagni[10].ritardo, 2);  // 11: never with 5 on Nazionale
}

TEST(Isotopi, EventiPerEstrazioneEStatistichePerPosizione) {
  const TabellaEstrazioni tab =
      Archivio()
          .Estrazione({{BA, {7, 1, 2, 3, 4}}, {CA, {7, 11, 12, 13, 14}}, {FI, {7, 1, 22, 23, 24}}})
          .Estrazione({{BA, {7, 31, 32, 33, 34}}})
          .Vuota()
          .Tabella();
  const uint16_t tutte = (1U << kNumeroRuote) - 1;
  const EsitoIsotopi esito = CalcolaIsotopi(tab, tutte, 1, 3);
  // Draw 1: 7 first on BA, CA, FI; 1 second on BA and FI; the fillers in positions 3..5 (on the wheels
  // left alone) and in every position of draw 2.
  auto evento = [&](int id, int posizione, int numero) {
    for (const EventoIsotopo& e : esito.eventi)
      if (e.id_estr == id && e.posizione == posizione && e.numero == numero) return e.ruote;
    return uint16_t{0};
  };
  EXPECT_EQ(evento(1, 1, 7), (1U << (BA - 1)) | (1U << (CA - 1)) | (1U << (FI - 1)));
  EXPECT_EQ(evento(1, 2, 1), (1U << (BA - 1)) | (1U << (FI - 1)));
  EXPECT_EQ(evento(2, 1, 7), 0);
  EXPECT_EQ(esito.eventi.size(), 2U + 5 + 5);
  EXPECT_EQ(esito.statistiche[6][0].frequenza, 1);  // 7 in position 1: draw 2 has it on BA only
  EXPECT_EQ(esito.statistiche[6][0].ritardo, 2);
  EXPECT_EQ(esito.statistiche[6][1].ritardo, 3);  // never
  EXPECT_EQ(esito.statistiche[80][0].frequenza, 2);

  // Only Bari and Cagliari: 1 is no longer an isotope.
  const EsitoIsotopi due = CalcolaIsotopi(tab, (1U << (BA - 1)) | (1U << (CA - 1)), 1, 1);
  ASSERT_EQ(due.eventi.size(), 1U);
  EXPECT_EQ(due.eventi[0].numero, 7);
}

}  // namespace
}  // namespace lottolab::stats
