// Every program the wizard writes must assemble without a finding with the
// shipped 80C32 driver: a broad walk over serial modes and generator
// pairings, timer modes as timer and counter with gate, the Timer 2
// functions, interrupts and priorities, RAM clearing, stack and banks. The
// programs the simulator runs are not repeated here.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "wizard_fixture.h"

namespace korvex::wizards::testing {
namespace {

using GeneratedProgramAssembly = WizardFixture;

struct Case {
    std::string name;
    std::vector<std::string> settings;
};

std::vector<Case> matrix() {
    std::vector<Case> cases = {
        {"Defaults", {}},
        {"SystemAll",
         {"SText2=30", "SCheck1=1", "SText3=20", "SText4=7F", "SCombo1=1", "SCheck2=1",
          "SText5=Prüfstand, Förderband"}},
        {"StackZero", {"SText2=00"}},
        {"Bank3RamFull", {"SCombo1=3", "SCheck1=1", "SText3=01", "SText4=FF"}},
        {"SerialMode0", {"UCheck1=1"}},
        {"SerialMode1Doubled", {"UCheck1=1", "UOption1=1", "UCheck4=1", "UCombo3=19200"}},
        {"SerialMode1Slow", {"UCheck1=1", "UOption1=1", "UCombo3=110"}},
        {"SerialReceiveT2SendT1",
         {"UCheck1=1", "UOption1=3", "UCombo1=1", "UCombo4=4800", "UCheck3=1"}},
        {"SerialBothT2", {"UCheck1=1", "UOption1=1", "UCombo1=1", "UCombo2=1", "UCombo3=28800"}},
        {"SerialMode2", {"UCheck1=1", "UOption1=2", "UCheck2=1", "UCheck3=1", "UCheck4=1"}},
        {"SerialMode3Sm2", {"UCheck1=1", "UOption1=3", "UCheck2=1", "UCheck3=1"}},
        {"SerialWithTimer0Mode3", {"T0Combo1=3", "UCheck1=1", "UOption1=1", "T0Check2=1"}},
        {"SerialWithInterrupt",
         {"UCheck1=1", "UOption1=1", "UCheck3=1", "ICheck1(4)=1", "ICheck2(4)=1", "ICheck0=1"}},
        {"Timer0Mode3HighByte", {"T0Combo1=3", "T0Check3=1", "T0Text1=10", "T0Text2=20"}},
        {"Timer2ExenUnused", {"T2Check1=1", "ICheck1(5)=1"}},
        {"Timer2ExenWithSerialT2", {"UCheck1=1", "UOption1=1", "UCombo2=1", "T2Check1=1"}},
        {"AllInterrupts",
         {"ICheck1(0)=1", "ICheck1(1)=1", "ICheck1(2)=1", "ICheck1(3)=1", "ICheck1(5)=1",
          "ICheck2(0)=1", "ICheck2(2)=1", "ICheck2(5)=1", "IOption1=1", "IOption2=1", "ICheck0=1"}},
        {"LevelTriggers", {"ICheck1(0)=1", "ICheck1(2)=1"}},
        {"Everything",
         {"SText2=40", "SCheck1=1", "SCombo1=1", "UCheck1=1", "UOption1=3", "UCombo1=1",
          "UCheck3=1", "T0Combo1=2", "T0Text2=9C", "T0Text1=9C", "T0Check2=1", "ICheck1(0)=1",
          "ICheck1(1)=1", "ICheck1(4)=1", "ICheck1(5)=1", "ICheck0=1"}},
    };
    for (int mode = 0; mode < 4; ++mode) {
        for (int counter = 0; counter < 2; ++counter) {
            for (int gate = 0; gate < 2; ++gate) {
                const std::string tag = "M" + std::to_string(mode) +
                                        (counter ? "Counter" : "Timer") + (gate ? "Gate" : "");
                const std::vector<std::string> fields = {
                    "Option1=" + std::to_string(counter), "Combo1=" + std::to_string(mode),
                    "Check1=" + std::to_string(gate), "Text1=3C", "Text2=B0"};
                Case t0{"Timer0" + tag, {}};
                Case t1{"Timer1" + tag, {"T1Check0=1"}};
                for (const auto& f : fields) {
                    t0.settings.push_back("T0" + f);
                    t1.settings.push_back("T1" + f);
                }
                t0.settings.push_back("T0Check2=1");
                if (mode != 3) t1.settings.push_back("T1Check2=1");
                cases.push_back(t0);
                cases.push_back(t1);
            }
        }
    }
    for (int function = 0; function < 10; ++function) {
        Case t2{"Timer2Function" + std::to_string(function),
                {"T2Check0=1", "T2Combo1=" + std::to_string(function), "T2Text2=34", "T2Text3=12"}};
        if (function != 3 && function != 7) {
            t2.settings.push_back("T2Text4=F0");
            t2.settings.push_back("T2Text5=FF");
        }
        if (function >= 8) {
            t2.settings.push_back("T2Check1=1");
            t2.settings.push_back("T2Option1=" + std::to_string(function - 8));
        }
        t2.settings.push_back("ICheck1(5)=1");
        cases.push_back(t2);
    }
    return cases;
}

// The lines of the report's warning block other than the one the wizard
// itself causes: the send routine "Sende:" is offered but never called, so
// the report lists it as an unused label.
std::vector<std::string> unexpectedWarnings(const std::string& report) {
    std::vector<std::string> out;
    if (report.rfind("Warnungen/Fehler:", 0) != 0) return out;
    std::size_t from = report.find("\r\n") + 2;
    while (from < report.size()) {
        const std::size_t end = report.find("\r\n", from);
        const std::string text = report.substr(from, end - from);
        if (text.empty() || end == std::string::npos) break;
        if (text != "Unbenutzte Label" && text.rfind("   Sende: ", 0) != 0)
            out.push_back(toUtf8(text));
        from = end + 2;
    }
    return out;
}

class AssemblyMatrix : public WizardFixture, public ::testing::WithParamInterface<Case> {};

TEST_P(AssemblyMatrix, ProgramAssemblesWithoutFinding) {
    apply(GetParam().settings);
    EXPECT_EQ(host_.unanswered, 0);
    const AssembledSource result = assembleProgram(program());
    ASSERT_EQ(result.outcome, RunOutcome::Completed) << toUtf8(program());
    EXPECT_EQ(result.findings, std::vector<std::string>{}) << toUtf8(program());
    EXPECT_EQ(unexpectedWarnings(result.report), std::vector<std::string>{})
        << toUtf8(result.report) << toUtf8(program());
}

INSTANTIATE_TEST_SUITE_P(Assistent52, AssemblyMatrix, ::testing::ValuesIn(matrix()),
                         [](const auto& info) { return info.param.name; });

// The wizard writes the serial interrupt's main loop even without the port,
// and then leaves it open for the user to complete: such a source does not
// assemble until the user adds to it.
TEST_F(GeneratedProgramAssembly, SerialInterruptWithoutPortLeavesTheLoopOpen) {
    set("ICheck1(4)", "1");
    const AssembledSource result = assembleProgram(program());
    EXPECT_FALSE(result.findings.empty() && result.report.rfind("Warnungen/Fehler:", 0) != 0)
        << toUtf8(result.report);
    EXPECT_TRUE(hasLine("loop\t; Routine für seriellen Empfang"));
    EXPECT_FALSE(hasLine("end loop"));
}

}  // namespace
}  // namespace korvex::wizards::testing
