#pragma once
// What the workbench's disassembler command asks the user: the open dialog
// for a hex or binary file, built from the configured extensions.

#include "workbench/document_window.h"
#include "workbench/settings.h"

namespace korvex {

FileDialogRequest disassemblyFileRequest(const Settings& settings);

}  // namespace korvex
