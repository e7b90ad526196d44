// The run as a whole: end-of-file rules, the trap, abort, findings that never
// stop a run, the output files beside the source, and the warning for a
// statement whose length changed between the passes.

#include <gtest/gtest.h>

#include <filesystem>

#include "assembler/length_check.h"
#include "assembler/source_file.h"
#include "assembler_fixture.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex::testing {
namespace {

using RunTest = AssemblerFixture;

TEST_F(RunTest, LineEndsTheLastLineAndTheLineCounter) {
    ASSERT_EQ(assemble("#cpu test\rNOP\rNOP\r\nNOP\nRET"), RunOutcome::Completed);
    EXPECT_EQ(image(), std::string("\0\0\0\x22", 4));
    // A trailing line end does not make an extra row.
    ASSERT_EQ(assemble("#cpu test\r\nNOP\r\n"), RunOutcome::Completed);
    EXPECT_TRUE(startsWith(report(), " 2 Zeilen")) << report();

    EXPECT_EQ(assemble(""), RunOutcome::Failed);
    EXPECT_EQ(host_.lastBoxTitle, "Fehler");
    EXPECT_EQ(host_.lastBoxText,
              "Fehler Nummer 62 wurde ausgel\xF6st von Korvex\r\nEinlesen hinter Dateiende\r\n"
              "Sub: assembleSource");

    std::string source = "#cpu test\r\n";
    for (int i = 1; i < 32767; ++i) source += ";\r\n";
    EXPECT_EQ(assemble(source), RunOutcome::Completed);
    source += ";\r\n";
    EXPECT_EQ(assemble(source), RunOutcome::Failed);
    EXPECT_NE(host_.lastBoxText.find("\xDC"
                                     "berlauf"),
              std::string::npos);
}

TEST_F(RunTest, FindingsNeverSuppressOutputsButFailuresWriteNone) {
    ASSERT_EQ(assembleLines({"MOV A,#1", "BOGUS X,Y", "LJMP NOWHERE"}), RunOutcome::Completed);
    EXPECT_EQ(image(), std::string("\x74\x01\x00\x00\x02\x00\x00", 7));
    // The unknown word became a two-byte call, then a one-byte faulty ACALL in
    // the second pass: the address of the next row does not move, so the hex
    // file shows a break.
    EXPECT_EQ(readFile("prog.h51"), ":0300000074010088\r\n:03000400020000F7\r\n:00000001FF\r\n");
    EXPECT_EQ(readFile("prog.s51"), "\"\",\"\",\"\"\r\n");  // no symbol: one empty row

    EXPECT_EQ(assembleLines({"NOP", "MOV A,#0-300"}), RunOutcome::Failed);
    EXPECT_FALSE(fileExists(folder_ + "prog.h51"));
    EXPECT_FALSE(fileExists(folder_ + "prog.b51"));

    // The extension is cut only near the end of the name.
    writeFile("TmpFile.tmp", "#cpu test\r\nNOP\r\n");
    std::filesystem::create_directories(folder_ + "my.project");
    ASSERT_EQ(
        assembler_->assembleSource(folder_ + "my.project/source", {false, true, false, false}),
        RunOutcome::Completed);
    EXPECT_TRUE(fileExists(folder_ + "my.project/source.h51"));
}

TEST_F(RunTest, HexRecordsFollowTheRows) {
    // A label at a new address ends a record; one going back starts a new one,
    // and its byte overwrites the old one in the binary image.
    ASSERT_EQ(assembleLines(
                  {"LJMP 0100h", "HERE:", "NOP", "ORG 100h", "THERE:", "RET", "ORG 0", "DB 12h"}),
              RunOutcome::Completed);
    EXPECT_EQ(readFile("prog.h51"),
              ":0400000002010000F9\r\n:0101000022DC\r\n:0100000012ED\r\n:00000001FF\r\n");
    ASSERT_EQ(image().size(), 0x101u);
    EXPECT_EQ(hexBytes(image().substr(0, 5)), "12 01 00 00 00");
}

class AbortingHost : public QuietHost {
  public:
    explicit AbortingHost(int afterCalls) : remaining_(afterCalls) {}
    void processPendingEvents() override {
        if (--remaining_ == 0 && assembler) assembler->requestAbort();
    }
    Assembler* assembler = nullptr;

  private:
    int remaining_;
};

TEST_F(RunTest, CancelStopsWithoutReportOrOutput) {
    // Three lines read, each after a pending-events call; call five ends the second pass.
    for (int calls : {3, 5}) {
        AbortingHost host(calls);
        Assembler assembler(host, assembler_->settings());
        host.assembler = &assembler;
        writeFile("TmpFile.tmp", "#cpu test\r\nLJMP LATER\r\nLATER:\r\nNOP\r\n");
        EXPECT_EQ(assembler.assembleSource(folder_ + "prog.a51", kAllOutputs), RunOutcome::Aborted);
        EXPECT_TRUE(host.dialogText.empty());
        EXPECT_FALSE(fileExists(folder_ + "prog.h51"));
    }
}

class LengthCheckTest : public AssemblerFixture {
  protected:
    std::vector<std::string> warningsOf(const std::vector<std::string>& lines) {
        EXPECT_EQ(assembleLines(lines), RunOutcome::Completed);
        return lengthChangeWarnings(assembler_->state());
    }
};

TEST_F(LengthCheckTest, ForwardNamesThatChangeTheFormAreNamedByLine) {
    // Line 1 is the driver line, so the statements below stand on lines 2 and on.
    auto warnings = warningsOf({"mov 30h,#K", "#CONST K=5", "nop"});
    ASSERT_EQ(warnings.size(), 1u);
    EXPECT_EQ(warnings[0],
              text8("Warnung: prog.a51 Zeile 2: Die Anweisung „mov 30h,#K“ ist im 2. Durchlauf 3 "
                    "statt 2 Byte lang (Vorwärtsbezug); die Adressen dahinter stimmen nicht, der "
                    "erzeugte Code ist falsch. Definieren Sie den Namen vor seiner ersten "
                    "Verwendung."));
    // The encoding itself stays as it is: three bytes at 0, the NOP at 2.
    EXPECT_EQ(bytesAt(0), "75 30 05");
    EXPECT_EQ(addressAt(2), "0002");

    // An include names its file, though two includes at one depth share a number.
    writeFile("eins.a51", "NOP\r\n");
    writeFile("teil.a51", "; Teil\r\nmov 30h,#K\r\n");
    warnings = warningsOf({"#INCLUDE eins.a51", "MOV fwdByte,#1", "MOV 30h,fwdName : NOP",
                           "#BYTE fwdByte=30h", "#BYTE fwdName=40h",
                           "#include 'teil.a51' ; zweiter Teil", "#CONST K=5"});
    ASSERT_EQ(warnings.size(), 3u);
    EXPECT_TRUE(startsWith(warnings[0], "Warnung: prog.a51 Zeile 3: ")) << warnings[0];
    EXPECT_NE(warnings[1].find(text8("Zeile 4: Die Anweisung „MOV 30h,fwdName“ ist im 2. "
                                     "Durchlauf 3 statt 2 Byte")),
              std::string::npos)
        << warnings[1];
    EXPECT_TRUE(startsWith(warnings[2], "Warnung: teil.a51 Zeile 2: ")) << warnings[2];
}

TEST_F(LengthCheckTest, ForwardNamesThatKeepTheFormGiveNoWarning) {
    EXPECT_EQ(warningsOf({"LJMP later", "MOV A,#K", "MOV R0,#K", "SJMP later", "CALL later",
                          "later", "DB K, later", "later: NOP", "#CONST K=1", "MOV 30h,#nowhere"}),
              std::vector<std::string>{});
}

}  // namespace
}  // namespace korvex::testing
