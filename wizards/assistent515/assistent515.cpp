#include "wizards/assistent515/assistent515.h"

#include <cmath>

#include "base/cp1252.h"
#include "wizards/core/key_filters.h"

namespace korvex::wizards::assistent515 {
namespace {

using namespace assistent52;

constexpr std::array<InterruptSource, 12> kSources515 = {{
    {"Externer Interrupt 0, Auslöser:", "EXTI0:", "externer Interrupt 0", "Externer Interrupt 0",
     "externen Interrupt 0 freigeben", ""},
    {"Timer 0 Interrupt", "Timer 0:", "Timer 0 Interrupt", "Timer 0 Interrupt",
     "Timer 0 Interrupt freigeben", ""},
    {"Externer Interrupt 1, Auslöser:", "EXTI1:", "externer Interrupt 1", "Externer Interrupt 1",
     "externen Interrupt 1 freigeben", ""},
    {"Timer 1 Interrupt", "Timer 1:", "Timer 1 Interrupt", "Timer 1 Interrupt",
     "Timer 1 Interrupt freigeben", ""},
    {"Serieller Interrupt", "RI0TI0:", "serieller Interrupt", "Serieller Interrupt",
     "seriellen Interrupt freigeben", "", RoutineKind::Serial},
    {"Timer 2 Interrupt", "Timer 2:", "Timer 2 Interrupt", "Timer 2 Interrupt",
     "Timer 2 Interrupt freigeben", "", RoutineKind::Timer2},
    {"A/D-Wandler Interrupt", "ADCI:", "A/D-Wandler Interrupt", "AD-Wandler Interrupt",
     "A/D-Wandler Interrupt freigeben", ""},
    {"Externer Interrupt 2", "EXTI2:", "externer Interrupt 2", "Externer Interrupt 2",
     "externen Interrupt 2 freigeben", ""},
    {"Externer Interrupt 3", "EXTI3:", "externer Interrupt 3", "Externer Interrupt 3",
     "externen Interrupt 3 freigeben", ""},
    {"Externer Interrupt 4", "EXTI4:", "externer Interrupt 4", "Externer Interrupt 4",
     "externen Interrupt 4 freigeben", ""},
    {"Externer Interrupt 5", "EXTI5:", "externer Interrupt 5", "Externer Interrupt 5",
     "externen Interrupt 5 freigeben", ""},
    {"Externer Interrupt 6", "EXTI6:", "externer Interrupt 6", "Externer Interrupt 6",
     "externen Interrupt 6 freigeben", ""},
}};

const ChipProfile& profile515() {
    static const ChipProfile profile{
        .windowTitle = "Asisstent C515",
        .cpu = "C515",
        .style = LiteralStyle::Blank,
        .bankMnemonic = "or",
        .tabs = {"System", "Serieller Port", "Timer 0", "Timer 1", "Timer 2", "A/D-Wandler",
                 "Watchdog", "Interrupts"},
        .interrupts = kSources515,
    };
    return profile;
}

}  // namespace

Assistent515::Assistent515(WizardHost& host, WizardOptions options)
    : Assistent515(host, std::move(options), profile515()) {
    // The C515 has no compare timer to refresh in.
    x_.WDCheck3[3].visible = false;
}

Assistent515::Assistent515(WizardHost& host, WizardOptions options, const ChipProfile& profile)
    : Assistent52(host, std::move(options), profile) {
    for (const char* name :
         {"UCombo2", "UCombo3", "UCombo4", "ULabel4", "T2Frame1", "T2Option1", "ICheck2"}) {
        registry_.remove(name);
    }
    s_.UCombo1.items = s_.UCombo3.items;
    s_.UCombo1.editable = true;
    s_.UCombo1.width = kBaudListWideWidth;
    s_.ULabel3.caption = "Baudrate:";
    s_.UOption1.buttons[1].caption =
        text8("Modus 1, asynchron, 10 Bit, Baudrate Timer 1 oder Baudratengenerator");
    s_.UOption1.buttons[3].caption =
        text8("Modus 3, asynchron, 11 Bit, Baudrate Timer 1 oder Baudratengenerator");
    s_.T2Combo1.items = {
        "16-Bit Timer",
        text8("Timer, Autoreload bei Überlauf"),
        "Timer, Reload bei negativer Flanke an T2EX",
        "Gate-Timer, gesteuert durch T2",
        text8("Gate-Timer, Autoreload bei Überlauf"),
        "Gate-Timer, Reload bei negativer Flanke an T2EX",
        text8("16-Bit Zähler, Taktsignal an T2"),
        text8("Zähler, Autoreload bei Überlauf"),
        text8("Zähler, Reload bei negativer Flanke an T2EX"),
    };
    s_.T2Text4.label = "CRCL";
    s_.T2Text5.label = "CRCH";
    s_.T2Check1.caption = "T2EX-Eingang als externen Interrupt verwenden (EXEN2)";
    s_.T2Check1.enabled = false;
    // The references of the A/D converter in sixteenths of 5 V.
    for (int k = 0; k < 16; ++k) {
        const std::string volts = doubleText(k * 5.0 / 16.0, options_.numberFormat) + " V";
        x_.ADCombo2.items.push_back(k == 0 ? std::string("5 V") : volts);
        x_.ADCombo3.items.push_back(volts);
    }
    x_.ADCombo2.listIndex = x_.ADCombo3.listIndex = 0;
    x_.ADCombo2.text = x_.ADCombo2.items[0];
    x_.ADCombo3.text = x_.ADCombo3.items[0];
    x_.registerControls(registry_);
    bind515Operations();
}

void Assistent515::loadSettings() {
    generationGuard_.set(guard_code::kLoad);
    Assistent52::loadSettings();
    generationGuard_.set(guard_code::kLoad);
    setListIndex(s_.UCombo1, 4);
    s_.T2Check1.visible = true;
    generationGuard_.set(0);
    regenerateProgram();
}

bool Assistent515::timer1TimesSerialPort() const {
    return s_.UCheck1.value != 0 && s_.UOption1.selected % 2 == 1 && x_.UOption3.selected == 0;
}

void Assistent515::freeTimer1FromSerialPort() {
    // The port moves to the chip's own baud-rate generator.
    selectOption(x_.UOption3, 1);
}

bool Assistent515::interruptUsed(std::size_t source) const {
    return s_.ICheck1[source].value != 0;
}

bool Assistent515::timer2InterruptEnabled() const {
    return s_.ICheck1[kTimer2Interrupt].value != 0;
}

void Assistent515::askForTimer1() {
    if (s_.T1Check0.value == 0) return;
    if (host_.question("Konflikt", text8("Timer 1 wird bereits für andere Zwecke verwendet. "
                                         "Möchten Sie diese Zuordnung aufheben?"))) {
        setCheck(s_.T1Check0, 0);
        setListIndex(s_.T1Combo1, 2);
        setCheck(s_.T1Check2, 1);
        setCheck(s_.T0Check3, 1);
    } else {
        selectOption(x_.UOption3, 1);
    }
}

void Assistent515::UCheck1Click() {
    const bool on = s_.UCheck1.value != 0;
    s_.UFrame1.enabled = on;
    if (!on) {
        for (Control* c : std::initializer_list<Control*>{&s_.UCombo1, &x_.UOption3, &s_.UCheck2,
                                                          &s_.UCheck3, &s_.UCheck4}) {
            c->enabled = false;
        }
        regenerateProgram();
        return;
    }
    UOption1Click(s_.UOption1.selected);
}

void Assistent515::UOption1Click(int index) {
    OwnedGuardHold hold(generationGuard_);
    const bool on = s_.UCheck1.value != 0;
    const bool needsGenerator = on && index % 2 == 1;
    x_.UOption3.enabled = needsGenerator;
    if (needsGenerator && x_.UOption3.selected == 0) askForTimer1();
    s_.UCombo1.enabled = needsGenerator && x_.UOption3.selected == 0;
    s_.UCheck3.enabled = s_.UCheck4.enabled = on && index != 0;
    s_.UCheck2.enabled = on && (index == 2 || index == 3);
    hold.release();
    regenerateProgram();
}

void Assistent515::bind515Operations() {
    onChange("UCombo1", [this](int) { regenerateProgram(); });
    onKey("UCombo1", [](int, int, std::int16_t& key) { decimalKeyFilter(key); });
    onLeave("UCombo1", [this](int) { UComboLostFocus(s_.UCombo1); });
    onChange("UOption3", [this](int) {
        OwnedGuardHold hold(generationGuard_);
        if (x_.UOption3.selected == 0 && s_.UOption1.selected % 2 == 1) askForTimer1();
        s_.UCombo1.enabled = x_.UOption3.enabled && x_.UOption3.selected == 0;
        hold.release();
        regenerateProgram();
    });

    onChange("T2Check0", [this](int) {
        const bool on = s_.T2Check0.value != 0;
        for (Control* c : std::initializer_list<Control*>{
                 &s_.T2Combo1, &x_.T2Combo2, &s_.T2Text2, &s_.T2Text3, &s_.T2Text4, &s_.T2Text5,
                 &s_.T2Check1, &x_.T2Check2, &x_.T2Check3}) {
            c->enabled = on;
        }
        for (auto& c : x_.CCCombo1) c.enabled = on;
        for (auto& c : x_.CCText1) c.enabled = on;
        for (auto& c : x_.CCText2) c.enabled = on;
        s_.T2Command1.enabled = on && s_.T2Combo1.listIndex % 3 != 0 && s_.T2Combo1.listIndex < 6;
        regenerateProgram();
    });
    onChange("T2Combo1", [this](int) {
        // A reload from a frequency where the timer runs on the clock and reloads.
        const int function = s_.T2Combo1.listIndex;
        s_.T2Command1.enabled = s_.T2Check0.value != 0 && function % 3 != 0 && function < 6;
        regenerateProgram();
    });
    onClick("T2Command1", [this](int) {
        withArithmeticTrap([this] {
            const double frequency = valNumber(
                host_.prompt("Timer 2 Autorelaod",
                             text8("Geben Sie die gewünschte Frequenz in Hz ein.\r\nVerwenden Sie "
                                   "als Dezimaltrennzeichen den Punkt."),
                             "10000"));
            if (frequency <= 0 || clockMegahertz() <= 0) return;
            const double q = static_cast<double>(oscillatorHz(clockMegahertz())) /
                             timer2CycleDivider() / frequency;
            std::int32_t reload = roundToInt32(65536.0 - q);
            if (reload > 65535) reload = 65535;
            if (reload < 0) reload = 0;
            GuardHold hold(generationGuard_, guard_code::kTimer2Frequency);
            setText(s_.T2Text5, hex2(reload / 256));
            setText(s_.T2Text4, hex2(reload % 256));
            hold.release();
            regenerateProgram();
        });
    });
    for (auto* array : {&x_.CCText1, &x_.CCText2}) {
        for (TextBox& box : *array) {
            const std::string name = box.name;
            onKey(name, [array](int index, int selection, std::int16_t& key) {
                hexKeyFilter((*array)[static_cast<std::size_t>(index)].text, selection, key);
            });
            onLeave(name, [this, array](int index) {
                hexFieldLostFocus((*array)[static_cast<std::size_t>(index)]);
            });
        }
    }

    onChange("ADCheck1", [this](int) {
        const bool on = x_.ADCheck1.value != 0;
        x_.ADOption1.enabled = x_.ADCombo1.enabled = x_.ADCombo2.enabled = x_.ADCombo3.enabled = on;
        regenerateProgram();
    });
    onChange("WDCheck1", [this](int) {
        const bool on = x_.WDCheck1.value != 0;
        x_.WDCheck2.enabled = x_.WDCommand1.enabled = on;
        for (auto& box : x_.WDCheck3) box.enabled = on;
        regenerateProgram();
    });
    onClick("WDCommand1", [this](int) {
        withArithmeticTrap([this] {
            const double period = valNumber(host_.prompt(
                text8("Watchdog Timer Überlaufperiode"),
                text8("Geben Sie die gewünschte Überlaufperiode in Millisekunden (ms) ein.\r\n"
                      "Verwenden Sie als Dezimaltrennzeichen den Punkt."),
                "32.768"));
            const float megahertz = clockMegahertz();
            if (period <= 0 || megahertz <= 0) return;
            watchdog_ = siemensWatchdogFor(megahertz, period);
            regenerateProgram();
        });
    });
}

float Assistent515::timer2CycleDivider() const {
    return x_.T2Combo2.listIndex == 1 ? 24.0f : 12.0f;
}

}  // namespace korvex::wizards::assistent515
