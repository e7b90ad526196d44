#pragma once
// A text file read line by line, as the classic sequential input did: a line
// ends at CR, at CR LF, and (for files written on Linux) at a lone LF. The end
// is tested after a line was read, so reading an empty file is a failure.

#include <cstddef>
#include <string>
#include <string_view>

#include "base/files.h"

namespace korvex {

class SourceFile {
  public:
    // Reads the whole file; a file that can't be opened raises "Datei nicht gefunden".
    static SourceFile open(const std::string& path);
    static SourceFile fromText(std::string text);

    // Raises "Einlesen hinter Dateiende" when the file is at its end.
    std::string readLine();
    bool atEnd() const { return position_ >= bytes_.size(); }
    std::size_t size() const { return bytes_.size(); }
    // Lines to expect, for reserving room.
    std::size_t lineEstimate() const;

  private:
    explicit SourceFile(std::string bytes) : bytes_(std::move(bytes)) {}

    std::string bytes_;
    std::size_t position_ = 0;
};

// Paths in source text may separate with "\\" as well as "/".
std::string nativePath(std::string_view path);

// The path itself when it exists, else a file of the same folder whose name
// differs only in case (sources written for a case-blind system name
// "80c32" for 80C32.cpu), else the path unchanged.
std::string findFileIgnoringCase(const std::string& path);

}  // namespace korvex
