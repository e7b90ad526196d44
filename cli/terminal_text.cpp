#include "cli/terminal_text.h"

#include <langinfo.h>
#include <clocale>
#include <cstring>

#include "base/cp1252.h"

namespace korvex {
namespace {

bool terminalIsLatin() {
    static const bool latin = [] {
        std::setlocale(LC_CTYPE, "");
        const char* codeset = nl_langinfo(CODESET);
        return codeset != nullptr &&
               (std::strstr(codeset, "8859") != nullptr || std::strstr(codeset, "1252") != nullptr);
    }();
    return latin;
}

}  // namespace

std::string toTerminal(const std::string& cp1252) {
    return terminalIsLatin() ? cp1252 : toUtf8(cp1252);
}

}  // namespace korvex
