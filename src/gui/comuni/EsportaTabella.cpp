#include "gui/comuni/EsportaTabella.h"

#include <QAction>
#include <QBrush>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPageLayout>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QStandardPaths>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextDocument>

#include "archive/FileSicuri.h"
#include "esporta/ScritturaXlsx.h"

namespace lottolab::gui {

namespace {

std::optional<uint32_t> Colore(const QVariant& valore) {
  if (!valore.isValid()) return std::nullopt;
  const QColor colore = valore.canConvert<QBrush>() ? valore.value<QBrush>().color() : valore.value<QColor>();
  if (!colore.isValid()) return std::nullopt;
  return static_cast<uint32_t>(colore.rgb() & 0xFFFFFF);
}

QString Html(const QAbstractItemModel& modello, const QString& titolo) {
  QString html = QStringLiteral("<h3>%1</h3><table border=\"1\" cellspacing=\"0\" cellpadding=\"3\"><tr>")
                     .arg(titolo.toHtmlEscaped());
  for (int c = 0; c < modello.columnCount(); ++c)
    html += QStringLiteral("<th>%1</th>").arg(modello.headerData(c, Qt::Horizontal).toString().toHtmlEscaped());
  html += QStringLiteral("</tr>");
  for (int r = 0; r < modello.rowCount(); ++r) {
    html += QStringLiteral("<tr>");
    for (int c = 0; c < modello.columnCount(); ++c)
      html += QStringLiteral("<td>%1</td>").arg(modello.index(r, c).data().toString().toHtmlEscaped());
    html += QStringLiteral("</tr>");
  }
  return html + QStringLiteral("</table>");
}

void Stampa(const QAbstractItemModel& modello, const QString& titolo, QPrinter& stampante) {
  QTextDocument documento;
  documento.setHtml(Html(modello, titolo));
  documento.print(&stampante);
}

std::filesystem::path Percorso(const QString& nome) { return std::filesystem::path(nome.toStdString()); }

void Riferisci(QWidget* finestra, const Esito<Fatto>& esito) {
  if (!esito)
    QMessageBox::warning(finestra, QStringLiteral("Esportazione"), QString::fromStdString(esito.Errore().testo));
}

}  // namespace

esporta::RigheCsv RigheDelModello(const QAbstractItemModel& modello) {
  esporta::RigheCsv righe(1);
  for (int c = 0; c < modello.columnCount(); ++c)
    righe[0].push_back(modello.headerData(c, Qt::Horizontal).toString().toStdString());
  for (int r = 0; r < modello.rowCount(); ++r) {
    auto& riga = righe.emplace_back();
    for (int c = 0; c < modello.columnCount(); ++c) riga.push_back(modello.index(r, c).data().toString().toStdString());
  }
  return righe;
}

esporta::CartellaLavoro CartellaDelModello(const QAbstractItemModel& modello, const QString& titolo) {
  esporta::CartellaLavoro cartella;
  QString nome = titolo.left(31);
  for (QChar proibito : QStringLiteral("[]:*?/\\")) nome.replace(proibito, QLatin1Char('-'));
  if (esporta::NomeFoglioNonValido(nome.toStdString())) nome.clear();
  esporta::Foglio& foglio = cartella.fogli[*cartella.AggiungiFoglio(nome.toStdString())];
  foglio.adatta_colonne = true;
  const uint32_t grassetto = cartella.IndiceFormato({.grassetto = true});
  for (int c = 0; c < modello.columnCount(); ++c)
    foglio.celle[{1, c + 1}] = {modello.headerData(c, Qt::Horizontal).toString().toStdString(), grassetto};
  for (int r = 0; r < modello.rowCount() && r + 2 <= esporta::kMassimoRighe; ++r) {
    for (int c = 0; c < modello.columnCount() && c < esporta::kMassimoColonne; ++c) {
      const QModelIndex indice = modello.index(r, c);
      const QVariant dato = indice.data();
      esporta::Cella cella;
      // A number the model holds as a number stays a number the spreadsheet can sum.
      const auto tipo = dato.typeId();
      if (tipo == QMetaType::Int || tipo == QMetaType::Double || tipo == QMetaType::LongLong || tipo == QMetaType::UInt)
        cella.valore = dato.toDouble();
      else if (const QString testo = dato.toString(); !testo.isEmpty())
        cella.valore = testo.left(static_cast<qsizetype>(esporta::kMassimoCaratteriCella)).toStdString();
      cella.formato = cartella.IndiceFormato({.colore_testo = Colore(indice.data(Qt::ForegroundRole)),
                                              .colore_sfondo = Colore(indice.data(Qt::BackgroundRole))});
      if (cella.valore.index() != 0 || cella.formato != 0) foglio.celle[{r + 2, c + 1}] = std::move(cella);
    }
  }
  return cartella;
}

Esito<Fatto> ScriviPdf(const QAbstractItemModel& modello, const QString& titolo, const std::filesystem::path& file) {
  QTemporaryDir cartella;
  if (!cartella.isValid()) return AvvisoEsclamativo("Impossibile creare una cartella temporanea per il PDF");
  const QString provvisorio = cartella.filePath(QStringLiteral("tabella.pdf"));
  {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(provvisorio);
    stampante.setPageOrientation(QPageLayout::Landscape);
    Stampa(modello, titolo, stampante);
  }
  auto byte = LeggiFileOrdinario(Percorso(provvisorio), uintmax_t(1) << 30);
  if (!byte) return AvvisoEsclamativo("Impossibile creare il PDF: " + byte.Errore().motivo);
  return SostituisciFile(file, *byte);
}

QString PropostaEsportazione(const QString& nome) {
  QString cartella = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  if (cartella.isEmpty() || !QDir(cartella).exists()) cartella = QDir::homePath();
  return QDir(cartella).filePath(nome);
}

void AggiungiEsportazione(QTableView* vista, const QString& titolo) {
  vista->setContextMenuPolicy(Qt::ActionsContextMenu);
  auto aggiungi = [vista](const QString& testo, auto&& fai) {
    auto* azione = new QAction(testo, vista);
    QObject::connect(azione, &QAction::triggered, vista, fai);
    vista->addAction(azione);
    return azione;
  };
  auto scegli = [vista, titolo](const QString& filtro, const QString& estensione) {
    return QFileDialog::getSaveFileName(vista, QStringLiteral("Esporta"), PropostaEsportazione(titolo + estensione),
                                        filtro);
  };
  aggiungi(QStringLiteral("Esporta in CSV..."), [vista, scegli] {
    const QString file = scegli(QStringLiteral("Testo CSV (*.csv)"), QStringLiteral(".csv"));
    if (!file.isEmpty()) Riferisci(vista, esporta::ScriviCsv(RigheDelModello(*vista->model()), Percorso(file)));
  });
  auto* xlsx = aggiungi(QStringLiteral("Esporta in foglio di calcolo (.xlsx)..."), [vista, scegli, titolo] {
    const QString file = scegli(QStringLiteral("Cartella di lavoro (*.xlsx)"), QStringLiteral(".xlsx"));
    if (!file.isEmpty())
      Riferisci(vista, esporta::ScriviXlsx(CartellaDelModello(*vista->model(), titolo), Percorso(file)));
  });
  xlsx->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E));
  xlsx->setShortcutContext(Qt::WidgetShortcut);
  aggiungi(QStringLiteral("Esporta in PDF..."), [vista, scegli, titolo] {
    const QString file = scegli(QStringLiteral("Documento PDF (*.pdf)"), QStringLiteral(".pdf"));
    if (!file.isEmpty()) Riferisci(vista, ScriviPdf(*vista->model(), titolo, Percorso(file)));
  });
  auto* stampa = aggiungi(QStringLiteral("Stampa..."), [vista, titolo] {
    QPrinter stampante(QPrinter::HighResolution);
    QPrintPreviewDialog anteprima(&stampante, vista);
    anteprima.setWindowTitle(QStringLiteral("Anteprima di stampa: ") + titolo);
    QObject::connect(&anteprima, &QPrintPreviewDialog::paintRequested, vista,
                     [vista, titolo](QPrinter* p) { Stampa(*vista->model(), titolo, *p); });
    anteprima.exec();
  });
  stampa->setShortcut(QKeySequence::Print);
  stampa->setShortcutContext(Qt::WidgetShortcut);
}

}  // namespace lottolab::gui
