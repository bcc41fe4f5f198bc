#pragma once

// Which game a window shows, as the status bar names it. A window says it through a property that
// the main window watches, so that one that changes game (the delay table) is named again at once;
// a window that says nothing shows the Lotto (its archive, the scripts, the structures).

#include <QString>

#include <optional>

#include "archive/Giochi.h"

class QWidget;

namespace lottolab::gui {

inline constexpr char kProprietaGioco[] = "lottolabGioco";

// Marks `finestra` as showing `gioco`, or the Lotto when there is none.
void ImpostaGiocoFinestra(QWidget& finestra, std::optional<Gioco> gioco);

// The name of the game `finestra` shows: "Lotto" when it says none.
QString NomeGiocoFinestra(const QWidget& finestra);

// The game's name as the desktop writes it: "Lotto" when there is none.
QString NomeGioco(std::optional<Gioco> gioco);

}  // namespace lottolab::gui
