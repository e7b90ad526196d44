#include "wizards/core/literal_style.h"

namespace korvex::wizards {

std::string registerLoad(LiteralStyle style, std::string_view target, std::string_view value) {
    std::string out;
    if (style == LiteralStyle::Assignment) {
        out.append(target).append(" = #").append(value);
        return out;
    }
    out.append("mov ").append(target).append(style == LiteralStyle::Blank ? ", # " : ", #");
    out.append(value);
    return out;
}

std::string registerOperation(LiteralStyle style, std::string_view mnemonic,
                              std::string_view target, std::string_view value) {
    std::string out(mnemonic);
    out.append(" ").append(target).append(style == LiteralStyle::Blank ? ", # " : ", #");
    out.append(value);
    return out;
}

}  // namespace korvex::wizards
