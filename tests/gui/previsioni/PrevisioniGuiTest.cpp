#include <QLabel>
#include <QTableView>
#include <QTest>

#include <memory>
#include <vector>

#include "TempDir.h"
#include "archive/ClsEstrazioni.h"
#include "gui/previsioni/ModelloPrevisioni.h"
#include "gui/principale/Finestre.h"
#include "previsioni/ArchivioPrevisioni.h"

namespace lottolab::gui {
namespace {

// Six draws of 05/2005; every wheel holds 81..85 but Bari in draw 3: 7 10 11 12 13.
TabellaEstrazioni ArchivioAMano() {
  std::vector<Estrazione> estrazioni;
  for (int id = 1; id <= 6; ++id) {
    Estrazione estrazione;
    estrazione.id_estr = id;
    estrazione.data = GruppoData{static_cast<int16_t>(id), static_cast<int16_t>(id), 5, 2005};
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
      for (int p = 1; p <= kNumeriPerRuota; ++p) estrazione.ImpostaNumero(ruota, p, 80 + p);
    if (id == 3)
      for (int p = 1; p <= kNumeriPerRuota; ++p) estrazione.ImpostaNumero(BA, p, p == 1 ? 7 : 8 + p);
    estrazioni.push_back(estrazione);
  }
  return TabellaEstrazioni(std::move(estrazioni));
}

previsioni::Previsione Previsione(std::vector<int> numeri, std::vector<int> ruote, int id_estr, int colpi) {
  previsioni::Previsione p;
  p.numeri = std::move(numeri);
  p.ruote = std::move(ruote);
  p.id_estr = id_estr;
  p.colpi = colpi;
  p.testo = "prova";
  return p;
}

// Won, lost, open and made at a draw the archive does not hold.
std::vector<previsioni::Previsione> Esempi() {
  return {Previsione({7, 10}, {BA, VE}, 2, 5), Previsione({55}, {BA, CA, FI, GE, MI, NA, PA, RO, TO, VE}, 1, 3),
          Previsione({55}, {VE}, 4, 10), Previsione({55}, {VE}, 99, 10)};
}

}  // namespace

class PrevisioniGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void OgniEsitoHaLaSuaRiga() {
    auto archivio = std::make_shared<const TabellaEstrazioni>(ArchivioAMano());
    ModelloPrevisioni modello;
    modello.Mostra(VerificaElenco(*archivio, Esempi()), archivio);
    QCOMPARE(modello.rowCount(), 4);
    auto esito = [&](int riga) { return modello.index(riga, ModelloPrevisioni::kColonnaEsito).data().toString(); };
    QCOMPARE(esito(0), QStringLiteral("ambo su BA al colpo 1, estr. 3 del 03/05/2005"));
    QCOMPARE(esito(1), QStringLiteral("negativa dopo 3 colpi"));
    QCOMPARE(esito(2), QStringLiteral("in corso: 2 colpi giocati su 10"));
    QCOMPARE(esito(3), QStringLiteral("fatta all'estrazione 99, che l'archivio non ha"));
    QCOMPARE(modello.index(0, ModelloPrevisioni::kColonnaNumeri).data().toString(), QStringLiteral("07-10"));
    QCOMPARE(modello.index(0, ModelloPrevisioni::kColonnaRuote).data().toString(), QStringLiteral("BA, VE"));
    QCOMPARE(modello.index(1, ModelloPrevisioni::kColonnaRuote).data().toString(), QStringLiteral("TT (10 città)"));
    QCOMPARE(modello.index(0, ModelloPrevisioni::kColonnaFatta).data().toString(),
             QStringLiteral("estr. 2 del 02/05/2005"));
    // Sorted by outcome: won, open, lost, then those that cannot be judged.
    auto ordine = [&](int riga) {
      return modello.index(riga, ModelloPrevisioni::kColonnaEsito).data(ModelloPrevisioni::kRuoloOrdinamento).toInt();
    };
    QVERIFY(ordine(0) < ordine(2));
    QVERIFY(ordine(2) < ordine(1));
    QVERIFY(ordine(1) < ordine(3));
  }

  // The window reads the file beside the agenda off its thread; a file that is not ours is told and
  // left as it was.
  void LaFinestraLeggeIlFileAccantoAllAgenda() {
    test::CartellaTemporanea cartella;
    const auto archivio = ArchivioAMano();
    ClsEstrazioni file(cartella / "A.dat");
    QVERIFY(file.SalvaFileEstrazioni(archivio.Tutte()).Riuscito());
    ContestoGui contesto(
        app::Configurazione{cartella.Percorso(), app::FileIni::DaTesto("[GENERALE]\nsFileBd=A.dat\n")});
    QVERIFY(contesto.RicaricaArchivio().Riuscito());
    const auto file_previsioni = previsioni::FilePrevisioniAccanto(contesto.Configurazione().FileAgenda());
    {
      std::unique_ptr<QWidget> vuota(NuovaFinestraPrevisioni(contesto));
      vuota->show();
      QTRY_VERIFY(vuota->findChild<QLabel*>("statoPrevisioni")->text().startsWith("Nessuna previsione salvata"));
      QVERIFY(!std::filesystem::exists(file_previsioni));
    }
    {
      auto salvate = previsioni::ArchivioPrevisioni::Apri(file_previsioni);
      QVERIFY(salvate.Riuscito());
      for (const auto& p : Esempi()) QVERIFY(salvate->Aggiungi(p).Riuscito());
    }
    std::unique_ptr<QWidget> finestra(NuovaFinestraPrevisioni(contesto));
    finestra->show();
    auto* tabella = finestra->findChild<QTableView*>("tabellaPrevisioni");
    QTRY_COMPARE(tabella->model()->rowCount(), 4);
    QVERIFY(finestra->findChild<QLabel*>("statoPrevisioni")
                ->text()
                .startsWith(QStringLiteral("4 previsioni: 1 vincenti, 1 in corso, 1 negative")));

    test::Scrivi(file_previsioni, "non sono un database, ma un testo abbastanza lungo per sembrare qualcosa");
    std::unique_ptr<QWidget> guasta(NuovaFinestraPrevisioni(contesto));
    guasta->show();
    QTRY_VERIFY(guasta->findChild<QLabel*>("statoPrevisioni")->text().contains("non è un archivio delle previsioni"));
    QCOMPARE(guasta->findChild<QTableView*>("tabellaPrevisioni")->model()->rowCount(), 0);
    QCOMPARE(test::Leggi(file_previsioni),
             std::string("non sono un database, ma un testo abbastanza lungo per sembrare qualcosa"));
  }
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::PrevisioniGuiTest)
#include "PrevisioniGuiTest.moc"
