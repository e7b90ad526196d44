// Interrupt enables, the main program and the interrupt routines.

#include "wizards/assistent52/assistent52.h"
#include "wizards/assistent52/interrupt_sources.h"
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
    struct Lines {
        const char* enable;
        const char* priority;
    };
    static constexpr Lines kLines[] = {
        {"setb EX0\t; externen Interrupt 0 freigeben",
         "setb PX0\t; Priorität für externen Interrupt 0"},
        {"setb ET0\t; Timer 0 Interrupt freigeben", "setb PT0\t; Priorität für Timer 0 Interrupt"},
        {"setb EX1\t; externen Interrupt 1 freigeben",
         "setb PX1\t; Priorität für externen Interrupt 1"},
        {"setb ET1\t; Timer 1 Interrupt freigeben", "setb PT1\t; Priorität für Timer 1 Interrupt"},
        {"setb ES\t; seriellen Interrupt freigeben",
         "setb PS\t; Priorität für seriellen Interrupt"},
        {"setb ET2\t; Timer 2 Interrupt freigeben", "setb PT2\t; Priorität für Timer 2 Interrupt"},
    };
    for (std::size_t i = 0; i < 6; ++i) {
        if (s_.ICheck1[i].value != 0) {
            line(code, kLines[i].enable);
            if (i == 0) trigger(s_.IOption1, "IT0");
            if (i == 2) trigger(s_.IOption2, "IT1");
        }
        if (s_.ICheck2[i].value != 0) line(code, kLines[i].priority);
    }
    if (s_.ICheck0.value != 0) line(code, "setb EA\t; globale Interruptfreigabe");
}

void Assistent52::writeMainProgram(ProgramParts& out, const GenerationContext& context) {
    std::string& code = out.code;
    if (!context.used[kSerialInterrupt]) {
        line(code);
        line(code, "end");
        line(code, "; * * * Hauptprogramm Ende * * *");
        return;
    }
    line(code);
    line(code, "loop\t; Routine für seriellen Empfang");
    // Without the serial port the loop stays open; the user completes it.
    if (s_.UCheck1.value == 0) return;
    for (const char* text :
         {"\tif bit Empfang then", "\t\tclr Empfang", "\t\tSerielle Daten auswerten", "\tend if",
          "end loop", "; * * * Hauptprogramm Ende * * *", "",
          "Serielle Daten auswerten:", "\tmov a, SBUF", "\t; weitere Befehle", "ret", "",
          "Sende:\t; Sendewert in a", "\tjb Sendebusy, hier\t; auf Sendefreigabe warten",
          "\tmov SBUF, a", "\tsetb Sendebusy", "ret"}) {
        line(code, text);
    }
}

void Assistent52::writeRoutines(ProgramParts& out, const GenerationContext& context) {
    if (!context.anyInterrupt) return;
    std::string& code = out.code;
    for (std::size_t i = 0; i < kInterruptSources.size(); ++i) {
        if (!context.used[i]) continue;
        line(code);
        line(code, std::string(kInterruptSources[i].routine) + ":");
        if (i == kSerialInterrupt) {
            for (const char* text : {"\t; Herkunft ermitteln", "\tif bit TI then\t; Senden",
                                     "\t\tclr TI", "\t\tclr Sendebusy", "\telse\t; Empfangen",
                                     "\t\tclr RI", "\t\tsetb Empfang", "\tend if", "reti"}) {
                line(code, text);
            }
            line(out.declarations, "#Bit Empfang, Sendebusy");
        } else if (i == kTimer2Interrupt) {
            // Overflow and the T2EX edge share the vector where EXF2 can be set.
            bool hasExf = s_.T2Check1.value != 0;
            if (s_.T2Check0.value != 0) {
                const int item = s_.T2Combo1.listIndex;
                if (item == 0 || item == 1 || item == 4 || item == 5) hasExf = false;
                if (item == 2 || item == 3 || item == 6 || item == 7) hasExf = true;
            }
            if (!hasExf) {
                for (const char* text : {"\t; Befehle . .", "\tclr TF2", "reti"}) line(code, text);
            } else {
                for (const char* text : {"\tjbc TF2, Timer 2 Überlauf", "\tjbc EXF2, T2EX Trigger",
                                         "reti", "Timer 2 Überlauf:", "\t; Befehle . .", "reti",
                                         "T2EX Trigger:", "\t; Befehle . .", "reti"}) {
                    line(code, text);
                }
            }
        } else {
            line(code, "\t; Befehle ...");
            line(code, "reti");
        }
    }
}

}  // namespace korvex::wizards::assistent52
