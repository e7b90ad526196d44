// The AT89S8253 wizard: the time base with its interlock on Timer 0, the
// assignment form, the watchdog and the interrupt boxes with their levels.

#include <gtest/gtest.h>

#include "wizard_session.h"

namespace korvex::wizards::testing {
namespace {

using Kind = ScriptedWizardHost::Kind;

TEST(Assistent8253, TimeBaseTakesTimer0AndGivesItBack) {
    WizardSession w("8253");
    w.apply({"T0Combo1=1", "T0Check1=1", "BCheckTakt=1", "BList(8)=1"});
    EXPECT_TRUE(w.visible("T0Meldung"));
    EXPECT_EQ(
        w.value("T0Combo1") + w.value("T0Option1") + w.value("T0Check1") + w.value("T0Check2"),
        "2001");
    EXPECT_FALSE(w.enabled("T0Combo1") || w.enabled("T0Text2"));
    EXPECT_EQ(w.value("ICheck1(3)") + w.value("ICheck1(0)"), "11");
    EXPECT_FALSE(w.enabled("ICheck1(3)") || w.enabled("ICheck1(0)"));
    // 12 MHz: q = 50, the reload CE in both bytes; "1 Hz" brings "4 Hz".
    EXPECT_EQ(w.value("T0Text2") + w.value("T0Text1"), "CECE");
    EXPECT_EQ(w.value("BList(6)"), "1");
    EXPECT_TRUE(
        w.hasBlock({"TL0 = #CEh", "TH0 = #CEh\t; Reloadwert", "setb TR0\t; Timer 0 läuft."}));
    EXPECT_TRUE(w.hasBlock({"; * * * Hauptprogramm Start * * *", "loop", "\tif bit 4 Hz then"}));
    EXPECT_TRUE(w.hasLine("\tif bit 1 Hz then"));
    // The dividers start right behind the register bank.
    w.set("SCombo1", "2");
    EXPECT_TRUE(w.hasBlock({"orl PSW, #10\t; Registerbank 2",
                            "20 kHz Teiler = #20: 4 Hz Teiler = #250: 1 Hz Teiler = #4"}));
    // The doubled clock doubles q.
    w.set("SCkX2", "1");
    EXPECT_EQ(w.value("T0Text2"), "9C");

    w.set("BCheckTakt", "0");
    EXPECT_FALSE(w.visible("T0Meldung"));
    EXPECT_EQ(
        w.value("T0Combo1") + w.value("T0Check2") + w.value("ICheck1(3)") + w.value("ICheck1(0)"),
        "0000");
    EXPECT_EQ(w.value("T0Text1") + w.value("T0Text2"), "0000");
    EXPECT_TRUE(w.enabled("T0Combo1") && w.enabled("ICheck1(3)"));
    EXPECT_FALSE(w.hasLine("; * * * Hauptprogramm Start * * *"));
}

TEST(Assistent8253, ClockTooHighForTheTimeBaseSaysSoAtEachGeneration) {
    WizardSession w("8253");
    w.apply({"SText1=62", "BCheckTakt=1"});
    const std::string text = "Taktfrequenz ist zur Erzeugung des Betriebssystems zu hoch.";
    EXPECT_EQ(w.boxTexts(Kind::Note), std::vector<std::string>{text});
    EXPECT_EQ(w.value("T0Text2"), "00");
    EXPECT_FALSE(w.hasLine("TH0 = #00h\t; Reloadwert"));  // a zero reload writes no line
    w.set("BList(0)", "1");
    EXPECT_EQ(w.boxTexts(Kind::Note), (std::vector<std::string>{text, text}));
}

TEST(Assistent8253, AssignmentFormAndItsOwnSections) {
    WizardSession w("8253");
    w.apply({"SText2=30", "SCheck1=1", "SCkALE=1", "SCheck3(0)=1", "SCheck3(1)=1", "UCheck1=1",
             "UOption1=1", "UCkFrameError=1", "UAdresse(1)=F0", "WCkHardware=1", "WCkReset=1",
             "WOption1=7"});
    EXPECT_TRUE(w.hasLine("SP = #2Fh\t; Stackbeginn"));
    EXPECT_TRUE(w.hasBlock({"a = PCON: if bit acc.4 then\t; bei Power On Reset",
                            "\tanl PCON, #EFh\t; POF-Bit löschen",
                            "\tclr a: r0 = #01h\t; Variablenbereich löschen",
                            "\tloop: @r0 = a: inc r0: until r0 = #0h", "end if"}));
    EXPECT_TRUE(w.hasBlock({"AUXR = #1h", "\t; Intel Power Down Exit ist nicht gewählt.",
                            "\t; ALE-Signal ist ausgeschaltet."}));
    EXPECT_TRUE(w.hasBlock({"TMOD = #20h\t; Timer 1 Autoreloadmodus",
                            "TH1 = #F3h\t; Reloadwert für Baudrate 2403,846"}));
    EXPECT_TRUE(w.hasBlock({"orl PCON, #40h\t; Frame Error Erkennung", "SADEN = #F0h"}));
    EXPECT_TRUE(w.hasBlock(
        {"; Watchdog", "WDTCON = #ECh", "; Time Out Periode: 2097,152 ms = 2097152 Takte",
         "; Watchdog ist im Idle-Modus eingeschaltet.",
         "; Keine Resetausgabe am Reset-Pin bei Watchdog Reset",
         "; Watchdog ist im Hardware-Modus.", "; Watchdog ist nicht gestartet.",
         "orl EECON, #18h\t; Internes EEPROM zum Lesen und Schreiben verwenden"}));
}

TEST(Assistent8253, InterruptBoxesLevelsAndVectors) {
    WizardSession w("8253");
    w.apply({"ICheck1(1)=1", "ICheck1(2)=1", "ICheck1(4)=1", "IPSlider(0)=2", "IPSlider(2)=3",
             "IPSlider(3)=1", "ICheck1(0)=1"});
    EXPECT_EQ(w.value("ICheck1(1)"), "0");  // edge replaced level
    EXPECT_TRUE(w.hasBlock(
        {"ajmp Initialisierung", "; Interruptvektoren", "",
         "EXTI0:\t; Externer Interrupt 0, negative Flanke an P3.2", "\tajmp Externer Interrupt 0",
         "", "EXTI1:\t; Externer Interrupt 1, Low-Pegel an P3.3", "\tajmp Externer Interrupt 1", "",
         // A level alone makes a source used.
         "Timer 1:\t; Timer 1 Interrupt", "\tajmp Timer 1 Interrupt"}));
    EXPECT_TRUE(w.hasBlock({"setb EX0\t; externen Interrupt 0 freigeben, Priorität 2",
                            "setb IT0\t; Auslöser: negative Flanke an P3.2",
                            "setb EX1\t; externen Interrupt 1 freigeben, Priorität 3",
                            "IP = #0Ch: IPH = #05h\t; Interruptprioritäten",
                            "setb EA\t; globale Interruptfreigabe"}));
    EXPECT_TRUE(w.hasBlock({"; Interrupt Routinen", "", "Externer Interrupt 0:"}));
    // The SPI's interrupt box and the SPI tab's box are one.
    w.apply({"SPICheck1=1", "ICheck1(8)=1"});
    EXPECT_EQ(w.value("SPICheck2"), "1");
    w.set("SPICheck2", "0");
    EXPECT_EQ(w.value("ICheck1(8)"), "0");
}

}  // namespace
}  // namespace korvex::wizards::testing
