#pragma once
// The workbench's start and end, in the order the windows rely on.

#include <string>

#include "base/host.h"
#include "workbench/file_commands.h"
#include "workbench/settings.h"

namespace korvex {

// Window 1 ("Unbenannt 1"), the recent-file menus, a second window beside it
// when the settings ask for two, the focus on window 1, and the file named on
// the command line (double quotes removed) opened into it.
void openStartWindows(FileCommands& commands, DocumentTable& documents, Workspace& workspace,
                      const Settings& settings, const std::string& commandLine);

// Writes korvex.cfg at the end. A failure is told, and the program ends all
// the same. False when writing failed.
bool writeEndSettings(const Settings& settings, const std::string& programFolder, Host& host);

}  // namespace korvex
