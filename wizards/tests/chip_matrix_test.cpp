// Every chip's programs assemble without a finding with the chip's own
// shipped driver: each tab's main choices alone and combined. The cases the
// wizard itself leaves unassemblable (the user must add to them) are listed
// with the reason, and the test holds that they still fail, so that a change
// there is noticed.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "wizard_fixture.h"
#include "wizard_session.h"

namespace korvex::wizards::testing {
namespace {

struct Case {
    std::string chip;
    std::string name;
    std::vector<std::string> settings;
    // Empty: assembles clean. Else why the generated program can't assemble.
    std::string cannotAssemble = {};
    std::vector<std::string> inputs = {};  // answers to the input boxes
};

// Timers 0 and 1 in each mode, as timer and counter, with and without gate.
void addTimerCases(std::vector<Case>& cases, const std::string& chip,
                   const std::vector<std::string>& timer1On = {"T1Check0=1"}) {
    for (int mode = 0; mode < 4; ++mode) {
        for (int counter = 0; counter < 2; ++counter) {
            for (int gate = 0; gate < 2; ++gate) {
                const std::string tag = "M" + std::to_string(mode) +
                                        (counter ? "Counter" : "Timer") + (gate ? "Gate" : "");
                const std::vector<std::string> fields = {
                    "Option1=" + std::to_string(counter), "Combo1=" + std::to_string(mode),
                    "Check1=" + std::to_string(gate), "Text1=3C", "Text2=B0"};
                Case t0{chip, "Timer0" + tag, {}};
                Case t1{chip, "Timer1" + tag, timer1On};
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
}

void PrintTo(const Case& c, std::ostream* os) {
    *os << c.chip << " " << c.name;
}

const char* const kOrBank = "the bank line \"or PSW, # \" is no instruction of the language";
const char* const kOpenLoop = "the serial interrupt's loop stays open without the port";

std::vector<Case> cases51() {
    std::vector<Case> cases = {
        {"51", "Defaults", {}},
        {"51",
         "SystemAll",
         {"SText2=30", "SCheck1=1", "SText3=20", "SText4=7F", "SCheck2=1",
          "SText5=Prüfstand, Förderband"}},
        {"51", "Bank2", {"SCombo1=2"}, kOrBank},
        {"51", "SerialMode0", {"UCheck1=1"}},
        {"51", "SerialMode1Doubled", {"UCheck1=1", "UOption1=1", "UCheck4=1", "UCombo1=19200"}},
        {"51", "SerialMode1Slow", {"UCheck1=1", "UOption1=1", "UCombo1=110"}},
        {"51", "SerialMode2", {"UCheck1=1", "UOption1=2", "UCheck2=1", "UCheck3=1", "UCheck4=1"}},
        {"51", "SerialMode3Sm2", {"UCheck1=1", "UOption1=3", "UCheck2=1", "UCheck3=1"}},
        {"51", "SerialWithTimer0Mode3", {"T0Combo1=3", "UCheck1=1", "UOption1=1", "T0Check2=1"}},
        {"51",
         "SerialWithInterrupt",
         {"UCheck1=1", "UOption1=1", "UCheck3=1", "ICheck1(4)=1", "ICheck2(4)=1", "ICheck0=1"}},
        {"51", "SerialInterruptWithoutPort", {"ICheck1(4)=1"}, kOpenLoop},
        {"51",
         "AllInterrupts",
         {"ICheck1(0)=1", "ICheck1(1)=1", "ICheck1(2)=1", "ICheck1(3)=1", "ICheck2(0)=1",
          "ICheck2(2)=1", "IOption1=1", "IOption2=1", "ICheck0=1"}},
        {"51", "LevelTriggers", {"ICheck1(0)=1", "ICheck1(2)=1"}},
        {"51",
         "Everything",
         {"SText2=40", "SCheck1=1", "UCheck1=1", "UOption1=3", "UCheck3=1", "T0Combo1=2",
          "T0Text2=9C", "T0Text1=9C", "T0Check2=1", "ICheck1(0)=1", "ICheck1(1)=1", "ICheck1(4)=1",
          "ICheck0=1"}},
    };
    addTimerCases(cases, "51");
    return cases;
}

// The base's choices that the AT89 chips share: serial generators, Timer 2's
// functions, SPI and watchdog.
// The names of the interrupt boxes differ between the two AT89 wizards.
struct AtmelBoxes {
    std::string serial = "ICheck1(4)=1";
    std::string timer2 = "ICheck1(5)=1";
    std::string global = "ICheck0=1";
};

void addAtmelCases(std::vector<Case>& cases, const std::string& chip, int timer2Functions,
                   const AtmelBoxes& boxes = {}) {
    const std::vector<Case> shared = {
        {chip, "Defaults", {}},
        {chip,
         "SystemAll",
         {"SText2=30", "SCheck1=1", "SText3=20", "SText4=7F", "SCombo1=3", "SCheck2=1",
          "SText5=Prüfstand"}},
        {chip, "SerialMode0", {"UCheck1=1"}},
        {chip, "SerialMode1Doubled", {"UCheck1=1", "UOption1=1", "UCheck4=1", "UCombo3=19200"}},
        {chip,
         "SerialReceiveT2SendT1",
         {"UCheck1=1", "UOption1=3", "UCombo1=1", "UCombo4=4800", "UCheck3=1"}},
        {chip, "SerialBothT2", {"UCheck1=1", "UOption1=1", "UCombo1=1", "UCombo2=1"}},
        {chip, "SerialMode2", {"UCheck1=1", "UOption1=2", "UCheck2=1", "UCheck3=1", "UCheck4=1"}},
        {chip,
         "SerialWithInterrupt",
         {"UCheck1=1", "UOption1=1", "UCheck3=1", boxes.serial, boxes.global}},
        {chip, "SpiMasterLsbFirst", {"SPICheck1=1", "SPIOption1=1", "SPIList1=3", "SPIOption3=2"}},
        {chip, "SpiSlave", {"SPICheck1=1", "SPIOption2=0", "SPIOption3=1"}},
        {chip, "SpiInterruptAlone", {"SPICheck1=1", "SPICheck2=1", boxes.global}},
        {chip,
         "SpiInterruptWithSerial",
         {"UCheck1=1", "UOption1=1", "SPICheck1=1", "SPICheck2=1", boxes.global}},
    };
    cases.insert(cases.end(), shared.begin(), shared.end());
    for (int function = 0; function < timer2Functions; ++function) {
        cases.push_back(
            {chip,
             "Timer2Function" + std::to_string(function),
             {"T2Check0=1", "T2Text4=F0", "T2Text5=FF", "T2Combo1=" + std::to_string(function),
              "T2Text2=34", "T2Text3=12", boxes.timer2, boxes.global}});
    }
    addTimerCases(cases, chip);
}

std::vector<Case> cases89S53() {
    std::vector<Case> cases;
    addAtmelCases(cases, "89S53", 14);
    for (int chip = 0; chip < 2; ++chip) {
        for (int period = 0; period < 8; period += 3) {
            cases.push_back({"89S53",
                             "Watchdog" + std::to_string(chip) + "Period" + std::to_string(period),
                             {"SOption1=" + std::to_string(chip), "WCheck2=1",
                              "WCheck1(" + std::to_string(period) + ")=1", "WCheck3(0)=1",
                              "WCheck3(1)=1", "WCheck3(2)=1", "ICheck1(1)=1", "ICheck2(3)=1",
                              "T2Check0=1", "T2Combo1=3", "ICheck1(5)=1"}});
        }
    }
    cases.push_back({"89S53", "EepromReadWrite", {"SOption1=1", "SCheck3(0)=1", "SCheck3(1)=1"}});
    cases.push_back({"89S53",
                     "Everything",
                     {"SOption1=1", "SCheck3(0)=1", "SText2=40", "SCheck1=1", "UCheck1=1",
                      "UOption1=3", "UCombo1=1", "UCheck3=1", "T0Combo1=2", "T0Text2=9C",
                      "T0Check2=1", "SPICheck1=1", "SPICheck2=1", "WCheck2=1", "WCheck3(0)=1",
                      "ICheck1(0)=1", "ICheck1(1)=1", "ICheck1(5)=1", "ICheck0=1"}});
    return cases;
}

std::vector<Case> cases320() {
    std::vector<Case> cases = {
        {"320", "Defaults", {}},
        {"320", "SystemAll", {"SText2=30", "SCheck1=1", "SCombo1=2", "SCheck2=1"}},
        {"320",
         "FastTimersAndMovx",
         {"S2Check1(0)=1", "S2Check1(1)=1", "S2Check1(2)=1", "S2Combo1=7", "T0Combo1=2",
          "T0Text2=10", "T1Check0=1", "T2Check0=1"}},
        {"320", "Port0Mode0Tripled", {"UCheck1=1", "UCheck2=1"}},
        {"320",
         "Port0Mode1FastTimer1",
         {"S2Check1(1)=1", "UCheck1=1", "UOption1=1", "UCheck3=1", "UCombo3=9600"}},
        {"320", "Port0ReceiveT2SendT1", {"UCheck1=1", "UOption1=3", "UCombo1=1", "UCombo4=4800"}},
        {"320", "Port0BothT2", {"UCheck1=1", "UOption1=1", "UCombo1=1", "UCombo2=1"}},
        {"320",
         "Port0Mode2Sm2FrameErrors",
         {"UCheck1=1", "UOption1=2", "UCheck2=1", "UCheck3=1", "UCheck4=1", "UCheck5=1"}},
        {"320", "Port1Mode0Tripled", {"U1Check1=1", "U1Check2=1"}},
        {"320",
         "Port1Mode1Doubled",
         {"U1Check1=1", "U1Option1=1", "U1Check3=1", "U1Check4=1", "U1Combo1=19200"}},
        {"320", "Port1Mode2", {"U1Check1=1", "U1Option1=2", "U1Check2=1", "U1Check3=1"}},
        {"320",
         "BothPortsOnTimer1",
         {"UCheck1=1", "UOption1=1", "U1Check1=1", "U1Option1=3", "U1Check4=1", "UCheck5=1",
          "ICheck1(4)=1", "ICheck1(7)=1", "ICheck0=1"}},
        {"320",
         "Port1OnTimer1Port0OnTimer2",
         {"UCheck1=1", "UOption1=1", "UCombo1=1", "UCombo2=1", "U1Check1=1", "U1Option1=1",
          "ICheck1(7)=1"}},
        {"320",
         "Addresses",
         {"MCText2(0)=12", "MCText1(1)=11110000", "MCText2(2)=34", "MCText2(3)=FF"}},
        {"320",
         "AllInterrupts",
         {"ICheck1(0)=1", "ICheck1(1)=1", "ICheck1(2)=1", "ICheck1(3)=1", "ICheck1(5)=1",
          "ICheck3=1", "ICheck1(8)=1", "ICheck1(9)=1", "ICheck1(10)=1", "ICheck1(11)=1",
          "ICheck1(12)=1", "ICheck2(0)=1", "ICheck2(8)=1", "ICheck2(12)=1", "IOption1=1",
          "ICheck0=1"}},
        {"320", "SerialInterruptsWithoutPorts", {"ICheck1(4)=1", "ICheck1(7)=1"}, kOpenLoop},
        {"320",
         "Everything",
         {"S2Check1(0)=1", "SText2=40", "UCheck1=1", "UOption1=3", "UCombo1=1", "U1Check1=1",
          "U1Option1=1", "MCText2(0)=55", "WCheck2=1", "WCheck3(0)=1", "ICheck1(1)=1",
          "ICheck1(4)=1", "ICheck1(7)=1", "ICheck1(5)=1", "ICheck0=1"}},
    };
    for (int period = 0; period < 4; ++period) {
        cases.push_back(
            {"320",
             "Watchdog" + std::to_string(period),
             {"WCheck2=1", "WCheck1(" + std::to_string(period) + ")=1", "WCheck3(0)=1",
              "WCheck3(1)=1", "WCheck3(2)=1", "ICheck1(1)=1", "ICheck1(3)=1", "ICheck1(5)=1"}});
    }
    for (int function = 0; function < 10; ++function) {
        cases.push_back({"320",
                         "Timer2Function" + std::to_string(function),
                         {"S2Check1(2)=1", "T2Check0=1", "T2Text4=F0", "T2Text5=FF",
                          "T2Combo1=" + std::to_string(function), "ICheck1(5)=1"}});
    }
    addTimerCases(cases, "320");
    return cases;
}

// What the C515 and the C517 share: the generator, Timer 2's functions
// with compare and capture, the A/D converter, watchdog and priorities.
void addSiemensCases(std::vector<Case>& cases, const std::string& chip) {
    const std::vector<Case> shared = {
        {chip, "Defaults", {}},
        {chip, "SystemClockOutResetSource", {"SText2=30", "SCheck1=1", "SCheck0=1", "SCheck3=1"}},
        {chip, "SerialMode0", {"UCheck1=1"}},
        {chip, "SerialGeneratorDoubled", {"UCheck1=1", "UOption1=1", "UCheck4=1", "UCheck3=1"}},
        {chip, "SerialTimer1", {"UCheck1=1", "UOption1=3", "UOption3=0", "UCombo1=9600"}},
        {chip, "SerialMode2", {"UCheck1=1", "UOption1=2", "UCheck2=1", "UCheck4=1"}},
        {chip,
         "SerialWithInterrupt",
         {"UCheck1=1", "UOption1=1", "UCheck3=1", "ICheck1(4)=1", "ICheck0=1"}},
        {chip,
         "CompareCapture",
         {"T2Check0=1", "T2Check2=1", "T2Check3=1", "CCCombo1(0)=1", "CCCombo1(1)=2",
          "CCCombo1(2)=3", "CCCombo1(3)=2", "CCText1(0)=12", "CCText2(0)=34", "CCText1(2)=56",
          "CCText2(2)=78", "T2Text4=9A", "T2Text5=BC"}},
        {chip, "AnalogSingle",
         chip == "515"
             ? std::vector<std::string>{"ADCheck1=1", "ADCombo1=5", "ADCombo2=10", "ADCombo3=2"}
             : std::vector<std::string>{"ADCheck1=1", "ADCombo1=11"}},
        {chip,
         "AnalogContinuousInterrupt",
         {"ADCheck1=1", "ADOption1=1", "ICheck1(6)=1", "ICheck0=1"}},
        {chip,
         "WatchdogStartedRefreshed",
         {"WDCheck1=1", "WDCheck2=1", "!WDCommand1", "WDCheck3(0)=1", "WDCheck3(1)=1",
          "WDCheck3(2)=1", "ICheck1(1)=1", "ICheck1(3)=1", "ICheck1(5)=1", "ICheck0=1"},
         {},
         {"100"}},
        {chip,
         "WatchdogTooLong",
         {"WDCheck1=1", "!WDCommand1"},
         "a period beyond the watchdog's reach writes the reload as a negative number",
         {"100000"}},
        {chip,
         "AllInterruptsAndLevels",
         {"ICheck1(0)=1", "ICheck1(1)=1", "ICheck1(2)=1", "ICheck1(3)=1", "ICheck1(5)=1",
          "ICheck1(6)=1", "ICheck1(7)=1", "ICheck1(8)=1", "ICheck1(9)=1", "ICheck1(10)=1",
          "ICheck1(11)=1", "IOption1=1", "IOption2=1", "IPCombo1(0)=1", "IPCombo1(1)=2",
          "IPCombo1(2)=3", "IPCombo1(5)=3", "ICheck0=1"}},
    };
    cases.insert(cases.end(), shared.begin(), shared.end());
    for (int function = 0; function < 9; ++function) {
        cases.push_back({chip,
                         "Timer2Function" + std::to_string(function),
                         {"T2Check0=1", "T2Combo1=" + std::to_string(function),
                          "T2Combo2=" + std::to_string(function % 2), "T2Text2=34", "T2Text4=F0",
                          "T2Text5=FF", "T2Check1=1", "ICheck1(5)=1", "ICheck0=1"}});
    }
    addTimerCases(cases, chip);
}

std::vector<Case> cases515() {
    std::vector<Case> cases;
    addSiemensCases(cases, "515");
    cases.push_back({"515", "Bank3", {"SCombo1=3"}, kOrBank});
    return cases;
}

std::vector<Case> cases552() {
    std::vector<Case> cases = {
        {"552", "Defaults", {}},
        {"552", "SystemAll", {"SText2=30", "SCheck1=1", "SCheck2=1", "SText5=Waage"}},
        {"552", "Bank1", {"SCombo1=1"}, kOrBank},
        {"552", "SerialMode0", {"UCheck1=1"}},
        {"552", "SerialMode1Doubled", {"UCheck1=1", "UOption1=1", "UCheck4=1", "UCombo1=19200"}},
        {"552", "SerialMode3", {"UCheck1=1", "UOption1=3", "UCheck2=1", "UCheck3=1"}},
        {"552",
         "SerialWithInterrupt",
         {"UCheck1=1", "UOption1=1", "UCheck3=1", "ICheck1(4)=1", "ICheck0=1"}},
        {"552",
         "Timer2CaptureCompare",
         {"T2Check0=1", "T2Combo2=3", "T2Check1=1", "CTCombo1(0)=1", "CTCombo1(1)=2",
          "CTCombo1(2)=3", "CTCombo1(3)=1", "CMText1(0)=10", "CMText2(0)=20", "CMText1(2)=FF",
          "STEText1=3F", "RTEText1=0C"}},
        {"552", "Timer2Counter", {"T2Check0=1", "T2Combo1=1", "T2Combo2=1"}},
        {"552",
         "PwmBoth",
         {"PWMCheck1=1", "PWMCheck2=1", "PWMSlider1=0", "PWMSlider2=255", "!PWMCommand"},
         {},
         {"50"}},
        {"552",
         "I2cMasterOnTimer1",
         {"T1Check0=1", "T1Combo1=2", "T1Text2=F0", "T1Check2=1", "ICCheck1=1", "ICSlider1=7"}},
        {"552",
         "I2cSlaveWithServiceRoutine",
         {"ICCheck1=1", "ICSlider1=4", "ICCheck2=1", "ICText1=50", "ICCheck4=1", "ICheck3=1",
          "ICheck1(5)=1", "ICheck2(5)=1", "ICheck0=1"}},
        {"552",
         "AnalogAndWatchdog",
         {"ADCheck1=1", "ADCombo1=7", "ADCheck2=1", "ADCheck3=1", "WDCheck1=1", "WDText1=C0",
          "WDCheck3(0)=1", "WDCheck3(1)=1", "WDCheck3(2)=1", "ICheck1(1)=1", "ICheck1(3)=1",
          "ICheck1(14)=1", "ICheck1(10)=1"}},
    };
    Case all{"552", "AllInterrupts", {"IOption1=1", "ICheck0=1", "T2Check0=1", "T2Check2=1"}};
    for (int i = 0; i < 15; ++i) {
        if (i == 4) continue;  // the serial loop stays open without the port
        all.settings.push_back("ICheck1(" + std::to_string(i) + ")=1");
        if (i % 3 == 0) all.settings.push_back("ICheck2(" + std::to_string(i) + ")=1");
    }
    cases.push_back(all);
    addTimerCases(cases, "552");
    return cases;
}

std::vector<Case> cases8253() {
    std::vector<Case> cases;
    addAtmelCases(cases, "8253", 14, {"ICheck1(7)=1", "ICheck1(9)=1", "ICheck1(0)=1"});
    const std::vector<Case> own = {
        {"8253",
         "SystemAuxrX2Eeprom",
         {"SText2=30", "SCheck1=1", "SText3=30", "SText4=7F", "ACkIntel=1", "SCkALE=1", "SCkX2=1",
          "SCheck3(0)=1", "SCheck3(1)=1"}},
        {"8253",
         "SerialAddressesFrameErrors",
         {"UCheck1=1", "UOption1=3", "UCheck4=1", "UCkFrameError=1", "UAdresse(0)=12",
          "UAdresse(1)=F0", "ICheck1(7)=1", "ICheck1(0)=1"}},
        {"8253",
         "SpiEnhancedSlaveOff",
         {"SPICheck1=1", "SPICkEnhanced=1", "SPICkSOD=1", "ICheck1(8)=1", "ICheck1(0)=1"}},
        {"8253",
         "WatchdogHardwareStartedWithInterrupts",
         {"WCkStart=1", "WCkHardware=1", "WCkIdle=1", "WCkReset=1", "WOption1=5", "ICheck1(3)=1",
          "ICheck1(0)=1"}},
        {"8253", "WatchdogSoftwareFedWithoutInterrupts", {"WCkStart=1", "WOption1=0"}},
        {"8253",
         "InterruptBoxesAndLevels",
         {"ICheck1(2)=1", "ICheck1(4)=1", "ICheck1(6)=1", "ICheck1(9)=1", "IPSlider(0)=3",
          "IPSlider(1)=2", "IPSlider(2)=1", "IPSlider(5)=3", "ICheck1(0)=1"}},
        {"8253", "TimeBaseNothingChosen", {"BCheckTakt=1"}},
        {"8253", "TimeBaseTooHigh", {"SText1=62", "BCheckTakt=1", "BList(0)=1"}},
        {"8253",
         "TimeBaseEverything",
         {"SCkX2=1", "BCheckTakt=1", "BList(0)=1", "BList(1)=1", "BList(2)=1", "BList(3)=1",
          "BList(4)=1", "BList(5)=1", "BList(6)=1", "BList(7)=1", "BList(8)=1", "WCkStart=1",
          "UCheck1=1", "UOption1=1", "ICheck1(7)=1", "SCheck1=1", "SCombo1=2"}},
    };
    cases.insert(cases.end(), own.begin(), own.end());
    for (int item = 0; item < 9; ++item) {
        cases.push_back({"8253",
                         "TimeBaseItem" + std::to_string(item),
                         {"BCheckTakt=1", "BList(" + std::to_string(item) + ")=1"}});
    }
    return cases;
}

std::vector<Case> cases4052() {
    std::vector<Case> cases = {
        {"4052", "Defaults", {}},
        {"4052",
         "SystemAll",
         {"SText1=20", "SText2=30", "SCheck1=1", "SCombo1=1", "SCheck4=1", "SCheck2=1"}},
        {"4052",
         "Ports",
         {"PortText(0)=1", "PortText(1)=2", "PortText(2)=3", "PortText(15)=3", "PortPegel(0)=0",
          "PortPegel(12)=0"}},
        {"4052", "SerialMode0", {"UCheck1=1"}},
        {"4052",
         "SerialMode1DoubledFrameErrors",
         {"UCheck1=1", "UOption1=1", "UCheck4=1", "UCheck5=1", "UCombo1=19200", "ICheck1(4)=1",
          "ICheck0=1"}},
        {"4052", "SerialMode2", {"UCheck1=1", "UOption1=2", "UCheck2=1", "UCheck3=1"}},
        {"4052", "SerialMode3Slow", {"UCheck1=1", "UOption1=3", "UCombo1=110"}},
        {"4052",
         "SpiEnhancedSlaveOffInterrupt",
         {"SPICheck1=1", "SPICkEnhanced=1", "SPICkSOD=1", "SPICheck2=1", "ICheck0=1"}},
        {"4052",
         "PwmBoth",
         {"PWM0Chkverwenden=1", "PWM0Slider=10", "PWM0Text=80", "PWM1Chkverwenden=1",
          "PWM1Slider=250"}},
        {"4052", "PrescalerBits", {"T0Combo2=0", "T1Check0=1", "T1Combo2=7", "T0Check2=1"}},
        {"4052",
         "TimeBaseWithSerial",
         {"BCheckTakt=1", "BList(0)=1", "BList(5)=1", "BList(8)=1", "UCheck1=1", "UOption1=1",
          "ICheck1(4)=1"}},
        {"4052", "TimeBaseNothingChosen", {"BCheckTakt=1"}},
    };
    for (int mode = 0; mode < 8; ++mode) {
        cases.push_back({"4052",
                         "Comparator" + std::to_string(mode),
                         {"CaktivCheck=1", "COption=" + std::to_string(mode), "CIdleCheck=1",
                          "!CCmdPin", "ICheck1(5)=1", "ICheck2(5)=1", "ICheck0=1"}});
    }
    for (int item = 0; item < 9; ++item) {
        cases.push_back({"4052",
                         "TimeBaseItem" + std::to_string(item),
                         {"BCheckTakt=1", "BList(" + std::to_string(item) + ")=1"}});
    }
    addTimerCases(cases, "4052");
    return cases;
}

std::vector<Case> cases517() {
    std::vector<Case> cases;
    addSiemensCases(cases, "517");
    const std::vector<Case> own = {
        {"517", "Bank3ResetSources", {"SCombo1=3", "SCheck3=1", "SCheck4=1"}},
        {"517", "Port0GeneratorFast", {"UCheck1=1", "UOption1=3", "UCombo1=28800", "UCheck4=1"}},
        {"517",
         "Port1Mode1",
         {"U1Check1=1", "U1Check3=1", "U1Combo1=9600", "ICheck1(12)=1", "ICheck0=1"}},
        {"517",
         "Port1Mode3WithPort0",
         {"UCheck1=1", "UOption1=1", "U1Check1=1", "U1Option1=1", "U1Check2=1", "ICheck1(4)=1",
          "ICheck1(12)=1", "ICheck0=1"}},
        {"517",
         "CompareUnits",
         {"CC4Combo1=2", "CC4Combo2=1", "CC4Slider=8", "CC4Text1=12", "CC4Text2=34",
          "CMCheck1(0)=1", "CMCheck1(7)=1", "CMOption1(7)=1", "CMText1(0)=01", "CMText1(15)=FF",
          "CTCheck1=1", "CTCombo1=7", "CTText1=80", "CTText2=FF"}},
        {"517",
         "CompareInterrupts",
         {"ICheck1(13)=1", "ICheck1(14)=1", "ICheck1(15)=1", "ICheck1(16)=1", "IPCombo1(3)=3",
          "WDCheck1=1", "WDCheck3(3)=1", "ICheck0=1"}},
        {"517",
         "ArithmeticUnit",
         {"MDU1=1", "MDU2=1", "MDU3=1", "MDU4=1", "MDU5=1", "MDUText1=31", "MDU6=1", "MDUText2=1"}},
        {"517", "ShiftCountsOutOfRange", {"MDU5=1", "MDUText1=0", "MDU6=1", "MDUText2=32"}},
    };
    cases.insert(cases.end(), own.begin(), own.end());
    return cases;
}

std::vector<Case> allCases() {
    std::vector<Case> cases;
    for (auto&& chipCases : {cases51(), cases89S53(), cases8253(), cases4052(), cases320(),
                             cases515(), cases517(), cases552()}) {
        cases.insert(cases.end(), chipCases.begin(), chipCases.end());
    }
    return cases;
}

// Routines the wizard offers and nobody calls yet: the send routines
// ("Sende:", "Sende 0:", ...) and the C517's arithmetic routines; and the
// time base's "T0 Return:", which the AT89LP4052's routine has even where no
// stage jumps to it. The report lists them as unused labels.
bool offeredRoutine(const std::string& warning) {
    for (const char* label :
         {"   Sende", "   T0 Return:", "   32div16:", "   16div16:", "   16mul16:",
          "   Normalisierung:", "   Shift left:", "   Shift right:"}) {
        if (warning.rfind(label, 0) == 0) return true;
    }
    return false;
}

// The report's warnings other than the offered routines.
std::vector<std::string> unexpectedWarnings(const std::string& report) {
    std::vector<std::string> out;
    if (report.rfind("Warnungen/Fehler:", 0) != 0) return out;
    std::size_t from = report.find("\r\n") + 2;
    while (from < report.size()) {
        const std::size_t end = report.find("\r\n", from);
        const std::string text = report.substr(from, end - from);
        if (text.empty() || end == std::string::npos) break;
        if (text != "Unbenutzte Label" && !offeredRoutine(text)) out.push_back(toUtf8(text));
        from = end + 2;
    }
    return out;
}

class ChipAssembly : public ::testing::TestWithParam<Case> {};

TEST_P(ChipAssembly, ProgramAssemblesWithTheChipsDriver) {
    const Case& c = GetParam();
    WizardSession session(c.chip, std::string(KORVEX_DATA_DIR) + "/");
    for (const auto& input : c.inputs) session.host.inputs.push_back(input);
    session.apply(c.settings);
    EXPECT_EQ(session.host.unanswered, 0);
    const AssembledSource result = assembleProgram(session.program());
    if (!c.cannotAssemble.empty()) {
        EXPECT_FALSE(result.outcome == RunOutcome::Completed && result.findings.empty() &&
                     unexpectedWarnings(result.report).empty())
            << c.cannotAssemble;
        return;
    }
    ASSERT_EQ(result.outcome, RunOutcome::Completed) << toUtf8(session.program());
    EXPECT_EQ(result.findings, std::vector<std::string>{}) << toUtf8(session.program());
    EXPECT_EQ(unexpectedWarnings(result.report), std::vector<std::string>{})
        << toUtf8(result.report) << toUtf8(session.program());
}

INSTANTIATE_TEST_SUITE_P(AllChips, ChipAssembly, ::testing::ValuesIn(allCases()),
                         [](const auto& info) {
                             return "A" + info.param.chip + "_" + info.param.name;
                         });

}  // namespace
}  // namespace korvex::wizards::testing
