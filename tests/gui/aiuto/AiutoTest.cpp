#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>

#include <memory>
#include <set>
#include <string>

#include "gui/aiuto/ModelloFunzioni.h"
#include "gui/principale/Finestre.h"
#include "script/NomiPubblici.h"
#include "script/Riferimento.h"

namespace lottolab::gui {
namespace {

QString Testo(std::string_view testo) { return QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size())); }

class AiutoTest : public QObject {
  Q_OBJECT

 private slots:
  // The reference lists every public name once, with the arguments the library's own row gives.
  void IlRiferimentoElencaOgniNome() {
    const ModelloFunzioni modello;
    std::multiset<QString> nomi;
    for (int riga = 0; riga < modello.rowCount(); ++riga)
      nomi.insert(modello.index(riga, ModelloFunzioni::kColonnaNome).data().toString());
    size_t pubblici = 0;
    for (const script::FamigliaDiNomi& famiglia : script::NomiPubblici())
      for (std::string_view nome : famiglia.nomi) {
        ++pubblici;
        QVERIFY2(nomi.count(Testo(nome)) >= 1, std::string(nome).c_str());
      }
    QCOMPARE(static_cast<size_t>(modello.rowCount()), pubblici);

    // A bound name shows its arguments; an unbound one says it is not there yet.
    QVERIFY(modello.Disponibili() > 0);
    int argomenti = 0;
    int assenti = 0;
    for (int riga = 0; riga < modello.rowCount(); ++riga) {
      argomenti += !modello.index(riga, ModelloFunzioni::kColonnaArgomenti).data().toString().isEmpty();
      assenti +=
          modello.index(riga, ModelloFunzioni::kColonnaSignificato).data().toString() == "non ancora disponibile";
    }
    QVERIFY(argomenti > 0);
    QCOMPARE(assenti, modello.rowCount() - modello.Disponibili());
  }

  void LaRicercaFiltraPerNome() {
    std::unique_ptr<QWidget> finestra(NuovaFinestraAiuto());
    auto* cerca = finestra->findChild<QLineEdit*>("cercaFunzione");
    auto* tabella = finestra->findChild<QTableView*>("tabellaFunzioni");
    QVERIFY(cerca && tabella);
    const int tutte = tabella->model()->rowCount();
    QTest::keyClicks(cerca, "rItArDo");
    const int trovate = tabella->model()->rowCount();
    QVERIFY(trovate > 0 && trovate < tutte);
    for (int riga = 0; riga < trovate; ++riga)
      QVERIFY(tabella->model()
                  ->index(riga, ModelloFunzioni::kColonnaNome)
                  .data()
                  .toString()
                  .contains("ritardo", Qt::CaseInsensitive));
    cerca->setText("NessunNomeCosi");
    QCOMPARE(tabella->model()->rowCount(), 0);
    cerca->clear();
    QCOMPARE(tabella->model()->rowCount(), tutte);
  }

  // F1 on a name of the editor: the help shows that name's card, the text of the editor's call tip.
  void UnNomeMostraLaSuaScheda() {
    std::unique_ptr<QWidget> finestra(NuovaFinestraAiuto());
    MostraNomeNellAiuto(finestra.get(), "estrattoritardo");
    auto* tabella = finestra->findChild<QTableView*>("tabellaFunzioni");
    auto* scheda = finestra->findChild<QTextBrowser*>("schedaFunzione");
    QVERIFY(tabella && scheda);
    QCOMPARE(tabella->currentIndex().siblingAtColumn(ModelloFunzioni::kColonnaNome).data().toString(),
             QStringLiteral("EstrattoRitardo"));
    const script::SchedaFunzione* attesa = script::CercaScheda("EstrattoRitardo");
    QVERIFY(attesa);
    QCOMPARE(scheda->toPlainText(), Testo(script::TestoSuggerimento(*attesa)));
    QVERIFY(scheda->toPlainText().contains("Esempio: "));
  }
};

}  // namespace
}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::AiutoTest)
#include "AiutoTest.moc"
