// The interlocks between timers and the serial port, as sequences of user
// actions with the questions and notes they raise.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "wizard_fixture.h"
#include "wizard_session.h"

namespace korvex::wizards::testing {
namespace {

using TimerAndSerialInterlocks = WizardFixture;
using Kind = ScriptedWizardHost::Kind;

TEST_F(TimerAndSerialInterlocks, TimerForOtherWorkWhileItTimesThePortAsksFirst) {
    apply({"UCheck1=1", "UOption1=1"});
    const std::string before = program();
    // No: nothing changes.
    host_.answers = {false};
    set("T1Check0", "1");
    ASSERT_EQ(host_.boxes.size(), 1u);
    EXPECT_EQ(host_.boxes[0].kind, Kind::Question);
    EXPECT_EQ(host_.boxes[0].title, "Konflikt");
    EXPECT_EQ(toUtf8(host_.boxes[0].text),
              "Timer 1 wird bereits als Baudratengenerator verwendet. "
              "Möchten Sie diese Zuordnung aufheben?");
    EXPECT_EQ(s().T1Check0.value, 0);
    EXPECT_EQ(program(), before);
    EXPECT_FALSE(s().T1Combo1.enabled);
    // Yes: the port gives up its generator.
    host_.answers = {true};
    set("T1Check0", "1");
    EXPECT_EQ(s().UCheck1.value, 0);
    EXPECT_TRUE(s().T1Combo1.enabled && s().T1Text2.enabled && s().T1Check2.enabled);
    EXPECT_EQ(program().find("; Serieller Port"), std::string::npos);
    EXPECT_TRUE(wizard_.atRest());

    apply({"UCheck1=1", "UOption1=1", "UCombo1=1", "UCombo2=1"});
    host_.answers = {false};
    set("T2Check0", "1");
    EXPECT_EQ(boxTexts(Kind::Question).back(),
              "Timer 2 wird bereits als Baudratengenerator verwendet.\r\n"
              "Möchten Sie diese Zuordnung aufheben?");
    EXPECT_EQ(s().T2Check0.value, 0);
    EXPECT_EQ(s().UCheck1.value, 1);
    host_.answers = {true};
    set("T2Check0", "1");
    EXPECT_EQ(s().T2Check0.value, 1);
    EXPECT_EQ(s().UCheck1.value, 0);
    EXPECT_TRUE(s().T2Combo1.enabled && s().T2Text4.enabled);
    EXPECT_EQ(program().find("; Serieller Port"), std::string::npos);
    EXPECT_TRUE(wizard_.atRest());
}

TEST_F(TimerAndSerialInterlocks, ChoosingTimer2InTheListAsksFirst) {
    apply({"UCheck1=1", "UOption1=1", "T2Check0=1"});
    // No: both lists go back to Timer 1, and Timer 2 keeps its work.
    host_.answers = {false};
    set("UCombo2", "1");
    EXPECT_EQ(boxTexts(Kind::Question),
              std::vector<std::string>{"Timer 2 wird bereits für andere Zwecke verwendet.\r\n Soll "
                                       "diese Verwendung aufgehoben werden und möchten Sie Timer 2 "
                                       "als Baudratengenerator benutzen?"});
    EXPECT_EQ(s().UCombo1.listIndex + s().UCombo2.listIndex, 0);
    EXPECT_EQ(s().T2Check0.value, 1);
    EXPECT_FALSE(s().UCombo4.visible);
    // Yes: Timer 2 sends, Timer 1 receives.
    host_.answers = {true};
    set("UCombo2", "1");
    EXPECT_EQ(s().T2Check0.value, 0);
    EXPECT_EQ(s().UCombo2.listIndex, 1);
    EXPECT_TRUE(s().UCombo4.visible);
    EXPECT_EQ(s().T2Combo1.listIndex, 8);
    EXPECT_EQ(s().T2Option1.selected, 0);
    EXPECT_TRUE(
        hasLine("mov T2CON, #14h\t; Timer 2 als Baudratengenerator für Senden, Timer 2 Run"));
    EXPECT_TRUE(wizard_.atRest());
}

TEST_F(TimerAndSerialInterlocks, BothTimersBusyLeaveOnlyModes0And2) {
    apply({"T1Check0=1", "T2Check0=1", "UCheck1=1"});
    EXPECT_EQ(boxTexts(Kind::Note),
              std::vector<std::string>{"Die Modi 1 und 3 stehen nicht zur Verfügung, weil Timer 1 "
                                       "und Timer 2 für andere Zwecke verwendet werden.\r\n"
                                       "Geben Sie einen dieser Timer frei."});
    EXPECT_EQ(s().UOption1.selected, 0);
    EXPECT_FALSE(s().UOption1.buttons[1].enabled || s().UOption1.buttons[3].enabled);
    EXPECT_THROW(set("UOption1", "1"), ControlUseError);
    // Mode 2 stays, and doubling works there.
    apply({"UCheck1=0", "T1Check0=0", "UCheck1=1", "UOption1=2", "UCheck1=0", "T1Check0=1",
           "UCheck1=1"});
    EXPECT_EQ(s().UOption1.selected, 2);
    EXPECT_TRUE(s().UCheck4.enabled && s().UCheck2.enabled);

    // Timer 2 free again: the port may take it.
    host_.boxes.clear();
    set("T2Check0", "0");
    set("UOption1", "1");
    EXPECT_EQ(s().UCombo1.listIndex, 1);
    EXPECT_EQ(s().UCombo2.listIndex, 1);
    EXPECT_TRUE(host_.boxes.empty());
    EXPECT_TRUE(wizard_.atRest());
}

TEST_F(TimerAndSerialInterlocks, ModeTakesTimer1SilentlyWhileTheListAsks) {
    // The mode rule frees Timer 1 without a question ...
    apply({"UCheck1=1", "T1Check0=1", "UOption1=1"});
    EXPECT_TRUE(host_.boxes.empty());
    EXPECT_EQ(s().T1Check0.value, 0);
    EXPECT_EQ(s().T1Combo1.listIndex, 2);
    EXPECT_EQ(s().T1Check2.value + s().T0Check3.value, 2);

    // ... while choosing Timer 1 in the list asks first. No: both lists go to Timer 2.
    apply({"UCombo1=1", "UCombo2=1", "T1Check0=1"});
    set("UCombo1", "0");
    EXPECT_EQ(boxTexts(Kind::Question),
              std::vector<std::string>{"Timer 1 wird bereits für andere Zwecke verwendet.\r\n Soll "
                                       "diese Verwendung aufgehoben werden und möchten Sie Timer 1 "
                                       "als Baudratengenerator benutzen?"});
    EXPECT_EQ(s().UCombo1.listIndex + s().UCombo2.listIndex + s().T1Check0.value, 3);
    host_.answers = {true};
    set("UCombo1", "0");
    EXPECT_EQ(s().T1Check0.value, 0);
    EXPECT_EQ(s().UCombo1.listIndex, 0);
}

TEST(TimerAndSerialInterlocksOfTimer2, ModeTakesTimer2SilentlyForTheDirectionsItServes) {
    struct Case {
        const char* receive;
        const char* send;
        const char* direction;
    };
    for (const Case c : {Case{"1", "1", "2"}, Case{"0", "1", "0"}, Case{"1", "0", "1"}}) {
        WizardSession w("52");
        w.apply({"UCheck1=1", "UOption1=1", std::string("UCombo1=") + c.receive,
                 std::string("UCombo2=") + c.send, "UOption1=0", "T2Check0=1", "T2Combo1=0"});
        w.set("UOption1", "3");
        EXPECT_TRUE(w.host.boxes.empty());
        EXPECT_EQ(w.value("T2Check0") + w.value("T2Combo1"), "08");
        EXPECT_EQ(w.value("T2Option1"), c.direction) << c.receive << c.send;
    }
}

TEST_F(TimerAndSerialInterlocks, FreeingATimerRunsThePortRulesAgain) {
    apply({"T1Check0=1", "T2Check0=1", "UCheck1=1"});
    EXPECT_FALSE(s().UOption1.buttons[1].enabled || s().UOption1.buttons[3].enabled);
    // Timer 1 free, Timer 2 still busy: modes 1 and 3 come back, on Timer 1.
    set("T1Check0", "0");
    EXPECT_TRUE(s().UOption1.buttons[1].enabled && s().UOption1.buttons[3].enabled);
    EXPECT_EQ(s().UCombo1.listIndex + s().UCombo2.listIndex, 0);
    // Timer 2 free, Timer 1 busy again: the port is put on Timer 2.
    set("T1Check0", "1");
    set("T2Check0", "0");
    EXPECT_EQ(s().UCombo1.listIndex + s().UCombo2.listIndex, 2);
    EXPECT_EQ(s().UCheck1.value, 1);
    EXPECT_EQ(boxTexts(Kind::Note).size(), 1u);
    EXPECT_TRUE(host_.boxes.size() == 1 && wizard_.atRest());
}

TEST_F(TimerAndSerialInterlocks, NoWithBothTimersBusyAsksOnce) {
    // Putting the lists back on the other timer must not ask about that one in
    // turn: with both timers busy the questions went back and forth forever.
    apply({"T2Check0=1", "UOption1=1"});
    host_.answers = {true};
    set("T1Check0", "1");
    host_.boxes.clear();
    set("UCombo1", "1");  // no answer given: No to "Timer 1", both lists go to Timer 2
    EXPECT_EQ(boxTexts(Kind::Question).size(), 1u);
    EXPECT_EQ(s().UCombo1.listIndex + s().UCombo2.listIndex, 2);
    EXPECT_EQ(s().T1Check0.value + s().T2Check0.value, 2);
    EXPECT_TRUE(wizard_.atRest());
}

TEST_F(TimerAndSerialInterlocks, GeneratorListsPairTimer2AndShowTheSecondRate) {
    apply({"UCheck1=1", "UOption1=1", "UCombo2=1"});
    EXPECT_TRUE(s().UCombo4.visible);
    EXPECT_EQ(s().T2Combo1.listIndex, 8);
    EXPECT_FALSE(s().T2Text4.enabled);
    // Back to Timer 1: Timer 2 returns to autoreload with cleared registers.
    set("UCombo2", "0");
    EXPECT_FALSE(s().UCombo4.visible);
    EXPECT_EQ(s().T2Combo1.listIndex, 1);
    EXPECT_EQ(s().T2Text4.text + s().T2Text5.text, "0000");
}

TEST_F(TimerAndSerialInterlocks, Timer0Mode3SharesTimer1) {
    apply({"T1Check0=1", "T0Combo1=3"});
    EXPECT_EQ(
        boxTexts(Kind::Note),
        std::vector<std::string>{
            "Beachten Sie:\r\nTimer 1 wird bereits für andere Zwecke verwendet. Sie erzeugen "
            "in Modus 3 mit dem High-Byte des Timer 0 einen neuen Timer 1.\r\nDer Timer 1 "
            "Interrupt wird durch Überlauf des High-Bytes von Timer 0 ausgelöst und steht für "
            "den eigentlichen Timer 1 nicht mehr zur Verfügung.\r\nDas Bit TR1 startet das "
            "Hygh-Byte von Timer 0 und den eigentlichen Timer 1.\r\nTimer 1 kann nur durch "
            "Versetzen in den Modus 3 gestoppt werden."});
    EXPECT_EQ(s().T0Label3.caption, "Timer 1");
    EXPECT_TRUE(s().T0Check3.visible);
    // The other order gives the other note.
    apply({"T1Check0=0", "T1Check0=1"});
    EXPECT_EQ(boxTexts(Kind::Note).back(),
              "Beachten Sie:\r\nFür Timer 0 ist Modus 3 gewählt. In diesem Modus übernimmt das "
              "High-Byte des Timer 0 die Timer 1 Funktion.\r\nD.h. der Timer 1 Interrupt wird "
              "durch das High-Byte des Timer 0 ausgelöst.\r\nDas High-Byte des Timer 0 und der "
              "eigentliche Timer 1 werden durch dasselbe Bit TR1 gestartet.\r\nTimer 1 muss in den "
              "Modus 3 versetzt werden, damit er stoppt (wenn TR1 = 1).\r\nTimer 1 kann als "
              "Baudratengenerator verwendet werden, vorausgesetzt TR1 = 1.");
    // The run bits mirror each other; Timer 1's mode 3 stops both.
    set("T0Check3", "1");
    EXPECT_EQ(s().T1Check2.value, 1);
    apply({"T0Combo1=0", "T1Combo1=3"});
    EXPECT_EQ(s().T1Check2.value + s().T0Check3.value, 0);
    EXPECT_FALSE(s().T1Check2.enabled);
    set("T1Combo1", "2");
    EXPECT_TRUE(s().T1Check2.enabled && s().T1Command1.enabled);
}

TEST_F(TimerAndSerialInterlocks, CountersAndTheTimer2FunctionsEnableWhatTheyUse) {
    apply({"T0Combo1=2", "T0Option1=1"});
    EXPECT_FALSE(s().T0Command1.enabled);
    EXPECT_EQ(
        toUtf8(s().T0Check1.caption),
        "Gate Control. High-Pegel an INT0: Zähler 0 läuft, Low-Pegel an INT0: Zähler 0 steht.");
    set("T2Check0", "1");
    struct Expect {
        int item;
        bool command, reload, exen;
    };
    for (const Expect e : {Expect{0, false, true, false}, Expect{1, true, true, false},
                           Expect{3, false, false, false}, Expect{8, true, true, true},
                           Expect{9, false, true, true}}) {
        set("T2Combo1", std::to_string(e.item));
        EXPECT_EQ(s().T2Command1.enabled, e.command) << e.item;
        EXPECT_EQ(s().T2Text4.enabled && s().T2Text5.enabled, e.reload) << e.item;
        EXPECT_EQ(s().T2Check1.visible && s().T2Frame1.visible, e.exen) << e.item;
    }
    set("T2Check0", "0");
    EXPECT_TRUE(s().T2Check1.visible);
    EXPECT_FALSE(s().T2Combo1.enabled);
}

}  // namespace
}  // namespace korvex::wizards::testing
