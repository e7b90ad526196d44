#pragma once
// What the hex and binary viewers show: rows of sixteen byte cells under
// their address, and the same bytes as characters. The hex viewer reads an
// Intel-HEX file its own simple way, to show what the file holds rather than
// to check it: record types and checksums are not looked at.

#include <array>
#include <string>
#include <vector>

namespace korvex {

struct ByteRow {
    std::string address;                // the row's title: "0000", upper case
    std::array<std::string, 16> cells;  // two hex digits, empty where no byte is
    std::string characters;             // sixteen characters, a blank where no byte is
};

struct ByteGrid {
    std::vector<ByteRow> rows;
};

// A byte as the character column shows it: below 32 a middle dot.
char shownCharacter(unsigned char byte);

enum class HexReading { Shown, Empty, InvalidFormat };

// The rows of a hex file's bytes, in the file's own order. `Empty`: the file
// has 13 bytes or fewer; `InvalidFormat`: a line doesn't begin with ":".
HexReading readHexGrid(const std::string& bytes, ByteGrid& grid);

// A binary file: row n holds bytes 16n to 16n + 15, titled with its address.
// More rows than the viewer counts (32767) raise the overflow failure.
ByteGrid binaryGrid(const std::string& bytes);

}  // namespace korvex
