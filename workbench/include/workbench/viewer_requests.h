#pragma once
// The open dialogs of the viewers: listing, hex and binary files.

#include <string>

#include "workbench/document_window.h"
#include "workbench/settings.h"

namespace korvex {

FileDialogRequest listingFileRequest(const Settings& settings);
FileDialogRequest hexFileRequest(const Settings& settings);
FileDialogRequest binaryFileRequest(const Settings& settings);

// A viewer's caption: its kind ("Listing: ", "Hexdatei: ", "Binärdatei: ")
// and the file's name without its folder.
std::string viewerCaption(std::string_view kind, const std::string& path);

}  // namespace korvex
