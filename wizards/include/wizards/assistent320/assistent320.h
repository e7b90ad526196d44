#pragma once
// The DS80C320 wizard: the base with a second serial port that only Timer 1
// can time, slave addresses for both ports, timers that may run at a third
// of the machine cycle, the watchdog behind the timed-access sequence, and
// thirteen interrupt sources.

#include <array>

#include "wizards/assistent52/assistent52.h"

namespace korvex::wizards::assistent320 {

struct Settings320 {
    Settings320();
    void registerControls(ControlRegistry& registry);

    // Tab "System 2": clocks of the timers and the MOVX stretch (CKCON).
    Label S2Label1;
    std::array<CheckBox, 3> S2Check1;  // Timers 0, 1, 2 at fosc / 4
    ComboBox S2Combo1;                 // duration of MOVX
    // Tab "Serieller Port 0": what the base lacks.
    CheckBox UCheck5;  // framing errors (SMOD0), for both ports
    // Tab "Serieller Port 1"
    CheckBox U1Check1;
    Frame U1Frame1;
    OptionGroup U1Option1;
    CheckBox U1Check2;  // SM2, in mode 0 the tripled rate
    CheckBox U1Check3;  // REN
    CheckBox U1Check4;  // SMOD_1
    ComboBox U1Combo1;  // baud rate
    Label U1Label1;
    // Tab "Multicontroller": SADDR0, SADEN0, SADDR1, SADEN1 as binary and hex.
    std::array<TextBox, 4> MCText1;
    std::array<TextBox, 4> MCText2;
    // Tab "Watchdog"
    CheckBox WCheck2;                 // start the watchdog reset
    std::array<CheckBox, 4> WCheck1;  // the period, one of four
    std::array<CheckBox, 3> WCheck3;  // refresh in the routines of Timers 0, 1, 2
    // Tab "Interrupts 2"
    CheckBox ICheck3;  // power fail
};

class Assistent320 : public assistent52::Assistent52 {
  public:
    Assistent320(WizardHost& host, WizardOptions options);

    void UOption1Click(int index) override;
    Settings320& ds() { return x_; }

  protected:
    void loadSettings() override;
    bool timer1TimesSerialPort() const override;
    void freeTimer1FromSerialPort() override;
    void timer1Released() override;
    int timerCycleDivider(int timer) const override;
    double timer1BaudFactor() const override { return x_.S2Check1[1].value != 0 ? 3 : 1; }
    bool interruptUsed(std::size_t source) const override;
    bool interruptEnabled(std::size_t source) const override;
    std::string sconName() const override { return "SCON0"; }
    std::string serialPortTitle() const override { return "; Serieller Port 0"; }
    float serialMode0Baud(float fosc) const override;
    void writeSerialMode0Extras(std::string& code) override;

    void writeInitialisation(assistent52::ProgramParts& out,
                             const assistent52::GenerationContext& context) override;
    void writeSerialPort(assistent52::ProgramParts& out,
                         const assistent52::GenerationContext& context) override;
    void writeTimer2(assistent52::ProgramParts& out,
                     const assistent52::GenerationContext& context) override;
    void writeLoopBlocks(std::string& code) override;
    void writeLoopSubroutines(std::string& code) override;
    void writeRoutine(assistent52::ProgramParts& out, const assistent52::GenerationContext& context,
                      std::size_t source) override;
    void writeRoutines(assistent52::ProgramParts& out,
                       const assistent52::GenerationContext& context) override;
    std::string routineTail(std::size_t source) const override;

  private:
    assistent52::Timer1PortControls port1();
    bool port0OnTimer1() const;
    bool port1OnTimer1() const;
    std::size_t watchdogPeriod() const;
    std::string watchdogTime(std::size_t period, float fosc) const;
    assistent52::SerialNames names(int port) const;
    void writePort1(std::string& code, float fosc, double port0Rate);
    void writeAddresses(std::string& code);
    void bind320Operations();

    Settings320 x_;
    int lastPort1Mode_ = 0;
    bool mirroring_ = false;  // an address field is being copied to its twin
};

}  // namespace korvex::wizards::assistent320
