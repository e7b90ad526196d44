// Directives: driver files, #USE, macros and includes.

#include <gtest/gtest.h>

#include "assembler_fixture.h"

namespace korvex::testing {
namespace {

using DirectivesTest = AssemblerFixture;

TEST_F(DirectivesTest, DriverFormsAndNames) {
    for (const char* form :
         {"#CPU test", "#cpu=test", "#CPUtest", "# cpu  test", "CPU test", "cpu=test"}) {
        ASSERT_EQ(assemble(std::string(form) + "\r\nSETB TR1\r\nMOV A,P1\r\n"),
                  RunOutcome::Completed)
            << form;
        EXPECT_EQ(code(1), "0000\tD2\t8E") << form;
        EXPECT_EQ(code(2), "0002\tE5\t90") << form;
    }
    EXPECT_EQ(assembler_->cpuDriver().vectorCount, 3);
    EXPECT_EQ(assembler_->cpuDriver().sfrCount, 7);
    EXPECT_EQ(assembler_->state().firstUserBit, 2);
}

TEST_F(DirectivesTest, MalformedDriversNeverStopTheRun) {
    writeFile("odd.cpu",
              "header text\r\nsfr\r\nVECTOR ; comment\r\n0000 RESET\r\n8000 HIGHVEC\r\n"
              "\tSFR\t; registers\r\n9\r\n90 P1\r\nBIT\r\n9");
    ASSERT_EQ(assemble("#cpu odd\r\nMOV A,P1\r\nSETB P1.1\r\nHIGHVEC:\r\n"), RunOutcome::Completed);
    const auto& state = assembler_->state();
    EXPECT_EQ(state.labelTable.at(1, 1), "-32768");  // read as a 16-bit value
    EXPECT_EQ(state.sfrTable.at(0, 0), "");          // short line: empty name, stored
    EXPECT_EQ(code(1), "0000\tE5\t90");
    EXPECT_EQ(code(2), "0002\tD2\t91");

    writeFile("novector.cpu", "VECTOR\r\n0003\r\n");
    ASSERT_EQ(assemble("#cpu test\r\n#cpu novector\r\nNOP\r\n"), RunOutcome::Completed);
    EXPECT_EQ(host_.lastBoxText.substr(0, 10), "Fehler  5:");

    host_.boxCount = 0;
    ASSERT_EQ(assemble("#cpu test\r\n#cpu missing\r\nNOP\r\n"), RunOutcome::Completed);
    EXPECT_EQ(host_.boxCount, 1);
    EXPECT_EQ(host_.lastBoxText, "Fehler  53: Datei nicht gefunden.\r\n" + folder_ + "missing.cpu");

    std::string garbage;
    for (int i = 0; i < 2000; ++i) garbage += static_cast<char>((i * 7919) % 256);
    writeFile("garbage.cpu", garbage);
    EXPECT_NE(assemble("#cpu garbage\r\nNOP\r\n"), RunOutcome::Aborted);
}

TEST_F(DirectivesTest, SecondDriverCutsTheTables) {
    writeFile("one.cpu", "VECTOR\r\n0000 RESET\r\nBIT\r\n90 X\r\n");
    ASSERT_EQ(assemble("#cpu test\r\nLABEL1:\r\n#cpu one\r\nLABEL1:\r\n"), RunOutcome::Completed);
    // The label before the second driver is gone, so no double definition.
    EXPECT_EQ(row(3).marker, "");
    EXPECT_EQ(assembler_->state().bitTable.size(), 1);
}

TEST_F(DirectivesTest, UseChoosesTheImplicitCall) {
    ASSERT_EQ(
        assembleLines({"Sub1", "#use lcall", "Sub1", "#USE  ACALL", "Sub1", "#USE XCALL", "SUB1:"}),
        RunOutcome::Completed);
    EXPECT_EQ(bytesOfRow(0), "11 07");
    EXPECT_EQ(bytesOfRow(2), "12 00 07");
    EXPECT_EQ(bytesOfRow(4), "11 07");
    EXPECT_EQ(markers(), std::vector<std::string>{});  // the #USE finding is dropped
}

TEST_F(DirectivesTest, MacrosWithAndWithoutParameters) {
    ASSERT_EQ(assembleLines({"#DEF TWICE {NOP : NOP}", "#def Load(reg,val) {mov (reg) , #(val)}",
                             "TWICE", "LOAD(R3,7)", "NOP : Load(A, 'x')", "TWICE2",
                             "#DEF TWICE {RET}", "#DEF X {NOP", "#USE LOAD", "NOP"}),
              RunOutcome::Completed);
    EXPECT_EQ(bytesOfRow(2), "00");
    EXPECT_EQ(bytesOfRow(3), "00");
    EXPECT_EQ(row(3).position, row(2).position);
    EXPECT_EQ(bytesOfRow(4), "7B 07");
    // A call replaces the whole line, also what stood before it; its text
    // keeps the case of the arguments.
    EXPECT_EQ(bytesOfRow(5), "74 78");
    EXPECT_EQ(markerNumber(6), 6);  // TWICE2 is another word: an unknown call
    EXPECT_EQ(row(7).marker, ";>err64 doppelte Definition");
    EXPECT_EQ(row(8).marker, ";>err65 es fehlen {}");
    EXPECT_EQ(row(9).marker, ";>err67 Argumente fehlen");
    const auto& symbols = assembler_->state().symbolList;
    EXPECT_EQ(symbols.at(0, 0), "TWICE ");
    EXPECT_EQ(symbols.at(0, 1), "DEF");
    EXPECT_EQ(symbols.at(0, 2), "NOP : NOP");
}

TEST_F(DirectivesTest, SelfFeedingMacroEndsInAnOverflow) {
    EXPECT_EQ(assembleLines({"#DEF GROW {GROW GROW}", "GROW"}), RunOutcome::Failed);
    EXPECT_EQ(assembleLines({"#DEF F(A) {NOP (A)}", "F(X,Y)"}), RunOutcome::Failed);
}

TEST_F(DirectivesTest, IncludesReadFromDiskOrFromOpenWindows) {
    writeFile("inc.a51", "INCLABEL:\r\r\nMOV A,#1\r\r\n");
    ASSERT_EQ(assembleLines({"#include inc.a51", "LJMP INCLABEL", "#INCLUDE 'missing.a51'"}),
              RunOutcome::Completed);
    EXPECT_EQ(row(1).position, "2:1");
    EXPECT_EQ(row(2).position, "2:2");
    EXPECT_EQ(bytesOfRow(3), "02 00 00");
    EXPECT_EQ(row(4).marker, ";>err66 Include-Datei nicht gefunden: " + folder_ + "missing.a51");
    EXPECT_EQ(readFile("inc.a51"), "INCLABEL:\r\nMOV A,#1\r\n");  // repaired on disk
    EXPECT_EQ(host_.appendedText,
              "Lese " + folder_ + "inc.a51\r\nkann " + folder_ + "missing.a51 nicht finden.\r\n");
    EXPECT_EQ(assembler_->state().includeList.at(1), folder_ + "inc.a51");
}

TEST_F(DirectivesTest, IncludeOpenInAWindowIsReadFromTheWindow) {
    writeFile("inc.a51", "NOP\r\n");
    host_.windows[folder_ + "INC.A51"] = "RET\r\nRET\r\n";
    ASSERT_EQ(assembleLines({"#include inc.a51"}), RunOutcome::Completed);
    EXPECT_EQ(image(), "\x22\x22");
    EXPECT_FALSE(fileExists(folder_ + "TmpFile2.tmp"));  // the copy is gone after the run
}

TEST_F(DirectivesTest, IncludeIsShownAndListedAsTheSourceNamesIt) {
    // Found on disk in another case, shown and listed as the source names it.
    writeFile("teil.a51", "NOP\r\n");
    ASSERT_EQ(assembleLines({"#include TEIL.A51", "RET"}), RunOutcome::Completed);
    EXPECT_EQ(host_.appendedText, "Lese " + folder_ + "TEIL.A51\r\n");
    EXPECT_EQ(assembler_->state().includeList.at(1), folder_ + "TEIL.A51");
    EXPECT_EQ(image(), std::string("\x00\x22", 2));
}

TEST_F(DirectivesTest, IncludePathsGoUpWithDotDot) {
    EXPECT_EQ(resolveIncludePath("..\\..\\lib\\x.a51", "/home/u/proj/src/"), "/home/u/lib/x.a51");
    EXPECT_EQ(resolveIncludePath("../x.a51", "/home/u/proj/src/"), "/home/u/proj/x.a51");
    EXPECT_EQ(resolveIncludePath("sub\\\\x.a51", "/p/"), "/p/sub/x.a51");
    EXPECT_EQ(resolveIncludePath("/abs/x.a51", "/p/"), "/abs/x.a51");
}

TEST_F(DirectivesTest, NestedIncludeEndsTheRunAtTheMiddleFilesEnd) {
    writeFile("inner.a51", "NOP\r\n");
    writeFile("middle.a51", "#include inner.a51\r\nNOP\r\n");
    EXPECT_EQ(assembleLines({"#include middle.a51", "NOP"}), RunOutcome::Failed);
    // With the inner include as the middle file's last line, the rest of the
    // main source is not read.
    writeFile("middle.a51", "NOP\r\n#include inner.a51\r\n");
    ASSERT_EQ(assembleLines({"#include middle.a51", "RET"}), RunOutcome::Completed);
    EXPECT_EQ(image(), std::string("\0\0", 2));
}

}  // namespace
}  // namespace korvex::testing
