// #INCLUDE: a further source file read in the middle of the main one.

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/failure.h"
#include "base/files.h"
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
                const std::size_t last =
                    base.size() >= 2 ? base.rfind('/', base.size() - 2) : std::string::npos;
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
    // Source text is 8-bit; the file system speaks UTF-8. The path is shown
    // and listed as the source names it, even where a file of another case
    // answers on disk.
    const std::string written = removeAll(trimLeftBlanks(text.substr(9)), '\'');
    const std::string named = resolveIncludePath(toUtf8(written), state_.sourceFolder);
    const std::string shown = fromUtf8(named);
    const std::string path = findFileIgnoringCase(named);
    if (!fileExists(path)) {
        host_.appendDialogText("kann " + shown + " nicht finden." + std::string(kCrLf));
        setRowMarker(findingMarker(Finding::IncludeNotFound, shown));
        return;
    }
    // The text is taken before any bookkeeping changes: a file that can't be
    // read fails here, naming itself, and the run goes on in the file it was
    // named in.
    const std::optional<std::string> windowText = host_.openWindowText(shown);
    std::string bytes = windowText ? *windowText : readWholeFile(path);

    const bool listed = findInList(shown, state_.includeList) >= 0;
    if (!listed) state_.includeList.push_back(shown);
    state_.parentFile = state_.currentFile;
    state_.currentFile += 1;
    const auto number = static_cast<std::size_t>(state_.currentFile.value());
    if (state_.lineCounters.size() <= number) state_.lineCounters.resize(number + 1);
    state_.lineCounters[number] = 0;
    host_.appendDialogText("Lese " + shown + std::string(kCrLf));

    // An include open in an editor is read as the window shows it.
    std::string copy = path;
    if (windowText) {
        copy = settings_.temporaryFolder + "TmpFile" + std::to_string(number) + ".tmp";
        writeWholeFile(copy, bytes);
    }
    // Files saved with CR CR LF line ends are repaired on the way in. The
    // repaired file takes the old one's name in one step, so that a run side
    // by side reads the old text or the new, never a part; if it may not be
    // written, the run goes on with the repaired text all the same.
    std::string repaired = bytes;
    while (repaired.find("\r\r") != std::string::npos)
        repaired = replaceAll(repaired, "\r\r", "\r");
    if (repaired != bytes) {
        try {
            replaceFileAtomically(copy, repaired);
        } catch (const RuntimeFailure& failure) {
            host_.appendDialogText(fromUtf8(copy) +
                                   text8(" kann nicht repariert werden (CR CR): ") +
                                   failure.description() + std::string(kCrLf));
        }
    }
    files_.insert_or_assign(static_cast<int>(number), SourceFile::fromText(std::move(repaired)));
}

}  // namespace korvex
