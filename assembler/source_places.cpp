#include "assembler/source_places.h"

#include <algorithm>
#include <cstdint>

#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

struct Position {
    int file = 0;
    std::string line;
};

std::string fileNamePart(const std::string& path) {
    const std::size_t slash = path.find_last_of("/\\");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

// The names that the #INCLUDE statements of a raw line give, in their order,
// cut the way the line code cuts them: at ";", and at a colon outside quotes.
std::vector<std::string> includeNamesOf(std::string line) {
    line.erase(std::min(line.find(';'), line.size()));
    for (char& c : line) {
        if (c == '\t') c = ' ';
    }
    const std::string upper = upperCase(line);
    std::vector<std::string> names;
    for (std::size_t hash = upper.find('#'); hash != std::string::npos;
         hash = upper.find('#', hash + 1)) {
        std::size_t word = hash + 1;
        while (word < upper.size() && upper[word] == ' ') ++word;
        if (upper.compare(word, 8, "INCLUDE ") != 0) continue;
        std::string name;
        bool inQuote = false;
        for (std::size_t i = word + 8; i < line.size(); ++i) {
            const char c = line[i];
            if (c == '\'') {
                inQuote = !inQuote;
                continue;
            }
            if (c == ':' && !inQuote) break;
            name += c;
        }
        names.push_back(trimBlanks(name));
    }
    return names;
}

// The raw line that holds row `row`: the nearest row at or above it that
// stores one (only the first row of a line does).
std::string rawLineOf(const RunState& state, std::size_t row) {
    for (std::size_t i = row + 1; i-- > 0;) {
        if (const std::string_view line = state.sourceTextOf(i); !line.empty())
            return std::string(line);
    }
    return {};
}

}  // namespace

std::vector<SourcePlace> sourcePlaces(const RunState& state) {
    std::vector<SourcePlace> places;
    places.reserve(state.sourceTable.size());
    std::vector<std::string> names(2);
    names[1] = fromUtf8(fileNamePart(state.sourceName));
    int previousFile = 1;
    Position last{1, "0"};
    for (std::size_t row = 0; row < state.sourceTable.size(); ++row) {
        const SourceRow& source = state.sourceTable[row];
        const Position read =
            source.file < 1 ? Position{} : Position{source.file, std::to_string(source.line)};
        const Position position = read.file == 0 ? last : read;
        last = position;
        if (names.size() <= static_cast<std::size_t>(position.file)) {
            names.resize(static_cast<std::size_t>(position.file) + 1);
        }
        if (position.file > previousFile) {
            // Files previousFile+1 .. file were opened by the line before,
            // the last #INCLUDE of it being the innermost.
            const std::vector<std::string> written =
                row > 0 ? includeNamesOf(rawLineOf(state, row - 1)) : std::vector<std::string>{};
            auto name = written.rbegin();
            for (int file = position.file; file > previousFile; --file) {
                const bool known = name != written.rend() && !name->empty();
                names[static_cast<std::size_t>(file)] =
                    known ? *name : text8("Include-Datei ") + std::to_string(file);
                if (name != written.rend()) ++name;
            }
        }
        previousFile = position.file;
        places.push_back(
            {position.file, names[static_cast<std::size_t>(position.file)], position.line});
    }
    return places;
}

}  // namespace korvex
