#include "wizards/tests/program_assembly.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "assembler/assembler.h"
#include "assembler/code_image.h"
#include "assembler/source_file.h"
#include "base/cp1252.h"
#include "base/host.h"
#include "base/program_folder.h"
#include "base/text.h"

namespace korvex::wizards::testing {
namespace {

constexpr const char* kSimulator = "/usr/bin/s51";

class PrivateFolder {
  public:
    PrivateFolder() : path_(makePrivateTemporaryFolder()) {}
    ~PrivateFolder() {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    const std::string& path() const { return path_; }

  private:
    std::string path_;
};

}  // namespace

AssembledProgram assembleProgram(const std::string& program, const std::string& stopStatement) {
    AssembledProgram result;
    PrivateFolder folder;
    AssemblerSettings settings;
    settings.programFolder = std::string(KORVEX_DATA_DIR) + "/cpu/";
    settings.temporaryFolder = folder.path();
    settings.sourceFolder = folder.path();
    QuietHost host;
    Assembler assembler(host, settings);
    writeWholeFile(folder.path() + "TmpFile.tmp", program);
    std::string name = folder.path() + "wizard.a51";
    result.completed = assembler.assembleSource(name, {}) == RunOutcome::Completed;
    const RunState& state = assembler.state();
    result.report = state.reportText;
    for (const auto& row : state.sourceTable) {
        if (!row.marker.empty()) {
            result.findings.push_back(row.position + " " + row.marker + " " + row.statement);
        }
    }
    result.hexText = hexFileText(state.codeText);
    // The last row whose statement is `stopStatement`, then its first code row.
    std::size_t stopRow = state.sourceTable.size();
    for (std::size_t i = 0; i < state.sourceTable.size(); ++i) {
        std::string statement = state.sourceTable[i].statement;
        statement = upperCase(statement.substr(0, statement.find(';')));
        cleanText(statement);
        if (statement == stopStatement) stopRow = i;
    }
    for (std::size_t i = stopRow; i < state.sourceTable.size() && i < state.codeText.size(); ++i) {
        std::string code = state.codeText[i];
        cleanText(code);
        CodeEntry entry;
        if (readCodeEntry(code, entry) && !entry.bytes.empty()) {
            result.stopAddress = entry.address;
            break;
        }
    }
    return result;
}

bool simulatorAvailable() {
    return std::filesystem::exists(kSimulator);
}

std::map<std::string, int> runInSimulator(const std::string& hexText, std::int32_t stopAddress,
                                          const std::vector<std::string>& cells) {
    PrivateFolder folder;
    std::ofstream(folder.path() + "program.ihx", std::ios::binary) << hexText;
    std::ofstream commands(folder.path() + "commands");
    commands << "load \"" << folder.path() << "program.ihx\"\n"
             << "break 0x" << hexDigits(stopAddress, 4) << "\nrun\n";
    for (const std::string& cell : cells) {
        const std::string kind = cell.substr(0, cell.find(':'));
        const std::string address = cell.substr(cell.find(':') + 1);
        commands << "dump " << kind << " 0x" << address << " 0x" << address << "\n";
    }
    commands << "quit\n";
    commands.close();
    const std::string command = std::string("timeout 20 ") + kSimulator + " -t 8052 -C " +
                                folder.path() + "commands < /dev/null 2>&1";
    std::string output;
    FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 512> buffer{};
    while (pipe != nullptr && fgets(buffer.data(), buffer.size(), pipe) != nullptr) {
        output += buffer.data();
    }
    if (pipe != nullptr) pclose(pipe);

    // Each dump echoes its command, then prints its line.
    std::map<std::string, int> values;
    std::istringstream in(output);
    std::string pending;
    for (std::string text; std::getline(in, text);) {
        const std::size_t dump = text.find("dump ");
        if (dump != std::string::npos) {
            std::istringstream words(text.substr(dump + 5));
            std::string kind;
            std::string address;
            words >> kind >> address;
            pending = kind + ":" + upperCase(address.substr(2));
        } else if (!pending.empty() && startsWith(text, "0x")) {
            // iram: "0x30   20  "; sfr: "0x89 TMOD:   0b00100000 0x20 ' '  32".
            std::istringstream fields(text);
            std::string address;
            std::string value;
            fields >> address >> value;
            if (!value.empty() && value.back() == ':') {
                for (std::string word; fields >> word;) {
                    if (startsWith(word, "0x")) {
                        value = word.substr(2);
                        break;
                    }
                }
            }
            values[pending] = static_cast<int>(parseHexPrefix(value));
            pending.clear();
        }
    }
    return values;
}

}  // namespace korvex::wizards::testing
