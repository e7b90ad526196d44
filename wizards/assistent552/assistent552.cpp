#include "wizards/assistent552/assistent552.h"

#include <algorithm>

#include "base/cp1252.h"
#include "base/failure.h"
#include "base/files.h"
#include "wizards/core/key_filters.h"

namespace korvex::wizards::assistent552 {
namespace {

using namespace assistent52;

constexpr std::array<InterruptSource, 15> kSources552 = {{
    {"Externer Interrupt 0, Auslöser:", "EXTI0:", "externer Interrupt 0", "Externer Interrupt 0",
     "setb EX0\t; externen Interrupt 0 freigeben",
     "setb PX0\t; Priorität für externen Interrupt 0"},
    {"Timer 0 Interrupt", "Timer 0:", "Timer 0 Interrupt", "Timer 0 Interrupt",
     "setb ET0\t; Timer 0 Interrupt freigeben", "setb PT0\t; Priorität für Timer 0 Interrupt"},
    {"Externer Interrupt 1, Auslöser:", "EXTI1:", "externer Interrupt 1", "Externer Interrupt 1",
     "setb EX1\t; externen Interrupt 1 freigeben",
     "setb PX1\t; Priorität für externen Interrupt 1"},
    {"Timer 1 Interrupt", "Timer 1:", "Timer 1 Interrupt", "Timer 1 Interrupt",
     "setb ET1\t; Timer 1 Interrupt freigeben", "setb PT1\t; Priorität für Timer 1 Interrupt"},
    {"Serieller Interrupt", "SINT:", "serieller Interrupt", "Serieller Interrupt",
     "setb ES0\t; seriellen Interrupt freigeben", "setb PS0\t; Priorität für seriellen Interrupt",
     RoutineKind::Serial},
    {"I²C Interrupt", "SIO1:", "I²C Interrupt", "I²C Interrupt",
     "setb ES1\t; I²C Interrupt freigeben", "setb PS1\t; Priorität für I²C Interrupt"},
    {"Capture 0 Interrupt", "CT0:", "Capture 0 Interrupt", "T2 Capture 0 Interrupt",
     "setb ECT0\t; Capture 0 Interrupt freigeben",
     "setb PCT0\t; Priorität für Capture 0 Interrupt"},
    {"Capture 1 Interrupt", "CT1:", "Capture 1 Interrupt", "T2 Capture 1 Interrupt",
     "setb ECT1\t; Capture 1 Interrupt freigeben",
     "setb PCT1\t; Priorität für Capture 1 Interrupt"},
    {"Capture 2 Interrupt", "CT2:", "Capture 2 Interrupt", "T2 Capture 2 Interrupt",
     "setb ECT2\t; Capture 2 Interrupt freigeben",
     "setb PCT2\t; Priorität für Capture 2 Interrupt"},
    {"Capture 3 Interrupt", "CT3:", "Capture 3 Interrupt", "T2 Capture 3 Interrupt",
     "setb ECT3\t; Capture 3 Interrupt freigeben",
     "setb PCT3\t; Priorität für Capture 3 Interrupt"},
    {"A/D-Wandler Interrupt", "ADCI:", "A/D-Wandler Interrupt", "A/D-Wandler Interrupt",
     "setb EAD\t; A/D-Wandler Interrupt freigeben",
     "setb PAD\t; Priorität für A/D-Wandler Interrupt"},
    {"Compare 0 Interrupt", "CM0:", "Compare 0 Interrupt", "T2 Compare 0 Interrupt",
     "setb ECM0\t; Compare 0 Interrupt freigeben",
     "setb PCM0\t; Priorität für Compare 0 Interrupt"},
    {"Compare 1 Interrupt", "CM1:", "Compare 1 Interrupt", "T2 Compare 1 Interrupt",
     "setb ECM1\t; Compare 1 Interrupt freigeben",
     "setb PCM1\t; Priorität für Compare 1 Interrupt"},
    {"Compare 2 Interrupt", "CM2:", "Compare 2 Interrupt", "T2 Compare 2 Interrupt",
     "setb ECM2\t; Compare 2 Interrupt freigeben",
     "setb PCM2\t; Priorität für Compare 2 Interrupt"},
    {"Timer 2 Überlauf Interrupt", "Timer 2:", "Timer 2 Überlauf Interrupt", "Timer 2 Interrupt",
     "setb ET2\t; Timer 2 Überlauf Interrupt freigeben",
     "setb PT2\t; Priorität für Timer 2 Überlauf Interrupt"},
}};

const ChipProfile& profile552() {
    static const ChipProfile profile{
        .windowTitle = " Assistent 80C552",
        .cpu = "80C552",
        .style = LiteralStyle::Blank,
        .bankMnemonic = "or",
        .mode2Caption = "Modus 2, asynchron, 9 Bit, ",
        .tabs = {"System", "Serieller Port", "Timer 0", "Timer 1", "Timer 2", "PWM", text8("I²C"),
                 "A/D-Wandler", "Watchdog", "Interrupts"},
        .interrupts = kSources552,
    };
    return profile;
}

const char* const kFrequencyPrompt =
    "Geben Sie die gewünschte Wiederholfrequenz in Hz ein.\r\n"
    "Verwenden Sie als Dezimaltrennzeichen den Punkt.\r\n"
    "Die Frequenz kann zwischen ";

}  // namespace

Assistent552::Assistent552(WizardHost& host, WizardOptions options)
    : Assistent52(host, std::move(options), profile552()) {
    for (const char* name : {"UCombo2", "UCombo3", "UCombo4", "ULabel4", "T2Text2", "T2Text3",
                             "T2Text4", "T2Text5", "T2Frame1", "T2Option1", "T2Command1"}) {
        registry_.remove(name);
    }
    s_.UCombo1.items = s_.UCombo3.items;
    s_.UCombo1.editable = true;
    s_.UCombo1.width = kBaudListWideWidth;
    s_.ULabel3.caption = "Baudrate:";
    s_.UOption1.buttons[1].caption = text8("Modus 1, asynchron, 10 Bit, Baudrate Timer 1 Überlauf");
    s_.UOption1.buttons[2].caption = "Modus 2, asynchron, 9 Bit, Baudrate fosc/64 oder /32";
    s_.UOption1.buttons[3].caption = text8("Modus 3, asynchron, 11 Bit, Baudrate Timer 1 Überlauf");
    s_.T2Combo1.items = {"Timer, Takt ist fosc/12", text8("Zähler, Takt an T2")};
    s_.T2Check1.caption = "Externer Reset an RT2 (T2ER)";
    s_.T2Check1.enabled = false;
    x_.registerControls(registry_);
    bind552Operations();
}

Timer1PortControls Assistent552::port() {
    return {s_.UCheck1, s_.UFrame1, s_.UOption1, s_.UCheck2,
            s_.UCheck3, s_.UCheck4, s_.UCombo1,  lastSerialMode_};
}

void Assistent552::UCheck1Click() {
    timer1PortUseClick(port());
}

void Assistent552::UOption1Click(int index) {
    timer1PortModeClick(port(), index);
}

void Assistent552::loadSettings() {
    // The service routine is read once, whole, as the window opens.
    try {
        i2cRoutine_ = readWholeFile(options_.programFolder + "c552iic.dat");
    } catch (const RuntimeFailure&) {
        i2cRoutine_.clear();
    }
    generationGuard_.set(guard_code::kLoad);
    selectTab(0);
    setListIndex(s_.SCombo1, 0);
    setListIndex(s_.UCombo1, 4);
    s_.UFrame1.enabled = s_.UCombo1.enabled = s_.UCheck3.enabled = s_.UCheck4.enabled = false;
    setListIndex(s_.T0Combo1, 0);
    setListIndex(s_.T1Combo1, 0);
    setListIndex(s_.T2Combo1, 0);
    s_.T2Check1.visible = true;
    generationGuard_.set(0);
    regenerateProgram();
}

void Assistent552::bind552Operations() {
    onChange("UCombo1", [this](int) { regenerateProgram(); });
    onKey("UCombo1", [](int, int, std::int16_t& key) { decimalKeyFilter(key); });
    onLeave("UCombo1", [this](int) { UComboLostFocus(s_.UCombo1); });
    const auto hexKeys = [](TextBox& box) {
        return [&box](int, int selection, std::int16_t& key) {
            hexKeyFilter(box.text, selection, key);
        };
    };
    for (TextBox* box : {&x_.STEText1, &x_.RTEText1, &x_.PWMText1, &x_.ICText1, &x_.WDText1}) {
        onKey(box->name, hexKeys(*box));
        onLeave(box->name, [this, box](int) { hexFieldLostFocus(*box); });
    }
    for (auto* array : {&x_.CMText1, &x_.CMText2}) {
        onKey((*array)[0].name, [array](int index, int selection, std::int16_t& key) {
            hexKeyFilter((*array)[static_cast<std::size_t>(index)].text, selection, key);
        });
        onLeave((*array)[0].name, [this, array](int index) {
            hexFieldLostFocus((*array)[static_cast<std::size_t>(index)]);
        });
    }

    onChange("T2Check0", [this](int) {
        const bool on = s_.T2Check0.value != 0;
        for (Control* c :
             std::initializer_list<Control*>{&s_.T2Combo1, &x_.T2Combo2, &s_.T2Check1, &x_.T2Check2,
                                             &x_.STEText1, &x_.RTEText1}) {
            c->enabled = on;
        }
        for (auto& c : x_.CTCombo1) c.enabled = on;
        for (auto& c : x_.CMText1) c.enabled = on;
        for (auto& c : x_.CMText2) c.enabled = on;
        regenerateProgram();
    });
    onChange("T2Combo1", [this](int) { regenerateProgram(); });

    const auto pwmRule = [this] {
        x_.PWMSlider1.enabled = x_.PWMCheck1.value != 0;
        x_.PWMSlider2.enabled = x_.PWMCheck2.value != 0;
        x_.PWMText1.enabled = x_.PWMCommand.enabled =
            x_.PWMCheck1.value != 0 || x_.PWMCheck2.value != 0;
        regenerateProgram();
    };
    onChange("PWMCheck1", [pwmRule](int) { pwmRule(); });
    onChange("PWMCheck2", [pwmRule](int) { pwmRule(); });
    onClick("PWMCommand", [this](int) {
        withArithmeticTrap([this] {
            const float fosc = oscillatorHz(clockMegahertz());
            const std::string prompt = text8(kFrequencyPrompt) + str(fosc / 130560.0f) +
                                       text8(" Hz und ") + str(fosc / 510.0f) +
                                       text8(" Hz liegen.");
            const double frequency = valNumber(host_.prompt("PWM Wiederholfrequenz", prompt, ""));
            if (frequency <= 0 || clockMegahertz() <= 0) return;
            std::int32_t prescaler =
                roundToInt32(static_cast<double>(fosc) / (frequency * 510) - 1);
            if (prescaler > 0xFF) prescaler = 0xFF;
            setText(x_.PWMText1, hex2(prescaler));
        });
    });

    onChange("ICCheck1", [this](int) {
        const bool on = x_.ICCheck1.value != 0;
        x_.ICSlider1.enabled = x_.ICCheck2.enabled = x_.ICCheck4.enabled = on;
        x_.ICText1.enabled = on && x_.ICCheck2.value != 0;
        regenerateProgram();
    });
    onChange("ICCheck2", [this](int) {
        x_.ICText1.enabled = x_.ICCheck1.value != 0 && x_.ICCheck2.value != 0;
        regenerateProgram();
    });
    onChange("ICheck3", [this](int) {
        if (x_.ICheck3.value != 0 && i2cRoutine_.empty()) {
            host_.note(text8("Die I²C Service-Routine (c552iic.dat) fehlt im Programmordner."));
        }
        regenerateProgram();
    });
    onChange("ADCheck1", [this](int) {
        const bool on = x_.ADCheck1.value != 0;
        x_.ADCombo1.enabled = x_.ADCheck2.enabled = x_.ADCheck3.enabled = on;
        regenerateProgram();
    });
    onChange("WDCheck1", [this](int) {
        const bool on = x_.WDCheck1.value != 0;
        x_.WDText1.enabled = on;
        for (auto& box : x_.WDCheck3) box.enabled = on;
        regenerateProgram();
    });
}

}  // namespace korvex::wizards::assistent552
