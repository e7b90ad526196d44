// The run: reset, first pass over the source and its includes, second pass
// over the rows marked for retry, then report and outputs.

#include <charconv>
#include <filesystem>
#include <utility>

#include "assembler/assembler.h"
#include "assembler/code_image.h"
#include "assembler/error_catalogue.h"
#include "assembler/length_check.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {

Assembler::Assembler(Host& host, AssemblerSettings settings)
    : host_(host), settings_(std::move(settings)) {}

int findInList(const std::string& key, const std::vector<std::string>& list) {
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (list[i] == key) return static_cast<int>(i);
    }
    return -1;
}

RunOutcome Assembler::assembleSource(const std::string& sourceName, OutputSwitches switches) {
    try {
        return runUntrapped(sourceName, switches);
    } catch (...) {
        // Files stay as they are until the next run closes them.
        host_.messageBox(text8("Fehler"), failureBoxText(currentFailure(), "assembleSource"),
                         MessageButtons::Ok, MessageIcon::Critical);
        return RunOutcome::Failed;
    }
}

RunOutcome Assembler::runUntrapped(const std::string& sourceName, OutputSwitches switches) {
    resetRun();
    state_.sourceName = sourceName;
    state_.sourceFolder = sourceName.substr(0, sourceName.rfind('/') + 1);
    if (!firstPass()) return RunOutcome::Aborted;
    const std::int32_t endOfCode = state_.codeAddress;
    if (!secondPassOver()) return RunOutcome::Aborted;
    writeOutputs(sourceName, switches, endOfCode);
    return RunOutcome::Completed;
}

void Assembler::resetRun() {
    files_.clear();
    state_.currentFile = 1;
    state_.currentRow = 0;
    state_.codeAddress = 0;
    state_.macroCount = 0;
    state_.openIfCount = 0;
    state_.openForCount = 0;
    state_.openLoopCount = 0;
    state_.useLongCall = false;
    state_.errorNumber = Finding::None;
    state_.lineCounters.assign(2, Int16(0));
    state_.instructionBytes = {};
    state_.sourceTable.assign(1, SourceRow{});
    state_.markers.clear();
    state_.rowTexts.clear();
    state_.markerTexts.clear();
    state_.constantTable.reset();
    state_.byteTable.reset();
    state_.wordTable.reset();
    state_.codeText.assign(1, std::string());
    state_.sfrTable.reset();
    state_.bitTable.reset();
    state_.labelTable.reset();
    state_.symbolList.reset();
    state_.macroNames.assign(1, std::string());
    state_.macroBodies.assign(1, std::string());
    state_.macroParameters.assign(1, std::string());
    state_.includeList.assign(1, std::string());
    state_.ifStack.clear();
    state_.forStack.clear();
    state_.loopStack.clear();
    state_.exitIfPatches.clear();
    state_.exitForPatches.clear();
    state_.exitLoopPatches.clear();
    state_.reportText.clear();
    state_.lengthChanges.clear();
    const auto& main =
        files_.emplace(1, SourceFile::open(settings_.temporaryFolder + "TmpFile.tmp"))
            .first->second;
    state_.sourceTable.reserve(main.lineEstimate());
    state_.codeText.reserve(main.lineEstimate());
    // Each line is kept twice: as read, and as the statement it becomes.
    state_.rowTexts.reserve(2 * main.size());
}

void Assembler::letEventsRun() {
    host_.processPendingEvents();
}

SourceFile& Assembler::file(int number) {
    const auto hit = files_.find(number);
    if (hit == files_.end()) {
        // The one way to get here: an include that included another one.
        RuntimeFailure failure(FailureNumber::BadFileName);
        failure.withHint(
            text8("Hinweis: Include-Dateien lassen sich nur eine Ebene tief "
                  "schachteln; eine Include-Datei darf keine weitere einbinden."));
        throw failure;
    }
    return hit->second;
}

void Assembler::closeFile(int number) {
    files_.erase(number);
}

bool Assembler::firstPass() {
    while (true) {
        letEventsRun();
        if (abortRequested_) {
            files_.clear();
            return false;
        }
        std::string line = file(state_.currentFile).readLine();
        state_.errorNumber = Finding::None;
        growRowsTo(state_.currentRow);
        state_.sourceTable[static_cast<std::size_t>(state_.currentRow)].sourceText =
            state_.keepText(line);
        prepareLine(line);
        if (!file(state_.currentFile).atEnd()) continue;

        closeFile(state_.currentFile);
        if (state_.currentFile == 1) return true;
        // An include has ended: back to the file that opened it, which is the
        // one saved by the last #INCLUDE, not simply the number below.
        deleteFileIfPresent(settings_.temporaryFolder + "TmpFile" +
                            std::to_string(state_.currentFile.value()) + ".tmp");
        state_.currentFile = state_.parentFile;
        if (!file(state_.currentFile).atEnd()) continue;
        closeFile(state_.currentFile);
        deleteFileIfPresent(settings_.temporaryFolder + "TmpFile" +
                            std::to_string(state_.currentFile.value()) + ".tmp");
        return true;
    }
}

bool Assembler::secondPassOver() {
    state_.secondPass = true;
    const auto rows = static_cast<std::int32_t>(state_.sourceTable.size());
    for (std::int32_t row = 0; row < rows; ++row) {
        state_.currentRow = row;
        if (!state_.sourceTable[static_cast<std::size_t>(row)].retry) continue;
        state_.codeAddress = static_cast<std::int32_t>(
            parseHexPrefix(state_.codeText[static_cast<std::size_t>(row)].substr(0, 4)));
        std::string statement(state_.statementOf(static_cast<std::size_t>(row)));
        // The rows behind keep their addresses, so a new length is noted for a warning.
        const int firstLength = codeTextLength(state_.codeText[static_cast<std::size_t>(row)]);
        processStatement(statement);
        if (state_.errorNumber != Finding::None) recordError();
        const int secondLength = codeTextLength(state_.codeText[static_cast<std::size_t>(row)]);
        if (secondLength != firstLength) {
            state_.lengthChanges.push_back({row, firstLength, secondLength});
        }
    }
    state_.secondPass = false;
    letEventsRun();
    if (abortRequested_) {
        files_.clear();
        return false;
    }
    return true;
}

void Assembler::writeOutputs(const std::string& sourceName, OutputSwitches switches,
                             std::int32_t endOfCode) {
    // Paths are the file system's (UTF-8); the extensions are settings text.
    // The extension is cut only when its dot stands among the last four characters.
    const std::size_t searchFrom = sourceName.size() >= 4 ? sourceName.size() - 4 : 0;
    const std::string stem = sourceName.substr(0, sourceName.find('.', searchFrom));

    buildReport(endOfCode);
    host_.setDialogText(state_.reportText);
    const std::string base = stem + ".";
    // All outputs are made first and take their names together, so that a
    // failure leaves the old set whole rather than new files beside old ones.
    FileSetWriter outputs;
    const auto add = [&](const std::string& extension, const std::string& bytes) {
        const std::string path = base + toUtf8(extension);
        refuseOverwritingSource(path, sourceName);
        outputs.add(path, bytes);
    };
    if (switches.listing) add(settings_.listingExtension, listingText());
    for (auto& text : state_.codeText) cleanText(text);
    if (switches.binary) add(settings_.binaryExtension, binaryImage(state_.codeText));
    if (switches.hex) add(settings_.hexExtension, hexFileText(state_.codeText));
    if (switches.symbols) add(settings_.symbolExtension, symbolFileText(state_.symbolList));
    outputs.commit();
}

void Assembler::refuseOverwritingSource(const std::string& output,
                                        const std::string& sourceName) const {
    // The files being assembled: the source and every include it read.
    std::vector<std::string> inputs{sourceName};
    for (const std::string& include : state_.includeList) {
        if (!include.empty()) inputs.push_back(toUtf8(include));
    }
    std::error_code ec;
    for (const std::string& input : inputs) {
        if (output == input || std::filesystem::equivalent(output, input, ec)) {
            RuntimeFailure failure(FailureNumber::PathFileAccess, output);
            failure.withHint(
                text8("Die Ausgabedatei wäre eine der übersetzten Quelldateien; sie wird nicht "
                      "überschrieben. Bitte die Dateiendungen in den Einstellungen prüfen."));
            throw failure;
        }
    }
}

void Assembler::growRowsTo(std::int32_t row) {
    const auto needed = static_cast<std::size_t>(row) + 1;
    if (state_.sourceTable.size() < needed) state_.sourceTable.resize(needed);
    if (state_.codeText.size() < needed) state_.codeText.resize(needed);
}

void Assembler::setCodeText(const std::string& text) {
    growRowsTo(state_.currentRow);
    state_.codeText[static_cast<std::size_t>(state_.currentRow)] = text;
}

std::string Assembler::positionText() const {
    const int file = state_.currentFile;
    char buffer[16];
    char* end = std::to_chars(buffer, buffer + sizeof buffer, file).ptr;
    *end++ = ':';
    end = std::to_chars(end, buffer + sizeof buffer,
                        state_.lineCounters.at(static_cast<std::size_t>(file)).value())
              .ptr;
    return std::string(buffer, end);
}

void Assembler::placeRow(SourceRow& row) const {
    const int file = state_.currentFile;
    row.file = static_cast<std::int16_t>(file);
    row.line = state_.lineCounters.at(static_cast<std::size_t>(file)).value();
}

void Assembler::recordError() {
    growRowsTo(state_.currentRow);
    SourceRow& row = state_.sourceTable[static_cast<std::size_t>(state_.currentRow)];
    const int number = findingNumber(state_.errorNumber);
    if (findingKind(number) == FindingKind::Retried) row.retry = true;
    state_.setMarker(state_.currentRow, catalogueMarker(number));
    state_.errorNumber = Finding::None;
}

}  // namespace korvex
