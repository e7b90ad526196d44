#include "wizards/assistent51/assistent51.h"

#include "base/cp1252.h"
#include "wizards/assistent52/program_lines.h"
#include "wizards/core/key_filters.h"

namespace korvex::wizards::assistent51 {
namespace {

using assistent52::ChipProfile;
using assistent52::InterruptSource;
using assistent52::kInterruptSources;

const ChipProfile& profile51() {
    static const ChipProfile profile{
        .windowTitle = "Assistent 51",
        .cpu = "80C31",
        .style = LiteralStyle::Blank,
        .bankMnemonic = "or",
        .mode2Caption = "Modus 2, asynchron, 9 Bit, ",
        .tabs = {"System", "Serieller Port", "Timer 0", "Timer 1", "Interrupts"},
        // The five sources of the 8051: the base's without Timer 2.
        .interrupts = std::span<const InterruptSource>(kInterruptSources).first(5),
    };
    return profile;
}

}  // namespace

Assistent51::Assistent51(WizardHost& host, WizardOptions options)
    : Assistent52(host, std::move(options), profile51()) {
    for (const char* name :
         {"UCombo2", "UCombo3", "UCombo4", "ULabel4", "T2Check0", "T2Combo1", "T2Text1", "T2Text2",
          "T2Text3", "T2Text4", "T2Text5", "T2Frame1", "T2Option1", "T2Check1", "T2Command1"}) {
        registry_.remove(name);
    }
    // The one list is the baud rate, typed or chosen.
    s_.UCombo1.items = s_.UCombo3.items;
    s_.UCombo1.editable = true;
    s_.UCombo1.width = assistent52::kBaudListWideWidth;
    s_.ULabel3.caption = "Baudrate:";
    s_.UOption1.buttons[1].caption = text8("Modus 1, asynchron, 10 Bit, Baudrate Timer 1 Überlauf");
    s_.UOption1.buttons[2].caption = "Modus 2, asynchron, 9 Bit, Baudrate fosc/64 oder /32";
    s_.UOption1.buttons[3].caption = text8("Modus 3, asynchron, 11 Bit, Baudrate Timer 1 Überlauf");

    onChange("UCombo1", [this](int) { regenerateProgram(); });
    onKey("UCombo1", [](int, int, std::int16_t& key) { decimalKeyFilter(key); });
    onLeave("UCombo1", [this](int) { UComboLostFocus(s_.UCombo1); });
}

void Assistent51::loadSettings() {
    generationGuard_.set(guard_code::kLoad);
    selectTab(0);
    setListIndex(s_.SCombo1, 0);
    setListIndex(s_.UCombo1, 4);
    s_.UFrame1.enabled = s_.UCombo1.enabled = s_.UCheck3.enabled = s_.UCheck4.enabled = false;
    setListIndex(s_.T0Combo1, 0);
    setListIndex(s_.T1Combo1, 0);
    generationGuard_.set(0);
    regenerateProgram();
}

assistent52::Timer1PortControls Assistent51::port() {
    return {s_.UCheck1, s_.UFrame1, s_.UOption1, s_.UCheck2,
            s_.UCheck3, s_.UCheck4, s_.UCombo1,  lastSerialMode_};
}

void Assistent51::UCheck1Click() {
    timer1PortUseClick(port());
}

void Assistent51::UOption1Click(int index) {
    timer1PortModeClick(port(), index);
}

void Assistent51::writeBaudLines(std::string& code, float fosc) {
    const double baud = valNumber(s_.UCombo1.text);
    if (baud <= 0) return;
    code += kLineEnd;
    writeTimer1BaudLines(code, fosc, baud);
}

}  // namespace korvex::wizards::assistent51
