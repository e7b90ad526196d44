// The AT89S53 / AT89S8252 wizard: the chip switch, watchdog, EEPROM, SPI
// and the Timer 2 functions the base lacks.

#include <gtest/gtest.h>

#include "wizard_session.h"

namespace korvex::wizards::testing {
namespace {

TEST(Assistent89S53, ChipChoiceNamesDriverWatchdogRegisterAndEeprom) {
    WizardSession w("89S53");
    EXPECT_EQ(w.wizard().windowTitle(), "Assistent AT89S8253");
    w.apply({"WCheck2=1", "WCheck1(5)=1", "WCheck3(0)=1", "ICheck1(1)=1"});
    EXPECT_TRUE(w.hasLine("#cpu = 89S53\t; @12 MHz"));
    EXPECT_TRUE(w.hasBlock(
        {"; Watchdog", "mov WCON, # A1h\t; Watchdog Timer starten, Watchdog Timeout 512 ms"}));
    EXPECT_TRUE(w.hasBlock({"Timer 0 Interrupt:", "\t; Befehle ...",
                            "\torl WCON, #2\t; Watchdogtimer rücksetzen", "reti"}));
    EXPECT_EQ(w.value("WText1"),
              "Der Watchdog Timer löst nach 512 ms ohne Rücksetzen einen Reset aus.");
    // Only the AT89S8252 has the EEPROM, and writing needs reading.
    EXPECT_FALSE(w.enabled("SCheck3(0)"));
    w.apply({"SOption1=1", "SCheck3(0)=1", "SCheck3(1)=1"});
    EXPECT_TRUE(w.hasLine("#cpu = 89S8252\t; @12 MHz"));
    EXPECT_TRUE(w.hasBlock({"mov WMCON, # A1h\t; Watchdog Timer starten, Watchdog Timeout 512 ms",
                            "orl WMCON, # 18h\t; zum Lesen und zum Schreiben"}));
    EXPECT_TRUE(w.hasLine("\torl WMCON, #2\t; Watchdogtimer rücksetzen"));
    w.set("SOption1", "0");
    EXPECT_EQ(w.value("SCheck3(0)") + w.value("SCheck3(1)"), "00");
    EXPECT_FALSE(w.enabled("SCheck3(1)"));
}

TEST(Assistent89S53, OneWatchdogPeriodAtATime) {
    WizardSession w("89S53");
    w.apply({"WCheck2=1", "WCheck1(3)=1"});
    EXPECT_EQ(w.value("WCheck1(0)") + w.value("WCheck1(3)"), "01");
    w.set("WCheck1(3)", "0");  // the chosen one can only be replaced
    EXPECT_EQ(w.value("WCheck1(3)"), "1");
    EXPECT_TRUE(w.hasLine("mov WCON, # 61h\t; Watchdog Timer starten, Watchdog Timeout 128 ms"));
}

TEST(Assistent89S53, SpiControlWordAndItsShareOfTheSerialVector) {
    WizardSession w("89S53");
    w.apply({"SPICheck1=1", "SPIOption1=1", "SPIList1=2", "SPIOption3=3", "SPICheck2=1"});
    EXPECT_TRUE(
        w.hasBlock({"; SPI verwenden, #Bit-Reihenfolge: Bit 0 (LSB) zuerst, "
                    "Master-Modus bei 375000 Baud, CPOL = 1, CPHA = 1",
                    "mov SPCR, # FEh"}));
    EXPECT_EQ(w.value("ICheck1(4)"), "1");
    EXPECT_TRUE(w.hasBlock({"SINT:\t; serieller Interrupt", "ajmp Serieller Interrupt"}));
    EXPECT_TRUE(w.hasBlock({"\tif bit SPI-Ereignis then", "\t\tclr SPI-Ereignis",
                            "\t\tSPI-Ereignis auswerten", "\tend if", "end loop"}));
    EXPECT_TRUE(
        w.hasBlock({"\tmov a, SPSR\t; SPI-Statusregister", "\tif bit acc.7 then\t; SPI-Ereignis",
                    "\t\tmov SPSR, # 0\t; Interruptanforderung löschen", "\t\tsetb SPI-Ereignis"}));
    EXPECT_TRUE(w.hasLine("#Bit Empfang, Sendebusy, SPI-Ereignis"));
    w.set("SPIOption2", "0");
    EXPECT_FALSE(w.enabled("SPIList1"));
    EXPECT_TRUE(w.hasLine("mov SPCR, # ECh"));
}

TEST(Assistent89S53, Timer2ListInsertsTheAtmelFunctions) {
    WizardSession w("89S53");
    w.apply({"T2Check0=1", "T2Combo1=2", "T2Text4=18", "T2Text5=FC"});
    EXPECT_TRUE(w.hasBlock({"mov T2MOD, # 1h", "mov RCAP2L, # 18h", "mov RCAP2H, # FCh"}));
    EXPECT_EQ(w.value("T2Text1").rfind("Timer 2 ist ein 16-Bit Aufwärts-/Abwärtszähler.", 0), 0u);
    EXPECT_NE(w.value("T2Text1").find("Die Über-/Unterlauffrequenz beträgt 1000 Hz"),
              std::string::npos);
    w.set("T2Combo1", "12");
    EXPECT_NE(w.value("T2Text1").find("Die Ausgabefrequenz beträgt 3000 Hz."), std::string::npos);
    // Serial rules that pick the baud-rate function find it at its own place.
    w.apply({"T2Check0=0", "UCheck1=1", "UOption1=1", "UCombo1=1", "UCombo2=1"});
    EXPECT_EQ(w.value("T2Combo1"), "10");
}

}  // namespace
}  // namespace korvex::wizards::testing
