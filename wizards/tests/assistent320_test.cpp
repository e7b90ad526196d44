// The DS80C320 wizard: the second serial port on Timer 1, the addresses in
// binary and hex, the fast timer clocks and the timed-access watchdog.

#include <gtest/gtest.h>

#include "wizard_session.h"

namespace korvex::wizards::testing {
namespace {

using Kind = ScriptedWizardHost::Kind;

TEST(Assistent320, SecondPortSharesTimer1WithItsOwnDoubling) {
    WizardSession w("320");
    w.apply({"UCheck1=1", "UOption1=1", "U1Check1=1", "U1Option1=1", "U1Check4=1"});
    // Port 1's rate field follows port 0's rate, times its own SMOD_1.
    EXPECT_FALSE(w.enabled("U1Combo1"));
    EXPECT_TRUE(w.hasBlock({"; Serieller Port 1",
                            "mov SCON1, # 40h\t; Modus 1, asynchron, 10 Bit, Baudrate Timer 1 "
                            "Überlauf",
                            "; Baudrate von Timer 1 wie Port 0: 4807,692 Baud",
                            "setb SMOD_1\t; Baudratenverdoppelung für seriellen Port 1 wählen"}));
    // Port 0 elsewhere: port 1 writes Timer 1 itself, from the rate it was given.
    w.apply({"UCombo1=1", "UCombo2=1"});
    EXPECT_TRUE(w.enabled("U1Combo1"));
    EXPECT_TRUE(w.hasBlock({"mov TMOD, # 20h\t; Timer 1 Autoreloadmodus",
                            "mov TH1, # F3h\t; Reloadwert für Baudrate 4807,692"}));
}

TEST(Assistent320, Timer1ForOtherWorkAndTheSecondPort) {
    WizardSession w("320");
    w.apply({"T1Check0=1", "U1Check1=1"});
    EXPECT_EQ(w.boxTexts(Kind::Note),
              std::vector<std::string>{"Die Modi 1 und 3 stehen nicht zur Verfügung, weil Timer 1 "
                                       "für andere Zwecke verwendet wird.\r\nGeben Sie Timer 1 "
                                       "frei."});
    EXPECT_THROW(w.set("U1Option1", "1"), ControlUseError);
    // Timer 1 given back: the modes return.
    w.set("T1Check0", "0");
    w.set("U1Option1", "3");
    EXPECT_EQ(w.value("U1Option1"), "3");
    // Taking it again asks, and Yes stops port 1, not port 0.
    w.apply({"UCheck1=1"});
    w.host.answers = {true};
    w.set("T1Check0", "1");
    EXPECT_EQ(w.boxTexts(Kind::Question).back(),
              "Timer 1 wird bereits als Baudratengenerator verwendet. Möchten Sie diese "
              "Zuordnung aufheben?");
    EXPECT_EQ(w.value("U1Check1") + w.value("UCheck1"), "01");
    EXPECT_TRUE(w.wizard().atRest());
}

TEST(Assistent320, AddressesInBinaryAndHexAgree) {
    WizardSession w("320");
    w.apply({"MCText1(0)=00010010", "MCText2(1)=A5"});
    EXPECT_EQ(w.value("MCText2(0)"), "12");
    EXPECT_EQ(w.value("MCText1(1)"), "10100101");
    EXPECT_TRUE(
        w.hasBlock({"; Multicontroller Kommunikation", "mov SADDR0, # 12h", "mov SADEN0, # A5h"}));
}

TEST(Assistent320, FastClocksTripledModeZeroAndWatchdogTimes) {
    WizardSession w("320");
    w.apply({"S2Check1(1)=1", "T1Check0=1", "UCheck1=1", "UCheck2=1", "WCheck2=1", "WCheck1(3)=1"});
    EXPECT_EQ(w.value("T1Text3"),
              "Die Überlauffrequenz des Timer 1 beträgt 366,2109 Hz, die Periodendauer "
              "2,730667 ms.");
    EXPECT_TRUE(w.hasBlock({"; Modus 0 ist aktiv mit Baudrate = 3000000",
                            "orl SCON0, # 20h\t; Verdreifachung der Baudrate in Modus 0"}));
    EXPECT_TRUE(w.hasBlock({"; Dreifache Taktrate für Timer 1, ",
                            "; Dauer des MOVX-Befehls: 3 Maschinenzyklen", "mov CKCON, #11h"}));
    EXPECT_TRUE(w.hasBlock({"; Watchdog",
                            "orl CKCON, # C0h\t;Zeit bis zum Watchdog Reset: "
                            "5592,405 ms",
                            "mov TA, # AAh", "mov TA, # 55h",
                            "setb EWT\t; Watchdog Timer starten, Zeit bis zum Watchdog Reset: "
                            "5592,405 ms"}));
}

}  // namespace
}  // namespace korvex::wizards::testing
