#include "program_assembly.h"

#include "base/cp1252.h"
#include "base/text.h"
#include "testing/process.h"

namespace korvex::wizards::testing {

AssembledSource assembleProgram(const std::string& program) {
    const korvex::testing::ScratchFolder folder;
    return korvex::testing::assembleText(program, std::string(KORVEX_DATA_DIR) + "/cpu/",
                                         folder.path());
}

std::optional<std::int32_t> stopAddress(const AssembledSource& assembled,
                                        const std::string& stopStatement) {
    const auto rows = korvex::testing::listedRows(assembled.listing);
    std::size_t stop = rows.size();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::string& source = rows[i].source;
        if (cleaned(upperCase(source.substr(0, source.find(';')))) == stopStatement) stop = i;
    }
    for (std::size_t i = stop; i < rows.size(); ++i) {
        if (!rows[i].bytes.empty())
            return static_cast<std::int32_t>(parseHexPrefix(rows[i].address));
    }
    return std::nullopt;
}

}  // namespace korvex::wizards::testing
