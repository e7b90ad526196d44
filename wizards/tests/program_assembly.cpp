#include "program_assembly.h"

#include <filesystem>

#include "assembler/assembler.h"
#include "assembler/code_image.h"
#include "assembler/source_file.h"
#include "base/cp1252.h"
#include "base/host.h"
#include "base/program_folder.h"
#include "base/text.h"

namespace korvex::wizards::testing {
namespace {

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
    QuietHost host;
    Assembler assembler(host, settings);
    writeWholeFile(folder.path() + "TmpFile.tmp", program);
    std::string name = folder.path() + "wizard.a51";
    result.completed = assembler.assembleSource(name, {}) == RunOutcome::Completed;
    const RunState& state = assembler.state();
    result.report = state.reportText;
    for (const RowMarker& entry : state.markers) {
        const auto index = entry.row;
        const std::string marker(state.markerText(entry));
        const auto at = static_cast<std::size_t>(index);
        if (!marker.empty() && at < state.sourceTable.size()) {
            result.findings.push_back(state.sourceTable[at].position() + " " + marker + " " +
                                      std::string(state.statementOf(at)));
        }
    }
    result.hexText = hexFileText(state.codeText);
    // The last row whose statement is `stopStatement`, then its first code row.
    std::size_t stopRow = state.sourceTable.size();
    for (std::size_t i = 0; i < state.sourceTable.size(); ++i) {
        std::string statement(state.statementOf(i));
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

}  // namespace korvex::wizards::testing
