#pragma once
// The AT89S53 / AT89S8252 wizard: the base with a watchdog, the SPI, the
// EEPROM of the AT89S8252 and Timer 2's up/down count and clock output.
// Register loads have a blank behind the number sign. The AT89S8253 wizard
// is built on this one.

#include <array>

#include "wizards/assistent52/assistent52.h"

namespace korvex::wizards::assistent89s53 {

// The controls this chip adds to the base record.
struct AtmelSettings {
    AtmelSettings();
    void registerControls(ControlRegistry& registry);

    // Tab "System"
    OptionGroup SOption1;             // 0 AT89S53, 1 AT89S8252
    Label SLabel7;                    // over the EEPROM boxes
    std::array<CheckBox, 2> SCheck3;  // EEPROM for reading, and writing
    // Tab "Watchdog"
    CheckBox WCheck2;                 // use the watchdog
    std::array<CheckBox, 8> WCheck1;  // the period, one of eight
    std::array<CheckBox, 3> WCheck3;  // refresh in the routines of Timers 0, 1, 2
    TextBox WText1;                   // what the watchdog does
    // Tab "SPI"
    CheckBox SPICheck1;      // use the SPI
    CheckBox SPICheck2;      // its interrupt
    OptionGroup SPIOption1;  // bit order
    OptionGroup SPIOption2;  // slave or master
    ComboBox SPIList1;       // the master's rate
    OptionGroup SPIOption3;  // clock polarity and phase
};

class Assistent89S53 : public assistent52::Assistent52 {
  public:
    Assistent89S53(WizardHost& host, WizardOptions options);

    AtmelSettings& atmel() { return x_; }

  protected:
    Assistent89S53(WizardHost& host, WizardOptions options,
                   const assistent52::ChipProfile& profile);

    std::string cpuName() const override;
    int timer2Function(int listIndex) const override;
    int timer2ListIndex(int function) const override;
    bool interruptUsed(std::size_t source) const override;
    bool describeTimer2(int function, float fosc, std::int64_t reload, int& t2con, int& t2mod,
                        std::string& description) override;

    void writeSerialPort(assistent52::ProgramParts& out,
                         const assistent52::GenerationContext& context) override;
    void writeTimer2(assistent52::ProgramParts& out,
                     const assistent52::GenerationContext& context) override;
    void writeLoopBlocks(std::string& code) override;
    void writeLoopSubroutines(std::string& code) override;
    void writeRoutine(assistent52::ProgramParts& out, const assistent52::GenerationContext& context,
                      std::size_t source) override;
    std::string routineTail(std::size_t source) const override;

    // Sections of their own: behind the serial port, and behind Timer 2.
    virtual void writeSpi(std::string& code);
    virtual void writeWatchdog(std::string& code);
    virtual void writeEeprom(std::string& code);
    virtual void writeSpiPartOfSerialRoutine(std::string& code);
    // The serial routine of the AT89 wizards in the assignment form.
    void writeAssignmentSerialRoutine(assistent52::ProgramParts& out);
    bool spiInterrupt() const { return x_.SPICheck1.value != 0 && x_.SPICheck2.value != 0; }
    std::string watchdogRegister() const { return x_.SOption1.selected == 0 ? "WCON" : "WMCON"; }
    int watchdogPeriod() const;

    AtmelSettings x_;

  private:
    void bindAtmelOperations();
};

}  // namespace korvex::wizards::assistent89s53
