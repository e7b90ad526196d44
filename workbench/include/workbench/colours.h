#pragma once
// The eleven colours of the settings. A colour is a 32-bit number as the
// classic host keeps it: blue in the high byte, red in the low byte; with the
// top bit set it names one of the platform's system colours instead (the low
// byte says which), and the shell maps it to a palette role.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace korvex {

inline constexpr std::size_t kColourCount = 11;

inline constexpr std::int32_t systemColour(std::uint32_t index) {
    return static_cast<std::int32_t>(0x80000000u | index);
}

// Indexes into Settings::Colours, with the windows that use them.
enum ColourIndex : int {
    kMainBackground = 0,         // main window
    kEditorBackground = 1,       // source editor
    kCompilerBackground = 2,     // report of the compile dialog
    kDisassemblyBackground = 3,  // disassembly windows and notes
    kListingBackground = 4,      // listing viewer
    kHexBorder = 5,              // fixed cells of the hex grid and the label finder
    kHexContent = 6,             // cells of the hex grid and the label finder
    kBinaryBorder = 7,           // fixed cells of the binary grid
    kBinaryContent = 8,          // cells of the binary grid
    kComparisonBackground = 9,   // file comparison, extensions and controller dialogs
    kCommentColour = 10,         // comment text
};

inline constexpr std::array<std::int32_t, kColourCount> kDefaultColours{
    systemColour(0x0C),  // application workspace
    systemColour(0x05),  // window
    0xC0FFFF,            // light yellow
    0xF0F9FF,            // warm white
    0xFFF9F0,            // cool white
    0x80C0AF,            // sage
    0xD0FFFF,            // pale yellow
    0xB6CAB3,            // grey green
    0xF4FFFC,            // honeydew
    0xC2CDBA,            // grey green
    0x008000,            // green
};

struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Rgb&) const = default;
};

inline constexpr bool isSystemColour(std::int32_t colour) {
    return colour < 0;
}

// The index of a system colour (the low byte); meaningful only for those.
inline constexpr int systemColourIndex(std::int32_t colour) {
    return colour & 0xFF;
}

// Red, green and blue of a colour that is not a system colour.
inline constexpr Rgb rgbOf(std::int32_t colour) {
    return Rgb{static_cast<std::uint8_t>(colour & 0xFF),
               static_cast<std::uint8_t>((colour >> 8) & 0xFF),
               static_cast<std::uint8_t>((colour >> 16) & 0xFF)};
}

inline constexpr std::int32_t colourOf(Rgb rgb) {
    return static_cast<std::int32_t>(rgb.red | (rgb.green << 8) | (rgb.blue << 16));
}

// The label of a colour in the settings dialog (Windows-1252); empty for an
// index out of range.
std::string colourLabel(int index);

}  // namespace korvex
