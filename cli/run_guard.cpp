#include "cli/run_guard.h"

#include <cstdio>
#include <iostream>

#include "base/cp1252.h"
#include "base/text.h"
#include "cli/terminal_text.h"

namespace korvex {

void printFailure(std::ostream& err, const std::string& tool, const RuntimeFailure& failure) {
    err << tool << ": "
        << toTerminal(text8("Fehler Nummer") + decimalText(failure.number(), true) + ": " +
                      failure.description())
        << '\n';
    if (!failure.file().empty()) err << toTerminal("  Datei: " + failure.file()) << '\n';
    if (!failure.hint().empty()) err << toTerminal("  " + failure.hint()) << '\n';
}

int guardedRun(const std::string& tool, std::ostream& err, const std::function<int()>& body) {
    try {
        return body();
    } catch (...) {
        printFailure(err, tool, currentFailure());
        return kExitFailure;
    }
}

bool standardOutputComplete() {
    std::cout.flush();
    const bool streamGood = static_cast<bool>(std::cout);
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 && streamGood;
}

int toolMain(const std::string& tool, const std::function<int()>& body) {
    int status = guardedRun(tool, std::cerr, body);
    if (!standardOutputComplete()) {
        std::cerr << tool << ": "
                  << toTerminal(text8("Die Standardausgabe konnte nicht vollständig geschrieben "
                                      "werden (Datenträger voll?)."))
                  << '\n';
        status = kExitFailure;
    }
    return status;
}

}  // namespace korvex
