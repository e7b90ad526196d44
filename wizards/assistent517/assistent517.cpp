#include "wizards/assistent517/assistent517.h"

#include "base/cp1252.h"
#include "wizards/core/key_filters.h"

namespace korvex::wizards::assistent517 {
namespace {

using namespace assistent52;

constexpr std::array<InterruptSource, 17> kSources517 = {{
    {"Externer Interrupt 0, Auslöser:", "INT0:", "externer Interrupt 0", "Externer Interrupt 0",
     "externen Interrupt 0 freigeben", ""},
    {"Timer 0 Interrupt", "Timer 0:", "Timer 0 Interrupt", "Timer 0 Interrupt",
     "Timer 0 Interrupt freigeben", ""},
    {"Externer Interrupt 1, Auslöser:", "INT1:", "externer Interrupt 1", "Externer Interrupt 1",
     "externen Interrupt 1 freigeben", ""},
    {"Timer 1 Interrupt", "Timer 1:", "Timer 1 Interrupt", "Timer 1 Interrupt",
     "Timer 1 Interrupt freigeben", ""},
    {"Serieller Interrupt 0", "S0INT:", "serieller Interrupt 0", "Serieller Interrupt 0",
     "seriellen Interrupt 0 freigeben", "", RoutineKind::Serial},
    {"Timer 2 Interrupt", "Timer 2:", "Timer 2 Interrupt", "Timer 2 Interrupt",
     "Timer 2 Interrupt freigeben", "", RoutineKind::Timer2},
    {"A/D-Wandler Interrupt", "ADCI:", "A/D-Wandler Interrupt", "AD-Wandler Interrupt",
     "A/D-Wandler Interrupt freigeben", ""},
    {"Externer Interrupt 2", "IEX2:", "externer Interrupt 2", "Externer Interrupt 2",
     "externen Interrupt 2 freigeben", ""},
    {"Externer Interrupt 3", "IEX3:", "externer Interrupt 3", "Externer Interrupt 3",
     "externen Interrupt 3 freigeben", ""},
    {"Externer Interrupt 4", "IEX4:", "externer Interrupt 4", "Externer Interrupt 4",
     "externen Interrupt 4 freigeben", ""},
    {"Externer Interrupt 5", "IEX5:", "externer Interrupt 5", "Externer Interrupt 5",
     "externen Interrupt 5 freigeben", ""},
    {"Externer Interrupt 6", "IEX6:", "externer Interrupt 6", "Externer Interrupt 6",
     "externen Interrupt 6 freigeben", ""},
    {"Serieller Interrupt 1", "S1INT:", "serieller Interrupt 1", "Serieller Interrupt 1",
     "seriellen Interrupt 1 freigeben", "", RoutineKind::Serial},
    {"Compare-Register Interrupt", "ICMP:", "Compare-Register CM0 -CM7 Interrupt", "CMx Interrupt",
     "Compare-Register Interrupt freigeben", ""},
    {"Compare Timer Interrupt", "CTF:", "Compare Timer Interrupt", "Compare Timer Interrupt",
     "Compare Timer Interrupt freigeben", ""},
    {"COMSET Interrupt", "ICS:", "Match mit COMSET Interrupt", "COMSET Interrupt",
     "COMSET Interrupt freigeben", ""},
    {"COMCLR Interrupt", "ICR:", "Match mit COMCLR Interrupt", "COMCLR Interrupt",
     "COMCLR Interrupt freigeben", ""},
}};

const ChipProfile& profile517() {
    static const ChipProfile profile{
        .windowTitle = "Assistent C517",
        .cpu = "C517",
        .style = LiteralStyle::Blank,
        .tabs = {"System", "Serieller Port 0", "Serieller Port 1", "Timer 0", "Timer 1", "Timer 2",
                 "CC4", "CM", "A/D-Wandler", "Watchdog", "MDU", "Interrupts"},
        .interrupts = kSources517,
        .indentedVectorJumps = true,
    };
    return profile;
}

// The C517's enable bits; the sources it adds share the priority groups of
// the C515's pairs as the chip groups them in threes.
constexpr std::array<assistent515::EnableBit, 5> kAddedBits = {{
    {2, 0x01, 0},  // ES1
    {2, 0x04, 3},  // ECMP
    {2, 0x08, 1},  // ECT
    {2, 0x10, 4},  // ECS
    {2, 0x20, 5},  // ECR
}};

constexpr std::size_t kSerial1Interrupt = 12;
constexpr std::size_t kCompareTimerInterrupt = 14;

}  // namespace

Assistent517::Assistent517(WizardHost& host, WizardOptions options)
    : Assistent515(host, std::move(options), profile517()) {
    s_.UOption1.buttons[1].caption =
        text8("Modus 1, asynchron, 10 Bit, Baudrate Timer 1 oder Baudratengenerator 0");
    s_.UOption1.buttons[3].caption =
        text8("Modus 3, asynchron, 11 Bit, Baudrate Timer 1 oder Baudratengenerator 0");
    // The C517 has no reference voltages to choose.
    registry_.remove("ADCombo2");
    registry_.remove("ADCombo3");
    x_.ADCombo1.items.clear();
    for (int channel = 0; channel < 12; ++channel) {
        x_.ADCombo1.items.push_back("AN" + std::to_string(channel) + " (P" +
                                    (channel < 8 ? "7." : "8.") + std::to_string(channel % 8) +
                                    ")");
    }
    x_.ADCombo1.text = x_.ADCombo1.items[0];
    z_.registerControls(registry_);
    bind517Operations();
}

void Assistent517::UOption1Click(int index) {
    OwnedGuardHold hold(generationGuard_);
    Assistent515::UOption1Click(index);
    // The C517's generator is programmable: the rate list serves it too.
    s_.UCombo1.enabled = s_.UCheck1.value != 0 && index % 2 == 1;
    hold.release();
    regenerateProgram();
}

bool Assistent517::interruptUsed(std::size_t source) const {
    return s_.ICheck1[source].value != 0;
}

assistent515::EnableBit Assistent517::enableBit(std::size_t source) const {
    return source < kSerial1Interrupt ? Assistent515::enableBit(source)
                                      : kAddedBits[source - kSerial1Interrupt];
}

int Assistent517::refreshBox(std::size_t source) const {
    return source == kCompareTimerInterrupt ? 3 : Assistent515::refreshBox(source);
}

void Assistent517::bind517Operations() {
    onChange("UOption3", [this](int) {
        OwnedGuardHold hold(generationGuard_);
        if (x_.UOption3.selected == 0 && s_.UOption1.selected % 2 == 1 && s_.T1Check0.value != 0) {
            if (host_.question("Konflikt", text8("Timer 1 wird bereits für andere Zwecke "
                                                 "verwendet. Möchten Sie diese Zuordnung "
                                                 "aufheben?"))) {
                setCheck(s_.T1Check0, 0);
                setListIndex(s_.T1Combo1, 2);
                setCheck(s_.T1Check2, 1);
                setCheck(s_.T0Check3, 1);
            } else {
                selectOption(x_.UOption3, 1);
            }
        }
        hold.release();
        regenerateProgram();
    });
    onChange("U1Check1", [this](int) {
        const bool on = z_.U1Check1.value != 0;
        z_.U1Frame1.enabled = z_.U1Option1.enabled = z_.U1Check3.enabled = z_.U1Combo1.enabled = on;
        z_.U1Check2.enabled = on && z_.U1Option1.selected == 1;
        regenerateProgram();
    });
    onChange("U1Option1", [this](int) {
        z_.U1Check2.enabled = z_.U1Check1.value != 0 && z_.U1Option1.selected == 1;
        regenerateProgram();
    });
    onKey("U1Combo1", [](int, int, std::int16_t& key) { decimalKeyFilter(key); });
    onLeave("U1Combo1", [this](int) { UComboLostFocus(z_.U1Combo1); });
    onChange("CC4Combo2", [this](int) {
        z_.CC4Slider.enabled = z_.CC4Combo2.listIndex == 1;
        regenerateProgram();
    });
    onChange("CTCheck1", [this](int) {
        z_.CTCombo1.enabled = z_.CTText1.enabled = z_.CTText2.enabled = z_.CTCheck1.value != 0;
        regenerateProgram();
    });
    onChange("MDU5", [this](int) {
        z_.MDUText1.enabled = z_.MDU5.value != 0;
        regenerateProgram();
    });
    onChange("MDU6", [this](int) {
        z_.MDUText2.enabled = z_.MDU6.value != 0;
        regenerateProgram();
    });
    for (TextBox* box : {&z_.MDUText1, &z_.MDUText2}) {
        onKey(box->name, [](int, int, std::int16_t& key) { decimalKeyFilter(key); });
    }
    for (TextBox* box : {&z_.CC4Text1, &z_.CC4Text2, &z_.CTText1, &z_.CTText2}) {
        onKey(box->name, [box](int, int selection, std::int16_t& key) {
            hexKeyFilter(box->text, selection, key);
        });
        onLeave(box->name, [this, box](int) { hexFieldLostFocus(*box); });
    }
    onKey("CMText1", [this](int index, int selection, std::int16_t& key) {
        hexKeyFilter(z_.CMText1[static_cast<std::size_t>(index)].text, selection, key);
    });
    onLeave("CMText1",
            [this](int index) { hexFieldLostFocus(z_.CMText1[static_cast<std::size_t>(index)]); });
}

}  // namespace korvex::wizards::assistent517
