// The 80C552's program: Timer 2 with capture and compare, PWM, I²C bus,
// A/D converter and watchdog behind it, the interrupt routines of fifteen
// sources and, where chosen, the I²C service routine at the very end.

#include <algorithm>

#include "base/cp1252.h"
#include "wizards/assistent52/program_lines.h"
#include "wizards/assistent552/assistent552.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards::assistent552 {

using namespace assistent52;

namespace {

constexpr std::size_t kI2cInterrupt = 5;
constexpr std::size_t kFirstCapture = 6;
constexpr std::size_t kAnalogInterrupt = 10;
constexpr std::size_t kFirstCompare = 11;
constexpr std::size_t kTimer2Overflow = 14;
constexpr std::array<int, 7> kI2cDividers = {256, 224, 192, 160, 960, 120, 60};

}  // namespace

void Assistent552::writeBaudLines(std::string& code, float fosc) {
    const double baud = valNumber(s_.UCombo1.text);
    if (baud <= 0) return;
    code += kLineEnd;
    writeTimer1BaudLines(code, fosc, baud);
}

void Assistent552::writeLoopSubroutines(std::string& code) {
    if (s_.UCheck1.value == 0) return;
    SerialNames names;
    names.buffer = "S0BUF";
    writeSerialSubroutines(code, names);
}

void Assistent552::writeTimer2(ProgramParts& out, const GenerationContext& context) {
    std::string& code = out.code;
    const float fosc = context.fosc;
    const int prescaler = 1 << std::clamp<int>(x_.T2Combo2.listIndex, 0, 3);
    const bool counter = s_.T2Combo1.listIndex == 1;
    if (s_.T2Check0.value == 0) {
        s_.T2Text1.text = text8("Timer 2 ist nicht aktiviert.");
    } else {
        std::string text;
        if (counter) {
            text = text8("Timer 2 läuft als Zähler, das Signal an T2 wird durch ") +
                   std::to_string(prescaler) + " geteilt. ";
        } else {
            const OverflowRate rate = overflowRate(fosc, 65536.0 * prescaler);
            text = text8("Timer 2 läuft als Timer, Oszillatorfrequenz wird durch ") +
                   std::to_string(12 * prescaler) + " geteilt. " +
                   text8("Die Überlauffrequenz beträgt ") + str(rate.frequency) + " Hz.";
        }
        s_.T2Text1.text = text;
        line8(code, "; " + text);
        const int tm2con = (counter ? 3 : 1) + std::clamp<int>(x_.T2Combo2.listIndex, 0, 3) * 4 +
                           (s_.T2Check1.value != 0 ? 0x20 : 0);
        line8(code, "mov TM2CON, #" + hexText(tm2con) + "h");
        int ctcon = 0;
        for (std::size_t i = 0; i < x_.CTCombo1.size(); ++i) {
            const int edges = std::max<int>(x_.CTCombo1[i].listIndex, 0);
            if (edges == 0) continue;
            ctcon |= ((edges & 1) != 0 ? 1 : 0) << (2 * i);      // CTPi
            ctcon |= ((edges & 2) != 0 ? 1 : 0) << (2 * i + 1);  // CTNi
            const char* edge = edges == 1   ? "positiver"
                               : edges == 2 ? "negativer"
                                            : "positiver und negativer";
            line8(code, text8("; Timer 2 wird in das Capture-Register geschrieben mit ") + edge +
                            " Flanke an CT" + std::to_string(i) + "I");
        }
        if (ctcon != 0) line8(code, "mov CTCON, #" + hexText(ctcon) + "h");
        for (std::size_t i = 0; i < x_.CMText1.size(); ++i) {
            if (hexFieldValue(x_.CMText1[i].text) == 0 && hexFieldValue(x_.CMText2[i].text) == 0) {
                continue;
            }
            const std::string n = std::to_string(i);
            line8(code, "mov CMH" + n + ", #" + x_.CMText1[i].text + "h: mov CML" + n + ", #" +
                            x_.CMText2[i].text + "h");
        }
        if (hexFieldValue(x_.STEText1.text) != 0)
            line8(code, "mov STE, #" + x_.STEText1.text + "h");
        if (hexFieldValue(x_.RTEText1.text) != 0)
            line8(code, "mov RTE, #" + x_.RTEText1.text + "h");
    }
    writePwm(code, fosc);
    writeI2c(code, fosc);
    writeAnalogDigital(code);
    writeWatchdog(code, fosc);
}

void Assistent552::writePwm(std::string& code, float fosc) {
    const int prescaler = hexFieldValue(x_.PWMText1.text);
    const float frequency = toSingle(static_cast<double>(fosc) / (prescaler + 1) / 510.0);
    const float periodMs = 1000.0f / frequency;
    x_.PWMLabel1.caption = text8("Wiederholfrequenz ") + str(frequency) + " Hz, Periodendauer " +
                           str(periodMs) + " ms.";
    const auto times = [&](const Slider& slider) {
        const double periodUs = 1000.0 * periodMs;
        return "Low-Zeit = " + str(toSingle(periodUs * slider.value / 255.0)) + text8(" µs, ") +
               "High-Zeit = " + str(toSingle(periodUs * (255 - slider.value) / 255.0)) +
               text8(" µs");
    };
    x_.PWMLabel2.caption = times(x_.PWMSlider1);
    x_.PWMLabel3.caption = times(x_.PWMSlider2);
    if (x_.PWMCheck1.value == 0 && x_.PWMCheck2.value == 0) return;
    line(code);
    line8(code, "; PWM: " + x_.PWMLabel1.caption);
    line8(code, "mov PWMP, #" + hex2(prescaler) + "h");
    if (x_.PWMCheck1.value != 0) {
        line8(code, "mov PWM0, #" + hex2(x_.PWMSlider1.value) + "h\t; " + x_.PWMLabel2.caption);
    }
    if (x_.PWMCheck2.value != 0) {
        line8(code, "mov PWM1, #" + hex2(x_.PWMSlider2.value) + "h\t; " + x_.PWMLabel3.caption);
    }
}

double Assistent552::i2cRate(float fosc) const {
    const int position = x_.ICSlider1.value;
    if (position < 7) {
        return static_cast<double>(fosc) / kI2cDividers[static_cast<std::size_t>(position)] / 1000;
    }
    // Timer 1's overflow, divided by 8, where Timer 1 runs on the clock.
    const int mode = s_.T1Combo1.listIndex;
    if (s_.T1Check0.value == 0 || s_.T1Check2.value == 0 || s_.T1Option1.selected != 0 ||
        mode == 3) {
        return 0;
    }
    const double divisor = mode == 0   ? 8192
                           : mode == 1 ? 65536
                                       : 256 - hexFieldValue(s_.T1Text2.text);
    return static_cast<double>(fosc) / divisor / 96000;
}

void Assistent552::writeI2c(std::string& code, float fosc) {
    const int position = x_.ICSlider1.value;
    x_.ICLabel1.caption = str(toSingle(i2cRate(fosc))) + " kHz.";
    x_.ICLabel2.caption =
        position < 7 ? "fosc / " + std::to_string(kI2cDividers[static_cast<std::size_t>(position)])
                     : text8(" Timer 1 Überlauf / 8 ");
    if (x_.ICCheck1.value == 0) return;
    const bool slave = x_.ICCheck2.value != 0;
    const int s1con = 0x40 + (slave ? 0x04 : 0) + ((position & 4) != 0 ? 0x80 : 0) + (position & 3);
    line(code);
    line(code, "; I²C-Bus");
    line8(code, text8("; ENS1 = 1, Bitrate im Master-Modus ") + x_.ICLabel1.caption);
    line8(code, "mov S1CON, #" + hexText(s1con) + "h");
    if (slave) {
        const int address = hexFieldValue(x_.ICText1.text) & 0x7F;
        line8(code, "; Slave-Adresse ist " + hexText(address) + "h");
        line8(code, "mov S1ADR, #" + hexText(address * 2 + (x_.ICCheck4.value != 0 ? 1 : 0)) + "h");
    }
}

void Assistent552::writeAnalogDigital(std::string& code) {
    if (x_.ADCheck1.value == 0) return;
    const int adcon = std::max<int>(x_.ADCombo1.listIndex, 0) +
                      (x_.ADCheck2.value != 0 ? 0x20 : 0) + (x_.ADCheck3.value != 0 ? 0x08 : 0);
    line(code);
    line8(code, "; A/D-Wandler, Eingang " + x_.ADCombo1.text);
    line8(code, "mov ADCON, #" + hexText(adcon) + "h");
}

std::string Assistent552::watchdogRefresh() const {
    return "orl PCON, #10h: mov T3, #" + x_.WDText1.text + text8("h\t; Watchdog rücksetzen");
}

void Assistent552::writeWatchdog(std::string& code, float fosc) {
    const int reload = hexFieldValue(x_.WDText1.text);
    const float frequency = toSingle(static_cast<double>(fosc) / ((256.0 - reload) * 24576.0));
    x_.WDLabel1.caption = text8("Überlauffrequenz ") + str(frequency) +
                          text8(" Hz. Zeit bis zum Überlauf ") + str(1000.0f / frequency) + " ms.";
    if (x_.WDCheck1.value == 0) return;
    line(code);
    line8(code, "; Watchdog: " + x_.WDLabel1.caption);
    line8(code, watchdogRefresh());
}

void Assistent552::writeEnableExtras(std::string& code, std::size_t source) {
    Assistent52::writeEnableExtras(code, source);
    if (source != kTimer2Overflow) return;
    // The overflow interrupt is selected in TM2CON: 16 bits, and the byte if chosen.
    const int select = 0x80 + (x_.T2Check2.value != 0 ? 0x40 : 0);
    line8(code,
          "orl TM2CON, #" + hexText(select) + text8("h\t; Timer 2 Überlauf Interrupt wählen"));
}

std::string Assistent552::routineTail(std::size_t source) const {
    if (x_.WDCheck1.value == 0) return {};
    const int box = source == kTimer0Interrupt   ? 0
                    : source == kTimer1Interrupt ? 1
                    : source == kTimer2Overflow  ? 2
                                                 : -1;
    if (box < 0 || x_.WDCheck3[static_cast<std::size_t>(box)].value == 0) return {};
    return "\t" + watchdogRefresh() + "\r\n";
}

void Assistent552::writeRoutine(ProgramParts& out, const GenerationContext& context,
                                std::size_t source) {
    std::string& code = out.code;
    const InterruptSource& s = profile_.interrupts[source];
    const auto plain = [&](const std::string& first) {
        line(code, std::string(s.routine) + ":");
        if (!first.empty()) line8(code, first);
        line(code, "\t; Befehle ...");
        code += routineTail(source);
        line(code, "reti");
    };
    if (source == kSerialInterrupt) {
        Assistent52::writeRoutine(out, context, source);
    } else if (source == kI2cInterrupt) {
        line(code, "I²C Interrupt:");
        line(code, "\tclr SI");
        line(code, "\t; Befehle..");
        line(code, "reti");
    } else if (source >= kFirstCapture && source < kAnalogInterrupt) {
        plain("\tclr CTI" + std::to_string(source - kFirstCapture));
    } else if (source == kAnalogInterrupt) {
        plain(text8("\tanl ADCON, #EFh\t; Interruptanforderung löschen\r\n\tmov a, ADCH"));
    } else if (source >= kFirstCompare && source < kTimer2Overflow) {
        plain("\tclr CMI" + std::to_string(source - kFirstCompare));
    } else if (source == kTimer2Overflow) {
        if (x_.T2Check2.value == 0) {
            plain("\tclr T2OV");
            return;
        }
        line(code, "Timer 2 Interrupt:");
        code += routineTail(source);
        for (const char* text :
             {"\tjbc T2OV, T2 16-Bit Überlauf", "\tanl TM2CON, #EFh\t; 8-Bit Überlaufbit löschen",
              "\t; Befehle ...", "reti", "T2 16-Bit Überlauf:", "\t; Befehle ...", "reti"}) {
            line(code, text);
        }
    } else {
        Assistent52::writeRoutine(out, context, source);
    }
}

void Assistent552::writeRoutines(ProgramParts& out, const GenerationContext& context) {
    const bool serviceRoutine = x_.ICheck3.value != 0 && !i2cRoutine_.empty();
    GenerationContext others = context;
    if (serviceRoutine) others.used[kI2cInterrupt] = false;
    Assistent52::writeRoutines(out, others.anyInterrupt ? others : context);
    if (!serviceRoutine || !context.used[kI2cInterrupt]) return;
    // The shipped routine ends the program, in place of the short one.
    line(out.code);
    line(out.code, "I²C Interrupt:");
    out.code += i2cRoutine_;
    if (!i2cRoutine_.ends_with("\r\n")) out.code += kLineEnd;
}

}  // namespace korvex::wizards::assistent552
