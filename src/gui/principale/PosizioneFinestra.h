#pragma once

// Where a new window of the multi-document area goes: all of it in view, large enough to work in.
// A window placed partly past the area's edge must be dragged back before it can be used, and on a
// small screen a window of its natural size leaves most of the area empty.

#include <QPoint>
#include <QRect>
#include <QSize>

namespace lottolab::gui {

// The size of a new window that asks for `voluta` in an area of `area`: at least three quarters of
// the area (all of it when the area is small), never more than the area.
QSize DimensioneNuovaFinestra(QSize voluta, QSize area);

// Where the window proposed at `proposta` goes so that it lies inside the area; a window larger
// than the area keeps its top left corner in view.
QPoint PosizioneNuovaFinestra(const QRect& proposta, QSize area);

}  // namespace lottolab::gui
