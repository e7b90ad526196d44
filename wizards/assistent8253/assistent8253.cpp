#include "wizards/assistent8253/assistent8253.h"

#include "base/cp1252.h"
#include "wizards/core/key_filters.h"

namespace korvex::wizards::assistent8253 {
namespace {

using namespace assistent52;

const ChipProfile& profile8253() {
    static const ChipProfile profile{
        .windowTitle = "Assistent AT89S8253",
        .cpu = "89S8253",
        .style = LiteralStyle::Assignment,
        .tabs = {"System", "Serieller Port", "Timer 0", "Timer 1", "Timer 2", "Watchdog", "SPI",
                 "Betriebssystem", "Interrupts"},
        .interrupts = kInterruptSources,
        .indentedVectorJumps = true,
    };
    return profile;
}

// The boxes of the interrupt tab.
constexpr std::size_t kGlobalBox = 0;
constexpr std::size_t kTimer0Box = 3;
constexpr std::size_t kSpiBox = 8;

}  // namespace

Assistent8253::Assistent8253(WizardHost& host, WizardOptions options)
    : Assistent89S53(host, std::move(options), profile8253()) {
    // The chip is fixed, its watchdog and interrupt tab are its own.
    for (const char* name : {"SOption1", "WCheck1", "WCheck2", "WCheck3", "WText1", "ICheck0",
                             "ICheck1", "ICheck2", "IOption1", "IOption2", "ILabel1"}) {
        registry_.remove(name);
    }
    x_.SCheck3[0].enabled = true;
    y_.registerControls(registry_);
    bind8253Operations();
}

float Assistent8253::effectiveMegahertz() const {
    return clockMegahertz() * (y_.SCkX2.value != 0 ? 2.0f : 1.0f);
}

bool Assistent8253::interruptUsed(std::size_t source) const {
    const auto box = [this](std::size_t i) { return y_.ICheck1[i].value != 0; };
    const bool marked = y_.IPSlider[source].value != 0;
    switch (source) {
        case kExternal0Interrupt: return box(1) || box(2) || marked;
        case kTimer0Interrupt: return box(3) || marked;
        case kExternal1Interrupt: return box(4) || box(5) || marked;
        case kTimer1Interrupt: return box(6) || marked;
        case kSerialInterrupt: return box(7) || box(8) || spiInterrupt() || marked;
        case kTimer2Interrupt: return box(9) || marked;
        default: return false;
    }
}

bool Assistent8253::watchdogOn() const {
    return y_.WCkStart.value != 0 || y_.WCkIdle.value != 0 || y_.WCkReset.value != 0 ||
           y_.WCkHardware.value != 0;
}

void Assistent8253::bind8253Operations() {
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
    // The SPI's interrupt shows on both tabs.
    onChange("SPICheck2", [this](int) {
        OwnedGuardHold hold(generationGuard_);
        setCheck(y_.ICheck1[kSpiBox], x_.SPICheck2.value);
        hold.release();
        regenerateProgram();
    });
    onChange("ICheck1", [this](int index) {
        const auto i = static_cast<std::size_t>(index);
        OwnedGuardHold hold(generationGuard_);
        // Level and edge of one external interrupt exclude each other.
        if (y_.ICheck1[i].value != 0 && (i == 1 || i == 2 || i == 4 || i == 5)) {
            setCheck(y_.ICheck1[i % 3 == 1 ? i + 1 : i - 1], 0);
        }
        if (i == kSpiBox && x_.SPICheck1.value != 0) setCheck(x_.SPICheck2, y_.ICheck1[i].value);
        hold.release();
        regenerateProgram();
    });
    onChange("BCheckTakt", [this](int) { tickSwitched(); });
    for (TextBox& field : y_.UAdresse) {
        onKey(field.name, [this](int index, int selection, std::int16_t& key) {
            hexKeyFilter(y_.UAdresse[static_cast<std::size_t>(index)].text, selection, key);
        });
        onLeave(field.name, [this](int index) {
            hexFieldLostFocus(y_.UAdresse[static_cast<std::size_t>(index)]);
        });
    }
}

void Assistent8253::tickSwitched() {
    const bool on = tickOn();
    std::initializer_list<Control*> timer0 = {&s_.T0Frame1, &s_.T0Combo1, &s_.T0Option1,
                                              &s_.T0Check1, &s_.T0Text1,  &s_.T0Text2,
                                              &s_.T0Check2, &s_.T0Check3, &s_.T0Command1};
    OwnedGuardHold hold(generationGuard_);
    CheckBox& timer0Interrupt = y_.ICheck1[kTimer0Box];
    CheckBox& global = y_.ICheck1[kGlobalBox];
    y_.T0Meldung.visible = on;
    if (on) {
        selectOption(s_.T0Option1, 0);
        setListIndex(s_.T0Combo1, 2);
        setCheck(s_.T0Check1, 0);
        setCheck(s_.T0Check2, 1);
        s_.T0Check3.visible = false;
        for (Control* c : timer0) c->enabled = false;
        setCheck(timer0Interrupt, 1);
        setCheck(global, 1);
        timer0Interrupt.enabled = global.enabled = false;
    } else {
        for (Control* c : timer0) c->enabled = true;
        setListIndex(s_.T0Combo1, 0);
        s_.T0Command1.enabled = false;
        timer0Interrupt.enabled = global.enabled = true;
        setCheck(timer0Interrupt, 0);
        setCheck(global, 0);
        setText(s_.T0Text1, "00");
        setText(s_.T0Text2, "00");
        setCheck(s_.T0Check2, 0);
    }
    hold.release();
    regenerateProgram();
}

void Assistent8253::beforeGeneration() {
    std::array<bool, kTickItems> selected{};
    for (std::size_t i = 0; i < kTickItems; ++i) selected[i] = y_.BList[i].value != 0;
    implyTickItems(selected);
    y_.BList[6].value = selected[6] ? 1 : 0;
    if (!tickOn()) {
        ticks_ = {};
        return;
    }
    const TickReload reload = tickReload8253(clockMegahertz(), y_.SCkX2.value != 0);
    if (reload.tooHigh) {
        host_.note(text8("Taktfrequenz ist zur Erzeugung des Betriebssystems zu hoch."));
    }
    s_.T0Text1.text = s_.T0Text2.text = hex2(reload.reload);
    ticks_ = buildTickBlocks(TickChip::At89s8253, selected);
}

}  // namespace korvex::wizards::assistent8253
