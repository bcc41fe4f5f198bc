#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>

#include <memory>

#include "TempDir.h"
#include "gui/script/PaginaOrdinabile.h"
#include "gui/script/SchedaHtml.h"
#include "script/TabellaOutput.h"

namespace lottolab::gui {
namespace {

script::RigaTabella Riga(std::initializer_list<const char*> testi) {
  script::RigaTabella riga;
  for (const char* testo : testi) riga.celle.push_back({testo, {}});
  return riga;
}

// A page as a script writes it: text, a sortable table of numbers, dates and names, more text.
QString PaginaDiProva() {
  script::TabellaOutput tabella(Riga({"Numero", "Data", "Nome"}), 1);
  tabella.AggiungiRiga(Riga({"10", "02/01/2024", "bari"}));
  tabella.AggiungiRiga(Riga({"9", "15/12/2023", "Cagliari"}));
  tabella.AggiungiRiga(Riga({"-1,5", "01/01/2025", "<Firenze> & co"}));
  tabella.AggiungiRiga(Riga({"", "3/1/2024", "Albano"}));
  return QString::fromStdString("<html><body><pre>prima\n</pre>" + std::string(script::ScriptOrdinamento()) +
                                tabella.Html(true) + "<table><tr><td>5</td></tr><tr><td>1</td></tr></table>" +
                                "<pre>dopo</pre></body></html>");
}

// The cells of column `colonna` of the rows of the page's first table, in the page's order.
QStringList Colonna(const QString& pagina, int colonna) {
  static const QRegularExpression kRiga(QStringLiteral("<tr[^>]*>(.*?)</tr>"),
                                        QRegularExpression::DotMatchesEverythingOption);
  static const QRegularExpression kCella(QStringLiteral("<td[^>]*>(.*?)</td>"));
  QStringList celle;
  const QString tabella = pagina.section(QStringLiteral("</table>"), 0, 0);
  for (auto riga = kRiga.globalMatch(tabella); riga.hasNext();) {
    const QString testo = riga.next().captured(1);
    QStringList colonne;
    for (auto cella = kCella.globalMatch(testo); cella.hasNext();) colonne << cella.next().captured(1);
    if (colonna < colonne.size()) celle << colonne[colonna];
  }
  return celle;
}

class PaginaOrdinabileTest : public QObject {
  Q_OBJECT

 private slots:
  void NumeriDateETestiNelLoroOrdine() {
    const QString pagina = PaginaDiProva();
    QVERIFY(HaTabelleOrdinabili(pagina));
    const QString nessuno = PaginaOrdinata(pagina, {});
    QCOMPARE(Colonna(nessuno, 0), QStringList({"10", "9", "-1,5", ""}));
    // The titles became links, and nothing else of the page moved.
    QVERIFY(nessuno.contains("<a href=\"ordina:0-2\">Nome</a>"));
    QVERIFY(nessuno.startsWith("<html><body><pre>prima\n</pre>"));
    QVERIFY(nessuno.endsWith("<table><tr><td>5</td></tr><tr><td>1</td></tr></table><pre>dopo</pre></body></html>"));

    OrdiniTabelle ordini;
    CambiaOrdine(ordini, 0, 0);
    // Numbers by value before the empty cell, which sorts as text.
    QCOMPARE(Colonna(PaginaOrdinata(pagina, ordini), 0), QStringList({"-1,5", "9", "10", ""}));
    CambiaOrdine(ordini, 0, 0);
    QCOMPARE(Colonna(PaginaOrdinata(pagina, ordini), 0), QStringList({"", "10", "9", "-1,5"}));
    QVERIFY(PaginaOrdinata(pagina, ordini).contains("Numero ▼</a>"));
    CambiaOrdine(ordini, 0, 1);
    QCOMPARE(Colonna(PaginaOrdinata(pagina, ordini), 1),
             QStringList({"15/12/2023", "02/01/2024", "3/1/2024", "01/01/2025"}));
    CambiaOrdine(ordini, 0, 2);
    QCOMPARE(Colonna(PaginaOrdinata(pagina, ordini), 2),
             QStringList({"&lt;Firenze&gt; &amp; co", "Albano", "bari", "Cagliari"}));
    // A column past a row's cells, or a table that is not there, sorts nothing away.
    ordini = {{0, {7, false}}, {3, {0, false}}};
    QCOMPARE(Colonna(PaginaOrdinata(pagina, ordini), 0), QStringList({"10", "9", "-1,5", ""}));
  }

  // Pages whose rows cannot be told apart stay as written, quickly.
  void PagineStraneRestanoComeSono_data() {
    QTest::addColumn<QString>("pagina");
    QTest::newRow("senza tabelle") << QString("<pre>ciao</pre>");
    QTest::newRow("non ordinabile") << QString(
        "<table><tr><th>a</th></tr><tr><td>2</td></tr><tr><td>1</td></tr></table>");
    QTest::newRow("righe aperte") << QString("<table class=sortable><tr><th>a<tr><td>2<tr><td>1</table>");
    QTest::newRow("annidata") << QString(
        "<table class=sortable><tr><th>a</th></tr><tr><td><table><tr><td>1</td></tr></table></td></tr></table>");
    QTest::newRow("mai chiusa") << QString("<table class=sortable><tr><th>a</th></tr><tr><td>1</td></tr>");
    QTest::newRow("tag aperto") << QString("<table class=sortable <tr><th>a</th></tr><tr><td>1</td></tr></table>");
    QTest::newRow("molte righe aperte") << "<table class=sortable>" + QString("<tr><td>1").repeated(200000) +
                                               "</table>";
  }
  void PagineStraneRestanoComeSono() {
    QFETCH(QString, pagina);
    QVERIFY(!HaTabelleOrdinabili(pagina));
    QCOMPARE(PaginaOrdinata(pagina, {{0, {0, true}}}), pagina);
  }

  // A long table is scanned row by row, never once per row from the start of the page.
  void UnaTabellaLunga() {
    QString pagina = "<table class=sortable><tr><th>n</th></tr>";
    for (int riga = 50000; riga >= 1; --riga) pagina += QString("<tr><td>%1</td></tr>\n").arg(riga);
    pagina += "</table>";
    const QStringList ordinati = Colonna(PaginaOrdinata(pagina, {{0, {0, false}}}), 0);
    QCOMPARE(ordinati.size(), 50000);
    QCOMPARE(ordinati.front(), QString("1"));
    QCOMPARE(ordinati.back(), QString("50000"));
  }

  void CollegamentiDiOrdinamento() {
    QCOMPARE(RichiestaOrdinamento(QUrl("ordina:2-5")), std::optional(std::pair{2, 5}));
    QVERIFY(!RichiestaOrdinamento(QUrl("ordina:2")));
    QVERIFY(!RichiestaOrdinamento(QUrl("ordina:-1-2")));
    QVERIFY(!RichiestaOrdinamento(QUrl("ordina:a-b")));
    QVERIFY(!RichiestaOrdinamento(QUrl("https://example.invalid/ordina:1-2")));
  }

  // The tab sorts the page a run wrote on a click of a title, and keeps the file it shows.
  void LaSchedaOrdinaAlClic() {
    test::CartellaTemporanea cartella;
    const QString percorso = QString::fromStdString((cartella.Percorso() / "pagina.html").string());
    QFile file(percorso);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(PaginaDiProva().toUtf8());
    file.close();

    QTextBrowser pagina;
    new SchedaHtml(&pagina);
    pagina.setSource(QUrl::fromLocalFile(percorso));
    QVERIFY(pagina.toPlainText().indexOf("bari") < pagina.toPlainText().indexOf("Albano"));
    emit pagina.anchorClicked(QUrl("ordina:0-2"));
    const QString testo = pagina.toPlainText();
    QVERIFY(testo.indexOf("Albano") < testo.indexOf("bari"));
    QVERIFY(testo.indexOf("bari") < testo.indexOf("Cagliari"));
    QCOMPARE(pagina.source(), QUrl::fromLocalFile(percorso));
  }
};

}  // namespace
}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::PaginaOrdinabileTest)
#include "PaginaOrdinabileTest.moc"
