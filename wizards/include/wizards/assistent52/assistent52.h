#pragma once
// The base wizard of the family, 80C52 / 80C32: its settings record, one
// change operation per control with the interlocks between timers and the
// serial port, and the generator of the start-up program. The other chips
// are built on it as differences: they add controls and operations and
// replace the sections of the generator that they write otherwise.

#include <array>
#include <string>
#include <vector>

#include "wizards/assistent52/chip_profile.h"
#include "wizards/assistent52/wizard_settings.h"
#include "wizards/core/timer_arithmetic.h"
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
    float fosc = 0;          // Hz
    std::vector<bool> used;  // per interrupt source: enabled or marked high
    bool anyInterrupt = false;
};

// The functions of Timer 2. The base list shows the first ten in this
// order; the AT89 chips insert theirs between them, so the rules speak of
// functions and each chip maps them to its list.
enum Timer2Function : int {
    T2Timer16 = 0,
    T2TimerReload,
    T2TimerReloadTrigger,
    T2TimerCapture,
    T2Counter16,
    T2CounterReload,
    T2CounterReloadTrigger,
    T2CounterCapture,
    T2BaudOscillator,
    T2BaudExternal,
    T2UpDownTimer,
    T2UpDownCounter,
    T2ClockOutput,
    T2BaudOscillatorOutput,
};

// A serial port whose only baud-rate generator is Timer 1 (the 8051's, the
// DS80C320's second): its switch, modes, flags and the baud-rate list.
struct Timer1PortControls {
    CheckBox& use;
    Frame& frame;
    OptionGroup& mode;
    CheckBox& sm2;
    CheckBox& receive;
    CheckBox& doubling;
    ComboBox& baud;
    int& lastMode;  // where a No to the question about Timer 1 goes back
};

// The names a serial port's routine, loop block and subroutines use; the
// base's port has no suffix, the chips with two ports say " 0" and " 1".
struct SerialNames {
    std::string ti = "TI";
    std::string ri = "RI";
    std::string buffer = "SBUF";
    std::string suffix;
    std::string frameError;  // the bit to test for a framing error, if any
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

    std::string windowTitle() const override { return profile_.windowTitle; }
    std::vector<std::string> tabNames() const override { return profile_.tabs; }
    void regenerateProgram() override;

    WizardSettings& settings() { return s_; }
    const WizardSettings& settings() const { return s_; }

    // The change operations, named after control and event.
    virtual void SText1Change();
    void SText1LostFocus();
    void SText2LostFocus();
    void SText3LostFocus();
    void SText4LostFocus();
    void SCheck1Click();
    void SCommand1Click();
    virtual void UCheck1Click();
    virtual void UOption1Click(int index);
    void UComboClick();
    void UComboLostFocus(ComboBox& list);
    void T0Combo1Click();
    void T1Combo1Click();
    void TimerOptionClick(const TimerControls& timer);
    void T0Check3Click();
    void T1Check2Click();
    void T1Check0Click();
    void T2Check0Click();
    virtual void T2Combo1Click();
    void TimerCommandClick(const TimerControls& timer);
    void T2Command1Click();
    void hexFieldLostFocus(TextBox& box);

    TimerControls timer0();
    TimerControls timer1();

    // The rules of a port that only Timer 1 can time: switching it on with
    // Timer 1 busy leaves modes 0 and 2; a mode that needs Timer 1 asks for it.
    void timer1PortUseClick(const Timer1PortControls& port);
    void timer1PortModeClick(const Timer1PortControls& port, int index);

  protected:
    // A chip built on the base: its record is the base's with the chip's
    // interrupt sources, and its profile says what it writes differently.
    Assistent52(WizardHost& host, WizardOptions options, const ChipProfile& profile);

    void loadSettings() override;

    // The driver named in the "#cpu" line.
    virtual std::string cpuName() const { return profile_.cpu; }
    // The clock in MHz that all arithmetic works with; a chip that doubles
    // its clock doubles it here.
    virtual float effectiveMegahertz() const { return clockMegahertz(); }
    // Timer 1 times the serial port: taking it for other work needs a question.
    virtual bool timer1TimesSerialPort() const;
    // The answer Yes to taking Timer 1 from the serial port.
    virtual void freeTimer1FromSerialPort();
    // Timer 1 was given back from other work.
    virtual void timer1Released() {}
    // Machine cycle of a timer (0 to 2) in oscillator periods.
    virtual int timerCycleDivider(int) const { return kClassicCycleDivider; }
    // Timer 1 is kept from the serial port: by the user, or by a unit of the chip.
    virtual bool timer1Busy() const { return s_.T1Check0.value != 0; }
    // The timers' texts and divisors where a chip's timers differ from the
    // 8051's: the width of mode 0, the comment of mode 1, the counter's word.
    virtual std::string mode0Width(int) const { return "13"; }
    virtual std::string mode1Comment(int timer) const;
    virtual std::string counterWord(int) const { return "Zähler"; }  // UTF-8
    virtual double timerDivisor(int timer, int mode, const std::string& reloadText) const;
    // Lines behind a timer's TL and TH loads (the AT89LP's reload registers).
    virtual void writeTimerReloadRegisters(std::string&, const TimerControls&) {}
    // Serial mode 2 runs at 2^SMOD × fosc divided by this.
    virtual double serialMode2Divider() const { return 64; }
    // What Timer 1's baud rate is multiplied by beyond SMOD (a fast timer clock).
    virtual double timer1BaudFactor() const { return 1; }
    virtual bool timer2InterruptEnabled() const;
    // Whether source i counts as used: enabled or marked for high priority.
    virtual bool interruptUsed(std::size_t source) const;
    // The function of Timer 2 that a list index stands for, and back.
    virtual int timer2Function(int listIndex) const { return listIndex; }
    virtual int timer2ListIndex(int function) const { return function; }
    int selectedTimer2Function() const { return timer2Function(s_.T2Combo1.listIndex); }

    // Register loads in the chip's style.
    std::string load(std::string_view target, std::string_view value) const {
        return registerLoad(profile_.style, target, value);
    }
    std::string operation(std::string_view mnemonic, std::string_view target,
                          std::string_view value) const {
        return registerOperation(profile_.style, mnemonic, target, value);
    }
    // The Timer 2 loads have a blank behind "#" even in the base.
    LiteralStyle timer2Style() const {
        return profile_.style == LiteralStyle::Compact ? LiteralStyle::Blank : profile_.style;
    }
    std::string timer2Load(std::string_view target, std::string_view value) const {
        return registerLoad(timer2Style(), target, value);
    }
    std::string timer2OrLine(std::string_view target, std::string_view value) const {
        return registerOperation(timer2Style(), "orl", target, value);
    }
    // Timer 0's or Timer 1's gate in mode 0, without the mode's comment.
    std::string mode0GateLine(int timer) const;

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
    // The first step of a generation, before anything is read from the record.
    virtual void beforeGeneration() {}
    // The comment of the stack pointer's line.
    virtual std::string stackComment() const { return "Stackbeginn"; }
    // The clearing of internal RAM, and the value its loop ends at.
    virtual void writeRamClearing(std::string& code);
    std::string ramClearingEnd() const;
    // SMOD's line at the end of the serial section.
    virtual void writeDoublingLine(std::string& code);
    // The last step of a generation, once all sections are written.
    virtual void finishProgram(ProgramParts&, const GenerationContext&) {}
    // One source's routine, behind its empty line.
    virtual void writeRoutine(ProgramParts& out, const GenerationContext& context,
                              std::size_t source);
    // Lines that a routine gets ahead of its "reti" (a watchdog refresh).
    virtual std::string routineTail(std::size_t source) const;
    // The Timer 2 section's description of a function the base lacks; false
    // for the base's own. `t2con` and `t2mod` are the control values.
    virtual bool describeTimer2(int function, float fosc, std::int64_t reload, int& t2con,
                                int& t2mod, std::string& description);
    void writeSerialRoutine(std::string& code, ProgramParts& out);
    void writeTimer2Routine(std::string& code, std::size_t source);
    // The text of T2EX as an extra interrupt, behind the baud-rate texts.
    std::string timer2Hint() const;

    // The serial interrupt's main loop: the blocks inside it, and the
    // subroutines behind its end. No blocks leave the loop open.
    virtual void writeLoopBlocks(std::string& code);
    virtual void writeLoopSubroutines(std::string& code);
    void writeSerialLoopBlock(std::string& code, const SerialNames& names);
    void writeSerialSubroutines(std::string& code, const SerialNames& names);
    void writeSerialRoutineLines(std::string& code, std::string& declarations,
                                 const SerialNames& names);
    // Whether a used source has a serial routine: then the main program is a loop.
    bool serialLoop(const GenerationContext& context) const;
    // The serial port's register and section title, and its rate in mode 0.
    virtual std::string sconName() const { return "SCON"; }
    virtual std::string serialPortTitle() const { return "; Serieller Port"; }
    virtual float serialMode0Baud(float fosc) const { return fosc / 12.0f; }
    // Lines of mode 0 behind its comment.
    virtual void writeSerialMode0Extras(std::string&) {}
    // Lines behind a source's enable line.
    virtual void writeEnableExtras(std::string&, std::size_t) {}
    // Whether source i is enabled or has the high priority.
    virtual bool interruptEnabled(std::size_t source) const;
    virtual bool interruptHighPriority(std::size_t source) const;
    // The baud-rate lines of modes 1 and 3, behind the open SCON line.
    virtual void writeBaudLines(std::string& code, float fosc);

    // Pieces of the sections.
    void writeTimer1BaudLines(std::string& code, float fosc, double baud);
    // The same for a port with its own doubling bit; returns the actual rate.
    double writeTimer1BaudLines(std::string& code, float fosc, double baud, bool doubled,
                                TextBox* reloadField);
    void writeTimer2BaudLines(std::string& code, float fosc, double baud, const std::string& t2con);
    std::string overflowText(float fosc, int timer, int mode, const std::string& reloadText) const;
    std::string str(float value) const { return singleText(value, options_.numberFormat); }
    float clockMegahertz() const;

    ChipProfile profile_;
    WizardSettings s_;

  private:
    void bindOperations();
    void writeTimer01(std::string& code, const TimerControls& timer, float fosc);
};

}  // namespace korvex::wizards::assistent52
