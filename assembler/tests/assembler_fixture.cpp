#include "assembler_fixture.h"

#include <cstdlib>
#include <filesystem>

#include "assembler/source_file.h"
#include "base/program_folder.h"
#include "base/text.h"

namespace korvex::testing {

namespace {

constexpr const char* kTestDriver =
    "; Testtreiber\r\n"
    "VECTOR\r\n0000 RESET\r\n0003 EXTI0\r\n000B TIMER0\r\n"
    "SFR\r\n81 SP\r\n90 P1\r\n88 TCON\r\n87 PCON\r\nD0 PSW\r\nE0 ACC\r\nF0 B\r\n"
    "BIT\r\n8E TR1\r\n8C TR0\r\nD7 CY\r\n";

std::vector<std::string> crLfLines(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find("\r\n", from), text.size());
        lines.push_back(text.substr(from, end - from));
        from = end + 2;
    }
    return lines;
}

std::string readIfThere(const std::string& path) {
    return fileExists(path) ? readWholeFile(path) : std::string();
}

}  // namespace

std::vector<ListedRow> listedRows(const std::string& listing) {
    std::vector<ListedRow> rows;
    const std::vector<std::string> lines = crLfLines(listing);
    // The header, then one line per row up to the empty line before the report.
    for (std::size_t i = 1; i < lines.size() && !lines[i].empty(); ++i) {
        ListedRow row;
        std::size_t from = 0;
        for (std::size_t tab, field = 0; (tab = lines[i].find('\t', from)) != std::string::npos;
             ++field) {
            const std::string text = lines[i].substr(from, tab - from);
            from = tab + 1;
            if (text.find(':') != std::string::npos) {
                row.position = text;
                break;
            }
            if (field == 0) row.address = text;
            if (field > 0 && !cleaned(text).empty()) {
                row.bytes += (row.bytes.empty() ? "" : " ") + cleaned(text);
            }
        }
        row.source = lines[i].substr(from);
        if (row.position.empty() && !rows.empty()) row.position = rows.back().position;
        rows.push_back(row);
    }
    return rows;
}

std::vector<std::string> reportFindings(const std::string& report) {
    std::vector<std::string> out;
    for (const std::string& line : crLfLines(report)) {
        if (!startsWith(line, "Zeile ")) continue;
        const std::size_t blank = line.find(' ', 6);
        std::size_t marker = line.find(";>err");
        if (marker == std::string::npos) marker = line.rfind("; ");
        out.push_back(line.substr(6, blank - 6) + " " + line.substr(marker));
    }
    return out;
}

std::string hexBytes(const std::string& bytes) {
    std::string out;
    for (char c : bytes)
        out += (out.empty() ? "" : " ") + hexDigits(static_cast<unsigned char>(c), 2);
    return out;
}

AssembledSource assembleText(const std::string& source, const std::string& programFolder,
                             const std::string& folder) {
    QuietHost host;
    AssemblerSettings settings;
    settings.programFolder = programFolder;
    settings.temporaryFolder = folder;
    Assembler assembler(host, settings);
    writeWholeFile(folder + "TmpFile.tmp", source);
    AssembledSource out;
    const std::string stem = folder + "quelle";
    out.outcome = assembler.assembleSource(stem + ".a51", kAllOutputs);
    if (out.outcome == RunOutcome::Completed) {
        out.report = host.dialogText;
        out.findings = reportFindings(out.report);
        out.image = readIfThere(stem + ".b51");
        out.hexText = readIfThere(stem + ".h51");
        out.listing = readIfThere(stem + ".l51");
    }
    out.boxText = host.lastBoxText;
    return out;
}

void AssemblerFixture::SetUp() {
    folder_ = makePrivateTemporaryFolder();
    ASSERT_FALSE(folder_.empty());
    AssemblerSettings settings;
    settings.programFolder = folder_;
    settings.temporaryFolder = folder_;
    assembler_ = std::make_unique<Assembler>(host_, settings);
    writeFile("test.cpu", kTestDriver);
}

void AssemblerFixture::TearDown() {
    std::error_code ec;
    std::filesystem::remove_all(folder_, ec);
}

RunOutcome AssemblerFixture::assemble(const std::string& source, OutputSwitches switches) {
    lineOffset_ = 1;
    for (const char* extension : {"b51", "h51", "l51", "s51"}) {
        std::filesystem::remove(folder_ + "prog." + extension);
    }
    host_.dialogText.clear();
    writeFile("TmpFile.tmp", source);
    return assembler_->assembleSource(folder_ + "prog.a51", switches);
}

RunOutcome AssemblerFixture::assembleLines(const std::vector<std::string>& lines,
                                           OutputSwitches switches) {
    std::string text = "#cpu test\r\n";
    for (const auto& line : lines) text += line + "\r\n";
    const RunOutcome outcome = assemble(text, switches);
    lineOffset_ = 2;
    return outcome;
}

std::vector<ListedRow> AssemblerFixture::rowsAt(int line) const {
    const std::string position = "1:" + std::to_string(line + lineOffset_);
    std::vector<ListedRow> rows = listedRows(readFile("prog.l51"));
    std::erase_if(rows, [&](const ListedRow& row) { return row.position != position; });
    return rows;
}

int AssemblerFixture::findingAt(int line) const {
    const std::string at = "1:" + std::to_string(line + lineOffset_) + " ;>err";
    for (const std::string& finding : findings()) {
        if (startsWith(finding, at)) return std::atoi(finding.c_str() + at.size());
    }
    return 0;
}

std::string AssemblerFixture::bytesAt(int line) const {
    std::string out;
    for (const ListedRow& row : rowsAt(line)) {
        if (!row.bytes.empty()) out += (out.empty() ? "" : " ") + row.bytes;
    }
    return out;
}

std::string AssemblerFixture::addressAt(int line) const {
    const auto rows = rowsAt(line);
    return rows.empty() ? "-" : rows.front().address;
}

std::string AssemblerFixture::symbol(const std::string& name) const {
    const std::string quoted = "\"" + name + "\",";
    for (std::string line : crLfLines(readFile("prog.s51"))) {
        if (!startsWith(line, quoted)) continue;
        const std::size_t open = line.rfind('"', line.size() - 2);
        return line.substr(open + 1, line.size() - open - 2);
    }
    return "-";
}

void AssemblerFixture::writeFile(const std::string& name, const std::string& bytes) const {
    writeWholeFile(folder_ + name, bytes);
}

std::string AssemblerFixture::readFile(const std::string& name) const {
    return readIfThere(folder_ + name);
}

}  // namespace korvex::testing
