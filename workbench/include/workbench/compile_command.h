#pragma once
// The compile command: what the compile dialog and korvex-asm both do with a
// window's caption and text. It picks the source by the #PART OF rule,
// writes it as TmpFile.tmp, runs the assembler with the chosen outputs and
// the configured extensions, and hands back the report and the findings as
// data.

#include <string>
#include <vector>

#include "assembler/assembler.h"
#include "assembler/compile_source.h"
#include "base/host.h"
#include "workbench/settings.h"

namespace korvex {

struct CompileRequest {
    std::string
        caption;       // the window's caption: its file's path, "Unbenannt n", "Disassembling ..."
    std::string text;  // the window's text (Windows-1252), bookmarks already removed
    OutputSwitches switches;
    std::string temporaryFolder;  // where TmpFile.tmp goes, ends in "/"; the caller cleans it
};

// A finding of the report: a row with an ";>err" marker.
struct FindingPlace {
    std::string file;  // the main source's name, or an include as its #INCLUDE names it
    int line = 0;
    int number = 0;
    std::string text;  // the catalogue's words and what follows them
};

enum class CompileStatus {
    NothingToCompile,  // see `why`
    Completed,         // the report is there and the outputs are written
    Aborted,           // cancelled from the dialog
    Failed,            // a run-time failure, shown through the host's box
};

struct CompileResult {
    CompileStatus status = CompileStatus::NothingToCompile;
    NothingToCompile why{};
    std::string sourceName;  // what was compiled: the caption or the project named by #PART OF
    std::string sourceText;  // its text, as the run read it
    std::string report;
    bool hasFindings = false;  // the report begins "Warnungen/Fehler:"
    std::vector<FindingPlace> findings;
    // Statements whose length a forward reference changed (German lines).
    std::vector<std::string> lengthWarnings;
};

// The two halves of the command, for the compile dialog, which writes the
// source when it opens and assembles it when Start is pressed.
// Writes `text` as TmpFile.tmp in `temporaryFolder` (ending in "/"); a
// failure is said through the host's box and gives false.
bool writeCompileSource(const std::string& text, const std::string& temporaryFolder, Host& host);
// Assembles what writeCompileSource wrote, as the source `sourceName`, with
// the extensions of `settings`. `sourceText` stays empty.
CompileResult runCompile(Assembler& assembler, const Settings& settings,
                         const std::string& sourceName, OutputSwitches switches,
                         const std::string& temporaryFolder);

// Both halves after the #PART OF rule. `assembler` is the workbench's long-lived one; its program
// folder and the extensions of `settings` are used for this run.
CompileResult compileWindow(Assembler& assembler, Host& host, const Settings& settings,
                            CompileRequest request);

// The findings of the last run of `state`, in the order of the rows.
std::vector<FindingPlace> findingsOf(const RunState& state);

}  // namespace korvex
