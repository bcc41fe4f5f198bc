#include "gui/principale/DialogoImpostazioni.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

#include <fmt/format.h>

#include "app/Percorsi.h"
#include "archive/ClsEstrazioni.h"
#include "gui/principale/Impostazioni.h"

namespace lottolab::gui {

namespace {

QWidget* ConPulsante(QLineEdit* campo, QPushButton* pulsante) {
  auto* riga = new QWidget;
  auto* layout = new QHBoxLayout(riga);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(campo, 1);
  layout->addWidget(pulsante);
  return riga;
}

}  // namespace

DialogoImpostazioni::DialogoImpostazioni(ContestoGui& contesto, QWidget* parent)
    : QDialog(parent),
      m_contesto(contesto),
      m_archivio(new QLineEdit),
      m_cartella_script(new QLineEdit),
      m_pulsante_colore(new QPushButton),
      m_mantieni_pagina(new QCheckBox(QStringLiteral("Mantieni la pagina HTML precedente all'avvio di uno script"))),
      m_interlocutore(std::make_unique<InterlocutoreGui>(this)) {
  setWindowTitle(QStringLiteral("Impostazioni"));
  const ImpostazioniGenerali impostazioni = LeggiImpostazioni(contesto.Configurazione().ini);

  m_archivio->setObjectName(QStringLiteral("archivio"));
  m_archivio->setText(QString::fromStdString(impostazioni.archivio));
  m_archivio->setToolTip(QStringLiteral("Un percorso relativo parte dalla cartella %1")
                             .arg(QString::fromStdString(contesto.Configurazione().base.string())));
  m_archivio->setMinimumWidth(360);
  m_cartella_script->setObjectName(QStringLiteral("cartellaScript"));
  m_cartella_script->setText(QString::fromStdString(impostazioni.cartella_script));
  m_pulsante_colore->setObjectName(QStringLiteral("coloreSfondoHtml"));
  m_colore_sfondo = QColor(QString::fromStdString(impostazioni.colore_sfondo_html));
  if (!m_colore_sfondo.isValid()) m_colore_sfondo = Qt::white;
  MostraColore();
  m_mantieni_pagina->setObjectName(QStringLiteral("mantieniPaginaHtml"));
  m_mantieni_pagina->setChecked(impostazioni.mantieni_pagina_html);

  auto* sfoglia_archivio = new QPushButton(QStringLiteral("Sfoglia..."));
  auto* sfoglia_cartella = new QPushButton(QStringLiteral("Sfoglia..."));
  auto* modulo = new QFormLayout;
  modulo->addRow(QStringLiteral("Archivio delle estrazioni:"), ConPulsante(m_archivio, sfoglia_archivio));
  modulo->addRow(QStringLiteral("Cartella degli script:"), ConPulsante(m_cartella_script, sfoglia_cartella));
  auto* riga_colore = new QHBoxLayout;
  riga_colore->addWidget(m_pulsante_colore);
  riga_colore->addStretch(1);
  modulo->addRow(QStringLiteral("Sfondo delle pagine HTML:"), riga_colore);
  modulo->addRow(QString(), m_mantieni_pagina);

  auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
  pulsanti->button(QDialogButtonBox::Save)->setText(QStringLiteral("Salva"));
  pulsanti->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annulla"));

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(modulo);
  layout->addStretch(1);
  layout->addWidget(pulsanti);

  connect(sfoglia_archivio, &QPushButton::clicked, this, &DialogoImpostazioni::ScegliArchivio);
  connect(sfoglia_cartella, &QPushButton::clicked, this, &DialogoImpostazioni::ScegliCartellaScript);
  connect(m_pulsante_colore, &QPushButton::clicked, this, &DialogoImpostazioni::ScegliColore);
  connect(pulsanti, &QDialogButtonBox::accepted, this, &DialogoImpostazioni::accept);
  connect(pulsanti, &QDialogButtonBox::rejected, this, &DialogoImpostazioni::reject);
}

void DialogoImpostazioni::accept() {
  ImpostazioniGenerali impostazioni;
  impostazioni.archivio = m_archivio->text().trimmed().toStdString();
  impostazioni.cartella_script = m_cartella_script->text().trimmed().toStdString();
  impostazioni.colore_sfondo_html = m_colore_sfondo.name().toUpper().toStdString();
  impostazioni.mantieni_pagina_html = m_mantieni_pagina->isChecked();

  app::FileIni ini = m_contesto.Configurazione().ini;
  ScriviImpostazioni(ini, impostazioni);
  if (!ArchivioAccettabile(app::Configurazione{m_contesto.Configurazione().base, ini})) return;
  if (auto salvato = SalvaConfigurazione(m_contesto, std::move(ini)); !salvato) {
    m_interlocutore->Mostra(salvato.Errore());
    return;
  }
  // A missing archive the user accepted loads as empty, which the status bar says: no message.
  std::error_code ec;
  const bool esiste = std::filesystem::exists(m_contesto.Configurazione().ArchivioLotto(), ec);
  if (auto ricaricato = m_contesto.RicaricaArchivio(); !ricaricato && esiste) {
    Avviso avviso = ricaricato.Errore();
    avviso.testo = "Impostazioni salvate, ma l'archivio non si può caricare.\n\n" + avviso.testo;
    m_interlocutore->Mostra(avviso);
  }
  m_contesto.RicaricaArchiviGiochi();
  QDialog::accept();
}

bool DialogoImpostazioni::ArchivioAccettabile(const app::Configurazione& configurazione) {
  const std::filesystem::path nuovo = configurazione.ArchivioLotto();
  if (nuovo == m_contesto.Configurazione().ArchivioLotto()) return true;
  std::error_code ec;
  if (!std::filesystem::exists(nuovo, ec) && !ec) {
    return m_interlocutore->Chiedi(
        "Impostazioni",
        fmt::format("L'archivio {} non esiste.\n\nUsarlo comunque? Resterà vuoto finché non lo riempi con Archivio > "
                    "Aggiorna archivio.",
                    nuovo.string()));
  }
  auto caricato = ClsEstrazioni(nuovo).CaricaEstrazioni();
  if (caricato) return true;
  Avviso avviso = caricato.Errore();
  avviso.testo = "L'archivio scelto non si può usare.\n\n" + avviso.testo;
  m_interlocutore->Mostra(avviso);
  return false;
}

void DialogoImpostazioni::ScegliArchivio() {
  const auto attuale = app::RisolviPercorso(m_contesto.Configurazione().base, m_archivio->text().toStdString());
  const QString file = QFileDialog::getOpenFileName(this, QStringLiteral("Archivio delle estrazioni"),
                                                    QString::fromStdString(attuale.string()),
                                                    QStringLiteral("Archivio (*.dat);;Tutti (*)"));
  if (!file.isEmpty()) m_archivio->setText(file);
}

void DialogoImpostazioni::ScegliCartellaScript() {
  const auto attuale = app::RisolviPercorso(m_contesto.Configurazione().base, m_cartella_script->text().toStdString());
  const QString cartella = QFileDialog::getExistingDirectory(this, QStringLiteral("Cartella degli script"),
                                                             QString::fromStdString(attuale.string()));
  if (!cartella.isEmpty()) m_cartella_script->setText(cartella);
}

void DialogoImpostazioni::ScegliColore() {
  const QColor colore = QColorDialog::getColor(m_colore_sfondo, this, QStringLiteral("Sfondo delle pagine HTML"));
  if (!colore.isValid()) return;
  m_colore_sfondo = colore;
  MostraColore();
}

void DialogoImpostazioni::MostraColore() {
  // A swatch with a dark border shows any colour, white included, against any button style.
  QPixmap campione(28, 16);
  campione.fill(m_colore_sfondo);
  QPainter pittore(&campione);
  pittore.setPen(Qt::darkGray);
  pittore.drawRect(campione.rect().adjusted(0, 0, -1, -1));
  m_pulsante_colore->setIcon(QIcon(campione));
  m_pulsante_colore->setIconSize(campione.size());
  m_pulsante_colore->setText(m_colore_sfondo.name().toUpper());
}

}  // namespace lottolab::gui
