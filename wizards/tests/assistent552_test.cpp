// The 80C552 wizard: the PWM, I²C and watchdog figures, and the I²C
// service routine read from the program folder.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "testing/process.h"
#include "wizard_fixture.h"
#include "wizard_session.h"

namespace korvex::wizards::testing {
namespace {

using Kind = ScriptedWizardHost::Kind;

TEST(Assistent552, PwmFiguresAndTheFrequencyCommand) {
    WizardSession w("552");
    EXPECT_EQ(w.wizard().windowTitle(), " Assistent 80C552");
    w.apply({"PWMCheck1=1", "PWMSlider1=51"});
    EXPECT_EQ(w.value("PWMLabel1"), "Wiederholfrequenz 23529,41 Hz, Periodendauer 0,0425 ms.");
    EXPECT_EQ(w.value("PWMLabel2"), "Low-Zeit = 8,5 µs, High-Zeit = 34 µs");
    EXPECT_TRUE(w.hasBlock({"mov PWMP, #00h",
                            "mov PWM0, #33h\t; Low-Zeit = 8,5 µs, High-Zeit = "
                            "34 µs"}));
    w.host.inputs = {"1000"};
    w.click("PWMCommand");
    EXPECT_EQ(toUtf8(w.host.boxes.back().title), "PWM Wiederholfrequenz");
    EXPECT_EQ(toUtf8(w.host.boxes.back().text),
              "Geben Sie die gewünschte Wiederholfrequenz in Hz ein.\r\nVerwenden Sie als "
              "Dezimaltrennzeichen den Punkt.\r\nDie Frequenz kann zwischen 91,91177 Hz und "
              "23529,41 Hz liegen.");
    EXPECT_EQ(w.value("PWMText1"), "17");
    EXPECT_EQ(w.value("PWMLabel1"), "Wiederholfrequenz 980,3922 Hz, Periodendauer 1,02 ms.");
    // Below the slowest rate the prescaler stops at FFh.
    w.host.inputs = {"50"};
    w.click("PWMCommand");
    EXPECT_EQ(w.value("PWMText1"), "FF");
    EXPECT_EQ(w.value("PWMLabel1"), "Wiederholfrequenz 91,91177 Hz, Periodendauer 10,88 ms.");

    // The second output shares the prescaler and has its own duty.
    w.apply({"PWMText1=09", "PWMCheck2=1", "PWMSlider2=200"});
    EXPECT_EQ(w.value("PWMLabel1"), "Wiederholfrequenz 2352,941 Hz, Periodendauer 0,425 ms.");
    EXPECT_EQ(w.value("PWMLabel3"), "Low-Zeit = 333,3333 µs, High-Zeit = 91,66667 µs");
    EXPECT_TRUE(w.hasLine("mov PWM1, #C8h\t; Low-Zeit = 333,3333 µs, High-Zeit = 91,66667 µs"));
}

TEST(Assistent552, I2cRatesByDividerAndByTimer1) {
    WizardSession w("552");
    w.set("ICCheck1", "1");
    const char* rates[] = {"46,875 kHz.", "53,57143 kHz.", "62,5 kHz.", "75 kHz.",
                           "12,5 kHz.",   "100 kHz.",      "200 kHz."};
    for (int position = 0; position < 7; ++position) {
        w.set("ICSlider1", std::to_string(position));
        EXPECT_EQ(w.value("ICLabel1"), rates[position]) << position;
    }
    // Timer 1's overflow needs Timer 1 in use, running, on the clock, not in mode 3.
    w.set("ICSlider1", "7");
    EXPECT_EQ(w.value("ICLabel1"), "0 kHz.");
    EXPECT_EQ(w.value("ICLabel2"), " Timer 1 Überlauf / 8 ");
    w.apply({"T1Check0=1", "T1Combo1=2", "T1Text2=F0", "T1Check2=1"});
    EXPECT_EQ(w.value("ICLabel1"), "7,8125 kHz.");
    EXPECT_TRUE(w.hasBlock(
        {"; I²C-Bus", "; ENS1 = 1, Bitrate im Master-Modus 7,8125 kHz.", "mov S1CON, #C3h"}));
    w.set("T1Option1", "1");
    EXPECT_EQ(w.value("ICLabel1"), "0 kHz.");
    w.apply({"T1Option1=0", "T1Combo1=1"});
    EXPECT_EQ(w.value("ICLabel1"), "0,001907349 kHz.");
    w.set("T1Combo1", "0");
    EXPECT_EQ(w.value("ICLabel1"), "0,01525879 kHz.");
    w.set("T1Check2", "0");
    EXPECT_EQ(w.value("ICLabel1"), "0 kHz.");
    // With Timer 0 in mode 3 the run bit stays on in Timer 1's mode 3, which still stops it.
    w.apply({"T1Check2=1", "T0Combo1=3", "T1Combo1=3"});
    ASSERT_EQ(w.value("T1Check2"), "1");
    EXPECT_EQ(w.value("ICLabel1"), "0 kHz.");
}

TEST(Assistent552, WatchdogFiguresAndRefresh) {
    WizardSession w("552");
    w.apply({"WDCheck1=1", "WDCheck3(0)=1", "ICheck1(1)=1"});
    EXPECT_EQ(w.value("WDLabel1"),
              "Überlauffrequenz 1,907349 Hz. Zeit bis zum Überlauf 524,288 ms.");
    EXPECT_TRUE(w.hasBlock({"Timer 0 Interrupt:", "\t; Befehle ...",
                            "\torl PCON, #10h: mov T3, #00h\t; Watchdog rücksetzen", "reti"}));
    w.set("WDText1", "C0");
    EXPECT_EQ(w.value("WDLabel1"),
              "Überlauffrequenz 7,629395 Hz. Zeit bis zum Überlauf 131,072 ms.");
}

TEST(Assistent552, ServiceRoutineComesFromTheProgramFolder) {
    WizardSession w("552", std::string(KORVEX_DATA_DIR) + "/");
    w.apply({"ICCheck1=1", "ICheck1(5)=1", "ICheck3=1"});
    const std::string routine =
        korvex::testing::readFileBytes(std::string(KORVEX_DATA_DIR) + "/c552iic.dat");
    const std::string tail = text8("I²C Interrupt:\r\n") + routine;
    ASSERT_GE(w.program().size(), tail.size());
    EXPECT_EQ(w.program().substr(w.program().size() - tail.size()), tail);
    EXPECT_FALSE(w.hasLine("\t; Befehle.."));
    EXPECT_TRUE(w.host.boxes.empty());

    // Without the file the short routine stays, and the user is told.
    const korvex::testing::ScratchFolder empty;
    WizardSession bare("552", empty.path());
    bare.apply({"ICCheck1=1", "ICheck1(5)=1", "ICheck3=1"});
    EXPECT_EQ(
        bare.boxTexts(Kind::Note),
        std::vector<std::string>{"Die I²C Service-Routine (c552iic.dat) fehlt im Programmordner."});
    EXPECT_TRUE(bare.hasBlock({"I²C Interrupt:", "\tclr SI", "\t; Befehle..", "reti"}));
}

}  // namespace
}  // namespace korvex::wizards::testing
