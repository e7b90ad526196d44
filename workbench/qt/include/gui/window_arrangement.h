#pragma once
// The window commands: halves of the frame's inner area, cascade, one under
// the other, and the minimised windows in a row along the bottom.

class QMdiArea;
class QMdiSubWindow;

namespace korvex::gui {

void placeInHalf(QMdiArea* area, QMdiSubWindow* window, bool right);
void cascade(QMdiArea* area);
void tileOneUnderAnother(QMdiArea* area);
void arrangeIcons(QMdiArea* area);

}  // namespace korvex::gui
