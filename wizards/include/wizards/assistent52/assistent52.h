#pragma once
// The base wizard of the family, 80C52 / 80C32: its settings record, one
// change operation per control with the interlocks between timers and the
// serial port, and the generator of the start-up program. The other chips
// are built on it as differences: they add controls and operations and
// replace the sections of the generator that they write otherwise.

#include <array>
#include <string>
#include <vector>

#include "wizards/assistent52/wizard_settings.h"
#include "wizards/core/wizard.h"

namespace korvex::wizards::assistent52 {

// The three strings the program is built in; joined as header, a line end,
// declarations, code.
struct ProgramParts {
    std::string header;
    std::string declarations;
    std::string code;
};

// What every section of one generation knows.
struct GenerationContext {
    float fosc = 0;              // Hz
    std::array<bool, 6> used{};  // interrupt source enabled or marked high
    bool anyInterrupt = false;
};

// The fields of Timer 0 or Timer 1, which share their rules.
struct TimerControls {
    int number;
    ComboBox& mode;
    OptionGroup& source;
    CheckBox& gate;
    TextBox& low;
    TextBox& high;
    Label& lowLabel;
    Label& highLabel;
    CheckBox& run;
    TextBox& result;
    CommandButton& frequency;
};

class Assistent52 : public Wizard {
  public:
    Assistent52(WizardHost& host, WizardOptions options);

    std::string windowTitle() const override { return "Assistent 80C52 / 80C32"; }
    std::vector<std::string> tabNames() const override;
    void regenerateProgram() override;

    WizardSettings& settings() { return s_; }
    const WizardSettings& settings() const { return s_; }

    // The change operations, named after control and event.
    void SText1Change();
    void SText1LostFocus();
    void SText2LostFocus();
    void SText3LostFocus();
    void SText4LostFocus();
    void SCheck1Click();
    void SCommand1Click();
    void UCheck1Click();
    void UOption1Click(int index);
    void UComboClick();
    void UComboLostFocus(ComboBox& list);
    void T0Combo1Click();
    void T1Combo1Click();
    void TimerOptionClick(const TimerControls& timer);
    void T0Check3Click();
    void T1Check2Click();
    void T1Check0Click();
    void T2Check0Click();
    void T2Combo1Click();
    void TimerCommandClick(const TimerControls& timer);
    void T2Command1Click();
    void hexFieldLostFocus(TextBox& box);

    TimerControls timer0();
    TimerControls timer1();

  protected:
    void loadSettings() override;

    // The sections of the program, in order.
    virtual void writeHeader(ProgramParts& out, const GenerationContext& context);
    virtual void writeVectors(ProgramParts& out, const GenerationContext& context);
    virtual void writeInitialisation(ProgramParts& out, const GenerationContext& context);
    virtual void writeSerialPort(ProgramParts& out, const GenerationContext& context);
    virtual void writeTimer0(ProgramParts& out, const GenerationContext& context);
    virtual void writeTimer1(ProgramParts& out, const GenerationContext& context);
    virtual void writeTimer2(ProgramParts& out, const GenerationContext& context);
    virtual void writeInterruptEnables(ProgramParts& out, const GenerationContext& context);
    virtual void writeMainProgram(ProgramParts& out, const GenerationContext& context);
    virtual void writeRoutines(ProgramParts& out, const GenerationContext& context);

    // Pieces of the sections.
    void writeTimer1BaudLines(std::string& code, float fosc, double baud);
    void writeTimer2BaudLines(std::string& code, float fosc, double baud, const std::string& t2con);
    std::string overflowText(float fosc, int timer, int mode, const std::string& reloadText) const;
    std::string str(float value) const { return singleText(value, options_.numberFormat); }
    float clockMegahertz() const;

    WizardSettings s_;

  private:
    void bindOperations();
    void writeTimer01(std::string& code, const TimerControls& timer, float fosc);
};

}  // namespace korvex::wizards::assistent52
