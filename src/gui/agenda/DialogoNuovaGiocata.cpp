#include "gui/agenda/DialogoNuovaGiocata.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include <fmt/format.h>

#include "agenda/Importi.h"
#include "agenda/TestiGiocata.h"
#include "archive/Ruote.h"

namespace lottolab::gui {

namespace {

constexpr const char* kNomiGiochi[] = {"Lotto", "SuperEnalotto", "10eLotto serale", "Win for Life"};

// What the number beside the columns is called in each game; the Lotto has none.
QString NomeSpeciale(agenda::GiocoGiocata gioco) {
  switch (gioco) {
    case agenda::GiocoGiocata::SuperEnalotto: return QStringLiteral("SuperStar:");
    case agenda::GiocoGiocata::DieciELotto: return QStringLiteral("Numero Gong:");
    case agenda::GiocoGiocata::WinForLife: return QStringLiteral("Numerone:");
    case agenda::GiocoGiocata::Lotto: break;
  }
  return {};
}

}  // namespace

DialogoNuovaGiocata::DialogoNuovaGiocata(QWidget* parent)
    : QDialog(parent),
      m_gioco(new QComboBox),
      m_numeri(new QLineEdit),
      m_etichetta_speciale(new QLabel),
      m_speciale(new QSpinBox),
      m_ruote(new QWidget),
      m_poste(new QTableWidget(0, 2)),
      m_dal(new QDateEdit(QDate::currentDate())),
      m_colpi(new QSpinBox),
      m_progressione(new QLineEdit),
      m_ferma(new QCheckBox(QStringLiteral("Ferma la giocata alla prima vincita"))),
      m_nota(new QLineEdit),
      m_errore(new QLabel) {
  setWindowTitle(QStringLiteral("Nuova giocata"));
  setObjectName(QStringLiteral("dialogoNuovaGiocata"));
  for (const char* nome : kNomiGiochi) m_gioco->addItem(QString::fromUtf8(nome));
  m_gioco->setObjectName(QStringLiteral("gioco"));
  m_numeri->setObjectName(QStringLiteral("numeri"));
  m_numeri->setPlaceholderText(QStringLiteral("12 34 56, più colonne separate da /"));
  m_speciale->setObjectName(QStringLiteral("speciale"));
  m_speciale->setRange(0, 90);
  m_speciale->setSpecialValueText(QStringLiteral("nessuno"));

  auto* griglia_ruote = new QGridLayout(m_ruote);
  griglia_ruote->setContentsMargins(0, 0, 0, 0);
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    auto* casella = new QCheckBox(QString::fromLatin1(SiglaRuota(ruota).data(), 2));
    casella->setObjectName(QStringLiteral("ruota%1").arg(ruota));
    casella->setToolTip(QString::fromStdString(std::string(NomeRuota(ruota))));
    griglia_ruote->addWidget(casella, (ruota - 1) / 6, (ruota - 1) % 6);
    m_caselle_ruote.push_back(casella);
  }

  m_poste->setObjectName(QStringLiteral("poste"));
  m_poste->setHorizontalHeaderLabels({QStringLiteral("Sorte"), QStringLiteral("Posta (euro)")});
  m_poste->verticalHeader()->hide();
  m_poste->horizontalHeader()->setStretchLastSection(true);
  m_poste->setToolTip(QStringLiteral("La posta di ogni sorte giocata, per esempio 1 o 0,50; vuota se non giocata"));

  m_dal->setObjectName(QStringLiteral("dal"));
  m_dal->setCalendarPopup(true);
  m_dal->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
  m_colpi->setObjectName(QStringLiteral("colpi"));
  m_colpi->setRange(1, 999);
  m_progressione->setObjectName(QStringLiteral("progressione"));
  m_progressione->setPlaceholderText(QStringLiteral("es. 1,1,2,2 (un fattore per colpo); vuota: posta fissa"));
  m_ferma->setObjectName(QStringLiteral("ferma"));
  m_nota->setObjectName(QStringLiteral("nota"));
  m_errore->setObjectName(QStringLiteral("errore"));
  m_errore->setWordWrap(true);
  m_errore->setStyleSheet(QStringLiteral("color: #b00020;"));

  auto* campi = new QFormLayout;
  campi->addRow(QStringLiteral("Gioco:"), m_gioco);
  campi->addRow(QStringLiteral("Numeri:"), m_numeri);
  campi->addRow(m_etichetta_speciale, m_speciale);
  campi->addRow(QStringLiteral("Ruote:"), m_ruote);
  campi->addRow(QStringLiteral("Poste:"), m_poste);
  campi->addRow(QStringLiteral("Prima estrazione:"), m_dal);
  campi->addRow(QStringLiteral("Colpi:"), m_colpi);
  campi->addRow(QStringLiteral("Progressione:"), m_progressione);
  campi->addRow(QString(), m_ferma);
  campi->addRow(QStringLiteral("Nota:"), m_nota);

  auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  pulsanti->button(QDialogButtonBox::Ok)->setText(QStringLiteral("Aggiungi"));
  pulsanti->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annulla"));
  connect(pulsanti, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(pulsanti, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(campi);
  layout->addWidget(m_errore);
  layout->addWidget(pulsanti);
  connect(m_gioco, &QComboBox::currentIndexChanged, this, &DialogoNuovaGiocata::CambiaGioco);
  CambiaGioco();
}

agenda::GiocoGiocata DialogoNuovaGiocata::GiocoScelto() const {
  return static_cast<agenda::GiocoGiocata>(std::max(0, m_gioco->currentIndex()));
}

void DialogoNuovaGiocata::CambiaGioco() {
  const agenda::GiocoGiocata gioco = GiocoScelto();
  const bool lotto = gioco == agenda::GiocoGiocata::Lotto;
  m_ruote->setEnabled(lotto);
  m_speciale->setEnabled(!lotto);
  m_etichetta_speciale->setText(lotto ? QStringLiteral("Numero speciale:") : NomeSpeciale(gioco));
  const auto& sorti = agenda::SortiDelGioco(gioco);
  m_poste->setRowCount(static_cast<int>(sorti.size()));
  for (size_t i = 0; i < sorti.size(); ++i) {
    auto* sorte = new QTableWidgetItem(QString::fromLatin1(sorti[i].data(), static_cast<qsizetype>(sorti[i].size())));
    sorte->setFlags(Qt::ItemIsEnabled);
    m_poste->setItem(static_cast<int>(i), 0, sorte);
    m_poste->setItem(static_cast<int>(i), 1, new QTableWidgetItem);
  }
  // Every sorte in view without scrolling: the Lotto has eleven.
  m_poste->resizeRowsToContents();
  const int righe = static_cast<int>(sorti.size());
  m_poste->setFixedHeight(m_poste->horizontalHeader()->height() + righe * m_poste->rowHeight(0) + 4);
  m_errore->clear();
}

Esito<agenda::Giocata> DialogoNuovaGiocata::Giocata() const {
  agenda::Giocata giocata;
  giocata.gioco = GiocoScelto();
  auto colonne = agenda::LeggiColonne(m_numeri->text().toStdString());
  if (!colonne) return colonne.Errore();
  giocata.colonne = std::move(colonne).Valore();
  if (giocata.gioco == agenda::GiocoGiocata::Lotto) {
    for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota)
      if (m_caselle_ruote[static_cast<size_t>(ruota - 1)]->isChecked()) giocata.ruote.push_back(ruota);
  } else {
    giocata.numero_speciale = m_speciale->value();
  }
  for (int riga = 0; riga < m_poste->rowCount(); ++riga) {
    const QString testo = m_poste->item(riga, 1) ? m_poste->item(riga, 1)->text().trimmed() : QString();
    if (testo.isEmpty()) continue;
    const std::string sorte = m_poste->item(riga, 0)->text().toStdString();
    auto centesimi = agenda::LeggiImporto(testo.toStdString());
    if (!centesimi) return AvvisoEsclamativo(fmt::format("posta della sorte {}: {}", sorte, centesimi.Errore().testo));
    giocata.poste.push_back({sorte, *centesimi});
  }
  const QDate data = m_dal->date();
  giocata.dal = GruppoData{0, static_cast<int16_t>(data.day()), static_cast<int16_t>(data.month()),
                           static_cast<int16_t>(data.year())};
  giocata.colpi = m_colpi->value();
  if (!m_progressione->text().trimmed().isEmpty()) {
    auto fattori = agenda::LeggiColonne(m_progressione->text().toStdString());
    if (!fattori || fattori->size() != 1)
      return AvvisoEsclamativo("progressione non valida: i fattori interi dei colpi, separati da virgole");
    giocata.progressione = fattori->front();
  }
  giocata.ferma_alla_vincita = m_ferma->isChecked();
  giocata.nota = m_nota->text().trimmed().toStdString();
  if (auto valida = agenda::ControllaGiocata(giocata); !valida) return valida.Errore();
  return giocata;
}

void DialogoNuovaGiocata::accept() {
  auto giocata = Giocata();
  if (!giocata) {
    // The check's words begin in lower case, as they go after "lottolab:" on the command line.
    QString testo = QString::fromStdString(giocata.Errore().testo);
    if (!testo.isEmpty()) testo[0] = testo[0].toUpper();
    m_errore->setText(testo + QStringLiteral("."));
    return;
  }
  QDialog::accept();
}

}  // namespace lottolab::gui
