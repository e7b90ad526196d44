#pragma once
// The watchdog pieces that several chips share: the refresh line that the
// AT89 chips append to a chosen interrupt routine.

#include <string>

namespace korvex::wizards {

// Appends TAB "orl " name ", #2" TAB "; Watchdogtimer rücksetzen" and a line
// end: WDTRST, bit 1 of WCON (AT89S53) or WMCON (AT89S8252).
void appendWatchdogRefresh(std::string& routine, const std::string& registerName);

}  // namespace korvex::wizards
