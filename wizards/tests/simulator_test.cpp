// The initialisation does on the chip what the settings say: the program
// runs in Debian's s51 up to the main program, and the registers are read back.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "wizard_fixture.h"

namespace korvex::wizards::testing {
namespace {

struct Sample {
    std::string name;
    std::vector<std::string> settings;
    std::vector<std::string> inputs;
    std::map<std::string, int> expected;  // "sfr:89" -> value
};

std::vector<Sample> samples() {
    return {
        {"SerialTimer1At11Mhz",
         {"SText1=11,0592", "UCheck1=1", "UOption1=1", "UCheck3=1", "UCombo3=9600"},
         {},
         {{"sfr:89", 0x20}, {"sfr:8D", 0xFD}, {"sfr:98", 0x50}, {"sfr:81", 0x07}}},
        {"SerialBothOnTimer2",
         {"UCheck1=1", "UOption1=3", "UCheck3=1", "UCombo1=1", "UCombo2=1", "UCombo3=9600"},
         {},
         {{"sfr:98", 0xD0},
          {"sfr:C8", 0x34},
          {"sfr:CB", 0xFF},
          {"sfr:CA", 0xD9},
          {"sfr:89", 0x00}}},
        {"SerialReceiveTimer1SendTimer2",
         {"UCheck1=1", "UOption1=1", "UCombo2=1", "UCombo4=9600", "UCheck4=1"},
         {},
         {{"sfr:89", 0x20},
          {"sfr:8D", 0xE6},
          {"sfr:C8", 0x14},
          {"sfr:CB", 0xFF},
          {"sfr:CA", 0xD9},
          {"sfr:87", 0x80},
          {"sfr:98", 0x40}}},
        {"Timer0ReloadFromFrequency",
         {"T0Combo1=2", "T0Text1=5A"},
         {"10000"},
         {{"sfr:89", 0x02}, {"sfr:8A", 0x5A}, {"sfr:8C", 0x9C}}},
        {"InterruptsPrioritiesAndStack",
         {"SText2=30", "ICheck1(0)=1", "IOption1=1", "ICheck1(1)=1", "ICheck2(1)=1", "ICheck1(5)=1",
          "ICheck2(3)=1", "ICheck0=1"},
         {},
         {{"sfr:A8", 0xA3}, {"sfr:B8", 0x0A}, {"sfr:81", 0x2F}, {"sfr:88", 0x01}}},
        // The wizard's own quirks, as the chip sees them: Timer 1's gate in mode
        // 0 is written as decimal 80 (50h), bank 3 as decimal 18 (12h).
        {"Timer1GateAndBankQuirks",
         {"T1Check0=1", "T1Check1=1", "SCombo1=3", "T1Text2=77"},
         {},
         {{"sfr:89", 0x50}, {"sfr:D0", 0x12}, {"sfr:8D", 0x77}}},
        {"Timer2AutoreloadAndCapture",
         {"T2Check0=1", "T2Text4=F0", "T2Text5=FF"},
         {},
         {{"sfr:C8", 0x04}, {"sfr:CA", 0xF0}, {"sfr:CB", 0xFF}}},
        {"Timer2CounterCaptureWithExen",
         {"T2Check1=1", "T2Check0=1", "T2Combo1=7", "T2Text2=11", "T2Text3=22"},
         {},
         {{"sfr:C8", 0x0F}, {"sfr:CA", 0x00}, {"sfr:CB", 0x00}}},
        {"Timer0Mode3CounterRunning",
         {"T0Combo1=3", "T0Option1=1", "T0Check1=1", "T0Check2=1", "T0Check3=1"},
         {},
         {{"sfr:89", 0x0F}, {"sfr:88", 0x50}}},
    };
}

class SimulatorRun : public WizardFixture, public ::testing::WithParamInterface<Sample> {};

TEST_P(SimulatorRun, RegistersHoldWhatTheSettingsSay) {
    if (!simulatorAvailable()) GTEST_SKIP() << "s51 (Debian sdcc-ucsim) fehlt";
    for (const auto& input : GetParam().inputs) host_.inputs.push_back(input);
    apply(GetParam().settings);
    if (!GetParam().inputs.empty()) click("T0Command1");
    const bool serialLoop = s().ICheck1[4].value != 0;
    const AssembledSource assembled = assembleProgram(program());
    ASSERT_EQ(assembled.outcome, RunOutcome::Completed);
    ASSERT_EQ(assembled.findings, std::vector<std::string>{});
    const auto stop = stopAddress(assembled, serialLoop ? "LOOP" : "END");
    ASSERT_TRUE(stop.has_value()) << toUtf8(program());
    std::vector<std::string> cells;
    for (const auto& [cell, value] : GetParam().expected) cells.push_back(cell);
    const auto values = runInSimulator(assembled.hexText, *stop, cells);
    EXPECT_EQ(values, GetParam().expected) << toUtf8(program());
}

INSTANTIATE_TEST_SUITE_P(Assistent52, SimulatorRun, ::testing::ValuesIn(samples()),
                         [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace korvex::wizards::testing
