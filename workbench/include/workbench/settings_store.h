#pragma once
// The settings at the start and at the end of the workbench.

#include <optional>
#include <string>

#include "base/host.h"
#include "workbench/settings.h"

namespace korvex {

// Reads programFolder + "korvex.cfg". On a read error, a missing file
// included, the user is asked whether to run all the same: Yes gives what
// afterReadError() leaves (for a missing file, the defaults); No gives
// nothing, and the caller ends the program.
std::optional<Settings> ReadSettings(const std::string& programFolder, Host& host);

// Replaces programFolder + "korvex.cfg" with the settings as they stand.
// A failure raises RuntimeFailure; the old file is left whole.
void WriteSettings(const Settings& settings, const std::string& programFolder);

}  // namespace korvex
