#include "gui/colour_map.h"

#include <QApplication>
#include <QPalette>

#include "workbench/colours.h"

namespace korvex::gui {
namespace {

// The classic system colour indexes and the roles closest to them.
QPalette::ColorRole roleOf(int index) {
    switch (index) {
        case 1:
        case 12:  // desktop, application workspace
        case 16: return QPalette::Dark;
        case 2:
        case 13: return QPalette::Highlight;
        case 3: return QPalette::Mid;
        case 0:
        case 4:
        case 10:
        case 11:
        case 15: return QPalette::Button;
        case 5: return QPalette::Base;
        case 6:
        case 21: return QPalette::Shadow;
        case 7: return QPalette::WindowText;
        case 9:
        case 14: return QPalette::HighlightedText;
        case 17: return QPalette::PlaceholderText;
        case 18: return QPalette::ButtonText;
        case 20: return QPalette::Light;
        case 22: return QPalette::Midlight;
        case 23: return QPalette::ToolTipText;
        case 24: return QPalette::ToolTipBase;
        default: return QPalette::Text;
    }
}

}  // namespace

QColor toQColor(std::int32_t colour, const QPalette& palette) {
    if (isSystemColour(colour))
        return palette.color(QPalette::Active, roleOf(systemColourIndex(colour)));
    const Rgb rgb = rgbOf(colour);
    return QColor(rgb.red, rgb.green, rgb.blue);
}

QColor toQColor(std::int32_t colour) {
    return toQColor(colour, QApplication::palette());
}

std::int32_t fromQColor(const QColor& colour) {
    return colourOf(Rgb{static_cast<std::uint8_t>(colour.red()),
                        static_cast<std::uint8_t>(colour.green()),
                        static_cast<std::uint8_t>(colour.blue())});
}

}  // namespace korvex::gui
