// Arbitrary bytes as the file to disassemble: whether the first line makes
// it a hex file or not, a run ends with a text, a message or a trapped
// failure, never with a crash, a hang, a leak or a sanitizer report. The last
// byte picks the options, so both modes and the sort are reached.

#include <cstddef>
#include <cstdint>
#include <string>

#include "assembler/assembler.h"
#include "assembler/source_file.h"
#include "disassembler/disassembler.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const korvex::fuzz::ScratchFolder scratch;
    const std::string& folder = scratch.path;
    const std::string file = folder + "fuzz.h51";
    korvex::writeWholeFile(file, std::string(reinterpret_cast<const char*>(data), size));

    korvex::QuietHost host;
    korvex::DisassemblerSettings settings;
    settings.programFolder = KORVEX_DRIVER_FOLDER;  // the shipped drivers
    settings.controllerName = "80C517";             // many names, some of them hexadecimal-looking
    settings.temporaryFolder = folder;
    korvex::Disassembler disassembler(host, settings);

    const std::uint8_t last = size > 0 ? data[size - 1] : 0;
    const korvex::DisassemblerOptions options{(last & 1) != 0, (last & 2) != 0};
    disassembler.disassembleFile(file, options);
    return 0;
}
