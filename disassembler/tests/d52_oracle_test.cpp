// Cross-check of the instruction texts against Debian's d52, an 8052
// disassembler written independently of ours. The same bytes go through
// both; every instruction both show must agree on mnemonic and operands.
// d52 names registers and bits from tables of its own, so a probe run first
// learns its names; ours runs on a driver without names and writes numbers.
// d52 passes over runs of 00h bytes, so only addresses both show count.

#include <filesystem>
#include <map>
#include <numeric>
#include <random>
#include <set>

#include "assembler/source_file.h"
#include "base/text.h"
#include "disassembler/instruction_forms.h"
#include "disassembler_fixture.h"

namespace korvex::testing {
namespace {

constexpr const char* kD52 = "/usr/bin/d52";

struct Instruction {
    int opcode = 0;
    std::string mnemonic;
    std::vector<std::string> operands;  // lower case
};

std::string lower(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// "mnemonic operand, operand" in either dialect (a tab or a blank after the mnemonic).
void split(const std::string& text, Instruction& out) {
    const std::size_t gap = text.find_first_of(" \t");
    out.mnemonic = text.substr(0, gap);
    for (std::size_t from = gap; from != std::string::npos && from < text.size();) {
        const std::size_t comma = text.find(',', from + 1);
        out.operands.push_back(lower(cleaned(text.substr(from + 1, comma - from - 1))));
        from = comma;
    }
}

// d52's lines by address: "[label:]\tmnemonic\toperands\t\t; AAAA   bytes".
std::map<int, Instruction> runD52(const std::string& folder, const std::string& image) {
    writeWholeFile(folder + "probe.bin", image);
    EXPECT_EQ(std::system(("cd " + folder + " && " + kD52 + " -b -d probe >/dev/null").c_str()), 0);
    std::map<int, Instruction> out;
    for (std::string line :
         splitLines(replaceAll(readWholeFile(folder + "probe.d52"), "\n", "\r\n"))) {
        const std::size_t comment = line.find("\t; ");
        const std::size_t tab = line.find('\t');
        if (comment == std::string::npos || tab == comment || line.size() < comment + 12) continue;
        Instruction instruction;
        instruction.opcode = static_cast<int>(parseHexPrefix(line.substr(comment + 10, 2)));
        split(cleaned(line.substr(tab + 1, comment - tab - 1)), instruction);
        out[static_cast<int>(parseHexPrefix(line.substr(comment + 3, 4)))] = instruction;
    }
    return out;
}

bool isBitSlot(int opcode, std::size_t index) {
    const std::set<int> first{0x10, 0x20, 0x30, 0x92, 0xB2, 0xC2, 0xD2};
    const std::set<int> second{0x72, 0x82, 0xA0, 0xB0, 0xA2};
    return (index == 0 && first.count(opcode)) || (index == 1 && second.count(opcode));
}

// An operand as the values it may stand for: numbers ("41h", d52's "41" and
// its labels "X0123"), "byte.bit" as the bit address, d52's names through
// the probe (one name may stand for several addresses).
class Normaliser {
  public:
    std::map<std::string, std::set<int>> directNames, bitNames;

    std::set<std::string> operand(std::string text, int opcode, std::size_t index,
                                  bool ours) const {
        std::string prefix;
        if (!text.empty() && (text[0] == '#' || text[0] == '/')) {
            prefix = text.substr(0, 1);
            text.erase(0, 1);
        }
        std::set<std::string> out;
        if (const std::size_t dot = text.find('.'); dot != std::string::npos) {
            const int bit = std::stoi(text.substr(dot + 1));
            for (int byte : values(text.substr(0, dot), false, ours)) {
                out.insert(prefix +
                           std::to_string(byte >= 0x80 ? byte + bit : (byte - 0x20) * 8 + bit));
            }
        } else {
            for (int value : values(text, prefix != "#" && isBitSlot(opcode, index), ours)) {
                out.insert(prefix + std::to_string(value));
            }
        }
        if (out.empty()) out.insert(prefix + text);  // registers, a, c, dptr ...
        return out;
    }

  private:
    std::set<int> values(const std::string& text, bool bit, bool ours) const {
        const auto hexUpTo = [&](std::size_t from, std::size_t to) {
            return to > from && text.find_first_not_of("0123456789abcdef", from) >= to;
        };
        if (text.empty()) return {};
        if (text.back() == 'h' && hexUpTo(0, text.size() - 1) &&
            (ours || std::isdigit(static_cast<unsigned char>(text[0])))) {
            return {static_cast<int>(parseHexPrefix(text))};
        }
        if (ours) return {};
        if (text.size() == 5 && text[0] == 'x' && hexUpTo(1, 5)) {
            return {static_cast<int>(parseHexPrefix(text.substr(1)))};
        }
        if (text.find_first_not_of("0123456789") == std::string::npos) return {std::stoi(text)};
        const auto& names = bit ? bitNames : directNames;
        const auto hit = names.find(text);
        return hit == names.end() ? std::set<int>{} : hit->second;
    }
};

using D52Oracle = DisassemblerFixture;

TEST_F(D52Oracle, EveryOpcodeReadsAlike) {
    if (!std::filesystem::exists(kD52)) GTEST_SKIP() << "d52 (Debian-Paket d52) fehlt";

    // The probe: mov a,XX and clr XX for every value teach d52's names.
    Normaliser normaliser;
    std::string probe;
    for (int v = 0; v < 256; ++v) probe += bytes({0xE5, v, 0xC2, v});
    for (const auto& [address, instruction] : runD52(folder_, probe)) {
        const int v = static_cast<unsigned char>(probe[static_cast<std::size_t>(address) + 1]);
        if (instruction.opcode == 0xE5)
            normaliser.directNames[instruction.operands.at(1)].insert(v);
        if (instruction.opcode == 0xC2) normaliser.bitNames[instruction.operands.at(0)].insert(v);
    }

    // Every opcode eight times, with random operand bytes.
    writeWholeFile(path("plain.cpu"), "VECTOR\r\n0000 RESET\r\n");
    useController("plain");
    std::mt19937 random(52);
    std::vector<int> opcodes(256);
    std::iota(opcodes.begin(), opcodes.end(), 0);
    std::string image;
    for (int round = 0; round < 8; ++round) {
        std::shuffle(opcodes.begin(), opcodes.end(), random);
        for (int op : opcodes) {
            image += static_cast<char>(op);
            const int length = instructionForms()[static_cast<std::size_t>(op)].length;
            for (int k = 1; k < length; ++k) image += static_cast<char>(random());
        }
    }
    const std::map<int, Instruction> theirs = runD52(folder_, image);

    int compared = 0;
    const std::vector<std::string> listing = splitLines(text(image));
    for (std::size_t i = 2; i < listing.size(); ++i) {
        const std::string& line = listing[i];
        const auto other = theirs.find(static_cast<int>(parseHexPrefix(line.substr(0, 4))));
        if (other == theirs.end()) continue;
        ++compared;
        Instruction ours;
        ours.opcode = static_cast<int>(parseHexPrefix(line.substr(5, 2)));
        const std::string statement = line.substr(line.find_first_not_of("0123456789ABCDEF\t", 5));
        split(statement.substr(0, statement.find("\t;")), ours);
        ASSERT_EQ(other->second.opcode, ours.opcode) << line;
        if (ours.mnemonic == "?") {
            EXPECT_EQ(other->second.mnemonic, "db") << line;
            continue;
        }
        EXPECT_EQ(ours.mnemonic, other->second.mnemonic) << line;
        ASSERT_EQ(ours.operands.size(), other->second.operands.size()) << line;
        for (std::size_t k = 0; k < ours.operands.size(); ++k) {
            const auto mine = normaliser.operand(ours.operands[k], ours.opcode, k, true);
            const auto d52 = normaliser.operand(other->second.operands[k], ours.opcode, k, false);
            ASSERT_EQ(mine.size(), 1U) << line;
            EXPECT_TRUE(d52.count(*mine.begin())) << line << " / " << other->second.operands[k];
        }
    }
    EXPECT_GT(compared, 8 * 250);  // all but d52's skipped runs of 00h
}

}  // namespace
}  // namespace korvex::testing
