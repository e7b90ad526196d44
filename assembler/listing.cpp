// The listing file: the row table as text, with the report at its end. It is
// written before the code texts are cleaned, so every row still has its tabs.

#include <ctime>

#include "assembler/assembler.h"
#include "assembler/source_file.h"
#include "base/cp1252.h"
#include "base/text.h"
#include "base/version.h"

namespace korvex {

std::string germanDate(const CalendarDate& date) {
    static const char* const kMonths[] = {"Januar",    "Februar", "März",     "April",
                                          "Mai",       "Juni",    "Juli",     "August",
                                          "September", "Oktober", "November", "Dezember"};
    const int month = date.month >= 1 && date.month <= 12 ? date.month : 1;
    return std::to_string(date.day) + ". " + text8(kMonths[month - 1]) + " " +
           std::to_string(date.year);
}

CalendarDate todaysDate() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {local.tm_mday, local.tm_mon + 1, local.tm_year + 1900};
}

std::string Assembler::listingText() const {
    const std::string lineEnd(kCrLf);
    std::string text = "; Korvex Assembler Version " + std::string(kVersionNumber) + ", " +
                       kReleaseDate + ", Velmark Technik, " +
                       germanDate(settings_.today ? *settings_.today : todaysDate()) + lineEnd;
    for (std::size_t i = 0; i < state_.sourceTable.size(); ++i) {
        const SourceRow& row = state_.sourceTable[i];
        if (i < state_.codeText.size()) text += state_.codeText[i];
        text += row.position();
        text += '\t';
        text += state_.textOf(row.sourceText);
        if (const std::string_view marker = state_.markerOf(i); !marker.empty()) {
            text += '\t';
            text += marker;
        }
        text += lineEnd;
    }
    text += lineEnd + state_.reportText + lineEnd;
    return text;
}

}  // namespace korvex
