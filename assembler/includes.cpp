// #INCLUDE: a further source file read in the middle of the main one.

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {

std::string resolveIncludePath(std::string path, const std::string& sourceFolder) {
    path = nativePath(path);
    const bool absolute = startsWith(path, "/") || path.find(":/") != std::string::npos;
    if (!absolute) {
        if (startsWith(path, "../")) {
            std::string base = sourceFolder;
            bool more = true;
            while (more) {
                // Up one folder: cut behind the last separator but one.
                const std::size_t last = base.size() >= 2 ? base.rfind('/', base.size() - 2)
                                                          : std::string::npos;
                base = last == std::string::npos ? std::string() : base.substr(0, last + 1);
                more = path.find("../", 3) != std::string::npos;
                path = path.substr(3);
            }
            path = base + path;
        } else {
            path = sourceFolder + path;
        }
    }
    while (path.find("//") != std::string::npos) path = replaceAll(path, "//", "/");
    return path;
}

void Assembler::openInclude(const std::string& text) {
    // Source text is 8-bit; the file system speaks UTF-8.
    const std::string written = removeAll(trimLeftBlanks(text.substr(9)), '\'');
    std::string path = findFileIgnoringCase(resolveIncludePath(toUtf8(written), settings_.sourceFolder));
    const std::string shown = fromUtf8(path);
    if (!fileExists(path)) {
        host_.appendDialogText("kann " + shown + " nicht finden." + std::string(kCrLf));
        setRowMarker(";>err66 Include-Datei nicht gefunden: " + shown);
        return;
    }
    const bool listed = findInList(shown, state_.includeList) >= 0;
    if (!listed) state_.includeList.push_back(shown);

    state_.parentFile = state_.currentFile;
    state_.currentFile += 1;
    const auto number = static_cast<std::size_t>(state_.currentFile.value());
    if (state_.lineCounters.size() <= number) state_.lineCounters.resize(number + 1);
    state_.lineCounters[number] = 0;
    host_.appendDialogText("Lese " + shown + std::string(kCrLf));

    std::string bytes;
    if (const auto windowText = host_.openWindowText(shown)) {
        // An include open in an editor is read as the window shows it.
        path = settings_.temporaryFolder + "TmpFile" + std::to_string(number) + ".tmp";
        bytes = *windowText;
        writeWholeFile(path, bytes);
    } else {
        bytes = readWholeFile(path);
    }
    // Files saved with CR CR LF line ends are repaired on the way in.
    std::string repaired = bytes;
    while (repaired.find("\r\r") != std::string::npos) repaired = replaceAll(repaired, "\r\r", "\r");
    if (repaired != bytes) writeWholeFile(path, repaired);
    files_.insert_or_assign(static_cast<int>(number), SourceFile::fromText(std::move(repaired)));
}

}  // namespace korvex
