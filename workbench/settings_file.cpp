#include "workbench/settings_file.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "base/cp1252.h"
#include "workbench/item_format.h"

namespace korvex {
namespace {

// Field by field into `settings`, so that what was read before a failure is
// still there for the fallback.
void readFields(ItemReader& in, Settings& s) {
    s.sourceExtension = in.readString();
    s.listingExtension = in.readString();
    s.binaryExtension = in.readString();
    s.hexExtension = in.readString();
    s.disassemblyExtension = in.readString();
    s.symbolExtension = in.readString();
    s.HexWindowLeft = in.readInt16();
    s.HexWindowTop = in.readInt16();
    s.HexWindowWidth = in.readInt16();
    s.HexWindowHeight = in.readInt16();
    s.ControllerName = in.readString();
    s.ReferenceWindowLeft = in.readInt32();
    s.ReferenceWindowTop = in.readInt32();
    s.ReferenceWindowTab = in.readInt16();
    s.EditorFontName = in.readString();
    s.EditorFontSize = in.readInt16();
    s.EditorFontBold = in.readBoolean();
    s.EditorFontItalic = in.readBoolean();

    s.sourceFolder = in.readString();
    s.listingFolder = in.readString();
    s.binaryFolder = in.readString();
    s.hexFolder = in.readString();
    s.disassemblyFolder = in.readString();
    s.symbolFolder = in.readString();
    s.CompileWindowLeft = in.readInt16();
    s.CompileWindowTop = in.readInt16();
    s.CompileWindowWidth = in.readInt16();
    s.CompileWindowHeight = in.readInt16();

    for (std::int32_t& colour : s.Colours) colour = in.readInt32();

    // The toolbar takes its flags at once.
    s.toolbar = toolbarFromFlags(in.readInt32());
    s.TwoWindowsAtStart = in.readInt16();
    s.BookmarksEnabled = in.readBoolean();
    s.HangingIndent = in.readBoolean();
    s.NoRightWrap = in.readBoolean();
}

FailureNumber openingFailure(int error) {
    switch (error) {
        case EACCES:
        case EPERM: return FailureNumber::PermissionDenied;
        default: return FailureNumber::PathFileAccess;
    }
}

}  // namespace

std::string extensionProblem(const Settings& s) {
    const std::pair<const char*, const std::string*> named[] = {
        {"Programmcode", &s.sourceExtension}, {"Listing", &s.listingExtension},
        {"Binärcode", &s.binaryExtension},    {"Hexcode", &s.hexExtension},
        {"Symboldatei", &s.symbolExtension},  {"Disassembling", &s.disassemblyExtension},
    };
    for (const auto& [name, extension] : named) {
        if (extension->empty()) return text8("Die Dateiendung für ") + text8(name) + " ist leer.";
        if (extension->find_first_of("/\\") != std::string::npos) {
            return text8("Die Dateiendung für ") + text8(name) + text8(" „") + *extension +
                   text8("“ enthält ein Trennzeichen von Pfaden.");
        }
    }
    // The disassembly is saved by the user like a source, so only the five
    // files of a run must differ.
    constexpr std::size_t kRunFiles = 5;
    for (std::size_t i = 0; i < kRunFiles; ++i) {
        for (std::size_t j = i + 1; j < kRunFiles; ++j) {
            if (upperCase(*named[i].second) == upperCase(*named[j].second)) {
                return text8("Die Dateiendung „") + *named[i].second + text8("“ gilt für ") +
                       text8(named[i].first) + " und " + text8(named[j].first) +
                       text8("; eine Ausgabe würde eine andere Datei überschreiben.");
            }
        }
    }
    return {};
}

SettingsReadResult readSettingsFrom(std::istream& in, const std::string& programFolder) {
    SettingsReadResult result{defaultSettings(programFolder), std::nullopt, {}};
    try {
        ItemReader reader(in);
        readFields(reader, result.settings);
        // Values that read well but would lose files count as a damaged file.
        result.problem = extensionProblem(result.settings);
        if (!result.problem.empty()) raise(FailureNumber::TypeMismatch);
    } catch (const RuntimeFailure& failure) {
        result.settings = afterReadError(result.settings, programFolder);
        result.failure = failure;
    }
    return result;
}

SettingsReadResult readSettingsFile(const std::string& programFolder) {
    const std::string path = programFolder + kSettingsFileName;
    std::optional<FailureNumber> failure;
    std::error_code ec;
    const auto status = std::filesystem::status(path, ec);
    std::ifstream file;
    if (!std::filesystem::exists(status)) {
        failure = FailureNumber::FileNotFound;
    } else if (!std::filesystem::is_regular_file(status)) {
        // A folder, a pipe or a device: nothing a settings file can be, and
        // a pipe would keep the start waiting.
        failure = FailureNumber::PathFileAccess;
    } else {
        errno = 0;
        file.open(path, std::ios::binary);
        if (!file) failure = openingFailure(errno);
    }
    if (failure) {
        return SettingsReadResult{
            defaultSettings(programFolder), RuntimeFailure(*failure, path), {}};
    }
    return readSettingsFrom(file, programFolder);
}

std::string settingsText(const Settings& s) {
    ItemWriter out;
    out.writeString(s.sourceExtension);
    out.writeString(s.listingExtension);
    out.writeString(s.binaryExtension);
    out.writeString(s.hexExtension);
    out.writeString(s.disassemblyExtension);
    out.writeString(s.symbolExtension);
    out.writeNumber(s.HexWindowLeft);
    out.writeNumber(s.HexWindowTop);
    out.writeNumber(s.HexWindowWidth);
    out.writeNumber(s.HexWindowHeight);
    out.writeString(s.ControllerName);
    out.writeNumber(s.ReferenceWindowLeft);
    out.writeNumber(s.ReferenceWindowTop);
    out.writeNumber(s.ReferenceWindowTab);
    out.writeString(s.EditorFontName);
    out.writeNumber(s.EditorFontSize);
    out.writeBoolean(s.EditorFontBold);
    out.writeBoolean(s.EditorFontItalic);
    out.endLine();

    out.writeString(s.sourceFolder);
    out.writeString(s.listingFolder);
    out.writeString(s.binaryFolder);
    out.writeString(s.hexFolder);
    out.writeString(s.disassemblyFolder);
    out.writeString(s.symbolFolder);
    out.writeNumber(s.CompileWindowLeft);
    out.writeNumber(s.CompileWindowTop);
    out.writeNumber(s.CompileWindowWidth);
    out.writeNumber(s.CompileWindowHeight);
    out.endLine();

    for (const std::int32_t colour : s.Colours) {
        out.writeNumber(colour);
        out.endLine();
    }

    out.writeNumber(toolbarFlags(s.toolbar));
    out.writeNumber(s.TwoWindowsAtStart);
    out.writeBoolean(s.BookmarksEnabled);
    out.writeBoolean(s.HangingIndent);
    out.writeBoolean(s.NoRightWrap);
    out.endLine();
    return out.text();
}

}  // namespace korvex
