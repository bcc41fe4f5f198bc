#include "gui/grafici/FinestraGrafico.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include "gui/comuni/CopiaRighe.h"
#include "gui/comuni/EsportaTabella.h"
#include "gui/comuni/IconaApplicazione.h"
#include "gui/grafici/EsportaImmagine.h"
#include "gui/grafici/GraficoInterattivo.h"
#include "gui/grafici/SceltePeriodo.h"

namespace lottolab::gui {

namespace {

std::filesystem::path Percorso(const QString& file) { return std::filesystem::path(file.toStdString()); }

void Riferisci(QWidget* finestra, const Esito<Fatto>& esito) {
  if (!esito)
    QMessageBox::warning(finestra, QStringLiteral("Salvataggio dell'immagine"),
                         QString::fromStdString(esito.Errore().testo));
}

}  // namespace

FinestraGrafico::FinestraGrafico(QWidget* parent) : QWidget(parent) { setWindowIcon(IconaApplicazione()); }

void FinestraGrafico::Componi(QWidget* scelte, QWidget* immagine, QAbstractItemModel* modello,
                              GraficoInterattivo* grafico, const QString& aiuto) {
  m_immagine = immagine;
  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(scelte);

  auto* schede = new QTabWidget;
  schede->setObjectName(QStringLiteral("schedeGrafico"));
  schede->addTab(immagine, QStringLiteral("Grafico"));
  m_tabella = new QTableView;
  m_tabella->setObjectName(QStringLiteral("tabellaDati"));
  m_tabella->setModel(modello);
  m_tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_tabella->verticalHeader()->hide();
  m_tabella->verticalHeader()->setDefaultSectionSize(m_tabella->fontMetrics().height() + 6);
  AggiungiEsportazione(m_tabella, windowTitle());
  AggiungiCopiaRighe(m_tabella);
  schede->addTab(m_tabella, QStringLiteral("Dati (tasto destro: esporta)"));
  colonna->addWidget(schede, 1);

  auto* sotto = new QHBoxLayout;
  m_aiuto = new QLabel(aiuto);
  m_aiuto->setWordWrap(true);
  sotto->addWidget(m_aiuto, 1);
  m_avviso = new QLabel;
  m_avviso->setObjectName(QStringLiteral("avvisoGrafico"));
  m_avviso->setStyleSheet(QStringLiteral("color: #b00000; font-weight: bold"));
  m_avviso->setWordWrap(true);
  m_avviso->hide();
  sotto->addWidget(m_avviso, 1);
  if (grafico) {
    auto* ripristina = new QPushButton(QStringLiteral("Ripristina zoom"));
    ripristina->setObjectName(QStringLiteral("ripristinaZoom"));
    connect(ripristina, &QPushButton::clicked, grafico, &GraficoInterattivo::Ripristina);
    sotto->addWidget(ripristina);
  }
  auto* png = new QPushButton(QStringLiteral("Salva PNG..."));
  connect(png, &QPushButton::clicked, this, &FinestraGrafico::SalvaPng);
  sotto->addWidget(png);
  auto* pdf = new QPushButton(QStringLiteral("Salva PDF..."));
  connect(pdf, &QPushButton::clicked, this, &FinestraGrafico::SalvaPdf);
  sotto->addWidget(pdf);
  colonna->addLayout(sotto);
}

void FinestraGrafico::MostraAvviso(const QString& avviso) {
  m_avviso->setText(avviso);
  m_avviso->setVisible(!avviso.isEmpty());
  m_aiuto->setVisible(avviso.isEmpty());
}

std::optional<std::pair<int, int>> FinestraGrafico::IntervalloScelto(const SceltePeriodo& periodo,
                                                                     const TabellaEstrazioni& archivio) {
  const std::pair<int, int> intervallo = periodo.Intervallo(archivio);
  if (intervallo.first > intervallo.second) {
    MostraAvviso(archivio.EstrazioniArchivio() == 0 ? QStringLiteral("L'archivio è vuoto")
                                                    : QStringLiteral("Nessuna estrazione nel periodo scelto"));
    return std::nullopt;
  }
  MostraAvviso({});
  return intervallo;
}

void FinestraGrafico::SalvaPng() {
  const QString file = QFileDialog::getSaveFileName(this, QStringLiteral("Salva l'immagine"),
                                                    PropostaEsportazione(windowTitle() + ".png"),
                                                    QStringLiteral("Immagine PNG (*.png)"));
  if (!file.isEmpty()) Riferisci(this, ScriviPng(ImmagineDi(*m_immagine), Percorso(file)));
}

void FinestraGrafico::SalvaPdf() {
  const QString file =
      QFileDialog::getSaveFileName(this, QStringLiteral("Salva in PDF"), PropostaEsportazione(windowTitle() + ".pdf"),
                                   QStringLiteral("Documento PDF (*.pdf)"));
  if (!file.isEmpty()) Riferisci(this, ScriviPdfImmagine(ImmagineDi(*m_immagine), windowTitle(), Percorso(file)));
}

void ApriAccanto(QWidget* vicino, QWidget* finestra) {
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  finestra->setWindowIcon(IconaApplicazione());
  for (QWidget* w = vicino; w; w = w->parentWidget()) {
    if (auto* area = qobject_cast<QMdiArea*>(w)) {
      QMdiSubWindow* sotto = area->addSubWindow(finestra);
      sotto->setAttribute(Qt::WA_DeleteOnClose);
      sotto->setWindowIcon(IconaApplicazione());
      sotto->resize(finestra->sizeHint().boundedTo(area->size()));
      sotto->show();
      return;
    }
  }
  finestra->setParent(vicino, Qt::Window);
  finestra->show();
}

}  // namespace lottolab::gui
