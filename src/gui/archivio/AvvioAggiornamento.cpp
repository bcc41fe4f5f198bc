#include "gui/archivio/AvvioAggiornamento.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QThread>

#include <functional>
#include <memory>
#include <optional>

#include "archive/Estrazione.h"
#include "gui/archivio/AggiornamentoArchivio.h"
#include "gui/comuni/LavoroSenzaEccezioni.h"
#include "gui/principale/SegnalatoreGui.h"

namespace lottolab::gui {

namespace {

const QString kTitolo = QStringLiteral("Aggiorna archivio");

struct Lavoro {
  QString descrizione;
  std::function<Esito<int>()> esegui;
};

// The source the user chooses; nothing when the user cancels.
std::optional<Lavoro> ScegliLavoro(const AggiornamentoArchivio& aggiornamento,
                                   const app::Configurazione& configurazione, QWidget* finestra) {
  QMessageBox domanda(QMessageBox::Question, kTitolo,
                      QStringLiteral("Da dove prendere le nuove estrazioni?\n\n"
                                     "Scarica: i risultati pubblicati dall'operatore (serve Internet).\n"
                                     "Da file: un file dei risultati già scaricato, di testo o zip."),
                      QMessageBox::NoButton, finestra);
  QPushButton* scarica = domanda.addButton(QStringLiteral("Scarica"), QMessageBox::AcceptRole);
  QPushButton* da_file = domanda.addButton(QStringLiteral("Da file..."), QMessageBox::AcceptRole);
  domanda.addButton(QStringLiteral("Annulla"), QMessageBox::RejectRole);
  domanda.setDefaultButton(scarica);
  domanda.exec();

  if (domanda.clickedButton() == scarica)
    return Lavoro{QStringLiteral("Scaricamento e importazione dei risultati..."),
                  [aggiornamento] { return aggiornamento.Scarica(); }};
  if (domanda.clickedButton() != da_file) return std::nullopt;

  const QString file = QFileDialog::getOpenFileName(finestra, QStringLiteral("File dei risultati"),
                                                    QString::fromStdString(configurazione.base.string()),
                                                    QStringLiteral("Risultati (*.txt *.zip);;Tutti (*)"));
  if (file.isEmpty()) return std::nullopt;
  const std::filesystem::path percorso = file.toStdString();
  return Lavoro{QStringLiteral("Importazione dei risultati..."),
                [aggiornamento, percorso] { return aggiornamento.ImportaDaFile(percorso); }};
}

QString TestoAggiunte(int aggiunte) {
  if (aggiunte == 0) return QStringLiteral("L'archivio è già aggiornato: nessuna nuova estrazione.");
  if (aggiunte == 1) return QStringLiteral("Aggiunta 1 estrazione all'archivio.");
  return QStringLiteral("Aggiunte %1 estrazioni all'archivio.").arg(aggiunte);
}

void MostraEsito(ContestoGui& contesto, QWidget* finestra, const Esito<int>& esito) {
  SegnalatoreGui segnalatore(finestra);
  if (!esito) {
    Avviso avviso = esito.Errore();
    if (avviso.titolo.empty()) avviso.titolo = kTitolo.toStdString();
    segnalatore.Mostra(avviso);
    // An archive refused for a partial record at its end is reloaded: the main window then offers
    // its repair, as it does when it opens one.
    std::error_code ec;
    const uintmax_t lunghezza = std::filesystem::file_size(contesto.Configurazione().ArchivioLotto(), ec);
    if (!ec && lunghezza % kByteRecordArchivio != 0) (void)contesto.RicaricaArchivio();
    return;
  }
  // The file grew even if the reload fails, so both outcomes are told.
  if (*esito > 0)
    if (auto ricaricato = contesto.RicaricaArchivio(); !ricaricato) segnalatore.Mostra(ricaricato.Errore());
  QMessageBox::information(finestra, kTitolo, TestoAggiunte(*esito));
}

}  // namespace

void AvviaAggiornamentoArchivio(ContestoGui& contesto, QWidget* finestra) {
  const AggiornamentoArchivio aggiornamento(contesto.Configurazione());
  std::optional<Lavoro> lavoro = ScegliLavoro(aggiornamento, contesto.Configurazione(), finestra);
  if (!lavoro) return;

  // No cancel button: neither the download nor the import can be stopped half-way safely.
  auto* progresso = new QProgressDialog(lavoro->descrizione, QString(), 0, 0, finestra);
  progresso->setWindowTitle(kTitolo);
  progresso->setWindowModality(Qt::ApplicationModal);
  progresso->setMinimumDuration(0);
  progresso->show();

  auto esito = std::make_shared<std::optional<Esito<int>>>();
  QThread* thread = QThread::create(
      [esito, esegui = lavoro->esegui] { *esito = SenzaEccezioni<int>("AggiornamentoArchivio.Avvia", esegui); });
  QObject::connect(thread, &QThread::finished, progresso, [&contesto, finestra, progresso, thread, esito] {
    thread->deleteLater();
    progresso->deleteLater();
    progresso->close();
    MostraEsito(contesto, finestra, **esito);
  });
  thread->start();
}

}  // namespace lottolab::gui
