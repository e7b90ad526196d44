#include "disassembler_fixture.h"

#include <filesystem>

#include "assembler/source_file.h"
#include "base/program_folder.h"
#include "base/text.h"

namespace korvex::testing {

const char* const kNamingDriver =
    "VECTOR\r\n0000 RESET\r\n"
    "SFR\r\n81 SP\r\n88 TCON\r\n90 P1\r\nE0 ACC\r\n"
    "BIT\r\n8C TR0\r\nE7 ACC7\r\n";

void DisassemblerFixture::SetUp() {
    folder_ = makePrivateTemporaryFolder();
    ASSERT_FALSE(folder_.empty());
    std::filesystem::copy(KORVEX_DATA_DIR "/cpu", folder_);
    writeWholeFile(folder_ + "test.cpu", kNamingDriver);
    DisassemblerSettings disassemblerSettings;
    disassemblerSettings.programFolder = folder_;
    disassemblerSettings.controllerName = "test";
    disassemblerSettings.temporaryFolder = folder_;
    disassembler_ = std::make_unique<Disassembler>(host_, disassemblerSettings);
}

void DisassemblerFixture::TearDown() {
    std::error_code ec;
    std::filesystem::remove_all(folder_, ec);
}

DisassemblyResult DisassemblerFixture::disassemble(const std::string& content,
                                                   DisassemblerOptions options,
                                                   const std::string& fileName) {
    writeWholeFile(path(fileName), content);
    return disassembler_->disassembleFile(path(fileName), options);
}

std::string DisassemblerFixture::text(const std::string& content, DisassemblerOptions options,
                                      const std::string& fileName) {
    const DisassemblyResult result = disassemble(content, options, fileName);
    EXPECT_EQ(result.outcome, DisassemblyOutcome::Completed) << host_.lastBoxText;
    return result.window ? result.window->text : std::string();
}

std::vector<std::string> DisassemblerFixture::statements(const std::string& content) {
    text(content);
    std::vector<std::string> lines = splitLines(readWholeFile(path("Disas2.tmp")));
    lines.erase(lines.begin(), lines.begin() + std::min<std::size_t>(2, lines.size()));
    return lines;
}

AssembledSource DisassemblerFixture::assemble(const std::string& source) const {
    AssembledSource result = assembleText(source, folder_, folder_);
    EXPECT_EQ(result.outcome, RunOutcome::Completed) << result.boxText;
    return result;
}

std::vector<std::string> splitLines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t from = 0;
    while (from < text.size()) {
        const std::size_t end = text.find("\r\n", from);
        if (end == std::string::npos) {
            lines.push_back(text.substr(from));
            break;
        }
        lines.push_back(text.substr(from, end - from));
        from = end + 2;
    }
    return lines;
}

std::string bytes(std::initializer_list<int> values) {
    std::string out;
    for (int v : values) out += static_cast<char>(v);
    return out;
}

}  // namespace korvex::testing
