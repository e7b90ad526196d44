// The C515 wizard: its baud-rate generator, the watchdog period search and
// reset-source test, and the questions about Timer 1.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "wizard_session.h"
#include "wizards/core/watchdog.h"

namespace korvex::wizards::testing {
namespace {

using Kind = ScriptedWizardHost::Kind;

TEST(SiemensWatchdog, PeriodSearchFindsTheNearerDivider) {
    struct Row {
        double megahertz, period;
        std::int32_t reload;
        int divider;
        double actual;
    };
    // 32.768 ms at 12 MHz: f × T rounds to 393, a = 128 − 65 = 63 (33,28 ms), b = 128 − 4 =
    // 124 (32,768 ms): b is exact. 20 ms: a = 88 (20,48 ms), b = 126 (16,384 ms).
    const Row rows[] = {{12, 32.768, 124, 384, 32.768},
                        {12, 20, 88, 24, 20.48},
                        {12, 100000, -12116, 384, 100302.848}};
    for (const Row& row : rows) {
        const SiemensWatchdog w = siemensWatchdogFor(row.megahertz, row.period);
        EXPECT_EQ(w.reload, row.reload) << row.period;
        EXPECT_EQ(w.divider, row.divider) << row.period;
        EXPECT_NEAR(siemensWatchdogPeriod(w, row.megahertz), row.actual, 1e-6);
    }
    EXPECT_EQ((SiemensWatchdog{124, 384}.value()), 0xFC);
    EXPECT_NEAR(siemensWatchdogPeriod({}, 12), 65.536, 1e-9);
}

TEST(Assistent515, SystemLinesGeneratorAndWatchdog) {
    WizardSession w("515");
    EXPECT_EQ(w.wizard().windowTitle(), "Asisstent C515");
    w.apply({"SCombo1=1", "SCheck3=1", "SCheck0=1", "UCheck1=1", "UOption1=1"});
    EXPECT_TRUE(w.hasBlock({"or PSW, # 8\t; Registerbank 1", "clr Watchdog Reset", "mov a, IP0",
                            "if bit acc.6 then", "\tmov IP0, #0", "\tsetb Watchdog Reset", "end if",
                            "setb CLK\t; Systemtakt ausgeben"}));
    EXPECT_EQ(w.value("ULabel2"), "Baudrate = 4807 Baud");
    EXPECT_TRUE(w.hasLine("setb BD\t; verwendet den Baudratengenerator, Baudrate = 4807 Baud"));
    w.set("UCheck4", "1");
    EXPECT_EQ(w.value("ULabel2"), "Baudrate = 9615 Baud");
    w.set("UOption3", "0");
    EXPECT_EQ(w.value("ULabel2"), "Baudrate");
    EXPECT_TRUE(w.hasLine("mov TH1, # E6h\t; Reloadwert für Baudrate 2403,846"));
    EXPECT_TRUE(w.hasLine("#Bit Watchdog Reset"));

    w.set("WDCheck1", "1");
    EXPECT_EQ(w.value("WDLabel"), "0h, Teiler 24");
    EXPECT_TRUE(w.hasLine("mov WDTREL, #0h\t; Watchdog: Watchdog Periode ist 65,536 ms"));
    w.host.inputs = {"32.768"};
    w.click("WDCommand1");
    ASSERT_EQ(w.host.boxes.size(), 1u);
    EXPECT_EQ(toUtf8(w.host.boxes[0].title), "Watchdog Timer Überlaufperiode");
    EXPECT_EQ(w.value("WDLabel"), "7Ch, Teiler 384");
    EXPECT_TRUE(w.hasLine("mov WDTREL, #FCh\t; Watchdog: Watchdog Periode ist 32,768 ms"));
    w.host.inputs = {"100000"};
    w.click("WDCommand1");
    EXPECT_EQ(w.value("WDLabel"), "FFFFD0ACh, Teiler 384");
    // No answer, or 0: nothing changes.
    w.host.inputs = {"0"};
    w.click("WDCommand1");
    EXPECT_EQ(w.value("WDLabel"), "FFFFD0ACh, Teiler 384");
}

TEST(Assistent515, Timer1ForThePortIsAskedForAndGivenBack) {
    WizardSession w("515");
    w.apply({"T1Check0=1", "UCheck1=1", "UOption1=1"});
    EXPECT_TRUE(w.host.boxes.empty());  // the generator needs no timer
    w.host.answers = {false};
    w.set("UOption3", "0");
    EXPECT_EQ(w.boxTexts(Kind::Question),
              std::vector<std::string>{"Timer 1 wird bereits für andere Zwecke verwendet. "
                                       "Möchten Sie diese Zuordnung aufheben?"});
    EXPECT_EQ(w.value("UOption3"), "1");
    w.host.answers = {true};
    w.set("UOption3", "0");
    EXPECT_EQ(w.value("T1Check0") + w.value("UOption3"), "00");
    EXPECT_TRUE(w.enabled("UCombo1"));
    // Taking Timer 1 back moves the port to the generator; the port stays on.
    w.host.answers = {true};
    w.set("T1Check0", "1");
    EXPECT_EQ(w.value("UOption3") + w.value("UCheck1"), "11");
    EXPECT_TRUE(w.wizard().atRest());
}

}  // namespace
}  // namespace korvex::wizards::testing
