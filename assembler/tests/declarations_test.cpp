// Declarations: values, downward placement, exclusions and the clashes the
// declaration code refuses.

#include <gtest/gtest.h>

#include "assembler_fixture.h"

namespace korvex::testing {
namespace {

class DeclarationsTest : public AssemblerFixture {
  protected:
    std::string byteAddress(const std::string& key) const {
        const auto& table = assembler_->state().byteTable;
        const int row = table.find(key);
        return row < 0 ? "-" : table.at(row, 1);
    }
    std::string wordAddress(const std::string& key) const {
        const auto& table = assembler_->state().wordTable;
        const int row = table.find(key);
        return row < 0 ? "-" : table.at(row, 1);
    }
    std::string bitAddress(const std::string& key) const {
        const auto& table = assembler_->state().bitTable;
        const int row = table.find(key);
        return row < 0 ? "-" : table.at(row, 1);
    }
};

TEST_F(DeclarationsTest, BytesArePlacedFromTheTopDown) {
    ASSERT_EQ(assembleLines({"#BYTE A1, B1=30h, C1"}), RunOutcome::Completed);
    EXPECT_EQ(byteAddress("A1"), "127");
    EXPECT_EQ(byteAddress("B1"), "48");
    EXPECT_EQ(byteAddress("C1"), "126");
    ASSERT_EQ(assembleLines({"#BYTE A1=7Fh", "#BYTE B1"}), RunOutcome::Completed);
    EXPECT_EQ(byteAddress("B1"), "126");
    ASSERT_EQ(assembleLines({"#EXCLUDE BYTE 70h-7Fh", "#BYTE A1"}), RunOutcome::Completed);
    EXPECT_EQ(byteAddress("A1"), "111");
}

TEST_F(DeclarationsTest, WordsTakeTwoBytesButLookAtExactMatchesOnly) {
    ASSERT_EQ(assembleLines({"#WORD W", "#BYTE B1"}), RunOutcome::Completed);
    EXPECT_EQ(wordAddress("W"), "127");
    EXPECT_EQ(byteAddress("B1"), "126");
    ASSERT_EQ(assembleLines({"#BYTE B1", "#WORD W"}), RunOutcome::Completed);
    EXPECT_EQ(wordAddress("W"), "125");
    ASSERT_EQ(assembleLines({"#WORD W1", "#WORD W2"}), RunOutcome::Completed);
    EXPECT_EQ(wordAddress("W2"), "126");  // shares 7Fh with the first
}

TEST_F(DeclarationsTest, BitsAreHexadecimalAndSkipTheDriversBits) {
    ASSERT_EQ(assembleLines({"#BIT F1, F2=20h.3, F3", "#EXCLUDE BIT 70h-7Dh", "#BIT F4", "SETB F1",
                             "SETB F2", "SETB F3", "SETB F4"}),
              RunOutcome::Completed);
    EXPECT_EQ(bitAddress("F1"), "7F");
    EXPECT_EQ(bitAddress("F2"), "3");
    EXPECT_EQ(bitAddress("F3"), "7E");
    EXPECT_EQ(bitAddress("F4"), "6F");
    EXPECT_EQ(bytesOfRow(3), "D2 7F");
    EXPECT_EQ(bytesOfRow(6), "D2 6F");
}

TEST_F(DeclarationsTest, ConstantsAndValuesWorkInExpressions) {
    ASSERT_EQ(assembleLines({"#CONST K=1234h, Z='a'", "#byte x=21h", "MOV DPTR,#K", "MOV A,#Z",
                             "MOV x,#LOW(K)", "SETB x.1"}),
              RunOutcome::Completed);
    EXPECT_EQ(bytesOfRow(2), "90 12 34");
    EXPECT_EQ(bytesOfRow(3), "74 41");  // the key was folded first: 'a' is read as 'A'
    EXPECT_EQ(bytesOfRow(4), "75 21 34");
    EXPECT_EQ(bytesOfRow(5), "D2 09");
}

TEST_F(DeclarationsTest, MarkersOfRefusedNames) {
    ASSERT_EQ(
        assembleLines({"#CONST K", "#CONST K1=1", "#CONST K1=2", "#BIT F", "#BIT F", "#BIT TR1",
                       "#BYTE SP", "#BYTE V", "#BYTE V", "#BYTE V2=1", "#BYTE V2=2", "#WORD ACC",
                       "#WORD W", "#WORD W", "#BYTE N=XYZ", "#BIT G=30h.1"}),
        RunOutcome::Completed);
    const std::vector<std::string> expected = {
        ";>err53 falsche Konstantendeklaration (= fehlt)",
        "",
        ";>err52 Konstante 'K1' ist bereits definiert",
        "",
        ";>err54 Bit 'F' ist bereits definiert",
        ";>err54 Bit 'TR1' ist bereits definiert",  // the driver's bit
        ";>err57 'SP' ist ein Spezialfunktionsregister.",
        "",
        ";>err58 Mehrfachdefinition von 'V'",
        "",
        ";>err59 Mehrfachdefinition von 'V2'",
        ";>err60 SFR 'ACC' hat denselben Namen.",
        "",
        ";>err61 Word 'W' ist bereits definiert",
        ";>err51 Zahl nicht erkannt: XYZ",
        ";>err50 ung\xFCltige Bitbezeichnung 30H.1",
    };
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(row(static_cast<int>(i)).marker, expected[i]) << "row " << i;
    }
    // A refused bit value still stores the name.
    EXPECT_NE(bitAddress("G"), "-");
}

TEST_F(DeclarationsTest, DeclarationAfterAStatementTakesNoRow) {
    ASSERT_EQ(assembleLines({"NOP : #BYTE LATE", "MOV A,LATE"}), RunOutcome::Completed);
    EXPECT_EQ(byteAddress("LATE"), "127");
    EXPECT_EQ(bytesOfRow(1), "E5 7F");
    EXPECT_EQ(row(1).position, "1:3");
}

TEST_F(DeclarationsTest, TooManyExcludedRowsEndInTheDirectivesBox) {
    ASSERT_EQ(assembleLines({"#EXCLUDE BYTE 0-300"}), RunOutcome::Completed);
    EXPECT_EQ(host_.lastBoxText,
              "Fehler  6: \xDC"
              "berlauf.");
}

}  // namespace
}  // namespace korvex::testing
