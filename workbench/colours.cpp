#include "workbench/colours.h"

#include "base/cp1252.h"

namespace korvex {

std::string colourLabel(int index) {
    static constexpr std::array<const char*, 11> kLabels{
        "Assembler Hintergrund",
        "Editor Hintergrund",
        "Compiler Hintergrund",
        "Disassembler/Notizen Hintergrund",
        "Listing Hintergrund",
        "Hexdatei Rand",
        "Hexdatei Inhalt",
        "Binärdatei Rand",
        "Binärdatei Inhalt",
        "Dateivergleich",
        "Kommentare",
    };
    if (index < 0 || index >= static_cast<int>(kLabels.size())) return {};
    return text8(kLabels[static_cast<std::size_t>(index)]);
}

}  // namespace korvex
