#pragma once
// The 80C552 wizard: the 8051's serial port on Timer 1, Timer 2 as a free
// running counter with four capture and three compare registers, two PWM
// outputs, the I²C bus with the service routine shipped as c552iic.dat, the
// A/D converter, the watchdog Timer 3 and fifteen interrupt sources.

#include <array>

#include "wizards/assistent52/assistent52.h"

namespace korvex::wizards::assistent552 {

struct Settings552 {
    Settings552();
    void registerControls(ControlRegistry& registry);

    // Tab "Timer 2"
    ComboBox T2Combo2;                 // prescaler 1, 2, 4, 8
    CheckBox T2Check2;                 // interrupt at the byte overflow too
    std::array<ComboBox, 4> CTCombo1;  // capture edges at CT0I to CT3I
    std::array<TextBox, 3> CMText1;    // CMH0 to CMH2
    std::array<TextBox, 3> CMText2;    // CML0 to CML2
    TextBox STEText1;                  // outputs set by CM0
    TextBox RTEText1;                  // outputs reset by CM1
    // Tab "PWM"
    CheckBox PWMCheck1;
    CheckBox PWMCheck2;
    TextBox PWMText1;  // prescaler PWMP
    Slider PWMSlider1;
    Slider PWMSlider2;
    CommandButton PWMCommand;
    Label PWMLabel1;  // repeat frequency and period
    Label PWMLabel2;  // times of PWM0
    Label PWMLabel3;  // times of PWM1
    // Tab "I²C"
    CheckBox ICCheck1;
    Slider ICSlider1;   // the bit rate in master mode
    Label ICLabel1;     // the rate
    Label ICLabel2;     // the divider
    CheckBox ICCheck2;  // acknowledge the own address (AA)
    TextBox ICText1;    // own slave address
    CheckBox ICCheck4;  // general call
    CheckBox ICheck3;   // the service routine of c552iic.dat
    // Tab "A/D-Wandler"
    CheckBox ADCheck1;
    ComboBox ADCombo1;  // channel
    CheckBox ADCheck2;  // start by STADC
    CheckBox ADCheck3;  // start now
    // Tab "Watchdog"
    CheckBox WDCheck1;
    TextBox WDText1;  // reload of Timer 3
    Label WDLabel1;
    std::array<CheckBox, 3> WDCheck3;  // refresh in Timer 0, 1, 2 routines
};

class Assistent552 : public assistent52::Assistent52 {
  public:
    Assistent552(WizardHost& host, WizardOptions options);

    void UCheck1Click() override;
    void UOption1Click(int index) override;
    Settings552& philips() { return x_; }

  protected:
    void loadSettings() override;
    bool timer1TimesSerialPort() const override { return s_.UCombo1.enabled; }
    void writeBaudLines(std::string& code, float fosc) override;
    void writeTimer2(assistent52::ProgramParts& out,
                     const assistent52::GenerationContext& context) override;
    void writeLoopSubroutines(std::string& code) override;
    void writeRoutine(assistent52::ProgramParts& out, const assistent52::GenerationContext& context,
                      std::size_t source) override;
    void writeRoutines(assistent52::ProgramParts& out,
                       const assistent52::GenerationContext& context) override;
    std::string routineTail(std::size_t source) const override;
    void writeEnableExtras(std::string& code, std::size_t source) override;

  private:
    assistent52::Timer1PortControls port();
    void bind552Operations();
    void writePwm(std::string& code, float fosc);
    void writeI2c(std::string& code, float fosc);
    void writeAnalogDigital(std::string& code);
    void writeWatchdog(std::string& code, float fosc);
    std::string watchdogRefresh() const;
    double i2cRate(float fosc) const;

    Settings552 x_;
    int lastSerialMode_ = 0;
    std::string i2cRoutine_;  // c552iic.dat as read at opening
};

}  // namespace korvex::wizards::assistent552
