// Cross-check of the instruction encoding against Debian's as31, an 8051
// assembler written independently of ours. One generated list of statements
// goes through both; the two code images must agree byte for byte. Only forms
// that both accept with the same meaning are generated: as31 knows JMP and
// CALL only as `JMP @A+DPTR`, so the long forms are written LJMP and LCALL;
// numbers carry a leading digit; a decimal never starts with 0 (octal there);
// binary and char literals stay out of bit and target operands, where ours
// reads them in a context of its own.

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "assembler_fixture.h"
#include "base/text.h"

namespace korvex::testing {
namespace {

constexpr const char* kAs31 = "/usr/bin/as31";
constexpr const char* kTargetSlot = "@T";  // replaced by the branch target once addresses are known

enum class Target { None, Relative, Absolute, Long };

struct Item {
    enum Kind { Instruction, Label, Origin } kind = Instruction;
    std::string text;  // an instruction as written, a label name, or an origin address
    Target target = Target::None;
    int length = 0;
    int address = 0;
};

// Builds one program as a list of items; every item is one source line in both
// dialects, so a line number means the same statement to both assemblers.
class ProgramBuilder {
  public:
    explicit ProgramBuilder(unsigned seed) : rng_(seed) {}

    int pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(rng_); }
    bool chance(int percent) { return pick(1, 100) <= percent; }
    int address() const { return address_; }

    // Case and layout vary freely: both assemblers ignore them.
    std::string cased(const std::string& text) {
        std::string out = text;
        const int how = pick(0, 2);
        for (char& c : out)
            c = how == 0   ? static_cast<char>(std::tolower(static_cast<unsigned char>(c)))
                : how == 1 ? static_cast<char>(std::toupper(static_cast<unsigned char>(c)))
                           : c;
        return out;
    }

    std::string hex(int value, int digits = 2) {
        char buffer[16];
        std::snprintf(buffer, sizeof buffer, "%0*X", pick(1, digits), value);
        std::string text = buffer;
        if (!std::isdigit(static_cast<unsigned char>(text[0])) || chance(20)) text = "0" + text;
        return cased(text + "h");
    }

    // An address-like number: decimal or hexadecimal.
    std::string number(int value, int digits = 2) {
        switch (pick(0, 3)) {
            case 0: return std::to_string(value);
            case 1: return std::to_string(value) + (chance(50) ? "D" : "d");
            default: return hex(value, digits);
        }
    }

    std::string reg(int n) { return cased("R" + std::to_string(n)); }
    std::string indirect(int i) { return cased("@R" + std::to_string(i)); }
    std::string direct(int value) { return number(value); }
    std::string immediate(int value) { return "#" + number(value); }

    // A bit address either plain or as byte.bit of a bit-addressable byte.
    std::string bit() {
        if (chance(40)) return number(pick(0, 255));
        const int byte = chance(50) ? pick(0x20, 0x2F) : 0x80 + 8 * pick(0, 15);
        return number(byte) + "." + std::to_string(pick(0, 7));
    }

    void op(int length, const std::string& mnemonic, const std::vector<std::string>& operands = {},
            Target target = Target::None) {
        static const char* const kIndents[] = {"\t", "  ", "\t\t", "        "};
        static const char* const kSeparators[] = {",", ", ", " , ", ",\t"};
        std::string text = kIndents[pick(0, 3)] + cased(mnemonic);
        for (std::size_t i = 0; i < operands.size(); ++i) {
            text += i == 0 ? (chance(75) ? " " : "\t") : kSeparators[pick(0, 3)];
            text += operands[i];
        }
        if (chance(5)) text += "\t; note";
        if (labelPercent_ > 0 && chance(labelPercent_)) label();
        items_.push_back({Item::Instruction, text, target, length, address_});
        address_ += length;
    }

    // A label line at the current address; `name` empty gives the next free name.
    std::string label(std::string name = "") {
        if (name.empty()) name = "L" + std::to_string(labels_.size());
        labels_.push_back({address_, name});
        items_.push_back({Item::Label, name, Target::None, 0, address_});
        return name;
    }

    // Share of statements that get a label line in front of them.
    void labelEvery(int percent) { labelPercent_ = percent; }

    // A byte value in any notation both read alike, expressions included.
    std::string value(int v) {
        switch (pick(0, 9)) {
            case 1: return std::to_string(v) + "D";
            case 2: return hex(v, 4);
            case 3:
                if (v > 0) {
                    std::string digits;
                    for (int rest = v; rest > 0; rest /= 2)
                        digits.insert(digits.begin(), char('0' + rest % 2));
                    return digits + (chance(50) ? "B" : "b");
                }
                break;
            case 4:
                if (std::isalnum(v)) return "'" + std::string(1, static_cast<char>(v)) + "'";
                break;
            case 5:
                if (v >= 129) return "-" + std::to_string(256 - v);
                break;
            case 6: {
                const int left = pick(0, v);
                return number(left) + "+" + number(v - left);
            }
            case 7: {
                const int left = v + pick(0, 255 - v);
                return number(left) + "-" + number(left - v);
            }
            case 8:
                for (int factor = 2; factor <= 16; ++factor) {
                    if (v % factor == 0 && v > 0) return number(factor) + "*" + number(v / factor);
                }
                break;
            case 9: {
                const int divisor = pick(2, 9);
                return number(v * divisor + pick(0, divisor - 1), 4) + "/" +
                       std::to_string(divisor);
            }
        }
        return std::to_string(v);
    }

    void origin(int address) {
        items_.push_back({Item::Origin, hex(address, 4), Target::None, 0, address});
        address_ = address;
    }

    // Fills `bytes` with ordinary code, so that a branch lands at a chosen distance.
    void fill(int bytes) {
        for (; bytes >= 3; bytes -= 3) op(3, "MOV", {"DPTR", "#" + hex(pick(0, 0xFFFF), 4)});
        for (; bytes > 0; --bytes) op(1, "NOP");
    }

    // Puts the branch targets into the slots; lengths never depend on them.
    void resolveTargets() {
        for (Item& item : items_) {
            if (item.target == Target::None) continue;
            const int end = item.address + item.length;
            std::string target;
            switch (item.target) {
                case Target::Relative:
                    target = labelIn(end - 128, end + 127);
                    if (target.empty())
                        target = number(std::clamp(end + pick(-128, 127), 0, 0xFFFF), 4);
                    break;
                case Target::Absolute:
                    target = labelIn(end & 0xF800, (end & 0xF800) + 0x7FF);
                    if (target.empty()) target = number((end & 0xF800) + pick(0, 0x7FF), 4);
                    break;
                default:
                    target = labelIn(0, 0xFFFF);
                    if (target.empty()) target = number(pick(0, 0xFFFF), 4);
                    break;
            }
            item.text.replace(item.text.find(kTargetSlot), 2, target);
        }
    }

    std::vector<std::string> korvexLines() const { return lines(false); }
    std::vector<std::string> as31Lines() const { return lines(true); }
    const std::vector<Item>& items() const { return items_; }

  private:
    // A random label within [low, high], mostly; now and then a plain number instead.
    std::string labelIn(int low, int high) {
        if (chance(15)) return "";
        const auto first =
            std::lower_bound(labels_.begin(), labels_.end(), std::make_pair(low, std::string()));
        const auto last = std::upper_bound(labels_.begin(), labels_.end(),
                                           std::make_pair(high, std::string("~")));
        if (first >= last) return "";
        return (first + pick(0, static_cast<int>(last - first) - 1))->second;
    }

    std::vector<std::string> lines(bool as31) const {
        std::vector<std::string> out;
        for (const Item& item : items_) {
            switch (item.kind) {
                case Item::Instruction: out.push_back(item.text); break;
                case Item::Label: out.push_back(item.text + ":"); break;
                case Item::Origin: out.push_back((as31 ? "\t.org " : "\tORG ") + item.text); break;
            }
        }
        return out;
    }

    std::mt19937 rng_;
    std::vector<Item> items_;
    std::vector<std::pair<int, std::string>> labels_;  // in address order
    int address_ = 0;
    int labelPercent_ = 0;
};

// The bytes of a statement, as far as the image holds them.
std::string statementBytes(const std::string& image, int address, int length) {
    const auto from = std::min(static_cast<std::size_t>(address), image.size());
    return hexBytes(image.substr(from, static_cast<std::size_t>(length)));
}

class As31OracleTest : public AssemblerFixture {
  protected:
    void SetUp() override {
        if (!std::filesystem::exists(kAs31)) GTEST_SKIP() << kAs31 << " is not installed";
        AssemblerFixture::SetUp();
    }

    // Assembles the program with both and reports every statement whose bytes differ.
    void expectSameImage(ProgramBuilder& program) {
        program.resolveTargets();
        const auto lines = program.as31Lines();
        std::string source;
        for (const auto& line : lines) source += line + "\n";
        writeFile("oracle.asm", source);
        const std::string command =
            "cd '" + folder_ + "' && " + kAs31 + " -Fbin -Ooracle.bin oracle.asm >as31.log 2>&1";
        ASSERT_EQ(std::system(command.c_str()), 0) << "as31 rejected the program:\n"
                                                   << readFile("as31.log");
        const std::string theirs = readFile("oracle.bin");

        ASSERT_EQ(assembleLines(program.korvexLines()), RunOutcome::Completed);
        EXPECT_EQ(findings(), std::vector<std::string>{});
        const std::string ours = image();

        std::ostringstream report;
        int mismatches = 0;
        int instructions = 0;
        const auto& items = program.items();
        for (std::size_t i = 0; i < items.size(); ++i) {
            const Item& item = items[i];
            if (item.kind != Item::Instruction) continue;
            ++instructions;
            const std::string a = statementBytes(ours, item.address, item.length);
            const std::string b = statementBytes(theirs, item.address, item.length);
            if (a == b) continue;
            if (++mismatches <= 25) {
                report << "line " << i + 1 << " at " << hexDigits(item.address, 4) << "h: '"
                       << item.text << "'  Korvex: " << a << "  as31: " << b << "\n";
            }
        }
        EXPECT_EQ(mismatches, 0) << report.str();
        // Gaps between origins are zero in both; a difference there is a stray byte.
        EXPECT_EQ(ours.size(), theirs.size());
        if (mismatches == 0 && ours != theirs) {
            const auto at = std::mismatch(ours.begin(), ours.end(), theirs.begin(), theirs.end());
            ADD_FAILURE() << "images differ outside any statement, at offset "
                          << (at.first - ours.begin());
        }
        EXPECT_GT(instructions, 0);
        RecordProperty("instructions", instructions);
    }
};

// Every form of the instruction set, with register and indirect register
// running through all numbers, random direct, immediate and bit operands, and
// branches to labels ahead and behind or to plain addresses.
TEST_F(As31OracleTest, EveryInstructionFormEncodesAsAs31Does) {
    ProgramBuilder b(51);
    b.labelEvery(25);
    const std::string t = kTargetSlot;
    for (int round = 0; round < 48; ++round) {
        const int n = round % 8;
        const int i = round % 2;
        auto d = [&b] { return b.direct(b.pick(0, 255)); };
        auto v = [&b] { return b.immediate(b.pick(0, 255)); };
        for (const char* m : {"ADD", "ADDC", "SUBB", "XCH", "ANL", "ORL", "XRL"}) {
            if (std::string(m) != "XCH") b.op(2, m, {"A", v()});
            b.op(2, m, {b.cased("A"), d()});
            b.op(1, m, {"a", b.indirect(i)});
            b.op(1, m, {"A", b.reg(n)});
        }
        for (const char* m : {"ANL", "ORL", "XRL"}) {
            b.op(2, m, {d(), "A"});
            b.op(3, m, {d(), v()});
        }
        for (const char* m : {"ANL", "ORL"}) {
            b.op(2, m, {"C", b.bit()});
            b.op(2, m, {"c", "/" + b.bit()});
        }
        for (const char* m : {"INC", "DEC"}) {
            b.op(1, m, {b.cased("A")});
            b.op(2, m, {d()});
            b.op(1, m, {b.indirect(i)});
            b.op(1, m, {b.reg(n)});
        }
        b.op(1, "INC", {b.cased("DPTR")});
        b.op(1, "MUL", {b.cased("AB")});
        b.op(1, "DIV", {b.cased("AB")});
        for (const char* m : {"DA", "CLR", "CPL", "RL", "RLC", "RR", "RRC", "SWAP"})
            b.op(1, m, {b.cased("A")});
        for (const char* m : {"CLR", "CPL", "SETB"}) {
            b.op(1, m, {b.cased("C")});
            b.op(2, m, {b.bit()});
        }
        b.op(2, "PUSH", {d()});
        b.op(2, "POP", {d()});
        b.op(1, "XCHD", {"A", b.indirect(i)});
        b.op(1, "MOVX", {"A", b.indirect(i)});
        b.op(1, "MOVX", {"A", b.cased("@DPTR")});
        b.op(1, "MOVX", {b.indirect(i), "A"});
        b.op(1, "MOVX", {b.cased("@DPTR"), "a"});
        b.op(1, "MOVC", {"A", b.cased(b.chance(50) ? "@A+DPTR" : "@A + DPTR")});
        b.op(1, "MOVC", {"A", b.cased(b.chance(50) ? "@A+PC" : "@A + PC")});
        b.op(1, "JMP", {b.cased(b.chance(50) ? "@A+DPTR" : "@A + DPTR")});
        b.op(2, "MOV", {"C", b.bit()});
        b.op(2, "MOV", {b.bit(), b.cased("C")});
        b.op(1, "MOV", {"A", b.reg(n)});
        b.op(1, "MOV", {"A", b.indirect(i)});
        b.op(2, "MOV", {"A", d()});
        b.op(2, "MOV", {"A", v()});
        b.op(1, "MOV", {b.reg(n), "A"});
        b.op(1, "MOV", {b.indirect(i), "A"});
        b.op(2, "MOV", {d(), "A"});
        b.op(3, "MOV", {b.cased("DPTR"), "#" + b.number(b.pick(0, 0xFFFF), 4)});
        b.op(2, "MOV", {b.reg(n), d()});
        b.op(2, "MOV", {b.reg(n), v()});
        b.op(2, "MOV", {b.indirect(i), d()});
        b.op(2, "MOV", {b.indirect(i), v()});
        b.op(2, "MOV", {d(), b.reg(n)});
        b.op(2, "MOV", {d(), b.indirect(i)});
        b.op(3, "MOV", {d(), v()});
        b.op(3, "MOV", {d(), d()});
        for (const char* m : {"RET", "RETI", "NOP"}) b.op(1, m);
        for (const char* m : {"JC", "JNC", "JZ", "JNZ", "SJMP"}) b.op(2, m, {t}, Target::Relative);
        for (const char* m : {"JB", "JNB", "JBC"}) b.op(3, m, {b.bit(), t}, Target::Relative);
        b.op(2, "DJNZ", {b.reg(n), t}, Target::Relative);
        b.op(3, "DJNZ", {d(), t}, Target::Relative);
        b.op(3, "CJNE", {"A", d(), t}, Target::Relative);
        b.op(3, "CJNE", {"A", v(), t}, Target::Relative);
        b.op(3, "CJNE", {b.reg(n), v(), t}, Target::Relative);
        b.op(3, "CJNE", {b.indirect(i), v(), t}, Target::Relative);
        for (const char* m : {"LJMP", "LCALL"}) b.op(3, m, {t}, Target::Long);
        for (const char* m : {"AJMP", "ACALL"}) b.op(2, m, {t}, Target::Absolute);
    }
    expectSameImage(b);
}

// The relative forms, by number; `target` as written.
constexpr int kRelativeForms = 14;
int relativeLength(int form) {
    return form < 5 || form == 8 ? 2 : 3;
}

void relativeBranch(ProgramBuilder& b, int form, const std::string& target) {
    static const char* const kNames[] = {"JC", "JNC", "JZ", "JNZ", "SJMP", "JB", "JNB", "JBC"};
    const int n = b.pick(0, 7);
    const int i = b.pick(0, 1);
    if (form < 5) return b.op(2, kNames[form], {target});
    if (form < 8) return b.op(3, kNames[form], {b.bit(), target});
    switch (form) {
        case 8: return b.op(2, "DJNZ", {b.reg(n), target});
        case 9: return b.op(3, "DJNZ", {b.direct(b.pick(0, 255)), target});
        case 10: return b.op(3, "CJNE", {"A", b.direct(b.pick(0, 255)), target});
        case 11: return b.op(3, "CJNE", {"A", b.immediate(b.pick(0, 255)), target});
        case 12: return b.op(3, "CJNE", {b.reg(n), b.immediate(b.pick(0, 255)), target});
        default: return b.op(3, "CJNE", {b.indirect(i), b.immediate(b.pick(0, 255)), target});
    }
}

// Each relative form at the ends of its reach (by address and by label), AJMP
// and ACALL on both sides of every 2K boundary, long jumps to the very top.
TEST_F(As31OracleTest, BranchesAtTheEndsOfTheirReachEncodeAsAs31Does) {
    ProgramBuilder b(8051);
    b.op(3, "LJMP", {"Top"});
    b.op(3, "LCALL", {b.hex(0xFFFF, 4)});
    b.op(3, "LCALL", {"0"});
    b.op(3, "MOV", {"DPTR", "#Top"});
    for (int block = 1; block < 32; ++block) {
        const int boundary = block * 0x800;
        const bool low = block % 4 < 2;
        // The block counts from the statement's end: at boundary-2 that is the next block.
        b.origin(boundary - 4);
        b.op(2, block % 2 ? "AJMP" : "ACALL", {b.hex(low ? boundary - 0x800 : boundary - 1, 4)});
        b.op(2, block % 2 ? "ACALL" : "AJMP", {b.hex(low ? boundary + 0x7FF : boundary, 4)});
        if (block > kRelativeForms) continue;
        const int form = block - 1;
        for (int offset : {-128, -127, -100, -2, -1, 0, 1, 2, 99, 126, 127}) {
            relativeBranch(b, form, b.number(b.address() + relativeLength(form) + offset, 4));
        }
        const std::string behind = b.label();
        b.fill(128 - relativeLength(form));
        relativeBranch(b, form, behind);
        const std::string ahead = "Ahead" + std::to_string(form);
        relativeBranch(b, form, ahead);
        b.fill(127);
        b.label(ahead);
    }
    b.origin(0xFFF0);
    b.op(3, "MOV", {"DPTR", "#" + b.hex(0xFFF0, 4)});
    b.fill(9);
    b.label("Top");
    b.op(3, "LJMP", {"Top"});  // ends at FFFEh: one more byte and as31 counts past 16 bits
    expectSameImage(b);
}

// Immediate and direct values in every notation that both read alike:
// decimal, with D, hexadecimal, binary, character, negative, and the four
// operators; blanks around '#' and commas, and 16-bit values for DPTR.
TEST_F(As31OracleTest, ValuesInEveryNotationEncodeAsAs31Does) {
    ProgramBuilder b(1980);
    b.labelEvery(10);
    for (int round = 0; round < 4; ++round) {
        for (int v = 0; v < 256; ++v) {
            const std::string hash = b.chance(10) ? "# " : "#";
            b.op(2, "MOV", {"A", hash + b.value(v)});
            b.op(3, "MOV", {b.value((v * 37 + round) % 256), "#" + b.value(v)});
            b.op(2, "ADD", {"A", b.value(v)});
            b.op(3, "CJNE", {b.reg(v % 8), "#" + b.value(v), kTargetSlot}, Target::Relative);
            const int wide = b.pick(0, 0xFFFF);
            const int factor = b.pick(1, 255);
            b.op(3, "MOV",
                 {"DPTR", "#" + (b.chance(50) ? b.number(wide, 4)
                                              : b.number(wide / factor) + "*" + b.number(factor) +
                                                    "+" + b.number(wide % factor))});
        }
    }
    expectSameImage(b);
}

}  // namespace
}  // namespace korvex::testing
