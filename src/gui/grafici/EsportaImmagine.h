#pragma once

// The picture of a chart window saved as the user sees it: a PNG of the widget, or a PDF page with
// the window's title above it. Both files are written all at once, so that a failed save leaves the
// file that was there.

#include <QImage>
#include <QString>

#include <filesystem>

#include "archive/Esito.h"

class QWidget;

namespace lottolab::gui {

// The widget as it is painted now, at the screen's pixel density.
QImage ImmagineDi(QWidget& widget);

Esito<Fatto> ScriviPng(const QImage& immagine, const std::filesystem::path& file);
// One landscape page: `titolo` and the picture scaled to the page.
Esito<Fatto> ScriviPdfImmagine(const QImage& immagine, const QString& titolo, const std::filesystem::path& file);

}  // namespace lottolab::gui
