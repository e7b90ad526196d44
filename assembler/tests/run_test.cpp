// The run as a whole: end-of-file rules, the trap, abort, findings that never
// stop a run, and the outputs beside the source.

#include <gtest/gtest.h>

#include "assembler/source_file.h"
#include "assembler_fixture.h"

#include <filesystem>

namespace korvex::testing {
namespace {

using RunTest = AssemblerFixture;

TEST_F(RunTest, LineEndsAndTheLastLine) {
    ASSERT_EQ(assemble("#cpu test\rNOP\rNOP\r\nNOP\nRET"), RunOutcome::Completed);
    EXPECT_EQ(image(), std::string("\0\0\0\x22", 4));
    // A trailing line end does not make an extra row.
    ASSERT_EQ(assemble("#cpu test\r\nNOP\r\n"), RunOutcome::Completed);
    EXPECT_EQ(assembler_->state().sourceTable.size(), 2u);
}

TEST_F(RunTest, EmptySourceReadsPastTheEnd) {
    EXPECT_EQ(assemble(""), RunOutcome::Failed);
    EXPECT_EQ(host_.lastBoxTitle, "Fehler");
    EXPECT_EQ(host_.lastBoxText,
              "Fehler Nummer 62 wurde ausgel\xF6st von Korvex\r\nEinlesen hinter Dateiende\r\n"
              "Sub: assembleSource");
}

TEST_F(RunTest, SixteenBitLineCounterOverflows) {
    std::string source = "#cpu test\r\n";
    for (int i = 1; i < 32767; ++i) source += ";\r\n";
    EXPECT_EQ(assemble(source), RunOutcome::Completed);
    source += ";\r\n";
    EXPECT_EQ(assemble(source), RunOutcome::Failed);
    EXPECT_NE(host_.lastBoxText.find("\xDC"
                                     "berlauf"),
              std::string::npos);
}

TEST_F(RunTest, FailureWritesNoOutputs) {
    EXPECT_EQ(assembleLines({"NOP", "MOV A,#0-300"}, {true, true, true, true}), RunOutcome::Failed);
    EXPECT_FALSE(fileExists(folder_ + "prog.h51"));
    EXPECT_FALSE(fileExists(folder_ + "prog.b51"));
}

TEST_F(RunTest, FindingsNeverSuppressOutputs) {
    ASSERT_EQ(assembleLines({"MOV A,#1", "BOGUS X,Y", "LJMP NOWHERE"}, {true, true, false, true}),
              RunOutcome::Completed);
    EXPECT_EQ(readFile("prog.b51"), std::string("\x74\x01\x00\x00\x02\x00\x00", 7));
    // The unknown word became a two-byte call, then a one-byte faulty ACALL in
    // the second pass: the address of the next row does not move, so the hex
    // file shows a break.
    EXPECT_EQ(readFile("prog.h51"), ":0300000074010088\r\n:03000400020000F7\r\n:00000001FF\r\n");
    EXPECT_EQ(readFile("prog.s51"), "\"\",\"\",\"\"\r\n");  // no symbol: one empty row
}

TEST_F(RunTest, ExtensionIsCutOnlyNearTheEnd) {
    writeFile("TmpFile.tmp", "#cpu test\r\nNOP\r\n");
    std::string name = folder_ + "my.project/source";
    std::filesystem::create_directories(folder_ + "my.project");
    ASSERT_EQ(assembler_->assembleSource(name, {false, true, false, false}), RunOutcome::Completed);
    EXPECT_EQ(name, folder_ + "my.project/source");
    EXPECT_TRUE(fileExists(folder_ + "my.project/source.h51"));
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
    AbortingHost host(3);
    AssemblerSettings settings = assembler_->settings();
    Assembler assembler(host, settings);
    host.assembler = &assembler;
    writeFile("TmpFile.tmp", "#cpu test\r\nNOP\r\nNOP\r\nNOP\r\n");
    std::string name = folder_ + "prog.a51";
    EXPECT_EQ(assembler.assembleSource(name, {true, true, true, true}), RunOutcome::Aborted);
    EXPECT_EQ(assembler.state().sourceTable.size(), 2u);
    EXPECT_FALSE(fileExists(folder_ + "prog.h51"));
}

TEST_F(RunTest, CancelDuringTheSecondPassStopsBeforeReportAndOutputs) {
    // Four lines read, each after a pending-events call; the fifth call ends the second pass.
    AbortingHost host(5);
    Assembler assembler(host, assembler_->settings());
    host.assembler = &assembler;
    writeFile("TmpFile.tmp", "#cpu test\r\nLJMP LATER\r\nLATER:\r\nNOP\r\n");
    std::string name = folder_ + "prog.a51";
    EXPECT_EQ(assembler.assembleSource(name, {true, true, true, true}), RunOutcome::Aborted);
    EXPECT_EQ(assembler.state().codeText.at(1).substr(0, 13), "0000\t02\t00\t03");  // healed
    EXPECT_TRUE(assembler.state().reportText.empty());
    EXPECT_FALSE(fileExists(folder_ + "prog.h51"));
}

}  // namespace
}  // namespace korvex::testing
