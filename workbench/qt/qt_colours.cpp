#include "gui/qt_colours.h"

#include "workbench/colours.h"

namespace korvex::gui {
namespace {

// The Windows system colour indexes that the settings use, by the role of
// the same meaning.
QPalette::ColorRole roleOfSystemColour(int index) {
    switch (index) {
        case 0x05: return QPalette::Base;             // window
        case 0x07: return QPalette::WindowText;       // menu text
        case 0x08: return QPalette::Text;             // window text
        case 0x0C: return QPalette::Mid;              // application workspace
        case 0x0D: return QPalette::Highlight;        // highlight
        case 0x0E: return QPalette::HighlightedText;  // highlighted text
        case 0x10: return QPalette::Dark;             // button shadow
        case 0x12: return QPalette::ButtonText;       // button text
        case 0x14: return QPalette::Light;            // button highlight
        case 0x17: return QPalette::ToolTipText;      // tool tip text
        case 0x18: return QPalette::ToolTipBase;      // tool tip back
        default: return QPalette::Window;             // faces and frames
    }
}

}  // namespace

QColor qtColour(std::int32_t colour, const QPalette& palette) {
    if (isSystemColour(colour)) return palette.color(roleOfSystemColour(systemColourIndex(colour)));
    const Rgb rgb = rgbOf(colour);
    return QColor(rgb.red, rgb.green, rgb.blue);
}

std::int32_t colourNumber(const QColor& colour) {
    return colourOf(Rgb{static_cast<std::uint8_t>(colour.red()),
                        static_cast<std::uint8_t>(colour.green()),
                        static_cast<std::uint8_t>(colour.blue())});
}

}  // namespace korvex::gui
