// Interrupt enables, the main program and the interrupt routines.

#include "wizards/assistent52/assistent52.h"
#include "wizards/assistent52/program_lines.h"

namespace korvex::wizards::assistent52 {

void Assistent52::writeInterruptEnables(ProgramParts& out, const GenerationContext& context) {
    if (!context.anyInterrupt) return;
    std::string& code = out.code;
    line(code);
    line(code, "; Interrupts");
    const auto trigger = [&](const OptionGroup& option, const char* bit) {
        if (option.selected == 0) {
            line8(code, text8("; Auslöser: ") + option.buttons[0].caption);
        } else {
            line8(code,
                  std::string("setb ") + bit + text8("\t; Auslöser: ") + option.buttons[1].caption);
        }
    };
    for (std::size_t i = 0; i < profile_.interrupts.size(); ++i) {
        if (interruptEnabled(i)) {
            line(code, profile_.interrupts[i].enableLine);
            if (i == kExternal0Interrupt) trigger(s_.IOption1, "IT0");
            if (i == kExternal1Interrupt) trigger(s_.IOption2, "IT1");
            writeEnableExtras(code, i);
        }
        if (interruptHighPriority(i)) line(code, profile_.interrupts[i].priorityLine);
    }
    if (s_.ICheck0.value != 0) line(code, "setb EA\t; globale Interruptfreigabe");
}

bool Assistent52::interruptEnabled(std::size_t source) const {
    return s_.ICheck1[source].value != 0;
}

bool Assistent52::interruptHighPriority(std::size_t source) const {
    return s_.ICheck2[source].value != 0 && *profile_.interrupts[source].priorityLine != '\0';
}

bool Assistent52::serialLoop(const GenerationContext& context) const {
    for (std::size_t i = 0; i < profile_.interrupts.size(); ++i) {
        if (context.used[i] && profile_.interrupts[i].kind == RoutineKind::Serial) return true;
    }
    return false;
}

void Assistent52::writeMainProgram(ProgramParts& out, const GenerationContext& context) {
    std::string& code = out.code;
    if (!serialLoop(context)) {
        line(code);
        line(code, "end");
        line(code, "; * * * Hauptprogramm Ende * * *");
        return;
    }
    line(code);
    line(code, "loop\t; Routine für seriellen Empfang");
    std::string blocks;
    writeLoopBlocks(blocks);
    // Without the serial port the loop stays open; the user completes it.
    if (blocks.empty()) return;
    code += blocks;
    line(code, "end loop");
    line(code, "; * * * Hauptprogramm Ende * * *");
    writeLoopSubroutines(code);
}

void Assistent52::writeLoopBlocks(std::string& code) {
    if (s_.UCheck1.value != 0) writeSerialLoopBlock(code, {});
}

void Assistent52::writeLoopSubroutines(std::string& code) {
    if (s_.UCheck1.value != 0) writeSerialSubroutines(code, {});
}

void Assistent52::writeSerialLoopBlock(std::string& code, const SerialNames& names) {
    const std::string received = "Empfang" + names.suffix;
    const std::string evaluate = "Serielle Daten" + names.suffix + " auswerten";
    line8(code, "\tif bit " + received + " then");
    line8(code, "\t\tclr " + received);
    if (names.frameError.empty()) {
        line8(code, "\t\t" + evaluate);
    } else {
        line8(code, "\t\tif bit " + names.frameError + " then");
        line8(code, "\t\t\tclr " + names.frameError);
        line8(code, "\t\t\tFraming Error" + names.suffix);
        line8(code, "\t\telse");
        line8(code, "\t\t\t" + evaluate);
        line8(code, "\t\tend if");
    }
    line(code, "\tend if");
}

void Assistent52::writeSerialSubroutines(std::string& code, const SerialNames& names) {
    const std::string busy = "Sendebusy" + names.suffix;
    line(code);
    line8(code, "Serielle Daten" + names.suffix + " auswerten:");
    line8(code, "\tmov a, " + names.buffer);
    line(code, "\t; weitere Befehle");
    line(code, "ret");
    if (!names.frameError.empty()) {
        line(code);
        line8(code, "Framing Error" + names.suffix + ":");
        line(code, "\t; Fehlerbehandlung einfügen");
        line(code, "ret");
    }
    line(code);
    line8(code, "Sende" + names.suffix + ":\t; Sendewert in a");
    line8(code, "\tjb " + busy + text8(", hier\t; auf Sendefreigabe warten"));
    line8(code, "\tmov " + names.buffer + ", a");
    line8(code, "\tsetb " + busy);
    line(code, "ret");
}

void Assistent52::writeRoutines(ProgramParts& out, const GenerationContext& context) {
    if (!context.anyInterrupt) return;
    for (std::size_t i = 0; i < profile_.interrupts.size(); ++i) {
        if (!context.used[i]) continue;
        line(out.code);
        writeRoutine(out, context, i);
    }
}

std::string Assistent52::routineTail(std::size_t) const {
    return {};
}

void Assistent52::writeRoutine(ProgramParts& out, const GenerationContext&, std::size_t source) {
    std::string& code = out.code;
    line(code, std::string(profile_.interrupts[source].routine) + ":");
    switch (profile_.interrupts[source].kind) {
        case RoutineKind::Serial: writeSerialRoutine(code, out); break;
        case RoutineKind::Timer2: writeTimer2Routine(code, source); break;
        case RoutineKind::Plain:
            line(code, "\t; Befehle ...");
            code += routineTail(source);
            line(code, "reti");
            break;
    }
}

void Assistent52::writeSerialRoutine(std::string& code, ProgramParts& out) {
    writeSerialRoutineLines(code, out.declarations, {});
}

void Assistent52::writeSerialRoutineLines(std::string& code, std::string& declarations,
                                          const SerialNames& names) {
    line(code, "\t; Herkunft ermitteln");
    line8(code, "\tif bit " + names.ti + " then\t; Senden");
    line8(code, "\t\tclr " + names.ti);
    line8(code, "\t\tclr Sendebusy" + names.suffix);
    line(code, "\telse\t; Empfangen");
    line8(code, "\t\tclr " + names.ri);
    line8(code, "\t\tsetb Empfang" + names.suffix);
    line(code, "\tend if");
    line(code, "reti");
    line8(declarations, "#Bit Empfang" + names.suffix + ", Sendebusy" + names.suffix);
}

void Assistent52::writeTimer2Routine(std::string& code, std::size_t source) {
    // Overflow and the T2EX edge share the vector where EXF2 can be set.
    bool hasExf = s_.T2Check1.value != 0;
    if (s_.T2Check0.value != 0) {
        switch (selectedTimer2Function()) {
            case T2Timer16:
            case T2TimerReload:
            case T2Counter16:
            case T2CounterReload:
            case T2UpDownTimer:
            case T2UpDownCounter: hasExf = false; break;
            case T2TimerReloadTrigger:
            case T2TimerCapture:
            case T2CounterReloadTrigger:
            case T2CounterCapture: hasExf = true; break;
            default: break;
        }
    }
    if (!hasExf) {
        line(code, "\t; Befehle . .");
        line(code, "\tclr TF2");
        code += routineTail(source);
        line(code, "reti");
        return;
    }
    code += routineTail(source);
    for (const char* text : {"\tjbc TF2, Timer 2 Überlauf", "\tjbc EXF2, T2EX Trigger", "reti",
                             "Timer 2 Überlauf:", "\t; Befehle . .", "reti",
                             "T2EX Trigger:", "\t; Befehle . .", "reti"}) {
        line(code, text);
    }
}

}  // namespace korvex::wizards::assistent52
