// #DEF and the expansion of macros in a line before it is split. Expansion
// works on upper-case text and replaces words as they first occur.

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

// A line that keeps growing under expansion (a macro that uses itself) would
// never end; past this length the run ends with an overflow instead.
constexpr std::size_t kLongestExpandedLine = 32767;

bool isWordBoundary(char c) {
    return c == ' ' || c == '\t' || c == ',' || c == '+' || c == '*' || c == '-' || c == '/' ||
           c == ':';
}

std::vector<std::string> splitAtCommas(const std::string& text) {
    std::vector<std::string> parts;
    if (text.empty()) return parts;  // nothing to split gives no part at all
    std::size_t start = 0;
    while (true) {
        const std::size_t comma = text.find(',', start);
        parts.push_back(text.substr(start, comma - start));
        if (comma == std::string::npos) break;
        start = comma + 1;
    }
    return parts;
}

std::string replaceRepeatedly(std::string text, std::string_view what, std::string_view with) {
    while (text.find(what) != std::string::npos) text = replaceAll(text, what, with);
    return text;
}

}  // namespace

bool isWholeWord(const std::string& upperLine, const std::string& name) {
    const std::size_t at = upperLine.find(name);
    if (at == std::string::npos) return false;
    const bool startOk = at == 0 || isWordBoundary(upperLine[at - 1]);
    const std::size_t after = at + name.size();
    const bool endOk =
        after >= upperLine.size() || isWordBoundary(upperLine[after]) || upperLine[after] == '(';
    return startOk && endOk;
}

void Assembler::defineMacro(const std::string& text) {
    const std::size_t open = text.find('{');
    if (open != std::string::npos && open + 1 > 255) raise(FailureNumber::Overflow);
    const std::size_t close = open == std::string::npos ? std::string::npos : text.find('}', open);
    if (close != std::string::npos && close + 1 > 255) raise(FailureNumber::Overflow);
    if (open == std::string::npos || close == std::string::npos) {
        setRowMarker(findingMarker(Finding::MacroBracesMissing));
        return;
    }
    constexpr std::size_t kKeywordLength = 5;  // "#DEF "
    const std::size_t paren = text.find('(');
    const bool withParameters =
        paren != std::string::npos && paren >= kKeywordLength && paren < open;
    const std::string writtenName =
        text.substr(kKeywordLength, (withParameters ? paren : open) - kKeywordLength);
    const std::string name = upperCase(trimBlanks(writtenName));
    if (findInList(name, state_.macroNames) >= 0) {
        setRowMarker(findingMarker(Finding::MacroDefinedTwice));
        return;
    }
    std::string parameters;
    if (withParameters) {
        const std::size_t closeParen = text.find(')', paren);
        if (closeParen == std::string::npos) raise(FailureNumber::InvalidCall);
        parameters = upperCase(removeAll(text.substr(paren + 1, closeParen - paren - 1), ' '));
    }
    const std::string rawBody = text.substr(open + 1, close - open - 1);

    const auto index = static_cast<std::size_t>(state_.macroCount.value());
    if (state_.macroNames.size() <= index) {
        state_.macroNames.resize(index + 1);
        state_.macroBodies.resize(index + 1);
        state_.macroParameters.resize(index + 1);
    }
    state_.macroNames[index] = name;
    state_.macroParameters[index] = parameters;
    const int symbol = state_.symbolList.appendByKeyRule();
    state_.symbolList.set(symbol, 0, writtenName);
    state_.symbolList.set(symbol, 1, "DEF");
    state_.symbolList.set(symbol, 2, rawBody);

    std::string body = rawBody;
    for (char& c : body) {
        if (c == '\t') c = ' ';
    }
    std::size_t first = body.find_first_not_of(' ');
    body = first == std::string::npos ? std::string() : body.substr(first);
    body = replaceRepeatedly(body, " )", ")");
    body = replaceRepeatedly(body, "( ", "(");
    body = replaceRepeatedly(body, " ,", ",");
    body = replaceRepeatedly(body, ", ", ",");
    body = replaceAll(body, "(", " (");
    body = replaceRepeatedly(body, "  ", " ");
    state_.macroBodies[index] = body;
    ++state_.macroCount;
}

void Assembler::expandAllMacros(std::string& line) {
    if (state_.macroCount == 0) return;
    // Macros that feed each other in a circle would sweep for ever; a 16-bit
    // count of sweeps ends such a line with an overflow.
    Int16 sweeps = 0;
    while (true) {
        const std::string before = line;
        expandMacros(line);
        if (line == before) return;
        ++sweeps;
    }
}

void Assembler::expandMacros(std::string& line) {
    std::string upper = upperCase(line);
    for (std::int32_t macro = 0; macro < state_.macroCount; ++macro) {
        const auto index = static_cast<std::size_t>(macro);
        const std::string& name = state_.macroNames[index];
        if (name.empty()) continue;
        const std::size_t at = upper.find(name);
        if (at == std::string::npos) continue;
        const auto quotes = std::count(upper.begin(), upper.begin() + static_cast<long>(at), '\'');
        if (quotes % 2 == 1 || !isWholeWord(upper, name)) continue;
        if (!state_.macroParameters[index].empty()) {
            expandMacroCall(line, macro);
            upper = upperCase(line);
            continue;
        }
        // The definition line of a macro is not expanded up to its brace.
        if (startsWith(upper, "#DEF ") && at <= upper.find('{')) continue;
        upper = replaceAll(upper, name, state_.macroBodies[index]);
        if (upper.size() > kLongestExpandedLine) raise(FailureNumber::Overflow);
        line = upper;
    }
}

void Assembler::expandMacroCall(std::string& line, std::int32_t& macro) {
    const auto index = static_cast<std::size_t>(macro);
    if (line.find('(') == std::string::npos || line.find(')') == std::string::npos) {
        setRowMarker(findingMarker(Finding::MacroArgumentsMissing));
        return;
    }
    const std::string& name = state_.macroNames[index];
    const std::size_t open = line.find('(', name.empty() ? 0 : name.size() - 1);
    const std::size_t close = open == std::string::npos ? std::string::npos : line.find(')', open);
    if (open == std::string::npos || close == std::string::npos) raise(FailureNumber::InvalidCall);
    const std::vector<std::string> arguments =
        splitAtCommas(removeAll(line.substr(open + 1, close - open - 1), ' '));
    const std::vector<std::string> parameters = splitAtCommas(state_.macroParameters[index]);

    std::string body = state_.macroBodies[index];
    // The argument loop counts with the caller's macro index: the sweep goes
    // on behind the number of arguments, and the next sweep catches the rest.
    for (macro = 0; macro < static_cast<std::int32_t>(arguments.size()); ++macro) {
        const auto argument = static_cast<std::size_t>(macro);
        if (argument >= parameters.size()) raise(FailureNumber::IndexOutOfRange);
        substituteParameter(body, parameters[argument], arguments[argument]);
    }
    line = removeAll(removeAll(body, '('), ')');
}

void Assembler::substituteParameter(std::string& body, const std::string& parameter,
                                    const std::string& argument) {
    if (parameter.empty() || parameter == argument) return;
    // The upper-case copy is kept in step with the body, so a long body costs
    // one pass, not one copy per hit.
    std::string upper = upperCase(body);
    const std::string upperArgument = upperCase(argument);
    std::size_t from = 1;
    while (from <= body.size()) {
        const std::size_t hit = upper.find(parameter, from);
        if (hit == std::string::npos) return;
        const std::size_t after = hit + parameter.size();
        const bool counts = (body[hit - 1] == '(' || body[hit - 1] == ',') && after < body.size() &&
                            (body[after] == ',' || body[after] == ')');
        if (counts) {
            body.replace(hit, parameter.size(), argument);
            upper.replace(hit, parameter.size(), upperArgument);
            if (body.size() > kLongestExpandedLine) raise(FailureNumber::Overflow);
        }
        from = hit + 1;
    }
}

}  // namespace korvex
