// The initialisation does on the chip what the settings say: each chip's
// program runs in Debian's s51 on the chip or a compatible core up to the
// main program, and the registers the settings name are read back.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "wizard_fixture.h"
#include "wizard_session.h"

namespace korvex::wizards::testing {
namespace {

struct Sample {
    std::string chip;
    std::string core;  // s51's type
    std::string name;
    std::vector<std::string> settings;  // "!BUTTON" clicks
    std::vector<std::string> inputs;    // answers to the input boxes
    std::map<std::string, int> expected;
    std::string stop = "END";  // the statement the run stops at
};

void PrintTo(const Sample& s, std::ostream* os) {
    *os << s.chip << " " << s.name;
}

std::vector<Sample> samples() {
    return {
        {"51",
         "C51",
         "SerialTimer1At11Mhz",
         {"SText1=11,0592", "UCheck1=1", "UOption1=1", "UCheck3=1", "UCombo1=9600"},
         {},
         {{"sfr:89", 0x20}, {"sfr:8D", 0xFD}, {"sfr:98", 0x50}, {"sfr:81", 0x07}}},
        // Unlike the base, the 8051's wizard writes Timer 1's gate as 80h.
        {"51",
         "C51",
         "Timer1GateInMode0",
         {"T1Check0=1", "T1Check1=1", "T1Text2=77", "T1Check2=1"},
         {},
         {{"sfr:89", 0x80}, {"sfr:8D", 0x77}, {"sfr:88", 0x40}}},
        {"51",
         "C51",
         "Timer0ReloadFromFrequency",
         {"T0Combo1=2", "T0Text1=5A", "!T0Command1", "T0Check2=1"},
         {"10000"},
         {{"sfr:89", 0x02}, {"sfr:8A", 0x5A}, {"sfr:8C", 0x9C}, {"sfr:88", 0x10}}},
        {"51",
         "C51",
         "InterruptsPrioritiesAndStack",
         {"SText2=30", "ICheck1(0)=1", "IOption1=1", "ICheck1(1)=1", "ICheck2(1)=1", "ICheck2(3)=1",
          "ICheck0=1"},
         {},
         {{"sfr:A8", 0x83}, {"sfr:B8", 0x0A}, {"sfr:81", 0x2F}, {"sfr:88", 0x01}}},
        {"51",
         "C51",
         "SerialMode2Doubled",
         {"UCheck1=1", "UOption1=2", "UCheck3=1", "UCheck4=1", "UCheck2=1"},
         {},
         {{"sfr:98", 0xB0}, {"sfr:87", 0x80}}},
        // The AT89S53's own registers, on the 8052 core of s51.
        {"89S53",
         "8052",
         "SpiMasterAndWatchdog",
         {"SPICheck1=1", "SPIOption1=1", "SPIList1=2", "SPIOption3=3", "WCheck2=1", "WCheck1(5)=1"},
         {},
         {{"sfr:D5", 0x7E}, {"sfr:96", 0xA1}}},
        {"89S53",
         "8052",
         "Timer2UpDownWithReload",
         {"T2Check0=1", "T2Combo1=2", "!T2Command1"},
         {"1000"},
         {{"sfr:C8", 0x04}, {"sfr:C9", 0x01}, {"sfr:CA", 0x18}, {"sfr:CB", 0xFC}}},
        {"89S53",
         "8052",
         "Timer2ClockOutput",
         {"T2Check0=1", "T2Combo1=12", "!T2Command1"},
         {"1000"},
         {{"sfr:C8", 0x04}, {"sfr:C9", 0x02}, {"sfr:CA", 0x48}, {"sfr:CB", 0xF4}}},
        {"89S53",
         "8052",
         "SerialBothOnTimer2",
         {"UCheck1=1", "UOption1=3", "UCheck3=1", "UCombo1=1", "UCombo2=1", "UCombo3=9600"},
         {},
         {{"sfr:98", 0xD0}, {"sfr:C8", 0x34}, {"sfr:CB", 0xFF}, {"sfr:CA", 0xD9}}},
        // The AT89S8253's program in the assignment form, on the 8052 core.
        {"8253",
         "8052",
         "TimeBaseAndItsDividers",
         {"BCheckTakt=1", "BList(2)=1", "BList(8)=1", "SText2=30"},
         {},
         // TL0 has counted on from CE by the time the main loop is reached.
         {{"sfr:89", 0x02},
          {"sfr:8C", 0xCE},
          {"sfr:88", 0x10},
          {"sfr:A8", 0x82},
          {"sfr:81", 0x2F},
          {"iram:7F", 20},
          {"iram:7E", 10},
          {"iram:7D", 250},
          {"iram:7C", 4}},
         "LOOP"},
        {"8253",
         "8052",
         "AtmelRegisters",
         {"ACkIntel=1", "SCkALE=1", "SCheck3(0)=1", "UCheck1=1", "UOption1=1", "UCheck4=1",
          "UCkFrameError=1", "UAdresse(0)=12", "UAdresse(1)=F0", "SPICheck1=1", "SPIOption2=0",
          "SPICkEnhanced=1", "SPICkSOD=1", "WCkIdle=1", "WOption1=2", "ICheck1(6)=1",
          "IPSlider(3)=3", "IPSlider(5)=2"},
         {},
         {{"sfr:8E", 0x03},
          {"sfr:96", 0x08},
          {"sfr:87", 0xC0},
          {"sfr:A9", 0x12},
          {"sfr:B9", 0xF0},
          {"sfr:D5", 0x40},
          {"sfr:AA", 0x03},
          {"sfr:A7", 0x50},
          {"sfr:B8", 0x08},
          {"sfr:B7", 0x28}}},
        // The DS80C320 in s51's own model of it, timed access included.
        {"320",
         "DS320",
         "ClocksPortsAddressesWatchdog",
         {"S2Check1(0)=1", "S2Check1(2)=1", "S2Combo1=0", "UCheck1=1", "UOption1=1", "UCheck3=1",
          "U1Check1=1", "U1Option1=3", "U1Check3=1", "U1Check4=1", "MCText2(0)=12",
          "MCText1(3)=11110000", "WCheck2=1", "WCheck1(1)=1"},
         {},
         {{"sfr:8E", 0x68},
          {"sfr:98", 0x50},
          {"sfr:C0", 0xD0},
          {"sfr:D8", 0x82},
          {"sfr:A9", 0x12},
          {"sfr:BA", 0xF0},
          {"sfr:89", 0x20},
          {"sfr:8D", 0xF3}}},
        {"320",
         "DS320",
         "FastTimer1BaudAndInterrupts",
         {"S2Check1(1)=1", "SText1=11,0592", "UCheck1=1", "UOption1=1", "UCombo3=9600",
          "ICheck1(8)=1", "ICheck1(12)=1", "ICheck2(9)=1", "ICheck3=1", "ICheck0=1"},
         {},
         {{"sfr:8D", 0xF7}, {"sfr:E8", 0x11}, {"sfr:F8", 0x02}, {"sfr:A8", 0x80}}},
        {"517",
         "C517",
         "BothPortsCompareUnitsAnalog",
         {"UCheck1=1",      "UOption1=1",    "UCheck3=1",      "UCombo1=9600",  "U1Check1=1",
          "U1Option1=1",    "U1Check3=1",    "U1Combo1=19200", "CMCheck1(0)=1", "CMCheck1(2)=1",
          "CMOption1(2)=1", "CMText1(0)=55", "CTCheck1=1",     "CTCombo1=3",    "CTText2=F0",
          "ADCheck1=1",     "ADCombo1=10",   "ICheck1(12)=1",  "ICheck1(14)=1", "IPCombo1(1)=3"},
         {},
         {{"sfr:98", 0x50},
          {"sfr:AA", 0xEC},
          {"sfr:BA", 0x03},
          {"sfr:9B", 0x10},
          {"sfr:9D", 0xEC},
          {"sfr:BB", 0x03},
          {"sfr:F6", 0x05},
          {"sfr:F7", 0x04},
          {"sfr:D2", 0x55},
          {"sfr:E1", 0x03},
          {"sfr:DF", 0xF0},
          {"sfr:DC", 0x0A},
          {"sfr:9A", 0x09},
          {"sfr:A9", 0x02},
          {"sfr:B9", 0x02}},
         "LOOP"},
        // The C515 on s51's C517, whose registers are a superset at the same places.
        {"515",
         "C517",
         "Timer2CompareAnalogWatchdog",
         {"T2Check0=1", "T2Combo1=4", "T2Combo2=1", "T2Text4=F0", "T2Text5=FF", "T2Check3=1",
          "CCCombo1(1)=2", "CCText1(0)=34", "ADCheck1=1", "ADCombo1=3", "ADOption1=1",
          "ADCombo2=12", "ADCombo3=2", "WDCheck1=1", "!WDCommand1"},
         {"32.768"},
         {{"sfr:C8", 0x97},
          {"sfr:CA", 0xF0},
          {"sfr:CB", 0xFF},
          {"sfr:C1", 0x08},
          {"sfr:C2", 0x34},
          {"sfr:D8", 0x0B},
          {"sfr:DA", 0xC2},
          {"sfr:86", 0xFC}}},
        {"515",
         "C517",
         "GeneratorAndInterruptGroups",
         {"UCheck1=1", "UOption1=1", "UCheck3=1", "SCheck0=1", "ICheck1(0)=1", "ICheck1(6)=1",
          "ICheck1(9)=1", "IPCombo1(0)=3", "IPCombo1(3)=2", "ICheck0=1"},
         {},
         {{"sfr:98", 0x50},
          {"sfr:D8", 0xC0},
          {"sfr:A8", 0x81},
          {"sfr:B8", 0x09},
          {"sfr:A9", 0x01},
          {"sfr:B9", 0x09}}},
    };
}

class ChipSimulation : public ::testing::TestWithParam<Sample> {};

TEST_P(ChipSimulation, RegistersHoldWhatTheSettingsSay) {
    if (!simulatorAvailable()) GTEST_SKIP() << "s51 (Debian sdcc-ucsim) fehlt";
    const Sample& sample = GetParam();
    WizardSession session(sample.chip, std::string(KORVEX_DATA_DIR) + "/");
    for (const auto& input : sample.inputs) session.host.inputs.push_back(input);
    session.apply(sample.settings);
    const AssembledSource assembled = assembleProgram(session.program());
    ASSERT_EQ(assembled.outcome, RunOutcome::Completed);
    ASSERT_EQ(assembled.findings, std::vector<std::string>{}) << toUtf8(session.program());
    const auto stop = stopAddress(assembled, sample.stop);
    ASSERT_TRUE(stop.has_value()) << toUtf8(session.program());
    std::vector<std::string> cells;
    for (const auto& [cell, value] : sample.expected) cells.push_back(cell);
    const auto values = runInSimulator(assembled.hexText, *stop, cells, sample.core);
    EXPECT_EQ(values, sample.expected) << toUtf8(session.program());
}

INSTANTIATE_TEST_SUITE_P(AllChips, ChipSimulation, ::testing::ValuesIn(samples()),
                         [](const auto& info) {
                             return "A" + info.param.chip + "_" + info.param.name;
                         });

}  // namespace
}  // namespace korvex::wizards::testing
