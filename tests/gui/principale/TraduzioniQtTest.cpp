#include <QApplication>
#include <QFileSystemModel>
#include <QTest>

#include "gui/principale/TraduzioniQt.h"

namespace lottolab::gui {
namespace {

class TraduzioniQtTest : public QObject {
  Q_OBJECT

 private slots:
  // What the non-native file chooser shows: its buttons and columns, and the kinds of file.
  void IlSelettoreDeiFileParlaItaliano() {
    if (!TraduciTestiQt(*QCoreApplication::instance()))
      QSKIP("manca la traduzione di Qt (pacchetto qt6-translations-l10n)");
    QCOMPARE(QCoreApplication::translate("QFileDialog", "&Open"), QString("&Apri"));
    QCOMPARE(QFileSystemModel().headerData(0, Qt::Horizontal).toString(), QString("Nome"));
    QCOMPARE(QCoreApplication::translate("QAbstractFileIconProvider", "Folder", "All other platforms"),
             QString("Cartella"));
    // Texts nobody translated stay as they are.
    QCOMPARE(QCoreApplication::translate("QAbstractFileIconProvider", "Nessuno"), QString("Nessuno"));
    QCOMPARE(QLocale().monthName(11), QString("novembre"));
  }
};

}  // namespace
}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::TraduzioniQtTest)
#include "TraduzioniQtTest.moc"
