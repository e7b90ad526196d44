#pragma once
// The AT89LP4052 wizard: a single-cycle chip without Timer 2. Its timers
// have reload registers and a mode 0 of 9 to 16 bits, Timer 1 times the
// serial port as a 16-bit generator, and it adds the analog comparator, two
// PWM outputs on the timers, the port pin modes, the SPI of the AT89S53 and
// the time base of the "Betriebssystem" tab. Written in the assignment form.

#include <array>

#include "wizards/assistent89s53/assistent89s53.h"
#include "wizards/core/tick_generator.h"

namespace korvex::wizards::assistent4052 {

inline constexpr std::size_t kPortPins = 16;  // P1.0 to P1.7, P3.0 to P3.7

struct Settings4052 {
    Settings4052();
    void registerControls(ControlRegistry& registry);

    // Tab "System"
    CheckBox SCheck4;  // power down exit by external events
    // Tab "Serieller Port"
    CheckBox UCheck5;  // frame errors
    Label ULabel5;
    // Tabs "Timer 0" and "Timer 1": prescaler bits of mode 0, and a message.
    ComboBox T0Combo2;
    ComboBox T1Combo2;
    std::array<Label, 2> T0Label;  // "Vorteiler-Bits", and who uses Timer 0
    std::array<Label, 2> T1Label;
    // Tab "Analogkomparator"
    CheckBox CaktivCheck;
    CheckBox CIdleCheck;
    CommandButton CCmdPin;
    OptionGroup COption;
    Label CLabel;
    // Tab "PWM"
    CheckBox PWM0Chkverwenden;
    CheckBox PWM1Chkverwenden;
    TextBox PWM0Text;  // prescaler reload
    TextBox PWM1Text;
    Slider PWM0Slider;  // duty
    Slider PWM1Slider;
    Label PWM0Label;
    Label PWM1Label;
    Label PWM0Meldung;
    Label PWM1Meldung;
    // Tab "Ports"
    std::array<ComboBox, kPortPins> PortText;   // pin mode
    std::array<CheckBox, kPortPins> PortPegel;  // level after the initialisation
    // Tab "Betriebssystem"
    Label BLabel1;
    CheckBox BCheckTakt;
    std::array<CheckBox, kTickItems> BList;
    Label BMeldung;
    // Tab "SPI"
    CheckBox SPICkEnhanced;
    CheckBox SPICkSOD;
};

class Assistent4052 : public assistent89s53::Assistent89S53 {
  public:
    Assistent4052(WizardHost& host, WizardOptions options);

    void UCheck1Click() override;
    void UOption1Click(int index) override;
    Settings4052& lp() { return y_; }

  protected:
    void loadSettings() override;
    std::string cpuName() const override { return profile_.cpu; }
    bool timer1TimesSerialPort() const override { return s_.UCombo1.enabled; }
    bool timer1Busy() const override;
    int timerCycleDivider(int) const override { return 1; }
    float serialMode0Baud(float fosc) const override { return fosc / 2.0f; }
    double serialMode2Divider() const override { return 32; }
    std::string mode0Width(int timer) const override;
    std::string mode1Comment(int timer) const override;
    std::string counterWord(int timer) const override;
    std::string stackComment() const override { return "Stackbeginn ab " + s_.SText2.text + "h"; }
    double timerDivisor(int timer, int mode, const std::string& reloadText) const override;
    void writeTimerReloadRegisters(std::string& code,
                                   const assistent52::TimerControls& timer) override;
    void beforeGeneration() override;

    void writeInitialisation(assistent52::ProgramParts& out,
                             const assistent52::GenerationContext& context) override;
    void writeRamClearing(std::string& code) override;
    void writeSerialPort(assistent52::ProgramParts& out,
                         const assistent52::GenerationContext& context) override;
    void writeBaudLines(std::string& code, float fosc) override;
    void writeDoublingLine(std::string&) override {}
    void writeSpi(std::string& code) override;
    void writeTimer0(assistent52::ProgramParts& out,
                     const assistent52::GenerationContext& context) override;
    void writeTimer1(assistent52::ProgramParts& out,
                     const assistent52::GenerationContext& context) override;
    void writeTimer2(assistent52::ProgramParts& out,
                     const assistent52::GenerationContext& context) override;
    void writeMainProgram(assistent52::ProgramParts& out,
                          const assistent52::GenerationContext& context) override;
    void writeRoutines(assistent52::ProgramParts& out,
                       const assistent52::GenerationContext& context) override;
    void writeRoutine(assistent52::ProgramParts& out, const assistent52::GenerationContext& context,
                      std::size_t source) override;
    std::string routineTail(std::size_t) const override { return {}; }

  private:
    assistent52::Timer1PortControls port();
    void bind4052Operations();
    void tickSwitched();
    void pwm0Switched();
    void pwm1Switched();
    void timer0Taken(bool taken, const char* message);
    int prescalerBits(int timer) const;
    std::string pwmText(const Slider& duty, const TextBox& prescaler, float fosc) const;
    void writePwm(std::string& code, int timer);
    void writePorts(std::string& code);
    void writeComparator(std::string& code);
    bool tickOn() const { return y_.BCheckTakt.value != 0; }

    Settings4052 y_;
    TickBlocks ticks_;
    int lastSerialMode_ = 0;
};

}  // namespace korvex::wizards::assistent4052
