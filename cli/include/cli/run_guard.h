#pragma once
// What every command-line tool does around its run: no exception leaves
// `main`, and output that could not be written is a failure, not success.

#include <functional>
#include <ostream>
#include <string>

#include "base/failure.h"

namespace korvex {

inline constexpr int kExitClean = 0;
inline constexpr int kExitFindings = 1;
inline constexpr int kExitFailure = 2;
inline constexpr int kExitUsage = 64;

// "<tool>: Fehler Nummer 53: Datei nicht gefunden" with the file and the
// hint on lines of their own, in the terminal's encoding.
void printFailure(std::ostream& err, const std::string& tool, const RuntimeFailure& failure);

// Runs `body`; an escaping exception becomes the printed failure and exit 2.
int guardedRun(const std::string& tool, std::ostream& err, const std::function<int()>& body);

// The frame of a tool's run: arguments parsed, the help shown when asked,
// else the run itself, all inside the guard. `Options` has a `help` flag.
template <typename Options, typename Parse, typename Run>
int runTool(const std::string& tool, const char* help, std::ostream& out, std::ostream& err,
            Parse parse, Run run) {
    return guardedRun(tool, err, [&] {
        Options options;
        if (const int status = parse(options); status != kExitClean) return status;
        if (options.help) {
            out << help;
            return kExitClean;
        }
        return run(options);
    });
}

// Flushes the process's standard output through to the file or device and
// tells whether everything reached it (a full disk, a closed pipe).
bool standardOutputComplete();

// `main` of a tool: the guarded run, then the check of standard output.
int toolMain(const std::string& tool, const std::function<int()>& body);

}  // namespace korvex
