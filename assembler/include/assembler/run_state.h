#pragma once
// The run-wide state of the assembler. It lives in an `Assembler` object that
// outlasts a run, so the driver-file counters really survive from one run to
// the next, and two assemblers never meet.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "assembler/error_catalogue.h"
#include "assembler/text_table.h"
#include "base/failure.h"

namespace korvex {

// A text kept in RunState::rowTexts: where it starts and how long it is.
struct RowText {
    std::uint32_t at = 0;
    std::uint32_t length = 0;
};

// A finding or note on one row.
struct RowMarker {
    std::int32_t row = 0;
    RowText text;
};

// One row per statement. A run holds one per line of a large source, so the
// row is small: its texts lie one after the other in RunState::rowTexts, its
// place is two numbers (shown as "file:line"), and the rare finding marker
// lives beside the table, in RunState::markers.
struct SourceRow {
    RowText statement;      // the statement as the second pass sees it
    RowText sourceText;     // the raw line, on the first row of a line only
    std::int32_t line = 0;  // line number in its file
    std::int16_t file = 0;  // file number; 0 while the row has no place of its own
    bool retry = false;     // the second pass must encode the row again

    // The place as the listing and the report show it: "2:17", or empty.
    std::string position() const;
};

// Operand classes as classifyOperand and parseBitOperand return them.
enum OperandClass : std::int16_t {
    ClassNone = 0,
    ClassRegister = 1,
    ClassAccumulator = 2,
    ClassIndirect = 3,
    ClassDirect = 4,
    ClassImmediate = 5,
    ClassBit = 8,
    ClassDptr = 9,
};

// The contexts that the value argument of evaluateExpression selects.
inline constexpr std::int32_t kValueContext = 0;
inline constexpr std::int32_t kLabelContext = 7;
inline constexpr std::int32_t kBitContext = 8;

// One open IF: the branch that waits for its offset.
struct IfRow {
    std::int32_t branchLine = 0;
    std::int32_t branchAddress = 0;
    std::int32_t branchLength = 0;
    std::int32_t elseSeen = 0;
};

struct ForRow {
    std::int32_t counterValue = 0;
    std::int32_t counterIsDirect = 0;
    std::int32_t loopHead = 0;
};

struct LoopRow {
    std::int32_t whileLine = 0;
    std::int32_t loopHead = 0;
    std::int32_t whileLength = 0;
};

// An EXIT jump waiting for the end of its structure: the structure's level,
// the row of the jump, and the jump's length, whose last byte gets the offset.
struct ExitPatch {
    int level = 0;
    std::int32_t line = 0;
    std::int32_t length = 0;
};

// A row that the second pass encoded to another number of bytes than the
// first: the rows behind it keep the addresses of the first pass.
struct LengthChange {
    std::int32_t row = 0;
    int firstLength = 0;
    int secondLength = 0;
};

struct RunState {
    Int16 currentFile = 1;
    std::int32_t currentRow = 0;
    std::int32_t codeAddress = 0;
    Int16 macroCount = 0;
    Int16 openIfCount = 0;
    Int16 openForCount = 0;
    Int16 openLoopCount = 0;
    bool useLongCall = false;
    Finding errorNumber = Finding::None;
    bool secondPass = false;
    std::int32_t numberResult = 0;
    Int16 instructionLength = 1;
    std::array<std::uint8_t, 3> instructionBytes{};
    std::array<std::string, 4> tokens;
    std::string statementCopy;
    Int16 parentFile = 0;
    std::string includePath;
    std::string reportText;
    // The source's path (file system, UTF-8) as the run was called with it,
    // written by the driver at run start; messages name the main file by it.
    std::string sourceName;
    // Its folder, where includes are looked up; ends in "/", empty for a bare name.
    std::string sourceFolder;
    // Filled by the second pass, emptied at run start.
    std::vector<LengthChange> lengthChanges;

    // The first row of the bit table that a source's "#bit" may fill: set
    // by the driver reader, left alone by a run.
    Int16 firstUserBit = 0;

    // Lines read so far, by file number.
    std::vector<Int16> lineCounters;

    std::vector<SourceRow> sourceTable;
    std::vector<std::string> codeText;
    // The texts of the rows; a text replaced stays behind unused until the next run.
    std::string rowTexts;
    std::string_view textOf(RowText text) const {
        return std::string_view(rowTexts).substr(text.at, text.length);
    }
    RowText keepText(std::string_view text);
    std::string_view statementOf(std::size_t row) const {
        return textOf(sourceTable[row].statement);
    }
    std::string_view sourceTextOf(std::size_t row) const {
        return textOf(sourceTable[row].sourceText);
    }

    // The ";>err..." findings and table notes, by row in rising order, with
    // their texts in a buffer of their own, so that the many markers of forward
    // references don't make rowTexts move. A row without one, or with an empty
    // one, is clean.
    std::vector<RowMarker> markers;
    std::string markerTexts;
    std::string_view markerText(const RowMarker& marker) const {
        return std::string_view(markerTexts).substr(marker.text.at, marker.text.length);
    }

    std::string_view markerOf(std::size_t row) const;
    void setMarker(std::int32_t row, std::string_view text);
    void appendMarker(std::int32_t row, std::string_view text);
    void clearMarker(std::int32_t row);

    TextTable<4> labelTable;     // key, decimal address, use mark, "name: Zeile pos"
    TextTable<3> sfrTable;       // name, hexadecimal address, "1"
    TextTable<4> bitTable;       // key, hexadecimal address, use mark, written name
    TextTable<4> byteTable;      // key, decimal address, use mark, written name
    TextTable<4> wordTable;      // key, decimal address, use mark, written name
    TextTable<2> constantTable;  // key, decimal value
    TextTable<3> symbolList;     // written name, kind, value text

    std::vector<std::string> macroNames;
    std::vector<std::string> macroBodies;
    std::vector<std::string> macroParameters;
    std::vector<std::string> includeList;

    // Structures: rows grow when needed and are never shrunk; the counts above
    // tell how many are open. Exit jumps wait in the first free slot.
    std::vector<IfRow> ifStack;
    std::vector<ForRow> forStack;
    std::vector<LoopRow> loopStack;
    std::vector<std::optional<ExitPatch>> exitIfPatches;
    std::vector<std::optional<ExitPatch>> exitForPatches;
    std::vector<std::optional<ExitPatch>> exitLoopPatches;
};

}  // namespace korvex
