#include "workbench/byte_grid.h"

#include <gtest/gtest.h>

#include "base/failure.h"

namespace korvex {
namespace {

// "address: cells" with "." for an empty cell, one string per row.
std::vector<std::string> picture(const ByteGrid& grid) {
    std::vector<std::string> rows;
    for (const ByteRow& row : grid.rows) {
        std::string line = row.address + ":";
        for (const std::string& cell : row.cells) line += " " + (cell.empty() ? "." : cell);
        rows.push_back(line);
    }
    return rows;
}

constexpr const char* kEnd = ":00000001FF\r\n";

TEST(ByteGridTest, HexRowsFollowTheFileAndKeepSixteenAddressesEach) {
    ByteGrid grid;
    // Bytes at 0008 and 0010: two rows, columns 9 and 1.
    ASSERT_EQ(readHexGrid(std::string(":01000800AA4D\r\n:01001000BB34\r\n") + kEnd, grid),
              HexReading::Shown);
    EXPECT_EQ(picture(grid), (std::vector<std::string>{"0000: . . . . . . . . AA . . . . . . .",
                                                       "0010: BB . . . . . . . . . . . . . . ."}));
    // A record across a 16-byte boundary goes on in the next row; a line that
    // continues where the last ended stays in its row; backward starts anew.
    ASSERT_EQ(readHexGrid(std::string(":04000E0041420D0A00\r\n:0100120043AA\r\n"
                                      ":0100000044BB\r\n") +
                              kEnd,
                          grid),
              HexReading::Shown);
    EXPECT_EQ(picture(grid), (std::vector<std::string>{"0000: . . . . . . . . . . . . . . 41 42",
                                                       "0010: 0D 0A 43 . . . . . . . . . . . . .",
                                                       "0000: 44 . . . . . . . . . . . . . . ."}));
    EXPECT_EQ(grid.rows[0].characters, std::string(14, ' ') + "AB");
    EXPECT_EQ(grid.rows[1].characters.substr(0, 3),
              "\xB7\xB7"
              "C");
    // Without the end record the last line is lost; an end record in the
    // middle is a data line whose checksum shows as its byte.
    ASSERT_EQ(readHexGrid(":00000001FF\r\n:0100000044BB\r\n", grid), HexReading::Shown);
    EXPECT_EQ(picture(grid).at(0).substr(0, 9), "0000: FF ");
}

TEST(ByteGridTest, HexFilesTooShortOrWithoutColonsAreRefused) {
    ByteGrid grid;
    EXPECT_EQ(readHexGrid(":00000001FF\r\n", grid), HexReading::Empty);  // 13 bytes
    EXPECT_EQ(readHexGrid(std::string(":0100000044BB\r\n") + kEnd + "\r\n", grid),
              HexReading::InvalidFormat);  // a blank line at the end
    EXPECT_EQ(readHexGrid("0100000044BB\r\n:00000001FF\r\n", grid), HexReading::InvalidFormat);
    // Digits are read as far as they go.
    ASSERT_EQ(readHexGrid(std::string(":010000004GBB\r\n") + kEnd, grid), HexReading::Shown);
    EXPECT_EQ(grid.rows[0].cells[0], "4G");
    EXPECT_EQ(grid.rows[0].characters[0], '\xB7');
}

TEST(ByteGridTest, BinaryRowsAreTitledByTheirAddress) {
    const std::string bytes = std::string("ABCDEFGHIJKLMNOP") + '\x01';
    const ByteGrid grid = binaryGrid(bytes);
    ASSERT_EQ(grid.rows.size(), 2u);
    EXPECT_EQ(grid.rows[1].address, "0010");
    EXPECT_EQ(grid.rows[1].cells[0], "01");
    EXPECT_EQ(grid.rows[1].cells[1], "");
    EXPECT_EQ(grid.rows[1].characters, "\xB7" + std::string(15, ' '));
    EXPECT_EQ(grid.rows[0].characters, "ABCDEFGHIJKLMNOP");
    EXPECT_EQ(binaryGrid(std::string(16 * 4096, 'x')).rows.back().address, "FFF0");
    EXPECT_EQ(binaryGrid(std::string(16 * 4097, 'x')).rows.back().address, "10000");
    EXPECT_THROW(binaryGrid(std::string(16 * 32768, 'x')), RuntimeFailure);
    EXPECT_TRUE(binaryGrid("").rows.empty());
}

}  // namespace
}  // namespace korvex
