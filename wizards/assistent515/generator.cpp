// The C515's program: clock output and reset source behind the system
// lines, the serial port on Timer 1 or the chip's generator, Timer 2 with
// its compare and capture registers, A/D converter and watchdog, the
// interrupt registers with their priority groups, and the declarations
// collected on the way.

#include <algorithm>

#include "base/cp1252.h"
#include "wizards/assistent515/assistent515.h"
#include "wizards/assistent52/program_lines.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards::assistent515 {

using namespace assistent52;

namespace {

constexpr int kAnalogInterrupt = 6;

constexpr std::array<EnableBit, 12> kEnableBits = {{{0, 0x01, 0},
                                                    {0, 0x02, 1},
                                                    {0, 0x04, 2},
                                                    {0, 0x08, 3},
                                                    {0, 0x10, 4},
                                                    {0, 0x20, 5},
                                                    {1, 0x01, 0},
                                                    {1, 0x02, 1},
                                                    {1, 0x04, 2},
                                                    {1, 0x08, 3},
                                                    {1, 0x10, 4},
                                                    {1, 0x20, 5}}};

}  // namespace

void Assistent515::writeHeader(ProgramParts& out, const GenerationContext& context) {
    byteList_.clear();
    bitList_.clear();
    Assistent52::writeHeader(out, context);
}

void Assistent515::writeInitialisation(ProgramParts& out, const GenerationContext& context) {
    Assistent52::writeInitialisation(out, context);
    writeResetSource(out.code);
    if (x_.SCheck0.value != 0) line(out.code, "setb CLK\t; Systemtakt ausgeben");
}

void Assistent515::writeResetSource(std::string& code) {
    if (x_.SCheck3.value == 0) return;
    for (const char* text : {"clr Watchdog Reset", "mov a, IP0", "if bit acc.6 then",
                             "\tmov IP0, #0", "\tsetb Watchdog Reset", "end if"}) {
        line(code, text);
    }
    bitList_ += "Watchdog Reset, ";
}

std::string Assistent515::generatorBaudText(float fosc) const {
    const std::int64_t baud =
        static_cast<std::int64_t>((s_.UCheck4.value != 0 ? 2.0 : 1.0) * fosc) / 2496;
    return "Baudrate = " + std::to_string(baud) + " Baud";
}

void Assistent515::writeSerialPort(ProgramParts& out, const GenerationContext& context) {
    x_.ULabel2.caption = x_.UOption3.selected == 1 ? generatorBaudText(context.fosc) : "Baudrate";
    Assistent52::writeSerialPort(out, context);
}

void Assistent515::writeBaudLines(std::string& code, float fosc) {
    if (x_.UOption3.selected == 1) {
        code += kLineEnd;
        line8(code, "setb BD\t; verwendet den Baudratengenerator, " + x_.ULabel2.caption);
        return;
    }
    const double baud = valNumber(s_.UCombo1.text);
    if (baud <= 0) return;
    code += kLineEnd;
    writeTimer1BaudLines(code, fosc, baud);
}

int Assistent515::timer2Control() const {
    const int function = std::max<int>(s_.T2Combo1.listIndex, 0);
    static constexpr int kInputs[] = {1, 3, 2};  // T2I: timer, gated timer, counter
    int t2con = kInputs[function / 3];
    if (function % 3 == 1) t2con |= 0x10;           // reload at overflow
    if (function % 3 == 2) t2con |= 0x18;           // reload at the T2EX edge
    if (x_.T2Combo2.listIndex == 1) t2con |= 0x80;  // T2PS
    return t2con;
}

std::string Assistent515::timer2Description(float fosc) const {
    const int function = std::max<int>(s_.T2Combo1.listIndex, 0);
    const std::int64_t reload = std::int64_t{hexFieldValue(s_.T2Text4.text)} +
                                256 * std::int64_t{hexFieldValue(s_.T2Text5.text)};
    std::string reloadText;
    if (function % 3 == 1)
        reloadText = text8(" Bei Überlauf wird er aus CRCL und CRCH nachgeladen.");
    if (function % 3 == 2) {
        reloadText = text8(" Eine negative Flanke an T2EX lädt ihn aus CRCL und CRCH nach.");
    }
    if (function >= 6) {
        return text8(
                   "Zähler 2 ist ein 16-Bit Ereigniszähler. Das Taktsignal stammt vom Eingang "
                   "T2.") +
               reloadText;
    }
    const OverflowRate rate =
        overflowRate(fosc, function % 3 == 1 ? static_cast<double>(65536 - reload) : 65536.0,
                     static_cast<int>(timer2CycleDivider()));
    const std::string head =
        function < 3 ? text8("Timer 2 läuft als 16-Bit-Timer. Die Überlauffrequenz beträgt ")
                     : text8(
                           "Timer 2 läuft mit T2 = 1 als 16-Bit-Timer, mit T2 = 0 steht der "
                           "Timer. Die Überlauffrequenz beträgt ");
    return head + str(rate.frequency) + " Hz, die Periodendauer " + str(rate.periodMs) + " ms." +
           reloadText +
           " Frequenzteiler = " + std::to_string(static_cast<int>(timer2CycleDivider()));
}

void Assistent515::writeTimer2(ProgramParts& out, const GenerationContext& context) {
    std::string& code = out.code;
    if (s_.T2Check0.value == 0) {
        s_.T2Text1.text = text8("Timer 2 ist nicht aktiviert.");
    } else {
        s_.T2Text1.text = timer2Description(context.fosc);
        line(code, "; Timer 2:");
        line8(code, "; " + s_.T2Text1.text);
        line8(code, timer2Load("T2CON", hexText(timer2Control()) + "h"));
        if (x_.T2Check3.value != 0) line(code, "setb T2CM\t; Compare-Modus 1");
        if (x_.T2Check2.value != 0) {
            line(code, "setb I3FR\t; wählt positive Flanke am CC0-Eingang (P1.0)");
        }
        if (hexFieldValue(s_.T2Text4.text) != 0) line8(code, "mov CRCL, #" + s_.T2Text4.text + "h");
        if (hexFieldValue(s_.T2Text5.text) != 0) line8(code, "mov CRCH, #" + s_.T2Text5.text + "h");
        if (hexFieldValue(s_.T2Text2.text) != 0) {
            line8(code, timer2Load("TL2", s_.T2Text2.text + "h"));
        }
        if (hexFieldValue(s_.T2Text3.text) != 0) {
            line8(code, timer2Load("TH2", s_.T2Text3.text + "h"));
        }
        int ccen = 0;
        for (std::size_t i = 0; i < x_.CCCombo1.size(); ++i) {
            ccen |= std::max<int>(x_.CCCombo1[i].listIndex, 0) << (2 * i);
        }
        if (ccen != 0) line8(code, "mov CCEN, #" + hexText(ccen) + "h");
        for (std::size_t i = 0; i < x_.CCText1.size(); ++i) {
            const std::string n = std::to_string(i + 1);
            if (hexFieldValue(x_.CCText1[i].text) != 0) {
                line8(code, "mov CCL" + n + ", #" + x_.CCText1[i].text + "h");
            }
            if (hexFieldValue(x_.CCText2[i].text) != 0) {
                line8(code, "mov CCH" + n + ", #" + x_.CCText2[i].text + "h");
            }
        }
    }
    writeCompareUnits(code);
    writeAnalogDigital(code);
    writeWatchdog(code, context.fosc);
}

void Assistent515::writeAnalogDigital(std::string& code) {
    if (x_.ADCheck1.value == 0) return;
    const int channel = std::max<int>(x_.ADCombo1.listIndex, 0);
    const int continuous = x_.ADOption1.selected == 1 ? 8 : 0;  // ADM
    line(code);
    line8(code, text8("; A/D-Wandler: ") +
                    x_.ADOption1.buttons[static_cast<std::size_t>(x_.ADOption1.selected)].caption +
                    ", ");
    line8(code, "; Analogeingang ist " + x_.ADCombo1.text);
    if (channel + continuous != 0)
        line8(code, "orl ADCON, #" + hexText(channel + continuous) + "h");
    // Writing DAPR sets the references and starts the conversion.
    const int dapr =
        std::max<int>(x_.ADCombo2.listIndex, 0) * 16 + std::max<int>(x_.ADCombo3.listIndex, 0);
    line8(code, "; Uref = " + x_.ADCombo2.text + ", Ugnd = " + x_.ADCombo3.text);
    line8(code, "mov DAPR, #" + hexText(dapr) + "h");
}

void Assistent515::writeWatchdog(std::string& code, float fosc) {
    const double megahertz = static_cast<double>(fosc) / 1e6;
    x_.WDLabel.caption =
        hexText(watchdog_.reload) + "h, Teiler " + std::to_string(watchdog_.divider);
    if (x_.WDCheck1.value == 0) return;
    const double period = siemensWatchdogPeriod(watchdog_, megahertz);
    line(code);
    line8(code, "mov WDTREL, #" + hexText(watchdog_.value()) +
                    "h\t; Watchdog: Watchdog Periode ist " + str(toSingle(period)) + " ms");
    if (x_.WDCheck2.value != 0) line(code, "setb SWDT\t; Start Watchdog Timer");
}

void Assistent515::writeInterruptEnables(ProgramParts& out, const GenerationContext& context) {
    if (!context.anyInterrupt) return;
    std::string& code = out.code;
    line(code);
    line(code, "; Interrupts");
    for (std::size_t i = 0; i < profile_.interrupts.size(); ++i) {
        if (s_.ICheck1[i].value == 0) continue;
        const int level =
            std::max<int>(x_.IPCombo1[static_cast<std::size_t>(enableBit(i).group)].listIndex, 0);
        line8(code, text8("; ") + text8(profile_.interrupts[i].enableLine) + text8(", Priorität ") +
                        std::to_string(level));
        const OptionGroup* trigger = i == kExternal0Interrupt   ? &s_.IOption1
                                     : i == kExternal1Interrupt ? &s_.IOption2
                                                                : nullptr;
        if (trigger != nullptr && trigger->selected == 1) {
            line8(code, std::string(i == kExternal0Interrupt ? "setb IT0" : "setb IT1") +
                            text8("\t; Auslöser: ") + trigger->buttons[1].caption);
        }
    }
    writeInterruptRegisters(code);
    if (s_.ICheck0.value != 0) line(code, "setb EAL\t; globale Interruptfreigabe");
}

void Assistent515::writeInterruptRegisters(std::string& code) {
    int ien[3] = {0, 0, 0};
    for (std::size_t i = 0; i < profile_.interrupts.size(); ++i) {
        if (s_.ICheck1[i].value != 0) ien[enableBit(i).reg] |= enableBit(i).mask;
    }
    // IEN1 is loaded whole: T2EX's enable, set with Timer 2, must stay.
    if (s_.T2Check0.value != 0 && s_.T2Check1.value != 0) ien[1] |= 0x80;
    if (ien[0] != 0) line8(code, "orl IEN0, #" + hexText(ien[0]) + "h");
    if (ien[1] != 0) line8(code, "mov IEN1, #" + hexText(ien[1]) + "h");
    if (ien[2] != 0) line8(code, "mov IEN2, #" + hexText(ien[2]) + "h");
    int ip0 = 0;
    int ip1 = 0;
    for (std::size_t g = 0; g < x_.IPCombo1.size(); ++g) {
        const int level = std::max<int>(x_.IPCombo1[g].listIndex, 0);
        if ((level & 1) != 0) ip0 |= 1 << g;
        if ((level & 2) != 0) ip1 |= 1 << g;
    }
    if (ip0 == 0 && ip1 == 0) return;
    line(code, "; Interruptprioritäten");
    line8(code, "mov IP0, #" + hexText(ip0) + "h");
    line8(code, "mov IP1, #" + hexText(ip1) + "h");
}

EnableBit Assistent515::enableBit(std::size_t source) const {
    return kEnableBits[source];
}

int Assistent515::refreshBox(std::size_t source) const {
    switch (source) {
        case kTimer0Interrupt: return 0;
        case kTimer1Interrupt: return 1;
        case kTimer2Interrupt: return 2;
        default: return -1;
    }
}

std::string Assistent515::routineTail(std::size_t source) const {
    const int box = refreshBox(source);
    if (x_.WDCheck1.value == 0 || box < 0 ||
        x_.WDCheck3[static_cast<std::size_t>(box)].value == 0) {
        return {};
    }
    return text8("\tsetb WDT: setb SWDT\t; Watchdog rücksetzen\r\n");
}

void Assistent515::writeSerialPortRoutine(ProgramParts& out, std::size_t source) {
    std::string declarations;
    line(out.code, std::string(profile_.interrupts[source].routine) + ":");
    writeSerialRoutineLines(out.code, declarations, {});
    bitList_ += "Empfang, Sendebusy, ";
}

void Assistent515::writeRoutine(ProgramParts& out, const GenerationContext& context,
                                std::size_t source) {
    std::string& code = out.code;
    const RoutineKind kind = profile_.interrupts[source].kind;
    if (kind == RoutineKind::Serial) {
        writeSerialPortRoutine(out, source);
    } else if (source == kAnalogInterrupt) {
        line(code, "AD-Wandler Interrupt:");
        line(code, "\tclr IADC");
        line8(code, "\tmov a, " + analogResult());
        line(code, "\t; Befehle . .");
        code += routineTail(source);
        line(code, "reti");
    } else if (kind == RoutineKind::Timer2) {
        line(code, "Timer 2 Interrupt:");
        const int function = s_.T2Combo1.listIndex;
        const bool exf = s_.T2Check1.value != 0 || (s_.T2Check0.value != 0 && function % 3 == 2);
        if (!exf) {
            line(code, "\t; Befehle . .");
            line(code, "\tclr TF2");
            code += routineTail(source);
            line(code, "reti");
            return;
        }
        code += routineTail(source);
        for (const char* text : {"\tjbc TF2, Timer 2 Überlauf", "\tjbc EXF2, T2EX Trigger", "reti",
                                 "Timer 2 Überlauf:", "\t; Befehle . .", "reti",
                                 "T2EX Trigger:", "\t; Befehle für T2EX Trigger . .", "reti"}) {
            line(code, text);
        }
    } else {
        Assistent52::writeRoutine(out, context, source);
    }
}

void Assistent515::writeRoutines(ProgramParts& out, const GenerationContext& context) {
    Assistent52::writeRoutines(out, context);
}

void Assistent515::finishProgram(ProgramParts& out, const GenerationContext&) {
    // The lists without their last separator.
    if (!byteList_.empty())
        line8(out.declarations, "#Byte " + byteList_.substr(0, byteList_.size() - 2));
    if (!bitList_.empty())
        line8(out.declarations, "#Bit " + bitList_.substr(0, bitList_.size() - 2));
}

}  // namespace korvex::wizards::assistent515
