#include "disassembler/disassembler.h"

#include <filesystem>
#include <fstream>

#include "assembler/cpu_driver.h"
#include "assembler/source_file.h"
#include "base/cp1252.h"
#include "base/failure.h"
#include "base/text.h"
#include "disassembler/code_rows.h"
#include "disassembler/label_pass.h"
#include "disassembler/listing.h"
#include "disassembler/operand_names.h"
#include "disassembler/sweep.h"

namespace korvex {
namespace {

constexpr const char* kProgramTitle = "Korvex";
constexpr const char* kErrorTitle = "Fehler";

// Up to `limit` bytes of an open file, from its start.
std::string readStart(std::ifstream& in, std::size_t limit) {
    std::string bytes(limit, '\0');
    in.read(bytes.data(), static_cast<std::streamsize>(limit));
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    in.clear();
    in.seekg(0);
    return bytes;
}

std::string readAll(std::ifstream& in, std::int64_t size) {
    std::string bytes(static_cast<std::size_t>(size), '\0');
    in.read(bytes.data(), size);
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return bytes;
}

}  // namespace

DisassemblyMonitor::~DisassemblyMonitor() = default;
void DisassemblyMonitor::windowText(const std::string&, const std::string&) {}
void DisassemblyMonitor::progress(int) {}

std::string disassemblyCaption(const std::string& fileName, const std::string& sourceExtension) {
    const std::size_t folderEnd = fileName.find_last_of('/');
    const std::size_t dot = fileName.find_last_of('.');
    const bool hasExtension =
        dot != std::string::npos && (folderEnd == std::string::npos || dot > folderEnd);
    const std::string stem = hasExtension ? fileName.substr(0, dot) : fileName;
    return "Disassembling " + stem + "." + sourceExtension;
}

Disassembler::Disassembler(Host& host, DisassemblerSettings settings)
    : host_(host), settings_(std::move(settings)) {}

DisassemblyResult Disassembler::disassembleFile(const std::string& path,
                                                const DisassemblerOptions& options,
                                                DisassemblyMonitor* monitor) {
    DisassemblyMonitor silent;
    DisassemblyResult result;
    try {
        run(path, options, monitor != nullptr ? *monitor : silent, result);
    } catch (...) {
        const RuntimeFailure failure = currentFailure();
        host_.messageBox(kErrorTitle,
                         failureHeadline("Fehler # ", failure, false) + std::string(kCrLf) +
                             failure.description() + failureDetails(failure),
                         MessageButtons::Ok, MessageIcon::Critical);
        result.outcome = DisassemblyOutcome::Failed;
    }
    return result;
}

void Disassembler::run(const std::string& path, const DisassemblerOptions& options,
                       DisassemblyMonitor& monitor, DisassemblyResult& result) {
    // The driver of the configured controller, read afresh for each run.
    const DriverReading driver = readCpuDriverFile(
        cpuDriverPath(removeAll(settings_.controllerName, '\''), settings_.programFolder));
    if (driver.failure) {
        host_.messageBox(kProgramTitle, driverFailureText(driver), MessageButtons::Ok,
                         MessageIcon::Critical);
        return;
    }
    if (path.empty()) return;

    const std::string name = fromUtf8(path);
    std::error_code ec;
    std::ifstream in;
    if (std::filesystem::is_regular_file(path, ec)) in.open(path, std::ios::binary);
    if (!in.is_open()) {
        host_.messageBox(kProgramTitle, text8("Datei kann nicht geöffnet werden: ") + name,
                         MessageButtons::Ok, MessageIcon::Exclamation);
        return;
    }
    in.seekg(0, std::ios::end);
    const auto size = static_cast<std::int64_t>(in.tellg());
    in.seekg(0);
    if (size <= 0) {
        host_.messageBox(kProgramTitle, name + " : Leere Datei", MessageButtons::Ok,
                         MessageIcon::Exclamation);
        return;
    }
    const bool hex = isHexFile(readStart(in, kKindProbeLength));

    DisassemblyWindow& window = result.window.emplace();
    window.caption = disassemblyCaption(name, settings_.sourceExtension);
    window.text = text8("Dateigröße ") + decimalText(size) + " Byte.";
    monitor.windowText(window.caption, window.text);

    CodeRows rows;
    if (hex) {
        if (readHexRows(in, rows) == ReadOutcome::TooLarge) {
            host_.messageBox(kErrorTitle,
                             text8("Datei ist zu groß. Kann maximal 300000 Byte verarbeiten."),
                             MessageButtons::Ok, MessageIcon::Critical);
            return;
        }
        if (options.sortAddresses) {
            window.text += std::string(kCrLf) + "Sortiere Daten...";
            monitor.windowText(window.caption, window.text);
            rows.sortByAddress();
        }
    } else {
        if (size > static_cast<std::int64_t>(kMaxCodeRows)) {
            host_.messageBox(kErrorTitle,
                             "Datei ist " + decimalText(size) +
                                 text8(" groß. Kann maximal 300000 Byte verarbeiten."),
                             MessageButtons::Ok, MessageIcon::Critical);
            return;
        }
        readBinaryRows(readAll(in, size), rows);
    }
    in.close();

    const OperandNames names(driver.driver);
    Sweep sweep;
    startSweep(sweep, name, settings_.controllerName);
    sweepRows(rows, names, sweep, [&monitor](int percent) { monitor.progress(percent); });
    rows.clear();

    // Disas2.tmp stays behind until the next run overwrites it; Disas.tmp,
    // the text of the window, is deleted once the window has it.
    const std::string listingFile = settings_.temporaryFolder + "Disas.tmp";
    writeWholeFile(settings_.temporaryFolder + "Disas2.tmp", sweep.statements);
    if (options.withLabels) {
        writeListingFile(sweep, listingFile);
        window.text += std::string(kCrLf) + "Erzeuge Labels...";
        monitor.windowText(window.caption, window.text);
        std::string text = labelText(std::move(sweep));
        writeWholeFile(listingFile, text);
        window.text = std::move(text);
    } else {
        std::string text = listingText(sweep);
        writeWholeFile(listingFile, text);
        window.text = std::move(text);
    }
    deleteFileIfPresent(listingFile);
    result.outcome = DisassemblyOutcome::Completed;
}

}  // namespace korvex
