#pragma once
// The workbench's own icon, drawn rather than loaded: Qt without its SVG
// module reads no SVG, and the desktop's copy (korvex.svg) shows the same chip.

#include <QIcon>

namespace korvex::gui {

QIcon applicationIcon();

}  // namespace korvex::gui
