#include "gui/script/DialoghiQt.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QInputDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace lottolab::gui {

namespace {

const QString kTitolo = QStringLiteral("Script");
const QString kFiltroScript = QStringLiteral("File script (*.ls);;Tutti (*.*)");

QString Titolo(const std::string& titolo) { return titolo.empty() ? kTitolo : QString::fromStdString(titolo); }

// The engine's texts are UTF-16, as QString's.
QString Testo(std::u16string_view testo) {
  return QString::fromUtf16(testo.data(), static_cast<qsizetype>(testo.size()));
}

QString Titolo(std::u16string_view titolo) { return titolo.empty() ? kTitolo : Testo(titolo); }

// MsgBox's groups of buttons (the lowest three bits of its argument), in MsgBox's order.
QMessageBox::StandardButtons PulsantiMsgBox(int gruppo) {
  switch (gruppo) {
    case 1: return QMessageBox::Ok | QMessageBox::Cancel;
    case 2: return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case 3: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case 4: return QMessageBox::Yes | QMessageBox::No;
    case 5: return QMessageBox::Retry | QMessageBox::Cancel;
    default: return QMessageBox::Ok;
  }
}

QMessageBox::Icon IconaMsgBox(int icona) {
  switch (icona) {
    case 16: return QMessageBox::Critical;
    case 32: return QMessageBox::Question;
    case 48: return QMessageBox::Warning;
    case 64: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
  }
}

int CodiceMsgBox(QMessageBox::StandardButton pulsante) {
  switch (pulsante) {
    case QMessageBox::Ok: return 1;
    case QMessageBox::Abort: return 3;
    case QMessageBox::Retry: return 4;
    case QMessageBox::Ignore: return 5;
    case QMessageBox::Yes: return 6;
    case QMessageBox::No: return 7;
    default: return 2;
  }
}

// A dialog with `contenuto` above the OK and Cancel buttons.
bool Accettato(QDialog& dialogo, QWidget* contenuto) {
  auto* layout = new QVBoxLayout(&dialogo);
  layout->addWidget(contenuto);
  auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialogo);
  QObject::connect(pulsanti, &QDialogButtonBox::accepted, &dialogo, &QDialog::accept);
  QObject::connect(pulsanti, &QDialogButtonBox::rejected, &dialogo, &QDialog::reject);
  layout->addWidget(pulsanti);
  return dialogo.exec() == QDialog::Accepted;
}

}  // namespace

bool DialoghiQt::Conferma(const QString& testo) {
  return QMessageBox::question(m_finestra, kTitolo, testo, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

DialoghiScript::Modifiche DialoghiQt::ModificheNonSalvate(const QString& nome) {
  QMessageBox domanda(QMessageBox::Warning, kTitolo, QStringLiteral("Modifiche non salvate in %1.").arg(nome),
                      QMessageBox::NoButton, m_finestra);
  domanda.setInformativeText(QStringLiteral("Salvare le modifiche?"));
  QPushButton* salva = domanda.addButton(QStringLiteral("Salva"), QMessageBox::AcceptRole);
  QPushButton* scarta = domanda.addButton(QStringLiteral("Non salvare"), QMessageBox::DestructiveRole);
  QPushButton* annulla = domanda.addButton(QStringLiteral("Annulla"), QMessageBox::RejectRole);
  domanda.setDefaultButton(salva);
  domanda.setEscapeButton(annulla);
  domanda.exec();
  if (domanda.clickedButton() == salva) return Modifiche::Salva;
  if (domanda.clickedButton() == scarta) return Modifiche::NonSalvare;
  return Modifiche::Annulla;
}

void DialoghiQt::Avvisa(const Avviso& avviso) {
  const QString titolo = Titolo(avviso.titolo);
  const QString testo = QString::fromStdString(avviso.testo);
  if (avviso.tipo == TipoAvviso::Critico)
    QMessageBox::critical(m_finestra, titolo, testo);
  else
    QMessageBox::warning(m_finestra, titolo, testo);
}

QString DialoghiQt::FileDaAprire(const QString& cartella) {
  return QFileDialog::getOpenFileName(m_finestra, QStringLiteral("Apri script"), cartella, kFiltroScript);
}

QString DialoghiQt::FileDaSalvare(const QString& proposto) {
  return QFileDialog::getSaveFileName(m_finestra, QStringLiteral("Salva script"), proposto, kFiltroScript);
}

script::Modalita DialoghiQt::SceltaModalita(const QString& file) {
  QMessageBox box(QMessageBox::Warning, QStringLiteral("Script da un'altra cartella"),
                  QStringLiteral("Lo script\n%1\nnon è nella tua cartella degli script.\n\n"
                                 "Uno script preso da altri può leggere, cambiare o cancellare i tuoi file. In "
                                 "modalità protetta legge solo nella cartella di lottolab, scrive solo in "
                                 "scriptOutput, non tocca lottolab.ini né gli archivi e non apre altri programmi.\n\n"
                                 "Come vuoi eseguirlo? La scelta vale per questo contenuto del file e si può "
                                 "cambiare con \"Protetto\" nella barra dello script.")
                      .arg(file),
                  QMessageBox::NoButton, m_finestra);
  QPushButton* protetta = box.addButton(QStringLiteral("Modalità protetta"), QMessageBox::AcceptRole);
  box.addButton(QStringLiteral("Mi fido: modalità normale"), QMessageBox::RejectRole);
  box.setDefaultButton(protetta);
  box.setEscapeButton(protetta);
  box.exec();
  return box.clickedButton() == protetta || !box.clickedButton() ? script::Modalita::Protetta
                                                                 : script::Modalita::Normale;
}

int DialoghiQt::MessageBox(std::u16string_view testo, int pulsanti, std::u16string_view titolo) {
  QMessageBox box(IconaMsgBox(pulsanti & 0x70), Titolo(titolo), Testo(testo), PulsantiMsgBox(pulsanti & 0x7),
                  m_finestra);
  const auto tutti = box.buttons();
  const int predefinito = (pulsanti >> 8) & 0x3;
  if (predefinito < tutti.size()) box.setDefaultButton(qobject_cast<QPushButton*>(tutti[predefinito]));
  box.exec();
  return CodiceMsgBox(box.standardButton(box.clickedButton()));
}

std::optional<std::u16string> DialoghiQt::InputBox(std::u16string_view testo, std::u16string_view titolo,
                                                   std::u16string_view proposto) {
  bool ok = false;
  const QString risposta =
      QInputDialog::getText(m_finestra, Titolo(titolo), Testo(testo), QLineEdit::Normal, Testo(proposto), &ok);
  if (!ok) return std::nullopt;
  return risposta.toStdU16String();
}

std::optional<std::vector<int>> DialoghiQt::ScegliVoci(const std::string& titolo, const std::vector<std::string>& voci,
                                                       bool multipla) {
  QDialog dialogo(m_finestra);
  dialogo.setWindowTitle(Titolo(titolo));
  auto* elenco = new QListWidget(&dialogo);
  for (const std::string& voce : voci) elenco->addItem(QString::fromStdString(voce));
  elenco->setSelectionMode(multipla ? QAbstractItemView::MultiSelection : QAbstractItemView::SingleSelection);
  if (!voci.empty()) elenco->setCurrentRow(0);
  if (!Accettato(dialogo, elenco)) return std::nullopt;
  std::vector<int> scelte;
  for (int riga = 0; riga < elenco->count(); ++riga)
    if (elenco->item(riga)->isSelected()) scelte.push_back(riga);
  return scelte;
}

std::optional<std::vector<int>> DialoghiQt::ScegliNumeri(const std::string& titolo, int quanti, int massimo,
                                                         const std::vector<int>& proposti) {
  QStringList testi;
  for (int numero : proposti) testi << QString::number(numero);
  bool ok = false;
  const QString risposta = QInputDialog::getText(
      m_finestra, Titolo(titolo),
      QStringLiteral("Fino a %1 numeri da 1 a %2, separati da punti o spazi:").arg(quanti).arg(massimo),
      QLineEdit::Normal, testi.join('.'), &ok);
  if (!ok) return std::nullopt;
  std::vector<int> numeri;
  for (const QString& parte : risposta.split(QRegularExpression(QStringLiteral("[.,;\\s]+")), Qt::SkipEmptyParts)) {
    const int numero = parte.toInt();
    if (numero >= 1 && numero <= massimo && static_cast<int>(numeri.size()) < quanti) numeri.push_back(numero);
  }
  return numeri;
}

std::optional<std::vector<double>> DialoghiQt::ScegliImporti(const std::string& titolo,
                                                             const std::vector<std::string>& voci,
                                                             const std::vector<double>& proposti) {
  QDialog dialogo(m_finestra);
  dialogo.setWindowTitle(Titolo(titolo));
  auto* riquadro = new QWidget(&dialogo);
  auto* modulo = new QFormLayout(riquadro);
  std::vector<QDoubleSpinBox*> caselle;
  for (size_t i = 0; i < voci.size(); ++i) {
    auto* casella = new QDoubleSpinBox(riquadro);
    casella->setRange(0, 1e6);
    casella->setDecimals(2);
    casella->setValue(i < proposti.size() ? proposti[i] : 0);
    modulo->addRow(QString::fromStdString(voci[i]), casella);
    caselle.push_back(casella);
  }
  if (!Accettato(dialogo, riquadro)) return std::nullopt;
  std::vector<double> importi;
  for (const QDoubleSpinBox* casella : caselle) importi.push_back(casella->value());
  return importi;
}

std::optional<std::string> DialoghiQt::ScegliPercorso(const std::string& titolo, const std::string& proposto,
                                                      bool cartella) {
  const QString percorso =
      cartella ? QFileDialog::getExistingDirectory(m_finestra, Titolo(titolo), QString::fromStdString(proposto))
               : QFileDialog::getOpenFileName(m_finestra, Titolo(titolo), QString::fromStdString(proposto));
  if (percorso.isEmpty()) return std::nullopt;
  return percorso.toStdString();
}

}  // namespace lottolab::gui
