#include "workbench/compile_command.h"

#include <algorithm>

#include "assembler/length_check.h"
#include "assembler/source_places.h"
#include "base/files.h"
#include "base/program_folder.h"
#include "base/text.h"

namespace korvex {

std::vector<FindingPlace> findingsOf(const RunState& state) {
    std::vector<FindingPlace> findings;
    const bool anyMarker =
        std::any_of(state.markers.begin(), state.markers.end(),
                    [](const RowMarker& entry) { return entry.text.length > 0; });
    if (!anyMarker) return findings;
    const std::vector<SourcePlace> places = sourcePlaces(state);
    constexpr std::string_view kMark = ";>err";
    for (const RowMarker& entry : state.markers) {
        const std::string marker(state.markerText(entry));
        const auto row = static_cast<std::size_t>(entry.row);
        if (row >= state.sourceTable.size() || row >= places.size()) continue;
        if (!startsWith(marker, kMark)) continue;
        std::size_t at = kMark.size();
        int number = 0;
        while (at < marker.size() && marker[at] >= '0' && marker[at] <= '9' && number < 10000) {
            number = number * 10 + (marker[at++] - '0');
        }
        // ";>err6: words" and ";>err66 words" both occur.
        if (at < marker.size() && marker[at] == ':') ++at;
        const auto line = parseDecimal(places[row].line, 0);
        findings.push_back(
            {places[row].name, static_cast<int>(line), number, trimBlanks(marker.substr(at))});
    }
    return findings;
}

bool writeCompileSource(const std::string& text, const std::string& temporaryFolder, Host& host) {
    try {
        writeWholeFile(temporaryFolder + "TmpFile.tmp", text);
        return true;
    } catch (const RuntimeFailure& failure) {
        host.messageBox("Fehler", failureBoxText(failure, "Compilieren"), MessageButtons::Ok,
                        MessageIcon::Critical);
        return false;
    }
}

CompileResult runCompile(Assembler& assembler, const Settings& settings,
                         const std::string& sourceName, OutputSwitches switches,
                         const std::string& temporaryFolder) {
    CompileResult result;
    result.sourceName = sourceName;
    AssemblerSettings& run = assembler.settings();
    run.temporaryFolder = temporaryFolder;
    run.listingExtension = settings.listingExtension;
    run.binaryExtension = settings.binaryExtension;
    run.hexExtension = settings.hexExtension;
    run.symbolExtension = settings.symbolExtension;
    switch (assembler.assembleSource(sourceName, switches)) {
        case RunOutcome::Aborted: result.status = CompileStatus::Aborted; return result;
        case RunOutcome::Failed: result.status = CompileStatus::Failed; return result;
        case RunOutcome::Completed: break;
    }
    const RunState& state = assembler.state();
    result.status = CompileStatus::Completed;
    result.report = state.reportText;
    result.hasFindings = startsWith(result.report, "Warnungen/Fehler:");
    result.findings = findingsOf(state);
    result.lengthWarnings = lengthChangeWarnings(state);
    return result;
}

CompileResult compileWindow(Assembler& assembler, Host& host, const Settings& settings,
                            CompileRequest request) {
    NothingToCompile why{};
    auto source = decideCompileSource(request.caption, std::move(request.text), host, &why);
    if (!source) {
        CompileResult result;
        result.why = why;
        return result;
    }
    if (!writeCompileSource(source->text, request.temporaryFolder, host)) {
        CompileResult result;
        result.status = CompileStatus::Failed;
        result.sourceName = source->name;
        result.sourceText = std::move(source->text);
        return result;
    }
    CompileResult result =
        runCompile(assembler, settings, source->name, request.switches, request.temporaryFolder);
    result.sourceText = std::move(source->text);
    return result;
}

}  // namespace korvex
