// The AT89LP4052 wizard: single-cycle arithmetic, the 16-bit baud rate, the
// time base on the 16-bit timer, and the PWM's claims on the timers.

#include <gtest/gtest.h>

#include "wizard_session.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards::testing {
namespace {

using Kind = ScriptedWizardHost::Kind;

TEST(Assistent4052, SingleCycleArithmetic) {
    const BaudSetting baud = timer1Baud16(12e6f, 9600, false);
    EXPECT_EQ(baud.reload, 65497);  // 65536 − 39,0625
    EXPECT_NEAR(baud.actual, 9615.3846, 1e-3);
    EXPECT_EQ(timer1Baud16(12e6f, 1, false).reload, 0);  // far too slow: clamped

    WizardSession w("4052");
    w.apply({"UCheck1=1", "UOption1=1", "UCombo1=9600", "T0Combo2=2"});
    EXPECT_TRUE(w.hasBlock({"TMOD = #10h\t; Timer 1 im 16-Bit Autoreload-Modus",
                            "RL1 = #D9h: RH1 = #FFh\t; Reloadwert für Baudrate 9615,385",
                            "TL1 = #D9h: TH1 = #FFh"}));
    EXPECT_EQ(w.value("T0Text3"),
              "Die Überlauffrequenz des Timer 0 beträgt 5859,375 Hz, die Periodendauer "
              "0,1706667 ms.");
    EXPECT_TRUE(w.hasLine("; Timer 0 im Modus 0 = 11-Bit Timer/Zähler."));
    w.set("UOption1", "0");
    EXPECT_TRUE(w.hasLine("; Modus 0 ist aktiv mit Baudrate = 6000000"));
    w.apply({"UOption1=2", "UCheck4=1"});
    EXPECT_TRUE(w.hasLine("SCON = #80h\t; Modus 2, asynchron, 11 Bit, 750000 Baud"));

    WizardSession counter("4052");
    counter.apply({"T1Check0=1", "T1Option1=1"});
    EXPECT_EQ(counter.value("T1Text3"),
              "Die Überlauffrequenz des Zählers 1 hängt vom Eingangssignal an T1  ab.");
}

TEST(Assistent4052, TimeBaseOnTheSixteenBitTimer) {
    WizardSession w("4052");
    w.apply({"BCheckTakt=1", "BList(7)=1"});
    // 65536 − 12 × 1000 = D120h, in the timer's and the reload fields; never "zu hoch".
    EXPECT_EQ(w.value("T0Text2") + w.value("T0Text1"), "D120");
    EXPECT_EQ(w.value("T0Combo1"), "1");
    EXPECT_TRUE(w.hasBlock(
        {"TL0 = #20h", "TH0 = #D1h", "RL0 = #20h: RH0 = #D1h", "setb TR0\t; Timer 0 läuft."}));
    EXPECT_TRUE(w.hasBlock({"Timer 0 Interrupt:\t; f = 1 kHz", "\tdjnz 4 Hz Teiler, T0 Return"}));
    w.set("SText1", "80");
    EXPECT_TRUE(w.host.boxes.empty());
    EXPECT_EQ(w.value("T0Label(1)"), "Timer 0 wird vom Betriebssystem verwendet.");
    EXPECT_FALSE(w.enabled("PWM0Chkverwenden"));
    EXPECT_TRUE(w.visible("PWM0Meldung"));
}

TEST(Assistent4052, PwmTakesItsTimer) {
    WizardSession w("4052");
    w.apply({"PWM0Chkverwenden=1", "PWM0Slider=64"});
    EXPECT_FALSE(w.enabled("BCheckTakt") || w.enabled("T0Combo1"));
    EXPECT_TRUE(w.visible("BMeldung"));
    EXPECT_EQ(w.value("T0Label(1)"), "Timer 0 wird von PWM0 verwendet.");
    EXPECT_EQ(w.value("PWM0Label"),
              "f = 183,1055 Hz, High: 1365,333 µs, Low: 4096 µs, Tastverhältnis: 64:192");
    w.set("PWM0Chkverwenden", "0");
    EXPECT_TRUE(w.enabled("BCheckTakt") && w.enabled("T0Combo1"));

    // The serial port on Timer 1 keeps PWM1 away, and PWM1 keeps modes 1 and 3 away.
    w.apply({"UCheck1=1", "UOption1=1"});
    EXPECT_FALSE(w.enabled("PWM1Chkverwenden"));
    EXPECT_TRUE(w.visible("PWM1Meldung"));
    w.apply({"UOption1=0", "PWM1Chkverwenden=1"});
    EXPECT_EQ(w.boxTexts(Kind::Note),
              std::vector<std::string>{"Die Modi 1 und 3 stehen nicht zur Verfügung, weil Timer 1 "
                                       "für andere Zwecke verwendet wird.\r\nGeben Sie Timer 1 "
                                       "frei."});
    EXPECT_THROW(w.set("UOption1", "1"), ControlUseError);
    EXPECT_FALSE(w.enabled("T1Check0"));
}

}  // namespace
}  // namespace korvex::wizards::testing
