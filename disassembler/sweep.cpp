#include "disassembler/sweep.h"

#include <cstring>

#include "disassembler/instruction_forms.h"

namespace korvex {
namespace {

constexpr char kHexDigits[] = "0123456789ABCDEF";

void appendHex2(std::string& out, std::uint8_t value) {
    const char digits[2] = {kHexDigits[value >> 4], kHexDigits[value & 0xF]};
    out.append(digits, 2);
}

// The last four hexadecimal digits of a value.
void appendHex4(std::string& out, std::int64_t value) {
    const auto bits = static_cast<std::uint32_t>(value);
    const char digits[4] = {kHexDigits[(bits >> 12) & 0xF], kHexDigits[(bits >> 8) & 0xF],
                            kHexDigits[(bits >> 4) & 0xF], kHexDigits[bits & 0xF]};
    out.append(digits, 4);
}

// The target of a relative jump, as relativeTarget writes it.
void appendRelativeTarget(std::string& out, std::uint8_t offset, int length, std::int32_t address) {
    appendHex4(out, relativeTargetValue(offset, length, address));
    out += 'h';
}

void appendComment(std::string& out, FormComment comment, const std::uint8_t* bytes, int length,
                   const OperandNames& names) {
    const std::uint8_t last = bytes[length - 1];
    switch (comment) {
        case FormComment::None: break;
        case FormComment::Immediate: out += names.immediate(bytes[1]); break;
        case FormComment::ImmediateThird: out += names.immediate(bytes[2]); break;
        case FormComment::EndAtFE:
            if (last == 0xFE) out += "\t; End";
            break;
        case FormComment::HereAtFE:
            if (last == 0xFE) out += "\t; Hier";
            break;
        case FormComment::HereAtFD:
            if (last == 0xFD) out += "\t; Hier";
            break;
        case FormComment::ImmediateHereFD:
            out += names.immediate(bytes[1]);
            if (last == 0xFD) out += ", Hier";
            break;
    }
}

}  // namespace

void startSweep(Sweep& sweep, const std::string& fileName, const std::string& controller) {
    sweep.statements =
        "; Korvex Disassembler, Datei: " + fileName + "\r\n#cpu = " + controller + "\r\n";
    sweep.headerSize = sweep.statements.size();
    sweep.lines.clear();
}

int decodeInstruction(const CodeRows& rows, std::size_t i, const OperandNames& names,
                      std::string& out) {
    out.clear();
    const std::uint8_t opcode = rows.byte(i);
    const InstructionForm& form = instructionForms()[opcode];
    if (form.length == 0) {
        out += '?';
        return 1;
    }
    const int length = form.length;
    if (i + static_cast<std::size_t>(length) > rows.size()) return 0;
    std::uint8_t bytes[3] = {opcode, 0, 0};
    for (int k = 1; k < length; ++k) bytes[k] = rows.byte(i + static_cast<std::size_t>(k));
    const std::int32_t address = rows.address(i);

    if (!form.atLineStart) out += '\t';
    const char* p = form.pattern;
    while (*p != '\0') {
        const char* field = std::strchr(p, '%');
        if (field == nullptr) {
            out.append(p);
            break;
        }
        out.append(p, static_cast<std::size_t>(field - p));
        switch (field[1]) {
            case 'r': out += static_cast<char>('0' + (opcode & 7)); break;
            case 'i': out += static_cast<char>('0' + (opcode & 1)); break;
            case 'X': appendHex2(out, bytes[1]); break;
            case 'Y': appendHex2(out, bytes[2]); break;
            case 'D': out += names.direct(bytes[1]); break;
            case 'E': out += names.direct(bytes[2]); break;
            case 'B': out += names.bit(bytes[1]); break;
            case 'A': appendHex4(out, absoluteTargetValue(opcode, bytes[1], address)); break;
            case 'T': appendRelativeTarget(out, bytes[length - 1], length, address); break;
            default: break;
        }
        p = field + 2;
    }
    appendComment(out, form.comment, bytes, length, names);
    return length;
}

void sweepRows(const CodeRows& rows, const OperandNames& names, Sweep& sweep,
               const std::function<void(int)>& progress) {
    // Reserved for the worst case, one line per row: pages that stay unused
    // cost nothing, and the texts never move.
    sweep.statements.reserve(sweep.statements.size() + rows.size() * 16);
    sweep.lines.reserve(rows.size());
    const double lastIndex = rows.empty() ? 0.0 : static_cast<double>(rows.size() - 1);
    int shown = 0;
    std::string statement;
    std::size_t i = 0;
    while (i < rows.size()) {
        // With a single row there is nothing to divide: the bar stands full.
        const int percent =
            lastIndex > 0 ? static_cast<int>(static_cast<double>(i) / lastIndex * 100) : 100;
        if (percent > shown) {
            shown = percent;
            if (progress) progress(percent);
        }
        const int length = decodeInstruction(rows, i, names, statement);
        if (length == 0) break;

        SweepLine line;
        line.address = rows.address(i);
        line.length = static_cast<std::uint8_t>(length);
        for (int k = 0; k < length; ++k)
            line.bytes[static_cast<std::size_t>(k)] = rows.byte(i + static_cast<std::size_t>(k));
        sweep.statements += statement;
        line.statementEnd = static_cast<std::uint32_t>(sweep.statements.size());
        sweep.statements += "\r\n";
        sweep.lines.push_back(line);
        i += static_cast<std::size_t>(length);
    }
}

}  // namespace korvex
