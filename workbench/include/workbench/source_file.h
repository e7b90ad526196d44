#pragma once
// Reading and writing a source window's file. Names are Windows-1252 text, as
// captions hold them; the bytes of the file are the window's text unchanged.

#include <string>

namespace korvex {

// The text a window shows for this file: plain text as it is, an RTF file
// (one whose first 20 bytes hold "{\rtf1\ansi") as its plain text. Raises
// the failure of base/files.h when the file can't be read.
std::string readSourceFile(const std::string& name);

// A rich text control saving plain text doubles some CRs; every CR CR
// becomes CR, as long as there are any.
std::string withoutDoubledCr(std::string bytes);

// WriteTextFile: replaces the file whole with the text, CR CR repaired.
void writeTextFile(const std::string& text, const std::string& name);

// Before a save over an existing file, its old bytes go to backupName().
void writeBackupOf(const std::string& name);

}  // namespace korvex
