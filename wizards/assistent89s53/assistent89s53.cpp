#include "wizards/assistent89s53/assistent89s53.h"

#include <algorithm>

#include "base/cp1252.h"

namespace korvex::wizards::assistent89s53 {
namespace {

using namespace assistent52;

const ChipProfile& profile89S53() {
    static const ChipProfile profile{
        .windowTitle = "Assistent AT89S8253",
        .cpu = "89S53",
        .style = LiteralStyle::Blank,
        .tabs = {"System", "Serieller Port", "Timer 0", "Timer 1", "Timer 2", "Watchdog", "SPI",
                 "Interrupts"},
        .interrupts = kInterruptSources,
    };
    return profile;
}

// Timer 2's list: the base's ten functions with the up/down count after
// each autoreload item and the two clock outputs at the end.
constexpr std::array<int, 14> kTimer2Functions = {
    T2Timer16,        T2TimerReload,   T2UpDownTimer,   T2TimerReloadTrigger,   T2TimerCapture,
    T2Counter16,      T2CounterReload, T2UpDownCounter, T2CounterReloadTrigger, T2CounterCapture,
    T2BaudOscillator, T2BaudExternal,  T2ClockOutput,   T2BaudOscillatorOutput};

}  // namespace

Assistent89S53::Assistent89S53(WizardHost& host, WizardOptions options)
    : Assistent89S53(host, std::move(options), profile89S53()) {}

Assistent89S53::Assistent89S53(WizardHost& host, WizardOptions options, const ChipProfile& profile)
    : Assistent52(host, std::move(options), profile) {
    s_.T2Combo1.items = {
        "16-Bit Timer",
        "Timer, Autoreload-Modus",
        text8("Aufwärts-/Abwärtstimer, T2EX gesteuert, Autoreload-Modus"),
        "Timer, Autoreload und extern getriggerter Reload  (T2EX)",
        "Timer, Capture-Modus extern getriggert (T2EX)",
        text8("16-Bit Zähler"),
        text8("Zähler, Autoreload-Modus"),
        text8("Aufwärts-/Abwärtszähler, T2EX gesteuert, Autoreload-Modus"),
        text8("Zähler, Autoreload und extern getriggerter Reload  (T2EX)"),
        text8("Zähler, Capture-Modus extern getriggert (T2EX)"),
        "Baudratengenerator, Taktquelle = Osziillator",
        "Baudratengenerator, Taktquelle = externes Signal an T2",
        "Taktgenerator, Taktausgabe an T2",
        "Baudratengenerator + Baudausgabe an T2, Taktquelle = Oszillator",
    };
    x_.registerControls(registry_);
    bindAtmelOperations();
}

std::string Assistent89S53::cpuName() const {
    return x_.SOption1.selected == 0 ? "89S53" : "89S8252";
}

int Assistent89S53::timer2Function(int listIndex) const {
    if (listIndex < 0 || listIndex >= static_cast<int>(kTimer2Functions.size())) return -1;
    return kTimer2Functions[static_cast<std::size_t>(listIndex)];
}

int Assistent89S53::timer2ListIndex(int function) const {
    const auto at = std::find(kTimer2Functions.begin(), kTimer2Functions.end(), function);
    return static_cast<int>(at - kTimer2Functions.begin());
}

bool Assistent89S53::interruptUsed(std::size_t source) const {
    // The SPI's interrupt comes through the serial port's vector.
    return Assistent52::interruptUsed(source) || (source == kSerialInterrupt && spiInterrupt());
}

int Assistent89S53::watchdogPeriod() const {
    for (std::size_t p = 0; p < x_.WCheck1.size(); ++p) {
        if (x_.WCheck1[p].value != 0) return static_cast<int>(p);
    }
    return 0;
}

void Assistent89S53::bindAtmelOperations() {
    onChange("SOption1", [this](int) {
        // Only the AT89S8252 has the EEPROM.
        const bool eeprom = x_.SOption1.selected == 1;
        OwnedGuardHold hold(generationGuard_);
        if (!eeprom) setCheck(x_.SCheck3[0], 0);
        x_.SCheck3[0].enabled = eeprom;
        x_.SCheck3[1].enabled = eeprom && x_.SCheck3[0].value != 0;
        hold.release();
        regenerateProgram();
    });
    onChange("SCheck3", [this](int index) {
        if (index == 0) {
            OwnedGuardHold hold(generationGuard_);
            // Writing needs the EEPROM switched on for reading too.
            if (x_.SCheck3[0].value == 0) setCheck(x_.SCheck3[1], 0);
            x_.SCheck3[1].enabled = x_.SCheck3[0].value != 0;
        }
        regenerateProgram();
    });
    onChange("WCheck2", [this](int) {
        const bool on = x_.WCheck2.value != 0;
        for (auto& box : x_.WCheck1) box.enabled = on;
        for (auto& box : x_.WCheck3) box.enabled = on;
        regenerateProgram();
    });
    onChange("WCheck1", [this](int index) {
        // One period at a time; the chosen one can't be cleared, only replaced.
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
    onChange("SPICheck1", [this](int) {
        const bool on = x_.SPICheck1.value != 0;
        for (Control* c : std::initializer_list<Control*>{&x_.SPICheck2, &x_.SPIOption1,
                                                          &x_.SPIOption2, &x_.SPIOption3}) {
            c->enabled = on;
        }
        x_.SPIList1.enabled = on && x_.SPIOption2.selected == 1;
        regenerateProgram();
    });
    onChange("SPICheck2", [this](int) {
        // The SPI interrupt is enabled with the serial one (ES).
        if (x_.SPICheck2.value != 0) {
            OwnedGuardHold hold(generationGuard_);
            setCheck(s_.ICheck1[kSerialInterrupt], 1);
        }
        regenerateProgram();
    });
    onChange("SPIOption2", [this](int) {
        x_.SPIList1.enabled = x_.SPICheck1.value != 0 && x_.SPIOption2.selected == 1;
        regenerateProgram();
    });
}

}  // namespace korvex::wizards::assistent89s53
