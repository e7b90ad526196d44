#pragma once
// Whole files by path, as every reader and writer of the system uses them.
// Reading names the file in its failure and tells a missing file from one
// that may not be read. Writing replaces a file whole: the bytes go to a
// fresh file beside it and take its name in one step, so that a run killed at
// any moment leaves the old file or the new one, never a part of either.

#include <string>
#include <string_view>
#include <vector>

namespace korvex {

bool fileExists(const std::string& path);

// "Datei nicht gefunden" (53) when missing, "Zugriff verweigert" (70) when it
// may not be read, "Fehler beim Zugriff auf Pfad/Datei" (75) for a folder, a
// device or a failing read; each failure names the file.
std::string readWholeFile(const std::string& path);

enum class Durability {
    Rename,         // whole after a killed run: outputs and temporary files
    RenameAndSync,  // also whole after a power cut: the user's sources and settings
};

// Raises "Pfad nicht gefunden" (76) when the folder is missing, "Zugriff
// verweigert" (70) when writing there is not allowed, else "Fehler beim
// Zugriff auf Pfad/Datei" (75), naming the file; a failure leaves the old
// file as it was. A link is kept: the file it points to is replaced. The
// temporary file is created exclusively and never through a link, and
// temporaries that a killed run left beside the file are removed.
void replaceFileAtomically(const std::string& path, std::string_view bytes,
                           Durability durability = Durability::RenameAndSync);

// Shorthand for outputs: replaced whole, not synced.
void writeWholeFile(const std::string& path, std::string_view bytes);

// Several files that belong together (the outputs of one run): each is
// written to its temporary file first, and only when all of them are whole
// do they take their names, one right after the other. A failure on the way
// leaves every old file as it was.
class FileSetWriter {
  public:
    FileSetWriter() = default;
    FileSetWriter(const FileSetWriter&) = delete;
    FileSetWriter& operator=(const FileSetWriter&) = delete;
    ~FileSetWriter();  // removes temporaries that were never committed

    void add(const std::string& path, std::string_view bytes);
    void commit();

  private:
    struct Staged {
        std::string target;
        std::string temporary;
    };
    std::vector<Staged> staged_;
};

void deleteFileIfPresent(const std::string& path);

}  // namespace korvex
