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
        if (s_.ICheck1[i].value != 0) {
            line(code, profile_.interrupts[i].enableLine);
            if (i == kExternal0Interrupt) trigger(s_.IOption1, "IT0");
            if (i == kExternal1Interrupt) trigger(s_.IOption2, "IT1");
        }
        if (s_.ICheck2[i].value != 0) line(code, profile_.interrupts[i].priorityLine);
    }
    if (s_.ICheck0.value != 0) line(code, "setb EA\t; globale Interruptfreigabe");
}

void Assistent52::writeMainProgram(ProgramParts& out, const GenerationContext& context) {
    std::string& code = out.code;
    if (!context.used[kSerialInterrupt] ||
        profile_.interrupts[kSerialInterrupt].kind != RoutineKind::Serial) {
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
    if (s_.UCheck1.value == 0) return;
    for (const char* text :
         {"\tif bit Empfang then", "\t\tclr Empfang", "\t\tSerielle Daten auswerten", "\tend if"}) {
        line(code, text);
    }
}

void Assistent52::writeLoopSubroutines(std::string& code) {
    if (s_.UCheck1.value == 0) return;
    for (const char* text :
         {"", "Serielle Daten auswerten:", "\tmov a, SBUF", "\t; weitere Befehle", "ret", "",
          "Sende:\t; Sendewert in a", "\tjb Sendebusy, hier\t; auf Sendefreigabe warten",
          "\tmov SBUF, a", "\tsetb Sendebusy", "ret"}) {
        line(code, text);
    }
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
    for (const char* text :
         {"\t; Herkunft ermitteln", "\tif bit TI then\t; Senden", "\t\tclr TI", "\t\tclr Sendebusy",
          "\telse\t; Empfangen", "\t\tclr RI", "\t\tsetb Empfang", "\tend if", "reti"}) {
        line(code, text);
    }
    line(out.declarations, "#Bit Empfang, Sendebusy");
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
