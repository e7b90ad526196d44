// The writers read the cleaned code texts by position: binary image with gaps,
// Intel-HEX records in row order, symbol file.

#include <gtest/gtest.h>

#include "assembler/code_image.h"
#include "base/text.h"

namespace korvex {
namespace {

std::string hexOf(const std::vector<std::string>& rows) {
    return hexFileText(rows);
}

TEST(CodeImageTest, EmptyImage) {
    EXPECT_EQ(hexOf({"", ""}), ":00000001FF\r\n");
    EXPECT_EQ(binaryImage({""}), "");
}

TEST(CodeImageTest, RecordsHoldAtMost32Bytes) {
    std::vector<std::string> rows;
    for (int i = 0; i < 11; ++i) {
        rows.push_back(hexDigits(i * 3, 4) + "\t00\t01\t02");  // 33 contiguous bytes
    }
    const std::string hex = hexOf(rows);
    const std::string first = hex.substr(0, hex.find("\r\n"));
    EXPECT_EQ(first.substr(0, 9), ":20000000");
    EXPECT_EQ(first.size(), 1 + 8 + 64 + 2u);
    // The row that passes the 32nd slot goes on in the next record.
    EXPECT_EQ(hex.substr(hex.find("\r\n") + 2, 9), ":01002000");
}

TEST(CodeImageTest, AddressChangesStartNewRecordsInRowOrder) {
    const std::vector<std::string> rows = {
        "0000\t02\t01\t00",
        "0003",  // a label at the running address neither ends nor adds
        "0003\t00",
        "0100",  // a label at a new address ends the record
        "0100\t22",
        "0000\t12",  // backwards: records follow rows, and the byte is overwritten
    };
    EXPECT_EQ(hexOf(rows),
              ":0400000002010000F9\r\n:0101000022DC\r\n:0100000012ED\r\n:00000001FF\r\n");
    const std::string image = binaryImage(rows);
    ASSERT_EQ(image.size(), 0x101u);
    EXPECT_EQ(image[0], '\x12');
    EXPECT_EQ(image[0x50], '\0');
    EXPECT_EQ(image[0x100], '\x22');
}

TEST(CodeImageTest, TableRowsUseBlanksBetweenBytes) {
    EXPECT_EQ(binaryImage({"0002\t41 62 00"}), std::string("\0\0\x41\x62\0", 5));
}

TEST(CodeImageTest, SymbolFileQuotesEveryColumn) {
    TextTable<3> symbols;
    EXPECT_EQ(symbolFileText(symbols), "\"\",\"\",\"\"\r\n");
    symbols.set(0, 0, "Start");
    symbols.set(0, 1, "LABEL");
    symbols.set(0, 2, "0000h");
    const int row = symbols.appendRow();
    symbols.set(row, 0, "Zähler");
    symbols.set(row, 1, "IRAM");
    symbols.set(row, 2, "7Fh");
    EXPECT_EQ(symbolFileText(symbols),
              "\"Start\",\"LABEL\",\"0000h\"\r\n\"Z\xC3\xA4hler\",\"IRAM\",\"7Fh\"\r\n");
}

}  // namespace
}  // namespace korvex
