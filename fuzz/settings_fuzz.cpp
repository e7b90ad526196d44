// Arbitrary bytes as korvex.cfg: reading ends in settings to run on, with at
// most a read error (6, 13 or 62), never a crash, a hang or a sanitizer
// report. What was read, written again, reads back the same, unless a string
// holds a double quote, which the format can't keep.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <sstream>
#include <string>

#include "workbench/settings_file.h"

namespace {

bool holdsQuote(const korvex::Settings& s) {
    for (const std::string* text :
         {&s.sourceExtension, &s.listingExtension, &s.binaryExtension, &s.hexExtension,
          &s.disassemblyExtension, &s.symbolExtension, &s.ControllerName, &s.EditorFontName,
          &s.sourceFolder, &s.listingFolder, &s.binaryFolder, &s.hexFolder, &s.disassemblyFolder,
          &s.symbolFolder}) {
        if (text->find('"') != std::string::npos) return true;
    }
    return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string programFolder = "/korvex/";
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
    const korvex::SettingsReadResult read = korvex::readSettingsFrom(in, programFolder);
    if (read.failure) {
        const int number = read.failure->number();
        if (number != 6 && number != 13 && number != 62) std::abort();
        return 0;
    }
    if (holdsQuote(read.settings)) return 0;
    std::istringstream again(korvex::settingsText(read.settings));
    const korvex::SettingsReadResult reread = korvex::readSettingsFrom(again, programFolder);
    if (reread.failure || !(reread.settings == read.settings)) std::abort();
    return 0;
}
