// The viewers' readers on any bytes: the hex grid must show whatever a file
// holds without a crash, a binary grid of the same bytes has one row per
// sixteen of them, and the file comparison's hex expansion gives an image
// or its one failure.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/failure.h"
#include "workbench/byte_grid.h"
#include "workbench/file_comparison.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    korvex::ByteGrid grid;
    if (korvex::readHexGrid(bytes, grid) == korvex::HexReading::Shown) {
        for (const korvex::ByteRow& row : grid.rows)
            if (row.address.size() != 4 || row.characters.size() != 16) std::abort();
    }
    if (size < 16 * 32767) {
        const korvex::ByteGrid binary = korvex::binaryGrid(bytes);
        if (binary.rows.size() != (size + 15) / 16) std::abort();
    }
    try {
        const std::string image = korvex::LoadForCompare(bytes, true, 0xFF);
        korvex::CompareBytes(image, bytes, 10);
    } catch (const korvex::RuntimeFailure&) {
        // Data beyond what the records announce: the comparison's own failure.
    }
    return 0;
}
