// What happens to a raw line before encoding: trimming, comments, labels,
// statement boundaries, character literals and the split into tokens.

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {

void Assembler::prepareLine(std::string& line) {
    Int16& counter = state_.lineCounters.at(static_cast<std::size_t>(state_.currentFile.value()));
    counter += 1;
    cleanText(line);
    growRowsTo(state_.currentRow);
    placeRow(state_.sourceTable[static_cast<std::size_t>(state_.currentRow)]);

    if (line.empty() || line.front() == ';') {
        setCodeText(std::string(kFourTabs));
        ++state_.currentRow;
        return;
    }
    // The cut looks at nothing else: a ";" in quotes or braces cuts there too.
    const std::size_t semicolon = line.find(';');
    if (semicolon != std::string::npos) {
        line.erase(semicolon);
        cleanText(line);
    }
    const std::size_t firstColon = line.find(':');
    if (firstColon != std::string::npos && firstColon + 1 == line.size()) {
        defineLabel(line, positionText());
        return;
    }
    expandAllMacros(line);

    // Statement boundaries: colons outside quotes and braces.
    std::vector<std::size_t>& colons = statementEnds_;
    colons.clear();
    if (line.find(':') != std::string::npos) {
        if (line.size() > 32767) raise(FailureNumber::Overflow);  // the walk counts in 16 bits
        bool inQuote = false;
        bool inBraces = false;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const char c = line[i];
            if (c == '\'') inQuote = !inQuote;
            if (c == '{') inBraces = true;
            if (c == '}') inBraces = false;
            if (c == ':' && !inQuote && !inBraces) colons.push_back(i);
        }
        if (inQuote) state_.errorNumber = Finding::QuoteError;
        if (inBraces) state_.errorNumber = Finding::SyntaxError;
    }
    colons.push_back(line.size());

    std::size_t start = 0;
    for (std::size_t end : colons) {
        std::string statement = cleaned(std::string_view(line).substr(start, end - start));
        start = end + 1;
        if (!statement.empty() && statement.front() == '#') {
            if (handleDirective(statement)) processStatement(statement);
        } else if (!statement.empty()) {
            processStatement(statement);
        }
    }
}

void Assembler::processStatement(std::string& text) {
    if (!state_.secondPass) growRowsTo(state_.currentRow);
    SourceRow& row = state_.sourceTable[static_cast<std::size_t>(state_.currentRow)];
    row.statement = state_.keepText(text);

    for (char& c : text) {
        if (c == '\t') c = ' ';
    }
    const std::size_t last = text.find_last_not_of(' ');
    if (last == std::string::npos) {
        text.clear();
        return;
    }
    text.erase(last + 1);
    text.erase(0, text.find_first_not_of(' '));

    // Tables keep their quoted texts; the test looks at the two letters only.
    const bool table = text.size() >= 2 && upperChar(text[0]) == 'D' &&
                       (upperChar(text[1]) == 'B' || upperChar(text[1]) == 'W');
    if (!table) foldCharacterLiterals(text);
    state_.statementCopy = text;
    splitTokens(text);

    if (!state_.secondPass) placeRow(row);
    if (state_.errorNumber == Finding::None) {
        encodeInstruction();
    } else {
        recordError();
    }
    ++state_.currentRow;
}

void Assembler::foldCharacterLiterals(std::string& text) {
    while (true) {
        const std::size_t open = text.find('\'');
        if (open == std::string::npos) return;
        state_.numberResult = 0;
        const std::size_t close = text.find('\'', open + 1);
        if (close == std::string::npos) {
            state_.errorNumber = Finding::QuoteError;
            return;
        }
        const std::string quoted = text.substr(open, close - open + 1);
        std::string characters = text.substr(open + 1, close - open - 1);
        if (characters.size() > 2) {
            characters.resize(2);
            state_.errorNumber = Finding::StringTooLong;
        }
        for (char c : characters) {
            state_.numberResult = state_.numberResult * 256 + static_cast<unsigned char>(c);
        }
        text = replaceAll(text, quoted, std::to_string(state_.numberResult));
    }
}

void Assembler::splitTokens(const std::string& text) {
    auto& tokens = state_.tokens;
    for (std::string& token : tokens) token.clear();
    const std::size_t blank = text.find(' ');
    const std::size_t comma = text.find(',');
    const std::size_t secondComma =
        comma == std::string::npos ? std::string::npos : text.find(',', comma + 1);
    if (blank != std::string::npos && comma != std::string::npos && comma < blank) {
        state_.errorNumber = Finding::SyntaxError;
        return;
    }
    if (blank == std::string::npos) {
        tokens[0] = text;
        return;
    }
    tokens[0].assign(text, 0, blank);
    if (comma == std::string::npos) {
        tokens[1].assign(text, blank + 1);
    } else if (secondComma == std::string::npos) {
        tokens[1].assign(text, blank + 1, comma - blank - 1);
        tokens[2].assign(text, comma + 1);
    } else {
        tokens[1].assign(text, blank + 1, comma - blank - 1);
        tokens[2].assign(text, comma + 1, secondComma - comma - 1);
        tokens[3].assign(text, secondComma + 1);
    }
}

}  // namespace korvex
