// The label pass: which targets get a label, and how the text looks.

#include "assembler/source_file.h"
#include "disassembler_fixture.h"

namespace korvex::testing {
namespace {

class LabelPass : public DisassemblerFixture {
  protected:
    // The text with labels, without its header.
    std::vector<std::string> labelled(const std::string& content,
                                      const std::string& fileName = "prog.b51") {
        std::vector<std::string> lines = splitLines(text(content, {false, true}, fileName));
        lines.erase(lines.begin(), lines.begin() + std::min<std::size_t>(2, lines.size()));
        return lines;
    }
};

TEST_F(LabelPass, TargetsThatBeginALineGetALabelOthersStayNumbers) {
    // ljmp to 0006h, a jump onto itself, two jumps to one target, one of each
    // form that has a target; then targets into the middle of an instruction,
    // out of the file, and cjne a with a direct operand: its target is looked
    // for behind the first comma, where the direct operand stands.
    EXPECT_EQ(
        labelled(bytes({0x02, 0x00, 0x06, 0x80, 0xFE, 0x00, 0x60, 0xFB, 0x70, 0xF9, 0x01, 0x05,
                        0xD8, 0xFE, 0x10, 0x8C, 0xF7, 0xBE, 0x07, 0xF1, 0xB6, 0x41, 0xF3, 0x12,
                        0x00, 0x0A, 0x80, 0xFD, 0x02, 0x12, 0x34, 0xB5, 0x30, 0xF8})),
        (std::vector<std::string>{"\tljmp L0006h",
                                  "L0003h:",
                                  "\tsjmp L0003h\t; End",
                                  "L0005h:",
                                  "\tnop",
                                  "L0006h:",
                                  "\tjz L0003h",
                                  "L0008h:",
                                  "\tjnz L0003h",
                                  "L000Ah:",
                                  "\tajmp L0005h",
                                  "L000Ch:",
                                  "\tdjnz r0, L000Ch\t; Hier",
                                  "\tjbc TR0, L0008h",
                                  "\tcjne r6, #07h, L0005h\t; 7d",
                                  "\tcjne @r0, #41h, L000Ah\t; 65d = 'A'",
                                  "\tlcall L000Ah",
                                  "\tsjmp 0019h",
                                  "\tljmp 1234h",
                                  "\tcjne a, 30h, 001Ah"}));

    // Two records at one address: both lines get the label, and the jump
    // renames its target once for each of them.
    const std::string record = ":0200000080FE80\r\n";
    EXPECT_EQ(labelled(record + record, "doppelt.h51"),
              (std::vector<std::string>{"L0000h:", "\tsjmp LL0000h\t; End",
                                        "L0000h:", "\tsjmp LL0000h\t; End"}));
}

TEST_F(LabelPass, TemporaryFilesAndHeader) {
    const std::string text = this->text(bytes({0x80, 0xFE}), {false, true});
    EXPECT_EQ(text, "; Korvex Disassembler, Datei: " + path("prog.b51") +
                        "\r\n#cpu = test\r\nL0000h:\r\n\tsjmp L0000h\t; End\r\n");
    EXPECT_FALSE(fileExists(path("Disas.tmp")));
    EXPECT_EQ(readWholeFile(path("Disas2.tmp")),
              "; Korvex Disassembler, Datei: " + path("prog.b51") +
                  "\r\n#cpu = test\r\n\tsjmp 0000h\t; End\r\n");
}

}  // namespace
}  // namespace korvex::testing
