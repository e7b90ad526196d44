#pragma once
// A run-time failure of the kind the classic host raised (overflow, missing
// file, read past the end ...). Source errors are never failures: they are
// markers on rows. A failure is thrown where the host would fail and caught at
// the few traps that the program has.

#include <cstdint>
#include <exception>
#include <string>

namespace korvex {

enum class FailureNumber : int {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    IndexOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    OutOfStackSpace = 28,
    BadFileName = 52,
    FileNotFound = 53,
    ReadPastEnd = 62,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
};

class RuntimeFailure : public std::exception {
  public:
    explicit RuntimeFailure(FailureNumber number);
    // A failure about a file names it: "Datei nicht gefunden" alone leaves a
    // user guessing which of a project's files is meant.
    RuntimeFailure(FailureNumber number, std::string file);

    int number() const { return number_; }
    // German description, Windows-1252.
    const std::string& description() const { return description_; }
    // The error source, always the program's name.
    const std::string& source() const { return source_; }
    const char* what() const noexcept override { return description_.c_str(); }
    // The file the failure is about (Windows-1252), empty if none.
    const std::string& file() const { return file_; }
    // One German line that says what is likely wrong, empty if nothing is known.
    const std::string& hint() const { return hint_; }
    RuntimeFailure& withHint(std::string hint) {
        hint_ = std::move(hint);
        return *this;
    }

  private:
    int number_;
    std::string description_;
    std::string source_;
    std::string file_;
    std::string hint_;
};

[[noreturn]] void raise(FailureNumber number);
// The file is a path as the file system knows it (UTF-8); it is kept as 8-bit text.
[[noreturn]] void raise(FailureNumber number, const std::string& path);

// Called inside a catch (...) block at a trap: the exception in flight as the
// host's failure. Failures stay what they are; an index past the end of a
// table is "Index außerhalb des gültigen Bereichs" (9), exhausted memory
// "Nicht genügend Speicher" (7), anything else "Unzulässiger
// Prozeduraufruf oder ungültiges Argument" (5).
RuntimeFailure currentFailure();

// "\r\nDatei: ..." and the hint line, for the boxes of traps that word their
// first lines differently; empty when the failure has neither.
std::string failureDetails(const RuntimeFailure& failure);

// The first line of every failure box: `lead`, the number and " wurde
// ausgelöst von " with the source. The boxes differ in their lead ("Fehler
// Nummer", "Fehler", "Fehler # ") and in the blank that the classic Str$
// puts before a number (`strBlank`); all build the line here.
std::string failureHeadline(const std::string& lead, const RuntimeFailure& failure, bool strBlank);

// The text of the failure box of a trap: the classic three lines, then the
// file and the hint when the failure has them.
std::string failureBoxText(const RuntimeFailure& failure, const std::string& procedure);

// German description of a classic error number (Windows-1252), empty if unknown.
std::string failureDescription(int number);

// 32-bit signed arithmetic of the host: leaving the range is an overflow failure.
std::int32_t checkedInt32(std::int64_t value);
std::int32_t checkedAdd(std::int32_t a, std::int32_t b);
std::int32_t checkedSub(std::int32_t a, std::int32_t b);
std::int32_t checkedMul(std::int32_t a, std::int32_t b);

// Storing into a byte: a value outside 0..255 is an overflow failure.
std::uint8_t checkedByte(std::int64_t value);

// A 16-bit signed counter of the host: passing its range raises the overflow failure.
class Int16 {
  public:
    constexpr Int16() = default;
    Int16(std::int64_t value) : value_(check(value)) {}  // NOLINT: behaves like the host's integer

    operator std::int16_t() const { return value_; }  // NOLINT
    std::int16_t value() const { return value_; }

    Int16& operator+=(std::int64_t d) {
        value_ = check(value_ + d);
        return *this;
    }
    Int16& operator-=(std::int64_t d) {
        value_ = check(value_ - d);
        return *this;
    }
    Int16& operator++() { return *this += 1; }
    Int16& operator--() { return *this -= 1; }

  private:
    static std::int16_t check(std::int64_t value);
    std::int16_t value_ = 0;
};

}  // namespace korvex
