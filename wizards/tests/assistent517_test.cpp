// The C517 wizard: the MDU routines, the shift's wait, the 10-bit baud-rate
// generators with their quirk at 1024, and the vectors with their TAB.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "base/failure.h"
#include "wizard_session.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards::testing {
namespace {

TEST(Assistent517, ArithmeticUnitRoutinesStandAtTheEnd) {
    WizardSession w("517");
    w.apply({"MDU2=1", "MDU4=1", "MDU5=1", "MDUText1=7", "MDU6=1", "MDUText2=13"});
    EXPECT_TRUE(w.hasBlock(
        {"",
         "16div16:\t; Dividend in r0/r1 (LSB/MSB), Divisor in r2/r3 "
         "(LSB/MSB)",
         "\tMD0 = r0: MD1 = r1: MD4 = r2: MD5 = r3", "\tfor r0 = #2: next\t; Berechnung abwarten",
         "\tr0 = MD0: r1 = MD1: r2 = MD4: r3 = MD5\t; Ergebnis in r0 bis r3", "ret"}));
    EXPECT_TRUE(w.hasBlock({"\tmov Exponent, ARCON: anl Exponent, #1Fh", "ret"}));
    EXPECT_TRUE(w.hasLine("#Byte Exponent"));
    // n = 7: two nops; a right shift adds 32 to the count; 13 waits three nops.
    EXPECT_TRUE(w.hasBlock({"\tmov ARCON, #7", "\tnop: nop\t; Berechnung abwarten"}));
    EXPECT_TRUE(w.hasBlock({"Shift right:\t; Wertübergabe in den Registern r0 (LSB) bis r3 (MSB)",
                            "\tMD0 = r0: MD1 = r1: MD2 = r2: MD3 = r3", "\tmov ARCON, #45",
                            "\tnop: nop: nop\t; Berechnung abwarten"}));
    EXPECT_EQ(w.lines().back(), "ret");
    w.apply({"MDU1=1", "MDU3=1"});
    EXPECT_TRUE(
        w.hasBlock({"", "32div16:\t; Dividend r0 (LSB) bis r3 (MSB), Divisor r4 (LSB) und r5 (MSB)",
                    "\tMD0 = r0: MD1 = r1: MD2 = r2: MD3 = r3: MD4 = r4: MD5 = r5",
                    "\tfor r0 = #3: next\t; Berechnung abwarten",
                    "\tr0 = MD0: r1 = MD1: r2 = MD2: r3 = MD3: r4 = MD4: r5 = MD5", "ret", "",
                    "16div16:\t; Dividend in r0/r1 (LSB/MSB), Divisor in r2/r3 (LSB/MSB)"}));
    EXPECT_TRUE(w.hasBlock(
        {"", "16mul16:\t; Wertübergabe in den Registern r0 (LSB), r1 (MSB) und r2 (LSB), r3 (MSB)",
         "\tMD0 = r0: MD4 = r2: MD1 = r1: MD5 = r3", "\tfor r0 = #2: next\t; Berechnung abwarten",
         "\tr0 = MD0: r1 = MD1: r2 = MD2: r3 = MD3", "ret", "",
         "Normalisierung:\t; "
         "Wertübergabe in den Registern r0 (LSB) bis r3 (MSB)"}));
    // Counts of 0 and 32 write nothing, and say nothing.
    w.apply({"MDUText1=0", "MDUText2=32"});
    EXPECT_FALSE(w.hasLine("Shift left:\t; Wertübergabe in den Registern r0 (LSB) bis r3 (MSB)"));
    EXPECT_FALSE(w.hasLine("Shift right:\t; Wertübergabe in den Registern r0 (LSB) bis r3 (MSB)"));
    EXPECT_TRUE(w.host.boxes.empty());
    w.set("MDUText1", "6");
    EXPECT_TRUE(w.hasBlock({"\tmov ARCON, #6", "\tnop\t; Berechnung abwarten"}));
}

TEST(Assistent517, TenBitGeneratorsOfBothPorts) {
    const BaudSetting port0 = baudGenerator10(12e6 / 64, 9600);
    EXPECT_EQ(port0.reload, 1004);
    EXPECT_DOUBLE_EQ(port0.actual, 9375);
    EXPECT_EQ(baudGenerator10(12e6 / 32, 110).reload, 0);  // below 0 becomes 0
    // The upper test is against 1024: 1023,6 rounds to 1024 and the division fails.
    EXPECT_THROW(baudGenerator10(12e6 / 32, 1e6), RuntimeFailure);

    WizardSession w("517");
    w.apply({"UCheck1=1", "UOption1=1", "UCombo1=9600", "U1Check1=1", "U1Combo1=19200"});
    EXPECT_TRUE(
        w.hasBlock({"setb BD\t; Taktquelle = Baudratengenerator",
                    "mov S0RELL, #ECh\t; Reloadwert für Baudrate 9375", "mov S0RELH, #03h"}));
    EXPECT_EQ(w.value("ULabel2"), "Baudrate = 9375 Baud");
    EXPECT_TRUE(
        w.hasBlock({"; Serieller Port 1",
                    "mov S1CON, # 80h\t; Modus 1, asynchron, 10 Bit, Baudratengenerator 1",
                    "mov S1RELL, #ECh\t; Reloadwert für Baudrate 18750", "mov S1RELH, #03h"}));
    // The failing division ends that generation as an error of the run.
    EXPECT_THROW(w.set("U1Combo1", "1000000"), RuntimeFailure);
    EXPECT_TRUE(w.wizard().atRest());
}

TEST(Assistent517, VectorsWithTabAndTheCompareRoutine) {
    WizardSession w("517");
    w.apply({"ICheck1(13)=1", "ICheck1(15)=1", "SCheck4=1"});
    EXPECT_TRUE(w.hasBlock({"ICMP:\t; Compare-Register CM0 -CM7 Interrupt", "\tajmp CMx Interrupt",
                            "", "ICS:\t; Match mit COMSET Interrupt", "\tajmp COMSET Interrupt"}));
    WizardSession all("517");
    for (int source = 0; source <= 16; ++source) {
        all.set("ICheck1(" + std::to_string(source) + ")", "1");
    }
    std::vector<std::string> vectors;
    for (const std::string& line : all.lines()) {
        if (line.rfind("\tajmp ", 0) == 0) vectors.push_back(line.substr(6));
    }
    EXPECT_EQ(vectors, (std::vector<std::string>{
                           "Externer Interrupt 0", "Timer 0 Interrupt", "Externer Interrupt 1",
                           "Timer 1 Interrupt", "Serieller Interrupt 0", "Timer 2 Interrupt",
                           "AD-Wandler Interrupt", "Externer Interrupt 2", "Externer Interrupt 3",
                           "Externer Interrupt 4", "Externer Interrupt 5", "Externer Interrupt 6",
                           "Serieller Interrupt 1", "CMx Interrupt", "Compare Timer Interrupt",
                           "COMSET Interrupt", "COMCLR Interrupt"}));
    EXPECT_TRUE(all.hasBlock({"ADCI:\t; A/D-Wandler Interrupt", "\tajmp AD-Wandler Interrupt", "",
                              "IEX2:\t; externer Interrupt 2"}));
    EXPECT_TRUE(all.hasBlock({"S1INT:\t; serieller Interrupt 1", "\tajmp Serieller Interrupt 1", "",
                              "ICMP:\t; Compare-Register CM0 -CM7 Interrupt"}));
    EXPECT_TRUE(
        all.hasBlock({"CTF:\t; Compare Timer Interrupt", "\tajmp Compare Timer Interrupt", "",
                      "ICS:\t; Match mit COMSET Interrupt", "\tajmp COMSET Interrupt", "",
                      "ICR:\t; Match mit COMCLR Interrupt", "\tajmp COMCLR Interrupt"}));
    EXPECT_TRUE(w.hasBlock({"\tmov a, IRCON1", "\tif bit acc.0 then", "\t\t; ICMP0",
                            "\telseif bit acc.1 then", "\t\t; ICMP1"}));
    EXPECT_TRUE(w.hasBlock({"clr Oszillator Watchdog Reset", "mov a, IP0", "if bit acc.7 then"}));
    EXPECT_TRUE(w.hasLine("mov IEN2, #14h"));
}

TEST(Assistent517, ResetSourcesWatchdogAndTheSerialBitsInTheDeclarations) {
    WizardSession w("517");
    w.apply({"SCheck3=1", "SCheck4=1", "UCheck1=1", "UOption1=1", "U1Check1=1", "ICheck1(4)=1",
             "ICheck1(12)=1", "ICheck1(1)=1", "WDCheck1=1", "WDCheck2=1", "WDCheck3(0)=1"});
    EXPECT_TRUE(w.hasBlock({"clr Watchdog Reset", "mov a, IP0", "if bit acc.6 then",
                            "\tmov IP0, #0", "\tsetb Watchdog Reset", "end if",
                            "clr Oszillator Watchdog Reset", "mov a, IP0", "if bit acc.7 then",
                            "\tmov IP0, #0", "\tsetb Oszillator Watchdog Reset", "end if"}));
    EXPECT_TRUE(
        w.hasLine("#Bit Watchdog Reset, Oszillator Watchdog Reset, Empfang 0, Empfang 1, "
                  "Sendebusy 0, Sendebusy 1"));

    // 32,768 ms at 12 MHz: reload 124 with the divider 384, flagged in bit 7.
    w.host.inputs = {"32.768"};
    w.click("WDCommand1");
    EXPECT_EQ(toUtf8(w.host.boxes.back().text),
              "Geben Sie die gewünschte Überlaufperiode in Millisekunden (ms) ein.\r\n"
              "Verwenden Sie als Dezimaltrennzeichen den Punkt.");
    EXPECT_EQ(w.value("WDLabel"), "7Ch, Teiler 384");
    EXPECT_TRUE(w.hasBlock({"mov WDTREL, #FCh\t; Watchdog: Watchdog Periode ist 32,768 ms",
                            "setb SWDT\t; Start Watchdog Timer"}));
    EXPECT_TRUE(w.hasBlock({"Timer 0 Interrupt:", "\t; Befehle ...",
                            "\tsetb WDT: setb SWDT\t; Watchdog rücksetzen", "reti"}));
}

}  // namespace
}  // namespace korvex::wizards::testing
