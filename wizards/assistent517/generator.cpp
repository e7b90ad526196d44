// The C517's program beyond the C515's: the oscillator watchdog's reset
// source, both serial ports with their 10-bit generators, CC4, the compare
// registers and their timer, the 12-channel A/D converter, the compare
// routine, and the MDU routines at the very end.

#include <algorithm>

#include "base/cp1252.h"
#include "wizards/assistent517/assistent517.h"
#include "wizards/assistent52/program_lines.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards::assistent517 {

using namespace assistent52;

namespace {
constexpr std::size_t kSerial1Interrupt = 12;
constexpr std::size_t kCompareInterrupt = 13;
}  // namespace

void Assistent517::writeResetSource(std::string& code) {
    Assistent515::writeResetSource(code);
    if (z_.SCheck4.value == 0) return;
    for (const char* text : {"clr Oszillator Watchdog Reset", "mov a, IP0", "if bit acc.7 then",
                             "\tmov IP0, #0", "\tsetb Oszillator Watchdog Reset", "end if"}) {
        line(code, text);
    }
    bitList_ += "Oszillator Watchdog Reset, ";
}

std::string Assistent517::generatorBaudText(float fosc) const {
    const double baud = valNumber(s_.UCombo1.text);
    if (baud <= 0) return "Baudrate";
    const double clock = (s_.UCheck4.value != 0 ? 2.0 : 1.0) * fosc / 64.0;
    return "Baudrate = " + str(toSingle(baudGenerator10(clock, baud).actual)) + " Baud";
}

void Assistent517::writeBaudLines(std::string& code, float fosc) {
    const double baud = valNumber(s_.UCombo1.text);
    if (x_.UOption3.selected == 0) {
        Assistent515::writeBaudLines(code, fosc);
        return;
    }
    if (baud <= 0) return;
    const BaudSetting setting =
        baudGenerator10((s_.UCheck4.value != 0 ? 2.0 : 1.0) * fosc / 64.0, baud);
    code += kLineEnd;
    line(code, "setb BD\t; Taktquelle = Baudratengenerator");
    line8(code, "mov S0RELL, #" + hex2(setting.reload % 256) +
                    text8("h\t; Reloadwert für Baudrate ") + str(toSingle(setting.actual)));
    line8(code, "mov S0RELH, #" + hex2(setting.reload / 256) + "h");
}

void Assistent517::writeSerialPort(ProgramParts& out, const GenerationContext& context) {
    Assistent515::writeSerialPort(out, context);
    writePort1(out.code, context.fosc);
}

void Assistent517::writePort1(std::string& code, float fosc) {
    const double baud = valNumber(z_.U1Combo1.text);
    z_.U1Label2.caption =
        baud > 0
            ? "Baudrate = " + str(toSingle(baudGenerator10(fosc / 32.0, baud).actual)) + " Baud"
            : std::string("Baudrate");
    if (z_.U1Check1.value == 0) return;
    const bool nineBits = z_.U1Option1.selected == 1;
    int s1con = nineBits ? 0 : 0x80;  // SM: mode B has 8 data bits
    std::string flags;
    if (nineBits && z_.U1Check2.value != 0) {
        s1con += 0x20;
        flags += ", " + z_.U1Check2.caption;
    }
    if (z_.U1Check3.value != 0) {
        s1con += 0x10;
        flags += ", " + z_.U1Check3.caption;
    }
    line(code);
    line(code, "; Serieller Port 1");
    line8(code, load("S1CON", hexText(s1con) + "h") + "\t; " +
                    z_.U1Option1.buttons[static_cast<std::size_t>(z_.U1Option1.selected)].caption +
                    flags);
    if (baud <= 0) return;
    const BaudSetting setting = baudGenerator10(fosc / 32.0, baud);
    line8(code, "mov S1RELL, #" + hex2(setting.reload % 256) +
                    text8("h\t; Reloadwert für Baudrate ") + str(toSingle(setting.actual)));
    line8(code, "mov S1RELH, #" + hex2(setting.reload / 256) + "h");
}

void Assistent517::writeTimer2(ProgramParts& out, const GenerationContext& context) {
    Assistent515::writeTimer2(out, context);
}

void Assistent517::writeCompareUnits(std::string& code) {
    // CC4: its mode in the low bits of CC4EN, the concurrent compare on Port 5 above.
    const int mode = std::max<int>(z_.CC4Combo1.listIndex, 0);
    const bool concurrent = z_.CC4Combo2.listIndex == 1;
    const int cc4en = mode + (concurrent ? 0x04 + (z_.CC4Slider.value - 1) * 8 : 0);
    if (cc4en != 0) {
        std::string comment = "; CC4: " + z_.CC4Combo1.text;
        if (concurrent) {
            comment +=
                ", gleichzeitige Ausgabe an P5.0 bis P5." + std::to_string(z_.CC4Slider.value - 1);
        }
        line8(code, comment);
        line8(code, "mov CC4EN, #" + hexText(cc4en) + "h");
    }
    if (hexFieldValue(z_.CC4Text1.text) != 0) line8(code, "mov CCL4, #" + z_.CC4Text1.text + "h");
    if (hexFieldValue(z_.CC4Text2.text) != 0) line8(code, "mov CCH4, #" + z_.CC4Text2.text + "h");

    int cmen = 0;
    int cmsel = 0;
    for (std::size_t i = 0; i < z_.CMCheck1.size(); ++i) {
        if (z_.CMCheck1[i].value == 0) continue;
        cmen |= 1 << i;
        if (z_.CMOption1[i].selected == 1) cmsel |= 1 << i;
        const std::string n = std::to_string(i);
        const TextBox& low = z_.CMText1[2 * i];
        const TextBox& high = z_.CMText1[2 * i + 1];
        if (hexFieldValue(low.text) != 0) line8(code, "mov CML" + n + ", #" + low.text + "h");
        if (hexFieldValue(high.text) != 0) line8(code, "mov CMH" + n + ", #" + high.text + "h");
    }
    if (cmsel != 0) line8(code, "mov CMSEL, #" + hexText(cmsel) + "h\t; Zuordnung zu Timer 2");
    if (cmen != 0) line8(code, "mov CMEN, #" + hexText(cmen) + "h\t; Compare-Register freigeben");

    if (z_.CTCheck1.value == 0) return;
    line8(code, "mov CTCON, #" + hexText(std::max<int>(z_.CTCombo1.listIndex, 0)) +
                    "h\t; Compare Timer Takt " + z_.CTCombo1.text);
    line8(code, "mov CTRELH, #" + z_.CTText2.text + "h");
    line8(code, "mov CTRELL, #" + z_.CTText1.text + "h\t; startet den Compare Timer");
}

void Assistent517::writeAnalogDigital(std::string& code) {
    if (x_.ADCheck1.value == 0) return;
    const int channel = std::max<int>(x_.ADCombo1.listIndex, 0);
    line(code);
    line8(code, text8("; A/D-Wandler: ") +
                    x_.ADOption1.buttons[static_cast<std::size_t>(x_.ADOption1.selected)].caption +
                    ", ");
    line8(code, "; Analogeingang ist " + x_.ADCombo1.text);
    line8(code, "mov ADCON1, #" + hexText(channel) + "h");
    if (x_.ADOption1.selected == 1) line(code, "orl ADCON0, #8h\t; Dauerkonvertierung");
    line(code, "mov DAPR, #0h\t; startet die Wandlung");
}

SerialNames Assistent517::names(int port) const {
    SerialNames n;
    n.ti = port == 0 ? "TI0" : "";
    n.ri = port == 0 ? "RI0" : "";
    n.buffer = port == 0 ? "S0BUF" : "S1BUF";
    n.suffix = port == 0 ? " 0" : " 1";
    return n;
}

void Assistent517::writeLoopBlocks(std::string& code) {
    if (s_.UCheck1.value != 0 && interruptUsed(kSerialInterrupt)) {
        writeSerialLoopBlock(code, names(0));
    }
    if (z_.U1Check1.value != 0 && interruptUsed(kSerial1Interrupt)) {
        writeSerialLoopBlock(code, names(1));
    }
}

void Assistent517::writeLoopSubroutines(std::string& code) {
    if (s_.UCheck1.value != 0 && interruptUsed(kSerialInterrupt)) {
        writeSerialSubroutines(code, names(0));
    }
    if (z_.U1Check1.value != 0 && interruptUsed(kSerial1Interrupt)) {
        writeSerialSubroutines(code, names(1));
    }
}

void Assistent517::writeSerialPortRoutine(ProgramParts& out, std::size_t source) {
    std::string& code = out.code;
    line(code, std::string(profile_.interrupts[source].routine) + ":");
    if (source == kSerialInterrupt) {
        std::string declarations;
        writeSerialRoutineLines(code, declarations, names(0));
        return;
    }
    // S1CON is not bit-addressable: its flags are tested in the accumulator.
    for (const char* text :
         {"\t; Herkunft ermitteln", "\tpush acc", "\tmov a, S1CON", "\tif bit acc.1 then\t; Senden",
          "\t\tanl S1CON, #0FDh\t; TI1 löschen", "\t\tclr Sendebusy 1", "\telse\t; Empfangen",
          "\t\tanl S1CON, #0FEh\t; RI1 löschen", "\t\tsetb Empfang 1", "\tend if", "\tpop acc",
          "reti"}) {
        line(code, text);
    }
}

void Assistent517::writeRoutine(ProgramParts& out, const GenerationContext& context,
                                std::size_t source) {
    if (source != kCompareInterrupt) {
        Assistent515::writeRoutine(out, context, source);
        return;
    }
    for (const char* text :
         {"CMx Interrupt:", "\tpush acc", "\tmov a, IRCON1", "\tif bit acc.0 then", "\t\t; ICMP0",
          "\telseif bit acc.1 then", "\t\t; ICMP1", "\tend if", "\t; Befehle . . etc.", "\tpop acc",
          "reti"}) {
        line(out.code, text);
    }
}

void Assistent517::writeRoutines(ProgramParts& out, const GenerationContext& context) {
    Assistent515::writeRoutines(out, context);
    // Both ports' flags are declared by kind, the receive flags first.
    const bool port0 = context.used[kSerialInterrupt];
    const bool port1 = context.used[kSerial1Interrupt];
    if (port0) bitList_ += "Empfang 0, ";
    if (port1) bitList_ += "Empfang 1, ";
    if (port0) bitList_ += "Sendebusy 0, ";
    if (port1) bitList_ += "Sendebusy 1, ";
    writeArithmeticRoutines(out.code);
}

void Assistent517::writeArithmeticRoutines(std::string& code) {
    const auto routine = [&code](std::initializer_list<const char*> lines) {
        line(code);
        for (const char* text : lines) line(code, text);
    };
    if (z_.MDU1.value != 0) {
        routine({"32div16:\t; Dividend r0 (LSB) bis r3 (MSB), Divisor r4 (LSB) und r5 (MSB)",
                 "\tMD0 = r0: MD1 = r1: MD2 = r2: MD3 = r3: MD4 = r4: MD5 = r5",
                 "\tfor r0 = #3: next\t; Berechnung abwarten",
                 "\tr0 = MD0: r1 = MD1: r2 = MD2: r3 = MD3: r4 = MD4: r5 = MD5", "ret"});
    }
    if (z_.MDU2.value != 0) {
        routine({"16div16:\t; Dividend in r0/r1 (LSB/MSB), Divisor in r2/r3 (LSB/MSB)",
                 "\tMD0 = r0: MD1 = r1: MD4 = r2: MD5 = r3",
                 "\tfor r0 = #2: next\t; Berechnung abwarten",
                 "\tr0 = MD0: r1 = MD1: r2 = MD4: r3 = MD5\t; Ergebnis in r0 bis r3", "ret"});
    }
    if (z_.MDU3.value != 0) {
        routine(
            {"16mul16:\t; Wertübergabe in den Registern r0 (LSB), r1 (MSB) und r2 (LSB), r3 "
             "(MSB)",
             "\tMD0 = r0: MD4 = r2: MD1 = r1: MD5 = r3",
             "\tfor r0 = #2: next\t; Berechnung abwarten",
             "\tr0 = MD0: r1 = MD1: r2 = MD2: r3 = MD3", "ret"});
    }
    if (z_.MDU4.value != 0) {
        routine({"Normalisierung:\t; Wertübergabe in den Registern r0 (LSB) bis r3 (MSB)",
                 "\tMD0 = r0: MD1 = r1: MD2 = r2: MD3 = r3", "\tmov ARCON, #0",
                 "\tfor r0 = #3: next\t; Berechnung abwarten",
                 "\tr0 = MD0: r1 = MD1: r2 = MD2: r3 = MD3",
                 "\tmov Exponent, ARCON: anl Exponent, #1Fh", "ret"});
        byteList_ += "Exponent, ";
    }
    const auto shift = [&](const CheckBox& box, const TextBox& count, bool right) {
        if (box.value == 0) return;
        const double n = valNumber(count.text);
        if (n <= 0 || n >= 32) return;
        const int shiftCount = static_cast<int>(n);
        // Longer shifts take more cycles: one more nop for every six places.
        const int k = (shiftCount - 1) / 6 - 1;
        std::string nops = "\tnop";
        for (int i = 0; i < k + 1; ++i) nops += ": nop";
        line(code);
        line(code, std::string(right ? "Shift right:" : "Shift left:") +
                       "\t; Wertübergabe in den Registern r0 (LSB) bis r3 (MSB)");
        line(code, "\tMD0 = r0: MD1 = r1: MD2 = r2: MD3 = r3");
        line(code, "\tmov ARCON, #" + std::to_string(right ? shiftCount + 32 : shiftCount));
        line(code, nops + "\t; Berechnung abwarten");
        line(code, "\tr0 = MD0: r1 = MD1: r2 = MD2: r3 = MD3");
        line(code, "ret");
    };
    shift(z_.MDU5, z_.MDUText1, false);
    shift(z_.MDU6, z_.MDUText2, true);
}

}  // namespace korvex::wizards::assistent517
