// The AT89S8253's program in the assignment form: vectors under their own
// heading, the power-on clearing, the time base's lines, AUXR and the
// doubled clock, the combined PCON line, slave addresses, SPSR, the
// watchdog's WDTCON, interrupt boxes with IP and IPH, and the main loop that
// feeds the watchdog and polls the time base.

#include <algorithm>

#include "base/cp1252.h"
#include "wizards/assistent52/program_lines.h"
#include "wizards/assistent8253/assistent8253.h"

namespace korvex::wizards::assistent8253 {

using namespace assistent52;

void Assistent8253::writeVectors(ProgramParts& out, const GenerationContext& context) {
    if (!context.anyInterrupt) return;
    std::string& code = out.code;
    line(code);
    line(code, "ajmp Initialisierung");
    line(code, "; Interruptvektoren");
    for (std::size_t i = 0; i < profile_.interrupts.size(); ++i) {
        if (!context.used[i]) continue;
        const InterruptSource& source = profile_.interrupts[i];
        // An external interrupt's comment is the caption of its checked box.
        std::string comment = text8(source.vectorComment);
        for (std::size_t box : {std::size_t{1}, std::size_t{2}, std::size_t{4}, std::size_t{5}}) {
            const bool mine = (box < 3) == (i == kExternal0Interrupt);
            if ((i == kExternal0Interrupt || i == kExternal1Interrupt) && mine &&
                y_.ICheck1[box].value != 0) {
                comment = y_.ICheck1[box].caption;
            }
        }
        line(code);
        line8(code, text8(source.vectorLabel) + "\t; " + comment);
        line8(code, "\tajmp " + text8(source.routine));
    }
}

void Assistent8253::writeRamClearing(std::string& code) {
    // Only a power-on reset clears: a watchdog reset keeps the variables.
    line(code, "a = PCON: if bit acc.4 then\t; bei Power On Reset");
    line(code, "\tanl PCON, #EFh\t; POF-Bit löschen");
    line8(code, "\tclr a: r0 = #" + s_.SText3.text + text8("h\t; Variablenbereich löschen"));
    line8(code, "\tloop: @r0 = a: inc r0: until r0 = #" + ramClearingEnd() + "h");
    line(code, "end if");
}

void Assistent8253::writeInitialisation(ProgramParts& out, const GenerationContext& context) {
    Assistent52::writeInitialisation(out, context);
    std::string& code = out.code;
    out.declarations += ticks_.declarations;
    if (!ticks_.init.empty()) line8(code, ticks_.init);
    if (y_.ACkIntel.value != 0 || y_.SCkALE.value != 0) {
        const int auxr = (y_.ACkIntel.value != 0 ? 2 : 0) + (y_.SCkALE.value != 0 ? 1 : 0);
        line8(code, load("AUXR", hexText(auxr) + "h"));
        line(code, std::string("\t; Intel Power Down Exit ist ") +
                       (y_.ACkIntel.value != 0 ? "" : "nicht ") + "gewählt.");
        line(code, std::string("\t; ALE-Signal ist ") + (y_.SCkALE.value != 0 ? "aus" : "ein") +
                       "geschaltet.");
    }
    if (y_.SCkX2.value != 0) line(code, "inc CLKREG\t; X2-Modus = Taktverdoppelung aktiviert");
}

void Assistent8253::writeSerialPort(ProgramParts& out, const GenerationContext& context) {
    Assistent52::writeSerialPort(out, context);
    std::string& code = out.code;
    if (s_.UCheck1.value != 0) {
        std::string addresses;
        for (std::size_t i = 0; i < y_.UAdresse.size(); ++i) {
            if (hexFieldValue(y_.UAdresse[i].text) == 0) continue;
            if (!addresses.empty()) addresses += "h: ";
            addresses += load(i == 0 ? "SADDR" : "SADEN", y_.UAdresse[i].text);
        }
        if (!addresses.empty()) line8(code, addresses + "h");
    }
    writeSpi(code);
}

void Assistent8253::writeDoublingLine(std::string& code) {
    const bool doubled = s_.UCheck4.value != 0 && s_.UCheck4.enabled;
    const bool frameErrors = y_.UCkFrameError.value != 0;
    if (!doubled && !frameErrors) return;
    const char* text = doubled && frameErrors ? "Baudratenverdoppelung, Frame Error Erkennung"
                       : doubled              ? "Baudratenverdoppelung"
                                              : "Frame Error Erkennung";
    line(code,
         "orl PCON, #" + hexText((doubled ? 0x80 : 0) + (frameErrors ? 0x40 : 0)) + "h\t; " + text);
}

void Assistent8253::writeSpi(std::string& code) {
    Assistent89S53::writeSpi(code);
    if (x_.SPICheck1.value == 0) return;
    const bool enhanced = y_.SPICkEnhanced.value != 0;
    const bool slaveOff = y_.SPICkSOD.value != 0;
    if (!enhanced && !slaveOff) return;
    if (enhanced) line(code, "; SPI Enhanced Modus ist gewählt.");
    line(code, std::string("; Slave Output ist ") + (slaveOff ? "aus" : "ein") + "geschaltet.");
    line8(code, load("SPSR", hexText((enhanced ? 1 : 0) + (slaveOff ? 2 : 0)) + "h"));
}

void Assistent8253::writeWatchdog(std::string& code) {
    const float fosc = oscillatorHz(effectiveMegahertz());
    for (std::size_t p = 0; p < y_.WOption1.buttons.size(); ++p) {
        const std::int64_t cycles = std::int64_t{16384} << p;
        const float ms = toSingle(static_cast<double>(cycles) * 12.0 / fosc * 1000.0);
        y_.WOption1.buttons[p].caption = str(ms) + " ms = " + std::to_string(cycles) + " Takte";
    }
    if (!watchdogOn()) return;
    const bool started = y_.WCkStart.value != 0;
    const bool hardware = y_.WCkHardware.value != 0;
    const int wdtcon = y_.WOption1.selected * 32 + (y_.WCkIdle.value != 0 ? 0x10 : 0) +
                       (y_.WCkReset.value != 0 ? 0x08 : 0) + (hardware ? 0x04 : 0) +
                       (started && !hardware ? 0x01 : 0);
    line(code);
    line(code, "; Watchdog");
    line8(code, load("WDTCON", hexText(wdtcon) + "h") +
                    (started ? ": WDTRST = #1Eh: WDTRST = #E1h" : ""));
    line8(code, "; Time Out Periode: " +
                    y_.WOption1.buttons[static_cast<std::size_t>(y_.WOption1.selected)].caption);
    line(code, std::string("; Watchdog ist im Idle-Modus ") +
                   (y_.WCkIdle.value != 0 ? "aus" : "ein") + "geschaltet.");
    line(code, std::string("; ") + (y_.WCkReset.value != 0 ? "Keine " : "") +
                   "Resetausgabe am Reset-Pin bei Watchdog Reset");
    line(code, std::string("; Watchdog ist im ") + (hardware ? "Hard" : "Soft") + "ware-Modus.");
    line(code, std::string("; Watchdog ist ") + (started ? "" : "nicht ") + "gestartet.");
}

void Assistent8253::writeEeprom(std::string& code) {
    if (x_.SCheck3[0].value == 0) return;
    const bool write = x_.SCheck3[1].value != 0;
    line(code, "orl EECON, #" + hexText(write ? 0x18 : 0x08) + "h\t; Internes EEPROM zum Lesen " +
                   (write ? "und Schreiben " : "") + "verwenden");
}

void Assistent8253::writeInterruptEnables(ProgramParts& out, const GenerationContext& context) {
    if (!context.anyInterrupt) return;
    std::string& code = out.code;
    line(code);
    line(code, "; Interrupts");
    const auto enable = [&](std::size_t source, const char* bit, const char* what) {
        line(code, std::string("setb ") + bit + "\t; " + what + " freigeben, Priorität " +
                       std::to_string(y_.IPSlider[source].value));
    };
    const auto box = [this](std::size_t i) { return y_.ICheck1[i].value != 0; };
    if (box(1) || box(2)) enable(kExternal0Interrupt, "EX0", "externen Interrupt 0");
    if (box(2)) line(code, "setb IT0\t; Auslöser: negative Flanke an P3.2");
    if (box(3)) enable(kTimer0Interrupt, "ET0", "Timer 0 Interrupt");
    if (box(4) || box(5)) enable(kExternal1Interrupt, "EX1", "externen Interrupt 1");
    if (box(5)) line(code, "setb IT1\t; Auslöser: negative Flanke an P3.3");
    if (box(6)) enable(kTimer1Interrupt, "ET1", "Timer 1 Interrupt");
    if (box(7)) enable(kSerialInterrupt, "ES", "seriellen Interrupt");
    if (box(8) && !box(7)) enable(kSerialInterrupt, "ES", "SPI Interrupt");
    if (box(9)) enable(kTimer2Interrupt, "ET2", "Timer 2 Interrupt");
    int ip = 0;
    int iph = 0;
    for (std::size_t source = 0; source < y_.IPSlider.size(); ++source) {
        if ((y_.IPSlider[source].value & 1) != 0) ip |= 1 << source;
        if ((y_.IPSlider[source].value & 2) != 0) iph |= 1 << source;
    }
    std::string priorities;
    if (ip != 0) priorities = load("IP", hex2(ip));
    if (iph != 0) priorities += (priorities.empty() ? "" : "h: ") + load("IPH", hex2(iph));
    if (!priorities.empty()) line8(code, priorities + text8("h\t; Interruptprioritäten"));
    if (box(0)) line(code, "setb EA\t; globale Interruptfreigabe");
}

void Assistent8253::writeMainProgram(ProgramParts& out, const GenerationContext& context) {
    std::string& code = out.code;
    const bool serial = serialLoop(context);
    const bool feed = y_.WCkStart.value != 0;
    std::string blocks;
    if (feed) {
        line(blocks, y_.ICheck1[0].value != 0
                         ? "\tclr EA: WDTRST = #1Eh: WDTRST = #E1h: setb EA\t; Watchdog Feed"
                         : "\tWDTRST = #1Eh: WDTRST = #E1h\t; Watchdog Feed");
    }
    blocks += ticks_.polling;
    if (serial) writeLoopBlocks(blocks);
    if (blocks.empty()) {
        Assistent52::writeMainProgram(out, context);
        return;
    }
    line(code);
    line(code, "; * * * Hauptprogramm Start * * *");
    line(code, "loop");
    code += blocks;
    line(code, "end loop");
    line(code, "; * * * Hauptprogramm Ende * * *");
    if (serial) writeLoopSubroutines(code);
}

void Assistent8253::writeRoutines(ProgramParts& out, const GenerationContext& context) {
    if (!context.anyInterrupt) return;
    line(out.code);
    line(out.code, "; Interrupt Routinen");
    Assistent52::writeRoutines(out, context);
}

void Assistent8253::writeRoutine(ProgramParts& out, const GenerationContext& context,
                                 std::size_t source) {
    std::string& code = out.code;
    if (source == kTimer0Interrupt && tickOn()) {
        code += ticks_.routine;
        return;
    }
    if (source != kSerialInterrupt) {
        Assistent89S53::writeRoutine(out, context, source);
        return;
    }
    writeAssignmentSerialRoutine(out);
}

}  // namespace korvex::wizards::assistent8253
