#include "gui/principale/GiocoFinestra.h"

#include <QVariant>
#include <QWidget>

namespace lottolab::gui {

QString NomeGioco(std::optional<Gioco> gioco) {
  if (!gioco) return QStringLiteral("Lotto");
  const std::string_view nome = Formato(*gioco).nome;
  return QString::fromUtf8(nome.data(), static_cast<qsizetype>(nome.size()));
}

void ImpostaGiocoFinestra(QWidget& finestra, std::optional<Gioco> gioco) {
  finestra.setProperty(kProprietaGioco, NomeGioco(gioco));
}

QString NomeGiocoFinestra(const QWidget& finestra) {
  const QVariant gioco = finestra.property(kProprietaGioco);
  return gioco.isValid() ? gioco.toString() : NomeGioco(std::nullopt);
}

}  // namespace lottolab::gui
