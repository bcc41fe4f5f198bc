#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <QTranslator>

#include "ContestoGui.h"
#include "FinestraPrincipale.h"
#include "app/Percorsi.h"

namespace {

// Qt's own dialogs (file chooser, colour picker, standard buttons) speak Italian like ours.
void TraduciDialoghiQt(QApplication& applicazione) {
  auto* traduttore = new QTranslator(&applicazione);
  if (traduttore->load(QLocale(QLocale::Italian), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    applicazione.installTranslator(traduttore);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication applicazione(argc, argv);
  QApplication::setApplicationName(QStringLiteral("lottolab"));
  TraduciDialoghiQt(applicazione);

  const auto base = lottolab::app::CartellaBase();
  auto configurazione = lottolab::app::CaricaConfigurazione(base);
  if (!configurazione) {
    QMessageBox::critical(nullptr, QStringLiteral("lottolab"),
                          QStringLiteral("Impossibile leggere la configurazione:\n%1")
                              .arg(QString::fromStdString(configurazione.Errore().testo)));
    return 1;
  }
  lottolab::gui::ContestoGui contesto(std::move(configurazione).Valore());
  const auto caricato = contesto.RicaricaArchivio();

  lottolab::gui::FinestraPrincipale finestra(contesto);
  // Where no window manager maximises, the window still takes most of the screen.
  finestra.resize(finestra.screen()->availableGeometry().size() * 9 / 10);
  finestra.showMaximized();

  // Files named on the command line (a double click in a file manager) open as the menus open them.
  for (const QString& file : QApplication::arguments().mid(1)) {
    if (file.endsWith(QStringLiteral(".dat"), Qt::CaseInsensitive))
      finestra.ApriStruttura(file);
    else
      finestra.ApriScript(file);
  }

  // Without an archive the desktop still opens: the way to fill it is one menu away.
  if (!caricato)
    QTimer::singleShot(0, &finestra, [&finestra, &contesto, &caricato] {
      QMessageBox::information(
          &finestra, QStringLiteral("Archivio non disponibile"),
          QStringLiteral("%1\n\nPer riempire l'archivio usa Archivio > Aggiorna archivio: scarica i risultati "
                         "pubblicati oppure importa un file dei risultati (testo o zip). Dal terminale: "
                         "lottolab importa FILE oppure lottolab aggiorna.\n\nArchivio atteso: %2")
              .arg(QString::fromStdString(caricato.Errore().testo),
                   QString::fromStdString(contesto.Configurazione().ArchivioLotto().string())));
    });
  return applicazione.exec();
}
