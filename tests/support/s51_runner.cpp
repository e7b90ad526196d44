#include "testing/s51_runner.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "base/cp1252.h"
#include "base/program_folder.h"
#include "base/text.h"
#include "testing/process.h"

namespace korvex::testing {
namespace {
constexpr const char* kSimulator = "/usr/bin/s51";
}  // namespace

bool simulatorAvailable() {
    return std::filesystem::exists(kSimulator);
}

std::map<std::string, int> runInSimulator(const std::string& hexText, std::int32_t stopAddress,
                                          const std::vector<std::string>& cells,
                                          const std::string& chip) {
    const ScratchFolder scratch;
    const std::string& folder = scratch.path();
    std::ofstream(folder + "program.ihx", std::ios::binary) << hexText;
    std::ofstream commands(folder + "commands");
    commands << "load \"" << folder << "program.ihx\"\n"
             << "break 0x" << hexDigits(stopAddress, 4) << "\nrun\n";
    for (const std::string& cell : cells) {
        const std::string kind = cell.substr(0, cell.find(':'));
        const std::string address = cell.substr(cell.find(':') + 1);
        commands << "dump " << kind << " 0x" << address << " 0x" << address << "\n";
    }
    commands << "quit\n";
    commands.close();
    const std::string command = std::string("timeout 20 ") + kSimulator + " -t " + chip + " -C " +
                                folder + "commands < /dev/null 2>&1";
    const std::string output = runProcess(command).output;

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

}  // namespace korvex::testing
