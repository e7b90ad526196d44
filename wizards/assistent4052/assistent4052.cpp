#include "wizards/assistent4052/assistent4052.h"

#include "base/cp1252.h"
#include "wizards/core/key_filters.h"

namespace korvex::wizards::assistent4052 {
namespace {

using namespace assistent52;

constexpr std::array<InterruptSource, 6> kSources4052 = {{
    kInterruptSources[0],
    kInterruptSources[1],
    kInterruptSources[2],
    kInterruptSources[3],
    kInterruptSources[4],
    {"Comparator Interrupt", "Comparator:", "Analogkomparator Interrupt", "Comparator Interrupt",
     "setb EC\t; Comparator Interrupt freigeben", "setb PC\t; Priorität für Comparator Interrupt"},
}};

const ChipProfile& profile4052() {
    static const ChipProfile profile{
        .windowTitle = "Assistent AT89LP4052",
        .cpu = "89LP4052",
        .style = LiteralStyle::Assignment,
        .tabs = {"System", "Serieller Port", "Timer 0", "Timer 1", "Analogkomparator", "PWM",
                 "Ports", "Betriebssystem", "SPI", "Interrupts"},
        .interrupts = kSources4052,
        .indentedVectorJumps = true,
    };
    return profile;
}

}  // namespace

Assistent4052::Assistent4052(WizardHost& host, WizardOptions options)
    : Assistent89S53(host, std::move(options), profile4052()) {
    // No Timer 2, no EEPROM, no watchdog tab, one baud-rate generator.
    for (const char* name :
         {"SOption1", "SLabel7",   "SCheck3",  "WCheck1",   "WCheck2", "WCheck3",
          "WText1",   "UCombo2",   "UCombo3",  "UCombo4",   "ULabel4", "T2Check0",
          "T2Combo1", "T2Text1",   "T2Text2",  "T2Text3",   "T2Text4", "T2Text5",
          "T2Frame1", "T2Option1", "T2Check1", "T2Command1"}) {
        registry_.remove(name);
    }
    s_.UCombo1.items = s_.UCombo3.items;
    s_.UCombo1.editable = true;
    s_.UCombo1.width = kBaudListWideWidth;
    s_.ULabel3.caption = "Baudrate:";
    s_.UOption1.buttons[1].caption = text8("Modus 1, asynchron, 10 Bit, Baudrate Timer 1 Überlauf");
    s_.UOption1.buttons[2].caption = "Modus 2, asynchron, 11 Bit, Baudrate fosc/32 oder /16";
    s_.UOption1.buttons[3].caption = text8("Modus 3, asynchron, 11 Bit, Baudrate Timer 1 Überlauf");
    s_.T0Combo1.items = {"Modus 0, 13-Bit Timer ", "Modus 1, 16-Bit Autoreload Timer",
                         "Modus 2, 8-Bit Autoreload Timer",
                         text8("Modus 3, zwei 8-Bit Timer oder Timer/Zähler")};
    s_.T1Combo1.items[0] = "Modus 0, 9-Bit bis 16-Bit Timer ";
    s_.T1Combo1.items[1] = "Modus 1, 16-Bit Autoreload Timer";
    y_.registerControls(registry_);
    bind4052Operations();
}

Timer1PortControls Assistent4052::port() {
    return {s_.UCheck1, s_.UFrame1, s_.UOption1, s_.UCheck2,
            s_.UCheck3, s_.UCheck4, s_.UCombo1,  lastSerialMode_};
}

void Assistent4052::UCheck1Click() {
    timer1PortUseClick(port());
}

void Assistent4052::UOption1Click(int index) {
    timer1PortModeClick(port(), index);
}

bool Assistent4052::timer1Busy() const {
    return s_.T1Check0.value != 0 || y_.PWM1Chkverwenden.value != 0;
}

void Assistent4052::loadSettings() {
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

int Assistent4052::prescalerBits(int timer) const {
    const ComboBox& list = timer == 0 ? y_.T0Combo2 : y_.T1Combo2;
    return std::max<int>(list.listIndex, 0) + 1;
}

std::string Assistent4052::mode0Width(int timer) const {
    return std::to_string(8 + prescalerBits(timer));
}

std::string Assistent4052::mode1Comment(int timer) const {
    return "Timer " + std::to_string(timer) + " im 16-Bit Autoreload-Modus. ";
}

std::string Assistent4052::counterWord(int timer) const {
    return timer == 1 ? "Zählers" : "Zähler";
}

double Assistent4052::timerDivisor(int timer, int mode, const std::string& reloadText) const {
    const TextBox& low = timer == 0 ? s_.T0Text1 : s_.T1Text1;
    const TextBox& high = timer == 0 ? s_.T0Text2 : s_.T1Text2;
    if (mode == 0) return static_cast<double>(1 << (8 + prescalerBits(timer)));
    if (mode == 1) {
        return 65536.0 - (256.0 * hexFieldValue(high.text) + hexFieldValue(low.text));
    }
    return Assistent52::timerDivisor(timer, mode, reloadText);
}

void Assistent4052::bind4052Operations() {
    onChange("UCombo1", [this](int) { regenerateProgram(); });
    onKey("UCombo1", [](int, int, std::int16_t& key) { decimalKeyFilter(key); });
    onLeave("UCombo1", [this](int) { UComboLostFocus(s_.UCombo1); });
    onChange("SPICheck1", [this](int) {
        const bool on = x_.SPICheck1.value != 0;
        for (Control* c :
             std::initializer_list<Control*>{&x_.SPICheck2, &x_.SPIOption1, &x_.SPIOption2,
                                             &x_.SPIOption3, &y_.SPICkEnhanced, &y_.SPICkSOD}) {
            c->enabled = on;
        }
        x_.SPIList1.enabled = on && x_.SPIOption2.selected == 1;
        regenerateProgram();
    });
    onChange("CaktivCheck", [this](int) {
        y_.CIdleCheck.enabled = y_.COption.enabled = y_.CCmdPin.enabled = y_.CaktivCheck.value != 0;
        regenerateProgram();
    });
    // The comparator's inputs are best read without the port's pull-up.
    onClick("CCmdPin", [this](int) {
        OwnedGuardHold hold(generationGuard_);
        setListIndex(y_.PortText[0], 2);
        setListIndex(y_.PortText[1], 2);
        hold.release();
        regenerateProgram();
    });
    onChange("BCheckTakt", [this](int) { tickSwitched(); });
    onChange("PWM0Chkverwenden", [this](int) { pwm0Switched(); });
    onChange("PWM1Chkverwenden", [this](int) { pwm1Switched(); });
    for (TextBox* box : {&y_.PWM0Text, &y_.PWM1Text}) {
        onKey(box->name, [box](int, int selection, std::int16_t& key) {
            hexKeyFilter(box->text, selection, key);
        });
        onLeave(box->name, [this, box](int) { hexFieldLostFocus(*box); });
    }
}

void Assistent4052::timer0Taken(bool taken, const char* message) {
    for (Control* c : std::initializer_list<Control*>{
             &s_.T0Frame1, &s_.T0Combo1, &s_.T0Option1, &s_.T0Check1, &s_.T0Text1, &s_.T0Text2,
             &s_.T0Check2, &s_.T0Check3, &s_.T0Command1, &y_.T0Combo2}) {
        c->enabled = !taken;
    }
    y_.T0Label[1].visible = taken;
    y_.T0Label[1].caption = text8(message);
}

void Assistent4052::tickSwitched() {
    const bool on = tickOn();
    OwnedGuardHold hold(generationGuard_);
    CheckBox& timer0Interrupt = s_.ICheck1[kTimer0Interrupt];
    if (on) {
        selectOption(s_.T0Option1, 0);
        setListIndex(s_.T0Combo1, 1);  // the LP's 16-bit auto-reload
        setCheck(s_.T0Check1, 0);
        setCheck(s_.T0Check2, 1);
        s_.T0Check3.visible = false;
        timer0Taken(true, "Timer 0 wird vom Betriebssystem verwendet.");
        setCheck(timer0Interrupt, 1);
        setCheck(s_.ICheck0, 1);
        timer0Interrupt.enabled = s_.ICheck0.enabled = false;
    } else {
        timer0Taken(false, "");
        setListIndex(s_.T0Combo1, 0);
        s_.T0Command1.enabled = false;
        timer0Interrupt.enabled = s_.ICheck0.enabled = true;
        setCheck(timer0Interrupt, 0);
        setCheck(s_.ICheck0, 0);
        setText(s_.T0Text1, "00");
        setText(s_.T0Text2, "00");
        setCheck(s_.T0Check2, 0);
    }
    // The PWM on Timer 0 is not to be had meanwhile.
    y_.PWM0Chkverwenden.enabled = !on;
    y_.PWM0Meldung.visible = on;
    hold.release();
    regenerateProgram();
}

void Assistent4052::pwm0Switched() {
    const bool on = y_.PWM0Chkverwenden.value != 0;
    timer0Taken(on, "Timer 0 wird von PWM0 verwendet.");
    if (!on) s_.T0Command1.enabled = s_.T0Combo1.listIndex == 2 && s_.T0Option1.selected == 0;
    y_.PWM0Text.enabled = y_.PWM0Slider.enabled = on;
    y_.BCheckTakt.enabled = !on;
    y_.BMeldung.visible = on;
    regenerateProgram();
}

void Assistent4052::pwm1Switched() {
    const bool on = y_.PWM1Chkverwenden.value != 0;
    y_.PWM1Text.enabled = y_.PWM1Slider.enabled = on;
    y_.T1Label[1].visible = on;
    y_.T1Label[1].caption = text8("Timer 1 wird von PWM1 verwendet.");
    OwnedGuardHold hold(generationGuard_);
    if (on) setCheck(s_.T1Check0, 0);
    s_.T1Check0.enabled = !on;
    // The serial port's rules see Timer 1 taken.
    if (s_.UCheck1.value != 0) timer1PortUseClick(port());
    hold.release();
    regenerateProgram();
}

void Assistent4052::beforeGeneration() {
    // What the serial port leaves to the PWM on Timer 1.
    const bool portOnTimer1 = s_.UCheck1.value != 0 && s_.UOption1.selected % 2 == 1;
    y_.PWM1Chkverwenden.enabled = !portOnTimer1 || y_.PWM1Chkverwenden.value != 0;
    y_.PWM1Meldung.visible = portOnTimer1;
    y_.T1Combo2.enabled = s_.T1Check0.value != 0;

    std::array<bool, kTickItems> selected{};
    for (std::size_t i = 0; i < kTickItems; ++i) selected[i] = y_.BList[i].value != 0;
    implyTickItems(selected);
    y_.BList[6].value = selected[6] ? 1 : 0;
    if (!tickOn()) {
        ticks_ = {};
        return;
    }
    const std::int32_t reload = tickReload4052(clockMegahertz());
    s_.T0Text1.text = hex2(reload % 256);
    s_.T0Text2.text = hex2(reload / 256);
    ticks_ = buildTickBlocks(TickChip::At89lp4052, selected);
}

}  // namespace korvex::wizards::assistent4052
