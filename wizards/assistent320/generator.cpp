// The DS80C320's program: the timer clocks behind the bank, both serial
// ports with their addresses, the watchdog behind Timer 2, and the routines
// of thirteen sources.

#include "base/cp1252.h"
#include "wizards/assistent320/assistent320.h"
#include "wizards/assistent52/program_lines.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards::assistent320 {

using namespace assistent52;

namespace {
constexpr int kSerial1Interrupt = 7;
constexpr std::array<int, 4> kWatchdogClocksLog2 = {17, 20, 23, 26};
}  // namespace

std::string Assistent320::watchdogTime(std::size_t period, float fosc) const {
    const double ms = static_cast<double>(1 << kWatchdogClocksLog2[period]) / fosc * 1000.0;
    return str(toSingle(ms)) + " ms";
}

SerialNames Assistent320::names(int port) const {
    SerialNames n;
    n.suffix = port == 0 ? " 0" : " 1";
    n.ti = port == 0 ? "TI" : "TI_1";
    n.ri = port == 0 ? "RI" : "RI_1";
    n.buffer = port == 0 ? "SBUF0" : "SBUF1";
    if (x_.UCheck5.value != 0) n.frameError = port == 0 ? "FE_0" : "FE_1";
    return n;
}

void Assistent320::writeInitialisation(ProgramParts& out, const GenerationContext& context) {
    Assistent52::writeInitialisation(out, context);
    int ckcon = std::max<int>(x_.S2Combo1.listIndex, 0);  // the MOVX stretch
    std::string fast;
    for (std::size_t t = 0; t < 3; ++t) {
        if (x_.S2Check1[t].value == 0) continue;
        ckcon += 8 << t;  // T0M, T1M, T2M
        fast += x_.S2Check1[t].caption + (t < 2 ? ", " : "");
    }
    if (ckcon == 1) return;  // the state after reset
    if (!fast.empty()) line8(out.code, text8("; Dreifache Taktrate für ") + fast);
    line8(out.code, "; Dauer des MOVX-Befehls: " + x_.S2Combo1.text);
    line8(out.code, "mov CKCON, #" + hexText(ckcon) + "h");
}

void Assistent320::writeSerialMode0Extras(std::string& code) {
    if (s_.UCheck2.value != 0) {
        line8(code, operation("orl", "SCON0", "20h") + "\t; " + s_.UCheck2.caption);
    }
}

void Assistent320::writeSerialPort(ProgramParts& out, const GenerationContext& context) {
    const float fosc = context.fosc;
    for (const auto& [caption, rate] :
         {std::pair{&x_.U1Option1.buttons[0].caption,
                    x_.U1Check2.value != 0 ? fosc / 4.0f : fosc / 12.0f}}) {
        *caption = "Modus 0, synchron, 8 Bit, " + str(rate) + " Baud";
    }
    x_.U1Option1.buttons[2].caption =
        "Modus 2, asynchron, 11 Bit, " +
        doubleText((x_.U1Check4.value != 0 ? 2.0 : 1.0) * fosc / 64.0, options_.numberFormat) +
        " Baud";
    Assistent52::writeSerialPort(out, context);
    std::string& code = out.code;
    // Port 0's rate by Timer 1, which port 1 then shares.
    double port0Rate = 0;
    if (port0OnTimer1()) {
        const double wanted =
            valNumber(s_.UCombo1.listIndex == 0 ? s_.UCombo3.text : s_.UCombo4.text);
        if (wanted > 0) {
            port0Rate = timer1Baud(static_cast<float>(fosc * timer1BaudFactor()), wanted,
                                   s_.UCheck4.value != 0)
                            .actual;
        }
    }
    if (x_.UCheck5.value != 0 && (s_.UCheck1.value != 0 || x_.U1Check1.value != 0)) {
        line(code, operation("orl", "PCON", "40h") + "\t; Framing Error erkennen");
    }
    writePort1(code, fosc, port0Rate);
    writeAddresses(code);
}

void Assistent320::writePort1(std::string& code, float fosc, double port0Rate) {
    if (x_.U1Check1.value == 0) return;
    line(code);
    line(code, "; Serieller Port 1");
    const int mode = x_.U1Option1.selected;
    int scon = mode * 64;
    std::string flags;
    if (x_.U1Check2.value != 0 && mode >= 2) {
        scon += 32;
        flags += ", " + x_.U1Check2.caption;
    }
    if (x_.U1Check3.value != 0 && mode != 0) {
        scon += 16;
        flags += ", " + x_.U1Check3.caption;
    }
    const std::string& caption = x_.U1Option1.buttons[static_cast<std::size_t>(mode)].caption;
    if (mode == 0) {
        line8(code, "; Modus 0 ist aktiv mit Baudrate = " +
                        str(x_.U1Check2.value != 0 ? fosc / 4.0f : fosc / 12.0f));
        if (x_.U1Check2.value != 0) {
            line8(code, operation("orl", "SCON1", "20h") + "\t; " + x_.U1Check2.caption);
        }
        return;
    }
    line8(code, load("SCON1", hexText(scon) + "h") + "\t; " + caption + flags);
    const bool doubled = x_.U1Check4.value != 0;
    if (mode % 2 == 1) {
        if (port0OnTimer1()) {
            // Both ports on Timer 1: port 1's rate follows port 0's, with its own SMOD.
            x_.U1Combo1.enabled = false;
            const double factor = (doubled ? 2.0 : 1.0) / (s_.UCheck4.value != 0 ? 2.0 : 1.0);
            x_.U1Combo1.text = str(toSingle(port0Rate * factor));
            line8(code, "; Baudrate von Timer 1 wie Port 0: " + x_.U1Combo1.text + " Baud");
        } else {
            x_.U1Combo1.enabled = true;
            const double wanted = valNumber(x_.U1Combo1.text);
            if (wanted > 0) writeTimer1BaudLines(code, fosc, wanted, doubled, &s_.T1Text2);
        }
    }
    if (doubled) {
        line(code, "setb SMOD_1\t; Baudratenverdoppelung für seriellen Port 1 wählen");
    }
}

void Assistent320::writeAddresses(std::string& code) {
    static const char* const kRegisters[] = {"SADDR0", "SADEN0", "SADDR1", "SADEN1"};
    bool any = false;
    for (std::size_t i = 0; i < 4; ++i) {
        if (hexFieldValue(x_.MCText2[i].text) == 0) continue;
        if (!any) {
            line(code);
            line(code, "; Multicontroller Kommunikation");
            any = true;
        }
        line8(code, load(kRegisters[i], x_.MCText2[i].text + "h"));
    }
}

void Assistent320::writeTimer2(ProgramParts& out, const GenerationContext& context) {
    Assistent52::writeTimer2(out, context);
    const float fosc = context.fosc;
    for (std::size_t p = 0; p < x_.WCheck1.size(); ++p) {
        x_.WCheck1[p].caption = watchdogTime(p, fosc);
    }
    if (x_.WCheck2.value == 0) return;
    std::string& code = out.code;
    const std::size_t period = watchdogPeriod();
    const std::string time = watchdogTime(period, fosc);
    line(code);
    line(code, "; Watchdog");
    if (period != 0) {
        line8(code, operation("orl", "CKCON", hexText(static_cast<int>(period) * 64) + "h") +
                        "\t;Zeit bis zum Watchdog Reset: " + time);
    }
    line(code, "mov TA, # AAh");
    line(code, "mov TA, # 55h");
    line8(code, "setb EWT\t; Watchdog Timer starten, Zeit bis zum Watchdog Reset: " + time);
}

// A port's block needs its routine, which declares its flags.
void Assistent320::writeLoopBlocks(std::string& code) {
    if (s_.UCheck1.value != 0 && interruptUsed(kSerialInterrupt)) {
        writeSerialLoopBlock(code, names(0));
    }
    if (x_.U1Check1.value != 0 && interruptUsed(kSerial1Interrupt)) {
        writeSerialLoopBlock(code, names(1));
    }
}

void Assistent320::writeLoopSubroutines(std::string& code) {
    if (s_.UCheck1.value != 0 && interruptUsed(kSerialInterrupt)) {
        writeSerialSubroutines(code, names(0));
    }
    if (x_.U1Check1.value != 0 && interruptUsed(kSerial1Interrupt)) {
        writeSerialSubroutines(code, names(1));
    }
}

void Assistent320::writeRoutine(ProgramParts& out, const GenerationContext& context,
                                std::size_t source) {
    if (source != kSerialInterrupt && source != kSerial1Interrupt) {
        Assistent52::writeRoutine(out, context, source);
        return;
    }
    line(out.code, std::string(profile_.interrupts[source].routine) + ":");
    writeSerialRoutineLines(out.code, out.declarations, names(source == kSerialInterrupt ? 0 : 1));
}

std::string Assistent320::routineTail(std::size_t source) const {
    if (x_.WCheck2.value == 0) return {};
    const std::size_t box = source == kTimer0Interrupt   ? 0
                            : source == kTimer1Interrupt ? 1
                            : source == kTimer2Interrupt ? 2
                                                         : 3;
    if (box > 2 || x_.WCheck3[box].value == 0) return {};
    return text8("\tWatchdog rücksetzen\r\n");
}

void Assistent320::writeRoutines(ProgramParts& out, const GenerationContext& context) {
    Assistent52::writeRoutines(out, context);
    // The refresh routine, where a routine calls it.
    bool called = false;
    for (std::size_t source : {kTimer0Interrupt, kTimer1Interrupt, kTimer2Interrupt}) {
        called = called || (context.used[static_cast<std::size_t>(source)] &&
                            !routineTail(static_cast<std::size_t>(source)).empty());
    }
    if (!called) return;
    for (const char* text :
         {"", "Watchdog rücksetzen:", "\tmov TA, # AAh", "\tmov TA, # 55h", "\tsetb RWT", "ret"}) {
        line(out.code, text);
    }
}

}  // namespace korvex::wizards::assistent320
