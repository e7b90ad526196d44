#pragma once
// The six interrupt sources of the 80C52 in vector order: the label that the
// chip's driver gives the vector, its comment, and the routine it jumps to.

#include <array>

namespace korvex::wizards::assistent52 {

struct InterruptSource {
    const char* vectorLabel;
    const char* vectorComment;
    const char* routine;
};

inline constexpr std::array<InterruptSource, 6> kInterruptSources = {{
    {"EXTI0:", "externer Interrupt 0", "Externer Interrupt 0"},
    {"Timer 0:", "Timer 0 Interrupt", "Timer 0 Interrupt"},
    {"EXTI1:", "externer Interrupt 1", "Externer Interrupt 1"},
    {"Timer 1:", "Timer 1 Interrupt", "Timer 1 Interrupt"},
    {"SINT:", "serieller Interrupt", "Serieller Interrupt"},
    {"Timer 2:", "Timer 2 Interrupt", "Timer 2 Interrupt"},
}};

inline constexpr int kSerialInterrupt = 4;
inline constexpr int kTimer2Interrupt = 5;

}  // namespace korvex::wizards::assistent52
