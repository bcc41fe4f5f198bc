#include "gui/archivio/DialoghiArchivioGui.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include "gui/principale/SegnalatoreGui.h"

namespace lottolab::gui {

void DialoghiArchivioGui::Mostra(const Avviso& avviso) { SegnalatoreGui(m_finestra).Mostra(avviso); }

std::optional<size_t> DialoghiArchivioGui::Scegli(const std::string& titolo, const std::string& domanda,
                                                  const std::vector<std::string>& scelte) {
  QMessageBox finestra_domanda(QMessageBox::Question, QString::fromStdString(titolo), QString::fromStdString(domanda),
                               QMessageBox::NoButton, m_finestra);
  std::vector<QPushButton*> pulsanti;
  for (const std::string& scelta : scelte)
    pulsanti.push_back(finestra_domanda.addButton(QString::fromStdString(scelta), QMessageBox::AcceptRole));
  finestra_domanda.addButton(QStringLiteral("Annulla"), QMessageBox::RejectRole);
  if (!pulsanti.empty()) finestra_domanda.setDefaultButton(pulsanti.front());
  finestra_domanda.exec();
  for (size_t i = 0; i < pulsanti.size(); ++i)
    if (finestra_domanda.clickedButton() == pulsanti[i]) return i;
  return std::nullopt;
}

std::optional<std::filesystem::path> DialoghiArchivioGui::ScegliFile(const std::string& titolo,
                                                                     const std::filesystem::path& cartella,
                                                                     const std::string& filtro) {
  const QString file =
      QFileDialog::getOpenFileName(m_finestra, QString::fromStdString(titolo),
                                   QString::fromStdString(cartella.string()), QString::fromStdString(filtro));
  if (file.isEmpty()) return std::nullopt;
  return std::filesystem::path(file.toStdString());
}

void DialoghiArchivioGui::Informa(const std::string& titolo, const std::string& testo) {
  QMessageBox::information(m_finestra, QString::fromStdString(titolo), QString::fromStdString(testo));
}

}  // namespace lottolab::gui
