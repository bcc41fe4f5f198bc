#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

#include "app/ErroreInatteso.h"
#include "app/Esempi.h"
#include "app/Percorsi.h"
#include "gui/comuni/IconaApplicazione.h"
#include "gui/principale/ContestoGui.h"
#include "gui/principale/FinestraPrincipale.h"
#include "gui/principale/TraduzioniQt.h"

namespace {

using lottolab::AvvisoEsclamativo;
using lottolab::Esito;
using lottolab::Fatto;

QString TestoEccezione() { return QString::fromStdString(lottolab::app::DescriviEccezioneCorrente()); }

// An exception must never cross Qt's event loop: the one that escapes an event handler is shown
// and the program goes on, as after any refused action. Its message waits for the handler to
// unwind, and while one is on screen the next are dropped, so a handler that throws on every paint
// cannot bury the window under dialogs.
class Applicazione : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* destinatario, QEvent* evento) override {
    try {
      return QApplication::notify(destinatario, evento);
    } catch (...) {
      Segnala(TestoEccezione());
      return false;
    }
  }

 private:
  void Segnala(const QString& testo) {
    if (m_segnalazione_aperta) return;
    m_segnalazione_aperta = true;
    QTimer::singleShot(0, this, [this, testo] {
      QMessageBox::warning(activeWindow(), QStringLiteral("lottolab"),
                           QStringLiteral("L'operazione non è riuscita per un %1").arg(testo));
      m_segnalazione_aperta = false;
    });
  }

  bool m_segnalazione_aperta = false;
};

int Avvia(Applicazione& applicazione) {
  QApplication::setApplicationName(QStringLiteral("lottolab"));
  QApplication::setWindowIcon(lottolab::gui::IconaApplicazione());
  lottolab::gui::TraduciTestiQt(applicazione);

  const auto base = lottolab::app::CartellaBase();
  auto configurazione = lottolab::app::CaricaConfigurazione(base);
  if (!configurazione) {
    QMessageBox::critical(nullptr, QStringLiteral("lottolab"),
                          QStringLiteral("Impossibile leggere la configurazione:\n%1")
                              .arg(QString::fromStdString(configurazione.Errore().testo)));
    return 1;
  }
  // The first run on a base folder leaves there the example scripts a user starts from.
  const auto esempi = lottolab::app::InstallaEsempi(base);
  lottolab::gui::ContestoGui contesto(std::move(configurazione).Valore());
  // An archive that cannot even be looked at (a folder, a device, a path the system refuses) is
  // one more reason for having none: the window opens and its settings can point elsewhere.
  const Esito<Fatto> caricato = [&contesto]() -> Esito<Fatto> {
    try {
      return contesto.RicaricaArchivio();
    } catch (...) {
      return AvvisoEsclamativo(TestoEccezione().toStdString());
    }
  }();
  // The other games' archives say what went wrong in their own windows, when the user opens them.
  contesto.RicaricaArchiviGiochi();

  lottolab::gui::FinestraPrincipale finestra(contesto);
  // Where no window manager maximises, the window still takes most of the screen.
  finestra.resize(finestra.screen()->availableGeometry().size() * 9 / 10);
  finestra.showMaximized();

  // Files named on the command line (a double click in a file manager) open as the menus open them.
  // One that cannot be opened is reported and the others still open.
  for (const QString& file : QApplication::arguments().mid(1)) {
    try {
      if (file.endsWith(QStringLiteral(".dat"), Qt::CaseInsensitive))
        finestra.ApriStruttura(file);
      else
        finestra.ApriScript(file);
    } catch (...) {
      QMessageBox::warning(&finestra, QStringLiteral("lottolab"),
                           QStringLiteral("Impossibile aprire %1: %2").arg(file.left(120), TestoEccezione()));
    }
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
  if (!esempi)
    QTimer::singleShot(0, &finestra, [&finestra, &esempi] {
      QMessageBox::warning(&finestra, QStringLiteral("Script di esempio"),
                           QString::fromStdString(esempi.Errore().testo));
    });
  return applicazione.exec();
}

}  // namespace

int main(int argc, char** argv) {
  Applicazione applicazione(argc, argv);
  try {
    return Avvia(applicazione);
  } catch (...) {
    QMessageBox::critical(nullptr, QStringLiteral("lottolab"),
                          QStringLiteral("Il programma non può continuare per un %1").arg(TestoEccezione()));
    return 1;
  }
}
