#pragma once
// The sweep: every row from the first on is taken for an instruction. Each
// instruction gives a line of Disas2.tmp, its statement, and a line of the
// listing form of Disas.tmp (address, bytes, statement), which is kept as
// the few numbers it is made of.

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "disassembler/code_rows.h"
#include "disassembler/operand_names.h"

namespace korvex {

struct SweepLine {
    std::int32_t address = 0;
    std::uint32_t statementEnd = 0;  // where the statement ends in Sweep::statements
    std::array<std::uint8_t, 3> bytes{};
    std::uint8_t length = 0;
};

struct Sweep {
    std::string statements;  // Disas2.tmp: the header, then a statement on each line
    std::size_t headerSize = 0;
    std::vector<SweepLine> lines;

    std::string_view header() const { return std::string_view(statements).substr(0, headerSize); }
    std::string_view statement(std::size_t k) const {
        const std::size_t begin = k == 0 ? headerSize : lines[k - 1].statementEnd + 2;
        return std::string_view(statements).substr(begin, lines[k].statementEnd - begin);
    }
};

// The header of both files, the file's name and the driver to assemble with,
// opens the sweep.
void startSweep(Sweep& sweep, const std::string& fileName, const std::string& controller);

// Decodes the statement text of the instruction at row `i` into `out` and
// returns its length; 0 when the rows end inside the instruction.
int decodeInstruction(const CodeRows& rows, std::size_t i, const OperandNames& names,
                      std::string& out);

// `progress` hears each grown percent value.
void sweepRows(const CodeRows& rows, const OperandNames& names, Sweep& sweep,
               const std::function<void(int)>& progress);

}  // namespace korvex
