#include <QBrush>
#include <QSortFilterProxyModel>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <utility>
#include <vector>

#include "EstrazioniAMano.h"
#include "archive/TabellaEstrazioni.h"
#include "gui/comuni/ScalaRitardo.h"
#include "gui/tabellone/ModelloTabellone.h"

namespace lottolab::gui {
namespace {

// Twelve draws written by hand. Every wheel not written out holds 81..85; Nazionale is drawn from
// draw 5 on and Firenze is missing from draw 10.
//   7 on Bari      out in draws 3 and 8
//   7 on Firenze   out in draw 2
//   7 on Nazionale out in draw 6
//   40             never out
TabellaEstrazioni ArchivioAMano() {
  return test::EstrazioniAMano(5, 0)
      .Aggiungi({})
      .Aggiungi({{FI, {1, 2, 3, 4, 7}}})
      .Aggiungi({{BA, {7, 1, 2, 3, 4}}})
      .Aggiungi({})
      .Aggiungi({})
      .Aggiungi({{NZ, {5, 6, 7, 8, 9}}})
      .Aggiungi({})
      .Aggiungi({{BA, {1, 2, 3, 7, 4}}})
      .Aggiungi({})
      .Aggiungi({}, {FI})
      .Aggiungi({})
      .Aggiungi({})
      .Tabella();
}

constexpr std::array kRuoteScelte{int{BA}, int{FI}, int{NZ}};

struct Figure {
  int ritardo;
  int frequenza;
  int storico;
};

// The figures shown for `numero` on the i-th chosen wheel: the rows go wheel by wheel, 1..90.
Figure FigureMostrate(const ModelloTabellone& modello, size_t i, int numero) {
  const int riga = static_cast<int>(i) * kMassimoNumero + numero - 1;
  auto valore = [&](int colonna) { return modello.data(modello.index(riga, colonna)).toInt(); };
  return {valore(ModelloTabellone::kColonnaRitardo), valore(ModelloTabellone::kColonnaFrequenza),
          valore(ModelloTabellone::kColonnaStorico)};
}

void ConfrontaFigure(const Figure& mostrate, const Figure& attese) {
  QCOMPARE(mostrate.ritardo, attese.ritardo);
  QCOMPARE(mostrate.frequenza, attese.frequenza);
  QCOMPARE(mostrate.storico, attese.storico);
}

}  // namespace

class TabelloneTest : public QObject {
  Q_OBJECT

 private slots:
  void LeRigheSonoINumeriDelleRuoteScelteInOrdine() {
    ModelloTabellone modello;
    modello.Calcola(ArchivioAMano(), kRuoteScelte, 12);
    QCOMPARE(modello.rowCount(), 3 * kMassimoNumero);
    QCOMPARE(modello.columnCount(), 6);
    QCOMPARE(modello.data(modello.index(0, ModelloTabellone::kColonnaRuota)).toString(), QString("Bari"));
    QCOMPARE(modello.data(modello.index(kMassimoNumero, ModelloTabellone::kColonnaRuota)).toString(),
             QString("Firenze"));
    QCOMPARE(modello.data(modello.index(3 * kMassimoNumero - 1, ModelloTabellone::kColonnaNumero)).toInt(), 90);
    QCOMPARE(modello.Ruota(2 * kMassimoNumero + 6), int{NZ});
    QCOMPARE(modello.Numero(2 * kMassimoNumero + 6), 7);
  }

  void LeFigureSonoQuelleContateAMano() {
    ModelloTabellone modello;
    modello.Calcola(ArchivioAMano(), kRuoteScelte, 12);
    QCOMPARE(modello.Fine(), 12);
    // Bari: absences of 2, 4 and 4 (open) draws.
    ConfrontaFigure(FigureMostrate(modello, 0, 7), {4, 2, 4});
    // Firenze: out in draw 2, then ten draws of which draw 10 lacks the wheel.
    ConfrontaFigure(FigureMostrate(modello, 1, 7), {9, 1, 9});
    // Nazionale: drawn eight times, out in the second of them.
    ConfrontaFigure(FigureMostrate(modello, 2, 7), {6, 1, 6});
    ConfrontaFigure(FigureMostrate(modello, 0, 40), {12, 0, 12});
    ConfrontaFigure(FigureMostrate(modello, 2, 40), {8, 0, 8});
  }

  void LUltimaEstrazioneSceltaCambiaLeFigure() {
    ModelloTabellone modello;
    modello.Calcola(ArchivioAMano(), kRuoteScelte, 5);
    QCOMPARE(modello.Fine(), 5);
    ConfrontaFigure(FigureMostrate(modello, 0, 7), {2, 1, 2});
    ConfrontaFigure(FigureMostrate(modello, 1, 7), {3, 1, 3});
    ConfrontaFigure(FigureMostrate(modello, 2, 7), {1, 0, 1});
    ConfrontaFigure(FigureMostrate(modello, 0, 40), {5, 0, 5});

    // Before its first draw Nazionale has dashes, not figures of 0 that read as a number just drawn.
    modello.Calcola(ArchivioAMano(), kRuoteScelte, 4);
    const QModelIndex nazionale = modello.index(2 * kMassimoNumero + 6, ModelloTabellone::kColonnaStorico);
    QCOMPARE(modello.data(nazionale).toString(), QStringLiteral("–"));
    QCOMPARE(modello.data(nazionale, ModelloTabellone::kRuoloOrdinamento).toInt(), -1);
    QCOMPARE(modello.data(modello.index(6, ModelloTabellone::kColonnaRitardo)).toInt(), 1);

    modello.Calcola(ArchivioAMano(), kRuoteScelte, 13);
    QCOMPARE(modello.rowCount(), 0);
    QCOMPARE(modello.Fine(), 0);
  }

  void OrdinarePerRitardoSegueIlValoreNonIlTesto() {
    ModelloTabellone modello;
    modello.Calcola(ArchivioAMano(), kRuoteScelte, 12);
    QSortFilterProxyModel ordinamento;
    ordinamento.setSourceModel(&modello);
    ordinamento.setSortRole(ModelloTabellone::kRuoloOrdinamento);
    ordinamento.sort(ModelloTabellone::kColonnaRitardo, Qt::AscendingOrder);

    std::vector<int> ritardi;
    for (int riga = 0; riga < ordinamento.rowCount(); ++riga)
      ritardi.push_back(ordinamento.data(ordinamento.index(riga, ModelloTabellone::kColonnaRitardo)).toInt());
    QVERIFY(std::is_sorted(ritardi.begin(), ritardi.end()));
    // As text "12" would come before "4".
    QCOMPARE(ritardi.front(), 0);
    QCOMPARE(ritardi.back(), 12);

    ordinamento.sort(ModelloTabellone::kColonnaRuota, Qt::DescendingOrder);
    QCOMPARE(ordinamento.data(ordinamento.index(0, ModelloTabellone::kColonnaRuota)).toString(), QString("Nazionale"));
  }

  // Every number of the game, counted over the chosen range; the figures checked against a plain
  // walk of the draws.
  void UnAltroGiocoHaUnaRigaPerNumero() {
    const int numeri_estratti[][10] = {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10},     {11, 12, 13, 14, 15, 16, 17, 18, 19, 20},
                                       {1, 3, 5, 7, 9, 11, 13, 15, 17, 19}, {2, 4, 6, 8, 10, 12, 14, 16, 18, 20},
                                       {1, 2, 3, 4, 5, 16, 17, 18, 19, 20}, {6, 7, 8, 9, 10, 11, 12, 13, 14, 15},
                                       {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}};
    std::vector<EstrazioneGioco> estrazioni;
    for (const auto& numeri : numeri_estratti) {
      EstrazioneGioco estrazione;
      estrazione.id_estr = static_cast<int>(estrazioni.size()) + 1;
      std::copy(std::begin(numeri), std::end(numeri), estrazione.numeri.begin());
      estrazioni.push_back(estrazione);
    }
    const TabellaGioco tab(Formato(Gioco::WinForLife), std::move(estrazioni));

    for (const auto& [inizio, fine] : {std::pair{1, 7}, std::pair{2, 5}, std::pair{4, 4}}) {
      ModelloTabellone modello;
      modello.CalcolaGioco(tab, fine, inizio);
      QCOMPARE(modello.GiocoMostrato(), std::optional(Gioco::WinForLife));
      QCOMPARE(modello.rowCount(), 20);
      for (int numero = 1; numero <= 20; ++numero) {
        int ritardo = 0, frequenza = 0, storico = 0, chiuso = 0;
        for (int k = inizio; k <= fine; ++k) {
          const int* numeri = numeri_estratti[k - 1];
          if (std::find(numeri, numeri + 10, numero) != numeri + 10) {
            ++frequenza;
            chiuso = std::max(chiuso, ritardo);
            ritardo = 0;
          } else {
            storico = std::max(storico, ++ritardo);
          }
        }
        const int riga = numero - 1;
        auto valore = [&](int colonna) { return modello.data(modello.index(riga, colonna)).toInt(); };
        QCOMPARE(valore(ModelloTabellone::kColonnaNumero), numero);
        ConfrontaFigure(FigureMostrate(modello, 0, numero), {ritardo, frequenza, storico});
        QCOMPARE(valore(ModelloTabellone::kColonnaIncremento), std::max(0, ritardo - chiuso));
      }
    }
    ModelloTabellone modello;
    modello.CalcolaGioco(tab, 8);
    QCOMPARE(modello.rowCount(), 0);
    modello.CalcolaGioco(tab, 3, 5);
    QCOMPARE(modello.rowCount(), 0);
  }

  void IlColoreDelRitardoLoMisuraSulloStorico() {
    ModelloTabellone modello;
    modello.Calcola(ArchivioAMano(), kRuoteScelte, 10);
    auto colore = [&](int riga, int ruolo) {
      return modello.data(modello.index(riga, ModelloTabellone::kColonnaRitardo), ruolo).value<QBrush>().color();
    };
    // 81 on Bari came out in draw 10, 7 on Bari has a delay of 2 against a longest absence of 4,
    // 40 on Bari has never come out: its delay is its maximum.
    const int riga_81 = 81 - 1;
    const int riga_7 = 7 - 1;
    const int riga_40 = 40 - 1;
    QCOMPARE(colore(riga_81, Qt::BackgroundRole), QColor(Qt::white));
    QCOMPARE(colore(riga_81, Qt::ForegroundRole), QColor(Qt::black));
    const QColor a_meta = colore(riga_7, Qt::BackgroundRole);
    const QColor al_massimo = colore(riga_40, Qt::BackgroundRole);
    QCOMPARE(a_meta, SfondoRitardo(0.5));
    QCOMPARE(al_massimo, SfondoRitardo(1.0));
    QVERIFY(al_massimo.red() > al_massimo.green() + 100);
    QVERIFY(a_meta.green() < 255 && a_meta.green() > al_massimo.green());
    QCOMPARE(colore(riga_40, Qt::ForegroundRole), QColor(Qt::white));
  }

  // The text must stay readable at every step of the scale: a contrast ratio of at least 4.5, the
  // accessibility guidelines' threshold for normal text.
  void IlTestoSiLeggeSuOgniSfondo() {
    auto luminanza = [](const QColor& c) {
      auto lineare = [](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
      return 0.2126 * lineare(c.redF()) + 0.7152 * lineare(c.greenF()) + 0.0722 * lineare(c.blueF());
    };
    for (int passo = 0; passo <= 100; ++passo) {
      const QColor sfondo = SfondoRitardo(passo / 100.0);
      const double a = luminanza(sfondo);
      const double b = luminanza(TestoSuSfondo(sfondo));
      const double contrasto = (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
      QVERIFY2(contrasto >= 4.5, qPrintable(QString("contrasto %1 al %2%").arg(contrasto).arg(passo)));
    }
  }
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::TabelloneTest)
#include "TabelloneTest.moc"
