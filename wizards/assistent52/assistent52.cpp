#include "wizards/assistent52/assistent52.h"

#include "base/cp1252.h"
#include "wizards/core/key_filters.h"

namespace korvex::wizards::assistent52 {

const ChipProfile& profile80C52() {
    static const ChipProfile profile{
        .windowTitle = "Assistent 80C52 / 80C32",
        .cpu = "80C32",
        .tabs = {"System", "Serieller Port", "Timer 0", "Timer 1", "Timer 2", "Interrupts"},
        .interrupts = kInterruptSources,
    };
    return profile;
}

Assistent52::Assistent52(WizardHost& host, WizardOptions options)
    : Assistent52(host, std::move(options), profile80C52()) {}

Assistent52::Assistent52(WizardHost& host, WizardOptions options, const ChipProfile& profile)
    : Wizard(host, std::move(options)), profile_(profile), s_(profile.interrupts) {
    s_.registerControls(registry_);
    bindOperations();
}

bool Assistent52::timer1TimesSerialPort() const {
    return s_.UCombo1.enabled && (s_.UCombo1.listIndex == 0 || s_.UCombo2.listIndex == 0);
}

void Assistent52::freeTimer1FromSerialPort() {
    setCheck(s_.UCheck1, 0);
}

bool Assistent52::timer2InterruptEnabled() const {
    return s_.ICheck1.size() > kTimer2Interrupt && s_.ICheck1[kTimer2Interrupt].value != 0;
}

bool Assistent52::interruptUsed(std::size_t source) const {
    return s_.ICheck1[source].value != 0 || s_.ICheck2[source].value != 0;
}

float Assistent52::clockMegahertz() const {
    return systemSingle(s_.SText1.text, options_.numberFormat);
}

TimerControls Assistent52::timer0() {
    return {0,           s_.T0Combo1, s_.T0Option1, s_.T0Check1, s_.T0Text1,   s_.T0Text2,
            s_.T0Label2, s_.T0Label3, s_.T0Check2,  s_.T0Text3,  s_.T0Command1};
}

TimerControls Assistent52::timer1() {
    return {1,           s_.T1Combo1, s_.T1Option1, s_.T1Check1, s_.T1Text1,   s_.T1Text2,
            s_.T1Label2, s_.T1Label3, s_.T1Check2,  s_.T1Text3,  s_.T1Command1};
}

void Assistent52::loadSettings() {
    generationGuard_.set(guard_code::kLoad);
    selectTab(0);
    setListIndex(s_.SCombo1, 0);
    setListIndex(s_.UCombo1, 0);
    setListIndex(s_.UCombo2, 0);
    setListIndex(s_.UCombo3, 4);
    setListIndex(s_.UCombo4, 4);
    s_.UCombo4.visible = false;
    for (Control* c :
         std::initializer_list<Control*>{&s_.UFrame1, &s_.UCombo1, &s_.UCombo2, &s_.UCombo3,
                                         &s_.UCombo4, &s_.UCheck3, &s_.UCheck4}) {
        c->enabled = false;
    }
    setListIndex(s_.T0Combo1, 0);
    setListIndex(s_.T1Combo1, 0);
    setListIndex(s_.T2Combo1, timer2ListIndex(T2TimerReload));
    s_.T2Check1.visible = true;
    generationGuard_.set(0);
    regenerateProgram();
}

void Assistent52::bindOperations() {
    const auto hexKeys = [](TextBox& box) {
        return [&box](int, int selection, std::int16_t& key) {
            hexKeyFilter(box.text, selection, key);
        };
    };
    onChange("SText1", [this](int) { SText1Change(); });
    onLeave("SText1", [this](int) { SText1LostFocus(); });
    onKey("SText1",
          [this](int, int, std::int16_t& key) { numberKeyFilter(key, options_.numberFormat); });
    onLeave("SText2", [this](int) { SText2LostFocus(); });
    onLeave("SText3", [this](int) { SText3LostFocus(); });
    onLeave("SText4", [this](int) { SText4LostFocus(); });
    for (TextBox* box : {&s_.SText2, &s_.SText3, &s_.SText4}) onKey(box->name, hexKeys(*box));
    onChange("SCheck1", [this](int) { SCheck1Click(); });
    onClick("SCommand1", [this](int) { SCommand1Click(); });

    onChange("UCheck1", [this](int) { UCheck1Click(); });
    onChange("UOption1", [this](int index) { UOption1Click(index); });
    onChange("UCombo1", [this](int) { UComboClick(); });
    onChange("UCombo2", [this](int) { UComboClick(); });
    for (ComboBox* list : {&s_.UCombo3, &s_.UCombo4}) {
        onKey(list->name, [](int, int, std::int16_t& key) { decimalKeyFilter(key); });
        onLeave(list->name, [this, list](int) { UComboLostFocus(*list); });
    }

    onChange("T0Combo1", [this](int) { T0Combo1Click(); });
    onChange("T1Combo1", [this](int) { T1Combo1Click(); });
    onChange("T0Option1", [this](int) { TimerOptionClick(timer0()); });
    onChange("T1Option1", [this](int) { TimerOptionClick(timer1()); });
    onChange("T0Check3", [this](int) { T0Check3Click(); });
    onChange("T1Check2", [this](int) { T1Check2Click(); });
    onChange("T1Check0", [this](int) { T1Check0Click(); });
    onChange("T2Check0", [this](int) { T2Check0Click(); });
    onChange("T2Combo1", [this](int) { T2Combo1Click(); });
    onClick("T0Command1", [this](int) { TimerCommandClick(timer0()); });
    onClick("T1Command1", [this](int) { TimerCommandClick(timer1()); });
    onClick("T2Command1", [this](int) { T2Command1Click(); });
    for (TextBox* box : {&s_.T0Text1, &s_.T0Text2, &s_.T1Text1, &s_.T1Text2, &s_.T2Text2,
                         &s_.T2Text3, &s_.T2Text4, &s_.T2Text5}) {
        onKey(box->name, hexKeys(*box));
        onLeave(box->name, [this, box](int) { hexFieldLostFocus(*box); });
    }
    onClick("Command1", [this](int) { cancelWizard(); });
}

}  // namespace korvex::wizards::assistent52
