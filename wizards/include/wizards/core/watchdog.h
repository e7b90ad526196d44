#pragma once
// The watchdog pieces that several chips share: the refresh line that the
// AT89 chips append to a chosen interrupt routine, and the period search of
// the Siemens chips' watchdog (C515, C517).

#include <cstdint>
#include <string>

namespace korvex::wizards {

// The Siemens watchdog: 15 bits, the upper seven loaded from WDTREL, clocked
// at fosc / 24 or, with bit 7 of WDTREL, at fosc / 384.
struct SiemensWatchdog {
    std::int32_t reload = 0;  // may be negative for a very long period
    int divider = 24;         // 24 or 384
    // The value written to WDTREL: the reload with the divider's flag in bit 7.
    std::int32_t value() const { return divider == 384 ? (reload | 0x80) : reload; }
};

// The period in ms that a reload and divider give at f MHz.
double siemensWatchdogPeriod(const SiemensWatchdog& watchdog, double megahertz);

// The reload and divider whose period lies nearest to `periodMs` at f MHz;
// at a tie the divider 24.
SiemensWatchdog siemensWatchdogFor(double megahertz, double periodMs);

// Appends TAB "orl " name ", #2" TAB "; Watchdogtimer rücksetzen" and a line
// end: WDTRST, bit 1 of WCON (AT89S53) or WMCON (AT89S8252).
void appendWatchdogRefresh(std::string& routine, const std::string& registerName);

}  // namespace korvex::wizards
