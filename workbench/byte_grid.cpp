#include "workbench/byte_grid.h"

#include <cstdio>

#include "base/failure.h"
#include "base/text.h"

namespace korvex {
namespace {

constexpr std::size_t kMinimumHexFile = 14;
constexpr int kMaximumRows = 32767;  // the viewer's row counter is 16-bit

// As far as the digits give a value: "4G" is 4, "G4" is 0.
unsigned leadingHexValue(std::string_view text) {
    return static_cast<unsigned>(parseHexPrefix(text));
}

std::string fourDigits(unsigned value) {
    char text[8];
    std::snprintf(text, sizeof text, "%04X", value & 0xFFFFu);
    return text;
}

ByteRow emptyRow(std::string address) {
    ByteRow row;
    row.address = std::move(address);
    row.characters.assign(16, ' ');
    return row;
}

}  // namespace

char shownCharacter(unsigned char byte) {
    return byte < 32 ? static_cast<char>(183) : static_cast<char>(byte);
}

HexReading readHexGrid(const std::string& bytes, ByteGrid& grid) {
    grid.rows.clear();
    if (bytes.size() < kMinimumHexFile) return HexReading::Empty;
    const std::vector<std::string_view> lines = textLines(bytes);
    for (const std::string_view line : lines)
        if (line.empty() || line[0] != ':') return HexReading::InvalidFormat;

    unsigned rowBase = 0;
    int nextColumn = 17;  // no row yet
    // The last line is the end record of a proper file and never looked at.
    for (std::size_t index = 0; index + 1 < lines.size(); ++index) {
        const std::string_view line = lines[index];
        const unsigned address =
            leadingHexValue(line.size() > 3 ? line.substr(3, 4) : std::string_view());
        int column = static_cast<int>(address & 0xF) + 1;
        const bool sameRow = !grid.rows.empty() && column >= nextColumn && address >= rowBase &&
                             address - rowBase < 16;
        if (!sameRow) {
            rowBase = address & ~0xFu;
            grid.rows.push_back(emptyRow(fourDigits(rowBase)));
        }
        // Data begin at the tenth character; the last two, the checksum,
        // are not shown, and the line's own length decides, not its count.
        std::size_t at = 9;
        do {
            if (column > 16) {
                rowBase += 16;
                grid.rows.push_back(emptyRow(fourDigits(rowBase)));
                column = 1;
            }
            const std::string cell(at < line.size() ? line.substr(at, 2) : std::string_view());
            ByteRow& row = grid.rows.back();
            row.cells[static_cast<std::size_t>(column - 1)] = cell;
            row.characters[static_cast<std::size_t>(column - 1)] =
                shownCharacter(static_cast<unsigned char>(leadingHexValue(cell)));
            ++column;
            at += 2;
        } while (at + 1 < line.size() - 1);
        nextColumn = column;
    }
    return HexReading::Shown;
}

ByteGrid binaryGrid(const std::string& bytes) {
    const std::size_t rows = (bytes.size() + 15) / 16;
    if (rows > static_cast<std::size_t>(kMaximumRows))
        throw RuntimeFailure(FailureNumber::Overflow);
    ByteGrid grid;
    grid.rows.reserve(rows);
    for (std::size_t row = 0; row < rows; ++row) {
        char title[16];
        std::snprintf(title, sizeof title, "%03X0", static_cast<unsigned>(row));
        ByteRow line = emptyRow(title);
        for (std::size_t column = 0; column < 16 && row * 16 + column < bytes.size(); ++column) {
            const auto byte = static_cast<unsigned char>(bytes[row * 16 + column]);
            char digits[4];
            std::snprintf(digits, sizeof digits, "%02X", byte);
            line.cells[column] = digits;
            line.characters[column] = shownCharacter(byte);
        }
        grid.rows.push_back(std::move(line));
    }
    return grid;
}

}  // namespace korvex
