// The text of each instruction beyond its mnemonic and operands, which an
// independent disassembler checks elsewhere: operand names from the driver,
// comments, targets and the listing layout.

#include "base/cp1252.h"
#include "disassembler/operand_names.h"
#include "disassembler_fixture.h"

namespace korvex::testing {
namespace {

using StatementText = DisassemblerFixture;

TEST_F(StatementText, NamesAndComments) {
    EXPECT_EQ(
        statements(bytes({0x74, 0x41, 0x74, 0xE4, 0x53, 0x30, 0x0F, 0x85, 0x30, 0x81, 0xA8, 0x90,
                          0xC2, 0x8B, 0xD2, 0x07, 0xB2, 0x7F, 0xA2, 0xF9, 0xB0, 0xE7, 0x92, 0x95})),
        (std::vector<std::string>{
            "\tmov a, #41h\t; 65d = 'A'", text8("\tmov a, #E4h\t; 228d = 'ä'"),
            // in the forms with a direct operand the immediate is the third byte
            "\tanl 30h, #0Fh\t; 15d", "\tmov SP, 30h", "\tmov r0, P1", "\tclr TCON.3",
            "\tsetb 20h.7", "\tcpl 2Fh.7", "\tmov c, F9h", "\tanl c, /ACC7", "\tmov P1.5, c"}));
    // The routine itself gives the decimal comment, which no form shows.
    const DriverReading driver = readCpuDriverFile(path("test.cpu"));
    const OperandNames names(driver.driver);  // keeps a reference to the driver
    std::string hex = "30", comment = "vorher";
    names.directName(hex, comment);
    EXPECT_EQ(hex + comment, "30h\t; 48d");
    hex = "88";
    names.directName(hex, comment);  // a name leaves the comment as it was
    EXPECT_EQ(hex + comment, "TCON\t; 48d");
}

TEST_F(StatementText, TargetsAndTheirComments) {
    EXPECT_EQ(
        statements(bytes({0x80, 0xFE, 0x40, 0xFE, 0x60, 0x02, 0x20, 0x8C, 0xFD, 0xB8, 0x05,
                          0xFD, 0xB4, 0x05, 0xFD, 0xD9, 0xFE, 0x80, 0x80, 0xE1, 0x10})),
        (std::vector<std::string>{"\tsjmp 0000h\t; End", "\tjc 0002h\t; Hier", "\tjz 0008h",
                                  "\tjb TR0, 0006h\t; Hier", "\tcjne r0, #05h, 0009h\t; 5d, Hier",
                                  "\tcjne a, #05h, 000Ch\t; 5d", "\tdjnz r1, 000Fh\t; Hier",
                                  "\tsjmp FF93h", "\tajmp 0710h"}));
    std::string hex = "7F";
    relativeTarget(hex, 2, 0xFFFE);  // forward sums aren't wrapped; four digits are written
    EXPECT_EQ(hex, "007Fh");
    // Absolute targets stay in the block of the next address.
    EXPECT_EQ(absoluteTarget(0x01, 0x23, 0x07FD), "0023");
    EXPECT_EQ(absoluteTarget(0x01, 0x23, 0x07FE), "0823");
    EXPECT_EQ(absoluteTarget(0xF1, 0xFF, 0x0000), "07FF");
}

TEST_F(StatementText, ListingLayoutHeaderAndTheEnd) {
    // ret, reti and ? stand at the start; A5h has no form; the 02h at the
    // end lacks its address bytes and isn't written.
    EXPECT_EQ(splitLines(text(bytes({0x00, 0x74, 0x41, 0x02, 0x01, 0x23, 0x22, 0x32, 0xA5, 0x02}))),
              (std::vector<std::string>{"; Korvex Disassembler, Datei: " + path("prog.b51"),
                                        "#cpu = test", "0000\t00\t\t\t\tnop",
                                        "0001\t74\t41\t\t\tmov a, #41h\t; 65d = 'A'",
                                        "0003\t02\t01\t23\t\tljmp 0123h", "0006\t22\t\t\tret",
                                        "0007\t32\t\t\treti", "0008\tA5\t\t\t?"}));
    // Addresses show their last four digits.
    std::string big(0x10001, '\0');
    big[0x10000] = '\x22';
    EXPECT_EQ(splitLines(text(big)).back(), "0000\t22\t\t\tret");
}

}  // namespace
}  // namespace korvex::testing
