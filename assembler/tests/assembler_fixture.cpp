#include "assembler_fixture.h"

#include <filesystem>

#include "assembler/code_image.h"
#include "assembler/source_file.h"
#include "base/program_folder.h"
#include "base/text.h"

namespace korvex::testing {

const char* const kTestDriver =
    "; Testtreiber\r\n"
    "VECTOR\r\n0000 RESET\r\n0003 EXTI0\r\n000B TIMER0\r\n"
    "SFR\r\n81 SP\r\n90 P1\r\n88 TCON\r\n87 PCON\r\nD0 PSW\r\nE0 ACC\r\nF0 B\r\n"
    "BIT\r\n8E TR1\r\n8C TR0\r\nD7 CY\r\n";

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
    rowOffset_ = 0;
    writeFile("TmpFile.tmp", source);
    std::string name = folder_ + "prog.a51";
    return assembler_->assembleSource(name, switches);
}

RunOutcome AssemblerFixture::assembleLines(const std::vector<std::string>& lines,
                                           OutputSwitches switches) {
    std::string text = "#cpu test\r\n";
    for (const auto& line : lines) text += line + "\r\n";
    const RunOutcome outcome = assemble(text, switches);
    rowOffset_ = 1;
    return outcome;
}

std::string AssemblerFixture::image() const {
    return binaryImage(assembler_->state().codeText);
}

std::string AssemblerFixture::bytesOfRow(int index) const {
    CodeEntry entry;
    std::string code = this->code(index);
    cleanText(code);
    readCodeEntry(code, entry);
    std::string out;
    for (auto byte : entry.bytes) out += (out.empty() ? "" : " ") + hexDigits(byte, 2);
    return out;
}

AssemblerFixture::RowColumns AssemblerFixture::row(int index) const {
    const RunState& state = assembler_->state();
    const auto at = static_cast<std::size_t>(index + rowOffset_);
    const SourceRow& row = state.sourceTable.at(at);
    return {std::string(state.markerOf(at)), row.position(), std::string(state.statementOf(at)),
            std::string(state.sourceTextOf(at)), row.retry};
}

const std::string& AssemblerFixture::code(int index) const {
    return assembler_->state().codeText.at(static_cast<std::size_t>(index + rowOffset_));
}

int AssemblerFixture::markerNumber(int index) const {
    const std::string marker = row(index).marker;
    if (!startsWith(marker, ";>err")) return 0;
    return static_cast<int>(parseDecimal(marker.substr(5, marker.find_first_of(": ", 5) - 5)));
}

std::vector<std::string> AssemblerFixture::markers() const {
    std::vector<std::string> out;
    const RunState& state = assembler_->state();
    for (const RowMarker& entry : state.markers) {
        const auto index = entry.row;
        const std::string marker(state.markerText(entry));
        const auto at = static_cast<std::size_t>(index);
        if (!marker.empty() && at < state.sourceTable.size())
            out.push_back(state.sourceTable[at].position() + " " + marker);
    }
    return out;
}

void AssemblerFixture::writeFile(const std::string& name, const std::string& bytes) const {
    writeWholeFile(folder_ + name, bytes);
}

std::string AssemblerFixture::readFile(const std::string& name) const {
    return readWholeFile(folder_ + name);
}

}  // namespace korvex::testing
