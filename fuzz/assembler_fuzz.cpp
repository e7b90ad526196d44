// Arbitrary bytes as a source: whatever the text, a run ends with findings or
// a trapped failure, never with a crash, a hang or a sanitizer report. An
// input with a NUL byte is a driver file up to it and a source behind it,
// and the source reads that driver first.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "assembler/assembler.h"
#include "assembler/source_file.h"

namespace {

// One private folder per process: outputs land beside the source name, and
// parallel fuzzing jobs must not meet. It goes when the process exits.
struct ScratchFolder {
    ScratchFolder() {
        path = (std::filesystem::temp_directory_path() / "korvex-fuzz-XXXXXX").string();
        if (mkdtemp(path.data()) == nullptr) std::abort();
        path += '/';
    }
    ~ScratchFolder() {
        std::error_code ec;
        std::filesystem::remove_all(path, ec);
    }
    std::string path;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder scratch;
    const std::string& folder = scratch.path;
    std::string source(reinterpret_cast<const char*>(data), size);
    if (const std::size_t nul = source.find('\0'); nul != std::string::npos) {
        korvex::writeWholeFile(folder + "fuzz.cpu", source.substr(0, nul));
        source = "#cpu " + folder + "fuzz\r\n" + source.substr(nul + 1);
    }
    korvex::writeWholeFile(folder + "TmpFile.tmp", source);
    korvex::QuietHost host;
    korvex::AssemblerSettings settings;
    settings.programFolder = KORVEX_DRIVER_FOLDER;  // the shipped drivers, so #CPU reads real ones
    settings.temporaryFolder = settings.sourceFolder = folder;
    settings.today = korvex::CalendarDate{1, 1, 2024};  // the same listing on every day
    korvex::Assembler assembler(host, settings);
    std::string sourceName = folder + "fuzz.a51";
    assembler.assembleSource(sourceName, korvex::OutputSwitches{true, true, true, true});
    return 0;
}
