// Arbitrary bytes as a source, compiled as the compile command does it:
// whatever the text, a run ends with findings or a trapped failure, never
// with a crash, a hang or a sanitizer report. An input with a NUL byte is a
// driver file up to it and a source behind it, and the source reads that
// driver first.
//
// The source can reach include files, drivers and a project named by
// "#PART OF", but only inside this process's scratch folder: every '/' and
// '\' of the input becomes '_', so each name it writes is one file in the
// folder it is looked up in. The folder holds a few include files, written
// again before every run because the assembler repairs CR CR line ends by
// writing the file back, and everything else in it is cleared, so that no
// run reads what an earlier one wrote.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "assembler/assembler.h"
#include "assembler/compile_source.h"
#include "base/failure.h"
#include "base/files.h"
#include "fuzz_support.h"

namespace {

constexpr const char* kDriverFolderName = "programm";

// Name and text of the include files that every run finds.
struct FixedFile {
    const char* name;
    const char* text;
};

constexpr FixedFile kIncludeFiles[] = {
    {"teil.a51",
     "; ein Teil des Projekts\r\n#PART OF haupt.a51\r\n#byte TeilByte\r\n#bit TeilBit\r\n"
     "#def TeilMakro(x) {mov a,#(x)}\r\nTeil:\tTeilMakro(5)\r\n\tIF A=#5 THEN\r\n"
     "\t\tSETB TeilBit\r\n\tEND IF\r\n\tRET\r\n"},
    {"crcr.a51", "; mit CR CR LF gespeichert\r\r\nCrcr:\tNOP\r\r\n\tDB 1,2,3\r\r\n\tRET\r\r\n"},
    {"leer.a51", ""},
    {"kette.a51", "Kette:\tINC A\r\n#include teil.a51\r\n\tRET\r\n"},
    {"ohneende.a51", "OhneEnde:\tNOP"},
    // A project whose part is the input itself, for "#PART OF haupt.a51".
    {"haupt.a51",
     "#cpu 80C32\r\n\tLJMP Start\r\n#include fuzz.a51\r\nStart:\tLCALL Teil\r\n\tEND\r\n"},
};

// Read from the open window instead of the disk, as an unsaved editor text.
constexpr const char* kWindowName = "fenster.a51";
constexpr const char* kWindowText = "Fenster:\tCPL A\r\r\n\tRET\r\n";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const korvex::fuzz::ScratchFolder scratch;
    const std::string& folder = scratch.path;
    const std::string driverFolder = folder + kDriverFolderName + "/";
    static const bool driversCopied = [&] {
        korvex::fuzz::copyDrivers(KORVEX_DRIVER_FOLDER, driverFolder);
        return true;
    }();
    (void)driversCopied;

    korvex::fuzz::clearFolder(folder,
                              [](const std::string& name) { return name == kDriverFolderName; });
    korvex::deleteFileIfPresent(driverFolder + "fuzz.cpu");
    for (const FixedFile& file : kIncludeFiles)
        korvex::writeWholeFile(folder + file.name, file.text);

    std::string source = korvex::fuzz::withoutSeparators(
        std::string_view(reinterpret_cast<const char*>(data), size));
    if (const std::size_t nul = source.find('\0'); nul != std::string::npos) {
        korvex::writeWholeFile(driverFolder + "fuzz.cpu", source.substr(0, nul));
        source = "#cpu fuzz\r\n" + source.substr(nul + 1);
    }
    // On disk as well, for the project that includes it.
    korvex::writeWholeFile(folder + "fuzz.a51", source);

    korvex::QuietHost host;
    host.windows[folder + kWindowName] = kWindowText;
    std::optional<korvex::CompileSource> compiled;
    try {
        compiled = korvex::decideCompileSource(folder + "fuzz.a51", source, host);
    } catch (const korvex::RuntimeFailure&) {
        return 0;  // the compile command's trap: a box, no run
    }
    if (!compiled) return 0;

    korvex::AssemblerSettings settings;
    settings.programFolder = driverFolder;
    settings.temporaryFolder = folder;
    settings.today = korvex::CalendarDate{1, 1, 2024};  // the same listing on every day
    korvex::writeWholeFile(folder + "TmpFile.tmp", compiled->text);
    korvex::Assembler assembler(host, settings);
    std::string sourceName = compiled->name;
    assembler.assembleSource(sourceName, korvex::OutputSwitches{true, true, true, true});
    return 0;
}
