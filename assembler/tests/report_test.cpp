// The status report and the listing, byte for byte, for a run with findings
// of every kind.

#include <gtest/gtest.h>

#include "assembler/error_catalogue.h"
#include "assembler_fixture.h"
#include "base/cp1252.h"

namespace korvex::testing {
namespace {

using ReportTest = AssemblerFixture;

const char* const kSource =
    "#cpu test\r\n"
    "#BYTE Z\xE4hler, Flags=20h\r\n"
    "#WORD Zeiger\r\n"
    "#BIT Merker, Fertig\r\n"
    "#CONST Grenze=1234h\r\n"
    "#BYTE Doppel\r\n"
    "#WORD Doppel\r\n"
    "#BYTE Wert\r\n"
    "#CONST Wert=3\r\n"
    "#CONST Marke=7\r\n"
    "#DEF Leer {NOP}\r\n"
    "Start:\r\n"
    "\tMOV Z\xE4hler,#1\r\n"
    "\tSETB Merker\r\n"
    "\tMOV A,#256\r\n"
    "\tSJMP Nirgends : Leer\r\n"
    "Marke:\r\n"
    "Wert:\r\n"
    "\tLJMP Start\r\n"
    "\tEND X\r\n";

const char* const kReport =
    "Warnungen/Fehler:\r\n"
    "Zeile 1:15  MOV A,#256 ;>err31: Wert zu gro\xDF\r\n"
    "Zeile 1:16  SJMP Nirgends : Leer ;>err6: unbekannter Befehl bzw. Sprungziel nicht gefunden\r\n"
    "Zeile 1:20  END X ;>err32: Syntaxfehler\r\n"
    "-> DOPPEL ist Byte- und Word-Variable.\r\n"
    "-> WERT ist Byte-Variable und Konstante.\r\n"
    "-> WERT ist Byte-Variable und Label.\r\n"
    "-> WERT ist Constante und Label.\r\n"
    "-> MARKE ist Constante und Label.\r\n"
    "Unbenutzte Label\r\n"
    "   Marke: Zeile 1:17,  Adresse Ah\r\n"
    "   Wert: Zeile 1:18,  Adresse Ah\r\n"
    "Unbenutzte Bits\r\n"
    "   Fertig: 7Eh\r\n"
    "Unbenutzte Byte\r\n"
    "   Flags: 20h\r\n"
    "   Doppel: 7Ch\r\n"
    "   Wert: 79h\r\n"
    "\r\n"
    " 21 Zeilen \xFC"
    "bersetzt. Code Ende bei 000Fh.\r\n"
    " 2 Bit-Variablen:\r\n"
    "\tMerker: 7Fh\r\n"
    "\tFertig: 7Eh\r\n"
    " 6 Byte-Variablen:\r\n"
    "\tZ\xE4hler: 7Fh\r\n"
    "\tFlags: 20h\r\n"
    "\tZeiger: 7Dh\r\n"
    "\tDoppel: 7Ch\r\n"
    "\tDoppel: 7Ah\r\n"
    "\tWert: 79h\r\n"
    " 3 Konstanten:\r\n"
    "\tGrenze: 34h\r\n"
    "\tWert: 03h\r\n"
    "\tMarke: 07h\r\n"
    " 3 Labels:\r\n"
    "\tStart: 0000h\r\n"
    "\tMarke: 000Ah\r\n"
    "\tWert: 000Ah\r\n"
    " 1 Definition:\r\n"
    "\tLeer : NOP\r\n"
    " 2 Word-Variablen:\r\n"
    "\tZEIGER: 7Dh\r\n"
    "\tDOPPEL: 7Ah\r\n";

TEST_F(ReportTest, ReportAndListingOfARunWithFindingsOfEveryKind) {
    assembler_->settings().today = CalendarDate{3, 5, 2024};
    ASSERT_EQ(assemble(kSource), RunOutcome::Completed);
    EXPECT_EQ(report(), kReport);

    const std::string listing =
        "; Korvex Assembler Version 0.1, 23.11.2026, Velmark Technik, 3. Mai 2024\r\n"
        "\t\t\t\t1:1\t#cpu test\r\n"
        "\t\t\t\t1:2\t#BYTE Z\xE4hler, Flags=20h\r\n"
        "\t\t\t\t1:3\t#WORD Zeiger\r\n"
        "\t\t\t\t1:4\t#BIT Merker, Fertig\r\n"
        "\t\t\t\t1:5\t#CONST Grenze=1234h\r\n"
        "\t\t\t\t1:6\t#BYTE Doppel\r\n"
        "\t\t\t\t1:7\t#WORD Doppel\r\n"
        "\t\t\t\t1:8\t#BYTE Wert\r\n"
        "\t\t\t\t1:9\t#CONST Wert=3\r\n"
        "\t\t\t\t1:10\t#CONST Marke=7\r\n"
        "\t\t\t\t1:11\t#DEF Leer {NOP}\r\n"
        "0000\t\t\t\t1:12\tStart:\r\n"
        "0000\t75\t7F\t01\t1:13\t\tMOV Z\xE4hler,#1\r\n"
        "0003\tD2\t7F\t\t1:14\t\tSETB Merker\r\n"
        "0005\t74\t00\t\t1:15\t\tMOV A,#256\t;>err31: Wert zu gro\xDF\r\n"
        "0007\t80\t00\t\t1:16\t\tSJMP Nirgends : Leer\t;>err6: unbekannter Befehl bzw. "
        "Sprungziel nicht gefunden\r\n"
        "0009\t00\t\t\t1:16\t\r\n"
        "000A\t\t\t\t1:17\tMarke:\r\n"
        "000A\t\t\t\t1:18\tWert:\r\n"
        "000A\t02\t00\t00\t1:19\t\tLJMP Start\r\n"
        "000D\t80\tFE\t\t1:20\t\tEND X\t;>err32: Syntaxfehler\r\n"
        "\r\n" +
        std::string(kReport) + "\r\n";
    EXPECT_EQ(readFile("prog.l51"), listing);
}

TEST_F(ReportTest, StructuresLeftOpenAreCountedAndACleanRunShowsOnlyTheStatistic) {
    ASSERT_EQ(assembleLines({"IF A=#0", "NOP", "FOR R7=#3", "LOOP", "NOP"}), RunOutcome::Completed);
    EXPECT_EQ(report(),
              "Warnungen/Fehler:\r\n1 offene If-Schleife(n)\r\n1 offene For-Schleife(n)\r\n"
              "1 offene Loop-Schleife(n)\r\n\r\n 6 Zeilen \xFC"
              "bersetzt. Code Ende bei 0006h.\r\n");
    ASSERT_EQ(assembleLines({"ONLY:", "SJMP ONLY"}), RunOutcome::Completed);
    EXPECT_EQ(report(),
              " 3 Zeilen \xFC"
              "bersetzt. Code Ende bei 0002h.\r\n 1 Label:\r\n\tONLY: 0000h\r\n");
}

// Every number of the catalogue has its words, and its marker carries them.
TEST(FindingTexts, EveryCatalogueNumberHasItsWords) {
    for (int number = 1; number <= 40; ++number) {
        EXPECT_EQ(catalogueMarker(number),
                  ";>err" + std::to_string(number) + ": " + catalogueEntry(number).words);
        EXPECT_FALSE(catalogueEntry(number).words.empty()) << number;
    }
}

}  // namespace
}  // namespace korvex::testing
