#pragma once

// The real dialogs of the script window, shown over it.

#include <QWidget>

#include "gui/script/DialoghiScript.h"

namespace lottolab::gui {

class DialoghiQt final : public DialoghiScript {
 public:
  explicit DialoghiQt(QWidget* finestra) : m_finestra(finestra) {}

  bool Conferma(const QString& testo) override;
  Modifiche ModificheNonSalvate(const QString& nome) override;
  void Avvisa(const Avviso& avviso) override;
  QString FileDaAprire(const QString& cartella) override;
  QString FileDaSalvare(const QString& proposto) override;
  script::Modalita SceltaModalita(const QString& file) override;
  int MessageBox(std::u16string_view testo, int pulsanti, std::u16string_view titolo) override;
  std::optional<std::u16string> InputBox(std::u16string_view testo, std::u16string_view titolo,
                                         std::u16string_view proposto) override;
  std::optional<std::vector<int>> ScegliVoci(const std::string& titolo, const std::vector<std::string>& voci,
                                             bool multipla) override;
  std::optional<std::vector<int>> ScegliNumeri(const std::string& titolo, int quanti, int massimo,
                                               const std::vector<int>& proposti) override;
  std::optional<std::vector<double>> ScegliImporti(const std::string& titolo, const std::vector<std::string>& voci,
                                                   const std::vector<double>& proposti) override;
  std::optional<std::string> ScegliPercorso(const std::string& titolo, const std::string& proposto,
                                            bool cartella) override;

 private:
  QWidget* m_finestra;
};

}  // namespace lottolab::gui
