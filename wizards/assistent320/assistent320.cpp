#include "wizards/assistent320/assistent320.h"

#include <algorithm>

#include "base/cp1252.h"
#include "base/text.h"
#include "wizards/core/key_filters.h"

namespace korvex::wizards::assistent320 {
namespace {

using namespace assistent52;

constexpr int kPowerFailInterrupt = 6;

constexpr std::array<InterruptSource, 13> kSources320 = {{
    {"Externer Interrupt 0, Auslöser:", "INT0:", "externer Interrupt 0", "Externer Interrupt 0",
     "setb EX0\t; externen Interrupt 0 freigeben",
     "setb PX0\t; Priorität für externen Interrupt 0"},
    {"Timer 0 Interrupt", "TF0:", "Timer 0 Interrupt", "Timer 0 Interrupt",
     "setb ET0\t; Timer 0 Interrupt freigeben", "setb PT0\t; Priorität für Timer 0 Interrupt"},
    {"Externer Interrupt 1, Auslöser:", "INT1:", "externer Interrupt 1", "Externer Interrupt 1",
     "setb EX1\t; externen Interrupt 1 freigeben",
     "setb PX1\t; Priorität für externen Interrupt 1"},
    {"Timer 1 Interrupt", "TF1:", "Timer 1 Interrupt", "Timer 1 Interrupt",
     "setb ET1\t; Timer 1 Interrupt freigeben", "setb PT1\t; Priorität für Timer 1 Interrupt"},
    {"Serieller Interrupt 0", "S0INT:", "serieller Interrupt 0", "Serieller Interrupt 0",
     "setb ES0\t; seriellen Interrupt 0 freigeben",
     "setb PS0\t; Priorität für seriellen Interrupt 0", RoutineKind::Serial},
    {"Timer 2 Interrupt", "TF2:", "Timer 2 Interrupt", "Timer 2 Interrupt",
     "setb ET2\t; Timer 2 Interrupt freigeben", "setb PT2\t; Priorität für Timer 2 Interrupt",
     RoutineKind::Timer2},
    // Power fail has no priority bit: it always comes first. Its box is ICheck3.
    {"Power Fail Interrupt", "PFI:", "Power Fail Interrupt", "Power Fail Interrupt",
     "setb EPFI\t; Power Fail Interrupt freigeben", ""},
    {"Serieller Interrupt 1", "S1INT:", "serieller Interrupt 1", "Serieller Interrupt 1",
     "setb ES1\t; seriellen Interrupt 1 freigeben",
     "setb PS1\t; Priorität für seriellen Interrupt 1", RoutineKind::Serial},
    {"Externer Interrupt 2", "INT2:", "externer Interrupt 2", "Externer Interrupt 2",
     "setb EX2\t; externen Interrupt 2 freigeben",
     "setb PX2\t; Priorität für externen Interrupt 2"},
    {"Externer Interrupt 3", "INT3:", "externer Interrupt 3", "Externer Interrupt 3",
     "setb EX3\t; externen Interrupt 3 freigeben",
     "setb PX3\t; Priorität für externen Interrupt 3"},
    {"Externer Interrupt 4", "INT4:", "externer Interrupt 4", "Externer Interrupt 4",
     "setb EX4\t; externen Interrupt 4 freigeben",
     "setb PX4\t; Priorität für externen Interrupt 4"},
    {"Externer Interrupt 5", "INT5:", "externer Interrupt 5", "Externer Interrupt 5",
     "setb EX5\t; externen Interrupt 5 freigeben",
     "setb PX5\t; Priorität für externen Interrupt 5"},
    {"Watchdog Interrupt", "WDTI:", "Watchdog Interrupt", "Watchdog Interrupt",
     "setb EWDI\t; Watchdog Interrupt freigeben", "setb PWDI\t; Priorität für Watchdog Interrupt"},
}};

const ChipProfile& profile320() {
    static const ChipProfile profile{
        .windowTitle = "Assistent 80C320",
        .cpu = "80C320",
        .style = LiteralStyle::Blank,
        .tabs = {"System", "System 2", "Serieller Port 0", "Serieller Port 1", "Multicontroller",
                 "Timer 0", "Timer 1", "Timer 2", "Watchdog", "Interrupts", "Interrupts 2"},
        .interrupts = kSources320,
    };
    return profile;
}

const char* const kTripledCaption = "Verdreifachung der Baudrate in Modus 0";
const char* const kSm2Caption = "Multicontroller Kommunikation unterstützen.";

}  // namespace

Assistent320::Assistent320(WizardHost& host, WizardOptions options)
    : Assistent52(host, std::move(options), profile320()) {
    // ICheck3 stands for the power fail source, which has no priority.
    s_.ICheck1[kPowerFailInterrupt].visible = s_.ICheck2[kPowerFailInterrupt].visible = false;
    s_.ICheck1[12].toolTip =
        text8("Benutzen Sie nicht den Watchdog Interrupt für einen Watchdog Reset.");
    for (std::size_t i = 0; i < s_.UOption1.buttons.size(); ++i) {
        s_.UOption1.buttons[i].caption = x_.U1Option1.buttons[i].caption;
    }
    s_.UOption1.buttons[1].caption =
        text8("Modus 1, asynchron, 10 Bit, Baudrate Timer 1/2 Überlauf");
    s_.UOption1.buttons[3].caption =
        text8("Modus 3, asynchron, 11 Bit, Baudrate Timer 1/2 Überlauf");
    x_.registerControls(registry_);
    bind320Operations();
}

Timer1PortControls Assistent320::port1() {
    return {x_.U1Check1, x_.U1Frame1, x_.U1Option1, x_.U1Check2,
            x_.U1Check3, x_.U1Check4, x_.U1Combo1,  lastPort1Mode_};
}

bool Assistent320::port0OnTimer1() const {
    return s_.UCheck1.value != 0 && s_.UOption1.selected % 2 == 1 &&
           (s_.UCombo1.listIndex == 0 || s_.UCombo2.listIndex == 0);
}

bool Assistent320::port1OnTimer1() const {
    return x_.U1Check1.value != 0 && x_.U1Option1.selected % 2 == 1;
}

bool Assistent320::timer1TimesSerialPort() const {
    return Assistent52::timer1TimesSerialPort() || port1OnTimer1();
}

void Assistent320::freeTimer1FromSerialPort() {
    if (port0OnTimer1()) setCheck(s_.UCheck1, 0);
    if (port1OnTimer1()) setCheck(x_.U1Check1, 0);
}

void Assistent320::timer1Released() {
    if (x_.U1Check1.value == 0 || !generationGuard_.idle()) return;
    OwnedGuardHold hold(generationGuard_);
    timer1PortUseClick(port1());
    x_.U1Check2.enabled = x_.U1Option1.selected != 1;
}

int Assistent320::timerCycleDivider(int timer) const {
    return x_.S2Check1[static_cast<std::size_t>(timer)].value != 0 ? 4 : 12;
}

bool Assistent320::interruptUsed(std::size_t source) const {
    if (source == kPowerFailInterrupt) return x_.ICheck3.value != 0;
    return Assistent52::interruptUsed(source);
}

bool Assistent320::interruptEnabled(std::size_t source) const {
    if (source == kPowerFailInterrupt) return x_.ICheck3.value != 0;
    return Assistent52::interruptEnabled(source);
}

float Assistent320::serialMode0Baud(float fosc) const {
    return s_.UCheck2.value != 0 ? fosc / 4.0f : fosc / 12.0f;
}

void Assistent320::loadSettings() {
    Assistent52::loadSettings();
    s_.UCheck2.caption = text8(kTripledCaption);
}

void Assistent320::UOption1Click(int index) {
    // The base's rule must not write the program before the caption is right.
    OwnedGuardHold hold(generationGuard_);
    Assistent52::UOption1Click(index);
    // In mode 0 SM2 triples the rate: fosc / 4 instead of fosc / 12.
    s_.UCheck2.enabled = index != 1;
    s_.UCheck2.caption = text8(index == 0 ? kTripledCaption : kSm2Caption);
    hold.release();
    regenerateProgram();
}

std::size_t Assistent320::watchdogPeriod() const {
    for (std::size_t p = 0; p < x_.WCheck1.size(); ++p) {
        if (x_.WCheck1[p].value != 0) return p;
    }
    return 0;
}

void Assistent320::bind320Operations() {
    // In mode 0 SM2 triples the rate, in modes 2 and 3 it is SM2.
    const auto sm2Rule = [this] {
        const int mode = x_.U1Option1.selected;
        x_.U1Check2.enabled = x_.U1Check1.value != 0 && mode != 1;
        x_.U1Check2.caption = text8(mode == 0 ? kTripledCaption : kSm2Caption);
    };
    onChange("U1Check1", [this, sm2Rule](int) {
        OwnedGuardHold hold(generationGuard_);
        timer1PortUseClick(port1());
        sm2Rule();
        hold.release();
        regenerateProgram();
    });
    onChange("U1Option1", [this, sm2Rule](int index) {
        OwnedGuardHold hold(generationGuard_);
        timer1PortModeClick(port1(), index);
        sm2Rule();
        hold.release();
        regenerateProgram();
    });
    onKey("U1Combo1", [](int, int, std::int16_t& key) { decimalKeyFilter(key); });
    onLeave("U1Combo1", [this](int) { UComboLostFocus(x_.U1Combo1); });

    // The addresses are shown twice, in binary and in hex; each edits the other.
    for (std::size_t i = 0; i < 4; ++i) {
        onKey("MCText1", [this](int index, int selection, std::int16_t& key) {
            binaryKeyFilter(x_.MCText1[static_cast<std::size_t>(index)].text, selection, key);
        });
        onKey("MCText2", [this](int index, int selection, std::int16_t& key) {
            hexKeyFilter(x_.MCText2[static_cast<std::size_t>(index)].text, selection, key);
        });
    }
    onChange("MCText1", [this](int index) {
        if (mirroring_) return;
        const auto i = static_cast<std::size_t>(index);
        mirroring_ = true;
        setText(x_.MCText2[i], hex2(binaryTextToValue(x_.MCText1[i].text) & 0xFF));
        mirroring_ = false;
        regenerateProgram();
    });
    onChange("MCText2", [this](int index) {
        if (mirroring_) return;
        const auto i = static_cast<std::size_t>(index);
        mirroring_ = true;
        setText(x_.MCText1[i], valueToBinaryText(x_.MCText2[i].text).substr(8));
        mirroring_ = false;
        regenerateProgram();
    });
    onLeave("MCText2", [this](int index) {
        TextBox& box = x_.MCText2[static_cast<std::size_t>(index)];
        if (box.text.empty()) setText(box, "00");
    });

    onChange("WCheck2", [this](int) {
        const bool on = x_.WCheck2.value != 0;
        for (auto& box : x_.WCheck1) box.enabled = on;
        for (auto& box : x_.WCheck3) box.enabled = on;
        regenerateProgram();
    });
    onChange("WCheck1", [this](int index) {
        CheckBox& chosen = x_.WCheck1[static_cast<std::size_t>(index)];
        if (chosen.value == 0) {
            const bool another = std::any_of(x_.WCheck1.begin(), x_.WCheck1.end(),
                                             [](const CheckBox& box) { return box.value != 0; });
            if (!another) chosen.value = 1;
            return;
        }
        OwnedGuardHold hold(generationGuard_);
        for (auto& box : x_.WCheck1) {
            if (&box != &chosen) setCheck(box, 0);
        }
        hold.release();
        regenerateProgram();
    });
}

}  // namespace korvex::wizards::assistent320
