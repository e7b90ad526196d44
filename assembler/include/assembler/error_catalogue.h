#pragma once
// The numbered findings of an assembly run: words and whether a second pass
// may heal them (a forward reference) or not.

#include <cstdint>
#include <string>
#include <string_view>

namespace korvex {

// Every number a finding of a run can carry. 1 to 40 have the catalogue's
// words ("; >err6: words"); from 50 on a finding has its own text, often with
// the name it is about, and no colon ("; >err52 Konstante 'X' ...").
enum class Finding : std::int16_t {
    None = 0,
    InvalidOperandCombination = 1,
    RegisterR0ToR7Only = 2,
    ImmediateMissing = 3,
    InvalidDirectAddress = 4,
    BlockBoundaryCrossed = 5,
    UnknownInstructionOrTarget = 6,
    VariableNotRecognised = 7,
    BitNotRecognised = 8,
    OrgAddressNotRecognised = 9,
    NotBitAddressable = 10,
    AddressInWrittenRange = 11,
    StringTooLong = 12,
    ImmediateTooLarge = 13,
    IfStructureNotRecognised = 14,
    InvalidExit = 15,
    InvalidEnd = 16,
    QuoteError = 17,
    TableValueAboveFFh = 18,
    TableFormatError = 19,
    LoopSyntaxError = 20,
    RelativeRangeExceeded = 21,
    ElseOrEndIfWithoutIf = 22,
    NextWithoutFor = 23,
    EndLoopWithoutLoop = 24,
    ExitIfImpossible = 25,
    ExitForOutsideFor = 26,
    ExitLoopOutsideLoop = 27,
    InstructionNotRecognised = 28,
    BlankBehindHash = 29,
    Immediate16NotRecognised = 30,
    ValueTooLarge = 31,
    SyntaxError = 32,
    BitAddressableSfrOnly = 33,
    BitAddressTooLarge = 34,
    ElseTwice = 35,
    InvalidBitNumber = 36,
    ElseIfAfterElse = 37,
    ElseWithoutIf = 38,
    InvalidExpression = 39,
    DivisionByZero = 40,
    InvalidBitName = 50,
    NumberNotRecognised = 51,
    ConstantDefinedTwice = 52,
    ConstantWithoutValue = 53,
    PlacedBitDefinedTwice = 54,
    BitDefinedTwice = 56,
    ByteNamesSfr = 57,
    PlacedByteDefinedTwice = 58,
    ByteDefinedTwice = 59,
    WordNamesSfr = 60,
    WordDefinedTwice = 61,
    ExitOutOfRange = 62,
    ExitConditionInvalid = 63,
    MacroDefinedTwice = 64,
    MacroBracesMissing = 65,
    IncludeNotFound = 66,
    MacroArgumentsMissing = 67,
    LabelDefinedTwice = 68,
    // The driver file of "#cpu" could not be read; its box has told why.
    DriverUnreadable = 199,
};

constexpr int findingNumber(Finding finding) {
    return static_cast<int>(finding);
}

enum class FindingKind { Retried, Final };

struct CatalogueEntry {
    std::string words;  // Windows-1252, empty for a number outside the catalogue
    FindingKind kind;
};

// A number outside the catalogue has empty words and counts as retried.
CatalogueEntry catalogueEntry(int number);

FindingKind findingKind(int number);

// ";>err" + number + ": " + words, the form recordError writes.
std::string catalogueMarker(int number);

// The marker of a finding from 50 on: ";>err" + number + " " + its text,
// with `subject` (a name, a value) where the text names one.
std::string findingMarker(Finding finding, std::string_view subject = {});

// The one catalogue finding with a text of its own: a table item that is
// neither a number nor a known name (appended to the row's marker).
std::string tableItemMarker(std::string_view item);

}  // namespace korvex
