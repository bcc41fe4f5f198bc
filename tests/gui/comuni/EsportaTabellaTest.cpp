#include <QStandardItemModel>
#include <QTest>

#include "TempDir.h"
#include "esporta/LetturaXlsx.h"
#include "esporta/ScritturaXlsx.h"
#include "gui/comuni/EsportaTabella.h"

namespace lottolab::gui {

class EsportaTabellaTest : public QObject {
  Q_OBJECT

 private:
  // A table as the windows show it: numbers held as numbers, a coloured cell, a text with ";".
  static void Riempi(QStandardItemModel& modello) {
    modello.setHorizontalHeaderLabels({QStringLiteral("Numero"), QStringLiteral("Ritardo"), QStringLiteral("Nota")});
    for (int r = 0; r < 3; ++r) {
      auto* numero = new QStandardItem;
      numero->setData(r + 1, Qt::DisplayRole);
      auto* ritardo = new QStandardItem;
      ritardo->setData(10.5 * r, Qt::DisplayRole);
      modello.appendRow({numero, ritardo, new QStandardItem(QStringLiteral("città; %1").arg(r))});
    }
    modello.item(1, 1)->setBackground(QColor(0xFF, 0x80, 0x00));
  }

 private slots:
  void CsvEFoglioRiletti() {
    QStandardItemModel modello;
    Riempi(modello);
    test::CartellaTemporanea cartella;

    QVERIFY(esporta::ScriviCsv(RigheDelModello(modello), cartella / "t.csv"));
    auto righe = esporta::LeggiTestoCsv(test::Leggi(cartella / "t.csv"));
    QVERIFY(righe);
    QCOMPARE(righe->size(), size_t{4});
    QCOMPARE((*righe)[0][2], std::string("Nota"));
    QCOMPARE((*righe)[3][2], std::string("città; 2"));

    QVERIFY(esporta::ScriviXlsx(CartellaDelModello(modello, QStringLiteral("Ritardi: Bari")), cartella / "t.xlsx"));
    auto letta = esporta::LeggiXlsx(cartella / "t.xlsx");
    QVERIFY2(letta, letta ? "" : letta.Errore().testo.c_str());
    const esporta::Foglio& foglio = letta->fogli.at(0);
    QCOMPARE(foglio.nome, std::string("Ritardi- Bari"));
    QCOMPARE(foglio.Trova({1, 2})->valore, esporta::Valore(std::string("Ritardo")));
    QVERIFY(letta->formati[foglio.Trova({1, 2})->formato].grassetto);
    QCOMPARE(foglio.Trova({3, 2})->valore, esporta::Valore(10.5));
    QCOMPARE(letta->formati[foglio.Trova({3, 2})->formato].colore_sfondo, std::optional<uint32_t>(0xFF8000));
    QCOMPARE(foglio.Trova({4, 1})->valore, esporta::Valore(3.0));
    QCOMPARE(foglio.Trova({4, 3})->valore, esporta::Valore(std::string("città; 2")));

    QVERIFY(ScriviPdf(modello, QStringLiteral("Ritardi"), cartella / "t.pdf"));
    QVERIFY(test::Leggi(cartella / "t.pdf").starts_with("%PDF"));
  }

  void UnaScritturaFallitaLasciaIlFile() {
    QStandardItemModel modello;
    Riempi(modello);
    test::CartellaTemporanea cartella;
    test::Scrivi(cartella / "t.pdf", "vecchio");
    std::filesystem::create_directory(cartella / "cartella.xlsx");
    QVERIFY(!esporta::ScriviXlsx(CartellaDelModello(modello, QString()), cartella / "cartella.xlsx"));
    QVERIFY(!ScriviPdf(modello, QString(), cartella / "manca" / "t.pdf"));
    QCOMPARE(test::Leggi(cartella / "t.pdf"), std::string("vecchio"));
  }
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::EsportaTabellaTest)
#include "EsportaTabellaTest.moc"
