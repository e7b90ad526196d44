#pragma once
// A chip's interrupt sources in vector order: the caption of its enable box,
// the label that the chip's driver gives the vector, the vector's comment,
// the routine it jumps to, and the lines that enable it and give it the
// high priority. The 80C52's six are the base; other chips bring their own.

#include <array>
#include <span>

namespace korvex::wizards::assistent52 {

// What the routine of a source holds beyond "; Befehle ..." and "reti".
enum class RoutineKind { Plain, Serial, Timer2 };

struct InterruptSource {
    const char* caption;
    const char* vectorLabel;
    const char* vectorComment;
    const char* routine;
    const char* enableLine;
    const char* priorityLine;
    RoutineKind kind = RoutineKind::Plain;
};

inline constexpr std::array<InterruptSource, 6> kInterruptSources = {{
    {"Externer Interrupt 0, Auslöser:", "EXTI0:", "externer Interrupt 0", "Externer Interrupt 0",
     "setb EX0\t; externen Interrupt 0 freigeben",
     "setb PX0\t; Priorität für externen Interrupt 0"},
    {"Timer 0 Interrupt", "Timer 0:", "Timer 0 Interrupt", "Timer 0 Interrupt",
     "setb ET0\t; Timer 0 Interrupt freigeben", "setb PT0\t; Priorität für Timer 0 Interrupt"},
    {"Externer Interrupt 1, Auslöser:", "EXTI1:", "externer Interrupt 1", "Externer Interrupt 1",
     "setb EX1\t; externen Interrupt 1 freigeben",
     "setb PX1\t; Priorität für externen Interrupt 1"},
    {"Timer 1 Interrupt", "Timer 1:", "Timer 1 Interrupt", "Timer 1 Interrupt",
     "setb ET1\t; Timer 1 Interrupt freigeben", "setb PT1\t; Priorität für Timer 1 Interrupt"},
    {"Serieller Interrupt", "SINT:", "serieller Interrupt", "Serieller Interrupt",
     "setb ES\t; seriellen Interrupt freigeben", "setb PS\t; Priorität für seriellen Interrupt",
     RoutineKind::Serial},
    {"Timer 2 Interrupt", "Timer 2:", "Timer 2 Interrupt", "Timer 2 Interrupt",
     "setb ET2\t; Timer 2 Interrupt freigeben", "setb PT2\t; Priorität für Timer 2 Interrupt",
     RoutineKind::Timer2},
}};

inline constexpr int kExternal0Interrupt = 0;
inline constexpr int kTimer0Interrupt = 1;
inline constexpr int kExternal1Interrupt = 2;
inline constexpr int kTimer1Interrupt = 3;
inline constexpr int kSerialInterrupt = 4;
inline constexpr int kTimer2Interrupt = 5;

}  // namespace korvex::wizards::assistent52
