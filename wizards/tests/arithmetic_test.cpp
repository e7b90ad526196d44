// The worked figures of the timer and baud-rate arithmetic, by the formulas
// and through the wizard's commands and program.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "base/failure.h"
#include "wizard_fixture.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards {
namespace {

using testing::WizardFixture;
using TimerArithmeticCommands = WizardFixture;

TEST(TimerArithmetic, BaudRatesByTimer1) {
    const BaudSetting b2400 = timer1Baud(12e6f, 2400, false);
    EXPECT_EQ(b2400.reload, 0xF3);
    EXPECT_EQ(singleText(toSingle(b2400.actual), NumberFormat{','}), "2403,846");
    // Too slow for the timer: r would be -28 and is clamped to 0.
    const BaudSetting b110 = timer1Baud(12e6f, 110, false);
    EXPECT_EQ(b110.reload, 0);
    EXPECT_EQ(singleText(toSingle(b110.actual), NumberFormat{'.'}), "122.0703");
    // SMOD doubles: 9600 at 11.0592 MHz.
    EXPECT_EQ(timer1Baud(11059200.0f, 9600, false).reload, 0xFD);
    EXPECT_EQ(timer1Baud(11059200.0f, 19200, true).reload, 0xFD);
    // Too fast: clamped to 255.
    EXPECT_EQ(timer1Baud(12e6f, 1e6, false).reload, 255);
}

TEST(TimerArithmetic, BaudRatesByTimer2) {
    const BaudSetting b = timer2Baud(12e6f, 9600);
    EXPECT_EQ(b.reload, 65497);  // 65536 - 39.0625, rounded
    EXPECT_EQ(singleText(toSingle(b.actual), NumberFormat{','}), "9615,385");
    EXPECT_EQ(timer2Baud(12e6f, 1).reload, 0);  // no negative reload
    // A rate so high that R rounds to 65536 divides by zero.
    try {
        timer2Baud(12e6f, 1e9);
        ADD_FAILURE();
    } catch (const RuntimeFailure& f) {
        EXPECT_EQ(f.number(), 11);
    }
}

TEST(TimerArithmetic, OverflowRatesAndReloadsFromAFrequency) {
    const OverflowRate mode0 = overflowRate(12e6f, timer01Divisor(0, 0));
    EXPECT_EQ(singleText(mode0.frequency, NumberFormat{','}), "122,0703");
    EXPECT_EQ(singleText(mode0.periodMs, NumberFormat{','}), "8,192");
    EXPECT_EQ(timer01Divisor(2, 0), 256);
    EXPECT_EQ(timer01Divisor(2, 0x9C), 100);
    EXPECT_EQ(singleText(overflowRate(12e6f, timer01Divisor(2, 0x9C)).frequency, NumberFormat{','}),
              "10000");
    EXPECT_EQ(timer01ReloadForFrequency(12.0f, 10000), 0x9C);
    EXPECT_EQ(timer01ReloadForFrequency(12.0f, 1), 0);
    EXPECT_EQ(timer2ReloadForFrequency(12e6f, 10000, false), 65436);
    EXPECT_EQ(timer2ReloadForFrequency(12e6f, 9600, true), 65497);
}

TEST_F(TimerArithmeticCommands, FrequencyCommandsWriteTheReload) {
    // 10000 Hz on Timer 2 at 12 MHz: R = 65436 = FF9Ch.
    set("T2Check0", "1");
    host_.inputs = {"10000"};
    click("T2Command1");
    EXPECT_EQ(s().T2Text5.text, "FF");
    EXPECT_EQ(s().T2Text4.text, "9C");
    EXPECT_TRUE(hasLine("mov RCAP2L, # 9Ch"));
    EXPECT_TRUE(hasLine("mov RCAP2H, # FFh"));
    ASSERT_EQ(host_.boxes.size(), 1u);
    EXPECT_EQ(host_.boxes[0].title, "Timer 2 Autorelaod");
    EXPECT_EQ(toUtf8(host_.boxes[0].text),
              "Geben Sie die gewünschte Frequenz in Hz ein.\r\n"
              "Verwenden Sie als Dezimaltrennzeichen den Punkt.");

    // Timer 0 in mode 2: 1 Hz is too low and gives "00"; "1,5" reads as 1.
    set("T0Combo1", "2");
    set("T0Text2", "12");
    host_.inputs = {"1,5"};
    click("T0Command1");
    EXPECT_EQ(s().T0Text2.text, "00");
    host_.inputs = {"10000"};
    click("T0Command1");
    EXPECT_EQ(s().T0Text2.text, "9C");
    EXPECT_EQ(host_.boxes.back().title, "Timer 0 Autorelaod");
    // Cancel (empty text) or a non-positive answer change nothing.
    host_.inputs = {""};
    click("T0Command1");
    host_.inputs = {"-5"};
    click("T0Command1");
    EXPECT_EQ(s().T0Text2.text, "9C");
}

TEST_F(TimerArithmeticCommands, FailuresOfTheCommandsAreCaughtAndShown) {
    // A frequency so small that the 16-bit reload overflows 32 bits.
    set("T2Check0", "1");
    host_.inputs = {"0.000001"};
    click("T2Command1");
    EXPECT_EQ(s().T2Text4.text, "00");
    EXPECT_EQ(boxTexts(ScriptedWizardHost::Kind::Failure),
              std::vector<std::string>{"Fehler Nummer6 wurde ausgelöst von Korvex\r\n"
                                       "Überlauf: Überprüfen Sie Ihre Eingaben."});
    EXPECT_TRUE(wizard_.atRest());
}

TEST_F(TimerArithmeticCommands, ProgramShowsTheActualBaudRateAndTheDerivedCaptions) {
    apply({"UCheck1=1", "UOption1=1"});
    EXPECT_TRUE(hasLine("mov TH1, #F3h\t; Reloadwert für Baudrate 2403,846"));
    EXPECT_EQ(s().T1Text2.text, "F3");
    set("UCombo3", "110");
    EXPECT_TRUE(hasLine("mov TH1, #0h\t; Reloadwert für Baudrate 122,0703"));
    EXPECT_EQ(toUtf8(s().UOption1.buttons[0].caption), "Modus 0, synchron, 8 Bit, 1000000 Baud");
    EXPECT_EQ(toUtf8(s().UOption1.buttons[2].caption), "Modus 2, asynchron, 11 Bit, 187500 Baud");
    set("UCheck4", "1");
    EXPECT_EQ(toUtf8(s().UOption1.buttons[2].caption), "Modus 2, asynchron, 11 Bit, 375000 Baud");
    set("SText1", "11,0592");
    EXPECT_EQ(toUtf8(s().UOption1.buttons[0].caption), "Modus 0, synchron, 8 Bit, 921600 Baud");
    EXPECT_TRUE(hasLine("orl PCON, #80h\t; Bit SMOD für Baudratenverdoppelung setzen"));
}

}  // namespace
}  // namespace korvex::wizards
