#include "base/failure.h"

#include <limits>
#include <new>
#include <stdexcept>

#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {

std::string failureDescription(int number) {
    switch (number) {
        case 5: return text8("Unzulässiger Prozeduraufruf oder ungültiges Argument");
        case 6: return text8("Überlauf");
        case 7: return text8("Nicht genügend Speicher");
        case 9: return text8("Index außerhalb des gültigen Bereichs");
        case 11: return text8("Division durch Null");
        case 13: return text8("Typen unverträglich");
        case 28: return text8("Nicht genügend Stapelspeicher");
        case 52: return text8("Dateiname oder -nummer falsch");
        case 53: return text8("Datei nicht gefunden");
        case 62: return text8("Einlesen hinter Dateiende");
        case 70: return text8("Zugriff verweigert");
        case 75: return text8("Fehler beim Zugriff auf Pfad/Datei");
        case 76: return text8("Pfad nicht gefunden");
        default: return {};
    }
}

RuntimeFailure::RuntimeFailure(FailureNumber number)
    : number_(static_cast<int>(number)),
      description_(failureDescription(number_)),
      source_("Korvex") {}

RuntimeFailure::RuntimeFailure(FailureNumber number, std::string file) : RuntimeFailure(number) {
    file_ = fromUtf8(file);
}

void raise(FailureNumber number) {
    throw RuntimeFailure(number);
}

void raise(FailureNumber number, const std::string& path) {
    throw RuntimeFailure(number, path);
}

RuntimeFailure currentFailure() {
    try {
        throw;
    } catch (const RuntimeFailure& failure) {
        return failure;
    } catch (const std::out_of_range&) {
        return RuntimeFailure(FailureNumber::IndexOutOfRange);
    } catch (const std::bad_alloc&) {
        return RuntimeFailure(FailureNumber::OutOfMemory);
    } catch (const std::length_error&) {
        return RuntimeFailure(FailureNumber::OutOfMemory);
    } catch (...) {
        return RuntimeFailure(FailureNumber::InvalidCall);
    }
}

std::string failureHeadline(const std::string& lead, const RuntimeFailure& failure, bool strBlank) {
    return lead + decimalText(failure.number(), strBlank) + text8(" wurde ausgelöst von ") +
           failure.source();
}

std::string failureBoxText(const RuntimeFailure& failure, const std::string& procedure) {
    return failureHeadline("Fehler Nummer", failure, true) + std::string(kCrLf) +
           failure.description() + std::string(kCrLf) + "Sub: " + procedure +
           failureDetails(failure);
}

std::string failureDetails(const RuntimeFailure& failure) {
    std::string text;
    if (!failure.file().empty()) text += std::string(kCrLf) + "Datei: " + failure.file();
    if (!failure.hint().empty()) text += std::string(kCrLf) + failure.hint();
    return text;
}

std::int32_t checkedInt32(std::int64_t value) {
    if (value < std::numeric_limits<std::int32_t>::min() ||
        value > std::numeric_limits<std::int32_t>::max()) {
        raise(FailureNumber::Overflow);
    }
    return static_cast<std::int32_t>(value);
}

std::int32_t checkedAdd(std::int32_t a, std::int32_t b) {
    return checkedInt32(std::int64_t{a} + b);
}
std::int32_t checkedSub(std::int32_t a, std::int32_t b) {
    return checkedInt32(std::int64_t{a} - b);
}
std::int32_t checkedMul(std::int32_t a, std::int32_t b) {
    return checkedInt32(std::int64_t{a} * b);
}

std::uint8_t checkedByte(std::int64_t value) {
    if (value < 0 || value > 255) raise(FailureNumber::Overflow);
    return static_cast<std::uint8_t>(value);
}

std::int16_t Int16::check(std::int64_t value) {
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max()) {
        raise(FailureNumber::Overflow);
    }
    return static_cast<std::int16_t>(value);
}

}  // namespace korvex
