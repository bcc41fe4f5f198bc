#include <QLabel>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <memory>
#include <sstream>

#include "TempDir.h"
#include "archive/ArchivioGioco.h"
#include "archive/DieciELottoOgniCinqueMinuti.h"
#include "gui/archivio/ModelloEstrazioniGioco.h"
#include "gui/principale/Finestre.h"

namespace lottolab::gui {
namespace {

using test::BaseTemporanea;

EstrazioneGioco Estrazione(int id, GruppoData data, std::initializer_list<int> numeri,
                           std::initializer_list<int> extra = {}, std::initializer_list<int> speciali = {}) {
  EstrazioneGioco estrazione;
  estrazione.id_estr = id;
  estrazione.data = data;
  estrazione.concorso = data.indice_annuale;
  auto copia = [](auto& destinazione, std::initializer_list<int> valori) {
    size_t i = 0;
    for (int valore : valori) destinazione[i++] = static_cast<uint8_t>(valore);
  };
  copia(estrazione.numeri, numeri);
  copia(estrazione.extra, extra);
  copia(estrazione.speciali, speciali);
  return estrazione;
}

// Two evenings of the 10eLotto: the first from before the Extra and the Gong, the second with both.
std::shared_ptr<const TabellaGioco> DueSereDelDieciELotto() {
  const std::initializer_list<int> venti = {1,  5,  9,  12, 18, 22, 27, 30, 33, 41,
                                            44, 50, 55, 61, 66, 70, 74, 80, 85, 90};
  return std::make_shared<const TabellaGioco>(
      Formato(Gioco::DieciELotto),
      std::vector{Estrazione(1, {88, 1, 10, 2019}, venti, {}, {1, 5, 0}),
                  Estrazione(2, {150, 2, 11, 2022}, venti, {2, 3, 4, 6, 7, 8, 10, 11, 13, 14, 15, 16, 17, 19, 20},
                             {9, 12, 63})});
}

QString Cella(const QAbstractItemModel& modello, int riga, int colonna) {
  return modello.data(modello.index(riga, colonna)).toString();
}

QStringList Intestazioni(const QAbstractItemModel& modello) {
  QStringList intestazioni;
  for (int colonna = 0; colonna < modello.columnCount(); ++colonna)
    intestazioni << modello.headerData(colonna, Qt::Horizontal).toString();
  return intestazioni;
}

}  // namespace

class FinestraArchivioGiocoTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<BaseTemporanea> m_base;

  app::Configurazione Configurazione() const {
    return app::Configurazione{m_base->Percorso(), app::FileIni::DaTesto("")};
  }

  // The text above the table, or nothing when it is hidden because the archive has draws.
  static QString Avviso(QWidget& finestra) {
    auto* avviso = finestra.findChild<QLabel*>("avvisoArchivio");
    return avviso->isHidden() ? QString() : avviso->text();
  }

 private slots:
  void init() { m_base = std::make_unique<BaseTemporanea>(); }
  void cleanup() { m_base.reset(); }

  // The columns follow what each game draws: a time where contests have one, the Extra, the
  // special numbers by name.
  void LeColonneSeguonoIlGioco_data() {
    QTest::addColumn<int>("gioco");
    QTest::addColumn<QStringList>("intestazioni");
    QTest::newRow("SE") << int(Gioco::SuperEnalotto)
                        << QStringList{"N.", "Data", "Concorso", "Numeri", "Jolly", "SuperStar"};
    QTest::newRow("DL") << int(Gioco::DieciELotto)
                        << QStringList{"N.", "Data", "Concorso", "Numeri", "Extra", "Oro", "Doppio Oro", "Gong"};
    QTest::newRow("DL5") << int(Gioco::DieciELottoOgniCinqueMinuti)
                         << QStringList{"N.",    "Data", "Ora",        "Concorso", "Numeri",
                                        "Extra", "Oro",  "Doppio Oro", "Gong"};
    QTest::newRow("WF") << int(Gioco::WinForLife) << QStringList{"N.", "Data", "Ora", "Concorso", "Numeri", "Numerone"};
  }
  void LeColonneSeguonoIlGioco() {
    QFETCH(int, gioco);
    QFETCH(QStringList, intestazioni);
    ModelloEstrazioniGioco modello(std::make_shared<const TabellaGioco>(Formato(static_cast<Gioco>(gioco))));
    QCOMPARE(Intestazioni(modello), intestazioni);
    QCOMPARE(modello.rowCount(), 0);
    QVERIFY(!modello.data(modello.index(0, 0)).isValid());
  }

  // What a period did not draw stays empty, never a row of zeros.
  void LeCelleMostranoLEstrazione() {
    ModelloEstrazioniGioco modello(DueSereDelDieciELotto());
    QCOMPARE(modello.rowCount(), 2);
    const int numeri = modello.ColonnaDi(ModelloEstrazioniGioco::Colonna::Numeri);
    const int extra = modello.ColonnaDi(ModelloEstrazioniGioco::Colonna::Extra);
    const int oro = modello.ColonnaDi(ModelloEstrazioniGioco::Colonna::Speciale);
    QCOMPARE(Cella(modello, 0, 1), QString("01/10/2019"));
    QCOMPARE(Cella(modello, 0, 2), QString("88"));
    QCOMPARE(Cella(modello, 0, numeri), QString("01 05 09 12 18 22 27 30 33 41 44 50 55 61 66 70 74 80 85 90"));
    QCOMPARE(Cella(modello, 0, extra), QString());
    QCOMPARE(Cella(modello, 0, oro), QString("01"));
    QCOMPARE(Cella(modello, 0, oro + 1), QString("05"));
    QCOMPARE(Cella(modello, 0, oro + 2), QString());
    QCOMPARE(Cella(modello, 1, extra), QString("02 03 04 06 07 08 10 11 13 14 15 16 17 19 20"));
    QCOMPARE(Cella(modello, 1, oro + 2), QString("63"));

    const DettaglioEstrazioneGioco prima = modello.Dettaglio(0);
    QCOMPARE(prima.quando, std::string("01/10/2019"));
    QCOMPARE(prima.voci.size(), size_t{3});
    QCOMPARE(prima.voci[1].first, std::string("Oro"));
    QCOMPARE(prima.voci[2].first, std::string("Doppio Oro"));
    QCOMPARE(modello.Dettaglio(1).voci.size(), size_t{5});
    QCOMPARE(modello.Dettaglio(2).id_estr, 0);
    QCOMPARE(modello.RigaEntro(QDate(2022, 11, 1)), 0);
    QCOMPARE(modello.RigaEntro(QDate(2019, 9, 30)), -1);
  }

  // A missing archive is empty and says how to import it; an unreadable one says why; each
  // window follows the reload.
  void OgniArchivioSiCaricaPerConto() {
    const app::Configurazione configurazione = Configurazione();
    QVERIFY(SalvaArchivioGioco(*DueSereDelDieciELotto(), configurazione.ArchivioGioco(Gioco::DieciELotto)).Riuscito());
    std::ofstream(configurazione.ArchivioGioco(Gioco::WinForLife), std::ios::binary) << "troppo corto";

    ContestoGui contesto(configurazione);
    QSignalSpy ricaricati(&contesto, &ContestoGui::ArchiviGiochiCambiati);
    contesto.RicaricaArchiviGiochi();
    QCOMPARE(ricaricati.count(), 1);
    QCOMPARE(contesto.ArchivioGioco(Gioco::DieciELotto)->EstrazioniArchivio(), 2);
    QVERIFY(contesto.ErroreGioco(Gioco::DieciELotto).empty());
    QCOMPARE(contesto.ArchivioGioco(Gioco::SuperEnalotto)->EstrazioniArchivio(), 0);
    QVERIFY(contesto.ErroreGioco(Gioco::SuperEnalotto).empty());
    QCOMPARE(contesto.ArchivioGioco(Gioco::WinForLife)->EstrazioniArchivio(), 0);
    QVERIFY(contesto.ErroreGioco(Gioco::WinForLife).find("WinForLife.dat") != std::string::npos);

    std::unique_ptr<QWidget> superenalotto(NuovaFinestraArchivioGioco(contesto, Gioco::SuperEnalotto));
    std::unique_ptr<QWidget> win_for_life(NuovaFinestraArchivioGioco(contesto, Gioco::WinForLife));
    std::unique_ptr<QWidget> dieci_e_lotto(NuovaFinestraArchivioGioco(contesto, Gioco::DieciELotto));
    QVERIFY(Avviso(*superenalotto).contains("è vuoto"));
    QVERIFY(Avviso(*superenalotto).contains("lottolab --gioco SE importa FILE"));
    QVERIFY(Avviso(*win_for_life).contains("non si può leggere"));
    QCOMPARE(Avviso(*dieci_e_lotto), QString());
    auto* tabella = dieci_e_lotto->findChild<QTableView*>("tabellaEstrazioni");
    // The most recent draw is selected.
    QCOMPARE(tabella->currentIndex().row(), 1);

    std::filesystem::remove(configurazione.ArchivioGioco(Gioco::DieciELotto));
    contesto.RicaricaArchiviGiochi();
    QCOMPARE(tabella->model()->rowCount(), 0);
    QVERIFY(Avviso(*dieci_e_lotto).contains("lottolab --gioco DL importa FILE"));
  }

  // The five-minute draws of the real results, as a user imports them, in the window.
  void LeEstrazioniRealiOgniCinqueMinuti() {
    const auto file = std::filesystem::path(LOTTOLAB_SHARED_DIR) / "data" / "10elotto_5min.txt";
    if (!std::filesystem::exists(file))
      QSKIP(qPrintable("real draws not found in " + QString::fromStdString(file.parent_path().string())));
    std::stringstream testo;
    testo << std::ifstream(file).rdbuf();
    auto risultati = LeggiRisultatiCinqueMinuti(testo.str());
    QVERIFY(risultati.Riuscito());
    const app::Configurazione configurazione = Configurazione();
    const auto archivio = configurazione.ArchivioGioco(Gioco::DieciELottoOgniCinqueMinuti);
    QVERIFY(ImportaEstrazioniGioco(risultati->tabella.formato(), archivio, risultati->tabella.Tutte()).Riuscito());
    ContestoGui contesto(configurazione);
    contesto.RicaricaArchiviGiochi();

    std::unique_ptr<QWidget> finestra(NuovaFinestraArchivioGioco(contesto, Gioco::DieciELottoOgniCinqueMinuti));
    const QAbstractItemModel& modello = *finestra->findChild<QTableView*>("tabellaEstrazioni")->model();
    QCOMPARE(modello.rowCount(), risultati->tabella.EstrazioniArchivio());
    QVERIFY(modello.rowCount() > 5000);
    // 2026/08/04 00:15, contest 3, Oro 53: the results' third line.
    const QStringList terza{
        "3", "04/08/2026", "00:15", "3", "02 04 06 16 23 24 25 41 50 53 59 61 68 69 76 77 80 83 89 90",
        "",  "53",         "",      ""};
    QStringList celle;
    for (int colonna = 0; colonna < modello.columnCount(); ++colonna) celle << Cella(modello, 2, colonna);
    QCOMPARE(celle, terza);
  }
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::FinestraArchivioGiocoTest)
#include "FinestraArchivioGiocoTest.moc"
