#pragma once
// The AT89S8253 wizard: all of the AT89S53's, written in the language's
// assignment form, with the doubled clock, AUXR, the EEPROM in EECON, the
// RAM clearing tied to the power-on flag, slave addresses, its own watchdog,
// interrupt boxes with four priority levels, and the time base of the
// "Betriebssystem" tab.

#include <array>

#include "wizards/assistent89s53/assistent89s53.h"
#include "wizards/core/tick_generator.h"

namespace korvex::wizards::assistent8253 {

struct Settings8253 {
    Settings8253();
    void registerControls(ControlRegistry& registry);

    // Tab "System"
    CheckBox ACkIntel;  // Intel power-down exit
    CheckBox SCkALE;    // ALE off
    CheckBox SCkX2;     // the doubled clock
    // Tab "Serieller Port"
    CheckBox UCkFrameError;
    std::array<TextBox, 2> UAdresse;  // SADDR, SADEN
    // Tab "SPI"
    CheckBox SPICkEnhanced;
    CheckBox SPICkSOD;
    // Tab "Watchdog"
    CheckBox WCkStart;
    CheckBox WCkIdle;
    CheckBox WCkReset;
    CheckBox WCkHardware;
    OptionGroup WOption1;  // the period
    // Tab "Interrupts"
    std::array<CheckBox, 10> ICheck1;
    std::array<Slider, 6> IPSlider;
    // Tab "Betriebssystem"
    Label BLabel1;
    CheckBox BCheckTakt;
    std::array<CheckBox, kTickItems> BList;
    // Tab "Timer 0"
    Label T0Meldung;
};

class Assistent8253 : public assistent89s53::Assistent89S53 {
  public:
    Assistent8253(WizardHost& host, WizardOptions options);

    Settings8253& at8253() { return y_; }

  protected:
    std::string cpuName() const override { return profile_.cpu; }
    float effectiveMegahertz() const override;
    bool interruptUsed(std::size_t source) const override;
    bool timer2InterruptEnabled() const override { return y_.ICheck1[9].value != 0; }
    void beforeGeneration() override;

    void writeVectors(assistent52::ProgramParts& out,
                      const assistent52::GenerationContext& context) override;
    void writeInitialisation(assistent52::ProgramParts& out,
                             const assistent52::GenerationContext& context) override;
    void writeRamClearing(std::string& code) override;
    void writeSerialPort(assistent52::ProgramParts& out,
                         const assistent52::GenerationContext& context) override;
    void writeDoublingLine(std::string& code) override;
    void writeSpi(std::string& code) override;
    void writeWatchdog(std::string& code) override;
    void writeEeprom(std::string& code) override;
    void writeInterruptEnables(assistent52::ProgramParts& out,
                               const assistent52::GenerationContext& context) override;
    void writeMainProgram(assistent52::ProgramParts& out,
                          const assistent52::GenerationContext& context) override;
    void writeRoutines(assistent52::ProgramParts& out,
                       const assistent52::GenerationContext& context) override;
    void writeRoutine(assistent52::ProgramParts& out, const assistent52::GenerationContext& context,
                      std::size_t source) override;
    std::string routineTail(std::size_t) const override { return {}; }

  private:
    void bind8253Operations();
    void tickSwitched();
    bool watchdogOn() const;
    bool tickOn() const { return y_.BCheckTakt.value != 0; }

    Settings8253 y_;
    TickBlocks ticks_;
};

}  // namespace korvex::wizards::assistent8253
