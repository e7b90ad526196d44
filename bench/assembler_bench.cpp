// Speed of a whole assembler run over generated sources of growing length.
// The run must stay linear in the number of lines; Complexity(oN) shows it.
//
//   korvex_bench_assembler [benchmark flags]
//   korvex_bench_assembler --write-source FILE LINES   (the source alone, for as31)

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include "assembler/assembler.h"
#include "assembler/source_file.h"
#include "base/text.h"
#include "source_generator.h"

namespace {

using namespace korvex;

constexpr std::array kSizes{4000, 8000, 16000, 32000};

// A private folder holding the source of one size, and an assembler over it.
class SourceRun {
  public:
    SourceRun(int lines, bool structured) {
        folder_ = (std::filesystem::temp_directory_path() / "korvex-bench-XXXXXX").string();
        if (mkdtemp(folder_.data()) == nullptr) std::abort();
        folder_ += '/';
        AssemblerSettings settings;
        settings.programFolder = KORVEX_DRIVER_FOLDER;
        settings.temporaryFolder = folder_;
        assembler_.emplace(host_, settings);
        writeWholeFile(folder_ + "TmpFile.tmp", structured ? bench::generateStructuredSource(lines)
                                                           : bench::generateSource(lines));
    }
    ~SourceRun() {
        std::error_code ec;
        std::filesystem::remove_all(folder_, ec);
    }

    RunOutcome assemble() {
        std::string sourceName = folder_ + "bench.a51";  // the run cuts the extension in place
        return assembler_->assembleSource(sourceName, OutputSwitches{.binary = true, .hex = true});
    }

    // Why the last run is no clean run, or empty.
    std::string problem(RunOutcome outcome) const {
        if (outcome != RunOutcome::Completed) return host_.lastBoxText;
        const std::string& report = assembler_->state().reportText;
        return startsWith(report, "Warnungen/Fehler:") ? report.substr(0, 400) : std::string();
    }

  private:
    std::string folder_;
    QuietHost host_;
    std::optional<Assembler> assembler_;
};

void BM_AssembleSource(benchmark::State& state) {
    SourceRun run(static_cast<int>(state.range(0)), false);
    for (auto _ : state) benchmark::DoNotOptimize(run.assemble());
    state.SetComplexityN(state.range(0));
    state.counters["Zeilen/s"] = benchmark::Counter(static_cast<double>(state.range(0)),
                                                    benchmark::Counter::kIsIterationInvariantRate);
}

BENCHMARK(BM_AssembleSource)
    ->Apply([](benchmark::internal::Benchmark* b) {
        for (int lines : kSizes) b->Arg(lines);
    })
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

// The same sizes in the whole language: structures, macros, tables, variables.
void BM_AssembleStructuredSource(benchmark::State& state) {
    SourceRun run(static_cast<int>(state.range(0)), true);
    for (auto _ : state) benchmark::DoNotOptimize(run.assemble());
    state.SetComplexityN(state.range(0));
    state.counters["Zeilen/s"] = benchmark::Counter(static_cast<double>(state.range(0)),
                                                    benchmark::Counter::kIsIterationInvariantRate);
}

BENCHMARK(BM_AssembleStructuredSource)
    ->Apply([](benchmark::internal::Benchmark* b) {
        for (int lines : kSizes) b->Arg(lines);
    })
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    if (argc >= 2 && std::string(argv[1]) == "--write-source") {
        const long lines = argc == 4 ? std::strtol(argv[3], nullptr, 10) : 0;
        if (lines <= 1 || lines > 32767) {
            std::cerr << "Aufruf: korvex_bench_assembler --write-source DATEI ZEILEN (2..32767)\n";
            return 64;
        }
        writeWholeFile(argv[2], bench::generateSource(static_cast<int>(lines)));
        return 0;
    }
    // A source with findings would measure the error path, not the assembler.
    for (bool structured : {false, true}) {
        for (int lines : kSizes) {
            SourceRun run(lines, structured);
            const std::string problem = run.problem(run.assemble());
            if (!problem.empty()) {
                std::cerr << "Quelltext mit " << lines << " Zeilen nicht fehlerfrei:\n"
                          << problem << '\n';
                return 1;
            }
        }
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
