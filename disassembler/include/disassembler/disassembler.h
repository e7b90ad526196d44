#pragma once
// The disassembler: a hex or binary file back into source text of the
// language, with or without labels. One linear sweep, no tracing of jumps:
// every byte from the first on is taken for an instruction. Names of
// registers and bits come from the driver of the configured controller,
// read afresh for each run.
//
// The file dialog and the new editor window belong to the caller: a run
// takes the chosen path and returns the caption and the text the window gets.

#include <optional>
#include <string>

#include "base/host.h"

namespace korvex {

// The options of the dialog "Disassembler Konfiguration"; both start off.
struct DisassemblerOptions {
    bool sortAddresses = false;  // SortAddresses
    bool withLabels = false;     // WithLabels
};

struct DisassemblerSettings {
    std::string programFolder;            // the drivers lie here; ends in "/"
    std::string controllerName = "8032";  // ControllerName
    std::string sourceExtension = "a51";  // of the caption
    std::string temporaryFolder;          // Disas.tmp and Disas2.tmp; ends in "/"
};

// The new window while a run works: its text shows the file size and the
// steps, its progress bar the sweep. All texts are Windows-1252.
class DisassemblyMonitor {
  public:
    virtual ~DisassemblyMonitor();
    virtual void windowText(const std::string& caption, const std::string& text);
    // Each grown percent value of the sweep.
    virtual void progress(int percent);
};

enum class DisassemblyOutcome {
    Completed,
    Ended,   // a message (or no file name) ended the run
    Failed,  // a run-time failure, shown as "Fehler # ..."
};

struct DisassemblyWindow {
    std::string caption;  // "Disassembling " and the name with the source extension
    std::string text;     // the result, or the status text when the run ended early
};

struct DisassemblyResult {
    DisassemblyOutcome outcome = DisassemblyOutcome::Ended;
    // Opened once the file is known to hold bytes, and left open when a
    // later step ends the run.
    std::optional<DisassemblyWindow> window;
};

class Disassembler {
  public:
    Disassembler(Host& host, DisassemblerSettings settings);

    // `path` is the file system's path of the chosen file; empty is the
    // dialog's Cancel.
    DisassemblyResult disassembleFile(const std::string& path, const DisassemblerOptions& options,
                                      DisassemblyMonitor* monitor = nullptr);

    DisassemblerSettings& settings() { return settings_; }

  private:
    void run(const std::string& path, const DisassemblerOptions& options,
             DisassemblyMonitor& monitor, DisassemblyResult& result);

    Host& host_;
    DisassemblerSettings settings_;
};

// "Disassembling " and the file's name, its extension replaced by `sourceExtension`.
std::string disassemblyCaption(const std::string& fileName, const std::string& sourceExtension);

}  // namespace korvex
