#pragma once
// The settings' colours on the screen: a BGR number as it is, a system colour
// (top bit set) as the palette role that plays its part here.

#include <QColor>
#include <cstdint>

class QPalette;

namespace korvex::gui {

QColor toQColor(std::int32_t colour, const QPalette& palette);
QColor toQColor(std::int32_t colour);  // against the application's palette
std::int32_t fromQColor(const QColor& colour);

}  // namespace korvex::gui
