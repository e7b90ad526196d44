#pragma once
// A source window's caption is its file's name: there is no other record of
// it. Two kinds are told apart by how the caption begins: a window never
// saved ("Unbenannt n", n its slot) and a disassembly ("Disassembling "
// followed by the file name). Texts are Windows-1252.

#include <string>
#include <string_view>

namespace korvex {

inline constexpr std::string_view kUntitled = "Unbenannt";
inline constexpr std::string_view kDisassemblingPrefix = "Disassembling ";

// The title of the main window, and of the questions it asks.
inline constexpr std::string_view kMainCaption = "Korvex";

std::string untitledCaption(int slot);

bool isUntitled(std::string_view caption);
// Without the blank, as the save command tests it.
bool isDisassembly(std::string_view caption);

// The file behind a disassembly's caption; other captions as they are.
std::string fileOfCaption(std::string_view caption);

// Where the old file goes before a save: the target's path up to and
// including its first dot, then "sik51". A dot in a folder's name cuts there,
// as it always has; a path without any dot gets ".sik51" appended.
std::string backupName(std::string_view target);

// The folder part of a path, up to and including the last "/" (empty if none).
std::string folderOf(std::string_view path);

}  // namespace korvex
