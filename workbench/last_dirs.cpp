#include "workbench/last_dirs.h"

#include <utility>

#include "base/cp1252.h"
#include "workbench/captions.h"

namespace korvex {

void noteChosenFolder(Settings& settings, const std::string& path) {
    const std::string folder = folderOf(path);
    const std::string name = path.substr(folder.size());
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos) return;
    const std::string extension = upperCase(name.substr(dot + 1));
    const std::pair<const std::string*, std::string*> kinds[] = {
        {&settings.sourceExtension, &settings.sourceFolder},
        {&settings.listingExtension, &settings.listingFolder},
        {&settings.binaryExtension, &settings.binaryFolder},
        {&settings.hexExtension, &settings.hexFolder},
        {&settings.disassemblyExtension, &settings.disassemblyFolder},
        {&settings.symbolExtension, &settings.symbolFolder},
    };
    for (const auto& [kindExtension, kindFolder] : kinds) {
        if (upperCase(*kindExtension) == extension) {
            *kindFolder = folder;
            return;
        }
    }
}

}  // namespace korvex
