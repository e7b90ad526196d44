#pragma once
// Replacing a file so that a crash at any moment leaves either the old file or
// the new one, never half of it: the bytes go to a file beside it, reach the
// disk, and then take its name in one step.

#include <string>
#include <string_view>

namespace korvex {

// Raises "Pfad nicht gefunden" (76) when the folder is missing, "Zugriff
// verweigert" (70) when writing there is not allowed, else "Fehler beim
// Zugriff auf Pfad/Datei" (75). A failure leaves the old file as it was.
// A link is kept: the file it points to is replaced.
void replaceFileAtomically(const std::string& path, std::string_view bytes);

}  // namespace korvex
