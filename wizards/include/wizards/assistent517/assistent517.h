#pragma once
// The C517 wizard: all of the C515's, with a second serial port, 10-bit
// baud-rate generators for both, the CC4 and the eight compare registers CM
// with the compare timer, the 12-channel A/D converter, the oscillator
// watchdog's reset source, seventeen interrupt sources, and the routines of
// the multiplication and division unit.

#include <array>

#include "wizards/assistent515/assistent515.h"

namespace korvex::wizards::assistent517 {

struct Settings517 {
    Settings517();
    void registerControls(ControlRegistry& registry);

    // Tab "System"
    CheckBox SCheck4;  // oscillator watchdog reset
    // Tab "Serieller Port 1"
    CheckBox U1Check1;
    Frame U1Frame1;
    OptionGroup U1Option1;  // mode 1 or 3
    CheckBox U1Check2;      // SM21
    CheckBox U1Check3;      // REN1
    ComboBox U1Combo1;      // baud rate
    Label U1Label2;         // its actual rate
    // Tab "CC4"
    ComboBox CC4Combo1;  // capture or compare
    ComboBox CC4Combo2;  // concurrent compare on Port 5
    Slider CC4Slider;    // how many Port 5 pins
    TextBox CC4Text1;    // CCL4
    TextBox CC4Text2;    // CCH4
    // Tab "CM"
    std::array<CheckBox, 8> CMCheck1;
    std::array<OptionGroup, 8> CMOption1;
    std::array<TextBox, 16> CMText1;  // low and high of CM0 to CM7
    CheckBox CTCheck1;                // the compare timer
    ComboBox CTCombo1;                // its clock
    TextBox CTText1;                  // CTRELL
    TextBox CTText2;                  // CTRELH
    // Tab "MDU"
    CheckBox MDU1;
    CheckBox MDU2;
    CheckBox MDU3;
    CheckBox MDU4;
    CheckBox MDU5;
    TextBox MDUText1;
    CheckBox MDU6;
    TextBox MDUText2;
};

class Assistent517 : public assistent515::Assistent515 {
  public:
    Assistent517(WizardHost& host, WizardOptions options);

    void UOption1Click(int index) override;
    Settings517& c517() { return z_; }

  protected:
    std::string sconName() const override { return "S0CON"; }
    std::string serialPortTitle() const override { return "; Serieller Port 0"; }
    bool interruptUsed(std::size_t source) const override;
    assistent515::EnableBit enableBit(std::size_t source) const override;
    int refreshBox(std::size_t source) const override;
    std::string analogResult() const override { return "ADDATH"; }
    std::string generatorBaudText(float fosc) const override;

    void writeResetSource(std::string& code) override;
    void writeSerialPort(assistent52::ProgramParts& out,
                         const assistent52::GenerationContext& context) override;
    void writeBaudLines(std::string& code, float fosc) override;
    void writeTimer2(assistent52::ProgramParts& out,
                     const assistent52::GenerationContext& context) override;
    void writeAnalogDigital(std::string& code) override;
    void writeCompareUnits(std::string& code) override;
    void writeLoopBlocks(std::string& code) override;
    void writeLoopSubroutines(std::string& code) override;
    void writeSerialPortRoutine(assistent52::ProgramParts& out, std::size_t source) override;
    void writeRoutine(assistent52::ProgramParts& out, const assistent52::GenerationContext& context,
                      std::size_t source) override;
    void writeRoutines(assistent52::ProgramParts& out,
                       const assistent52::GenerationContext& context) override;

  private:
    void bind517Operations();
    void writePort1(std::string& code, float fosc);
    void writeArithmeticRoutines(std::string& code);
    assistent52::SerialNames names(int port) const;

    Settings517 z_;
};

}  // namespace korvex::wizards::assistent517
