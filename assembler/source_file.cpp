#include "assembler/source_file.h"

#include <filesystem>

#include "base/cp1252.h"
#include "base/failure.h"

namespace korvex {

SourceFile SourceFile::open(const std::string& path) {
    return SourceFile(readWholeFile(path));
}

SourceFile SourceFile::fromText(std::string text) {
    return SourceFile(std::move(text));
}

std::string SourceFile::readLine() {
    if (atEnd()) raise(FailureNumber::ReadPastEnd);
    std::size_t end = position_;
    while (end < bytes_.size() && bytes_[end] != '\r' && bytes_[end] != '\n') ++end;
    if (end == bytes_.size()) {
        std::string line = bytes_.substr(position_);
        position_ = bytes_.size();
        return line;
    }
    std::string line = bytes_.substr(position_, end - position_);
    position_ = end + 1;
    if (bytes_[end] == '\r' && position_ < bytes_.size() && bytes_[position_] == '\n') {
        ++position_;
    }
    return line;
}

std::size_t SourceFile::lineEstimate() const {
    // Source lines are rarely shorter than eight bytes.
    return bytes_.size() / 8 + 16;
}

std::string nativePath(std::string_view path) {
    std::string out(path);
    for (char& c : out) {
        if (c == '\\') c = '/';
    }
    return out;
}

std::string findFileIgnoringCase(const std::string& path) {
    if (fileExists(path)) return path;
    const std::filesystem::path wanted(path);
    const std::filesystem::path folder = wanted.has_parent_path() ? wanted.parent_path() : ".";
    const std::string name = upperCase(wanted.filename().string());
    std::error_code ec;
    for (const auto& entry : std::filesystem::directory_iterator(folder, ec)) {
        if (upperCase(entry.path().filename().string()) == name && entry.is_regular_file(ec)) {
            return entry.path().string();
        }
    }
    return path;
}

}  // namespace korvex
