#pragma once

// The program's own icon, drawn rather than shipped as a file: a ball of the draw with the 90 on it.
// Without it the windows that are not opened from a menu action carry the toolkit's logo.

#include <QIcon>

namespace lottolab::gui {

// The icon at the sizes a frame, a task bar and a window list ask for. Needs a QGuiApplication.
QIcon IconaApplicazione();

}  // namespace lottolab::gui
