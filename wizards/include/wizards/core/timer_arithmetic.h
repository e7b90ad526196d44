#pragma once
// The numbers the wizards compute from the clock: overflow frequencies and
// periods, reload values from a wanted frequency, baud rates. Single
// precision where the results are shown, double where an expression is
// double; rounding to integers goes half to even. The machine-cycle divider
// is a parameter, as one chip of the family runs a cycle per clock.

#include <cstdint>

namespace korvex::wizards {

inline constexpr int kClassicCycleDivider = 12;

// fosc in Hz from the clock field's value in MHz.
float oscillatorHz(float megahertz);

struct OverflowRate {
    float frequency = 0;  // Hz
    float periodMs = 0;   // 1000 / frequency, a single division
};

// m / divisor, with m = fosc / cycleDivider. A divisor of 0 is the failure
// "Division durch Null".
OverflowRate overflowRate(float fosc, double divisor, int cycleDivider = kClassicCycleDivider);

// Divisors of Timers 0 and 1 by mode (0 to 3); `reload` is the mode-2 reload.
double timer01Divisor(int mode, std::int32_t reload);

struct BaudSetting {
    std::int32_t reload = 0;  // r (8 bits) or R (16 bits)
    double actual = 0;        // the baud rate that this reload gives
};

// Timer 1 in mode 2 as baud generator, `doubled` for SMOD.
BaudSetting timer1Baud(float fosc, double baud, bool doubled);
// Timer 1 of the single-cycle AT89LP4052 as 16-bit auto-reload baud
// generator: R = 65536 − 2^s × fosc / (32 × B), clamped to 0 to 65535.
BaudSetting timer1Baud16(float fosc, double baud, bool doubled);

// The C517's 10-bit baud-rate generators: r = 1024 − clock / B, with clock
// 2^SMOD × fosc / 64 for port 0 and fosc / 32 for port 1. Below 0 becomes 0;
// the upper test is against 1024, so 1024 itself passes and fails the
// division with "Division durch Null".
BaudSetting baudGenerator10(double clock, double baud);

// Timer 2 as baud generator; a reload of 65536 fails with "Division durch Null".
BaudSetting timer2Baud(float fosc, double baud);

// "Frequenz vorgeben" of Timers 0 and 1: the 8-bit reload, q clamped to 256.
std::int32_t timer01ReloadForFrequency(float clockMegahertz, double frequency,
                                       int cycleDivider = kClassicCycleDivider);
// What Timer 2's overflow is divided by: 12 as a timer, 32 as baud-rate
// generator, and 4 where the AT89 chips put its clock out on T2.
enum class Timer2ReloadDivider { Timer = 12, Baud = 32, ClockOutput = 4, FastTimer = 4 };

// "Frequenz vorgeben" of Timer 2: the 16-bit reload. R above 65536 is
// clamped to 65536.
std::int32_t timer2ReloadForFrequency(float fosc, double frequency, Timer2ReloadDivider divider);

}  // namespace korvex::wizards
