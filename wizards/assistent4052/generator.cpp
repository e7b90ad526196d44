// The AT89LP4052's program: the reset flags, pin modes, the 16-bit baud
// rate, the combined PCON line, SPI, the timers with their reload registers
// or as PWM, TCONB, the comparator, and the main loop of the time base.

#include <algorithm>

#include "base/cp1252.h"
#include "wizards/assistent4052/assistent4052.h"
#include "wizards/assistent52/program_lines.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards::assistent4052 {

using namespace assistent52;

namespace {
constexpr std::size_t kComparatorInterrupt = 5;
}  // namespace

void Assistent4052::writeRamClearing(std::string& code) {
    line(code, "a = PCON: if bit acc.4 then\t; bei Power On Reset");
    line(code, "\tanl PCON, #EFh\t; POR-Bit löschen");
    line8(code, "\tclr a: r0 = #" + s_.SText3.text + text8("h\t; Variablenbereich löschen"));
    line8(code, "\tloop: @r0 = a: inc r0: until r0 = #" + ramClearingEnd() + "h");
    line(code, "end if");
    line(code, "a = WDTCON: if bit acc.1 then\t; bei Watchdog Reset");
    line(code, "\tanl WDTCON, #FDh\t; WDTOVF-Bit löschen");
    line(code, "end if");
}

void Assistent4052::writeInitialisation(ProgramParts& out, const GenerationContext& context) {
    Assistent52::writeInitialisation(out, context);
    out.declarations += ticks_.declarations;
    if (!ticks_.init.empty()) line8(out.code, ticks_.init);
    writePorts(out.code);
}

void Assistent4052::writePorts(std::string& code) {
    // Pin modes as (M0, M1): quasi-bidirectional 00, push-pull 01, input 10, open drain 11.
    std::string lines;
    for (int port = 0; port < 2; ++port) {
        int m0 = 0;
        int m1 = 0;
        int level = 0;
        for (int pin = 0; pin < 8; ++pin) {
            const auto i = static_cast<std::size_t>(port * 8 + pin);
            const int mode = std::max<int>(y_.PortText[i].listIndex, 0);
            if ((mode & 2) != 0) m0 |= 1 << pin;
            if ((mode & 1) != 0) m1 |= 1 << pin;
            if (y_.PortPegel[i].value != 0) level |= 1 << pin;
        }
        const std::string p = port == 0 ? "P1" : "P3";
        if (m0 != 0 || m1 != 0) {
            line8(lines, load(p + "M0", hex2(m0) + "h") + ": " + load(p + "M1", hex2(m1) + "h"));
        }
        if (level != 0xFF) line8(lines, load(p, hex2(level) + "h"));
    }
    if (lines.empty()) return;
    line(code);
    line(code, "; Ports");
    code += lines;
}

void Assistent4052::writeBaudLines(std::string& code, float fosc) {
    const double baud = valNumber(s_.UCombo1.text);
    if (baud <= 0) return;
    const BaudSetting setting = timer1Baud16(fosc, baud, s_.UCheck4.value != 0);
    const std::string low = hex2(setting.reload % 256);
    const std::string high = hex2(setting.reload / 256);
    code += kLineEnd;
    line(code, load("TMOD", "10h") + "\t; Timer 1 im 16-Bit Autoreload-Modus");
    line8(code, load("RL1", low + "h") + ": " + load("RH1", high + "h") +
                    text8("\t; Reloadwert für Baudrate ") + str(toSingle(setting.actual)));
    line8(code, load("TL1", low + "h") + ": " + load("TH1", high + "h"));
    if (!s_.T0Check3.visible) line(code, "setb TR1\t; Timer 1 Start");
    s_.T1Text1.text = low;
    s_.T1Text2.text = high;
}

void Assistent4052::writeSerialPort(ProgramParts& out, const GenerationContext& context) {
    Assistent52::writeSerialPort(out, context);
    std::string& code = out.code;
    const bool port = s_.UCheck1.value != 0;
    int pcon = 0;
    std::string texts;
    const auto add = [&](bool on, int bit, const char* text) {
        if (!on) return;
        pcon += bit;
        texts += (texts.empty() ? "" : ", ") + text8(text);
    };
    add(port && s_.UCheck4.value != 0 && s_.UCheck4.enabled, 0x80, "Baudratenverdoppelung");
    add(port && y_.UCheck5.value != 0, 0x40, "Frame Error Erkennung");
    add(y_.SCheck4.value != 0, 0x20, "Power Down Exit durch externe Ereignisse");
    if (pcon != 0) line8(code, "orl PCON, #" + hexText(pcon) + "h\t; " + texts);
    writeSpi(code);
}

void Assistent4052::writeSpi(std::string& code) {
    Assistent89S53::writeSpi(code);
    if (x_.SPICheck1.value == 0) return;
    const bool enhanced = y_.SPICkEnhanced.value != 0;
    const bool slaveOff = y_.SPICkSOD.value != 0;
    if (!enhanced && !slaveOff) return;
    if (enhanced) line8(code, "; " + y_.SPICkEnhanced.caption);
    if (slaveOff) line8(code, "; " + y_.SPICkSOD.caption);
    line8(code, load("SPSR", hexText((enhanced ? 1 : 0) + (slaveOff ? 2 : 0)) + "h"));
}

std::string Assistent4052::pwmText(const Slider& duty, const TextBox& prescaler, float fosc) const {
    const double frequency =
        static_cast<double>(fosc) / 256.0 / (256.0 - hexFieldValue(prescaler.text));
    const double periodUs = 1e6 / frequency;
    return "f = " + str(toSingle(frequency)) +
           " Hz, High: " + str(toSingle(periodUs * duty.value / 256.0)) + text8(" µs, Low: ") +
           str(toSingle(periodUs * (256 - duty.value) / 256.0)) + text8(" µs, Tastverhältnis: ") +
           std::to_string(duty.value) + ":" + std::to_string(256 - duty.value);
}

void Assistent4052::writePwm(std::string& code, int timer) {
    const std::string n = std::to_string(timer);
    const Slider& duty = timer == 0 ? y_.PWM0Slider : y_.PWM1Slider;
    const TextBox& prescaler = timer == 0 ? y_.PWM0Text : y_.PWM1Text;
    line(code);
    line8(code, "; PWM" + n + ": " + (timer == 0 ? y_.PWM0Label : y_.PWM1Label).caption);
    line8(code,
          load("RL" + n, prescaler.text + "h") + ": " + load("TH" + n, hex2(duty.value) + "h"));
    line(code, "orl TMOD, #" + std::string(timer == 0 ? "01h" : "10h") + "\t; Timer " + n +
                   " als PWM" + n);
    line(code, "setb TR" + n + "\t; PWM" + n + " läuft.");
}

void Assistent4052::writeTimer0(ProgramParts& out, const GenerationContext& context) {
    y_.PWM0Label.caption = pwmText(y_.PWM0Slider, y_.PWM0Text, context.fosc);
    if (y_.PWM0Chkverwenden.value != 0) {
        writePwm(out.code, 0);
    } else {
        Assistent52::writeTimer0(out, context);
    }
}

void Assistent4052::writeTimer1(ProgramParts& out, const GenerationContext& context) {
    y_.PWM1Label.caption = pwmText(y_.PWM1Slider, y_.PWM1Text, context.fosc);
    if (y_.PWM1Chkverwenden.value != 0) {
        writePwm(out.code, 1);
    } else {
        Assistent52::writeTimer1(out, context);
    }
    const int tconb = (y_.PWM1Chkverwenden.value != 0 ? 0x80 : 0) +
                      (y_.PWM0Chkverwenden.value != 0 ? 0x40 : 0) + (prescalerBits(1) - 1) * 8 +
                      (prescalerBits(0) - 1);
    if (tconb != 0x24) {  // 0x24: five prescaler bits each, as after reset
        line8(out.code, load("TCONB", hexText(tconb) + "h") + "\t; Vorteiler-Bits und PWM");
    }
}

void Assistent4052::writeTimerReloadRegisters(std::string& code, const TimerControls& timer) {
    if (timer.mode.listIndex != 1) return;
    if (hexFieldValue(timer.low.text) == 0 && hexFieldValue(timer.high.text) == 0) return;
    const std::string n = std::to_string(timer.number);
    line8(code,
          load("RL" + n, timer.low.text + "h") + ": " + load("RH" + n, timer.high.text + "h"));
}

void Assistent4052::writeTimer2(ProgramParts& out, const GenerationContext&) {
    writeComparator(out.code);
}

void Assistent4052::writeComparator(std::string& code) {
    if (y_.CaktivCheck.value == 0) return;
    const int mode = y_.COption.selected;
    const int acsr = mode + 0x08 + (y_.CIdleCheck.value != 0 ? 0x20 : 0);  // CM, CEN, CIDL
    line(code);
    line8(code, text8("; Analogkomparator, Auslöser: ") +
                    y_.COption.buttons[static_cast<std::size_t>(mode)].caption +
                    (y_.CIdleCheck.value != 0 ? ", im Idle-Modus abgeschaltet" : ""));
    line8(code, load("ACSR", hexText(acsr) + "h"));
}

void Assistent4052::writeMainProgram(ProgramParts& out, const GenerationContext& context) {
    if (ticks_.polling.empty()) {
        Assistent52::writeMainProgram(out, context);
        return;
    }
    std::string& code = out.code;
    const bool serial = serialLoop(context);
    line(code);
    line(code, "; * * * Hauptprogramm Start * * *");
    line(code, "loop");
    code += ticks_.polling;
    if (serial) writeLoopBlocks(code);
    line(code, "end loop");
    line(code, "; * * * Hauptprogramm Ende * * *");
    if (serial) writeLoopSubroutines(code);
}

void Assistent4052::writeRoutines(ProgramParts& out, const GenerationContext& context) {
    if (!context.anyInterrupt) return;
    line(out.code);
    line(out.code, "; Interrupt Routinen");
    Assistent52::writeRoutines(out, context);
}

void Assistent4052::writeRoutine(ProgramParts& out, const GenerationContext& context,
                                 std::size_t source) {
    std::string& code = out.code;
    if (source == kTimer0Interrupt && tickOn()) {
        code += ticks_.routine;
    } else if (source == kSerialInterrupt) {
        writeAssignmentSerialRoutine(out);
    } else if (source == kComparatorInterrupt) {
        for (const char* text : {"Comparator Interrupt:", "\tanl ACSR, #EFh\t; CF-Bit löschen",
                                 "\t; Befehle ...", "reti"}) {
            line(code, text);
        }
    } else {
        Assistent52::writeRoutine(out, context, source);
    }
}

}  // namespace korvex::wizards::assistent4052
