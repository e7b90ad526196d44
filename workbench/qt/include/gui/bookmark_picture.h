#pragma once
// The look of a bookmark: a small flag, drawn once, shown inline in the text
// and, as the mouse pointer, over the bookmark strip.

#include <QCursor>
#include <QImage>

namespace korvex::gui {

// 20 x 12 pixels.
QImage bookmarkFlag();

QCursor bookmarkCursor();

}  // namespace korvex::gui
