// Speed of a whole assembler run over generated sources of growing length.
// The run must stay linear in the number of lines; Complexity(oN) shows it.
//
//   korvex_bench_assembler [benchmark flags]
//   korvex_bench_assembler --write-source FILE LINES   (the source alone, for as31)

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include "assembler/assembler.h"
#include "assembler/source_file.h"
#include "base/text.h"
#include "bench/source_generator.h"

namespace {

using namespace korvex;

std::string makeScratchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "korvex-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) return {};
    return pattern + "/";
}

int countFindings(const Assembler& assembler) {
    int findings = 0;
    for (const SourceRow& row : assembler.state().sourceTable) {
        if (!trimBlanks(row.marker).empty()) ++findings;
    }
    return findings;
}

void BM_AssembleSource(benchmark::State& state) {
    const auto lines = static_cast<int>(state.range(0));
    const std::string folder = makeScratchFolder();
    if (folder.empty()) {
        state.SkipWithError("kein temporärer Ordner");
        return;
    }
    QuietHost host;
    Assembler assembler(host, AssemblerSettings{folder, folder, folder});
    writeWholeFile(folder + "TmpFile.tmp", bench::generateSource(lines));
    const OutputSwitches switches{.binary = true, .hex = true};

    // A source with findings would measure the error path, not the assembler.
    std::string sourceName = folder + "bench.a51";
    const RunOutcome outcome = assembler.assembleSource(sourceName, switches);
    const int findings = countFindings(assembler);
    if (outcome != RunOutcome::Completed || findings != 0) {
        state.SkipWithError(("Quelltext nicht fehlerfrei: " + std::to_string(findings) +
                             " Befunde, " + host.lastBoxText)
                                .c_str());
    } else {
        for (auto _ : state) {
            sourceName = folder + "bench.a51";  // the run cuts the extension in place
            benchmark::DoNotOptimize(assembler.assembleSource(sourceName, switches));
        }
        state.SetComplexityN(lines);
        state.counters["Zeilen/s"] =
            benchmark::Counter(static_cast<double>(lines), benchmark::Counter::kIsIterationInvariantRate);
    }
    std::error_code ec;
    std::filesystem::remove_all(folder, ec);
}

BENCHMARK(BM_AssembleSource)
    ->Arg(4000)
    ->Arg(8000)
    ->Arg(16000)
    ->Arg(32000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    if (argc >= 2 && std::string(argv[1]) == "--write-source") {
        const long lines = argc == 4 ? std::strtol(argv[3], nullptr, 10) : 0;
        if (lines <= 0 || lines > 32767) {
            std::cerr << "Aufruf: korvex_bench_assembler --write-source DATEI ZEILEN (1..32767)\n";
            return 64;
        }
        writeWholeFile(argv[2], bench::generateSource(static_cast<int>(lines)));
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
