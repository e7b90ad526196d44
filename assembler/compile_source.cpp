#include "assembler/compile_source.h"

#include <filesystem>

#include "assembler/source_file.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

// Where `upperCase(text).find(pattern)` would find it, without an upper case
// copy of a whole source. The pattern starts with a character that only
// stands for itself ("#"), so the search jumps from one of those to the next.
std::size_t findUpperCase(const std::string& text, std::string_view pattern) {
    for (std::size_t at = text.find(pattern[0]); at != std::string::npos;
         at = text.find(pattern[0], at + 1)) {
        if (text.size() - at < pattern.size()) break;
        std::size_t i = 1;
        while (i < pattern.size() && upperChar(text[at + i]) == pattern[i]) ++i;
        if (i == pattern.size()) return at;
    }
    return std::string::npos;
}

}  // namespace

std::optional<CompileSource> decideCompileSource(const std::string& caption, std::string text,
                                                 Host& host, NothingToCompile* why) {
    const auto nothing = [why](NothingToCompile reason) {
        if (why != nullptr) *why = reason;
        return std::nullopt;
    };
    if (startsWith(caption, "Disassembling")) return nothing(NothingToCompile::DisassemblyWindow);
    if (text.empty()) return nothing(NothingToCompile::EmptyText);
    // Only the first occurrence counts, in a comment as well.
    const std::size_t found = findUpperCase(text, "#PART OF ");
    if (found == std::string::npos) return CompileSource{caption, std::move(text)};

    const std::size_t start = found + 9;
    const std::size_t lineEnd = text.find("\r\n", start);
    if (lineEnd == std::string::npos) return nothing(NothingToCompile::PartOfWithoutLineEnd);
    const std::string written = trimBlanks(removeAll(text.substr(start, lineEnd - start), '\''));

    // A relative project name is taken from the folder of the window's file.
    std::string project = toUtf8(nativePath(written));
    if (!startsWith(project, "/")) {
        project = std::filesystem::path(caption).parent_path().string() + "/" + project;
    }
    for (const std::string& candidate : {written, project}) {
        if (auto windowText = host.openWindowText(candidate)) {
            return CompileSource{candidate, std::move(*windowText)};
        }
    }
    const std::string onDisk = findFileIgnoringCase(project);
    if (fileExists(onDisk)) return CompileSource{onDisk, readWholeFile(onDisk)};
    host.messageBox("Korvex",
                    "Kann Projektdatei " + written + " nicht finden." + std::string(kCrLf) +
                        text8("Fehler ausgelöst von #Part of .."),
                    MessageButtons::Ok, MessageIcon::Exclamation);
    return nothing(NothingToCompile::ProjectNotFound);
}

}  // namespace korvex
