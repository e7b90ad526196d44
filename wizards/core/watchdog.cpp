#include "wizards/core/watchdog.h"

#include "base/cp1252.h"

namespace korvex::wizards {

void appendWatchdogRefresh(std::string& routine, const std::string& registerName) {
    routine += "\torl " + registerName + ", #2\t" + text8("; Watchdogtimer rücksetzen") + "\r\n";
}

}  // namespace korvex::wizards
