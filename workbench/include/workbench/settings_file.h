#pragma once
// korvex.cfg: the settings in the classic item format, fourteen lines.
// Line 1 holds 18 values, line 2 holds 10, lines 3 to 13 one colour each,
// line 14 the toolbar and the three editor choices. Reading takes the items
// in this order and doesn't care where the lines end.

#include <istream>
#include <optional>
#include <string>

#include "base/failure.h"
#include "workbench/settings.h"

namespace korvex {

inline constexpr const char* kSettingsFileName = "korvex.cfg";

struct SettingsReadResult {
    // What the program goes on with: after a read error, the values that
    // afterReadError() leaves.
    Settings settings;
    // The read error, if there was one.
    std::optional<RuntimeFailure> failure;
    // What was wrong with values that read well but can't be used (German,
    // Windows-1252); such a file counts as a read error too.
    std::string problem;
};

// Why the file extensions can't be used: one empty, holding a path
// separator, or the same for two of the files a run reads and writes (the
// listing would overwrite the source). Empty when they are usable.
std::string extensionProblem(const Settings& settings);

SettingsReadResult readSettingsFrom(std::istream& in, const std::string& programFolder);

// Reads programFolder + "korvex.cfg". A missing file is the failure
// "Datei nicht gefunden" (53), a folder or another thing that is no plain file
// "Fehler beim Zugriff auf Pfad/Datei" (75).
SettingsReadResult readSettingsFile(const std::string& programFolder);

// The bytes of the file, Windows-1252 with CR LF.
std::string settingsText(const Settings& settings);

}  // namespace korvex
