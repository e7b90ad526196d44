// Arbitrary bytes as a whole command-line run of korvex-asm or korvex-disasm:
// the switches, a korvex.cfg in the program folder (extensions, the
// controller choice) and the source or the hex/binary file. Whatever they
// are, the run ends with an exit status, never with a crash, a hang or a
// sanitizer report.
//
// Input: a byte of switches, a byte for the odd argument and the
// controller, then the settings file up to the first NUL byte and the file
// to translate behind it. Without a NUL byte there is no korvex.cfg and all
// bytes behind the two are the file.
//
// Everything stays in this process's scratch folder: the program folder is
// a copy of the shipped drivers there, the temporary folders of the tools
// are made there (TMPDIR), and every '/' and '\' of the input becomes '_',
// so that no name from the source, the settings (extensions, controller) or
// an include leads out of the folder it is looked up in.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "base/files.h"
#include "cli/asm_command.h"
#include "cli/disasm_command.h"
#include "fuzz_support.h"

namespace {

constexpr const char* kProgramFolderName = "programm";
constexpr const char* kTemporaryFolderName = "tmp";

struct FixedFile {
    const char* name;
    const char* text;
};

// The include files a source finds beside it, written again before every run.
constexpr FixedFile kIncludeFiles[] = {
    {"teil.a51", "#PART OF quelle.a51\r\n#byte TeilByte\r\nTeil:\tMOV A,#5\r\n\tRET\r\n"},
    {"crcr.a51", "Crcr:\tNOP\r\r\n\tRET\r\r\n"},
    {"leer.a51", ""},
    {"kette.a51", "Kette:\tINC A\r\n#include teil.a51\r\n\tRET\r\n"},
    {"haupt.a51",
     "#cpu 80C32\r\n\tLJMP Start\r\n#include quelle.a51\r\nStart:\tLCALL Teil\r\n\tEND\r\n"},
};

// Controllers for --controller: shipped ones, one without a driver, and a
// name with a blank.
constexpr const char* kControllers[] = {"8032",      "80C517", "80C537", "80C515",
                                        "unbekannt", "80 C32", "",       "80c32"};

// Arguments a user gets wrong: a second file, an unknown switch, a switch
// without its value at the end, "-" as a file name.
enum class OddArgument { SecondFile, UnknownSwitch, DanglingValue, Dash };

struct Scratch {
    Scratch() {
        programFolder = folder.path + kProgramFolderName + "/";
        korvex::fuzz::copyDrivers(KORVEX_DRIVER_FOLDER, programFolder);
        const std::string temporary = folder.path + kTemporaryFolderName;
        std::filesystem::create_directories(temporary);
        // The tools' private folders are made below the system's temporary folder.
        setenv("TMPDIR", temporary.c_str(), 1);
    }
    korvex::fuzz::ScratchFolder folder;
    std::string programFolder;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Scratch scratch;
    const std::string& folder = scratch.folder.path;
    if (size < 2) return 0;
    const std::uint8_t switches = data[0];
    const std::uint8_t extra = data[1];

    korvex::fuzz::clearFolder(folder, [](const std::string& name) {
        return name == kProgramFolderName || name == kTemporaryFolderName;
    });
    korvex::deleteFileIfPresent(scratch.programFolder + "korvex.cfg");
    for (const FixedFile& file : kIncludeFiles)
        korvex::writeWholeFile(folder + file.name, file.text);

    std::string body = korvex::fuzz::withoutSeparators(
        std::string_view(reinterpret_cast<const char*>(data + 2), size - 2));
    if (const std::size_t nul = body.find('\0'); nul != std::string::npos) {
        korvex::writeWholeFile(scratch.programFolder + "korvex.cfg", body.substr(0, nul));
        body.erase(0, nul + 1);
    }

    const bool disassemble = (switches & 1) != 0;
    std::vector<std::string> args = {"--program-folder", scratch.programFolder};
    std::string file;
    if (disassemble) {
        file = folder + ((extra & 0x80) != 0 ? "eingabe.b51" : "eingabe.h51");
        if ((switches & 2) != 0) args.push_back("--labels");
        if ((switches & 4) != 0) args.push_back("--sort");
        if ((switches & 8) != 0) args.insert(args.end(), {"-o", folder + "ausgabe.a51"});
        if ((switches & 16) != 0) {
            args.insert(args.end(),
                        {"--controller", kControllers[extra % std::size(kControllers)]});
        }
    } else {
        file = folder + "quelle.a51";
        if ((switches & 2) != 0) args.push_back("--bin");
        if ((switches & 4) != 0) args.push_back("--hex");
        if ((switches & 8) != 0) args.push_back("--listing");
        if ((switches & 16) != 0) args.push_back("--symbols");
        if ((switches & 32) != 0 && (extra & 8) != 0) args.push_back("--all");
    }
    korvex::writeWholeFile(file, body);
    if ((switches & 64) != 0 && (extra & 64) != 0) args.push_back("--help");
    args.push_back(file);
    if ((switches & 128) != 0) {
        switch (static_cast<OddArgument>((extra >> 4) & 3)) {
            case OddArgument::SecondFile: args.push_back(folder + "teil.a51"); break;
            case OddArgument::UnknownSwitch: args.push_back("--unbekannt"); break;
            case OddArgument::DanglingValue:
                args.push_back(disassemble ? "-o" : "--program-folder");
                break;
            case OddArgument::Dash:
                // "-" is a file name; the file is the one argument, so this
                // is its second: refused before anything is read.
                args.push_back("-");
                break;
        }
    }

    std::ostringstream out;
    std::ostringstream err;
    const int status = disassemble ? korvex::runKorvexDisasm(args, out, err)
                                   : korvex::runKorvexAsm(args, out, err);
    if (status != 0 && status != 1 && status != 2 && status != 64) std::abort();
    return 0;
}
