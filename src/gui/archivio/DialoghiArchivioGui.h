#pragma once

// The archive updates' questions as message boxes and file dialogs over a window.

#include <QPointer>
#include <QWidget>

#include "gui/archivio/DialoghiArchivio.h"

namespace lottolab::gui {

class DialoghiArchivioGui : public DialoghiArchivio {
 public:
  explicit DialoghiArchivioGui(QWidget* finestra) : m_finestra(finestra) {}

  void Mostra(const Avviso& avviso) override;
  std::optional<size_t> Scegli(const std::string& titolo, const std::string& domanda,
                               const std::vector<std::string>& scelte) override;
  std::optional<std::filesystem::path> ScegliFile(const std::string& titolo, const std::filesystem::path& cartella,
                                                  const std::string& filtro) override;
  void Informa(const std::string& titolo, const std::string& testo) override;

 private:
  QPointer<QWidget> m_finestra;
};

}  // namespace lottolab::gui
