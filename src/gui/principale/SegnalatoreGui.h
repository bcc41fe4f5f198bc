#pragma once

// The desktop's way of showing the core's messages: a message box over the window that asked.

#include <QPointer>
#include <QWidget>

#include "app/Segnalatore.h"

namespace lottolab::gui {

class SegnalatoreGui : public app::Segnalatore {
 public:
  explicit SegnalatoreGui(QWidget* finestra) : m_finestra(finestra) {}

  // A critical message opens a box with the critical icon, an expected condition one with the
  // warning icon, so the user sees at once whether something broke or only needs attention.
  void Mostra(const Avviso& avviso) override;

 private:
  QPointer<QWidget> m_finestra;
};

}  // namespace lottolab::gui
