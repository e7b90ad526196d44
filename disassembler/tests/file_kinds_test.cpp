// Telling hex from binary, the two readers with their limits, and every way
// a run ends early: each bad file ends in its German message, none crashes.

#include <sstream>

#include "base/cp1252.h"
#include "base/failure.h"
#include "base/text.h"
#include "disassembler/code_rows.h"
#include "disassembler_fixture.h"

namespace korvex::testing {
namespace {

// A data record with a correct checksum.
std::string record(int address, const std::string& data) {
    std::string line =
        ":" + hexDigits(static_cast<int>(data.size()), 2) + hexDigits(address, 4) + "00";
    int sum = static_cast<int>(data.size()) + (address >> 8) + (address & 0xFF);
    for (char c : data) {
        line += hexDigits(static_cast<unsigned char>(c), 2);
        sum += static_cast<unsigned char>(c);
    }
    return line + hexDigits((256 - sum % 256) % 256, 2) + "\r\n";
}

// `count` bytes of 00h in records of 255.
std::string hexOfSize(int count) {
    std::string file;
    for (int done = 0; done < count; done += 255) {
        file += record(done & 0xFFFF,
                       std::string(static_cast<std::size_t>(std::min(255, count - done)), '\0'));
    }
    return file + ":00000001FF\r\n";
}

TEST(HexFiles, TheFirstLineDecidesAndRecordsAreReadInFileOrder) {
    EXPECT_TRUE(isHexFile(":0300000002003078\n"));  // a file written on Linux
    EXPECT_TRUE(isHexFile(":030000000200300F"));   // the checksum's value is no part of the test...
    EXPECT_FALSE(isHexFile(":00000001FF\r\n"));    // ...but the length must be above 11
    EXPECT_FALSE(isHexFile(":0300000102003078"));  // record type 01
    EXPECT_FALSE(isHexFile(":0400000002003078"));  // count and length disagree
    EXPECT_FALSE(isHexFile(" :0300000002003078"));

    // Type and checksum aren't examined: a record of type 05 with a wrong sum is data.
    // Past the fields, the rest of a long line is never looked at.
    std::istringstream in(record(0x100, "\x11\x22") + record(0x20, "\x33") + ":01003005AAFF" +
                          std::string(100000, 'x') + "\r\n\r\n" + ":00000001FF\r\n\x1A junk");
    CodeRows rows;
    ASSERT_EQ(readHexRows(in, rows), ReadOutcome::Read);
    const auto addresses = [&rows] {
        std::vector<std::int32_t> out;
        for (std::size_t i = 0; i < rows.size(); ++i) out.push_back(rows.address(i));
        return out;
    };
    EXPECT_EQ(addresses(), (std::vector<std::int32_t>{256, 257, 32, 48}));
    EXPECT_EQ(rows.byte(3), 0xAA);
    rows.sortByAddress();  // as numbers: 32 before 256, though "256" < "32" as text
    EXPECT_EQ(addresses(), (std::vector<std::int32_t>{32, 48, 256, 257}));

    for (const std::string file : {":02000000G1FF00\r\n", ":0Z000000\r\n", ":0100\r\n", ":"}) {
        std::istringstream bad(file);
        EXPECT_THROW(readHexRows(bad, rows), RuntimeFailure) << file;
    }
}

using RunEnd = DisassemblerFixture;

// Empty and missing files and a missing driver: the programs' tests read the messages.
TEST_F(RunEnd, NoFileNoWindow) {
    EXPECT_FALSE(disassemble("").window);
    disassembler_->disassembleFile(folder_, {});  // a folder is no file
    EXPECT_EQ(host_.lastBoxText, text8("Datei kann nicht geöffnet werden: ") + folder_);
    const int boxes = host_.boxCount;
    const DisassemblyResult result = disassembler_->disassembleFile("", {});  // cancelled
    EXPECT_EQ(result.outcome, DisassemblyOutcome::Ended);
    EXPECT_EQ(host_.boxCount, boxes);
    useController("gibtsnicht");
    EXPECT_FALSE(disassemble(bytes({0x00})).window);
}

TEST_F(RunEnd, TheLimitsOfBothReadersAndABrokenHexFile) {
    DisassemblyResult result = disassemble(std::string(300001, '\0'));
    EXPECT_EQ(result.outcome, DisassemblyOutcome::Ended);
    EXPECT_EQ(host_.lastBoxTitle, "Fehler");
    EXPECT_EQ(host_.lastBoxText,
              text8("Datei ist 300001 groß. Kann maximal 300000 Byte verarbeiten."));
    ASSERT_TRUE(result.window);  // opened before reading, and left with its status
    EXPECT_EQ(result.window->text, text8("Dateigröße 300001 Byte."));
    EXPECT_EQ(disassemble(std::string(300000, '\0')).outcome, DisassemblyOutcome::Completed);

    result = disassemble(hexOfSize(300001), {}, "prog.h51");
    EXPECT_EQ(result.outcome, DisassemblyOutcome::Ended);
    EXPECT_EQ(host_.lastBoxText, text8("Datei ist zu groß. Kann maximal 300000 Byte verarbeiten."));
    EXPECT_EQ(disassemble(hexOfSize(300000), {}, "prog.h51").outcome,
              DisassemblyOutcome::Completed);

    // A record that lacks a byte.
    result = disassemble(record(0, "\x74\x41") + ":04000000020030\r\n", {}, "prog.h51");
    EXPECT_EQ(result.outcome, DisassemblyOutcome::Failed);
    ASSERT_TRUE(result.window);
    EXPECT_TRUE(startsWith(result.window->text, text8("Dateigröße ")));
    EXPECT_EQ(host_.lastBoxText,
              text8("Fehler # 13 wurde ausgelöst von Korvex\r\nTypen unverträglich"));
}

class RecordingMonitor : public DisassemblyMonitor {
  public:
    void windowText(const std::string& caption, const std::string& text) override {
        this->caption = caption;
        texts.push_back(text);
    }
    void progress(int percent) override { percents.push_back(percent); }
    std::string caption;
    std::vector<std::string> texts;
    std::vector<int> percents;
};

TEST_F(RunEnd, TheWindowShowsSizeStepsAndProgress) {
    const std::string file = record(0x10, std::string(200, '\0')) + record(0, "\x22");
    writeWholeFile(path("lauf.x.h51"), file);
    RecordingMonitor monitor;
    const DisassemblyResult result =
        disassembler_->disassembleFile(path("lauf.x.h51"), {true, true}, &monitor);
    ASSERT_EQ(result.outcome, DisassemblyOutcome::Completed);
    EXPECT_EQ(result.window->caption, "Disassembling " + path("lauf.x.a51"));
    EXPECT_EQ(monitor.caption, result.window->caption);
    const std::string size =
        text8("Dateigröße ") + decimalText(static_cast<int>(file.size())) + " Byte.";
    EXPECT_EQ(monitor.texts,
              (std::vector<std::string>{size, size + "\r\nSortiere Daten...",
                                        size + "\r\nSortiere Daten...\r\nErzeuge Labels..."}));
    // Each percent once, growing; the sorted ret comes first.
    ASSERT_FALSE(monitor.percents.empty());
    EXPECT_TRUE(std::is_sorted(monitor.percents.begin(), monitor.percents.end()));
    EXPECT_EQ(std::adjacent_find(monitor.percents.begin(), monitor.percents.end()),
              monitor.percents.end());
    EXPECT_EQ(monitor.percents.back(), 100);
    EXPECT_EQ(splitLines(result.window->text).at(2), "ret");
}

}  // namespace
}  // namespace korvex::testing
