#pragma once
// The C515 wizard: the 8051 base with the chip's own baud-rate generator,
// a Timer 2 with reload, compare and capture registers, the A/D converter,
// the watchdog with its period search and reset-source test, and twelve
// interrupt sources in six priority groups of four levels. The C517 wizard
// is built on this one.

#include <array>

#include "wizards/assistent52/assistent52.h"
#include "wizards/core/watchdog.h"

namespace korvex::wizards::assistent515 {

// A source's enable bit: register (0 IEN0, 1 IEN1, 2 IEN2), mask, and the
// priority group whose level it shares.
struct EnableBit {
    int reg;
    int mask;
    int group;
};

struct Settings515 {
    Settings515();
    void registerControls(ControlRegistry& registry);

    // Tab "System"
    CheckBox SCheck0;  // CLKOUT
    Label SLabel7;     // "Resetherkunft prüfen"
    CheckBox SCheck3;  // watchdog reset
    // Tab "Serieller Port"
    OptionGroup UOption3;  // Timer 1 or the baud-rate generator
    Label ULabel2;         // the generator's rate
    // Tab "Timer 2"
    ComboBox T2Combo2;                 // prescaler
    CheckBox T2Check2;                 // I3FR
    CheckBox T2Check3;                 // T2CM
    std::array<ComboBox, 4> CCCombo1;  // CRC and CC1 to CC3: off, capture, compare
    std::array<TextBox, 3> CCText1;    // CCL1 to CCL3
    std::array<TextBox, 3> CCText2;    // CCH1 to CCH3
    // Tab "A/D-Wandler"
    CheckBox ADCheck1;
    OptionGroup ADOption1;  // single or continuous conversion
    ComboBox ADCombo1;      // the analog input
    ComboBox ADCombo2;      // the upper reference
    ComboBox ADCombo3;      // the lower reference
    // Tab "Watchdog"
    CheckBox WDCheck1;                 // use it
    CheckBox WDCheck2;                 // start it
    std::array<CheckBox, 4> WDCheck3;  // refresh in Timer 0, 1, 2, compare timer routines
    CommandButton WDCommand1;
    Label WDLabel;
    // Tab "Interrupts": priority level of each group of two sources.
    std::array<ComboBox, 6> IPCombo1;
};

class Assistent515 : public assistent52::Assistent52 {
  public:
    Assistent515(WizardHost& host, WizardOptions options);

    void UCheck1Click() override;
    void UOption1Click(int index) override;
    Settings515& siemens() { return x_; }
    const SiemensWatchdog& watchdog() const { return watchdog_; }

  protected:
    Assistent515(WizardHost& host, WizardOptions options, const assistent52::ChipProfile& profile);

    void loadSettings() override;
    bool timer1TimesSerialPort() const override;
    void freeTimer1FromSerialPort() override;
    bool interruptUsed(std::size_t source) const override;
    bool timer2InterruptEnabled() const override;

    void writeHeader(assistent52::ProgramParts& out,
                     const assistent52::GenerationContext& context) override;
    void writeInitialisation(assistent52::ProgramParts& out,
                             const assistent52::GenerationContext& context) override;
    void writeSerialPort(assistent52::ProgramParts& out,
                         const assistent52::GenerationContext& context) override;
    void writeBaudLines(std::string& code, float fosc) override;
    void writeTimer2(assistent52::ProgramParts& out,
                     const assistent52::GenerationContext& context) override;
    void writeInterruptEnables(assistent52::ProgramParts& out,
                               const assistent52::GenerationContext& context) override;
    void writeRoutine(assistent52::ProgramParts& out, const assistent52::GenerationContext& context,
                      std::size_t source) override;
    void writeRoutines(assistent52::ProgramParts& out,
                       const assistent52::GenerationContext& context) override;
    std::string routineTail(std::size_t source) const override;
    void finishProgram(assistent52::ProgramParts& out,
                       const assistent52::GenerationContext& context) override;

    // Pieces the C517 words otherwise or extends.
    virtual void writeResetSource(std::string& code);
    virtual void writeAnalogDigital(std::string& code);
    // Compare units beyond Timer 2's own (the C517's CC4 and CM registers).
    virtual void writeCompareUnits(std::string&) {}
    virtual void writeWatchdog(std::string& code, float fosc);
    // IEN0, IEN1 and the priorities; the C517 adds IEN2.
    virtual void writeInterruptRegisters(std::string& code);
    // The routine of the serial port 0 (the only one of the C515).
    virtual void writeSerialPortRoutine(assistent52::ProgramParts& out, std::size_t source);
    // The A/D result register the routine reads.
    virtual std::string analogResult() const { return "ADDAT"; }
    virtual EnableBit enableBit(std::size_t source) const;
    // The source that a WDCheck3 box refreshes in, per routine.
    virtual int refreshBox(std::size_t source) const;
    // The port's baud rate from the chip's generator.
    virtual std::string generatorBaudText(float fosc) const;

    // Declarations collected while writing, emitted as "#Byte " and "#Bit " lines.
    std::string byteList_;
    std::string bitList_;

    Settings515 x_;
    SiemensWatchdog watchdog_;

  private:
    void bind515Operations();
    void askForTimer1();
    int timer2Control() const;
    std::string timer2Description(float fosc) const;
    float timer2CycleDivider() const;
};

}  // namespace korvex::wizards::assistent515
