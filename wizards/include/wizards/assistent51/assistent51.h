#pragma once
// The 8051 / 80C31 wizard: the base less everything of Timer 2. Timer 1 is
// the only baud-rate generator, so the serial tab has one list, the baud
// rate, and the rules ask before Timer 1 changes hands. Register loads have
// a blank behind the number sign, and the bank line begins "or PSW, # ".

#include "wizards/assistent52/assistent52.h"

namespace korvex::wizards::assistent51 {

class Assistent51 : public assistent52::Assistent52 {
  public:
    Assistent51(WizardHost& host, WizardOptions options);

    void UCheck1Click() override;
    void UOption1Click(int index) override;

  protected:
    void loadSettings() override;
    bool timer1TimesSerialPort() const override { return s_.UCombo1.enabled; }
    void writeBaudLines(std::string& code, float fosc) override;
    void writeTimer2(assistent52::ProgramParts&, const assistent52::GenerationContext&) override {}

  private:
    assistent52::Timer1PortControls port();
    int lastSerialMode_ = 0;  // where a No to the question about Timer 1 goes back
};

}  // namespace korvex::wizards::assistent51
