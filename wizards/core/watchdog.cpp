#include "wizards/core/watchdog.h"

#include <cmath>

#include "base/cp1252.h"
#include "wizards/core/number_text.h"

namespace korvex::wizards {

void appendWatchdogRefresh(std::string& routine, const std::string& registerName) {
    routine += "\torl " + registerName + ", #2\t" + text8("; Watchdogtimer rücksetzen") + "\r\n";
}

double siemensWatchdogPeriod(const SiemensWatchdog& watchdog, double megahertz) {
    return (32768.0 - watchdog.reload * 256.0) * watchdog.divider / (megahertz * 1000.0);
}

SiemensWatchdog siemensWatchdogFor(double megahertz, double periodMs) {
    // Integer divisions by the rounded 6.144 and 98.304, as the program has them.
    const std::int32_t cycles = roundToInt32(megahertz * periodMs);
    std::int32_t a = 128 - cycles / roundToInt32(6.144);
    std::int32_t b = 128 - cycles / roundToInt32(98.304);
    if (a > 127) a = 127;
    if (b > 127) b = 127;
    const SiemensWatchdog fast{a, 24};
    const SiemensWatchdog slow{b, 384};
    const double ta = siemensWatchdogPeriod(fast, megahertz);
    const double tb = siemensWatchdogPeriod(slow, megahertz);
    return std::abs(tb - periodMs) < std::abs(ta - periodMs) ? slow : fast;
}

}  // namespace korvex::wizards
