// Directives: driver files, #USE, declarations, macros, includes and the
// project a part names.

#include <gtest/gtest.h>

#include "assembler/compile_source.h"
#include "assembler_fixture.h"
#include "base/text.h"

namespace korvex::testing {
namespace {

using DirectivesTest = AssemblerFixture;

TEST_F(DirectivesTest, DriverFormsAndNames) {
    for (const char* form : {"#cpu=test", "#CPUtest", "# cpu  test", "CPU test", "cpu=test"}) {
        ASSERT_EQ(assemble(std::string(form) + "\r\nSETB TR1\r\nMOV A,P1\r\n"),
                  RunOutcome::Completed)
            << form;
        EXPECT_EQ(hexImage(), "D2 8E E5 90") << form;
    }
    EXPECT_EQ(assembler_->cpuDriver().vectorCount, 3);
    EXPECT_EQ(assembler_->cpuDriver().sfrCount, 7);
}

TEST_F(DirectivesTest, MalformedDriversNeverStopTheRun) {
    writeFile("odd.cpu",
              "header text\r\nsfr\r\nVECTOR ; comment\r\n0000 RESET\r\n8000 HIGHVEC\r\n"
              "\tSFR\t; registers\r\n9\r\n90 P1\r\nBIT\r\n9");
    ASSERT_EQ(assemble("#cpu odd\r\nMOV A,P1\r\nSETB P1.1\r\n"), RunOutcome::Completed);
    EXPECT_EQ(hexImage(), "E5 90 D2 91");

    writeFile("novector.cpu", "VECTOR\r\n0003\r\n");
    ASSERT_EQ(assemble("#cpu test\r\n#cpu novector\r\nNOP\r\n"), RunOutcome::Completed);
    EXPECT_EQ(host_.lastBoxText.substr(0, 10), "Fehler  5:");

    host_.boxCount = 0;
    ASSERT_EQ(assemble("#cpu test\r\n#cpu missing\r\nNOP\r\n"), RunOutcome::Completed);
    EXPECT_EQ(host_.boxCount, 1);
    EXPECT_EQ(host_.lastBoxText, "Fehler  53: Datei nicht gefunden.\r\n" + folder_ + "missing.cpu");

    // A second driver cuts the tables: the label before it is gone.
    writeFile("one.cpu", "VECTOR\r\n0000 RESET\r\nBIT\r\n90 X\r\n");
    ASSERT_EQ(assemble("#cpu test\r\nLABEL1:\r\n#cpu one\r\nLABEL1:\r\n"), RunOutcome::Completed);
    EXPECT_EQ(findings(), std::vector<std::string>{});
}

TEST_F(DirectivesTest, UseChoosesTheImplicitCall) {
    ASSERT_EQ(
        assembleLines({"Sub1", "#use lcall", "Sub1", "#USE  ACALL", "Sub1", "#USE XCALL", "SUB1:"}),
        RunOutcome::Completed);
    EXPECT_EQ(hexImage(), "11 07 12 00 07 11 07");
    EXPECT_EQ(findings(), std::vector<std::string>{});  // the #USE finding is dropped
}

TEST_F(DirectivesTest, DeclarationsArePlacedFromTheTopDown) {
    ASSERT_EQ(assembleLines({"#BYTE A1, B1=21h, C1", "#WORD W1", "#WORD W2", "#BYTE D1",
                             "#BIT F1, F2=20h.3, F3", "#EXCLUDE BIT 70h-7Dh", "#BIT F4",
                             "#CONST K=1234h, Z='a'", "MOV DPTR,#K", "MOV A,#Z", "MOV B1,#LOW(K)",
                             "SETB B1.1", "SETB F4", "NOP : #BYTE LATE", "MOV A,LATE"}),
              RunOutcome::Completed);
    EXPECT_EQ(symbol("A1"), "7Fh");
    EXPECT_EQ(symbol("B1"), "21h");
    EXPECT_EQ(symbol("C1"), "7Eh");
    EXPECT_EQ(symbol("W1"), "7Ch");
    EXPECT_EQ(symbol("W2"), "7Bh");  // shares 7Ch: words look at exact matches only
    EXPECT_EQ(symbol("D1"), "7Ah");
    EXPECT_EQ(symbol("F1"), "7Fh");
    EXPECT_EQ(symbol("F2"), "03h");
    EXPECT_EQ(symbol("F3"), "7Eh");
    EXPECT_EQ(symbol("F4"), "6Fh");  // below the excluded bits
    EXPECT_EQ(bytesAt(8), "90 12 34");
    EXPECT_EQ(bytesAt(9), "74 41");  // the key was folded first: 'a' is read as 'A'
    EXPECT_EQ(bytesAt(10), "75 21 34");
    EXPECT_EQ(bytesAt(11), "D2 09");
    EXPECT_EQ(bytesAt(12), "D2 6F");
    EXPECT_EQ(bytesAt(14), "E5 79");  // a declaration after a statement takes no row

    ASSERT_EQ(assembleLines({"#EXCLUDE BYTE 70h-7Fh", "#BYTE A1"}), RunOutcome::Completed);
    EXPECT_EQ(symbol("A1"), "6Fh");
    ASSERT_EQ(assembleLines({"#EXCLUDE BYTE 0-300"}), RunOutcome::Completed);
    EXPECT_EQ(host_.lastBoxText,
              "Fehler  6: \xDC"
              "berlauf.");
}

TEST_F(DirectivesTest, RefusedNamesAreMarked) {
    ASSERT_EQ(
        assembleLines({"#CONST K", "#CONST K1=1", "#CONST K1=2", "#BIT F", "#BIT F", "#BIT TR1",
                       "#BYTE SP", "#BYTE V", "#BYTE V", "#BYTE V2=1", "#BYTE V2=2", "#WORD ACC",
                       "#WORD W", "#WORD W", "#BYTE N=XYZ", "#BIT G=30h.1"}),
        RunOutcome::Completed);
    EXPECT_EQ(findings(), (std::vector<std::string>{
                              "1:2 ;>err53 falsche Konstantendeklaration (= fehlt)",
                              "1:4 ;>err52 Konstante 'K1' ist bereits definiert",
                              "1:6 ;>err54 Bit 'F' ist bereits definiert",
                              "1:7 ;>err54 Bit 'TR1' ist bereits definiert",  // the driver's bit
                              "1:8 ;>err57 'SP' ist ein Spezialfunktionsregister.",
                              "1:10 ;>err58 Mehrfachdefinition von 'V'",
                              "1:12 ;>err59 Mehrfachdefinition von 'V2'",
                              "1:13 ;>err60 SFR 'ACC' hat denselben Namen.",
                              "1:15 ;>err61 Word 'W' ist bereits definiert",
                              "1:16 ;>err51 Zahl nicht erkannt: XYZ",
                              "1:17 ;>err50 ung\xFCltige Bitbezeichnung 30H.1",
                          }));
    EXPECT_NE(symbol("G"), "-");  // a refused bit value still stores the name
}

TEST_F(DirectivesTest, MacrosWithAndWithoutParameters) {
    ASSERT_EQ(assembleLines({"#DEF TWICE {NOP : NOP}", "#def Load(reg,val) {mov (reg) , #(val)}",
                             "TWICE", "LOAD(R3,7)", "NOP : Load(A, 'x')", "TWICE2",
                             "#DEF TWICE {RET}", "#DEF X {NOP", "#USE LOAD", "NOP"}),
              RunOutcome::Completed);
    EXPECT_EQ(bytesAt(2), "00 00");
    EXPECT_EQ(bytesAt(3), "7B 07");
    // A call replaces the whole line, also what stood before it; its text
    // keeps the case of the arguments.
    EXPECT_EQ(bytesAt(4), "74 78");
    EXPECT_EQ(findings(), (std::vector<std::string>{
                              "1:7 ;>err6: unbekannter Befehl bzw. Sprungziel nicht gefunden",
                              "1:8 ;>err64 doppelte Definition", "1:9 ;>err65 es fehlen {}",
                              "1:10 ;>err67 Argumente fehlen"}));
    EXPECT_NE(report().find(" 2 Definitionen:\r\n\tTWICE : NOP : NOP\r\n"), std::string::npos)
        << report();

    EXPECT_EQ(assembleLines({"#DEF GROW {GROW GROW}", "GROW"}), RunOutcome::Failed);
    EXPECT_EQ(assembleLines({"#DEF F(A) {NOP (A)}", "F(X,Y)"}), RunOutcome::Failed);
}

TEST_F(DirectivesTest, IncludesReadFromDiskOrFromOpenWindows) {
    writeFile("inc.a51", "INCLABEL:\r\r\nMOV A,#1\r\r\n");
    ASSERT_EQ(assembleLines({"#include inc.a51", "LJMP INCLABEL", "#INCLUDE 'missing.a51'"}),
              RunOutcome::Completed);
    EXPECT_EQ(bytesAt(1), "02 00 00");
    EXPECT_EQ(findings(), std::vector<std::string>{"1:4 ;>err66 Include-Datei nicht gefunden: " +
                                                   folder_ + "missing.a51"});
    EXPECT_EQ(readFile("inc.a51"), "INCLABEL:\r\nMOV A,#1\r\n");  // repaired on disk
    EXPECT_EQ(host_.appendedText,
              "Lese " + folder_ + "inc.a51\r\nkann " + folder_ + "missing.a51 nicht finden.\r\n");
    EXPECT_NE(readFile("prog.l51").find("2:2\tMOV A,#1"), std::string::npos);

    host_.windows[folder_ + "INC.A51"] = "RET\r\nRET\r\n";
    ASSERT_EQ(assembleLines({"#include inc.a51"}), RunOutcome::Completed);
    EXPECT_EQ(image(), "\x22\x22");
    EXPECT_FALSE(fileExists(folder_ + "TmpFile2.tmp"));  // the copy is gone after the run

    // Found on disk in another case, shown as the source names it.
    writeFile("teil.a51", "NOP\r\n");
    host_.appendedText.clear();
    ASSERT_EQ(assembleLines({"#include TEIL.A51", "RET"}), RunOutcome::Completed);
    EXPECT_EQ(host_.appendedText, "Lese " + folder_ + "TEIL.A51\r\n");
    EXPECT_EQ(image(), std::string("\x00\x22", 2));

    EXPECT_EQ(resolveIncludePath("..\\..\\lib\\x.a51", "/home/u/proj/src/"), "/home/u/lib/x.a51");
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

// What is assembled: a window's own text or its project's, and a project made
// of includes and macros gives the same image from disk and from windows.
TEST_F(DirectivesTest, APartCompilesItsProjectFromDiskOrFromWindows) {
    const char* const main =
        "#cpu test\r\n#def Load(reg,val) {mov (reg), #(val)}\r\n#include lib.a51\r\n"
        "        Load(R2,3)\r\n        Twice\r\n        SJMP HIER\r\n";
    const char* const lib = "; #part of main.a51\r\n#def Twice {INC R2 : INC R2}\r\nMOV R2,#1\r\n";
    const auto project = [&] {
        const auto source = decideCompileSource(folder_ + "lib.a51", lib, host_);
        EXPECT_TRUE(source.has_value());
        EXPECT_EQ(assemble(source ? source->text : ""), RunOutcome::Completed);
        EXPECT_EQ(findings(), std::vector<std::string>{});
        return image();
    };
    writeFile("main.a51", main);
    writeFile("lib.a51", lib);
    EXPECT_EQ(project(), std::string("\x7A\x01\x7A\x03\x0A\x0A\x80\xFE", 8));
    // The same texts, unsaved in windows, over outdated files on disk.
    writeFile("main.a51", "garbage\r\n");
    writeFile("lib.a51", "garbage\r\n");
    host_.windows[folder_ + "main.a51"] = main;
    host_.windows[folder_ + "LIB.A51"] = lib;
    EXPECT_EQ(project(), std::string("\x7A\x01\x7A\x03\x0A\x0A\x80\xFE", 8));
    EXPECT_EQ(readFile("lib.a51"), "garbage\r\n");  // no file of the user is written
}

}  // namespace
}  // namespace korvex::testing
