#pragma once
// The settings record of the 80C52 / 80C32 wizard: one member per control,
// named after it, with value, enabled and visible, and the captions that the
// interlocks rewrite and the generator reads. The defaults are those of the
// dialog before it is loaded; the load-time settings are the wizard's.

#include <array>
#include <span>
#include <vector>

#include "wizards/assistent52/interrupt_sources.h"
#include "wizards/core/control_registry.h"
#include "wizards/core/controls.h"

namespace korvex::wizards::assistent52 {

struct WizardSettings {
    // One enable and one priority box per interrupt source of the chip.
    explicit WizardSettings(std::span<const InterruptSource> interrupts = kInterruptSources);
    // The record's controls, by name, for the events and the command line.
    void registerControls(ControlRegistry& registry);

    // Tab "System"
    TextBox SText1;    // clock in MHz
    TextBox SText2;    // start of the stack, hex
    CheckBox SCheck1;  // clear internal RAM
    TextBox SText3;    // first address to clear, hex
    TextBox SText4;    // last address to clear, hex
    ComboBox SCombo1;  // register bank
    CheckBox SCheck2;  // #use LCALL
    TextBox SText5;    // program comment
    Label SLabel6;
    CommandButton SCommand1;

    // Tab "Serieller Port"
    CheckBox UCheck1;
    Frame UFrame1;
    OptionGroup UOption1;
    CheckBox UCheck2;  // SM2
    CheckBox UCheck3;  // REN
    CheckBox UCheck4;  // SMOD
    Label ULabel3;
    Label ULabel4;
    ComboBox UCombo1;  // generator for receiving
    ComboBox UCombo2;  // generator for sending
    ComboBox UCombo3;  // baud rate for receiving, or both
    ComboBox UCombo4;  // baud rate for sending

    // Tab "Timer 0"
    Frame T0Frame1;
    ComboBox T0Combo1;
    OptionGroup T0Option1;
    CheckBox T0Check1;  // GATE
    TextBox T0Text1;    // TL0
    TextBox T0Text2;    // TH0, the reload in mode 2
    Label T0Label2;
    Label T0Label3;
    CheckBox T0Check2;  // TR0
    CheckBox T0Check3;  // TR1 for the high byte in mode 3
    TextBox T0Text3;    // result line
    CommandButton T0Command1;

    // Tab "Timer 1"
    CheckBox T1Check0;
    Frame T1Frame1;
    ComboBox T1Combo1;
    OptionGroup T1Option1;
    CheckBox T1Check1;
    TextBox T1Text1;
    TextBox T1Text2;
    Label T1Label2;
    Label T1Label3;
    CheckBox T1Check2;  // TR1
    TextBox T1Text3;
    CommandButton T1Command1;

    // Tab "Timer 2"
    CheckBox T2Check0;
    ComboBox T2Combo1;
    TextBox T2Text2;  // TL2
    TextBox T2Text3;  // TH2
    TextBox T2Text4;  // RCAP2L
    TextBox T2Text5;  // RCAP2H
    Frame T2Frame1;
    OptionGroup T2Option1;
    CheckBox T2Check1;  // EXEN2
    TextBox T2Text1;    // description of the function
    CommandButton T2Command1;

    // Tab "Interrupts"
    CheckBox ICheck0;               // EA
    std::vector<CheckBox> ICheck1;  // enables, one per source
    std::vector<CheckBox> ICheck2;  // high priorities
    OptionGroup IOption1;           // trigger of external interrupt 0
    OptionGroup IOption2;           // trigger of external interrupt 1
    Label ILabel1;                  // the column heading of the priorities

    // The buttons below the tabs.
    CommandButton Command1;  // "Abbrechen"
    CommandButton Command2;  // "Übernehmen"
};

// The preview's paragraph layout, in twips.
inline constexpr std::array<int, 5> kPreviewTabStops = {260, 460, 660, 860, 1060};
inline constexpr int kPreviewIndent = 60;
inline constexpr int kPreviewHangingIndent = 300;

// Widths of UCombo3 without and with the second baud-rate list beside it.
inline constexpr int kBaudListWideWidth = 3405;
inline constexpr int kBaudListNarrowWidth = 3165;

}  // namespace korvex::wizards::assistent52
