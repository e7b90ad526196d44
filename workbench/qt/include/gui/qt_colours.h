#pragma once
// The colours of the settings on the screen: a BGR number becomes its
// colour, a system colour (top bit set) the palette role that plays its part.

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace korvex::gui {

QColor qtColour(std::int32_t colour, const QPalette& palette);

// A screen colour back as a BGR number.
std::int32_t colourNumber(const QColor& colour);

}  // namespace korvex::gui
