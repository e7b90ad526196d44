// The 8051 wizard: the base without Timer 2, its own literal style, and the
// rules that ask before Timer 1 changes hands.

#include <gtest/gtest.h>

#include "wizard_session.h"

namespace korvex::wizards::testing {
namespace {

using Kind = ScriptedWizardHost::Kind;

TEST(Assistent51, WritesItsOwnLiteralsWithoutTimer2) {
    WizardSession w("51");
    EXPECT_EQ(w.wizard().windowTitle(), "Assistent 51");
    EXPECT_EQ(w.wizard().tabNames().size(), 5u);
    EXPECT_THROW(w.set("T2Check0", "1"), ControlUseError);
    EXPECT_THROW(w.set("ICheck1(5)", "1"), ControlUseError);
    w.apply({"SText2=30", "SCombo1=1", "T0Check1=1", "T1Check0=1", "T1Check1=1", "UCheck1=1",
             "UOption1=2", "UCheck4=1"});
    EXPECT_TRUE(w.hasBlock({"#cpu = 80C31\t; @12 MHz"}));
    EXPECT_TRUE(w.hasLine("mov SP, # 2Fh\t; Stackbeginn"));
    EXPECT_TRUE(w.hasLine("or PSW, # 8\t; Registerbank 1"));
    EXPECT_TRUE(w.hasLine("mov SCON, # 80h\t; Modus 2, asynchron, 9 Bit, 375000 Baud"));
    EXPECT_TRUE(w.hasLine("orl PCON, # 80h\t; Bit SMOD für Baudratenverdoppelung setzen"));
    EXPECT_TRUE(
        w.hasLine("orl TMOD, # 8\t; Gate Control. High-Pegel an INT0: Timer 0 läuft, "
                  "Low-Pegel an INT0: Timer 0 steht."));
    EXPECT_TRUE(
        w.hasLine("orl TMOD, # 80h\t; Gate Control. High-Pegel an INT1: Timer 1 läuft, "
                  "Low-Pegel an INT1: Timer 1 steht."));
}

TEST(Assistent51, BaudRateFiguresComeFromTheOneList) {
    WizardSession w("51");
    w.apply({"UCheck1=1", "UOption1=1"});
    EXPECT_TRUE(w.hasBlock({"mov TMOD, # 20h\t; Timer 1 Autoreloadmodus",
                            "mov TH1, # F3h\t; Reloadwert für Baudrate 2403,846",
                            "setb TR1\t; Timer 1 Start"}));
    w.set("UCombo1", "110");
    EXPECT_TRUE(w.hasLine("mov TH1, # 0h\t; Reloadwert für Baudrate 122,0703"));
    w.set("UCombo1", "0");
    EXPECT_EQ(w.value("UCombo1"), "1");  // repaired to "300" on leaving
}

TEST(Assistent51, Timer1ForOtherWorkLeavesOnlyModes0And2) {
    WizardSession w("51");
    w.apply({"T1Check0=1", "UCheck1=1"});
    EXPECT_EQ(w.boxTexts(Kind::Note),
              std::vector<std::string>{"Die Modi 1 und 3 stehen nicht zur Verfügung, weil Timer 1 "
                                       "für andere Zwecke verwendet wird.\r\nGeben Sie Timer 1 "
                                       "frei."});
    EXPECT_THROW(w.set("UOption1", "1"), ControlUseError);
    EXPECT_EQ(w.value("UOption1"), "0");
    EXPECT_FALSE(w.enabled("UCombo1"));
}

TEST(Assistent51, ChoosingAModeThatNeedsTimer1AsksFirst) {
    WizardSession w("51");
    // Timer 1 taken while the port runs in mode 2: no question yet.
    w.apply({"UCheck1=1", "UOption1=2", "T1Check0=1"});
    EXPECT_TRUE(w.host.boxes.empty());
    const std::string before = w.program();
    w.host.answers = {false};
    w.set("UOption1", "3");
    ASSERT_EQ(w.host.boxes.size(), 1u);
    EXPECT_EQ(w.host.boxes[0].title, "Konflikt");
    EXPECT_EQ(w.boxTexts(Kind::Question),
              std::vector<std::string>{"Timer 1 wird bereits für andere Zwecke verwendet. "
                                       "Möchten Sie diese Zuordnung aufheben?"});
    EXPECT_EQ(w.value("UOption1"), "2");
    EXPECT_EQ(w.value("T1Check0"), "1");
    EXPECT_EQ(w.program(), before);
    // Yes: Timer 1 becomes the baud-rate generator, running in mode 2.
    w.host.answers = {true};
    w.set("UOption1", "1");
    EXPECT_EQ(w.value("T1Check0"), "0");
    EXPECT_EQ(w.value("T1Combo1"), "2");
    EXPECT_TRUE(w.enabled("UCombo1"));
    EXPECT_TRUE(w.hasLine("mov TH1, # F3h\t; Reloadwert für Baudrate 2403,846"));
    EXPECT_TRUE(w.wizard().atRest());

    // Taking Timer 1 back while it times the port asks the base's question.
    w.host.answers = {true};
    w.set("T1Check0", "1");
    EXPECT_EQ(w.boxTexts(Kind::Question).back(),
              "Timer 1 wird bereits als Baudratengenerator verwendet. Möchten Sie diese "
              "Zuordnung aufheben?");
    EXPECT_EQ(w.value("UCheck1"), "0");
}

}  // namespace
}  // namespace korvex::wizards::testing
