// A forward reference that changes the form of an instruction gives it another
// length in the second pass; the run keeps the encoding but names the line.

#include <gtest/gtest.h>

#include "assembler/length_check.h"
#include "assembler/source_file.h"
#include "assembler_fixture.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex::testing {
namespace {

class LengthCheckTest : public AssemblerFixture {
  protected:
    // The warnings of a run of "#cpu test" and the lines, with the main file
    // named as the command line names it.
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
    EXPECT_EQ(bytesOfRow(0), "75 30 05");
    EXPECT_EQ(code(2).substr(0, 4), "0002");

    warnings = warningsOf(
        {"NOP", "MOV fwdByte,#1", "MOV fwdLabel,#2", "#BYTE fwdByte=30h", "fwdLabel:", "NOP"});
    ASSERT_EQ(warnings.size(), 2u);
    EXPECT_TRUE(startsWith(warnings[0], "Warnung: prog.a51 Zeile 3: ")) << warnings[0];
    EXPECT_TRUE(startsWith(warnings[1], "Warnung: prog.a51 Zeile 4: ")) << warnings[1];

    warnings = warningsOf({"MOV 30h,fwdName : NOP", "#BYTE fwdName=40h"});
    ASSERT_EQ(warnings.size(), 1u);
    EXPECT_NE(warnings[0].find(text8("Zeile 2: Die Anweisung „MOV 30h,fwdName“ ist im 2. "
                                     "Durchlauf 3 statt 2 Byte")),
              std::string::npos)
        << warnings[0];
}

TEST_F(LengthCheckTest, ForwardNamesThatKeepTheFormGiveNoWarning) {
    EXPECT_EQ(warningsOf({"LJMP later", "MOV A,#K", "MOV R0,#K", "SJMP later", "CALL later",
                          "later", "DB K, later", "later: NOP", "#CONST K=1"}),
              std::vector<std::string>{});
    // A row that fails in both passes keeps its length as well.
    EXPECT_EQ(warningsOf({"MOV 30h,#nowhere"}), std::vector<std::string>{});
}

TEST_F(LengthCheckTest, StatementsOfAnIncludeNameTheirFile) {
    writeFile("eins.a51", "NOP\r\n");
    writeFile("teil.a51", "; Teil\r\nmov 30h,#K\r\n");
    auto warnings = warningsOf(
        {"#INCLUDE eins.a51", "#include 'teil.a51' ; zweiter Teil", "mov 31h,#K", "#CONST K=5"});
    ASSERT_EQ(warnings.size(), 2u);
    EXPECT_TRUE(startsWith(warnings[0], "Warnung: teil.a51 Zeile 2: ")) << warnings[0];
    EXPECT_TRUE(startsWith(warnings[1], "Warnung: prog.a51 Zeile 4: ")) << warnings[1];

    // Without a source name the main file's lines stand alone.
    probe().state().sourceName.clear();
    EXPECT_TRUE(startsWith(lengthChangeWarnings(assembler_->state())[1], "Warnung: Zeile 4: "));
}

TEST_F(LengthCheckTest, BundledExamplesGiveNone) {
    const std::string examples = std::string(KORVEX_DATA_DIR) + "/../examples/";
    assembler_->settings().programFolder = std::string(KORVEX_DATA_DIR) + "/cpu/";
    writeFile("sprache_teil.a51", readWholeFile(examples + "sprache_teil.a51"));
    for (const char* name : {"beispiel.a51", "sprache.a51"}) {
        SCOPED_TRACE(name);
        ASSERT_EQ(assemble(readWholeFile(examples + name)), RunOutcome::Completed);
        EXPECT_GT(assembler_->state().sourceTable.size(), 20u);
        EXPECT_EQ(host_.boxCount, 0);
        EXPECT_EQ(lengthChangeWarnings(assembler_->state()), std::vector<std::string>{});
    }
}

}  // namespace
}  // namespace korvex::testing
