// Speed of a whole disassembler run over a 300000-byte image, the most a
// run takes, in both modes and from a hex file. Goal: the run with labels in
// well under half a second. D52 times Debian's d52 (a process per run) on
// the same binary, where it is installed; d52 reads only its first 64 KB, so
// WithLabelsFirst64K runs ours on just those bytes.
//
//   korvex_bench_disassembler [benchmark flags]
//   korvex_bench_disassembler --write-image FILE   (the binary alone, for d52)

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <string>

#include "assembler/assembler.h"
#include "assembler/source_file.h"
#include "base/text.h"
#include "disassembler/disassembler.h"

namespace {

using namespace korvex;

constexpr std::size_t kImageSize = 300000;
constexpr const char* kD52 = "/usr/bin/d52";

// Random bytes: about every sixth instruction jumps, so the label pass has
// plenty to do.
std::string image() {
    std::mt19937 random(8051);
    std::string bytes(kImageSize, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    return bytes;
}

// The same image as a hex file, 32 bytes to a record, addresses wrapping at 64K.
std::string hexFile(const std::string& bytes) {
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); at += 32) {
        const std::size_t count = std::min<std::size_t>(32, bytes.size() - at);
        text +=
            ":" + hexDigits(static_cast<int>(count), 2) + hexDigits(static_cast<int>(at), 4) + "00";
        for (std::size_t k = 0; k < count; ++k)
            text += hexDigits(static_cast<unsigned char>(bytes[at + k]), 2);
        text += "00\r\n";  // the checksum isn't read
    }
    return text + ":00000001FF\r\n";
}

class DisassemblyRun {
  public:
    DisassemblyRun() {
        folder_ = (std::filesystem::temp_directory_path() / "korvex-bench-XXXXXX").string();
        if (mkdtemp(folder_.data()) == nullptr) std::abort();
        folder_ += '/';
        DisassemblerSettings disassemblerSettings;
        disassemblerSettings.programFolder = KORVEX_DRIVER_FOLDER;
        disassemblerSettings.controllerName = "8032";
        disassemblerSettings.temporaryFolder = folder_;
        disassembler_.emplace(host_, disassemblerSettings);
        const std::string bytes = image();
        writeWholeFile(folder_ + "image.bin", bytes);
        writeWholeFile(folder_ + "first64k.bin", bytes.substr(0, 65536));
        writeWholeFile(folder_ + "image.h51", hexFile(bytes));
    }
    ~DisassemblyRun() {
        std::error_code ec;
        std::filesystem::remove_all(folder_, ec);
    }

    std::size_t run(const std::string& file, DisassemblerOptions options) {
        const DisassemblyResult result = disassembler_->disassembleFile(folder_ + file, options);
        if (result.outcome != DisassemblyOutcome::Completed) {
            std::cerr << host_.lastBoxText << '\n';
            std::abort();
        }
        return result.window->text.size();
    }
    const std::string& folder() const { return folder_; }

  private:
    std::string folder_;
    QuietHost host_;
    std::optional<Disassembler> disassembler_;
};

void run(benchmark::State& state, const std::string& file, DisassemblerOptions options) {
    DisassemblyRun disassembly;
    std::size_t textSize = 0;
    for (auto _ : state) benchmark::DoNotOptimize(textSize = disassembly.run(file, options));
    state.counters["text_bytes"] = static_cast<double>(textSize);
}

void WithoutLabels(benchmark::State& state) {
    run(state, "image.bin", {false, false});
}
void WithLabels(benchmark::State& state) {
    run(state, "image.bin", {false, true});
}
void WithLabelsFirst64K(benchmark::State& state) {
    run(state, "first64k.bin", {false, true});
}
void HexSortedWithLabels(benchmark::State& state) {
    run(state, "image.h51", {true, true});
}

void D52(benchmark::State& state) {
    if (!std::filesystem::exists(kD52)) {
        state.SkipWithError("d52 is not installed");
        return;
    }
    DisassemblyRun disassembly;
    const std::string command =
        "cd " + disassembly.folder() + " && " + kD52 + " -b -d image >/dev/null 2>&1";
    for (auto _ : state) {
        if (std::system(command.c_str()) != 0) state.SkipWithError("d52 failed");
    }
}

BENCHMARK(WithoutLabels)->Unit(benchmark::kMillisecond);
BENCHMARK(WithLabels)->Unit(benchmark::kMillisecond);
BENCHMARK(HexSortedWithLabels)->Unit(benchmark::kMillisecond);
BENCHMARK(WithLabelsFirst64K)->Unit(benchmark::kMillisecond);
BENCHMARK(D52)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::string(argv[1]) == "--write-image") {
        writeWholeFile(argv[2], image());
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
