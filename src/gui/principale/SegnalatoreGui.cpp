#include "gui/principale/SegnalatoreGui.h"

#include <QMessageBox>

namespace lottolab::gui {

void SegnalatoreGui::Mostra(const Avviso& avviso) {
  const QString titolo = avviso.titolo.empty() ? QStringLiteral("lottolab") : QString::fromStdString(avviso.titolo);
  const QString testo = QString::fromStdString(avviso.testo);
  if (avviso.tipo == TipoAvviso::Critico)
    QMessageBox::critical(m_finestra, titolo, testo);
  else
    QMessageBox::warning(m_finestra, titolo, testo);
}

}  // namespace lottolab::gui
