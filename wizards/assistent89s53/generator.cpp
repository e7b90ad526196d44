// The sections the AT89S53 / AT89S8252 adds to the base program: SPI,
// Timer 2's own functions, watchdog and EEPROM, and the SPI's share of the
// serial interrupt.

#include "base/cp1252.h"
#include "wizards/assistent52/program_lines.h"
#include "wizards/assistent89s53/assistent89s53.h"
#include "wizards/core/timer_arithmetic.h"
#include "wizards/core/watchdog.h"

namespace korvex::wizards::assistent89s53 {

using namespace assistent52;

bool Assistent89S53::describeTimer2(int function, float fosc, std::int64_t reload, int& t2con,
                                    int& t2mod, std::string& description) {
    const auto rate = [&](double divisor, int cycleDivider) {
        return overflowRate(fosc, divisor, cycleDivider);
    };
    const std::string upDown = text8(
        " 16-Bit Aufwärts-/Abwärtszähler. Die Zählrichtung wird über den Eingang T2EX "
        "gesteuert (1 = aufwärts, 0 = abwärts).");
    switch (function) {
        case T2UpDownTimer: {
            t2mod = 1;  // DCEN
            const OverflowRate r = rate(static_cast<double>(65536 - reload), 12);
            description =
                "Timer 2 ist ein" + upDown +
                text8(
                    " Als Aufwärtszähler wird er bei Überlauf aus den Reload-Registern "
                    "automatisch nachgeladen, als Abwärtszähler wird sein Inhalt mit den "
                    "Reload-Registern verglichen. Bei Gleichheit wird er mit dem Wert FFFFh "
                    "beschrieben. Die Über-/Unterlauffrequenz beträgt ") +
                str(r.frequency) + " Hz, die Periodendauer " + str(r.periodMs) + " ms.";
            return true;
        }
        case T2UpDownCounter:
            t2con = 2;
            t2mod = 1;
            description = text8("Zähler 2 ist ein") + upDown +
                          text8(" Das Taktsignal stammt vom Eingang T2.");
            return true;
        case T2ClockOutput: {
            t2con = s_.T2Check1.value != 0 ? 8 : 0;
            t2mod = 2;  // T2OE
            // The output toggles at each overflow: fosc / (4 × (65536 − R)).
            const OverflowRate r = rate(static_cast<double>(65536 - reload), 4);
            description =
                text8(
                    "Timer 2 ist Taktgenerator. Das Signal wird an T2 ausgegeben. Er ist "
                    "konfiguriert als 16-Bit Aufwärtszähler mit automatischer Nachladung aus den "
                    "Reload-Registern bei Überlauf. Die Ausgabefrequenz beträgt ") +
                str(r.frequency) + " Hz. " + timer2Hint();
            return true;
        }
        default: return false;
    }
}

void Assistent89S53::writeTimer2(ProgramParts& out, const GenerationContext& context) {
    Assistent52::writeTimer2(out, context);
    writeWatchdog(out.code);
    writeEeprom(out.code);
}

void Assistent89S53::writeSerialPort(ProgramParts& out, const GenerationContext& context) {
    Assistent52::writeSerialPort(out, context);
    writeSpi(out.code);
}

void Assistent89S53::writeSpi(std::string& code) {
    if (x_.SPICheck1.value == 0) return;
    int spcr = 64;  // SPE
    std::string parts = x_.SPICheck1.caption + ", ";
    if (x_.SPICheck2.value != 0) spcr += 128;
    if (x_.SPIOption1.selected == 1) {
        spcr += 32;
        parts += text8("#Bit-Reihenfolge: Bit 0 (LSB) zuerst, ");
    }
    if (x_.SPIOption2.selected == 1) {
        spcr += 16 + std::max<int>(x_.SPIList1.listIndex, 0);
        parts += "Master-Modus bei " + x_.SPIList1.text + ", ";
    } else {
        parts += "Slave-Modus, ";
    }
    static constexpr int kShapes[] = {0, 8, 4, 12};
    const auto shape = static_cast<std::size_t>(x_.SPIOption3.selected);
    spcr += kShapes[shape];
    parts += x_.SPIOption3.buttons[shape].caption;
    line(code);
    line8(code, "; " + parts);
    line8(code, load("SPCR", hexText(spcr) + "h"));
}

void Assistent89S53::writeWatchdog(std::string& code) {
    const std::string& period = x_.WCheck1[static_cast<std::size_t>(watchdogPeriod())].caption;
    if (x_.WCheck2.value == 0) {
        x_.WText1.text = "Der Watchdog Timer wird nicht verwendet.";
        return;
    }
    x_.WText1.text = text8("Der Watchdog Timer löst nach ") + period +
                     text8(" ohne Rücksetzen einen Reset aus.");
    line(code);
    line(code, "; Watchdog");
    line8(code, load(watchdogRegister(), hexText(watchdogPeriod() * 32 + 1) + "h") +
                    "\t; Watchdog Timer starten, Watchdog Timeout " + period);
}

void Assistent89S53::writeEeprom(std::string& code) {
    // Behind the watchdog, whose load would clear the EEPROM bits of WMCON.
    if (x_.SCheck3[0].value == 0 || !x_.SCheck3[0].enabled) return;
    int bits = 8;  // EEMEN
    std::string captions = x_.SCheck3[0].caption;
    if (x_.SCheck3[1].value != 0) {
        bits += 16;  // EEMWE
        captions += " " + x_.SCheck3[1].caption;
    }
    line8(code, operation("orl", "WMCON", hexText(bits) + "h") + "\t; " + captions);
}

std::string Assistent89S53::routineTail(std::size_t source) const {
    std::string tail;
    if (x_.WCheck2.value == 0) return tail;
    const std::size_t box = source == kTimer0Interrupt   ? 0
                            : source == kTimer1Interrupt ? 1
                            : source == kTimer2Interrupt ? 2
                                                         : 3;
    if (box < x_.WCheck3.size() && x_.WCheck3[box].value != 0) {
        appendWatchdogRefresh(tail, watchdogRegister());
    }
    return tail;
}

void Assistent89S53::writeLoopBlocks(std::string& code) {
    Assistent52::writeLoopBlocks(code);
    if (!spiInterrupt()) return;
    for (const char* text : {"\tif bit SPI-Ereignis then", "\t\tclr SPI-Ereignis",
                             "\t\tSPI-Ereignis auswerten", "\tend if"}) {
        line(code, text);
    }
}

void Assistent89S53::writeLoopSubroutines(std::string& code) {
    Assistent52::writeLoopSubroutines(code);
    if (!spiInterrupt()) return;
    for (const char* text :
         {"", "SPI-Ereignis auswerten:", "\tmov a, SPDR", "\t; Befehle . .", "ret"}) {
        line(code, text);
    }
}

void Assistent89S53::writeRoutine(ProgramParts& out, const GenerationContext& context,
                                  std::size_t source) {
    if (source != kSerialInterrupt || !spiInterrupt()) {
        Assistent52::writeRoutine(out, context, source);
        return;
    }
    std::string& code = out.code;
    line(code, "Serieller Interrupt:");
    for (const char* text : {"\t; Herkunft ermitteln", "\tif bit TI then\t; Senden", "\t\tclr TI",
                             "\t\tclr Sendebusy", "\tend if", "\tif bit RI then\t; Empfangen",
                             "\t\tclr RI", "\t\tsetb Empfang", "\tend if"}) {
        line(code, text);
    }
    writeSpiPartOfSerialRoutine(code);
    line(code, "reti");
    line(out.declarations, "#Bit Empfang, Sendebusy, SPI-Ereignis");
}

void Assistent89S53::writeSpiPartOfSerialRoutine(std::string& code) {
    for (const char* text : {"\tpush acc", "\tmov a, SPSR\t; SPI-Statusregister",
                             "\tif bit acc.7 then\t; SPI-Ereignis",
                             "\t\tmov SPSR, # 0\t; Interruptanforderung löschen",
                             "\t\tsetb SPI-Ereignis", "\tend if", "\tpop acc"}) {
        line(code, text);
    }
}

void Assistent89S53::writeAssignmentSerialRoutine(ProgramParts& out) {
    std::string& code = out.code;
    for (const char* text : {"Serieller Interrupt:", "\tif bit TI then\t; Senden",
                             "\t\tclr TI: clr Sendebusy: reti", "\tend if"}) {
        line(code, text);
    }
    if (spiInterrupt()) {
        for (const char* text : {"\tif bit RI then\t; Empfangen", "\t\tclr RI: setb Empfang: reti",
                                 "\tend if", "\tpush acc: a = SPSR\t; SPI-Statusregister",
                                 "\tif bit acc.7 then: setb SPI-Ereignis: end if",
                                 "\ta = SPDR: pop acc\t; SPIF Bit löschen"}) {
            line(code, text);
        }
        line(out.declarations, "#Bit Empfang, Sendebusy, SPI-Ereignis");
    } else {
        line(code, "\tclr RI: setb Empfang");
        line(out.declarations, "#Bit Empfang, Sendebusy");
    }
    line(code, "reti");
}

}  // namespace korvex::wizards::assistent89s53
