#pragma once
// What the compile command assembles: the text of the active window, or, when
// that text names a project with "#PART OF", the project file's text from its
// own window or from disk.

#include <optional>
#include <string>

#include "base/host.h"

namespace korvex {

struct CompileSource {
    std::string name;  // the source name the run gets: outputs land beside it
    std::string text;  // what the temporary file receives
};

// Why nothing is compiled. The workbench stays silent on the first three, as
// the compile command does; a command-line tool must say why it did nothing.
enum class NothingToCompile {
    DisassemblyWindow,
    EmptyText,
    PartOfWithoutLineEnd,
    ProjectNotFound,  // already said through the host's message box
};

// `caption` is the active window's caption (its file path), `text` its text,
// taken over, since a large source should not be copied on its way to the run.
// Nothing comes back for a disassembly window, an empty text, a "#PART OF"
// line without a line end behind it, or a project that can't be found; the
// last of these says so through the host's message box. `why` receives the
// reason when nothing comes back.
std::optional<CompileSource> decideCompileSource(const std::string& caption, std::string text,
                                                 Host& host, NothingToCompile* why = nullptr);

}  // namespace korvex
