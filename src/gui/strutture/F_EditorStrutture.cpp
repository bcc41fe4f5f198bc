#include "gui/strutture/F_EditorStrutture.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QGraphicsView>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QSpinBox>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "figures/FileStrutture.h"
#include "gui/strutture/F_InsCondizione.h"
#include "gui/strutture/F_StatStrutture.h"
#include "gui/strutture/GrigliaScena.h"

namespace lottolab::gui {

namespace {

constexpr const char* kTitolo = "Struttura";

std::filesystem::path Percorso(const QString& file) { return std::filesystem::path(file.toStdU16String()); }

QString Testo(const std::string& utf8) { return QString::fromStdString(utf8); }

void RiempiVersi(QComboBox* verso) {
  verso->addItem("come disegnata", kVersoDisegnato);
  verso->addItem("rovesciata", kVersoRovesciato);
  verso->addItem("entrambi i versi", kVersoEntrambi);
}

// Folders, and the files that begin as a structure file does: the archives, which share the
// extension, are never offered. Only ordinary files are opened, so a pipe in the folder cannot block.
class SoloStrutture : public QSortFilterProxyModel {
 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

 protected:
  bool filterAcceptsRow(int riga, const QModelIndex& genitore) const override {
    const auto* file_system = qobject_cast<const QFileSystemModel*>(sourceModel());
    if (!file_system) return true;
    const QModelIndex indice = file_system->index(riga, 0, genitore);
    if (file_system->isDir(indice)) return true;
    const QString percorso = file_system->filePath(indice);
    std::error_code ec;
    if (!std::filesystem::is_regular_file(Percorso(percorso), ec)) return false;
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) && file.read(13) == "OFFSET_STRUCT";
  }
};

void Avverti(QWidget* finestra, const std::string& testo) { QMessageBox::warning(finestra, kTitolo, Testo(testo)); }

// 0 in a file means the shape as drawn, as 1 does.
void MostraVerso(QComboBox* verso, int16_t valore) {
  const QSignalBlocker blocco(verso);
  verso->setCurrentIndex(std::max(0, verso->findData(valore)));
}

}  // namespace

F_EditorStrutture::F_EditorStrutture(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent),
      m_contesto(contesto),
      m_scena(new GrigliaScena(this)),
      m_vista(new QGraphicsView(m_scena)),
      m_estrazione(new QSpinBox),
      m_data(new QLabel),
      m_unisci(new QAction("Unisci", this)),
      m_elimina(new QAction("Elimina vertice", this)),
      m_vertice(new QGroupBox("Vertice")),
      m_caption(new QLineEdit),
      m_fulcro_orizz(new QCheckBox("Fulcro orizzontale")),
      m_fulcro_vert(new QCheckBox("Fulcro verticale")),
      m_verso_vert(new QComboBox),
      m_verso_orizz(new QComboBox),
      m_chiusura(new QCheckBox("Usa per la chiusura")),
      m_condizioni(new QListWidget) {
  auto* barra = new QToolBar;
  barra->addAction("Nuova", this, &F_EditorStrutture::Nuova);
  barra->addAction("Apri...", this, &F_EditorStrutture::ScegliEApri);
  barra->addAction("Salva", this, &F_EditorStrutture::Salva);
  barra->addAction("Salva con nome...", this, &F_EditorStrutture::SalvaConNome);
  barra->addSeparator();
  m_unisci->setToolTip("Unisce con una linea i due vertici selezionati (Ctrl+clic per selezionarne due)");
  m_elimina->setShortcut(QKeySequence::Delete);
  m_elimina->setShortcutContext(Qt::WidgetShortcut);
  barra->addAction(m_unisci);
  barra->addAction(m_elimina);
  m_vista->addAction(m_elimina);
  barra->addSeparator();
  barra->addWidget(new QLabel("Fino all'estrazione "));
  barra->addWidget(m_estrazione);
  barra->addWidget(m_data);
  barra->addSeparator();
  barra->addAction("Cerca nell'archivio...", this, &F_EditorStrutture::CercaNellArchivio);

  m_vista->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  m_vista->setDragMode(QGraphicsView::NoDrag);
  // The grid is wide and short: it takes the window's width and only the height of its rows, and the
  // panels share what is left below it.
  auto* pannelli = new QWidget;
  auto* riga = new QHBoxLayout(pannelli);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(CreaPannelloVertice());
  riga->addWidget(CreaPannelloCondizioni(), 1);
  auto* divisore = new QSplitter(Qt::Vertical);
  divisore->addWidget(m_vista);
  divisore->addWidget(pannelli);
  divisore->setStretchFactor(1, 1);
  divisore->setCollapsible(0, false);

  auto* aiuto = new QLabel(
      "Clic su una cella: nuovo vertice. Clic su un vertice: lo seleziona; Ctrl+clic: "
      "ne aggiunge un altro alla selezione. Anello rosso: fulcro; arancio: vertice usato per "
      "la chiusura.");
  aiuto->setStyleSheet("color: gray");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(barra);
  layout->addWidget(divisore, 1);
  layout->addWidget(aiuto);

  connect(m_scena, &GrigliaScena::CellaCliccata, this, &F_EditorStrutture::PiazzaVertice);
  connect(m_scena, &QGraphicsScene::selectionChanged, this, &F_EditorStrutture::AggiornaPannello);
  connect(m_unisci, &QAction::triggered, this, &F_EditorStrutture::UnisciSelezionati);
  connect(m_elimina, &QAction::triggered, this, &F_EditorStrutture::EliminaSelezionati);
  connect(m_estrazione, &QSpinBox::valueChanged, this, [this](int id) {
    m_modello.MostraFinoA(id);
    Aggiorna();
  });
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &F_EditorStrutture::AggiornaArchivio);

  m_modello.Nuova(Estrazioni());
  AggiornaArchivio();
}

// The scene, a child, clears its selection while it is destroyed: by then the panel it would refresh
// is gone.
F_EditorStrutture::~F_EditorStrutture() { disconnect(m_scena, nullptr, this, nullptr); }

QWidget* F_EditorStrutture::CreaPannelloVertice() {
  m_caption->setMaxLength(static_cast<int>(figures::kCaratteriCaption));
  m_caption->setObjectName("etichetta");
  RiempiVersi(m_verso_vert);
  RiempiVersi(m_verso_orizz);
  auto* elimina = new QPushButton("Elimina vertice");
  // Two columns keep the panel short, so that the grid above it keeps its height.
  auto* campi = new QGridLayout(m_vertice);
  campi->addWidget(new QLabel("Etichetta"), 0, 0);
  campi->addWidget(m_caption, 0, 1);
  campi->addWidget(elimina, 0, 2, 1, 2);
  campi->addWidget(new QLabel("Verso verticale"), 1, 0);
  campi->addWidget(m_verso_vert, 1, 1);
  campi->addWidget(new QLabel("Verso orizzontale"), 1, 2);
  campi->addWidget(m_verso_orizz, 1, 3);
  campi->addWidget(m_fulcro_vert, 2, 0, 1, 2);
  campi->addWidget(m_fulcro_orizz, 2, 2, 1, 2);
  campi->addWidget(m_chiusura, 3, 0, 1, 2);
  campi->setRowStretch(4, 1);

  // A refused caption is shown back as it was before the last key.
  connect(m_caption, &QLineEdit::textEdited, this, [this](const QString& testo) {
    auto impostata = m_modello.ImpostaCaption(VerticeScelto(), testo.toStdString());
    Aggiorna();
    if (!impostata) Avverti(this, impostata.Errore().testo);
  });
  connect(m_fulcro_orizz, &QCheckBox::toggled, this, [this](bool fulcro) {
    m_modello.ImpostaFulcroOrizz(VerticeScelto(), fulcro);
    Aggiorna();
  });
  connect(m_fulcro_vert, &QCheckBox::toggled, this, [this](bool fulcro) {
    m_modello.ImpostaFulcroVert(VerticeScelto(), fulcro);
    Aggiorna();
  });
  connect(m_verso_vert, &QComboBox::currentIndexChanged, this, [this] {
    m_modello.ImpostaVersoVert(VerticeScelto(), static_cast<int16_t>(m_verso_vert->currentData().toInt()));
    Aggiorna();
  });
  connect(m_verso_orizz, &QComboBox::currentIndexChanged, this, [this] {
    m_modello.ImpostaVersoOrizz(VerticeScelto(), static_cast<int16_t>(m_verso_orizz->currentData().toInt()));
    Aggiorna();
  });
  connect(m_chiusura, &QCheckBox::toggled, this, [this](bool chiusura) {
    m_modello.ImpostaChiusura(VerticeScelto(), chiusura);
    Aggiorna();
  });
  connect(elimina, &QPushButton::clicked, this, &F_EditorStrutture::EliminaSelezionati);
  return m_vertice;
}

QWidget* F_EditorStrutture::CreaPannelloCondizioni() {
  auto* aggiungi = new QPushButton("Aggiungi...");
  auto* modifica = new QPushButton("Modifica...");
  auto* rimuovi = new QPushButton("Rimuovi");
  auto* pulsanti = new QHBoxLayout;
  pulsanti->addWidget(aggiungi);
  pulsanti->addWidget(modifica);
  pulsanti->addWidget(rimuovi);
  auto* gruppo = new QGroupBox("Condizioni");
  auto* layout = new QVBoxLayout(gruppo);
  layout->addWidget(m_condizioni, 1);
  layout->addLayout(pulsanti);

  connect(aggiungi, &QPushButton::clicked, this, [this] {
    if (auto motivo = m_modello.CondizioneNonAmmessa()) return Avverti(this, *motivo);
    F_InsCondizione dialogo(m_modello.Vertici(), {}, this);
    if (dialogo.exec() != QDialog::Accepted) return;
    auto aggiunta = m_modello.AggiungiCondizione(dialogo.Testo().toStdString());
    if (!aggiunta) return Avverti(this, aggiunta.Errore().testo);
    Aggiorna();
    m_condizioni->setCurrentRow(m_condizioni->count() - 1);
  });
  connect(modifica, &QPushButton::clicked, this, &F_EditorStrutture::ModificaCondizione);
  connect(m_condizioni, &QListWidget::itemDoubleClicked, this, &F_EditorStrutture::ModificaCondizione);
  connect(rimuovi, &QPushButton::clicked, this, [this] {
    if (m_condizioni->currentRow() < 0) return;
    m_modello.RimuoviCondizione(static_cast<size_t>(m_condizioni->currentRow()));
    Aggiorna();
  });
  return gruppo;
}

int F_EditorStrutture::Estrazioni() const { return m_contesto.Archivio()->EstrazioniArchivio(); }

void F_EditorStrutture::Apri(const QString& file) {
  auto aperta = m_modello.Apri(Percorso(file), Estrazioni());
  Aggiorna();
  if (!aperta) Avverti(this, aperta.Errore().testo);
}

void F_EditorStrutture::closeEvent(QCloseEvent* evento) {
  if (ProseguoSeModificata())
    evento->accept();
  else
    evento->ignore();
}

bool F_EditorStrutture::ProseguoSeModificata() {
  return !m_modello.Modificata() ||
         QMessageBox::question(this, kTitolo, "Modifiche non salvate. Proseguo ? ") == QMessageBox::Yes;
}

// The structures' folder, made when missing; a structure already in a file stays beside it.
QString F_EditorStrutture::ScegliFile(bool salvataggio) {
  std::filesystem::path cartella = m_modello.File().parent_path();
  if (m_modello.File().empty()) {
    cartella = CartellaStrutture(m_contesto.Configurazione());
    std::error_code ec;
    std::filesystem::create_directories(cartella, ec);
    if (ec) cartella = m_contesto.Configurazione().base;
  }
  QFileDialog dialogo(this, salvataggio ? "Salva la struttura" : "Apri una struttura",
                      QString::fromStdU16String(cartella.u16string()));
  dialogo.setOption(QFileDialog::DontUseNativeDialog);
  dialogo.setProxyModel(new SoloStrutture(&dialogo));
  dialogo.setNameFilter("Struttura utente (*.dat)");
  dialogo.setDefaultSuffix("dat");
  dialogo.setAcceptMode(salvataggio ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialogo.setOption(QFileDialog::DontConfirmOverwrite);
  dialogo.setFileMode(salvataggio ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return {};
  return dialogo.selectedFiles().front();
}

void F_EditorStrutture::Nuova() {
  if (!ProseguoSeModificata()) return;
  m_modello.Nuova(Estrazioni());
  Aggiorna();
}

void F_EditorStrutture::ScegliEApri() {
  if (!ProseguoSeModificata()) return;
  const QString file = ScegliFile(false);
  if (!file.isEmpty()) Apri(file);
}

bool F_EditorStrutture::Salva() {
  if (m_modello.File().empty()) return SalvaConNome();
  return SalvaIn(m_modello.File());
}

// The dialog does not ask before replacing a file: a file that is no structure is refused first, and
// only the replacement of another structure is asked about.
bool F_EditorStrutture::SalvaConNome() {
  const QString scelto = ScegliFile(true);
  if (scelto.isEmpty()) return false;
  const std::filesystem::path file = Percorso(scelto);
  if (auto ammessa = DestinazioneAmmessa(file, m_contesto.Configurazione()); !ammessa) {
    Avverti(this, ammessa.Errore().testo);
    return false;
  }
  std::error_code ec;
  if (file != m_modello.File() && std::filesystem::exists(file, ec) &&
      QMessageBox::question(this, kTitolo, QString("La struttura %1 esiste già. Sostituirla?").arg(scelto)) !=
          QMessageBox::Yes)
    return false;
  return SalvaIn(file);
}

bool F_EditorStrutture::SalvaIn(const std::filesystem::path& file) {
  if (auto ammessa = DestinazioneAmmessa(file, m_contesto.Configurazione()); !ammessa) {
    Avverti(this, ammessa.Errore().testo);
    return false;
  }
  auto salvata = m_modello.Salva(file);
  Aggiorna();
  if (!salvata) Avverti(this, salvata.Errore().testo);
  return salvata.Riuscito();
}

// The view is as tall as the grid's rows, with room for the scroll bar that a narrow window shows.
void F_EditorStrutture::AdattaAltezzaGriglia() {
  const int altezza = static_cast<int>(std::ceil(m_scena->sceneRect().height())) + 2 * m_vista->frameWidth() +
                      m_vista->horizontalScrollBar()->sizeHint().height();
  m_vista->setMaximumHeight(altezza);
  m_vista->setMinimumHeight(std::min(altezza, 200));
  // The panels below take what the grid leaves, and only that.
  if (auto* divisore = qobject_cast<QSplitter*>(m_vista->parentWidget())) divisore->setSizes({altezza, 1});
}

void F_EditorStrutture::Aggiorna() {
  {
    // Drawing the grid anew clears and restores the selection: the panel is refreshed once, after.
    const QSignalBlocker blocco_scena(m_scena);
    m_scena->Mostra(*m_contesto.Archivio(), m_modello);
  }
  AdattaAltezzaGriglia();
  {
    const QSignalBlocker blocco_estrazione(m_estrazione);
    m_estrazione->setValue(m_modello.Griglia().ultima_estrazione);
  }
  m_data->setText("  " +
                  Testo(m_contesto.Archivio()->DataEstrazione(m_modello.Griglia().ultima_estrazione).ValoreOppure("")) +
                  "  ");

  const int scelta = m_condizioni->currentRow();
  m_condizioni->clear();
  for (const std::string& condizione : m_modello.Condizioni()) m_condizioni->addItem(Testo(condizione));
  m_condizioni->setCurrentRow(std::min(scelta, m_condizioni->count() - 1));

  const QString nome =
      m_modello.File().empty() ? "nuova" : QString::fromStdU16String(m_modello.File().filename().u16string());
  setWindowTitle(QString("Struttura: %1[*]").arg(nome));
  setWindowModified(m_modello.Modificata());
  AggiornaPannello();
}

void F_EditorStrutture::AggiornaPannello() {
  const std::vector<int16_t> selezionati = m_scena->VerticiSelezionati();
  m_unisci->setEnabled(selezionati.size() == 2);
  m_elimina->setEnabled(!selezionati.empty());
  const figures::ClsVertice* vertice = m_modello.Vertice(VerticeScelto());
  m_vertice->setEnabled(vertice != nullptr);
  m_vertice->setTitle(vertice ? QString("Vertice %1").arg(vertice->Index) : "Vertice");
  const figures::ClsVertice vuoto;
  const figures::ClsVertice& mostrato = vertice ? *vertice : vuoto;
  const QString caption = Testo(mostrato.Caption);
  if (m_caption->text() != caption) m_caption->setText(caption);
  for (auto [scelta, valore] :
       {std::pair{m_fulcro_orizz, mostrato.FulcroOrizz}, std::pair{m_fulcro_vert, mostrato.FulcroVert},
        std::pair{m_chiusura, mostrato.UsaPerChiusura}}) {
    const QSignalBlocker blocco(scelta);
    scelta->setChecked(valore);
  }
  MostraVerso(m_verso_vert, mostrato.VersoVert);
  MostraVerso(m_verso_orizz, mostrato.VersoOrizz);
}

void F_EditorStrutture::AggiornaArchivio() {
  const int estrazioni = Estrazioni();
  const bool in_fondo = m_modello.Griglia().ultima_estrazione >= m_estrazione->maximum();
  {
    const QSignalBlocker blocco(m_estrazione);
    m_estrazione->setRange(std::min(1, estrazioni), estrazioni);
  }
  // A grid on the archive's last draw follows the archive as it grows.
  if (in_fondo || m_modello.Griglia().ultima_estrazione > estrazioni) m_modello.MostraFinoA(estrazioni);
  Aggiorna();
}

int16_t F_EditorStrutture::VerticeScelto() const {
  const std::vector<int16_t> selezionati = m_scena->VerticiSelezionati();
  return selezionati.size() == 1 ? selezionati.front() : int16_t{0};
}

void F_EditorStrutture::PiazzaVertice(int riga, int colonna) {
  if (!m_modello.VerticeNellaCella(riga, colonna))
    if (auto motivo = m_modello.VerticeNonAmmesso(riga)) return Avverti(this, *motivo);
  const int16_t index = m_modello.AggiungiVertice(riga, colonna);
  if (index == 0) return;
  Aggiorna();
  m_scena->Seleziona(index);
}

void F_EditorStrutture::UnisciSelezionati() {
  const std::vector<int16_t> selezionati = m_scena->VerticiSelezionati();
  if (selezionati.size() != 2) return;
  if (auto motivo = m_modello.LineaNonAmmessa()) return Avverti(this, *motivo);
  if (!m_modello.Unisci(selezionati[0], selezionati[1])) {
    QMessageBox::information(this, kTitolo, "I due vertici sono già uniti.");
    return;
  }
  Aggiorna();
}

void F_EditorStrutture::EliminaSelezionati() {
  for (int16_t index : m_scena->VerticiSelezionati()) m_modello.RimuoviVertice(index);
  Aggiorna();
}

void F_EditorStrutture::ModificaCondizione() {
  const int posto = m_condizioni->currentRow();
  if (posto < 0) return;
  F_InsCondizione dialogo(m_modello.Vertici(), m_condizioni->item(posto)->text(), this);
  if (dialogo.exec() != QDialog::Accepted) return;
  auto modificata = m_modello.ModificaCondizione(static_cast<size_t>(posto), dialogo.Testo().toStdString());
  if (!modificata) return Avverti(this, modificata.Errore().testo);
  Aggiorna();
}

void F_EditorStrutture::CercaNellArchivio() {
  if (!m_ricerca)
    m_ricerca = new F_StatStrutture(
        m_contesto, [this] { return m_modello.Struttura(); }, this);
  m_ricerca->show();
  m_ricerca->raise();
  m_ricerca->activateWindow();
}

}  // namespace lottolab::gui
